#pragma once
// frmPreview: the preview picture beside the design, with its point count in a status line. "+" and
// "-" change the count on key up; the window keeps the picture at the aspect of the fractal view.
#include <QWidget>

#include "app/app_state.h"

class QLabel;

namespace quillane {

class PictureWidget;

class PreviewWindow : public QWidget {
    Q_OBJECT
  public:
    PreviewWindow(AppState& s, QWidget* parent);
    // Draws when the IFS, its colours or the view changed.
    void refresh();
    // Draws now (the design asked for it during a gesture).
    void redraw();
    QString statusText() const;
    PictureWidget* picture() const { return picPreview_; }

  signals:
    void closedByBox();

  protected:
    void keyReleaseEvent(QKeyEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

  private:
    void fitPicture();
    AppState& s_;
    PictureWidget* picPreview_ = nullptr;
    QLabel* status_ = nullptr;
    bool correcting_ = false;
};

// Ctrl+P and the Window menu's "&Preview"; the design's redraws reach the preview.
class MainWindow;
void RegisterPreviewCommands(MainWindow& frame);
void RefreshPreviewWindow(MainWindow& frame);

}  // namespace quillane
