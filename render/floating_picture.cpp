#include "render/floating_picture.h"

#include <algorithm>
#include <cmath>

#include "core/evaluator.h"
#include "core/numbers.h"
#include "render/image_file.h"

namespace quillane {

RasterSurface StretchPicture(const RasterSurface& source, int width, int height) {
    RasterSurface out(width, height, source.backColor());
    if (source.width() <= 0 || source.height() <= 0) return out;
    for (int r = 0; r < height; ++r) {
        const int sr = static_cast<int>((r + 0.5) * source.height() / height);
        for (int c = 0; c < width; ++c) {
            const int sc = static_cast<int>((c + 0.5) * source.width() / width);
            out.setPixel(c, r, source.pixel(sc, sr));
        }
    }
    return out;
}

namespace {

// The world position of the centre of picfractal's pixel (column, row): it maps back to that pixel
// whatever the rounding of the window.
void worldOfPixel(const RasterSurface& s, double column, double row, double& x, double& y) {
    x = s.scaleLeft() + (column + 0.5) / s.pixelScaleX();
    y = s.scaleTop() + (row + 0.5) / s.pixelScaleY();
}

void paintAt(RasterSurface& dest, const RasterSurface& picture, double x, double y) {
    try {
        dest.paint(picture, x, y, RasterOp::Copy);
    } catch (const SurfaceOverflow&) {
        // So far outside the view that nothing of it shows.
    }
}

const char* const PasteDataMessages[] = {
    "Cannot evaluate expression for x  ", "Cannot evaluate expression for y  ",
    "Cannot evaluate expression for weight  ", "Cannot evaluate expression for height  "};

bool evaluates(const std::string& text, double& value) {
    Evaluator ev;
    float result = 0;
    if (!ev.Evaluate(text, result)) return false;
    value = result;
    return true;
}

}  // namespace

PasteArea FractalPasteArea(FractalPictures& pics) {
    return {&pics.picfractal, &pics.picPaste, &pics.picImagePaste, &pics.Floating, &pics.picCoord};
}

void PicPasteResize(const PasteArea& a) {
    FloatingPicture& f = *a.Floating;
    f.Width = std::max(f.Width, 1);
    f.Height = std::max(f.Height, 1);
    *a.picPaste = StretchPicture(*a.picImagePaste, f.Width, f.Height);
}

void PicPasteResize(FractalPictures& pics) {
    PicPasteResize(FractalPasteArea(pics));
}

void PasteTo(const PasteArea& a) {
    const RasterSurface& s = *a.area;
    const RasterSurface& image = *a.picImagePaste;
    const double sx = std::abs(s.pixelScaleX()), sy = std::abs(s.pixelScaleY());
    const double W = std::max(s.width(), 1) / sx, H = std::max(s.height(), 1) / sy;
    const double w = std::max(image.width(), 1) / sx, h = std::max(image.height(), 1) / sy;
    double width = W, height = H;
    if (w <= W && h <= H) {
        width = w;
        height = h;
    } else if (w < h) {
        width = (w / h) * W;
    } else if (h < w) {
        height = (h / w) * H;
    }
    FloatingPicture& f = *a.Floating;
    f.Width = std::max(1, static_cast<int>(std::lround(width * sx)));
    f.Height = std::max(1, static_cast<int>(std::lround(height * sy)));
    f.Left = (s.width() - f.Width) / 2;
    f.Top = (s.height() - f.Height) / 2;
    f.Visible = true;
    PicPasteResize(a);
    *a.picCoord = PasteCornersText(a);
}

void FloatPicture(FractalPictures& pics, const RasterSurface& image) {
    pics.picImagePaste = RasterSurface(image.width(), image.height(), image.backColor());
    pics.picImagePaste.takeImage(image);
    PasteTo(FractalPasteArea(pics));
}

void FloatingOrigin(const PasteArea& a, double& x, double& y) {
    worldOfPixel(*a.area, a.Floating->Left, a.Floating->Top, x, y);
}

void FloatingOrigin(const FractalPictures& pics, double& x, double& y) {
    worldOfPixel(pics.picfractal, pics.Floating.Left, pics.Floating.Top, x, y);
}

namespace {

std::string cornersText(const RasterSurface& s, const FloatingPicture& f) {
    // Corners are the outer edges of the corner pixels.
    const double left = s.scaleLeft() + f.Left / s.pixelScaleX();
    const double top = s.scaleTop() + f.Top / s.pixelScaleY();
    const double right = s.scaleLeft() + (f.Left + f.Width) / s.pixelScaleX();
    const double bottom = s.scaleTop() + (f.Top + f.Height) / s.pixelScaleY();
    return "(" + Format(left, "0.000") + "," + Format(top, "0.000") + ") (" + Format(right, "0.000") + "," +
           Format(bottom, "0.000") + ")";
}

}  // namespace

std::string PasteCornersText(const PasteArea& a) {
    return cornersText(*a.area, *a.Floating);
}

std::string PasteCornersText(const FractalPictures& pics) {
    return cornersText(pics.picfractal, pics.Floating);
}

void PlaceFractalSelection(Workbench& wb, FractalPictures& pics) {
    (void)wb;
    if (!pics.Floating.Visible) return;
    FloatingOrigin(pics, pics.PasteX, pics.PasteY);
    for (RasterSurface* s : {&pics.picfractal, &pics.picImage2, &pics.picImage3})
        paintAt(*s, pics.picPaste, pics.PasteX, pics.PasteY);
    pics.Floating.Visible = false;
    pics.PictureOverlaid = true;
}

void ClearFractalPicPaste(FractalPictures& pics) {
    pics.Floating.Visible = false;
    pics.picImagePaste = RasterSurface();
    pics.PictureOverlaid = false;
}

bool LiftPlacedPicture(Workbench& wb, FractalPictures& pics) {
    if (wb.RandomMode || wb.IterationNumber != 0 || wb.DetFigure < 7 || !pics.PictureOverlaid ||
        pics.Floating.Visible)
        return false;
    for (RasterSurface* s : {&pics.picfractal, &pics.picImage2, &pics.picImage3}) s->clear();
    FloatPlacedPictureAgain(pics);
    return true;
}

void FloatPlacedPictureAgain(FractalPictures& pics) {
    int64_t column = 0, row = 0;
    if (pics.picfractal.toPixel(pics.PasteX, pics.PasteY, column, row)) {
        pics.Floating.Left = static_cast<int>(column);
        pics.Floating.Top = static_cast<int>(row);
    }
    pics.Floating.Visible = true;
    pics.PictureOverlaid = false;
    pics.picCoord = PasteCornersText(pics);
}

int GrabHandleAt(const FloatingPicture& f, int x, int y) {
    const int right = f.Left + f.Width - 1, bottom = f.Top + f.Height - 1;
    const int midX = f.Left + f.Width / 2, midY = f.Top + f.Height / 2;
    const int xs[8] = {f.Left, midX, right, right, right, midX, f.Left, f.Left};
    const int ys[8] = {f.Top, f.Top, f.Top, midY, bottom, bottom, bottom, midY};
    const int reach = GrabHandleSize / 2 + 1;
    for (int k = 0; k < 8; ++k)
        if (std::abs(x - xs[k]) <= reach && std::abs(y - ys[k]) <= reach) return k;
    if (x >= f.Left && x <= right && y >= f.Top && y <= bottom) return HandleMiddle;
    return HandleNone;
}

FloatingPicture DragFloating(const FloatingPicture& start, int handle, int dx, int dy) {
    FloatingPicture f = start;
    if (handle == HandleMiddle) {
        f.Left += dx;
        f.Top += dy;
        return f;
    }
    int left = start.Left, top = start.Top;
    int right = start.Left + start.Width, bottom = start.Top + start.Height;
    const bool movesLeft = handle == 0 || handle == 6 || handle == 7;
    const bool movesRight = handle == 2 || handle == 3 || handle == 4;
    const bool movesTop = handle == 0 || handle == 1 || handle == 2;
    const bool movesBottom = handle == 4 || handle == 5 || handle == 6;
    if (movesLeft) left = std::min(left + dx, right - 1);
    if (movesRight) right = std::max(right + dx, left + 1);
    if (movesTop) top = std::min(top + dy, bottom - 1);
    if (movesBottom) bottom = std::max(bottom + dy, top + 1);
    f.Left = left;
    f.Top = top;
    f.Width = right - left;
    f.Height = bottom - top;
    return f;
}

void SetFloatingRect(const PasteArea& a, const FloatingPicture& rect) {
    FloatingPicture& f = *a.Floating;
    const bool resized = rect.Width != f.Width || rect.Height != f.Height;
    f.Left = rect.Left;
    f.Top = rect.Top;
    f.Width = rect.Width;
    f.Height = rect.Height;
    if (resized) PicPasteResize(a);
    *a.picCoord = PasteCornersText(a);
}

void SetFloatingRect(FractalPictures& pics, const FloatingPicture& rect) {
    SetFloatingRect(FractalPasteArea(pics), rect);
}

std::string CheckPasteData(const PasteDataText& t) {
    const std::string* texts[4] = {&t.txtX, &t.txtY, &t.txtWidth, &t.txtHeight};
    for (int k = 0; k < 4; ++k) {
        double v = 0;
        if (!evaluates(*texts[k], v) || (k >= 2 && !(v > 0))) return PasteDataMessages[k];
    }
    return {};
}

PasteDataText PasteDataFor(const PasteArea& a, int corner) {
    const RasterSurface& s = *a.area;
    const FloatingPicture& f = *a.Floating;
    const double left = s.scaleLeft() + f.Left / s.pixelScaleX();
    const double top = s.scaleTop() + f.Top / s.pixelScaleY();
    const double width = f.Width / std::abs(s.pixelScaleX());
    const double height = f.Height / std::abs(s.pixelScaleY());
    PasteDataText t;
    t.optCorner = corner;
    const bool right = corner == 1 || corner == 3, bottom = corner == 2 || corner == 3;
    t.txtX = Format(right ? left + width : left, "0.000");
    t.txtY = Format(bottom ? top - height : top, "0.000");
    t.txtWidth = Format(width, "0.000");
    t.txtHeight = Format(height, "0.000");
    return t;
}

void ApplyPasteData(const PasteArea& a, const PasteDataText& t) {
    double x = 0, y = 0, width = 0, height = 0;
    if (!evaluates(t.txtX, x) || !evaluates(t.txtY, y) || !evaluates(t.txtWidth, width) ||
        !evaluates(t.txtHeight, height))
        return;
    const RasterSurface& s = *a.area;
    const double sx = std::abs(s.pixelScaleX()), sy = std::abs(s.pixelScaleY());
    if (t.optCorner == 1 || t.optCorner == 3) x -= width;
    if (t.optCorner == 2 || t.optCorner == 3) y += height;
    FloatingPicture rect = *a.Floating;
    rect.Left = static_cast<int>(std::lround((x - s.scaleLeft()) * s.pixelScaleX()));
    rect.Top = static_cast<int>(std::lround((y - s.scaleTop()) * s.pixelScaleY()));
    rect.Width = std::max(1, static_cast<int>(std::lround(width * sx)));
    rect.Height = std::max(1, static_cast<int>(std::lround(height * sy)));
    SetFloatingRect(a, rect);
}

PasteDataText PasteDataFor(FractalPictures& pics, int corner) {
    return PasteDataFor(FractalPasteArea(pics), corner);
}

void ApplyPasteData(FractalPictures& pics, const PasteDataText& t) {
    ApplyPasteData(FractalPasteArea(pics), t);
}

bool BackgroundPictureAllowed(const Workbench& wb) {
    return !wb.DrawingActive && !(!wb.RandomMode && wb.DetFigure > 6);
}

}  // namespace quillane
