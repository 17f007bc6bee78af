#pragma once
// The complex bases' own drawing: every sum of distinct powers base^0 .. base^21, visited in the
// counting order of a 22-digit binary counter, without any random choice. It takes over PlayGame's
// loop while the base method is the drawing source.
#include <cstdint>
#include <vector>

#include "core/host.h"
#include "core/workbench.h"
#include "generators/complex_base.h"
#include "render/fractal_pictures.h"

namespace quillane {

inline constexpr int ComplexHitSide = 500;
inline constexpr int ComplexYieldPoints = 100;

struct ComplexBaseState {
    // The base as Create IFS read it: a + bi, or R and A with Polar.
    float BaseA = 0, BaseB = 0;
    bool Polar = false;
    // The base method is the drawing source (optDrawBase at the last build or choice).
    bool ComplexBaseDrawing = false;
    // optIFScolor: every point in the colour of map 0; else the hit counts and the gradient.
    bool optIFScolor = true;
    ComplexPowers Powers;
    ComplexDigitRow ComplexDigits{};
    int32_t ComplexPointCount = 0;  // 0: the next run starts afresh
    // 500 by 500, element (u, v) at u + 500 v; made on first use.
    std::vector<int16_t> ComplexHitCount;
};

// The base method's run. Count as PlayGame was given it: 0 runs through all 2^22 - 1 rows, otherwise
// the point count grows by Count (a negative Count too, as the sum says). `fresh` clears the pictures
// and starts the counter again. Stops when DrawingActive is cleared at a yield.
void Plot(ComplexBaseState& cb, Workbench& wb, FractalPictures& pics, Host& host, int32_t Count, bool fresh);

// The limit of ComplexPointCount for a run with this Count.
int32_t ComplexPlotLimit(int32_t Count, int32_t ComplexPointCount);

}  // namespace quillane
