// The coloured scan of a deterministic level in the colour modes 1 to 7: every pixel against the
// formula, the level worked out here from its source.
#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <set>
#include <vector>

#include "core/sample_systems.h"
#include "core/scripted_host.h"
#include "render/color_modes.h"
#include "render/deterministic.h"
#include "tests/render/gradient_formula.h"

namespace quillane {
namespace {

using testing::FormulaGradientColor;
using testing::FormulaGradientMix;

constexpr int Side = 48;
constexpr Color Ink = RGB(9, 9, 9);

struct Level {
    Workbench wb;
    FractalPictures pics;
    ScriptedHost host;

    explicit Level(int mode) {
        wb.CurrentIFS = SierpinskiTriangleIFS();
        wb.txtMaps = "3";
        wb.Window = {-0.05f, 1.05f, -0.05f, 1.05f};
        WriteWindowText(wb);
        wb.AttractorXMin = wb.AttractorYMin = 0;
        wb.AttractorXMax = wb.AttractorYMax = 1;
        wb.RandomMode = false;
        wb.IterationNumber = 0;
        pics.resize(Side, White);
        ApplyWindow(pics, wb.Window);
        pics.Det.DetSingleColor = Ink;
        wb.Menu.setChecked(MenuTable::key("mnuDrawDetColorItems", 0), true);
        for (int k = 0; k < 3; ++k) wb.Menu.setChecked(MenuTable::key("mnuColors", k), false);
        if (mode == 7) {
            wb.Menu.setChecked(MenuTable::key("mnuColors", 2), true);
        } else {
            wb.Menu.setChecked(MenuTable::key("mnuColors", 1), true);
            pics.Det.optColoring = mode;
        }
        // The source: a filled block, and one pixel in the dropped frame.
        pics.picImage3.clear();
        for (int r = 6; r < 40; ++r)
            for (int c = 4; c < 44; ++c) pics.picImage3.setPixel(c, r, Black);
        pics.picImage3.setPixel(0, 20, Black);
        pics.picfractal.takeImage(pics.picImage3);
    }

    // The level as the text states it: rows and columns 1 to N - 1, maps in ascending order, each
    // image coloured at its own place; later images cover earlier ones.
    std::vector<Color> expected(int which, const std::function<Color(float x, float y)>& colorOf) const {
        const RasterSurface& s = pics.picfractal;
        const float step = static_cast<float>(s.pixelsToWorldX(1));
        const float stepY = static_cast<float>(std::fabs(s.pixelsToWorldY(1)));
        const float xmin = static_cast<float>(s.scaleLeft()), ymax = static_cast<float>(s.scaleTop());
        const IFSEntry& m = wb.CurrentIFS;
        std::vector<Color> out(static_cast<size_t>(Side) * Side, White);
        for (int r = 1; r < Side; ++r)
            for (int c = 1; c < Side; ++c) {
                if (pics.picImage3.pixel(c, r) == White) continue;
                const float x = static_cast<float>(c) * step + xmin;
                const float y = ymax - static_cast<float>(r) * stepY;
                for (int i = 0; i < 3; ++i) {
                    if (which >= 0 && i != which) continue;
                    const float nx = m.a[i] * x + m.b[i] * y + m.e[i];
                    const float ny = m.c[i] * x + m.d[i] * y + m.f[i];
                    const Color colour = colorOf(nx, ny);
                    const double col =
                        std::floor((static_cast<double>(nx) - s.scaleLeft()) * s.pixelScaleX());
                    const double row = std::floor((static_cast<double>(ny) - s.scaleTop()) * s.pixelScaleY());
                    if (col < 0 || row < 0 || col >= Side || row >= Side) continue;
                    out[static_cast<size_t>(row) * Side + static_cast<size_t>(col)] = colour;
                }
            }
        return out;
    }

    void expectLevel(const std::vector<Color>& want, size_t minColours) const {
        int wrong = 0, painted = 0;
        std::set<Color> colours;
        for (int r = 0; r < Side; ++r)
            for (int c = 0; c < Side; ++c) {
                const Color w = want[static_cast<size_t>(r) * Side + c];
                wrong += pics.picfractal.pixel(c, r) != w;
                painted += w != White;
                colours.insert(w);
            }
        EXPECT_EQ(wrong, 0);
        EXPECT_GT(painted, 200);
        EXPECT_GE(colours.size(), minColours);
        EXPECT_EQ(wb.IterationNumber, 1);
    }
};

TEST(DeterministicColorModes, HeightColoursEachImageAtItsPlace) {
    Level l(HeightColorMode);
    const auto want = l.expected(-1, [&](float, float y) {
        return FormulaGradientColor(l.wb.Gradient, std::min(std::fabs(static_cast<double>(y)), 1.0));
    });
    Iterate(l.wb, l.pics, l.host, -1);
    l.expectLevel(want, 4);
}

TEST(DeterministicColorModes, WidthColoursEachImageAtItsPlace) {
    Level l(WidthColorMode);
    const auto want = l.expected(-1, [&](float x, float) {
        return FormulaGradientColor(l.wb.Gradient, std::min(std::fabs(static_cast<double>(x)), 1.0));
    });
    Iterate(l.wb, l.pics, l.host, -1);
    l.expectLevel(want, 4);
}

TEST(DeterministicColorModes, RadialColoursEachImageAtItsPlace) {
    Level l(RadialColorMode);
    const auto want = l.expected(-1, [&](float x, float y) {
        const double dx = x - 0.5, dy = y - 0.5;
        return FormulaGradientColor(l.wb.Gradient, std::min(std::sqrt(dx * dx + dy * dy) / 0.5, 1.0));
    });
    Iterate(l.wb, l.pics, l.host, -1);
    l.expectLevel(want, 4);
}

TEST(DeterministicColorModes, FixedPointsColourEachImageAtItsPlace) {
    Level l(FixedPointColorMode);
    const double fx[3] = {0, 1, 0.5}, fy[3] = {0, 0, 1};
    const auto want = l.expected(-1, [&](float x, float y) {
        double lo = 1000, hi = 0;
        for (int k = 0; k < 3; ++k) {
            const double d = (x - fx[k]) * (x - fx[k]) + (y - fy[k]) * (y - fy[k]);
            lo = std::min(lo, d);
            hi = std::max(hi, d);
        }
        return FormulaGradientColor(l.wb.Gradient, std::sqrt(lo) / std::sqrt(hi));
    });
    Iterate(l.wb, l.pics, l.host, -1);
    l.expectLevel(want, 4);
}

TEST(DeterministicColorModes, RandomAndVisitOptionsDrawInTheSingleColour) {
    for (int mode : {RandomColorMode, VisitCountColorMode}) {
        Level l(mode);
        const auto want = l.expected(-1, [](float, float) { return Ink; });
        Iterate(l.wb, l.pics, l.host, -1);
        l.expectLevel(want, 2);
    }
}

TEST(DeterministicColorModes, ModeSevenDrawsARandomStripForEveryImage) {
    Level l(StealingColorMode);
    l.wb.Rng.pin(5);
    Random rng;
    rng.pin(5);
    const auto strips = GradientStrips(l.wb.Gradient);
    // One draw per image, whether it lands on the picture or not.
    const auto want = l.expected(
        -1, [&](float, float) { return strips[static_cast<size_t>(std::floor(rng.Rnd() * 180))]; });
    Iterate(l.wb, l.pics, l.host, -1);
    l.expectLevel(want, 20);
}

TEST(DeterministicColorModes, ADigitKeyAppliesOneMapInAGradientMode) {
    Level l(WidthColorMode);
    const auto want = l.expected(1, [&](float x, float) {
        return FormulaGradientColor(l.wb.Gradient, std::min(std::fabs(static_cast<double>(x)), 1.0));
    });
    Iterate(l.wb, l.pics, l.host, 1);
    l.expectLevel(want, 3);
    // Map 1 puts everything in the right half.
    for (int r = 0; r < Side; ++r)
        for (int c = 0; c < Side / 2 - 1; ++c) ASSERT_EQ(l.pics.picfractal.pixel(c, r), White);
}

TEST(DeterministicColorModes, AnEmptySourceGivesAnEmptyLevelAndTheLevelStillCounts) {
    Level l(RadialColorMode);
    l.pics.picImage3.clear();
    l.pics.picfractal.clear();
    Iterate(l.wb, l.pics, l.host, -1);
    for (int r = 0; r < Side; ++r)
        for (int c = 0; c < Side; ++c) ASSERT_EQ(l.pics.picfractal.pixel(c, r), White);
    EXPECT_EQ(l.wb.IterationNumber, 1);
}

TEST(DeterministicColorModes, TheModeFollowsTheMenusAsInTheRandomDrawing) {
    Level l(7);
    EXPECT_EQ(DeterministicColorMode(l.wb, l.pics), 7);
    Level g(3);
    EXPECT_EQ(DeterministicColorMode(g.wb, g.pics), 3);
}

}  // namespace
}  // namespace quillane
