#include "render/raster_surface.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>
#include <utility>

namespace quillane {
namespace {

constexpr uint32_t Opaque = 0xFF000000u;

struct PixelPos {
    int64_t col = 0, row = 0;
};

PixelPos pixelOf(const RasterSurface& s, double x, double y) {
    PixelPos p;
    if (!s.toPixel(x, y, p.col, p.row)) throw SurfaceOverflow();
    return p;
}

// Lines, boxes and polygons may reach points far beyond the picture (a map that sends the polygon a
// billion units away). Their pixel positions are clipped to this square, far larger than any picture,
// so what crosses the picture is still drawn and nothing overflows.
constexpr double FarPixel = 1073741824.0;  // 2^30

struct PixelPoint {
    double col = 0, row = 0;
};

bool finite(const PixelPoint& p) {
    return std::isfinite(p.col) && std::isfinite(p.row);
}

bool near(const PixelPoint& p) {
    return std::fabs(p.col) <= FarPixel && std::fabs(p.row) <= FarPixel;
}

PixelPoint farPixelOf(const RasterSurface& s, double x, double y) {
    PixelPoint p;
    s.toPixelFloor(x, y, p.col, p.row);
    return p;
}

PixelPos toPos(const PixelPoint& p) {
    return {static_cast<int64_t>(p.col), static_cast<int64_t>(p.row)};
}

// Liang-Barsky against the far square; false when the segment misses it.
bool clipSegment(PixelPoint& a, PixelPoint& b) {
    if (!finite(a) || !finite(b)) return false;
    if (near(a) && near(b)) return true;
    double t0 = 0, t1 = 1;
    const double dx = b.col - a.col, dy = b.row - a.row;
    const double p[4] = {-dx, dx, -dy, dy};
    const double q[4] = {a.col + FarPixel, FarPixel - a.col, a.row + FarPixel, FarPixel - a.row};
    for (int k = 0; k < 4; ++k) {
        if (p[k] == 0) {
            if (q[k] < 0) return false;
            continue;
        }
        const double r = q[k] / p[k];
        if (p[k] < 0)
            t0 = std::max(t0, r);
        else
            t1 = std::min(t1, r);
        if (t0 > t1) return false;
    }
    const PixelPoint from = a;
    a = {std::floor(from.col + t0 * dx), std::floor(from.row + t0 * dy)};
    b = {std::floor(from.col + t1 * dx), std::floor(from.row + t1 * dy)};
    auto clamp = [](PixelPoint& p) {
        p.col = std::clamp(p.col, -FarPixel, FarPixel);
        p.row = std::clamp(p.row, -FarPixel, FarPixel);
    };
    clamp(a);
    clamp(b);
    return true;
}

// Sutherland-Hodgman against the far square. The edges it adds run along that square, far from the
// picture, so neither the outline nor the even-odd fill inside the picture changes.
std::vector<PixelPoint> clipPolygon(std::vector<PixelPoint> v) {
    for (int side = 0; side < 4; ++side) {
        auto inside = [side](const PixelPoint& p) {
            switch (side) {
                case 0:
                    return p.col >= -FarPixel;
                case 1:
                    return p.col <= FarPixel;
                case 2:
                    return p.row >= -FarPixel;
                default:
                    return p.row <= FarPixel;
            }
        };
        auto cross = [side](const PixelPoint& p, const PixelPoint& q) {
            const double edge = (side == 0 || side == 2) ? -FarPixel : FarPixel;
            const bool vertical = side < 2;
            const double t = vertical ? (edge - p.col) / (q.col - p.col) : (edge - p.row) / (q.row - p.row);
            return vertical ? PixelPoint{edge, p.row + t * (q.row - p.row)}
                            : PixelPoint{p.col + t * (q.col - p.col), edge};
        };
        std::vector<PixelPoint> out;
        for (size_t i = 0; i < v.size(); ++i) {
            const PixelPoint& p = v[i];
            const PixelPoint& q = v[(i + 1) % v.size()];
            if (inside(p)) {
                out.push_back(p);
                if (!inside(q)) out.push_back(cross(p, q));
            } else if (inside(q)) {
                out.push_back(cross(p, q));
            }
        }
        v = std::move(out);
        if (v.empty()) break;
    }
    for (PixelPoint& p : v) {
        p.col = std::floor(p.col);
        p.row = std::floor(p.row);
    }
    return v;
}

// Puts the pixels of one drawing call on the surface. In invert mode a pixel that several strokes of
// the call cover (a wide line, the corners of a box, a filled polygon with its outline) must flip once,
// so there the pixels are gathered and flipped together by finish().
class Pen {
  public:
    Pen(RasterSurface& s, Color c, bool overlapping)
        : s_(s),
          value_((c & 0xFFFFFFu) | Opaque),
          invert_(s.drawMode() == DrawMode::Invert),
          gather_(invert_ && overlapping),
          low_(-(s.drawWidth() / 2)),
          high_(low_ + s.drawWidth() - 1) {}

    // How far a stamp reaches beyond its centre pixel.
    int64_t reach() const { return -low_; }

    void plot(int64_t col, int64_t row) {
        if (s_.inside(col, row)) mark(static_cast<size_t>(row) * s_.width() + static_cast<size_t>(col));
    }

    // The draw width as a square around (col, row); for an even width the extra pixels lie up and left.
    void stamp(int64_t col, int64_t row) {
        for (int64_t r = row + low_; r <= row + high_; ++r) span(r, col + low_, col + high_);
    }

    void span(int64_t row, int64_t from, int64_t to) {
        if (row < 0 || row >= s_.height()) return;
        from = std::max<int64_t>(from, 0);
        to = std::min<int64_t>(to, s_.width() - 1);
        const size_t base = static_cast<size_t>(row) * s_.width();
        for (int64_t c = from; c <= to; ++c) mark(base + static_cast<size_t>(c));
    }

    void finish() {
        std::sort(touched_.begin(), touched_.end());
        touched_.erase(std::unique(touched_.begin(), touched_.end()), touched_.end());
        uint32_t* p = s_.data();
        for (size_t i : touched_) p[i] = (~p[i] & 0xFFFFFFu) | Opaque;
        touched_.clear();
    }

  private:
    void mark(size_t i) {
        uint32_t& p = s_.data()[i];
        if (gather_)
            touched_.push_back(i);
        else if (invert_)
            p = (~p & 0xFFFFFFu) | Opaque;
        else
            p = value_;
    }

    RasterSurface& s_;
    uint32_t value_;
    bool invert_, gather_;
    int64_t low_, high_;
    std::vector<size_t> touched_;
};

// Bresenham from a to b, both ends included, calling f(step, col, row). Only the steps whose major
// coordinate lies within `margin` of the picture are visited, so a line to a far away point costs no
// more than one across the picture. The minor offset of step i is floor((2 minor i + major) / (2 major)).
template <class F>
void walkLine(PixelPos a, PixelPos b, int64_t width, int64_t height, int64_t margin, F f) {
    const int64_t dx = b.col - a.col, dy = b.row - a.row;
    const bool xMajor = std::llabs(dx) >= std::llabs(dy);
    const int64_t major = xMajor ? std::llabs(dx) : std::llabs(dy);
    const int64_t minor = xMajor ? std::llabs(dy) : std::llabs(dx);
    const int64_t stepMajor = (xMajor ? dx : dy) < 0 ? -1 : 1;
    const int64_t stepMinor = (xMajor ? dy : dx) < 0 ? -1 : 1;
    const int64_t start = xMajor ? a.col : a.row;
    const int64_t other = xMajor ? a.row : a.col;
    const int64_t extent = xMajor ? width : height;
    int64_t first = stepMajor > 0 ? -margin - start : start - (extent - 1 + margin);
    int64_t last = stepMajor > 0 ? extent - 1 + margin - start : start + margin;
    first = std::max<int64_t>(first, 0);
    last = std::min(last, major);
    if (first > last) return;
    const int64_t twoMajor = 2 * std::max<int64_t>(major, 1);
    const __int128 numerator = static_cast<__int128>(2 * minor) * first + major;
    int64_t k = static_cast<int64_t>(numerator / twoMajor);
    int64_t rest = static_cast<int64_t>(numerator % twoMajor);
    for (int64_t i = first; i <= last; ++i) {
        const int64_t p = start + stepMajor * i, q = other + stepMinor * k;
        if (xMajor)
            f(i, p, q);
        else
            f(i, q, p);
        rest += 2 * minor;
        if (rest >= twoMajor) {
            rest -= twoMajor;
            ++k;
        }
    }
}

// Dots are one pixel on, one off, from the first end on. They are a hairline pattern: a wider
// line is drawn solid.
void drawSegment(const RasterSurface& s, Pen& pen, PixelPos a, PixelPos b) {
    const bool dotted = s.drawStyle() == DrawStyle::Dot && s.drawWidth() == 1;
    walkLine(a, b, s.width(), s.height(), pen.reach(), [&](int64_t i, int64_t col, int64_t row) {
        if (!dotted || i % 2 == 0) pen.stamp(col, row);
    });
}

int64_t isqrt(int64_t n) {
    int64_t r = static_cast<int64_t>(std::sqrt(static_cast<double>(n)));
    while (r > 0 && r * r > n) --r;
    while ((r + 1) * (r + 1) <= n) ++r;
    return r;
}

// The row offset the midpoint circle algorithm picks in the first octant for column offset x:
// the y with y*y - y < r*r - x*x <= y*y + y.
int64_t octantY(int64_t r, int64_t x) {
    const int64_t n = r * r - x * x;
    const int64_t y = isqrt(n);
    return y * y + y < n ? y + 1 : y;
}

// The octant offsets x whose eight mirror pixels can reach the picture: ascending, merged intervals.
std::vector<std::pair<int64_t, int64_t>> usefulOffsets(PixelPos c, int64_t width, int64_t height, int64_t m) {
    std::vector<std::pair<int64_t, int64_t>> parts = {{-m - c.col, width - 1 + m - c.col},
                                                      {c.col - (width - 1 + m), c.col + m},
                                                      {-m - c.row, height - 1 + m - c.row},
                                                      {c.row - (height - 1 + m), c.row + m}};
    for (auto& p : parts) p.first = std::max<int64_t>(p.first, 0);
    std::sort(parts.begin(), parts.end());
    std::vector<std::pair<int64_t, int64_t>> merged;
    for (const auto& p : parts) {
        if (p.first > p.second) continue;
        if (!merged.empty() && p.first <= merged.back().second + 1)
            merged.back().second = std::max(merged.back().second, p.second);
        else
            merged.push_back(p);
    }
    return merged;
}

void circleOutline(const RasterSurface& s, Pen& pen, PixelPos c, int64_t r) {
    if (r == 0) {
        pen.stamp(c.col, c.row);
        return;
    }
    for (const auto& [from, to] : usefulOffsets(c, s.width(), s.height(), pen.reach())) {
        for (int64_t x = from; x <= to; ++x) {
            if (x > r) return;
            const int64_t y = octantY(r, x);
            if (x > y) return;
            for (const auto& [u, v] :
                 std::array<std::pair<int64_t, int64_t>, 4>{{{x, y}, {y, x}, {-x, y}, {-y, x}}}) {
                pen.stamp(c.col + u, c.row + v);
                pen.stamp(c.col + u, c.row - v);
            }
        }
    }
}

void circleDisc(const RasterSurface& s, Pen& pen, PixelPos c, int64_t r) {
    const int64_t top = std::max<int64_t>(c.row - r, 0);
    const int64_t bottom = std::min<int64_t>(c.row + r, s.height() - 1);
    for (int64_t row = top; row <= bottom; ++row) {
        const int64_t dy = row - c.row;
        const int64_t half = isqrt(r * r - dy * dy);
        pen.span(row, c.col - half, c.col + half);
    }
}

// Even-odd fill sampling pixel centres; vertices sit at the centres of their pixels.
void fillPolygon(const RasterSurface& s, Pen& pen, const std::vector<PixelPos>& v) {
    int64_t top = v[0].row, bottom = v[0].row;
    for (const PixelPos& p : v) {
        top = std::min(top, p.row);
        bottom = std::max(bottom, p.row);
    }
    top = std::max<int64_t>(top, 0);
    bottom = std::min<int64_t>(bottom, s.height() - 1);
    const double limit = s.width();
    std::vector<double> xs;
    for (int64_t row = top; row <= bottom; ++row) {
        xs.clear();
        for (size_t i = 0; i < v.size(); ++i) {
            const PixelPos& p = v[i];
            const PixelPos& q = v[(i + 1) % v.size()];
            if ((p.row <= row) == (q.row <= row)) continue;
            const double t = static_cast<double>(row - p.row) / static_cast<double>(q.row - p.row);
            xs.push_back(static_cast<double>(p.col) + t * static_cast<double>(q.col - p.col));
        }
        std::sort(xs.begin(), xs.end());
        for (size_t i = 0; i + 1 < xs.size(); i += 2) {
            const double from = std::clamp(std::ceil(xs[i]), -1.0, limit);
            const double to = std::clamp(std::ceil(xs[i + 1]) - 1, -1.0, limit);
            pen.span(row, static_cast<int64_t>(from), static_cast<int64_t>(to));
        }
    }
}

// Scanline flood fill with an explicit stack. `open(i)` tells whether pixel i still belongs to the
// area and is unfilled; `fill(i)` must make it false.
template <class Open, class Fill>
void scanFill(int width, int height, int col, int row, Open open, Fill fill) {
    std::vector<std::pair<int, int>> seeds{{col, row}};
    while (!seeds.empty()) {
        const auto [c, r] = seeds.back();
        seeds.pop_back();
        const size_t base = static_cast<size_t>(r) * width;
        if (!open(base + c)) continue;
        int left = c, right = c;
        while (left > 0 && open(base + left - 1)) --left;
        while (right < width - 1 && open(base + right + 1)) ++right;
        for (int x = left; x <= right; ++x) fill(base + x);
        for (int nr : {r - 1, r + 1}) {
            if (nr < 0 || nr >= height) continue;
            const size_t nbase = static_cast<size_t>(nr) * width;
            bool inRun = false;
            for (int x = left; x <= right; ++x) {
                const bool o = open(nbase + x);
                if (o && !inRun) seeds.emplace_back(x, nr);
                inRun = o;
            }
        }
    }
}

uint32_t combine(uint32_t dest, uint32_t src, RasterOp op) {
    switch (op) {
        case RasterOp::And:
            return (dest & src & 0xFFFFFFu) | Opaque;
        case RasterOp::Or:
            return ((dest | src) & 0xFFFFFFu) | Opaque;
        case RasterOp::Copy:
            break;
    }
    return (src & 0xFFFFFFu) | Opaque;
}

}  // namespace

RasterSurface::RasterSurface(int width, int height, Color back) : back_(back & 0xFFFFFFu) {
    resize(width, height);
}

void RasterSurface::resize(int width, int height) {
    const int oldWidth = width_, oldHeight = height_;
    width_ = std::max(width, 0);
    height_ = std::max(height, 0);
    pixels_.assign(static_cast<size_t>(width_) * height_, back_ | Opaque);
    if (!picture_.empty()) {
        // The picture stays at its pixel place; what the new size uncovers is background.
        std::vector<uint32_t> kept(pixels_.size(), back_ | Opaque);
        for (int r = 0; r < std::min(oldHeight, height_); ++r)
            for (int c = 0; c < std::min(oldWidth, width_); ++c)
                kept[static_cast<size_t>(r) * width_ + c] = picture_[static_cast<size_t>(r) * oldWidth + c];
        picture_ = std::move(kept);
        pixels_.assign(picture_.begin(), picture_.end());
    }
    updateFactors();
}

void RasterSurface::setScale(double left, double top, double right, double bottom) {
    left_ = left;
    top_ = top;
    right_ = right;
    bottom_ = bottom;
    scaleSet_ = true;
    updateFactors();
}

void RasterSurface::updateFactors() {
    if (!scaleSet_) {
        left_ = top_ = 0;
        right_ = width_;
        bottom_ = height_;
    }
    sx_ = width_ > 0 && right_ != left_ ? width_ / (right_ - left_) : 0;
    sy_ = height_ > 0 && bottom_ != top_ ? height_ / (bottom_ - top_) : 0;
}

double RasterSurface::pixelsToWorldX(double pixels) const {
    return width_ > 0 ? pixels * std::fabs(right_ - left_) / width_ : 0;
}

double RasterSurface::pixelsToWorldY(double pixels) const {
    return height_ > 0 ? pixels * std::fabs(bottom_ - top_) / height_ : 0;
}

double RasterSurface::worldToPixelsX(double length) const {
    return right_ != left_ ? length * width_ / std::fabs(right_ - left_) : 0;
}

double RasterSurface::worldToPixelsY(double length) const {
    return bottom_ != top_ ? length * height_ / std::fabs(bottom_ - top_) : 0;
}

void RasterSurface::clear() {
    if (picture_.size() == pixels_.size())
        std::copy(picture_.begin(), picture_.end(), pixels_.begin());
    else
        std::fill(pixels_.begin(), pixels_.end(), back_ | Opaque);
}

void RasterSurface::pset(double x, double y, Color c) {
    const PixelPos p = pixelOf(*this, x, y);
    if (!inside(p.col, p.row)) return;
    const int col = static_cast<int>(p.col), row = static_cast<int>(p.row);
    setPixel(col, row, mode_ == DrawMode::Invert ? ~pixel(col, row) : c);
}

Color RasterSurface::point(double x, double y) const {
    int64_t col = 0, row = 0;
    if (!toPixel(x, y, col, row) || !inside(col, row)) return NoColor;
    return pixel(static_cast<int>(col), static_cast<int>(row));
}

void RasterSurface::line(double x1, double y1, double x2, double y2, Color c) {
    PixelPoint a = farPixelOf(*this, x1, y1), b = farPixelOf(*this, x2, y2);
    if (!clipSegment(a, b)) return;
    Pen pen(*this, c, true);
    drawSegment(*this, pen, toPos(a), toPos(b));
    pen.finish();
}

void RasterSurface::box(double x1, double y1, double x2, double y2, Color c, bool filled) {
    PixelPoint fa = farPixelOf(*this, x1, y1), fb = farPixelOf(*this, x2, y2);
    if (!finite(fa) || !finite(fb)) return;
    // An axis-parallel box keeps its visible part when its corners are pulled in to the far square.
    for (PixelPoint* p : {&fa, &fb}) {
        p->col = std::clamp(p->col, -FarPixel, FarPixel);
        p->row = std::clamp(p->row, -FarPixel, FarPixel);
    }
    const PixelPos a = toPos(fa), b = toPos(fb);
    Pen pen(*this, c, !filled);
    if (filled) {
        const int64_t top = std::max<int64_t>(std::min(a.row, b.row), 0);
        const int64_t bottom = std::min<int64_t>(std::max(a.row, b.row), height_ - 1);
        for (int64_t row = top; row <= bottom; ++row)
            pen.span(row, std::min(a.col, b.col), std::max(a.col, b.col));
    } else {
        const PixelPos ab{b.col, a.row}, ba{a.col, b.row};
        drawSegment(*this, pen, a, ab);
        drawSegment(*this, pen, ab, b);
        drawSegment(*this, pen, b, ba);
        drawSegment(*this, pen, ba, a);
    }
    pen.finish();
}

// The outline takes the draw width and mode but not the dotted style.
void RasterSurface::circle(double x, double y, double radius, Color c, bool filled) {
    const PixelPoint far = farPixelOf(*this, x, y);
    const double pixels = std::fabs(worldToPixelsX(radius));
    // A circle that far away or that large has nothing to show in the picture.
    if (!finite(far) || !near(far) || !(pixels < FarPixel)) return;
    const PixelPos centre = toPos(far);
    const int64_t r = std::llround(pixels);
    Pen pen(*this, c, !filled);
    if (filled)
        circleDisc(*this, pen, centre, r);
    else
        circleOutline(*this, pen, centre, r);
    pen.finish();
}

void RasterSurface::polygon(const std::vector<WorldPoint>& points, Color c, bool filled) {
    if (points.empty()) return;
    std::vector<PixelPoint> far;
    far.reserve(points.size());
    bool allNear = true;
    for (const WorldPoint& p : points) {
        far.push_back(farPixelOf(*this, p.x, p.y));
        if (!finite(far.back())) return;
        allNear = allNear && near(far.back());
    }
    if (!allNear) far = clipPolygon(std::move(far));
    if (far.empty()) return;
    std::vector<PixelPos> v;
    v.reserve(far.size());
    for (const PixelPoint& p : far) v.push_back(toPos(p));
    Pen pen(*this, c, true);
    if (filled) fillPolygon(*this, pen, v);
    for (size_t i = 0; i < v.size(); ++i) drawSegment(*this, pen, v[i], v[(i + 1) % v.size()]);
    pen.finish();
}

// Flood fills paint plainly, whatever the draw mode.
void RasterSurface::floodFill(double x, double y, Color fill) {
    const PixelPos seed = pixelOf(*this, x, y);
    if (!inside(seed.col, seed.row)) return;
    const uint32_t target = pixels_[static_cast<size_t>(seed.row) * width_ + seed.col];
    const uint32_t value = (fill & 0xFFFFFFu) | Opaque;
    if (target == value) return;
    uint32_t* p = pixels_.data();
    scanFill(
        width_, height_, static_cast<int>(seed.col), static_cast<int>(seed.row),
        [&](size_t i) { return p[i] == target; }, [&](size_t i) { p[i] = value; });
}

void RasterSurface::floodFillBorder(double x, double y, Color border, Color fill) {
    const PixelPos seed = pixelOf(*this, x, y);
    if (!inside(seed.col, seed.row)) return;
    const uint32_t wall = (border & 0xFFFFFFu) | Opaque;
    const uint32_t value = (fill & 0xFFFFFFu) | Opaque;
    const uint32_t start = pixels_[static_cast<size_t>(seed.row) * width_ + seed.col];
    if (start == wall || start == value) return;
    // The area may already hold pixels of the fill colour, so filled pixels are tracked apart.
    std::vector<bool> done(pixels_.size(), false);
    uint32_t* p = pixels_.data();
    scanFill(
        width_, height_, static_cast<int>(seed.col), static_cast<int>(seed.row),
        [&](size_t i) { return !done[i] && p[i] != wall; },
        [&](size_t i) {
            done[i] = true;
            p[i] = value;
        });
}

void RasterSurface::paint(const RasterSurface& source, double x, double y, RasterOp op) {
    const PixelPos at = pixelOf(*this, x, y);
    if (&source == this) {
        const RasterSurface copy = source;
        paint(copy, x, y, op);
        return;
    }
    const int64_t firstCol = std::max<int64_t>(0, -at.col);
    const int64_t lastCol = std::min<int64_t>(source.width_, width_ - at.col) - 1;
    const int64_t firstRow = std::max<int64_t>(0, -at.row);
    const int64_t lastRow = std::min<int64_t>(source.height_, height_ - at.row) - 1;
    for (int64_t r = firstRow; r <= lastRow; ++r) {
        const uint32_t* from = source.data() + static_cast<size_t>(r) * source.width_;
        uint32_t* to = data() + static_cast<size_t>(r + at.row) * width_;
        for (int64_t c = firstCol; c <= lastCol; ++c) to[c + at.col] = combine(to[c + at.col], from[c], op);
    }
}

void RasterSurface::takeImage(const RasterSurface& source) {
    if (&source == this) return;
    width_ = source.width_;
    height_ = source.height_;
    pixels_ = source.pixels_;
    updateFactors();
}

}  // namespace quillane
