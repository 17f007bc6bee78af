#pragma once
// frmHowMany: how many points (or levels) "Draw This Many..." should draw.
#include <QDialog>
#include <optional>

#include "core/host.h"

class QLabel;
class QLineEdit;
class QRadioButton;

namespace quillane {

class HowManyDialog : public QDialog {
    Q_OBJECT
  public:
    // `lastText` is the value entered last time in this mode; `add` the last choice of option.
    HowManyDialog(Host& host, bool randomMode, const QString& lastText, bool add, QWidget* parent = nullptr);
    // The signed count after OK: +n draws n more, -n draws until n are shown.
    int32_t result() const { return result_; }
    QString text() const;
    bool addChosen() const;
    QLineEdit* txtPlay() const { return txtPlay_; }

    void accept() override;

  private:
    Host& host_;
    bool randomMode_;
    QLineEdit* txtPlay_ = nullptr;
    QRadioButton* optDrawUntil_ = nullptr;
    QRadioButton* optDrawAdd_ = nullptr;
    int32_t result_ = 0;
};

}  // namespace quillane
