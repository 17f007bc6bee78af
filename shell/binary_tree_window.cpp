#include "shell/binary_tree_window.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPixmap>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

#include "app/deterministic_commands.h"
#include "core/numbers.h"
#include "shell/main_window.h"
#include "shell/surface_image.h"

namespace quillane {
namespace {

constexpr const char* Instructions =
    "Type the branching angle in degrees and the scaling ratio of the branches, or press R for the "
    "ratio at which the branches just touch. Then press Create IFS.";

QLineEdit* box(QWidget* parent, const char* name, const std::string& text) {
    auto* edit = new QLineEdit(QString::fromStdString(text), parent);
    edit->setObjectName(name);
    edit->setMaximumWidth(90);
    return edit;
}

QLabel* label(QWidget* parent, const char* name, const char* text) {
    auto* l = new QLabel(text, parent);
    l->setObjectName(name);
    return l;
}

// A small tree of the default angle, drawn by the same recursion as the fractal window's.
QPixmap treePicture() {
    RasterSurface pic(90, 90, White);
    pic.setScale(-1.3, 2.5, 1.3, -0.1);
    const IFSEntry tree = SymmetricBinaryTreeIFS(50, 0.65f, TreeMethod::Deterministic, "", "");
    TreePainter paint;
    paint.picfractal = &pic;
    paint.colourOf = [](int depth, int) { return depth > 3 ? RGB(110, 70, 20) : RGB(20, 140, 40); };
    DrawBinaryTree(BranchesOf(tree), paint, 7, 0, 0, 1, Pi / 2, 2);
    return QPixmap::fromImage(ImageOfSurface(pic));
}

}  // namespace

BinaryTreeWindow::BinaryTreeWindow(MainWindow& frame, std::shared_ptr<BinaryTreeRecursion> recursion)
    : GeneratorWindow(frame, BinaryTreesExample, BinaryTreeCaption), recursion_(std::move(recursion)) {
    const BinaryTreeForm defaults;
    auto* layout = new QVBoxLayout(body());
    auto* picInst = label(body(), "picInst", Instructions);
    picInst->setWordWrap(true);
    picInst->setFocusPolicy(Qt::StrongFocus);
    picInst->setFrameShape(QFrame::StyledPanel);
    layout->addWidget(picInst);

    auto* top = new QHBoxLayout;
    auto* grid = new QGridLayout;
    lblAngleL_ = label(body(), "lblAngleL", "Left");
    lblAngleR_ = label(body(), "lblAngleR", "Right");
    grid->addWidget(new QLabel("Branching angle (degrees)", body()), 1, 0);
    grid->addWidget(new QLabel("Scaling ratio", body()), 2, 0);
    grid->addWidget(lblAngleL_, 0, 1);
    grid->addWidget(lblAngleR_, 0, 3);
    txtAngle_ = box(body(), "txtAngle", defaults.txtAngle);
    txtRatio_ = box(body(), "txtRatio", defaults.txtRatio);
    txtAngleRight_ = box(body(), "txtAngleRight", defaults.txtAngleRight);
    txtRatioRight_ = box(body(), "txtRatioRight", defaults.txtRatioRight);
    lblRatioL_ = label(body(), "lblRatioL", "L");
    lblRatioR_ = label(body(), "lblRatioR", "R");
    grid->addWidget(txtAngle_, 1, 1);
    grid->addWidget(txtRatio_, 2, 1);
    grid->addWidget(lblRatioL_, 2, 2);
    grid->addWidget(txtAngleRight_, 1, 3);
    grid->addWidget(txtRatioRight_, 2, 3);
    grid->addWidget(lblRatioR_, 2, 4);
    auto* cmdSelf = new QPushButton("R", body());
    cmdSelf->setObjectName("cmdSelf");
    cmdSelf->setToolTip("The ratio at which the branches just touch");
    cmdSelf->setMaximumWidth(30);
    grid->addWidget(cmdSelf, 2, 5);
    top->addLayout(grid);
    Picture2_ = label(body(), "Picture2", "");
    Picture2_->setPixmap(treePicture());
    top->addWidget(Picture2_);
    layout->addLayout(top);

    chkNonSym_ = new QCheckBox("Do non-symmetric tree", body());
    chkNonSym_->setObjectName("chkNonSym");
    layout->addWidget(chkNonSym_);

    auto* method = new QGroupBox("IFS method", body());
    auto* methodRow = new QHBoxLayout(method);
    optDet_ = new QRadioButton("Deterministic", method);
    optDet_->setObjectName("optDet");
    optRandom_ = new QRadioButton("Random", method);
    optRandom_->setObjectName("optRandom");
    auto* methods = new QButtonGroup(this);
    methods->addButton(optDet_);
    methods->addButton(optRandom_);
    optDet_->setChecked(true);
    chkTips_ = new QCheckBox("Branch tips only", method);
    chkTips_->setObjectName("chkTips");
    lblBranchTips_ = label(method, "lblBranchTips", BranchTipsLabel);
    methodRow->addWidget(optDet_);
    methodRow->addWidget(optRandom_);
    methodRow->addWidget(chkTips_);
    methodRow->addWidget(lblBranchTips_);
    layout->addWidget(method);

    chkRecursion_ = new QCheckBox("Use recursion", body());
    chkRecursion_->setObjectName("chkRecursion");
    layout->addWidget(chkRecursion_);
    auto* cmdSetup = new QPushButton("Create IFS", body());
    cmdSetup->setObjectName("cmdSetup");
    layout->addWidget(cmdSetup);

    connect(chkNonSym_, &QCheckBox::toggled, this, [this] { showMode(); });
    connect(chkTips_, &QCheckBox::toggled, this, [this](bool on) {
        if (on) optRandom_->setChecked(true);
    });
    connect(optDet_, &QRadioButton::toggled, this, [this](bool on) {
        if (on) chkTips_->setChecked(false);
    });
    connect(chkRecursion_, &QCheckBox::toggled, this, [this](bool on) {
        BinaryTreeRecursionTicked(*recursion_, on);
        if (!on) state().wb.RecursionOff[BinaryTreeSlot] = false;
    });
    connect(cmdSelf, &QPushButton::clicked, this, [this] { selfContacting(); });
    connect(cmdSetup, &QPushButton::clicked, this, [this] { create(); });
    // Cancel takes the tree away, and the recursion that would draw it with it.
    connect(cancelButton(), &QPushButton::clicked, this, [this] { chkRecursion_->setChecked(false); });
    BinaryTreeRecursionTicked(*recursion_, chkRecursion_->isChecked());
    showMode();
}

void BinaryTreeWindow::showMode() {
    const bool nonSym = chkNonSym_->isChecked();
    for (QWidget* w : {static_cast<QWidget*>(txtAngleRight_), static_cast<QWidget*>(txtRatioRight_),
                       static_cast<QWidget*>(lblAngleL_), static_cast<QWidget*>(lblAngleR_),
                       static_cast<QWidget*>(lblRatioL_), static_cast<QWidget*>(lblRatioR_),
                       static_cast<QWidget*>(lblBranchTips_)})
        w->setVisible(nonSym);
    chkTips_->setVisible(!nonSym);
    Picture2_->setVisible(!nonSym);
}

BinaryTreeForm BinaryTreeWindow::form() const {
    BinaryTreeForm f;
    f.txtAngle = txtAngle_->text().toStdString();
    f.txtRatio = txtRatio_->text().toStdString();
    f.txtAngleRight = txtAngleRight_->text().toStdString();
    f.txtRatioRight = txtRatioRight_->text().toStdString();
    f.chkNonSym = chkNonSym_->isChecked();
    f.optDet = optDet_->isChecked();
    f.chkTips = chkTips_->isChecked();
    return f;
}

void BinaryTreeWindow::focus(TreeFocus f) {
    switch (f) {
        case TreeFocus::Angle:
            txtAngle_->setFocus();
            return;
        case TreeFocus::Ratio:
            txtRatio_->setFocus();
            return;
        case TreeFocus::AngleRight:
            txtAngleRight_->setFocus();
            return;
        case TreeFocus::RatioRight:
            txtRatioRight_->setFocus();
            return;
        case TreeFocus::None:
            findChild<QLabel*>("picInst")->setFocus();
            return;
    }
}

void BinaryTreeWindow::selfContacting() {
    BinaryTreeForm f = form();
    const TreeFocus result = BinaryTreeSelfContacting(f, host());
    if (result == TreeFocus::None) txtRatio_->setText(QString::fromStdString(f.txtRatio));
    focus(result == TreeFocus::None ? TreeFocus::Ratio : result);
}

void BinaryTreeWindow::create() {
    const TreeFocus result = BinaryTreeSetup(state(), host(), form());
    if (result == TreeFocus::None) built();
    focus(result);
}

}  // namespace quillane
