#include "shell/preview_window.h"

#include <QCloseEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QVBoxLayout>

#include "app/preview_commands.h"
#include "core/menu_tree.h"
#include "render/preview_drawing.h"
#include "shell/main_window.h"
#include "shell/picture_widget.h"

namespace quillane {

PreviewWindow::PreviewWindow(AppState& s, QWidget* parent) : QWidget(parent, Qt::Tool), s_(s) {
    setObjectName("frmPreview");
    setWindowTitle(tr("Preview"));
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    picPreview_ = new PictureWidget(this);
    picPreview_->setObjectName("picPreview");
    picPreview_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Ignored);
    layout->addWidget(picPreview_, 1);
    status_ = new QLabel(this);
    status_->setObjectName("StatusBar1");
    status_->setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
    layout->addWidget(status_);
    status_->setText(QString::fromStdString(s_.Preview.Status));
    resize(260, 280);
}

QString PreviewWindow::statusText() const {
    return status_->text();
}

void PreviewWindow::fitPicture() {
    const QSize area = picPreview_->size();
    RasterSurface& pic = s_.Preview.picPreview;
    if (area.width() > 0 && area.height() > 0 &&
        (pic.width() != area.width() || pic.height() != area.height()))
        pic.resize(area.width(), area.height());
    picPreview_->setSurface(&pic);
}

void PreviewWindow::redraw() {
    fitPicture();
    PreviewDraw(s_);
    status_->setText(QString::fromStdString(s_.Preview.Status));
    picPreview_->update();
}

void PreviewWindow::refresh() {
    fitPicture();
    if (PreviewRefresh(s_)) picPreview_->update();
    status_->setText(QString::fromStdString(s_.Preview.Status));
}

void PreviewWindow::keyReleaseEvent(QKeyEvent* event) {
    if (event->isAutoRepeat()) return;
    const int key = event->key();
    if (key == Qt::Key_Plus || key == Qt::Key_Minus) {
        PreviewKeyUp(s_, key == Qt::Key_Plus ? 1 : -1);
        redraw();
        return;
    }
    QWidget::keyReleaseEvent(event);
}

void PreviewWindow::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    const WorldWindow& w = s_.wb.Window;
    if (!correcting_) {
        // The window follows the area's ratio to the view's; the second resize it causes is taken as is.
        const int wanted = PreviewWindowHeight(height(), picPreview_->width(), picPreview_->height(),
                                               double(w.xmax) - w.xmin, double(w.ymax) - w.ymin);
        if (wanted != height() && wanted > 60 && wanted < 4000) {
            correcting_ = true;
            resize(width(), wanted);
            correcting_ = false;
        }
    }
    if (isVisible()) redraw();
}

void PreviewWindow::closeEvent(QCloseEvent* event) {
    event->ignore();
    hide();
    PreviewClosed(s_);
    picPreview_->update();
    emit closedByBox();
}

namespace {

PreviewWindow* findPreview(MainWindow& frame) {
    return frame.findChild<PreviewWindow*>("frmPreview", Qt::FindDirectChildrenOnly);
}

PreviewWindow& preview(MainWindow& frame) {
    if (PreviewWindow* w = findPreview(frame)) return *w;
    auto* w = new PreviewWindow(frame.state(), &frame);
    frame.state().design.DrawPreview = [w] { w->redraw(); };
    QObject::connect(w, &PreviewWindow::closedByBox, &frame, [&frame] { frame.refreshWindows(); });
    return *w;
}

void bringUp(MainWindow& frame) {
    PreviewWindow& w = preview(frame);
    w.show();
    w.raise();
    w.redraw();
}

}  // namespace

void RegisterPreviewCommands(MainWindow& frame) {
    frame.setCommand("mnuDesignPreview", [&frame] {
        PreviewWindow& w = preview(frame);
        if (mnuDesignPreview_Click(frame.state())) {
            bringUp(frame);
        } else {
            w.hide();
        }
    });
    frame.setCommand(MenuTable::key("mnuWin", PreviewWindowItem), [&frame] {
        if (!frame.state().wb.menu("mnuDesignPreview").checked) return;
        bringUp(frame);
        Workbench& wb = frame.state().wb;
        for (int k = 0; k < 22; ++k) wb.Menu.setChecked(MenuTable::key("mnuWin", k), k == PreviewWindowItem);
    });
}

void RefreshPreviewWindow(MainWindow& frame) {
    if (PreviewWindow* w = findPreview(frame); w && w->isVisible()) w->refresh();
}

}  // namespace quillane
