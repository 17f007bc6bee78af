#pragma once
// Shows a RasterSurface as it is: its pixel buffer is the image, nothing is copied.
#include <QWidget>

#include "render/raster_surface.h"

namespace quillane {

class PictureWidget : public QWidget {
    Q_OBJECT
  public:
    explicit PictureWidget(QWidget* parent = nullptr);
    // The surface to show; the widget takes its size.
    void setSurface(const RasterSurface* surface);
    const RasterSurface* surface() const { return surface_; }
    // The world point at the middle of the pixel under a widget position.
    WorldPoint worldAt(QPoint position) const;

  signals:
    // Keys go to the window's logic, not to the scroll area around the picture.
    void keyPressed(QKeyEvent* event);
    void mouseMoved(QPointF world, Qt::KeyboardModifiers modifiers);
    void mousePressed(QPointF world, Qt::MouseButton button, Qt::KeyboardModifiers modifiers);
    void mouseReleased(QPointF world, Qt::MouseButton button, Qt::KeyboardModifiers modifiers,
                       QPoint globalPosition);

  protected:
    void paintEvent(QPaintEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

  private:
    const RasterSurface* surface_ = nullptr;
};

}  // namespace quillane
