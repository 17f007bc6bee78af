#include "shell/how_many_dialog.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QRegularExpressionValidator>
#include <QVBoxLayout>

#include "app/fractal_view.h"

namespace quillane {

HowManyDialog::HowManyDialog(Host& host, bool randomMode, const QString& lastText, bool add, QWidget* parent)
    : QDialog(parent), host_(host), randomMode_(randomMode) {
    setObjectName("frmHowMany");
    setWindowTitle("Draw This Many");
    auto* layout = new QVBoxLayout(this);
    auto* title = new QLabel(randomMode ? HowManyRandomTitle : HowManyDeterministicTitle, this);
    title->setObjectName("lblTitle");
    layout->addWidget(title);
    txtPlay_ = new QLineEdit(lastText, this);
    txtPlay_->setObjectName("txtPlay");
    // Digits and the thousands commas only.
    txtPlay_->setValidator(new QRegularExpressionValidator(QRegularExpression("[0-9,]*"), txtPlay_));
    txtPlay_->selectAll();
    layout->addWidget(txtPlay_);
    optDrawUntil_ = new QRadioButton(HowManyDrawUntil, this);
    optDrawUntil_->setObjectName("optDrawUntil");
    optDrawAdd_ = new QRadioButton(HowManyDrawAdd, this);
    optDrawAdd_->setObjectName("optDrawAdd");
    (add ? optDrawAdd_ : optDrawUntil_)->setChecked(true);
    optDrawUntil_->setVisible(randomMode);
    optDrawAdd_->setVisible(randomMode);
    layout->addWidget(optDrawUntil_);
    layout->addWidget(optDrawAdd_);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    connect(buttons, &QDialogButtonBox::accepted, this, &HowManyDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &HowManyDialog::reject);
    layout->addWidget(buttons);
    txtPlay_->setFocus();
}

QString HowManyDialog::text() const {
    return txtPlay_->text();
}
bool HowManyDialog::addChosen() const {
    return optDrawAdd_->isChecked();
}

void HowManyDialog::accept() {
    const HowManyCheck check = CheckHowMany(txtPlay_->text().toStdString(), randomMode_);
    if (!check.value) {
        host_.warn("Error", check.message);
        txtPlay_->setFocus();
        txtPlay_->selectAll();
        return;  // the dialog stays open
    }
    const int32_t n = *check.value;
    result_ = (!randomMode_ || optDrawAdd_->isChecked()) ? n : -n;
    QDialog::accept();
}

}  // namespace quillane
