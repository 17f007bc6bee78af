#include "core/chaos_game.h"
#include "app/transform_commands.h"
#include "app/transform_count_commands.h"
#include "app/undo.h"
#include "render/fractal_pictures.h"
#include "tests/app/chaos_fixture.h"

namespace quillane::testing {
namespace {

class ChaosUndo : public ChaosTest {
  protected:
    UndoKind undo() {
        FractalPictures pics;
        return mnuUndo_Click(wb, host, pics, DesignHooks{}).kind;
    }
    std::string caption() const { return wb.menu("mnuUndo").caption; }
};

TEST_F(ChaosUndo, NewIsUndoneAndRedoneInItsPlace) {
    mnuDesignNew_Click(wb, host);
    ASSERT_EQ(wb.CurrentIFS.nMaps, 2);
    const float x = wb.CurrentIFS.FPx[1], y = wb.CurrentIFS.FPy[1];
    EXPECT_EQ(caption(), "&Undo New Transformation");
    EXPECT_EQ(wb.ChangeCount, 1);
    EXPECT_EQ(undo(), UndoKind::Functions);
    EXPECT_EQ(wb.CurrentIFS.nMaps, 1);
    EXPECT_EQ(caption(), "&Redo New Transformation");
    EXPECT_EQ(wb.ChangeCount, 0);
    EXPECT_FALSE(wb.menu("mnuDesignClear").enabled);
    undo();
    ASSERT_EQ(wb.CurrentIFS.nMaps, 2);
    EXPECT_FLOAT_EQ(wb.CurrentIFS.FPx[1], x);
    EXPECT_FLOAT_EQ(wb.CurrentIFS.FPy[1], y);
    EXPECT_EQ(caption(), "&Undo New Transformation");
    EXPECT_EQ(wb.ChangeCount, 1);
}

TEST_F(ChaosUndo, DuplicateIsUndoneAndRedone) {
    setPoint(0, 0.3f, 0.3f, "SH", 0.7f);
    wb.CGMapSelected = true;
    mnuDesignDuplicate_Click(wb, host);
    undo();
    EXPECT_EQ(wb.CurrentIFS.nMaps, 1);
    EXPECT_EQ(caption(), "&Redo Duplicate");
    undo();
    ASSERT_EQ(wb.CurrentIFS.nMaps, 2);
    EXPECT_EQ(steps(1), "SH..");
    EXPECT_EQ(caption(), "&Undo Duplicate");
}

TEST_F(ChaosUndo, UndoClearSelectsTheClearedFunctionInItsOldPlace) {
    setPoint(1, 0.5f, 0.9f, "SV");
    setPoint(2, 0.9f, 0.1f, "S");
    wb.SelectedMap = 1;
    wb.CGMapSelected = true;
    mnuDesignClear_Click(wb, host);
    ASSERT_EQ(wb.CurrentIFS.nMaps, 2);
    EXPECT_EQ(caption(), "&Undo Clear");
    EXPECT_EQ(undo(), UndoKind::Functions);
    ASSERT_EQ(wb.CurrentIFS.nMaps, 3);
    EXPECT_EQ(steps(1), "SV..");
    EXPECT_EQ(wb.SelectedMap, 1);
    EXPECT_TRUE(wb.CGMapSelected);
    EXPECT_EQ(wb.Table.text(2, 1), "V");
    EXPECT_EQ(caption(), "&Undo");
    EXPECT_FALSE(wb.menu("mnuUndo").enabled);
    EXPECT_EQ(wb.ChangeCount, 0);
}

TEST_F(ChaosUndo, RotationUndoThenAnotherUndoIsARedo) {
    wb.CGMapSelected = true;
    RotateCGDesign(wb, 90);
    EXPECT_EQ(undo(), UndoKind::Map);
    EXPECT_EQ(steps(0), "S...");
    EXPECT_FLOAT_EQ(wb.CurrentIFS.Angle[0], 0);
    EXPECT_FLOAT_EQ(wb.CurrentIFS.c[0], 0);
    EXPECT_EQ(caption(), "&Redo Rotation");
    undo();
    EXPECT_EQ(steps(0), "SR..");
    EXPECT_FLOAT_EQ(wb.CurrentIFS.Angle[0], 90);
    EXPECT_EQ(wb.Table.text(2, 0), "R");
    EXPECT_EQ(caption(), "&Undo Rotation");
}

TEST_F(ChaosUndo, ReflectionIsUndoneByItsLetters) {
    wb.CGMapSelected = true;
    mnuDesignFlipVert_Click(wb);
    EXPECT_FLOAT_EQ(wb.CurrentIFS.d[0], -0.5f);
    undo();
    EXPECT_EQ(steps(0), "S...");
    EXPECT_FLOAT_EQ(wb.CurrentIFS.d[0], 0.5f);
    EXPECT_EQ(caption(), "&Redo Reflection");
    undo();
    EXPECT_EQ(steps(0), "SV..");
    EXPECT_EQ(caption(), "&Undo Reflection");
}

TEST_F(ChaosUndo, ScaleRowPutsBackScaleAndAngle) {
    wb.CGMapSelected = true;
    wb.OriginalMap.e = 0.3f;
    wb.OriginalMap.f = 0;
    wb.ResultMap.e = 0.5f;
    SetUndoCaption(wb, UndoScaleCaption);
    OfferUndo(wb);
    undo();
    EXPECT_FLOAT_EQ(wb.CurrentIFS.Scale[0], 0.3f);
    EXPECT_FLOAT_EQ(wb.CurrentIFS.a[0], 0.3f);
    EXPECT_EQ(steps(0), "S...");
    EXPECT_EQ(caption(), "&Redo Scale");
    undo();
    EXPECT_FLOAT_EQ(wb.CurrentIFS.a[0], 0.5f);
}

TEST_F(ChaosUndo, IFSOnlyRowsDoNothingInChaosGameMode) {
    SetUndoCaption(wb, UndoResizeCaption);
    OfferUndo(wb);
    EXPECT_EQ(undo(), UndoKind::None);
    EXPECT_EQ(caption(), "&Undo Resize");
}

}  // namespace
}  // namespace quillane::testing
