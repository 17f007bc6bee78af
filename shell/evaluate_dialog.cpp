#include "shell/evaluate_dialog.h"

#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace quillane {

namespace {
QPushButton* button(const char* name, const QString& caption, QWidget* parent) {
    auto* b = new QPushButton(caption, parent);
    b->setObjectName(name);
    // Enter in the box belongs to OK alone.
    b->setAutoDefault(false);
    return b;
}
}  // namespace

EvaluateDialog::EvaluateDialog(Host& host, const QString& text, QWidget* parent)
    : QDialog(parent), host_(host) {
    setObjectName("frmEvaluate");
    setWindowTitle(EvaluateCaption);
    auto* layout = new QVBoxLayout(this);
    txtExpression_ = new QLineEdit(text, this);
    txtExpression_->setObjectName("txtExpression");
    txtExpression_->setMinimumWidth(240);
    txtExpression_->selectAll();
    layout->addWidget(txtExpression_);

    auto* row = new QHBoxLayout;
    cmdOk_ = button("cmdOk", "OK", this);
    cmdOk_->setDefault(true);
    cmdCancel_ = button("cmdCancel", "Cancel", this);
    cmdHelp_ = button("cmdHelp", "Help", this);
    row->addStretch();
    row->addWidget(cmdOk_);
    row->addWidget(cmdCancel_);
    row->addWidget(cmdHelp_);
    layout->addLayout(row);

    connect(cmdOk_, &QPushButton::clicked, this, &EvaluateDialog::accept);
    connect(cmdCancel_, &QPushButton::clicked, this, &EvaluateDialog::reject);
    connect(cmdHelp_, &QPushButton::clicked, this, [this] { emit helpRequested(EvaluateHelpTopic); });
    txtExpression_->setFocus();
}

void EvaluateDialog::accept() {
    if (!EvaluateOkClick(txtExpression_->text().toStdString(), outcome_, host_)) {
        txtExpression_->setFocus();
        txtExpression_->selectAll();
        return;  // the window stays open
    }
    QDialog::accept();
}

void EvaluateDialog::reject() {
    EvaluateCancelClick(outcome_);
    QDialog::reject();
}

}  // namespace quillane
