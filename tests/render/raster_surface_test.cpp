#include "render/raster_surface.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <set>
#include <utility>

namespace quillane {
namespace {

using Pixels = std::set<std::pair<int, int>>;  // (column, row)

constexpr Color Red = RGB(255, 0, 0);
constexpr Color Green = RGB(0, 255, 0);
constexpr Color Blue = RGB(0, 0, 255);

Pixels pixelsOf(const RasterSurface& s, Color c) {
    Pixels out;
    for (int row = 0; row < s.height(); ++row)
        for (int col = 0; col < s.width(); ++col)
            if (s.pixel(col, row) == c) out.insert({col, row});
    return out;
}

size_t countOf(const RasterSurface& s, Color c) {
    return static_cast<size_t>(std::count_if(s.data(), s.data() + static_cast<size_t>(s.width()) * s.height(),
                                             [c](uint32_t p) { return (p & 0xFFFFFFu) == c; }));
}

Pixels rectangle(int c1, int r1, int c2, int r2) {
    Pixels out;
    for (int row = r1; row <= r2; ++row)
        for (int col = c1; col <= c2; ++col) out.insert({col, row});
    return out;
}

// The textbook incremental midpoint circle, as a reference for the surface's own outline.
Pixels midpointCircle(int cx, int cy, int r) {
    Pixels out;
    int x = 0, y = r, d = 1 - r;
    while (x <= y) {
        for (auto [u, v] : {std::pair{x, y}, {y, x}, {-x, y}, {-y, x}}) {
            out.insert({cx + u, cy + v});
            out.insert({cx + u, cy - v});
        }
        if (d < 0) {
            d += 2 * x + 3;
        } else {
            d += 2 * (x - y) + 5;
            --y;
        }
        ++x;
    }
    return out;
}

TEST(RasterSurface, ANewSurfaceUsesPixelUnitsAndItsBackColour) {
    RasterSurface s(10, 8, Black);
    EXPECT_EQ(s.scaleLeft(), 0);
    EXPECT_EQ(s.scaleTop(), 0);
    EXPECT_EQ(s.scaleRight(), 10);
    EXPECT_EQ(s.scaleBottom(), 8);
    EXPECT_EQ(pixelsOf(s, Black).size(), 80u);
    s.pset(3.7, 2.2, Red);
    EXPECT_EQ(pixelsOf(s, Red), (Pixels{{3, 2}}));
}

TEST(RasterSurface, PixelsAreStoredRowByRowWithAnOpaqueFourthByte) {
    RasterSurface s(4, 3, Black);
    s.pset(1, 2, RGB(1, 2, 3));
    EXPECT_EQ(s.data()[2 * 4 + 1], 0xFF030201u);
    EXPECT_EQ(s.data()[0], 0xFF000000u);
}

TEST(RasterSurface, AnEmptySurfaceDrawsNothingAndReadsNoColor) {
    RasterSurface s;
    EXPECT_EQ(s.width(), 0);
    EXPECT_EQ(s.scaleRight(), 0);
    EXPECT_NO_THROW(s.pset(0, 0, Red));
    EXPECT_EQ(s.point(0, 0), NoColor);
}

TEST(RasterSurface, ResizeFollowsPixelUnitsUntilAScaleIsSet) {
    RasterSurface s(10, 10);
    s.resize(20, 5);
    EXPECT_EQ(s.scaleRight(), 20);
    EXPECT_EQ(s.scaleBottom(), 5);
    s.setScale(-1, 1, 1, -1);
    s.resize(40, 30);
    EXPECT_EQ(s.scaleLeft(), -1);
    EXPECT_EQ(s.scaleTop(), 1);
    EXPECT_EQ(s.scaleRight(), 1);
    EXPECT_EQ(s.scaleBottom(), -1);
    EXPECT_DOUBLE_EQ(s.pixelScaleX(), 20);
    EXPECT_DOUBLE_EQ(s.pixelScaleY(), -15);
}

TEST(RasterSurface, ResizeClearsToTheBackColour) {
    RasterSurface s(5, 5, White);
    s.pset(1, 1, Red);
    s.setBackColor(Blue);
    s.resize(6, 6);
    EXPECT_EQ(pixelsOf(s, Blue).size(), 36u);
}

TEST(RasterSurface, APointOfAYUpScaleLandsOnItsComputedPixel) {
    RasterSurface s(100, 100, White);
    s.setScale(-1, 1, 1, -1);
    s.pset(0.5, 0.5, Red);  // column (0.5 + 1) * 50, row (0.5 - 1) * -50
    s.pset(-1, 1, Green);   // the top left corner
    s.pset(-0.99, -0.99, Blue);
    EXPECT_EQ(pixelsOf(s, Red), (Pixels{{75, 25}}));
    EXPECT_EQ(pixelsOf(s, Green), (Pixels{{0, 0}}));
    EXPECT_EQ(pixelsOf(s, Blue), (Pixels{{0, 99}}));
}

TEST(RasterSurface, PointsOnTheFarEdgesFallOutside) {
    RasterSurface s(100, 100, White);
    s.setScale(-1, 1, 1, -1);
    s.pset(1, 0, Red);   // column 100
    s.pset(0, -1, Red);  // row 100
    EXPECT_TRUE(pixelsOf(s, Red).empty());
}

TEST(RasterSurface, LengthsConvertWithTheAbsoluteScale) {
    RasterSurface s(100, 50);
    s.setScale(-1, 1, 1, -1);
    EXPECT_DOUBLE_EQ(s.pixelsToWorldX(50), 1);
    EXPECT_DOUBLE_EQ(s.pixelsToWorldY(25), 1);
    EXPECT_DOUBLE_EQ(s.worldToPixelsX(0.5), 25);
    EXPECT_DOUBLE_EQ(s.worldToPixelsY(0.5), 12.5);
}

TEST(RasterSurface, ADegenerateScaleHasNoFactors) {
    RasterSurface s(10, 10);
    s.setScale(1, 1, 1, 1);
    EXPECT_EQ(s.pixelScaleX(), 0);
    EXPECT_EQ(s.pixelScaleY(), 0);
    EXPECT_EQ(s.worldToPixelsX(1), 0);
}

TEST(RasterSurface, PsetThrowsWhenThePixelDoesNotFitAnInteger) {
    RasterSurface s(10, 10);
    EXPECT_THROW(s.pset(1e300, 0, Red), SurfaceOverflow);
    EXPECT_THROW(s.pset(0, -3e9, Red), SurfaceOverflow);
    EXPECT_THROW(s.pset(std::nan(""), 0, Red), SurfaceOverflow);
    EXPECT_NO_THROW(s.pset(2e9, 0, Red));
    EXPECT_TRUE(pixelsOf(s, Red).empty());
}

TEST(RasterSurface, PointOutsideIsNoColor) {
    RasterSurface s(10, 10, Green);
    EXPECT_EQ(s.point(-0.5, 0), NoColor);
    EXPECT_EQ(s.point(10, 0), NoColor);
    EXPECT_EQ(s.point(0, 10), NoColor);
    EXPECT_EQ(s.point(1e300, 0), NoColor);
    EXPECT_EQ(s.point(std::nan(""), 0), NoColor);
    EXPECT_EQ(s.point(9.9, 9.9), Green);
}

TEST(RasterSurface, ClearUsesTheBackColourAndSettingItDoesNotClear) {
    RasterSurface s(6, 4, White);
    s.setBackColor(Red);
    EXPECT_EQ(pixelsOf(s, White).size(), 24u);
    s.clear();
    EXPECT_EQ(pixelsOf(s, Red).size(), 24u);
}

TEST(RasterSurface, InvertModeFlipsAPixelAndTwiceRestoresIt) {
    RasterSurface s(4, 4, White);
    s.pset(2, 2, RGB(1, 2, 3));
    s.setDrawMode(DrawMode::Invert);
    s.pset(2, 2, Red);
    EXPECT_EQ(s.pixel(2, 2), RGB(254, 253, 252));
    EXPECT_EQ(s.pixel(1, 1), White);
    s.pset(2, 2, Red);
    EXPECT_EQ(s.pixel(2, 2), RGB(1, 2, 3));
}

TEST(RasterSurface, PsetIsOnePixelWhateverTheDrawWidth) {
    RasterSurface s(10, 10, White);
    s.setDrawWidth(5);
    s.pset(5, 5, Red);
    EXPECT_EQ(pixelsOf(s, Red), (Pixels{{5, 5}}));
}

TEST(RasterSurface, ALineFromCornerToCornerIsTheDiagonal) {
    RasterSurface s(10, 10, White);
    s.line(0, 0, 9, 9, Red);
    s.line(9.5, 0.5, 0.5, 9.5, Blue);
    Pixels diagonal, anti;
    for (int i = 0; i < 10; ++i) {
        diagonal.insert({i, i});
        anti.insert({9 - i, i});
    }
    EXPECT_EQ(pixelsOf(s, Red), diagonal);
    EXPECT_EQ(pixelsOf(s, Blue), anti);
}

TEST(RasterSurface, ALineIncludesBothEnds) {
    RasterSurface s(10, 10, White);
    s.line(2, 3, 7, 3, Red);
    s.line(8, 8, 8, 1, Blue);
    EXPECT_EQ(pixelsOf(s, Red), rectangle(2, 3, 7, 3));
    EXPECT_EQ(pixelsOf(s, Blue), rectangle(8, 1, 8, 8));
}

TEST(RasterSurface, AShallowLineStepsAtTheNearestRows) {
    RasterSurface s(10, 10, White);
    s.line(0, 0, 6, 2, Red);
    EXPECT_EQ(pixelsOf(s, Red), (Pixels{{0, 0}, {1, 0}, {2, 1}, {3, 1}, {4, 1}, {5, 2}, {6, 2}}));
}

TEST(RasterSurface, AOnePixelLineIsOnePixel) {
    RasterSurface s(10, 10, White);
    s.line(4, 4, 4, 4, Red);
    EXPECT_EQ(pixelsOf(s, Red), (Pixels{{4, 4}}));
}

TEST(RasterSurface, AWidthThreeLineIsThreePixelsThick) {
    RasterSurface s(12, 12, White);
    s.setDrawWidth(3);
    s.line(2, 5, 7, 5, Red);
    EXPECT_EQ(pixelsOf(s, Red), rectangle(1, 4, 8, 6));
    s.clear();
    s.line(5, 2, 5, 9, Blue);
    EXPECT_EQ(pixelsOf(s, Blue), rectangle(4, 1, 6, 10));
}

TEST(RasterSurface, AnEvenWidthReachesUpAndLeft) {
    RasterSurface s(12, 12, White);
    s.setDrawWidth(2);
    s.line(3, 5, 6, 5, Red);
    EXPECT_EQ(pixelsOf(s, Red), rectangle(2, 4, 6, 5));
}

TEST(RasterSurface, ADottedLineAlternatesStartingWithADot) {
    RasterSurface s(12, 12, White);
    s.setDrawStyle(DrawStyle::Dot);
    s.line(0, 0, 9, 0, Red);
    s.line(11, 9, 11, 0, Blue);
    EXPECT_EQ(pixelsOf(s, Red), (Pixels{{0, 0}, {2, 0}, {4, 0}, {6, 0}, {8, 0}}));
    EXPECT_EQ(pixelsOf(s, Blue), (Pixels{{11, 9}, {11, 7}, {11, 5}, {11, 3}, {11, 1}}));
}

TEST(RasterSurface, AWideDottedLineIsSolid) {
    RasterSurface s(12, 12, White);
    s.setDrawStyle(DrawStyle::Dot);
    s.setDrawWidth(3);
    s.line(2, 5, 7, 5, Red);
    EXPECT_EQ(pixelsOf(s, Red), rectangle(1, 4, 8, 6));
}

TEST(RasterSurface, AnInvertedWideLineFlipsEachPixelOnce) {
    RasterSurface s(12, 12, White);
    s.setDrawWidth(3);
    s.line(1, 2, 9, 7, Red);
    const Pixels drawn = pixelsOf(s, Red);
    s.clear();
    s.setDrawMode(DrawMode::Invert);
    s.line(1, 2, 9, 7, Red);
    EXPECT_EQ(pixelsOf(s, Black), drawn);
    EXPECT_EQ(pixelsOf(s, White).size(), 144u - drawn.size());
    s.line(1, 2, 9, 7, Red);
    EXPECT_EQ(pixelsOf(s, White).size(), 144u);
}

TEST(RasterSurface, ALineToAFarPointDrawsItsVisiblePart) {
    RasterSurface s(10, 10, White);
    s.line(0, 5, 2e9, 5, Red);
    s.line(5, -2e9, 5, 2e9, Blue);
    Pixels row = rectangle(0, 5, 9, 5);
    row.erase({5, 5});
    EXPECT_EQ(pixelsOf(s, Red), row);
    EXPECT_EQ(pixelsOf(s, Blue), rectangle(5, 0, 5, 9));
}

TEST(RasterSurface, ALineBetweenTwoFarPointsKeepsItsSteps) {
    RasterSurface s(10, 10, White);
    s.line(-1e9, -1e9, 1e9, 1e9, Red);
    Pixels diagonal;
    for (int i = 0; i < 10; ++i) diagonal.insert({i, i});
    EXPECT_EQ(pixelsOf(s, Red), diagonal);
}

// A map typed as 1e9 or 1e30 sends the design's polygons that far: what crosses the picture is drawn,
// and nothing throws or takes long.
TEST(RasterSurface, ShapesReachingBeyondThirtyTwoBitPixelsDrawTheirVisiblePart) {
    RasterSurface s(10, 10, White);
    s.line(0, 0, 1e10, 0, Red);
    s.line(0, 9, 3e38, 9, Red);
    EXPECT_EQ(pixelsOf(s, Red), [] {
        Pixels p = rectangle(0, 0, 9, 0);
        for (const auto& q : rectangle(0, 9, 9, 9)) p.insert(q);
        return p;
    }());
    RasterSurface b(10, 10, White);
    b.box(2, 2, 1e30, 1e30, Blue, true);
    EXPECT_EQ(pixelsOf(b, Blue), rectangle(2, 2, 9, 9));
    RasterSurface g(10, 10, White);
    g.polygon({{0, 0}, {-3e38, 1e30}, {0, 5}}, Green, true);
    g.polygon({{5, 5}, {1e30, 5}, {1e30, 1e30}, {5, 1e30}}, Red, true);
    EXPECT_EQ(pixelsOf(g, Red), rectangle(5, 5, 9, 9));
    EXPECT_FALSE(pixelsOf(g, Green).empty());
    for (const auto& q : pixelsOf(g, Green)) EXPECT_EQ(q.first, 0);
}

TEST(RasterSurface, ShapesWithNaNOrCirclesBeyondReachDrawNothing) {
    RasterSurface s(10, 10, White);
    s.line(0, 0, std::nan(""), 5, Red);
    s.box(0, 0, std::nan(""), 5, Red, true);
    s.polygon({{0, 0}, {std::nan(""), 1}, {5, 5}}, Red, true);
    s.circle(5, 5, 1e30, Red, false);
    s.circle(1e30, 5, 2, Red, true);
    EXPECT_TRUE(pixelsOf(s, Red).empty());
}

TEST(RasterSurface, ABoxOutlineIsItsFourSides) {
    RasterSurface s(10, 10, White);
    s.box(6, 5, 2, 2, Red, false);
    Pixels frame = rectangle(2, 2, 6, 5);
    for (const auto& p : rectangle(3, 3, 5, 4)) frame.erase(p);
    EXPECT_EQ(pixelsOf(s, Red), frame);
    EXPECT_EQ(frame.size(), 14u);
}

TEST(RasterSurface, AFilledBoxIsEveryPixelBetweenItsCorners) {
    RasterSurface s(10, 10, White);
    s.box(2, 5, 6, 2, Red, true);
    EXPECT_EQ(pixelsOf(s, Red), rectangle(2, 2, 6, 5));
}

TEST(RasterSurface, AnInvertedBoxFlipsItsCornersOnce) {
    RasterSurface s(10, 10, White);
    s.setDrawMode(DrawMode::Invert);
    s.box(2, 2, 6, 5, Red, false);
    EXPECT_EQ(pixelsOf(s, Black).size(), 14u);
    EXPECT_EQ(s.pixel(2, 2), Black);
    EXPECT_EQ(s.pixel(6, 5), Black);
}

TEST(RasterSurface, AFilledCircleOfRadiusFiveHoldsItsLatticePoints) {
    RasterSurface s(21, 21, White);
    s.circle(10, 10, 5, Red, true);
    const Pixels disc = pixelsOf(s, Red);
    EXPECT_EQ(disc.size(), 81u);  // integer points with dx^2 + dy^2 <= 25
    EXPECT_TRUE(disc.count({10, 10}));
    EXPECT_TRUE(disc.count({15, 10}));
    EXPECT_TRUE(disc.count({10, 5}));
    EXPECT_TRUE(disc.count({13, 14}));
    EXPECT_FALSE(disc.count({5, 5}));
    EXPECT_FALSE(disc.count({14, 14}));
}

TEST(RasterSurface, TheCircleRadiusIsMeasuredAlongX) {
    RasterSurface s(40, 40, White);
    s.setScale(0, 0, 2, 1);  // 20 pixels per unit across, 40 down
    s.circle(1, 0.5, 0.25, Red, true);
    EXPECT_EQ(pixelsOf(s, Red).size(), 81u);
    EXPECT_EQ(s.pixel(20, 15), Red);
    EXPECT_EQ(s.pixel(20, 14), White);
}

TEST(RasterSurface, ACircleOutlineIsTheMidpointCircle) {
    for (int r = 0; r <= 30; ++r) {
        RasterSurface s(70, 70, White);
        s.circle(35, 35, r, Red, false);
        EXPECT_EQ(pixelsOf(s, Red), midpointCircle(35, 35, r)) << "radius " << r;
    }
}

TEST(RasterSurface, ACircleAcrossTheEdgeDrawsItsVisibleArcs) {
    RasterSurface s(20, 20, White);
    s.circle(-5, 10, 12, Red, false);
    Pixels visible;
    for (const auto& [col, row] : midpointCircle(-5, 10, 12))
        if (col >= 0 && row >= 0 && col < 20 && row < 20) visible.insert({col, row});
    ASSERT_FALSE(visible.empty());
    EXPECT_EQ(pixelsOf(s, Red), visible);
    s.circle(-1000, 10, 10, Blue, false);
    s.circle(10, 5000, 10, Blue, true);
    EXPECT_TRUE(pixelsOf(s, Blue).empty());
}

TEST(RasterSurface, AWideCircleOutlineStampsTheDrawWidth) {
    RasterSurface s(30, 30, White);
    s.setDrawWidth(3);
    s.circle(15, 15, 8, Red, false);
    Pixels ring;
    for (const auto& [col, row] : midpointCircle(15, 15, 8))
        for (const auto& p : rectangle(col - 1, row - 1, col + 1, row + 1)) ring.insert(p);
    EXPECT_EQ(pixelsOf(s, Red), ring);
}

TEST(RasterSurface, AHugeCircleVisitsOnlyWhatTheSurfaceShows) {
    RasterSurface s(10, 10, White);
    s.circle(5, 5 + 1e6, 1e6, Red, false);
    EXPECT_EQ(pixelsOf(s, Red), rectangle(0, 5, 9, 5));
    s.clear();
    s.circle(5, 5 + 1e6, 1e6, Blue, true);
    // Row 5 is the disc's top, one pixel wide; row 6 is already about 2 * 1414 pixels wide.
    Pixels disc = rectangle(0, 6, 9, 9);
    disc.insert({5, 5});
    EXPECT_EQ(pixelsOf(s, Blue), disc);
}

TEST(RasterSurface, AFilledTriangleCoversItsInsideAndEdgesOnly) {
    RasterSurface s(10, 10, White);
    s.polygon({{1, 1}, {8, 1}, {1, 8}}, Red, true);
    Pixels triangle;
    for (int row = 1; row <= 8; ++row)
        for (int col = 1; col + row <= 9; ++col) triangle.insert({col, row});
    EXPECT_EQ(pixelsOf(s, Red), triangle);
    EXPECT_EQ(s.pixel(3, 3), Red);
    EXPECT_EQ(s.pixel(6, 6), White);
}

// Ray casting to the right with half-open edges, as a reference for the scanline fill.
bool insidePolygon(double x, double y, const std::vector<WorldPoint>& v) {
    bool in = false;
    for (size_t i = 0, j = v.size() - 1; i < v.size(); j = i++) {
        if ((v[i].y > y) != (v[j].y > y) && x < (v[j].x - v[i].x) * (y - v[i].y) / (v[j].y - v[i].y) + v[i].x)
            in = !in;
    }
    return in;
}

TEST(RasterSurface, AFilledConcavePolygonIsItsInsidePixelsAndItsOutline) {
    const std::vector<WorldPoint> shape = {{2, 1}, {9, 1}, {12, 13}, {17, 9}, {18, 15}, {3, 14}, {6, 8}};
    RasterSurface outline(20, 16, White);
    outline.polygon(shape, Red, false);
    Pixels expected = pixelsOf(outline, Red);
    const size_t outlineOnly = expected.size();
    for (int row = 0; row < 16; ++row)
        for (int col = 0; col < 20; ++col)
            if (insidePolygon(col, row, shape)) expected.insert({col, row});
    ASSERT_GT(expected.size(), outlineOnly + 50);
    RasterSurface s(20, 16, White);
    s.polygon(shape, Red, true);
    EXPECT_EQ(pixelsOf(s, Red), expected);
}

TEST(RasterSurface, APolygonOutlineClosesOnItsFirstPoint) {
    RasterSurface s(10, 10, White);
    s.polygon({{1, 1}, {8, 1}, {1, 8}}, Red, false);
    const Pixels drawn = pixelsOf(s, Red);
    EXPECT_EQ(drawn.size(), 21u);  // three sides of 8 pixels sharing 3 corners
    EXPECT_TRUE(drawn.count({1, 4}));
    EXPECT_TRUE(drawn.count({4, 5}));
    EXPECT_FALSE(drawn.count({3, 3}));
}

TEST(RasterSurface, AFilledPentagramLeavesItsMiddleEmpty) {
    RasterSurface s(41, 41, White);
    std::vector<WorldPoint> star;
    for (int k = 0; k < 5; ++k) {
        const double a = (90 + 144 * k) * 3.141592654 / 180;
        star.push_back({20.5 + 18 * std::cos(a), 20.5 - 18 * std::sin(a)});
    }
    s.polygon(star, Red, true);
    EXPECT_EQ(s.pixel(20, 20), White);
    EXPECT_EQ(s.pixel(20, 6), Red);  // inside the top tip
    EXPECT_EQ(s.pixel(2, 2), White);
}

TEST(RasterSurface, AnInvertedFilledPolygonFlipsItsOutlineOnce) {
    RasterSurface s(10, 10, White);
    s.setDrawMode(DrawMode::Invert);
    s.polygon({{1, 1}, {8, 1}, {1, 8}}, Red, true);
    EXPECT_EQ(pixelsOf(s, Black).size(), 36u);
    EXPECT_EQ(s.pixel(8, 1), Black);
}

TEST(RasterSurface, FloodFillFillsAClosedRegionExactly) {
    RasterSurface s(10, 10, White);
    s.box(2, 2, 7, 7, Black, false);
    s.floodFill(4, 4, Red);
    EXPECT_EQ(pixelsOf(s, Red), rectangle(3, 3, 6, 6));
    EXPECT_EQ(pixelsOf(s, Black).size(), 20u);
    s.floodFill(0, 0, Green);
    EXPECT_EQ(pixelsOf(s, Green).size(), 64u);
    EXPECT_EQ(pixelsOf(s, Red).size(), 16u);
}

TEST(RasterSurface, FloodFillStopsAtADiagonalBecauseItIsFourConnected) {
    RasterSurface s(10, 10, White);
    s.line(0, 0, 9, 9, Black);
    s.floodFill(7, 2, Red);
    const Pixels filled = pixelsOf(s, Red);
    EXPECT_EQ(filled.size(), 45u);
    for (const auto& [col, row] : filled) EXPECT_GT(col, row);
}

TEST(RasterSurface, FloodFillFollowsALongSnakeWithoutRecursion) {
    const int n = 1001;
    RasterSurface s(n, n, White);
    for (int row = 1; row < n; row += 2) {
        const bool gapRight = (row / 2) % 2 == 0;  // walls leave a gap at alternate ends
        s.line(gapRight ? 0 : 1, row, gapRight ? n - 2 : n - 1, row, Black);
    }
    s.floodFill(0, 0, Red);
    EXPECT_EQ(countOf(s, White), 0u);
    EXPECT_EQ(countOf(s, Black), static_cast<size_t>(n - 1) / 2 * (n - 1));
    EXPECT_EQ(countOf(s, Red), static_cast<size_t>(n) * n - static_cast<size_t>(n - 1) / 2 * (n - 1));
}

TEST(RasterSurface, FloodFillBorderCrossesOtherColoursButNotTheBorder) {
    RasterSurface s(12, 10, White);
    s.box(1, 1, 10, 8, Blue, false);
    s.line(5, 2, 5, 7, Green);  // splits the inside in two
    s.line(7, 2, 7, 7, Red);    // already the fill colour
    s.floodFillBorder(3, 4, Blue, Red);
    EXPECT_EQ(pixelsOf(s, Red), rectangle(2, 2, 9, 7));
    EXPECT_EQ(pixelsOf(s, Blue).size(), 32u);
    EXPECT_EQ(pixelsOf(s, White).size(), 120u - 80u);
}

TEST(RasterSurface, FloodFillsDoNothingOutsideOrOnTheFillColour) {
    RasterSurface s(10, 10, White);
    s.box(2, 2, 7, 7, Blue, false);
    s.pset(4, 4, Red);
    const RasterSurface before = s;
    s.floodFill(-1, 4, Green);
    s.floodFill(4, 4, Red);
    s.floodFillBorder(4, 4, Blue, Red);
    s.floodFillBorder(2, 2, Blue, Green);
    s.floodFillBorder(4, 40, Blue, Green);
    EXPECT_TRUE(std::equal(s.data(), s.data() + 100, before.data()));
    EXPECT_THROW(s.floodFill(1e300, 0, Green), SurfaceOverflow);
}

TEST(RasterSurface, PaintPutsTheSourceCornerAtTheWorldPoint) {
    RasterSurface source(2, 2);
    source.pset(0, 0, Red);
    source.pset(1, 0, Green);
    source.pset(0, 1, Blue);
    source.pset(1, 1, Black);
    RasterSurface s(10, 10, White);
    s.setScale(-1, 1, 1, -1);
    s.paint(source, -0.5, 0.25, RasterOp::Copy);  // column 0.5 * 5, row -0.75 * -5: pixel (2, 3)
    EXPECT_EQ(s.pixel(2, 3), Red);
    EXPECT_EQ(s.pixel(3, 3), Green);
    EXPECT_EQ(s.pixel(2, 4), Blue);
    EXPECT_EQ(s.pixel(3, 4), Black);
    EXPECT_EQ(pixelsOf(s, White).size(), 96u);
}

TEST(RasterSurface, PaintClipsAtTheEdges) {
    RasterSurface source(2, 2);
    source.pset(0, 0, Red);
    source.pset(1, 1, Blue);
    RasterSurface s(5, 5, Green);
    s.paint(source, 4, 4, RasterOp::Copy);
    s.paint(source, -1, -1, RasterOp::Copy);
    EXPECT_EQ(pixelsOf(s, Red), (Pixels{{4, 4}}));
    EXPECT_EQ(pixelsOf(s, Blue), (Pixels{{0, 0}}));
    EXPECT_EQ(pixelsOf(s, Green).size(), 23u);
}

TEST(RasterSurface, PaintAndOrCombineTheColours) {
    RasterSurface source(1, 1);
    source.pset(0, 0, RGB(0x3C, 0xFF, 0x0F));
    RasterSurface s(2, 1, RGB(0xF0, 0x0F, 0xFF));
    s.paint(source, 0, 0, RasterOp::And);
    s.paint(source, 1, 0, RasterOp::Or);
    EXPECT_EQ(s.pixel(0, 0), RGB(0x30, 0x0F, 0x0F));
    EXPECT_EQ(s.pixel(1, 0), RGB(0xFC, 0xFF, 0xFF));
    EXPECT_EQ(s.data()[0] >> 24, 0xFFu);
    EXPECT_EQ(s.data()[1] >> 24, 0xFFu);
}

TEST(RasterSurface, PaintingItselfShiftsACopy) {
    RasterSurface s(3, 1, White);
    s.pset(0, 0, Red);
    s.pset(1, 0, Green);
    s.paint(s, 1, 0, RasterOp::Copy);
    EXPECT_EQ(s.pixel(0, 0), Red);
    EXPECT_EQ(s.pixel(1, 0), Red);
    EXPECT_EQ(s.pixel(2, 0), Green);
}

TEST(RasterSurface, TakeImageTakesSizeAndPixelsButNotTheScale) {
    RasterSurface source(3, 2, White);
    source.setScale(0, 0, 30, 20);
    source.pset(20, 10, Red);
    RasterSurface s(10, 10, Black);
    s.setScale(-1, 1, 1, -1);
    s.takeImage(source);
    EXPECT_EQ(s.width(), 3);
    EXPECT_EQ(s.height(), 2);
    EXPECT_EQ(pixelsOf(s, Red), (Pixels{{2, 1}}));
    EXPECT_EQ(pixelsOf(s, White).size(), 5u);
    EXPECT_EQ(s.scaleLeft(), -1);
    EXPECT_EQ(s.scaleBottom(), -1);
    EXPECT_DOUBLE_EQ(s.pixelScaleX(), 1.5);
    EXPECT_DOUBLE_EQ(s.pixelScaleY(), -1);

    RasterSurface plain(10, 10);
    plain.takeImage(source);
    EXPECT_EQ(plain.scaleRight(), 3);
    EXPECT_EQ(plain.scaleBottom(), 2);
}

}  // namespace
}  // namespace quillane
