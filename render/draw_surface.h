#pragma once
// What every picture area offers: drawing at world coordinates, in our own deterministic code.
#include <cstdint>
#include <stdexcept>
#include <vector>

#include "core/colors.h"

namespace quillane {

class RasterSurface;

// A colour read outside the picture.
inline constexpr Color NoColor = 0xFFFFFFFFu;

enum class DrawMode { CopyPen, Invert };
enum class DrawStyle { Solid, Dot };
enum class RasterOp { Copy, And, Or };

struct WorldPoint {
    double x = 0, y = 0;
};

// Raised when a world point's pixel position does not fit a 32-bit integer
// (a point that escaped to far away, or NaN). Drawing loops turn it into "Overflow error.".
class SurfaceOverflow : public std::runtime_error {
  public:
    SurfaceOverflow() : std::runtime_error("Overflow") {}
};

class DrawSurface {
  public:
    virtual ~DrawSurface() = default;

    virtual int width() const = 0;   // pixels
    virtual int height() const = 0;  // pixels
    virtual void resize(int width, int height) = 0;

    // The coordinate system: world x = left at the left edge, y = top at the top edge, and so on.
    // y grows upward when bottom < top.
    virtual void setScale(double left, double top, double right, double bottom) = 0;
    virtual double scaleLeft() const = 0;
    virtual double scaleTop() const = 0;
    virtual double scaleRight() const = 0;
    virtual double scaleBottom() const = 0;

    // Lengths between pixels and world units (horizontal and vertical, both positive).
    virtual double pixelsToWorldX(double pixels) const = 0;
    virtual double pixelsToWorldY(double pixels) const = 0;
    virtual double worldToPixelsX(double length) const = 0;
    virtual double worldToPixelsY(double length) const = 0;

    virtual Color backColor() const = 0;
    virtual void setBackColor(Color c) = 0;  // does not clear
    virtual DrawMode drawMode() const = 0;
    virtual void setDrawMode(DrawMode m) = 0;
    virtual int drawWidth() const = 0;
    virtual void setDrawWidth(int pixels) = 0;
    virtual DrawStyle drawStyle() const = 0;
    virtual void setDrawStyle(DrawStyle s) = 0;

    // Fills the whole picture with the background colour.
    virtual void clear() = 0;

    // One pixel; silently nothing outside the picture; throws SurfaceOverflow (see above).
    virtual void pset(double x, double y, Color c) = 0;
    // The colour of the pixel at (x, y), or NoColor outside the picture.
    virtual Color point(double x, double y) const = 0;

    // Lines use the draw width, style and mode.
    virtual void line(double x1, double y1, double x2, double y2, Color c) = 0;
    // A rectangle with corners (x1, y1) and (x2, y2): outline or filled.
    virtual void box(double x1, double y1, double x2, double y2, Color c, bool filled) = 0;
    // A circle whose radius is in world units along x.
    virtual void circle(double x, double y, double radius, Color c, bool filled) = 0;
    // A closed polygon: outline, or filled (even-odd rule) in the same colour.
    virtual void polygon(const std::vector<WorldPoint>& points, Color c, bool filled) = 0;
    // Fills the 4-connected area of pixels that have the colour of the pixel at (x, y).
    virtual void floodFill(double x, double y, Color fill) = 0;
    // Fills the 4-connected area around (x, y) up to pixels of the border colour.
    virtual void floodFillBorder(double x, double y, Color border, Color fill) = 0;

    // Paints `source` with its top left pixel at world (x, y) of this surface.
    virtual void paint(const RasterSurface& source, double x, double y, RasterOp op) = 0;
    // Takes over the other surface's image: its size and pixels (not its scale).
    virtual void takeImage(const RasterSurface& source) = 0;
};

}  // namespace quillane
