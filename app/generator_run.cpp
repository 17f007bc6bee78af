#include "app/generator_run.h"

#include "app/design_view.h"
#include "app/deterministic_commands.h"
#include "app/fractal_view.h"
#include "app/startup.h"
#include "core/fractal_list.h"
#include "core/initial_polygons.h"
#include "core/numbers.h"
#include "core/table_editing.h"
#include "core/undo_menu.h"
#include "render/deterministic.h"

namespace quillane {
namespace {

constexpr int WindowItems = 22;

int checkedItem(const Workbench& wb, const char* name, int count) {
    for (int k = 0; k < count; ++k)
        if (wb.menu(MenuTable::key(name, k)).checked) return k;
    return -1;
}

void enableExamples(Workbench& wb, bool enabled) {
    for (int i = 0; i < GeneratorCount; ++i)
        wb.Menu.setEnabled(MenuTable::key("mnuDesignExample", i), enabled);
}

void restoreFigure(Workbench& wb, const GeneratorRun& run) {
    wb.InitialPolygon = run.SavedPolygon;
    for (int k = 0; k <= UserPolygonItem; ++k)
        wb.Menu.setChecked(MenuTable::key("mnupoly", k), k == run.SavedPolyItem);
    ResetDetFigure(wb, run.SavedDetFigure);
}

void restoreDrawingType(Workbench& wb, const GeneratorRun& run, Host& host, FractalPictures& pics) {
    wb.Menu.setEnabled("mnuDrawType(0)", true);
    wb.Menu.setEnabled("mnuDrawType(1)", true);
    if (wb.RandomMode != run.SavedRandomMode)
        mnuDrawType_Click(wb, pics, host, run.SavedRandomMode ? 0 : 1);
    else
        mnuCalcScale_Click(wb, pics, host);
}

}  // namespace

void ResetDesignExamples(Workbench& wb, GeneratorRun& run) {
    if (run.Index >= 0) GeneratorClose(wb, run);
}

bool mnuDesignExample_Click(Workbench& wb, GeneratorRun& run, Host& host, int index, bool LockDrawType) {
    if (index < 0 || index >= GeneratorCount) return false;
    if (NeedsSave(wb) && !CheckSave(wb, host)) return false;
    ResetDesignExamples(wb, run);
    enableExamples(wb, false);
    run.Index = index;
    run.SetupDone = false;
    run.KeepBuilt = false;
    wb.SavedIFS = wb.CurrentIFS;
    run.SavedIFS = wb.CurrentIFS;
    run.SavedPolygon = wb.InitialPolygon;
    run.SavedPolyItem = checkedItem(wb, "mnupoly", UserPolygonItem + 1);
    run.SavedModified = wb.IFSModified;
    run.SavedChangeCount = wb.ChangeCount;
    run.SavedDetFigure = wb.DetFigure;
    run.SavedRandomMode = wb.RandomMode;
    run.SavedColorItem = wb.menu(MenuTable::key("mnuDrawDetColorItems", 0)).checked ? 0 : 1;
    run.SavedMapSelected = wb.MapSelected;
    run.SavedSelectedMap = wb.SelectedMap;
    RecursionOff(wb);
    wb.RecursionOff.fill(false);
    run.DrawTypeLocked = LockDrawType;
    if (LockDrawType) {
        wb.Menu.setEnabled("mnuDrawType(0)", false);
        wb.Menu.setEnabled("mnuDrawType(1)", false);
    }
    const std::string item = MenuTable::key("mnuWin", GeneratorWindowItem[static_cast<size_t>(index)]);
    wb.Menu.setVisible(item, true);
    CheckGeneratorWindowItem(wb, run);
    return true;
}

void GeneratorBuilt(GeneratorRun& run) {
    run.SetupDone = true;
}

void KeepGeneratorBuild(GeneratorRun& run) {
    if (run.Index >= 0 && run.SetupDone) run.KeepBuilt = true;
}

void CheckGeneratorWindowItem(Workbench& wb, const GeneratorRun& run) {
    if (run.Index < 0) return;
    const int mine = GeneratorWindowItem[static_cast<size_t>(run.Index)];
    for (int k = 0; k < WindowItems; ++k) wb.Menu.setChecked(MenuTable::key("mnuWin", k), k == mine);
}

void GeneratorClose(Workbench& wb, GeneratorRun& run) {
    if (run.Index < 0) return;
    const std::string item = MenuTable::key("mnuWin", GeneratorWindowItem[static_cast<size_t>(run.Index)]);
    wb.Menu.setChecked(item, false);
    wb.Menu.setVisible(item, false);
    if (run.DrawTypeLocked) {
        wb.Menu.setEnabled("mnuDrawType(0)", true);
        wb.Menu.setEnabled("mnuDrawType(1)", true);
    }
    run.DrawTypeLocked = false;
    run.Index = -1;
    run.SetupDone = false;
    run.KeepBuilt = false;
    enableExamples(wb, true);
}

void GeneratorCancel(Workbench& wb, GeneratorRun& run, Host& host, FractalPictures& pics,
                     DesignPictures& design) {
    if (run.Index < 0) return;
    if (run.SetupDone && !run.KeepBuilt) {
        restoreFigure(wb, run);
        wb.IFSModified = run.SavedModified;
        wb.ChangeCount = run.SavedChangeCount;
        wb.SavedIFS = run.SavedIFS;
        DesignHooks hooks;
        hooks.DesignScale = [&] { DesignScale(wb, design); };
        UndoClear(wb, host, pics, hooks, -1);
        wb.txtMaps = std::to_string(wb.CurrentIFS.nMaps);
        wb.lblComment = wb.CurrentIFS.nComments >= 1 ? RTrim(wb.CurrentIFS.Comment[1]) : std::string();
        wb.MapSelected = run.SavedMapSelected;
        wb.SelectedMap = run.SavedSelectedMap;
        ResetUndoMenu(wb);
        restoreDrawingType(wb, run, host, pics);
        ClearImage(wb, pics, false);
        RedrawDesignView(wb, design);
        run.SetupDone = false;
    }
    GeneratorClose(wb, run);
    AdjustNameMenu(wb);
}

}  // namespace quillane
