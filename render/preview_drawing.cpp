#include "render/preview_drawing.h"

#include <algorithm>
#include <cmath>

#include "render/map_choice.h"

namespace quillane {
namespace {

constexpr int WarmUp = 50;

// The walk of Draw: no entry is forced to 1, so a draw above the sum of p takes the last map.
int walk(const IFSEntry& ifs, float r) {
    float sum = 0;
    const int n = ifs.nMaps;
    for (int i = 0; i < n; ++i) {
        sum += ifs.p[static_cast<size_t>(i)];
        if (r <= sum) return i;
    }
    return n - 1;
}

// A dot of the preview's pen width 2: the pixel and its right and lower neighbours.
void dot(RasterSurface& s, float x, float y, Color c) {
    int64_t col = 0, row = 0;
    if (!s.toPixel(x, y, col, row)) return;
    for (int64_t r = row; r <= row + 1; ++r)
        for (int64_t k = col; k <= col + 1; ++k)
            if (s.inside(k, r)) s.setPixel(static_cast<int>(k), static_cast<int>(r), c);
}

}  // namespace

void DrawPreview(const IFSEntry& ifs, const FunctionColors& colors, int PreviewPoints, Random& rng,
                 RasterSurface& picPreview) {
    picPreview.clear();
    if (ifs.nMaps <= 0) return;
    const int n = std::min<int>(ifs.nMaps, MaxMaps);
    float x = 0, y = 0;
    for (int count = 1; count <= PreviewPoints; ++count) {
        const float r = static_cast<float>(MapChoice::StepOf(rng.next32()) / 10000.0);
        const size_t i = static_cast<size_t>(std::min(walk(ifs, r), n - 1));
        const float nx = ifs.a[i] * x + ifs.b[i] * y + ifs.e[i];
        y = ifs.c[i] * x + ifs.d[i] * y + ifs.f[i];
        x = nx;
        if (count > WarmUp) dot(picPreview, x, y, colors[i % colors.size()]);
    }
}

int StepPreviewPoints(int PreviewPoints, int direction) {
    return std::clamp(PreviewPoints + direction * PreviewPointsStep, PreviewPointsMin, PreviewPointsMax);
}

std::string PreviewStatusText(int PreviewPoints) {
    return std::to_string(PreviewPoints) + PreviewStatusSuffix;
}

int PreviewWindowHeight(int windowHeight, int areaWidth, int areaHeight, double xSpan, double ySpan) {
    if (areaWidth <= 0 || !(xSpan > 0) || !(ySpan > 0) || !std::isfinite(xSpan / ySpan)) return windowHeight;
    const double wanted = areaWidth * (ySpan / xSpan);
    if (!std::isfinite(wanted) || wanted > 1e6) return windowHeight;
    return windowHeight + static_cast<int>(std::lround(wanted)) - areaHeight;
}

}  // namespace quillane
