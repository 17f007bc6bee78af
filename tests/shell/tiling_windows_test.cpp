// The tiling window and the tiling options window driven by clicks and keys.
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>

#include "app/generator_run.h"
#include "shell/picture_widget.h"
#include "shell/tiling_settings_window.h"
#include "shell/tiling_window.h"
#include "tests/shell/frame_fixture.h"

namespace quillane::testing {
namespace {

class TilingWindowsTest : public FrameTest {
  protected:
    TilingWindow* openTiling() {
        open();
        item(MenuTable::key("mnuDesignExample", TilingsExample))->trigger();
        auto* w = frame->findChild<TilingWindow*>();
        EXPECT_NE(w, nullptr);
        return w;
    }
    template <typename T>
    T* child(QWidget* w, const char* name) {
        T* c = w->findChild<T*>(name);
        EXPECT_NE(c, nullptr) << name;
        return c;
    }
    static QPoint pixelOf(const PictureWidget* p, double x, double y) {
        int64_t col = 0, row = 0;
        EXPECT_TRUE(p->surface()->toPixel(x, y, col, row));
        return QPoint(static_cast<int>(col), static_cast<int>(row));
    }
};

TEST_F(TilingWindowsTest, TheTwinDragonFromClicksOnTheLattice) {
    auto* w = openTiling();
    ASSERT_NE(w, nullptr);
    EXPECT_EQ(w->windowTitle(), "Tiling with Integer Matrices");
    EXPECT_TRUE(wb().menu("mnuWin(6)").visible);
    EXPECT_EQ(child<QLabel>(w, "lblDet")->text(), "| Det | = 2");
    EXPECT_EQ(child<QLabel>(w, "lblEigType")->text(), "Complex");
    EXPECT_EQ(child<QLabel>(w, "lbleig1")->text(), "1.414");
    QTest::mouseClick(child<QPushButton>(w, "cmdDraw"), Qt::LeftButton);
    EXPECT_TRUE(w->form().lattice.LatticeDrawn);
    QTest::mouseClick(w->picture(), Qt::LeftButton, Qt::NoModifier, pixelOf(w->picture(), 1, 0));
    QTest::mouseClick(w->picture(), Qt::LeftButton, Qt::NoModifier, pixelOf(w->picture(), 0, 0));
    EXPECT_EQ(child<QLabel>(w, "lblRV")->text(), "2");
    // A third point of either class is not taken.
    QTest::mouseClick(w->picture(), Qt::LeftButton, Qt::NoModifier, pixelOf(w->picture(), 1, 1));
    EXPECT_EQ(child<QLabel>(w, "lblRV")->text(), "2");
    QTest::mouseClick(child<QPushButton>(w, "cmdApply"), Qt::LeftButton);
    EXPECT_EQ(wb().CurrentIFS.nMaps, 2);
    EXPECT_FLOAT_EQ(wb().CurrentIFS.b[0], 0.5f);
    EXPECT_EQ(wb().CurrentIFS.e[0], 0);
    EXPECT_EQ(wb().CurrentIFS.e[1], 1);
    EXPECT_TRUE(host.shown().empty());
    QTest::mouseClick(child<QPushButton>(w, "cmdClose"), Qt::LeftButton);
    EXPECT_FALSE(w->isVisible());
    EXPECT_EQ(wb().CurrentIFS.nMaps, 2);
    EXPECT_FALSE(wb().menu("mnuWin(6)").visible);
}

TEST_F(TilingWindowsTest, TheLabelsFollowTheMatrixAndADeterminantOfTwentyOneIsRefused) {
    auto* w = openTiling();
    ASSERT_NE(w, nullptr);
    auto* m11 = child<QLineEdit>(w, "txtM(0)");
    m11->setText("3");
    child<QLineEdit>(w, "txtM(1)")->setText("0");
    child<QLineEdit>(w, "txtM(2)")->setText("0");
    child<QLineEdit>(w, "txtM(3)")->setText("7");
    EXPECT_EQ(child<QLabel>(w, "lblDet")->text(), "| Det | = 21");
    EXPECT_EQ(child<QLabel>(w, "lblEigType")->text(), "Real");
    QTest::mouseClick(child<QPushButton>(w, "cmdDraw"), Qt::LeftButton);
    ASSERT_EQ(host.shown().size(), 1u);
    EXPECT_EQ(host.shown()[0].text, "Must have |Det(M)| between 1 and 20");
    EXPECT_FALSE(w->form().lattice.LatticeDrawn);
    // The point is refused in the matrix boxes.
    QTest::keyClicks(m11, ".");
    EXPECT_EQ(m11->text(), "3");
}

TEST_F(TilingWindowsTest, ViewKeysMoveTheLatticeOncePerPressWithoutCtrl) {
    auto* w = openTiling();
    ASSERT_NE(w, nullptr);
    QTest::mouseClick(child<QPushButton>(w, "cmdDraw"), Qt::LeftButton);
    const float left = w->form().lattice.vxmin;
    QTest::keyPress(w->picture(), Qt::Key_Left);
    QTest::keyPress(w->picture(), Qt::Key_Left);
    EXPECT_FLOAT_EQ(w->form().lattice.vxmin, left - 1);
    QTest::keyRelease(w->picture(), Qt::Key_Left);
    QTest::keyClick(w->picture(), Qt::Key_Left, Qt::ControlModifier);
    EXPECT_FLOAT_EQ(w->form().lattice.vxmin, left - 1.25f);
    QTest::keyClick(w->picture(), Qt::Key_Home);
    EXPECT_FLOAT_EQ(w->form().lattice.vxmin, left);
}

TEST_F(TilingWindowsTest, CancelBringsTheOldIFSBack) {
    auto* w = openTiling();
    ASSERT_NE(w, nullptr);
    const IFSEntry before = wb().CurrentIFS;
    QTest::mouseClick(child<QPushButton>(w, "cmdDraw"), Qt::LeftButton);
    QTest::mouseClick(w->picture(), Qt::LeftButton, Qt::NoModifier, pixelOf(w->picture(), 0, 0));
    QTest::mouseClick(w->picture(), Qt::LeftButton, Qt::NoModifier, pixelOf(w->picture(), 1, 0));
    QTest::mouseClick(child<QPushButton>(w, "cmdApply"), Qt::LeftButton);
    ASSERT_EQ(wb().CurrentIFS.nMaps, 2);
    QTest::mouseClick(child<QPushButton>(w, "cmdCancel"), Qt::LeftButton);
    EXPECT_EQ(wb().CurrentIFS.nMaps, before.nMaps);
    EXPECT_EQ(wb().CurrentIFS.a, before.a);
}

TEST_F(TilingWindowsTest, TheOptionsWindowSwitchesTheTileModeAndTakesTheColumnsOfM) {
    auto* w = openTiling();
    ASSERT_NE(w, nullptr);
    QTest::mouseClick(child<QPushButton>(w, "cmdDraw"), Qt::LeftButton);
    QTest::mouseClick(w->picture(), Qt::LeftButton, Qt::NoModifier, pixelOf(w->picture(), 0, 0));
    QTest::mouseClick(w->picture(), Qt::LeftButton, Qt::NoModifier, pixelOf(w->picture(), 1, 0));
    QTest::mouseClick(child<QPushButton>(w, "cmdApply"), Qt::LeftButton);
    item("mnuDrawTiling")->trigger();
    auto* t = frame->findChild<TilingSettingsWindow*>();
    ASSERT_NE(t, nullptr);
    EXPECT_TRUE(t->isVisible());
    EXPECT_EQ(t->windowTitle(), "Tiling Options");
    EXPECT_TRUE(frame->state().pics.Tiling.SettingsVisible);
    EXPECT_TRUE(wb().menu("mnuWin(7)").checked);
    EXPECT_EQ(child<QLineEdit>(t, "txtT(1)")->text(), "-1");
    EXPECT_EQ(child<QComboBox>(t, "cmbRadius")->count(), 8);
    auto* swatch = child<QPushButton>(t, "picTileColors(4)");
    EXPECT_FALSE(swatch->isVisible());
    QTest::mouseClick(child<QRadioButton>(t, "optColor2"), Qt::LeftButton);
    EXPECT_TRUE(swatch->isVisible());
    EXPECT_TRUE(frame->state().pics.Tiling.optColor2);
    host.colors.push_back(RGB(1, 2, 3));
    QTest::mouseClick(swatch, Qt::LeftButton);
    EXPECT_EQ(wb().TilingColor[4], RGB(1, 2, 3));
    child<QComboBox>(t, "cmbRadius")->setCurrentIndex(2);
    EXPECT_EQ(frame->state().pics.Tiling.cmbRadius, 2);
    QTest::mouseClick(child<QPushButton>(t, "cmdCancel"), Qt::LeftButton);
    EXPECT_FALSE(t->isVisible());
    EXPECT_FALSE(frame->state().pics.Tiling.SettingsVisible);
    EXPECT_FALSE(wb().menu("mnuWin(7)").checked);
}

}  // namespace
}  // namespace quillane::testing
