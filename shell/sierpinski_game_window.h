#pragma once
// frmSierpG: the game's canvas with its three corner buttons, the labels and texts of the game, and
// a menu bar of its own. Every control forwards to app/sierpinski_game.
#include <QMainWindow>
#include <array>
#include <functional>
#include <map>
#include <string>

#include "app/sierpinski_game.h"
#include "core/host.h"

class QAction;
class QLabel;
class QLineEdit;
class QPushButton;

namespace quillane {

// picCanvas: shows the game's surface and reports its size.
class GameCanvas : public QWidget {
    Q_OBJECT
  public:
    explicit GameCanvas(const RasterSurface& surface, QWidget* parent = nullptr);
  signals:
    void resized(int width, int height);

  protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

  private:
    const RasterSurface& surface_;
};

class SierpinskiGameWindow : public QMainWindow {
    Q_OBJECT
  public:
    // `openUrl` hands the help page's address to the system (the web route of the Help menu).
    SierpinskiGameWindow(Host& host, std::string programDir, std::function<bool(const std::string&)> openUrl,
                         QWidget* parent = nullptr);

    SierpinskiGame& game() { return game_; }
    GameCanvas* picCanvas() const { return canvas_; }
    QPushButton* cmdCorner(int k) const { return cmdCorner_[static_cast<size_t>(k - 1)]; }
    QLabel* lblGoal() const { return lblGoal_; }
    QLabel* lblMoves() const { return lblMoves_; }
    QLabel* lbllevel() const { return lbllevel_; }
    QLabel* lblRotation() const { return lblRotation_; }
    QLineEdit* TxtMoves() const { return txtMoves_; }
    QLabel* TxtDone() const { return txtDone_; }
    // The menu item of a name such as "mnuGameLevel(2)" or "mnuEditUndo".
    QAction* action(const std::string& key) const;

    // Shows the game's state: labels, texts, checked items, button places, canvas.
    void refresh();

  signals:
    void hiddenByQuit();

  protected:
    void keyPressEvent(QKeyEvent* event) override;

  private:
    void buildMenus();
    void buildControls();
    void placeButtons();
    QAction* addItem(QMenu* menu, const std::string& key, const QString& caption, std::function<void()> run);
    void act(const std::function<void()>& command);
    Host& host_;
    std::string programDir_;
    std::function<bool(const std::string&)> openUrl_;
    SierpinskiGame game_;
    GameCanvas* canvas_ = nullptr;
    std::array<QPushButton*, 3> cmdCorner_{};
    QLabel *lblGoal_ = nullptr, *lblMoves_ = nullptr, *lbllevel_ = nullptr, *lblRotation_ = nullptr;
    QLineEdit* txtMoves_ = nullptr;
    QLabel* txtDone_ = nullptr;
    std::map<std::string, QAction*> actions_;
};

}  // namespace quillane
