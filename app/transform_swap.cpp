#include "app/transform_swap.h"

#include <utility>

#include "core/function_table.h"
#include "app/fractal_view.h"

namespace quillane {

namespace {

void swapSlots(MapArray& v, int i, int j) {
    std::swap(v[static_cast<size_t>(i)], v[static_cast<size_t>(j)]);
}

void swapFunctions(Workbench& wb, int i, int j) {
    IFSEntry& ifs = wb.CurrentIFS;
    for (MapArray* v : {&ifs.a, &ifs.b, &ifs.c, &ifs.d, &ifs.e, &ifs.f, &ifs.p}) swapSlots(*v, i, j);
    if (wb.DesignMode == 1) {
        for (int k = 1; k <= 4; ++k) std::swap(ifs.Step[k][static_cast<size_t>(i)], ifs.Step[k][static_cast<size_t>(j)]);
        for (MapArray* v : {&ifs.Scale, &ifs.Angle, &ifs.Prob, &ifs.FPx, &ifs.FPy}) swapSlots(*v, i, j);
    }
    WriteTableRow(wb, i);
    WriteTableRow(wb, j);
}

Color& colorOf(Workbench& wb, int i) {
    return wb.FunctionColor[static_cast<size_t>(i)];
}

}  // namespace

SwapDialog OpenSwapDialog(const Workbench& wb) {
    SwapDialog d;
    d.copy = wb.CurrentIFS;
    d.cmbList1 = 1;
    d.cmbList2 = wb.CurrentIFS.nMaps > 1 ? 2 : 1;
    d.shown1 = d.cmbList1;
    d.shown2 = d.cmbList2;
    d.color1 = wb.FunctionColor[static_cast<size_t>(d.shown1 - 1)];
    d.color2 = wb.FunctionColor[static_cast<size_t>(d.shown2 - 1)];
    return d;
}

void cmdSwap_Click(Workbench& wb, SwapDialog& dialog, SwapKind kind) {
    const int i = dialog.cmbList1 - 1, j = dialog.cmbList2 - 1;
    if (kind != SwapKind::ColorsOnly) swapFunctions(wb, i, j);
    if (kind != SwapKind::IFSOnly) std::swap(colorOf(wb, i), colorOf(wb, j));
    dialog.swapped = true;
}

void SwapDialogClose(Workbench& wb, const SwapDialog& dialog) {
    if (!dialog.swapped) return;
    CountEdit(wb);
    ResetUndoMenu(wb);
}

void SwapDialogCancel(Workbench& wb, const SwapDialog& dialog) {
    wb.CurrentIFS = dialog.copy;
    colorOf(wb, dialog.shown1 - 1) = dialog.color1;
    colorOf(wb, dialog.shown2 - 1) = dialog.color2;
    // Whichever pair was swapped last, every row shows the copy again.
    WriteTableRows(wb);
}

}  // namespace quillane
