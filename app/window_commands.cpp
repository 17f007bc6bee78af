#include "app/window_commands.h"

#include "app/chaos_design.h"
#include "app/chaos_moves.h"
#include "app/code_commands.h"
#include "app/design_view.h"
#include "app/file_commands.h"
#include "app/list_entry_commands.h"
#include "core/palette_files.h"

namespace quillane {

void mnuOpen_Click(AppState& s, Host& host) {
    if (!mnuOpen_Click(s.wb, host)) return;
    ShowTakenIFS(s.wb, s.pics, host);
    DesignScale(s.wb, s.design);
}

RecentOpen mnuMRU_Click(AppState& s, Host& host, int index) {
    const RecentOpen r = mnuMRU_Click(s.wb, host, index);
    if (r == RecentOpen::Opened) {
        ShowTakenIFS(s.wb, s.pics, host);
        DesignScale(s.wb, s.design);
    }
    return r;
}

void mnuNames_Click(AppState& s, Host& host, const ListDialogs& dialogs, int index) {
    if (index >= 5) {
        if (mnuNamesEntry_Click(s.wb, s.pics, host, index)) DesignScale(s.wb, s.design);
    } else if (index != 4) {
        const bool stored = mnuNames_Click(s.wb, host, dialogs, index);
        if (stored && (index == 0 || index == 1)) KeepGeneratorBuild(s.Generator);
    }
}

void mnuNewChaosGame_Click(AppState& s, Host& host) {
    if (mnuNewChaosGame_Click(s.wb, host)) RedrawDesignView(s.wb, s.design);
}

bool OpenChaosGameMoves(AppState& s) {
    if (s.wb.DrawingActive || s.wb.DesignMode != 1) return false;
    s.wb.SavedIFS = s.wb.CurrentIFS;
    OpenScaleCG(s.wb);
    RedrawDesignView(s.wb, s.design);
    return true;
}

void mnuCodeArrangeFP_Click(AppState& s) {
    mnuCodeArrangeFP_Click(s.wb);
    DesignScale(s.wb, s.design);
}

void mnuCodeLoadPalette_Click(AppState& s, Host& host) {
    if (mnuCodeLoadPalette_Click(s.wb, host)) RedrawDesignView(s.wb, s.design);
}

void mnuSameColor_Click(AppState& s) {
    SameColor(s.wb, 0);
    RedrawDesignView(s.wb, s.design);
}

void mnuDefaultColors_Click(AppState& s) {
    DefaultColors(s.wb);
    RedrawDesignView(s.wb, s.design);
}

void mnuDesignAxes_Click(AppState& s) {
    s.wb.Menu.setChecked("mnuDesignAxes", !s.wb.menu("mnuDesignAxes").checked);
    DesignAxes(s.wb, s.design);
}

void DesignLineRing(AppState& s) {
    mnuDesignLine_Click(s.wb, s.design, (s.wb.LineThickness / 2 + 1) % 3);
}

UndoResult mnuUndo_Click(AppState& s, Host& host) {
    DesignHooks hooks;
    hooks.DesignScale = [&s] { DesignScale(s.wb, s.design); };
    hooks.ZoomDesignOut = [&s] { DesignWinZoom(s.wb, s.design, 1); };
    hooks.UndoDesignZoom = [&s] {
        s.wb.DesignWindow = s.design.DesignUndoWindow;
        WriteDesignText(s.wb);
        ScaleDesignWindows(s.wb, s.design);
        RedrawDesignView(s.wb, s.design);
    };
    const UndoResult r = mnuUndo_Click(s.wb, host, s.pics, hooks);
    if (r.kind == UndoKind::Map || r.kind == UndoKind::Functions) RedrawDesignView(s.wb, s.design);
    return r;
}

void mnuPicPastePopUpResize_Click(AppState& s) {
    s.pics.Floating.ResizeHandles = !s.pics.Floating.ResizeHandles;
    s.wb.Menu.setChecked("mnuPicPastePopUpResize", s.pics.Floating.ResizeHandles);
}

}  // namespace quillane
