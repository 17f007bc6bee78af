#include "movies/movie_frame.h"

#include <algorithm>
#include <cmath>

#include "core/design_polygon.h"
#include "core/numbers.h"

namespace quillane {
namespace {

// The map of each draw u = Round(Rnd, 4), as a table over the 10001 values u can take.
std::vector<uint8_t> mapTable(const IFSEntry& probabilities, int maps) {
    std::vector<uint8_t> table(10001, static_cast<uint8_t>(maps - 1));
    float sum = 0;
    int map = 0;
    std::vector<float> cumulative(static_cast<size_t>(maps), 0);
    for (int i = 0; i < maps; ++i) cumulative[static_cast<size_t>(i)] = sum += probabilities.p[i];
    for (int k = 0; k <= 10000; ++k) {
        const double u = k / 10000.0;
        while (map < maps - 1 && !(u <= cumulative[static_cast<size_t>(map)])) ++map;
        table[static_cast<size_t>(k)] = static_cast<uint8_t>(map);
    }
    return table;
}

// Round(x / 2^32, 4) * 10000 for a 32-bit draw, half to even, in integers.
int roundedDraw(uint32_t bits) {
    const uint64_t q = static_cast<uint64_t>(bits) * 10000u;
    uint64_t k = q >> 32;
    const uint64_t rest = q & 0xFFFFFFFFu;
    if (rest > 0x80000000u || (rest == 0x80000000u && (k & 1))) ++k;
    return static_cast<int>(k);
}

// Bounds rounded to 5 places, then widened by 0.05 and rounded to 1 place.
void widen(float& lo, float& hi) {
    lo = static_cast<float>(Round(Round(lo, 5) - 0.05, 1));
    hi = static_cast<float>(Round(Round(hi, 5) + 0.05, 1));
    if (lo == hi) {
        lo -= 0.05f;
        hi += 0.05f;
    }
}

// The shorter range centred on the longer one.
WorldWindow squared(WorldWindow s) {
    const float dx = s.xmax - s.xmin, dy = s.ymax - s.ymin;
    if (dx < dy) {
        const float cx = (s.xmin + s.xmax) / 2;
        s.xmin = cx - dy / 2;
        s.xmax = cx + dy / 2;
    } else if (dy < dx) {
        const float cy = (s.ymin + s.ymax) / 2;
        s.ymin = cy - dx / 2;
        s.ymax = cy + dx / 2;
    }
    return s;
}

}  // namespace

void DrawMovieFrame(RasterSurface& picture, const IFSEntry& frame, const IFSEntry& probabilities, int maps,
                    int32_t iterations, const FunctionColors& colors, Random& rng) {
    picture.clear();
    if (maps <= 0 || picture.width() <= 0) return;
    maps = std::min(maps, MaxMaps);
    const std::vector<uint8_t> table = mapTable(probabilities, maps);
    float x = 0, y = 0;
    for (int32_t n = 1; n <= iterations; ++n) {
        const int i = table[static_cast<size_t>(roundedDraw(rng.next32()))];
        const float nx = frame.a[i] * x + frame.b[i] * y + frame.e[i];
        y = frame.c[i] * x + frame.d[i] * y + frame.f[i];
        x = nx;
        if (n <= MovieWarmUpPoints) continue;
        int64_t col, row;
        if (picture.toPixel(x, y, col, row) && picture.inside(col, row))
            picture.setPixel(static_cast<int>(col), static_cast<int>(row),
                             colors[static_cast<size_t>(i) % colors.size()]);
    }
}

WorldWindow MovieBounds(const IFSEntry& ifs, int maps, const std::vector<WorldPoint>& figure) {
    float xmin = 1e30f, xmax = -1e30f, ymin = 1e30f, ymax = -1e30f;
    bool any = false;
    for (int i = 0; i < maps && i < MaxMaps; ++i)
        for (const WorldPoint& v : figure) {
            if (v.x >= PenLift || v.y >= PenLift) continue;
            const float x = static_cast<float>(ifs.a[i] * v.x + ifs.b[i] * v.y + ifs.e[i]);
            const float y = static_cast<float>(ifs.c[i] * v.x + ifs.d[i] * v.y + ifs.f[i]);
            if (std::fabs(x) >= 1000 || std::fabs(y) >= 1000 || std::isnan(x) || std::isnan(y)) continue;
            xmin = std::min(xmin, x);
            xmax = std::max(xmax, x);
            ymin = std::min(ymin, y);
            ymax = std::max(ymax, y);
            any = true;
        }
    if (!any) xmin = xmax = ymin = ymax = 0;
    widen(xmin, xmax);
    widen(ymin, ymax);
    return SquareWithMargin({xmin, xmax, ymin, ymax});
}

WorldWindow SquareWithMargin(const WorldWindow& w) {
    const WorldWindow s = squared(w);
    const float margin = (s.xmax - s.xmin) * 0.05f;
    return {s.xmin - margin, s.xmax + margin, s.ymin - margin, s.ymax + margin};
}

WorldWindow FitMovieView(const IFSEntry& initial, const IFSEntry& final, int maps,
                         const std::vector<WorldPoint>& figure) {
    const WorldWindow a = MovieBounds(initial, maps, figure), b = MovieBounds(final, maps, figure);
    const WorldWindow u{std::min(a.xmin, b.xmin), std::max(a.xmax, b.xmax), std::min(a.ymin, b.ymin),
                        std::max(a.ymax, b.ymax)};
    return squared(u);
}

namespace {

// Points of the orbit of (0, 0) after a warm-up, with the probabilities of the IFS itself.
std::vector<WorldPoint> orbitSample(const IFSEntry& ifs, int maps, Random& rng) {
    std::vector<WorldPoint> points;
    if (maps <= 0) return points;
    const std::vector<uint8_t> table = mapTable(ifs, std::min(maps, MaxMaps));
    float x = 0, y = 0;
    for (int n = 1; n <= 5000; ++n) {
        const int i = table[static_cast<size_t>(roundedDraw(rng.next32()))];
        const float nx = ifs.a[i] * x + ifs.b[i] * y + ifs.e[i];
        y = ifs.c[i] * x + ifs.d[i] * y + ifs.f[i];
        x = nx;
        if (n > MovieWarmUpPoints) points.push_back({x, y});
    }
    return points;
}

}  // namespace

WorldWindow FitMovieViewToAttractors(const IFSEntry& initial, const IFSEntry& final, int maps, Random& rng) {
    const WorldWindow a = MovieBounds(initial, maps, orbitSample(initial, maps, rng));
    const WorldWindow b = MovieBounds(final, maps, orbitSample(final, maps, rng));
    return squared({std::min(a.xmin, b.xmin), std::max(a.xmax, b.xmax), std::min(a.ymin, b.ymin),
                    std::max(a.ymax, b.ymax)});
}

void ApplyMovieView(RasterSurface& picture, const WorldWindow& view) {
    picture.setScale(view.xmin, view.ymax, view.xmax, view.ymin);
}

}  // namespace quillane
