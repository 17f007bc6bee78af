#include "app/line_fractal_commands.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdio>
#include <fstream>
#include <sstream>

#include "app/design_view.h"
#include "app/deterministic_commands.h"
#include "core/fractal_list.h"
#include "core/initial_polygons.h"
#include "core/menu_tree.h"
#include "core/sample_systems.h"
#include "core/scripted_host.h"
#include "render/deterministic.h"
#include "render/scale.h"

namespace quillane::testing {
namespace {

// The horizontal unit line as the initial set of the deterministic drawing.
bool drawUnitLine(Workbench& wb, FractalPictures& pics, Host&, int, bool, bool ResetWindow) {
    if (ResetWindow) {
        const WorldWindow w = wb.Window;
        SetUpDeterministicWindow(wb, pics, w.xmin, w.xmax, w.ymin, w.ymax, false);
    }
    pics.picImage3.setBackColor(pics.picfractal.backColor());
    pics.picImage3.clear();
    pics.picfractal.clear();
    pics.picfractal.line(0, 0, 1, 0, Black);
    pics.picImage3.line(0, 0, 1, 0, Black);
    return true;
}

class LineFractalCommandsTest : public ::testing::Test {
  protected:
    void SetUp() override {
        InitializeMenuState(s.wb.Menu);
        s.pics.resize(200, White);
        s.design.resize(120, 120, s.wb.DesignBackColor);
        ApplyDesignWindow(s.design, s.wb.DesignWindow);
        s.wb.CurrentIFS = SierpinskiTriangleIFS();
        s.wb.CurrentIFS.Name = "Triangle";
        s.wb.txtMaps = "3";
        s.pics.Det.FigureDrawer = drawUnitLine;
        setscale(s.wb, host, true, &s.pics);
        ASSERT_TRUE(mnuDesignExample_Click(s.wb, s.Generator, host, LineFractalsExample));
    }
    LineFractal& g() { return s.Line.Generator; }
    void shape(std::initializer_list<GeneratorPoint> points) {
        g().nSegments = static_cast<int>(points.size()) - 1;
        size_t i = 0;
        for (const GeneratorPoint& p : points) g().GeneratorPoints[i++] = p;
        g().txtOrient = std::string(static_cast<size_t>(g().nSegments), 'F');
    }
    AppState s;
    ScriptedHost host;
};

TEST_F(LineFractalCommandsTest, CreateIFSFillsTheTableWithOneMapPerSegment) {
    shape({{0, 0}, {0.5f, 0.3f}, {1, 0}});
    ASSERT_TRUE(LineFractalSetup(s, host, false));
    const IFSEntry& ifs = s.wb.CurrentIFS;
    EXPECT_EQ(ifs.nMaps, 2);
    EXPECT_EQ(ifs.Name, "Line Fractal (2 segments)");
    EXPECT_EQ(s.wb.FunctionsCaption, "IFS [Line Fractal (2 segments)]");
    ASSERT_EQ(ifs.nComments, 4);
    EXPECT_EQ(ifs.Comment[1], "; Line Fractal");
    EXPECT_EQ(ifs.Comment[3], "; ( .5, .3)");
    EXPECT_EQ(s.wb.lblComment, "; Line Fractal");
    EXPECT_EQ(s.wb.txtMaps, "2");
    EXPECT_NEAR(ifs.p[0], 0.5, 1e-3);
    EXPECT_NEAR(ifs.p[0] + ifs.p[1], 1, 1e-3);
    EXPECT_TRUE(s.wb.menu(MenuTable::key("mnupoly", 4)).checked);
    EXPECT_FALSE(s.wb.menu(MenuTable::key("mnupoly", 5)).checked);
    EXPECT_EQ(s.wb.InitialPolygon, BuiltInPolygon(4));
    EXPECT_TRUE(s.Line.LineRecursionAllowed);
    EXPECT_FALSE(s.Line.UseLineRecursion);
    EXPECT_TRUE(s.Generator.SetupDone);
    EXPECT_TRUE(s.wb.IFSModified);
    EXPECT_TRUE(s.wb.menu("mnuRun").enabled);
    EXPECT_FLOAT_EQ(g().MaxRatio, std::sqrt(0.25f + 0.09f));
    EXPECT_TRUE(host.shown().empty());
    EXPECT_EQ(s.wb.UndoWindow, s.wb.Window);
}

TEST_F(LineFractalCommandsTest, ASegmentOfLengthOneIsRefusedAndTheCountStays) {
    shape({{0, 0}, {0.3f, 0.1f}, {0, 0}, {1, 0}});
    ASSERT_FALSE(LineFractalSetup(s, host, false));
    ASSERT_EQ(host.shown().size(), 1u);
    EXPECT_EQ(host.shown()[0].title, "Error");
    EXPECT_EQ(host.shown()[0].text, "IFS is not contracting.\nAdjust the red segment(s).   ");
    const IFSEntry& ifs = s.wb.CurrentIFS;
    EXPECT_EQ(ifs.nMaps, 3);
    EXPECT_EQ(ifs.Name, "Triangle");
    // The maps before the long segment were written all the same.
    EXPECT_FLOAT_EQ(ifs.a[0], 0.3f);
    EXPECT_FLOAT_EQ(ifs.c[0], 0.1f);
    EXPECT_FALSE(s.Generator.SetupDone);
}

TEST_F(LineFractalCommandsTest, AShortTextBuildsAsAThenIsPaddedWithF) {
    shape({{0, 0}, {0.5f, 0.3f}, {1, 0}});
    g().chkOrient = true;
    g().txtOrient = "F";
    ASSERT_TRUE(LineFractalSetup(s, host, false));
    const IFSEntry first = s.wb.CurrentIFS;
    EXPECT_EQ(first.e[1], 1.0f);  // reversed: starts at the far end
    EXPECT_LT(first.a[1] * first.d[1] - first.b[1] * first.c[1], 0);
    EXPECT_EQ(g().txtOrient, "FF");
    EXPECT_EQ(first.Comment[first.nComments], "; oriented: F");
    EXPECT_FALSE(s.Line.LineRecursionAllowed);
    ASSERT_TRUE(LineFractalSetup(s, host, false));
    const IFSEntry& second = s.wb.CurrentIFS;
    EXPECT_EQ(second.e[1], 0.5f);
    EXPECT_GT(second.a[1] * second.d[1] - second.b[1] * second.c[1], 0);
    EXPECT_EQ(second.Comment[second.nComments], "; oriented: FF");
}

TEST_F(LineFractalCommandsTest, VerticalModeTakesTheVerticalLine) {
    TurnPolyline(g(), 1);
    ASSERT_TRUE(LineFractalSetup(s, host, false));
    EXPECT_TRUE(s.wb.menu(MenuTable::key("mnupoly", 5)).checked);
    EXPECT_EQ(s.wb.InitialPolygon, BuiltInPolygon(5));
}

TEST_F(LineFractalCommandsTest, RecursionSwitchesToDeterministic) {
    ASSERT_TRUE(s.wb.RandomMode);
    chkRecursion_Click(s, host, true);
    EXPECT_TRUE(s.wb.RandomMode);  // nothing built yet
    ASSERT_TRUE(LineFractalSetup(s, host, true));
    EXPECT_FALSE(s.wb.RandomMode);
    EXPECT_TRUE(s.Line.UseLineRecursion);
    s.wb.RecursionOff[0] = true;
    chkRecursion_Click(s, host, false);
    EXPECT_FALSE(s.Line.UseLineRecursion);
    EXPECT_FALSE(s.wb.RecursionOff[0]);
}

TEST_F(LineFractalCommandsTest, ClosingEndsTheRecursionAndPutsTheColourItemBack) {
    s.wb.Menu.setChecked(MenuTable::key("mnuDrawDetColorItems", 0), false);
    s.wb.Menu.setChecked(MenuTable::key("mnuDrawDetColorItems", 1), true);
    s.Generator.SavedColorItem = 0;
    ASSERT_TRUE(LineFractalSetup(s, host, true));
    LineFractalClosing(s);
    EXPECT_FALSE(s.Line.UseLineRecursion);
    EXPECT_TRUE(s.wb.menu(MenuTable::key("mnuDrawDetColorItems", 0)).checked);
    EXPECT_FALSE(s.wb.menu(MenuTable::key("mnuDrawDetColorItems", 1)).checked);
}

// Line (i, j, ...) of the recursion is the unit segment under w_i after w_j after ...
TEST_F(LineFractalCommandsTest, TheRecursionDrawsTheImagesOfTheUnitSegmentUnderTheMaps) {
    for (int direction : {0, 1}) {
        SCOPED_TRACE(direction);
        g().SegmentDirection = 0;
        shape({{0, 0}, {0.3f, 0.25f}, {0.45f, -0.2f}, {1, 0}});
        TurnPolyline(g(), direction);
        ASSERT_TRUE(LineFractalSetup(s, host, false));
        const IFSEntry ifs = s.wb.CurrentIFS;
        InitializeGenerator(g());
        constexpr int depth = 3;
        int index = 0;
        RecurseLines(g(), depth, [&](double x1, double y1, double x2, double y2, int) {
            int digits[depth];
            for (int k = depth - 1, n = index; k >= 0; --k, n /= 3) digits[k] = n % 3;
            double ax = 0, ay = 0, bx = direction == 1 ? 0 : 1, by = direction == 1 ? 1 : 0;
            for (int k = depth - 1; k >= 0; --k) {
                const auto m = static_cast<size_t>(digits[k]);
                const double nax = ifs.a[m] * ax + ifs.b[m] * ay + ifs.e[m];
                const double nay = ifs.c[m] * ax + ifs.d[m] * ay + ifs.f[m];
                const double nbx = ifs.a[m] * bx + ifs.b[m] * by + ifs.e[m];
                const double nby = ifs.c[m] * bx + ifs.d[m] * by + ifs.f[m];
                ax = nax, ay = nay, bx = nbx, by = nby;
            }
            EXPECT_NEAR(x1, ax, 1e-5) << index;
            EXPECT_NEAR(y1, ay, 1e-5) << index;
            EXPECT_NEAR(x2, bx, 1e-5) << index;
            EXPECT_NEAR(y2, by, 1e-5) << index;
            ++index;
            return true;
        });
        EXPECT_EQ(index, 27);
    }
}

int nearestSetPixel(const RasterSurface& pic, int c, int r, int within) {
    int best = within + 1;
    for (int dr = -within; dr <= within; ++dr)
        for (int dc = -within; dc <= within; ++dc) {
            const int cc = c + dc, rr = r + dr;
            if (cc < 0 || rr < 0 || cc >= pic.width() || rr >= pic.height()) continue;
            if (pic.pixel(cc, rr) != pic.backColor())
                best = std::min(best, std::max(std::abs(dc), std::abs(dr)));
        }
    return best;
}

TEST_F(LineFractalCommandsTest, TheRecursiveLevelAgreesWithThePlainLevels) {
    shape({{0, 0}, {0.3f, 0.3f}, {0.7f, -0.15f}, {1, 0}});
    s.wb.Menu.setChecked(MenuTable::key("mnuDrawDetColorItems", 0), false);
    s.wb.Menu.setChecked(MenuTable::key("mnuDrawDetColorItems", 1), true);
    ASSERT_TRUE(LineFractalSetup(s, host, false));
    mnuDrawType_Click(s.wb, s.pics, host, 1);
    for (int k = 0; k < 3; ++k) Iterate(s.wb, s.pics, host, -1);
    const RasterSurface plain = s.pics.picfractal;
    EXPECT_EQ(s.pics.picCount, "3");

    chkRecursion_Click(s, host, true);
    ASSERT_TRUE(LineFractalSetup(s, host, true));
    for (int k = 0; k < 3; ++k) Iterate(s.wb, s.pics, host, -1);
    const RasterSurface& drawn = s.pics.picfractal;
    EXPECT_EQ(s.pics.picCount, "3 w/Rec");
    int plainSet = 0, far = 0;
    for (int r = 2; r < plain.height() - 2; ++r)
        for (int c = 2; c < plain.width() - 2; ++c) {
            if (plain.pixel(c, r) == plain.backColor()) continue;
            ++plainSet;
            far += nearestSetPixel(drawn, c, r, 1) > 1;
        }
    EXPECT_GT(plainSet, 100);
    EXPECT_EQ(far, 0);
    int drawnSet = 0, missing = 0;
    for (int r = 2; r < drawn.height() - 2; ++r)
        for (int c = 2; c < drawn.width() - 2; ++c) {
            if (drawn.pixel(c, r) == drawn.backColor()) continue;
            ++drawnSet;
            missing += nearestSetPixel(plain, c, r, 2) > 2;
        }
    EXPECT_GT(drawnSet, 100);
    EXPECT_LT(missing, drawnSet / 50);
    // picImage holds the same curve, the next level's source.
    EXPECT_EQ(s.pics.picImage3.pixel(100, 100), s.pics.picImage.pixel(100, 100));
}

TEST_F(LineFractalCommandsTest, RecursionIsLimitedByCountAndPixel) {
    LineFractal f;
    f.nSegments = 15;
    ResetPolyline(f);
    f.MaxRatio = 1.0f / 15;
    EXPECT_EQ(LimitRecursionLevel(f, 2, 1e-6), 2);
    EXPECT_EQ(LimitRecursionLevel(f, 2, 0.001), 1);  // (1/15)^2 is already near a pixel
    EXPECT_EQ(LimitRecursionLevel(f, 9, 1e-9), 4);   // about a million lines: 15^5
    f.nSegments = 2;
    f.MaxRatio = 0.5f;
    EXPECT_EQ(LimitRecursionLevel(f, 30, 0.001), 8);  // 0.5^9 is below a pixel of 0.001
    EXPECT_EQ(LimitRecursionLevel(f, 3, 0.001), 3);
    EXPECT_EQ(LimitRecursionLevel(f, 3, 100), -1);
    f.MaxRatio = 0;
    EXPECT_EQ(LimitRecursionLevel(f, 40, 0.001), 19);  // round(ln 1e6 / ln 2) = 20
}

TEST_F(LineFractalCommandsTest, TheRecursionNeedsAllThreeFlags) {
    ASSERT_TRUE(LineFractalSetup(s, host, true));
    EXPECT_TRUE(LineRecursionPass(s.Line, s.wb, s.pics, host));
    s.wb.RecursionOff[0] = true;
    EXPECT_FALSE(LineRecursionPass(s.Line, s.wb, s.pics, host));
    s.wb.RecursionOff[0] = false;
    s.Line.LineRecursionAllowed = false;
    EXPECT_FALSE(LineRecursionPass(s.Line, s.wb, s.pics, host));
    s.Line.LineRecursionAllowed = true;
    s.Line.UseLineRecursion = false;
    EXPECT_FALSE(LineRecursionPass(s.Line, s.wb, s.pics, host));
}

TEST_F(LineFractalCommandsTest, OverlayKeepsThePictureAndUsesTheLevelColour) {
    ASSERT_TRUE(LineFractalSetup(s, host, true));
    s.wb.FunctionColor[2] = RGB(0, 200, 0);
    s.wb.Menu.setChecked("mnuDrawOverlay", true);
    s.pics.picfractal.clear();
    s.pics.picfractal.pset(-0.09, 0.49, RGB(1, 2, 3));
    DrawLineFractal(s.Line, s.wb, s.pics, host, 3);
    EXPECT_EQ(s.pics.picfractal.point(-0.09, 0.49), RGB(1, 2, 3));
    EXPECT_EQ(s.pics.picfractal.point(0.0, 0.0), RGB(0, 200, 0));
}

TEST_F(LineFractalCommandsTest, PointsFileDialogsSaveAndOpen) {
    shape({{0, 0}, {0.25f, 0.5f}, {0.75f, -0.25f}, {1, 0}});
    const std::string name = ::testing::TempDir() + "line_points";
    host.fileNames.push_back(name);
    ASSERT_TRUE(SaveLinePoints(g(), host));
    EXPECT_EQ(host.dialogs().back().title, "Save Points");
    EXPECT_EQ(host.dialogs().back().filters[0].description, "Line Fractal Points (*.txt)");
    host.fileNames.push_back(name + ".TXT");
    EXPECT_EQ(WithTxtExtension(name + ".TXT"), name + ".TXT");
    host.fileNames.back() = name + ".txt";
    const std::optional<PointsFile> file = OpenLinePoints(host);
    ASSERT_TRUE(file);
    EXPECT_EQ(host.dialogs().back().title, "Open Point File");
    EXPECT_EQ(host.dialogs().back().filters[0].description, "Linear Fractal Point Files (*.txt)");
    EXPECT_EQ(file->error, "");
    ASSERT_EQ(file->points.size(), 4u);
    EXPECT_EQ(file->points[2], (GeneratorPoint{0.75f, -0.25f}));
    std::remove((name + ".txt").c_str());
    host.fileNames.push_back(name + ".missing");
    const std::optional<PointsFile> missing = OpenLinePoints(host);
    ASSERT_TRUE(missing);
    ASSERT_EQ(host.shown().size(), 1u);
    EXPECT_EQ(host.shown()[0].title, "File Error");
    EXPECT_EQ(host.shown()[0].text, ReadProblemMessage);
    host.fileNames.push_back(std::nullopt);
    EXPECT_FALSE(OpenLinePoints(host));
}

}  // namespace
}  // namespace quillane::testing
