#pragma once
// frmDesign: the functions as images of the initial polygon in picdesign, its toolbar and the two
// status boxes. The logic is in design/; this window forwards mouse and keys and shows the pictures.
#include <QWidget>
#include <functional>
#include <string>
#include <vector>

#include "app/app_state.h"
#include "app/design_gestures.h"
#include "app/design_toolbar.h"
#include "shell/picture_widget.h"

class QLabel;
class QToolBar;
class QAction;

namespace quillane {

// picdesign: a picture that also reports double clicks and the loss of the focus.
class DesignPicture : public PictureWidget {
    Q_OBJECT
  public:
    using PictureWidget::PictureWidget;
  signals:
    void doubleClicked();
    void focusLost();

  protected:
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
};

class FloatingPictureWidget;

class DesignForm : public QWidget {
    Q_OBJECT
  public:
    // A key of the design window: its own keys, then the gestures' keys.
    void handleKey(QKeyEvent* event);
    DesignForm(AppState& state, QWidget* parent = nullptr);
    // Shows the pictures, the caption, the status boxes and the toolbar as the state has them.
    void refresh();
    DesignPicture* picture() const { return picdesign_; }
    // The chaos game picture that lies over picdesign in that mode.
    void setChaosPicture(QWidget* picture) { picCGDesign_ = picture; }
    // Gives the keyboard to the picture the mode shows.
    void focusPicture();
    QToolBar* toolbar() const { return Toolbar1_; }
    QLabel* coordBox() const { return picCoord_; }
    QLabel* transBox() const { return picTrans_; }
    FloatingPictureWidget* pastePicture() const { return picPaste_; }
    // Runs a command of the frame by its menu key (set by the frame).
    std::function<void(const std::string&)> runCommand;
    // Called after the window changed the state, to show it everywhere.
    std::function<void()> afterCommand;
    // Told the picture's "width x height" after each resize.
    std::function<void(const std::string&)> onSizeChanged;
    // Runs at the end of refresh, for the chaos game picture that lies over picdesign.
    std::function<void()> onRefresh;
    // Shows the mnuDesign pop-up at a screen position: a right button release on picdesign.
    std::function<void(QPoint globalPos)> popup;

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void buildToolbar();
    void runToolCommand(const std::string& command, bool focusBack);
    void addDropDown(QAction* button, const std::string& command, const std::vector<ToolbarDropItem>& items);
    void layoutPicture();
    void changed();
    void onMousePressed(QPointF world, Qt::MouseButton button, Qt::KeyboardModifiers modifiers);
    void onMouseMoved(QPointF world, Qt::KeyboardModifiers modifiers);
    void setDesignCursor(DesignCursor cursor);
    void onMouseReleased(QPointF world, Qt::MouseButton button, Qt::KeyboardModifiers modifiers,
                         QPoint global);
    void onDoubleClick();
    void onFocusLost();
    void showHelpCard(bool show);

    AppState& state_;
    QToolBar* Toolbar1_ = nullptr;
    DesignPicture* picdesign_ = nullptr;
    QWidget* pictureArea_ = nullptr;
    QLabel* picCoord_ = nullptr;
    QLabel* picTrans_ = nullptr;
    QLabel* helpCard_ = nullptr;
    QWidget* picCGDesign_ = nullptr;
    FloatingPictureWidget* picPaste_ = nullptr;
    bool toolBusy_ = false;  // a Toolbar1 command is running
    DesignGesture gesture_;
};

// The key code the design window's logic expects; shifted top-row digits count as their digit.
int DesignKeyCodeOf(int qtKey, Qt::KeyboardModifiers modifiers);
// The Shift mask of the design logic (1 Shift, 2 Ctrl, 4 Alt).
int DesignShiftOf(Qt::KeyboardModifiers modifiers);

}  // namespace quillane
