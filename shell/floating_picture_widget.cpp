#include "shell/floating_picture_widget.h"

#include <QMouseEvent>
#include <QPainter>
#include <QPen>

#include "render/floating_picture.h"

namespace quillane {

namespace {

Qt::CursorShape cursorFor(int handle) {
    switch (handle) {
        case 0:
        case 4:
            return Qt::SizeFDiagCursor;
        case 2:
        case 6:
            return Qt::SizeBDiagCursor;
        case 1:
        case 5:
            return Qt::SizeVerCursor;
        case 3:
        case 7:
            return Qt::SizeHorCursor;
        default:
            return Qt::SizeAllCursor;
    }
}

}  // namespace

FloatingPictureWidget::FloatingPictureWidget(PasteArea area, QWidget* picture)
    : QWidget(picture), area_(area) {
    setObjectName("picPaste");
    setMouseTracking(true);
    setAttribute(Qt::WA_OpaquePaintEvent);
    hide();
    // The outline marches, so the floating state is plain to see.
    ants_.setInterval(150);
    connect(&ants_, &QTimer::timeout, this, [this] {
        antsOffset_ = (antsOffset_ + 1) % 8;
        update();
    });
}

void FloatingPictureWidget::sync() {
    const FloatingPicture& f = *area_.Floating;
    if (!f.Visible) {
        ants_.stop();
        hide();
        return;
    }
    setGeometry(f.Left, f.Top, f.Width, f.Height);
    if (!isVisible()) {
        show();
        raise();
        ants_.start();
    }
    update();
}

void FloatingPictureWidget::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const RasterSurface& p = *area_.picPaste;
    if (p.width() > 0) {
        const QImage image(reinterpret_cast<const uchar*>(p.data()), p.width(), p.height(), p.width() * 4,
                           QImage::Format_RGBX8888);
        painter.drawImage(0, 0, image);
    }
    // The outline inverts what lies under it, so it shows on any picture.
    painter.setCompositionMode(QPainter::RasterOp_SourceXorDestination);
    QPen pen(Qt::white, 1, Qt::CustomDashLine);
    pen.setDashPattern({4, 4});
    pen.setDashOffset(antsOffset_);
    painter.setPen(pen);
    painter.drawRect(0, 0, width() - 1, height() - 1);
    painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
    if (!area_.Floating->ResizeHandles) return;
    const int s = GrabHandleSize;
    const int xs[3] = {0, (width() - s) / 2, width() - s};
    const int ys[3] = {0, (height() - s) / 2, height() - s};
    painter.setPen(Qt::white);
    for (int i = 0; i < 3; ++i) {
        for (int j = 0; j < 3; ++j) {
            if (i == 1 && j == 1) continue;
            painter.fillRect(xs[i], ys[j], s, s, Qt::black);
            painter.drawRect(xs[i], ys[j], s - 1, s - 1);
        }
    }
}

void FloatingPictureWidget::updateCursor(QPoint local) {
    const QPoint at = inPicture(local);
    int handle = GrabHandleAt(*area_.Floating, at.x(), at.y());
    if (!area_.Floating->ResizeHandles) handle = HandleMiddle;
    setCursor(cursorFor(handle));
}

void FloatingPictureWidget::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) return;
    const QPoint at = inPicture(event->position().toPoint());
    handle_ = GrabHandleAt(*area_.Floating, at.x(), at.y());
    if (handle_ == HandleNone || !area_.Floating->ResizeHandles) handle_ = HandleMiddle;
    dragging_ = true;
    pressAt_ = event->globalPosition().toPoint();
    start_ = *area_.Floating;
}

void FloatingPictureWidget::mouseMoveEvent(QMouseEvent* event) {
    if (!dragging_) {
        updateCursor(event->position().toPoint());
        return;
    }
    const QPoint d = event->globalPosition().toPoint() - pressAt_;
    SetFloatingRect(area_, DragFloating(start_, handle_, d.x(), d.y()));
    sync();
    if (onChanged) onChanged();
}

void FloatingPictureWidget::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() == Qt::RightButton) {
        if (onPopupRequested) onPopupRequested(event->globalPosition().toPoint());
        return;
    }
    dragging_ = false;
}

}  // namespace quillane
