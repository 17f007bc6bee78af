#include "app/transform_count_commands.h"

#include "core/chaos_game.h"
#include "core/function_forms.h"
#include "core/function_table.h"
#include "app/chaos_design.h"
#include "design/design_drawing.h"
#include "app/design_selection.h"

namespace quillane {

namespace {

// A place at 10% to 50% of the span from its low end.
float randomPlace(Workbench& wb, float lo, float hi) {
    const float r = static_cast<float>(wb.Rng.Rnd()) * 0.8f + 0.2f;
    return (hi - lo) * r / 2 + lo;
}

// The slot after the last function gets a matrix and the place kept in OriginalMap; p = 0, then the
// probabilities follow the areas and the new function is the selection.
void addFunction(Workbench& wb, Host& host, float a, float b, float c, float d) {
    IFSEntry& ifs = wb.CurrentIFS;
    const int i = ifs.nMaps;
    SetUpFunctions(wb, host, i + 1);
    ifs.nMaps = static_cast<int16_t>(i + 1);
    ifs.a[i] = a;
    ifs.b[i] = b;
    ifs.c[i] = c;
    ifs.d[i] = d;
    ifs.e[i] = wb.OriginalMap.e;
    ifs.f[i] = wb.OriginalMap.f;
    ifs.p[i] = 0;
    PropProb(wb);
    WriteTableRow(wb, i);
    WriteProbabilityTexts(wb);
    wb.MapSelected = true;
    AdjustDesignMenu(wb, true);
    wb.SelectedMap = static_cast<int16_t>(i);
}

bool idle(const Workbench& wb) {
    return !wb.DrawingActive && wb.DesignMode == 0;
}

}  // namespace

void PlaceNewFunction(Workbench& wb) {
    const WorldWindow& w = wb.DesignWindow;
    wb.OriginalMap.e = randomPlace(wb, w.xmin, w.xmax);
    wb.OriginalMap.f = randomPlace(wb, w.ymin, w.ymax);
}

void NewDesignPoly(Workbench& wb, Host& host, bool Random) {
    if (Random) PlaceNewFunction(wb);
    addFunction(wb, host, 0.5f, 0, 0, 0.5f);
}

void DuplicateMap(Workbench& wb, Host& host, bool Random) {
    const IFSEntry& ifs = wb.CurrentIFS;
    const int s = wb.SelectedMap;
    if (Random) {
        const WorldWindow& w = wb.DesignWindow;
        const float r = static_cast<float>(wb.Rng.Rnd()) * 0.8f + 0.2f;
        wb.OriginalMap.e = (w.xmax - w.xmin) * r / 2 + w.xmin;
        wb.OriginalMap.f = (w.ymax - w.ymin) * r / 2 + w.ymin;
    }
    addFunction(wb, host, ifs.a[s], ifs.b[s], ifs.c[s], ifs.d[s]);
}

void ClearMap(Workbench& wb, Host& host, int k) {
    IFSEntry& ifs = wb.CurrentIFS;
    wb.SavedIFS = ifs;
    const Color removed = wb.FunctionColor[static_cast<size_t>(k)];
    SetUpFunctions(wb, host, ifs.nMaps - 1);
    --ifs.nMaps;
    for (int i = k; i < ifs.nMaps; ++i) {
        IFSFunction next = ifs.function(i);
        const IFSFunction from = ifs.function(i + 1);
        next.a = from.a, next.b = from.b, next.c = from.c, next.d = from.d;
        next.e = from.e, next.f = from.f, next.p = from.p;
        ifs.setFunction(i, next);
        WriteTableRow(wb, i);
        wb.FunctionColor[static_cast<size_t>(i)] = wb.FunctionColor[static_cast<size_t>(i) + 1];
    }
    PropProb(wb);
    WriteProbabilityTexts(wb);
    // Colours rotate: none is lost.
    wb.FunctionColor[static_cast<size_t>(ifs.nMaps)] = removed;
    wb.MapSelected = false;
    AdjustDesignMenu(wb, false);
    wb.ClearedMap = static_cast<int16_t>(k);
    if (ifs.nMaps == 1) {
        wb.Menu.setEnabled("mnuDesignClear", false);
        wb.Menu.setEnabled(DesignToolbarKey(3), false);
    }
}

void mnuDesignNew_Click(Workbench& wb, Host& host) {
    if (wb.DesignMode == 1) return CGDesignNew(wb, host);
    if (!idle(wb)) return;
    NewDesignPoly(wb, host, true);
    CommitCommand(wb, UndoNewCaption);
}

void mnuDesignDuplicate_Click(Workbench& wb, Host& host) {
    if (wb.DesignMode == 1) return CGDesignDuplicate(wb, host);
    if (!idle(wb) || !wb.MapSelected) return;
    DuplicateMap(wb, host, true);
    CommitCommand(wb, UndoDuplicateCaption);
}

void mnuDesignClear_Click(Workbench& wb, Host& host) {
    if (wb.DesignMode == 1) return CGDesignClear(wb, host);
    if (!idle(wb) || !wb.MapSelected || wb.CurrentIFS.nMaps <= 1) return;
    ClearMap(wb, host, wb.SelectedMap);
    CommitCommand(wb, UndoClearCaption);
}

}  // namespace quillane
