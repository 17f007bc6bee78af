#include "shell/frame_toolbar.h"

#include <QPainter>
#include <QPainterPath>
#include <QPixmap>

#include "core/menu_tree.h"
#include "app/undo.h"
#include "shell/icon_painting.h"

namespace quillane {

namespace {

constexpr int IconSide = ToolIconSide;
const QColor Ink(40, 40, 40);

// The one menu item behind a button whose command does not depend on the state.
const std::map<std::string, std::string>& fixedCommands() {
    static const std::map<std::string, std::string> commands = {
        {"open", "mnuOpen"},         {"save", "mnuSaveIFS"},       {"print", "mnuFilePrint"},
        {"undo", "mnuUndo"},         {"copy", "mnuEditCopy"},      {"paste", "mnuEditPaste"},
        {"rotation", "mnuRotation"}, {"fixed point", "mnuCodeFP"}, {"draw", "mnuRun"},
        {"stop", "mnuStop"},         {"help", "mnuHelp"},
    };
    return commands;
}

void page(QPainter& p, QRectF r) {
    QPainterPath path;
    path.moveTo(r.left(), r.top());
    path.lineTo(r.right() - 5, r.top());
    path.lineTo(r.right(), r.top() + 5);
    path.lineTo(r.right(), r.bottom());
    path.lineTo(r.left(), r.bottom());
    path.closeSubpath();
    p.setBrush(Qt::white);
    p.setPen(QPen(Ink, 1.2));
    p.drawPath(path);
    p.drawLine(QPointF(r.right() - 5, r.top()), QPointF(r.right() - 5, r.top() + 5));
    p.drawLine(QPointF(r.right() - 5, r.top() + 5), QPointF(r.right(), r.top() + 5));
}

void drawOpen(QPainter& p) {
    p.setPen(QPen(Ink, 1.2));
    p.setBrush(QColor(230, 190, 80));
    p.drawRect(QRectF(2.5, 6.5, 17, 13));
    p.setBrush(QColor(250, 215, 110));
    p.drawPolygon(QPolygonF({{5.5, 10.5}, {22.5, 10.5}, {19.5, 19.5}, {2.5, 19.5}}));
}

void drawSave(QPainter& p) {
    p.setPen(QPen(Ink, 1.2));
    p.setBrush(QColor(60, 90, 170));
    p.drawRect(QRectF(3.5, 3.5, 17, 17));
    p.setBrush(Qt::white);
    p.drawRect(QRectF(6.5, 3.5, 11, 7));
    p.setBrush(QColor(200, 200, 200));
    p.drawRect(QRectF(7.5, 14.5, 9, 6));
}

void drawPrint(QPainter& p) {
    p.setPen(QPen(Ink, 1.2));
    p.setBrush(Qt::white);
    p.drawRect(QRectF(7.5, 3.5, 9, 7));
    p.setBrush(QColor(170, 170, 170));
    p.drawRoundedRect(QRectF(3.5, 9.5, 17, 8), 2, 2);
    p.setBrush(Qt::white);
    p.drawRect(QRectF(7.5, 15.5, 9, 5));
}

void drawUndo(QPainter& p) {
    p.setPen(QPen(QColor(30, 100, 170), 2.2));
    p.setBrush(Qt::NoBrush);
    QPainterPath path;
    path.moveTo(8, 9);
    path.cubicTo(16, 9, 20, 12, 20, 15);
    path.cubicTo(20, 18, 16, 20, 12, 20);
    p.drawPath(path);
    p.setPen(QPen(QColor(30, 100, 170), 1));
    PaintArrowHead(p, {3, 9}, {9, 4}, {9, 14});
}

// The undo arrow turned the other way.
void drawRedo(QPainter& p) {
    p.translate(IconSide, 0);
    p.scale(-1, 1);
    drawUndo(p);
}

void drawCopy(QPainter& p) {
    page(p, QRectF(3.5, 2.5, 11, 14));
    page(p, QRectF(9.5, 7.5, 11, 14));
}

void drawPaste(QPainter& p) {
    p.setPen(QPen(Ink, 1.2));
    p.setBrush(QColor(170, 120, 60));
    p.drawRoundedRect(QRectF(3.5, 4.5, 14, 17), 2, 2);
    p.setBrush(QColor(200, 200, 200));
    p.drawRect(QRectF(7.5, 2.5, 6, 4));
    page(p, QRectF(10.5, 9.5, 10, 12));
}

void drawMatrix(QPainter& p) {
    p.setPen(QPen(Ink, 1.6));
    p.drawPolyline(QPolygonF({{7, 3}, {3, 3}, {3, 21}, {7, 21}}));
    p.drawPolyline(QPolygonF({{17, 3}, {21, 3}, {21, 21}, {17, 21}}));
    QFont font = p.font();
    font.setPixelSize(8);
    font.setBold(true);
    p.setFont(font);
    p.drawText(QRectF(4, 3, 8, 9), Qt::AlignCenter, "a");
    p.drawText(QRectF(12, 3, 8, 9), Qt::AlignCenter, "b");
    p.drawText(QRectF(4, 12, 8, 9), Qt::AlignCenter, "c");
    p.drawText(QRectF(12, 12, 8, 9), Qt::AlignCenter, "d");
}

void drawRotation(QPainter& p) {
    p.setPen(QPen(QColor(150, 60, 30), 2.2));
    p.setBrush(Qt::NoBrush);
    p.drawArc(QRectF(4, 4, 16, 16), 90 * 16, 270 * 16);
    p.setPen(QPen(QColor(150, 60, 30), 1));
    PaintArrowHead(p, {17, 4}, {11, 0}, {11, 8});
}

void drawFixedPoint(QPainter& p) {
    p.setPen(QPen(Ink, 1.2));
    p.setBrush(Qt::NoBrush);
    p.drawEllipse(QRectF(4.5, 4.5, 15, 15));
    p.drawLine(QPointF(12, 1), QPointF(12, 23));
    p.drawLine(QPointF(1, 12), QPointF(23, 12));
    p.setBrush(QColor(200, 30, 30));
    p.setPen(Qt::NoPen);
    p.drawEllipse(QPointF(12, 12), 3, 3);
}

// A small Sierpinski triangle: what the program draws.
void drawTriangles(QPainter& p, QPointF a, QPointF b, QPointF c, int depth) {
    if (depth == 0) {
        p.drawPolygon(QPolygonF({a, b, c}));
        return;
    }
    const QPointF ab = (a + b) / 2, bc = (b + c) / 2, ca = (c + a) / 2;
    drawTriangles(p, a, ab, ca, depth - 1);
    drawTriangles(p, ab, b, bc, depth - 1);
    drawTriangles(p, ca, bc, c, depth - 1);
}

void drawDraw(QPainter& p) {
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(20, 130, 60));
    drawTriangles(p, {1, 22}, {23, 22}, {12, 2}, 2);
}

void drawStop(QPainter& p) {
    p.setPen(QPen(QColor(120, 0, 0), 1.2));
    p.setBrush(QColor(210, 30, 30));
    p.drawPolygon(QPolygonF({{8, 2}, {16, 2}, {22, 8}, {22, 16}, {16, 22}, {8, 22}, {2, 16}, {2, 8}}));
    p.setBrush(Qt::white);
    p.setPen(Qt::NoPen);
    p.drawRect(QRectF(6, 10.5, 12, 3));
}

}  // namespace

QIcon ToolbarIcon(const std::string& key) {
    static const std::map<std::string, void (*)(QPainter&)> painters = {
        {"new", [](QPainter& p) { page(p, QRectF(4.5, 2.5, 15, 19)); }},
        {"open", drawOpen},
        {"save", drawSave},
        {"print", drawPrint},
        {"undo", drawUndo},
        {"redo", drawRedo},
        {"copy", drawCopy},
        {"paste", drawPaste},
        {"matrix", drawMatrix},
        {"rotation", drawRotation},
        {"fixed point", drawFixedPoint},
        {"draw", drawDraw},
        {"stop", drawStop},
        {"help", PaintHelpSign},
    };
    const auto it = painters.find(key);
    return PaintedToolIcon(it == painters.end() ? nullptr : it->second);
}

FrameToolbar::FrameToolbar(const Workbench& wb, Run run, HasCommand hasCommand, QWidget* parent)
    : QToolBar(parent), wb_(wb), run_(std::move(run)), hasCommand_(std::move(hasCommand)) {
    setObjectName("Toolbar");
    setMovable(false);
    setIconSize(QSize(IconSide, IconSide));
    int last = 0;
    for (const ToolbarButton& b : MainToolbarButtons()) {
        if (b.number > last + 1) addSeparator();
        last = b.number;
        QAction* action = addAction(ToolbarIcon(b.key), QString::fromStdString(b.toolTip));
        action->setObjectName(QString::fromStdString("Toolbar(" + b.key + ")"));
        action->setToolTip(QString::fromStdString(b.toolTip));
        action->setCheckable(b.key == "matrix" || b.key == "rotation" || b.key == "fixed point");
        const std::string key = b.key;
        connect(action, &QAction::triggered, this, [this, key] {
            run_(commandOf(key));
            sync();
        });
        buttons_[b.key] = action;
    }
    addSeparator();
    txtFractalSize_ = new QLineEdit(this);
    txtFractalSize_->setObjectName("txtFractalSize");
    txtFractalSize_->setReadOnly(true);
    txtFractalSize_->setToolTip("Size of the fractal image in pixels");
    txtFractalSize_->setFixedWidth(txtFractalSize_->fontMetrics().horizontalAdvance("88888 x 88888") + 12);
    addWidget(txtFractalSize_);
    sync();
}

QAction* FrameToolbar::button(const std::string& key) const {
    const auto it = buttons_.find(key);
    return it == buttons_.end() ? nullptr : it->second;
}

std::string FrameToolbar::commandOf(const std::string& key) const {
    if (key == "new") return wb_.DesignMode == 1 ? "mnuNewChaosGame" : "mnuNewIFS";
    if (key == "matrix") return wb_.menu("mnuMatrix").checked ? "mnuCodeMatrixFormat" : "mnuMatrix";
    const auto it = fixedCommands().find(key);
    return it == fixedCommands().end() ? std::string() : it->second;
}

void FrameToolbar::sync() {
    const MenuTable& table = wb_.Menu;
    for (const ToolbarButton& b : MainToolbarButtons()) {
        QAction* action = buttons_.at(b.key);
        const std::string command = commandOf(b.key);
        const MenuItemState& entry = table(FrameButtonKey(b.number));
        action->setEnabled(entry.enabled && table(command).enabled && hasCommand_(command));
        if (b.key != "matrix") action->setToolTip(QString::fromStdString(entry.caption));
    }
    // The undo button offers a redo with the arrow turned.
    const bool redo = UndoButtonImage(wb_) == UndoButtonImageRedo;
    QAction* undo = button("undo");
    if (undo->property("redo").toBool() != redo) {
        undo->setIcon(ToolbarIcon(redo ? "redo" : "undo"));
        undo->setProperty("redo", redo);
    }
    const bool functionForm = table("mnuCodeMatrixFormat").checked;
    button("matrix")->setChecked(table("mnuMatrix").checked || functionForm);
    button("matrix")->setToolTip(functionForm ? MatrixFunctionTip : MatrixCompactTip);
    button("rotation")->setChecked(table("mnuRotation").checked);
    button("fixed point")->setChecked(table("mnuCodeFP").checked);
}

}  // namespace quillane
