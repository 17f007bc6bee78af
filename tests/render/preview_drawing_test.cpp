#include "render/preview_drawing.h"

#include <gtest/gtest.h>

#include <cmath>
#include <set>

namespace quillane {
namespace {

constexpr Color Red = 0x0000FF, Green = 0x00FF00, Blue = 0xFF0000;

// Maps with constant images: map i sends every point to (x[i], y[i]), so each dot tells its map.
IFSEntry constantMaps(std::initializer_list<float> xs, std::initializer_list<float> ps) {
    IFSEntry ifs;
    int i = 0;
    for (float x : xs) {
        ifs.a[i] = ifs.b[i] = ifs.c[i] = ifs.d[i] = 0;
        ifs.e[i] = x;
        ifs.f[i] = 0.5f;
        ++i;
    }
    i = 0;
    for (float p : ps) ifs.p[i++] = p;
    ifs.nMaps = static_cast<int16_t>(xs.size());
    return ifs;
}

RasterSurface unitPicture() {
    RasterSurface s(100, 100, White);
    s.setScale(0, 1, 1, 0);
    return s;
}

std::set<Color> coloursIn(const RasterSurface& s) {
    std::set<Color> found;
    for (int r = 0; r < s.height(); ++r)
        for (int c = 0; c < s.width(); ++c)
            if (s.pixel(c, r) != White) found.insert(s.pixel(c, r));
    return found;
}

const FunctionColors colours = [] {
    FunctionColors c{};
    c[0] = Red, c[1] = Green, c[2] = Blue;
    return c;
}();

TEST(Preview, AllProbabilitiesZeroUseTheLastFunctionConsidered) {
    const IFSEntry ifs = constantMaps({0.2f, 0.5f, 0.8f}, {0, 0, 0});
    // Only a draw of exactly 0 stops the walk early (at the first map). Count those draws with the
    // same seed, so the expectation does not rest on luck.
    Random same;
    same.pin(3);
    bool zeroDraw = false;
    for (int k = 0; k < PreviewPointsMin; ++k) {
        const bool zero = std::nearbyint(same.next32() * 0x1.0p-32 * 10000) == 0;
        if (k >= 50 && zero) zeroDraw = true;
    }
    Random rng;
    rng.pin(3);
    RasterSurface pic = unitPicture();
    DrawPreview(ifs, colours, PreviewPointsMin, rng, pic);
    EXPECT_EQ(coloursIn(pic), zeroDraw ? (std::set<Color>{Red, Blue}) : (std::set<Color>{Blue}));
    EXPECT_EQ(pic.point(0.8, 0.5), Blue);
}

TEST(Preview, TheFirstFiftyPointsAreNotPlotted) {
    const IFSEntry ifs = constantMaps({0.2f, 0.5f, 0.8f}, {0.3f, 0.3f, 0.4f});
    Random rng;
    rng.pin(9);
    RasterSurface pic = unitPicture();
    DrawPreview(ifs, colours, 50, rng, pic);
    EXPECT_TRUE(coloursIn(pic).empty());
    rng.pin(9);
    DrawPreview(ifs, colours, 51, rng, pic);
    EXPECT_EQ(coloursIn(pic).size(), 1u);
}

TEST(Preview, ADrawEqualToTheSumTakesThatMap) {
    // p = 0.5, 0.5: the draw 0.5 is "at most the sum" of the first map, so map 0 takes it; with no
    // entry forced to 1, draws above 0.9 in p = 0.5, 0.4 fall to the last map considered.
    const IFSEntry ifs = constantMaps({0.2f, 0.8f}, {0.5f, 0.4f});
    Random rng;
    rng.pin(4);
    RasterSurface pic = unitPicture();
    DrawPreview(ifs, colours, PreviewPointsMax, rng, pic);
    EXPECT_EQ(pic.point(0.2, 0.5), Red);
    EXPECT_EQ(pic.point(0.8, 0.5), Green);
}

TEST(Preview, DotsAreTwoPixelsWide) {
    const IFSEntry ifs = constantMaps({0.505f}, {1});
    Random rng;
    rng.pin(1);
    RasterSurface pic = unitPicture();
    DrawPreview(ifs, colours, 60, rng, pic);
    int painted = 0;
    for (int r = 0; r < 100; ++r)
        for (int c = 0; c < 100; ++c) painted += pic.pixel(c, r) == Red;
    EXPECT_EQ(painted, 4);
}

TEST(Preview, PointsStepBy500WithinTheirLimits) {
    EXPECT_EQ(StepPreviewPoints(2000, 1), 2500);
    EXPECT_EQ(StepPreviewPoints(2000, -1), 1500);
    EXPECT_EQ(StepPreviewPoints(PreviewPointsMax, 1), PreviewPointsMax);
    EXPECT_EQ(StepPreviewPoints(9800, 1), PreviewPointsMax);
    EXPECT_EQ(StepPreviewPoints(PreviewPointsMin, -1), PreviewPointsMin);
    EXPECT_EQ(PreviewStatusText(PreviewPointsDefault), "2000 (+/- inc/dec)");
}

TEST(Preview, TheWindowIsCorrectedToTheAspectOfTheView) {
    // An area 200 wide and 150 high in a window 180 high, for a view twice as high as wide.
    EXPECT_EQ(PreviewWindowHeight(180, 200, 150, 1.0, 2.0), 180 + 400 - 150);
    EXPECT_EQ(PreviewWindowHeight(180, 200, 200, 1.0, 1.0), 180);
    // A view without extent leaves the window as it is.
    EXPECT_EQ(PreviewWindowHeight(180, 200, 150, 0.0, 1.0), 180);
}

}  // namespace
}  // namespace quillane
