#include "shell/main_window.h"
#include "shell/preview_window.h"

#include <QApplication>
#include <QCloseEvent>
#include <QCoreApplication>
#include <QLocale>
#include <QMenu>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenuBar>
#include <QScreen>
#include <QStatusBar>

#include "core/menu_tree.h"
#include "core/settings_file.h"
#include "core/window_positions.h"
#include "render/scale.h"
#include "app/design_view.h"
#include "shell/code_commands.h"
#include "shell/color_commands.h"
#include "shell/print_commands.h"
#include "shell/settings_location.h"
#include "shell/chaos_commands.h"
#include "shell/chaos_design_area.h"
#include "shell/design_commands.h"
#include "shell/design_window.h"
#include "shell/figure_commands.h"
#include "shell/fractal_commands.h"
#include "shell/fractal_window.h"
#include "shell/generator_commands_b.h"
#include "shell/functions_window.h"
#include "shell/help_commands.h"

namespace quillane {

namespace {

constexpr int WindowItems = 22;  // mnuWin(0) to (21)
constexpr int StatusPanels = 2;

// The array name of an item key: "mnuWin(1)" gives "mnuWin" and 1.
bool splitKey(const std::string& key, std::string& name, int& index) {
    const size_t open = key.find('(');
    if (open == std::string::npos || key.back() != ')') return false;
    name = key.substr(0, open);
    index = std::stoi(key.substr(open + 1));
    return true;
}

}  // namespace

FrameStart FrameStart::fromApplication() {
    QStringList arguments = QCoreApplication::arguments();
    if (!arguments.isEmpty()) arguments.removeFirst();
    FrameStart start;
    start.commandLine = arguments.join(' ').toStdString();
    start.programDir = QCoreApplication::applicationDirPath().toStdString();
    start.localeText = QLocale().toString(1.2).toStdString();
    start.settingsPath = SettingsFilePath(QCoreApplication::applicationDirPath());
    return start;
}

MainWindow::MainWindow(QWidget* parent)
    : MainWindow(std::make_unique<QtHost>(QCoreApplication::applicationDirPath()), nullptr,
                 FrameStart::fromApplication(), parent) {}

MainWindow::MainWindow(Host& host, FrameStart start, QWidget* parent)
    : MainWindow(nullptr, &host, std::move(start), parent) {}

MainWindow::MainWindow(std::unique_ptr<QtHost> ownHost, Host* host, FrameStart start, QWidget* parent)
    : QMainWindow(parent),
      ownHost_(std::move(ownHost)),
      host_(host ? *host : *ownHost_),
      start_(std::move(start)) {
    setObjectName("MDIForm1");
    setWindowTitle(QString::fromStdString(state_.wb.FrameCaption));
    InitializeMenuState(state_.wb.Menu);
    auto has = [this](const std::string& key) { return hasCommand(key); };
    menus_ = new FrameMenus(
        state_.wb.Menu, menuBar(), this, [this](const std::string& key) { runCommand(key); }, has);
    toolbar_ = new FrameToolbar(
        state_.wb, [this](const std::string& key) { runCommand(key); }, has, this);
    addToolBar(Qt::TopToolBarArea, toolbar_);
    buildStatusBar();
    buildChildren();
    dialogs_ = QtShellDialogs(this);
    registerFrameCommands();
    RegisterFractalCommands(*this);
    RegisterCodeCommands(*this);
    RegisterListAndFileCommands(*this);
    RegisterFigureCommands(*this);
    RegisterDesignCommands(*this);
    RegisterChaosCommands(*this);
    RegisterPrintCommands(*this);
    RegisterHelpCommands(*this);
    RegisterColorCommands(*this);
    RegisterPreviewCommands(*this);
    RegisterMoreGenerators(*this);
    state_.wb.Menu.observer = [this](const std::string& key) { menuChanged(key); };
    if (ownHost_) {
        ownHost_->setParentWidget(this);
        // A view change during a run rewrites the table's window boxes too, so both windows follow.
        ownHost_->onYield = [this] { refreshWindows(); };
    }
    connectSettings();
    qApp->installEventFilter(this);
}

MainWindow::~MainWindow() {
    state_.wb.Menu.observer = nullptr;
    if (ownHost_) ownHost_->onYield = nullptr;
    // The child windows hold the state and the host: they go first.
    if (functions_) functions_->detach();
    // A focus leaving the design picture while the children go must not reach the frame.
    if (design_) {
        design_->afterCommand = nullptr;
        design_->runCommand = nullptr;
        design_->onSizeChanged = nullptr;
        design_->popup = nullptr;
    }
    delete mdi_;
    mdi_ = nullptr;
}

void MainWindow::buildStatusBar() {
    for (int i = 0; i < StatusPanels; ++i) {
        auto* panel = new QLabel(this);
        panel->setObjectName(QString("StatusBar1.Panels(%1)").arg(i + 1));
        panel->setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
        statusBar()->addWidget(panel, i == 0 ? 3 : 1);
        statusPanels_.push_back(panel);
    }
}

void MainWindow::buildChildren() {
    mdi_ = new QMdiArea(this);
    mdi_->setObjectName("MDIClient");
    mdi_->setBackground(QColor(171, 171, 171));
    setCentralWidget(mdi_);
    functions_ = new FunctionsWindow(state_, host_);
    functions_->afterEdit = [this] { refreshWindows(); };
    fractal_ = new FractalWindow(state_, host_);
    children_[0] = mdi_->addSubWindow(functions_);
    children_[1] = mdi_->addSubWindow(fractal_);
    design_ = new DesignForm(state_);
    design_->runCommand = [this](const std::string& key) { runCommand(key); };
    design_->afterCommand = [this] { refreshWindows(); };
    design_->popup = [this](QPoint at) {
        if (QMenu* m = menu("mnuDesign")) m->popup(at);
    };
    // The frame's size box tells the design area's size when the person resizes that window; the
    // layout of the start leaves it to the fractal picture.
    design_->onSizeChanged = [this](const std::string& size) {
        if (children_[2] && mdi_->activeSubWindow() == children_[2])
            toolbar_->txtFractalSize()->setText(QString::fromStdString(size));
    };
    AttachChaosDesignArea(*design_, state_, host_)->popup = [this](QPoint at) {
        if (QMenu* m = menu("mnuDesign")) m->popup(at);
    };
    children_[2] = mdi_->addSubWindow(design_);
    // A child's close box only hides it: the Window menu brings it back.
    for (QMdiSubWindow* child : children_) {
        child->setAttribute(Qt::WA_DeleteOnClose, false);
        // The toolkit's close keys include Ctrl+W, which is Scale to Fit here: two owners of a key
        // leave it to neither.
        if (QMenu* system = child->systemMenu())
            for (QAction* action : system->actions()) {
                QList<QKeySequence> keys = action->shortcuts();
                if (keys.removeAll(QKeySequence(Qt::CTRL | Qt::Key_W)) > 0) action->setShortcuts(keys);
            }
    }
    placeChildren();
    connect(mdi_, &QMdiArea::subWindowActivated, this, &MainWindow::childActivated);
}

// The three windows where the settings (or the first start) put them, and a frame that holds them
// all, as far as the screen allows.
void MainWindow::placeChildren() {
    const double dpi = logicalDpiX();
    const WindowPositions& p = state_.wb.Windows;
    auto place = [dpi](QMdiSubWindow* child, const WindowPlace& w) {
        child->setGeometry(TwipsToPixels(w.left, dpi), TwipsToPixels(w.top, dpi), TwipsToPixels(w.width, dpi),
                           TwipsToPixels(w.height, dpi));
    };
    place(children_[0], p.functions);
    place(children_[1], p.fractal);
    place(children_[2], p.design);
    const WindowPlace extent = MainWindowsExtent(p);
    const QSize needed(TwipsToPixels(extent.width, dpi), TwipsToPixels(extent.height, dpi));
    // The frame's own bars around the child area, and the area's border.
    const int border = 2 * mdi_->frameWidth() + 4;
    const QSize chrome(border, menuBar()->sizeHint().height() + toolbar_->sizeHint().height() +
                                   statusBar()->sizeHint().height() + border);
    QSize frame = needed + chrome;
    if (const QScreen* s = screen()) frame = frame.boundedTo(s->availableGeometry().size());
    resize(frame);
}

// The largest child area the screen allows, in twips: a window kept beyond it comes back.
WindowPlace MainWindow::screenTwips() const {
    const double dpi = logicalDpiX();
    const QSize size = screen() ? screen()->availableGeometry().size() : QSize(1024, 768);
    return {0, 0, PixelsToTwips(size.width(), dpi), PixelsToTwips(size.height(), dpi)};
}

void MainWindow::connectSettings() {
    if (start_.settingsPath.empty()) return;
    const std::string path = start_.settingsPath;
    settingsHooks_.ReadSettings = [this, path](Workbench& wb, StartFlags& flags) {
        const SettingsReadResult r = ReadSettingsFile(path, wb, screenTwips());
        flags.SettingsRead = r.SettingsRead;
        flags.SettingsInvalid = r.SettingsInvalid;
        state_.design.setBackColor(wb.DesignBackColor);
        placeChildren();
    };
    settingsHooks_.TakeLiveSettings = [this](Workbench& wb) {
        const double dpi = logicalDpiX();
        auto twips = [dpi](const QMdiSubWindow* child) {
            const QRect g = child->isMaximized() || child->isMinimized() ? child->normalGeometry() : child->geometry();
            return WindowPlace{PixelsToTwips(g.left(), dpi), PixelsToTwips(g.top(), dpi),
                               PixelsToTwips(g.width(), dpi), PixelsToTwips(g.height(), dpi)};
        };
        std::array<bool, 3> hidden{};
        for (size_t i = 0; i < hidden.size(); ++i) hidden[i] = !children_[i]->isVisible();
        TakeLiveWindows(wb, twips(children_[0]), twips(children_[1]), twips(children_[2]), hidden);
    };
    settingsHooks_.WriteSettings = [path](const Workbench& wb) { WriteSettingsFile(path, wb); };
}

void MainWindow::registerFrameCommands() {
    setCommand("mnuExit", [this] {
        if (mnuExit_Click(state_.wb, host_, flags_, settingsHooks_)) close();
    });
    setCommand("mnuEditToolTips", [this] {
        Workbench& wb = state_.wb;
        wb.Menu.setChecked("mnuEditToolTips", !wb.menu("mnuEditToolTips").checked);
        wb.SettingsChanged = true;
    });
    for (int i = 0; i < static_cast<int>(children_.size()); ++i)
        setCommand(MenuTable::key("mnuWin", i), [this, i] { showChild(i); });
    for (int action = 1; action <= 3; ++action)
        setCommand(MenuTable::key("mnuWinAction", action), [this, action] { actOnCheckedChild(action); });
}

void MainWindow::start() {
    StartHooks hooks;
    hooks.settings = settingsHooks_;
    hooks.setscale = [this] {
        setscale(state_.wb, host_);
        DesignScale(state_.wb, state_.design);
    };
    hooks.showWindows = [this] {
        for (size_t i = 0; i < children_.size(); ++i) children_[i]->setVisible(!state_.wb.MainWindowHidden[i]);
        refreshWindows();
        host_.yield();
    };
    flags_ = StartProgram(state_.wb, host_, start_.commandLine, start_.programDir, start_.localeText, hooks);
    if (QMdiSubWindow* active = mdi_->activeSubWindow()) childActivated(active);
    menus_->syncAll();
    toolbar_->sync();
    refreshWindows();
}

void MainWindow::setCommand(const std::string& key, Command command) {
    commands_[key] = std::move(command);
    menus_->sync(key);
    toolbar_->sync();
}

void MainWindow::setArrayCommand(const std::string& name, ArrayCommand command, int firstIndex) {
    arrayCommands_[name] = {std::move(command), firstIndex};
    menus_->syncAll();
    toolbar_->sync();
}

bool MainWindow::hasCommand(const std::string& key) const {
    if (commands_.count(key)) return true;
    std::string name;
    int index = 0;
    if (!splitKey(key, name, index)) return false;
    const auto array = arrayCommands_.find(name);
    return array != arrayCommands_.end() && index >= array->second.firstIndex;
}

void MainWindow::runCommand(const std::string& key) {
    if (const auto it = commands_.find(key); it != commands_.end()) {
        // A copy: the command may register another under the same key.
        Command command = it->second;
        command();
    } else {
        std::string name;
        int index = 0;
        if (!splitKey(key, name, index)) return;
        const auto array = arrayCommands_.find(name);
        if (array == arrayCommands_.end() || index < array->second.firstIndex) return;
        ArrayCommand command = array->second.command;
        command(index);
    }
    syncAfterCommand(key);
}

// A click ticks or unticks a checkable item by itself; the table decides what stays.
void MainWindow::syncAfterCommand(const std::string& key) {
    menus_->sync(key);
    for (const std::string& member : RadioGroupKeys(key)) menus_->sync(member);
    toolbar_->sync();
    refreshWindows();
}

void MainWindow::menuChanged(const std::string& key) {
    menus_->sync(key);
    toolbar_->sync();
}

void MainWindow::refreshWindows() {
    setWindowTitle(QString::fromStdString(state_.wb.FrameCaption));
    functions_->refresh();
    fractal_->refresh();
    RedrawDesignIfChanged(state_.wb, state_.design);
    design_->refresh();
    RefreshColorWindows(*this);
    RefreshPreviewWindow(*this);
}

QMdiSubWindow* MainWindow::childWindow(int index) const {
    if (index < 0 || index >= static_cast<int>(children_.size())) return nullptr;
    return children_[index];
}

void MainWindow::checkWindowItem(int index) {
    for (int k = 0; k < WindowItems; ++k) state_.wb.Menu.setChecked(MenuTable::key("mnuWin", k), k == index);
}

void MainWindow::showChild(int index) {
    QMdiSubWindow* child = childWindow(index);
    if (!child) return;
    checkWindowItem(-1);
    if (child->isMinimized()) child->showNormal();
    child->show();
    child->widget()->show();
    mdi_->setActiveSubWindow(child);
    child->raise();
    checkWindowItem(index);
}

void MainWindow::actOnCheckedChild(int action) {
    for (int index = 0; index < static_cast<int>(children_.size()); ++index) {
        if (!state_.wb.menu(MenuTable::key("mnuWin", index)).checked) continue;
        QMdiSubWindow* child = children_[index];
        if (action == 1) child->showMinimized();
        if (action == 2) child->showMaximized();
        if (action == 3) child->showNormal();
        return;
    }
}

void MainWindow::childActivated(QMdiSubWindow* window) {
    for (int index = 0; index < static_cast<int>(children_.size()); ++index)
        if (children_[index] == window) checkWindowItem(index);
}

void MainWindow::setStatusText(int panel, const QString& text) {
    if (panel >= 0 && panel < static_cast<int>(statusPanels_.size())) statusPanels_[panel]->setText(text);
}

QString MainWindow::statusText(int panel) const {
    if (panel < 0 || panel >= static_cast<int>(statusPanels_.size())) return {};
    return statusPanels_[panel]->text();
}

bool MainWindow::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::ToolTip && !state_.wb.menu("mnuEditToolTips").checked) return true;
    return QMainWindow::eventFilter(watched, event);
}

void MainWindow::closeEvent(QCloseEvent* event) {
    if (!QueryUnload(state_.wb, host_, flags_, settingsHooks_)) {
        event->ignore();
        return;
    }
    for (QMdiSubWindow* child : children_) child->hide();
    event->accept();
}

}  // namespace quillane
