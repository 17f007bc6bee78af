#include "generators/symmetric_maps.h"

#include <cmath>

namespace quillane {
namespace {

// The program's own value of a full turn.
constexpr double FullTurn = 6.283185308;

double angleOf(int k, int n) {
    return k * FullTurn / n;
}

}  // namespace

int CopiesPerMap(SymmetryGroup group, int n) {
    return group == SymmetryGroup::Dihedral ? 2 * n : n;
}

int LargestOrder(SymmetryGroup group, int m) {
    if (m < 1) return MaxSymmetryOrder;
    return MaxMaps / (group == SymmetryGroup::Dihedral ? 2 * m : m);
}

IFSFunction RotatedMap(const IFSFunction& m, int k, int n) {
    const double w = angleOf(k, n), cw = std::cos(w), sw = std::sin(w);
    IFSFunction r;
    r.a = static_cast<float>(m.a * cw - m.c * sw);
    r.b = static_cast<float>(m.b * cw - m.d * sw);
    r.c = static_cast<float>(m.c * cw + m.a * sw);
    r.d = static_cast<float>(m.b * sw + m.d * cw);
    r.e = static_cast<float>(m.e * cw - m.f * sw);
    r.f = static_cast<float>(m.e * sw + m.f * cw);
    return r;
}

IFSFunction ReflectedMap(const IFSFunction& m, int k, int n) {
    const double w = angleOf(k, n), cw = std::cos(w), sw = std::sin(w);
    IFSFunction r;
    r.a = static_cast<float>(m.a * cw + m.c * sw);
    r.b = static_cast<float>(m.b * cw + m.d * sw);
    r.c = static_cast<float>(m.a * sw - m.c * cw);
    r.d = static_cast<float>(m.b * sw - m.d * cw);
    r.e = static_cast<float>(m.e * cw + m.f * sw);
    r.f = static_cast<float>(m.e * sw - m.f * cw);
    return r;
}

IFSEntry SymmetricFromBase(const IFSFunction& base, SymmetryGroup group, int n) {
    IFSFunction one = base;
    one.p = 1;
    IFSEntry single;
    single.nMaps = 1;
    single.setFunction(0, one);
    return *SymmetricFromIFS(single, group, n);
}

std::optional<IFSEntry> SymmetricFromIFS(const IFSEntry& source, SymmetryGroup group, int n) {
    const int m = source.nMaps;
    const int copies = CopiesPerMap(group, n);
    if (n < 1 || m < 1 || m * copies > MaxMaps) return std::nullopt;
    IFSEntry out;
    out.nMaps = static_cast<int16_t>(m * copies);
    for (int j = 0; j < m; ++j) {
        const IFSFunction map = source.function(j);
        const float p = map.p / static_cast<float>(copies);
        for (int k = 0; k < n; ++k) {
            IFSFunction r = RotatedMap(map, k, n);
            r.p = p;
            out.setFunction(copies * j + k, r);
            if (group == SymmetryGroup::Dihedral) {
                IFSFunction s = ReflectedMap(map, k, n);
                s.p = p;
                out.setFunction(copies * j + n + k, s);
            }
        }
    }
    return out;
}

}  // namespace quillane
