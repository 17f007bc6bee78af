#include "shell/paste_data_dialog.h"

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QLineEdit>
#include <QRadioButton>
#include <QVBoxLayout>

namespace quillane {

namespace {
const char* const CornerCaptions[4] = {"Top left", "Top right", "Bottom left", "Bottom right"};
}  // namespace

PasteDataDialog::PasteDataDialog(Host& host, PasteArea area, QWidget* parent)
    : QDialog(parent), host_(host), area_(area) {
    setObjectName("frmPasteData");
    setWindowTitle("Position and Size");
    auto* layout = new QVBoxLayout(this);
    auto* corners = new QGroupBox("Corner", this);
    auto* grid = new QGridLayout(corners);
    for (int k = 0; k < 4; ++k) {
        optCorner_[k] = new QRadioButton(CornerCaptions[k], corners);
        optCorner_[k]->setObjectName(QString("optCorner%1").arg(k));
        grid->addWidget(optCorner_[k], k / 2, k % 2);
        connect(optCorner_[k], &QRadioButton::toggled, this, [this, k](bool on) {
            if (on) showCorner(k);
        });
    }
    layout->addWidget(corners);
    auto* form = new QFormLayout;
    auto box = [this, form](const char* name, const char* label) {
        auto* edit = new QLineEdit(this);
        edit->setObjectName(name);
        form->addRow(label, edit);
        return edit;
    };
    txtX_ = box("txtX", "x");
    txtY_ = box("txtY", "y");
    txtWidth_ = box("txtWidth", "Width");
    txtHeight_ = box("txtHeight", "Height");
    layout->addLayout(form);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    connect(buttons, &QDialogButtonBox::accepted, this, &PasteDataDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &PasteDataDialog::reject);
    layout->addWidget(buttons);
    optCorner_[0]->setChecked(true);
    showCorner(0);
}

void PasteDataDialog::showCorner(int corner) {
    const PasteDataText t = PasteDataFor(area_, corner);
    txtX_->setText(QString::fromStdString(t.txtX));
    txtY_->setText(QString::fromStdString(t.txtY));
    txtWidth_->setText(QString::fromStdString(t.txtWidth));
    txtHeight_->setText(QString::fromStdString(t.txtHeight));
}

PasteDataText PasteDataDialog::values() const {
    PasteDataText t;
    t.txtX = txtX_->text().toStdString();
    t.txtY = txtY_->text().toStdString();
    t.txtWidth = txtWidth_->text().toStdString();
    t.txtHeight = txtHeight_->text().toStdString();
    for (int k = 0; k < 4; ++k)
        if (optCorner_[k]->isChecked()) t.optCorner = k;
    return t;
}

void PasteDataDialog::accept() {
    const std::string message = CheckPasteData(values());
    if (!message.empty()) {
        host_.warn("Error", message);
        return;
    }
    QDialog::accept();
}

}  // namespace quillane
