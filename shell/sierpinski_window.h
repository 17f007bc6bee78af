#pragma once
// frmModSier: the triangle (apex dragged on picCanvas, typed, or from its angles), the factors and
// the rule set of a modified Sierpinski triangle.
#include <array>

#include "app/sierpinski_commands.h"
#include "shell/generator_window.h"

class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QRadioButton;
class QSlider;

namespace quillane {

class SierpinskiWindow : public GeneratorWindow {
    Q_OBJECT
  public:
    explicit SierpinskiWindow(MainWindow& frame);
    const SierpinskiForm& form() const { return form_; }
    // picCanvas: A follows the mouse, kept inside the checks.
    void dragApexTo(float x, float y);
    void create();
    // The twist panel's cmdDraw; the canvas then shows the twisted triangle under the apex.
    void drawTwist();
    const RasterSurface* twistPicture() const { return showTwist_ ? &twist_ : nullptr; }

  private:
    void readBoxes();
    void showForm();
    void typedApex();
    QWidget* twistPanel();
    TwistForm twistForm() const;

    SierpinskiForm form_;
    QWidget* picCanvas_ = nullptr;
    QLabel* picMethod_ = nullptr;
    std::array<QLineEdit*, 3> txtAngle_{};
    std::array<QLineEdit*, 3> txtPara_{};
    std::array<QRadioButton*, 3> opt_{};
    QLineEdit* txtAx_ = nullptr;
    QLineEdit* txtAy_ = nullptr;
    QSlider* sliTwist_ = nullptr;
    QComboBox* cmbIterations_ = nullptr;
    QCheckBox* chkFilled_ = nullptr;
    QCheckBox* chkOpenTwist_ = nullptr;
    std::array<QRadioButton*, 2> optColor_{};
    QPushButton* picColor_ = nullptr;
    Color twistColor_ = TwistForm{}.picColor;
    RasterSurface twist_;
    bool showTwist_ = false;
};

}  // namespace quillane
