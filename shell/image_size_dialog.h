#pragma once
// frmImageSize: a fixed side for the fractal picture, in inches, pixels or centimetres.
#include <QDialog>

#include "core/host.h"

class QLineEdit;
class QRadioButton;

namespace quillane {

class ImageSizeDialog : public QDialog {
    Q_OBJECT
  public:
    ImageSizeDialog(Host& host, int currentPixels, double pixelsPerInch, QWidget* parent = nullptr);
    // The side in twips after OK.
    int twips() const { return twips_; }
    QLineEdit* sizeBox() const { return txtSize_; }
    QRadioButton* option(int unit) const { return options_[unit]; }

    void accept() override;

  private:
    int unit() const;
    Host& host_;
    double pixelsPerInch_;
    QLineEdit* txtSize_ = nullptr;
    QRadioButton* options_[3] = {};
    int twips_ = 0;
};

}  // namespace quillane
