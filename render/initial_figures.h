#pragma once
// The initial sets of the deterministic drawing: the figures 0 to 6 of mnuDrawAddFigure, the checks of
// their dialogs (texts in, parameters or the exact message out), their window fit and their drawing.
#include <optional>
#include <string>
#include <variant>

#include "core/colors.h"
#include "core/host.h"
#include "core/initial_polygons.h"
#include "core/workbench.h"
#include "render/raster_surface.h"

namespace quillane {

inline constexpr const char* FigureErrorTitle = "Error";
inline constexpr const char* PolygonCannotBeDrawn = "Polygon cannot be drawn";

// A dialog's verdict on OK: the parameters, or the message that keeps it open.
template <class T>
struct Checked {
    std::optional<T> value;
    std::string message;
};

// Figure 0 (frmPolygonDesign) and 1 (frmPolygonFIll2): the initial polygon.
struct PolygonOutlineFigure {
    int penWidth = 1;
    Color color = Black;
};
struct PolygonFilledFigure {
    bool optVisible = true;  // the outline drawn over the fill
    int penWidth = 1;
    Color color = Black;
};
struct LineFigure {
    float x1 = 0, y1 = 0, x2 = 1, y2 = 0;
    int penWidth = 1;
    Color color = Black;
};
enum class TriangleShape { Equilateral, Right, General };
struct TriangleFigure {
    TriangleShape shape = TriangleShape::Equilateral;
    float x = 0, y = 0, width = 1, height = 1;
    float px[3]{}, py[3]{};  // the corners of a general triangle
    bool filled = true;
    int penWidth = 1;
    Color fillColor = Black, lineColor = Black;
};
struct RectangleFigure {
    bool square = false;
    float x = 0, y = 0, width = 1, height = 1;
    bool filled = true;
    int penWidth = 1;
    Color color = Black;
};
struct RegularPolygonFigure {
    int sides = 5;
    float x = 0, y = 0, width = 1;  // lower left corner and width of its bounding box
    bool filled = true;
    int penWidth = 1;
    Color color = Black;
};
struct CircleFigure {
    float x = 0, y = 0, radius = 1;
    bool filled = true;
    int penWidth = 1;
    Color color = Black;
};

using FigureParameters = std::variant<PolygonOutlineFigure, PolygonFilledFigure, LineFigure, TriangleFigure,
                                      RectangleFigure, RegularPolygonFigure, CircleFigure>;

// The boxes of each dialog as typed.
struct LineDialogText {
    std::string txtX1, txtY1, txtX2, txtY2;
    int cmbWidth = 1;
    Color color = Black;
};
struct TriangleDialogText {
    TriangleShape shape = TriangleShape::Equilateral;
    std::string txtX, txtY, txtWidth, txtHeight;
    std::string txtPoints[6];  // x1, y1, x2, y2, x3, y3
    bool filled = true;
    int thickness = 1;
    Color fillColor = Black, lineColor = Black;
};
struct RectangleDialogText {
    bool optsquare = false;
    std::string txtX, txtY, txtWidth, txtHeight;
    bool filled = true;
    int thickness = 1;
    Color color = Black;
};
struct PolygonDialogText {
    int sides = 5;
    std::string txtX, txtY, txtWidth;
    bool filled = true;
    int thickness = 1;
    Color color = Black;
};
struct CircleDialogText {
    std::string txtX, txtY, txtRadius;
    bool filled = true;
    int thickness = 1;
    Color color = Black;
};

Checked<LineFigure> CheckLineDialog(const LineDialogText& t);
Checked<TriangleFigure> CheckTriangleDialog(const TriangleDialogText& t);
Checked<RectangleFigure> CheckRectangleDialog(const RectangleDialogText& t);
Checked<RegularPolygonFigure> CheckPolygonDialog(const PolygonDialogText& t);
Checked<CircleFigure> CheckCircleDialog(const CircleDialogText& t);
// frmPolygonFIll2 refuses a polygon without a path of three vertices.
Checked<PolygonFilledFigure> CheckPolygonFillDialog(const DesignPolygon& polygon,
                                                    const PolygonFilledFigure& f);

// Shows a verdict's message in the "Error" box; true when the dialog may close.
template <class T>
bool AcceptChecked(Host& host, const Checked<T>& verdict) {
    if (verdict.value) return true;
    host.warn(FigureErrorTitle, verdict.message);
    return false;
}

// The corners of a triangle figure.
void TriangleCorners(const TriangleFigure& f, float px[3], float py[3]);
// The vertices of a regular polygon figure, closed (the last equals the first).
DesignPolygon RegularPolygonVertices(const RegularPolygonFigure& f);

// The pen width in world units on `surface`, rounded to three decimals.
float PenWidthInWorld(const RasterSurface& surface, int widthPixels);
// The figure's bounding box extended by w on every side.
WorldWindow FigureFitWindow(const FigureParameters& figure, const DesignPolygon& InitialPolygon, float w);

// frmPolygonDesign's picPolygon: the polygon drawn with the figure's pen on a white square of
// `side` pixels, scaled by PolygonPreviewWindow.
RasterSurface PolygonPreview(const DesignPolygon& polygon, const PolygonOutlineFigure& f, int side);

// The drawings, with the figure's own pen width and colour; the surface's pen is left as it was.
void DrawInitialSet(RasterSurface& s, const DesignPolygon& polygon, const PolygonOutlineFigure& f);
// False when no path of the polygon can be filled; nothing is drawn then.
bool DrawInitialSetFilled(RasterSurface& s, const DesignPolygon& polygon, const PolygonFilledFigure& f);
void DrawLineFigure(RasterSurface& s, const LineFigure& f);
void DrawTriangleFigure(RasterSurface& s, const TriangleFigure& f);
void DrawRectangleFigure(RasterSurface& s, const RectangleFigure& f);
void DrawRegularPolygonFigure(RasterSurface& s, const RegularPolygonFigure& f);
void DrawCircleFigure(RasterSurface& s, const CircleFigure& f);
void DrawFigure(RasterSurface& s, const FigureParameters& figure, const DesignPolygon& InitialPolygon);

// Figure 7: the picture file dialog. The chosen name, or PictureCancelled when the person cancelled.
inline constexpr const char* PictureCancelled = "zzcancelzz";
inline constexpr const char* OpenImageTitle = "Open Image File";
inline constexpr const char* ErrorSelectingFile = "Error selecting file.";
std::string PictureName(Host& host);
// The name of a picture figure, or nothing when the former figure stays: an empty name shows
// "Error selecting file.", a cancelled dialog says nothing.
std::optional<std::string> ChoosePictureFile(Host& host);

// What the figure commands remember between showings.
struct InitialFigures {
    std::optional<FigureParameters> last[7];
    // mnuDrawDetColorItems(0) as it stood before a picture figure switched to "Use Image Colors".
    std::optional<bool> savedUseIFSColors;
};

// Takes a figure dialog's result: with nothing (Cancel) the pictures, DetFigure and the remembered
// values stay as they were and false is returned. Otherwise the figure becomes DetFigure and is
// drawn afresh into both pictures.
bool AcceptFigure(Workbench& wb, InitialFigures& figs, int Figure,
                  const std::optional<FigureParameters>& result, const DesignPolygon& InitialPolygon,
                  RasterSurface& picfractal, RasterSurface& picImage3);

// The colour items after a figure was chosen: a picture figure (7, 8) remembers them once and turns
// on "Use Image Colors"; a drawn figure brings the remembered choice back.
void FigureColorItems(Workbench& wb, InitialFigures& figs, int Figure);
// The chkColor box of the figure dialogs: whether the figure will be drawn in the IFS colours, that
// is mnuDrawDetColorItems(0) as it stands after a drawn figure brought a remembered choice back.
bool FigureUsesIFSColors(const Workbench& wb, const InitialFigures& figs);
// OK of a figure dialog sets the two items from chkColor; the person's choice replaces one remembered
// from a picture figure. Cancel calls nothing, so the items stay.
void SetFigureColorChoice(Workbench& wb, InitialFigures& figs, bool useIFSColors);

// Where a placed picture at world (PasteX, PasteY) must go after the view changes from `before` to
// `after`, so that it stays on the same pixels of a picture `side` pixels square.
void PastePositionAfterRescale(const WorldWindow& before, const WorldWindow& after, int side, double& PasteX,
                               double& PasteY);

}  // namespace quillane
