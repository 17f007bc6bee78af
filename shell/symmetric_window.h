#pragma once
// frmSymmetric: the order, the group and the base (one map or a list entry) of a symmetric fractal.
#include <array>

#include "app/symmetric_commands.h"
#include "shell/generator_window.h"

class QComboBox;
class QGroupBox;
class QLineEdit;
class QRadioButton;

namespace quillane {

class SymmetricWindow : public GeneratorWindow {
    Q_OBJECT
  public:
    explicit SymmetricWindow(MainWindow& frame);
    void opened() override;
    // cmdCreate; MakeFractalList (cmdReset).
    void create();
    void makeFractalList();

  private:
    SymmetricForm form() const;
    void showBase();

    QComboBox* cmbN_ = nullptr;
    std::array<QRadioButton*, 2> optGroup_{};
    std::array<QRadioButton*, 2> optBase_{};
    QGroupBox* frmBase_ = nullptr;
    QGroupBox* frmList_ = nullptr;
    std::array<QLineEdit*, 4> txtMatrix_{};
    QLineEdit* txtE_ = nullptr;
    QLineEdit* txtF_ = nullptr;
    QComboBox* cmbIFSList_ = nullptr;
};

}  // namespace quillane
