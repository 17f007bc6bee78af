#pragma once
// picPaste on screen: the floating picture over picfractal with its marching outline and grab
// handles. Dragging the middle moves it, dragging a handle resizes it; the logic keeps the rectangle.
#include <QPoint>
#include <QTimer>
#include <QWidget>
#include <functional>

#include "render/floating_picture.h"

namespace quillane {

class FloatingPictureWidget : public QWidget {
    Q_OBJECT
  public:
    FloatingPictureWidget(PasteArea area, QWidget* picture);
    // Follows the logic: shown, placed and sized as pics.Floating says.
    void sync();

    // After every move or resize step, to refresh the coordinates.
    std::function<void()> onChanged;
    // The right button: the pop-up menu at a screen position.
    std::function<void(QPoint)> onPopupRequested;

  protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

  private:
    QPoint inPicture(QPoint local) const { return local + pos(); }
    void updateCursor(QPoint local);

    PasteArea area_;
    bool dragging_ = false;
    int handle_ = 0;
    QPoint pressAt_;
    FloatingPicture start_;
    int antsOffset_ = 0;
    QTimer ants_;
};

}  // namespace quillane
