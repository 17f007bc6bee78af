#pragma once
// "Box Fractal Design": a grid of boxes; clicks remove and restore them, Create IFS makes the maps.
#include "generators/box_fractal.h"
#include "shell/generator_window.h"

class QLabel;
class QRadioButton;

namespace quillane {

class PictureWidget;

class BoxFractalWindow : public GeneratorWindow {
    Q_OBJECT
  public:
    explicit BoxFractalWindow(MainWindow& frame);
    const BoxFractal& model() const { return box_; }
    PictureWidget* picture() const { return picBox_; }
    int checkedSize() const;

  protected:
    bool event(QEvent* event) override;

  private:
    void drawGrid();
    void create();

    BoxFractal box_;
    RasterSurface surface_{300, 300};
    PictureWidget* picBox_ = nullptr;
    QRadioButton* optsize_[9] = {};
};

}  // namespace quillane
