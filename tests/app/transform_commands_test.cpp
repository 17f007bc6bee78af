#include "app/transform_commands.h"

#include <gtest/gtest.h>

#include <cmath>

#include "core/function_table.h"
#include "core/initial_polygons.h"
#include "core/numbers.h"
#include "core/sample_systems.h"
#include "core/scripted_host.h"
#include "design/design_pictures.h"
#include "design/gesture_math.h"
#include "design/map_transforms.h"
#include "app/transform_count_commands.h"
#include "app/transform_dialogs.h"
#include "app/transform_swap.h"
#include "app/undo.h"

namespace quillane {
namespace {

struct Bench {
    Workbench wb;
    ScriptedHost host;
    explicit Bench(const IFSEntry& ifs = SierpinskiTriangleIFS()) {
        wb.CurrentIFS = ifs;
        wb.txtMaps = std::to_string(ifs.nMaps);
        wb.Table.LastMaps = ifs.nMaps;
        wb.FunctionsCaption = FunctionsCaptionFor(ifs.Name);
        wb.InitialPolygon = BuiltInPolygon(7);
        wb.Rng.pin(5);
        WriteTableRows(wb);
        select(0);
    }
    void select(int i) {
        wb.SelectedMap = static_cast<int16_t>(i);
        wb.MapSelected = true;
    }
    IFSFunction map(int i) const { return wb.CurrentIFS.function(i); }
};

IFSEntry rotatedSquare() {
    IFSEntry ifs = DefaultIFS();
    ifs.Name = "Turned";
    ifs.nMaps = 1;
    const double t = 30 * DegToRad;
    ifs.a[0] = static_cast<float>(0.5 * std::cos(t));
    ifs.b[0] = static_cast<float>(-0.5 * std::sin(t));
    ifs.c[0] = static_cast<float>(0.5 * std::sin(t));
    ifs.d[0] = static_cast<float>(0.5 * std::cos(t));
    return ifs;
}

TEST(ScaleCommand, OneHundredPercentCommitsAnUndoStepWithEqualMaps) {
    Bench t;
    const IFSFunction before = t.map(0);
    ScaleDesignMap(t.wb, t.host, 100);
    EXPECT_EQ(t.map(0), before);
    EXPECT_EQ(t.wb.OriginalMap, before);
    EXPECT_EQ(t.wb.menu("mnuUndo").caption, "&Undo resize");
    EXPECT_TRUE(t.wb.menu("mnuUndo").enabled);
    EXPECT_EQ(t.wb.ChangeCount, 1);
    EXPECT_TRUE(t.wb.IFSModified);
    EXPECT_EQ(t.wb.FunctionsCaption, "IFS [Sierpinski triangle*]");
}

TEST(ScaleCommand, MultipliesTheMatrixAndKeepsTheTranslation) {
    Bench t;
    t.select(1);
    ScaleDesignMap(t.wb, t.host, 50);
    EXPECT_EQ(t.map(1).a, 0.25f);
    EXPECT_EQ(t.map(1).d, 0.25f);
    EXPECT_EQ(t.map(1).e, 0.5f);
    EXPECT_EQ(t.wb.Table.text(1, 1), "0.250");
}

TEST(ScaleCommand, ANonPositiveValueSaysSoAndChangesNothing) {
    Bench t;
    const IFSEntry before = t.wb.CurrentIFS;
    ScaleDesignMap(t.wb, t.host, -5);
    EXPECT_EQ(t.host.shown(), (std::vector<ShownMessage>{{"Error", "Scale value must be positive"}}));
    EXPECT_EQ(t.wb.CurrentIFS, before);
    EXPECT_EQ(t.wb.ChangeCount, 0);
}

TEST(ScaleCommand, NothingWhileADrawingRunsOrNothingIsSelected) {
    Bench t;
    t.wb.DrawingActive = true;
    ScaleDesignMap(t.wb, t.host, 50);
    t.wb.DrawingActive = false;
    t.wb.MapSelected = false;
    ScaleDesignMap(t.wb, t.host, 50);
    EXPECT_EQ(t.map(0).a, 0.5f);
    EXPECT_EQ(t.wb.ChangeCount, 0);
}

TEST(Reflection, HorizontalTwiceRestoresTheMapUpToRounding) {
    Bench t;
    t.wb.CurrentIFS.b[0] = 0.1f;
    t.wb.CurrentIFS.e[0] = 0.3f;
    const IFSFunction before = t.map(0);
    FlipPoly(t.wb, -1);
    EXPECT_EQ(t.map(0).a, -0.5f);
    EXPECT_EQ(t.map(0).b, -0.1f);
    FlipPoly(t.wb, -1);
    EXPECT_NEAR(t.map(0).a, before.a, 1e-6);
    EXPECT_NEAR(t.map(0).b, before.b, 1e-6);
    EXPECT_NEAR(t.map(0).e, before.e, 1e-6);
    EXPECT_EQ(t.map(0).f, before.f);
    EXPECT_EQ(t.wb.menu("mnuUndo").caption, "&Undo Reflection");
    EXPECT_EQ(t.wb.ChangeCount, 2);
    EXPECT_EQ(t.wb.ReflectionDirection, -1);
}

TEST(Reflection, VerticalMirrorsFInTheBoxMiddle) {
    Bench t;
    t.select(2);
    mnuDesignFlipVert_Click(t.wb);
    // Box 0.5..1 in y: f = (0.5 - 0.75) * -1 + 0.75.
    EXPECT_EQ(t.map(2).d, -0.5f);
    EXPECT_EQ(t.map(2).f, 1.0f);
    EXPECT_EQ(t.wb.CurrentIFS.a[100], 0.5f);  // the ghost keeps the map before
}

TEST(ClearCommand, ClearOfTheSelectedOfTwoLeavesOneNothingSelectedClearDisabled) {
    IFSEntry two = SierpinskiTriangleIFS();
    two.nMaps = 2;
    Bench t(two);
    t.select(1);
    mnuDesignClear_Click(t.wb, t.host);
    EXPECT_EQ(t.wb.CurrentIFS.nMaps, 1);
    EXPECT_EQ(t.wb.txtMaps, "1");
    EXPECT_FALSE(t.wb.MapSelected);
    EXPECT_FALSE(t.wb.menu("mnuDesignClear").enabled);
    EXPECT_FALSE(t.wb.menu(DesignToolbarKey(3)).enabled);
    EXPECT_EQ(t.wb.menu("mnuUndo").caption, "&Undo Clear");
    EXPECT_EQ(t.wb.ClearedMap, 1);
    EXPECT_EQ(t.wb.SavedIFS.nMaps, 2);
    // The only function takes all the probability.
    EXPECT_EQ(t.wb.CurrentIFS.p[0], 1.0f);
    // A second Clear is refused with one function.
    t.select(0);
    mnuDesignClear_Click(t.wb, t.host);
    EXPECT_EQ(t.wb.CurrentIFS.nMaps, 1);
}

TEST(ClearCommand, TheClearedColourGoesToTheLastSlot) {
    Bench t;
    const Color c0 = t.wb.FunctionColor[0], c1 = t.wb.FunctionColor[1], c2 = t.wb.FunctionColor[2];
    ASSERT_NE(c0, c1);
    t.select(0);
    mnuDesignClear_Click(t.wb, t.host);
    EXPECT_EQ(t.wb.FunctionColor[0], c1);
    EXPECT_EQ(t.wb.FunctionColor[1], c2);
    EXPECT_EQ(t.wb.FunctionColor[2], c0);
    // The later functions moved down with their table rows.
    EXPECT_EQ(t.wb.CurrentIFS.e[0], 0.5f);
    EXPECT_EQ(t.wb.Table.text(5, 0), "0.500");
    EXPECT_EQ(t.wb.Table.text(5, 2), "");
}

TEST(NewCommand, AddsAHalfSizeCopyInTheLowerLeftAndSelectsIt) {
    Bench t;
    t.wb.DesignWindow = {-1, 3, 0, 2};
    mnuDesignNew_Click(t.wb, t.host);
    const IFSFunction m = t.map(3);
    EXPECT_EQ(t.wb.CurrentIFS.nMaps, 4);
    EXPECT_EQ(t.wb.txtMaps, "4");
    EXPECT_EQ(m.a, 0.5f);
    EXPECT_EQ(m.b, 0);
    EXPECT_EQ(m.d, 0.5f);
    EXPECT_GE(m.e, -1 + 4 * 0.1f - 1e-6f);
    EXPECT_LE(m.e, -1 + 4 * 0.5f + 1e-6f);
    EXPECT_GE(m.f, 2 * 0.1f - 1e-6f);
    EXPECT_LE(m.f, 2 * 0.5f + 1e-6f);
    EXPECT_EQ(t.wb.OriginalMap.e, m.e);
    EXPECT_EQ(t.wb.OriginalMap.f, m.f);
    EXPECT_GT(m.p, 0);  // PropProb
    EXPECT_EQ(t.wb.SelectedMap, 3);
    EXPECT_TRUE(t.wb.MapSelected);
    EXPECT_EQ(t.wb.menu("mnuUndo").caption, "&Undo New Transformation");
    EXPECT_EQ(t.wb.ChangeCount, 1);
}

TEST(DuplicateCommand, CopiesTheMatrixAndUsesOneDrawForBothPlaces) {
    Bench t;
    t.wb.CurrentIFS.b[1] = 0.2f;
    t.select(1);
    t.wb.DesignWindow = {0, 2, 0, 4};
    mnuDesignDuplicate_Click(t.wb, t.host);
    const IFSFunction m = t.map(3);
    EXPECT_EQ(m.b, 0.2f);
    EXPECT_EQ(m.a, 0.5f);
    // e = 2 r / 2, f = 4 r / 2 with the same r.
    EXPECT_FLOAT_EQ(m.f, 2 * m.e);
    EXPECT_EQ(t.wb.SelectedMap, 3);
    EXPECT_EQ(t.wb.menu("mnuUndo").caption, "&Undo Duplicate");
}

TEST(RotateCommand, TurnsAboutTheBoxMiddleAndCommits) {
    Bench t;
    const IFSFunction before = t.map(0);
    RotateIFSDesign(t.wb, 90);
    EXPECT_EQ(t.map(0), RotateMapAbout(before, 90 * 0.017453292, 0.25f, 0.25f));
    EXPECT_EQ(t.wb.ResultMap, t.map(0));
    EXPECT_EQ(t.wb.menu("mnuUndo").caption, "&Undo Rotation");
    EXPECT_EQ(t.wb.ChangeCount, 1);
}

TEST(RotateCommand, ScaleAndRotationFormShowsTheFormerAnglesPlusTheGivenOne) {
    Bench t;
    t.wb.CodeForm = 1;
    t.wb.CurrentIFS.a[0] = -0.5f;  // theta 180, phi 0
    RotateIFSDesign(t.wb, 30);
    EXPECT_EQ(t.wb.Table.text(3, 0), "210.00");
    EXPECT_EQ(t.wb.Table.text(4, 0), "30.00");
}

TEST(StretchShear, StretchOfARotatedSquareGivesARotatedRectangleButAHandleGivesAParallelogram) {
    Bench t(rotatedSquare());
    StretchShearMap(t.wb, {200, 100, 0, 0});
    const IFSFunction s = t.map(0);
    // The columns stay perpendicular, one twice the other.
    EXPECT_NEAR(s.a * s.b + s.c * s.d, 0, 1e-6);
    EXPECT_NEAR(std::hypot(s.a, s.c), 2 * std::hypot(s.b, s.d), 1e-6);
    const BoundingBox box = MapBoundingBox(rotatedSquare(), 0, t.wb.InitialPolygon);
    const GestureStep h = ResizeStep(rotatedSquare().function(0), box, 8, false,
                                     box.xmin + 2 * (box.xmax - box.xmin), box.ymin);
    EXPECT_GT(std::fabs(h.map.a * h.map.b + h.map.c * h.map.d), 0.05);
}

TEST(StretchShear, LeavesTheChangeCountButOffersItsUndo) {
    Bench t;
    StretchShearMap(t.wb, {100, 100, 10, 20});
    EXPECT_EQ(t.wb.ChangeCount, 0);
    EXPECT_FALSE(t.wb.IFSModified);
    EXPECT_EQ(t.wb.menu("mnuUndo").caption, "&Undo Stretch/Shear");
    EXPECT_TRUE(t.wb.menu("mnuUndo").enabled);
    const IFSFunction o = SierpinskiTriangleIFS().function(0);
    const IFSFunction v = ShearMapVertical(o, std::tan(20 * DegToRad), 0.25f);
    EXPECT_EQ(t.map(0), ShearMapHorizontal(v, std::tan(-10 * DegToRad), 0.25f));
}

TEST(TransformDialogs, ScaleMessages) {
    DialogCheck<float> v = CheckScaleDialog("abc");
    EXPECT_FALSE(v.value);
    EXPECT_EQ(v.message, "Cannot evaluate expression for the scale percentage.  ");
    v = CheckScaleDialog("0");
    EXPECT_EQ(v.message, "Enter a positive scale value");
    v = CheckScaleDialog("2*25");
    EXPECT_EQ(*v.value, 50);
    EXPECT_STREQ(TransformDialogTitle, "Error");
}

TEST(TransformDialogs, RotateMessageAndDirection) {
    EXPECT_EQ(CheckRotateDialog("x", 0).message, "Cannot evaluate expression for the rotation angle.  ");
    EXPECT_EQ(*CheckRotateDialog("45", 0).value, 45);
    EXPECT_EQ(*CheckRotateDialog("45", 1).value, -45);
}

TEST(TransformDialogs, SkewMessagesInOrderWithTheirBoxes) {
    SkewDialogText t;
    t.txtStrHori = "?";
    EXPECT_EQ(CheckSkewDialog(t).message, "Cannot evaluate expression for horizontal stretch.  ");
    t.txtStrHori = "-1";
    EXPECT_EQ(CheckSkewDialog(t).message, "Enter a positive scale value");
    EXPECT_EQ(CheckSkewDialog(t).box, 0);
    t.txtStrHori = "100";
    t.txtStrVert = "?";
    EXPECT_EQ(CheckSkewDialog(t).message, "Cannot evaluate expression for vertical stretch.  ");
    t.txtStrVert = "0";
    EXPECT_EQ(CheckSkewDialog(t).message, "Enter a positive scale value");
    EXPECT_EQ(CheckSkewDialog(t).box, 1);
    t.txtStrVert = "100";
    t.txtSkewHori = "?";
    EXPECT_EQ(CheckSkewDialog(t).message, "Cannot evaluate expression for horizontal shear.  ");
    t.txtSkewHori = "0";
    t.txtSkewVert = "?";
    EXPECT_EQ(CheckSkewDialog(t).message, "Cannot evaluate expression for vertical shear.  ");
    EXPECT_EQ(CheckSkewDialog(t).box, 3);
}

TEST(TransformDialogs, ShearOfExactlyNinetyOrMinusNinetyIsRefused) {
    SkewDialogText t;
    t.txtSkewHori = "90";
    DialogCheck<SkewValues> v = CheckSkewDialog(t);
    EXPECT_FALSE(v.value);
    EXPECT_EQ(v.message, "Enter a shear value between -90 and 90");
    EXPECT_EQ(v.box, 2);
    t.txtSkewHori = "0";
    t.txtSkewVert = "-90";
    v = CheckSkewDialog(t);
    EXPECT_EQ(v.message, "Enter a shear value between -90 and 90");
    EXPECT_EQ(v.box, 3);
    t.txtSkewVert = "89.9";
    EXPECT_TRUE(CheckSkewDialog(t).value);
}

TEST(Swap, OpensWithOneAndTwoOrOneAndOne) {
    Bench t;
    SwapDialog d = OpenSwapDialog(t.wb);
    EXPECT_EQ(d.cmbList1, 1);
    EXPECT_EQ(d.cmbList2, 2);
    Bench one(DefaultIFS());
    EXPECT_EQ(OpenSwapDialog(one.wb).cmbList2, 1);
}

TEST(Swap, ExchangesMapsAndColoursAndCountsOneEditOnClose) {
    Bench t;
    const Color c0 = t.wb.FunctionColor[0], c2 = t.wb.FunctionColor[2];
    SwapDialog d = OpenSwapDialog(t.wb);
    d.cmbList2 = 3;
    cmdSwap_Click(t.wb, d, SwapKind::IFSAndColors);
    EXPECT_EQ(t.wb.CurrentIFS.e[0], 0.25f);
    EXPECT_EQ(t.wb.CurrentIFS.f[0], 0.5f);
    EXPECT_EQ(t.wb.Table.text(6, 0), "0.500");
    EXPECT_EQ(t.wb.FunctionColor[0], c2);
    EXPECT_EQ(t.wb.FunctionColor[2], c0);
    SetUndoCaption(t.wb, "&Undo Move");
    t.wb.Menu.setEnabled("mnuUndo", true);
    SwapDialogClose(t.wb, d);
    EXPECT_EQ(t.wb.ChangeCount, 1);
    EXPECT_EQ(t.wb.menu("mnuUndo").caption, "&Undo");
    EXPECT_FALSE(t.wb.menu("mnuUndo").enabled);
}

TEST(Swap, ColoursOnlyIFSOnlyAndCancel) {
    Bench t;
    const IFSEntry before = t.wb.CurrentIFS;
    const Color c0 = t.wb.FunctionColor[0], c1 = t.wb.FunctionColor[1];
    SwapDialog d = OpenSwapDialog(t.wb);
    cmdSwap_Click(t.wb, d, SwapKind::ColorsOnly);
    EXPECT_EQ(t.wb.CurrentIFS, before);
    EXPECT_EQ(t.wb.FunctionColor[0], c1);
    cmdSwap_Click(t.wb, d, SwapKind::IFSOnly);
    EXPECT_EQ(t.wb.CurrentIFS.e[0], 0.5f);
    EXPECT_EQ(t.wb.FunctionColor[0], c1);
    SwapDialogCancel(t.wb, d);
    EXPECT_EQ(t.wb.CurrentIFS, before);
    EXPECT_EQ(t.wb.FunctionColor[0], c0);
    EXPECT_EQ(t.wb.FunctionColor[1], c1);
    EXPECT_EQ(t.wb.Table.text(5, 0), "0.000");
    EXPECT_EQ(t.wb.ChangeCount, 0);
}

}  // namespace
}  // namespace quillane
