#include "app/chaos_design.h"

#include <algorithm>
#include <cmath>

#include "core/chaos_game.h"
#include "app/design_mode.h"
#include "core/fractal_list.h"
#include "core/function_forms.h"
#include "core/function_table.h"
#include "core/menu_tree.h"
#include "core/numbers.h"
#include "app/startup.h"
#include "core/table_editing.h"
#include "design/chaos_drawing.h"
#include "app/chaos_moves.h"
#include "design/design_drawing.h"
#include "app/transform_count_commands.h"
#include "app/undo.h"
#include "app/fractal_view.h"
#include "app/design_selection.h"

namespace quillane {

namespace {


std::array<std::string, 5> stepsOf(const IFSEntry& ifs, int i) {
    std::array<std::string, 5> s;
    for (int k = 1; k <= 4; ++k) s[k] = ifs.Step[k][i];
    return s;
}

void setSteps(IFSEntry& ifs, int i, const std::array<std::string, 5>& s) {
    for (int k = 1; k <= 4; ++k) ifs.Step[k][i] = s[k];
}

// The first step holding `letter` or nothing; 0 when all four hold other letters.
int findLetterOrBlank(const IFSEntry& ifs, int i, const std::string& letter) {
    for (int k = 1; k <= 4; ++k) {
        const std::string& s = ifs.Step[k][i];
        if (s.empty() || s == " " || s.substr(0, 1) == letter) return k;
    }
    return 0;
}

bool blank(const std::string& s) {
    return s.empty() || s == " ";
}

void selectFunction(Workbench& wb, int i) {
    AdjustDesignMenu(wb, true);
    wb.SelectedMap = static_cast<int16_t>(i);
    wb.CGMapSelected = true;
}

void extend(float& lo, float& hi, double v) {
    lo = std::min(lo, static_cast<float>(v));
    hi = std::max(hi, static_cast<float>(v));
}

}  // namespace

bool mnuNewChaosGame_Click(Workbench& wb, Host& host) {
    if (NeedsSave(wb) && !CheckSave(wb, host)) return false;
    wb.MapSelected = false;
    wb.CGMapSelected = false;
    SetupChaosGameDesign(wb);
    AdjustIFSMenu(wb, false);
    for (int k = 0; k <= 1; ++k) wb.Menu.setEnabled(MenuTable::key("mnuDrawType", k), true);
    CheckListEntry(wb, 0);
    AdjustDesignMenu(wb, false);
    InitializeIFS(wb.CurrentIFS);
    wb.lblComment.clear();  // the new game has no comments
    const WorldWindow& w = wb.DesignWindow;
    wb.ReferencePoint = {(w.xmin + w.xmax) / 2, (w.ymin + w.ymax) / 2, True16};
    wb.SelectedIFS = 0;
    wb.SelectedMap = 0;
    wb.IFSModified = false;
    wb.ChangeCount = 0;
    wb.FunctionsCaption = FunctionsCaptionFor(wb.CurrentIFS.Name);
    wb.txtMaps = "1";
    WriteTableRows(wb);
    wb.lblProbSum = ProbSumText(wb);
    ResetUndoMenu(wb);
    if (wb.ScaleCG.Showing) SetFPSettings(wb, true);
    return true;
}

void newCGFixedPoint(Workbench& wb, Host& host, bool Random, float x, float y) {
    wb.CGBusy = true;
    IFSEntry& ifs = wb.CurrentIFS;
    const int i = ifs.nMaps;
    SetUpFunctions(wb, host, i + 1);
    ifs.nMaps = static_cast<int16_t>(i + 1);
    setSteps(ifs, i, {"", "S", "", "", ""});
    ifs.Scale[i] = 0.5f;
    ifs.Angle[i] = 0;
    ifs.p[i] = 0;
    if (Random) {
        PlaceNewFunction(wb);
    } else if (x < 10000 && y < 10000) {
        wb.OriginalMap.e = x;
        wb.OriginalMap.f = y;
    }
    ifs.FPx[i] = wb.OriginalMap.e;
    ifs.FPy[i] = wb.OriginalMap.f;
    CGMatrix(wb, i);
    WriteTableRow(wb, i);
    WriteProbabilityTexts(wb);
    selectFunction(wb, i);
    if (wb.ScaleCG.Showing) SetFPSettings(wb, true);
    wb.CGBusy = false;
}

void CGClearMap(Workbench& wb, Host& host, int k) {
    wb.CGBusy = true;
    IFSEntry& ifs = wb.CurrentIFS;
    wb.SavedIFS = ifs;
    const Color removed = wb.FunctionColor[static_cast<size_t>(k)];
    SetUpFunctions(wb, host, ifs.nMaps - 1);
    --ifs.nMaps;
    for (int i = k; i < ifs.nMaps; ++i) {
        ifs.setFunction(i, ifs.function(i + 1));
        wb.FunctionColor[static_cast<size_t>(i)] = wb.FunctionColor[static_cast<size_t>(i) + 1];
    }
    wb.FunctionColor[static_cast<size_t>(ifs.nMaps)] = removed;
    PropProb(wb);
    WriteTableRows(wb);
    if (!wb.ScaleCG.Showing) {
        wb.CGMapSelected = false;
        AdjustDesignMenu(wb, false);
    } else {
        wb.SelectedMap = 0;
        wb.ScaleCG.cmbFP = 0;
        wb.CGMapSelected = true;
        SetFPSettings(wb, true);
    }
    wb.ClearedMap = static_cast<int16_t>(k);
    wb.CGBusy = false;
}

void CGDuplicateMap(Workbench& wb, Host& host) {
    IFSEntry& ifs = wb.CurrentIFS;
    const int s = wb.SelectedMap, i = ifs.nMaps;
    SetUpFunctions(wb, host, i + 1);
    ifs.nMaps = static_cast<int16_t>(i + 1);
    setSteps(ifs, i, stepsOf(ifs, s));
    ifs.Scale[i] = ifs.Scale[s];
    ifs.Angle[i] = ifs.Angle[s];
    ifs.Prob[i] = ifs.Prob[s];
    ifs.FPx[i] = ifs.FPx[s];
    ifs.FPy[i] = ifs.FPy[s];
    CGMatrix(wb, i);
    WriteTableRow(wb, i);
    WriteProbabilityTexts(wb);
    selectFunction(wb, i);
    if (wb.ScaleCG.Showing) SetFPSettings(wb, true);
}

void CGUndoClear(Workbench& wb, Host& host) {
    wb.CurrentIFS = wb.SavedIFS;
    SetUpFunctions(wb, host, wb.CurrentIFS.nMaps);
    for (int i = std::max<int>(wb.ClearedMap, 0); i < wb.CurrentIFS.nMaps; ++i) WriteTableRow(wb, i);
    wb.lblProbSum = ProbSumText(wb);
    selectFunction(wb, std::max<int>(wb.ClearedMap, 0));
}

void SaveOriginalSteps(Workbench& wb) {
    const IFSEntry& ifs = wb.CurrentIFS;
    const int i = wb.SelectedMap;
    wb.SavedIFS = ifs;
    wb.OriginalSteps = stepsOf(ifs, i);
    wb.OriginalMap.e = ifs.Scale[i];
    wb.OriginalMap.f = ifs.Angle[i];
}

void SaveResultSteps(Workbench& wb) {
    const IFSEntry& ifs = wb.CurrentIFS;
    const int i = wb.SelectedMap;
    wb.ResultSteps = stepsOf(ifs, i);
    wb.ResultMap.e = ifs.Scale[i];
    wb.ResultMap.f = ifs.Angle[i];
}

void RestoreSteps(Workbench& wb, const std::array<std::string, 5>& steps, float scale, float angle) {
    IFSEntry& ifs = wb.CurrentIFS;
    const int i = wb.SelectedMap;
    setSteps(ifs, i, steps);
    ifs.Scale[i] = scale;
    ifs.Angle[i] = angle;
    CGMatrix(wb, i);
    WriteTableRow(wb, i);
    WriteProbabilityTexts(wb);
    if (wb.ScaleCG.Showing) SetFPSettings(wb, false);
}

void RotateCGDesign(Workbench& wb, double Angle) {
    if (!wb.CGMapSelected) return;
    IFSEntry& ifs = wb.CurrentIFS;
    const int i = wb.SelectedMap;
    const int k = findLetterOrBlank(ifs, i, "R");
    if (k == 0) return;
    SaveOriginalSteps(wb);
    double angle = Angle;
    if (!blank(ifs.Step[k][i])) {
        angle = ifs.Angle[i] + Angle;
        if (angle > 360) angle -= 360;
        if (angle < -360) angle += 360;
    } else {
        ifs.Step[k][i] = "R";
    }
    ifs.Angle[i] = static_cast<float>(angle);
    CGMatrix(wb, i);
    WriteTableRow(wb, i);
    WriteProbabilityTexts(wb);
    SaveResultSteps(wb);
    if (wb.ScaleCG.Showing) {
        SetFPSettings(wb, true);
        wb.ScaleCG.RotateFocus = true;
    }
    CommitCommand(wb, UndoRotationCaption);
}

void ReflectCGDesign(Workbench& wb, const std::string& Letter) {
    if (!wb.CGMapSelected) return;
    IFSEntry& ifs = wb.CurrentIFS;
    const int i = wb.SelectedMap;
    const int k = findLetterOrBlank(ifs, i, Letter);
    if (k == 0) return;
    if (blank(ifs.Step[k][i])) {
        SaveOriginalSteps(wb);
        ifs.Step[k][i] = Letter;
        CGMatrix(wb, i);
        WriteTableRow(wb, i);
        WriteProbabilityTexts(wb);
        SaveResultSteps(wb);
        if (wb.ScaleCG.Showing) SetFPSettings(wb, false);
        CommitCommand(wb, UndoReflectionCaption);
        return;
    }
    if (wb.ScaleCG.Showing) {
        chkStep_Click(wb, Letter == "H" ? 3 : 4, false);
        return;
    }
    for (int m = k; m < 4; ++m) ifs.Step[m][i] = ifs.Step[m + 1][i];
    ifs.Step[4][i].clear();
    CGMatrix(wb, i);
    WriteTableRow(wb, i);
    WriteProbabilityTexts(wb);
    ResetUndoMenu(wb);
    CountEdit(wb);
}

void CGDesignNew(Workbench& wb, Host& host) {
    if (wb.DrawingActive) return;
    newCGFixedPoint(wb, host, true, 0, 0);
    CommitCommand(wb, UndoNewCaption);
}

void CGDesignDuplicate(Workbench& wb, Host& host) {
    if (wb.DrawingActive || !wb.CGMapSelected) return;
    CGDuplicateMap(wb, host);
    CommitCommand(wb, UndoDuplicateCaption);
}

void CGDesignClear(Workbench& wb, Host& host) {
    if (wb.DrawingActive || !wb.CGMapSelected || wb.CurrentIFS.nMaps <= 1) return;
    CGClearMap(wb, host, wb.SelectedMap);
    CommitCommand(wb, UndoClearCaption);
}

void CGDesignScale(const Workbench& wb, float& xmax, float& xmin, float& ymax, float& ymin) {
    const IFSEntry& ifs = wb.CurrentIFS;
    if (wb.ReferencePoint.shown == 0 || ifs.nMaps < 1) return;
    for (int i = 0; i < ifs.nMaps && i < MaxMaps; ++i) {
        const double fx = ifs.FPx[i], fy = ifs.FPy[i];
        for (const CGMove& m : CGPathOf(wb, i)) {
            if (m.letter == 'R') {
                const double r = std::hypot(m.x0 - fx, m.y0 - fy);
                extend(xmin, xmax, fx - r);
                extend(xmin, xmax, fx + r);
                extend(ymin, ymax, fy - r);
                extend(ymin, ymax, fy + r);
            }
            const double scale = ifs.Scale[i];
            if (m.letter == 'S' && !(scale > 0 && scale < 1)) continue;
            extend(xmin, xmax, m.x1);
            extend(ymin, ymax, m.y1);
        }
        extend(xmin, xmax, fx);
        extend(ymin, ymax, fy);
    }
    xmax = static_cast<float>(Round(xmax + 0.05, 1));
    xmin = static_cast<float>(Round(xmin - 0.05, 1));
    ymax = static_cast<float>(Round(ymax + 0.05, 1));
    ymin = static_cast<float>(Round(ymin - 0.05, 1));
    if (xmax == xmin) {
        xmax += 0.05f;
        xmin -= 0.05f;
    }
    if (ymax == ymin) {
        ymax += 0.05f;
        ymin -= 0.05f;
    }
}

}  // namespace quillane
