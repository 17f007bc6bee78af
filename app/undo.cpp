#include "app/undo.h"

#include <algorithm>
#include <iterator>

#include "core/function_forms.h"
#include "core/function_table.h"
#include "core/numbers.h"
#include "core/chaos_game.h"
#include "app/chaos_design.h"
#include "design/design_drawing.h"
#include "design/map_transforms.h"
#include "app/transform_commands.h"
#include "app/transform_count_commands.h"
#include "app/fractal_view.h"
#include "render/scale.h"
#include "app/table_commands.h"
#include "app/design_selection.h"

namespace quillane {

namespace {

constexpr const char* RedoPrefix = "&redo";

// What one row of the caption table puts back.
enum class Restore {
    OriginalMatrix,  // a..f from OriginalMap
    ResultMatrix,    // a..f from ResultMap
    OriginalMove,    // e, f from OriginalMap
    ResultMove,      // e, f from ResultMap
    Reflect,         // the reflection again, about the present box
    RemoveLast,      // the function added last goes
    NewAgain,        // New in the place it had
    DuplicateAgain,  // Duplicate in the place it had
};

struct UndoRow {
    const char* caption;
    Restore action;
    const char* next;
    int count;  // added to ChangeCount
};

// The IFS rows, matched in this order without regard to case. "&Undo resize" of the Scale command
// lands on the first row.
constexpr UndoRow IFSRows[] = {
    {UndoResizeCaption, Restore::OriginalMatrix, RedoResizeCaption, -1},
    {RedoResizeCaption, Restore::ResultMatrix, UndoResizeCaption, +1},
    {UndoMoveCaption, Restore::OriginalMove, RedoMoveCaption, -1},
    {RedoMoveCaption, Restore::ResultMove, UndoMoveCaption, +1},
    {UndoReflectionCaption, Restore::Reflect, RedoReflectionCaption, -1},
    {RedoReflectionCaption, Restore::Reflect, UndoReflectionCaption, +1},
    {UndoRotationCaption, Restore::OriginalMatrix, RedoRotationCaption, -1},
    {RedoRotationCaption, Restore::ResultMatrix, UndoRotationCaption, +1},
    {UndoScaleCaption, Restore::OriginalMatrix, RedoScaleCaption, -1},
    {UndoStretchShearCaption, Restore::OriginalMatrix, RedoStretchShearCaption, -1},
    {RedoScaleCaption, Restore::ResultMatrix, UndoScaleCaption, +1},
    {RedoStretchShearCaption, Restore::ResultMatrix, UndoStretchShearCaption, +1},
    {UndoShearCaption, Restore::OriginalMatrix, RedoShearCaption, -1},
    {RedoShearCaption, Restore::ResultMatrix, UndoShearCaption, +1},
    {UndoNewCaption, Restore::RemoveLast, RedoNewCaption, -1},
    {RedoNewCaption, Restore::NewAgain, UndoNewCaption, +1},
    {UndoDuplicateCaption, Restore::RemoveLast, RedoDuplicateCaption, -1},
    {RedoDuplicateCaption, Restore::DuplicateAgain, UndoDuplicateCaption, +1},
};

const UndoRow* findRow(const std::string& lowered) {
    const auto at = std::find_if(std::begin(IFSRows), std::end(IFSRows),
                                 [&](const UndoRow& r) { return ToLower(r.caption) == lowered; });
    return at == std::end(IFSRows) ? nullptr : at;
}

UndoKind restore(Workbench& wb, Host& host, Restore action) {
    IFSEntry& ifs = wb.CurrentIFS;
    const int i = wb.SelectedMap;
    switch (action) {
        case Restore::OriginalMatrix:
            StoreCoefficients(ifs, i, wb.OriginalMap);
            break;
        case Restore::ResultMatrix:
            StoreCoefficients(ifs, i, wb.ResultMap);
            break;
        case Restore::OriginalMove:
            ifs.e[i] = wb.OriginalMap.e;
            ifs.f[i] = wb.OriginalMap.f;
            break;
        case Restore::ResultMove:
            ifs.e[i] = wb.ResultMap.e;
            ifs.f[i] = wb.ResultMap.f;
            break;
        case Restore::Reflect:
            ReflectSelectedMap(wb, wb.ReflectionDirection);
            return UndoKind::Map;
        case Restore::RemoveLast:
            ClearMap(wb, host, ifs.nMaps - 1);
            return UndoKind::Functions;
        case Restore::NewAgain:
            NewDesignPoly(wb, host, false);
            return UndoKind::Functions;
        case Restore::DuplicateAgain:
            DuplicateMap(wb, host, false);
            return UndoKind::Functions;
    }
    WriteTableRow(wb, i);
    return UndoKind::Map;
}

UndoResult undoZoom(Workbench& wb, Host& host, FractalPictures& pics, const DesignHooks& hooks) {
    if (wb.ZoomUndoSource == 1) {
        UndoZoom(wb, pics, host);
        return {UndoKind::Zoom, {}};
    }
    if (hooks.UndoDesignZoom) hooks.UndoDesignZoom();
    ResetUndoMenu(wb);
    return {UndoKind::Zoom, {}};
}

// One row of the chaos game: what a click puts back. The caller redraws picCGDesign.
UndoResult undoChaosGame(Workbench& wb, Host& host, const std::string& caption) {
    IFSEntry& ifs = wb.CurrentIFS;
    const int i = wb.SelectedMap;
    auto is = [&](const char* c) { return caption == ToLower(c); };
    auto currentSteps = [&] {
        std::array<std::string, 5> steps;
        for (int k = 1; k <= 4; ++k) steps[k] = ifs.Step[k][i];
        return steps;
    };
    auto moveTo = [&](const Workbench::CGPoint& p) {
        ifs.FPx[i] = p.x;
        ifs.FPy[i] = p.y;
        CGMatrix(wb, i);
        WriteTableRow(wb, i);
    };
    auto next = [&](const char* c, int count, UndoKind kind) -> UndoResult {
        SetUndoCaption(wb, c);
        OfferUndo(wb);
        wb.ChangeCount = static_cast<int16_t>(wb.ChangeCount + count);
        AddAsterickToName(wb);
        return {kind, {}};
    };
    if (is(UndoMoveCaption)) moveTo(wb.OriginalFP);
    if (is(UndoMoveCaption)) return next(RedoMoveCaption, -1, UndoKind::Map);
    if (is(RedoMoveCaption)) moveTo(wb.ResultFP);
    if (is(RedoMoveCaption)) return next(UndoMoveCaption, +1, UndoKind::Map);
    for (const auto& [undo, redo] : {std::pair{UndoReflectionCaption, RedoReflectionCaption},
                                     std::pair{UndoRotationCaption, RedoRotationCaption}}) {
        if (is(undo)) {
            RestoreSteps(wb, wb.OriginalSteps, wb.OriginalMap.e, wb.OriginalMap.f);
            return next(redo, -1, UndoKind::Map);
        }
        if (is(redo)) {
            RestoreSteps(wb, wb.ResultSteps, wb.ResultMap.e, wb.ResultMap.f);
            return next(undo, +1, UndoKind::Map);
        }
    }
    if (is(UndoScaleCaption)) {
        RestoreSteps(wb, currentSteps(), wb.OriginalMap.e, wb.OriginalMap.f);
        return next(RedoScaleCaption, -1, UndoKind::Map);
    }
    if (is(RedoScaleCaption)) {
        RestoreSteps(wb, currentSteps(), wb.ResultMap.e, wb.ResultMap.f);
        return next(UndoScaleCaption, +1, UndoKind::Map);
    }
    if (is(UndoNewCaption) || is(UndoDuplicateCaption)) {
        CGClearMap(wb, host, ifs.nMaps - 1);
        if (ifs.nMaps == 1) {
            wb.Menu.setEnabled("mnuDesignClear", false);
            wb.Menu.setEnabled(DesignToolbarKey(3), false);
        }
        return next(is(UndoNewCaption) ? RedoNewCaption : RedoDuplicateCaption, -1, UndoKind::Functions);
    }
    if (is(RedoNewCaption)) {
        newCGFixedPoint(wb, host, false, 20000, 20000);
        return next(UndoNewCaption, +1, UndoKind::Functions);
    }
    if (is(RedoDuplicateCaption)) {
        CGDuplicateMap(wb, host);
        return next(UndoDuplicateCaption, +1, UndoKind::Functions);
    }
    if (is(UndoClearCaption)) {
        --wb.ChangeCount;
        CGUndoClear(wb, host);
        AddAsterickToName(wb);
        ResetUndoMenu(wb);
        return {UndoKind::Functions, {}};
    }
    const bool back = is(UndoMoveReferenceCaption);
    if (back || is(RedoMoveReferenceCaption)) {
        wb.ReferencePoint = back ? wb.OldReferencePoint : wb.NewReferencePoint;
        SetUndoCaption(wb, back ? RedoMoveReferenceCaption : UndoMoveReferenceCaption);
        OfferUndo(wb);
        return {UndoKind::Functions, {}};
    }
    return {};
}

}  // namespace

void SetUndoCaption(Workbench& wb, const std::string& caption) {
    wb.Menu.setCaption("mnuUndo", caption);
}

void OfferUndo(Workbench& wb) {
    wb.Menu.setEnabled("mnuUndo", true);
    wb.Menu.setEnabled(UndoToolButton, true);
}

void CommitUndo(Workbench& wb) {
    OfferUndo(wb);
    CountEdit(wb);
}

void CommitCommand(Workbench& wb, const std::string& caption) {
    SetUndoCaption(wb, caption);
    CommitUndo(wb);
    RecursionOff(wb);
}

int UndoButtonImage(const Workbench& wb) {
    return ToLower(wb.menu("mnuUndo").caption).rfind(RedoPrefix, 0) == 0 ? UndoButtonImageRedo
                                                                          : UndoButtonImageUndo;
}

UndoResult mnuUndo_Click(Workbench& wb, Host& host, FractalPictures& pics, const DesignHooks& hooks) {
    const MenuItemState& item = wb.menu("mnuUndo");
    if (wb.DrawingActive || !item.enabled) return {};
    const std::string caption = ToLower(item.caption);
    if (caption == ToLower(UndoTextEntryCaption)) return {UndoKind::TextEntry, UndoTextEntry(wb)};
    if (caption == ToLower(UndoZoomCaption)) return undoZoom(wb, host, pics, hooks);
    if (caption == RedoTextEntryCaption) return {};
    if (caption == RedoZoomCaption) {
        if (wb.ZoomUndoSource != 0) return {};
        if (hooks.ZoomDesignOut) hooks.ZoomDesignOut();
        return {UndoKind::Zoom, {}};
    }
    if (wb.DesignMode == 1) return undoChaosGame(wb, host, caption);
    if (caption == ToLower(UndoClearCaption)) {
        --wb.ChangeCount;
        UndoClear(wb, host, pics, hooks, -1);
        AddAsterickToName(wb);
        ResetUndoMenu(wb);
        return {UndoKind::Functions, {}};
    }
    const UndoRow* row = findRow(caption);
    if (!row) return {};
    const UndoKind kind = restore(wb, host, row->action);
    SetUndoCaption(wb, row->next);
    OfferUndo(wb);
    wb.ChangeCount = static_cast<int16_t>(wb.ChangeCount + row->count);
    AddAsterickToName(wb);
    return {kind, {}};
}

void UndoClear(Workbench& wb, Host& host, FractalPictures& pics, const DesignHooks& hooks, int k) {
    wb.CurrentIFS = wb.SavedIFS;
    IFSEntry& ifs = wb.CurrentIFS;
    SetUpFunctions(wb, host, ifs.nMaps);
    if (k == -1) {
        const std::string mark = wb.ChangeCount != 0 ? "*" : "";
        wb.FunctionsCaption = "IFS [" + Trim(ifs.Name) + mark + "]";
    }
    for (int i = std::max(k, 0); i < ifs.nMaps; ++i) WriteTableRow(wb, i);
    if (k != -1) {
        // Only the generators' undo puts the colours back; the menu's keeps the rotation of Clear.
        const size_t last = static_cast<size_t>(ifs.nMaps - 1);
        const Color moved = wb.FunctionColor[last];
        for (size_t i = last; i > static_cast<size_t>(k); --i) wb.FunctionColor[i] = wb.FunctionColor[i - 1];
        wb.FunctionColor[static_cast<size_t>(k)] = moved;
    }
    wb.lblProbSum = ProbSumText(wb);
    if (hooks.DesignScale) hooks.DesignScale();
    setscale(wb, host, true, &pics);
    const int selected = k == -1 ? wb.ClearedMap : k;
    if (selected >= 0) {
        wb.SelectedMap = static_cast<int16_t>(selected);
        wb.MapSelected = true;
    }
    AdjustDesignMenu(wb, true);
}

}  // namespace quillane
