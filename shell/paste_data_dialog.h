#pragma once
// frmPasteData: places the floating picture by a corner and a size in world units.
#include <QDialog>

#include "core/host.h"
#include "render/floating_picture.h"

class QLineEdit;
class QRadioButton;

namespace quillane {

class PasteDataDialog : public QDialog {
    Q_OBJECT
  public:
    PasteDataDialog(Host& host, PasteArea area, QWidget* parent = nullptr);
    // The boxes as accepted.
    PasteDataText values() const;

  protected:
    void accept() override;

  private:
    void showCorner(int corner);

    Host& host_;
    PasteArea area_;
    QLineEdit* txtX_ = nullptr;
    QLineEdit* txtY_ = nullptr;
    QLineEdit* txtWidth_ = nullptr;
    QLineEdit* txtHeight_ = nullptr;
    QRadioButton* optCorner_[4]{};
};

}  // namespace quillane
