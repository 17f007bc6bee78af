#include "render/initial_figures.h"

#include <algorithm>
#include <cmath>
#include <type_traits>
#include <vector>

#include "core/evaluator.h"
#include "core/menu_state.h"
#include "core/numbers.h"

namespace quillane {

namespace {

// The texts of the dialogs, blanks and all.
constexpr const char* LineX1Text = "Cannot evaluate expression for X1  ";
constexpr const char* LineY1Text = "Cannot evaluate expression for Y1  ";
constexpr const char* LineX2Text = "Cannot evaluate expression for X2 ";
constexpr const char* LineY2Text = "Cannot evaluate expression for Y2 ";
constexpr const char* SamePointsText = "Both points are the same  ";
constexpr const char* XText = "Cannot evaluate expression for x.  ";
constexpr const char* YText = "Cannot evaluate expression for y.  ";
constexpr const char* WidthText = "Cannot evaluate expression for width.  ";
constexpr const char* HeightText = "Cannot evaluate expression for height.  ";
constexpr const char* WidthPositiveText = "Width must be positive.  ";
constexpr const char* HeightPositiveText = "Height must be positive.  ";
constexpr const char* CoordinatesText = "Cannot evaluate one of the coordinates.   ";
constexpr const char* CircleXText = "Cannot evaluate expression for x";
constexpr const char* CircleYText = "Cannot evaluate expression for y";
constexpr const char* RadiusText = "Cannot evaluate expression for radius";
constexpr const char* RadiusPositiveText = "Radius must be positive  ";

// Evaluates one box into `out`; on failure records `text` as the verdict's message.
template <class T>
bool field(const std::string& box, float& out, const char* text, Checked<T>& verdict) {
    const std::optional<float> v = EvaluateText(box);
    if (!v) {
        verdict.message = text;
        return false;
    }
    out = *v;
    return true;
}

template <class T>
bool positive(float v, const char* text, Checked<T>& verdict) {
    if (v > 0) return true;
    verdict.message = text;
    return false;
}

// Saves the pen of a surface and puts it back when the drawing is done.
class PenScope {
  public:
    PenScope(RasterSurface& s, int width) : s_(s), width_(s.drawWidth()), mode_(s.drawMode()) {
        s.setDrawWidth(width);
        s.setDrawMode(DrawMode::CopyPen);
    }
    ~PenScope() {
        s_.setDrawWidth(width_);
        s_.setDrawMode(mode_);
    }
    PenScope(const PenScope&) = delete;
    PenScope& operator=(const PenScope&) = delete;

  private:
    RasterSurface& s_;
    int width_;
    DrawMode mode_;
};

// The paths of a polygon: the runs of entries between pen lifts.
std::vector<std::vector<WorldPoint>> polygonPaths(const DesignPolygon& p) {
    std::vector<std::vector<WorldPoint>> paths(1);
    for (int i = 1; i <= p.nPoints; ++i) {
        if (p.isPenLift(i)) {
            if (!paths.back().empty()) paths.emplace_back();
            continue;
        }
        paths.back().push_back({p.x[i], p.y[i]});
    }
    if (paths.back().empty()) paths.pop_back();
    return paths;
}

// A path of three or more distinct vertices encloses something.
bool fillable(const std::vector<WorldPoint>& path) {
    std::vector<WorldPoint> distinct;
    for (const WorldPoint& q : path) {
        const bool seen = std::any_of(distinct.begin(), distinct.end(),
                                      [&](const WorldPoint& d) { return d.x == q.x && d.y == q.y; });
        if (!seen) distinct.push_back(q);
    }
    return distinct.size() >= 3;
}

struct Bounds {
    float xmin = 0, xmax = 0, ymin = 0, ymax = 0;
    bool any = false;
    void add(float x, float y) {
        xmin = any ? std::min(xmin, x) : x;
        xmax = any ? std::max(xmax, x) : x;
        ymin = any ? std::min(ymin, y) : y;
        ymax = any ? std::max(ymax, y) : y;
        any = true;
    }
    WorldWindow extended(float w) const { return {xmin - w, xmax + w, ymin - w, ymax + w}; }
};

Bounds polygonBounds(const DesignPolygon& p) {
    Bounds b;
    for (int i = 1; i <= p.nPoints; ++i)
        if (!p.isPenLift(i)) b.add(p.x[i], p.y[i]);
    return b;
}

float triangleHeight(const TriangleFigure& f) {
    return f.shape == TriangleShape::Equilateral ? f.width * static_cast<float>(std::sqrt(3.0) / 2.0)
                                                 : f.height;
}

}  // namespace

Checked<LineFigure> CheckLineDialog(const LineDialogText& t) {
    Checked<LineFigure> v;
    LineFigure f;
    if (!field(t.txtX1, f.x1, LineX1Text, v) || !field(t.txtY1, f.y1, LineY1Text, v) ||
        !field(t.txtX2, f.x2, LineX2Text, v) || !field(t.txtY2, f.y2, LineY2Text, v))
        return v;
    if (f.x1 == f.x2 && f.y1 == f.y2) {
        v.message = SamePointsText;
        return v;
    }
    f.penWidth = t.cmbWidth;
    f.color = t.color;
    v.value = f;
    return v;
}

Checked<TriangleFigure> CheckTriangleDialog(const TriangleDialogText& t) {
    Checked<TriangleFigure> v;
    TriangleFigure f;
    f.shape = t.shape;
    if (t.shape == TriangleShape::General) {
        float c[6];
        for (int k = 0; k < 6; ++k)
            if (!field(t.txtPoints[k], c[k], CoordinatesText, v)) return v;
        for (int k = 0; k < 3; ++k) {
            f.px[k] = c[2 * k];
            f.py[k] = c[2 * k + 1];
        }
    } else {
        if (!field(t.txtX, f.x, XText, v) || !field(t.txtY, f.y, YText, v) ||
            !field(t.txtWidth, f.width, WidthText, v) || !positive(f.width, WidthPositiveText, v))
            return v;
        // The equilateral triangle takes its height from its width.
        if (t.shape == TriangleShape::Right &&
            (!field(t.txtHeight, f.height, HeightText, v) || !positive(f.height, HeightPositiveText, v)))
            return v;
        f.height = triangleHeight(f);
    }
    f.filled = t.filled;
    f.penWidth = t.thickness;
    f.fillColor = t.fillColor;
    f.lineColor = t.lineColor;
    v.value = f;
    return v;
}

namespace {
// The fill and pen of a dialog go with its figure once the numbers passed.
template <class Figure, class Text>
Checked<Figure> accepted(Checked<Figure>& v, Figure f, const Text& t) {
    f.filled = t.filled;
    f.penWidth = t.thickness;
    f.color = t.color;
    v.value = f;
    return v;
}
}  // namespace

Checked<RectangleFigure> CheckRectangleDialog(const RectangleDialogText& t) {
    Checked<RectangleFigure> v;
    RectangleFigure f;
    f.square = t.optsquare;
    if (!field(t.txtX, f.x, XText, v) || !field(t.txtY, f.y, YText, v) ||
        !field(t.txtWidth, f.width, WidthText, v) || !positive(f.width, WidthPositiveText, v))
        return v;
    if (f.square) {
        f.height = f.width;
    } else if (!field(t.txtHeight, f.height, HeightText, v) || !positive(f.height, HeightPositiveText, v)) {
        return v;
    }
    return accepted(v, f, t);
}

Checked<RegularPolygonFigure> CheckPolygonDialog(const PolygonDialogText& t) {
    Checked<RegularPolygonFigure> v;
    RegularPolygonFigure f;
    if (!field(t.txtX, f.x, XText, v) || !field(t.txtY, f.y, YText, v) ||
        !field(t.txtWidth, f.width, WidthText, v) || !positive(f.width, WidthPositiveText, v))
        return v;
    f.sides = std::clamp(t.sides, 3, MaxPolygonPoints - 1);
    return accepted(v, f, t);
}

Checked<CircleFigure> CheckCircleDialog(const CircleDialogText& t) {
    Checked<CircleFigure> v;
    CircleFigure f;
    if (!field(t.txtX, f.x, CircleXText, v) || !field(t.txtY, f.y, CircleYText, v) ||
        !field(t.txtRadius, f.radius, RadiusText, v) || !positive(f.radius, RadiusPositiveText, v))
        return v;
    return accepted(v, f, t);
}

Checked<PolygonFilledFigure> CheckPolygonFillDialog(const DesignPolygon& polygon,
                                                    const PolygonFilledFigure& f) {
    Checked<PolygonFilledFigure> v;
    const auto paths = polygonPaths(polygon);
    if (std::any_of(paths.begin(), paths.end(), fillable))
        v.value = f;
    else
        v.message = PolygonCannotBeDrawn;
    return v;
}

void TriangleCorners(const TriangleFigure& f, float px[3], float py[3]) {
    if (f.shape == TriangleShape::General) {
        std::copy(f.px, f.px + 3, px);
        std::copy(f.py, f.py + 3, py);
        return;
    }
    const float h = triangleHeight(f);
    const float apex = f.shape == TriangleShape::Equilateral ? f.x + f.width / 2 : f.x;
    px[0] = f.x, py[0] = f.y;
    px[1] = f.x + f.width, py[1] = f.y;
    px[2] = apex, py[2] = f.y + h;
}

DesignPolygon RegularPolygonVertices(const RegularPolygonFigure& f) {
    DesignPolygon unit = RegularPolygon(f.sides);
    const Bounds b = polygonBounds(unit);
    const float k = b.xmax > b.xmin ? f.width / (b.xmax - b.xmin) : f.width;
    for (int i = 1; i <= unit.nPoints; ++i) {
        unit.x[i] = f.x + (unit.x[i] - b.xmin) * k;
        unit.y[i] = f.y + (unit.y[i] - b.ymin) * k;
    }
    return unit;
}

float PenWidthInWorld(const RasterSurface& surface, int widthPixels) {
    return static_cast<float>(Round(surface.pixelsToWorldX(widthPixels), 3));
}

WorldWindow FigureFitWindow(const FigureParameters& figure, const DesignPolygon& InitialPolygon, float w) {
    Bounds b;
    if (std::holds_alternative<PolygonOutlineFigure>(figure) ||
        std::holds_alternative<PolygonFilledFigure>(figure)) {
        b = polygonBounds(InitialPolygon);
    } else if (const auto* l = std::get_if<LineFigure>(&figure)) {
        // The smaller coordinate plus the length, as the dialog computes it.
        const float x = std::min(l->x1, l->x2), y = std::min(l->y1, l->y2);
        return {x - w, x + std::fabs(l->x2 - l->x1) + w, y - w, y + std::fabs(l->y2 - l->y1) + w};
    } else if (const auto* t = std::get_if<TriangleFigure>(&figure)) {
        float px[3], py[3];
        TriangleCorners(*t, px, py);
        for (int k = 0; k < 3; ++k) b.add(px[k], py[k]);
    } else if (const auto* r = std::get_if<RectangleFigure>(&figure)) {
        return {r->x - w, r->x + r->width + w, r->y - w, r->y + r->height + w};
    } else if (const auto* g = std::get_if<RegularPolygonFigure>(&figure)) {
        b = polygonBounds(RegularPolygonVertices(*g));
    } else if (const auto* c = std::get_if<CircleFigure>(&figure)) {
        b.add(c->x - c->radius, c->y - c->radius);
        b.add(c->x + c->radius, c->y + c->radius);
    }
    return b.extended(w);
}

void DrawInitialSet(RasterSurface& s, const DesignPolygon& polygon, const PolygonOutlineFigure& f) {
    PenScope pen(s, f.penWidth);
    if (polygon.nPoints < 1) return;
    float cx = polygon.x[1], cy = polygon.y[1];
    for (int i = 2; i <= polygon.nPoints; ++i) {
        if (polygon.isPenLift(i)) {
            if (i + 1 > polygon.nPoints) break;
            ++i;
        } else {
            s.line(cx, cy, polygon.x[i], polygon.y[i], f.color);
        }
        cx = polygon.x[i];
        cy = polygon.y[i];
    }
}

bool DrawInitialSetFilled(RasterSurface& s, const DesignPolygon& polygon, const PolygonFilledFigure& f) {
    const auto paths = polygonPaths(polygon);
    if (!std::any_of(paths.begin(), paths.end(), fillable)) return false;
    {
        PenScope thin(s, 1);
        for (const auto& path : paths)
            if (fillable(path)) s.polygon(path, f.color, true);
    }
    if (f.optVisible) {
        PenScope pen(s, f.penWidth);
        for (const auto& path : paths) s.polygon(path, f.color, false);
    }
    return true;
}

void DrawLineFigure(RasterSurface& s, const LineFigure& f) {
    PenScope pen(s, f.penWidth);
    s.line(f.x1, f.y1, f.x2, f.y2, f.color);
}

void DrawTriangleFigure(RasterSurface& s, const TriangleFigure& f) {
    float px[3], py[3];
    TriangleCorners(f, px, py);
    const std::vector<WorldPoint> corners{{px[0], py[0]}, {px[1], py[1]}, {px[2], py[2]}};
    if (f.filled) {
        PenScope thin(s, 1);
        s.polygon(corners, f.fillColor, true);
    }
    PenScope pen(s, f.penWidth);
    s.polygon(corners, f.lineColor, false);
}

void DrawRectangleFigure(RasterSurface& s, const RectangleFigure& f) {
    const float x2 = f.x + f.width, y2 = f.y + f.height;
    if (f.filled) {
        s.box(f.x, f.y, x2, y2, f.color, true);
        return;
    }
    PenScope pen(s, f.penWidth);
    s.line(f.x, f.y, x2, f.y, f.color);
    s.line(x2, f.y, x2, y2, f.color);
    s.line(x2, y2, f.x, y2, f.color);
    s.line(f.x, y2, f.x, f.y, f.color);
}

void DrawRegularPolygonFigure(RasterSurface& s, const RegularPolygonFigure& f) {
    const DesignPolygon p = RegularPolygonVertices(f);
    std::vector<WorldPoint> corners;
    for (int i = 1; i < p.nPoints; ++i) corners.push_back({p.x[i], p.y[i]});
    PenScope pen(s, f.filled ? 1 : f.penWidth);
    s.polygon(corners, f.color, f.filled);
}

void DrawCircleFigure(RasterSurface& s, const CircleFigure& f) {
    PenScope pen(s, f.penWidth);
    s.circle(f.x, f.y, f.radius, f.color, f.filled);
}

RasterSurface PolygonPreview(const DesignPolygon& polygon, const PolygonOutlineFigure& f, int side) {
    RasterSurface s(side, side, White);
    const WorldWindow w = PolygonPreviewWindow(polygon);
    s.setScale(w.xmin, w.ymax, w.xmax, w.ymin);
    DrawInitialSet(s, polygon, f);
    return s;
}

void DrawFigure(RasterSurface& s, const FigureParameters& figure, const DesignPolygon& InitialPolygon) {
    std::visit(
        [&](const auto& f) {
            using F = std::decay_t<decltype(f)>;
            if constexpr (std::is_same_v<F, PolygonOutlineFigure>) DrawInitialSet(s, InitialPolygon, f);
            if constexpr (std::is_same_v<F, PolygonFilledFigure>) DrawInitialSetFilled(s, InitialPolygon, f);
            if constexpr (std::is_same_v<F, LineFigure>) DrawLineFigure(s, f);
            if constexpr (std::is_same_v<F, TriangleFigure>) DrawTriangleFigure(s, f);
            if constexpr (std::is_same_v<F, RectangleFigure>) DrawRectangleFigure(s, f);
            if constexpr (std::is_same_v<F, RegularPolygonFigure>) DrawRegularPolygonFigure(s, f);
            if constexpr (std::is_same_v<F, CircleFigure>) DrawCircleFigure(s, f);
        },
        figure);
}

bool AcceptFigure(Workbench& wb, InitialFigures& figs, int Figure,
                  const std::optional<FigureParameters>& result, const DesignPolygon& InitialPolygon,
                  RasterSurface& picfractal, RasterSurface& picImage3) {
    if (!result || Figure < 0 || Figure > 6) return false;
    figs.last[Figure] = *result;
    wb.DetFigure = static_cast<int16_t>(Figure);
    picImage3.setBackColor(picfractal.backColor());
    picImage3.clear();
    picfractal.clear();
    DrawFigure(picfractal, *result, InitialPolygon);
    DrawFigure(picImage3, *result, InitialPolygon);
    return true;
}

namespace {

const std::string& ifsColorsItem() {
    static const std::string key = MenuTable::key("mnuDrawDetColorItems", 0);
    return key;
}

void checkColorItems(Workbench& wb, bool useIFSColors) {
    wb.Menu.setChecked(ifsColorsItem(), useIFSColors);
    wb.Menu.setChecked(MenuTable::key("mnuDrawDetColorItems", 1), !useIFSColors);
}

}  // namespace

void FigureColorItems(Workbench& wb, InitialFigures& figs, int Figure) {
    if (Figure > 6) {
        if (!figs.savedUseIFSColors) figs.savedUseIFSColors = wb.menu(ifsColorsItem()).checked;
        checkColorItems(wb, false);
    } else if (figs.savedUseIFSColors) {
        checkColorItems(wb, *figs.savedUseIFSColors);
        figs.savedUseIFSColors.reset();
    }
}

bool FigureUsesIFSColors(const Workbench& wb, const InitialFigures& figs) {
    return figs.savedUseIFSColors.value_or(wb.menu(ifsColorsItem()).checked);
}

void SetFigureColorChoice(Workbench& wb, InitialFigures& figs, bool useIFSColors) {
    figs.savedUseIFSColors.reset();
    checkColorItems(wb, useIFSColors);
}

std::string PictureName(Host& host) {
    FileDialogRequest request;
    request.title = OpenImageTitle;
    request.filters = {{"Images (*.gif; *.png; *.jpg; *.jpeg; *.bmp)", "*.bmp; *.gif; *.jpg; *.jpeg; *.png"},
                       {"GIF images (*.gif)", "*.gif"},
                       {"PNG images (*.png)", "*.png"},
                       {"JPG images (*.jpg; *.jpeg)", "*.jpg; *.jpeg"},
                       {"bitmap images (*.bmp)", "*.bmp"}};
    request.folderKey = "PictureFigure";
    const std::optional<std::string> name = host.openFileName(request);
    return name ? *name : PictureCancelled;
}

std::optional<std::string> ChoosePictureFile(Host& host) {
    const std::string name = PictureName(host);
    if (name == PictureCancelled) return std::nullopt;
    if (name.empty()) {
        host.warn(FigureErrorTitle, ErrorSelectingFile);
        return std::nullopt;
    }
    return name;
}

void PastePositionAfterRescale(const WorldWindow& before, const WorldWindow& after, int side, double& PasteX,
                               double& PasteY) {
    if (side <= 0) return;
    // Pixel offsets from the top left corner stay; world units per pixel change with the window.
    const double column = (PasteX - before.xmin) * side / (before.xmax - before.xmin);
    const double row = (before.ymax - PasteY) * side / (before.ymax - before.ymin);
    PasteX = after.xmin + column * (after.xmax - after.xmin) / side;
    PasteY = after.ymax - row * (after.ymax - after.ymin) / side;
}

}  // namespace quillane
