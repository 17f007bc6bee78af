// The deterministic drawing: levels, colours, overlay, abort, digit keys and the drawing type.
#include "render/deterministic.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "fractal_view_fixture.h"
#include "app/deterministic_commands.h"
#include "app/fractal_view.h"

namespace quillane {
namespace {

constexpr WorldWindow UnitView{-0.05f, 1.05f, -0.05f, 1.05f};
constexpr Color Red = RGB(255, 0, 0), Green = RGB(0, 160, 0), Blue = RGB(0, 0, 255);

// A filled triangle (0,0), (1,0), (0.5,1) as the initial set, drawn in picfractal and picImage3.
bool drawTriangle(Workbench& wb, FractalPictures& pics, Host&, int, bool, bool ResetWindow) {
    if (ResetWindow) {
        const WorldWindow w = wb.Window;
        SetUpDeterministicWindow(wb, pics, w.xmin, w.xmax, w.ymin, w.ymax, false);
    }
    pics.picImage3.setBackColor(pics.picfractal.backColor());
    pics.picImage3.clear();
    pics.picfractal.clear();
    const std::vector<WorldPoint> t{{0, 0}, {1, 0}, {0.5, 1}};
    pics.picfractal.polygon(t, pics.Det.DetSingleColor, true);
    pics.picImage3.polygon(t, pics.Det.DetSingleColor, true);
    return true;
}

struct DetBench : ViewBench {
    explicit DetBench(const IFSEntry& ifs = SierpinskiTriangleIFS(), WorldWindow w = UnitView, int side = 128)
        : ViewBench(ifs, w, side) {
        pics.Det.FigureDrawer = drawTriangle;
        for (int i = 0; i < 3; ++i) wb.FunctionColor[i] = std::array<Color, 3>{Red, Green, Blue}[i];
        wb.Menu.setChecked(MenuTable::key("mnuColors", 0), true);
        wb.Menu.setChecked(MenuTable::key("mnuDrawDetColorItems", 0), true);
        mnuDrawType_Click(wb, pics, host, 1);
    }
    void level(int which = -1) { Iterate(wb, pics, host, which); }
};

int paintedIn(const RasterSurface& s, Color c) {
    int n = 0;
    for (Color p : pixelsOf(s)) n += p == c;
    return n;
}

// A source picture set straight into picImage3 (and shown), bypassing the figures.
void setSource(FractalPictures& pics, const std::function<Color(int c, int r)>& f) {
    for (int r = 0; r < pics.picImage3.height(); ++r)
        for (int c = 0; c < pics.picImage3.width(); ++c) pics.picImage3.setPixel(c, r, f(c, r));
    pics.picfractal.takeImage(pics.picImage3);
}

// The level as the text gives it, through point and pset, for comparison with the fast scan.
RasterSurface referenceLevel(const Workbench& wb, const FractalPictures& pics) {
    const RasterSurface& src = pics.picImage3;
    RasterSurface out = pics.picImage;
    out.clear();
    const Color back = pics.picfractal.backColor();
    const float step = static_cast<float>(pics.picfractal.pixelsToWorldX(1));
    const float xmin = static_cast<float>(pics.picfractal.scaleLeft());
    const float ymax = static_cast<float>(pics.picfractal.scaleTop());
    const IFSEntry& f = wb.CurrentIFS;
    const int n = wb.mapsFromText();
    for (int r = 1; r < src.height(); ++r) {
        for (int c = 1; c < src.width(); ++c) {
            const float x = static_cast<float>(c) * step + xmin, y = ymax - static_cast<float>(r) * step;
            if (src.pixel(c, r) == back) continue;
            for (int i = 0; i < n; ++i) {
                const float xp = f.a[i] * x + f.b[i] * y + f.e[i], yp = f.c[i] * x + f.d[i] * y + f.f[i];
                const Color dest = out.point(xp, yp);
                bool paint = dest == back;
                for (int k = i + 1; k < n && !paint; ++k) paint = dest == wb.FunctionColor[k];
                if (paint) out.pset(xp, yp, wb.FunctionColor[i]);
            }
        }
    }
    return out;
}

TEST(DeterministicLevel, MatchesThePlainReadingOfTheScanPixelForPixel) {
    IFSEntry ifs = SierpinskiTriangleIFS();
    ifs.b[1] = 0.3f;  // a shear and a rotation, so no map is axis-aligned
    ifs.c[2] = -0.4f;
    ifs.b[2] = 0.4f;
    DetBench d(ifs, {-0.3f, 1.4f, -0.3f, 1.4f}, 97);
    setSource(d.pics, [](int c, int r) { return (c * 7 + r * 3) % 10 < 3 ? RGB(c, r, 9) : White; });
    d.pics.picImage.clear();
    const RasterSurface expected = referenceLevel(d.wb, d.pics);
    d.level();
    EXPECT_EQ(pixelsOf(d.pics.picImage), pixelsOf(expected));
    EXPECT_EQ(pixelsOf(d.pics.picfractal), pixelsOf(expected));
    EXPECT_GT(paintedPixels(expected), 1000);
}

TEST(DeterministicLevel, AllBackgroundSourceGivesAnEmptyImageAndStillCounts) {
    DetBench d;
    setSource(d.pics, [](int, int) { return White; });
    d.level();
    EXPECT_EQ(paintedPixels(d.pics.picfractal), 0);
    EXPECT_EQ(paintedPixels(d.pics.picImage3), 0);
    EXPECT_EQ(d.wb.IterationNumber, 1);
    EXPECT_EQ(d.pics.picCount, "1");
    EXPECT_FALSE(d.wb.DrawingActive);
}

TEST(DeterministicLevel, DropsTheFirstRowAndColumnAtEachLevel) {
    IFSEntry identity = DefaultIFS();
    identity.nMaps = 1;
    identity.a[0] = identity.d[0] = 1;
    DetBench d(identity, {0, 64, 0, 64}, 64);
    setSource(d.pics, [](int, int) { return Black; });
    d.level();
    EXPECT_EQ(paintedPixels(d.pics.picfractal), 63 * 63);
    EXPECT_EQ(paintedOutside(d.pics.picfractal, 1, 63, 1, 63), 0);
    // The next level reads from column and row 1 on, which the identity keeps in place.
    d.level();
    EXPECT_EQ(paintedPixels(d.pics.picfractal), 63 * 63);
    EXPECT_EQ(paintedOutside(d.pics.picfractal, 1, 63, 1, 63), 0);
}

TEST(DeterministicLevel, SierpinskiLevelsKeepTheMiddleEmptyAndShrinkByAboutAQuarter) {
    // Large enough that the holes of four levels are many pixels wide.
    DetBench d(SierpinskiTriangleIFS(), UnitView, 512);
    int before = paintedPixels(d.pics.picImage3);
    EXPECT_GT(before, 5000);
    for (int k = 1; k <= 4; ++k) {
        d.level();
        const int now = paintedPixels(d.pics.picfractal);
        // Pixels round the copies up a little, more so as they get smaller.
        EXPECT_NEAR(static_cast<double>(now) / before, 0.75, 0.05) << "level " << k;
        EXPECT_EQ(d.pics.picfractal.point(0.5, 0.33), White) << "level " << k;
        EXPECT_NE(d.pics.picfractal.point(0.1, 0.05), White) << "level " << k;
        before = now;
    }
    EXPECT_EQ(d.wb.IterationNumber, 4);
    EXPECT_EQ(d.pics.picCount, "4");
    EXPECT_EQ(pixelsOf(d.pics.picImage2), pixelsOf(d.pics.picfractal));
}

// Map 1 moves a pixel by dx1 pixels, map 3 by dx3; map 2 sends everything off the picture.
IFSEntry translations(float dx1, float dx3) {
    IFSEntry ifs = DefaultIFS();
    ifs.nMaps = 3;
    for (int i = 0; i < 3; ++i) {
        ifs.a[i] = ifs.d[i] = 1;
        ifs.b[i] = ifs.c[i] = ifs.f[i] = 0;
    }
    ifs.e[0] = dx1;
    ifs.e[1] = 1000;
    ifs.e[2] = dx3;
    return ifs;
}

TEST(DeterministicColors, MapOneReplacesMapThreeButNotTheOtherWayRound) {
    // Column 10 is scanned before column 30, and both land on column 30.
    for (const auto& [dx1, dx3] : {std::pair{0.0f, 20.0f}, std::pair{20.0f, 0.0f}}) {
        DetBench d(translations(dx1, dx3), {0, 64, 0, 64}, 64);
        setSource(d.pics, [](int c, int r) { return r == 5 && (c == 10 || c == 30) ? Black : White; });
        d.level();
        EXPECT_EQ(d.pics.picfractal.pixel(30, 5), Red) << "map 1 moves by " << dx1;
        EXPECT_EQ(d.pics.picImage.pixel(30, 5), Red);
    }
}

TEST(DeterministicColors, SingleColorModesUseDetSingleColor) {
    DetBench d;
    d.wb.Menu.setChecked(MenuTable::key("mnuColors", 0), false);
    d.wb.Menu.setChecked(MenuTable::key("mnuColors", 1), true);
    d.pics.Det.optColoring = 5;
    d.pics.Det.DetSingleColor = RGB(10, 20, 30);
    EXPECT_EQ(DeterministicColorMode(d.wb, d.pics), 5);
    d.level();
    const int painted = paintedPixels(d.pics.picfractal);
    EXPECT_GT(painted, 3000);
    EXPECT_EQ(paintedIn(d.pics.picfractal, RGB(10, 20, 30)), painted);
}

TEST(DeterministicColors, KeepFirstColorColoursEveryImageWhereMapOnePutsIt) {
    DetBench d;
    d.wb.Menu.setChecked(MenuTable::key("mnuColors", 0), false);
    d.wb.Menu.setChecked(MenuTable::key("mnuColors", 1), true);
    d.pics.Det.optColoring = 2;
    // Left half of the plane red, right half blue.
    d.pics.Det.GradientColor = [](int, float x, float) { return x < 0.5f ? Red : Blue; };
    DetBench keep;
    keep.wb.Menu = d.wb.Menu;
    keep.pics.Det.optColoring = 2;
    keep.pics.Det.GradientColor = d.pics.Det.GradientColor;
    keep.pics.Det.KeepFirstColor = true;
    d.level();
    keep.level();
    // Map 2's copy lies at the right: blue by its own place, red by map 1's place.
    EXPECT_EQ(d.pics.picfractal.point(0.8, 0.05), Blue);
    EXPECT_EQ(keep.pics.picfractal.point(0.8, 0.05), Red);
    EXPECT_EQ(paintedIn(keep.pics.picfractal, Blue), 0);
}

TEST(DeterministicColors, ImageColorsShowSmallCopiesOfThePicture) {
    IFSEntry ifs = SierpinskiTriangleIFS();
    ifs.e[2] = 0;  // four quarter copies: lower left, lower right, upper left
    DetBench d(ifs, {0, 1, 0, 1}, 128);
    d.wb.Menu.setChecked(MenuTable::key("mnuDrawDetColorItems", 0), false);
    d.wb.Menu.setChecked(MenuTable::key("mnuDrawDetColorItems", 1), true);
    // A picture: left half red, right half green, over the whole window.
    setSource(d.pics, [](int c, int) { return c < 64 ? Red : Green; });
    d.level();
    // Each copy is the picture at half size: red then green across its width.
    for (const auto& [x0, y0] : {std::pair{0.0, 0.0}, std::pair{0.5, 0.0}, std::pair{0.0, 0.5}}) {
        EXPECT_EQ(d.pics.picfractal.point(x0 + 0.1, y0 + 0.25), Red);
        EXPECT_EQ(d.pics.picfractal.point(x0 + 0.4, y0 + 0.25), Green);
    }
    EXPECT_EQ(d.pics.picfractal.point(0.75, 0.75), White);
}

TEST(DeterministicOverlay, EachLevelTakesTheNextFunctionColourAndKeepsTheEarlierOnes) {
    DetBench d;
    d.wb.Menu.setChecked("mnuDrawOverlay", true);
    const Color figure = d.pics.Det.DetSingleColor;
    d.level();
    EXPECT_EQ(d.pics.picfractal.point(0.1, 0.05), Red);
    EXPECT_EQ(d.pics.picfractal.point(0.5, 0.33), figure);  // the figure shows through the hole
    EXPECT_EQ(d.pics.picMask.point(0.1, 0.05), Black);
    EXPECT_EQ(d.pics.picMask.point(0.5, 0.33), White);
    d.level();
    EXPECT_EQ(d.pics.picfractal.point(0.1, 0.05), Green);
    // Level 2 leaves the middles of the three copies, where level 1 still shows.
    EXPECT_EQ(d.pics.picfractal.point(0.25, 0.16), Red);
    EXPECT_EQ(d.pics.picfractal.point(0.5, 0.33), figure);
    EXPECT_EQ(paintedIn(d.pics.picfractal, Blue), 0);
    EXPECT_EQ(d.wb.IterationNumber, 2);
}

// The menu items reach the overlay and image-colour scans: offered in Deterministic mode only.
TEST(DeterministicMenus, OverlayImagesThroughTheMenuKeepsTheEarlierLevels) {
    DetBench d;
    mnuDrawOverlay_Click(d.wb);
    EXPECT_TRUE(d.wb.menu("mnuDrawOverlay").checked);
    d.level();
    d.level();
    EXPECT_EQ(d.pics.picfractal.point(0.1, 0.05), Green);
    EXPECT_EQ(d.pics.picfractal.point(0.25, 0.16), Red);
    mnuDrawOverlay_Click(d.wb);
    EXPECT_FALSE(d.wb.menu("mnuDrawOverlay").checked);
    // Back in Random mode the item is off and unchecked; the command does nothing there.
    mnuDrawOverlay_Click(d.wb);
    mnuDrawType_Click(d.wb, d.pics, d.host, 0);
    EXPECT_FALSE(d.wb.menu("mnuDrawOverlay").checked);
    EXPECT_FALSE(d.wb.menu("mnuDrawOverlay").enabled);
    mnuDrawOverlay_Click(d.wb);
    EXPECT_FALSE(d.wb.menu("mnuDrawOverlay").checked);
}

TEST(DeterministicMenus, UseImageColorsThroughTheMenuCopiesThePicturesColours) {
    IFSEntry ifs = SierpinskiTriangleIFS();
    ifs.e[2] = 0;
    DetBench d(ifs, {0, 1, 0, 1}, 128);
    InitialFigures figs;
    figs.savedUseIFSColors = true;
    mnuDrawDetColorItems_Click(d.wb, figs, 1);
    EXPECT_FALSE(d.wb.menu("mnuDrawDetColorItems(0)").checked);
    EXPECT_TRUE(d.wb.menu("mnuDrawDetColorItems(1)").checked);
    EXPECT_FALSE(figs.savedUseIFSColors.has_value());
    setSource(d.pics, [](int c, int) { return c < 64 ? Red : Green; });
    d.level();
    EXPECT_EQ(d.pics.picfractal.point(0.1, 0.25), Red);
    EXPECT_EQ(d.pics.picfractal.point(0.4, 0.25), Green);
    // The IFS colours again: each copy in its map's colour.
    mnuDrawDetColorItems_Click(d.wb, figs, 0);
    EXPECT_TRUE(d.wb.menu("mnuDrawDetColorItems(0)").checked);
    setSource(d.pics, [](int c, int) { return c < 64 ? Red : Green; });
    d.level();
    EXPECT_EQ(d.pics.picfractal.point(0.4, 0.25), Red);
    EXPECT_EQ(d.pics.picfractal.point(0.6, 0.25), Green);
}

TEST(DeterministicMenus, ScaleToDesignWindowTakesTheDesignsWindowInBothDrawings) {
    DetBench d;
    d.wb.DesignWindow = {-2, 2, -1, 3};
    d.wb.txtDesign = {"3.000", "-1.000", "-2.000", "2.000"};
    mnuDrawScaleDesign_Click(d.wb, d.pics, d.host);
    EXPECT_EQ(d.wb.Window, (WorldWindow{-2, 2, -1, 3}));
    EXPECT_EQ(d.wb.txtWin, d.wb.txtDesign);
    EXPECT_EQ(d.pics.Det.DetWindow, d.wb.Window);
    EXPECT_DOUBLE_EQ(d.pics.picfractal.scaleLeft(), -2);
    EXPECT_DOUBLE_EQ(d.pics.picfractal.scaleTop(), 3);
    // The figure is drawn again in the new view, and is the level-0 image.
    EXPECT_GT(paintedIn(d.pics.picfractal, d.pics.Det.DetSingleColor), 0);
    EXPECT_EQ(pixelsOf(d.pics.picImage2), pixelsOf(d.pics.picfractal));
    // Random mode clears the picture in the new view; a running drawing refuses.
    mnuDrawType_Click(d.wb, d.pics, d.host, 0);
    d.wb.DesignWindow = {0, 1, 0, 1};
    d.wb.txtDesign = {"1.000", "0.000", "0.000", "1.000"};
    d.wb.DrawingActive = true;
    mnuDrawScaleDesign_Click(d.wb, d.pics, d.host);
    EXPECT_EQ(d.wb.Window, (WorldWindow{-2, 2, -1, 3}));
    d.wb.DrawingActive = false;
    mnuDrawScaleDesign_Click(d.wb, d.pics, d.host);
    EXPECT_EQ(d.wb.Window, (WorldWindow{0, 1, 0, 1}));
    EXPECT_EQ(paintedPixels(d.pics.picfractal), 0);
}

TEST(DeterministicAbort, QAtAYieldEndsTheLevelAfterThatRowWithoutCounting) {
    DetBench d;
    d.level();
    const auto shown = pixelsOf(d.pics.picfractal);
    const int yieldsBefore = d.host.yields();
    d.host.onYield = [&](int) {
        if (d.host.yields() - yieldsBefore == 5) FractalKeyDown(d.wb, d.pics, d.host, KeyQ, 0);
        EXPECT_TRUE(d.pics.Det.pgrIterateVisible);
        EXPECT_FALSE(d.pics.Det.picCoordVisible);
    };
    d.level();
    EXPECT_EQ(d.host.yields() - yieldsBefore, 5);
    EXPECT_EQ(d.wb.IterationNumber, 1);
    EXPECT_EQ(d.pics.picCount, "1");
    EXPECT_EQ(pixelsOf(d.pics.picfractal), shown);
    EXPECT_FALSE(d.wb.DrawingActive);
    EXPECT_FALSE(d.pics.Det.pgrIterateVisible);
    EXPECT_TRUE(d.pics.Det.picCoordVisible);
}

TEST(DeterministicAbort, ProgressRisesByRowAndEveryRowYields) {
    DetBench d;
    std::vector<int> progress;
    d.host.onYield = [&](int) { progress.push_back(d.pics.Det.pgrIterate); };
    d.level();
    ASSERT_EQ(progress.size(), 127u);
    EXPECT_EQ(progress.front(), 1);
    EXPECT_EQ(progress.back(), 99);
    EXPECT_TRUE(std::is_sorted(progress.begin(), progress.end()));
}

TEST(DeterministicCommands, DrawRunsOneLevelAndDrawThisManyStopsAtQ) {
    DetBench d;
    mnuRun_Click(d.wb, d.pics, d.host);
    EXPECT_EQ(d.wb.IterationNumber, 1);
    EXPECT_EQ(d.wb.FractalCaption, "Fractal (Deterministic)");
    DrawFixedNumber(d.wb, d.pics, d.host, 3);
    EXPECT_EQ(d.wb.IterationNumber, 4);
    int yields = 0;
    d.host.onYield = [&](int) {
        if (++yields == 200) FractalKeyDown(d.wb, d.pics, d.host, KeyQ, 0);
    };
    DrawFixedNumber(d.wb, d.pics, d.host, 5);
    EXPECT_EQ(d.wb.IterationNumber, 5);  // one more level, the next one stopped
    EXPECT_EQ(d.pics.Det.LastLevels, 5);
}

TEST(DeterministicKeys, ADigitAppliesThatMapAloneAndDigitsFormAnAddress) {
    DetBench d;
    EXPECT_TRUE(FractalKeyDown(d.wb, d.pics, d.host, '2', 0));
    EXPECT_TRUE(FractalKeyDown(d.wb, d.pics, d.host, '3', 0));
    EXPECT_EQ(d.wb.IterationNumber, 2);
    // Map 3 of map 2 of the triangle: the quarter-size copy at (0.5, 0.5), in map 3's colour.
    const int painted = paintedPixels(d.pics.picfractal);
    EXPECT_GT(painted, 200);
    const RasterSurface& s = d.pics.picfractal;
    int outside = 0;
    for (int r = 0; r < s.height(); ++r)
        for (int c = 0; c < s.width(); ++c) {
            const double x = s.scaleLeft() + (c + 0.5) * s.pixelsToWorldX(1);
            const double y = s.scaleTop() - (r + 0.5) * s.pixelsToWorldY(1);
            const bool in = x >= 0.49 && x <= 0.76 && y >= 0.49 && y <= 0.76;
            outside += s.pixel(c, r) != White && !in;
        }
    EXPECT_EQ(outside, 0);
    EXPECT_EQ(paintedIn(s, Blue), painted);
    EXPECT_FALSE(FractalKeyDown(d.wb, d.pics, d.host, '4', 0));  // there is no map 4
    EXPECT_FALSE(FractalKeyDown(d.wb, d.pics, d.host, '0', 0));
    EXPECT_EQ(d.wb.IterationNumber, 2);
}

TEST(DeterministicKeys, ShiftAndTwoDigitsReachMapTwelve) {
    IFSEntry ifs = GridIFS(12);
    DetBench d(ifs, {-0.5f, 1.5f, -0.5f, 1.5f}, 96);
    DetBench one(ifs, {-0.5f, 1.5f, -0.5f, 1.5f}, 96);
    EXPECT_FALSE(FractalKeyDown(d.wb, d.pics, d.host, '1', ShiftMaskShift));
    EXPECT_EQ(d.wb.IterationNumber, 0);
    EXPECT_TRUE(FractalKeyDown(d.wb, d.pics, d.host, '2', ShiftMaskShift));
    one.level(11);
    EXPECT_EQ(d.wb.IterationNumber, 1);
    EXPECT_EQ(pixelsOf(d.pics.picfractal), pixelsOf(one.pics.picfractal));
    // A letter with Shift forgets the tens digit: the next Shift digit starts again.
    FractalKeyDown(d.wb, d.pics, d.host, '1', ShiftMaskShift);
    FractalKeyDown(d.wb, d.pics, d.host, 'K', ShiftMaskShift);
    EXPECT_FALSE(FractalKeyDown(d.wb, d.pics, d.host, '2', ShiftMaskShift));
    EXPECT_EQ(d.wb.IterationNumber, 1);
}

TEST(DeterministicKeys, CtrlShiftHoldsKeepFirstColorUntilKeyUp) {
    DetBench d;
    FractalKeyDown(d.wb, d.pics, d.host, 16, ShiftMaskCtrl | ShiftMaskShift);
    EXPECT_TRUE(d.pics.Det.KeepFirstColor);
    FractalKeyUp(d.wb, d.pics);
    EXPECT_FALSE(d.pics.Det.KeepFirstColor);
}

TEST(DeterministicType, ChangingToDeterministicAndBack) {
    ViewBench v(SierpinskiTriangleIFS(), UnitView, 64);
    v.pics.Det.FigureDrawer = drawTriangle;
    v.wb.Menu.setChecked(MenuTable::key("mnuColors", 2), true);
    mnuDrawType_Click(v.wb, v.pics, v.host, 1);
    EXPECT_FALSE(v.wb.RandomMode);
    EXPECT_EQ(v.wb.FractalWindowCaption, "Fractal (Deterministic)");
    EXPECT_TRUE(v.wb.menu(MenuTable::key("mnuColors", 0)).checked);
    EXPECT_FALSE(v.wb.menu(MenuTable::key("mnuColors", 2)).checked);
    EXPECT_FALSE(v.wb.menu(MenuTable::key("mnuColors", 2)).enabled);
    EXPECT_FALSE(v.wb.menu("mnuTracing").enabled);
    for (const char* k :
         {"mnuFileSaveAnimGif", "mnuDrawAddFigureItems", "mnuDrawDetColors", "mnuDrawOverlay"})
        EXPECT_TRUE(v.wb.menu(k).enabled) << k;
    EXPECT_EQ(v.wb.IterationNumber, 0);
    EXPECT_EQ(v.wb.FitWindow, UnitView);
    EXPECT_GT(paintedPixels(v.pics.picfractal), 1000);
    EXPECT_EQ(pixelsOf(v.pics.picImage3), pixelsOf(v.pics.picfractal));
    Iterate(v.wb, v.pics, v.host, -1);

    mnuDrawType_Click(v.wb, v.pics, v.host, 0);
    EXPECT_TRUE(v.wb.RandomMode);
    EXPECT_EQ(v.wb.FractalWindowCaption, "Fractal (Random)");
    EXPECT_EQ(v.wb.IterationNumber, -1);
    EXPECT_EQ(paintedPixels(v.pics.picfractal), 0);
    EXPECT_TRUE(v.wb.menu(MenuTable::key("mnuColors", 2)).checked);
    EXPECT_FALSE(v.wb.menu("mnuDrawOverlay").enabled);
    EXPECT_TRUE(v.wb.menu("mnuTracing").enabled);

    // Back to Deterministic: the window of the last deterministic drawing returns.
    ZoomOut(v.wb, v.pics, v.host, 100, false);
    EXPECT_NE(v.wb.Window, UnitView);
    mnuDrawType_Click(v.wb, v.pics, v.host, 1);
    EXPECT_EQ(v.wb.Window, UnitView);
    EXPECT_EQ(v.wb.IterationNumber, 0);
    EXPECT_EQ(v.pics.picCount, "0");
    EXPECT_GT(paintedPixels(v.pics.picfractal), 1000);
}

TEST(DeterministicType, RefusedWhileDrawing) {
    ViewBench v;
    v.wb.DrawingActive = true;
    mnuDrawType_Click(v.wb, v.pics, v.host, 1);
    EXPECT_TRUE(v.wb.RandomMode);
}

TEST(DeterministicReset, ClearAndZoomReturnToLevelZeroWithTheFigure) {
    DetBench d;
    const auto figure = pixelsOf(d.pics.picfractal);
    d.level();
    d.level();
    mnuClear_Click(d.wb, d.pics);
    EXPECT_EQ(d.wb.IterationNumber, 0);
    EXPECT_EQ(d.pics.picCount, "0");
    EXPECT_EQ(pixelsOf(d.pics.picfractal), figure);
    d.level();
    ZoomOut(d.wb, d.pics, d.host, 100, true);
    EXPECT_EQ(d.wb.IterationNumber, 0);
    // The window side doubled, so the figure covers a quarter of the pixels it did.
    const int before =
        paintedPixels(RasterSurface(64, 64)) +
        static_cast<int>(std::count_if(figure.begin(), figure.end(), [](Color c) { return c != White; }));
    EXPECT_NEAR(paintedPixels(d.pics.picfractal), before / 4.0, before * 0.03);
    EXPECT_EQ(pixelsOf(d.pics.picImage3), pixelsOf(d.pics.picfractal));
    ResetDetFigure(d.wb, 3);
    EXPECT_EQ(d.wb.DetFigure, 3);
    EXPECT_TRUE(d.wb.menu(MenuTable::key("mnuDrawAddFigure", 3)).checked);
    EXPECT_FALSE(d.wb.menu(MenuTable::key("mnuDrawAddFigure", 0)).checked);
}

}  // namespace
}  // namespace quillane
