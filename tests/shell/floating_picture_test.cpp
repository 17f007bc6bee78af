// The floating picture on screen: pasted from the clipboard, dragged, resized, placed; and the
// figure dialogs driven through their boxes.
#include <QApplication>
#include <QClipboard>
#include <QDialog>
#include <QGuiApplication>
#include <QCheckBox>
#include <QLineEdit>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QRadioButton>
#include <QTest>
#include <QTimer>

#include "shell/floating_picture_widget.h"
#include "shell/fractal_window.h"
#include "shell/picture_widget.h"
#include "shell/surface_image.h"
#include "tests/shell/frame_fixture.h"

namespace quillane::testing {
namespace {

constexpr Color Red = RGB(255, 0, 0);

class FloatingPictureTest : public FrameTest {
  protected:
    void SetUp() override {
        dir.write("default.ifs", GoodBlock + OtherBlock);
        open();
        QApplication::processEvents();
        frame->mdiArea()->setActiveSubWindow(subWindowOf(frame->fractalWindow()));
    }
    QMdiSubWindow* subWindowOf(QWidget* w) {
        for (QMdiSubWindow* s : frame->mdiArea()->subWindowList())
            if (s->widget() == w) return s;
        return nullptr;
    }
    FractalPictures& pics() { return frame->state().pics; }
    FloatingPictureWidget& floating() { return *frame->fractalWindow()->floatingPicture(); }
    int countOf(Color c) {
        const RasterSurface& p = pics().picfractal;
        int n = 0;
        for (int r = 0; r < p.height(); ++r)
            for (int k = 0; k < p.width(); ++k) n += p.pixel(k, r) == c;
        return n;
    }
};

TEST_F(FloatingPictureTest, ClipboardRoundTripKeepsEveryPixel) {
    RasterSurface picture(30, 20, White);
    for (int r = 0; r < 20; ++r)
        for (int c = 0; c < 30; ++c) picture.setPixel(c, r, RGB(c * 8, r * 12, 200));
    CopySurfaceToClipboard(picture);
    const std::optional<RasterSurface> back = ClipboardBitmap();
    ASSERT_TRUE(back);
    ASSERT_EQ(back->width(), 30);
    ASSERT_EQ(back->height(), 20);
    for (int r = 0; r < 20; ++r)
        for (int c = 0; c < 30; ++c) ASSERT_EQ(back->pixel(c, r), picture.pixel(c, r)) << c << "," << r;
}

TEST_F(FloatingPictureTest, PasteInDeterministicModeFloatsTheClipboardThenADragMovesItAndEscPlacesIt) {
    RasterSurface red(20, 10, Red);
    red.clear();
    CopySurfaceToClipboard(red);
    item("mnuDrawType(1)")->trigger();
    item("mnuEditPaste")->trigger();
    EXPECT_EQ(wb().DetFigure, 8);
    ASSERT_TRUE(pics().Floating.Visible);
    EXPECT_TRUE(floating().isVisible());
    EXPECT_EQ(floating().geometry(), QRect(pics().Floating.Left, pics().Floating.Top, 20, 10));
    const QPoint start(pics().Floating.Left, pics().Floating.Top);

    // Drag the middle 7 pixels right and 5 down with real mouse events.
    QTest::mousePress(&floating(), Qt::LeftButton, {}, QPoint(10, 5));
    QMouseEvent move(QEvent::MouseMove, QPointF(17, 10), floating().mapToGlobal(QPointF(17, 10)), Qt::NoButton,
                     Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&floating(), &move);
    QTest::mouseRelease(&floating(), Qt::LeftButton, {}, QPoint(17, 10));
    EXPECT_EQ(QPoint(pics().Floating.Left, pics().Floating.Top), start + QPoint(7, 5));
    EXPECT_EQ(pics().picCoord.front(), '(');

    QTest::keyClick(frame->fractalWindow()->picture(), Qt::Key_Escape);
    EXPECT_FALSE(pics().Floating.Visible);
    EXPECT_FALSE(floating().isVisible());
    EXPECT_EQ(countOf(Red), 200);
    EXPECT_EQ(pics().picfractal.pixel(start.x() + 7, start.y() + 5), Red);
}

TEST_F(FloatingPictureTest, DraggingACornerHandleResizesThePicture) {
    RasterSurface red(20, 10, Red);
    red.clear();
    CopySurfaceToClipboard(red);
    item("mnuDrawType(1)")->trigger();
    item("mnuEditPaste")->trigger();
    ASSERT_TRUE(pics().Floating.Visible);
    // The bottom right handle, dragged 10 right and 6 down.
    QTest::mousePress(&floating(), Qt::LeftButton, {}, QPoint(19, 9));
    QMouseEvent move(QEvent::MouseMove, QPointF(29, 15), floating().mapToGlobal(QPointF(29, 15)), Qt::NoButton,
                     Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&floating(), &move);
    QTest::mouseRelease(&floating(), Qt::LeftButton, {}, QPoint(29, 15));
    EXPECT_EQ(pics().Floating.Width, 30);
    EXPECT_EQ(pics().Floating.Height, 16);
    EXPECT_EQ(floating().size(), QSize(30, 16));
    frame->runCommand("mnuPicPastePopUpFinish");
    EXPECT_EQ(countOf(Red), 30 * 16);
}

TEST_F(FloatingPictureTest, PasteBackgroundFloatsInRandomModeAndClearRemovesIt) {
    RasterSurface red(12, 12, Red);
    red.clear();
    CopySurfaceToClipboard(red);
    item("mnuEditPasteBackground")->trigger();
    ASSERT_TRUE(pics().Floating.Visible);
    frame->runCommand("mnuPicPastePopUpFinish");
    EXPECT_EQ(countOf(Red), 144);
    item("mnuDrawClearBGPic")->trigger();
    EXPECT_EQ(countOf(Red), 0);
    EXPECT_FALSE(pics().PictureOverlaid);
}

TEST_F(FloatingPictureTest, AGeneralTriangleIsDrawnFromItsThreeCorners) {
    item("mnuDrawType(1)")->trigger();
    QTimer::singleShot(0, [&] {
        for (QWidget* w : QApplication::topLevelWidgets()) {
            if (w->objectName() != "frmTriangle" || !w->isVisible()) continue;
            w->findChild<QRadioButton*>("optGeneral")->setChecked(true);
            const char* const values[6] = {"0", "0", "2", "0", "0", "1"};
            for (int k = 0; k < 6; ++k)
                w->findChild<QLineEdit*>(QString("txtPoints%1").arg(k))->setText(values[k]);
            static_cast<QDialog*>(w)->accept();
        }
    });
    item("mnuDrawAddFigure(3)")->trigger();
    EXPECT_EQ(wb().DetFigure, 3);
    // The window fits the corners: 2 wide, 1 high, made square.
    EXPECT_LE(wb().Window.xmin, 0.0f);
    EXPECT_GE(wb().Window.xmax, 2.0f);
    const RasterSurface& p = pics().picfractal;
    EXPECT_NE(p.point(1.0, 0.2), White);
    EXPECT_EQ(p.point(1.8, 0.8), White) << "beyond the long side";
}

// Finds the figure dialog `name` once it shows, sets chkColor and answers it.
void answerFigureDialog(const char* name, bool useIFSColors, bool ok) {
    QTimer::singleShot(0, [=] {
        for (QWidget* w : QApplication::topLevelWidgets()) {
            if (w->objectName() != name || !w->isVisible()) continue;
            w->findChild<QCheckBox*>("chkColor")->setChecked(useIFSColors);
            if (ok)
                static_cast<QDialog*>(w)->accept();
            else
                static_cast<QDialog*>(w)->reject();
        }
    });
}

TEST_F(FloatingPictureTest, ThePolygonDialogsColourBoxSetsTheColourItemsOnOkOnly) {
    item("mnuDrawType(1)")->trigger();
    ASSERT_TRUE(wb().menu("mnuDrawDetColorItems(0)").checked);
    answerFigureDialog("frmPolygonDesign", false, false);
    item("mnuDrawAddFigure(0)")->trigger();
    EXPECT_TRUE(wb().menu("mnuDrawDetColorItems(0)").checked) << "Cancel keeps the items";
    EXPECT_FALSE(wb().menu("mnuDrawDetColorItems(1)").checked);
    answerFigureDialog("frmPolygonDesign", false, true);
    item("mnuDrawAddFigure(0)")->trigger();
    EXPECT_FALSE(wb().menu("mnuDrawDetColorItems(0)").checked);
    EXPECT_TRUE(wb().menu("mnuDrawDetColorItems(1)").checked);
    answerFigureDialog("frmCircle", true, true);
    item("mnuDrawAddFigure(6)")->trigger();
    EXPECT_EQ(wb().DetFigure, 6);
    EXPECT_TRUE(wb().menu("mnuDrawDetColorItems(0)").checked);
}

}  // namespace
}  // namespace quillane::testing

namespace quillane::testing {
namespace {

TEST_F(FloatingPictureTest, PasteIntoATextBoxPastesText) {
    QApplication::clipboard()->setText("0.25");
    auto* box = new QLineEdit(frame.get());
    box->show();
    box->setFocus();
    QApplication::processEvents();
    ASSERT_EQ(QApplication::focusWidget(), box);
    frame->runCommand("mnuEditPaste");
    EXPECT_EQ(box->text(), "0.25");
    EXPECT_FALSE(pics().Floating.Visible);
}

}  // namespace
}  // namespace quillane::testing
