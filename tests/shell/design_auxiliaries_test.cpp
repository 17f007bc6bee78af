// The preview window and the picture behind the design, with real keys and mouse events offscreen.
#include <QApplication>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMouseEvent>
#include <QTest>

#include "app/design_picture_commands.h"
#include "shell/design_window.h"
#include "shell/floating_picture_widget.h"
#include "shell/preview_window.h"
#include "tests/shell/frame_fixture.h"

namespace quillane::testing {
namespace {

class DesignAuxiliariesTest : public FrameTest {
  protected:
    void SetUp() override {
        dir.write("default.ifs", GoodBlock + OtherBlock);
        open();
        QApplication::processEvents();
    }
    PreviewWindow* preview() { return frame->findChild<PreviewWindow*>("frmPreview"); }
    DesignPictures& design() { return frame->state().design; }
    int paintedIn(const RasterSurface& s) {
        int n = 0;
        for (int r = 0; r < s.height(); ++r)
            for (int c = 0; c < s.width(); ++c) n += s.pixel(c, r) != White;
        return n;
    }
};

TEST_F(DesignAuxiliariesTest, CtrlPShowsThePreviewWithItsWindowItem) {
    item("mnuDesignPreview")->trigger();
    ASSERT_NE(preview(), nullptr);
    EXPECT_TRUE(preview()->isVisible());
    EXPECT_TRUE(item("mnuDesignPreview")->isChecked());
    EXPECT_TRUE(item("mnuWin(3)")->isVisible());
    EXPECT_EQ(preview()->statusText(), "2000 (+/- inc/dec)");
    EXPECT_GT(paintedIn(frame->state().Preview.picPreview), 50);
}

TEST_F(DesignAuxiliariesTest, PlusAndMinusChangeTheCountOnKeyUpWithinTheLimits) {
    item("mnuDesignPreview")->trigger();
    ASSERT_NE(preview(), nullptr);
    QTest::keyClick(preview(), Qt::Key_Plus);
    EXPECT_EQ(preview()->statusText(), "2500 (+/- inc/dec)");
    for (int k = 0; k < 30; ++k) QTest::keyClick(preview(), Qt::Key_Plus);
    EXPECT_EQ(preview()->statusText(), "10000 (+/- inc/dec)");
    EXPECT_EQ(frame->state().Preview.PreviewPoints, 10000);
    for (int k = 0; k < 30; ++k) QTest::keyClick(preview(), Qt::Key_Minus);
    EXPECT_EQ(preview()->statusText(), "500 (+/- inc/dec)");
}

TEST_F(DesignAuxiliariesTest, TheCloseBoxUnchecksTheItem) {
    item("mnuDesignPreview")->trigger();
    ASSERT_NE(preview(), nullptr);
    preview()->close();
    EXPECT_FALSE(preview()->isVisible());
    EXPECT_FALSE(item("mnuDesignPreview")->isChecked());
    EXPECT_FALSE(item("mnuWin(3)")->isVisible());
    EXPECT_EQ(paintedIn(frame->state().Preview.picPreview), 0);
}

TEST_F(DesignAuxiliariesTest, ThePreviewFollowsAChangeOfTheIFS) {
    item("mnuDesignPreview")->trigger();
    ASSERT_NE(preview(), nullptr);
    const std::vector<uint32_t> before(
        frame->state().Preview.picPreview.data(),
        frame->state().Preview.picPreview.data() +
            frame->state().Preview.picPreview.width() * frame->state().Preview.picPreview.height());
    wb().CurrentIFS.e[1] = 0.25f;
    frame->refreshWindows();
    const RasterSurface& after = frame->state().Preview.picPreview;
    EXPECT_FALSE(std::equal(before.begin(), before.end(), after.data()));
}

TEST_F(DesignAuxiliariesTest, AGrabHandleResizesThePictureBehindTheDesign) {
    RasterSurface picture(40, 30, RGB(0, 160, 0));
    picture.clear();
    ASSERT_TRUE(PasteDesignPicture(wb(), design(), &picture));
    frame->refreshWindows();
    FloatingPictureWidget* paste = frame->designWindow()->pastePicture();
    ASSERT_TRUE(paste->isVisible());
    const FloatingPicture before = design().Floating;
    ASSERT_EQ(before.Width, 40);
    // The bottom right handle, dragged 12 right and 8 down with real mouse events.
    const QPoint corner(before.Width - 1, before.Height - 1);
    QTest::mousePress(paste, Qt::LeftButton, {}, corner);
    const QPointF to = corner + QPointF(12, 8);
    QMouseEvent move(QEvent::MouseMove, to, paste->mapToGlobal(to), Qt::NoButton, Qt::LeftButton,
                     Qt::NoModifier);
    QApplication::sendEvent(paste, &move);
    QTest::mouseRelease(paste, Qt::LeftButton, {}, to.toPoint());
    EXPECT_EQ(design().Floating.Width, 52);
    EXPECT_EQ(design().Floating.Height, 38);
    EXPECT_EQ(design().picPaste.width(), 52);
    EXPECT_EQ(paste->geometry().size(), QSize(52, 38));
    // A click beside it places it behind the design.
    QTest::mouseClick(frame->designWindow()->picture(), Qt::LeftButton, {}, QPoint(2, 2));
    EXPECT_FALSE(design().Floating.Visible);
    EXPECT_TRUE(design().PictureInPlace);
    EXPECT_FALSE(paste->isVisible());
}

}  // namespace
}  // namespace quillane::testing
