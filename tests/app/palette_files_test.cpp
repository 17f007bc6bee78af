// Palette files and the colour commands of the function indexes.
#include "core/palette_files.h"

#include <gtest/gtest.h>

#include "core/scripted_host.h"
#include "tests/core/list_file_fixture.h"
#include "app/code_commands.h"

namespace quillane::testing {
namespace {

std::string lines(const std::string& first, int count, const std::string& rest) {
    std::string text = first;
    for (int i = 1; i < count; ++i) text += rest;
    return text;
}

TEST(PaletteLine, TabsAndCommasReadTheSame) {
    EXPECT_EQ(MapPaletteLine("12,34,56"), RGB(12, 34, 56));
    EXPECT_EQ(MapPaletteLine("12\t34\t56"), RGB(12, 34, 56));
    EXPECT_EQ(MapPaletteLine("12 34 56"), RGB(12, 34, 56));
    EXPECT_EQ(MapPaletteLine("  12,34\t56  "), RGB(12, 34, 56));
}

TEST(PaletteLine, EachOfTheFirstTwoNumbersEndsAtTheFirstBlank) {
    // After ", " becomes two blanks the second number is empty, and the rest, read with its blanks
    // skipped, is the third.
    EXPECT_EQ(MapPaletteLine("1, 2, 3"), RGB(1, 0, 23));
    EXPECT_EQ(MapPaletteLine("300,-5,128"), RGB(255, 0, 128)) << "channels are held to 0..255";
    EXPECT_EQ(MapPaletteLine(""), RGB(0, 0, 0));
}

TEST(MapPalette, WrittenAndReadAgainGivesTheSameColours) {
    FunctionColors colors = FunctionColorDefaults();
    colors[7] = RGB(1, 2, 3);
    colors[99] = RGB(255, 254, 253);
    const std::string text = MapPaletteText(colors);
    EXPECT_EQ(text.substr(0, 9), "255,0,0\r\n");
    EXPECT_EQ(ReadMapPalette(text), colors);
}

TEST(MapPalette, AFileOfFewerThan100LinesIsRefused) {
    EXPECT_FALSE(ReadMapPalette(lines("1,2,3\n", 99, "4,5,6\n")).has_value());
    const auto read = ReadMapPalette(lines("1,2,3\n", 100, "4\t5\t6\n"));
    ASSERT_TRUE(read.has_value());
    EXPECT_EQ((*read)[0], RGB(1, 2, 3));
    EXPECT_EQ((*read)[99], RGB(4, 5, 6));
}

TEST(IfpPalette, OneColourValuePerLine) {
    FunctionColors colors = FunctionColorDefaults();
    colors[3] = RGB(10, 20, 30);
    const std::string text = IfpPaletteText(colors);
    EXPECT_EQ(text.substr(0, 5), "255\r\n");
    EXPECT_EQ(ReadIfpPalette(text), colors);
    EXPECT_FALSE(ReadIfpPalette("255\r\n").has_value());
}

TEST(PaletteCommands, FunctionTwentyHasTheColourOfFunctionZeroByDefault) {
    Workbench wb;
    EXPECT_EQ(wb.FunctionColor[20], wb.FunctionColor[0]);
    EXPECT_EQ(wb.FunctionColor[0], RGB(255, 0, 0));
}

TEST(PaletteCommands, DefaultColorsRestoresTheSettingsColoursNotTheBuiltInTable) {
    Workbench wb;
    wb.FileColors[2] = RGB(9, 9, 9);
    wb.FunctionColor[2] = RGB(1, 1, 1);
    wb.FunctionColor[5] = RGB(2, 2, 2);
    DefaultColors(wb);
    EXPECT_EQ(wb.FunctionColor[2], RGB(9, 9, 9));
    EXPECT_EQ(wb.FunctionColor[5], FunctionColorDefaults()[5]);
}

TEST(PaletteCommands, SameColorRunsFromTheFunctionToTheLastOne) {
    Workbench wb;
    wb.CurrentIFS.nMaps = 4;
    const FunctionColors before = wb.FunctionColor;
    SameColor(wb, 1);
    EXPECT_EQ(wb.FunctionColor[0], before[0]);
    for (int k = 1; k < 4; ++k) EXPECT_EQ(wb.FunctionColor[static_cast<size_t>(k)], before[1]) << k;
    EXPECT_EQ(wb.FunctionColor[4], before[4]) << "beyond the last function";
}

TEST(PaletteCommands, LoadTakesAWholeFileAndSaveAppendsMap) {
    TempDir dir;
    Workbench wb;
    ScriptedHost host;
    FunctionColors colors = FunctionColorDefaults();
    colors[0] = RGB(0, 0, 0);
    host.fileNames.push_back(dir.write("mine.map", MapPaletteText(colors)));
    EXPECT_TRUE(mnuCodeLoadPalette_Click(wb, host));
    EXPECT_EQ(wb.FunctionColor[0], RGB(0, 0, 0));
    EXPECT_TRUE(wb.SettingsChanged);
    ASSERT_EQ(host.dialogs().size(), 1u);
    EXPECT_EQ(host.dialogs()[0].title, "Open Color Palette file");
    EXPECT_EQ(host.dialogs()[0].filters[0].description, "IFS RGB Palette (*.map)");

    host.fileNames.push_back(dir.path("copy"));
    EXPECT_TRUE(mnuCodeSavePalette_Click(wb, host));
    host.fileNames.push_back(dir.path("copy.map"));
    Workbench other;
    EXPECT_TRUE(mnuCodeLoadPalette_Click(other, host));
    EXPECT_EQ(other.FunctionColor, wb.FunctionColor);
}

TEST(PaletteCommands, AShortOrMissingFileLeavesTheColours) {
    TempDir dir;
    Workbench wb;
    ScriptedHost host;
    const FunctionColors before = wb.FunctionColor;
    host.fileNames.push_back(dir.write("short.map", "1,2,3\r\n"));
    EXPECT_FALSE(mnuCodeLoadPalette_Click(wb, host));
    host.fileNames.push_back(dir.path("none.map"));
    EXPECT_FALSE(mnuCodeLoadPalette_Click(wb, host));
    host.fileNames.push_back(std::nullopt);
    EXPECT_FALSE(mnuCodeLoadPalette_Click(wb, host));
    EXPECT_EQ(wb.FunctionColor, before);
    EXPECT_FALSE(wb.SettingsChanged);
}

}  // namespace
}  // namespace quillane::testing
