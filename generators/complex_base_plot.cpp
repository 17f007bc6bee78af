#include "generators/complex_base_plot.h"

#include <algorithm>

#include "core/numbers.h"
#include "render/color_modes.h"

namespace quillane {
namespace {

void clearTables(ComplexBaseState& cb) {
    cb.ComplexDigits.fill(false);
    cb.ComplexHitCount.assign(static_cast<size_t>(ComplexHitSide) * ComplexHitSide, 0);
}

// The gradient of the run: colours and thresholds rounded to 16-bit integers, as the boxes read.
struct CountColors {
    std::array<Color, GradientColorSlots> colors{};
    std::array<double, GradientColorSlots> threshold{};
    int c = GradientColorSlots;
};

CountColors countColors(const GradientColors& g) {
    CountColors cc;
    cc.colors = g.picColors;
    cc.c = GradientCount(g);
    for (int k = 1; k < GradientColorSlots; ++k)
        cc.threshold[static_cast<size_t>(k)] =
            std::clamp(CInt(Val(g.txtCount[static_cast<size_t>(k)])), -32768, 32767);
    return cc;
}

}  // namespace

int32_t ComplexPlotLimit(int32_t Count, int32_t ComplexPointCount) {
    if (Count == 0) return ComplexDigitRows;
    const int64_t limit = static_cast<int64_t>(ComplexPointCount) + Count;
    return static_cast<int32_t>(std::clamp<int64_t>(limit, INT32_MIN, INT32_MAX));
}

void Plot(ComplexBaseState& cb, Workbench& wb, FractalPictures& pics, Host& host, int32_t Count, bool fresh) {
    if (fresh) {
        pics.picfractal.clear();
        pics.picImage2.clear();
        pics.picMask.clear();
        // A new drawing counts from the first row again; the old points are gone from the pictures.
        cb.ComplexPointCount = 0;
    }
    if (cb.ComplexPointCount == 0 || cb.ComplexHitCount.empty()) clearTables(cb);
    cb.Powers = ComputeComplexPowers(cb.Polar, cb.BaseA, cb.BaseB);
    // The counter has 2^22 states; its last step would wrap to the all-clear row, the point 0.
    const int32_t limit = std::min(ComplexPlotLimit(Count, cb.ComplexPointCount), ComplexDigitRows - 1);
    wb.DrawingActive = true;
    const WorldWindow w = wb.Window;
    const int res = std::clamp(pics.picfractal.width(), 1, ComplexHitSide);
    const double sx = res / (static_cast<double>(w.xmax) - w.xmin);
    const double sy = res / (static_cast<double>(w.ymax) - w.ymin);
    const CountColors cc = countColors(wb.Gradient);
    const Color ifsColor = wb.FunctionColor[0];
    const uint32_t run = pics.RunNumber;

    ComplexDigitSum sum(cb.Powers);
    sum.update(cb.ComplexDigits, 1);
    while (wb.DrawingActive && cb.ComplexPointCount < limit) {
        ++cb.ComplexPointCount;
        sum.update(cb.ComplexDigits, AdvanceComplexDigits(cb.ComplexDigits));
        const float x = sum.x(), y = sum.y();
        Color color = ifsColor;
        bool plot = true;
        if (!cb.optIFScolor) {
            const double fu = (x - static_cast<double>(w.xmin)) * sx;
            const double fv = (y - static_cast<double>(w.ymin)) * sy;
            // Outside the window the table has no cell: such a point is off the picture too.
            plot = fu >= 0 && fu < res && fv >= 0 && fv < res;
            if (plot) {
                int16_t& cell =
                    cb.ComplexHitCount[static_cast<size_t>(fu) + ComplexHitSide * static_cast<size_t>(fv)];
                cell = static_cast<int16_t>(static_cast<uint16_t>(cell) + 1u);
                color = ThresholdColor(cc.colors, cc.threshold, cc.c, cell);
            }
        }
        if (plot) {
            pics.picfractal.pset(x, y, color);
            pics.picImage2.pset(x, y, color);
            pics.picMask.pset(x, y, color);
        }
        if (cb.ComplexPointCount % ComplexYieldPoints == 0) {
            pics.picCount = std::to_string(cb.ComplexPointCount);
            host.yield();
            // A run begun during the yield owns the pictures now.
            if (pics.RunNumber != run) return;
        }
    }
    pics.picCount = std::to_string(cb.ComplexPointCount);
}

}  // namespace quillane
