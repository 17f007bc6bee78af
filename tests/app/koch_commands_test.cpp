// Koch Curves with n-gons: the checks, Create IFS, the preview, the slider and the recursion flags.
#include "app/koch_commands.h"

#include <gtest/gtest.h>

#include <cmath>

#include "app/design_view.h"
#include "app/deterministic_commands.h"
#include "core/initial_polygons.h"
#include "core/menu_tree.h"
#include "core/scripted_host.h"

namespace quillane::testing {
namespace {

// Whether a pixel at or next to (x, y) is black: the tip of a line may fall on its neighbour.
bool blackNear(const RasterSurface& canvas, double x, double y) {
    const double px = canvas.pixelsToWorldX(1), py = canvas.pixelsToWorldY(1);
    for (int i = -1; i <= 1; ++i)
        for (int j = -1; j <= 1; ++j)
            if (canvas.point(x + i * px, y + j * py) == Black) return true;
    return false;
}

class KochCommands : public ::testing::Test {
  protected:
    void SetUp() override {
        InitializeMenuState(s.wb.Menu);
        s.pics.resize(64, White);
        s.design.resize(120, 120, s.wb.DesignBackColor);
        ApplyDesignWindow(s.design, s.wb.DesignWindow);
        ASSERT_TRUE(mnuDesignExample_Click(s.wb, s.Generator, host, KochCurvesExample));
    }
    KochFocus create(const std::string& n, const std::string& c) {
        form.txtN = n;
        form.txtC = c;
        return KochCreate(s, host, form);
    }
    void expectRefused(const std::string& n, const std::string& c, const char* text, KochFocus box) {
        host.clear();
        const IFSEntry before = s.wb.CurrentIFS;
        EXPECT_EQ(create(n, c), box) << n << " " << c;
        ASSERT_EQ(host.shown().size(), 1u) << n << " " << c;
        EXPECT_EQ(host.shown()[0].title, "Error");
        EXPECT_EQ(host.shown()[0].text, text);
        EXPECT_EQ(s.wb.CurrentIFS, before);
        EXPECT_FALSE(s.Generator.SetupDone);
    }
    AppState s;
    ScriptedHost host;
    KochForm form;
};

TEST_F(KochCommands, TheChecksRunCFirstThenTheEdgesThenTheLength) {
    expectRefused("2", "1/0+", "Cannot evaluate expression for c.  ", KochFocus::C);
    expectRefused("2", "1", "The number of edges must be at least 3", KochFocus::N);
    expectRefused("61", "1/3", "The number of edges can be at most 60", KochFocus::N);
    expectRefused("4", "1", "The edge length must be less than 1", KochFocus::C);
    expectRefused("4", "2/2", "The edge length must be less than 1", KochFocus::C);
    expectRefused("", "0.5", "The number of edges must be at least 3", KochFocus::N);
    expectRefused("99999999999", "0.5", "The number of edges can be at most 60", KochFocus::N);
}

TEST_F(KochCommands, TheEdgeCountIsReadWithValAndRounded) {
    EXPECT_EQ(KochEdges("4"), 4);
    EXPECT_EQ(KochEdges("4.5"), 4);
    EXPECT_EQ(KochEdges("5.5"), 6);
    EXPECT_EQ(KochEdges("7abc"), 7);
    EXPECT_EQ(KochEdges("1e9"), 32767);
}

TEST_F(KochCommands, TheClassicCurveIsBuiltWithItsNameCommentsAndInitialLine) {
    s.wb.IFSModified = false;
    ASSERT_EQ(create("3", "1/3"), KochFocus::None);
    const Workbench& wb = s.wb;
    const IFSEntry& ifs = wb.CurrentIFS;
    ASSERT_EQ(ifs.nMaps, 4);
    EXPECT_EQ(ifs.Name, "Koch Curve (3, 1/3)");
    EXPECT_EQ(wb.FunctionsCaption, "IFS [Koch Curve (3, 1/3)]");
    ASSERT_EQ(ifs.nComments, 3);
    EXPECT_EQ(ifs.Comment[1], "; Modified Koch curve");
    EXPECT_EQ(ifs.Comment[2], "; polygon edges: 3");
    EXPECT_EQ(ifs.Comment[3], "; edge length: 1/3");
    EXPECT_EQ(wb.lblComment, "; Modified Koch curve");
    EXPECT_EQ(wb.txtMaps, "4");
    EXPECT_NEAR(ifs.c[1], std::sqrt(3.0) / 6, 1e-6);
    EXPECT_NEAR(ifs.e[3], 2.0 / 3, 1e-6);
    // Probabilities follow the determinants: all four maps scale by a third.
    for (int i = 0; i < 4; ++i) EXPECT_NEAR(ifs.p[i], 0.25, 1e-3) << i;
    EXPECT_EQ(wb.InitialPolygon, BuiltInPolygon(4));
    EXPECT_EQ(wb.InitialPolygon.Kind, 4);
    for (int k = 0; k <= UserPolygonItem; ++k)
        EXPECT_EQ(wb.menu(MenuTable::key("mnupoly", k)).checked, k == 4) << k;
    EXPECT_EQ(wb.DetFigure, 0);
    EXPECT_TRUE(wb.IFSModified);
    EXPECT_FALSE(s.Generator.SavedModified);
    EXPECT_EQ(wb.ChangeCount, 1);
    EXPECT_TRUE(wb.menu("mnuRun").enabled);
    EXPECT_TRUE(wb.menu("mnuTrace").enabled);
    EXPECT_EQ(wb.KochRatio, static_cast<float>(1.0 / 3));
    EXPECT_EQ(wb.UndoWindow, wb.Window);
    EXPECT_EQ(wb.SelectedIFS, 0);
    EXPECT_TRUE(s.Generator.SetupDone);
    EXPECT_FALSE(wb.UseKochRecursion);
}

TEST_F(KochCommands, ANameKeepsAFractionAsTypedAndFormatsOtherValues) {
    ASSERT_EQ(create("4", "  sqrt(2)/4 "), KochFocus::None);
    EXPECT_EQ(s.wb.CurrentIFS.Name, "Koch Curve (4, sqrt(2)/4)");
    EXPECT_EQ(s.wb.CurrentIFS.Comment[3], "; edge length:   sqrt(2)/4 ");
    ASSERT_EQ(create("7", "0.3"), KochFocus::None);
    EXPECT_EQ(s.wb.CurrentIFS.Name, "Koch Curve (7, 0.30000)");
    ASSERT_EQ(create("5", "-0.2"), KochFocus::None);
    EXPECT_EQ(s.wb.CurrentIFS.Name, "Koch Curve (5, -0.20000)");
    EXPECT_FLOAT_EQ(s.wb.KochRatio, 1.4f);
}

TEST_F(KochCommands, EdgeLengthZeroPassesAndItsMiddleMapsCollapse) {
    ASSERT_EQ(create("4", "0"), KochFocus::None);
    EXPECT_TRUE(host.shown().empty());
    const IFSEntry& ifs = s.wb.CurrentIFS;
    ASSERT_EQ(ifs.nMaps, 5);
    for (int i = 1; i <= 3; ++i) {
        EXPECT_EQ(ifs.a[i], 0.0f);
        EXPECT_EQ(ifs.d[i], 0.0f);
    }
    EXPECT_FLOAT_EQ(s.wb.KochRatio, 1.0f);
}

TEST_F(KochCommands, SixtyEdgesNearOneGiveSixtyOneMapsAndAWidePreview) {
    ASSERT_EQ(create("60", "0.999"), KochFocus::None);
    EXPECT_EQ(s.wb.CurrentIFS.nMaps, 61);
    EXPECT_EQ(s.wb.txtMaps, "61");
    RasterSurface canvas(100, 100);
    form.PreviewLevel = 1;
    ASSERT_TRUE(KochPreview(form, host, canvas));
    EXPECT_GE((canvas.scaleRight() - canvas.scaleLeft()) / 2, 0.55);
}

TEST_F(KochCommands, SelfAvoidingForTheSquareIsAThird) {
    form.txtN = "4";
    form.txtC = "0.9";
    KochSelfAvoiding(form);
    EXPECT_EQ(form.txtC, "0.33333");
    EXPECT_EQ(form.sliC, 333);
    form.txtN = "3";
    KochSelfAvoiding(form);
    EXPECT_EQ(form.txtC, "0.50000");
    EXPECT_EQ(form.sliC, 500);
    form.txtN = "0";
    KochSelfAvoiding(form);
    EXPECT_EQ(form.txtC, "0.50000");
}

TEST_F(KochCommands, TheEdgeButtonsStayWithinThreeAndSixty) {
    form.txtN = "59";
    EXPECT_TRUE(KochStepEdges(form, 1));
    EXPECT_EQ(form.txtN, "60");
    EXPECT_FALSE(KochStepEdges(form, 1));
    EXPECT_EQ(form.txtN, "60");
    form.txtN = "4";
    EXPECT_TRUE(KochStepEdges(form, -1));
    EXPECT_FALSE(KochStepEdges(form, -1));
    EXPECT_EQ(form.txtN, "3");
}

TEST_F(KochCommands, TheSliderKeysStepCAndN) {
    form.sliC = 6;
    KochSliderKeyDown(form, KochSliderKey::PageDown);
    EXPECT_EQ(form.sliC, 1);
    EXPECT_EQ(form.txtC, "0.00100");
    KochSliderKeyDown(form, KochSliderKey::PageDown);
    EXPECT_EQ(form.sliC, 1);
    KochSliderKeyDown(form, KochSliderKey::Left);
    EXPECT_EQ(form.sliC, 0);
    KochSliderKeyDown(form, KochSliderKey::Left);
    EXPECT_EQ(form.sliC, 0);
    form.sliC = 993;
    KochSliderKeyDown(form, KochSliderKey::PageUp);
    EXPECT_EQ(form.sliC, 998);
    KochSliderKeyDown(form, KochSliderKey::PageUp);
    EXPECT_EQ(form.sliC, 998);
    KochSliderKeyDown(form, KochSliderKey::Right);
    EXPECT_EQ(form.sliC, 999);
    EXPECT_EQ(form.txtC, "0.99900");
    KochSliderKeyDown(form, KochSliderKey::Right);
    EXPECT_EQ(form.sliC, 999);
    form.txtN = "59";
    KochSliderKeyDown(form, KochSliderKey::Up);
    KochSliderKeyDown(form, KochSliderKey::Up);
    EXPECT_EQ(form.txtN, "60");
    form.txtN = "4";
    KochSliderKeyDown(form, KochSliderKey::Down);
    KochSliderKeyDown(form, KochSliderKey::Down);
    EXPECT_EQ(form.txtN, "3");
    KochSliderMoved(form, 250);
    EXPECT_EQ(form.txtC, "0.25000");
}

TEST_F(KochCommands, ThePreviewDrawsTheGeneratorInAFittedView) {
    RasterSurface canvas(200, 200);
    form.txtN = "3";
    form.txtC = "1/3";
    form.PreviewLevel = 1;
    ASSERT_TRUE(KochPreview(form, host, canvas));
    EXPECT_NEAR(canvas.scaleLeft(), -0.05, 1e-9);
    EXPECT_NEAR(canvas.scaleRight(), 1.05, 1e-9);
    // The tip of the triangle and the two ends of the base are drawn; the base's middle is not.
    EXPECT_TRUE(blackNear(canvas, 0.5, std::sqrt(3.0) / 6));
    EXPECT_EQ(canvas.point(0.1, 0), Black);
    EXPECT_EQ(canvas.point(0.9, 0), Black);
    EXPECT_EQ(canvas.point(0.5, 0), White);
    // A refusal leaves the picture as it was.
    form.txtN = "2";
    EXPECT_FALSE(KochPreview(form, host, canvas));
    EXPECT_TRUE(blackNear(canvas, 0.5, std::sqrt(3.0) / 6));
    EXPECT_EQ(host.shown().back().text, "The number of edges must be at least 3");
}

TEST_F(KochCommands, ThePreviewLevelsAddDetail) {
    RasterSurface one(200, 200), three(200, 200);
    form.txtN = "3";
    form.PreviewLevel = 1;
    KochPreview(form, host, one);
    form.PreviewLevel = 3;
    KochPreview(form, host, three);
    // At level 3 the middle of the first third is pushed out of the base line.
    EXPECT_EQ(one.point(1.0 / 6, 0), Black);
    EXPECT_EQ(three.point(1.0 / 6, 0), White);
}

TEST_F(KochCommands, ThePreviewKeepsItsViewForTheSliderKeys) {
    RasterSurface canvas(100, 100);
    canvas.setScale(-2, 2, 2, -2);
    ASSERT_TRUE(KochPreview(form, host, canvas, false));
    EXPECT_EQ(canvas.scaleLeft(), -2);
}

TEST_F(KochCommands, UseRecursionSwitchesABuildToDeterministic) {
    ASSERT_TRUE(s.wb.RandomMode);
    form.chkRecursion = true;
    ASSERT_EQ(create("3", "1/3"), KochFocus::None);
    EXPECT_TRUE(s.wb.UseKochRecursion);
    EXPECT_FALSE(s.wb.RandomMode);
    EXPECT_TRUE(s.wb.menu("mnuDrawType(1)").checked);
}

TEST_F(KochCommands, TheBoxGovernsTheFlagAndSwitchesOnlyAfterABuild) {
    form.chkRecursion = true;
    KochRecursionClicked(s, host, form);
    EXPECT_TRUE(s.wb.UseKochRecursion);
    EXPECT_TRUE(s.wb.RandomMode);
    form.chkRecursion = false;
    ASSERT_EQ(create("3", "1/3"), KochFocus::None);
    EXPECT_TRUE(s.wb.RandomMode);
    form.chkRecursion = true;
    KochRecursionClicked(s, host, form);
    EXPECT_FALSE(s.wb.RandomMode);
    form.chkRecursion = false;
    KochActivated(s, form);
    EXPECT_FALSE(s.wb.UseKochRecursion);
    EXPECT_TRUE(s.wb.menu(MenuTable::key("mnuWin", 16)).checked);
}

TEST_F(KochCommands, CloseKeepsTheCurveAndEndsTheRecursion) {
    form.chkRecursion = true;
    ASSERT_EQ(create("3", "1/3"), KochFocus::None);
    KochClose(s);
    GeneratorClose(s.wb, s.Generator);
    EXPECT_FALSE(s.wb.UseKochRecursion);
    EXPECT_EQ(s.wb.CurrentIFS.nMaps, 4);
    EXPECT_FALSE(s.wb.menu(MenuTable::key("mnuWin", 16)).visible);
    EXPECT_TRUE(s.wb.menu(MenuTable::key("mnuDesignExample", 4)).enabled);
}

TEST_F(KochCommands, CancelBringsBackTheIFSAndTheEditState) {
    const IFSEntry before = s.wb.CurrentIFS;
    s.wb.IFSModified = false;
    const int16_t count = s.wb.ChangeCount;
    form.chkRecursion = true;
    ASSERT_EQ(create("5", "0.3"), KochFocus::None);
    KochClose(s);
    GeneratorCancel(s.wb, s.Generator, host, s.pics, s.design);
    EXPECT_EQ(s.wb.CurrentIFS, before);
    EXPECT_FALSE(s.wb.IFSModified);
    EXPECT_EQ(s.wb.ChangeCount, count);
    EXPECT_TRUE(s.wb.RandomMode);
    EXPECT_FALSE(s.wb.UseKochRecursion);
}

}  // namespace
}  // namespace quillane::testing
