#include "shell/image_size_dialog.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QVBoxLayout>

#include "app/fractal_view.h"

namespace quillane {

ImageSizeDialog::ImageSizeDialog(Host& host, int currentPixels, double pixelsPerInch, QWidget* parent)
    : QDialog(parent), host_(host), pixelsPerInch_(pixelsPerInch) {
    setObjectName("frmImageSize");
    setWindowTitle("Set Image Size");
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(new QLabel("Side of the fractal image:", this));
    txtSize_ = new QLineEdit(QString::number(currentPixels), this);
    txtSize_->setObjectName("txtSize");
    txtSize_->selectAll();
    layout->addWidget(txtSize_);
    const char* names[3] = {"optInches", "optPixels", "optCm"};
    for (int u = 0; u < 3; ++u) {
        options_[u] =
            new QRadioButton(QString::fromStdString(ImageSizeOptionCaption(u, pixelsPerInch)), this);
        options_[u]->setObjectName(names[u]);
        layout->addWidget(options_[u]);
    }
    options_[1]->setChecked(true);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    connect(buttons, &QDialogButtonBox::accepted, this, &ImageSizeDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &ImageSizeDialog::reject);
    layout->addWidget(buttons);
}

int ImageSizeDialog::unit() const {
    for (int u = 0; u < 3; ++u)
        if (options_[u]->isChecked()) return u;
    return 1;
}

void ImageSizeDialog::accept() {
    const ImageSizeCheck check = CheckImageSize(txtSize_->text().toStdString(), unit(), pixelsPerInch_);
    if (!check.twips) {
        host_.warn("Error", check.message);
        txtSize_->setFocus();
        return;
    }
    twips_ = *check.twips;
    QDialog::accept();
}

}  // namespace quillane
