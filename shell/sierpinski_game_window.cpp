#include "shell/sierpinski_game_window.h"

#include <QActionGroup>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QPainter>
#include <QPushButton>
#include <QVBoxLayout>
#include <cmath>

#include "app/help_commands.h"
#include "core/menu_tree.h"
#include "shell/surface_image.h"

namespace quillane {

namespace {

constexpr int ButtonWidth = 32;

std::string itemKey(const char* name, int index) {
    return MenuTable::key(name, index);
}

}  // namespace

GameCanvas::GameCanvas(const RasterSurface& surface, QWidget* parent) : QWidget(parent), surface_(surface) {
    setAttribute(Qt::WA_OpaquePaintEvent);
    setMinimumSize(120, 120);
}

void GameCanvas::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), Qt::white);
    if (surface_.width() == 0) return;
    const QImage image(reinterpret_cast<const uchar*>(surface_.data()), surface_.width(), surface_.height(),
                       surface_.width() * 4, QImage::Format_RGBX8888);
    painter.drawImage(0, 0, image);
}

void GameCanvas::resizeEvent(QResizeEvent*) {
    emit resized(width(), height());
}

SierpinskiGameWindow::SierpinskiGameWindow(Host& host, std::string programDir,
                                           std::function<bool(const std::string&)> openUrl, QWidget* parent)
    : QMainWindow(parent), host_(host), programDir_(std::move(programDir)), openUrl_(std::move(openUrl)) {
    setObjectName("frmSierpG");
    setWindowTitle(SierpinskiGameCaption);
    setWindowFlag(Qt::Window);
    setFocusPolicy(Qt::StrongFocus);
    buildControls();
    buildMenus();
    resize(720, 560);
    refresh();
}

void SierpinskiGameWindow::buildControls() {
    auto* central = new QWidget(this);
    auto* row = new QHBoxLayout(central);
    canvas_ = new GameCanvas(game_.picCanvas, central);
    canvas_->setObjectName("picCanvas");
    row->addWidget(canvas_, 1);
    for (int k = 1; k <= 3; ++k) {
        auto* button = new QPushButton(QString::number(k), canvas_);
        button->setObjectName(QString("cmdCorner(%1)").arg(k));
        button->setFocusPolicy(Qt::NoFocus);  // the digit keys belong to the window
        button->setFixedWidth(ButtonWidth);
        connect(button, &QPushButton::clicked, this,
                [this, k] { act([this, k] { cmdCorner_Click(game_, k); }); });
        cmdCorner_[static_cast<size_t>(k - 1)] = button;
    }
    game_.ButtonHeight = cmdCorner_[0]->sizeHint().height();
    for (QPushButton* button : cmdCorner_) button->setFixedHeight(game_.ButtonHeight);

    auto* panel = new QVBoxLayout;
    auto label = [central, panel](const char* name) {
        auto* l = new QLabel(central);
        l->setObjectName(name);
        panel->addWidget(l);
        return l;
    };
    lbllevel_ = label("lbllevel");
    lblRotation_ = label("lblRotation");
    lblGoal_ = label("lblGoal");
    lblMoves_ = label("lblMoves");
    txtMoves_ = new QLineEdit(central);
    txtMoves_->setObjectName("TxtMoves");
    txtMoves_->setReadOnly(true);
    txtMoves_->setFocusPolicy(Qt::NoFocus);
    panel->addWidget(txtMoves_);
    txtDone_ = label("TxtDone");
    txtDone_->setWordWrap(true);
    txtDone_->setMinimumHeight(60);
    panel->addStretch(1);
    auto* side = new QWidget(central);
    side->setLayout(panel);
    side->setFixedWidth(170);
    row->addWidget(side);
    setCentralWidget(central);
    connect(canvas_, &GameCanvas::resized, this, [this](int w, int h) {
        ResizeGameCanvas(game_, w, h);
        refresh();
    });
}

QAction* SierpinskiGameWindow::addItem(QMenu* menu, const std::string& key, const QString& caption,
                                       std::function<void()> run) {
    QAction* a = menu->addAction(caption);
    a->setObjectName(QString::fromStdString(key));
    connect(a, &QAction::triggered, this, [this, run = std::move(run)] { act(run); });
    actions_[key] = a;
    return a;
}

void SierpinskiGameWindow::buildMenus() {
    QMenu* gameMenu = menuBar()->addMenu("&Game");
    gameMenu->setObjectName("mnuGame");
    addItem(gameMenu, itemKey("mnuGameAction", 0), "&New Game", [this] { mnuGameAction_Click(game_, 0); });
    addItem(gameMenu, itemKey("mnuGameAction", 1), "&Same Game Again",
            [this] { mnuGameAction_Click(game_, 1); });
    gameMenu->addSeparator();
    QMenu* levels = gameMenu->addMenu("&Level");
    auto* levelGroup = new QActionGroup(this);
    for (int i = 0; i < GameLevels; ++i) {
        QAction* a = addItem(levels, itemKey("mnuGameLevel", i), QString::fromStdString(GameLevelCaption(i)),
                             [this, i] { mnuGameLevel_Click(game_, i); });
        a->setCheckable(true);
        levelGroup->addAction(a);
    }
    QMenu* rotations = gameMenu->addMenu("&Rotations");
    auto* rotationGroup = new QActionGroup(this);
    for (int i = 0; i < RotationKinds; ++i) {
        QAction* a =
            addItem(rotations, itemKey("mnuRotations", i), QString::fromStdString(RotationCaption(i)),
                    [this, i] { mnuRotations_Click(game_, i); });
        a->setCheckable(true);
        rotationGroup->addAction(a);
    }
    gameMenu->addSeparator();
    addItem(gameMenu, "mnuFileQuit", "&Quit", [this] {
        hide();
        emit hiddenByQuit();
    });

    QMenu* edit = menuBar()->addMenu("&Edit");
    addItem(edit, "mnuEditUndo", "&Undo\tCtrl+Z", [this] {
        mnuEditUndo_Click(game_);
    })->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_Z));
    edit->addSeparator();
    addItem(edit, itemKey("mnuEditDotSize", 0), IncreaseDotSizeCaption,
            [this] { mnuEditDotSize_Click(game_, 0); });
    addItem(edit, itemKey("mnuEditDotSize", 1), DecreaseDotSizeCaption,
            [this] { mnuEditDotSize_Click(game_, 1); });
    edit->addSeparator();
    addItem(edit, "mnuEditCopy", "&Copy\tCtrl+C", [this] {
        CopySurfaceToClipboard(game_.picCanvas);
    })->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_C));

    QMenu* help = menuBar()->addMenu("&Help");
    addItem(help, "mnuHelpHowTo", "&How to Play",
            [this] { RunWebCommand(host_, programDir_, "mnuHelpHowTo", openUrl_); });
}

QAction* SierpinskiGameWindow::action(const std::string& key) const {
    const auto it = actions_.find(key);
    return it == actions_.end() ? nullptr : it->second;
}

void SierpinskiGameWindow::act(const std::function<void()>& command) {
    command();
    refresh();
}

// Each button stands just outside its corner, away from the middle of the canvas.
void SierpinskiGameWindow::placeButtons() {
    const double mx = game_.picCanvas.width() / 2.0, my = game_.picCanvas.height() / 2.0;
    for (size_t i = 0; i < 3; ++i) {
        const GamePoint c = game_.Corner[i];
        double dx = c.x - mx, dy = c.y - my;
        const double length = std::hypot(dx, dy);
        if (length > 0) {
            dx /= length;
            dy /= length;
        }
        const int h = game_.ButtonHeight;
        const int x = static_cast<int>(c.x + dx * (h + 4)) - ButtonWidth / 2;
        const int y = static_cast<int>(c.y + dy * (h + 4)) - h / 2;
        cmdCorner_[i]->move(std::clamp(x, 0, std::max(0, canvas_->width() - ButtonWidth)),
                            std::clamp(y, 0, std::max(0, canvas_->height() - h)));
    }
}

void SierpinskiGameWindow::refresh() {
    lbllevel_->setText(QString::fromStdString(game_.lbllevel));
    lblRotation_->setText(QString::fromStdString(game_.lblRotation));
    lblGoal_->setText(QString::fromStdString(game_.lblGoal));
    lblMoves_->setText(QString::fromStdString(game_.lblMoves));
    txtMoves_->setText(QString::fromStdString(game_.TxtMoves));
    QString done = QString::fromStdString(game_.TxtDone);
    done.replace("\r\n", "\n");
    txtDone_->setText(done);
    QFont font = txtDone_->font();
    font.setBold(game_.TxtDoneWon);
    font.setPointSize(game_.TxtDoneWon ? 14 : QWidget::font().pointSize());
    txtDone_->setFont(font);
    txtDone_->setStyleSheet(game_.TxtDoneWon ? "color: red" : "");
    action(itemKey("mnuGameLevel", game_.GameLevel))->setChecked(true);
    action(itemKey("mnuRotations", game_.RotationKind))->setChecked(true);
    action("mnuEditUndo")->setEnabled(game_.UndoEnabled);
    placeButtons();
    canvas_->update();
}

void SierpinskiGameWindow::keyPressEvent(QKeyEvent* event) {
    const Qt::KeyboardModifiers mods = event->modifiers();
    const bool ctrl = mods & Qt::ControlModifier, shift = mods & Qt::ShiftModifier;
    const bool keypad = mods & Qt::KeypadModifier;
    const int key = event->key();
    // Shift with a digit arrives as the digit or as the character above it, by keyboard.
    int digit = key >= Qt::Key_0 && key <= Qt::Key_9 ? key - Qt::Key_0 : -1;
    if (key == Qt::Key_Exclam) digit = 1;
    if (key == Qt::Key_At || key == Qt::Key_QuoteDbl) digit = 2;
    if (key == Qt::Key_NumberSign || key == Qt::Key_section) digit = 3;
    std::function<void()> command;
    if (ctrl && !shift && digit >= 1 && digit <= GameLevels) {
        command = [this, digit] { mnuGameLevel_Click(game_, digit - 1); };
    } else if (shift && !ctrl && !keypad && digit >= 1 && digit <= RotationKinds) {
        command = [this, digit] { mnuRotations_Click(game_, digit - 1); };
    } else if (!ctrl && (key == Qt::Key_Plus || key == Qt::Key_Minus)) {
        const int index = key == Qt::Key_Plus ? 0 : 1;
        command = [this, index] { mnuEditDotSize_Click(game_, index); };
    } else if (!ctrl && (!shift || keypad)) {
        int corner = digit >= 1 && digit <= 3 ? digit : 0;
        if (key == Qt::Key_End) corner = 1;
        if (key == Qt::Key_Home) corner = 2;
        if (key == Qt::Key_Left) corner = 3;
        if (corner) command = [this, corner] { cmdCorner_Click(game_, corner); };
    }
    if (!command) {
        QMainWindow::keyPressEvent(event);
        return;
    }
    act(command);
    event->accept();
}

}  // namespace quillane
