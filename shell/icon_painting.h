#pragma once
// What the drawn tool button pictures of the frame and the design window share.
#include <QIcon>
#include <QPainter>

namespace quillane {

inline constexpr int ToolIconSide = 24;

// A transparent square picture of ToolIconSide pixels painted by `paint`, antialiased.
QIcon PaintedToolIcon(void (*paint)(QPainter&));
// A filled triangle in the pen's colour.
void PaintArrowHead(QPainter& p, QPointF tip, QPointF a, QPointF b);
// The white question mark on a blue disc of the help buttons.
void PaintHelpSign(QPainter& p);

}  // namespace quillane
