#include "shell/overlay_icons.h"

#include "shell/icon_painting.h"

namespace quillane {

namespace {

void paintAxes(QPainter& p) {
    p.setPen(QPen(Qt::black, 2));
    p.drawLine(QPointF(2, 12), QPointF(22, 12));
    p.drawLine(QPointF(12, 2), QPointF(12, 22));
    p.setPen(QPen(Qt::black, 1));
    for (int k : {4, 20}) {
        p.drawLine(QPointF(k, 10), QPointF(k, 14));
        p.drawLine(QPointF(10, k), QPointF(14, k));
    }
}

void paintFixedPoints(QPainter& p) {
    p.setPen(Qt::NoPen);
    const QColor colors[] = {QColor(220, 0, 0), QColor(0, 0, 220), QColor(0, 150, 0)};
    const QPointF at[] = {{5, 19}, {19, 19}, {12, 5}};
    for (int k = 0; k < 3; ++k) {
        p.setBrush(colors[k]);
        p.drawEllipse(at[k], 3.5, 3.5);
    }
}

void paintGrid(QPainter& p) {
    p.setPen(QPen(QColor(110, 110, 110), 1, Qt::DotLine));
    for (int k = 3; k <= 21; k += 6) {
        p.drawLine(QPointF(k, 2), QPointF(k, 22));
        p.drawLine(QPointF(2, k), QPointF(22, k));
    }
}

}  // namespace

QIcon OverlayIcon(int which) {
    switch (which) {
        case 0:
            return PaintedToolIcon(paintAxes);
        case 1:
            return PaintedToolIcon(paintFixedPoints);
        default:
            return PaintedToolIcon(paintGrid);
    }
}

}  // namespace quillane
