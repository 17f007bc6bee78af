// Fractals derived from Complex Bases through its window: opened from Design > Examples, filled in by
// clicks, and its drawing method taking over the fractal window's loop.
#include "shell/complex_base_window.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>

#include "tests/shell/frame_fixture.h"

namespace quillane::testing {
namespace {

class ComplexBaseWindowTest : public FrameTest {
  protected:
    ComplexBaseWindow* openWindow() {
        open();
        item("mnuDesignExample(5)")->trigger();
        return dynamic_cast<ComplexBaseWindow*>(OpenGenerator(*frame));
    }
    template <class W>
    W* child(ComplexBaseWindow* w, const char* name) {
        W* c = w->findChild<W*>(name);
        EXPECT_NE(c, nullptr) << name;
        return c;
    }
    void click(ComplexBaseWindow* w, const char* name) {
        QTest::mouseClick(child<QAbstractButton>(w, name), Qt::LeftButton);
    }
};

TEST_F(ComplexBaseWindowTest, OpensWithItsDefaultsAndItsWindowItem) {
    ComplexBaseWindow* w = openWindow();
    ASSERT_NE(w, nullptr);
    EXPECT_EQ(w->windowTitle(), "Fractals derived from Complex Bases");
    EXPECT_EQ(child<QLineEdit>(w, "txta")->text(), "0.65");
    EXPECT_EQ(child<QLineEdit>(w, "txtb")->text(), "-0.3");
    EXPECT_TRUE(child<QRadioButton>(w, "opt1")->isChecked());
    EXPECT_TRUE(child<QRadioButton>(w, "optDrawRegular")->isChecked());
    EXPECT_FALSE(child<QRadioButton>(w, "optPixelColor")->isVisible());
    EXPECT_EQ(child<QRadioButton>(w, "optIFScolor")->text(), "Use IFS colors");
    EXPECT_FALSE(child<QLabel>(w, "lblWarning")->isVisible());
    EXPECT_TRUE(wb().menu("mnuWin(8)").visible);
    EXPECT_EQ(item("mnuWin(8)")->text().remove('&'), "Complex Bases");
}

TEST_F(ComplexBaseWindowTest, ExampleStepsThroughTheBasesAndTheirForms) {
    ComplexBaseWindow* w = openWindow();
    ASSERT_NE(w, nullptr);
    click(w, "cmdExample");
    EXPECT_EQ(child<QLineEdit>(w, "txta")->text(), "0.80");
    EXPECT_EQ(child<QLineEdit>(w, "txtb")->text(), "0.20");
    click(w, "cmdExample");
    EXPECT_TRUE(child<QRadioButton>(w, "opt2")->isChecked());
    EXPECT_EQ(child<QLabel>(w, "Label1")->text(), "R");
    EXPECT_EQ(child<QLabel>(w, "Label2")->text(), "A");
    EXPECT_EQ(child<QLineEdit>(w, "txtb")->text(), "2*pi/5");
    click(w, "cmdExample");
    EXPECT_TRUE(child<QRadioButton>(w, "opt1")->isChecked());
    EXPECT_EQ(child<QLabel>(w, "Label1")->text(), "a");
}

TEST_F(ComplexBaseWindowTest, TooLargeABaseIsRefusedAndTxtaGetsTheFocus) {
    ComplexBaseWindow* w = openWindow();
    ASSERT_NE(w, nullptr);
    const IFSEntry before = wb().CurrentIFS;
    child<QLineEdit>(w, "txta")->setText("0.6");
    child<QLineEdit>(w, "txtb")->setText("0.8");
    click(w, "cmdCreate");
    ASSERT_FALSE(host.shown().empty());
    EXPECT_EQ(host.shown().back().text,
              "The complex base must have modulus less than 1.  \nYour modulus is 1.0000");
    EXPECT_EQ(wb().CurrentIFS, before);
}

TEST_F(ComplexBaseWindowTest, TheBaseMethodTakesTheLoopAndCloseGivesItBack) {
    ComplexBaseWindow* w = openWindow();
    ASSERT_NE(w, nullptr);
    click(w, "optDrawBase");
    EXPECT_TRUE(child<QRadioButton>(w, "optPixelColor")->isVisible());
    EXPECT_EQ(child<QRadioButton>(w, "optIFScolor")->text(), "Use IFS(1) color");
    EXPECT_TRUE(child<QLabel>(w, "lblWarning")->isVisible());
    click(w, "cmdCreate");
    EXPECT_EQ(wb().CurrentIFS.nMaps, 2);
    EXPECT_FALSE(wb().menu("mnuDrawType(0)").enabled);
    EXPECT_FALSE(wb().menu("mnuDrawType(1)").enabled);
    EXPECT_TRUE(static_cast<bool>(frame->state().pics.PlotSource));
    const IFSEntry built = wb().CurrentIFS;
    QTest::mouseClick(w->closeButton(), Qt::LeftButton);
    EXPECT_EQ(wb().CurrentIFS, built);
    EXPECT_FALSE(static_cast<bool>(frame->state().pics.PlotSource));
    EXPECT_TRUE(wb().menu("mnuDrawType(1)").enabled);
    EXPECT_FALSE(wb().menu("mnuWin(8)").visible);
}

TEST_F(ComplexBaseWindowTest, CancelRestoresTheIFS) {
    ComplexBaseWindow* w = openWindow();
    ASSERT_NE(w, nullptr);
    const IFSEntry before = wb().CurrentIFS;
    click(w, "cmdCreate");
    EXPECT_EQ(wb().CurrentIFS.nMaps, 2);
    QTest::mouseClick(w->cancelButton(), Qt::LeftButton);
    EXPECT_EQ(wb().CurrentIFS, before);
}

}  // namespace
}  // namespace quillane::testing
