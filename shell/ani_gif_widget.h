#pragma once
// ucAniGIF: the animated GIF player as a picture control. The logic is AniGifPlayer; this widget owns
// the timer and paints the composed frame.
#include <QTimer>
#include <QWidget>

#include "movies/gif_player.h"

namespace quillane {

class AniGifWidget : public QWidget {
    Q_OBJECT
  public:
    explicit AniGifWidget(QWidget* parent = nullptr);
    AniGifPlayer& player() { return player_; }
    bool LoadAnimatedGIF_File(const QString& path);
    void setAction(int value);
    void Refresh() { update(); }
    QTimer& timer() { return timer_; }

  signals:
    void frameChanged(int frame);

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    void followTimer();
    AniGifPlayer player_;
    QTimer timer_;
};

}  // namespace quillane
