#include "shell/movie_creator_window.h"

#include <QAction>
#include <QActionGroup>
#include <QCloseEvent>
#include <QComboBox>
#include <QFormLayout>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenuBar>
#include <QProgressBar>
#include <QPushButton>

#include "movies/movie_options.h"
#include "shell/movie_dialogs.h"
#include "shell/picture_widget.h"

namespace quillane {

MovieCreatorWindow::MovieCreatorWindow(AppState& s, Host& host,
                                       std::function<void(const QString&, const QString&)> showMovie,
                                       QWidget* parent)
    : QWidget(parent, Qt::Window), s_(s), host_(host), showMovie_(std::move(showMovie)) {
    setObjectName("frmCombinations");
    setWindowTitle(MovieCreatorCaption);
    auto* bar = new QMenuBar(this);
    list1_ = new QListWidget(this);
    list1_->setObjectName("List1");
    list2_ = new QListWidget(this);
    list2_->setObjectName("List2");
    list1_->setMinimumWidth(180);
    list2_->setMinimumWidth(180);
    txtSteps_ = new QLineEdit(QString::fromStdString(mc_.txtSteps), this);
    txtIterations_ = new QLineEdit(QString::fromStdString(mc_.txtIterations), this);
    txtFrame_ = new QLineEdit(this);
    txtFrame_->setReadOnly(true);
    cmbRotate_ = new QComboBox(this);
    lblRotate_ = new QLabel("Rotate function", this);
    lblMsg_ = new QLabel(this);
    pgrMakeMovie_ = new QProgressBar(this);
    pgrMakeMovie_->setVisible(false);
    const char* captions[] = {"Play (P)", "Back (Ctrl-P)", "Frame (F)", "Frame Back (B)"};
    for (int k = 0; k < 4; ++k) {
        play_[k] = new QPushButton(captions[k], this);
        const auto mode = static_cast<MovieMode>(k + 1);
        connect(play_[k], &QPushButton::clicked, this, [this, mode] { play(mode); });
    }
    cmdStop_ = new QPushButton("Pause (S)", this);
    connect(cmdStop_, &QPushButton::clicked, this, [this] { mc_.play.MovieStopped = true; });
    picCanvas_ = new PictureWidget(this);
    picdesign_ = new PictureWidget(this);
    picCanvas_->setSurface(&mc_.picCanvas);
    picdesign_->setSurface(&mc_.picdesign);
    connect(list1_, &QListWidget::currentRowChanged, this, [this] { listClicked(); });
    connect(list2_, &QListWidget::currentRowChanged, this, [this] { listClicked(); });
    connect(cmbRotate_, &QComboBox::currentIndexChanged, this, [this](int k) {
        if (k < 0 || !mc_.MovieExists) return;
        mc_.morph.RotateMap = k;
        DrawMovieFrameInWindow(mc_, s_, 1);
        showPictures();
    });

    auto* controls = new QFormLayout;
    controls->addRow("Initial IFS", list1_);
    controls->addRow("Final IFS", list2_);
    controls->addRow("Number of transitions", txtSteps_);
    controls->addRow("Iterations/frame", txtIterations_);
    controls->addRow("Frame", txtFrame_);
    controls->addRow(lblRotate_, cmbRotate_);
    auto* buttons = new QGridLayout;
    for (int k = 0; k < 4; ++k) buttons->addWidget(play_[k], k / 2, k % 2);
    buttons->addWidget(cmdStop_, 2, 0, 1, 2);
    auto* left = new QVBoxLayout;
    left->addLayout(controls);
    left->addLayout(buttons);
    left->addWidget(lblMsg_);
    left->addWidget(pgrMakeMovie_);
    left->addStretch(1);
    auto* pictures = new QHBoxLayout;
    pictures->addWidget(picCanvas_);
    pictures->addWidget(picdesign_);
    auto* body = new QHBoxLayout;
    body->addLayout(left);
    body->addLayout(pictures, 1);
    auto* layout = new QVBoxLayout(this);
    layout->setMenuBar(bar);
    layout->addLayout(body);
    buildMenus(bar);
    lblRotate_->setVisible(false);
    cmbRotate_->setVisible(false);
    setFocusPolicy(Qt::StrongFocus);
    reload();
}

void MovieCreatorWindow::buildMenus(QMenuBar* bar) {
    QMenu* file = bar->addMenu("&File");
    auto add = [this](QMenu* m, const QString& name, const QString& text, std::function<void()> f) {
        QAction* a = m->addAction(text);
        a->setObjectName(name);
        connect(a, &QAction::triggered, this, std::move(f));
        return a;
    };
    add(file, "mnuFileSaveFrame", "Save &Frame...", [this] { SaveMovieFrame(mc_, host_); });
    add(file, "mnuFileSaveAll", "Save &All Frames...", [this] {
        takeText();
        SaveAllMovieFrames(mc_, s_, host_);
        showPictures();
    });
    add(file, "mnuFileSaveGif", "Save Movie to Animated Gif...", [this] {
        if (const std::string e = MovieSaveError(mc_); !e.empty()) {
            host_.warn(MovieErrorTitle, e);
            return;
        }
        AnimatedGifSizeDialog d(host_, this);
        if (d.exec() == QDialog::Accepted) saveMovie(d.choices());
    });
    add(file, "mnuFileOpenAnimated", "&Open Animated GIF...", [this] {
        FileDialogRequest r;
        r.title = OpenAnimatedTitle;
        r.filters = {{"Animated GIF files (*.gif)", "*.gif"}};
        r.folderKey = "SaveMovie";
        if (const auto f = host_.openFileName(r))
            showMovie_(QString::fromStdString(*f), QString::fromStdString(ViewerCaptionFor(*f)));
    });
    add(file, "mnuFileSaveIFS", "Save Frame as &IFS", [this] { SaveFrameIFS(mc_, s_, host_); });
    add(file, "mnuFileQuit", "&Quit", [this] { close(); });
    QMenu* options = bar->addMenu("&Options");
    auto check = [&](const QString& name, const QString& text, bool on, std::function<void(bool)> f) {
        QAction* a = options->addAction(text);
        a->setObjectName(name);
        a->setCheckable(true);
        a->setChecked(on);
        connect(a, &QAction::toggled, this, std::move(f));
        return a;
    };
    check("mnuOptionsCycle", "&Cycle back to beginning", false,
          [this](bool on) { mc_.play.CycleOn = on ? 1 : 0; });
    check("mnuOptionsAngles", "&Treat all angles positive", false, [this](bool on) {
        mc_.morph.AnglesPositive = on;
        RebuildForms(mc_.morph);
    });
    check("mnuOptionsShowDesigns", "Show &Designs", true, [this](bool on) { mc_.ShowDesigns = on; });
    options->addSeparator();
    auto* methods = new QActionGroup(this);
    QAction* m0 = check("mnuOptionsMethod(0)", "Average the matrices", false, [this](bool on) {
        if (on) mc_.morph.Method = MorphMethod::AverageMatrices;
    });
    QAction* m1 = check("mnuOptionsMethod(1)", "Average scalings/rotations", true, [this](bool on) {
        if (on) mc_.morph.Method = MorphMethod::AverageScalings;
    });
    methods->addAction(m0);
    methods->addAction(m1);
    options->addSeparator();
    auto* dirs = new QActionGroup(this);
    dirs->addAction(check("mnuOptionsRotDir(0)", "Counterclockwise", true, [this](bool on) {
        if (on) mc_.morph.RotDir = 1;
    }));
    dirs->addAction(check("mnuOptionsRotDir(1)", "Clockwise", false, [this](bool on) {
        if (on) mc_.morph.RotDir = -1;
    }));
}

QAction* MovieCreatorWindow::menuItem(const QString& name) const {
    return findChild<QAction*>(name);
}

void MovieCreatorWindow::reload() {
    const QSignalBlocker b1(list1_), b2(list2_);
    list1_->clear();
    list2_->clear();
    for (const std::string& name : MovieListNames(s_.wb)) {
        list1_->addItem(QString::fromStdString(name));
        list2_->addItem(QString::fromStdString(name));
    }
    mc_ = MovieCreator{};
    mc_.txtSteps = txtSteps_->text().toStdString();
    mc_.txtIterations = txtIterations_->text().toStdString();
    mc_.FrameShown = [this] { showPictures(); };
    // Blank pictures hold the place of the frame and its design until a movie is chosen.
    mc_.picCanvas.resize(mc_.SizeDim, mc_.SizeDim);
    mc_.picdesign.resize(mc_.SizeDim, mc_.SizeDim);
    lblRotate_->setVisible(false);
    cmbRotate_->setVisible(false);
    showPictures();
}

void MovieCreatorWindow::takeText() {
    mc_.txtSteps = txtSteps_->text().toStdString();
    mc_.txtIterations = txtIterations_->text().toStdString();
}

void MovieCreatorWindow::listClicked() {
    mc_.List1 = list1_->currentRow();
    mc_.List2 = list2_->currentRow();
    takeText();
    MovieListClick(mc_, s_, host_);
    const bool same = mc_.MovieExists && mc_.List1 == mc_.List2;
    lblRotate_->setVisible(same);
    cmbRotate_->setVisible(same);
    if (same) {
        const QSignalBlocker b(cmbRotate_);
        cmbRotate_->clear();
        for (int k = 1; k <= mc_.morph.MovieMaps; ++k) cmbRotate_->addItem(QString::number(k));
        cmbRotate_->setCurrentIndex(0);
        mc_.morph.RotateMap = 0;
    }
    showPictures();
}

void MovieCreatorWindow::showPictures() {
    txtFrame_->setText(QString::fromStdString(mc_.txtFrame));
    lblMsg_->setText(QString::fromStdString(mc_.lblMsg));
    pgrMakeMovie_->setVisible(mc_.pgrMakeMovie > 0);
    pgrMakeMovie_->setValue(mc_.pgrMakeMovie);
    picdesign_->setVisible(mc_.ShowDesigns);
    picCanvas_->setSurface(&mc_.picCanvas);
    picdesign_->setSurface(&mc_.picdesign);
    picCanvas_->repaint();
    picdesign_->repaint();
}

void MovieCreatorWindow::play(MovieMode mode) {
    takeText();
    // Each frame is shown as it is drawn: the play loop yields after each one.
    PlayMovie(mc_, s_, host_, mode);
    showPictures();
}

void MovieCreatorWindow::saveMovie(const AnimatedGifChoices& c) {
    takeText();
    const auto file = CreateAnimatedGif(mc_, s_, host_, c);
    showPictures();
    if (file) showMovie_(QString::fromStdString(*file), QString::fromStdString(ViewerCaptionFor(*file)));
}

void MovieCreatorWindow::keyPressEvent(QKeyEvent* event) {
    const bool ctrl = event->modifiers() & Qt::ControlModifier;
    switch (event->key()) {
        case Qt::Key_P:
            play(ctrl ? MovieMode::Backward : MovieMode::Forward);
            break;
        case Qt::Key_S:
            mc_.play.MovieStopped = true;
            break;
        case Qt::Key_F:
            play(MovieMode::StepForward);
            break;
        case Qt::Key_B:
            play(MovieMode::StepBackward);
            break;
        default:
            QWidget::keyPressEvent(event);
    }
}

void MovieCreatorWindow::closeEvent(QCloseEvent* event) {
    // Unloading stops the play.
    mc_.play.MovieStopped = true;
    QWidget::closeEvent(event);
}

}  // namespace quillane
