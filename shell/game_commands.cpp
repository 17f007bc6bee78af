#include "shell/game_commands.h"

#include <QDesktopServices>
#include <QUrl>

#include "core/menu_tree.h"
#include "shell/main_window.h"
#include "shell/sierpinski_game_window.h"

namespace quillane {

namespace {

constexpr int GameWindowItem = 10;  // mnuWin(10) "Sierpinski Triangle Game"
constexpr int WindowItems = 22;

std::string windowItem() {
    return MenuTable::key("mnuWin", GameWindowItem);
}

void showGame(MainWindow& frame) {
    SierpinskiGameWindow& w = GameWindow(frame);
    Workbench& wb = frame.state().wb;
    for (int k = 0; k < WindowItems; ++k)
        wb.Menu.setChecked(MenuTable::key("mnuWin", k), k == GameWindowItem);
    wb.Menu.setVisible(windowItem(), true);
    w.show();
    w.raise();
    w.activateWindow();
}

}  // namespace

SierpinskiGameWindow& GameWindow(MainWindow& frame) {
    if (auto* w = frame.findChild<SierpinskiGameWindow*>("frmSierpG")) return *w;
    auto openUrl = [](const std::string& url) {
        return QDesktopServices::openUrl(QUrl(QString::fromStdString(url)));
    };
    auto* w = new SierpinskiGameWindow(frame.host(), frame.programDir(), openUrl, &frame);
    QObject::connect(w, &SierpinskiGameWindow::hiddenByQuit, &frame,
                     [&frame] { frame.state().wb.Menu.setChecked(windowItem(), false); });
    return *w;
}

void RegisterGameCommands(MainWindow& frame) {
    frame.setCommand("mnuNewSTG", [&frame] { showGame(frame); });
    frame.setCommand(windowItem(), [&frame] { showGame(frame); });
}

}  // namespace quillane
