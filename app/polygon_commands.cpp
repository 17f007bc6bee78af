#include "app/polygon_commands.h"

#include <cmath>
#include <fstream>
#include <sstream>

#include "core/ifs_file_writer.h"
#include "core/initial_polygons.h"
#include "core/numbers.h"
#include "design/design_drawing.h"
#include "app/design_view.h"
#include "render/deterministic.h"
#include "app/fractal_view.h"
#include "app/design_selection.h"

namespace quillane {

namespace {

// The path's pen: it shows on either design background.
Color pathColor(const Workbench& wb) {
    return wb.DesignBackColor == Black ? White : Black;
}

// One line in picdesign and its shadow picImage, in the given mode and the path's width.
void bothLine(Workbench& wb, DesignPictures& d, float x1, float y1, float x2, float y2, DrawMode mode) {
    for (RasterSurface* s : {&d.picdesign, &d.picImage}) {
        const DrawMode before = s->drawMode();
        s->setDrawMode(mode);
        s->setDrawWidth(wb.LineThickness + 1);
        s->line(x1, y1, x2, y2, pathColor(wb));
        s->setDrawWidth(1);
        s->setDrawMode(before);
    }
}

// A band of no length is no line at all, as the first one after a click is not.
void rubberBand(Workbench& wb, DesignPictures& d) {
    const PolygonDrawing& p = d.Poly;
    if (p.LastVertexX == p.RubberEndX && p.LastVertexY == p.RubberEndY) return;
    bothLine(wb, d, p.LastVertexX, p.LastVertexY, p.RubberEndX, p.RubberEndY, DrawMode::Invert);
}

void checkPolygonItem(Workbench& wb, int Index) {
    for (int k = 0; k <= UserPolygonItem; ++k) wb.Menu.setChecked(MenuTable::key("mnupoly", k), k == Index);
}

void useUserPolygon(Workbench& wb) {
    const std::string user = MenuTable::key("mnupoly", UserPolygonItem);
    wb.Menu.setEnabled(user, true);
    checkPolygonItem(wb, UserPolygonItem);
}

// The deterministic picture starts from the polygon: show the new one while nothing is drawn yet.
void redrawDeterministicFigure(Workbench& wb, FractalPictures& pics, Host& host) {
    if (!wb.menu("mnuDrawType(1)").checked || wb.DrawingActive || wb.IterationNumber >= 2) return;
    pics.picfractal.clear();
    DrawDetFigure(wb, pics, host, false);
    pics.picImage2.takeImage(pics.picfractal);
}

void leavePolygonMode(Workbench& wb, DesignPictures& d) {
    for (RasterSurface* s : {&d.picdesign, &d.picImage}) s->setDrawMode(d.SavedPenMode);
    d.Poly.PolygonFinished = true;
    d.Poly.PolygonMode = false;
    d.Poly.RubberBandActive = false;
    d.PolygonClicked = false;
    d.HintText.clear();
    wb.Menu.setEnabled("mnuFileSavePolygon", true);
    ToggleDesignMenus(wb, true);
    RestoreToolbarStatus(wb, d);
}

}  // namespace

void mnupoly_Click(Workbench& wb, DesignPictures& d, FractalPictures& pics, Host& host, int Index) {
    if (Index < 0 || Index > UserPolygonItem) return;
    if (d.Poly.PolygonMode) leavePolygonMode(wb, d);
    d.Poly.PolygonFinished = true;
    d.Poly.PolygonMode = false;
    d.HintText.clear();
    d.PolygonClicked = false;
    wb.Menu.setEnabled("mnuFileSavePolygon", true);
    checkPolygonItem(wb, Index);
    wb.InitialPolygon = Index == UserPolygonItem ? wb.UserPolygon : BuiltInPolygon(Index);
    if (wb.DesignMode == 0) DesignScale(wb, d);
    for (int i = 0; i < wb.CurrentIFS.nMaps && i < MaxMaps; ++i) BoundingBoxes(wb, d, i);
    DrawDesign(wb, d, false);
    if (wb.MapSelected) DrawSelectedIFS(wb, d, wb.SelectedMap, false);
    redrawDeterministicFigure(wb, pics, host);
}

void mnuDesignLoadPoly_Click(Workbench& wb, DesignPictures& d, FractalPictures& pics, Host& host) {
    FileDialogRequest request;
    request.filters = {{PolygonLoadFilter, "*.gon"}};
    request.folderKey = PolygonFolderKey;
    const std::optional<std::string> name = host.openFileName(request);
    if (!name) return;
    std::ifstream in(*name, std::ios::binary);
    if (!in) return;
    std::ostringstream text;
    text << in.rdbuf();
    ReadPolygonText(text.str(), wb.UserPolygon);
    d.picdesign.clear();
    useUserPolygon(wb);
    ResetUndoMenu(wb);
    wb.InitialPolygon = wb.UserPolygon;
    DesignScale(wb, d);
    redrawDeterministicFigure(wb, pics, host);
    if (wb.MapSelected) DrawSelectedIFS(wb, d, wb.SelectedMap, false);
}

void mnuFileSavePolygon_Click(Workbench& wb, Host& host) {
    wb.UserPolygon = wb.InitialPolygon;
    FileDialogRequest request;
    request.filters = {{PolygonSaveFilter, "*.gon"}};
    request.folderKey = PolygonFolderKey;
    const std::optional<std::string> chosen = host.saveFileName(request);
    if (!chosen) return;
    std::string name = Trim(*chosen);
    if (name.empty()) return;
    if (name.size() < 4 || ToLower(name.substr(name.size() - 4)) != ".gon") name += ".gon";
    WriteTextFileReplacing(name, WritePolygonText(wb.UserPolygon));
}

void mnuDesignPoly_Click(Workbench& wb, DesignPictures& d) {
    wb.Menu.setChecked("mnuDesignPoly", !wb.menu("mnuDesignPoly").checked);
    DrawDesign(wb, d, false);
    RedrawSelection(wb, d);
}

std::string PolygonHintText(int coordWidth, int letterWidth) {
    if (coordWidth > 48 * letterWidth) return " D:delete L:lift Q:done Shift:snap";
    if (coordWidth > 26 * letterWidth) return " D L Q Shift";
    if (coordWidth > 21 * letterWidth) return " DLQSh";
    return "";
}

void mnuDrawPoly_Click(Workbench& wb, DesignPictures& d, const std::string& hint) {
    d.Poly.UserPolygon = wb.UserPolygon;
    BeginPolygonMode(d.Poly);
    d.SavedPenMode = d.picdesign.drawMode();
    d.picImage.resize(d.picdesign.width(), d.picdesign.height());
    ApplyDesignWindow(d, wb.DesignWindow);
    d.picTrans.clear();
    RedrawPolygonMode(wb, d);
    d.HintText = hint;
    wb.MapSelected = false;
    AdjustDesignMenu(wb, false);
    ToggleDesignMenus(wb, false);
    SaveToolbarStatus(wb, d);
    wb.Menu.setEnabled("mnuFileSavePolygon", false);
}

void PolygonModeClick(Workbench& wb, DesignPictures& d, float x, float y, bool Snap) {
    PolygonDrawing& p = d.Poly;
    if (p.PolygonFinished || !p.PolygonMode) return;
    d.PolygonClicked = true;
    const float lastX = p.LastVertexX, lastY = p.LastVertexY;
    const bool banding = p.RubberBandActive;
    const int before = p.PolygonPointCount;
    const float tolerance = static_cast<float>(d.picdesign.pixelsToWorldX(CloseTolerance));
    const bool closed = PolygonClick(p, x, y, Snap, wb.GridX, wb.GridY, tolerance, wb.InitialPolygon);
    if (closed) {
        if (banding) bothLine(wb, d, lastX, lastY, x, y, DrawMode::Invert);
        bothLine(wb, d, lastX, lastY, p.PathStartX, p.PathStartY, DrawMode::CopyPen);
        wb.UserPolygon = p.UserPolygon;
        return;
    }
    if (p.PolygonPointCount == before) return;
    if (p.PathPointCount > 1) {
        // Without snapping the copy line lands on the rubber band; with it, the band goes first.
        if (Snap) bothLine(wb, d, lastX, lastY, x, y, DrawMode::Invert);
        bothLine(wb, d, lastX, lastY, p.RubberEndX, p.RubberEndY, DrawMode::CopyPen);
    }
    // The vertex may have cut the axes: they are drawn over, not inverted, and the band goes on
    // inverting.
    if (wb.menu("mnuDesignAxes").checked) {
        for (RasterSurface* s : {&d.picdesign, &d.picCGDesign}) s->setDrawMode(DrawMode::CopyPen);
        DrawDesignAxes(wb, d);
        for (RasterSurface* s : {&d.picdesign, &d.picCGDesign}) s->setDrawMode(DrawMode::Invert);
    }
    wb.UserPolygon = p.UserPolygon;
}

bool PolygonModeMove(Workbench& wb, DesignPictures& d, float x, float y) {
    PolygonDrawing& p = d.Poly;
    if (!p.PolygonMode || !p.RubberBandActive) return false;
    rubberBand(wb, d);
    p.RubberEndX = x;
    p.RubberEndY = y;
    rubberBand(wb, d);
    const double tolerance = d.picdesign.pixelsToWorldX(CloseTolerance);
    return p.PathPointCount >= 2 && std::hypot(x - p.PathStartX, y - p.PathStartY) < tolerance;
}

bool PolygonModeKey(Workbench& wb, DesignPictures& d, char key, bool repeat) {
    if (!d.Poly.PolygonMode) return false;
    if (key == 'Q' || key == 'q') {
        PolygonModeFinish(wb, d);
        return true;
    }
    const bool banding = d.Poly.RubberBandActive;
    DesignPolygon unused;
    if (!PolygonKey(d.Poly, key, repeat, unused)) return false;
    if (key == 'L' || key == 'l') {
        if (banding) rubberBand(wb, d);
    } else {
        RedrawPolygonMode(wb, d);
    }
    return true;
}

void PolygonModeFinish(Workbench& wb, DesignPictures& d) {
    PolygonDrawing& p = d.Poly;
    if (!p.PolygonMode) return;
    if (p.RubberBandActive) rubberBand(wb, d);
    const bool replaced = PolygonFinish(p, wb.InitialPolygon);
    leavePolygonMode(wb, d);
    if (replaced) {
        wb.UserPolygon = p.UserPolygon;
        useUserPolygon(wb);
        wb.Menu.setChecked("mnuDesignPoly", true);
    }
    DrawDesign(wb, d, false);
}

void RedrawPolygonMode(Workbench& wb, DesignPictures& d) {
    const PolygonDrawing& p = d.Poly;
    for (RasterSurface* s : {&d.picdesign, &d.picImage}) {
        s->clear();
        s->setDrawWidth(1);
        s->setDrawMode(DrawMode::CopyPen);
    }
    if (wb.menu("mnuDesignGrid").checked) drawDesignGrid(wb, d, true);
    if (wb.menu("mnuDesignAxes").checked) DrawDesignAxes(wb, d);
    if (wb.menu("mnuDesignFP").checked) DrawDesignFPs(wb, d);
    const DesignPolygon& u = p.UserPolygon;
    for (int k = 2; k <= p.PolygonPointCount; ++k)
        if (!u.isPenLift(k) && !u.isPenLift(k - 1))
            bothLine(wb, d, u.x[k - 1], u.y[k - 1], u.x[k], u.y[k], DrawMode::CopyPen);
    for (RasterSurface* s : {&d.picdesign, &d.picImage}) s->setDrawMode(DrawMode::Invert);
    if (p.RubberBandActive) rubberBand(wb, d);
}

void SaveToolbarStatus(Workbench& wb, DesignPictures& d) {
    for (int b = 1; b <= DesignToolbarButtons; ++b) {
        d.SavedToolbar[static_cast<size_t>(b)] = wb.menu(DesignToolbarKey(b)).enabled;
        wb.Menu.setEnabled(DesignToolbarKey(b), b >= 9 && b <= 11);
    }
}

void RestoreToolbarStatus(Workbench& wb, const DesignPictures& d) {
    for (int b = 1; b <= DesignToolbarButtons; ++b)
        wb.Menu.setEnabled(DesignToolbarKey(b), d.SavedToolbar[static_cast<size_t>(b)]);
}

void ToggleDesignMenus(Workbench& wb, bool Enabled) {
    for (const char* key :
         {"mnuDesignExamples", "mnuDesignNew", "mnuPickPoly", "mnuDesignLoadPoly", "mnuDrawPoly", "mnuDesignPoly",
          "mnuDesignPreview", "mnuDesignLoadPicture", "mnuDesignClearPict", "mnuDesignFitWin", "mnuEditPaste",
          "mnuDesignLineThickness", "mnuDesignSwap"})
        wb.Menu.setEnabled(key, Enabled);
}

}  // namespace quillane
