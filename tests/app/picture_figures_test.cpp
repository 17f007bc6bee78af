// Pictures as the initial set of the deterministic drawing: a file, the clipboard, placing, lifting.
#include "render/picture_figures.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include "fractal_view_fixture.h"
#include "tests/core/list_file_fixture.h"
#include "render/deterministic.h"
#include "render/floating_picture.h"
#include "render/image_file.h"
#include "app/deterministic_commands.h"
#include "app/figure_commands.h"

namespace quillane {
namespace {

constexpr Color Red = RGB(255, 0, 0), Blue = RGB(0, 0, 255);
constexpr WorldWindow UnitView{0, 1, 0, 1};

RasterSurface solid(int width, int height, Color c) {
    RasterSurface p(width, height, c);
    p.clear();
    return p;
}

int countOf(const RasterSurface& s, Color c) {
    int n = 0;
    for (Color p : pixelsOf(s)) n += p == c;
    return n;
}

struct PictureFigures : ::testing::Test, ViewBench {
    InitialFigures figs;
    testing::TempDir dir;
    std::string path = dir.path("figure.png");

    PictureFigures() : ViewBench(SierpinskiTriangleIFS(), UnitView, 100) {
        wb.Menu.setChecked(MenuTable::key("mnuDrawDetColorItems", 0), true);
        wb.Menu.setChecked(MenuTable::key("mnuDrawDetColorItems", 1), false);
        mnuDrawType_Click(wb, pics, host, 1);
        std::string error;
        EXPECT_TRUE(SaveImageFile(solid(100, 100, Red), path, error)) << error;
    }

    void chooseFile() {
        host.fileNames.push_back(path);
        mnuDrawAddFigure_Click(wb, pics, host, figs, PictureFileFigure);
    }
};

TEST_F(PictureFigures, APictureFileFloatsUntilItIsPlacedAndThenIsLevelZero) {
    chooseFile();
    EXPECT_EQ(wb.DetFigure, 7);
    EXPECT_TRUE(wb.menu(MenuTable::key("mnuDrawAddFigure", 7)).checked);
    EXPECT_FALSE(wb.menu(MenuTable::key("mnuDrawAddFigure", 0)).checked);
    EXPECT_TRUE(pics.Floating.Visible);
    EXPECT_EQ(countOf(pics.picfractal, Red), 0);
    EXPECT_EQ(pics.picCount, "0");
    PlaceFractalSelection(wb, pics);
    EXPECT_EQ(countOf(pics.picImage3, Red), 100 * 100);
}

TEST_F(PictureFigures, APictureTurnsOnImageColoursAndADrawnFigureBringsTheChoiceBack) {
    chooseFile();
    EXPECT_FALSE(wb.menu(MenuTable::key("mnuDrawDetColorItems", 0)).checked);
    EXPECT_TRUE(wb.menu(MenuTable::key("mnuDrawDetColorItems", 1)).checked);
    mnuDrawAddFigure_Click(wb, pics, host, figs, 6);  // no figure drawer here: an empty figure
    EXPECT_TRUE(wb.menu(MenuTable::key("mnuDrawDetColorItems", 0)).checked);
    EXPECT_FALSE(wb.menu(MenuTable::key("mnuDrawDetColorItems", 1)).checked);
    EXPECT_FALSE(pics.Floating.Visible) << "a drawn figure drops the picture";
    EXPECT_FALSE(pics.PictureOverlaid);
}

TEST_F(PictureFigures, TheDialogsColourBoxShowsTheChoiceADrawnFigureWillHave) {
    EXPECT_TRUE(FigureUsesIFSColors(wb, figs));
    chooseFile();
    EXPECT_FALSE(wb.menu(MenuTable::key("mnuDrawDetColorItems", 0)).checked);
    EXPECT_TRUE(FigureUsesIFSColors(wb, figs)) << "the remembered choice comes back with a drawn figure";
}

TEST_F(PictureFigures, ThePersonsColourChoiceReplacesTheRememberedOne) {
    chooseFile();
    SetFigureColorChoice(wb, figs, false);
    EXPECT_FALSE(wb.menu(MenuTable::key("mnuDrawDetColorItems", 0)).checked);
    EXPECT_TRUE(wb.menu(MenuTable::key("mnuDrawDetColorItems", 1)).checked);
    FigureColorItems(wb, figs, 3);
    EXPECT_FALSE(wb.menu(MenuTable::key("mnuDrawDetColorItems", 0)).checked);
    SetFigureColorChoice(wb, figs, true);
    EXPECT_TRUE(wb.menu(MenuTable::key("mnuDrawDetColorItems", 0)).checked);
    EXPECT_FALSE(wb.menu(MenuTable::key("mnuDrawDetColorItems", 1)).checked);
}

TEST_F(PictureFigures, CancellingTheFileDialogLeavesFigureAndPicture) {
    chooseFile();
    PlaceFractalSelection(wb, pics);
    const RasterSurface before = pics.picfractal;
    host.fileNames.push_back(std::nullopt);
    mnuDrawAddFigure_Click(wb, pics, host, figs, PictureFileFigure);
    EXPECT_EQ(wb.DetFigure, 7);
    EXPECT_TRUE(pics.PictureOverlaid);
    EXPECT_EQ(pixelsOf(pics.picfractal), pixelsOf(before));
    EXPECT_TRUE(host.shown().empty());
}

TEST_F(PictureFigures, AnEmptyNameSaysErrorSelectingFileAndKeepsTheFormerFigure) {
    ResetDetFigure(wb, 3);
    host.fileNames.push_back(std::string());
    mnuDrawAddFigure_Click(wb, pics, host, figs, PictureFileFigure);
    EXPECT_EQ(wb.DetFigure, 3);
    EXPECT_EQ(host.shown(), (std::vector<ShownMessage>{{"Error", "Error selecting file."}}));
}

TEST_F(PictureFigures, AFileThatIsNoPictureIsRefusedWithAMessage) {
    {
        std::ofstream(path, std::ios::binary) << "not a picture";
    }
    host.fileNames.push_back(path);
    mnuDrawAddFigure_Click(wb, pics, host, figs, PictureFileFigure);
    EXPECT_EQ(wb.DetFigure, 0);
    EXPECT_FALSE(pics.Floating.Visible);
    ASSERT_EQ(host.shown().size(), 1u);
    EXPECT_EQ(host.shown()[0].title, "Error");
}

TEST_F(PictureFigures, ALevelOfAPhotographShowsSmallCopiesInItsOwnColours) {
    chooseFile();
    PlaceFractalSelection(wb, pics);
    Iterate(wb, pics, host, -1);
    EXPECT_EQ(wb.IterationNumber, 1);
    const int red = countOf(pics.picfractal, Red);
    // Three half-size copies of a full square: about three quarters, less the dropped frame.
    EXPECT_GT(red, 7000);
    EXPECT_LT(red, 7600);
    EXPECT_EQ(pics.picfractal.point(0.9, 0.9), White) << "no copy reaches the top right corner";
    EXPECT_EQ(pics.picfractal.point(0.1, 0.9), White);
}

TEST_F(PictureFigures, TheClipboardFigureTakesTheClipboardsBitmap) {
    mnuDrawAddFigure_Click(wb, pics, host, figs, ClipboardFigure);
    EXPECT_EQ(wb.DetFigure, 0) << "no clipboard: nothing happens";
    pics.Det.ClipboardBitmap = [] { return std::optional<RasterSurface>(solid(10, 20, Blue)); };
    EXPECT_TRUE(PasteFractalFigure(wb, pics, host, figs));
    EXPECT_EQ(wb.DetFigure, 8);
    EXPECT_TRUE(wb.menu(MenuTable::key("mnuDrawAddFigure", 8)).checked);
    EXPECT_TRUE(pics.Floating.Visible);
    EXPECT_EQ(pics.Floating.Width, 10);
    EXPECT_EQ(pics.Floating.Height, 20);
    EXPECT_FALSE(PasteFractalFigure(wb, pics, host, figs)) << "not while a picture floats";
}

TEST_F(PictureFigures, PasteIsRefusedInRandomMode) {
    pics.Det.ClipboardBitmap = [] { return std::optional<RasterSurface>(solid(10, 20, Blue)); };
    mnuDrawType_Click(wb, pics, host, 0);
    EXPECT_FALSE(PasteFractalFigure(wb, pics, host, figs));
    EXPECT_FALSE(pics.Floating.Visible);
}

TEST_F(PictureFigures, EscAtLevelZeroLiftsThePlacedPictureAgain) {
    pics.Det.ClipboardBitmap = [] { return std::optional<RasterSurface>(solid(10, 20, Blue)); };
    PasteFractalFigure(wb, pics, host, figs);
    SetFloatingRect(pics, DragFloating(pics.Floating, HandleMiddle, -30, -20));
    EXPECT_TRUE(FractalKeyDown(wb, pics, host, KeyEsc, 0));  // places
    EXPECT_TRUE(pics.PictureOverlaid);
    EXPECT_EQ(countOf(pics.picImage3, Blue), 200);
    EXPECT_TRUE(FractalKeyDown(wb, pics, host, KeyEsc, 0));  // lifts
    EXPECT_TRUE(pics.Floating.Visible);
    EXPECT_FALSE(pics.PictureOverlaid);
    EXPECT_EQ(pics.Floating.Left, 15);
    EXPECT_EQ(pics.Floating.Top, 20);
    EXPECT_EQ(countOf(pics.picfractal, Blue), 0);
    EXPECT_EQ(pics.picCoord, PasteCornersText(pics));
    // After a level the picture stays where it is.
    PlaceFractalSelection(wb, pics);
    Iterate(wb, pics, host, -1);
    EXPECT_FALSE(FractalKeyDown(wb, pics, host, KeyEsc, 0));
    EXPECT_FALSE(pics.Floating.Visible);
}

TEST_F(PictureFigures, ADigitKeyPlacesAFloatingPictureBeforeItsLevel) {
    chooseFile();
    EXPECT_TRUE(FractalKeyDown(wb, pics, host, '1', 0));
    EXPECT_FALSE(pics.Floating.Visible);
    EXPECT_EQ(wb.IterationNumber, 1);
    EXPECT_GT(countOf(pics.picfractal, Red), 2000);
}

TEST_F(PictureFigures, ScaleToFitKeepsThePlacedPicturesPixels) {
    pics.Det.ClipboardBitmap = [] { return std::optional<RasterSurface>(solid(10, 20, Blue)); };
    PasteFractalFigure(wb, pics, host, figs);
    PlaceFractalSelection(wb, pics);
    const std::vector<Color> before = pixelsOf(pics.picfractal);
    wb.AttractorXMin = -3, wb.AttractorXMax = 5, wb.AttractorYMin = -3, wb.AttractorYMax = 5;
    CalcScaleDeterministic(wb, pics, host);
    EXPECT_NE(wb.Window, UnitView) << "the window changed";
    EXPECT_EQ(pixelsOf(pics.picfractal), before);
}

TEST(DefaultPicture, TheFirstOfJpgGifPngBmpThatExists) {
    testing::TempDir temp;
    const std::filesystem::path dir = temp.path("");
    EXPECT_EQ(DefaultPictureFile(dir.string()), "");
    std::string error;
    ASSERT_TRUE(SaveImageFile(solid(4, 4, Blue), (dir / "default.png").string(), error));
    ASSERT_TRUE(SaveImageFile(solid(4, 4, Red), (dir / "default.bmp").string(), error));
    EXPECT_EQ(DefaultPictureFile(dir.string()), (dir / "default.png").string());
    ASSERT_TRUE(SaveImageFile(solid(4, 4, Red), (dir / "default.gif").string(), error));
    EXPECT_EQ(DefaultPictureFile(dir.string()), (dir / "default.gif").string());
    RasterSurface picture;
    EXPECT_TRUE(LoadCSImageFile(dir.string(), "png", picture));
    EXPECT_EQ(picture.pixel(1, 1), Blue);
    EXPECT_FALSE(LoadCSImageFile(dir.string(), "jpg", picture));
    EXPECT_EQ(picture.pixel(1, 1), Blue) << "a failed load leaves the picture";
}

}  // namespace
}  // namespace quillane
