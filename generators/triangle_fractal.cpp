#include "generators/triangle_fractal.h"

#include <algorithm>
#include <cmath>

#include "core/numbers.h"

namespace quillane {
namespace {

const double H = std::sqrt(3.0) / 2;

}  // namespace

void DrawTriangles(TriangleFractal& tri, RasterSurface& picCanvas, int n) {
    tri.n = std::clamp(n, 2, 10);
    n = tri.n;
    picCanvas.setScale(-0.05, 1.05, 1.05, -0.05);
    picCanvas.clear();
    picCanvas.line(0, 0, 1, 0, Black);
    picCanvas.line(1, 0, 0.5, H, Black);
    picCanvas.line(0.5, H, 0, 0, Black);
    picCanvas.floodFillBorder(0.5, H / 2, Black, TriangleRed);
    const double dn = n;
    for (int i = 0; i < n; ++i) {
        picCanvas.line(i / dn, 0, (i + dn) / (2 * dn), ((n - i) / dn) * H, Black);
        picCanvas.line(1 - i / dn, 0, (n - i) / (2 * dn), ((n - i) / dn) * H, Black);
        picCanvas.line(i / (2 * dn), (i / dn) * H, 1 - i / (2 * dn), (i / dn) * H, Black);
    }
    tri.TriangleCount = n * n;
    tri.TriangleOff.fill(false);
}

TriangleCell TriangleAt(const TriangleFractal& tri, double x, double y) {
    TriangleCell cell;
    if (!(y > 0)) return cell;
    if (x >= 0.5 && x < 1) {
        if (!(y < 2 * H * (1 - x))) return cell;
    } else if (x > 0 && x < 0.5) {
        if (!(y < 2 * H * x)) return cell;
    } else {
        return cell;
    }
    const int n = tri.n;
    cell.row = static_cast<int>(std::floor(n * y / H));
    if (cell.row >= n) {  // only at the apex, by rounding
        cell.row = -1;
        return cell;
    }
    const int m = n - cell.row;
    const double t = 1 - y / H;
    const double w1 = t - (m - 1.0) / n;
    const double w2 = static_cast<double>(m) / n - t;
    const double u = x - y / (2 * H);
    if (u < w1) {
        cell.pos = 0;
        return cell;
    }
    for (int k = 1; k <= 9; ++k) {
        if (u <= k * w1 + k * w2) {
            cell.pos = 2 * k - 1;
            return cell;
        }
        if (u <= (k + 1) * w1 + k * w2) {
            cell.pos = 2 * k;
            return cell;
        }
    }
    return cell;
}

bool ClickTriangle(TriangleFractal& tri, RasterSurface& picCanvas, double x, double y) {
    const TriangleCell cell = TriangleAt(tri, x, y);
    if (cell.row < 0) return false;
    const Color under = picCanvas.point(x, y);
    if (under != TriangleRed && under != White) return false;
    // A point no cell claims (rounding at an edge) counts nothing, so the count stays true.
    if (cell.pos < 0 || cell.pos > 2 * (tri.n - cell.row) - 2) return false;
    const Color fill = under == TriangleRed ? White : TriangleRed;
    tri.TriangleCount += under == TriangleRed ? -1 : 1;
    bool& off = tri.TriangleOff[static_cast<size_t>(19 * cell.row + cell.pos)];
    off = !off;
    picCanvas.floodFillBorder(x, y, Black, fill);
    return true;
}

IFSEntry TriangleMaps(const TriangleFractal& tri) {
    IFSEntry ifs;
    if (tri.TriangleCount <= 0) return ifs;
    const int n = tri.n;
    const double dn = n;
    const float p0 = static_cast<float>(Round(1.0 / tri.TriangleCount, 6));
    float sum = 0;
    int slot = 0;
    for (int row = 0; row < n; ++row) {
        for (int pos = 0; pos <= 2 * (n - row) - 2; ++pos) {
            if (tri.TriangleOff[static_cast<size_t>(19 * row + pos)] || slot >= MaxMaps) continue;
            const auto i = static_cast<size_t>(slot);
            const bool upright = pos % 2 == 0;
            ifs.a[i] = ifs.d[i] = static_cast<float>((upright ? 1 : -1) / dn);
            ifs.b[i] = ifs.c[i] = 0;
            ifs.e[i] = static_cast<float>((upright ? 0 : 1 / dn) + (row + pos) / (2 * dn));
            ifs.f[i] = static_cast<float>((upright ? row : row + 1) * H / dn);
            ifs.p[i] = p0;
            sum += p0;
            ++slot;
        }
    }
    ifs.nMaps = static_cast<int16_t>(slot);
    if (Round(sum, 3) < 1 && slot >= 1)
        ifs.p[static_cast<size_t>(slot - 1)] =
            static_cast<float>(1 - Round((tri.TriangleCount - 1) * static_cast<double>(p0), 6));
    return ifs;
}

}  // namespace quillane
