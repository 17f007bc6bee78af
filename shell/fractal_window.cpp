#include "shell/fractal_window.h"

#include <QAction>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QProgressBar>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QStyle>
#include <QToolBar>
#include <QVBoxLayout>
#include <map>
#include <utility>

#include "render/deterministic.h"
#include "app/fractal_view.h"
#include "shell/floating_picture_widget.h"
#include "shell/picture_widget.h"
#include "app/deterministic_commands.h"
#include "app/overlay_commands.h"
#include "app/trace_commands.h"
#include "shell/overlay_icons.h"

namespace quillane {

namespace {
int modifierMask(Qt::KeyboardModifiers m) {
    return FractalShiftMask(m);
}
}  // namespace

int FractalKeyCode(int qtKey) {
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
        case Qt::Key_Delete:
            return KeyDelete;
        default:
            break;
    }
    if (qtKey >= Qt::Key_A && qtKey <= Qt::Key_Z) return 'A' + (qtKey - Qt::Key_A);
    if (qtKey >= Qt::Key_0 && qtKey <= Qt::Key_9) return '0' + (qtKey - Qt::Key_0);
    // With Shift held the toolkit names the digit keys by their symbols; the logic wants the key.
    static constexpr int shiftedDigits[] = {Qt::Key_ParenRight, Qt::Key_Exclam,     Qt::Key_At,
                                            Qt::Key_NumberSign, Qt::Key_Dollar,     Qt::Key_Percent,
                                            Qt::Key_AsciiCircum, Qt::Key_Ampersand, Qt::Key_Asterisk,
                                            Qt::Key_ParenLeft};
    for (int d = 0; d < 10; ++d)
        if (qtKey == shiftedDigits[d]) return '0' + d;
    if (qtKey == Qt::Key_Plus || qtKey == Qt::Key_Equal) return KeyPlus;
    if (qtKey == Qt::Key_Minus || qtKey == Qt::Key_Underscore) return KeyMinus;
    if (qtKey == Qt::Key_Space || qtKey == Qt::Key_Escape) return qtKey & 0xFF;
    // Every other key, modifiers alone among them, is none of the window's: Qt's codes for Ctrl or
    // Shift would otherwise read as Page Up and the like.
    return 0;
}

int FractalShiftMask(Qt::KeyboardModifiers modifiers) {
    int mask = 0;
    if (modifiers & Qt::ShiftModifier) mask |= ShiftMaskShift;
    if (modifiers & Qt::ControlModifier) mask |= ShiftMaskCtrl;
    if (modifiers & Qt::AltModifier) mask |= ShiftMaskAlt;
    return mask;
}

FractalWindow::FractalWindow(AppState& state, Host& host, QWidget* parent)
    : QWidget(parent), state_(state), host_(host) {
    setObjectName("frmFractal");
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(2, 2, 2, 2);
    layout->setSpacing(2);
    buildToolbar();
    layout->addWidget(Toolbar1_);

    picOuter_ = new QScrollArea(this);
    picOuter_->setObjectName("picOuter");
    picOuter_->setAlignment(Qt::AlignCenter);
    picOuter_->setWidgetResizable(false);
    picOuter_->horizontalScrollBar()->setObjectName("hbarMarble");
    picOuter_->verticalScrollBar()->setObjectName("vbarMarble");
    picfractal_ = new PictureWidget;
    picfractal_->setObjectName("picfractal");
    picOuter_->setWidget(picfractal_);
    picPaste_ = new FloatingPictureWidget(FractalPasteArea(state_.pics), picfractal_);
    picPaste_->onChanged = [this] { picCoord_->setText(QString::fromStdString(state_.pics.picCoord)); };
    picPaste_->onPopupRequested = [this](QPoint at) {
        if (onPastePopupRequested) onPastePopupRequested(at);
    };
    layout->addWidget(picOuter_, 1);

    auto* status = new QHBoxLayout;
    picCoord_ = new QLabel(this);
    picCoord_->setObjectName("picCoord");
    picCoord_->setFrameShape(QFrame::Panel);
    picCoord_->setFrameShadow(QFrame::Sunken);
    picCoord_->setMinimumWidth(fontMetrics().horizontalAdvance(QString(15, '4')));
    picCount_ = new QLabel(this);
    picCount_->setObjectName("picCount");
    picCount_->setFrameShape(QFrame::Panel);
    picCount_->setFrameShadow(QFrame::Sunken);
    picCount_->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    picCount_->setMinimumWidth(fontMetrics().horizontalAdvance(QString(10, '4')));
    picTrace_ = new QLabel(" Trace Off", this);
    picTrace_->setObjectName("picTrace");
    picTrace_->setFrameShape(QFrame::Panel);
    picTrace_->setFrameShadow(QFrame::Sunken);
    pgrIterate_ = new QProgressBar(this);
    pgrIterate_->setObjectName("pgrIterate");
    pgrIterate_->setVisible(false);
    status->addWidget(picCoord_, 3);
    status->addWidget(picCount_, 2);
    status->addWidget(picTrace_, 1);
    status->addWidget(pgrIterate_, 2);
    layout->addLayout(status);

    connect(picfractal_, &PictureWidget::mouseMoved, this,
            [this](QPointF w, Qt::KeyboardModifiers) { onMouseMoved(w); });
    connect(picfractal_, &PictureWidget::mousePressed, this, &FractalWindow::onMousePressed);
    // The picture keeps its keys: passed on to the window as well, an unhandled digit would count twice.
    connect(picfractal_, &PictureWidget::keyPressed, this, [this](QKeyEvent* e) { handleKey(e); });
    connect(picfractal_, &PictureWidget::mouseReleased, this, &FractalWindow::onMouseReleased);
    setFocusProxy(picfractal_);
    state_.pics.picTraceFits = [this](const std::string& text) {
        // Before the window is laid out the label has no width of its own yet.
        return !picTrace_->isVisible() || picTrace_->fontMetrics().horizontalAdvance(QString::fromStdString(text)) <=
               picTrace_->contentsRect().width();
    };
    resize(420, 480);
    refresh();
}

FractalWindow::~FractalWindow() {
    state_.pics.picTraceFits = nullptr;
}

void FractalWindow::buildToolbar() {
    Toolbar1_ = new QToolBar(this);
    Toolbar1_->setObjectName("Toolbar1");
    Toolbar1_->setToolButtonStyle(Qt::ToolButtonIconOnly);
    play_ = Toolbar1_->addAction(style()->standardIcon(QStyle::SP_MediaPlay), "Draw");
    play_->setObjectName("play");
    connect(play_, &QAction::triggered, this, [this] {
        // The first button draws while it shows "start", else it stops the drawing.
        if (state_.wb.menu("Toolbar1(1)").caption == "Stop")
            state_.wb.DrawingActive = false;
        else if (runCommand)
            runCommand("mnuRun");
    });
    Toolbar1_->addSeparator();
    overlayButtons_ = {
        {Toolbar1_->addAction(OverlayIcon(0), "Axes"), "mnuAxes"},
        {Toolbar1_->addAction(OverlayIcon(1), "Fixed Points"), "mnuFixedPoints"},
        {Toolbar1_->addAction(OverlayIcon(2), "Grid"), "mnudrawFractalGrid"},
    };
    const char* keys[] = {"axes", "fixed points", "grid"};
    for (size_t k = 0; k < overlayButtons_.size(); ++k) {
        QAction* a = overlayButtons_[k].first;
        a->setObjectName(keys[k]);
        a->setCheckable(true);
        connect(a, &QAction::triggered, this, [this, k] {
            if (k == 0) FractalAxes(state_.wb, state_.pics);
            if (k == 1) FractalFixedPoints(state_.wb, state_.pics);
            if (k == 2) mnudrawFractalGrid_Click(state_.wb, state_.pics);
            changed();
        });
    }
    Toolbar1_->addSeparator();
    QAction* zoomOut = Toolbar1_->addAction(style()->standardIcon(QStyle::SP_ArrowDown), "Zoom Out");
    zoomOut->setObjectName("zoom");
    connect(zoomOut, &QAction::triggered, this, [this] {
        ZoomOut(state_.wb, state_.pics, host_, 5, true);
        changed();
    });
    QAction* zoomIn = Toolbar1_->addAction(style()->standardIcon(QStyle::SP_ArrowUp), "Zoom In");
    zoomIn->setObjectName("zoom in");
    connect(zoomIn, &QAction::triggered, this, [this] {
        ZoomIn(state_.wb, state_.pics, host_);
        changed();
    });
}

void FractalWindow::changed() {
    if (afterCommand)
        afterCommand();
    else
        refresh();
}

void FractalWindow::refresh() {
    const Workbench& wb = state_.wb;
    setWindowTitle(QString::fromStdString(wb.FractalWindowCaption));
    const bool running = wb.menu("Toolbar1(1)").caption == "Stop";
    play_->setText(running ? "Stop" : "Draw");
    play_->setIcon(style()->standardIcon(running ? QStyle::SP_MediaStop : QStyle::SP_MediaPlay));
    picCount_->setText(QString::fromStdString(state_.pics.picCount));
    picTrace_->setText(QString::fromStdString(state_.pics.Det.picTrace));
    for (auto& [button, key] : overlayButtons_) button->setChecked(wb.menu(key).checked);
    // A deterministic level shows its progress in place of the coordinates.
    const DeterministicState& det = state_.pics.Det;
    pgrIterate_->setVisible(det.pgrIterateVisible);
    pgrIterate_->setValue(det.pgrIterate);
    picCoord_->setVisible(det.picCoordVisible && !det.pgrIterateVisible);
    picCoord_->setText(QString::fromStdString(state_.pics.picCoord));
    if (picfractal_->surface() != &state_.pics.picfractal ||
        picfractal_->size() != QSize(state_.pics.picfractal.width(), state_.pics.picfractal.height()))
        picfractal_->setSurface(&state_.pics.picfractal);
    picfractal_->update();
    picPaste_->sync();
}

void FractalWindow::relayout() {
    const int scrollbar = style()->pixelMetric(QStyle::PM_ScrollBarExtent);
    const int border = picOuter_->frameWidth() * 2;
    std::optional<int> fixed;
    const double ppi = screen() ? screen()->logicalDotsPerInch() : 96.0;
    if (state_.pics.ImageSizeFixed) fixed = TwipsToPixels(state_.pics.ImageSizeTwips, ppi);
    // The picture is laid out in picOuter's area; the toolbar and the status row are outside it.
    const FractalLayout l = ComputeFractalLayout(picOuter_->width(), picOuter_->height() + BelowGapPixels, 0,
                                                 border, fixed, scrollbar);
    if (l.side != laidOutSide_ || state_.pics.picfractal.width() != l.side) {
        laidOutSide_ = l.side;
        ResizeFractalWin(state_.wb, state_.pics, l.side);
        sizeText = FractalSizeText(l.side, l.side);
        if (onSizeChanged) onSizeChanged(sizeText);
    }
    refresh();
}

void FractalWindow::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    relayout();
}

void FractalWindow::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    relayout();
}

void FractalWindow::keyPressEvent(QKeyEvent* event) {
    if (!handleKey(event)) event->ignore();
}

bool FractalWindow::handleKey(QKeyEvent* event) {
    const bool handled = FractalKeyDown(state_.wb, state_.pics, host_, FractalKeyCode(event->key()),
                                        modifierMask(event->modifiers()));
    // A key that asks for a dialog: the frame opens it.
    const std::string dialog = std::exchange(state_.pics.KeyDialog, std::string());
    if (!dialog.empty() && runCommand) {
        static const std::map<std::string, std::string> commands{{"frmAxisSize", "frmAxisSize"},
                                                                 {"frmGridSize", "frmGridSize"},
                                                                 {"frmTracePoint", "mnuDrawTraceSetPoint"},
                                                                 {"picPasteSetPosition", "mnuPicPastePopUpSet"}};
        if (const auto it = commands.find(dialog); it != commands.end()) runCommand(it->second);
        return true;
    }
    changed();
    return handled;
}

void FractalWindow::keyReleaseEvent(QKeyEvent* event) {
    FractalKeyUp(state_.wb, state_.pics);
    QWidget::keyReleaseEvent(event);
}

void FractalWindow::onMouseMoved(QPointF world) {
    FractalMouseMove(state_.wb, state_.pics, world.x(), world.y());
    picCoord_->setText(QString::fromStdString(state_.pics.picCoord));
    if (state_.pics.Selection.SelectionDragging) picfractal_->update();
}

void FractalWindow::onMousePressed(QPointF world, Qt::MouseButton button, Qt::KeyboardModifiers modifiers) {
    if (button != Qt::LeftButton || state_.wb.DrawingActive) return;
    FractalMouseDown(state_.wb, state_.pics, world.x(), world.y(), modifierMask(modifiers));
    refresh();
}

void FractalWindow::onMouseReleased(QPointF world, Qt::MouseButton button, Qt::KeyboardModifiers modifiers,
                                    QPoint globalPosition) {
    if (button == Qt::RightButton) {
        if (TraceRightClick(state_.wb, state_.pics, world.x(), world.y(), modifierMask(modifiers)))
            changed();
        else if (onDrawMenuRequested)
            onDrawMenuRequested(globalPosition);
        return;
    }
    if (button != Qt::LeftButton || state_.wb.DrawingActive) return;
    FractalMouseUp(state_.wb, state_.pics, world.x(), world.y());
    changed();
}

}  // namespace quillane
