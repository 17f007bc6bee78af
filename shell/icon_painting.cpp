#include "shell/icon_painting.h"

#include <QPixmap>
#include <QPolygonF>

namespace quillane {

QIcon PaintedToolIcon(void (*paint)(QPainter&)) {
    QPixmap pixmap(ToolIconSide, ToolIconSide);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    if (paint) paint(painter);
    painter.end();
    return QIcon(pixmap);
}

void PaintArrowHead(QPainter& p, QPointF tip, QPointF a, QPointF b) {
    p.setBrush(p.pen().color());
    p.drawPolygon(QPolygonF({tip, a, b}));
}

void PaintHelpSign(QPainter& p) {
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(40, 90, 180));
    p.drawEllipse(QRectF(2, 2, 20, 20));
    QFont font = p.font();
    font.setPixelSize(16);
    font.setBold(true);
    p.setFont(font);
    p.setPen(Qt::white);
    p.drawText(QRectF(2, 2, 20, 20), Qt::AlignCenter, "?");
}

}  // namespace quillane
