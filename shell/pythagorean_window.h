#pragma once
// frmPythagorean: the angle of the right triangles by slider or box, the first square with its two
// children, and Create IFS.
#include "app/pythagorean_commands.h"
#include "shell/generator_window.h"

class QLabel;
class QLineEdit;
class QSlider;

namespace quillane {

class PythagoreanWindow : public GeneratorWindow {
    Q_OBJECT
  public:
    explicit PythagoreanWindow(MainWindow& frame);
    // cmdSetup; txtTheta's Enter or leave.
    void create();
    bool thetaEntered();

  private:
    void showImage(float angle);

    QSlider* sliTheta_ = nullptr;
    QLineEdit* txtTheta_ = nullptr;
    QLabel* picImage_ = nullptr;
    bool checking_ = false;
};

}  // namespace quillane
