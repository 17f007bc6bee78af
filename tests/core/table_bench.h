#pragma once
// A function table without a window: a workbench whose boxes show a given IFS.
#include <string>

#include "core/function_table.h"
#include "core/ifs_entry.h"
#include "core/menu_tree.h"
#include "core/workbench.h"

namespace quillane {

inline Workbench tableWith(const IFSEntry& ifs) {
    Workbench wb;
    InitializeMenuState(wb.Menu);
    wb.CurrentIFS = ifs;
    wb.txtMaps = std::to_string(ifs.nMaps);
    wb.FunctionsCaption = FunctionsCaptionFor(ifs.Name);
    WriteTableRows(wb);
    return wb;
}

// One function with the matrix (a b / c d), no translation, p 1.
inline IFSEntry oneMap(float a, float b, float c, float d) {
    IFSEntry ifs = DefaultIFS();
    ifs.a[0] = a;
    ifs.b[0] = b;
    ifs.c[0] = c;
    ifs.d[0] = d;
    return ifs;
}

// n copies of the default function.
inline IFSEntry copiesOfDefault(int n) {
    IFSEntry ifs = DefaultIFS();
    const IFSFunction fn = ifs.function(0);
    for (int i = 0; i < n; ++i) ifs.setFunction(i, fn);
    ifs.nMaps = static_cast<int16_t>(n);
    return ifs;
}

// Types `text` into box (column, row) as the window does: the box's text is replaced.
inline void typeInto(Workbench& wb, int column, int row, const std::string& text) {
    wb.Table.text(column, row) = text;
}

}  // namespace quillane
