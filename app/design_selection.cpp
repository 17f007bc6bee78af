#include "app/design_selection.h"

#include "core/function_table.h"
#include "core/menu_tree.h"
#include "core/undo_menu.h"
#include "design/design_drawing.h"

namespace quillane {

void DrawSelectedIFS(Workbench& wb, DesignPictures& d, int i, bool Preview) {
    if (i != wb.SelectedMap) ResetUndoMenu(wb);
    DrawDesign(wb, d, Preview);
    wb.MapSelected = true;
    AdjustDesignMenu(wb, true);
    wb.SelectedMap = static_cast<int16_t>(i);
    BoundingBoxes(wb, d, i);
    DrawIFS(wb, d, i, 3);
    DrawBoundingBox(wb, d, i, HandleSize);
}

void AdjustDesignMenu(Workbench& wb, bool Enabled) {
    if (wb.DesignMode == 1 && (wb.CodeForm == 0 || wb.CodeForm == 1)) Enabled = false;
    for (const char* key : {"mnuDesignScale", "mnuDesignRotate", "mnuDesignFlipHor", "mnuDesignFlipVert",
                            "mnuDesignDuplicate", "mnuDesignClear"})
        wb.Menu.setEnabled(key, Enabled);
    for (int button = 2; button <= 7; ++button) wb.Menu.setEnabled(DesignToolbarKey(button), Enabled);
    wb.Menu.setEnabled("mnuDesignStretch", Enabled && wb.DesignMode != 1);
    if (wb.CurrentIFS.nMaps <= 1) {
        wb.Menu.setEnabled("mnuDesignClear", false);
        wb.Menu.setEnabled(DesignToolbarKey(3), false);
    }
}

void RefreshFunctions(Workbench& wb) {
    WriteTableRow(wb, wb.SelectedMap);
}

}  // namespace quillane
