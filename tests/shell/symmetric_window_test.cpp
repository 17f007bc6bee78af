// Symmetric Fractals through its window: opened from Design > Examples, filled in and built by clicks.
#include "shell/symmetric_window.h"

#include <QComboBox>
#include <QGroupBox>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>

#include "tests/shell/frame_fixture.h"

namespace quillane::testing {
namespace {

class SymmetricWindowTest : public FrameTest {
  protected:
    SymmetricWindow* openWindow() {
        open();
        item("mnuDesignExample(9)")->trigger();
        return dynamic_cast<SymmetricWindow*>(OpenGenerator(*frame));
    }
    template <class W>
    W* child(SymmetricWindow* w, const char* name) {
        W* c = w->findChild<W*>(name);
        EXPECT_NE(c, nullptr) << name;
        return c;
    }
};

TEST_F(SymmetricWindowTest, OpensWithTheFirstOrderAndTheBaseFrame) {
    SymmetricWindow* w = openWindow();
    ASSERT_NE(w, nullptr);
    EXPECT_EQ(w->windowTitle(), "Symmetric Fractals");
    auto* cmbN = child<QComboBox>(w, "cmbN");
    EXPECT_EQ(cmbN->count(), 99);
    EXPECT_EQ(cmbN->currentText(), "2");
    EXPECT_EQ(cmbN->itemText(98), "100");
    EXPECT_TRUE(child<QRadioButton>(w, "optGroup(0)")->isChecked());
    EXPECT_TRUE(child<QRadioButton>(w, "optBase(0)")->isChecked());
    EXPECT_TRUE(child<QGroupBox>(w, "frmBase")->isVisible());
    EXPECT_FALSE(child<QGroupBox>(w, "frmList")->isVisible());
    QTest::mouseClick(child<QRadioButton>(w, "optBase(1)"), Qt::LeftButton);
    EXPECT_FALSE(child<QGroupBox>(w, "frmBase")->isVisible());
    EXPECT_TRUE(child<QGroupBox>(w, "frmList")->isVisible());
    EXPECT_TRUE(child<QRadioButton>(w, "optGroup(0)")->isChecked());
    EXPECT_EQ(child<QComboBox>(w, "cmbIFSList")->count(), wb().ListCount());
}

TEST_F(SymmetricWindowTest, CreateBuildsTheGroupAndCancelRestores) {
    SymmetricWindow* w = openWindow();
    ASSERT_NE(w, nullptr);
    const IFSEntry before = wb().CurrentIFS;
    child<QComboBox>(w, "cmbN")->setCurrentIndex(3);  // n = 5
    QTest::mouseClick(child<QPushButton>(w, "cmdCreate"), Qt::LeftButton);
    EXPECT_EQ(wb().CurrentIFS.nMaps, 10);
    EXPECT_EQ(wb().FunctionsCaption, "IFS [Untitled]");
    QTest::mouseClick(w->cancelButton(), Qt::LeftButton);
    EXPECT_EQ(wb().CurrentIFS, before);
}

TEST_F(SymmetricWindowTest, DihedralFiftyOneIsRefusedAndTheOrderGetsTheFocus) {
    SymmetricWindow* w = openWindow();
    ASSERT_NE(w, nullptr);
    const IFSEntry before = wb().CurrentIFS;
    child<QComboBox>(w, "cmbN")->setCurrentIndex(49);  // n = 51
    QTest::mouseClick(child<QPushButton>(w, "cmdCreate"), Qt::LeftButton);
    ASSERT_FALSE(host.shown().empty());
    EXPECT_EQ(host.shown().back().text, "Maximum allowed n for dihedral group is 50");
    EXPECT_EQ(wb().CurrentIFS, before);
}

TEST_F(SymmetricWindowTest, AnUnreadableBoxIsRefused) {
    SymmetricWindow* w = openWindow();
    ASSERT_NE(w, nullptr);
    child<QLineEdit>(w, "txtMatrix(2)")->setText("((");
    QTest::mouseClick(child<QPushButton>(w, "cmdCreate"), Qt::LeftButton);
    ASSERT_FALSE(host.shown().empty());
    EXPECT_EQ(host.shown().back().text, "Cannot evaluate one of the matrix value.   ");
}

}  // namespace
}  // namespace quillane::testing
