#include "render/tile_loop.h"

#include <algorithm>

#include "core/evaluator.h"
#include "render/play_game.h"

namespace quillane {
namespace {

// picfractal and picImage2 when they share size and mapping, so that one pixel position serves both.
struct TileTarget {
    uint32_t* shown = nullptr;
    uint32_t* shadow = nullptr;
    double left = 0, top = 0, sx = 0, sy = 0, width = 0, height = 0;
    size_t stride = 0;
};

bool sharedTarget(FractalPictures& pics, TileTarget& t) {
    const RasterSurface& s = pics.picfractal;
    const RasterSurface& h = pics.picImage2;
    if (s.width() != h.width() || s.height() != h.height() || s.scaleLeft() != h.scaleLeft() ||
        s.scaleTop() != h.scaleTop() || s.pixelScaleX() != h.pixelScaleX() ||
        s.pixelScaleY() != h.pixelScaleY())
        return false;
    t.shown = pics.picfractal.data();
    t.shadow = pics.picImage2.data();
    t.left = s.scaleLeft();
    t.top = s.scaleTop();
    t.sx = s.pixelScaleX();
    t.sy = s.pixelScaleY();
    t.width = s.width();
    t.height = s.height();
    t.stride = static_cast<size_t>(s.width());
    return true;
}

struct Orbit {
    float x, y;
    int32_t count;
};

// Sets copy (x, y) in both pictures as pset would; false when its pixel position does not fit an integer.
inline bool plotCopy(const TileTarget& t, float x, float y, uint32_t value) {
    const double tx = (static_cast<double>(x) - t.left) * t.sx;
    const double ty = (static_cast<double>(y) - t.top) * t.sy;
    if (tx >= 0 && ty >= 0 && tx < t.width && ty < t.height) {
        const size_t at =
            static_cast<size_t>(static_cast<int>(ty)) * t.stride + static_cast<size_t>(static_cast<int>(tx));
        t.shown[at] = value;
        t.shadow[at] = value;
        return true;
    }
    return tx > -2147483649.0 && tx < 2147483648.0 && ty > -2147483649.0 && ty < 2147483648.0;
}

// All copies of one plotted point; false on an overflow.
template <class Plot>
inline bool plotCopies(const TileCopies& k, float x, float y, Color c, Plot& plot) {
    for (int i = 0; i < k.side; ++i) {
        const float bx = x + k.ix[static_cast<size_t>(i)];
        const float by = y + k.iy[static_cast<size_t>(i)];
        const Color* row = k.color.data() + static_cast<size_t>(i) * static_cast<size_t>(k.side);
        for (int j = 0; j < k.side; ++j) {
            const Color cc = k.separateColors ? row[j] : c;
            if (cc == NoColor) continue;
            if (!plot(bx + k.jx[static_cast<size_t>(j)], by + k.jy[static_cast<size_t>(j)], cc)) return false;
        }
    }
    return true;
}

}  // namespace

int TileColorIndex(int i, int j) {
    return ((i + 7) % 3) * 3 + ((j + 7) % 3);
}

TileCopies PrepareTileCopies(const TilingState& t, const TilingColors& colors) {
    TileCopies k;
    float v[4];
    for (int n = 0; n < 4; ++n) v[n] = EvaluateText(t.txtT[static_cast<size_t>(n)]).value_or(0.0f);
    float A = 1, B = 0, C = 0, D = 1;
    if (t.chkbasis) {
        A = t.A;
        B = t.B;
        C = t.C;
        D = t.D;
    }
    const float ux = v[0] * A + v[2] * B, uy = v[0] * C + v[2] * D;
    const float wx = v[1] * A + v[3] * B, wy = v[1] * C + v[3] * D;
    k.radius = std::clamp(t.cmbRadius, 0, MaxTileRadius);
    k.side = 2 * k.radius + 1;
    k.separateColors = t.optColor2;
    for (int n = 0; n < k.side; ++n) {
        const float i = static_cast<float>(n - k.radius);
        k.ix[static_cast<size_t>(n)] = i * ux;
        k.iy[static_cast<size_t>(n)] = i * uy;
        k.jx[static_cast<size_t>(n)] = i * wx;
        k.jy[static_cast<size_t>(n)] = i * wy;
    }
    for (int a = 0; a < k.side; ++a)
        for (int b = 0; b < k.side; ++b)
            k.color[static_cast<size_t>(a * k.side + b)] =
                colors[static_cast<size_t>(TileColorIndex(a - k.radius, b - k.radius))] & 0xFFFFFFu;
    return k;
}

void TileLoop(Workbench& wb, FractalPictures& pics, const RunMaps& m, const MapChoice& choice,
              RunColoring& rc, const TileCopies& copies, int32_t stop) {
    Random rng = wb.Rng;
    Orbit o{wb.PlotX, wb.PlotY, wb.PointCount};
    TileTarget t;
    const bool shared = sharedTarget(pics, t);
    const bool plainColors = rc.mode == IFSColorMode;
    bool ok = true;
    auto fast = [&t](float x, float y, Color c) { return plotCopy(t, x, y, (c & 0xFFFFFFu) | 0xFF000000u); };
    auto slow = [&pics](float x, float y, Color c) {
        pics.picfractal.pset(x, y, c);
        pics.picImage2.pset(x, y, c);
        return true;
    };
    try {
        while (o.count < stop) {
            const int i = choice.fast(rng.next32());
            const int32_t count = o.count + 1;
            const float nx = m.a[i] * o.x + m.b[i] * o.y + m.e[i];
            const float ny = m.c[i] * o.x + m.d[i] * o.y + m.f[i];
            // The colour step runs for every iteration, the warm-up included, with no skip rule.
            const Color c = plainColors ? m.color[i] : rc.tileColor(rng, i, nx, ny, m.color[i]);
            o.count = count;
            if (count > WarmUpIterations) {
                if (shared) {
                    if (!plotCopies(copies, nx, ny, c, fast)) {
                        ok = false;
                        break;
                    }
                } else {
                    plotCopies(copies, nx, ny, c, slow);
                }
            }
            o.x = nx;
            o.y = ny;
        }
    } catch (const SurfaceOverflow&) {
        ok = false;
    }
    wb.Rng = rng;
    wb.PointCount = o.count;
    wb.PlotX = o.x;
    wb.PlotY = o.y;
    if (!ok) throw SurfaceOverflow();
}

}  // namespace quillane
