#include "core/unit_square_ifs.h"

#include <algorithm>
#include <cmath>

namespace quillane {

namespace {

// Shares of `count` values starting at p[first], in proportion to their sum.
std::vector<double> shares(const float* p, int first, int count) {
    double sum = 0;
    for (int k = 0; k < count; ++k) sum += std::max(0.0f, p[first + k]);
    std::vector<double> out(static_cast<size_t>(count));
    for (int k = 0; k < count; ++k)
        out[static_cast<size_t>(k)] = sum > 0 ? std::max(0.0f, p[first + k]) / sum : 1.0 / count;
    return out;
}

}  // namespace

std::vector<UnitSquareCell> UnitSquareGrid(const float* p, int n) {
    std::vector<UnitSquareCell> cells(static_cast<size_t>(n > 0 ? n : 0));
    if (n <= 0) return cells;
    const int rows = static_cast<int>(std::ceil(std::sqrt(static_cast<double>(n))));
    // Row heights: each row's share of the whole.
    std::vector<float> rowSums(static_cast<size_t>(rows), 0.0f);
    std::vector<int> rowStart(static_cast<size_t>(rows) + 1);
    for (int k = 0; k <= rows; ++k) rowStart[static_cast<size_t>(k)] = k * n / rows;
    for (int k = 0; k < rows; ++k)
        for (int i = rowStart[k]; i < rowStart[k + 1]; ++i)
            rowSums[static_cast<size_t>(k)] += std::max(0.0f, p[i]);
    const std::vector<double> heights = shares(rowSums.data(), 0, rows);
    double y = 0;
    for (int k = 0; k < rows; ++k) {
        const int first = rowStart[k], count = rowStart[k + 1] - first;
        const std::vector<double> widths = shares(p, first, count);
        double x = 0;
        for (int j = 0; j < count; ++j) {
            UnitSquareCell& cell = cells[static_cast<size_t>(first + j)];
            cell = {x, y, widths[static_cast<size_t>(j)], heights[static_cast<size_t>(k)]};
            x += widths[static_cast<size_t>(j)];
        }
        y += heights[static_cast<size_t>(k)];
    }
    return cells;
}

IFSEntry UnitSquareIFS(const IFSEntry& drawing, int n) {
    IFSEntry cs;
    cs.Name = UnitSquareTitle;
    cs.nMaps = static_cast<int16_t>(n);
    for (int i = 0; i < n; ++i) cs.p[i] = drawing.p[i];
    auto set = [&cs](int i, float a, float b, float c, float d, float e, float f) {
        cs.a[i] = a;
        cs.b[i] = b;
        cs.c[i] = c;
        cs.d[i] = d;
        cs.e[i] = e;
        cs.f[i] = f;
    };
    const float* p = drawing.p.data();
    if (n == 2) {
        set(0, 0, -p[0], 1, 0, p[0], 0);
        set(1, 1 - p[0], 0, 0, 1, p[0], 0);
    } else if (n == 3) {
        set(0, p[0], 0, 0, 1, 0, 0);
        set(1, 0, -p[1], 1, 0, 1 - p[2], 0);
        set(2, p[2], 0, 0, 1, 1 - p[2], 0);
    } else {
        const std::vector<UnitSquareCell> cells = UnitSquareGrid(p, n);
        for (int i = 0; i < n; ++i) {
            const UnitSquareCell& g = cells[static_cast<size_t>(i)];
            set(i, static_cast<float>(g.width), 0, 0, static_cast<float>(g.height), static_cast<float>(g.x),
                static_cast<float>(g.y));
        }
    }
    return cs;
}

}  // namespace quillane
