#pragma once
// frmModSier: the triangle (apex dragged on picCanvas, typed, or from its angles), the factors and
// the rule set of a modified Sierpinski triangle.
#include <array>

#include "app/sierpinski_commands.h"
#include "shell/generator_window.h"

class QLabel;
class QLineEdit;
class QRadioButton;

namespace quillane {

class SierpinskiWindow : public GeneratorWindow {
    Q_OBJECT
  public:
    explicit SierpinskiWindow(MainWindow& frame);
    const SierpinskiForm& form() const { return form_; }
    // picCanvas: A follows the mouse, kept inside the checks.
    void dragApexTo(float x, float y);
    void create();

  private:
    void readBoxes();
    void showForm();
    void typedApex();

    SierpinskiForm form_;
    QWidget* picCanvas_ = nullptr;
    QLabel* picMethod_ = nullptr;
    std::array<QLineEdit*, 3> txtAngle_{};
    std::array<QLineEdit*, 3> txtPara_{};
    std::array<QRadioButton*, 3> opt_{};
    QLineEdit* txtAx_ = nullptr;
    QLineEdit* txtAy_ = nullptr;
};

}  // namespace quillane
