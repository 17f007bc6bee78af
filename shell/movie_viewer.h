#pragma once
// frmWeb, "Fractal Movie Viewer": the player with its VCR toolbar, four status areas and keys.
#include <QWidget>
#include <map>
#include <string>

#include "shell/ani_gif_widget.h"

class QLabel;
class QToolBar;
class QAction;

namespace quillane {

class MovieViewerWindow : public QWidget {
    Q_OBJECT
  public:
    explicit MovieViewerWindow(QWidget* parent = nullptr);
    void ShowNewMovie(const QString& fileName);
    AniGifWidget* ucAniGIF() const { return gif_; }
    QAction* button(const std::string& key) const { return buttons_.at(key); }
    QString picLoop() const;
    QString picFrame() const;
    QString picSize() const;
    QString picRate() const;
    // A toolbar button by its key, as a click on it.
    void TlbrVCR_ButtonClick(const std::string& key);

  signals:
    void hidden();

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

  private:
    void showRate();
    void changeDelay(int by);
    AniGifWidget* gif_;
    QToolBar* TlbrVCR_;
    QLabel *picLoop_, *picFrame_, *picSize_, *picRate_;
    std::map<std::string, QAction*> buttons_;
    bool CtrlHeld_ = false;
};

}  // namespace quillane
