#include "generators/line_fractal_file.h"

#include <gtest/gtest.h>

#include "generators/line_fractal_canvas.h"

namespace quillane::testing {
namespace {

TEST(LineFractalFile, WritesNumbersAsTheRuntimePrintsThem) {
    LineFractal g;
    g.nSegments = 3;
    g.GeneratorPoints[1] = {0.25f, -0.125f};
    g.GeneratorPoints[2] = {0.6f, 1.0f / 3};
    g.GeneratorPoints[3] = {1, 0};
    EXPECT_EQ(WritePointsFile(g),
              "Line Fractal Design {\n 0 , 0 \n .25 ,-.125 \n .6 , .3333333 \n 1 ,  0 \n}\n");
    g.chkOrient = true;
    g.txtOrient = "FB";
    EXPECT_EQ(WritePointsFile(g),
              "Line Fractal Design {\n 0 , 0 , F\n .25 ,-.125 , B\n .6 , .3333333 , \n 1 ,  0 \n}\n");
}

TEST(LineFractalFile, RoundTripKeepsPointsAndLetters) {
    LineFractal g;
    g.nSegments = 4;
    g.GeneratorPoints[1] = {0.3f, 0.2f};
    g.GeneratorPoints[2] = {0.5f, -0.45f};
    g.GeneratorPoints[3] = {0.8125f, 0.1f};
    g.GeneratorPoints[4] = {1, 0};
    g.chkOrient = true;
    g.txtOrient = "FGAB";
    const PointsFile file = ReadPointsFile(WritePointsFile(g));
    ASSERT_EQ(file.error, "");
    LineFractal back;
    ApplyPointsFile(back, file);
    EXPECT_EQ(back.nSegments, 4);
    for (int i = 0; i <= 4; ++i) EXPECT_EQ(back.GeneratorPoints[i], g.GeneratorPoints[i]) << i;
    EXPECT_EQ(back.txtOrient, "FGAB");
    EXPECT_TRUE(back.chkOrient);
    EXPECT_EQ(back.SegmentDirection, 0);
    // Without orientation every point line counts as F, and the box stays off.
    g.chkOrient = false;
    LineFractal plain;
    ApplyPointsFile(plain, ReadPointsFile(WritePointsFile(g)));
    EXPECT_EQ(plain.txtOrient, "FFFF");
    EXPECT_FALSE(plain.chkOrient);
}

TEST(LineFractalFile, ExactlyTwoPointsMakeOneSegment) {
    const PointsFile file = ReadPointsFile("Line Fractal Design {\n0, 0\n0.5, 0.5\n}\n");
    EXPECT_EQ(file.error, "");
    LineFractal g;
    ApplyPointsFile(g, file);
    EXPECT_EQ(g.nSegments, 1);
    EXPECT_EQ(g.GeneratorPoints[1], (GeneratorPoint{0.5f, 0.5f}));
}

TEST(LineFractalFile, WithoutAClosingLineTheLastPointIsLost) {
    const PointsFile file = ReadPointsFile("Line Fractal Design {\n0,0\n.3,.2\n.6,.1\n1,0\n");
    ASSERT_EQ(file.error, "");
    ASSERT_EQ(file.points.size(), 3u);
    EXPECT_EQ(file.points[2], (GeneratorPoint{0.6f, 0.1f}));
}

TEST(LineFractalFile, CommentsParenthesesAndLettersAreRead) {
    const PointsFile file = ReadPointsFile(
        "junk\r\nLine Fractal Design {\r\n; a comment\r\n  ;another\r\n(0, 0), g\r\n\r\nno comma\r\n"
        "(.5, .25) , xyz\r\n1, 0, a\r\n}\r\n");
    ASSERT_EQ(file.error, "");
    ASSERT_EQ(file.points.size(), 3u);
    EXPECT_EQ(file.points[1], (GeneratorPoint{0.5f, 0.25f}));
    EXPECT_EQ(file.letters, "GA");
}

TEST(LineFractalFile, RefusalsSayWhy) {
    EXPECT_EQ(ReadPointsFile("Line Fractal Design {\nnothing\n}\n").error, NoPointsMessage);
    EXPECT_EQ(ReadPointsFile("Line Fractal Design {\n0,0\n}\n").error, TooFewPointsMessage);
    const PointsFile moved = ReadPointsFile("{\n0.1,0\n1,0\n}\n");
    EXPECT_EQ(moved.error, FirstPointMessage);
    // The vertices are taken even so; nothing else changes.
    LineFractal g;
    ApplyPointsFile(g, moved);
    EXPECT_EQ(g.GeneratorPoints[0], (GeneratorPoint{0.1f, 0}));
    EXPECT_EQ(g.nSegments, 2);
    EXPECT_EQ(ReadPointsFile("no brace\n0,0\n1,0\n").error, ReadProblemMessage);
    EXPECT_EQ(ReadPointsFile("{").error, ReadProblemMessage);
    EXPECT_EQ(ReadPointsFile("{\n;only comments\n").error, ReadProblemMessage);
    EXPECT_EQ(std::string(NoPointsMessage),
              "No points were found in this file.\nThis may not be a file of points for a line fractal "
              "design   \nor the file may not be constructed correctly.");
}

TEST(LineFractalFile, AtMostSixteenPointsAreRead) {
    std::string text = "{\n";
    for (int i = 0; i < 30; ++i) text += std::to_string(i) + ",0\n";
    const PointsFile file = ReadPointsFile(text + "}\n");
    EXPECT_EQ(file.points.size(), 16u);
    EXPECT_EQ(file.maxX, 15.0f);
}

TEST(LineFractalFile, TheViewIsFittedToThePoints) {
    PointsFile file = ReadPointsFile("{\n0,0\n.5,.62\n1.1,0\n}\n");
    LineCanvasView v;
    FitView(v, file);
    // maxY 0.62 needs 3 steps beyond 0.5.
    EXPECT_FLOAT_EQ(v.xmin, -0.17f);
    EXPECT_FLOAT_EQ(v.xmax, 1.17f);
    EXPECT_FLOAT_EQ(v.ymin, -0.67f);
    EXPECT_FLOAT_EQ(v.ymax, 0.67f);
    file = ReadPointsFile("{\n0,0\n.5,99\n1,0\n}\n");
    FitView(v, file);
    EXPECT_FLOAT_EQ(v.ymax, 1.52f);
}

}  // namespace
}  // namespace quillane::testing
