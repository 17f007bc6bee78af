#include "core/undo_menu.h"

namespace quillane {

void ResetUndoMenu(Workbench& wb) {
    wb.Menu.setCaption("mnuUndo", UndoCaption);
    wb.Menu.setEnabled("mnuUndo", false);
    wb.Menu.setEnabled(UndoToolButton, false);
}

}  // namespace quillane
