#include "render/list_entry_commands.h"

#include "core/fractal_list.h"
#include "core/startup.h"
#include "render/fractal_view.h"
#include "render/scale.h"

namespace quillane {

bool mnuNamesEntry_Click(Workbench& wb, FractalPictures& pics, Host& host, int index) {
    wb.DrawingActive = false;
    const int n = index - 4;
    if (n < 1 || n > wb.ListCount()) return false;
    if (NeedsSave(wb) && !CheckSave(wb, host)) return false;
    if (!TakeListEntry(wb, host, n)) return false;
    wb.MapSelected = false;
    ResetUndoMenu(wb);
    wb.RecursionOff.fill(false);
    wb.TableRecursionFlags.fill(false);
    wb.Menu.setEnabled("mnuDrawType(0)", true);
    wb.Menu.setEnabled("mnuDrawType(1)", true);
    // A freshly taken entry carries no edits.
    wb.IFSModified = false;
    wb.ChangeCount = 0;
    wb.DrawingStarted = false;
    setscale(wb, host, true, &pics);
    return true;
}

}  // namespace quillane
