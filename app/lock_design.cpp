#include "app/lock_design.h"

#include "app/design_selection.h"
#include "core/function_forms.h"
#include "core/menu_tree.h"
#include "core/table_editing.h"
#include "core/undo_menu.h"
#include "design/design_drawing.h"

namespace quillane {
namespace {

constexpr const char* LockedItems[] = {"mnuDesignDuplicate", "mnuDesignScale",   "mnuDesignRotate",
                                       "mnuDesignStretch",   "mnuDesignFlipHor", "mnuDesignFlipVert",
                                       "mnuDesignSwap",      "mnuDesignNew"};

bool endsLocked(const std::string& caption) {
    const std::string mark = "LOCKED";
    return caption.size() >= mark.size() &&
           caption.compare(caption.size() - mark.size(), mark.size(), mark) == 0;
}

}  // namespace

void StatusFrmScaleCGControls(Workbench& wb, bool Enabled) {
    wb.ScaleCG.ControlsEnabled = Enabled;
}

void LockDesign(Workbench& wb, DesignPictures& d) {
    if (!endsLocked(wb.FunctionsCaption)) {
        wb.DesignLock.UndoEnabled = wb.menu("mnuUndo").enabled;
        wb.DesignLock.UndoCaption = wb.menu("mnuUndo").caption;
        ResetUndoMenu(wb);
    }
    wb.DesignLock.Locked = true;
    StatusFrmScaleCGControls(wb, false);
    wb.ScaleCGCaption = LockedScaleCGCaption;
    for (const char* key : LockedItems) wb.Menu.setEnabled(key, false);
    if (wb.CurrentIFS.nMaps > 1) wb.Menu.setEnabled("mnuDesignClear", false);
    wb.Table.AllLocked = true;
    if (!endsLocked(wb.FunctionsCaption)) wb.FunctionsCaption += LockedSuffix;
    wb.DesignCaption = LockedDesignCaption;
    DrawDesign(wb, d, false);
    wb.MapSelected = wb.CGMapSelected;
    if (wb.MapSelected && wb.SelectedMap < wb.CurrentIFS.nMaps) DrawSelectedIFS(wb, d, wb.SelectedMap, false);
}

void UnlockDesign(Workbench& wb) {
    if (!wb.DesignLock.Locked) return;
    wb.DesignLock.Locked = false;
    StatusFrmScaleCGControls(wb, true);
    wb.ScaleCGCaption = ScaleCGWindowCaption;
    for (const char* key : LockedItems) wb.Menu.setEnabled(key, true);
    wb.Menu.setEnabled("mnuDesignClear", true);
    wb.Table.AllLocked = false;
    std::string& caption = wb.FunctionsCaption;
    const std::string suffix = LockedSuffix;
    if (endsLocked(caption) && caption.size() >= suffix.size()) caption.erase(caption.size() - suffix.size());
    wb.Menu.setCaption("mnuUndo", wb.DesignLock.UndoCaption);
    wb.Menu.setEnabled("mnuUndo", wb.DesignLock.UndoEnabled);
    wb.Menu.setEnabled(UndoToolButton, wb.DesignLock.UndoEnabled);
}

void ChangeFunctionForm(Workbench& wb, DesignPictures& d, const std::function<void()>& change) {
    const bool wasChaosGame = wb.DesignMode == 1 || wb.DesignLock.Locked;
    change();
    if (wb.CodeForm == 2) {
        UnlockDesign(wb);
        return;
    }
    if (wasChaosGame && wb.CurrentIFS.HasChaosGame != False16) LockDesign(wb, d);
}

}  // namespace quillane
