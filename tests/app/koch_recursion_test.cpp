// The Koch curve drawn by its recursion in place of a deterministic level, against the maps.
#include "app/koch_recursion.h"

#include <gtest/gtest.h>

#include <cstdlib>

#include "app/design_view.h"
#include "app/deterministic_commands.h"
#include "app/figure_commands.h"
#include "app/koch_commands.h"
#include "core/initial_polygons.h"
#include "core/menu_tree.h"
#include "core/scripted_host.h"
#include "render/deterministic.h"

namespace quillane::testing {
namespace {

constexpr int Side = 200;
constexpr Color Red = RGB(255, 0, 0), Green = RGB(0, 160, 0), Blue = RGB(0, 0, 255), Grey = RGB(90, 90, 90);

struct KochBench {
    explicit KochBench(bool recursion, const std::string& n = "3", const std::string& c = "1/3") {
        InitializeMenuState(s.wb.Menu);
        s.pics.resize(Side, White);
        s.design.resize(120, 120, s.wb.DesignBackColor);
        ApplyDesignWindow(s.design, s.wb.DesignWindow);
        s.pics.Det.FigureDrawer = [this](Workbench& wb, FractalPictures& pics, Host&, int figure, bool,
                                         bool resetWindow) {
            DrawDrawnFigure(wb, pics, figs, figure, std::nullopt, resetWindow);
            return true;
        };
        const std::array<Color, 4> colors{Red, Green, Blue, Grey};
        for (size_t i = 0; i < colors.size(); ++i) s.wb.FunctionColor[i] = colors[i];
        EXPECT_TRUE(mnuDesignExample_Click(s.wb, s.Generator, host, KochCurvesExample));
        mnuDrawType_Click(s.wb, s.pics, host, 1);
        form.txtN = n;
        form.txtC = c;
        form.chkRecursion = recursion;
        EXPECT_EQ(KochCreate(s, host, form), KochFocus::None);
    }
    void level() { Iterate(s.wb, s.pics, host, -1); }
    std::vector<std::pair<int, int>> drawn() const {
        std::vector<std::pair<int, int>> set;
        const RasterSurface& p = s.pics.picfractal;
        for (int r = 0; r < p.height(); ++r)
            for (int c = 0; c < p.width(); ++c)
                if ((p.pixel(c, r) & 0xFFFFFFu) != White) set.emplace_back(c, r);
        return set;
    }
    AppState s;
    ScriptedHost host;
    InitialFigures figs;
    KochForm form;
};

// The largest distance in pixels (chessboard) from a pixel of `a` to the nearest pixel of `b`.
int farthest(const std::vector<std::pair<int, int>>& a, const std::vector<std::pair<int, int>>& b) {
    int worst = 0;
    for (const auto& [x, y] : a) {
        int best = 1 << 20;
        for (const auto& [u, v] : b) best = std::min(best, std::max(std::abs(x - u), std::abs(y - v)));
        worst = std::max(worst, best);
    }
    return worst;
}

TEST(KochRecursion, CreateMakesTheUnitLineAnAllowedInitialSet) {
    KochBench b(true);
    EXPECT_TRUE(b.s.wb.KochRecursionAllowed);
    EXPECT_EQ(b.s.wb.DetFigure, 0);
    EXPECT_EQ(b.s.wb.InitialPolygon.Kind, 4);
    EXPECT_EQ(std::string(KochWarning),
              "Use design polygon (outline) for initial set, with design polygon being a horizontal line "
              "(default choices).");
}

TEST(KochRecursion, EachLevelAgreesWithTheMapsAndIsMarkedAsRecursive) {
    KochBench rec(true), maps(false);
    for (int level = 1; level <= 3; ++level) {
        rec.level();
        maps.level();
        EXPECT_EQ(rec.s.pics.picCount, std::to_string(level) + " w/Rec");
        EXPECT_EQ(maps.s.pics.picCount, std::to_string(level));
        EXPECT_EQ(rec.s.wb.IterationNumber, level);
        const auto a = rec.drawn(), b = maps.drawn();
        ASSERT_GT(a.size(), 100u);
        ASSERT_GT(b.size(), 100u);
        EXPECT_LE(farthest(a, b), 2) << level;
        EXPECT_LE(farthest(b, a), 2) << level;
    }
}

TEST(KochRecursion, AtTheFirstLevelEachPieceHasItsMapsColour) {
    KochBench rec(true), maps(false);
    rec.level();
    maps.level();
    const double h = std::sqrt(3.0) / 6;
    const std::array<std::pair<double, double>, 4> middles{
        {{1.0 / 6, 0}, {(1.0 / 3 + 0.5) / 2, h / 2}, {(0.5 + 2.0 / 3) / 2, h / 2}, {5.0 / 6, 0}}};
    const std::array<Color, 4> colors{Red, Green, Blue, Grey};
    for (size_t i = 0; i < 4; ++i) {
        const auto [x, y] = middles[i];
        EXPECT_EQ(rec.s.pics.picfractal.point(x, y) & 0xFFFFFFu, colors[i]) << i;
        EXPECT_EQ(maps.s.pics.picfractal.point(x, y) & 0xFFFFFFu, colors[i]) << i;
    }
}

TEST(KochRecursion, TheFixedColourItemDrawsInTheDeterministicColour) {
    KochBench rec(true);
    rec.s.wb.Menu.setChecked(MenuTable::key("mnuDrawDetColorItems", 0), false);
    rec.s.wb.Menu.setChecked(MenuTable::key("mnuDrawDetColorItems", 1), true);
    rec.s.pics.Det.DetSingleColor = Blue;
    rec.level();
    for (const auto& [c, r] : rec.drawn()) ASSERT_EQ(rec.s.pics.picfractal.pixel(c, r) & 0xFFFFFFu, Blue);
}

TEST(KochRecursion, DeepLevelsStopAtThePixelLimit) {
    KochBench rec(true);
    rec.level();
    // 200 pixels over a window of about 1.1: p = 5, so from level 4 on the curve stays at level 6.
    rec.s.wb.IterationNumber = 4;
    rec.level();
    const auto atLimit = rec.drawn();
    EXPECT_EQ(rec.s.wb.IterationNumber, 5);
    rec.s.wb.IterationNumber = 9;
    rec.level();
    EXPECT_EQ(rec.drawn(), atLimit);
    EXPECT_EQ(rec.s.wb.IterationNumber, 10);
    rec.s.wb.IterationNumber = 2;
    rec.level();
    EXPECT_NE(rec.drawn(), atLimit);
}

TEST(KochRecursion, ASetRecursionOffFlagGivesWayToTheMaps) {
    KochBench rec(true);
    rec.level();
    int calls = 0;
    const DetRecursiveDrawing pass = rec.s.pics.Det.RecursiveDrawings[1];
    ASSERT_TRUE(pass);
    rec.s.pics.Det.RecursiveDrawings[1] = [&](Workbench& wb, FractalPictures& pics, Host& host) {
        ++calls;
        return pass(wb, pics, host);
    };
    rec.level();
    EXPECT_EQ(calls, 1);
    rec.s.wb.RecursionOff[1] = true;
    rec.level();
    EXPECT_EQ(calls, 1);
    EXPECT_EQ(rec.s.wb.IterationNumber, 3);
}

TEST(KochRecursion, AnotherInitialFigureOrPolygonUsesTheMaps) {
    KochBench rec(true);
    DrawDetWindowFigure(rec.s.wb, rec.s.pics, rec.host, 2, false, true);
    ResetDetFigure(rec.s.wb, 2);
    EXPECT_FALSE(rec.s.wb.KochRecursionAllowed);
    rec.level();
    EXPECT_EQ(rec.s.pics.picCount, "1");

    KochBench vertical(true);
    vertical.s.wb.InitialPolygon = BuiltInPolygon(5);
    ResetDeterministic(vertical.s.wb, vertical.s.pics, vertical.host);
    EXPECT_FALSE(vertical.s.wb.KochRecursionAllowed);
    vertical.level();
    EXPECT_EQ(vertical.s.pics.picCount, "1");
}

TEST(KochRecursion, WithoutUseRecursionTheMapsDraw) {
    KochBench maps(false);
    EXPECT_TRUE(maps.s.wb.KochRecursionAllowed);
    maps.level();
    EXPECT_EQ(maps.s.pics.picCount, "1");
}

TEST(KochRecursion, ANegativeEdgeOrNoEdgeDrawsWithoutHanging) {
    KochBench negative(true, "5", "-0.2");
    for (int k = 0; k < 3; ++k) negative.level();
    EXPECT_EQ(negative.s.pics.picCount, "3 w/Rec");
    EXPECT_FALSE(negative.drawn().empty());
    KochBench zero(true, "60", "0");
    for (int k = 0; k < 3; ++k) zero.level();
    EXPECT_EQ(zero.s.pics.picCount, "3 w/Rec");
}

TEST(KochRecursion, TheQuitKeyEndsALongPass) {
    KochBench rec(true, "60", "0.05");
    rec.level();
    rec.s.wb.IterationNumber = 2;
    const int before = rec.host.yields();
    rec.host.onYield = [&](int) {
        if (rec.host.yields() - before == 2) rec.s.pics.Det.IterationAbort = true;
    };
    rec.level();
    EXPECT_EQ(rec.host.yields() - before, 2);
    EXPECT_EQ(rec.s.wb.IterationNumber, 2);
    EXPECT_FALSE(rec.s.wb.DrawingActive);
}

}  // namespace
}  // namespace quillane::testing
