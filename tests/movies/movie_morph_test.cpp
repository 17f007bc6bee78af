#include "movies/movie_morph.h"

#include <gtest/gtest.h>

#include <cmath>

#include "core/numbers.h"
#include "core/sample_systems.h"
#include "core/scripted_host.h"
#include "movies/movie_play.h"

namespace quillane {
namespace {

IFSEntry fern() {
    IFSEntry f;
    f.nMaps = 4;
    const float v[4][7] = {{0, 0, 0, 0.16f, 0, 0, 0.01f},
                           {0.85f, 0.04f, -0.04f, 0.85f, 0, 1.6f, 0.85f},
                           {0.2f, -0.26f, 0.23f, 0.22f, 0, 1.6f, 0.07f},
                           {-0.15f, 0.28f, 0.26f, 0.24f, 0, 0.44f, 0.07f}};
    for (int i = 0; i < 4; ++i) {
        const float* r = v[i];
        f.a[i] = r[0], f.b[i] = r[1], f.c[i] = r[2], f.d[i] = r[3], f.e[i] = r[4], f.f[i] = r[5],
        f.p[i] = r[6];
    }
    return f;
}

TEST(MovieMorph, TheShorterIFSIsPaddedWithZeroMaps) {
    IFSEntry tri = SierpinskiTriangleIFS();
    tri.a[3] = tri.d[3] = tri.e[3] = 7;  // whatever an unused slot held before
    MovieMorph m;
    InitialSetup(m, tri, fern(), false);
    EXPECT_EQ(m.MovieMaps, 4);
    EXPECT_EQ(m.InitialIFS.nMaps, 4);
    for (float v : {m.InitialIFS.a[3], m.InitialIFS.b[3], m.InitialIFS.c[3], m.InitialIFS.d[3],
                    m.InitialIFS.e[3], m.InitialIFS.f[3]})
        EXPECT_EQ(v, 0.0f);
    // The extra map grows out of the point (0, 0): at t = 0 it is all zero.
    m.nTransitions = 4;
    ComputeFrame(m, 1);
    EXPECT_EQ(m.FrameIFS.a[3], 0.0f);
    EXPECT_EQ(m.FrameIFS.d[3], 0.0f);
    EXPECT_EQ(m.FrameIFS.f[3], 0.0f);
    ComputeFrame(m, 5);
    EXPECT_NEAR(m.FrameIFS.f[3], 0.44f, 1e-6);
    EXPECT_NEAR(m.FrameIFS.d[3], 0.24f, 1e-6);
}

TEST(MovieMorph, OneTransitionYieldsTwoFramesAtTZeroAndOne) {
    EXPECT_EQ(FrameParameter(1, 1), 0.0f);
    EXPECT_EQ(FrameParameter(2, 1), 1.0f);
    ScriptedHost host;
    MoviePlayState s;
    std::vector<int> frames;
    MakeMovie(s, 1, MovieMode::Forward, host, [&](int f, int) {
        frames.push_back(f);
        return true;
    });
    EXPECT_EQ(frames, (std::vector<int>{1, 2}));
    MovieMorph m;
    m.Method = MorphMethod::AverageMatrices;
    InitialSetup(m, SierpinskiTriangleIFS(), fern(), false);
    m.nTransitions = 1;
    ComputeFrame(m, 2);
    for (int i = 0; i < 4; ++i) EXPECT_EQ(m.FrameIFS.function(i).b, fern().function(i).b);
}

TEST(MovieMorph, TheRotationMovieEndsWhereItBegan) {
    MovieMorph m;
    InitialSetup(m, fern(), fern(), true);
    m.nTransitions = 12;
    m.RotateMap = 2;
    ComputeFrame(m, 1);
    const IFSEntry first = m.FrameIFS;
    ComputeFrame(m, 7);
    EXPECT_GT(std::abs(m.FrameIFS.a[2] - first.a[2]), 0.1f) << "half way the map is turned";
    EXPECT_EQ(m.FrameIFS.a[1], first.a[1]) << "the other maps stay";
    ComputeFrame(m, 13);
    for (int i = 0; i < 4; ++i) {
        EXPECT_NEAR(m.FrameIFS.a[i], first.a[i], 1e-5);
        EXPECT_NEAR(m.FrameIFS.b[i], first.b[i], 1e-5);
        EXPECT_NEAR(m.FrameIFS.c[i], first.c[i], 1e-5);
        EXPECT_NEAR(m.FrameIFS.d[i], first.d[i], 1e-5);
        EXPECT_NEAR(m.FrameIFS.e[i], first.e[i], 1e-5);
        EXPECT_NEAR(m.FrameIFS.f[i], first.f[i], 1e-5);
    }
}

TEST(MovieMorph, TheSameListPositionRotatesEvenWhenAveragingMatrices) {
    MovieMorph m;
    m.Method = MorphMethod::AverageMatrices;
    InitialSetup(m, SierpinskiTriangleIFS(), SierpinskiTriangleIFS(), true);
    m.nTransitions = 4;
    m.RotateMap = 0;
    ComputeFrame(m, 2);  // a quarter turn
    EXPECT_NEAR(m.FrameIFS.a[0], 0.0f, 1e-6);
    EXPECT_NEAR(m.FrameIFS.c[0], 0.5f, 1e-6);
    EXPECT_NEAR(m.FrameIFS.b[0], -0.5f, 1e-6);
    // Map 1's image of the unit square, centred at (1/4, 1/4), turns about that centre.
    EXPECT_NEAR(m.FrameIFS.e[0], 0.5f, 1e-6);
    EXPECT_NEAR(m.FrameIFS.f[0], 0.0f, 1e-6);
}

TEST(MovieMorph, ClockwiseTurnsTheOtherWay) {
    MovieMorph m;
    InitialSetup(m, SierpinskiTriangleIFS(), SierpinskiTriangleIFS(), true);
    m.nTransitions = 4;
    m.RotDir = -1;
    ComputeFrame(m, 2);
    EXPECT_NEAR(m.FrameIFS.c[0], -0.5f, 1e-6);
}

TEST(MovieMorph, TheTrianglePresetTurnsAboutTheCentroidOfItsImage) {
    MovieMorph m;
    InitialSetup(m, SierpinskiTriangleIFS(), SierpinskiTriangleIFS(), true);
    m.TriangleFigure = true;
    m.Triangle = {WorldPoint{0, 0}, WorldPoint{1, 0}, WorldPoint{0.5, 1}};
    const WorldPoint c = RotationCentre(m, 0);
    EXPECT_NEAR(c.x, 0.25, 1e-6);
    EXPECT_NEAR(c.y, 1.0 / 6, 1e-6);
    m.TriangleFigure = false;
    EXPECT_NEAR(RotationCentre(m, 0).y, 0.25, 1e-6);
}

TEST(MovieForms, AnglesFollowTheWrittenRules) {
    IFSEntry s;
    s.nMaps = 4;
    // a = 0: 90 sgn(c); d = 0: 90 sgn(b), the sign of b itself.
    s.a[0] = 0, s.c[0] = -2, s.b[0] = 3, s.d[0] = 0;
    // a < 0, c = 0: 180; d < 0, b = 0: 180.
    s.a[1] = -1, s.c[1] = 0, s.b[1] = 0, s.d[1] = -1;
    // a < 0, c > 0: atan(c/a) + 180; d < 0, b > 0: atan(-b/d) - 180.
    s.a[2] = -1, s.c[2] = 1, s.b[2] = 1, s.d[2] = -1;
    s.a[3] = 0.6f, s.c[3] = 0, s.b[3] = 0, s.d[3] = 0.8f;
    FormsTable f{};
    FillForms(f, s, 4, false);
    EXPECT_FLOAT_EQ(f[3][0], -90);
    EXPECT_FLOAT_EQ(f[4][0], 90);
    EXPECT_FLOAT_EQ(f[1][0], 2);
    EXPECT_FLOAT_EQ(f[2][0], 3);
    EXPECT_FLOAT_EQ(f[3][1], 180);
    EXPECT_FLOAT_EQ(f[4][1], 180);
    EXPECT_FLOAT_EQ(f[3][2], 135);
    EXPECT_FLOAT_EQ(f[4][2], -135);
    EXPECT_FLOAT_EQ(f[3][3], 0);
    EXPECT_FLOAT_EQ(f[2][3], 0.8f);
    FillForms(f, s, 4, true);
    EXPECT_FLOAT_EQ(f[3][0], 270);
    EXPECT_FLOAT_EQ(f[4][2], 225);
}

TEST(MovieForms, AnglesAreInterpolatedAsNumbersWithoutTheShortArc) {
    IFSEntry from, to;
    from.nMaps = to.nMaps = 1;
    const double r350 = 350 * DegToRad, r10 = 10 * DegToRad;
    from.a[0] = static_cast<float>(std::cos(r350)), from.c[0] = static_cast<float>(std::sin(r350));
    to.a[0] = static_cast<float>(std::cos(r10)), to.c[0] = static_cast<float>(std::sin(r10));
    from.d[0] = to.d[0] = 1;
    MovieMorph m;
    m.AnglesPositive = true;
    InitialSetup(m, from, to, false);
    m.nTransitions = 2;
    ComputeFrame(m, 2);  // half way between 350 and 10 as numbers is 180
    EXPECT_NEAR(m.FrameIFS.a[0], -1.0f, 1e-5);
    m.AnglesPositive = false;
    RebuildForms(m);
    ComputeFrame(m, 2);  // -10 to 10 passes through 0
    EXPECT_NEAR(m.FrameIFS.a[0], 1.0f, 1e-5);
}

TEST(MoviePlay, CyclingHoldsTheLastFrameTwiceAndEndsOnTheFirst) {
    ScriptedHost host;
    MoviePlayState s;
    s.CycleOn = 1;
    std::vector<int> frames, counters;
    EXPECT_EQ(MakeMovie(s, 3, MovieMode::Forward, host,
                        [&](int f, int c) {
                            frames.push_back(f);
                            counters.push_back(c);
                            return true;
                        }),
              MovieEnd::Finished);
    EXPECT_EQ(frames, (std::vector<int>{1, 2, 3, 4, 4, 3, 2, 1}));
    EXPECT_EQ(counters, (std::vector<int>{1, 2, 3, 4, 5, 6, 7, 8}));
    EXPECT_TRUE(s.MovieStopped);
}

TEST(MoviePlay, AStopAtAYieldEndsThePass) {
    ScriptedHost host;
    MoviePlayState s;
    host.onYield = [&](int n) {
        if (n == 2) s.MovieStopped = true;
    };
    std::vector<int> frames;
    EXPECT_EQ(MakeMovie(s, 9, MovieMode::Forward, host,
                        [&](int f, int) {
                            frames.push_back(f);
                            return true;
                        }),
              MovieEnd::Stopped);
    EXPECT_EQ(frames.size(), 2u);
}

TEST(MoviePlay, SingleStepsWrapAndRedrawStays) {
    ScriptedHost host;
    MoviePlayState s;
    std::vector<int> frames;
    auto record = [&](int f, int) {
        frames.push_back(f);
        return true;
    };
    MakeMovie(s, 2, MovieMode::StepForward, host, record);
    MakeMovie(s, 2, MovieMode::StepForward, host, record);
    MakeMovie(s, 2, MovieMode::StepForward, host, record);
    MakeMovie(s, 2, MovieMode::StepForward, host, record);
    MakeMovie(s, 2, MovieMode::Redraw, host, record);
    MakeMovie(s, 2, MovieMode::StepBackward, host, record);
    MakeMovie(s, 2, MovieMode::StepBackward, host, record);
    MakeMovie(s, 2, MovieMode::Backward, host, record);
    EXPECT_EQ(frames, (std::vector<int>{1, 2, 3, 1, 1, 3, 2, 3, 2, 1}));
}

}  // namespace
}  // namespace quillane
