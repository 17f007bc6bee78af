#include "generators/line_fractal.h"

#include <gtest/gtest.h>

#include <cmath>

#include "core/numbers.h"
#include "generators/line_fractal_canvas.h"
#include "generators/line_fractal_file.h"

namespace quillane::testing {
namespace {

constexpr double P = 3.141592654;

LineFractal polyline(std::initializer_list<GeneratorPoint> points, int direction = 0) {
    LineFractal g;
    g.nSegments = static_cast<int>(points.size()) - 1;
    g.SegmentDirection = direction;
    size_t i = 0;
    for (const GeneratorPoint& p : points) g.GeneratorPoints[i++] = p;
    g.txtOrient = std::string(static_cast<size_t>(g.nSegments), 'F');
    return g;
}

TEST(LineFractal, StartsAsTwoHalvesOfTheUnitSegment) {
    const LineFractal g;
    EXPECT_EQ(g.nSegments, 2);
    EXPECT_EQ(g.GeneratorPoints[1], (GeneratorPoint{0.5f, 0}));
    EXPECT_EQ(g.GeneratorPoints[2], (GeneratorPoint{1, 0}));
    EXPECT_EQ(g.txtOrient, "FF");
}

TEST(LineFractal, ATan2TakesShortStepsAsStraightUpOrDown) {
    EXPECT_EQ(ATan2(1, 0.0099f), static_cast<float>(P / 2));
    EXPECT_EQ(ATan2(-1, -0.0099f), static_cast<float>(-P / 2));
    EXPECT_EQ(ATan2(0, 0), static_cast<float>(P / 2));
    EXPECT_NEAR(ATan2(1, -1), 3 * P / 4, 1e-6);
    EXPECT_NEAR(ATan2(-1, -1), -3 * P / 4, 1e-6);
    EXPECT_NEAR(ATan2(-1, 1), -P / 4, 1e-6);
}

TEST(LineFractal, RecDepthFollowsTheSegmentCount) {
    const int expected[] = {1, 1, 7, 6, 5, 4, 4, 4, 3, 3, 3, 3, 3, 3, 2, 2, 1};
    for (int n = 0; n <= 16; ++n) EXPECT_EQ(RecDepth(n), expected[n]) << n;
}

TEST(LineFractal, ASegmentOfLengthOneRefusesTheBuildAndIsRed) {
    LineFractal g = polyline({{0, 0}, {0, 0}, {1, 0}});
    const LineMaps maps = LineFractalMaps(g);
    EXPECT_EQ(maps.refusedSegment, 1);
    EXPECT_EQ(maps.ifs.nMaps, 0);
    EXPECT_EQ(SegmentColor(g, 1), SegmentRed);
    EXPECT_EQ(SegmentColor(g, 0), Black);
    RasterSurface canvas(200, 200), grid(200, 200);
    LineCanvasView v;
    ApplyCanvasView(v, canvas, grid);
    DrawPolyline(canvas, grid, g, v);
    EXPECT_EQ(canvas.point(0.5, 0), SegmentRed);
    g.GeneratorPoints[1] = {0.5f, 0};
    EXPECT_EQ(LineFractalMaps(g).refusedSegment, -1);
    DrawPolyline(canvas, grid, g, v);
    EXPECT_EQ(canvas.point(0.25, 0), Black);
}

TEST(LineFractal, ANearlyVerticalSegmentGetsAQuarterTurnInItsMap) {
    const LineFractal g = polyline({{0, 0}, {0.0099f, 0.5f}, {0.6f, 0.5f}, {1, 0}});
    const LineMaps maps = LineFractalMaps(g);
    ASSERT_EQ(maps.refusedSegment, -1);
    EXPECT_EQ(SegmentAngle(g, 0), static_cast<float>(P / 2));
    const float r = SegmentLength(g, 0);
    const double t = static_cast<float>(P / 2);
    EXPECT_EQ(maps.ifs.a[0], static_cast<float>(r * std::cos(t)));
    EXPECT_EQ(maps.ifs.c[0], static_cast<float>(r * std::sin(t)));
    EXPECT_EQ(maps.ifs.b[0], static_cast<float>(-r * std::sin(t)));
    // The true segment leans a little right; the map stands straight up.
    EXPECT_GT(std::fabs(std::atan2(0.5, 0.0099) - t), 0.01);
}

TEST(LineFractal, OrientationLettersSetReversalAndMirror) {
    LineFractal g = polyline({{0, 0}, {0.5f, 0.25f}, {0.75f, 0}, {0.8f, 0.1f}, {1, 0}});
    g.chkOrient = true;
    g.txtOrient = " fbga ";
    const LineMaps maps = LineFractalMaps(g);
    ASSERT_EQ(maps.refusedSegment, -1);
    // F: the map sends (0,0) to P0 and (1,0) to P1.
    EXPECT_NEAR(maps.ifs.a[0] + maps.ifs.e[0], 0.5, 1e-6);
    EXPECT_NEAR(maps.ifs.c[0] + maps.ifs.f[0], 0.25, 1e-6);
    // B: (0,0) to P2, (1,0) to P1, same side.
    EXPECT_EQ(maps.ifs.e[1], 0.75f);
    EXPECT_NEAR(maps.ifs.a[1] + maps.ifs.e[1], 0.5, 1e-6);
    EXPECT_NEAR(maps.ifs.a[1] * maps.ifs.d[1] - maps.ifs.b[1] * maps.ifs.c[1], 0.25 * 0.25 * 2, 1e-6);
    // G mirrors: a negative determinant, start kept.
    EXPECT_EQ(maps.ifs.e[2], 0.75f);
    EXPECT_LT(maps.ifs.a[2] * maps.ifs.d[2] - maps.ifs.b[2] * maps.ifs.c[2], 0);
    // A swaps the ends and mirrors.
    EXPECT_EQ(maps.ifs.e[3], 1.0f);
    EXPECT_LT(maps.ifs.a[3] * maps.ifs.d[3] - maps.ifs.b[3] * maps.ifs.c[3], 0);
}

TEST(LineFractal, AMissingLetterBuildsLikeA) {
    LineFractal g = polyline({{0, 0}, {0.5f, 0.25f}, {1, 0}});
    g.chkOrient = true;
    g.txtOrient = "F";
    const LineMaps maps = LineFractalMaps(g);
    EXPECT_EQ(maps.ifs.e[1], 1.0f);
    EXPECT_LT(maps.ifs.a[1] * maps.ifs.d[1] - maps.ifs.b[1] * maps.ifs.c[1], 0);
    EXPECT_EQ(SegmentColor(g, 1), SegmentNoLetter);
}

TEST(LineFractal, VerticalMapsSendTheUnitUprightOntoTheSegment) {
    const LineFractal g = polyline({{0, 0}, {-0.3f, 0.4f}, {0, 1}}, 1);
    const LineMaps maps = LineFractalMaps(g);
    // (0,1) goes to the segment's end.
    EXPECT_NEAR(maps.ifs.b[0] + maps.ifs.e[0], -0.3, 1e-6);
    EXPECT_NEAR(maps.ifs.d[0] + maps.ifs.f[0], 0.4, 1e-6);
    EXPECT_NEAR(maps.ifs.b[1] + maps.ifs.e[1], 0, 1e-6);
    EXPECT_NEAR(maps.ifs.d[1] + maps.ifs.f[1], 1, 1e-6);
}

TEST(LineFractal, CommentsAndNameDescribeThePolyline) {
    LineFractal g = polyline({{0, 0}, {0.5f, -0.25f}, {1, 0}});
    EXPECT_EQ(LineFractalComments(g),
              (std::vector<std::string>{"; Line Fractal", "; ( 0, 0)", "; ( .5,-.25)", "; ( 1, 0)"}));
    g.chkOrient = true;
    g.txtOrient = "FA";
    EXPECT_EQ(LineFractalComments(g).back(), "; oriented: FA");
    EXPECT_EQ(LineFractalName(12), "Line Fractal (12 segments)");
}

TEST(LineFractal, RemovingWithNoneSelectedDropsTheLastInnerVertex) {
    LineFractal g = polyline({{0, 0}, {0.2f, 0.1f}, {0.6f, 0.2f}, {1, 0}});
    g.txtOrient = "FBA";
    int selected = -1;
    RemoveEdge(g, selected);
    EXPECT_EQ(g.nSegments, 2);
    EXPECT_EQ(g.GeneratorPoints[1], (GeneratorPoint{0.2f, 0.1f}));
    EXPECT_EQ(g.GeneratorPoints[2], (GeneratorPoint{1, 0}));
    EXPECT_EQ(g.txtOrient, "FA");
    EXPECT_EQ(selected, -1);
    RemoveEdge(g, selected);
    EXPECT_EQ(g.nSegments, 2);
}

TEST(LineFractal, AddingWithNoneSelectedSplitsTheLastSegmentAndSelectsIt) {
    LineFractal g = polyline({{0, 0}, {0.2f, 0.4f}, {1, 0}});
    g.txtOrient = "BA";
    int selected = -1;
    AddEdge(g, selected);
    EXPECT_EQ(g.nSegments, 3);
    EXPECT_EQ(selected, 2);
    EXPECT_EQ(g.GeneratorPoints[2], (GeneratorPoint{0.6f, 0.2f}));
    EXPECT_EQ(g.GeneratorPoints[3], (GeneratorPoint{1, 0}));
    EXPECT_EQ(g.txtOrient, "BFA");
    // A selected vertex gets its new neighbour before it.
    selected = 1;
    AddEdge(g, selected);
    EXPECT_EQ(g.GeneratorPoints[1], (GeneratorPoint{0.1f, 0.2f}));
    EXPECT_EQ(g.GeneratorPoints[2], (GeneratorPoint{0.2f, 0.4f}));
    EXPECT_EQ(g.txtOrient, "FBFA");
    LineFractal full;
    full.nSegments = 15;
    ResetPolyline(full);
    selected = -1;
    AddEdge(full, selected);
    EXPECT_EQ(full.nSegments, 15);
    EXPECT_EQ(selected, -1);
}

TEST(LineFractal, SnapAllCanMoveTheEndVerticesOffTheirPlaces) {
    LineFractal g = polyline({{0, 0}, {0.52f, 0.26f}, {1, 0}});
    SnapAll(g, 0.3f, 0.3f);
    EXPECT_FLOAT_EQ(g.GeneratorPoints[2].x, 0.9f);
    EXPECT_FLOAT_EQ(g.GeneratorPoints[1].x, 0.6f);
    EXPECT_FLOAT_EQ(g.GeneratorPoints[1].y, 0.3f);
    // Half a step rounds to the even multiple.
    EXPECT_EQ(SnapValue(0.25f, 0.5f), 0.0f);
    EXPECT_EQ(SnapValue(0.75f, 0.5f), 1.0f);
}

TEST(LineFractal, HomeInVerticalModeShowsTheHorizontalView) {
    LineFractal g;
    LineCanvasView v;
    TurnPolyline(g, 1);
    TurnView(v, 1);
    EXPECT_EQ(g.GeneratorPoints[2], (GeneratorPoint{0, 1}));
    EXPECT_EQ(v.xmin, -0.52f);
    EXPECT_EQ(v.xmax, 0.52f);
    EXPECT_EQ(v.ymin, -0.02f);
    EXPECT_EQ(v.ymax, 1.02f);
    MoveView(v, ViewKey::Home);
    EXPECT_EQ(v.xmin, -0.02f);
    EXPECT_EQ(v.ymax, 0.52f);
    EXPECT_EQ(g.GeneratorPoints[2], (GeneratorPoint{0, 1}));
    TurnPolyline(g, 0);
    EXPECT_EQ(g.GeneratorPoints[2], (GeneratorPoint{1, 0}));
}

TEST(LineFractal, ViewKeysMoveByAStep) {
    LineCanvasView v;
    MoveView(v, ViewKey::PageDown);
    EXPECT_FLOAT_EQ(v.xmin, -0.07f);
    EXPECT_FLOAT_EQ(v.ymax, 0.57f);
    MoveView(v, ViewKey::Right);
    EXPECT_FLOAT_EQ(v.xmin, -0.02f);
    EXPECT_EQ(ScaleLabels(v), (std::array<std::string, 4>{"0.00", "1.10", "-0.55", "0.55"}));
}

TEST(LineFractal, TypedLettersAreCapitalsOfFBAG) {
    EXPECT_EQ(OrientKey('f'), 'F');
    EXPECT_EQ(OrientKey('A'), 'A');
    EXPECT_EQ(OrientKey(8), char{8});
    EXPECT_FALSE(OrientKey('x'));
    EXPECT_FALSE(OrientKey('1'));
}

TEST(LineFractal, HitsOnlyInnerVertices) {
    const LineFractal g;
    EXPECT_EQ(HitVertex(g, 0.51f, 0.01f), 1);
    EXPECT_EQ(HitVertex(g, 0.52f, 0), -1);
    EXPECT_EQ(HitVertex(g, 0, 0), -1);
    EXPECT_EQ(HitVertex(g, 1, 0), -1);
}

TEST(LineFractal, TheGridIsSolidEveryQuarterAtTheDefaultSpacing) {
    RasterSurface canvas(208, 208), grid(208, 208);
    LineCanvasView v;
    v.chkGrid = true;
    ApplyCanvasView(v, canvas, grid);
    DrawGrid(grid, v);
    int solid = 0, dotted = 0;
    for (double y = -0.5; y <= 0.5; y += 0.0049) {
        solid += grid.point(0.25, y) == GridGrey;
        dotted += grid.point(0.1, y) == GridGrey;
    }
    EXPECT_GT(solid, 190);
    EXPECT_GT(dotted, 40);
    EXPECT_LT(dotted, 150);
    v.chkGrid = false;
    DrawGrid(grid, v);
    EXPECT_EQ(grid.point(0.25, 0.1), White);
}

TEST(LineFractal, HalfArrowsSitOnTheLetterSide) {
    LineFractal g;
    g.chkOrient = true;
    g.txtOrient = "FG";
    RasterSurface canvas(400, 400), grid(400, 400);
    LineCanvasView v;
    ApplyCanvasView(v, canvas, grid);
    DrawPolyline(canvas, grid, g, v);
    auto count = [&](double x0, double x1, double y0, double y1) {
        int n = 0;
        for (double x = x0; x <= x1; x += 0.002)
            for (double y = y0; y <= y1; y += 0.002) n += canvas.point(x, y) == SegmentForward;
        return n;
    };
    // F: the barb lies left of the direction of travel (above), G below.
    EXPECT_GT(count(0.3, 0.4, 0.005, 0.05), 0);
    EXPECT_EQ(count(0.3, 0.4, -0.05, -0.005), 0);
    EXPECT_GT(count(0.8, 0.9, -0.05, -0.005), 0);
    EXPECT_EQ(count(0.8, 0.9, 0.005, 0.05), 0);
}

}  // namespace
}  // namespace quillane::testing
