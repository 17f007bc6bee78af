#include "shell/movie_viewer.h"

#include <QAction>
#include <QCloseEvent>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QStyle>
#include <QToolBar>
#include <QVBoxLayout>
#include <cmath>

#include "app/movie_commands.h"

namespace quillane {
namespace {

constexpr const char* LoopOff = " Continuous Loop: Off";
constexpr const char* LoopOn = " Continuous Loop: On";

QLabel* statusArea(QWidget* parent, const char* name) {
    auto* l = new QLabel(parent);
    l->setObjectName(name);
    l->setFrameShape(QFrame::Panel);
    l->setFrameShadow(QFrame::Sunken);
    return l;
}

}  // namespace

MovieViewerWindow::MovieViewerWindow(QWidget* parent) : QWidget(parent, Qt::Window) {
    setObjectName("frmWeb");
    setWindowTitle(MovieViewerCaption);
    TlbrVCR_ = new QToolBar(this);
    TlbrVCR_->setObjectName("TlbrVCR");
    struct Button {
        const char* key;
        const char* tip;
        QStyle::StandardPixmap icon;
    };
    const Button list[] = {{"stop", "", QStyle::SP_MediaStop},
                           {"pause", "Pause", QStyle::SP_MediaPause},
                           {"backward", "Single Frame Backwards", QStyle::SP_MediaSeekBackward},
                           {"foward", "Single Frame Forward", QStyle::SP_MediaSeekForward},
                           {"play", "Play Forward", QStyle::SP_MediaPlay},
                           {"loop", "", QStyle::SP_BrowserReload},
                           {"slower", "", QStyle::SP_ArrowDown},
                           {"faster", "", QStyle::SP_ArrowUp}};
    for (const Button& b : list) {
        QAction* a = TlbrVCR_->addAction(style()->standardIcon(b.icon), b.key);
        a->setToolTip(b.tip);
        a->setObjectName(b.key);
        if (std::string(b.key) == "loop") a->setCheckable(true);
        const std::string key = b.key;
        connect(a, &QAction::triggered, this, [this, key] { TlbrVCR_ButtonClick(key); });
        buttons_[key] = a;
    }
    gif_ = new AniGifWidget(this);
    picLoop_ = statusArea(this, "picLoop");
    picFrame_ = statusArea(this, "picFrame");
    picSize_ = statusArea(this, "picSize");
    picRate_ = statusArea(this, "picRate");
    auto* status = new QHBoxLayout;
    status->setSpacing(2);
    status->addWidget(picLoop_);
    status->addWidget(picFrame_);
    status->addWidget(picSize_);
    status->addWidget(picRate_, 1);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(TlbrVCR_);
    layout->addWidget(gif_, 1);
    layout->addLayout(status);
    connect(gif_, &AniGifWidget::frameChanged, this, [this](int n) {
        picFrame_->setText(QString(" Frame %1 of %2").arg(n).arg(gif_->player().FrameCount()));
    });
    picLoop_->setText(LoopOff);
    setFocusPolicy(Qt::StrongFocus);
}

QString MovieViewerWindow::picLoop() const {
    return picLoop_->text();
}
QString MovieViewerWindow::picFrame() const {
    return picFrame_->text();
}
QString MovieViewerWindow::picSize() const {
    return picSize_->text();
}
QString MovieViewerWindow::picRate() const {
    return picRate_->text();
}

void MovieViewerWindow::showRate() {
    picRate_->setText(QString("%1 ms/frame").arg(gif_->player().SteppedDelay()));
}

void MovieViewerWindow::ShowNewMovie(const QString& fileName) {
    if (isMinimized()) showNormal();
    picLoop_->setText(LoopOff);
    gif_->LoadAnimatedGIF_File(fileName);
    AniGifPlayer& p = gif_->player();
    // The movie's own size, with room for the toolbar and the status areas; never narrower than the bar.
    const int width = std::max(p.ActualWidth(), TlbrVCR_->sizeHint().width() + 40);
    const int height = p.ActualHeight() + TlbrVCR_->sizeHint().height() + picRate_->sizeHint().height() + 4;
    resize(width, height);
    gif_->Refresh();
    p.setLoops(1);
    p.setSteppedDelay(100);
    showRate();
    buttons_["loop"]->setChecked(true);
    picFrame_->setText(QString(" Frame 1 of%1").arg(QString::number(p.FrameCount()).prepend(' ')));
    picSize_->setText(QString("%1 x %2").arg(p.ActualWidth()).arg(p.ActualHeight()));
}

void MovieViewerWindow::changeDelay(int by) {
    AniGifPlayer& p = gif_->player();
    const int next = p.SteppedDelay() + by;
    if (next >= 1) p.setSteppedDelay(next);
    if (p.timerRunning()) gif_->timer().setInterval(p.timerInterval());
    showRate();
}

void MovieViewerWindow::TlbrVCR_ButtonClick(const std::string& key) {
    const int step = CtrlHeld_ ? 100 : 10;
    if (key == "stop") gif_->setAction(0);
    if (key == "pause") gif_->setAction(2);
    if (key == "foward") gif_->setAction(3);
    if (key == "backward") gif_->setAction(5);
    if (key == "play") gif_->setAction(1);
    if (key == "slower") changeDelay(step);
    if (key == "faster") changeDelay(-step);
    if (key == "loop") {
        // The action has already turned the button over: its state now is the one to show.
        const bool pressed = buttons_["loop"]->isChecked();
        gif_->player().setLoops(pressed ? 1 : 0);
        picLoop_->setText(pressed ? LoopOff : LoopOn);
    }
}

void MovieViewerWindow::keyPressEvent(QKeyEvent* event) {
    if (event->modifiers() & Qt::ControlModifier) CtrlHeld_ = true;
    switch (event->key()) {
        case Qt::Key_Space:
        case Qt::Key_F:
            gif_->setAction(3);
            break;
        case Qt::Key_B:
            gif_->setAction(5);
            break;
        case Qt::Key_P:
            gif_->setAction(1);
            break;
        case Qt::Key_S:
            gif_->setAction(2);
            break;
        default:
            QWidget::keyPressEvent(event);
    }
}

void MovieViewerWindow::keyReleaseEvent(QKeyEvent* event) {
    const int step = CtrlHeld_ ? 100 : 10;
    if (event->key() == Qt::Key_Left) changeDelay(step);
    if (event->key() == Qt::Key_Right) changeDelay(-step);
    CtrlHeld_ = false;
    QWidget::keyReleaseEvent(event);
}

void MovieViewerWindow::resizeEvent(QResizeEvent* event) {
    gif_->setAction(2);
    QWidget::resizeEvent(event);
}

void MovieViewerWindow::closeEvent(QCloseEvent* event) {
    // Closing only hides the viewer; the frame keeps it for the next movie.
    event->ignore();
    gif_->setAction(2);
    hide();
    emit hidden();
}

}  // namespace quillane
