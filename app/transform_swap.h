#pragma once
// frmSwap: exchanging two functions, their colours, or both. A swap cannot be undone through Undo;
// Cancel puts back what the dialog copied on opening.
#include "core/colors.h"
#include "core/workbench.h"

namespace quillane {

// OptSwap's choices, in their order.
enum class SwapKind { IFSAndColors = 0, ColorsOnly = 1, IFSOnly = 2 };

struct SwapDialog {
    IFSEntry copy;         // CurrentIFS on opening
    int cmbList1 = 1;      // 1-based, as the combo boxes show
    int cmbList2 = 2;
    int shown1 = 1, shown2 = 2;  // the functions whose colours were copied
    Color color1 = Black, color2 = Black;
    bool swapped = false;
};

// The dialog as it opens: 1 and 2 shown, or 1 and 1 with one function.
SwapDialog OpenSwapDialog(const Workbench& wb);
// cmdSwap: exchanges cmbList1 and cmbList2; the table rows follow. The caller redraws.
void cmdSwap_Click(Workbench& wb, SwapDialog& dialog, SwapKind kind);
// cmdClose and the close box: a swap counts one edit and resets the undo menu.
void SwapDialogClose(Workbench& wb, const SwapDialog& dialog);
// cmdCancel: CurrentIFS and the two colours back, both rows rewritten.
void SwapDialogCancel(Workbench& wb, const SwapDialog& dialog);

}  // namespace quillane
