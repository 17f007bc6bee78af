#pragma once
// "Triangle Fractal Design": a triangle cut into n^2 triangles; clicks remove and restore them,
// Create IFS makes the maps.
#include "generators/triangle_fractal.h"
#include "shell/generator_window.h"

class QRadioButton;

namespace quillane {

class PictureWidget;

class TriangleFractalWindow : public GeneratorWindow {
    Q_OBJECT
  public:
    explicit TriangleFractalWindow(MainWindow& frame);
    const TriangleFractal& model() const { return tri_; }
    PictureWidget* picture() const { return picCanvas_; }

  private:
    int checkedSize() const;
    void drawGrid();

    TriangleFractal tri_;
    RasterSurface surface_{360, 360};
    PictureWidget* picCanvas_ = nullptr;
    QRadioButton* optsize_[9] = {};
};

}  // namespace quillane
