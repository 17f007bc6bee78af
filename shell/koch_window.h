#pragma once
// frmKoch, "Koch Curves with n-gons": n and c, the preview of the generator to 1, 2 or 3 levels, and
// "Use recursion" for the deterministic drawing.
#include <array>

#include "app/koch_commands.h"
#include "shell/generator_window.h"

class QCheckBox;
class QLabel;
class QLineEdit;
class QRadioButton;
class QSlider;

namespace quillane {

class PictureWidget;

class KochWindow : public GeneratorWindow {
    Q_OBJECT
  public:
    explicit KochWindow(MainWindow& frame);
    const KochForm& form() const { return form_; }
    const RasterSurface& canvas() const { return surface_; }
    // cmdFit and every redraw of the preview; the slider's keys keep the view.
    void drawPreview(bool fit = true);
    void create();

  protected:
    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void closing() override;

  private:
    void readBoxes();
    void showForm();
    void focusBox(KochFocus box);

    KochForm form_;
    RasterSurface surface_{300, 300};
    PictureWidget* picCanvas_ = nullptr;
    QLineEdit* txtN_ = nullptr;
    QLineEdit* txtC_ = nullptr;
    QSlider* sliC_ = nullptr;
    QCheckBox* chkRecursion_ = nullptr;
    std::array<QRadioButton*, 3> optIter_{};
    QString cOnFocus_;  // txtC as it stood when it gained the focus
};

}  // namespace quillane
