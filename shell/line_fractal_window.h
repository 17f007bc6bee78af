#pragma once
// "Line Fractal Design": the polyline on a canvas with grid, markers and half arrows, dragged by its
// inner vertices; a preview of the curve; the points file; Create IFS with the recursion box.
#include <array>

#include "generators/line_fractal_canvas.h"
#include "shell/generator_window.h"

class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QRadioButton;

namespace quillane {

class PictureWidget;

class LineFractalWindow : public GeneratorWindow {
    Q_OBJECT
  public:
    explicit LineFractalWindow(MainWindow& frame);
    LineFractal& model();
    const LineCanvasView& view() const { return view_; }
    const RasterSurface& canvas() const { return canvas_; }
    const RasterSurface& preview() const { return previewSurface_; }
    PictureWidget* picCanvas() const { return picCanvas_; }
    int PreviewDepth = 0;

    // The handlers, callable as the controls call them.
    void cmbEdgesChanged(int index);
    void cmdEdgeChange(int index);
    void cmdReset();
    void cmdSnap();
    void optDirectionClick(int index);
    void chkOrientClick(bool on);
    void canvasPress(QPointF world, Qt::MouseButton button);
    void canvasMove(QPointF world);
    void canvasRelease(Qt::MouseButton button, Qt::KeyboardModifiers modifiers, QPoint global);
    // A view key; true when handled (then the key is eaten).
    bool viewKey(int key, Qt::KeyboardModifiers modifiers);
    void setPoint();
    void readPoints();
    void savePoints();
    void create();

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void closing() override;

  private:
    void buildControls();
    void connectControls();
    void applyView();
    void redrawGrid();
    void redraw();
    void redrawPreview(int depth);
    void showEdges();
    void snapPoint(int i);

    LineCanvasView view_;
    RasterSurface canvas_{440, 440};
    RasterSurface picgrid_{440, 440};
    RasterSurface previewSurface_{200, 200};
    PictureWidget* picCanvas_ = nullptr;
    PictureWidget* picPreview_ = nullptr;
    QComboBox* cmbEdges_ = nullptr;
    std::array<QPushButton*, 2> cmdEdgeChange_{};
    QPushButton *cmdReset_ = nullptr, *cmdSnap_ = nullptr, *cmdSetup_ = nullptr, *cmdHelp_ = nullptr;
    QPushButton *cmdSave_ = nullptr, *cmdOpen_ = nullptr;
    std::array<QRadioButton*, 2> optDirection_{};
    QCheckBox *chkGrid_ = nullptr, *chkOrient_ = nullptr, *chkPreview_ = nullptr, *chkRecursion_ = nullptr;
    QLineEdit* txtOrient_ = nullptr;
    std::array<QLabel*, 4> lblOrient_{};
    std::array<QLabel*, 4> lblScale_{};
    QLabel *lblWarning_ = nullptr, *lblCoord_ = nullptr, *lblStatus_ = nullptr;
    bool Dragging = false;
    bool NoPointHit = false;
    bool KeyLatch = false;
    bool ComboGuard = false;
    bool SavedRecursionValue = false, SavedPreviewValue = false;
};

}  // namespace quillane
