#include "app/table_commands.h"

#include "app/chaos_design.h"
#include "app/transform_count_commands.h"

#include <algorithm>
#include <string>

#include "core/chaos_game.h"
#include "core/function_forms.h"
#include "core/function_table.h"
#include "core/numbers.h"
#include "app/fractal_view.h"
#include "render/scale.h"

namespace quillane {

namespace {

void offerTextUndo(Workbench& wb) {
    wb.Menu.setCaption("mnuUndo", UndoTextEntryCaption);
    wb.Menu.setEnabled("mnuUndo", true);
    wb.Menu.setEnabled(UndoToolButton, true);
}

void rememberBox(Workbench& wb, int column, int row) {
    wb.SelectedMap = static_cast<int16_t>(row);
    wb.TextUndoField = static_cast<int16_t>(column);
    wb.TextUndoValue = static_cast<float>(Val(wb.Table.old(column, row)));
}

// The fixed point form: the recipe is the truth, so the whole IFS is kept for the undo.
bool commitRecipeBox(Workbench& wb, int column, int row) {
    std::string& text = wb.Table.text(column, row);
    const bool changed = ToLower(Trim(text)) != ToLower(Trim(wb.Table.old(column, row)));
    if (changed) {
        rememberBox(wb, column, row);
        wb.SavedIFS = wb.CurrentIFS;
        SaveOriginalIFS(wb);
        convert(wb, column, row);
        CGMatrix(wb, row);
        WriteProbabilityTexts(wb);
        CountEdit(wb);
        ResetUndoMenu(wb);
        offerTextUndo(wb);
    }
    if (column <= 4)
        text = ToUpper(Trim(text));
    else if (column != 7 && !Trim(text).empty())
        text = Format(Val(text), BoxFormat(wb, column));
    wb.Table.old(column, row) = text;
    return changed;
}

bool commitNumberBox(Workbench& wb, int column, int row) {
    std::string& text = wb.Table.text(column, row);
    const double value = FractionValue(text);
    const bool changed = value != Val(wb.Table.old(column, row));
    if (changed) {
        rememberBox(wb, column, row);
        SaveOriginalIFS(wb);
        // The box holds the value at full precision while convert reads it.
        text = FullPrecisionText(value);
        CountEdit(wb);
        offerTextUndo(wb);
        convert(wb, column, row);
        RecursionOff(wb);
    }
    text = Format(value, BoxFormat(wb, column));
    // The old text is what the box shows, so that leaving the box later finds nothing new.
    if (changed) wb.Table.old(column, row) = text;
    return changed;
}

void restoreOriginalMap(Workbench& wb, int row) {
    StoreCoefficients(wb.CurrentIFS, row, wb.OriginalMap);
    wb.CurrentIFS.p[row] = wb.OriginalMap.p;
}

void selectAfterCount(Workbench& wb, int n, bool oneAdded) {
    wb.MapSelected = oneAdded;
    wb.CGMapSelected = oneAdded && wb.DesignMode == 1;
    if (oneAdded)
        wb.SelectedMap = static_cast<int16_t>(n - 1);
    else
        wb.SelectedMap = static_cast<int16_t>(std::min<int>(wb.SelectedMap, n - 1));
}

void actOnProbabilityChange(Workbench& wb, Host& host) {
    CountEdit(wb);
    setscale(wb, host);
    ResetUndoMenu(wb);
}

}  // namespace

void BoxGotFocus(Workbench& wb, int Column, int Row) {
    EnterBox(wb, Column, Row);
    const bool selected = wb.DesignMode == 1 ? wb.CGMapSelected : wb.MapSelected;
    // The undo store belongs to the function selected when it was made.
    if (selected && Row != wb.SelectedMap) ResetUndoMenu(wb);
    wb.SelectedMap = static_cast<int16_t>(Row);
    wb.MapSelected = true;
    if (wb.DesignMode == 1) wb.CGMapSelected = true;
}

bool HandleTextBoxChange(Workbench& wb, int Column, int Row) {
    bool changed = false;
    if (wb.CodeForm == 2) {
        changed = commitRecipeBox(wb, Column, Row);
    } else {
        if (BoxLocked(wb, Column)) return false;
        changed = commitNumberBox(wb, Column, Row);
    }
    if (Column == 7) wb.lblProbSum = ProbSumText(wb);
    return changed;
}

std::optional<BoxAddress> UndoTextEntry(Workbench& wb) {
    const MenuItemState& undo = wb.menu("mnuUndo");
    if (wb.DrawingActive || !undo.enabled || ToLower(undo.caption) != ToLower(UndoTextEntryCaption))
        return std::nullopt;
    const int row = wb.SelectedMap;
    const int column = wb.TextUndoField;
    if (wb.DesignMode == 1) {
        wb.CurrentIFS = wb.SavedIFS;
        WriteTableRows(wb);
    } else {
        restoreOriginalMap(wb, row);
        WriteTableRow(wb, row);
    }
    --wb.ChangeCount;
    AddAsterickToName(wb);
    // A step box keeps its letter: the value of a letter would read as 0.
    const bool stepBox = wb.CodeForm == 2 && column <= 4;
    if (column >= 1 && column <= TableColumnCount && !stepBox) {
        wb.Table.text(column, row) = Format(wb.TextUndoValue, "0.000");
        wb.Table.old(column, row) = wb.Table.text(column, row);
    }
    wb.lblProbSum = ProbSumText(wb);
    ResetUndoMenu(wb);
    return BoxAddress{column, row};
}

MapsCommit txtMaps_Commit(Workbench& wb, Host& host, bool focusLost) {
    MapsCommit result;
    const double v = Val(wb.txtMaps);
    if (v == wb.Table.LastMaps) return result;
    if (v < 1 || v > MaxMaps) {
        wb.txtMaps = std::to_string(wb.Table.LastMaps);
        result.outcome = BoxCommit::Refused;
        if (focusLost)
            result.beep = true;
        else
            host.warn(MapsRangeTitle, MapsRangeMessage);
        return result;
    }
    const int n = CInt(v);
    const int before = wb.CurrentIFS.nMaps;
    SetUpFunctions(wb, host, n);
    // Each added function is placed as the design's New places one, so no two land on each other.
    wb.CurrentIFS.nMaps = static_cast<int16_t>(std::min(before, n));
    for (int i = before; i < n; ++i) {
        if (wb.DesignMode == 1)
            newCGFixedPoint(wb, host, true, 10000, 10000);
        else
            NewDesignPoly(wb, host, true);
    }
    wb.CurrentIFS.nMaps = static_cast<int16_t>(n);
    PropProb(wb);
    WriteTableRows(wb);
    CountEdit(wb);
    // A stored step may name a function that is gone.
    ResetUndoMenu(wb);
    const bool oneAdded = n == before + 1;
    selectAfterCount(wb, n, oneAdded);
    if (oneAdded) result.focusRow = n - 1;
    setscale(wb, host);
    result.outcome = BoxCommit::Changed;
    return result;
}

BoxCommit txtWin_Commit(Workbench& wb, FractalPictures& pics, Host& host) {
    if (wb.txtWin == WindowTexts(wb.Window)) return BoxCommit::Unchanged;
    if (wb.menu("mnuDrawFreezeScale").checked) {
        host.warn(ScaleFrozenTitle, ScaleFrozenMessage);
        WriteWindowText(wb);
        return BoxCommit::Refused;
    }
    const std::optional<WorldWindow> w = WindowFromTexts(wb.txtWin);
    if (!w) {
        host.warn(InvalidNumberTitle, InvalidNumberMessage);
        WriteWindowText(wb);
        return BoxCommit::Refused;
    }
    const bool changed = *w != wb.Window;
    wb.Window = *w;
    WriteWindowText(wb);
    if (!changed) return BoxCommit::Unchanged;
    float xmin = w->xmin, xmax = w->xmax, ymin = w->ymin, ymax = w->ymax;
    ScalefrmFractalWindows(wb, pics, xmin, xmax, ymin, ymax, false);
    ClearImage(wb, pics, pics.PictureOverlaid);
    wb.DrawingStarted = false;
    return BoxCommit::Changed;
}

bool mnuProb_Click(Workbench& wb, Host& host) {
    const bool changed = SetProb(wb);
    wb.lblProbSum = "1.000";
    if (changed) actOnProbabilityChange(wb, host);
    return changed;
}

bool mnuProbCalc_Click(Workbench& wb, Host& host) {
    const std::optional<bool> changed = ProbCalc(wb);
    if (!changed.value_or(false)) return false;
    actOnProbabilityChange(wb, host);
    return true;
}

}  // namespace quillane
