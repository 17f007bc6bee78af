#include "shell/symmetric_window.h"

#include <QButtonGroup>
#include <QComboBox>
#include <QFormLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

namespace quillane {
namespace {

QLineEdit* box(QWidget* parent, const char* name, const char* text) {
    auto* edit = new QLineEdit(text, parent);
    edit->setObjectName(name);
    edit->setMaximumWidth(90);
    return edit;
}

}  // namespace

SymmetricWindow::SymmetricWindow(MainWindow& frame)
    : GeneratorWindow(frame, SymmetricFractalsExample, SymmetricCaption) {
    auto* layout = new QVBoxLayout(body());

    auto* orderRow = new QHBoxLayout;
    orderRow->addWidget(new QLabel("n =", body()));
    cmbN_ = new QComboBox(body());
    cmbN_->setObjectName("cmbN");
    for (int n = MinSymmetryOrder; n <= MaxSymmetryOrder; ++n) cmbN_->addItem(QString::number(n));
    cmbN_->setCurrentIndex(0);
    orderRow->addWidget(cmbN_);
    optGroup_[0] = new QRadioButton("Dihedral group", body());
    optGroup_[1] = new QRadioButton("Cyclic group", body());
    optGroup_[0]->setObjectName("optGroup(0)");
    optGroup_[1]->setObjectName("optGroup(1)");
    // The two choices are separate groups of buttons on one parent.
    auto* groups = new QButtonGroup(this);
    groups->addButton(optGroup_[0]);
    groups->addButton(optGroup_[1]);
    optGroup_[0]->setChecked(true);
    orderRow->addWidget(optGroup_[0]);
    orderRow->addWidget(optGroup_[1]);
    layout->addLayout(orderRow);

    optBase_[0] = new QRadioButton("Use Base Affine Transformation", body());
    optBase_[1] = new QRadioButton("Use IFS from Fractals List", body());
    optBase_[0]->setObjectName("optBase(0)");
    optBase_[1]->setObjectName("optBase(1)");
    auto* bases = new QButtonGroup(this);
    bases->addButton(optBase_[0]);
    bases->addButton(optBase_[1]);
    optBase_[0]->setChecked(true);
    layout->addWidget(optBase_[0]);

    frmBase_ = new QGroupBox("Base Affine Transformation", body());
    frmBase_->setObjectName("frmBase");
    auto* grid = new QGridLayout(frmBase_);
    const SymmetricForm defaults;
    const char* names[4] = {"txtMatrix(1)", "txtMatrix(2)", "txtMatrix(3)", "txtMatrix(4)"};
    const char* labels[4] = {"a", "b", "c", "d"};
    for (int k = 0; k < 4; ++k) {
        txtMatrix_[static_cast<size_t>(k)] =
            box(frmBase_, names[k], defaults.txtMatrix[static_cast<size_t>(k)].c_str());
        grid->addWidget(new QLabel(labels[k], frmBase_), k / 2, (k % 2) * 2);
        grid->addWidget(txtMatrix_[static_cast<size_t>(k)], k / 2, (k % 2) * 2 + 1);
    }
    txtE_ = box(frmBase_, "txtE", defaults.txtE.c_str());
    txtF_ = box(frmBase_, "txtF", defaults.txtF.c_str());
    grid->addWidget(new QLabel("e", frmBase_), 0, 4);
    grid->addWidget(txtE_, 0, 5);
    grid->addWidget(new QLabel("f", frmBase_), 1, 4);
    grid->addWidget(txtF_, 1, 5);
    layout->addWidget(frmBase_);

    layout->addWidget(optBase_[1]);
    frmList_ = new QGroupBox("IFS from Fractals List", body());
    frmList_->setObjectName("frmList");
    auto* listRow = new QHBoxLayout(frmList_);
    cmbIFSList_ = new QComboBox(frmList_);
    cmbIFSList_->setObjectName("cmbIFSList");
    cmbIFSList_->setMinimumWidth(200);
    listRow->addWidget(cmbIFSList_);
    auto* reset = new QPushButton("Refresh List", frmList_);
    reset->setObjectName("cmdReset");
    listRow->addWidget(reset);
    layout->addWidget(frmList_);

    auto* createButton = new QPushButton("Create IFS", body());
    createButton->setObjectName("cmdCreate");
    layout->addWidget(createButton);

    connect(optBase_[0], &QRadioButton::toggled, this, [this] { showBase(); });
    connect(reset, &QPushButton::clicked, this, [this] { makeFractalList(); });
    connect(createButton, &QPushButton::clicked, this, [this] { create(); });
    makeFractalList();
    showBase();
}

void SymmetricWindow::opened() {
    makeFractalList();
}

void SymmetricWindow::showBase() {
    frmBase_->setVisible(optBase_[0]->isChecked());
    frmList_->setVisible(optBase_[1]->isChecked());
}

void SymmetricWindow::makeFractalList() {
    cmbIFSList_->clear();
    for (const std::string& name : MakeFractalList(state().wb))
        cmbIFSList_->addItem(QString::fromStdString(name));
    if (cmbIFSList_->count() > 0) cmbIFSList_->setCurrentIndex(0);
}

SymmetricForm SymmetricWindow::form() const {
    SymmetricForm f;
    f.n = cmbN_->currentIndex() + MinSymmetryOrder;
    f.group = optGroup_[1]->isChecked() ? SymmetryGroup::Cyclic : SymmetryGroup::Dihedral;
    f.useList = optBase_[1]->isChecked();
    for (size_t k = 0; k < 4; ++k) f.txtMatrix[k] = txtMatrix_[k]->text().toStdString();
    f.txtE = txtE_->text().toStdString();
    f.txtF = txtF_->text().toStdString();
    f.cmbIFSList = cmbIFSList_->currentIndex();
    return f;
}

void SymmetricWindow::create() {
    const SymmetricFocus focus = SymmetricCreate(state(), host(), form());
    switch (focus) {
        case SymmetricFocus::None:
            built();
            return;
        case SymmetricFocus::Order:
            cmbN_->setFocus();
            return;
        case SymmetricFocus::E:
            txtE_->setFocus();
            return;
        case SymmetricFocus::F:
            txtF_->setFocus();
            return;
        default: {
            const int k = static_cast<int>(focus) - static_cast<int>(SymmetricFocus::MatrixA);
            txtMatrix_[static_cast<size_t>(k)]->setFocus();
        }
    }
}

}  // namespace quillane
