#pragma once
// frmEvaluate: the Qt face of the expression box. Open it with exec(); after Accepted, value()
// holds the number. Help is asked for by signal, so the frame decides how help is shown.
#include <QDialog>

#include "core/evaluate_window.h"
#include "core/host.h"

class QLineEdit;
class QPushButton;

namespace quillane {

class EvaluateDialog : public QDialog {
    Q_OBJECT
  public:
    // `text` is put into the box, selected, as a starting point.
    explicit EvaluateDialog(Host& host, const QString& text = {}, QWidget* parent = nullptr);

    float value() const { return outcome_.value; }
    // 1 after OK, 2 after Cancel, 0 while open.
    int resultCode() const { return outcome_.Result; }

    QLineEdit* txtExpression() const { return txtExpression_; }
    QPushButton* cmdOk() const { return cmdOk_; }
    QPushButton* cmdCancel() const { return cmdCancel_; }
    QPushButton* cmdHelp() const { return cmdHelp_; }

    void accept() override;
    void reject() override;

  signals:
    void helpRequested(const QString& topic);

  private:
    Host& host_;
    EvaluateOutcome outcome_;
    QLineEdit* txtExpression_ = nullptr;
    QPushButton* cmdOk_ = nullptr;
    QPushButton* cmdCancel_ = nullptr;
    QPushButton* cmdHelp_ = nullptr;
};

}  // namespace quillane
