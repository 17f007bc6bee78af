// The line fractal window's mouse, keys, dialogs and points file.
#include <QCheckBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QRadioButton>

#include "app/line_fractal_commands.h"
#include "core/numbers.h"
#include "shell/grid_size_dialog.h"
#include "shell/line_fractal_window.h"
#include "shell/main_window.h"
#include "shell/picture_widget.h"
#include "shell/trace_dialogs.h"

namespace quillane {

void LineFractalWindow::canvasPress(QPointF world, Qt::MouseButton button) {
    view_.SelectedPoint = -1;
    redraw();
    PreviewDepth = RecDepth(model().nSegments);
    NoPointHit = true;
    const int hit = HitVertex(model(), static_cast<float>(world.x()), static_cast<float>(world.y()));
    if (hit < 0) return;
    NoPointHit = false;
    view_.SelectedPoint = hit;
    redraw();
    if (button == Qt::LeftButton)
        Dragging = true;
    else
        setPoint();
}

void LineFractalWindow::canvasMove(QPointF world) {
    if (Dragging && view_.SelectedPoint > 0 && view_.SelectedPoint < model().nSegments) {
        model().GeneratorPoints[static_cast<size_t>(view_.SelectedPoint)] = {static_cast<float>(world.x()),
                                                                             static_cast<float>(world.y())};
        redraw();
        redrawPreview(PreviewDepth);
    }
    lblCoord_->setText(
        QString::fromStdString("(" + Format(world.x(), "0.000") + ", " + Format(world.y(), "0.000") + ")"));
}

void LineFractalWindow::snapPoint(int i) {
    GeneratorPoint& p = model().GeneratorPoints[static_cast<size_t>(i)];
    p.x = SnapValue(p.x, view_.GridX);
    p.y = SnapValue(p.y, view_.GridY);
}

void LineFractalWindow::canvasRelease(Qt::MouseButton button, Qt::KeyboardModifiers modifiers,
                                      QPoint global) {
    if (Dragging) {
        if (view_.chkGrid && (modifiers & Qt::ShiftModifier) && view_.SelectedPoint > 0) {
            snapPoint(view_.SelectedPoint);
            redraw();
            redrawPreview(PreviewDepth);
        }
        Dragging = false;
        return;
    }
    if (button == Qt::RightButton && NoPointHit)
        if (QMenu* popup = frame().menu("mnuPopup")) popup->popup(global);
}

void LineFractalWindow::setPoint() {
    const int i = view_.SelectedPoint;
    if (i < 0) return;
    GeneratorPoint& p = model().GeneratorPoints[static_cast<size_t>(i)];
    TracePointDialog dialog(host(), p.x, p.y, this);
    dialog.txtX()->setText(QString::fromStdString(Format(p.x, "0.0000000")));
    dialog.txtY()->setText(QString::fromStdString(Format(p.y, "0.0000000")));
    if (dialog.exec() == QDialog::Accepted && dialog.point()) {
        p = {dialog.point()->first, dialog.point()->second};
        redraw();
        redrawPreview(PreviewDepth);
    } else {
        view_.SelectedPoint = -1;
        redraw();
    }
}

bool LineFractalWindow::viewKey(int key, Qt::KeyboardModifiers modifiers) {
    if (KeyLatch) return false;
    const bool ctrl = modifiers & Qt::ControlModifier;
    const bool alt = modifiers & Qt::AltModifier;
    if (ctrl && key == Qt::Key_G && !alt) {
        chkGrid_->toggle();
    } else if (ctrl && alt && key == Qt::Key_G) {
        GridSizeDialog dialog(host(), view_.GridX, view_.GridY, this);
        if (dialog.exec() == QDialog::Accepted && dialog.spacing()) {
            view_.GridX = dialog.spacing()->x;
            view_.GridY = dialog.spacing()->y;
            chkGrid_->setChecked(true);
            redrawGrid();
            redraw();
        }
    } else if (ctrl && alt && key == Qt::Key_P) {
        setPoint();
    } else {
        static const std::pair<int, ViewKey> keys[] = {{Qt::Key_PageDown, ViewKey::PageDown},
                                                       {Qt::Key_PageUp, ViewKey::PageUp},
                                                       {Qt::Key_Up, ViewKey::Up},
                                                       {Qt::Key_Down, ViewKey::Down},
                                                       {Qt::Key_Left, ViewKey::Left},
                                                       {Qt::Key_Right, ViewKey::Right},
                                                       {Qt::Key_Home, ViewKey::Home}};
        const auto found =
            std::find_if(std::begin(keys), std::end(keys), [&](auto& k) { return k.first == key; });
        if (found == std::end(keys)) return false;
        MoveView(view_, found->second);
        applyView();
        redrawGrid();
        redraw();
        lblStatus_->setText(ViewKeysStatus);
    }
    KeyLatch = true;
    return true;
}

bool LineFractalWindow::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::KeyPress) {
        auto* key = static_cast<QKeyEvent*>(event);
        if (viewKey(key->key(), key->modifiers())) return true;
        // A view key held down is eaten while the latch stands.
        if (KeyLatch && key->isAutoRepeat()) return true;
    } else if (event->type() == QEvent::KeyRelease) {
        if (!static_cast<QKeyEvent*>(event)->isAutoRepeat()) KeyLatch = false;
    } else if (event->type() == QEvent::MouseMove && watched != picCanvas_) {
        lblCoord_->clear();
    }
    return GeneratorWindow::eventFilter(watched, event);
}

void LineFractalWindow::keyPressEvent(QKeyEvent* event) {
    if (viewKey(event->key(), event->modifiers())) return;
    GeneratorWindow::keyPressEvent(event);
}

void LineFractalWindow::keyReleaseEvent(QKeyEvent* event) {
    if (!event->isAutoRepeat()) KeyLatch = false;
    GeneratorWindow::keyReleaseEvent(event);
}

void LineFractalWindow::mouseMoveEvent(QMouseEvent* event) {
    lblCoord_->clear();
    GeneratorWindow::mouseMoveEvent(event);
}

void LineFractalWindow::resizeEvent(QResizeEvent* event) {
    GeneratorWindow::resizeEvent(event);
    if (model().SegmentDirection != 1) return;
    ResizeView(view_, 1);
    applyView();
    redrawGrid();
    redraw();
}

void LineFractalWindow::savePoints() {
    SaveLinePoints(model(), host());
}

void LineFractalWindow::readPoints() {
    const std::optional<PointsFile> file = OpenLinePoints(host());
    if (!file) return;
    ApplyPointsFile(model(), *file);
    if (!file->error.empty()) return;
    showEdges();
    FitView(view_, *file);
    applyView();
    optDirection_[0]->setChecked(true);
    SetPreviewView(previewSurface_, 0);
    view_.SelectedPoint = -1;
    redrawGrid();
    if (chkOrient_->isChecked() != model().chkOrient) {
        chkOrient_->setChecked(model().chkOrient);
        chkOrientClick(model().chkOrient);
    }
    txtOrient_->setText(QString::fromStdString(model().txtOrient));
    redraw();
    redrawPreview(RecDepth(model().nSegments));
}

}  // namespace quillane
