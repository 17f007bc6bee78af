#pragma once
// frmPrint: what File > Print prints, and how the pictures lie on the paper.
#include <QDialog>
#include <array>
#include <optional>

#include "app/print_commands.h"

class QCheckBox;
class QLabel;
class QPushButton;
class QRadioButton;

namespace quillane {

class PrintDialog : public QDialog {
    Q_OBJECT
  public:
    // `chaosGame` offers the chaos game rules among the text parts.
    PrintDialog(const PrintRequest& last, bool chaosGame, QWidget* parent = nullptr);
    PrintRequest request() const;

    QCheckBox* chkwhat(int i) const { return chkwhat_[static_cast<size_t>(i)]; }
    QCheckBox* chkText(int i) const { return chkText_[static_cast<size_t>(i)]; }
    QCheckBox* chkOptions() const { return chkOptions_; }
    QRadioButton* optImages(int i) const { return optImages_[static_cast<size_t>(i)]; }
    QRadioButton* optOrient(int i) const { return optOrient_[static_cast<size_t>(i)]; }
    QPushButton* cmdUp() const { return cmdUp_; }
    QPushButton* cmdDown() const { return cmdDown_; }
    QPushButton* cmdOk() const { return cmdOk_; }
    QLabel* lblSize() const { return lblSize_; }

  private:
    void showSize();
    std::array<QCheckBox*, 3> chkwhat_{}, chkText_{};
    QCheckBox* chkOptions_ = nullptr;
    std::array<QRadioButton*, 2> optImages_{}, optOrient_{};
    QPushButton *cmdUp_ = nullptr, *cmdDown_ = nullptr, *cmdOk_ = nullptr;
    QLabel* lblSize_ = nullptr;
    double inches_ = 3;
};

// Opens the dialog; nothing on Cancel.
std::optional<PrintRequest> AskPrintRequest(const PrintRequest& last, bool chaosGame, QWidget* parent);

}  // namespace quillane
