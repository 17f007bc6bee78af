#include "shell/picture_widget.h"

#include <QImage>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

namespace quillane {

PictureWidget::PictureWidget(QWidget* parent) : QWidget(parent) {
    setMouseTracking(true);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setFocusPolicy(Qt::StrongFocus);
}

void PictureWidget::setSurface(const RasterSurface* surface) {
    surface_ = surface;
    if (surface_) setFixedSize(surface_->width(), surface_->height());
    update();
}

WorldPoint PictureWidget::worldAt(QPoint position) const {
    if (!surface_ || surface_->width() == 0 || surface_->height() == 0) return {};
    const double x = surface_->scaleLeft() + (position.x() + 0.5) / surface_->pixelScaleX();
    const double y = surface_->scaleTop() + (position.y() + 0.5) / surface_->pixelScaleY();
    return {x, y};
}

void PictureWidget::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    if (!surface_ || surface_->width() == 0) {
        painter.fillRect(rect(), Qt::white);
        return;
    }
    // The pixels are R, G, B, 255 in memory: exactly Format_RGBX8888.
    const QImage image(reinterpret_cast<const uchar*>(surface_->data()), surface_->width(),
                       surface_->height(), surface_->width() * 4, QImage::Format_RGBX8888);
    painter.drawImage(0, 0, image);
}

void PictureWidget::mouseMoveEvent(QMouseEvent* event) {
    const WorldPoint w = worldAt(event->position().toPoint());
    emit mouseMoved(QPointF(w.x, w.y), event->modifiers());
}

void PictureWidget::mousePressEvent(QMouseEvent* event) {
    setFocus();
    const WorldPoint w = worldAt(event->position().toPoint());
    emit mousePressed(QPointF(w.x, w.y), event->button(), event->modifiers());
}

void PictureWidget::mouseReleaseEvent(QMouseEvent* event) {
    const WorldPoint w = worldAt(event->position().toPoint());
    emit mouseReleased(QPointF(w.x, w.y), event->button(), event->modifiers(),
                       event->globalPosition().toPoint());
}

}  // namespace quillane

namespace quillane {

void PictureWidget::keyPressEvent(QKeyEvent* event) {
    event->accept();
    emit keyPressed(event);
}

}  // namespace quillane
