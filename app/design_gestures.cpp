#include "app/design_gestures.h"

#include <cmath>
#include <vector>

#include "core/function_table.h"
#include "core/numbers.h"
#include "core/table_editing.h"
#include "design/design_drawing.h"
#include "app/design_keys.h"
#include "app/design_view.h"
#include "design/map_transforms.h"
#include "app/undo.h"
#include "app/fractal_view.h"
#include "app/design_selection.h"

namespace quillane {

namespace {

constexpr int KeyLeftCode = 37, KeyUpCode = 38, KeyRightCode = 39, KeyDownCode = 40;

bool isArrow(int KeyCode) {
    return KeyCode >= KeyLeftCode && KeyCode <= KeyDownCode;
}

double pixelX(const DesignPictures& d) {
    return d.picdesign.pixelsToWorldX(1);
}
double pixelY(const DesignPictures& d) {
    return d.picdesign.pixelsToWorldY(1);
}

bool selectionLive(const Workbench& wb) {
    return wb.MapSelected && wb.SelectedMap >= 0 && wb.SelectedMap < wb.CurrentIFS.nMaps;
}

// The map before a gesture, kept for undo; until a step changes it, the result is the same map.
void saveOriginal(Workbench& wb) {
    SaveOriginalIFS(wb);
    wb.ResultMap = wb.OriginalMap;
}

// A step's map into the slot and ResultMap; the caption says what Undo will take back.
void applyStep(Workbench& wb, DesignPictures& d, const GestureStep& step, const char* caption) {
    CopyCoefficients(wb.ResultMap, step.map);
    StoreCoefficients(wb.CurrentIFS, wb.SelectedMap, step.map);
    RefreshFunctions(wb);
    d.picCoord = step.text;
    SetUndoCaption(wb, caption);
    wb.IFSModified = true;
}

// Every step of a gesture redraws the whole design with the ghost of the map before.
void drawGestureStep(Workbench& wb, DesignPictures& d) {
    // Marks the new numbers as shown, so the window's refresh after the step keeps this picture.
    RedrawDesignIfChanged(wb, d);
    DrawDesign(wb, d, true);
    DrawIFS(wb, d, GhostSlot, 1 - wb.LineThickness);
    DrawIFS(wb, d, wb.SelectedMap, 3);
}

void thinLine(DesignPictures& d, float x1, float y1, float x2, float y2) {
    d.picdesign.setDrawWidth(1);
    d.picdesign.setDrawStyle(DrawStyle::Solid);
    d.picdesign.line(x1, y1, x2, y2, Black);
}

void drawSelection(Workbench& wb, DesignPictures& d) {
    DrawDesign(wb, d, false);
    DrawIFS(wb, d, wb.SelectedMap, 3);
    BoundingBoxes(wb, d, wb.SelectedMap);
    DrawBoundingBox(wb, d, wb.SelectedMap, HandleSize);
}

void beginRotation(Workbench& wb, DesignPictures& d, DesignGesture& g) {
    g.rotation = BeginRotation(wb, wb.SelectedMap, g.box, g.pressX, g.pressY);
    g.Rotating = true;
    g.cursor = DesignCursor::Rotate;
    // A press and release without a turn still commits the unchanged map.
    SetUndoCaption(wb, UndoRotationCaption);
    thinLine(d, g.rotation.cx, g.rotation.cy, g.pressX, g.pressY);
}

void beginShear(Workbench& wb, DesignGesture& g) {
    g.Shearing = true;
    g.cursor = HandleCursor(g.HandleId, true);
    SetUndoCaption(wb, UndoShearCaption);
}

// The press point and the map are kept; Ctrl alone turns the press into a rotation or a shear.
void startGesture(Workbench& wb, DesignPictures& d, DesignGesture& g, float x, float y, int Shift) {
    g.pressX = x;
    g.pressY = y;
    g.box = d.BoundingBox[static_cast<size_t>(wb.SelectedMap)];
    saveOriginal(wb);
    if (Shift != ShiftMaskCtrl) return;
    // Corners, and with Ctrl the boundary itself, turn; the middle handles shear.
    if (g.HandleId < 5)
        beginRotation(wb, d, g);
    else
        beginShear(wb, g);
}

void pressOnNothing(Workbench& wb, DesignPictures& d, DesignGesture& g) {
    DrawDesign(wb, d, false);
    wb.MapSelected = false;
    wb.CGMapSelected = false;
    if (wb.menu("mnuDesignGrid").checked && wb.GridX == wb.GridY) d.picTrans = Str(wb.GridX);
    AdjustDesignMenu(wb, false);
    g.HandleId = 0;
    g.cursor = DesignCursor::Normal;
}

void pressOnFunction(Workbench& wb, DesignPictures& d, DesignGesture& g, const PressHit& hit, float x,
                     float y, int Shift) {
    DrawDesign(wb, d, false);
    if (wb.MapSelected && hit.function != wb.SelectedMap) ResetUndoMenu(wb);
    wb.MapSelected = true;
    g.HandleId = hit.handle;
    g.cursor = hit.handle == 0 ? DesignCursor::Move : HandleCursor(hit.handle, false);
    AdjustDesignMenu(wb, true);
    wb.SelectedMap = static_cast<int16_t>(hit.function);
    BoundingBoxes(wb, d, hit.function);
    DrawBoundingBox(wb, d, hit.function, HandleSize);
    DrawIFS(wb, d, hit.function, 3);
    startGesture(wb, d, g, x, y, Shift);
}

void rotationStep(Workbench& wb, DesignPictures& d, DesignGesture& g, float x, float y) {
    applyStep(wb, d, RotationStep(wb.OriginalMap, g.rotation, x, y), UndoRotationCaption);
    drawGestureStep(wb, d);
    thinLine(d, g.rotation.cx, g.rotation.cy, g.pressX, g.pressY);
    thinLine(d, g.rotation.cx, g.rotation.cy, x, y);
}

void shearStep(Workbench& wb, DesignPictures& d, DesignGesture& g, float x, float y) {
    applyStep(wb, d, ComputeMouseShear(wb.OriginalMap, g.box, g.HandleId, x, y), UndoShearCaption);
    drawGestureStep(wb, d);
}

void dragStep(Workbench& wb, DesignPictures& d, DesignGesture& g, float x, float y) {
    if (g.HandleId == 0)
        applyStep(wb, d, MoveStep(wb.OriginalMap, g.pressX, g.pressY, x, y), UndoMoveCaption);
    else
        applyStep(wb, d, ResizeStep(wb.OriginalMap, g.box, g.HandleId, g.EqualResize, x, y),
                  UndoResizeCaption);
    drawGestureStep(wb, d);
    g.MouseMoved = true;
}

// The cursor over the selected map with no button held.
DesignCursor hoverCursor(const Workbench& wb, const DesignPictures& d, float x, float y, bool ctrl) {
    const size_t i = static_cast<size_t>(wb.SelectedMap);
    const int h = HitHandle(d.BoundingBox[i], x, y, HandleSize, wb.LineThickness, pixelX(d));
    if (h != 0) return HandleCursor(h, ctrl);
    return OnBoundary(d.PolygonImage[i], x, y, pixelX(d), pixelY(d)) ? DesignCursor::Move
                                                                     : DesignCursor::Normal;
}

// The keyboard gesture of a held modifier begins with the map and box as they are.
void startKeyGesture(Workbench& wb, DesignPictures& d, DesignGesture& g) {
    if (wb.GestureSaved) return;
    BoundingBoxes(wb, d, wb.SelectedMap);
    g.keyBox = d.BoundingBox[static_cast<size_t>(wb.SelectedMap)];
    saveOriginal(wb);
}

}  // namespace

DesignCursor DesignMouseDown(Workbench& wb, DesignPictures& d, DesignGesture& g, float x, float y,
                             int Shift) {
    g.MouseIsDown = true;
    g.EqualResize = Shift == ShiftMaskShift;
    g.MouseMoved = g.Rotating = g.Shearing = false;
    g.HandleId = 0;
    if (d.Poly.PolygonMode) return g.cursor;
    if (selectionLive(wb)) {
        const BoundingBox& box = d.BoundingBox[static_cast<size_t>(wb.SelectedMap)];
        g.HandleId = HitHandle(box, x, y, HandleSize, wb.LineThickness, pixelX(d));
        if (g.HandleId != 0) {
            if (Shift != ShiftMaskCtrl) g.cursor = HandleCursor(g.HandleId, false);
            startGesture(wb, d, g, x, y, Shift);
            return g.cursor;
        }
    } else {
        wb.MapSelected = false;
    }
    const std::vector<DesignPolygon> images(d.PolygonImage.begin(),
                                            d.PolygonImage.begin() + wb.CurrentIFS.nMaps);
    const BoundingBox box =
        wb.MapSelected ? d.BoundingBox[static_cast<size_t>(wb.SelectedMap)] : BoundingBox{};
    const PressHit hit = PickAtPress(wb, images, box, x, y, pixelX(d), pixelY(d));
    if (hit.function < 0)
        pressOnNothing(wb, d, g);
    else
        pressOnFunction(wb, d, g, hit, x, y, Shift);
    return g.cursor;
}

DesignCursor DesignMouseMove(Workbench& wb, DesignPictures& d, DesignGesture& g, float x, float y, int Shift,
                             bool ButtonDown) {
    d.picCoord = "(" + Format(x, "0.000") + "," + Format(y, "0.000") + ")" + d.HintText;
    g.mouseX = x;
    g.mouseY = y;
    if (d.Poly.PolygonMode) return g.cursor;
    if (!ButtonDown && selectionLive(wb)) g.cursor = hoverCursor(wb, d, x, y, (Shift & ShiftMaskCtrl) != 0);
    if (!ButtonDown || !g.MouseIsDown || !selectionLive(wb)) return g.cursor;
    if (g.Rotating) {
        rotationStep(wb, d, g, x, y);
    } else if (g.Shearing) {
        shearStep(wb, d, g, x, y);
    } else if (g.MouseMoved || PastDragThreshold(g.pressX, g.pressY, x, y, pixelX(d))) {
        dragStep(wb, d, g, x, y);
    }
    return g.cursor;
}

DesignCursor DesignMouseUp(Workbench& wb, DesignPictures& d, DesignGesture& g) {
    g.MouseIsDown = false;
    g.EqualResize = false;
    g.cursor = DesignCursor::Normal;
    if (!selectionLive(wb)) return g.cursor;
    drawSelection(wb, d);
    wb.GestureSaved = false;
    if (g.Rotating || g.Shearing) {
        CommitUndo(wb);
        g.Rotating = g.Shearing = false;
    }
    if (g.MouseMoved) {
        CommitUndo(wb);
        g.MouseMoved = false;
    }
    return g.cursor;
}

bool GestureKeyDown(Workbench& wb, DesignPictures& d, DesignGesture& g, int KeyCode, int Shift) {
    if (!isArrow(KeyCode) || d.Poly.PolygonMode || wb.DesignMode != 0 || g.MouseIsDown || !selectionLive(wb))
        return false;
    const bool vertical = KeyCode == KeyUpCode || KeyCode == KeyDownCode;
    if (Shift == ShiftMaskCtrl && vertical) {
        startKeyGesture(wb, d, g);
        applyStep(wb, d, ArrowKeyRotate(wb, wb.SelectedMap, KeyCode, g.KeyRotation), UndoRotationCaption);
        g.keyRotated = true;
    } else if (Shift == ShiftMaskShift) {
        startKeyGesture(wb, d, g);
        const IFSFunction present = wb.CurrentIFS.function(wb.SelectedMap);
        applyStep(wb, d,
                  KeyMove(present, wb.OriginalMap, KeyCode, static_cast<float>(pixelX(d)),
                          static_cast<float>(pixelY(d))),
                  UndoMoveCaption);
        g.keyMoved = true;
    } else if (Shift == ShiftMaskAlt) {
        startKeyGesture(wb, d, g);
        applyStep(wb, d, KeyShear(wb.OriginalMap, g.keyBox, KeyCode, g.KeyShearV, g.KeyShearH),
                  UndoShearCaption);
        g.keySheared = true;
    } else {
        return false;
    }
    drawGestureStep(wb, d);
    return true;
}

bool GestureKeyUp(Workbench& wb, DesignPictures& d, DesignGesture& g, int KeyCode, int Shift) {
    if (Shift != 0 || g.MouseIsDown || d.Poly.PolygonMode || wb.DesignMode != 0 || !selectionLive(wb))
        return false;
    bool* changed = nullptr;
    if (KeyCode == KeyCtrl17) changed = &g.keyRotated;
    if (KeyCode == KeyShift16) changed = &g.keyMoved;
    if (KeyCode == KeyAlt18) changed = &g.keySheared;
    if (!changed || !*changed) return false;
    drawSelection(wb, d);
    CommitUndo(wb);
    *changed = false;
    wb.GestureSaved = false;
    if (KeyCode == KeyCtrl17) g.KeyRotation = 0;
    if (KeyCode == KeyAlt18) g.KeyShearV = g.KeyShearH = 0;
    return true;
}

std::optional<DesignCursor> CtrlCursor(const Workbench& wb, const DesignPictures& d, const DesignGesture& g,
                                       bool pressed) {
    if (d.Poly.PolygonMode || g.MouseIsDown || !selectionLive(wb)) return std::nullopt;
    return hoverCursor(wb, d, g.mouseX, g.mouseY, pressed);
}

}  // namespace quillane
