#include "render/deterministic_scan.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <optional>
#include <vector>

#include "render/color_modes.h"
#include "render/run_maps.h"
#include "render/tile_loop.h"

namespace quillane {

namespace {

constexpr uint32_t Opaque = 0xFF000000u;
constexpr uint32_t RgbMask = 0xFFFFFFu;

// The selected maps of the level, in ascending order, with their colours.
struct LevelMaps {
    int n = 0;      // maps of the IFS, for the priority rule
    int first = 0;  // the selected maps are first .. first + count - 1
    int count = 0;
    std::array<float, MaxMaps> a{}, b{}, c{}, d{}, e{}, f{};
    std::array<uint32_t, MaxMaps> color{};  // with the fourth byte
};

LevelMaps levelMaps(const Workbench& wb, int which) {
    LevelMaps m;
    const RunMaps r = CopyRunMaps(wb);
    m.n = r.n;
    m.a = r.a;
    m.b = r.b;
    m.c = r.c;
    m.d = r.d;
    m.e = r.e;
    m.f = r.f;
    for (int i = 0; i < m.n; ++i) m.color[i] = (r.color[i] & RgbMask) | Opaque;
    if (which < 0) {
        m.count = m.n;
    } else if (which < m.n) {
        m.first = which;
        m.count = 1;
    }
    return m;
}

// Everything one row needs, laid out so the inner loop touches plain arrays only.
struct Scan {
    const LevelMaps* maps = nullptr;
    ScanRequest request;
    DeterministicState* det = nullptr;
    uint32_t back = 0;
    uint32_t backOpaque = 0;
    // Colour mode 0: the map (plus 1) that set each pixel of this level, 0 for none (the picture's
    // ScanOwners), and whether map i may paint over a pixel set by map j - 1:
    // allowed[i * (MaxMaps + 1) + j].
    uint8_t* owner = nullptr;
    std::vector<uint8_t> allowed;
    // The set columns of the row being scanned.
    std::vector<int> setColumns;
    // Source: picImage3.
    const uint32_t* src = nullptr;
    int srcW = 0, srcH = 0;
    // Destinations: picImage, and picImage4 or picMask, all of one size and mapping.
    uint32_t* img = nullptr;
    uint32_t* shown = nullptr;
    uint32_t* mask = nullptr;
    int dstW = 0, dstH = 0;
    double left = 0, top = 0, sx = 0, sy = 0;
    // x of every column and the x terms a·x and c·x of every selected map, column by column.
    std::vector<float> colX, ax, cx;
    float stepY = 0, ymax = 0;
    // The y terms b·y and d·y of the row.
    std::array<float, MaxMaps> by{}, dy{};
    // Gradient modes: 1 to 4 by the colouring position, 7 a random strip a pixel.
    const GradientPosition* position = nullptr;
    const GradientColors* gradient = nullptr;
    const std::array<Color, GradientStripCount>* strips = nullptr;
    Random* rng = nullptr;
    // The tiled scan: the copies of every image.
    const TileCopies* tiles = nullptr;
};

bool samePlace(const RasterSurface& s, const RasterSurface& t) {
    return s.width() == t.width() && s.height() == t.height() && s.scaleLeft() == t.scaleLeft() &&
           s.scaleTop() == t.scaleTop() && s.pixelScaleX() == t.pixelScaleX() &&
           s.pixelScaleY() == t.pixelScaleY();
}

void prepareColumns(Scan& s, float stepX, float xmin) {
    const LevelMaps& m = *s.maps;
    s.colX.resize(static_cast<size_t>(s.srcW));
    for (int c = 0; c < s.srcW; ++c) s.colX[c] = static_cast<float>(c) * stepX + xmin;
    s.ax.resize(static_cast<size_t>(m.count) * s.srcW);
    s.cx.resize(static_cast<size_t>(m.count) * s.srcW);
    for (int k = 0; k < m.count; ++k) {
        const int i = m.first + k;
        float* axk = s.ax.data() + static_cast<size_t>(k) * s.srcW;
        float* cxk = s.cx.data() + static_cast<size_t>(k) * s.srcW;
        for (int c = 0; c < s.srcW; ++c) {
            axk[c] = m.a[i] * s.colX[c];
            cxk[c] = m.c[i] * s.colX[c];
        }
    }
}

// The pixel index of a world position in the destinations, or -1 off the picture.
inline long destIndex(const Scan& s, float x, float y) {
    const double tx = (static_cast<double>(x) - s.left) * s.sx;
    const double ty = (static_cast<double>(y) - s.top) * s.sy;
    // floor(t) lies in [0, size) exactly when t does; NaN fails every test.
    if (!(tx >= 0 && ty >= 0 && tx < s.dstW && ty < s.dstH)) return -1;
    return static_cast<long>(static_cast<int>(ty)) * s.dstW + static_cast<int>(tx);
}

// Mode 0: a pixel set by another map is taken over only from a higher-numbered map.
inline bool mayPaint(const LevelMaps& m, int i, uint32_t dest, uint32_t back) {
    if (dest == back) return true;
    for (int k = i + 1; k < m.n; ++k)
        if ((m.color[k] & RgbMask) == dest) return true;
    return false;
}

Color gradientColor(const Scan& s, float x, float y) {
    if (s.det->GradientColor) return s.det->GradientColor(s.request.gradientMode, x, y);
    if (s.strips) return RandomStripColor(*s.strips, *s.rng);
    if (s.position) return s.position->color(*s.gradient, x, y);
    return s.det->DetSingleColor;
}

// The priority rule of mode 0 over the colours of the maps, for every pair of maps.
void preparePriority(Scan& s) {
    const LevelMaps& m = *s.maps;
    std::vector<uint8_t>& owners = s.det->ScanOwners;
    owners.assign(static_cast<size_t>(s.dstW) * s.dstH, 0);
    s.owner = owners.data();
    s.allowed.assign(static_cast<size_t>(MaxMaps) * (MaxMaps + 1), 0);
    for (int i = 0; i < m.n; ++i) {
        uint8_t* row = s.allowed.data() + static_cast<size_t>(i) * (MaxMaps + 1);
        row[0] = 1;
        for (int j = 0; j < m.n; ++j) row[j + 1] = mayPaint(m, i, m.color[j] & RgbMask, s.back);
        // A map painting over its own pixel writes what is there; allowing it keeps the branch
        // predictable where a scattered source sets a place once or twice by chance.
        row[i + 1] = 1;
    }
}

template <ScanKind K>
inline void carryPixel(Scan& s, int col, float y, uint32_t P) {
    const LevelMaps& m = *s.maps;
    [[maybe_unused]] const float x = s.colX[col];
    for (int k = 0; k < m.count; ++k) {
        const int i = m.first + k;
        const size_t at = static_cast<size_t>(k) * s.srcW + col;
        const float xp = (s.ax[at] + s.by[k]) + m.e[i];
        const float yp = (s.cx[at] + s.dy[k]) + m.f[i];
        const long to = destIndex(s, xp, yp);
        if constexpr (K == ScanKind::Gradient) {
            // A random strip is drawn for every image, on the picture or off it.
            if (to < 0 && s.strips && !s.det->GradientColor) s.rng->next32();
        }
        if (to < 0) continue;
        uint32_t v;
        if constexpr (K == ScanKind::ImageColors) {
            v = P | Opaque;
        } else if constexpr (K == ScanKind::IfsColors) {
            // The place's colour is that of the map that set it last in this level, so a byte per pixel
            // saying which map that was answers the priority rule without reading the picture.
            const uint8_t owner = s.owner[to];
            if (!s.allowed[static_cast<size_t>(i) * (MaxMaps + 1) + owner]) continue;
            s.owner[to] = static_cast<uint8_t>(i + 1);
            v = m.color[i];
        } else if constexpr (K == ScanKind::SingleColor) {
            v = (s.request.color & RgbMask) | Opaque;
        } else if constexpr (K == ScanKind::Gradient) {
            // With KeepFirstColor every image is coloured where map 0 put the pixel.
            float gx = xp, gy = yp;
            if (s.det->KeepFirstColor && i != 0) {
                gx = m.a[0] * x + m.b[0] * y + m.e[0];
                gy = m.c[0] * x + m.d[0] * y + m.f[0];
            }
            v = (gradientColor(s, gx, gy) & RgbMask) | Opaque;
        } else {
            v = ((s.request.overlayImageColors ? P : s.request.color) & RgbMask) | Opaque;
            s.img[to] = v;
            s.mask[to] = Black | Opaque;
            continue;
        }
        s.img[to] = v;
        if (s.shown) s.shown[to] = v;
    }
}

// The tiled scan: every image of the pixel with its copies, each in the colour the coloured scan gives
// the image, or in its own tile colour.
inline void carryTiledPixel(Scan& s, int col, float y) {
    const LevelMaps& m = *s.maps;
    const TileCopies& k = *s.tiles;
    const float x = s.colX[col];
    const ScanKind colorKind = s.request.kind;
    for (int n = 0; n < m.count; ++n) {
        const int i = m.first + n;
        const size_t at = static_cast<size_t>(n) * s.srcW + col;
        const float xp = (s.ax[at] + s.by[n]) + m.e[i];
        const float yp = (s.cx[at] + s.dy[n]) + m.f[i];
        uint32_t v = m.color[i];
        if (!k.separateColors) {
            if (colorKind == ScanKind::SingleColor) {
                v = (s.request.color & RgbMask) | Opaque;
            } else if (colorKind == ScanKind::Gradient) {
                float gx = xp, gy = yp;
                if (s.det->KeepFirstColor && i != 0) {
                    gx = m.a[0] * x + m.b[0] * y + m.e[0];
                    gy = m.c[0] * x + m.d[0] * y + m.f[0];
                }
                v = (gradientColor(s, gx, gy) & RgbMask) | Opaque;
            }
        }
        const bool priority = !k.separateColors && colorKind == ScanKind::IfsColors;
        for (int a = 0; a < k.side; ++a) {
            const float bx = xp + k.ix[static_cast<size_t>(a)];
            const float by = yp + k.iy[static_cast<size_t>(a)];
            for (int b = 0; b < k.side; ++b) {
                const long to =
                    destIndex(s, bx + k.jx[static_cast<size_t>(b)], by + k.jy[static_cast<size_t>(b)]);
                if (to < 0) continue;
                uint32_t value = v;
                if (k.separateColors) {
                    value = k.color[static_cast<size_t>(a * k.side + b)] | Opaque;
                } else if (priority) {
                    if (!s.allowed[static_cast<size_t>(i) * (MaxMaps + 1) + s.owner[to]]) continue;
                    s.owner[to] = static_cast<uint8_t>(i + 1);
                }
                s.img[to] = value;
                if (s.shown) s.shown[to] = value;
            }
        }
    }
}

template <ScanKind K>
void scanRow(Scan& s, int r) {
    const LevelMaps& m = *s.maps;
    const float y = s.ymax - static_cast<float>(r) * s.stepY;
    for (int k = 0; k < m.count; ++k) {
        s.by[k] = m.b[m.first + k] * y;
        s.dy[k] = m.d[m.first + k] * y;
    }
    const uint32_t* row = s.src + static_cast<size_t>(r) * s.srcW;
    const uint32_t back = s.back;
    int* cols = s.setColumns.data();
    int count = 0;
    // Columns 1 .. N - 1. Listing the set ones without a branch keeps the scattered patterns of a
    // fractal from stalling the loop on mispredictions.
    for (int c = 1; c < s.srcW; ++c) {
        cols[count] = c;
        count += ((row[c] ^ back) & RgbMask) != 0;
    }
    for (int j = 0; j < count; ++j) {
        if constexpr (K == ScanKind::Tiled)
            carryTiledPixel(s, cols[j], y);
        else
            carryPixel<K>(s, cols[j], y, row[cols[j]] & RgbMask);
    }
}

template <ScanKind K>
bool scanRows(Scan& s, FractalPictures& pics, Host& host) {
    const int n = s.srcH;
    for (int r = 1; r < n; ++r) {
        pics.Det.pgrIterate = static_cast<int>(std::nearbyint(100.0 * r / n));
        scanRow<K>(s, r);
        host.yield();
        if (pics.Det.IterationAbort) return false;
        // A yield that resized the pictures ends the level; its buffers are gone.
        if (pics.picImage3.data() != s.src || pics.picImage.data() != s.img) return false;
    }
    return true;
}

// The tiled scan: the colours of the coloured scan set up as for it, then every image with its copies.
bool tiledScan(Workbench& wb, FractalPictures& pics, Host& host, Scan& s, const LevelMaps& maps) {
    const TileCopies tiles = PrepareTileCopies(pics.Tiling, wb.TilingColor);
    s.tiles = &tiles;
    GradientColors gradient = wb.Gradient;
    gradient.GradientColorCount = GradientCount(gradient);
    std::optional<GradientPosition> position;
    std::array<Color, GradientStripCount> strips{};
    if (s.request.kind == ScanKind::IfsColors) {
        preparePriority(s);
    } else if (s.request.kind == ScanKind::Gradient) {
        s.gradient = &gradient;
        if (s.request.gradientMode == StealingColorMode) {
            strips = GradientStrips(gradient);
            s.strips = &strips;
            s.rng = &wb.Rng;
        } else {
            position.emplace(s.request.gradientMode, wb, wb.CurrentIFS, maps.n);
            s.position = &*position;
        }
    }
    return scanRows<ScanKind::Tiled>(s, pics, host);
}

}  // namespace

bool ScanLevel(Workbench& wb, FractalPictures& pics, Host& host, const ScanRequest& request) {
    const LevelMaps maps = levelMaps(wb, request.which);
    Scan s;
    s.maps = &maps;
    s.request = request;
    s.det = &pics.Det;
    s.back = pics.picfractal.backColor() & RgbMask;
    s.backOpaque = s.back | Opaque;
    s.src = pics.picImage3.data();
    s.srcW = pics.picImage3.width();
    s.srcH = pics.picImage3.height();
    const bool overlay = request.kind == ScanKind::Overlay;
    RasterSurface& second = overlay ? pics.picMask : pics.picImage4;
    if (!samePlace(pics.picImage, second)) second.takeImage(pics.picImage);
    s.img = pics.picImage.data();
    if (overlay)
        s.mask = second.data();
    else if (request.writeShown)
        s.shown = second.data();
    s.dstW = pics.picImage.width();
    s.dstH = pics.picImage.height();
    s.left = pics.picImage.scaleLeft();
    s.top = pics.picImage.scaleTop();
    s.sx = pics.picImage.pixelScaleX();
    s.sy = pics.picImage.pixelScaleY();
    const RasterSurface& view = pics.picfractal;
    const float stepX = static_cast<float>(view.pixelsToWorldX(1));
    s.stepY = static_cast<float>(std::fabs(view.pixelsToWorldY(1)));
    s.ymax = static_cast<float>(view.scaleTop());
    s.setColumns.resize(static_cast<size_t>(std::max(s.srcW, 1)));
    prepareColumns(s, stepX, static_cast<float>(view.scaleLeft()));
    if (request.tiled && request.kind != ScanKind::Overlay) return tiledScan(wb, pics, host, s, maps);
    switch (request.kind) {
        case ScanKind::ImageColors:
            return scanRows<ScanKind::ImageColors>(s, pics, host);
        case ScanKind::IfsColors:
            preparePriority(s);
            return scanRows<ScanKind::IfsColors>(s, pics, host);
        case ScanKind::SingleColor:
            return scanRows<ScanKind::SingleColor>(s, pics, host);
        case ScanKind::Gradient: {
            GradientColors gradient = wb.Gradient;
            gradient.GradientColorCount = GradientCount(gradient);
            s.gradient = &gradient;
            std::optional<GradientPosition> position;
            std::array<Color, GradientStripCount> strips{};
            if (request.gradientMode == StealingColorMode) {
                strips = GradientStrips(gradient);
                s.strips = &strips;
                s.rng = &wb.Rng;
            } else {
                position.emplace(request.gradientMode, wb, wb.CurrentIFS, maps.n);
                s.position = &*position;
            }
            return scanRows<ScanKind::Gradient>(s, pics, host);
        }
        case ScanKind::Overlay:
            return scanRows<ScanKind::Overlay>(s, pics, host);
        case ScanKind::Tiled:
            break;
    }
    return true;
}

}  // namespace quillane
