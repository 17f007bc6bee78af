#include "app/symmetric_commands.h"

#include <gtest/gtest.h>

#include "app/design_view.h"
#include "core/fractal_list.h"
#include "core/function_forms.h"
#include "core/menu_tree.h"
#include "core/sample_systems.h"
#include "core/scripted_host.h"

namespace quillane::testing {
namespace {

class SymmetricCommands : public ::testing::Test {
  protected:
    void SetUp() override {
        InitializeMenuState(s.wb.Menu);
        s.wb.Rng.pin(3);
        s.pics.resize(64, White);
        s.design.resize(120, 120, s.wb.DesignBackColor);
        ApplyDesignWindow(s.design, s.wb.DesignWindow);
        s.wb.FractalList[1] = SierpinskiTriangleIFS();
        s.wb.FractalList[2] = GridIFS(4);
        s.wb.FractalList[2].Name = "Grid";
        SetIFSMenu(s.wb, 2, 0);
        s.wb.Menu.setChecked(EntryKey(1), true);
        ASSERT_TRUE(mnuDesignExample_Click(s.wb, s.Generator, host, SymmetricFractalsExample));
        form.txtMatrix = {"0.85", "0.04", "-0.04", "0.85"};
        form.txtE = "0";
        form.txtF = "1.6";
    }
    AppState s;
    ScriptedHost host;
    SymmetricForm form;
};

TEST_F(SymmetricCommands, DihedralFiftyBuildsOneHundredMaps) {
    form.n = 50;
    EXPECT_EQ(SymmetricCreate(s, host, form), SymmetricFocus::None);
    EXPECT_TRUE(host.shown().empty());
    EXPECT_EQ(s.wb.CurrentIFS.nMaps, 100);
    EXPECT_EQ(s.wb.txtMaps, "100");
    EXPECT_NEAR(s.wb.CurrentIFS.p[99], 0.01, 1e-7);
    EXPECT_TRUE(s.Generator.SetupDone);
}

TEST_F(SymmetricCommands, DihedralFiftyOneIsRefusedWithItsMessage) {
    const IFSEntry before = s.wb.CurrentIFS;
    form.n = 51;
    EXPECT_EQ(SymmetricCreate(s, host, form), SymmetricFocus::Order);
    ASSERT_EQ(host.shown().size(), 1u);
    EXPECT_EQ(host.shown()[0].title, "Error");
    EXPECT_EQ(host.shown()[0].text, "Maximum allowed n for dihedral group is 50");
    EXPECT_EQ(s.wb.CurrentIFS, before);
    EXPECT_FALSE(s.Generator.SetupDone);
}

TEST_F(SymmetricCommands, CyclicHundredIsAccepted) {
    form.n = 100;
    form.group = SymmetryGroup::Cyclic;
    EXPECT_EQ(SymmetricCreate(s, host, form), SymmetricFocus::None);
    EXPECT_EQ(s.wb.CurrentIFS.nMaps, 100);
    EXPECT_NEAR(s.wb.CurrentIFS.p[0], 0.01, 1e-7);
}

TEST_F(SymmetricCommands, TheFirstRotationIsTheBaseMapInTheTable) {
    form.n = 5;
    ASSERT_EQ(SymmetricCreate(s, host, form), SymmetricFocus::None);
    EXPECT_FLOAT_EQ(s.wb.CurrentIFS.a[0], 0.85f);
    EXPECT_FLOAT_EQ(s.wb.CurrentIFS.b[0], 0.04f);
    EXPECT_FLOAT_EQ(s.wb.CurrentIFS.c[0], -0.04f);
    EXPECT_FLOAT_EQ(s.wb.CurrentIFS.f[0], 1.6f);
    EXPECT_TRUE(s.wb.menu(RotationItem).checked);
    EXPECT_EQ(s.wb.CodeForm, 1);
    EXPECT_EQ(s.wb.Table.text(5, 0), "0.000");
    EXPECT_EQ(s.wb.Table.text(6, 0), "1.600");
    EXPECT_EQ(s.wb.Table.text(7, 0), "0.100");
}

TEST_F(SymmetricCommands, NameCommentsCaptionAndListTicks) {
    s.wb.CurrentIFS.nComments = 2;
    s.wb.lblComment = "; old";
    form.n = 3;
    ASSERT_EQ(SymmetricCreate(s, host, form), SymmetricFocus::None);
    EXPECT_EQ(s.wb.CurrentIFS.Name, "Untitled");
    EXPECT_EQ(s.wb.CurrentIFS.nComments, 0);
    EXPECT_EQ(s.wb.lblComment, "");
    EXPECT_EQ(s.wb.FunctionsCaption, "IFS [Untitled]");
    EXPECT_FALSE(s.wb.menu(EntryKey(1)).checked);
}

TEST_F(SymmetricCommands, EachUnreadableBoxHasItsMessageAndFocus) {
    const IFSEntry before = s.wb.CurrentIFS;
    form.txtMatrix[2] = "0.3+";
    EXPECT_EQ(SymmetricCreate(s, host, form), SymmetricFocus::MatrixC);
    form.txtMatrix[2] = "0.3";
    form.txtE = "x";
    EXPECT_EQ(SymmetricCreate(s, host, form), SymmetricFocus::E);
    form.txtE = "0";
    form.txtF = "";
    EXPECT_EQ(SymmetricCreate(s, host, form), SymmetricFocus::F);
    ASSERT_EQ(host.shown().size(), 3u);
    EXPECT_EQ(host.shown()[0].text, "Cannot evaluate one of the matrix value.   ");
    EXPECT_EQ(host.shown()[1].text, "Cannot evaluate x-coordinate of translate vector.   ");
    EXPECT_EQ(host.shown()[2].text, "Cannot evaluate y-coordinate of translate vector.   ");
    for (const auto& m : host.shown()) EXPECT_EQ(m.title, "Error");
    EXPECT_EQ(s.wb.CurrentIFS, before);
}

TEST_F(SymmetricCommands, ExpressionsAreEvaluated) {
    form.txtMatrix = {"1/2", "0", "0", "sqrt(0.25)"};
    form.txtE = "2*0.25";
    form.txtF = "0";
    form.n = 2;
    ASSERT_EQ(SymmetricCreate(s, host, form), SymmetricFocus::None);
    EXPECT_FLOAT_EQ(s.wb.CurrentIFS.a[0], 0.5f);
    EXPECT_FLOAT_EQ(s.wb.CurrentIFS.d[0], 0.5f);
    EXPECT_FLOAT_EQ(s.wb.CurrentIFS.e[0], 0.5f);
}

TEST_F(SymmetricCommands, TheListNamesTheEntries) {
    EXPECT_EQ(MakeFractalList(s.wb), (std::vector<std::string>{"Sierpinski triangle", "Grid"}));
}

TEST_F(SymmetricCommands, AListIFSTooLargeForTheOrderIsRefusedWithTheLargestN) {
    form.useList = true;
    form.cmbIFSList = 1;  // the grid: 4 maps
    form.n = 13;
    EXPECT_EQ(SymmetricCreate(s, host, form), SymmetricFocus::Order);
    ASSERT_EQ(host.shown().size(), 1u);
    EXPECT_EQ(host.shown()[0].title, "Warning");
    EXPECT_EQ(host.shown()[0].text, "n can be at most 12");
    form.n = 12;
    EXPECT_EQ(SymmetricCreate(s, host, form), SymmetricFocus::None);
    EXPECT_EQ(s.wb.CurrentIFS.nMaps, 96);
    form.group = SymmetryGroup::Cyclic;
    form.n = 26;
    EXPECT_EQ(SymmetricCreate(s, host, form), SymmetricFocus::Order);
    EXPECT_EQ(host.shown().back().text, "n can be at most 25");
}

TEST_F(SymmetricCommands, AListIFSKeepsItsProportionsAcrossCopies) {
    form.useList = true;
    form.cmbIFSList = 0;
    form.group = SymmetryGroup::Cyclic;
    form.n = 4;
    ASSERT_EQ(SymmetricCreate(s, host, form), SymmetricFocus::None);
    ASSERT_EQ(s.wb.CurrentIFS.nMaps, 12);
    EXPECT_NEAR(s.wb.CurrentIFS.p[0], 0.333333 / 4, 1e-6);
    EXPECT_FLOAT_EQ(s.wb.CurrentIFS.e[4], 0.5f);  // map 1, rotation 0
}

TEST_F(SymmetricCommands, CancelAfterABuildRestoresTheIFS) {
    const IFSEntry before = s.wb.CurrentIFS;
    form.n = 4;
    ASSERT_EQ(SymmetricCreate(s, host, form), SymmetricFocus::None);
    GeneratorCancel(s.wb, s.Generator, host, s.pics, s.design);
    EXPECT_EQ(s.wb.CurrentIFS, before);
}

}  // namespace
}  // namespace quillane::testing
