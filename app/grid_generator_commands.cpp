#include "app/grid_generator_commands.h"

#include "app/design_view.h"
#include "core/fractal_list.h"
#include "core/function_forms.h"
#include "core/function_table.h"
#include "core/initial_polygons.h"
#include "core/undo_menu.h"
#include "design/design_drawing.h"
#include "render/deterministic.h"
#include "render/scale.h"

namespace quillane {
namespace {

void usePolygon(Workbench& wb, int item) {
    for (int k = 0; k <= UserPolygonItem; ++k) wb.Menu.setChecked(MenuTable::key("mnupoly", k), false);
    wb.InitialPolygon = BuiltInPolygon(item);
    wb.Menu.setChecked(MenuTable::key("mnupoly", item), true);
}

}  // namespace

void ShowBuiltIFS(AppState& s, Host& host, bool boundingBoxes) {
    Workbench& wb = s.wb;
    const int count = wb.CurrentIFS.nMaps;
    wb.lblComment.clear();
    wb.CurrentIFS.nComments = 0;
    wb.txtMaps = std::to_string(count);
    WriteTableRows(wb);
    setscale(wb, host, true, &s.pics);
    wb.UndoWindow = wb.Window;
    DesignScale(wb, s.design);
    if (boundingBoxes)
        for (int i = 0; i < count; ++i) BoundingBoxes(wb, s.design, i);
    wb.Menu.setEnabled("mnuRun", true);
    wb.Menu.setEnabled("mnuTrace", true);
    wb.DrawingStarted = false;
    wb.IFSModified = true;
    wb.ChangeCount = 0;
    wb.Menu.setEnabled(NamesKey(0), true);
    DrawDesign(wb, s.design, true);
    SetUpFunctions(wb, host, count);
    if (wb.menu("mnuDrawType(1)").checked) ResetDeterministic(wb, s.pics, host);
    wb.FunctionsCaption = "IFS [Untitled]";
    for (int k = 5; k <= 4 + MaxFractals; ++k) wb.Menu.setChecked(NamesKey(k), false);
    ResetUndoMenu(wb);
    wb.SelectedIFS = 0;
    GeneratorBuilt(s.Generator);
}

bool BoxFractalSetup(AppState& s, Host& host, const BoxFractal& box) {
    if (box.BoxCount <= 0) {
        host.message(MessageIcon::Critical, "Error", NoBoxesMessage, MessageButtons::OK);
        return false;
    }
    usePolygon(s.wb, 0);
    s.wb.CurrentIFS = BoxMaps(box);
    ShowBuiltIFS(s, host, false);
    return true;
}

bool TriangleFractalCreate(AppState& s, Host& host, const TriangleFractal& tri) {
    if (tri.TriangleCount <= 0) {
        host.message(MessageIcon::Critical, "Error", NoTrianglesMessage, MessageButtons::OK);
        return false;
    }
    usePolygon(s.wb, 1);
    s.wb.CurrentIFS = TriangleMaps(tri);
    ShowBuiltIFS(s, host, true);
    return true;
}

}  // namespace quillane
