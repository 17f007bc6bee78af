#include "app/undo.h"

#include <gtest/gtest.h>

#include "core/function_table.h"
#include "core/initial_polygons.h"
#include "core/sample_systems.h"
#include "core/scripted_host.h"
#include "design/design_pictures.h"
#include "design/gesture_math.h"
#include "design/map_transforms.h"
#include "app/transform_commands.h"
#include "app/transform_count_commands.h"
#include "app/fractal_view.h"
#include "app/table_commands.h"

namespace quillane {
namespace {

struct UndoBench {
    Workbench wb;
    ScriptedHost host;
    FractalPictures pics;
    DesignHooks hooks;
    int designScales = 0, designZoomUndos = 0, designZoomOuts = 0;
    UndoBench() {
        IFSEntry ifs = SierpinskiTriangleIFS();
        ifs.Name = "Tri";
        wb.CurrentIFS = ifs;
        wb.txtMaps = "3";
        wb.Table.LastMaps = 3;
        wb.FunctionsCaption = "IFS [Tri]";
        wb.InitialPolygon = BuiltInPolygon(7);
        wb.Rng.pin(3);
        WriteTableRows(wb);
        pics.resize(32, White);
        hooks.DesignScale = [this] { ++designScales; };
        hooks.UndoDesignZoom = [this] { ++designZoomUndos; };
        hooks.ZoomDesignOut = [this] { ++designZoomOuts; };
        wb.SelectedMap = 1;
        wb.MapSelected = true;
    }
    UndoResult undo() { return mnuUndo_Click(wb, host, pics, hooks); }
    const std::string& caption() const { return wb.menu("mnuUndo").caption; }
    IFSFunction map(int i) const { return wb.CurrentIFS.function(i); }
    // A resize gesture by handle 4 from press to release, as the window runs it.
    void resizeGesture(float x, float y) {
        SaveOriginalIFS(wb);
        const BoundingBox box = MapBoundingBox(wb.CurrentIFS, wb.SelectedMap, wb.InitialPolygon);
        const GestureStep s = ResizeStep(wb.OriginalMap, box, 4, false, x, y);
        wb.ResultMap = s.map;
        StoreCoefficients(wb.CurrentIFS, wb.SelectedMap, s.map);
        SetUndoCaption(wb, UndoResizeCaption);
        wb.GestureSaved = false;
        CommitUndo(wb);
    }
};

TEST(Undo, UndoRedoUndoOfAResizeRestoreTheExact32BitValues) {
    UndoBench t;
    const IFSFunction before = t.map(1);
    t.resizeGesture(0.83f, 0.71f);
    const IFSFunction after = t.map(1);
    ASSERT_NE(after, before);
    EXPECT_EQ(t.caption(), "&Undo Resize");
    EXPECT_EQ(t.wb.ChangeCount, 1);
    EXPECT_EQ(t.wb.FunctionsCaption, "IFS [Tri*]");

    EXPECT_EQ(t.undo().kind, UndoKind::Map);
    EXPECT_EQ(t.map(1), before);
    EXPECT_EQ(t.caption(), "&Redo Resize");
    EXPECT_EQ(UndoButtonImage(t.wb), 18);
    EXPECT_EQ(t.wb.ChangeCount, 0);
    EXPECT_EQ(t.wb.FunctionsCaption, "IFS [Tri]");
    EXPECT_EQ(t.wb.Table.text(1, 1), "0.500");

    t.undo();
    EXPECT_EQ(t.map(1), after);
    EXPECT_EQ(t.caption(), "&Undo Resize");
    EXPECT_EQ(UndoButtonImage(t.wb), 19);
    EXPECT_EQ(t.wb.ChangeCount, 1);

    t.undo();
    EXPECT_EQ(t.map(1), before);
    EXPECT_EQ(t.caption(), "&Redo Resize");
    EXPECT_TRUE(t.wb.menu("mnuUndo").enabled);
}

TEST(Undo, TheScaleCommandsSmallResizeComesBackAsUndoResize) {
    UndoBench t;
    const IFSFunction before = t.map(1);
    ScaleDesignMap(t.wb, t.host, 50);
    EXPECT_EQ(t.caption(), "&Undo resize");
    t.undo();
    EXPECT_EQ(t.caption(), "&Redo Resize");
    EXPECT_EQ(t.map(1), before);
    t.undo();
    EXPECT_EQ(t.caption(), "&Undo Resize");
    EXPECT_EQ(t.map(1).a, 0.25f);
}

TEST(Undo, MoveThenSelectingAnotherFunctionTurnsUndoOff) {
    UndoBench t;
    SaveOriginalIFS(t.wb);
    const GestureStep s = MoveStep(t.wb.OriginalMap, 0, 0, 0.1f, 0.2f);
    StoreCoefficients(t.wb.CurrentIFS, 1, s.map);
    t.wb.ResultMap = s.map;
    SetUndoCaption(t.wb, UndoMoveCaption);
    CommitUndo(t.wb);
    // Selecting function 0 resets the store.
    ResetUndoMenu(t.wb);
    t.wb.SelectedMap = 0;
    EXPECT_EQ(t.caption(), "&Undo");
    EXPECT_FALSE(t.wb.menu("mnuUndo").enabled);
    const IFSEntry now = t.wb.CurrentIFS;
    EXPECT_EQ(t.undo().kind, UndoKind::None);
    EXPECT_EQ(t.wb.CurrentIFS, now);
}

TEST(Undo, MoveUndoAndRedoPutBackEAndF) {
    UndoBench t;
    SaveOriginalIFS(t.wb);
    const GestureStep s = MoveStep(t.wb.OriginalMap, 0, 0, 0.1f, 0.2f);
    StoreCoefficients(t.wb.CurrentIFS, 1, s.map);
    t.wb.ResultMap = s.map;
    SetUndoCaption(t.wb, UndoMoveCaption);
    CommitUndo(t.wb);
    t.undo();
    EXPECT_EQ(t.map(1).e, 0.5f);
    EXPECT_EQ(t.map(1).f, 0.0f);
    EXPECT_EQ(t.caption(), "&Redo Move");
    t.undo();
    EXPECT_EQ(t.map(1).e, s.map.e);
    EXPECT_EQ(t.caption(), "&Undo Move");
}

TEST(Undo, RotationThenUndoThenUndoAgainIsARedo) {
    UndoBench t;
    const IFSFunction before = t.map(1);
    RotateIFSDesign(t.wb, 30);
    const IFSFunction turned = t.map(1);
    t.undo();
    EXPECT_EQ(t.map(1), before);
    EXPECT_EQ(t.caption(), "&Redo Rotation");
    t.undo();
    EXPECT_EQ(t.map(1), turned);
    EXPECT_EQ(t.caption(), "&Undo Rotation");
    EXPECT_EQ(t.wb.ChangeCount, 1);
}

TEST(Undo, StretchShearUndoCountsDownFromWhereTheCommandLeftIt) {
    UndoBench t;
    const IFSFunction before = t.map(1);
    StretchShearMap(t.wb, {150, 100, 0, 0});
    t.undo();
    EXPECT_EQ(t.map(1), before);
    EXPECT_EQ(t.caption(), "&Redo Stretch/Shear");
    EXPECT_EQ(t.wb.ChangeCount, -1);
    t.undo();
    EXPECT_EQ(t.caption(), "&Undo Stretch/Shear");
    EXPECT_EQ(t.wb.ChangeCount, 0);
}

TEST(Undo, ShearRowsRestoreOriginalAndResult) {
    UndoBench t;
    SaveOriginalIFS(t.wb);
    const BoundingBox box = MapBoundingBox(t.wb.CurrentIFS, 1, t.wb.InitialPolygon);
    const GestureStep s = ComputeMouseShear(t.wb.OriginalMap, box, 8, 1, 0.4f);
    StoreCoefficients(t.wb.CurrentIFS, 1, s.map);
    t.wb.ResultMap = s.map;
    SetUndoCaption(t.wb, UndoShearCaption);
    CommitUndo(t.wb);
    t.undo();
    EXPECT_EQ(t.map(1), SierpinskiTriangleIFS().function(1));
    EXPECT_EQ(t.caption(), "&Redo Shear");
    t.undo();
    EXPECT_EQ(t.map(1).c, s.map.c);
    EXPECT_EQ(t.caption(), "&Undo Shear");
}

TEST(Undo, ReflectionIsUndoneByReflectingAboutThePresentBox) {
    UndoBench t;
    t.wb.CurrentIFS.b[1] = 0.3f;
    t.wb.CurrentIFS.e[1] = 0.1f;
    FlipPoly(t.wb, -1);
    const IFSFunction flipped = t.map(1);
    const BoundingBox box = MapBoundingBox(t.wb.CurrentIFS, 1, t.wb.InitialPolygon);
    t.undo();
    EXPECT_EQ(t.map(1), ReflectMap(flipped, -1, (box.xmin + box.xmax) / 2, (box.ymin + box.ymax) / 2));
    EXPECT_EQ(t.caption(), "&Redo Reflection");
    EXPECT_EQ(t.wb.ChangeCount, 0);
    t.undo();
    EXPECT_EQ(t.caption(), "&Undo Reflection");
    EXPECT_EQ(t.wb.ChangeCount, 1);
}

TEST(Undo, NewUndoneAndRedoneComesBackInTheSamePlace) {
    UndoBench t;
    mnuDesignNew_Click(t.wb, t.host);
    const IFSFunction added = t.map(3);
    EXPECT_EQ(t.undo().kind, UndoKind::Functions);
    EXPECT_EQ(t.wb.CurrentIFS.nMaps, 3);
    EXPECT_EQ(t.caption(), "&Redo New Transformation");
    EXPECT_EQ(t.wb.ChangeCount, 0);
    t.undo();
    EXPECT_EQ(t.wb.CurrentIFS.nMaps, 4);
    EXPECT_EQ(t.map(3).e, added.e);
    EXPECT_EQ(t.map(3).f, added.f);
    EXPECT_EQ(t.wb.SelectedMap, 3);
    EXPECT_EQ(t.caption(), "&Undo New Transformation");
    EXPECT_EQ(t.wb.ChangeCount, 1);
}

TEST(Undo, UndoOfADuplicateThatLeavesOneFunctionDisablesClear) {
    UndoBench t;
    t.wb.CurrentIFS.nMaps = 1;
    t.wb.txtMaps = "1";
    t.wb.SelectedMap = 0;
    mnuDesignDuplicate_Click(t.wb, t.host);
    EXPECT_EQ(t.wb.CurrentIFS.nMaps, 2);
    t.undo();
    EXPECT_EQ(t.wb.CurrentIFS.nMaps, 1);
    EXPECT_EQ(t.caption(), "&Redo Duplicate");
    EXPECT_FALSE(t.wb.menu("mnuDesignClear").enabled);
    EXPECT_FALSE(t.wb.menu(DesignToolbarKey(3)).enabled);
    t.undo();
    EXPECT_EQ(t.wb.CurrentIFS.nMaps, 2);
    EXPECT_EQ(t.caption(), "&Undo Duplicate");
}

TEST(Undo, AfterUndoClearTheSelectionIsTheClearedFunctionInItsOldPlace) {
    UndoBench t;
    const IFSEntry before = t.wb.CurrentIFS;
    mnuDesignClear_Click(t.wb, t.host);
    EXPECT_FALSE(t.wb.MapSelected);
    EXPECT_EQ(t.undo().kind, UndoKind::Functions);
    EXPECT_EQ(t.wb.CurrentIFS, before);
    EXPECT_EQ(t.wb.SelectedMap, 1);
    EXPECT_TRUE(t.wb.MapSelected);
    EXPECT_EQ(t.caption(), "&Undo");
    EXPECT_FALSE(t.wb.menu("mnuUndo").enabled);
    EXPECT_EQ(t.wb.ChangeCount, 0);
    EXPECT_EQ(t.wb.FunctionsCaption, "IFS [Tri]");
    EXPECT_EQ(t.wb.txtMaps, "3");
    EXPECT_EQ(t.wb.Table.text(5, 2), "0.250");
    EXPECT_EQ(t.wb.lblProbSum, "1.000");
    EXPECT_EQ(t.designScales, 1);  // both windows refit
    EXPECT_TRUE(t.wb.menu("mnuDesignClear").enabled);
}

TEST(Undo, UndoClearFromTheMenuKeepsTheRotatedColours) {
    UndoBench t;
    const Color c0 = t.wb.FunctionColor[0], c1 = t.wb.FunctionColor[1], c2 = t.wb.FunctionColor[2];
    t.wb.SelectedMap = 0;
    mnuDesignClear_Click(t.wb, t.host);
    t.undo();
    // The restored function 0 has the colour the rotation gave it.
    EXPECT_EQ(t.wb.FunctionColor[0], c1);
    EXPECT_EQ(t.wb.FunctionColor[1], c2);
    EXPECT_EQ(t.wb.FunctionColor[2], c0);
}

TEST(Undo, UndoClearOfAGeneratorPutsTheColoursBack) {
    UndoBench t;
    const Color c0 = t.wb.FunctionColor[0], c1 = t.wb.FunctionColor[1], c2 = t.wb.FunctionColor[2];
    ClearMap(t.wb, t.host, 0);
    UndoClear(t.wb, t.host, t.pics, t.hooks, 0);
    EXPECT_EQ(t.wb.FunctionColor[0], c0);
    EXPECT_EQ(t.wb.FunctionColor[1], c1);
    EXPECT_EQ(t.wb.FunctionColor[2], c2);
    EXPECT_EQ(t.wb.SelectedMap, 0);
}

TEST(Undo, TextEntryGoesToTheTablesUndoWithoutRedo) {
    UndoBench t;
    BoxGotFocus(t.wb, 1, 2);
    t.wb.Table.text(1, 2) = "0.7";
    ASSERT_TRUE(HandleTextBoxChange(t.wb, 1, 2));
    EXPECT_EQ(t.caption(), "&Undo Text Entry");
    const UndoResult r = t.undo();
    EXPECT_EQ(r.kind, UndoKind::TextEntry);
    ASSERT_TRUE(r.box);
    EXPECT_EQ(r.box->column, 1);
    EXPECT_EQ(r.box->row, 2);
    EXPECT_EQ(t.map(2).a, 0.5f);
    EXPECT_EQ(t.caption(), "&Undo");
    EXPECT_FALSE(t.wb.menu("mnuUndo").enabled);
    EXPECT_EQ(t.wb.ChangeCount, 0);
}

TEST(Undo, DesignZoomUndoCallsTheWindowAndResetsWithoutCounting) {
    UndoBench t;
    SetUndoCaption(t.wb, UndoZoomCaption);
    OfferUndo(t.wb);
    t.wb.ZoomUndoSource = 0;
    EXPECT_EQ(t.undo().kind, UndoKind::Zoom);
    EXPECT_EQ(t.designZoomUndos, 1);
    EXPECT_EQ(t.caption(), "&Undo");
    EXPECT_FALSE(t.wb.menu("mnuUndo").enabled);
    EXPECT_EQ(t.wb.ChangeCount, 0);
}

TEST(Undo, TheRedoZoomCaptionZoomsTheDesignOutOnlyWhenItZoomedLast) {
    UndoBench t;
    SetUndoCaption(t.wb, "&Redo Zoom");  // matched without regard to case
    OfferUndo(t.wb);
    t.wb.ZoomUndoSource = 0;
    EXPECT_EQ(t.undo().kind, UndoKind::Zoom);
    EXPECT_EQ(t.designZoomOuts, 1);
    t.wb.ZoomUndoSource = 1;
    const WorldWindow window = t.wb.Window;
    EXPECT_EQ(t.undo().kind, UndoKind::None);
    EXPECT_EQ(t.designZoomOuts, 1);
    EXPECT_EQ(t.wb.Window, window);
}

TEST(Undo, TheRedoTextEntryCaptionKeepsTheTableAsItIs) {
    UndoBench t;
    SetUndoCaption(t.wb, RedoTextEntryCaption);
    OfferUndo(t.wb);
    const IFSEntry before = t.wb.CurrentIFS;
    const std::string box = t.wb.Table.text(1, 1);
    EXPECT_EQ(t.undo().kind, UndoKind::None);
    EXPECT_EQ(t.wb.CurrentIFS, before);
    EXPECT_EQ(t.wb.Table.text(1, 1), box);
    EXPECT_EQ(t.wb.ChangeCount, 0);
}

TEST(Undo, FractalZoomUndoPutsTheFractalWindowBack) {
    UndoBench t;
    t.wb.Window = {-1, 1, -1, 1};
    t.wb.UndoWindow = {-2, 2, -2, 2};
    SetUndoCaption(t.wb, UndoZoomCaption);
    OfferUndo(t.wb);
    t.wb.ZoomUndoSource = 1;
    EXPECT_EQ(t.undo().kind, UndoKind::Zoom);
    EXPECT_EQ(t.wb.Window, (WorldWindow{-2, 2, -2, 2}));
    EXPECT_EQ(t.designZoomUndos, 0);
    EXPECT_EQ(t.caption(), "&Undo");
}

TEST(Undo, UnknownCaptionOrARunningDrawingDoesNothing) {
    UndoBench t;
    SetUndoCaption(t.wb, "&Undo Something Else");
    OfferUndo(t.wb);
    const IFSEntry before = t.wb.CurrentIFS;
    EXPECT_EQ(t.undo().kind, UndoKind::None);
    EXPECT_EQ(t.caption(), "&Undo Something Else");
    t.resizeGesture(0.9f, 0.9f);
    t.wb.DrawingActive = true;
    EXPECT_EQ(t.undo().kind, UndoKind::None);
    EXPECT_EQ(t.caption(), "&Undo Resize");
    EXPECT_NE(t.wb.CurrentIFS, before);
}

TEST(Undo, AnUnchangedRotationStepStillCommitsAndUndoes) {
    UndoBench t;
    // Press with Ctrl on a corner: the original is saved and Rotating set; release commits.
    SaveOriginalIFS(t.wb);
    t.wb.ResultMap = t.wb.OriginalMap;
    SetUndoCaption(t.wb, UndoRotationCaption);
    CommitUndo(t.wb);
    EXPECT_EQ(t.wb.ChangeCount, 1);
    EXPECT_TRUE(t.wb.menu("mnuUndo").enabled);
    t.undo();
    EXPECT_EQ(t.map(1), SierpinskiTriangleIFS().function(1));
    EXPECT_EQ(t.caption(), "&Redo Rotation");
}

}  // namespace
}  // namespace quillane
