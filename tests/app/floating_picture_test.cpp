// The picture over the fractal window: floating, moved, resized, placed, lifted and cleared.
#include "render/floating_picture.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "fractal_view_fixture.h"
#include "render/image_file.h"
#include "tests/core/list_file_fixture.h"
#include "app/background_commands.h"

namespace quillane {
namespace {

constexpr Color Red = RGB(255, 0, 0), Blue = RGB(0, 0, 255);

// A picture whose left half is red and right half blue.
RasterSurface halves(int width, int height) {
    RasterSurface p(width, height, White);
    for (int r = 0; r < height; ++r)
        for (int c = 0; c < width; ++c) p.setPixel(c, r, c < width / 2 ? Red : Blue);
    return p;
}

int countOf(const RasterSurface& s, Color c) {
    int n = 0;
    for (Color p : pixelsOf(s)) n += p == c;
    return n;
}

struct Floating : ::testing::Test, ViewBench {
    Floating() : ViewBench(SierpinskiTriangleIFS(), {0, 4, 0, 4}, 100) {}
};

TEST_F(Floating, ASmallPictureFloatsAtItsOwnSizeInTheMiddle) {
    FloatPicture(pics, halves(20, 10));
    EXPECT_TRUE(pics.Floating.Visible);
    EXPECT_EQ(pics.Floating.Width, 20);
    EXPECT_EQ(pics.Floating.Height, 10);
    EXPECT_EQ(pics.Floating.Left, 40);
    EXPECT_EQ(pics.Floating.Top, 45);
    EXPECT_EQ(pics.picPaste.width(), 20);
    EXPECT_EQ(countOf(pics.picfractal, Red), 0) << "floating is not placed";
}

TEST_F(Floating, ALargePictureShrinksToFitWithItsProportions) {
    FloatPicture(pics, halves(400, 200));
    EXPECT_EQ(pics.Floating.Width, 100);
    EXPECT_EQ(pics.Floating.Height, 50);
    EXPECT_EQ(pics.picImagePaste.width(), 400) << "the own size is kept for later resizes";
    EXPECT_EQ(countOf(pics.picPaste, Red), 50 * 50);
}

TEST_F(Floating, PlacingPaintsTheThreePicturesAndRemembersTheWorldPosition) {
    FloatPicture(pics, halves(20, 10));
    PlaceFractalSelection(wb, pics);
    EXPECT_FALSE(pics.Floating.Visible);
    EXPECT_TRUE(pics.PictureOverlaid);
    for (const RasterSurface* s : {&pics.picfractal, &pics.picImage2, &pics.picImage3}) {
        EXPECT_EQ(countOf(*s, Red), 100);
        EXPECT_EQ(s->pixel(40, 45), Red);
        EXPECT_EQ(s->pixel(59, 54), Blue);
        EXPECT_EQ(s->pixel(60, 54), White);
    }
    int64_t c = 0, r = 0;
    ASSERT_TRUE(pics.picfractal.toPixel(pics.PasteX, pics.PasteY, c, r));
    EXPECT_EQ(c, 40);
    EXPECT_EQ(r, 45);
    // Placing again does nothing: nothing floats.
    pics.picfractal.clear();
    PlaceFractalSelection(wb, pics);
    EXPECT_EQ(countOf(pics.picfractal, Red), 0);
}

TEST_F(Floating, APlacedPictureComesBackAtEveryRestartOfARandomDrawing) {
    FloatPicture(pics, halves(20, 10));
    PlaceFractalSelection(wb, pics);
    stopRunsAfter(1);
    PlayGame(wb, pics, host, 1, 0);
    EXPECT_GT(countOf(pics.picfractal, Red) + countOf(pics.picfractal, Blue), 150);
}

TEST_F(Floating, CornersAreShownInWorldUnits) {
    FloatPicture(pics, halves(20, 10));
    // 25 pixels to a unit: left 40 is x 1.6, top 45 is y 4 - 1.8.
    EXPECT_EQ(PasteCornersText(pics), "(1.600,2.200) (2.400,1.800)");
}

TEST_F(Floating, TheMiddleMovesAndEachHandleMovesItsEdges) {
    FloatPicture(pics, halves(20, 10));
    const FloatingPicture f = pics.Floating;  // 40, 45, 20 x 10
    EXPECT_EQ(GrabHandleAt(f, 40, 45), 0);
    EXPECT_EQ(GrabHandleAt(f, 50, 45), 1);
    EXPECT_EQ(GrabHandleAt(f, 59, 45), 2);
    EXPECT_EQ(GrabHandleAt(f, 59, 50), 3);
    EXPECT_EQ(GrabHandleAt(f, 59, 54), 4);
    EXPECT_EQ(GrabHandleAt(f, 50, 54), 5);
    EXPECT_EQ(GrabHandleAt(f, 40, 54), 6);
    EXPECT_EQ(GrabHandleAt(f, 40, 50), 7);
    EXPECT_EQ(GrabHandleAt(f, 45, 50), HandleMiddle);
    EXPECT_EQ(GrabHandleAt(f, 10, 10), HandleNone);

    FloatingPicture moved = DragFloating(f, HandleMiddle, -5, 7);
    EXPECT_EQ(moved.Left, 35);
    EXPECT_EQ(moved.Top, 52);
    EXPECT_EQ(moved.Width, 20);
    FloatingPicture wider = DragFloating(f, 3, 10, 99);
    EXPECT_EQ(wider.Left, 40);
    EXPECT_EQ(wider.Width, 30);
    EXPECT_EQ(wider.Height, 10) << "the right handle leaves the height";
    FloatingPicture corner = DragFloating(f, 0, 4, -6);
    EXPECT_EQ(corner.Left, 44);
    EXPECT_EQ(corner.Top, 39);
    EXPECT_EQ(corner.Width, 16);
    EXPECT_EQ(corner.Height, 16);
    FloatingPicture flat = DragFloating(f, 5, 0, -50);
    EXPECT_EQ(flat.Height, 1) << "never less than a pixel";
    EXPECT_EQ(flat.Top, 45);
}

TEST_F(Floating, AResizeRebuildsThePictureFromItsOwnSize) {
    FloatPicture(pics, halves(20, 10));
    SetFloatingRect(pics, DragFloating(pics.Floating, 4, 20, 10));
    EXPECT_EQ(pics.picPaste.width(), 40);
    EXPECT_EQ(pics.picPaste.height(), 20);
    EXPECT_EQ(countOf(pics.picPaste, Red), 400);
    EXPECT_EQ(pics.picCoord, PasteCornersText(pics));
}

TEST_F(Floating, EscPlacesAFloatingPicture) {
    FloatPicture(pics, halves(20, 10));
    EXPECT_TRUE(FractalKeyDown(wb, pics, host, KeyEsc, 0));
    EXPECT_TRUE(pics.PictureOverlaid);
    EXPECT_EQ(countOf(pics.picfractal, Red), 100);
}

TEST_F(Floating, CtrlAltRTogglesTheResizeHandles) {
    FloatPicture(pics, halves(20, 10));
    EXPECT_TRUE(FractalKeyDown(wb, pics, host, KeyR, ShiftMaskCtrl | ShiftMaskAlt));
    EXPECT_FALSE(pics.Floating.ResizeHandles);
    EXPECT_FALSE(wb.menu("mnuPicPastePopUpResize").checked);
    EXPECT_TRUE(FractalKeyDown(wb, pics, host, KeyR, ShiftMaskCtrl | ShiftMaskAlt));
    EXPECT_TRUE(wb.menu("mnuPicPastePopUpResize").checked);
    PlaceFractalSelection(wb, pics);
    EXPECT_FALSE(FractalKeyDown(wb, pics, host, KeyR, ShiftMaskCtrl | ShiftMaskAlt)) << "nothing floats";
}

TEST_F(Floating, TheMouseDoesNotOverwriteTheCornersWhileAPictureFloats) {
    FloatPicture(pics, halves(20, 10));
    pics.picCoord = PasteCornersText(pics);
    FractalMouseMove(wb, pics, 1, 1);
    EXPECT_EQ(pics.picCoord, "(1.600,2.200) (2.400,1.800)");
    PlaceFractalSelection(wb, pics);
    FractalMouseMove(wb, pics, 1, 1);
    EXPECT_EQ(pics.picCoord, "(1.000,1.000)");
}

TEST_F(Floating, AnArrowKeyReprintsTheCornersOfTheFloatingPicture) {
    FloatPicture(pics, halves(20, 10));
    EXPECT_TRUE(FractalKeyDown(wb, pics, host, KeyRight, 0));
    EXPECT_EQ(pics.picCoord, PasteCornersText(pics));
    EXPECT_NE(pics.picCoord, "(1.600,2.200) (2.400,1.800)");
}

TEST_F(Floating, ClearBackgroundPictureForgetsIt) {
    FloatPicture(pics, halves(20, 10));
    PlaceFractalSelection(wb, pics);
    mnuDrawClearBGPic_Click(wb, pics);
    EXPECT_FALSE(pics.PictureOverlaid);
    EXPECT_FALSE(pics.Floating.Visible);
    EXPECT_EQ(countOf(pics.picfractal, Red), 0);
    stopRunsAfter(1);
    PlayGame(wb, pics, host, 1, 0);
    EXPECT_EQ(countOf(pics.picfractal, Red), 0);
}

// Ctrl+Delete keeps a placed picture by floating it again where it was, with its corners printed;
// Delete places a floating picture, and drops a placed one.
TEST_F(Floating, CtrlDeleteFloatsAPlacedPictureAgainAndDeleteDropsIt) {
    FloatPicture(pics, halves(20, 10));
    const FloatingPicture placedAt = pics.Floating;
    PlaceFractalSelection(wb, pics);
    pics.picCoord.clear();
    EXPECT_TRUE(FractalKeyDown(wb, pics, host, KeyDelete, ShiftMaskCtrl));
    EXPECT_TRUE(pics.Floating.Visible);
    EXPECT_EQ(pics.Floating.Left, placedAt.Left);
    EXPECT_EQ(pics.Floating.Top, placedAt.Top);
    EXPECT_EQ(pics.picCoord, PasteCornersText(pics));
    EXPECT_FALSE(pics.picCoord.empty());
    EXPECT_EQ(countOf(pics.picfractal, Red), 0);
    EXPECT_TRUE(FractalKeyDown(wb, pics, host, KeyDelete, 0));
    EXPECT_FALSE(pics.Floating.Visible);
    EXPECT_TRUE(pics.PictureOverlaid);
    EXPECT_EQ(countOf(pics.picfractal, Red), 100);
    EXPECT_TRUE(FractalKeyDown(wb, pics, host, KeyDelete, 0));
    EXPECT_FALSE(pics.PictureOverlaid);
    EXPECT_EQ(countOf(pics.picfractal, Red), 0);
}

TEST_F(Floating, DrawPlacesAFloatingPictureFirst) {
    FloatPicture(pics, halves(20, 10));
    stopRunsAfter(1);
    mnuRun_Click(wb, pics, host);
    EXPECT_FALSE(pics.Floating.Visible);
    EXPECT_TRUE(pics.PictureOverlaid);
}

TEST_F(Floating, PasteBackgroundNeedsABitmapAndNoDrawing) {
    mnuEditPasteBackground_Click(wb, pics, nullptr);
    EXPECT_FALSE(pics.Floating.Visible);
    const RasterSurface clip = halves(8, 8);
    wb.DrawingActive = true;
    mnuEditPasteBackground_Click(wb, pics, &clip);
    EXPECT_FALSE(pics.Floating.Visible);
    wb.DrawingActive = false;
    mnuEditPasteBackground_Click(wb, pics, &clip);
    EXPECT_TRUE(pics.Floating.Visible);
    EXPECT_EQ(pics.Floating.Width, 8);
}

TEST_F(Floating, LoadBackgroundPictureOffersItsFiltersAndFloatsTheFile) {
    testing::TempDir dir;
    const std::string path = dir.path("background.png");
    std::string error;
    ASSERT_TRUE(SaveImageFile(halves(12, 6), path, error)) << error;
    host.fileNames.push_back(path);
    mnuDrawLoadPicture_Click(wb, pics, host);
    ASSERT_EQ(host.dialogs().size(), 1u);
    EXPECT_EQ(host.dialogs()[0].title, "Open Image File");
    EXPECT_EQ(host.dialogs()[0].filters[3].description, "JPG images (*.jpg, *.jpeg)");
    EXPECT_TRUE(pics.Floating.Visible);
    EXPECT_EQ(pics.Floating.Width, 12);
    EXPECT_EQ(countOf(pics.picPaste, Red), 36);
}

TEST_F(Floating, LoadBackgroundPictureCancelledOrUnreadableChangesNothing) {
    host.fileNames.push_back(std::nullopt);
    mnuDrawLoadPicture_Click(wb, pics, host);
    EXPECT_FALSE(pics.Floating.Visible);
    EXPECT_TRUE(host.shown().empty());
    host.fileNames.push_back(std::string("/nonexistent/nothing.png"));
    mnuDrawLoadPicture_Click(wb, pics, host);
    EXPECT_FALSE(pics.Floating.Visible);
    ASSERT_EQ(host.shown().size(), 1u);
    EXPECT_EQ(host.shown()[0].title, "Error");
}

TEST(PasteData, EachBoxHasItsOwnMessage) {
    PasteDataText t{"1", "2", "3", "4", 0};
    EXPECT_EQ(CheckPasteData(t), "");
    t.txtX = "1+";
    EXPECT_EQ(CheckPasteData(t), "Cannot evaluate expression for x  ");
    t.txtX = "1";
    t.txtY = "(";
    EXPECT_EQ(CheckPasteData(t), "Cannot evaluate expression for y  ");
    t.txtY = "2";
    t.txtWidth = "0";
    EXPECT_EQ(CheckPasteData(t), "Cannot evaluate expression for weight  ");
    t.txtWidth = "x";
    EXPECT_EQ(CheckPasteData(t), "Cannot evaluate expression for weight  ");
    t.txtWidth = "3";
    t.txtHeight = "-1";
    EXPECT_EQ(CheckPasteData(t), "Cannot evaluate expression for height  ");
}

TEST_F(Floating, PasteDataPlacesByAnyCorner) {
    FloatPicture(pics, halves(20, 10));
    const PasteDataText shown = PasteDataFor(pics, 0);
    EXPECT_EQ(shown.txtX, "1.600");
    EXPECT_EQ(shown.txtY, "2.200");
    EXPECT_EQ(shown.txtWidth, "0.800");
    EXPECT_EQ(shown.txtHeight, "0.400");
    // The bottom right corner at (2, 1), 1.2 wide and 0.4 high.
    ApplyPasteData(pics, PasteDataText{"2", "1", "1.2", "0.4", 3});
    EXPECT_EQ(pics.Floating.Left, 20);
    EXPECT_EQ(pics.Floating.Top, 65);
    EXPECT_EQ(pics.Floating.Width, 30);
    EXPECT_EQ(pics.Floating.Height, 10);
    EXPECT_EQ(pics.picPaste.width(), 30);
}

}  // namespace
}  // namespace quillane
