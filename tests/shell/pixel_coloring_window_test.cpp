// The gradient window driven by real clicks and keys, offscreen, through the frame's menus.
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>

#include "core/menu_tree.h"
#include "shell/pixel_coloring_window.h"
#include "tests/shell/frame_fixture.h"

namespace quillane::testing {
namespace {

class PixelColoringTest : public FrameTest {
  protected:
    PixelColoringWindow& openWindow() {
        open();
        item("mnuColorsGradient")->trigger();
        auto* w = frame->findChild<PixelColoringWindow*>("frmPixelColoring");
        EXPECT_NE(w, nullptr);
        return *w;
    }
    bool colorsChecked(int k) { return wb().menu(MenuTable::key("mnuColors", k)).checked; }
};

TEST_F(PixelColoringTest, GradientOptionsOpenTheWindowWithTheGradientItemChecked) {
    open();
    item("mnuColors(2)")->trigger();
    EXPECT_TRUE(colorsChecked(2));
    EXPECT_TRUE(item("mnuColors(2)")->isChecked());
    item("mnuColorsGradient")->trigger();
    auto* w = frame->findChild<PixelColoringWindow*>("frmPixelColoring");
    ASSERT_NE(w, nullptr);
    EXPECT_TRUE(w->isVisible());
    EXPECT_EQ(w->windowTitle(), "Gradient Color Options");
    EXPECT_TRUE(colorsChecked(1));
    EXPECT_FALSE(colorsChecked(2));
    EXPECT_TRUE(item("mnuColors(1)")->isChecked());
    EXPECT_FALSE(item("mnuColors(2)")->isChecked());
    EXPECT_TRUE(wb().menu("mnuWin(20)").checked);
    QTest::mouseClick(w->cmdClose(), Qt::LeftButton);
    EXPECT_FALSE(w->isVisible());
    EXPECT_FALSE(wb().menu("mnuWin(20)").checked);
    item("mnuWin(20)")->trigger();
    EXPECT_TRUE(w->isVisible());
}

TEST_F(PixelColoringTest, VisitCountsShowTheCountRowsForTheColoursInUse) {
    PixelColoringWindow& w = openWindow();
    item("mnuColors(0)")->trigger();
    wb().PointCount = 500;
    EXPECT_FALSE(w.txtCount(0)->isVisible());
    EXPECT_FALSE(w.lblPC()->isVisible());
    QTest::mouseClick(w.optColoring(6), Qt::LeftButton);
    EXPECT_TRUE(colorsChecked(1));
    EXPECT_EQ(wb().PointCount, 0);
    EXPECT_EQ(frame->state().pics.Det.optColoring, 6);
    EXPECT_TRUE(w.lblPC()->isVisible());
    EXPECT_TRUE(w.picGradient()->ticks());
    w.cmbColors()->setCurrentIndex(1);  // three colours
    EXPECT_EQ(wb().Gradient.GradientColorCount, 3);
    EXPECT_TRUE(w.txtCount(2)->isVisible());
    EXPECT_FALSE(w.txtCount(3)->isVisible());
    EXPECT_FALSE(w.picColors(3)->isVisible());
    EXPECT_TRUE(w.lblCount(1)->isVisible());
    EXPECT_EQ(w.lblCount(1)->text(), "5");
    QTest::mouseClick(w.optColoring(2), Qt::LeftButton);
    EXPECT_FALSE(w.txtCount(0)->isVisible());
    EXPECT_FALSE(w.lblCount(1)->isVisible());
    EXPECT_FALSE(w.picGradient()->ticks());
}

TEST_F(PixelColoringTest, VisitCountsAreDisabledInDeterministicMode) {
    PixelColoringWindow& w = openWindow();
    EXPECT_TRUE(w.optColoring(6)->isEnabled());
    item("mnuDrawType(1)")->trigger();
    EXPECT_FALSE(wb().RandomMode);
    EXPECT_FALSE(w.optColoring(6)->isEnabled());
    EXPECT_TRUE(w.optColoring(5)->isEnabled());
}

TEST_F(PixelColoringTest, CountBoxesTakeDigitsAndReturnMovesOn) {
    PixelColoringWindow& w = openWindow();
    QTest::mouseClick(w.optColoring(6), Qt::LeftButton);
    QLineEdit* box = w.txtCount(6);
    box->setFocus(Qt::TabFocusReason);
    box->clear();
    QTest::keyClicks(box, "4a-2.");
    EXPECT_EQ(box->text(), "42");
    EXPECT_EQ(wb().Gradient.txtCount[6], "42");
    EXPECT_EQ(w.lblCount(6)->text(), "42");
    QTest::keyClick(box, Qt::Key_Backspace);
    EXPECT_EQ(wb().Gradient.txtCount[6], "4");
    QTest::keyClick(box, Qt::Key_Return);
    EXPECT_EQ(w.focusWidget(), w.txtCount(0));
}

TEST_F(PixelColoringTest, ASwatchClickOpensTheColourDialogAndRebuildsTheStrips) {
    PixelColoringWindow& w = openWindow();
    host.colors = {RGB(0, 0, 0)};
    QTest::mouseClick(w.picColors(0), Qt::LeftButton);
    EXPECT_EQ(wb().Gradient.picColors[0], RGB(0, 0, 0));
    EXPECT_EQ(w.picColors(0)->color(), RGB(0, 0, 0));
    EXPECT_EQ(w.picGradient()->stripColor(0), QColor(0, 0, 0));
    QTest::mouseClick(w.cmdDefault(), Qt::LeftButton);
    EXPECT_EQ(wb().Gradient, DefaultGradient());
    EXPECT_NE(w.picGradient()->stripColor(0), QColor(0, 0, 0));
}

TEST_F(PixelColoringTest, SaveAndLoadGoThroughTheGradientFile) {
    PixelColoringWindow& w = openWindow();
    w.cmbColors()->setCurrentIndex(2);
    host.fileNames = {dir.path("g")};
    QTest::mouseClick(w.cmdSave(), Qt::LeftButton);
    EXPECT_EQ(host.dialogs().back().title, "Save Gradient Colors");
    QTest::mouseClick(w.cmdDefault(), Qt::LeftButton);
    EXPECT_EQ(w.cmbColors()->currentText(), "7");
    host.fileNames = {dir.path("g.txt")};
    QTest::mouseClick(w.cmdLoad(), Qt::LeftButton);
    EXPECT_EQ(host.dialogs().back().title, "Load Gradient Colors");
    EXPECT_EQ(wb().Gradient.GradientColorCount, 4);
    EXPECT_EQ(w.cmbColors()->currentText(), "4");
}

}  // namespace
}  // namespace quillane::testing
