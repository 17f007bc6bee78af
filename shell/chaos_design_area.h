#pragma once
// picCGDesign: the design window's picture in chaos game mode. It lies over picdesign in the same
// place; exactly one of the two shows. Mouse and keys go to design/chaos_mouse.
#include <QPoint>
#include <functional>

#include "core/host.h"
#include "app/app_state.h"
#include "shell/picture_widget.h"

namespace quillane {

class DesignForm;

class ChaosDesignArea : public PictureWidget {
    Q_OBJECT
  public:
    ChaosDesignArea(AppState& state, Host& host, QWidget* parent = nullptr);
    // Shows the picture when the design is in chaos game mode, and hides `other` then.
    void refresh(QWidget* other);
    // After the logic changed the state.
    std::function<void()> changed;
    // Right click alone: the Design menu at a global position.
    std::function<void(QPoint)> popup;
    // The keys the chaos game does not take go to the design window's own keys.
    std::function<void(QKeyEvent*)> otherKey;

  protected:
    void keyReleaseEvent(QKeyEvent* event) override;

  private:
    void pressed(QPointF world, Qt::MouseButton button, Qt::KeyboardModifiers modifiers);
    void moved(QPointF world, Qt::KeyboardModifiers modifiers);
    void released(QPointF world, Qt::MouseButton button, Qt::KeyboardModifiers modifiers, QPoint global);
    void key(QKeyEvent* event);
    void done();

    AppState& state_;
    Host& host_;
    int button_ = 0;  // the button held, as the logic numbers it
};

// Puts a chaos game area into the design window and keeps it shown in the right mode.
ChaosDesignArea* AttachChaosDesignArea(DesignForm& form, AppState& state, Host& host);

}  // namespace quillane
