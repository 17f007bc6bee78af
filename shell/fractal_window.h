#pragma once
// frmFractal: the attractor in picOuter, its toolbar, the coordinates and the count.
#include <QWidget>
#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "core/host.h"
#include "app/app_state.h"

class QLabel;
class QProgressBar;
class QScrollArea;
class QToolBar;
class QAction;

namespace quillane {

class PictureWidget;
class FloatingPictureWidget;

class FractalWindow : public QWidget {
    Q_OBJECT
  public:
    FractalWindow(AppState& state, Host& host, QWidget* parent = nullptr);
    ~FractalWindow() override;
    // Shows the pictures, the caption and the count as the workbench has them now.
    void refresh();
    // Lays the picture out for the present window size (ResizeFractalWin).
    void relayout();
    PictureWidget* picture() const { return picfractal_; }
    FloatingPictureWidget* floatingPicture() const { return picPaste_; }
    // Opens the frame's D&raw menu at a screen position (set by the frame).
    std::function<void(QPoint)> onDrawMenuRequested;
    // Opens the floating picture's pop-up menu at a screen position (set by the frame).
    std::function<void(QPoint)> onPastePopupRequested;
    // Runs a command of the frame by its menu key (set by the frame), for the toolbar buttons.
    std::function<void(const std::string&)> runCommand;
    // Called after a key, a click or a toolbar button changed the state, to show it everywhere.
    std::function<void()> afterCommand;
    // Told the picture's "width x height" after each layout (txtFractalSize of the frame's toolbar).
    std::function<void(const std::string&)> onSizeChanged;
    std::string sizeText;

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;

  private:
    void buildToolbar();
    // A key on the picture or the window: the logic's key rows; true when one took it.
    bool handleKey(QKeyEvent* event);
    void changed();
    void onMouseMoved(QPointF world);
    void onMousePressed(QPointF world, Qt::MouseButton button, Qt::KeyboardModifiers modifiers);
    void onMouseReleased(QPointF world, Qt::MouseButton button, Qt::KeyboardModifiers modifiers,
                         QPoint globalPosition);

    AppState& state_;
    Host& host_;
    QToolBar* Toolbar1_ = nullptr;
    QAction* play_ = nullptr;
    // The axes, fixed points and grid buttons with the menu items whose check marks they show.
    std::vector<std::pair<QAction*, std::string>> overlayButtons_;
    QScrollArea* picOuter_ = nullptr;
    PictureWidget* picfractal_ = nullptr;
    FloatingPictureWidget* picPaste_ = nullptr;
    QLabel* picCoord_ = nullptr;
    QLabel* picCount_ = nullptr;
    QLabel* picTrace_ = nullptr;
    QProgressBar* pgrIterate_ = nullptr;
    int laidOutSide_ = 0;
};

// The key code and shift mask the fractal window's logic expects, from a Qt key event.
int FractalKeyCode(int qtKey);
int FractalShiftMask(Qt::KeyboardModifiers modifiers);

}  // namespace quillane
