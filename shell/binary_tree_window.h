#pragma once
// frmBinaryTree: the branching angle and scaling ratio (one pair, or one per side), the IFS method,
// the self-contacting ratio and the recursive drawing of the tree.
#include <memory>

#include "app/binary_tree_commands.h"
#include "shell/generator_window.h"

class QCheckBox;
class QLabel;
class QLineEdit;
class QRadioButton;

namespace quillane {

class BinaryTreeWindow : public GeneratorWindow {
    Q_OBJECT
  public:
    BinaryTreeWindow(MainWindow& frame, std::shared_ptr<BinaryTreeRecursion> recursion);
    BinaryTreeForm form() const;
    // cmdSetup, cmdSelf.
    void create();
    void selfContacting();

  private:
    void showMode();
    void focus(TreeFocus f);

    std::shared_ptr<BinaryTreeRecursion> recursion_;
    QLineEdit* txtAngle_ = nullptr;
    QLineEdit* txtRatio_ = nullptr;
    QLineEdit* txtAngleRight_ = nullptr;
    QLineEdit* txtRatioRight_ = nullptr;
    QLabel* lblAngleL_ = nullptr;
    QLabel* lblAngleR_ = nullptr;
    QLabel* lblRatioL_ = nullptr;
    QLabel* lblRatioR_ = nullptr;
    QLabel* lblBranchTips_ = nullptr;
    QLabel* Picture2_ = nullptr;
    QCheckBox* chkNonSym_ = nullptr;
    QCheckBox* chkTips_ = nullptr;
    QCheckBox* chkRecursion_ = nullptr;
    QRadioButton* optDet_ = nullptr;
    QRadioButton* optRandom_ = nullptr;
};

}  // namespace quillane
