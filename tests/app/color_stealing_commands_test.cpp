// frmColorStealing's commands: the list, the picture and its fit, the trace, the files and paste.
#include "app/color_stealing_commands.h"

#include <gtest/gtest.h>

#include "core/sample_systems.h"
#include "core/scripted_host.h"
#include "core/unit_square_ifs.h"
#include "render/image_file.h"
#include "tests/core/list_file_fixture.h"

namespace quillane::testing {
namespace {

// Four quarters in four colours, so a fitted copy can be checked by its corners.
RasterSurface quarters(int width, int height) {
    RasterSurface s(width, height);
    for (int r = 0; r < height; ++r)
        for (int c = 0; c < width; ++c) {
            const bool right = c >= width / 2, low = r >= height / 2;
            s.setPixel(
                c, r,
                low ? (right ? RGB(0, 0, 255) : RGB(0, 255, 0)) : (right ? RGB(255, 0, 0) : RGB(9, 9, 9)));
        }
    return s;
}

class ColorStealingCommands : public ::testing::Test {
  protected:
    ColorStealingCommands() {
        wb.CurrentIFS = SierpinskiTriangleIFS();
        wb.txtMaps = "3";
        wb.Rng.pin(5);
        f.picTestWidth = 100;
        f.picTestHeight = 80;
    }
    void write(const std::string& name, const RasterSurface& picture) {
        std::string error;
        ASSERT_TRUE(SaveImageFile(picture, dir.path(name), error)) << error;
    }
    Workbench wb;
    ColorStealingState cs;
    ColorStealingForm f;
    ScriptedHost host;
    TempDir dir;
};

TEST_F(ColorStealingCommands, TheOpenDialogHasItsTitleAndFiltersExactly) {
    host.fileNames.push_back(std::nullopt);
    EXPECT_FALSE(cmdFile_Click(wb, cs, f, host));
    ASSERT_EQ(host.dialogs().size(), 1u);
    const FileDialogRequest& r = host.dialogs()[0];
    EXPECT_EQ(r.title, "Open Image File");
    const std::vector<std::pair<std::string, std::string>> expected = {
        {"Images (*.gif; *.png; *.jpg; *.jpeg; *.bmp)", "*.bmp;*.gif;*.jpg;*.jpeg;*.png"},
        {"GIF images (*.gif)", "*.gif"},
        {"PNG images (*.png)", "*.png"},
        {"JPEG images (*.jpg; *.jpeg)", "*.jpg; *.jpeg"},
        {"Bitmap images (*.bmp)", "*.bmp"}};
    ASSERT_EQ(r.filters.size(), expected.size());
    for (size_t k = 0; k < expected.size(); ++k) {
        EXPECT_EQ(r.filters[k].description, expected[k].first);
        EXPECT_EQ(r.filters[k].pattern, expected[k].second);
    }
    EXPECT_EQ(f.picHidden.width(), 0);
}

TEST_F(ColorStealingCommands, APictureIsShrunkToTheAreaWithItsProportionsKept) {
    int w = 0, h = 0;
    FitStealingPicture(400, 100, 100, 80, w, h);  // by the width
    EXPECT_EQ(w, 100);
    EXPECT_EQ(h, 25);
    FitStealingPicture(100, 400, 100, 80, w, h);  // by the height
    EXPECT_EQ(w, 20);
    EXPECT_EQ(h, 80);
    FitStealingPicture(300, 200, 100, 80, w, h);  // the width first, then the height
    EXPECT_EQ(w, 100);
    EXPECT_EQ(h, 66);
    FitStealingPicture(40, 30, 100, 80, w, h);  // a small picture keeps its size
    EXPECT_EQ(w, 40);
    EXPECT_EQ(h, 30);
}

TEST_F(ColorStealingCommands, AChosenPictureIsFittedAndStretchedOverTheUnitSquare) {
    write("big.png", quarters(400, 200));
    host.fileNames.push_back(dir.path("big.png"));
    ConfigureComboList(wb, cs, f);
    ASSERT_TRUE(cmdFile_Click(wb, cs, f, host));
    EXPECT_EQ(f.picHidden.width(), 400);
    ASSERT_EQ(cs.picImage.width(), 100);
    ASSERT_EQ(cs.picImage.height(), 50);
    // The unit square's attractor fills the square; 0.001 more on each side, no rounding.
    EXPECT_NEAR(cs.CSWindow.xmin, -0.001, 2e-3);
    EXPECT_NEAR(cs.CSWindow.xmax, 1.001, 2e-3);
    EXPECT_NEAR(cs.CSWindow.ymin, -0.001, 2e-3);
    EXPECT_NEAR(cs.CSWindow.ymax, 1.001, 2e-3);
    // Read through the world window: top left is dark, bottom right blue.
    EXPECT_EQ(cs.picImage.point(0.1f, 0.9f), RGB(9, 9, 9));
    EXPECT_EQ(cs.picImage.point(0.9f, 0.9f), RGB(255, 0, 0));
    EXPECT_EQ(cs.picImage.point(0.1f, 0.1f), RGB(0, 255, 0));
    EXPECT_EQ(cs.picImage.point(0.9f, 0.1f), RGB(0, 0, 255));
    EXPECT_EQ(cs.picImage.point(1.5f, 0.5f), NoColor);  // off the picture: no colour
}

TEST_F(ColorStealingCommands, AnUnreadablePictureIsReportedAndChangesNothing) {
    dir.write("broken.png", "not a picture");
    write("good.png", quarters(20, 10));
    host.fileNames.push_back(dir.path("good.png"));
    ASSERT_TRUE(cmdFile_Click(wb, cs, f, host));
    host.fileNames.push_back(dir.path("broken.png"));
    EXPECT_FALSE(cmdFile_Click(wb, cs, f, host));
    ASSERT_EQ(host.shown().size(), 1u);
    EXPECT_EQ(host.shown()[0].title, "Error");
    EXPECT_EQ(host.shown()[0].text.rfind("The picture could not be read.\n", 0), 0u);
    EXPECT_EQ(f.picHidden.width(), 20);
    EXPECT_EQ(cs.picImage.width(), 20);
}

TEST_F(ColorStealingCommands, TheDefaultPictureIsTheFirstOfJpgGifPngBmp) {
    EXPECT_FALSE(LoadDefaultStealingPicture(wb, cs, f, dir.path("")));
    EXPECT_EQ(f.picHidden.width(), 0);
    write("default.bmp", quarters(30, 20));
    write("default.png", quarters(60, 40));
    ASSERT_TRUE(LoadDefaultStealingPicture(wb, cs, f, dir.path("")));
    EXPECT_EQ(f.picHidden.width(), 60);  // png comes before bmp
    write("default.gif", quarters(16, 8));
    ASSERT_TRUE(LoadDefaultStealingPicture(wb, cs, f, dir.path("")));
    EXPECT_EQ(f.picHidden.width(), 16);
    EXPECT_EQ(cs.picImage.width(), 16);
}

TEST_F(ColorStealingCommands, TheShippedDefaultPictureLoads) {
    ASSERT_TRUE(LoadDefaultStealingPicture(wb, cs, f, QUILLANE_DATA_DIR));
    EXPECT_GT(f.picHidden.width(), 100);
    EXPECT_EQ(cs.picImage.width(), 100);
}

TEST_F(ColorStealingCommands, TheTraceIsACopyOfThePictureShownInItsPlace) {
    f.picHidden = quarters(40, 40);
    ConfigureComboList(wb, cs, f);
    SetColorStealingWindows(wb, cs, f);
    EXPECT_EQ(&ShownStealingPicture(cs), &cs.picImage);
    chkTrace_Click(cs, true);
    EXPECT_EQ(&ShownStealingPicture(cs), &cs.picTrace);
    ASSERT_EQ(cs.picTrace.width(), 40);
    EXPECT_EQ(cs.picTrace.point(0.9f, 0.1f), RGB(0, 0, 255));  // the same world as picImage
    chkTrace_Click(cs, false);
    EXPECT_EQ(&ShownStealingPicture(cs), &cs.picImage);
}

TEST_F(ColorStealingCommands, ChoosingAColouringIFSTakesTheDotsOffTheTrace) {
    f.picHidden = quarters(40, 40);
    ConfigureComboList(wb, cs, f);
    SetColorStealingWindows(wb, cs, f);
    chkTrace_Click(cs, true);
    cs.picTrace.setPixel(3, 3, RGB(1, 2, 3));
    listColoringIFS_Click(wb, cs, f, 0);
    EXPECT_EQ(cs.picTrace.pixel(3, 3), RGB(9, 9, 9));
}

TEST_F(ColorStealingCommands, TheListOffersTheSameSizeEntriesAndCopiesTheChosenOne) {
    wb.FractalList[1] = GridIFS(4);
    wb.FractalList[1].Name = "Grid";
    wb.FractalList[2] = SierpinskiTriangleIFS();
    wb.FractalList[2].Name = "Gasket";
    wb.FractalList[2].e[1] = 2;  // a wider attractor than the unit square
    wb.NamesItemCount = 5 + 2;
    wb.SelectedIFS = 2;
    ConfigureComboList(wb, cs, f);
    ASSERT_EQ(f.listColoringIFS.size(), 2u);
    EXPECT_EQ(f.listColoringIFS[0].title, "Unit Square  ");
    EXPECT_EQ(f.listColoringIFS[1].title, "Gasket");
    EXPECT_EQ(f.ListIndex, 0);
    EXPECT_EQ(cs.ColoringIFS, UnitSquareIFS(wb.CurrentIFS, 3));
    listColoringIFS_Click(wb, cs, f, 1);
    EXPECT_EQ(f.ListIndex, 1);
    EXPECT_EQ(cs.ColoringIFS, wb.FractalList[2]);
    EXPECT_GT(cs.CSWindow.xmax, 2.0f);
    listColoringIFS_Click(wb, cs, f, 7);  // no such line
    EXPECT_EQ(f.ListIndex, 1);
    // Refresh goes back to the first line.
    cmdRefresh_Click(wb, cs, f);
    EXPECT_EQ(f.ListIndex, 0);
    EXPECT_EQ(cs.ColoringIFS.Name, "Unit Square  ");
}

TEST_F(ColorStealingCommands, EqualScaleGivesThePicturesProportions) {
    f.picHidden = quarters(200, 100);
    ConfigureComboList(wb, cs, f);
    SetColorStealingWindows(wb, cs, f);
    chkMethod_Click(wb, cs, true);
    const double w = cs.CSWindow.xmax - cs.CSWindow.xmin, h = cs.CSWindow.ymax - cs.CSWindow.ymin;
    EXPECT_NEAR(w / h, 2.0, 1e-4);
    chkMethod_Click(wb, cs, false);
    EXPECT_NEAR(cs.CSWindow.xmax - cs.CSWindow.xmin, cs.CSWindow.ymax - cs.CSWindow.ymin, 4e-3);
}

TEST_F(ColorStealingCommands, PasteTakesAClipboardBitmapOnly) {
    ConfigureComboList(wb, cs, f);
    EXPECT_FALSE(PasteStealingPicture(wb, cs, f, std::nullopt));
    EXPECT_EQ(f.picHidden.width(), 0);
    wb.DrawingActive = true;
    EXPECT_FALSE(PasteStealingPicture(wb, cs, f, quarters(50, 20)));
    wb.DrawingActive = false;
    ASSERT_TRUE(PasteStealingPicture(wb, cs, f, quarters(50, 20)));
    EXPECT_EQ(f.picHidden.width(), 50);
    EXPECT_EQ(cs.picImage.width(), 50);
    EXPECT_EQ(cs.picImage.point(0.9f, 0.1f), RGB(0, 0, 255));
}

TEST_F(ColorStealingCommands, SaveWritesTheTracePicture) {
    f.picHidden = quarters(40, 40);
    ConfigureComboList(wb, cs, f);
    SetColorStealingWindows(wb, cs, f);
    chkTrace_Click(cs, true);
    cs.picTrace.setPixel(0, 0, RGB(1, 2, 3));
    int filter = 2;  // PNG
    host.fileNames.push_back(dir.path("trace"));
    ASSERT_TRUE(cmdSave_Click(cs, host, filter));
    RasterSurface back;
    std::string error;
    ASSERT_TRUE(LoadImageFile(dir.path("trace.png"), back, error)) << error;
    EXPECT_EQ(back.pixel(0, 0), RGB(1, 2, 3));
    EXPECT_EQ(back.pixel(39, 39), RGB(0, 0, 255));
}

TEST_F(ColorStealingCommands, TheTraceColourComesFromTheColourDialog) {
    host.colors.push_back(RGB(200, 10, 10));
    EXPECT_TRUE(picTraceColor_Click(cs, host));
    EXPECT_EQ(cs.picTraceColor, RGB(200, 10, 10));
    host.colors.push_back(std::nullopt);
    EXPECT_FALSE(picTraceColor_Click(cs, host));
    EXPECT_EQ(cs.picTraceColor, RGB(200, 10, 10));
}

}  // namespace
}  // namespace quillane::testing
