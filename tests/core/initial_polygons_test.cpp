#include "core/initial_polygons.h"

#include <gtest/gtest.h>

#include <cmath>
#include <string>
#include <utility>
#include <vector>

namespace quillane {
namespace {

using Entries = std::vector<std::pair<float, float>>;

Entries entriesOf(const DesignPolygon& p) {
    Entries out;
    for (int i = 1; i <= p.nPoints; ++i) out.emplace_back(p.x[i], p.y[i]);
    return out;
}

const float H = static_cast<float>(std::sqrt(3.0) / 2.0);
const std::pair<float, float> Lift{1000.0f, 1000.0f};

TEST(BuiltInPolygons, CaptionsInMenuOrder) {
    EXPECT_STREQ(PolygonCaptions[0], "Oriented Unit Square");
    EXPECT_STREQ(PolygonCaptions[7], "Unit Square");
    EXPECT_STREQ(PolygonCaptions[11], "Octogon");
    EXPECT_STREQ(PolygonCaptions[13], "User Defined");
}

TEST(BuiltInPolygons, OrientedSquareCarriesItsMarkAfterAPenLift) {
    const DesignPolygon p = BuiltInPolygon(0);
    EXPECT_EQ(p.Kind, 0);
    EXPECT_EQ(
        entriesOf(p),
        (Entries{{0, 0}, {1, 0}, {1, 1}, {0, 1}, {0, 0}, Lift, {0.1f, 0.9f}, {0.1f, 0.1f}, {0.5f, 0.1f}}));
    EXPECT_TRUE(p.isPenLift(6));
    EXPECT_FALSE(p.isPenLift(5));
}

TEST(BuiltInPolygons, TrianglesAndLinesHaveTheirKindsAndEntries) {
    EXPECT_EQ(entriesOf(BuiltInPolygon(1)),
              (Entries{{0, 0}, {1, 0}, {0.5f, H}, {0, 0}, Lift, {0.7f, 0.1f}, {0.4f, 0.1f}, {0.4f, 0.6f}}));
    EXPECT_EQ(BuiltInPolygon(1).Kind, 1);
    EXPECT_EQ(entriesOf(BuiltInPolygon(2)),
              (Entries{{0, 0}, {1, 0}, Lift, {0.55f, 0.05f}, {0.65f, 0}, {0.55f, -0.05f}}));
    EXPECT_EQ(entriesOf(BuiltInPolygon(3)),
              (Entries{{0, 0}, {0, 1}, Lift, {0.05f, 0.55f}, {0, 0.65f}, {-0.05f, 0.55f}}));
    EXPECT_EQ(BuiltInPolygon(2).Kind, 5);
    EXPECT_EQ(BuiltInPolygon(3).Kind, 5);
    EXPECT_EQ(entriesOf(BuiltInPolygon(4)), (Entries{{0, 0}, {1, 0}}));
    EXPECT_EQ(BuiltInPolygon(4).Kind, 4);
    EXPECT_EQ(entriesOf(BuiltInPolygon(5)), (Entries{{0, 0}, {0, 1}}));
    EXPECT_EQ(BuiltInPolygon(5).Kind, 3);
    EXPECT_EQ(entriesOf(BuiltInPolygon(6)), (Entries{{0, 0}, {1, 0}, {0.5f, H}, {0, 0}}));
    EXPECT_EQ(BuiltInPolygon(6).Kind, 1);
    EXPECT_EQ(entriesOf(BuiltInPolygon(7)), (Entries{{0, 0}, {1, 0}, {1, 1}, {0, 1}, {0, 0}}));
    EXPECT_EQ(BuiltInPolygon(7).Kind, 2);
}

TEST(BuiltInPolygons, RegularOnesFromPentagonToNonagon) {
    for (int index = 8; index <= 12; ++index) {
        const int n = index - 3;
        const DesignPolygon p = BuiltInPolygon(index);
        EXPECT_EQ(p.Kind, 0);
        EXPECT_EQ(p.nPoints, n + 1) << PolygonCaptions[index];
        EXPECT_EQ(entriesOf(p), entriesOf(RegularPolygon(n)));
    }
    EXPECT_EQ(BuiltInPolygon(13).nPoints, 0);
}

TEST(RegularPolygonRule, AllSidesHaveLengthOneAndItClosesExactly) {
    for (int n = 3; n <= 12; ++n) {
        const DesignPolygon p = RegularPolygon(n);
        ASSERT_EQ(p.nPoints, n + 1);
        EXPECT_EQ(p.x[1], 0.0f);
        EXPECT_EQ(p.y[1], 0.0f);
        EXPECT_EQ(p.x[2], 1.0f);
        EXPECT_EQ(p.y[2], 0.0f);
        EXPECT_EQ(p.x[n + 1], 0.0f);
        EXPECT_EQ(p.y[n + 1], 0.0f);
        for (int k = 1; k <= n; ++k)
            EXPECT_NEAR(std::hypot(p.x[k + 1] - p.x[k], p.y[k + 1] - p.y[k]), 1.0, 1e-5) << n << " " << k;
    }
}

TEST(RegularPolygonRule, HexagonThirdVertexTurnsSixtyDegrees) {
    const DesignPolygon p = RegularPolygon(6);
    EXPECT_NEAR(p.x[3], 1.5f, 1e-6);
    EXPECT_NEAR(p.y[3], H, 1e-6);
}

TEST(PolygonRecord, HoldsAtMost110Entries) {
    DesignPolygon p;
    for (int i = 0; i < 110; ++i) EXPECT_TRUE(p.add(static_cast<float>(i), 0));
    EXPECT_FALSE(p.add(5, 5));
    EXPECT_EQ(p.nPoints, 110);
    EXPECT_EQ(p.x[110], 109.0f);
}

TEST(GonFiles, WriterPrintsTheRuntimeNumbersWithBlanksAndCrLf) {
    DesignPolygon p;
    p.add(0.5f, 1);
    p.add(-0.05f, 0);
    p.addPenLift();
    EXPECT_EQ(WritePolygonText(p), " .5 , 1 \r\n-.05 , 0 \r\n 1000 , 1000 \r\n");
}

TEST(GonFiles, BracketsAroundThePairReadTheSame) {
    DesignPolygon a, b;
    ReadPolygonText("(0.25, 0.75)\n(1,2)\r\n", a);
    ReadPolygonText("0.25, 0.75\n1,2\r\n", b);
    EXPECT_EQ(entriesOf(a), (Entries{{0.25f, 0.75f}, {1, 2}}));
    EXPECT_EQ(entriesOf(a), entriesOf(b));
}

TEST(GonFiles, BlankLinesDoNotCount) {
    DesignPolygon p;
    ReadPolygonText("\r\n1,0\r\n   \r\n\t\r\n0,1\r\n\r\n", p);
    EXPECT_EQ(entriesOf(p), (Entries{{1, 0}, {0, 1}}));
}

TEST(GonFiles, PolygonWithPenLiftSurvivesWritingAndReading) {
    const DesignPolygon original = BuiltInPolygon(0);
    DesignPolygon back;
    back.Kind = 3;
    ReadPolygonText(WritePolygonText(original), back);
    EXPECT_EQ(entriesOf(back), entriesOf(original));
    EXPECT_TRUE(back.isPenLift(6));
    EXPECT_EQ(back.Kind, 3) << "a file does not carry the kind";
}

TEST(GonFiles, MalformedLinesGiveZerosThroughVal) {
    DesignPolygon p;
    ReadPolygonText("abc\n7\n,3\n2x,4y\n", p);
    EXPECT_EQ(entriesOf(p), (Entries{{0, 0}, {7, 0}, {0, 3}, {2, 4}}));
}

TEST(GonFiles, OnlyTheFirst110EntriesOfALongFileAreKept) {
    std::string text;
    for (int i = 1; i <= 115; ++i) text += std::to_string(i) + ",0\r\n";
    DesignPolygon p;
    ReadPolygonText(text, p);
    EXPECT_EQ(p.nPoints, 110);
    EXPECT_EQ(p.x[110], 110.0f);
}

TEST(PolygonPreview, UnitSquareGetsAMarginRoundedToTenths) {
    // Round(1.05, 1) is 1 and Round(-0.05, 1) is 0, both half to even.
    const WorldWindow w = PolygonPreviewWindow(BuiltInPolygon(7));
    EXPECT_NEAR(w.xmin, -0.05f, 1e-6);
    EXPECT_NEAR(w.xmax, 1.05f, 1e-6);
    EXPECT_NEAR(w.ymin, -0.05f, 1e-6);
    EXPECT_NEAR(w.ymax, 1.05f, 1e-6);
}

TEST(PolygonPreview, TriangleIsWidenedToASquareAroundItsMiddle) {
    // y: Round(0.916, 1) + 0.05 = 0.95, Round(-0.05, 1) - 0.05 = -0.05; x spans 1.1.
    const WorldWindow w = PolygonPreviewWindow(BuiltInPolygon(6));
    EXPECT_NEAR(w.xmin, -0.05f, 1e-6);
    EXPECT_NEAR(w.xmax, 1.05f, 1e-6);
    EXPECT_NEAR(w.ymin, -0.1f, 1e-6);
    EXPECT_NEAR(w.ymax, 1.0f, 1e-6);
}

TEST(PolygonPreview, IgnoresPenLiftsAndSquaresAFlatLine) {
    const WorldWindow w = PolygonPreviewWindow(BuiltInPolygon(4));
    // x spans -0.05 .. 1.05; y is a point, so 0.05 either side, widened to the same span.
    EXPECT_NEAR(w.xmax - w.xmin, 1.1f, 1e-6);
    EXPECT_NEAR(w.ymax - w.ymin, 1.1f, 1e-6);
    EXPECT_NEAR(w.ymin + w.ymax, 0.0f, 1e-6);
    const WorldWindow marked = PolygonPreviewWindow(BuiltInPolygon(0));
    EXPECT_LT(marked.xmax, 2.0f);
}

struct PolygonModeTest : ::testing::Test {
    PolygonDrawing d;
    DesignPolygon initial = BuiltInPolygon(7);
    void SetUp() override { BeginPolygonMode(d); }
    bool click(float x, float y, bool snap = false) {
        return PolygonClick(d, x, y, snap, 0.25f, 0.125f, 0.02f, initial);
    }
};

TEST_F(PolygonModeTest, SnappedFirstVertexTakesGridXForItsY) {
    click(0.3f, 0.3f, true);
    EXPECT_FLOAT_EQ(d.PathStartX, 0.25f);
    EXPECT_FLOAT_EQ(d.PathStartY, 0.5f) << "Round(2.4) * GridX";
    // The stored vertex itself is snapped with GridY.
    EXPECT_FLOAT_EQ(d.UserPolygon.y[1], 0.25f);
    click(0.9f, 0.3f, true);
    EXPECT_FLOAT_EQ(d.UserPolygon.x[2], 1.0f);
    EXPECT_FLOAT_EQ(d.UserPolygon.y[2], 0.25f) << "later vertices use GridY";
}

TEST_F(PolygonModeTest, ClickNearTheStartClosesThePathAndUsesIt) {
    click(0, 0);
    click(1, 0);
    click(0, 1);
    EXPECT_TRUE(click(0.005f, 0.005f));
    EXPECT_EQ(entriesOf(initial), (Entries{{0, 0}, {1, 0}, {0, 1}, {0, 0}}));
}

TEST_F(PolygonModeTest, DeleteAfterLiftReturnsToTheEarlierPath) {
    click(0, 0);
    click(1, 0);
    click(1, 1);
    ASSERT_TRUE(PolygonKey(d, 'L', false, initial));
    EXPECT_FALSE(PolygonKey(d, 'd', false, initial)) << "no rubber band after a lift";
    click(3, 3);
    EXPECT_EQ(d.PolygonPointCount, 5);
    EXPECT_FLOAT_EQ(d.PathStartX, 3.0f);
    ASSERT_TRUE(PolygonKey(d, 'd', false, initial));
    EXPECT_EQ(d.PolygonPointCount, 3);
    EXPECT_FALSE(d.PathStartPending);
    EXPECT_FLOAT_EQ(d.LastVertexX, 1.0f);
    EXPECT_FLOAT_EQ(d.LastVertexY, 1.0f);
    EXPECT_FLOAT_EQ(d.PathStartX, 0.0f);
    EXPECT_FLOAT_EQ(d.PathStartY, 0.0f);
    // The earlier path goes on from its last vertex and closes at its own start.
    click(0, 1);
    EXPECT_TRUE(click(0, 0.01f));
    EXPECT_EQ(entriesOf(initial), (Entries{{0, 0}, {1, 0}, {1, 1}, {0, 1}, {0, 0}}));
}

TEST_F(PolygonModeTest, RepeatedKeysDoNothing) {
    click(0, 0);
    click(1, 0);
    EXPECT_FALSE(PolygonKey(d, 'D', true, initial));
    EXPECT_FALSE(PolygonKey(d, 'L', true, initial));
    EXPECT_EQ(d.PolygonPointCount, 2);
}

TEST_F(PolygonModeTest, QWithNoPointKeepsTheFormerPolygon) {
    const DesignPolygon before = initial;
    EXPECT_TRUE(PolygonKey(d, 'Q', false, initial));
    EXPECT_EQ(initial, before);
    EXPECT_FALSE(d.PolygonMode);
    EXPECT_TRUE(d.PolygonFinished);
}

TEST_F(PolygonModeTest, QWithOnePointKeepsTheFormerPolygon) {
    const DesignPolygon before = initial;
    click(0.4f, 0.4f);
    EXPECT_FALSE(PolygonFinish(d, initial));
    EXPECT_EQ(initial, before);
}

TEST_F(PolygonModeTest, FinishDropsATrailingPenLift) {
    click(0, 0);
    click(2, 0);
    PolygonKey(d, 'l', false, initial);
    EXPECT_TRUE(PolygonFinish(d, initial));
    EXPECT_EQ(entriesOf(initial), (Entries{{0, 0}, {2, 0}}));
    EXPECT_EQ(d.PolygonPointCount, 0);
}

}  // namespace
}  // namespace quillane

TEST(InitialPolygonState, AFreshWorkbenchUsesTheOrientedUnitSquare) {
    quillane::Workbench wb;
    EXPECT_EQ(wb.InitialPolygon, quillane::BuiltInPolygon(0));
    EXPECT_EQ(wb.InitialPolygon.nPoints, 9);
    EXPECT_EQ(wb.UserPolygon.nPoints, 0);
}
