#include "design/gesture_math.h"

#include <gtest/gtest.h>

#include <cmath>

#include "core/initial_polygons.h"
#include "core/numbers.h"
#include "design/map_transforms.h"

namespace quillane {
namespace {

constexpr double Px = 0.01;  // world units of one pixel, both axes

IFSFunction mapOf(float a, float b, float c, float d, float e, float f) {
    IFSFunction m;
    m.a = a, m.b = b, m.c = c, m.d = d, m.e = e, m.f = f, m.p = 0.5f;
    return m;
}

DesignPolygon segment(float x1, float y1, float x2, float y2) {
    DesignPolygon p;
    p.add(x1, y1);
    p.add(x2, y2);
    return p;
}

TEST(HitHandle, CornersAreTestedBeforeMiddlesInTheFixedOrder) {
    // A box narrower than the tolerance: handles 1, 3 and 5 all lie under the press.
    const BoundingBox box{0, 0.01f, 0, 1};
    EXPECT_EQ(HitHandle(box, 0.005, 0, 3, 0, Px), 1);
    EXPECT_EQ(HitHandle(box, 0.005, 1, 3, 0, Px), 2);
    EXPECT_EQ(HitHandle(box, 0.012, 0.5, 3, 0, Px), 7);
}

TEST(HitHandle, EachHandleAtItsPlaceAndNoneBetween) {
    const BoundingBox box{0, 1, 0, 2};
    EXPECT_EQ(HitHandle(box, 0, 0, 3, 0, Px), 1);
    EXPECT_EQ(HitHandle(box, 0, 2, 3, 0, Px), 2);
    EXPECT_EQ(HitHandle(box, 1, 0, 3, 0, Px), 3);
    EXPECT_EQ(HitHandle(box, 1, 2, 3, 0, Px), 4);
    EXPECT_EQ(HitHandle(box, 0.5, 0, 3, 0, Px), 5);
    EXPECT_EQ(HitHandle(box, 0.5, 2, 3, 0, Px), 6);
    EXPECT_EQ(HitHandle(box, 0, 1, 3, 0, Px), 7);
    EXPECT_EQ(HitHandle(box, 1, 1, 3, 0, Px), 8);
    EXPECT_EQ(HitHandle(box, 0.25, 0.25, 3, 0, Px), 0);
}

TEST(HitHandle, ToleranceIsStrictAndGrowsWithTheLineThickness) {
    const BoundingBox box{0, 1, 0, 1};
    EXPECT_EQ(HitHandle(box, 0.029, 0, 3, 0, Px), 1);
    EXPECT_EQ(HitHandle(box, 0.0301, 0, 3, 0, Px), 0);
    // t = 3 + 1.2 * 4 pixels.
    EXPECT_EQ(HitHandle(box, 0.077, 0, 3, 4, Px), 1);
    EXPECT_EQ(HitHandle(box, 0.079, 0, 3, 4, Px), 0);
}

TEST(Boundary, CrossProductIsNotNormalisedSoLongSegmentsAreHarderToHit) {
    // The same perpendicular distance of 0.02 from a short and from a long horizontal segment.
    EXPECT_TRUE(OnBoundary(segment(0, 0, 1, 0), 0.5, 0.02, Px, Px));   // 0.02 * 1 < 0.03
    EXPECT_FALSE(OnBoundary(segment(0, 0, 2, 0), 1.0, 0.02, Px, Px));  // 0.02 * 2 >= 0.03
}

TEST(Boundary, PressOutsideTheGrownBoxOfTheSegmentMisses) {
    EXPECT_FALSE(OnBoundary(segment(0, 0, 1, 0), 1.05, 0, Px, Px));
    EXPECT_TRUE(OnBoundary(segment(0, 0, 1, 0), 1.02, 0, Px, Px));
}

TEST(Boundary, ASegmentTowardsAPenLiftCanBePicked) {
    DesignPolygon p;
    p.add(0, 0);
    p.addPenLift();
    // Near the start of the line to (1000, 1000), within the tolerance of the unnormalised product.
    EXPECT_TRUE(OnBoundary(p, 0.00001, 0.00001 + 0.00002, Px, Px));
}

struct PickBench {
    Workbench wb;
    std::vector<DesignPolygon> images;
    PickBench() {
        IFSEntry& ifs = wb.CurrentIFS;
        ifs.nMaps = 2;
        // Two images of the unit square, 0..4 on both axes, function 1 exactly on top of function 0.
        for (int i = 0; i < 2; ++i) ifs.a[i] = ifs.d[i] = 4;
        wb.InitialPolygon = BuiltInPolygon(7);
        redraw();
    }
    void redraw() {
        images.clear();
        for (int i = 0; i < 2; ++i) images.push_back(PolygonImageOf(wb.CurrentIFS, i, wb.InitialPolygon));
    }
    BoundingBox box(int i) const { return MapBoundingBox(wb.CurrentIFS, i, wb.InitialPolygon); }
};

TEST(Picking, TheLowerNumberIsPickedFirstUnlessTheOtherIsSelected) {
    PickBench t;
    ASSERT_TRUE(OnBoundary(t.images[1], 1, 0, Px, Px));
    t.wb.MapSelected = false;
    EXPECT_EQ(PickAtPress(t.wb, t.images, t.box(0), 1, 0, Px, Px).function, 0);
    t.wb.MapSelected = true;
    t.wb.SelectedMap = 1;
    EXPECT_EQ(PickAtPress(t.wb, t.images, t.box(1), 1, 0, Px, Px).function, 1);
}

TEST(Picking, AHandleOfTheSelectionWinsOverTheBoundary) {
    PickBench t;
    t.wb.MapSelected = true;
    t.wb.SelectedMap = 1;
    const PressHit hit = PickAtPress(t.wb, t.images, t.box(1), 0, 0, Px, Px);
    EXPECT_EQ(hit.function, 1);
    EXPECT_EQ(hit.handle, 1);
}

TEST(Picking, PressInEmptySpaceHitsNothingAndThenNoHandleIsThere) {
    PickBench t;
    t.wb.MapSelected = true;
    t.wb.SelectedMap = 0;
    // Beside the corner handle, off the long edges.
    ASSERT_EQ(HitHandle(t.box(0), 4.02, 4.02, HandleSize, 0, Px), 4);
    EXPECT_EQ(PickAtPress(t.wb, t.images, t.box(0), 4.02, 4.02, Px, Px).handle, 4);
    EXPECT_EQ(PickAtPress(t.wb, t.images, t.box(0), 10, 10, Px, Px).function, -1);
    // The press in empty space cleared the selection: the same place now finds nothing.
    t.wb.MapSelected = false;
    const PressHit hit = PickAtPress(t.wb, t.images, t.box(0), 4.02, 4.02, Px, Px);
    EXPECT_EQ(hit.function, -1);
    EXPECT_EQ(hit.handle, 0);
}

TEST(Picking, TheFormerSelectionsBoxStillDecidesTheHandle) {
    PickBench t;
    // Function 1 sits to the right of function 0; its box is the stale one of the last selection.
    t.wb.CurrentIFS.e[1] = 4;
    t.redraw();
    t.wb.MapSelected = false;
    t.wb.SelectedMap = 1;
    const PressHit hit = PickAtPress(t.wb, t.images, t.box(1), 1, 0, Px, Px);
    EXPECT_EQ(hit.function, 0);
    EXPECT_EQ(hit.handle, 0);
    // On function 0's right edge, inside function 1's corner square.
    const PressHit onOldCorner = PickAtPress(t.wb, t.images, t.box(1), 3.999, 0.02, Px, Px);
    EXPECT_EQ(onOldCorner.function, 0);
    EXPECT_EQ(onOldCorner.handle, 1);
}

TEST(Picking, AFunctionNotYetDrawnCannotBePicked) {
    PickBench t;
    t.images.resize(0);
    EXPECT_EQ(PickAtPress(t.wb, t.images, t.box(0), 0.25, 0.5, Px, Px).function, -1);
}

TEST(DragThresholdTest, FourPixelsBeginADrag) {
    EXPECT_FALSE(PastDragThreshold(0, 0, 0.039, 0, Px));
    EXPECT_FALSE(PastDragThreshold(0, 0, 0.028, 0.028, Px));
    EXPECT_TRUE(PastDragThreshold(0, 0, 0, 0.04, Px));
}

TEST(Move, OffsetFromThePressGoesOntoTheOriginalAndIsShown) {
    const GestureStep s = MoveStep(mapOf(0.5f, 0, 0, 0.5f, 0.1f, 0.2f), 1, 1, 1.25f, 0.5f);
    EXPECT_EQ(s.map.e, 0.1f + 0.25f);
    EXPECT_EQ(s.map.f, 0.2f + -0.5f);
    EXPECT_EQ(s.text, "dx:0.250; dy:-0.500");
}

TEST(Resize, CornerShowsBothFactors) {
    const BoundingBox box{0, 1, 0, 1};
    const GestureStep s = ResizeStep(mapOf(1, 0, 0, 1, 0, 0), box, 4, false, 0.5f, 0.7f);
    EXPECT_EQ(s.text, "sx:0.500; sy:0.700");
    EXPECT_EQ(s.map.a, 0.5f);
    EXPECT_EQ(s.map.d, 0.7f);
    EXPECT_EQ(s.map.e, 0);
    EXPECT_EQ(s.map.f, 0);
}

TEST(Resize, LeftEdgeKeepsTheRightEdge) {
    const BoundingBox box{0, 2, 0, 1};
    const GestureStep s = ResizeStep(mapOf(2, 0, 0, 1, 0, 0), box, 7, false, 1, 0.3f);
    EXPECT_EQ(s.map.a, 1);
    EXPECT_EQ(s.map.e, 0 * 0.5f + (1 - 0.5f) * 2);
    EXPECT_EQ(s.map.d, 1);
    EXPECT_EQ(s.text, "sx:0.500; ");
}

TEST(Resize, DraggingPastTheOppositeCornerFlipsThePolygon) {
    const BoundingBox box{0, 1, 0, 1};
    const GestureStep s = ResizeStep(mapOf(1, 0, 0, 1, 0, 0), box, 4, false, -0.5f, -1);
    EXPECT_EQ(s.map.a, -0.5f);
    EXPECT_EQ(s.map.d, -1);
    EXPECT_EQ(s.text, "sx:-0.500; sy:-1.000");
}

TEST(Resize, AStepDoesNothingWhenItsEdgesCoincide) {
    const BoundingBox line{0, 1, 0.5f, 0.5f};
    const IFSFunction o = mapOf(1, 0, 0, 0, 0, 0.5f);
    const GestureStep s = ResizeStep(o, line, 6, false, 0.5f, 2);
    EXPECT_EQ(s.map, o);
    EXPECT_EQ(s.text, "");
}

TEST(Resize, ShiftDragOfACornerOnAHorizontalLineUsesSx) {
    const BoundingBox line{0, 1, 0.5f, 0.5f};
    const GestureStep s = ResizeStep(mapOf(1, 0, 0, 0, 0, 0.5f), line, 4, true, 0.25f, 3);
    EXPECT_EQ(s.text, "sx:0.250; sy:0.250");
    EXPECT_EQ(s.map.a, 0.25f);
    EXPECT_EQ(s.map.f, 0.25f * 0.5f + (1 - 0.25f) * 0.5f);
}

TEST(Resize, ResizeEqualTakesTheLargerFactorInMagnitude) {
    const BoundingBox box{0, 1, 0, 1};
    // Handle 1 keeps (xmax, ymax): sx = 0.8, sy = -1.5.
    const GestureStep s = ResizeStep(mapOf(1, 0, 0, 1, 0, 0), box, 1, true, 0.2f, 2.5f);
    EXPECT_EQ(s.text, "sx:-1.500; sy:-1.500");
    EXPECT_EQ(s.map.a, -1.5f);
    EXPECT_EQ(s.map.d, -1.5f);
    EXPECT_EQ(s.map.e, 0 * -1.5f + (1 - -1.5f) * 1);
}

TEST(Resize, ResizeEqualOfAPointChangesNothing) {
    const BoundingBox point{0.5f, 0.5f, 0.5f, 0.5f};
    const IFSFunction o = mapOf(0, 0, 0, 0, 0.5f, 0.5f);
    EXPECT_EQ(ResizeStep(o, point, 2, true, 3, 3).map, o);
}

TEST(Resize, MiddleHandlesWithShiftResizeOneAxis) {
    const BoundingBox box{0, 1, 0, 1};
    const GestureStep s = ResizeStep(mapOf(1, 0, 0, 1, 0, 0), box, 8, true, 0.5f, 0.2f);
    EXPECT_EQ(s.map.a, 0.5f);
    EXPECT_EQ(s.map.d, 1);
}

TEST(Rotation, AnglesMoveInTenthsOfADegreeWithTheTurnsSign) {
    RotationStart r;
    r.vx = 1, r.vy = 0, r.length = 1;
    const double a = 30.04 * DegToRad;
    EXPECT_NEAR(RotationAngle(r, std::cos(a), std::sin(a)), 29.9, 1e-9);
    EXPECT_NEAR(RotationAngle(r, std::cos(a), -std::sin(a)), -29.9, 1e-9);
    const double b = 30.2 * DegToRad;
    EXPECT_NEAR(RotationAngle(r, std::cos(b), std::sin(b)), 30.1, 1e-9);
}

TEST(Rotation, TheStartPointItselfGivesMinusOneTenth) {
    RotationStart r;
    r.vx = 1, r.vy = 0, r.length = 1;
    EXPECT_NEAR(RotationAngle(r, 2, 0), -0.1, 1e-12);
}

TEST(Rotation, TheOppositeDirectionGivesTheArcCosinesPi) {
    RotationStart r;
    r.vx = 1, r.vy = 0, r.length = 1;
    EXPECT_NEAR(RotationAngle(r, -1, 0), 3.0, 1e-12);
}

TEST(Rotation, StepRotatesTheOriginalAboutTheCentreAndShowsDegrees) {
    RotationStart r;
    r.cx = 0.5f, r.cy = 0.5f, r.vx = 0.5, r.vy = 0, r.length = 0.5;
    const IFSFunction o = mapOf(0.5f, 0, 0, 0.5f, 0.25f, 0.25f);
    const GestureStep s = RotationStep(o, r, 0.5f, 1);
    EXPECT_EQ(s.text, " 89.9\xC2\xB0 ");
    EXPECT_EQ(s.map, RotateMapAbout(o, RotationAngle(r, 0.5f, 1) * DegToRad, 0.5f, 0.5f));
}

TEST(Rotation, TheCentreIsTheTriangleCentroidOrTheBoxMiddle) {
    Workbench wb;
    wb.CurrentIFS.nMaps = 1;
    wb.CurrentIFS.a[0] = wb.CurrentIFS.d[0] = 1;
    const BoundingBox box{0, 4, 0, 2};
    wb.InitialPolygon = BuiltInPolygon(7);
    RotationStart r = BeginRotation(wb, 0, box, 4, 2);
    EXPECT_EQ(r.cx, 2);
    EXPECT_EQ(r.cy, 1);
    EXPECT_DOUBLE_EQ(r.length, std::hypot(2.0, 1.0));
    wb.InitialPolygon.Kind = 1;
    float cx, cy;
    TriangleCentroid(wb.CurrentIFS, 0, cx, cy);
    r = BeginRotation(wb, 0, box, 4, 2);
    EXPECT_EQ(r.cx, cx);
    EXPECT_EQ(r.cy, cy);
}

TEST(Texts, DegreesAndMoves) {
    EXPECT_EQ(DegreeText(12.34), " 12.3\xC2\xB0 ");
    EXPECT_EQ(DegreeText(-4.5), "-4.5\xC2\xB0 ");
    EXPECT_EQ(DegreeText(0), " 0.0\xC2\xB0 ");
    EXPECT_EQ(MoveText(0.1, -0.2), "dx:0.100; dy:-0.200");
}

TEST(MouseShear, RightHandleTurnsInHalfDegrees) {
    const BoundingBox box{0, 1, 0, 1};
    const IFSFunction o = mapOf(1, 0, 0, 1, 0, 0);
    // r = 0.1 / 0.5: atan 11.31 degrees rounds to 11.5.
    const GestureStep s = ComputeMouseShear(o, box, 8, 1, 0.6f);
    EXPECT_EQ(s.text, " 11.5\xC2\xB0 ");
    EXPECT_EQ(s.map, ShearMapVertical(o, std::tan(11.5 * DegToRad), 0.5f));
}

TEST(MouseShear, LeftHandleReversesTheSign) {
    const BoundingBox box{0, 1, 0, 1};
    const IFSFunction o = mapOf(1, 0, 0, 1, 0, 0);
    const GestureStep s = ComputeMouseShear(o, box, 7, 0, 0.6f);
    EXPECT_EQ(s.text, "-11.5\xC2\xB0 ");
}

TEST(MouseShear, MiddleHandlesShearHorizontallyAndShowTheNegative) {
    const BoundingBox box{0, 1, 0, 1};
    const IFSFunction o = mapOf(1, 0, 0, 1, 0, 0);
    const GestureStep s = ComputeMouseShear(o, box, 6, 0.6f, 1);
    EXPECT_EQ(s.text, "-11.5\xC2\xB0 ");
    EXPECT_EQ(s.map, ShearMapHorizontal(o, std::tan(11.5 * DegToRad), 0.5f));
    EXPECT_EQ(ComputeMouseShear(o, box, 5, 0.6f, 0).text, " 11.5\xC2\xB0 ");
}

TEST(MouseShear, HalfDegreeRoundingIsHalfToEven) {
    const BoundingBox box{0, 2, 0, 2};
    const IFSFunction o = mapOf(1, 0, 0, 1, 0, 0);
    // tan(0.25 degree) lands on angle / 0.5 = 0.5 up to float noise; the float r decides.
    const float y = 1 + static_cast<float>(std::tan(0.25 * DegToRad));
    const double r = static_cast<double>((y - 1.0f) * 1.0f / 1.0f);
    const double expected = Round(std::atan(r) * RadToDeg / 0.5) * 0.5;
    EXPECT_EQ(ComputeMouseShear(o, box, 8, 2, y).text, DegreeText(expected));
}

TEST(MouseShear, AVerticalLinePolygonGivesNinetyDegreesUnguarded) {
    const BoundingBox line{0.5f, 0.5f, 0, 1};
    const GestureStep s = ComputeMouseShear(mapOf(0, 0, 0, 1, 0.5f, 0), line, 8, 0.5f, 1);
    EXPECT_EQ(s.text, " 90.0\xC2\xB0 ");
}

TEST(ArrowKeys, KeyMoveStepsOnePixelFromThePresentMap) {
    const IFSFunction o = mapOf(1, 0, 0, 1, 0, 0);
    GestureStep s = KeyMove(o, o, 39, 0.01f, 0.02f);
    s = KeyMove(s.map, o, 38, 0.01f, 0.02f);
    EXPECT_EQ(s.map.e, 0.01f);
    EXPECT_EQ(s.map.f, 0.02f);
    EXPECT_EQ(s.text, "dx:0.010; dy:0.020");
    s = KeyMove(s.map, o, 37, 0.01f, 0.02f);
    s = KeyMove(s.map, o, 40, 0.01f, 0.02f);
    EXPECT_EQ(s.text, "dx:0.000; dy:0.000");
}

TEST(ArrowKeys, KeyShearAccumulatesAndAppliesToTheOriginal) {
    const BoundingBox box{0, 1, 0, 1};
    const IFSFunction o = mapOf(1, 0, 0, 1, 0, 0);
    double v = 0, h = 0;
    KeyShear(o, box, 38, v, h);
    const GestureStep s = KeyShear(o, box, 38, v, h);
    EXPECT_EQ(v, 1.0);
    EXPECT_EQ(s.text, " 1.0\xC2\xB0 ");
    EXPECT_EQ(s.map, ShearMapVertical(o, std::tan(1.0 * DegToRad), 0.5f));
    const GestureStep l = KeyShear(o, box, 37, v, h);
    EXPECT_EQ(h, -0.5);
    EXPECT_EQ(l.text, " 0.5\xC2\xB0 ");
    EXPECT_EQ(l.map, ShearMapHorizontal(o, std::tan(-0.5 * DegToRad), 0.5f));
}

TEST(ArrowKeys, ArrowKeyRotateAddsHalfDegreesToThePresentMap) {
    Workbench wb;
    wb.InitialPolygon = BuiltInPolygon(7);
    wb.CurrentIFS.nMaps = 1;
    wb.CurrentIFS.setFunction(0, mapOf(0.5f, 0, 0, 0.5f, 0.25f, 0.25f));
    double k = 0;
    const GestureStep first = ArrowKeyRotate(wb, 0, 38, k);
    EXPECT_EQ(first.map, RotateMapAbout(wb.CurrentIFS.function(0), 0.5 * 0.017453292, 0.5f, 0.5f));
    StoreCoefficients(wb.CurrentIFS, 0, first.map);
    const GestureStep second = ArrowKeyRotate(wb, 0, 38, k);
    EXPECT_EQ(k, 1.0);
    EXPECT_EQ(second.text, " 1.0\xC2\xB0 ");
    // The second step turns the map the first one left, rounding included.
    float cx, cy;
    RotationCentreOf(wb, 0, MapBoundingBox(wb.CurrentIFS, 0, wb.InitialPolygon), cx, cy);
    EXPECT_EQ(second.map, RotateMapAbout(first.map, 0.008726646, cx, cy));
    ArrowKeyRotate(wb, 0, 40, k);
    EXPECT_EQ(k, 0.5);
}

TEST(Cursors, HandlesAndTheCtrlColumn) {
    EXPECT_EQ(HandleCursor(1, false), DesignCursor::SizeNESW);
    EXPECT_EQ(HandleCursor(2, false), DesignCursor::SizeNWSE);
    EXPECT_EQ(HandleCursor(3, false), DesignCursor::SizeNWSE);
    EXPECT_EQ(HandleCursor(4, true), DesignCursor::Rotate);
    EXPECT_EQ(HandleCursor(5, false), DesignCursor::SizeVertical);
    EXPECT_EQ(HandleCursor(6, true), DesignCursor::SizeHorizontal);
    EXPECT_EQ(HandleCursor(7, false), DesignCursor::SizeHorizontal);
    EXPECT_EQ(HandleCursor(8, true), DesignCursor::SizeVertical);
    EXPECT_EQ(HandleCursor(0, true), DesignCursor::Normal);
}

}  // namespace
}  // namespace quillane
