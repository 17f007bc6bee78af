#include "shell/ani_gif_widget.h"

#include <QPainter>

#include "shell/surface_image.h"

namespace quillane {

AniGifWidget::AniGifWidget(QWidget* parent) : QWidget(parent) {
    setObjectName("ucAniGIF");
    setAttribute(Qt::WA_OpaquePaintEvent);
    player_.onFrame = [this](int32_t n) { emit frameChanged(n); };
    player_.onRepaint = [this] { update(); };
    connect(&timer_, &QTimer::timeout, this, [this] {
        player_.tick();
        followTimer();
    });
}

bool AniGifWidget::LoadAnimatedGIF_File(const QString& path) {
    const bool ok = player_.LoadAnimatedGIF_File(path.toStdString());
    followTimer();
    update();
    return ok;
}

void AniGifWidget::setAction(int value) {
    player_.setAction(value);
    followTimer();
}

void AniGifWidget::followTimer() {
    if (!player_.timerRunning()) {
        timer_.stop();
        return;
    }
    timer_.start(std::max(player_.timerInterval(), 1));
}

void AniGifWidget::paintEvent(QPaintEvent*) {
    QPainter p(this);
    p.fillRect(rect(), palette().window());
    if (player_.CurrentFrame() == 0) return;
    const RasterSurface& picture = player_.picture();
    if (picture.width() <= 0) return;
    const QImage image = ImageOfSurface(picture);
    if (player_.Stretch())
        p.drawImage(rect(), image);
    else
        p.drawImage(0, 0, image);
}

}  // namespace quillane
