// Sierpinski Triangles through its window: the apex, the factors and the methods by clicks.
#include "shell/sierpinski_window.h"

#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSlider>
#include <QTest>

#include "tests/shell/frame_fixture.h"

namespace quillane::testing {
namespace {

class SierpinskiWindowTest : public FrameTest {
  protected:
    SierpinskiWindow* openWindow() {
        open();
        item("mnuDesignExample(3)")->trigger();
        return dynamic_cast<SierpinskiWindow*>(OpenGenerator(*frame));
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

TEST_F(SierpinskiWindowTest, OpensOnTheDefaultTriangleAndMethodOne) {
    SierpinskiWindow* w = openWindow();
    ASSERT_NE(w, nullptr);
    EXPECT_EQ(w->windowTitle(), "Sierpinski Triangles");
    EXPECT_EQ(child<QLineEdit>(w, "txtAngle(1)")->text(), "60.000");
    EXPECT_EQ(child<QLineEdit>(w, "txtPara(2)")->text(), "0.50000");
    EXPECT_TRUE(child<QRadioButton>(w, "opt1")->isChecked());
    EXPECT_EQ(child<QLabel>(w, "picMethod")->text(), "F1(ABC) = cBa\nF2(ABC) = baC\nF3(ABC) = Acb");
}

TEST_F(SierpinskiWindowTest, CreateBuildsAndCancelRestores) {
    SierpinskiWindow* w = openWindow();
    ASSERT_NE(w, nullptr);
    const IFSEntry before = wb().CurrentIFS;
    QTest::mouseClick(child<QRadioButton>(w, "opt2"), Qt::LeftButton);
    click(w, "cmdCreate");
    EXPECT_EQ(wb().FunctionsCaption, "IFS [Sierpinski Triangle (0.50000, 0.50000, 0.50000)]");
    QTest::mouseClick(w->cancelButton(), Qt::LeftButton);
    EXPECT_EQ(wb().CurrentIFS, before);
}

TEST_F(SierpinskiWindowTest, DraggingMovesTheApexAndPedalPicksMethodTwo) {
    SierpinskiWindow* w = openWindow();
    ASSERT_NE(w, nullptr);
    QWidget* canvas = child<QWidget>(w, "picCanvas");
    QTest::mouseClick(canvas, Qt::LeftButton, {}, QPoint(canvas->width() / 4, canvas->height() / 2));
    EXPECT_LT(w->form().PointA.x, 0.3f);
    EXPECT_GT(w->form().PointA.y, 0.0f);
    click(w, "cmdPedal");
    EXPECT_TRUE(child<QRadioButton>(w, "opt2")->isChecked());
    EXPECT_NE(child<QLineEdit>(w, "txtPara(1)")->text(), "0.50000");
}

TEST_F(SierpinskiWindowTest, AFactorOutsideIsRefused) {
    SierpinskiWindow* w = openWindow();
    ASSERT_NE(w, nullptr);
    child<QLineEdit>(w, "txtPara(3)")->setText("1");
    click(w, "cmdCreate");
    ASSERT_FALSE(host.shown().empty());
    EXPECT_EQ(host.shown().back().text, "Factors must be between 0 and 1");
}

}  // namespace
}  // namespace quillane::testing

namespace quillane::testing {
namespace {

TEST_F(SierpinskiWindowTest, TheTwistPanelDrawsOnTheCanvas) {
    SierpinskiWindow* w = openWindow();
    ASSERT_NE(w, nullptr);
    EXPECT_EQ(child<QGroupBox>(w, "frmTwist")->title(), "Twisted Sierpinski Triangle");
    auto* slider = child<QSlider>(w, "sliTwist");
    EXPECT_EQ(slider->minimum(), 0);
    EXPECT_EQ(slider->maximum(), TwistSliderMax);
    EXPECT_EQ(child<QComboBox>(w, "cmbIterations")->count(), TwistMaxIterations);
    EXPECT_EQ(w->twistPicture(), nullptr);
    click(w, "cmdDraw");
    ASSERT_NE(w->twistPicture(), nullptr);
    int painted = 0;
    const RasterSurface& p = *w->twistPicture();
    for (int r = 0; r < p.height(); ++r)
        for (int c = 0; c < p.width(); ++c) painted += p.pixel(c, r) != White;
    EXPECT_GT(painted, 1000);
}

TEST_F(SierpinskiWindowTest, TheTwistRefusesAFactorOfOne) {
    SierpinskiWindow* w = openWindow();
    ASSERT_NE(w, nullptr);
    child<QLineEdit>(w, "txtPara(1)")->setText("1");
    click(w, "cmdDraw");
    ASSERT_FALSE(host.shown().empty());
    EXPECT_EQ(host.shown().back().text, "Factors must be between 0 and 1");
    EXPECT_EQ(w->twistPicture(), nullptr);
}

}  // namespace
}  // namespace quillane::testing
