#include "generators/box_fractal.h"

#include <algorithm>
#include <cmath>

#include "core/numbers.h"

namespace quillane {
namespace {

constexpr std::array<int16_t, 9> BoxSizes{1500, 1000, 750, 600, 496, 428, 375, 333, 300};

void drawBox(RasterSurface& pic, int row, int col, double S, Color fill) {
    pic.box(col * S, row * S, (col + 1) * S, (row + 1) * S, fill, true);
    pic.box(col * S, row * S, (col + 1) * S, (row + 1) * S, Black, false);
}

}  // namespace

int16_t GetBoxSize(int n) {
    return BoxSizes[static_cast<size_t>(std::clamp(n, 2, 10) - 2)];
}

void DrawBoxes2(BoxFractal& box, RasterSurface& picBox, int n) {
    box.n = std::clamp(n, 2, 10);
    box.BoxSize = GetBoxSize(box.n);
    box.BoxOn.fill(false);
    picBox.setScale(0, 0, BoxArea, BoxArea);
    picBox.clear();
    const double S = box.BoxSize;
    for (int k = 0; k <= box.n * box.n; ++k) {
        const int col = k % box.n;
        const int row = k / box.n;
        drawBox(picBox, row, col, S, BoxRed);
        box.BoxOn[static_cast<size_t>(row + 10 * col)] = true;
    }
    box.BoxCount = box.n * box.n;
}

bool ClickBox(BoxFractal& box, RasterSurface& picBox, double x, double y) {
    if (!(x >= 0 && y >= 0)) return false;
    const double S = box.BoxSize;
    const double r = std::floor(y / S);
    const double c = std::floor(x / S);
    // The area is a little larger than the grid for some n; that strip holds no box.
    if (r >= box.n || c >= box.n) return false;
    const int row = static_cast<int>(r);
    const int col = static_cast<int>(c);
    bool& on = box.BoxOn[static_cast<size_t>(row + 10 * col)];
    on = !on;
    box.BoxCount += on ? 1 : -1;
    drawBox(picBox, row, col, S, on ? BoxRed : White);
    return true;
}

IFSEntry BoxMaps(const BoxFractal& box) {
    IFSEntry ifs;
    if (box.BoxCount <= 0) return ifs;
    const int n = box.n;
    const float p0 = static_cast<float>(Round(1.0 / box.BoxCount, 6));
    float sum = 0;
    int slot = 0;
    for (int k = 0; k <= n * n; ++k) {
        const int col = k % n;
        const int row = k / n;
        if (!box.BoxOn[static_cast<size_t>(row + 10 * col)]) continue;
        if (slot >= MapSlots) break;
        const auto i = static_cast<size_t>(slot);
        ifs.a[i] = ifs.d[i] = static_cast<float>(1.0 / n);
        ifs.b[i] = ifs.c[i] = 0;
        ifs.e[i] = static_cast<float>(static_cast<double>(col) / n);
        ifs.f[i] = static_cast<float>(1.0 - static_cast<double>(row + 1) / n);
        ifs.p[i] = p0;
        sum += p0;
        ++slot;
    }
    ifs.nMaps = static_cast<int16_t>(box.BoxCount);
    if (Round(sum, 3) < 1 && box.BoxCount >= 1)
        ifs.p[static_cast<size_t>(box.BoxCount - 1)] =
            static_cast<float>(1 - Round((box.BoxCount - 1) * static_cast<double>(p0), 6));
    return ifs;
}

}  // namespace quillane
