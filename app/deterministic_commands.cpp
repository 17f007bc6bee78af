#include "app/deterministic_commands.h"

#include <algorithm>

#include "app/fractal_view.h"
#include "app/trace_commands.h"
#include "render/deterministic.h"
#include "render/fractal_overlays.h"

namespace quillane {

namespace {

void toDeterministicMenus(Workbench& wb, FractalPictures& pics) {
    MenuTable& m = wb.Menu;
    m.setChecked(MenuTable::key("mnuDrawType", 0), false);
    m.setChecked(MenuTable::key("mnuDrawType", 1), true);
    for (const char* k :
         {"mnuFileSaveAnimGif", "mnuDrawAddFigureItems", "mnuDrawDetColors", "mnuDrawOverlay"})
        m.setEnabled(k, true);
    m.setEnabled("mnuTracing", false);
    const bool stealing = m(MenuTable::key("mnuColors", 2)).checked;
    const bool counts = m(MenuTable::key("mnuColors", 1)).checked && pics.Det.optColoring == 6;
    pics.Det.SavedColorItem = m(MenuTable::key("mnuColors", 2)).checked   ? 2
                              : m(MenuTable::key("mnuColors", 1)).checked ? 1
                                                                          : 0;
    pics.Det.SavedOptColoring = pics.Det.optColoring;
    m.setEnabled(MenuTable::key("mnuColors", 2), false);
    m.setEnabled(MenuTable::key("optColoring", 6), false);
    if (stealing || counts) {
        for (int k = 0; k < 3; ++k) m.setChecked(MenuTable::key("mnuColors", k), k == 0);
    }
    m.setEnabled("mnuCodeColorStealingOptions", false);
}

void toRandomMenus(Workbench& wb, FractalPictures& pics) {
    MenuTable& m = wb.Menu;
    m.setChecked(MenuTable::key("mnuDrawType", 0), true);
    m.setChecked(MenuTable::key("mnuDrawType", 1), false);
    m.setEnabled("mnuDrawOverlay", false);
    m.setChecked("mnuDrawOverlay", false);
    for (const char* k : {"mnuDrawAddFigureItems", "mnuDrawDetColors", "mnuFileSaveAnimGif"})
        m.setEnabled(k, false);
    for (const char* k : {"mnuTracing", "mnuDrawZoom", "mnuDrawFixedNumber", "mnuZoom", "mnuDrawLoadPicture",
                          "mnuCodeColorStealingOptions"})
        m.setEnabled(k, true);
    m.setEnabled(MenuTable::key("mnuColors", 2), true);
    m.setEnabled(MenuTable::key("optColoring", 6), true);
    for (int k = 0; k < 3; ++k) m.setChecked(MenuTable::key("mnuColors", k), k == pics.Det.SavedColorItem);
    pics.Det.optColoring = pics.Det.SavedOptColoring;
}

void toDeterministic(Workbench& wb, FractalPictures& pics, Host& host) {
    toDeterministicMenus(wb, pics);
    wb.RandomMode = false;
    wb.TraceEnabled = false;
    wb.TraceDigitPending = false;
    ResetTraceMenu(wb, pics);
    pics.Det.picTrace.clear();
    pics.picCoord.clear();
    wb.IterationNumber = 0;
    wb.FractalCaption = DeterministicCaption;
    wb.FractalWindowCaption = DeterministicCaption;
    // A figure never drawn in this session is drawn and fitted as the first one.
    if (wb.DetFigure == -1 || !pics.Det.DetWindowStored) {
        if (wb.DetFigure == -1) {
            wb.Menu.setChecked(MenuTable::key("mnuDrawDetColorItems", 0), true);
            wb.Menu.setChecked(MenuTable::key("mnuDrawDetColorItems", 1), false);
        }
        const int figure = std::max<int>(wb.DetFigure, 0);
        DrawDetWindowFigure(wb, pics, host, figure, false, true);
        wb.FitWindow = wb.Window;
        ResetDetFigure(wb, figure);
    } else {
        if (!ScaleFrozen(wb)) {
            wb.Window = pics.Det.DetWindow;
            WriteWindowText(wb);
        }
        const WorldWindow w = wb.Window;
        SetUpDeterministicWindow(wb, pics, w.xmin, w.xmax, w.ymin, w.ymax, false);
        DrawDetFigure(wb, pics, host, false);
    }
    pics.picImage2.takeImage(pics.picfractal);
    BackToLevelZero(wb, pics);
    FractalGridAxesFP(wb, pics);
}

void toRandom(Workbench& wb, FractalPictures& pics) {
    pics.picfractal.clear();
    if (pics.PictureOverlaid && wb.DetFigure < 7) PaintPlacedPicture(pics.picfractal, pics);
    TakeShiftImage(wb, pics);
    pics.picImage2.takeImage(pics.picfractal);
    toRandomMenus(wb, pics);
    wb.RandomMode = true;
    wb.FractalCaption = RandomCaption;
    wb.FractalWindowCaption = RandomCaption;
    wb.IterationNumber = -1;  // a marker until the next view change
    wb.PointCount = 0;
    pics.picCount.clear();
    ResetTraceMenu(wb, pics);
    FractalGridAxesFP(wb, pics);
}

}  // namespace

void mnuDrawType_Click(Workbench& wb, FractalPictures& pics, Host& host, int Index) {
    if (wb.DrawingActive) return;
    if (Index == 1 && wb.RandomMode) toDeterministic(wb, pics, host);
    if (Index == 0 && !wb.RandomMode) toRandom(wb, pics);
}

void FractalKeyUp(Workbench& wb, FractalPictures& pics) {
    pics.Det.KeepFirstColor = false;
    wb.KeyHandled = false;
}

bool DeterministicDigitKey(Workbench& wb, FractalPictures& pics, Host& host, int keyCode, int shiftMask) {
    if (wb.RandomMode || wb.DrawingActive) return false;
    DeterministicState& det = pics.Det;
    const bool digit = keyCode >= '0' && keyCode <= '9';
    const int d = digit ? keyCode - '0' : 0;
    const int n = wb.mapsFromText();
    if ((shiftMask & ShiftMaskShift) == 0) {
        if (d < 1 || d > n) return false;
        Iterate(wb, pics, host, d - 1);
        return true;
    }
    if (!digit) {
        det.DigitPending = false;
        return false;
    }
    if (!det.DigitPending) {
        det.TensDigit = d;
        det.DigitPending = true;
        return false;
    }
    det.DigitPending = false;
    const int map = det.TensDigit * 10 + d;
    if (map < 1 || map > n) return false;
    Iterate(wb, pics, host, map - 1);
    return true;
}

void mnuDrawOverlay_Click(Workbench& wb) {
    if (wb.RandomMode || wb.DrawingActive || !wb.menu("mnuDrawOverlay").enabled) return;
    wb.Menu.setChecked("mnuDrawOverlay", !wb.menu("mnuDrawOverlay").checked);
}

void mnuDrawDetColorItems_Click(Workbench& wb, InitialFigures& figs, int Index) {
    if (wb.RandomMode || wb.DrawingActive || Index < 0 || Index > 1) return;
    SetFigureColorChoice(wb, figs, Index == 0);
}

}  // namespace quillane
