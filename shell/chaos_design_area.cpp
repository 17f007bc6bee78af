#include "shell/chaos_design_area.h"

#include <QKeyEvent>

#include "app/chaos_mouse.h"
#include "app/fractal_view.h"
#include "shell/design_window.h"

namespace quillane {

namespace {

int buttonOf(Qt::MouseButton button) {
    if (button == Qt::LeftButton) return CGButtonLeft;
    if (button == Qt::RightButton) return CGButtonRight;
    if (button == Qt::MiddleButton) return CGButtonMiddle;
    return 0;
}

int shiftOf(Qt::KeyboardModifiers modifiers) {
    int shift = 0;
    if (modifiers & Qt::ShiftModifier) shift |= ShiftMaskShift;
    if (modifiers & Qt::ControlModifier) shift |= ShiftMaskCtrl;
    if (modifiers & Qt::AltModifier) shift |= ShiftMaskAlt;
    return shift;
}

}  // namespace

ChaosDesignArea::ChaosDesignArea(AppState& state, Host& host, QWidget* parent)
    : PictureWidget(parent), state_(state), host_(host) {
    setObjectName("picCGDesign");
    setCursor(Qt::CrossCursor);
    setSurface(&state_.design.picCGDesign);
    hide();
    connect(this, &PictureWidget::mousePressed, this, &ChaosDesignArea::pressed);
    connect(this, &PictureWidget::mouseMoved, this, &ChaosDesignArea::moved);
    connect(this, &PictureWidget::mouseReleased, this, &ChaosDesignArea::released);
    connect(this, &PictureWidget::keyPressed, this, &ChaosDesignArea::key);
}

void ChaosDesignArea::refresh(QWidget* other) {
    const RasterSurface& s = state_.design.picCGDesign;
    if (size() != QSize(s.width(), s.height())) setSurface(&s);
    const bool chaos = state_.wb.DesignMode == 1;
    if (other) other->setVisible(!chaos);
    setVisible(chaos);
    if (chaos) raise();
    update();
}

void ChaosDesignArea::done() {
    if (changed) changed();
    update();
}

void ChaosDesignArea::pressed(QPointF world, Qt::MouseButton button, Qt::KeyboardModifiers modifiers) {
    setFocus();
    button_ = buttonOf(button);
    picCGDesign_MouseDown(state_.wb, host_, state_.design, button_, shiftOf(modifiers),
                          static_cast<float>(world.x()), static_cast<float>(world.y()));
    done();
}

void ChaosDesignArea::moved(QPointF world, Qt::KeyboardModifiers modifiers) {
    picCGDesign_MouseMove(state_.wb, state_.design, button_, shiftOf(modifiers),
                          static_cast<float>(world.x()), static_cast<float>(world.y()));
    done();
}

void ChaosDesignArea::released(QPointF world, Qt::MouseButton button, Qt::KeyboardModifiers modifiers,
                               QPoint global) {
    button_ = 0;
    const bool menu = picCGDesign_MouseUp(state_.wb, state_.design, buttonOf(button), shiftOf(modifiers),
                                          static_cast<float>(world.x()), static_cast<float>(world.y()));
    done();
    if (menu && popup) popup(global);
}

void ChaosDesignArea::key(QKeyEvent* event) {
    const int code = DesignKeyCodeOf(event->key(), event->modifiers());
    if (code != 0 && picCGDesign_KeyDown(state_.wb, state_.design, code, shiftOf(event->modifiers()))) {
        done();
        return;
    }
    if (otherKey) otherKey(event);
}

void ChaosDesignArea::keyReleaseEvent(QKeyEvent* event) {
    if (event->isAutoRepeat()) return;
    const int code = DesignKeyCodeOf(event->key(), event->modifiers());
    picCGDesign_KeyUp(state_.wb, state_.design, code, shiftOf(event->modifiers()));
    done();
}

ChaosDesignArea* AttachChaosDesignArea(DesignForm& form, AppState& state, Host& host) {
    auto* area = new ChaosDesignArea(state, host, form.picture()->parentWidget());
    area->changed = [&form] {
        if (form.afterCommand)
            form.afterCommand();
        else
            form.refresh();
    };
    form.onRefresh = [area, &form] { area->refresh(form.picture()); };
    area->otherKey = [&form](QKeyEvent* event) { form.handleKey(event); };
    form.setChaosPicture(area);
    area->refresh(form.picture());
    return area;
}

}  // namespace quillane
