#include "core/sample_systems.h"

#include <cmath>

#include "core/chaos_game.h"
#include "core/numbers.h"

namespace quillane {

IFSEntry SierpinskiTriangleIFS() {
    IFSEntry ifs = DefaultIFS();
    ifs.Name = "Sierpinski triangle";
    ifs.nMaps = 3;
    const float ex[3] = {0.0f, 0.5f, 0.25f};
    const float fy[3] = {0.0f, 0.0f, 0.5f};
    for (int i = 0; i < 3; ++i) {
        ifs.a[i] = ifs.d[i] = 0.5f;
        ifs.b[i] = ifs.c[i] = 0.0f;
        ifs.e[i] = ex[i];
        ifs.f[i] = fy[i];
        ifs.p[i] = i < 2 ? 0.333333f : 0.333334f;
    }
    return ifs;
}

IFSEntry GridIFS(int n) {
    IFSEntry ifs = DefaultIFS();
    ifs.Name = "Grid " + std::to_string(n);
    ifs.nMaps = static_cast<int16_t>(n);
    const int k = static_cast<int>(std::ceil(std::sqrt(static_cast<double>(n))));
    const float s = 1.0f / static_cast<float>(k);
    const double q = Round(1.0 / n, 6);
    for (int i = 0; i < n; ++i) {
        ifs.a[i] = ifs.d[i] = s;
        ifs.b[i] = ifs.c[i] = 0.0f;
        ifs.e[i] = static_cast<float>(i % k) * s;
        ifs.f[i] = static_cast<float>(i / k) * s;
        ifs.p[i] = static_cast<float>(i < n - 1 ? q : Round(1.0 - (n - 1) * q, 6));
    }
    return ifs;
}

}  // namespace quillane
