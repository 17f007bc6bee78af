#pragma once
// MDIForm1: the frame with the menu bar, toolbar, status bar and the child windows. It owns no
// logic: every menu item runs a command registered here by the code that implements it.
#include <QLabel>
#include <QMainWindow>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <array>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "app/startup.h"
#include "core/window_positions.h"
#include "app/app_state.h"
#include "shell/frame_menus.h"
#include "shell/frame_toolbar.h"
#include "shell/list_dialogs.h"
#include "shell/qt_host.h"

namespace quillane {

class FunctionsWindow;
class FractalWindow;
class DesignForm;

// What the start takes from the process.
struct FrameStart {
    std::string commandLine;  // all arguments after the program name, joined by blanks
    std::string programDir;   // where the default lists stand and the file dialogs start
    std::string localeText;   // 1.2 as the locale writes it
    std::string settingsPath;  // the settings file; empty runs on defaults and writes none
    static FrameStart fromApplication();
};

class MainWindow : public QMainWindow {
    Q_OBJECT
  public:
    using Command = std::function<void()>;
    using ArrayCommand = std::function<void(int index)>;

    // The program itself: a QtHost and this process's command line and folder.
    explicit MainWindow(QWidget* parent = nullptr);
    // A frame that talks to the person through the given host.
    MainWindow(Host& host, FrameStart start, QWidget* parent = nullptr);
    ~MainWindow() override;

    // The program's start: default list or command-line file, scale, windows, and the boxes.
    void start();

    // The command of a menu item key ("mnuRun", "mnuWin(1)"); an item without one stays disabled.
    void setCommand(const std::string& key, Command command);
    // One command for every index from firstIndex on of an array item ("mnuNames"), unless a key
    // has its own.
    void setArrayCommand(const std::string& name, ArrayCommand command, int firstIndex = 0);
    bool hasCommand(const std::string& key) const;
    // The command of a plain key, or an empty one, so that a later registration can extend it.
    Command command(const std::string& key) const {
        const auto it = commands_.find(key);
        return it == commands_.end() ? Command{} : it->second;
    }
    // Runs the item's command, then shows the new state in the windows and the menus.
    void runCommand(const std::string& key);

    // Shows the workbench in the child windows and the frame title.
    void refreshWindows();

    AppState& state() { return state_; }
    // The list, name and comment dialogs; tests put scripts in their place.
    ShellDialogs& dialogs() { return dialogs_; }
    Host& host() { return host_; }
    const std::string& programDir() const { return start_.programDir; }
    StartFlags& flags() { return flags_; }
    SettingsHooks& settingsHooks() { return settingsHooks_; }
    QAction* menuAction(const std::string& key) const { return menus_->action(key); }
    // A submenu of the bar ("mnuDraw") or a pop-up menu ("mnuPopup").
    QMenu* menu(const std::string& key) const { return menus_->menu(key); }
    FrameToolbar* toolbar() const { return toolbar_; }
    QMdiArea* mdiArea() const { return mdi_; }
    // The child window of mnuWin item index, or nullptr for one that does not exist yet.
    QMdiSubWindow* childWindow(int index) const;
    FunctionsWindow* functionsWindow() const { return functions_; }
    FractalWindow* fractalWindow() const { return fractal_; }
    DesignForm* designWindow() const { return design_; }
    void setStatusText(int panel, const QString& text);
    QString statusText(int panel) const;

    // Holds back the tool tips of every window while "Show Tool Tips" is off.
    bool eventFilter(QObject* watched, QEvent* event) override;

  protected:
    void closeEvent(QCloseEvent* event) override;

  private:
    MainWindow(std::unique_ptr<QtHost> ownHost, Host* host, FrameStart start, QWidget* parent);
    void buildChildren();
    void placeChildren();
    void connectSettings();
    WindowPlace screenTwips() const;
    void buildStatusBar();
    void registerFrameCommands();
    void menuChanged(const std::string& key);
    void syncAfterCommand(const std::string& key);
    void showChild(int index);
    void actOnCheckedChild(int action);
    void childActivated(QMdiSubWindow* window);
    void checkWindowItem(int index);

    std::unique_ptr<QtHost> ownHost_;
    Host& host_;
    FrameStart start_;
    AppState state_;
    ShellDialogs dialogs_;
    StartFlags flags_;
    // The settings file's reader and writer, when the frame has a settings file.
    SettingsHooks settingsHooks_;
    std::map<std::string, Command> commands_;
    struct IndexedCommand {
        ArrayCommand command;
        int firstIndex = 0;
    };
    std::map<std::string, IndexedCommand> arrayCommands_;
    QMdiArea* mdi_ = nullptr;
    FrameMenus* menus_ = nullptr;
    FrameToolbar* toolbar_ = nullptr;
    FunctionsWindow* functions_ = nullptr;
    FractalWindow* fractal_ = nullptr;
    DesignForm* design_ = nullptr;
    std::array<QMdiSubWindow*, 3> children_{};
    std::vector<QLabel*> statusPanels_;
};

}  // namespace quillane
