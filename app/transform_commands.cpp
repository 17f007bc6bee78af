#include "app/transform_commands.h"

#include <cmath>

#include "core/function_table.h"
#include "core/numbers.h"
#include "core/table_editing.h"
#include "app/chaos_design.h"
#include "design/gesture_math.h"
#include "design/map_transforms.h"
#include "design/polygon_image.h"
#include "app/undo.h"

namespace quillane {

namespace {

bool canAct(const Workbench& wb) {
    return !wb.DrawingActive && wb.MapSelected && wb.DesignMode == 0;
}

BoundingBox selectedBox(const Workbench& wb) {
    return MapBoundingBox(wb.CurrentIFS, wb.SelectedMap, wb.InitialPolygon);
}

// Keeps the map before the change, puts the new one in its slot and ResultMap, rewrites the row.
void replaceSelectedMap(Workbench& wb, const IFSFunction& before, const IFSFunction& after) {
    wb.OriginalMap = before;
    wb.ResultMap = after;
    StoreCoefficients(wb.CurrentIFS, wb.SelectedMap, after);
    WriteTableRow(wb, wb.SelectedMap);
}

// The angle of the column (x, y) of a matrix as the rotate command shows it.
double columnAngle(float x, float y) {
    if (x == 0) return Sgn(y) * 90.0;
    const double t = std::atan(static_cast<double>(y) / x) * RadToDeg;
    if (x > 0) return t;
    if (y == 0) return 180;
    return t + Sgn(y) * 180;
}

// In the scale and rotation form the rotate command adds the angle to the map's former angles.
void writeRotatedAngles(Workbench& wb, const IFSFunction& before, double angle) {
    const int row = wb.SelectedMap;
    const double theta = columnAngle(before.a, before.c) + angle;
    const double phi = columnAngle(before.d, -before.b) + angle;
    wb.Table.text(3, row) = Format(theta, "0.00");
    wb.Table.text(4, row) = Format(phi, "0.00");
    wb.Table.old(3, row) = wb.Table.text(3, row);
    wb.Table.old(4, row) = wb.Table.text(4, row);
}

}  // namespace

void ReflectSelectedMap(Workbench& wb, int Direction) {
    SaveOriginalIFS(wb);
    const BoundingBox box = selectedBox(wb);
    const float xm = (box.xmin + box.xmax) / 2;
    const float ym = (box.ymin + box.ymax) / 2;
    const IFSFunction before = wb.CurrentIFS.function(wb.SelectedMap);
    replaceSelectedMap(wb, before, ReflectMap(before, Direction, xm, ym));
    wb.ReflectionDirection = static_cast<int16_t>(Direction);
}

void FlipPoly(Workbench& wb, int Direction) {
    if (!canAct(wb)) return;
    ReflectSelectedMap(wb, Direction);
    CommitCommand(wb, UndoReflectionCaption);
}

void mnuDesignFlipHor_Click(Workbench& wb) {
    if (wb.DesignMode == 1 && !wb.DrawingActive) return ReflectCGDesign(wb, "H");
    FlipPoly(wb, -1);
}

void mnuDesignFlipVert_Click(Workbench& wb) {
    if (wb.DesignMode == 1 && !wb.DrawingActive) return ReflectCGDesign(wb, "V");
    FlipPoly(wb, 1);
}

void RotateIFSDesign(Workbench& wb, double angle) {
    if (wb.DesignMode == 1 && !wb.DrawingActive) return RotateCGDesign(wb, angle);
    if (!canAct(wb)) return;
    const int i = wb.SelectedMap;
    const IFSFunction before = wb.CurrentIFS.function(i);
    float cx, cy;
    RotationCentreOf(wb, i, selectedBox(wb), cx, cy);
    replaceSelectedMap(wb, before, RotateMapAbout(before, angle * RotateDegToRad, cx, cy));
    if (wb.CodeForm == 1) writeRotatedAngles(wb, before, angle);
    CommitCommand(wb, UndoRotationCaption);
}

void ScaleDesignMap(Workbench& wb, Host& host, float percent) {
    if (!canAct(wb)) return;
    // The value goes through its text, as the dialog always passed it on.
    const float s = static_cast<float>(Val(Str(percent)) / 100);
    if (!(s > 0)) {
        host.warn(ScaleNotPositiveTitle, ScaleNotPositiveMessage);
        return;
    }
    const IFSFunction before = wb.CurrentIFS.function(wb.SelectedMap);
    replaceSelectedMap(wb, before, ScaleMatrix(before, s));
    CommitCommand(wb, UndoResizeCommandCaption);
}

void StretchShearMap(Workbench& wb, const SkewValues& v) {
    if (!canAct(wb)) return;
    const BoundingBox box = selectedBox(wb);
    const float xm = (box.xmin + box.xmax) / 2;
    const float ym = (box.ymin + box.ymax) / 2;
    const IFSFunction before = wb.CurrentIFS.function(wb.SelectedMap);
    const IFSFunction sheared = ShearMapHorizontal(ShearMapVertical(before, std::tan(v.SkewVert * DegToRad), xm),
                                                   std::tan(-v.SkewHori * DegToRad), ym);
    replaceSelectedMap(wb, before, StretchColumns(sheared, v.StrHori / 100, v.StrVert / 100));
    // The one command that leaves ChangeCount and IFSModified alone.
    SetUndoCaption(wb, UndoStretchShearCaption);
    OfferUndo(wb);
    RecursionOff(wb);
}

}  // namespace quillane
