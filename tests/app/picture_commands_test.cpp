#include "app/picture_commands.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include "core/scripted_host.h"
#include "core/workbench.h"
#include "design/design_pictures.h"
#include "render/image_file.h"
#include "tests/core/list_file_fixture.h"

namespace quillane {
namespace {

using testing::TempDir;

RasterSurface marked() {
    RasterSurface p(12, 8, White);
    p.setPixel(0, 0, RGB(255, 0, 0));
    p.setPixel(11, 7, RGB(0, 0, 255));
    return p;
}

TEST(PictureFileName, ANameEndingInTheExtensionInAnyCaseGetsNoSecondOne) {
    EXPECT_EQ(PictureFileNameFor("fern.GIF", 1), "fern.GIF");
    EXPECT_EQ(PictureFileNameFor("fern.png", 2), "fern.png");
    EXPECT_EQ(PictureFileNameFor("fern.Jpg", 3), "fern.Jpg");
    EXPECT_EQ(PictureFileNameFor("fern.bmp", 4), "fern.bmp");
}

TEST(PictureFileName, ANameWithAnotherExtensionGetsTheFiltersBehindIt) {
    EXPECT_EQ(PictureFileNameFor("fern.png", 1), "fern.png.gif");
    EXPECT_EQ(PictureFileNameFor("fern", 3), "fern.jpg");
    EXPECT_EQ(PictureFileNameFor("fern.jpeg", 3), "fern.jpeg.jpg");
}

TEST(SaveFractal, TheDialogHasTheTitleAndTheFourFiltersInOrder) {
    ScriptedHost host;
    int filter = 1;
    EXPECT_FALSE(SavePictureCommand(marked(), host, SaveFractalTitle, filter));
    ASSERT_EQ(host.dialogs().size(), 1u);
    EXPECT_EQ(host.dialogs()[0].title, "Save Fractal Image");
    const auto f = host.dialogs()[0].filters;
    ASSERT_EQ(f.size(), 4u);
    EXPECT_EQ(f[0].description, "GIF images (*.gif)");
    EXPECT_EQ(f[1].description, "PNG images (*.png)");
    EXPECT_EQ(f[2].description, "JPEG images (*.jpg)");
    EXPECT_EQ(f[3].description, "Bitmap images (*.bmp)");
    EXPECT_TRUE(host.shown().empty());
}

TEST(SaveFractal, EachFilterWritesItsFormatAndTheBitmapReadsBackExactly) {
    TempDir dir;
    for (int filter = 1; filter <= 4; ++filter) {
        ScriptedHost host;
        const std::string base = dir.path("picture" + std::to_string(filter));
        host.fileNames.push_back(base);
        host.filters.push_back(filter);
        int last = 1;
        ASSERT_TRUE(SavePictureCommand(marked(), host, SaveFractalTitle, last)) << filter;
        EXPECT_EQ(last, filter);
        const std::string path = PictureFileNameFor(base, filter);
        ASSERT_TRUE(std::filesystem::exists(path)) << path;
        RasterSurface back;
        std::string error;
        ASSERT_TRUE(LoadImageFile(path, back, error)) << error;
        EXPECT_EQ(back.width(), 12);
        EXPECT_EQ(back.height(), 8);
        if (filter != 3) {  // JPEG is lossy
            EXPECT_EQ(back.pixel(0, 0), RGB(255, 0, 0));
            EXPECT_EQ(back.pixel(11, 7), RGB(0, 0, 255));
            EXPECT_EQ(back.pixel(5, 5), White);
        }
    }
}

// The dialog opens on the filter chosen last time, by either title, until the program ends; a
// cancelled dialog changes nothing.
TEST(SaveFractal, TheDialogRemembersItsFilter) {
    TempDir dir;
    ScriptedHost host;
    int remembered = 1;
    host.fileNames.push_back(dir.path("first"));
    host.filters.push_back(2);
    ASSERT_TRUE(SavePictureCommand(marked(), host, SaveFractalTitle, remembered));
    EXPECT_EQ(remembered, 2);
    host.fileNames.push_back(std::nullopt);
    EXPECT_FALSE(SavePictureCommand(marked(), host, SaveImageTitle, remembered));
    EXPECT_EQ(remembered, 2);
    ASSERT_EQ(host.dialogs().size(), 2u);
    EXPECT_EQ(host.dialogs()[0].initialFilter, 1);
    EXPECT_EQ(host.dialogs()[1].initialFilter, 2);
    EXPECT_EQ(host.dialogs()[1].folderKey, host.dialogs()[0].folderKey);
}

TEST(SaveFractal, AFailedWriteSaysImageSaveFailed) {
    TempDir dir;
    ScriptedHost host;
    host.fileNames.push_back(dir.path("no-such-folder/inside/picture"));
    host.filters.push_back(4);
    int filter = 1;
    EXPECT_FALSE(SavePictureCommand(marked(), host, SaveImageTitle, filter));
    EXPECT_EQ(host.shown(), (std::vector<ShownMessage>{{"Error", "Image save failed"}}));
    EXPECT_EQ(host.dialogs()[0].title, "Save Image");
}

TEST(SaveDesign, TheNameOffersTheIFSAndTheWindowShownIsSaved) {
    TempDir dir;
    Workbench wb;
    DesignPictures d;
    d.resize(20, 10, White);
    d.picdesign.setPixel(3, 4, RGB(255, 0, 0));
    d.picCGDesign.setPixel(5, 6, RGB(0, 0, 255));
    wb.CurrentIFS.Name = "Fern ";
    EXPECT_EQ(DesignPictureName(wb), "Fern design");
    ScriptedHost host;
    host.fileNames.push_back(dir.path("ifs"));
    host.filters.push_back(4);
    ASSERT_TRUE(mnuFileSaveDesign_Click(wb, d, host));
    ASSERT_EQ(host.dialogs().size(), 1u);
    EXPECT_EQ(host.dialogs()[0].title, "Save Design Image");
    EXPECT_EQ(host.dialogs()[0].initialName, "Fern design");
    EXPECT_EQ(host.dialogs()[0].filters.size(), 4u);
    RasterSurface back(1, 1);
    std::string error;
    ASSERT_TRUE(LoadImageFile(dir.path("ifs.bmp"), back, error)) << error;
    EXPECT_EQ(back.width(), 20);
    EXPECT_EQ(back.pixel(3, 4), RGB(255, 0, 0));
    // A chaos game saves the chaos game's picture, named so.
    wb.DesignMode = 1;
    EXPECT_EQ(DesignPictureName(wb), "Fern CG design");
    host.fileNames.push_back(dir.path("cg"));
    host.filters.push_back(4);
    ASSERT_TRUE(mnuFileSaveDesign_Click(wb, d, host));
    ASSERT_TRUE(LoadImageFile(dir.path("cg.bmp"), back, error)) << error;
    EXPECT_EQ(back.pixel(5, 6), RGB(0, 0, 255));
    EXPECT_EQ(back.pixel(3, 4), White);
}

}  // namespace
}  // namespace quillane
