#include "app/pythagorean_commands.h"

#include "app/design_view.h"
#include "app/deterministic_commands.h"
#include "core/fractal_list.h"
#include "core/function_forms.h"
#include "core/function_table.h"
#include "core/initial_polygons.h"
#include "core/numbers.h"
#include "core/undo_menu.h"
#include "design/design_drawing.h"
#include "render/deterministic.h"
#include "render/scale.h"

namespace quillane {
namespace {

constexpr int UnitSquareItem = 7;

void useUnitSquare(Workbench& wb) {
    for (int k = 0; k <= UserPolygonItem; ++k) wb.Menu.setChecked(MenuTable::key("mnupoly", k), false);
    wb.InitialPolygon = BuiltInPolygon(UnitSquareItem);
    wb.Menu.setChecked(MenuTable::key("mnupoly", UnitSquareItem), true);
    // The filled polygon figure stays, so that the boxes are drawn filled.
    ResetDetFigure(wb, wb.DetFigure == 1 ? 1 : 0);
}

// With the preview showing, the two leg maps alone are shown first, weighted u and v.
bool previewLegs(AppState& s, Host& host, const IFSEntry& tree) {
    if (!s.wb.menu("mnuDesignPreview").checked) return false;
    IFSEntry legs = tree;
    legs.nMaps = 2;
    legs.p[0] = tree.a[0];
    legs.p[1] = tree.a[1];
    s.wb.CurrentIFS = legs;
    setscale(s.wb, host, true, &s.pics);
    PreviewDraw(s);
    return true;
}

}  // namespace

std::optional<float> PythCheckTheta(const std::string& txtTheta, Host& host) {
    const float angle = static_cast<float>(Val(txtTheta));
    if (!PythAngleAccepted(angle)) {
        host.warn("Error", PythAngleError);
        return std::nullopt;
    }
    return angle;
}

int PythSliderValue(float angle) {
    return CInt(angle);
}

std::string PythThetaText(int slider) {
    return std::to_string(slider);
}

void SetUpDesign(Workbench& wb, DesignPictures& design) {
    wb.DesignWindow = PythDesignWindow;
    ApplyDesignWindow(design, wb.DesignWindow);
    DrawDesign(wb, design, true);
    ResetUndoMenu(wb);
    WriteDesignText(wb);
}

bool PythagoreanSetup(AppState& s, Host& host, const std::string& txtTheta) {
    const auto angle = PythCheckTheta(txtTheta, host);
    if (!angle) return false;
    Workbench& wb = s.wb;
    useUnitSquare(wb);
    const IFSEntry tree = PythagoreanIFS(*angle, txtTheta);
    const bool previewed = previewLegs(s, host, tree);
    wb.CurrentIFS = tree;
    wb.txtMaps = "3";
    wb.lblComment = tree.Comment[1];
    if (!previewed) setscale(wb, host, true, &s.pics);
    SetUpDesign(wb, s.design);
    wb.Menu.setEnabled("mnuRun", true);
    wb.Menu.setEnabled("mnuTrace", true);
    wb.IFSModified = true;
    if (wb.RandomMode) mnuDrawType_Click(wb, s.pics, host, 1);
    SetUpFunctions(wb, host, tree.nMaps);
    wb.DrawingStarted = false;
    ResetDeterministic(wb, s.pics, host);
    wb.FunctionsCaption = "IFS [" + tree.Name + "]";
    for (int k = 5; k <= 4 + MaxFractals; ++k) wb.Menu.setChecked(NamesKey(k), false);
    ResetUndoMenu(wb);
    wb.RecursionOff[3] = false;
    GeneratorBuilt(s.Generator);
    return true;
}

RasterSurface PythagoreanImage(float angle, int side) {
    RasterSurface pic(side, side, White);
    pic.setScale(PythDesignWindow.xmin, PythDesignWindow.ymax, PythDesignWindow.xmax, PythDesignWindow.ymin);
    const IFSEntry tree = PythagoreanIFS(angle, "");
    const double phi = PythPhi(tree);
    const Color colours[3] = {RGB(255, 0, 0), RGB(0, 0, 255), Black};
    BoxPainter paint;
    paint.picfractal = &pic;
    paint.colourOf = [&colours](int, int colour) { return colours[colour]; };
    PythTreeBoxFilled(phi, paint, 1, 0, 0, 1, 0, 2);
    return pic;
}

}  // namespace quillane
