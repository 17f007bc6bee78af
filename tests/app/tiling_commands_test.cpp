#include "app/tiling_commands.h"

#include <gtest/gtest.h>

#include "app/design_view.h"
#include "app/tiling_settings.h"
#include "core/menu_tree.h"
#include "core/sample_systems.h"
#include "core/scripted_host.h"
#include "render/scale.h"

namespace quillane::testing {
namespace {

class TilingCommandsTest : public ::testing::Test {
  protected:
    void SetUp() override {
        InitializeMenuState(s.wb.Menu);
        s.wb.Rng.pin(3);
        s.pics.resize(64, White);
        s.design.resize(120, 120, s.wb.DesignBackColor);
        ApplyDesignWindow(s.design, s.wb.DesignWindow);
        s.wb.CurrentIFS = SierpinskiTriangleIFS();
        s.wb.CurrentIFS.Name = "Triangle";
        s.wb.txtMaps = "3";
        s.wb.FunctionsCaption = "IFS [Triangle]";
        setscale(s.wb, host, true, &s.pics);
        ASSERT_TRUE(mnuDesignExample_Click(s.wb, s.Generator, host, TilingsExample));
    }
    void matrix(const char* a, const char* b, const char* c, const char* d) { form.txtM = {a, b, c, d}; }
    bool draw() { return TilingDrawLattice(s.pics.Tiling, host, form); }
    bool click(int u, int v) {
        const TilingBasis B = TilingBasisInForce(form);
        return TilingLatticeClick(s.pics.Tiling, host, form, u * double(B.b11) + v * double(B.b12),
                                  u * double(B.b21) + v * double(B.b22));
    }
    std::vector<ShownMessage> messages(std::initializer_list<std::pair<const char*, const char*>> l) {
        std::vector<ShownMessage> out;
        for (auto [title, text] : l) out.push_back({title, text});
        return out;
    }
    AppState s;
    ScriptedHost host;
    TilingForm form;
};

TEST_F(TilingCommandsTest, DeterminantTwentyIsAllowedAndTwentyOneRefused) {
    matrix("4", "0", "0", "5");
    EXPECT_TRUE(draw());
    EXPECT_TRUE(host.shown().empty());
    matrix("3", "0", "0", "7");
    EXPECT_FALSE(draw());
    matrix("0", "0", "0", "7");
    EXPECT_FALSE(draw());
    EXPECT_EQ(host.shown(),
              messages({{"Warning", TilingDetRangeMessage}, {"Warning", TilingDetRangeMessage}}));
    EXPECT_EQ(std::string(TilingDetRangeMessage), "Must have |Det(M)| between 1 and 20");
    EXPECT_EQ(form.lattice.LatticeDrawn, true);
}

TEST_F(TilingCommandsTest, ANearlySingularBasisIsRefused) {
    form.chkbasis = true;
    form.txtb = {"1", "2", "0.5", "1.00001"};
    EXPECT_FALSE(draw());
    EXPECT_EQ(host.shown(), messages({{"Error",
                                       "B is too close to a singular matrix to be\n"
                                       "an appropriate change of basis matrix."}}));
    EXPECT_FALSE(form.lattice.LatticeDrawn);
}

TEST_F(TilingCommandsTest, ABoxThatDoesNotEvaluateKeepsTheOldBasis) {
    form.chkbasis = true;
    form.txtb = {"2", "0", "0", "2"};
    ASSERT_TRUE(draw());
    form.txtb = {"1", "0", "sqrt(", "1"};
    EXPECT_FALSE(draw());
    EXPECT_EQ(host.shown(), messages({{"Error", "Cannot evaluate expression for B(2,1).  "}}));
    EXPECT_FLOAT_EQ(form.B.b11, 2);
    EXPECT_FLOAT_EQ(s.pics.Tiling.A, 2);
    EXPECT_TRUE(s.pics.Tiling.chkbasis);
}

TEST_F(TilingCommandsTest, NoResiduesArePickedBeforeTheLatticeIsDrawn) {
    EXPECT_FALSE(click(0, 0));
    ASSERT_TRUE(draw());
    EXPECT_TRUE(click(0, 0));
    EXPECT_EQ(form.lblRV, "1");
}

TEST_F(TilingCommandsTest, TwinDragonFromTwoResidues) {
    ASSERT_TRUE(draw());
    ASSERT_TRUE(click(0, 0));
    ASSERT_TRUE(click(1, 0));
    ASSERT_TRUE(TilingCreate(s, host, form));
    const IFSEntry& ifs = s.wb.CurrentIFS;
    ASSERT_EQ(ifs.nMaps, 2);
    EXPECT_EQ(s.wb.txtMaps, "2");
    for (int k = 0; k < 2; ++k) {
        EXPECT_FLOAT_EQ(ifs.a[k], 0.5f);
        EXPECT_FLOAT_EQ(ifs.b[k], 0.5f);
        EXPECT_FLOAT_EQ(ifs.c[k], -0.5f);
        EXPECT_FLOAT_EQ(ifs.d[k], 0.5f);
        EXPECT_FLOAT_EQ(ifs.p[k], 0.5f);
    }
    EXPECT_EQ(ifs.e[1], 1);
    EXPECT_EQ(ifs.f[1], 0);
    EXPECT_EQ(ifs.Name, "Untitled");
    EXPECT_EQ(s.wb.FunctionsCaption, "IFS [Untitled]");
    EXPECT_TRUE(s.wb.IFSModified);
    EXPECT_TRUE(s.wb.menu("mnuRun").enabled);
    EXPECT_TRUE(s.Generator.SetupDone);
    // The tile vectors begin as the columns of M.
    EXPECT_EQ(s.pics.Tiling.txtT, form.txtM);
    EXPECT_TRUE(host.shown().empty());
}

TEST_F(TilingCommandsTest, AResidueOfAChosenClassIsRefusedWithoutAMessage) {
    matrix("2", "0", "0", "2");
    ASSERT_TRUE(draw());
    ASSERT_TRUE(click(1, 0));
    EXPECT_FALSE(click(-1, 0));
    EXPECT_FALSE(click(3, 2));
    EXPECT_EQ(form.lblRV, "1");
    EXPECT_TRUE(host.shown().empty());
}

TEST_F(TilingCommandsTest, CreateNeedsTwoResidues) {
    ASSERT_TRUE(draw());
    ASSERT_TRUE(click(1, 0));
    const IFSEntry before = s.wb.CurrentIFS;
    EXPECT_FALSE(TilingCreate(s, host, form));
    EXPECT_EQ(host.shown(), messages({{"Warning", "Must select at least two residue vectors"}}));
    EXPECT_EQ(s.wb.CurrentIFS, before);
    EXPECT_FALSE(s.Generator.SetupDone);
}

TEST_F(TilingCommandsTest, CreateWorksWithFewerResiduesThanTheDeterminant) {
    matrix("3", "0", "0", "3");
    ASSERT_TRUE(draw());
    ASSERT_TRUE(click(0, 0));
    ASSERT_TRUE(click(1, 0));
    ASSERT_TRUE(TilingCreate(s, host, form));
    EXPECT_EQ(s.wb.CurrentIFS.nMaps, 2);
    EXPECT_FLOAT_EQ(s.wb.CurrentIFS.a[0], 1.0f / 3);
}

TEST_F(TilingCommandsTest, CreateRefusesSingularMatrices) {
    ASSERT_TRUE(draw());
    click(0, 0);
    click(1, 0);
    const IFSEntry before = s.wb.CurrentIFS;
    matrix("1", "1", "1", "1");
    EXPECT_FALSE(TilingCreate(s, host, form));
    matrix("1", "-1", "1", "1");
    form.chkbasis = true;
    form.txtb = {"1", "1", "1", "1"};
    EXPECT_FALSE(TilingCreate(s, host, form));
    EXPECT_EQ(host.shown(), messages({{"Error", "Creating IFS failed: Det(M) = 0"},
                                      {"Error", "Creating IFS failed: Det(B) = 0"}}));
    EXPECT_EQ(s.wb.CurrentIFS, before);
}

TEST_F(TilingCommandsTest, ChangingMKeepsTheMarksRemovingStillWorks) {
    matrix("2", "0", "0", "2");
    ASSERT_TRUE(draw());
    for (auto [u, v] : {std::pair{0, 0}, {1, 0}, {0, 1}, {1, 1}}) ASSERT_TRUE(click(u, v));
    matrix("2", "0", "0", "1");
    ASSERT_TRUE(draw());
    EXPECT_EQ(form.lblRV, "4");
    EXPECT_FALSE(click(-1, 1));
    EXPECT_TRUE(click(0, 1));
    EXPECT_EQ(form.lblRV, "3");
    TilingClearLattice(form);
    EXPECT_EQ(form.lblRV, "0");
    EXPECT_EQ(form.lattice.nResidues(), 0);
}

TEST_F(TilingCommandsTest, ViewKeysRepaintAndLatchUntilReleased) {
    EXPECT_FALSE(TilingLatticeKeyDown(form, TilingKeyPageUp, false));
    ASSERT_TRUE(draw());
    EXPECT_TRUE(TilingLatticeKeyDown(form, TilingKeyLeft, false));
    EXPECT_FALSE(TilingLatticeKeyDown(form, TilingKeyLeft, false));
    TilingLatticeKeyUp(form);
    EXPECT_TRUE(TilingLatticeKeyDown(form, TilingKeyLeft, false));
    EXPECT_FLOAT_EQ(form.lattice.vxmin, -4.4f);
}

TEST_F(TilingCommandsTest, CancelRestoresAndCloseKeeps) {
    ASSERT_TRUE(draw());
    click(0, 0);
    click(1, 0);
    ASSERT_TRUE(TilingCreate(s, host, form));
    GeneratorCancel(s.wb, s.Generator, host, s.pics, s.design);
    EXPECT_EQ(s.wb.CurrentIFS.Name, "Triangle");
    EXPECT_EQ(s.wb.CurrentIFS.nMaps, 3);
    ASSERT_TRUE(mnuDesignExample_Click(s.wb, s.Generator, host, TilingsExample));
    ASSERT_TRUE(TilingCreate(s, host, form));
    GeneratorClose(s.wb, s.Generator);
    EXPECT_EQ(s.wb.CurrentIFS.nMaps, 2);
    EXPECT_TRUE(s.wb.menu("mnuDesignExample(6)").enabled);
    EXPECT_FALSE(s.wb.menu("mnuWin(6)").visible);
}

TEST_F(TilingCommandsTest, TheOptionsWindowSwitchesTheTileModeAndItsMenuItem) {
    TilingSettingsShown(s.wb, s.pics.Tiling);
    EXPECT_TRUE(s.pics.Tiling.SettingsVisible);
    EXPECT_TRUE(s.wb.menu("mnuWin(7)").visible);
    EXPECT_TRUE(s.wb.menu("mnuWin(7)").checked);
    EXPECT_FALSE(s.wb.menu("mnuWin(6)").checked);
    TilingSettingsClosed(s.wb, s.pics.Tiling);
    EXPECT_FALSE(s.pics.Tiling.SettingsVisible);
    EXPECT_FALSE(s.wb.menu("mnuWin(7)").checked);
}

TEST_F(TilingCommandsTest, AChosenTileColourIsKeptInTheSettings) {
    host.colors.push_back(RGB(1, 2, 3));
    host.colors.push_back(std::nullopt);
    EXPECT_TRUE(PickTilingColor(s.wb, host, 8));
    EXPECT_EQ(s.wb.TilingColor[8], RGB(1, 2, 3));
    EXPECT_TRUE(s.wb.SettingsChanged);
    s.wb.SettingsChanged = false;
    EXPECT_FALSE(PickTilingColor(s.wb, host, 0));
    EXPECT_FALSE(s.wb.SettingsChanged);
    EXPECT_FALSE(PickTilingColor(s.wb, host, 9));
}

}  // namespace
}  // namespace quillane::testing
