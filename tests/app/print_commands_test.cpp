#include "app/print_commands.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>

#include "core/workbench.h"
#include "render/image_file.h"
#include "render/raster_surface.h"
#include "tests/core/list_file_fixture.h"

namespace quillane {
namespace {

using testing::Messages;
using testing::TempDir;

// A printer that keeps the pages it was given.
class PagesKept final : public PagePrinter {
  public:
    bool begin(bool landscape, PrintSheet& sheet, std::string&) override {
        sheet = landscape ? PrintSheet{11, 8.5} : PrintSheet{8.5, 11};
        started = true;
        return true;
    }
    bool page(const PrintPage& p, std::string& error) override {
        if (failAt == static_cast<int>(pages.size())) {
            error = "out of paper";
            return false;
        }
        pages.push_back(p);
        return true;
    }
    bool end(std::string&) override {
        ended = true;
        return true;
    }
    void abort() override { aborted = true; }
    std::vector<PrintPage> pages;
    bool started = false, ended = false, aborted = false;
    int failAt = -1;
};

class Printing : public ::testing::Test {
  protected:
    Printing() : fractal(120, 100), design(100, 100) {
        wb.CurrentIFS.nMaps = 3;
        for (int i = 0; i < 3; ++i) {
            wb.CurrentIFS.a[i] = 0.5f;
            wb.CurrentIFS.d[i] = 0.5f;
            wb.CurrentIFS.p[i] = i == 2 ? 0.333334f : 0.333333f;
        }
        wb.CurrentIFS.e[1] = 0.5f;
    }
    bool print(const PrintRequest& r) {
        return PrintIFS(wb, fractal, design, r, host, printer, [this](const std::string& s) { statuses.push_back(s); });
    }
    Workbench wb;
    ScriptedHost host;
    PagesKept printer;
    RasterSurface fractal, design;
    std::vector<std::string> statuses;
    TempDir dir;
};

TEST_F(Printing, NothingChosenIsRefused) {
    PrintRequest r;
    EXPECT_FALSE(print(r));
    EXPECT_EQ(host.shown(), (Messages{{"Error", "Choose what to print"}}));
    EXPECT_FALSE(printer.started);
    // Text chosen with none of its parts is nothing too.
    r.text = true;
    r.parts = {false, false, false};
    host.clear();
    EXPECT_FALSE(print(r));
    EXPECT_EQ(host.shown(), (Messages{{"Error", "Choose what to print"}}));
}

TEST_F(Printing, TheTextGoesToAFileWithTxtAdded) {
    PrintRequest r;
    r.text = true;
    r.parts = {true, true, false};
    r.toFile = true;
    host.fileNames = {dir.path("codes")};
    EXPECT_TRUE(print(r));
    ASSERT_EQ(host.dialogs().size(), 1u);
    EXPECT_EQ(host.dialogs()[0].title, "Print to File");
    ASSERT_EQ(host.dialogs()[0].filters.size(), 1u);
    EXPECT_EQ(host.dialogs()[0].filters[0].description, "Text files (*.txt)");
    EXPECT_EQ(host.dialogs()[0].filters[0].pattern, "*.txt");
    std::ifstream in(dir.path("codes.txt"), std::ios::binary);
    std::stringstream text;
    text << in.rdbuf();
    EXPECT_EQ(text.str(), TextPrintMatrix(wb.CurrentIFS) + TextPrintRotation(wb.CurrentIFS));
    EXPECT_FALSE(printer.started);
}

TEST_F(Printing, AFileNameEndingInTxtIsKeptAsItIs) {
    PrintRequest r;
    r.text = true;
    r.toFile = true;
    host.fileNames = {dir.path("codes.TXT")};
    EXPECT_TRUE(print(r));
    EXPECT_TRUE(std::filesystem::exists(dir.path("codes.TXT")));
    EXPECT_FALSE(std::filesystem::exists(dir.path("codes.TXT.txt")));
}

TEST_F(Printing, CancelInTheFileDialogWritesNothing) {
    PrintRequest r;
    r.text = true;
    r.toFile = true;
    host.fileNames = {std::nullopt};
    EXPECT_FALSE(print(r));
    EXPECT_EQ(host.shown(), Messages{});
}

TEST_F(Printing, SideBySideNeedsThePapersWidth) {
    PrintRequest r;
    r.fractal = r.design = true;
    r.sideBySide = true;
    r.sideInches = 4;  // 4 + 0.25 + 4 is more than 8.5 less two margins
    EXPECT_FALSE(print(r));
    EXPECT_EQ(host.shown(),
              (Messages{{"Warning", "The paper is not wide enough for\nside by side printing of images."}}));
    EXPECT_TRUE(printer.aborted);
    EXPECT_TRUE(printer.pages.empty());
    // Lying across, the paper is wide enough.
    host.clear();
    r.landscape = true;
    EXPECT_TRUE(print(r));
    ASSERT_EQ(printer.pages.size(), 1u);
    ASSERT_EQ(printer.pages[0].pictures.size(), 2u);
    EXPECT_DOUBLE_EQ(printer.pages[0].pictures[1].x, 0.75 + 4 + 0.25);
    EXPECT_DOUBLE_EQ(printer.pages[0].pictures[0].y, printer.pages[0].pictures[1].y);
}

TEST_F(Printing, PicturesThenTextFlowOverPagesAndEachPageIsReported) {
    PrintRequest r;
    r.fractal = r.design = r.text = true;
    r.parts = {true, true, false};
    r.sideInches = 4;
    EXPECT_TRUE(print(r));
    ASSERT_EQ(printer.pages.size(), 2u);
    const PrintPage& first = printer.pages[0];
    ASSERT_EQ(first.pictures.size(), 2u);
    EXPECT_EQ(first.pictures[0].picture, &fractal);
    EXPECT_DOUBLE_EQ(first.pictures[0].width, 4);
    EXPECT_DOUBLE_EQ(first.pictures[0].height, 4.0 * 100 / 120);  // proportions kept
    EXPECT_EQ(first.pictures[1].picture, &design);
    EXPECT_DOUBLE_EQ(first.pictures[1].y, 0.75 + 4 + 0.25);
    // The text begins below the pictures and goes on on the next page.
    ASSERT_FALSE(first.lines.empty());
    EXPECT_EQ(first.lines[0].text, "Matrix Form");
    EXPECT_GT(first.lines[0].baseline, 0.75 + 2 * 4.25);
    for (const PageLine& l : first.lines) EXPECT_LE(l.baseline, 11 - 0.75 + 1e-9);
    const size_t lines = first.lines.size() + printer.pages[1].lines.size();
    EXPECT_EQ(lines, 10u);  // per form: heading, three rows, empty line
    EXPECT_EQ(printer.pages[1].lines[0].baseline, 0.75 + PrintLineInches);
    EXPECT_EQ(statuses, (std::vector<std::string>{"Printing page", "Printing page", ""}));
    EXPECT_TRUE(printer.ended);
}

TEST_F(Printing, APrinterFaultIsShownUnderPrinterError) {
    PrintRequest r;
    r.fractal = true;
    printer.failAt = 0;
    EXPECT_FALSE(print(r));
    EXPECT_EQ(host.shown(), (Messages{{"Printer Error", "out of paper"}}));
}

TEST(PrintSide, UpAndDownGoByHalfInchesWithinOneToTen) {
    EXPECT_DOUBLE_EQ(PrintSideUp(3), 3.5);
    EXPECT_DOUBLE_EQ(PrintSideUp(10), 10);
    EXPECT_DOUBLE_EQ(PrintSideDown(3), 2.5);
    EXPECT_DOUBLE_EQ(PrintSideDown(1), 1);
}

// The PDF of our own writer, turned into a picture by the system's PDF renderer, shows the fractal
// picture where the layout put it and the text in black.
TEST_F(Printing, APdfWithoutAPrinterShowsThePicture) {
    if (std::system("command -v pdftoppm >/dev/null 2>&1") != 0) GTEST_FAIL() << "pdftoppm is missing";
    RasterSurface picture(144, 144);
    picture.box(0, 0, 71, 143, RGB(200, 0, 0), true);  // left half red
    PrintRequest r;
    r.fractal = true;
    r.text = true;
    r.sideInches = 2;
    const std::string pdf = dir.path("print.pdf");
    PdfPrinter printer(pdf);
    ASSERT_TRUE(PrintIFS(wb, picture, design, r, host, printer, nullptr));
    const std::string png = dir.path("page");
    ASSERT_EQ(std::system(("pdftoppm -r 72 -png -singlefile '" + pdf + "' '" + png + "'").c_str()), 0);
    RasterSurface page(1, 1);
    std::string error;
    ASSERT_TRUE(LoadImageFile(png + ".png", page, error)) << error;
    EXPECT_EQ(page.width(), 612);
    EXPECT_EQ(page.height(), 792);
    // The picture stands at 0.75 inch (54 points) from the top left, two inches (144 points) wide.
    const Color inRed = page.pixel(54 + 30, 54 + 70);
    const Color inWhite = page.pixel(54 + 110, 54 + 70);
    EXPECT_GT(RedOf(inRed), 150);
    EXPECT_LT(GreenOf(inRed), 60);
    EXPECT_GT(GreenOf(inWhite), 240);
    // The text below the picture puts dark pixels on its lines.
    int dark = 0;
    for (int y = 54 + 144; y < 54 + 144 + 100; ++y)
        for (int x = 54; x < 500; ++x)
            if (GreenOf(page.pixel(x, y)) < 100) ++dark;
    EXPECT_GT(dark, 100);
}

}  // namespace
}  // namespace quillane
