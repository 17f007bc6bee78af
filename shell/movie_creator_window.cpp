#include "shell/movie_creator_window.h"

#include <QAction>
#include <QActionGroup>
#include <QCloseEvent>
#include <QComboBox>
#include <QDialog>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QFrame>
#include <QGridLayout>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenuBar>
#include <QProgressBar>
#include <QPushButton>
#include <QScreen>

#include "app/movie_view.h"
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
    // Each picture stands in a box that turns green while it is the active view.
    auto boxed = [this](PictureWidget* picture, bool fractal) {
        auto* box = new QFrame(this);
        auto* inner = new QVBoxLayout(box);
        inner->setContentsMargins(3, 3, 3, 3);
        inner->addWidget(picture);
        connect(picture, &PictureWidget::mousePressed, this, [this, fractal] {
            SetActiveMovieView(mc_, fractal);
            markActiveView();
        });
        return box;
    };
    canvasBox_ = boxed(picCanvas_, true);
    designBox_ = boxed(picdesign_, false);
    auto* lblgreenbox = new QLabel(GreenBoxText, this);
    lblgreenbox->setObjectName("lblgreenbox");
    lblgreenbox->setWordWrap(true);
    left->addWidget(lblgreenbox);
    auto* pictures = new QHBoxLayout;
    pictures->addWidget(canvasBox_);
    pictures->addWidget(designBox_);
    auto* body = new QHBoxLayout;
    body->addLayout(left);
    body->addLayout(pictures, 1);
    auto* layout = new QVBoxLayout(this);
    layout->setMenuBar(bar);
    layout->addLayout(body);
    buildMenus(bar);
    buildViewMenus(bar);
    markActiveView();
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
    options->setObjectName("mnuOptions");
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

void MovieCreatorWindow::buildViewMenus(QMenuBar* bar) {
    auto add = [this](QMenu* m, const QString& name, const QString& text, std::function<void()> f) {
        QAction* a = m->addAction(text);
        a->setObjectName(name);
        connect(a, &QAction::triggered, this, [this, f = std::move(f)] {
            takeText();
            f();
            showPictures();
        });
        return a;
    };
    QMenu* view = bar->addMenu("&View");
    add(view, "mnuViewZoom(0)", "Zoom &In\tPage Up", [this] { mnuViewZoom_Click(mc_, s_, 0); });
    add(view, "mnuViewZoom(1)", "Zoom &Out\tPage Down", [this] { mnuViewZoom_Click(mc_, s_, 1); });
    view->addSeparator();
    const char* shifts[] = {"Shift &Left\tLeft", "Shift &Right\tRight", "Shift &Up\tUp", "Shift &Down\tDown"};
    for (int dir = 0; dir < 4; ++dir)
        add(view, QString("mnuShiftDir(%1)").arg(dir), shifts[dir],
            [this, dir] { mnuShiftDir_Click(mc_, s_, dir); });
    view->addSeparator();
    add(view, "mnuViewRestore", "&Restore View", [this] { mnuViewRestore_Click(mc_, s_); });

    QMenu* size = bar->addMenu("&Size");
    const QScreen* screen = QGuiApplication::primaryScreen();
    const std::array<int, 3> sizes = MovieSizeChoices(screen ? screen->availableGeometry().height() : 768);
    for (int k = 0; k < 3; ++k)
        add(size, QString("mnuSizeDim(%1)").arg(k), QString::fromStdString(MovieSizeCaption(k, sizes[k])),
            [this, px = sizes[k]] { SetMovieSize(mc_, s_, px); });
    add(size, "mnuSizeDim(3)", "&Other Size...", [this] {
        QDialog d(this);
        d.setObjectName("frmMovieSize");
        d.setWindowTitle(MovieSizeTitle);
        auto* text = new QLineEdit(QString::number(mc_.SizeDim), &d);
        text->setObjectName("txtSize");
        auto* form = new QFormLayout(&d);
        form->addRow(MovieSizeLabel, text);
        form->addRow(new QLabel(MovieSizeLimit, &d));
        auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, &d);
        form->addRow(buttons);
        std::optional<int> chosen;
        connect(buttons, &QDialogButtonBox::accepted, &d, [&] {
            chosen = MovieSizeFromText(text->text().toStdString(), host_);
            if (chosen) d.accept();
        });
        connect(buttons, &QDialogButtonBox::rejected, &d, &QDialog::reject);
        if (d.exec() == QDialog::Accepted && chosen) SetMovieSize(mc_, s_, *chosen);
    });

    QMenu* options = bar->findChild<QMenu*>("mnuOptions");
    if (!options) return;
    QAction* axes = options->addAction("Show &Axes");
    axes->setObjectName("mnuOptionsAxes");
    axes->setCheckable(true);
    connect(axes, &QAction::toggled, this, [this](bool on) {
        mnuOptionsAxes_Click(mc_, s_, on);
        showPictures();
    });
}

void MovieCreatorWindow::markActiveView() {
    const QString on = "QFrame { border: 2px solid #00c000; }",
                  off = "QFrame { border: 2px solid transparent; }";
    canvasBox_->setStyleSheet(mc_.ActiveViewFractal ? on : off);
    designBox_->setStyleSheet(mc_.ActiveViewFractal ? off : on);
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
    designBox_->setVisible(mc_.ShowDesigns);
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
        case Qt::Key_PageUp:
            mnuViewZoom_Click(mc_, s_, 0);
            showPictures();
            break;
        case Qt::Key_PageDown:
            mnuViewZoom_Click(mc_, s_, 1);
            showPictures();
            break;
        case Qt::Key_Left:
        case Qt::Key_Right:
        case Qt::Key_Up:
        case Qt::Key_Down: {
            const int dir = event->key() == Qt::Key_Left    ? 0
                            : event->key() == Qt::Key_Right ? 1
                            : event->key() == Qt::Key_Up    ? 2
                                                            : 3;
            mnuShiftDir_Click(mc_, s_, dir);
            showPictures();
            break;
        }
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
