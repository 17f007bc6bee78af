#include "generators/tiling.h"

#include <algorithm>
#include <cmath>
#include <cstdio>

#include "core/numbers.h"

namespace quillane {
namespace {

constexpr Color FillRed = RGB(255, 0, 0);
constexpr Color AxisBlue = RGB(0, 0, 255);

int16_t toInteger(double x) {
    return static_cast<int16_t>(std::clamp<int32_t>(CInt(x), INT16_MIN, INT16_MAX));
}

// A number as a label shows it: no leading blank, a leading zero before the point.
std::string labelNumber(double x) {
    char text[40];
    std::snprintf(text, sizeof text, "%.15g", x);
    return text;
}

bool inLattice(int u, int v) {
    return u >= -LatticeReach && u <= LatticeReach && v >= -LatticeReach && v <= LatticeReach;
}

int16_t& markOf(TilingLattice& lat, int u, int v) {
    return lat.ResidueMarks[static_cast<size_t>(u + LatticeReach)][static_cast<size_t>(v + LatticeReach)];
}

void paintPoint(RasterSurface& pic, const TilingBasis& B, int u, int v, bool marked) {
    const double r = std::fabs(pic.pixelsToWorldX(3));
    const double x = u * static_cast<double>(B.b11) + v * static_cast<double>(B.b12);
    const double y = u * static_cast<double>(B.b21) + v * static_cast<double>(B.b22);
    pic.circle(x, y, r, marked ? FillRed : Black, true);
}

}  // namespace

bool TilingLattice::marked(int u, int v) const {
    return inLattice(u, v) &&
           ResidueMarks[static_cast<size_t>(u + LatticeReach)][static_cast<size_t>(v + LatticeReach)] != 0;
}

TilingMatrix ReadTilingMatrix(const std::array<std::string, 4>& txtM) {
    TilingMatrix M;
    M.m11 = toInteger(Val(txtM[0]));
    M.m12 = toInteger(Val(txtM[1]));
    M.m21 = toInteger(Val(txtM[2]));
    M.m22 = toInteger(Val(txtM[3]));
    return M;
}

TilingEigenLabels EigenLabels(const TilingMatrix& M) {
    TilingEigenLabels l;
    const int64_t det = M.det();
    const int64_t t = M.trace();
    l.lblDet = "| Det | =" + StrD(static_cast<double>(det < 0 ? -det : det));
    l.lblTrace = "| Trace | =" + StrD(static_cast<double>(t < 0 ? -t : t));
    const int64_t D = t * t - 4 * det;
    if (D < 0) {
        const double im = Round(std::sqrt(static_cast<double>(-D)) / 2, 3);
        const double re = Round(static_cast<double>(t) / 2, 3);
        l.lblEigType = "Complex";
        l.lbleig1 = labelNumber(Round(std::sqrt(re * re + im * im), 3));
        l.lbleig2 = l.lbleig1;
    } else {
        const double root = std::sqrt(static_cast<double>(D));
        l.lblEigType = "Real";
        l.lbleig1 = labelNumber(Round(std::fabs((static_cast<double>(t) + root) / 2), 3));
        l.lbleig2 = labelNumber(Round(std::fabs((static_cast<double>(t) - root) / 2), 3));
    }
    return l;
}

float LatticeBaseRadius(const TilingMatrix& M) {
    auto S = [](double x, double y) { return Round(std::sqrt(x * x + y * y) + 0.45, 0) * 1.2; };
    const double r = std::max({S(static_cast<double>(M.m11) + M.m12, static_cast<double>(M.m21) + M.m22),
                               S(M.m11, M.m21), S(M.m12, M.m22)});
    return static_cast<float>(std::min(r, 10.0));
}

void RestoreLatticeView(TilingLattice& lat) {
    lat.vxmin = lat.vymin = -lat.BaseRadius;
    lat.vxmax = lat.vymax = lat.BaseRadius;
}

void DrawParallelograms(RasterSurface& picDraw, const TilingMatrix& M, const TilingBasis& B, double xmin,
                        double xmax, double ymin, double ymax) {
    picDraw.clear();
    const double px = B.b11 * static_cast<double>(M.m11) + B.b12 * static_cast<double>(M.m21);
    const double py = B.b21 * static_cast<double>(M.m11) + B.b22 * static_cast<double>(M.m21);
    const double qx = B.b11 * static_cast<double>(M.m12) + B.b12 * static_cast<double>(M.m22);
    const double qy = B.b21 * static_cast<double>(M.m12) + B.b22 * static_cast<double>(M.m22);
    picDraw.setDrawWidth(2);
    for (int i = -LatticeReach; i <= LatticeReach; ++i) {
        for (int j = -LatticeReach; j <= LatticeReach; ++j) {
            const double x0 = i * px + j * qx, y0 = i * py + j * qy;
            picDraw.line(x0, y0, x0 + px, y0 + py, Black);
            picDraw.line(x0, y0, x0 + qx, y0 + qy, Black);
            picDraw.line(x0 + px, y0 + py, x0 + px + qx, y0 + py + qy, Black);
            picDraw.line(x0 + qx, y0 + qy, x0 + px + qx, y0 + py + qy, Black);
        }
    }
    picDraw.line(xmin, 0, xmax, 0, AxisBlue);
    picDraw.line(0, ymin, 0, ymax, AxisBlue);
    picDraw.setDrawWidth(3);
    picDraw.line(0, 0, px, py, FillRed);
    picDraw.line(0, 0, qx, qy, FillRed);
    picDraw.line(px, py, px + qx, py + qy, FillRed);
    picDraw.line(qx, qy, px + qx, py + qy, FillRed);
    picDraw.setDrawWidth(1);
}

void DrawLatticePoints(RasterSurface& picDraw, const TilingLattice& lat, const TilingBasis& B) {
    for (int u = -LatticeReach; u <= LatticeReach; ++u)
        for (int v = -LatticeReach; v <= LatticeReach; ++v) paintPoint(picDraw, B, u, v, lat.marked(u, v));
}

void PaintLattice(RasterSurface& picDraw, const TilingLattice& lat, const TilingMatrix& M,
                  const TilingBasis& B) {
    picDraw.setScale(lat.vxmin, lat.vymax, lat.vxmax, lat.vymin);
    DrawParallelograms(picDraw, M, B, lat.vxmin, lat.vxmax, lat.vymin, lat.vymax);
    DrawLatticePoints(picDraw, lat, B);
}

bool CongruentToChosen(const TilingLattice& lat, const TilingMatrix& M, int u, int v) {
    const double det = static_cast<double>(M.det());
    if (det == 0) return false;
    for (const auto& [uk, vk] : lat.ResidueVectors) {
        const double du = u - uk, dv = v - vk;
        const double s = (du * M.m22 - dv * M.m12) / det;
        const double t = (dv * M.m11 - du * M.m21) / det;
        if (std::floor(s) == s && std::floor(t) == t) return true;
    }
    return false;
}

std::optional<std::pair<int, int>> PickResidue(TilingLattice& lat, const TilingMatrix& M,
                                               const TilingBasis& B, double x, double y, double r) {
    const double detB = B.det();
    if (detB == 0) return std::nullopt;
    const double xp = (x * B.b22 - y * B.b12) / detB;
    const double yp = (B.b11 * y - B.b21 * x) / detB;
    if (!std::isfinite(xp) || !std::isfinite(yp) || std::fabs(xp) > 1e6 || std::fabs(yp) > 1e6)
        return std::nullopt;
    const int u = static_cast<int>(Round(xp, 0));
    const int v = static_cast<int>(Round(yp, 0));
    // The view never shows more than -20 .. 20, and the marks hold no other point.
    if (!inLattice(u, v)) return std::nullopt;
    const bool wasMarked = lat.marked(u, v);
    const int64_t det = M.det();
    const int64_t room = std::min<int64_t>(det < 0 ? -det : det, MaxResidues);
    if (!wasMarked && lat.nResidues() >= room) return std::nullopt;
    if (std::fabs(v - yp) + std::fabs(u - xp) > 2 * r) return std::nullopt;
    if (wasMarked) {
        auto& list = lat.ResidueVectors;
        list.erase(std::find(list.begin(), list.end(), std::make_pair(u, v)));
    } else {
        if (CongruentToChosen(lat, M, u, v)) return std::nullopt;
        auto& list = lat.ResidueVectors;
        if (u == 0 && v == 0 && !list.empty()) {
            // The zero vector stands first, so that map 1 keeps the origin; the former first goes last.
            list.push_back(list.front());
            list.front() = {0, 0};
        } else {
            list.emplace_back(u, v);
        }
    }
    markOf(lat, u, v) = wasMarked ? 0 : 1;
    return std::make_pair(u, v);
}

void ClearLattice(TilingLattice& lat) {
    for (auto& column : lat.ResidueMarks) column.fill(0);
    lat.ResidueVectors.clear();
}

bool LatticeViewKey(TilingLattice& lat, int KeyCode, bool ctrl) {
    const float step = ctrl ? 0.25f : 1.0f;
    if (!ctrl && lat.KeyLatch) return false;
    const float reach = LatticeReach;
    bool changed = false;
    switch (KeyCode) {
        case TilingKeyPageUp:
            if (lat.vxmin + step < lat.vxmax - step && lat.vymin + step < lat.vymax - step) {
                lat.vxmin += step;
                lat.vxmax -= step;
                lat.vymin += step;
                lat.vymax -= step;
                changed = true;
            }
            break;
        case TilingKeyPageDown:
            if (lat.vxmin - step >= -reach && lat.vxmax + step <= reach && lat.vymin - step >= -reach &&
                lat.vymax + step <= reach) {
                lat.vxmin -= step;
                lat.vxmax += step;
                lat.vymin -= step;
                lat.vymax += step;
                changed = true;
            }
            break;
        case TilingKeyLeft:
            if (lat.vxmin - step >= -reach) {
                lat.vxmin -= step;
                lat.vxmax -= step;
                changed = true;
            }
            break;
        case TilingKeyRight:
            if (lat.vxmax + step <= reach) {
                lat.vxmin += step;
                lat.vxmax += step;
                changed = true;
            }
            break;
        case TilingKeyUp:
            if (lat.vymax + step <= reach) {
                lat.vymin += step;
                lat.vymax += step;
                changed = true;
            }
            break;
        case TilingKeyDown:
            if (lat.vymin - step >= -reach) {
                lat.vymin -= step;
                lat.vymax -= step;
                changed = true;
            }
            break;
        case TilingKeyHome:
            RestoreLatticeView(lat);
            changed = true;
            break;
        default:
            return false;
    }
    lat.KeyLatch = true;
    return changed;
}

IFSEntry TilingMaps(const TilingMatrix& M, const TilingBasis& B,
                    const std::vector<std::pair<int, int>>& residues) {
    IFSEntry ifs;
    const float det = static_cast<float>(M.det());
    const float A11 = static_cast<float>(M.m22) / det, A12 = static_cast<float>(-M.m12) / det;
    const float A21 = static_cast<float>(-M.m21) / det, A22 = static_cast<float>(M.m11) / det;
    const float detB = B.det();
    const float C11 = B.b11 * A11 + B.b12 * A21, C12 = B.b11 * A12 + B.b12 * A22;
    const float C21 = B.b21 * A11 + B.b22 * A21, C22 = B.b21 * A12 + B.b22 * A22;
    const float a = (C11 * B.b22 - C12 * B.b21) / detB;
    const float b = (C12 * B.b11 - C11 * B.b12) / detB;
    const float c = (C21 * B.b22 - C22 * B.b21) / detB;
    const float d = (C22 * B.b11 - C21 * B.b12) / detB;
    const int n = std::min(static_cast<int>(residues.size()), static_cast<int>(MaxResidues));
    ifs.nMaps = static_cast<int16_t>(n);
    for (int k = 0; k < n; ++k) {
        const auto [u, v] = residues[static_cast<size_t>(k)];
        ifs.a[k] = a;
        ifs.b[k] = b;
        ifs.c[k] = c;
        ifs.d[k] = d;
        // B (u, v), deliberately not T B (u, v): the tile then lies where its residues were picked.
        ifs.e[k] = static_cast<float>(u) * B.b11 + static_cast<float>(v) * B.b12;
        ifs.f[k] = static_cast<float>(u) * B.b21 + static_cast<float>(v) * B.b22;
        ifs.p[k] = 1.0f / static_cast<float>(n);
    }
    return ifs;
}

}  // namespace quillane
