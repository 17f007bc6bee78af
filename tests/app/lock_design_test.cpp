#include "app/lock_design.h"

#include <gtest/gtest.h>

#include "app/code_commands.h"
#include "app/undo.h"
#include "core/chaos_game.h"
#include "core/function_forms.h"
#include "core/menu_tree.h"
#include "core/sample_systems.h"
#include "core/table_editing.h"
#include "tests/app/design_fixture.h"

namespace quillane::testing {
namespace {

// A chaos game shown in the fixed point form, with an undo pending.
class LockDesignTest : public DesignTest {
  protected:
    void SetUp() override {
        DesignTest::SetUp();
        wb.CurrentIFS = SierpinskiTriangleIFS();
        wb.CurrentIFS.HasChaosGame = True16;
        wb.FunctionsCaption = "IFS [Triangle]";
        mnuCodeFP_Click(wb);
        SetUndoCaption(wb, UndoMoveCaption);
        OfferUndo(wb);
    }
    void toMatrix() {
        ChangeFunctionForm(wb, d, [this] { mnuMatrix_Click(wb); });
    }
};

TEST_F(LockDesignTest, AChaosGameShownAsAnIFSIsLocked) {
    toMatrix();
    EXPECT_TRUE(wb.DesignLock.Locked);
    EXPECT_EQ(wb.DesignCaption, "Design (IFS) LOCKED");
    EXPECT_EQ(wb.FunctionsCaption, "IFS [Triangle] LOCKED");
    EXPECT_EQ(wb.ScaleCGCaption, "Chaos Game Design (LOCKED)");
    EXPECT_FALSE(wb.ScaleCG.ControlsEnabled);
    for (const char* key : {"mnuDesignDuplicate", "mnuDesignScale", "mnuDesignRotate", "mnuDesignFlipHor",
                            "mnuDesignFlipVert", "mnuDesignSwap", "mnuDesignNew", "mnuDesignClear"})
        EXPECT_FALSE(wb.menu(key).enabled) << key;
    for (int column = 1; column <= 9; ++column) EXPECT_TRUE(BoxLocked(wb, column)) << column;
}

TEST_F(LockDesignTest, UndoIsParkedAndComesBackWithTheFixedPointForm) {
    toMatrix();
    EXPECT_FALSE(wb.menu("mnuUndo").enabled);
    EXPECT_EQ(wb.menu("mnuUndo").caption, "&Undo");
    ChangeFunctionForm(wb, d, [this] { mnuCodeFP_Click(wb); });
    EXPECT_FALSE(wb.DesignLock.Locked);
    EXPECT_TRUE(wb.menu("mnuUndo").enabled);
    EXPECT_EQ(wb.menu("mnuUndo").caption, UndoMoveCaption);
    EXPECT_TRUE(wb.ScaleCG.ControlsEnabled);
    EXPECT_EQ(wb.ScaleCGCaption, "Chaos Game Design");
    EXPECT_FALSE(BoxLocked(wb, 7));
    EXPECT_TRUE(wb.menu("mnuDesignNew").enabled);
    EXPECT_EQ(wb.FunctionsCaption, "IFS [Triangle]");
}

TEST_F(LockDesignTest, ASecondFormChangeKeepsTheParkedUndo) {
    toMatrix();
    ChangeFunctionForm(wb, d, [this] { mnuRotation_Click(wb); });
    EXPECT_TRUE(wb.DesignLock.Locked);
    EXPECT_EQ(wb.FunctionsCaption, "IFS [Triangle] LOCKED");
    ChangeFunctionForm(wb, d, [this] { mnuCodeFP_Click(wb); });
    EXPECT_EQ(wb.menu("mnuUndo").caption, UndoMoveCaption);
}

TEST_F(LockDesignTest, ClearStaysForALoneFunction) {
    wb.CurrentIFS.nMaps = 1;
    wb.Menu.setEnabled("mnuDesignClear", true);
    toMatrix();
    EXPECT_TRUE(wb.menu("mnuDesignClear").enabled);
}

TEST_F(LockDesignTest, AnIFSWithoutRulesIsNotLocked) {
    wb.CurrentIFS.HasChaosGame = False16;
    toMatrix();
    EXPECT_FALSE(wb.DesignLock.Locked);
    EXPECT_EQ(wb.DesignCaption, DesignIFSCaption);
}

}  // namespace
}  // namespace quillane::testing
