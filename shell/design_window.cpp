#include "shell/design_window.h"

#include <QAction>
#include <QEvent>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QMenu>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <QPixmap>
#include <QToolBar>
#include <QToolButton>
#include <QVBoxLayout>
#include <array>

#include "app/design_keys.h"
#include "app/design_picture_commands.h"
#include "app/design_view.h"
#include "app/fractal_view.h"
#include "app/polygon_commands.h"
#include "core/numbers.h"
#include "shell/design_tool_icons.h"
#include "shell/floating_picture_widget.h"

namespace quillane {

namespace {

struct ToolButton {
    const char* key;      // the button's key
    const char* command;  // the menu command it runs
};
// Buttons 1..15 of Toolbar1.
constexpr std::array<ToolButton, DesignToolbarButtons> ToolButtons{{
    {"new", "mnuDesignNew"},
    {"duplicate", "mnuDesignDuplicate"},
    {"delete", "mnuDesignClear"},
    {"horizontal", "mnuDesignFlipHor"},
    {"vertical", "mnuDesignFlipVert"},
    {"rotate left", "DesignRotateLeft"},
    {"rotate right", "DesignRotateRight"},
    {"polygon", "mnuDesignPoly"},
    {"axes", "mnuDesignAxes"},
    {"fixed points", "mnuDesignFP"},
    {"grid", "mnuDesignGrid"},
    {"lines", "DesignLineRing"},
    {"zoom out", "mnuDesignZoom"},
    {"zoom in", "mnuDesignZoomIn"},
    {"help", "DesignHelp"},
}};

// US layout: Shift with a top-row digit gives these keys.
constexpr const char* ShiftedDigits = ")!@#$%^&*(";

// The rotation cursor: an open circle with an arrowhead, drawn once.
QCursor rotationCursor() {
    static const QCursor cursor = [] {
        QPixmap pixmap(24, 24);
        pixmap.fill(Qt::transparent);
        QPainter p(&pixmap);
        p.setRenderHint(QPainter::Antialiasing);
        for (const auto& [colour, width] : {std::pair{Qt::white, 4.0}, std::pair{Qt::black, 2.0}}) {
            p.setPen(QPen(colour, width));
            p.drawArc(QRectF(4, 4, 16, 16), 60 * 16, 300 * 16);
            QPainterPath head;
            head.moveTo(16, 1);
            head.lineTo(21, 6);
            head.lineTo(14, 8);
            p.drawPath(head);
        }
        return QCursor(pixmap, 12, 12);
    }();
    return cursor;
}

}  // namespace

void DesignPicture::mouseDoubleClickEvent(QMouseEvent* event) {
    event->accept();
    emit doubleClicked();
}

void DesignPicture::focusOutEvent(QFocusEvent* event) {
    PictureWidget::focusOutEvent(event);
    emit focusLost();
}

int DesignKeyCodeOf(int qtKey, Qt::KeyboardModifiers modifiers) {
    const bool keypad = modifiers & Qt::KeypadModifier;
    switch (qtKey) {
        case Qt::Key_Left:
            return KeyLeft;
        case Qt::Key_Up:
            return KeyUp;
        case Qt::Key_Right:
            return KeyRight;
        case Qt::Key_Down:
            return KeyDown;
        case Qt::Key_PageUp:
            return KeyPageUp;
        case Qt::Key_PageDown:
            return KeyPageDown;
        case Qt::Key_Home:
            return KeyHome;
        case Qt::Key_Escape:
            return KeyEscape27;
        case Qt::Key_Backspace:
            return 8;
        case Qt::Key_Delete:
            return 46;
        case Qt::Key_Shift:
            return KeyShift16;
        case Qt::Key_Control:
            return KeyCtrl17;
        case Qt::Key_Alt:
            return KeyAlt18;
        case Qt::Key_Plus:
            return keypad ? KeyPadAdd : KeyPlusMain;
        case Qt::Key_Equal:
            return KeyPlusMain;
        case Qt::Key_Minus:
            return keypad ? KeyPadSubtract : KeyMinusMain;
        default:
            break;
    }
    if (qtKey >= Qt::Key_A && qtKey <= Qt::Key_Z) return 'A' + (qtKey - Qt::Key_A);
    if (qtKey >= Qt::Key_0 && qtKey <= Qt::Key_9) return '0' + (qtKey - Qt::Key_0);
    for (int k = 0; k < 10; ++k)
        if (qtKey == ShiftedDigits[k]) return '0' + k;
    return 0;
}

int DesignShiftOf(Qt::KeyboardModifiers modifiers) {
    int shift = 0;
    if (modifiers & Qt::ShiftModifier) shift |= ShiftMaskShift;
    if (modifiers & Qt::ControlModifier) shift |= ShiftMaskCtrl;
    if (modifiers & Qt::AltModifier) shift |= ShiftMaskAlt;
    return shift;
}

DesignForm::DesignForm(AppState& state, QWidget* parent) : QWidget(parent), state_(state) {
    setObjectName("frmDesign");
    setFocusPolicy(Qt::StrongFocus);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(2, 2, 2, 2);
    layout->setSpacing(2);
    buildToolbar();
    layout->addWidget(Toolbar1_);
    pictureArea_ = new QWidget(this);
    pictureArea_->setMinimumSize(60, 60);
    pictureArea_->installEventFilter(this);
    layout->addWidget(pictureArea_, 1);
    picdesign_ = new DesignPicture(pictureArea_);
    picdesign_->setObjectName("picdesign");
    picdesign_->setCursor(Qt::CrossCursor);
    auto* status = new QHBoxLayout;
    picCoord_ = new QLabel(this);
    picCoord_->setObjectName("picCoord");
    picCoord_->setFrameStyle(QFrame::Panel | QFrame::Sunken);
    picTrans_ = new QLabel(this);
    picTrans_->setObjectName("picTrans");
    picTrans_->setFrameStyle(QFrame::Panel | QFrame::Sunken);
    picTrans_->setMinimumWidth(70);
    picTrans_->setCursor(Qt::WhatsThisCursor);
    picTrans_->installEventFilter(this);
    status->addWidget(picCoord_, 1);
    status->addWidget(picTrans_);
    layout->addLayout(status);
    helpCard_ = new QLabel(this);
    helpCard_->setObjectName("frmShortcuts");
    helpCard_->setWindowFlags(Qt::ToolTip);
    picPaste_ = new FloatingPictureWidget(DesignPasteArea(state_.design), picdesign_);
    picPaste_->onChanged = [this] {
        state_.design.PastePlaced = false;
        picCoord_->setText(QString::fromStdString(state_.design.picCoord));
    };
    // The right button shows or hides the grab handles.
    picPaste_->onPopupRequested = [this](QPoint) {
        DesignPictures& d = state_.design;
        d.Floating.ResizeHandles = !d.Floating.ResizeHandles;
        state_.wb.Menu.setChecked("mnuPicPastePopUpResize", d.Floating.ResizeHandles);
        picPaste_->sync();
    };
    connect(picdesign_, &PictureWidget::mousePressed, this, &DesignForm::onMousePressed);
    connect(picdesign_, &PictureWidget::mouseMoved, this, &DesignForm::onMouseMoved);
    connect(picdesign_, &PictureWidget::mouseReleased, this,
            [this](QPointF w, Qt::MouseButton b, Qt::KeyboardModifiers m, QPoint g) {
                onMouseReleased(w, b, m, g);
            });
    connect(picdesign_, &PictureWidget::keyPressed, this, [this](QKeyEvent* e) { handleKey(e); });
    connect(picdesign_, &DesignPicture::doubleClicked, this, &DesignForm::onDoubleClick);
    connect(picdesign_, &DesignPicture::focusLost, this, &DesignForm::onFocusLost);
    setWindowTitle(QString::fromStdString(state_.wb.DesignCaption));
}

void DesignForm::buildToolbar() {
    Toolbar1_ = new QToolBar(this);
    Toolbar1_->setObjectName("Toolbar1");
    Toolbar1_->setToolButtonStyle(Qt::ToolButtonIconOnly);
    Toolbar1_->setIconSize(QSize(24, 24));
    for (int b = 1; b <= DesignToolbarButtons; ++b) {
        const ToolButton& button = ToolButtons[static_cast<size_t>(b - 1)];
        QAction* a = Toolbar1_->addAction(DesignToolIcon(button.key), button.key);
        a->setToolTip(QString(button.key).replace(0, 1, QChar(button.key[0]).toUpper()));
        a->setObjectName(QString::fromStdString(DesignToolbarKey(b)));
        const std::string command = button.command;
        const bool help = button.key == std::string("help");
        connect(a, &QAction::triggered, this, [this, command, help] { runToolCommand(command, !help); });
        if (button.key == std::string("lines")) addDropDown(a, "mnuDesignLine", LineDropItems());
        if (button.key == std::string("rotate left"))
            addDropDown(a, "DesignRotateLeftItem", RotateDropItems(true));
        if (button.key == std::string("rotate right"))
            addDropDown(a, "DesignRotateRightItem", RotateDropItems(false));
    }
}

// While a button's command runs, the picture losing its focus to a dialog is not the person leaving
// it: polygon drawing goes on.
void DesignForm::runToolCommand(const std::string& command, bool focusBack) {
    toolBusy_ = true;
    if (runCommand) runCommand(command);
    toolBusy_ = false;
    if (focusBack) focusPicture();
}

void DesignForm::focusPicture() {
    QWidget* shown = state_.wb.DesignMode == 1 && picCGDesign_ ? picCGDesign_ : picdesign_;
    if (shown) shown->setFocus();
}

// Item k of the drop-down runs the array command `command`(k); the button keeps its own click.
void DesignForm::addDropDown(QAction* button, const std::string& command,
                             const std::vector<ToolbarDropItem>& items) {
    auto* menu = new QMenu(this);
    menu->setObjectName(button->text());
    for (size_t k = 0; k < items.size(); ++k) {
        QAction* item = menu->addAction(QString::fromStdString(items[k].caption));
        item->setObjectName(QString::fromStdString(items[k].key));
        const std::string key = command + "(" + std::to_string(k) + ")";
        connect(item, &QAction::triggered, this, [this, key] { runToolCommand(key, true); });
    }
    button->setMenu(menu);
    if (auto* tool = qobject_cast<QToolButton*>(Toolbar1_->widgetForAction(button)))
        tool->setPopupMode(QToolButton::MenuButtonPopup);
}

void DesignForm::refresh() {
    const Workbench& wb = state_.wb;
    setWindowTitle(QString::fromStdString(wb.DesignCaption));
    const DesignPictures& d = state_.design;
    if (picdesign_->surface() != &d.picdesign ||
        picdesign_->size() != QSize(d.picdesign.width(), d.picdesign.height()))
        picdesign_->setSurface(&d.picdesign);
    picdesign_->update();
    picPaste_->sync();
    picCoord_->setText(QString::fromStdString(d.picCoord));
    picTrans_->setText(QString::fromStdString(d.picTrans));
    for (QAction* a : Toolbar1_->actions()) a->setEnabled(wb.menu(a->objectName().toStdString()).enabled);
    if (onRefresh) onRefresh();
}

void DesignForm::changed() {
    if (afterCommand)
        afterCommand();
    else
        refresh();
}

void DesignForm::layoutPicture() {
    const QSize area = pictureArea_->size();
    if (area.width() < 1 || area.height() < 1) return;
    const std::string size = ResizeDesignWin(state_.wb, state_.design, area.width(), area.height());
    picdesign_->setSurface(&state_.design.picdesign);
    if (onSizeChanged) onSizeChanged(size);
    refresh();
}

bool DesignForm::eventFilter(QObject* watched, QEvent* event) {
    if (watched == pictureArea_ && event->type() == QEvent::Resize) layoutPicture();
    if (watched == picTrans_ && !state_.design.Poly.PolygonMode) {
        if (event->type() == QEvent::MouseButtonPress) showHelpCard(true);
        if (event->type() == QEvent::MouseButtonRelease && !state_.design.PolygonClicked) showHelpCard(false);
    }
    return QWidget::eventFilter(watched, event);
}

void DesignForm::showHelpCard(bool show) {
    if (!show) {
        helpCard_->hide();
        return;
    }
    // The card of the mode the design is in.
    const HelpCardLines card = PicTransHelpCard(state_.wb);
    QString html = "<table>";
    for (int k = 0; k < static_cast<int>(card.lines.size()); ++k) {
        const auto& [key, meaning] = card.lines[static_cast<size_t>(k)];
        html += QString("<tr><td><b>%1</b></td><td>%2</td></tr>")
                    .arg(key)
                    .arg(QString(meaning).toHtmlEscaped().replace(" ", "&nbsp;"));
        if (k + 1 == card.blankAfter) html += "<tr><td>&nbsp;</td></tr>";
    }
    helpCard_->setText(html + "</table>");
    helpCard_->adjustSize();
    helpCard_->move(picTrans_->mapToGlobal(QPoint(0, 0)) - QPoint(helpCard_->width(), helpCard_->height()));
    helpCard_->show();
}

void DesignForm::keyPressEvent(QKeyEvent* event) {
    handleKey(event);
}

void DesignForm::handleKey(QKeyEvent* event) {
    const int code = DesignKeyCodeOf(event->key(), event->modifiers());
    const int shift = DesignShiftOf(event->modifiers());
    if (code == 0) return;
    if (event->key() == Qt::Key_G && (event->modifiers() & (Qt::ControlModifier | Qt::AltModifier)) ==
                                         (Qt::ControlModifier | Qt::AltModifier)) {
        if (runCommand) runCommand("DesignGridSize");
        changed();
        return;
    }
    if (event->key() == Qt::Key_P && (event->modifiers() & (Qt::ControlModifier | Qt::AltModifier)) ==
                                         (Qt::ControlModifier | Qt::AltModifier)) {
        if (DesignPasteShowing(state_.design) && runCommand) runCommand("DesignPasteData");
        changed();
        return;
    }
    if (code == KeyCtrl17 && !event->isAutoRepeat()) {
        if (const auto cursor = CtrlCursor(state_.wb, state_.design, gesture_, true))
            setDesignCursor(*cursor);
    }
    if (DesignKeyDown(state_.wb, state_.design, code, shift, event->isAutoRepeat()) ||
        GestureKeyDown(state_.wb, state_.design, gesture_, code, shift))
        changed();
}

void DesignForm::keyReleaseEvent(QKeyEvent* event) {
    const int code = DesignKeyCodeOf(event->key(), event->modifiers());
    if (event->isAutoRepeat() || code == 0) return;
    // The released modifier may still be reported as held.
    int shift = DesignShiftOf(event->modifiers());
    if (code == KeyShift16) shift &= ~ShiftMaskShift;
    if (code == KeyCtrl17) shift &= ~ShiftMaskCtrl;
    if (code == KeyAlt18) shift &= ~ShiftMaskAlt;
    if (code == KeyCtrl17) {
        if (const auto cursor = CtrlCursor(state_.wb, state_.design, gesture_, false))
            setDesignCursor(*cursor);
    }
    if (GestureKeyUp(state_.wb, state_.design, gesture_, code, shift)) changed();
}

void DesignForm::setDesignCursor(DesignCursor cursor) {
    switch (cursor) {
        case DesignCursor::Normal:
            picdesign_->setCursor(Qt::CrossCursor);
            break;
        case DesignCursor::Move:
            picdesign_->setCursor(Qt::SizeAllCursor);
            break;
        case DesignCursor::SizeNESW:
            picdesign_->setCursor(Qt::SizeBDiagCursor);
            break;
        case DesignCursor::SizeNWSE:
            picdesign_->setCursor(Qt::SizeFDiagCursor);
            break;
        case DesignCursor::SizeVertical:
            picdesign_->setCursor(Qt::SizeVerCursor);
            break;
        case DesignCursor::SizeHorizontal:
            picdesign_->setCursor(Qt::SizeHorCursor);
            break;
        case DesignCursor::Rotate:
            picdesign_->setCursor(rotationCursor());
            break;
    }
}

namespace {
// IFS mode outside polygon drawing: the gestures of the selection.
bool gesturesApply(const AppState& s) {
    return s.wb.DesignMode == 0 && !s.design.Poly.PolygonMode;
}
}  // namespace

void DesignForm::onMousePressed(QPointF world, Qt::MouseButton button, Qt::KeyboardModifiers modifiers) {
    if (button != Qt::LeftButton || !gesturesApply(state_) || DesignPasteShowing(state_.design)) return;
    setDesignCursor(DesignMouseDown(state_.wb, state_.design, gesture_, static_cast<float>(world.x()),
                                    static_cast<float>(world.y()), DesignShiftOf(modifiers)));
    changed();
}

void DesignForm::onMouseMoved(QPointF world, Qt::KeyboardModifiers modifiers) {
    DesignPictures& d = state_.design;
    const float x = static_cast<float>(world.x()), y = static_cast<float>(world.y());
    const bool wasGesture = gesture_.MouseIsDown && state_.wb.MapSelected;
    const DesignCursor cursor =
        DesignMouseMove(state_.wb, d, gesture_, x, y, DesignShiftOf(modifiers), gesture_.MouseIsDown);
    if (d.Poly.PolygonMode) {
        const bool closes = PolygonModeMove(state_.wb, d, x, y);
        picdesign_->setCursor(closes ? Qt::CrossCursor : Qt::ArrowCursor);
    } else if (gesturesApply(state_)) {
        setDesignCursor(cursor);
    }
    if (wasGesture && gesturesApply(state_)) {
        changed();
        return;
    }
    picCoord_->setText(QString::fromStdString(d.picCoord));
    picdesign_->update();
}

void DesignForm::onMouseReleased(QPointF world, Qt::MouseButton button, Qt::KeyboardModifiers modifiers,
                                 QPoint global) {
    DesignPictures& d = state_.design;
    // A click beside a floating picture places it, and does nothing more.
    if (DesignPasteShowing(d)) {
        PlaceDesignSelection(state_.wb, d);
        changed();
        return;
    }
    // Not while drawing the polygon, whose menus are off, nor in the middle of a left-button drag.
    if (button == Qt::RightButton && gesturesApply(state_) && !gesture_.MouseIsDown) {
        if (popup) popup(global);
        return;
    }
    if (button != Qt::LeftButton) return;
    if (gesturesApply(state_)) {
        setDesignCursor(DesignMouseUp(state_.wb, d, gesture_));
        changed();
        return;
    }
    gesture_.MouseIsDown = false;
    if (!d.Poly.PolygonMode) return;
    const bool snap =
        (modifiers & (Qt::ShiftModifier | Qt::ControlModifier | Qt::AltModifier)) == Qt::ShiftModifier;
    PolygonModeClick(state_.wb, d, static_cast<float>(world.x()), static_cast<float>(world.y()), snap);
    if (!d.Poly.RubberBandActive || d.Poly.PolygonPointCount == 0) picdesign_->setCursor(Qt::CrossCursor);
    changed();
}

void DesignForm::onDoubleClick() {
    if (!state_.design.Poly.PolygonMode || !state_.design.Poly.RubberBandActive) return;
    PolygonModeFinish(state_.wb, state_.design);
    picdesign_->setCursor(Qt::CrossCursor);
    changed();
}

void DesignForm::onFocusLost() {
    if (!state_.design.Poly.PolygonMode || toolBusy_) return;
    PolygonModeFinish(state_.wb, state_.design);
    picdesign_->setCursor(Qt::CrossCursor);
    changed();
}

}  // namespace quillane
