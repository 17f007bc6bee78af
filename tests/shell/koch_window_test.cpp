// Koch Curves with n-gons through its window: the boxes, buttons, slider keys, Create IFS and the
// recursion box.
#include "shell/koch_window.h"

#include <QCheckBox>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSlider>
#include <QTest>

#include "tests/shell/frame_fixture.h"

namespace quillane::testing {
namespace {

class KochWindowTest : public FrameTest {
  protected:
    KochWindow* openWindow() {
        open();
        item("mnuDesignExample(4)")->trigger();
        return dynamic_cast<KochWindow*>(OpenGenerator(*frame));
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
    int inkIn(const KochWindow* w) {
        int n = 0;
        const RasterSurface& s = w->canvas();
        for (int r = 0; r < s.height(); ++r)
            for (int c = 0; c < s.width(); ++c) n += (s.pixel(c, r) & 0xFFFFFFu) == Black;
        return n;
    }
};

TEST_F(KochWindowTest, OpensWithItsTitleItsWindowItemAndAPreview) {
    KochWindow* w = openWindow();
    ASSERT_NE(w, nullptr);
    EXPECT_EQ(w->windowTitle(), "Koch Curves with n-gons");
    EXPECT_EQ(child<QLineEdit>(w, "txtN")->text(), "4");
    EXPECT_EQ(child<QLineEdit>(w, "txtC")->text(), "1/3");
    EXPECT_TRUE(child<QRadioButton>(w, "optIter(0)")->isChecked());
    EXPECT_TRUE(wb().menu("mnuWin(16)").visible);
    EXPECT_EQ(wb().menu("mnuWin(16)").caption, "Koch Curves Design");
    EXPECT_FALSE(wb().menu("mnuDesignExample(4)").enabled);
    EXPECT_GT(inkIn(w), 100);
}

TEST_F(KochWindowTest, TheEdgeButtonsAndSelfAvoidingFillTheBoxes) {
    KochWindow* w = openWindow();
    ASSERT_NE(w, nullptr);
    click(w, "cmdNdec");
    EXPECT_EQ(child<QLineEdit>(w, "txtN")->text(), "3");
    click(w, "cmdNdec");
    EXPECT_EQ(child<QLineEdit>(w, "txtN")->text(), "3");
    click(w, "cmdNinc");
    click(w, "cmdAvoid");
    EXPECT_EQ(child<QLineEdit>(w, "txtC")->text(), "0.33333");
    EXPECT_EQ(child<QSlider>(w, "sliC")->value(), 333);
    EXPECT_TRUE(host.shown().empty());
}

TEST_F(KochWindowTest, TheSliderKeysChangeCAndNButKeepTheView) {
    KochWindow* w = openWindow();
    ASSERT_NE(w, nullptr);
    QSlider* slider = child<QSlider>(w, "sliC");
    const double left = w->canvas().scaleLeft();
    QTest::keyClick(slider, Qt::Key_Right);
    EXPECT_EQ(slider->value(), 334);
    EXPECT_EQ(child<QLineEdit>(w, "txtC")->text(), "0.33400");
    QTest::keyClick(slider, Qt::Key_PageUp);
    EXPECT_EQ(slider->value(), 339);
    QTest::keyClick(slider, Qt::Key_Up);
    EXPECT_EQ(child<QLineEdit>(w, "txtN")->text(), "5");
    EXPECT_EQ(w->canvas().scaleLeft(), left);
    // A drag of the slider fits the view again.
    slider->setValue(900);
    EXPECT_EQ(child<QLineEdit>(w, "txtC")->text(), "0.90000");
    EXPECT_NE(w->canvas().scaleLeft(), left);
}

TEST_F(KochWindowTest, ARefusalNamesTheBoxAndGivesItTheFocus) {
    KochWindow* w = openWindow();
    ASSERT_NE(w, nullptr);
    w->activateWindow();
    child<QLineEdit>(w, "txtN")->setText("70");
    click(w, "cmdCreate");
    ASSERT_FALSE(host.shown().empty());
    EXPECT_EQ(host.shown().back().title, "Error");
    EXPECT_EQ(host.shown().back().text, "The number of edges can be at most 60");
    EXPECT_EQ(w->focusWidget(), child<QLineEdit>(w, "txtN"));
    child<QLineEdit>(w, "txtN")->setText("3");
    child<QLineEdit>(w, "txtC")->setText("1.5");
    click(w, "cmdFit");
    EXPECT_EQ(host.shown().back().text, "The edge length must be less than 1");
    EXPECT_EQ(w->focusWidget(), child<QLineEdit>(w, "txtC"));
}

TEST_F(KochWindowTest, CreateWithRecursionDrawsTheCurveAndCancelRestores) {
    KochWindow* w = openWindow();
    ASSERT_NE(w, nullptr);
    const IFSEntry before = wb().CurrentIFS;
    child<QLineEdit>(w, "txtN")->setText("3");
    child<QCheckBox>(w, "chkRecursion")->setChecked(true);
    EXPECT_TRUE(wb().UseKochRecursion);
    click(w, "cmdCreate");
    EXPECT_EQ(wb().CurrentIFS.nMaps, 4);
    EXPECT_EQ(wb().FunctionsCaption, "IFS [Koch Curve (3, 1/3)]");
    EXPECT_FALSE(wb().RandomMode);
    EXPECT_TRUE(wb().KochRecursionAllowed);
    item("mnuRun")->trigger();
    EXPECT_EQ(frame->state().pics.picCount, "1 w/Rec");
    QTest::mouseClick(w->cancelButton(), Qt::LeftButton);
    EXPECT_EQ(wb().CurrentIFS, before);
    EXPECT_FALSE(wb().UseKochRecursion);
    EXPECT_FALSE(w->isVisible());
    EXPECT_FALSE(wb().menu("mnuWin(16)").visible);
}

TEST_F(KochWindowTest, CloseKeepsTheCurve) {
    KochWindow* w = openWindow();
    ASSERT_NE(w, nullptr);
    click(w, "cmdCreate");
    QTest::mouseClick(w->closeButton(), Qt::LeftButton);
    EXPECT_EQ(wb().CurrentIFS.nMaps, 5);
    EXPECT_EQ(wb().CurrentIFS.Name, "Koch Curve (4, 1/3)");
    EXPECT_TRUE(wb().menu("mnuDesignExample(4)").enabled);
}

}  // namespace
}  // namespace quillane::testing
