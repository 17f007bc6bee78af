#include "shell/print_dialog.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

namespace quillane {

namespace {

QCheckBox* check(const QString& name, const QString& text, bool on, QWidget* parent) {
    auto* box = new QCheckBox(text, parent);
    box->setObjectName(name);
    box->setChecked(on);
    return box;
}

QRadioButton* option(const QString& name, const QString& text, bool on, QWidget* parent) {
    auto* button = new QRadioButton(text, parent);
    button->setObjectName(name);
    button->setChecked(on);
    return button;
}

}  // namespace

PrintDialog::PrintDialog(const PrintRequest& last, bool chaosGame, QWidget* parent) : QDialog(parent) {
    setObjectName("frmPrint");
    setWindowTitle("Print");
    inches_ = last.sideInches;
    auto* layout = new QVBoxLayout(this);

    auto* what = new QGroupBox("Print", this);
    auto* whatLayout = new QVBoxLayout(what);
    chkwhat_[0] = check("chkwhat(0)", "Fractal window picture", last.fractal, what);
    chkwhat_[1] = check("chkwhat(1)", "Design window picture", last.design, what);
    chkwhat_[2] = check("chkwhat(2)", "The IFS as text", last.text, what);
    for (QCheckBox* c : chkwhat_) whatLayout->addWidget(c);
    layout->addWidget(what);

    auto* text = new QGroupBox("Text", this);
    auto* textLayout = new QVBoxLayout(text);
    chkText_[0] = check("chkText(0)", "Matrix form", last.parts.matrix, text);
    chkText_[1] = check("chkText(1)", "Scale/rotation form", last.parts.rotation, text);
    chkText_[2] = check("chkText(2)", "Chaos game rules", chaosGame && last.parts.chaosGame, text);
    chkText_[2]->setEnabled(chaosGame);
    for (QCheckBox* c : chkText_) textLayout->addWidget(c);
    chkOptions_ = check("chkOptions", "Print the text to a file", last.toFile, text);
    textLayout->addWidget(chkOptions_);
    layout->addWidget(text);

    auto* pictures = new QGroupBox("Pictures", this);
    auto* grid = new QGridLayout(pictures);
    optImages_[0] = option("optImages(0)", "One above the other", !last.sideBySide, pictures);
    optImages_[1] = option("optImages(1)", "Side by side", last.sideBySide, pictures);
    auto* arrangement = new QWidget(pictures);
    auto* arrangementLayout = new QVBoxLayout(arrangement);
    arrangementLayout->setContentsMargins(0, 0, 0, 0);
    for (QRadioButton* b : optImages_) arrangementLayout->addWidget(b);
    auto* orientation = new QWidget(pictures);
    auto* orientationLayout = new QVBoxLayout(orientation);
    orientationLayout->setContentsMargins(0, 0, 0, 0);
    optOrient_[0] = option("optOrient(0)", "Portrait", !last.landscape, orientation);
    optOrient_[1] = option("optOrient(1)", "Landscape", last.landscape, orientation);
    for (QRadioButton* b : optOrient_) orientationLayout->addWidget(b);
    grid->addWidget(arrangement, 0, 0);
    grid->addWidget(orientation, 0, 1);
    auto* size = new QHBoxLayout;
    lblSize_ = new QLabel(pictures);
    lblSize_->setObjectName("lblSize");
    cmdUp_ = new QPushButton("Larger", pictures);
    cmdUp_->setObjectName("cmdUp");
    cmdDown_ = new QPushButton("Smaller", pictures);
    cmdDown_->setObjectName("cmdDown");
    size->addWidget(lblSize_, 1);
    size->addWidget(cmdDown_);
    size->addWidget(cmdUp_);
    grid->addLayout(size, 1, 0, 1, 2);
    layout->addWidget(pictures);
    connect(cmdUp_, &QPushButton::clicked, this, [this] {
        inches_ = PrintSideUp(inches_);
        showSize();
    });
    connect(cmdDown_, &QPushButton::clicked, this, [this] {
        inches_ = PrintSideDown(inches_);
        showSize();
    });
    showSize();

    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    cmdOk_ = buttons->button(QDialogButtonBox::Ok);
    cmdOk_->setObjectName("cmdOk");
    buttons->button(QDialogButtonBox::Cancel)->setObjectName("cmdCancel");
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    layout->addWidget(buttons);
}

void PrintDialog::showSize() {
    lblSize_->setText(QString("Pictures fit a square of %1 inches").arg(inches_, 0, 'f', 1));
    cmdUp_->setEnabled(inches_ < MaxPrintSideInches);
    cmdDown_->setEnabled(inches_ > MinPrintSideInches);
}

PrintRequest PrintDialog::request() const {
    PrintRequest r;
    r.fractal = chkwhat_[0]->isChecked();
    r.design = chkwhat_[1]->isChecked();
    r.text = chkwhat_[2]->isChecked();
    r.parts = {chkText_[0]->isChecked(), chkText_[1]->isChecked(),
               chkText_[2]->isEnabled() && chkText_[2]->isChecked()};
    r.toFile = chkOptions_->isChecked();
    r.sideBySide = optImages_[1]->isChecked();
    r.landscape = optOrient_[1]->isChecked();
    r.sideInches = inches_;
    return r;
}

std::optional<PrintRequest> AskPrintRequest(const PrintRequest& last, bool chaosGame, QWidget* parent) {
    PrintDialog dialog(last, chaosGame, parent);
    if (dialog.exec() != QDialog::Accepted) return std::nullopt;
    return dialog.request();
}

}  // namespace quillane
