#include "core/settings_file.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include "core/recent_files.h"
#include "core/workbench.h"
#include "tests/core/list_file_fixture.h"

namespace quillane::testing {
namespace {

// A frame large enough for every default place (twips).
const WindowPlace BigFrame{0, 0, 30000, 20000};

std::vector<std::string> lines(const std::string& text) {
    std::vector<std::string> out;
    std::istringstream in(text);
    for (std::string l; std::getline(in, l);) out.push_back(l);
    return out;
}

std::string joined(const std::vector<std::string>& ls) {
    std::string text;
    for (const std::string& l : ls) text += l + "\n";
    return text;
}

// A workbench whose every setting differs from its default.
Workbench changedSettings() {
    Workbench wb;
    for (int i = 0; i < FunctionColorCount; ++i) wb.FunctionColor[i] = static_cast<Color>(1000 + i);
    for (size_t k = 0; k < wb.TilingColor.size(); ++k) wb.TilingColor[k] = static_cast<Color>(77 + k);
    wb.Windows.functions = {10, 20, 9000, 7000};
    wb.Windows.fractal = {-300, 40, 5000, 5100};  // a negative place is kept as it is
    wb.Windows.design = {6000, 900, 5800, 5900};
    wb.Windows.tilingOptions = {1000, 200, 0, 0};
    wb.Windows.preview = {12000, 10, 3000, 3400};
    wb.Windows.colorStealing = {150, 160, 9000, 6000};
    wb.MainWindowHidden = {false, true, false};
    wb.FractalBackColor = 123456;
    wb.FractalAxisColor = 255;
    wb.DesignBackColor = 65280;
    wb.DesignAxisColor = 16711680;
    wb.Menu.setChecked("mnuEditToolTips", false);
    AddRecentFile(wb, "/data/b.chg");
    AddRecentFile(wb, "/data/a.ifs");
    return wb;
}

SettingsReadResult readText(const std::string& text, Workbench& wb, const WindowPlace& frame = BigFrame) {
    std::istringstream in(text);
    return ReadSettingsText(in, wb, frame);
}

void expectAllDefaults(const Workbench& wb) {
    const Workbench fresh;
    EXPECT_EQ(wb.FunctionColor, fresh.FunctionColorDefaults);
    EXPECT_EQ(wb.TilingColor, fresh.TilingColorDefaults);
    EXPECT_EQ(wb.Windows.functions.width, 10010);
    EXPECT_EQ(wb.Windows.fractal.left, 5610);
    EXPECT_EQ(wb.Windows.design.top, 800);
    EXPECT_EQ(wb.Windows.preview.left, BigFrame.width);
    EXPECT_EQ(wb.FractalBackColor, White);
    EXPECT_EQ(wb.FractalAxisColor, Black);
    EXPECT_EQ(wb.DesignBackColor, White);
    EXPECT_EQ(wb.DesignAxisColor, Black);
    EXPECT_TRUE(wb.menu("mnuEditToolTips").checked);
    EXPECT_EQ(wb.RecentFileCount, 0);
    EXPECT_FALSE(wb.menu(MRUKey(0)).visible);
}

TEST(SettingsFile, TheRecordHasItsFifteenSectionsInOrder) {
    const std::vector<std::string> ls = lines(SettingsText(changedSettings()));
    ASSERT_EQ(ls.size(), 1u + 100 + 3 * 5 + 2 + 2 + 10 + 3 + 5 + 4 + 5 + 2 + 2 + 2 + 7);
    EXPECT_EQ(ls[0], "[IFS Colors]");
    EXPECT_EQ(ls[1], "1000");
    EXPECT_EQ(ls[100], "1099");
    EXPECT_EQ(ls[101], "[Function Window Position]");
    EXPECT_EQ(ls[102], "10");
    EXPECT_EQ(ls[105], "7000");
    EXPECT_EQ(ls[106], "[Fractal Window Position]");
    EXPECT_EQ(ls[107], "-300");
    EXPECT_EQ(ls[111], "[Design Window Position]");
    EXPECT_EQ(ls[116], "[Fractal Window Background Color]");
    EXPECT_EQ(ls[117], "123456");
    EXPECT_EQ(ls[118], "[Fractal Window Axis Color]");
    EXPECT_EQ(ls[120], "[Fractal Tiling Colors]");
    EXPECT_EQ(ls[121], "77");
    EXPECT_EQ(ls[130], "[Tiling Options Window Position]");
    EXPECT_EQ(ls[131], "1000");
    EXPECT_EQ(ls[132], "200");
    EXPECT_EQ(ls[133], "[Preview Window Position]");
    EXPECT_EQ(ls[138], "[Whether main windows are hidden]");
    EXPECT_EQ(ls[139], "0");
    EXPECT_EQ(ls[140], "-1");
    EXPECT_EQ(ls[141], "0");
    EXPECT_EQ(ls[142], "[Color Stealing Window Position]");
    EXPECT_EQ(ls[145], "9000");
    EXPECT_EQ(ls[147], "[Design Window Background Color]");
    EXPECT_EQ(ls[148], "65280");
    EXPECT_EQ(ls[149], "[Design Window Axis Color]");
    EXPECT_EQ(ls[151], "[Show Tool Tips]");
    EXPECT_EQ(ls[152], "0");
    EXPECT_EQ(ls[153], "[Recent Files]");
    EXPECT_EQ(ls[154], "\"/data/a.ifs\"");
    EXPECT_EQ(ls[155], "\"/data/b.chg\"");
    EXPECT_EQ(ls[156], "\"\"");
    EXPECT_EQ(ls[159], "\"\"");
}

TEST(SettingsFile, AFoldedColorStealingWindowIsKeptAtItsFullWidth) {
    Workbench wb = changedSettings();
    wb.ColorStealingTraceFolded = true;
    EXPECT_EQ(lines(SettingsText(wb))[145], "11130");
}

TEST(SettingsFile, WhatIsWrittenReadsBackTheSame) {
    const Workbench written = changedSettings();
    Workbench wb;
    const SettingsReadResult r = readText(SettingsText(written), wb);
    EXPECT_TRUE(r.SettingsRead);
    EXPECT_FALSE(r.SettingsInvalid);
    EXPECT_FALSE(wb.SettingsChanged);
    EXPECT_EQ(wb.FunctionColor, written.FunctionColor);
    EXPECT_EQ(wb.FileColors, written.FunctionColor);
    EXPECT_EQ(wb.TilingColor, written.TilingColor);
    EXPECT_EQ(wb.Windows.functions.right(), written.Windows.functions.right());
    EXPECT_EQ(wb.Windows.fractal.left, -300);
    EXPECT_EQ(wb.Windows.design.bottom(), written.Windows.design.bottom());
    EXPECT_EQ(wb.Windows.tilingOptions.left, 1000);
    EXPECT_EQ(wb.Windows.preview.height, 3400);
    EXPECT_EQ(wb.Windows.colorStealing.top, 160);
    EXPECT_EQ(wb.MainWindowHidden, written.MainWindowHidden);
    EXPECT_EQ(wb.FractalBackColor, 123456u);
    EXPECT_EQ(wb.FractalAxisColor, 255u);
    EXPECT_EQ(wb.DesignBackColor, 65280u);
    EXPECT_EQ(wb.DesignAxisColor, 16711680u);
    EXPECT_FALSE(wb.menu("mnuEditToolTips").checked);
    ASSERT_EQ(wb.RecentFileCount, 2);
    EXPECT_EQ(wb.RecentFiles[0], "/data/a.ifs");
    EXPECT_EQ(wb.RecentFiles[1], "/data/b.chg");
    EXPECT_TRUE(wb.menu(MRUKey(1)).visible);
    EXPECT_FALSE(wb.menu(MRUKey(2)).visible);
    EXPECT_EQ(wb.menu(MRUKey(0)).caption, "/data/a.ifs");
}

TEST(SettingsFile, DeletingTheLastLineLosesOnlyTheRecentFiles) {
    std::vector<std::string> ls = lines(SettingsText(changedSettings()));
    ls.pop_back();
    Workbench wb;
    const SettingsReadResult r = readText(joined(ls), wb);
    EXPECT_TRUE(r.SettingsRead);
    EXPECT_TRUE(r.SettingsInvalid);  // the start then shows the message
    EXPECT_EQ(wb.RecentFileCount, 0);
    EXPECT_FALSE(wb.menu(MRUKey(0)).visible);
    EXPECT_EQ(wb.FunctionColor[5], 1005u);
    EXPECT_EQ(wb.FractalBackColor, 123456u);
    EXPECT_EQ(wb.DesignAxisColor, 16711680u);
    EXPECT_FALSE(wb.menu("mnuEditToolTips").checked);
    EXPECT_EQ(wb.Windows.functions.width, 9000);
}

TEST(SettingsFile, FiftyColoursThenAHeadingDefaultTheRestWithoutComplaint) {
    std::vector<std::string> ls = lines(SettingsText(changedSettings()));
    ls.erase(ls.begin() + 51, ls.begin() + 101);
    Workbench wb;
    const SettingsReadResult r = readText(joined(ls), wb);
    EXPECT_FALSE(r.SettingsInvalid);
    EXPECT_TRUE(wb.SettingsChanged);
    EXPECT_EQ(wb.FunctionColor[49], 1049u);
    for (int i = 50; i < FunctionColorCount; ++i) {
        EXPECT_EQ(wb.FunctionColor[i], wb.FunctionColorDefaults[i]) << i;
        EXPECT_EQ(wb.FileColors[i], wb.FunctionColorDefaults[i]) << i;
    }
    EXPECT_EQ(wb.Windows.functions.width, 9000);
    EXPECT_EQ(wb.RecentFileCount, 2);
}

TEST(SettingsFile, AWindowBeyondTheFrameComesBackIntoIt) {
    Workbench written = changedSettings();
    written.Windows.functions = {40000, 30000, 9000, 7000};
    written.Windows.fractal = {50000, 25000, 5000, 5100};
    written.Windows.design = {45000, 26000, 5800, 5900};
    written.Windows.preview = {60000, 22000, 3000, 3400};
    written.Windows.colorStealing = {41000, 23000, 9000, 6000};
    Workbench wb;
    const WindowPlace frame{0, 0, 19200, 14400};  // a smaller screen than before
    const SettingsReadResult r = readText(SettingsText(written), wb, frame);
    EXPECT_FALSE(r.SettingsInvalid);
    EXPECT_TRUE(wb.SettingsChanged);
    EXPECT_EQ(wb.Windows.functions.left, 0);
    EXPECT_EQ(wb.Windows.functions.top, 0);
    EXPECT_EQ(wb.Windows.fractal.left, 9000 - 5000 + 800);
    EXPECT_EQ(wb.Windows.fractal.top, 0);
    EXPECT_EQ(wb.Windows.design.left, 9000 - 5000 + 800);
    EXPECT_EQ(wb.Windows.design.top, 5100 - 5900 + 800);
    EXPECT_EQ(wb.Windows.preview.left, 19200);
    EXPECT_EQ(wb.Windows.preview.top, 0);
    EXPECT_EQ(wb.Windows.colorStealing.left, 100);
    EXPECT_EQ(wb.Windows.colorStealing.top, 100);
    // Sizes are kept.
    EXPECT_EQ(wb.Windows.design.width, 5800);
}

TEST(SettingsFile, AHugeOrNegativeWindowSizeIsHeldToTheFrame) {
    Workbench written = changedSettings();
    written.Windows.functions = {-2000000000, 0, 2000000000, 2000000000};
    written.Windows.design = {100, 100, -500, 2147483647};
    Workbench wb;
    const WindowPlace frame{0, 0, 19200, 14400};
    EXPECT_FALSE(readText(SettingsText(written), wb, frame).SettingsInvalid);
    EXPECT_TRUE(wb.SettingsChanged);
    EXPECT_EQ(wb.Windows.functions.width, 19200);
    EXPECT_EQ(wb.Windows.functions.height, 14400);
    EXPECT_EQ(wb.Windows.functions.left, -2000000000);  // a negative place is kept as it is
    EXPECT_EQ(wb.Windows.design.width, 0);
    EXPECT_EQ(wb.Windows.design.height, 14400);
    const WindowPlace e = MainWindowsExtent(wb.Windows);
    EXPECT_LE(e.width, 2 * 19200);
    EXPECT_LE(e.height, 2 * 14400);
}

TEST(SettingsFile, AWindowInsideTheFrameChangesNothing) {
    Workbench wb;
    readText(SettingsText(changedSettings()), wb);
    EXPECT_FALSE(wb.SettingsChanged);
}

TEST(SettingsFile, AWrongFirstHeadingGivesEveryDefault) {
    std::vector<std::string> ls = lines(SettingsText(changedSettings()));
    ls[0] = "[IFS Colours]";
    Workbench wb;
    const SettingsReadResult r = readText(joined(ls), wb);
    EXPECT_TRUE(r.SettingsRead);
    EXPECT_TRUE(r.SettingsInvalid);
    expectAllDefaults(wb);
}

TEST(SettingsFile, AHeadingIsComparedTrimmed) {
    std::vector<std::string> ls = lines(SettingsText(changedSettings()));
    ls[0] = "  [IFS Colors]  \r";
    ls[101] = "   [Function Window Position] ";
    Workbench wb;
    EXPECT_FALSE(readText(joined(ls), wb).SettingsInvalid);
    EXPECT_EQ(wb.Windows.functions.width, 9000);
}

TEST(SettingsFile, ANegativeColourStopsAndEverythingIsDefault) {
    for (size_t at : {size_t{3}, size_t{117}, size_t{125}}) {
        std::vector<std::string> ls = lines(SettingsText(changedSettings()));
        ls[at] = "-5";
        Workbench wb;
        EXPECT_TRUE(readText(joined(ls), wb).SettingsInvalid) << at;
        expectAllDefaults(wb);
    }
}

TEST(SettingsFile, ANegativeDesignColourDefaultsOnlyTheLaterSections) {
    std::vector<std::string> ls = lines(SettingsText(changedSettings()));
    ls[148] = "-1";
    Workbench wb;
    EXPECT_TRUE(readText(joined(ls), wb).SettingsInvalid);
    EXPECT_EQ(wb.DesignBackColor, White);
    EXPECT_EQ(wb.DesignAxisColor, Black);
    EXPECT_TRUE(wb.menu("mnuEditToolTips").checked);
    EXPECT_EQ(wb.RecentFileCount, 0);
    // What came before stays.
    EXPECT_EQ(wb.Windows.colorStealing.left, 150);
    EXPECT_EQ(wb.MainWindowHidden[1], true);
    EXPECT_EQ(wb.FractalBackColor, 123456u);
}

// A file cut short at every line: in the first eight sections all is default; from the preview
// section on, what was read stays and the later sections take their defaults; always invalid.
TEST(SettingsFile, AFileCutShortInEachSection) {
    const std::vector<std::string> all = lines(SettingsText(changedSettings()));
    for (size_t keep = 0; keep < all.size(); ++keep) {
        const std::vector<std::string> ls(all.begin(), all.begin() + static_cast<long>(keep));
        Workbench wb;
        const SettingsReadResult r = readText(joined(ls), wb);
        EXPECT_TRUE(r.SettingsInvalid) << keep;
        if (keep < 133) {
            expectAllDefaults(wb);
            continue;
        }
        EXPECT_EQ(wb.FunctionColor[7], 1007u) << keep;
        EXPECT_EQ(wb.Windows.tilingOptions.left, 1000) << keep;
        EXPECT_EQ(wb.Windows.preview.width, keep >= 138 ? 3000 : 2925) << keep;
        EXPECT_EQ(wb.MainWindowHidden[1], keep >= 142) << keep;
        EXPECT_EQ(wb.Windows.colorStealing.left, keep >= 147 ? 150 : 100) << keep;
        EXPECT_EQ(wb.DesignBackColor, keep >= 151 ? 65280u : White) << keep;
        EXPECT_EQ(wb.menu("mnuEditToolTips").checked, keep < 153) << keep;
        EXPECT_EQ(wb.RecentFileCount, 0) << keep;
    }
}

TEST(SettingsFile, AMissingFileIsNotReadAndAsksToBeWritten) {
    TempDir dir;
    Workbench wb = changedSettings();
    const SettingsReadResult r = ReadSettingsFile(dir.path("none.ini"), wb, BigFrame);
    EXPECT_FALSE(r.SettingsRead);
    EXPECT_TRUE(r.SettingsInvalid);
    expectAllDefaults(wb);
}

TEST(SettingsFile, WritingReplacesTheFileWhole) {
    TempDir dir;
    const std::string path = dir.path(SettingsFileName);
    dir.write(SettingsFileName, "old text that is longer than nothing\n");
    ASSERT_TRUE(WriteSettingsFile(path, changedSettings()));
    std::ifstream in(path, std::ios::binary);
    std::stringstream text;
    text << in.rdbuf();
    EXPECT_EQ(text.str(), SettingsText(changedSettings()));
    EXPECT_FALSE(std::filesystem::exists(path + ".new"));
    Workbench wb;
    EXPECT_FALSE(ReadSettingsFile(path, wb, BigFrame).SettingsInvalid);
    EXPECT_EQ(wb.RecentFiles[0], "/data/a.ifs");
}

// The kernel's process folder refuses new files even to the superuser, as a read-only program
// folder does.
TEST(SettingsFile, AnUnwritableFolderLosesTheSettingsQuietly) {
    EXPECT_FALSE(WriteSettingsFile(std::string("/proc/") + SettingsFileName, changedSettings()));
    EXPECT_FALSE(std::filesystem::exists(std::string("/proc/") + SettingsFileName));
}

TEST(SettingsFile, AFileWhereTheFolderShouldBeIsAFailureToo) {
    TempDir dir;
    dir.write("plain", "x");
    EXPECT_FALSE(WriteSettingsFile(dir.path("plain") + "/" + SettingsFileName, changedSettings()));
}

TEST(SettingsFile, ALiveWindowThatMovedMarksTheSettingsChanged) {
    Workbench wb;
    wb.SettingsChanged = false;
    const WindowPositions p = wb.Windows;
    TakeLiveWindows(wb, p.functions, p.fractal, p.design, {false, false, false});
    EXPECT_FALSE(wb.SettingsChanged);
    WindowPlace moved = p.design;
    moved.left += 15;
    TakeLiveWindows(wb, p.functions, p.fractal, moved, {false, false, false});
    EXPECT_TRUE(wb.SettingsChanged);
    EXPECT_EQ(wb.Windows.design.left, p.design.left + 15);
    wb.SettingsChanged = false;
    TakeLiveWindows(wb, p.functions, p.fractal, moved, {true, false, false});
    EXPECT_TRUE(wb.SettingsChanged);
    EXPECT_TRUE(wb.MainWindowHidden[0]);
}

}  // namespace
}  // namespace quillane::testing
