#include "app/list_entry_commands.h"

#include "app/file_commands.h"
#include "app/lock_design.h"
#include "core/fractal_list.h"
#include "core/function_table.h"
#include "app/startup.h"
#include "app/fractal_view.h"
#include "render/scale.h"

namespace quillane {

namespace {

// In chaos game mode the table stays in the fixed point form and the function chosen stays chosen.
void keepChaosGameSelection(Workbench& wb, int16_t map) {
    wb.CodeForm = 2;
    wb.SelectedMap = map < wb.CurrentIFS.nMaps ? map : 0;
    wb.SavedIFS = wb.CurrentIFS;
    wb.MapSelected = true;
    wb.CGMapSelected = true;
}

}  // namespace

void ShowTakenIFS(Workbench& wb, FractalPictures& pics, Host& host) {
    UnlockDesign(wb);
    ResetUndoMenu(wb);
    wb.RecursionOff.fill(false);
    wb.TableRecursionFlags.fill(false);
    wb.Menu.setEnabled("mnuDrawType(0)", true);
    wb.Menu.setEnabled("mnuDrawType(1)", true);
    // A freshly taken entry carries no edits.
    wb.IFSModified = false;
    wb.ChangeCount = 0;
    wb.DrawingStarted = false;
    CheckCodeFormMenu(wb);
    WriteTableRows(wb, RowTextSource::ListEntry);
    setscale(wb, host, true, &pics);
}

bool mnuNamesEntry_Click(Workbench& wb, FractalPictures& pics, Host& host, int index) {
    wb.DrawingActive = false;
    const int n = index - 4;
    if (n < 1 || n > wb.ListCount()) return false;
    if (!wb.menu(EntryKey(n)).enabled) return false;
    if (NeedsSave(wb) && !CheckSave(wb, host)) return false;
    const int16_t map = wb.SelectedMap;
    if (!TakeListEntry(wb, host, n)) return false;
    wb.MapSelected = false;
    if (wb.DesignMode == 1) keepChaosGameSelection(wb, map);
    ShowTakenIFS(wb, pics, host);
    return true;
}

bool mnuNewIFS_Click(Workbench& wb, FractalPictures& pics, Host& host) {
    if (!NewIFS(wb, host)) return false;
    UnlockDesign(wb);
    ResetUndoMenu(wb);
    wb.RecursionOff.fill(false);
    ClearImage(wb, pics, false);
    wb.DrawingStarted = false;
    return true;
}

}  // namespace quillane
