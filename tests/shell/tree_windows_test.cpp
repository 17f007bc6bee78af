// The two tree generators through their windows: opened from Design > Examples, filled in and built
// by clicks, closed or cancelled.
#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSlider>
#include <QTest>

#include "render/deterministic.h"
#include "shell/binary_tree_window.h"
#include "shell/pythagorean_window.h"
#include "tests/shell/frame_fixture.h"

namespace quillane::testing {
namespace {

class TreeWindows : public FrameTest {
  protected:
    GeneratorWindow* openExample(int index) {
        if (!frame) open();
        item("mnuDesignExample(" + std::to_string(index) + ")")->trigger();
        return OpenGenerator(*frame);
    }
    template <class W>
    W* child(QWidget* w, const char* name) {
        W* c = w->findChild<W*>(name);
        EXPECT_NE(c, nullptr) << name;
        return c;
    }
    void click(QWidget* w, const char* name) {
        QTest::mouseClick(child<QPushButton>(w, name), Qt::LeftButton);
    }
};

TEST_F(TreeWindows, BinaryTreeOpensSymmetricWithItsWindowItem) {
    auto* w = dynamic_cast<BinaryTreeWindow*>(openExample(7));
    ASSERT_NE(w, nullptr);
    EXPECT_EQ(w->windowTitle(), "Symmetric Binary Tree");
    QAction* windowItem = item("mnuWin(9)");
    EXPECT_TRUE(windowItem->isVisible());
    EXPECT_EQ(windowItem->text(), "Symmetric Binary Tree");
    EXPECT_FALSE(child<QLineEdit>(w, "txtAngleRight")->isVisible());
    EXPECT_FALSE(child<QLabel>(w, "lblBranchTips")->isVisible());
    EXPECT_TRUE(child<QCheckBox>(w, "chkTips")->isVisible());
    EXPECT_TRUE(child<QLabel>(w, "Picture2")->isVisible());
    child<QCheckBox>(w, "chkNonSym")->setChecked(true);
    for (const char* name : {"txtAngleRight", "txtRatioRight"})
        EXPECT_TRUE(child<QLineEdit>(w, name)->isVisible());
    for (const char* name : {"lblAngleL", "lblAngleR", "lblRatioL", "lblRatioR", "lblBranchTips"})
        EXPECT_TRUE(child<QLabel>(w, name)->isVisible()) << name;
    EXPECT_EQ(child<QLabel>(w, "lblBranchTips")->text(), "(Branch tips only)");
    EXPECT_FALSE(child<QCheckBox>(w, "chkTips")->isVisible());
    EXPECT_FALSE(child<QLabel>(w, "Picture2")->isVisible());
}

TEST_F(TreeWindows, TickingBranchTipsSelectsRandom) {
    QWidget* w = openExample(7);
    ASSERT_NE(w, nullptr);
    ASSERT_TRUE(child<QRadioButton>(w, "optDet")->isChecked());
    child<QCheckBox>(w, "chkTips")->setChecked(true);
    EXPECT_TRUE(child<QRadioButton>(w, "optRandom")->isChecked());
    child<QRadioButton>(w, "optDet")->setChecked(true);
    EXPECT_FALSE(child<QCheckBox>(w, "chkTips")->isChecked());
}

TEST_F(TreeWindows, TheRButtonWritesTheSelfContactingRatio) {
    QWidget* w = openExample(7);
    ASSERT_NE(w, nullptr);
    child<QLineEdit>(w, "txtAngle")->setText("90");
    click(w, "cmdSelf");
    EXPECT_EQ(child<QLineEdit>(w, "txtRatio")->text(), "0.70711");
    child<QLineEdit>(w, "txtAngle")->clear();
    click(w, "cmdSelf");
    ASSERT_FALSE(host.shown().empty());
    EXPECT_EQ(host.shown().back().text, "Enter a branching angle first");
}

TEST_F(TreeWindows, BinaryTreeCloseKeepsAndCancelRestores) {
    QWidget* w = openExample(7);
    ASSERT_NE(w, nullptr);
    const IFSEntry before = wb().CurrentIFS;
    click(w, "cmdSetup");
    EXPECT_EQ(wb().CurrentIFS.Name, "SBT(60\xC2\xB0, 0.6)");
    EXPECT_EQ(wb().FunctionsCaption, "IFS [SBT(60\xC2\xB0, 0.6)]");
    auto* cancel = dynamic_cast<GeneratorWindow*>(w)->cancelButton();
    QTest::mouseClick(cancel, Qt::LeftButton);
    EXPECT_EQ(wb().CurrentIFS, before);
    EXPECT_FALSE(item("mnuWin(9)")->isVisible());

    w = openExample(7);
    child<QLineEdit>(w, "txtAngle")->setText("100");
    click(w, "cmdSetup");
    QTest::mouseClick(dynamic_cast<GeneratorWindow*>(w)->closeButton(), Qt::LeftButton);
    EXPECT_EQ(wb().CurrentIFS.Name, "SBT(100\xC2\xB0, 0.6)");
    EXPECT_TRUE(item("mnuDesignExample(7)")->isEnabled());
}

TEST_F(TreeWindows, ARefusedRatioKeepsTheIFSAndFocusesTheBox) {
    QWidget* w = openExample(7);
    ASSERT_NE(w, nullptr);
    const IFSEntry before = wb().CurrentIFS;
    child<QLineEdit>(w, "txtRatio")->setText("1");
    click(w, "cmdSetup");
    ASSERT_FALSE(host.shown().empty());
    EXPECT_EQ(host.shown().back().title, "Error");
    EXPECT_EQ(host.shown().back().text, "Scaling ratio must be between 0 and 1");
    EXPECT_EQ(wb().CurrentIFS, before);
}

TEST_F(TreeWindows, UseRecursionDrawsTheTreeInTheDeterministicPass) {
    QWidget* w = openExample(7);
    ASSERT_NE(w, nullptr);
    child<QCheckBox>(w, "chkNonSym")->setChecked(true);
    child<QCheckBox>(w, "chkRecursion")->setChecked(true);
    click(w, "cmdSetup");
    item("mnuDrawType(1)")->trigger();
    AppState& s = frame->state();
    Iterate(s.wb, s.pics, frame->host(), -1);
    EXPECT_EQ(s.pics.picCount, "1 w/Rec");
    // Cancel clears the recursion with the tree.
    QTest::mouseClick(dynamic_cast<GeneratorWindow*>(w)->cancelButton(), Qt::LeftButton);
    EXPECT_FALSE(child<QCheckBox>(w, "chkRecursion")->isChecked());
}

TEST_F(TreeWindows, PythagoreanOpensAtFortyFiveWithItsWindowItem) {
    auto* w = dynamic_cast<PythagoreanWindow*>(openExample(8));
    ASSERT_NE(w, nullptr);
    EXPECT_EQ(w->windowTitle(), "Pythagorean Tree");
    EXPECT_TRUE(item("mnuWin(15)")->isVisible());
    EXPECT_EQ(item("mnuWin(15)")->text(), "Pythagorean Tree");
    auto* slider = child<QSlider>(w, "sliTheta");
    EXPECT_EQ(slider->minimum(), 1);
    EXPECT_EQ(slider->maximum(), 89);
    slider->setValue(30);
    EXPECT_EQ(child<QLineEdit>(w, "txtTheta")->text(), "30");
    EXPECT_FALSE(child<QLabel>(w, "picImage")->pixmap().isNull());
}

TEST_F(TreeWindows, PythagoreanBoxTakesAFractionAndTheSliderRoundsIt) {
    auto* w = dynamic_cast<PythagoreanWindow*>(openExample(8));
    ASSERT_NE(w, nullptr);
    child<QLineEdit>(w, "txtTheta")->setText("45.5");
    EXPECT_TRUE(w->thetaEntered());
    EXPECT_EQ(child<QSlider>(w, "sliTheta")->value(), 46);
    child<QLineEdit>(w, "txtTheta")->setText("90");
    EXPECT_FALSE(w->thetaEntered());
    ASSERT_FALSE(host.shown().empty());
    EXPECT_EQ(host.shown().back().text, "Must have 0 < angle < 90 degrees");
    EXPECT_EQ(child<QSlider>(w, "sliTheta")->value(), 46);
}

TEST_F(TreeWindows, PythagoreanCreateThenCancelRestores) {
    QWidget* w = openExample(8);
    ASSERT_NE(w, nullptr);
    const IFSEntry before = wb().CurrentIFS;
    click(w, "cmdSetup");
    EXPECT_EQ(wb().CurrentIFS.Name, "Pythagorean Tree (45)");
    EXPECT_EQ(wb().FractalWindowCaption, "Fractal (Deterministic)");
    QTest::mouseClick(dynamic_cast<GeneratorWindow*>(w)->cancelButton(), Qt::LeftButton);
    EXPECT_EQ(wb().CurrentIFS, before);
    EXPECT_FALSE(item("mnuWin(15)")->isVisible());
}

}  // namespace
}  // namespace quillane::testing
