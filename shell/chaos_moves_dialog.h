#pragma once
// The Qt face of frmScaleCG, "Chaos Game Moves". The controls show wb.ScaleCG; every change goes to
// design/chaos_moves and then `changed` redraws the design.
#include <QDialog>
#include <array>
#include <functional>

#include "core/host.h"
#include "core/workbench.h"

class QCheckBox;
class QGridLayout;
class QComboBox;
class QLabel;
class QLineEdit;
class QSlider;

namespace quillane {

class ChaosMovesDialog : public QDialog {
    Q_OBJECT
  public:
    ChaosMovesDialog(Workbench& wb, Host& host, std::function<void()> changed, QWidget* parent = nullptr);
    // The controls from wb.ScaleCG, without reactions.
    void showSettings();

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

  private:
    void after();
    void buildSteps(QGridLayout* grid);
    void buildSliders(QGridLayout* grid);

    Workbench& wb_;
    Host& host_;
    std::function<void()> changed_;
    bool quiet_ = false;
    bool finished_ = false;
    QComboBox* cmbFP_ = nullptr;
    std::array<QCheckBox*, 5> chkStep_{};
    std::array<QLabel*, 5> picStep_{};
    QSlider* sliScale_ = nullptr;
    QSlider* sliRotate_ = nullptr;
    QLineEdit* txtS_ = nullptr;
    QLineEdit* txtRotate_ = nullptr;
};

}  // namespace quillane
