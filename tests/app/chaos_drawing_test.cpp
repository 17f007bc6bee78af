#include "design/chaos_drawing.h"

#include "design/design_drawing.h"
#include "tests/app/chaos_fixture.h"

namespace quillane::testing {
namespace {

class ChaosDrawing : public ChaosTest {
  protected:
    void SetUp() override {
        ChaosTest::SetUp();
        wb.Menu.setChecked("mnuDesignAxes", false);
    }
    int count(Color c) const {
        int n = 0;
        for (int r = 0; r < d.picCGDesign.height(); ++r)
            for (int k = 0; k < d.picCGDesign.width(); ++k) n += d.picCGDesign.pixel(k, r) == c;
        return n;
    }
};

TEST_F(ChaosDrawing, ScaleStepIsALineToTheScaledPointWithADotAtTheEnd) {
    setPoint(0, 0, 0, "S", 0.5f);
    DrawCGDesign(wb, d, -1, false);
    for (double t : {0.3, 0.35, 0.4, 0.45}) EXPECT_EQ(cg(t, t), colour(0)) << t;
    EXPECT_EQ(cg(0.25, 0.25), colour(0));  // the dot at Q
    EXPECT_EQ(cg(0.15, 0.15), White);      // the path stops at Q
    EXPECT_EQ(cg(0.5, 0.5), Black);        // the reference point
    EXPECT_EQ(cg(0.5, 0.3), White);
}

TEST_F(ChaosDrawing, ScaleOutsideZeroToOneDrawsNoSegment) {
    setPoint(0, 0, 0, "S", 1.5f);
    DrawCGDesign(wb, d, -1, false);
    EXPECT_EQ(cg(0.375, 0.375), White);
    EXPECT_EQ(CGPathOf(wb, 0).size(), 0u);
}

TEST_F(ChaosDrawing, AngleOfZeroWithStepRDrawsNoArcAndLeavesThePathUnchanged) {
    setPoint(0, 0, 0, "S", 0.5f);
    DrawCGDesign(wb, d, -1, false);
    const RasterSurface without = d.picCGDesign;
    setPoint(0, 0, 0, "RS", 0.5f, 0);
    ASSERT_TRUE(CGPathOf(wb, 0).size() == 1u && CGPathOf(wb, 0)[0].letter == 'S');
    DrawCGDesign(wb, d, -1, false);
    for (int r = 0; r < without.height(); ++r)
        for (int k = 0; k < without.width(); ++k) ASSERT_EQ(d.picCGDesign.pixel(k, r), without.pixel(k, r));
}

TEST_F(ChaosDrawing, RotationDrawsTheArcOnTheSideOfItsTurn) {
    setPoint(0, 0.5f, 0.2f, "R", 0.5f, 90);
    DrawCGDesign(wb, d, -1, false);
    EXPECT_EQ(cg(0.5 - 0.212, 0.2 + 0.212), colour(0));  // half way round, counterclockwise
    EXPECT_EQ(cg(0.5 + 0.212, 0.2 + 0.212), White);
    EXPECT_EQ(cg(0.2, 0.2), colour(0));  // Q, with its dot
    setPoint(0, 0.5f, 0.2f, "R", 0.5f, -90);
    DrawCGDesign(wb, d, -1, false);
    EXPECT_EQ(cg(0.5 + 0.212, 0.2 + 0.212), colour(0));
    EXPECT_EQ(cg(0.5 - 0.212, 0.2 + 0.212), White);
    EXPECT_EQ(cg(0.8, 0.2), colour(0));
}

TEST_F(ChaosDrawing, HorizontalReflectionIsClippedOnTheLeft) {
    setPoint(0, 0.1f, 0.2f, "H");
    DrawCGDesign(wb, d, -1, false);
    EXPECT_EQ(cg(0.3, 0.5), colour(0));
    EXPECT_EQ(cg(-0.05, 0.5), colour(0));
    const std::vector<CGMove> path = CGPathOf(wb, 0);
    ASSERT_EQ(path.size(), 1u);
    EXPECT_NEAR(path[0].x1, -0.3, 1e-6);
}

TEST_F(ChaosDrawing, VerticalReflectionMirrorsInY) {
    setPoint(0, 0.8f, 0.4f, "V");
    DrawCGDesign(wb, d, -1, false);
    EXPECT_EQ(cg(0.5, 0.4), colour(0));
    EXPECT_EQ(cg(0.5, 0.3), colour(0));  // Q = (0.5, 0.3)
    EXPECT_EQ(cg(0.5, 0.2), White);
}

TEST_F(ChaosDrawing, StepsFollowEachOther) {
    setPoint(0, 0, 0, "SV", 0.5f);  // (0.5, 0.5) -> (0.25, 0.25) -> (0.25, -0.25)
    const std::vector<CGMove> path = CGPathOf(wb, 0);
    ASSERT_EQ(path.size(), 2u);
    EXPECT_NEAR(path[1].x0, 0.25, 1e-6);
    EXPECT_NEAR(path[1].y1, -0.25, 1e-6);
    DrawCGDesign(wb, d, -1, false);
    EXPECT_EQ(cg(0.25, 0.0 + 0.1), colour(0));
}

TEST_F(ChaosDrawing, OneFunctionAloneLeavesTheOtherPaths) {
    setPoint(0, 0, 0, "S");
    setPoint(1, 1, 0, "S");
    DrawCGDesign(wb, d, 1, false);
    EXPECT_EQ(cg(0.375, 0.375), White);
    EXPECT_EQ(cg(0.625, 0.375), colour(1));
    EXPECT_EQ(cg(0, 0), colour(0));  // fixed points are all shown
}

TEST_F(ChaosDrawing, HiddenReferencePointDrawsFixedPointsOnly) {
    wb.ReferencePoint.shown = 0;
    DrawCGDesign(wb, d, -1, false);
    EXPECT_EQ(count(Black), 0);
    EXPECT_EQ(cg(0.375, 0.375), White);
    EXPECT_EQ(cg(0, 0), colour(0));
}

TEST_F(ChaosDrawing, NoLetterDrawsNoPathNorEndDot) {
    setPoint(0, 0.2f, 0.2f, "");
    DrawCGDesign(wb, d, -1, false);
    EXPECT_EQ(count(colour(0)), 9 * 9);  // the box of half-size 4 alone
}

TEST_F(ChaosDrawing, SelectedFixedPointHasTheLargerBoxAndItsNumber) {
    setPoint(1, 0.8f, 0.2f, "S");
    DrawSelectedCGFixedPoint(wb, d, 1);
    EXPECT_EQ(d.picTrans, "Tran.#2");
    EXPECT_EQ(wb.SelectedMap, 1);
    EXPECT_TRUE(wb.CGMapSelected);
    EXPECT_EQ(cg(0.8 + 0.0275, 0.2), colour(1));  // 5.5 pixels out
    DrawCGDesign(wb, d, -1, false);
    EXPECT_EQ(cg(0.8 + 0.0275, 0.2), White);
}

TEST_F(ChaosDrawing, GridIsDrawnUnderTheFixedPoints) {
    wb.Menu.setChecked("mnuDesignGrid", true);
    DrawCGFixedPoints(wb, d);
    EXPECT_GT(count(GridColor), 0);
    EXPECT_EQ(cg(0, 0), colour(0));
}

}  // namespace
}  // namespace quillane::testing
