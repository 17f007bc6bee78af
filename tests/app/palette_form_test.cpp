// The palette editor: its two panels, the index box and its files.
#include "app/palette_commands.h"

#include <gtest/gtest.h>

#include "core/palette_files.h"
#include "core/scripted_host.h"
#include "tests/core/list_file_fixture.h"

namespace quillane::testing {
namespace {

FunctionColors ramp() {
    FunctionColors c{};
    for (int i = 0; i < FunctionColorCount; ++i) c[static_cast<size_t>(i)] = RGB(i, 2 * i, 255 - i);
    return c;
}

TEST(PaletteForm, StartsWithTheFunctionColoursOnTheRight) {
    AppState s;
    s.wb.FunctionColor[3] = RGB(1, 2, 3);
    const PaletteForm f = mnuCodeEditPalette_Click(s.wb);
    EXPECT_EQ(f.Target, s.wb.FunctionColor);
    EXPECT_FALSE(f.SourceLoaded);
    EXPECT_EQ(f.Index, 1);
}

TEST(PaletteForm, ALeftClickCopiesToTheIndexSetByARightClick) {
    TempDir dir;
    ScriptedHost host;
    AppState s;
    PaletteForm f = mnuCodeEditPalette_Click(s.wb);
    EXPECT_FALSE(picSource_Click(f, 5));  // nothing loaded yet
    dir.write("src.map", MapPaletteText(ramp()));
    host.fileNames = {dir.path("src.map")};
    ASSERT_TRUE(cmdLoadPalette_Click(f, host));
    const FileDialogRequest& r = host.dialogs().back();
    ASSERT_EQ(r.filters.size(), 3u);
    EXPECT_EQ(r.filters[0].description, "All Palettes (*.map; *.ifp)");
    EXPECT_EQ(r.filters[1].description, "IFS RGB Palette (*.map)");
    EXPECT_EQ(r.filters[2].description, "IFS Classic Palette (*.ifp)");
    picTarget_Click(f, 9);
    EXPECT_EQ(f.Index, 10);
    EXPECT_TRUE(picSource_Click(f, 5));
    EXPECT_EQ(f.Target[9], RGB(5, 10, 250));
    EXPECT_EQ(f.Target[8], s.wb.FunctionColor[8]);
}

TEST(PaletteForm, ADoubleClickRemovesTheColour) {
    AppState s;
    PaletteForm f = mnuCodeEditPalette_Click(s.wb);
    picTarget_DblClick(f, 0);
    EXPECT_EQ(f.Target[0], RemovedPaletteColor);
}

TEST(PaletteForm, TheIndexBoxTakesOneToOneHundred) {
    ScriptedHost host;
    AppState s;
    PaletteForm f = mnuCodeEditPalette_Click(s.wb);
    EXPECT_TRUE(txtIndex_Change(f, host, "100"));
    EXPECT_EQ(f.Index, 100);
    for (const char* bad : {"0", "101", "", "x", "-3"}) {
        EXPECT_FALSE(txtIndex_Change(f, host, bad)) << bad;
        EXPECT_EQ(f.Index, 100);
    }
    ASSERT_EQ(host.shown().size(), 5u);
    EXPECT_EQ(host.shown()[0].text, "Index must be between 1 and 100");
}

TEST(PaletteForm, ABadFileIsRefusedWithItsMessage) {
    TempDir dir;
    ScriptedHost host;
    AppState s;
    PaletteForm f = mnuCodeEditPalette_Click(s.wb);
    dir.write("short.map", "1,2,3\n");
    dir.write("other.txt", MapPaletteText(ramp()));
    host.fileNames = {dir.path("short.map"), dir.path("other.txt")};
    EXPECT_FALSE(cmdLoadPalette_Click(f, host));
    EXPECT_FALSE(cmdLoadPalette_Click(f, host));
    EXPECT_FALSE(f.SourceLoaded);
    ASSERT_EQ(host.shown().size(), 2u);
    EXPECT_EQ(host.shown()[0].text, "Not a valid IFS palette file.");
    EXPECT_EQ(host.shown()[1].text, "Not a valid IFS palette file.");
}

TEST(PaletteForm, SavesMapOrIfpByExtensionAndRefusesAnother) {
    TempDir dir;
    ScriptedHost host;
    AppState s;
    PaletteForm f = mnuCodeEditPalette_Click(s.wb);
    f.Target = ramp();
    host.fileNames = {dir.path("a.ifp"), dir.path("b"), dir.path("c.txt")};
    EXPECT_TRUE(cmdSavePalette_Click(f, host));
    EXPECT_EQ(host.dialogs().back().title, "Save Map file");
    EXPECT_TRUE(cmdSavePalette_Click(f, host));
    EXPECT_FALSE(cmdSavePalette_Click(f, host));
    ASSERT_EQ(host.shown().size(), 1u);
    EXPECT_EQ(host.shown()[0].text, "Extension must end in .map or .ifp");
    EXPECT_EQ(ReadIfpPalette(TempDir::read(dir.path("a.ifp"))), ramp());
    EXPECT_EQ(ReadMapPalette(TempDir::read(dir.path("b.map"))), ramp());
    // The .ifp file loads back into the left panel.
    host.fileNames = {dir.path("a.ifp")};
    ASSERT_TRUE(cmdLoadPalette_Click(f, host));
    EXPECT_EQ(f.Source, ramp());
}

TEST(PaletteForm, AcceptGivesTheRightPaletteToTheFunctions) {
    AppState s;
    PaletteForm f = mnuCodeEditPalette_Click(s.wb);
    f.Target = ramp();
    cmdAccept_Click(s, f);
    EXPECT_EQ(s.wb.FunctionColor, ramp());
    EXPECT_TRUE(s.wb.SettingsChanged);
}

}  // namespace
}  // namespace quillane::testing
