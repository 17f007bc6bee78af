#include "shell/design_tool_icons.h"

#include <QPainter>
#include <QPainterPath>
#include <map>

#include "shell/icon_painting.h"

namespace quillane {

namespace {

constexpr int Side = ToolIconSide;
const QColor Ink(40, 40, 40);
const QColor Map(30, 110, 200);
const QColor Warn(200, 40, 40);
const QColor Ghost(140, 140, 140);  // a map before the change

// The design's picture of a map: a square with the small inner corner that shows its orientation.
void orientedSquare(QPainter& p, const QTransform& t, QColor colour) {
    p.save();
    p.setTransform(t, true);
    p.setPen(QPen(colour, 1.4));
    p.setBrush(Qt::NoBrush);
    p.drawRect(QRectF(-5, -5, 10, 10));
    p.drawPolyline(QPolygonF({{-3, -3}, {-3, 3}, {1, 3}}));
    p.restore();
}

void drawNew(QPainter& p) {
    orientedSquare(p, QTransform::fromTranslate(10, 13), Map);
    p.setPen(QPen(QColor(0, 140, 0), 2.2));
    p.drawLine(QPointF(18, 2), QPointF(18, 10));
    p.drawLine(QPointF(14, 6), QPointF(22, 6));
}

void drawDuplicate(QPainter& p) {
    orientedSquare(p, QTransform::fromTranslate(9, 9), Ghost);
    orientedSquare(p, QTransform::fromTranslate(15, 15), Map);
}

void drawDelete(QPainter& p) {
    orientedSquare(p, QTransform::fromTranslate(11, 12), Map);
    p.setPen(QPen(Warn, 2.4));
    p.drawLine(QPointF(4, 4), QPointF(20, 20));
    p.drawLine(QPointF(20, 4), QPointF(4, 20));
}

void drawHorizontal(QPainter& p) {
    p.setPen(QPen(Ink, 1, Qt::DashLine));
    p.drawLine(QPointF(12, 2), QPointF(12, 22));
    orientedSquare(p, QTransform(1, 0, 0, 1, 6, 12).scale(0.8, 0.8), Map);
    orientedSquare(p, QTransform(-1, 0, 0, 1, 18, 12).scale(0.8, 0.8), Ghost);
}

void drawVertical(QPainter& p) {
    p.setPen(QPen(Ink, 1, Qt::DashLine));
    p.drawLine(QPointF(2, 12), QPointF(22, 12));
    orientedSquare(p, QTransform(1, 0, 0, 1, 12, 6).scale(0.8, 0.8), Map);
    orientedSquare(p, QTransform(1, 0, 0, -1, 12, 18).scale(0.8, 0.8), Ghost);
}

// The map's square before (grey) and after a turn about its centre, with a short arrow on
// the turn; `left` turns counterclockwise. Unlike Undo and Redo it shows what turns.
void drawRotate(QPainter& p, bool left) {
    if (!left) {
        p.translate(Side, 0);
        p.scale(-1, 1);
    }
    orientedSquare(p, QTransform::fromTranslate(12, 13).scale(1.3, 1.3), Ghost);
    orientedSquare(p, QTransform::fromTranslate(12, 13).rotate(-30).scale(1.3, 1.3), Map);
    p.setPen(QPen(Ink, 1.4));
    p.setBrush(Qt::NoBrush);
    p.drawArc(QRectF(3, 1, 18, 18), 20 * 16, 70 * 16);
    p.setPen(QPen(Ink, 1));
    PaintArrowHead(p, {8, 2.5}, {13, -0.5}, {13, 5.5});
}

void drawPolygon(QPainter& p) {
    p.setPen(QPen(Ink, 1.4, Qt::DashLine));
    p.setBrush(Qt::NoBrush);
    p.drawPolygon(QPolygonF({{4, 19}, {9, 4}, {20, 8}, {17, 20}}));
}

void drawAxes(QPainter& p) {
    p.setPen(QPen(Ink, 1.4));
    p.drawLine(QPointF(2, 16), QPointF(22, 16));
    p.drawLine(QPointF(8, 2), QPointF(8, 22));
    for (int k : {13, 18}) p.drawLine(QPointF(k, 14), QPointF(k, 18));
    for (int k : {6, 11}) p.drawLine(QPointF(6, k), QPointF(10, k));
}

void drawFixedPoints(QPainter& p) {
    orientedSquare(p, QTransform::fromTranslate(12, 12).scale(1.4, 1.4), Ghost);
    p.setPen(Qt::NoPen);
    p.setBrush(Warn);
    p.drawEllipse(QPointF(12, 12), 3, 3);
}

void drawGrid(QPainter& p) {
    p.setPen(QPen(Ink, 1, Qt::DotLine));
    for (int k = 4; k <= 20; k += 4) {
        p.drawLine(QPointF(k, 2), QPointF(k, 22));
        p.drawLine(QPointF(2, k), QPointF(22, k));
    }
}

void drawLines(QPainter& p) {
    int y = 5;
    for (double width : {1.0, 2.2, 3.6}) {
        p.setPen(QPen(Ink, width));
        p.drawLine(QPointF(3, y), QPointF(21, y));
        y += 7;
    }
}

void drawZoom(QPainter& p, bool in) {
    p.setPen(QPen(Ink, 1.8));
    p.setBrush(QColor(230, 240, 255));
    p.drawEllipse(QRectF(3, 3, 13, 13));
    p.setPen(QPen(Ink, 3));
    p.drawLine(QPointF(14.5, 14.5), QPointF(21, 21));
    p.setPen(QPen(Ink, 1.6));
    p.drawLine(QPointF(6.5, 9.5), QPointF(12.5, 9.5));
    if (in) p.drawLine(QPointF(9.5, 6.5), QPointF(9.5, 12.5));
}

}  // namespace

QIcon DesignToolIcon(const std::string& key) {
    static const std::map<std::string, void (*)(QPainter&)> painters = {
        {"new", drawNew},
        {"duplicate", drawDuplicate},
        {"delete", drawDelete},
        {"horizontal", drawHorizontal},
        {"vertical", drawVertical},
        {"rotate left", [](QPainter& p) { drawRotate(p, true); }},
        {"rotate right", [](QPainter& p) { drawRotate(p, false); }},
        {"polygon", drawPolygon},
        {"axes", drawAxes},
        {"fixed points", drawFixedPoints},
        {"grid", drawGrid},
        {"lines", drawLines},
        {"zoom out", [](QPainter& p) { drawZoom(p, false); }},
        {"zoom in", [](QPainter& p) { drawZoom(p, true); }},
        {"help", PaintHelpSign},
    };
    const auto it = painters.find(key);
    return it == painters.end() ? QIcon() : PaintedToolIcon(it->second);
}

}  // namespace quillane
