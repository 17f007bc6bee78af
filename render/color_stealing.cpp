#include "render/color_stealing.h"

#include <algorithm>
#include <cmath>

#include "core/numbers.h"
#include "core/unit_square_ifs.h"
#include "render/scale.h"

namespace quillane {

namespace {

void scalePictures(ColorStealingState& cs) {
    const WorldWindow& w = cs.CSWindow;
    // No window found yet: the picture keeps the mapping it has.
    if (!(w.xmax > w.xmin && w.ymax > w.ymin)) return;
    cs.picImage.setScale(w.xmin, w.ymax, w.xmax, w.ymin);
    if (cs.chkTrace) cs.picTrace.setScale(w.xmin, w.ymax, w.xmax, w.ymin);
}

void widenIfEqual(float& lo, float& hi) {
    if (lo == 0 && hi == 0) {
        lo = -0.1f;
        hi = 1.0f;
    }
    if (hi == lo) {
        lo = static_cast<float>(lo - 0.05);
        hi = static_cast<float>(hi + 0.05);
    }
}

}  // namespace

std::vector<ColoringCandidate> ColoringIFSCandidates(const Workbench& wb) {
    std::vector<ColoringCandidate> list;
    const int n = wb.mapsFromText();
    if (n >= 2) list.push_back({UnitSquareTitle, true, 0});
    for (int k = 1; k <= wb.ListCount() && k < static_cast<int>(wb.FractalList.size()); ++k)
        if (wb.FractalList[static_cast<size_t>(k)].nMaps == n)
            list.push_back({Trim(wb.FractalList[static_cast<size_t>(k)].Name), false, k});
    if (wb.SelectedIFS <= 0 || wb.IFSModified) {
        std::string title = wb.FunctionsCaption;
        if (!title.empty() && title.back() == '*') title.pop_back();
        list.push_back({title, false, 0});
    }
    return list;
}

void ChooseColoringIFS(Workbench& wb, ColorStealingState& cs, const ColoringCandidate& choice) {
    // Clearing the trace takes off the dots; the picture under them stays.
    if (cs.chkTrace) cs.picTrace = cs.picImage;
    if (choice.unitSquare) {
        cs.ColoringIFS = UnitSquareIFS(wb.CurrentIFS, wb.mapsFromText());
        scalePictures(cs);
        return;
    }
    cs.ColoringIFS = choice.place > 0 ? wb.FractalList[static_cast<size_t>(choice.place)] : wb.CurrentIFS;
    if (choice.place == 0) cs.ColoringIFS.nMaps = static_cast<int16_t>(wb.mapsFromText());
    setCSscale(wb, cs);
}

void ConfigureComboList(Workbench& wb, ColorStealingState& cs) {
    const std::vector<ColoringCandidate> list = ColoringIFSCandidates(wb);
    if (!list.empty()) ChooseColoringIFS(wb, cs, list.front());
}

void setCSscale(Workbench& wb, ColorStealingState& cs) {
    float xmin = 100, xmax = -100, ymin = 100, ymax = -100;
    wb.Rng.Randomize();
    const IFSEntry& m = cs.ColoringIFS;
    const int n = std::clamp<int>(m.nMaps, 0, MaxMaps);
    if (n > 0) {
        std::vector<double> cum(static_cast<size_t>(n));
        double c = 0;
        for (int i = 0; i < n; ++i) cum[static_cast<size_t>(i)] = c = Round(c + m.p[i], 8);
        float x = 0, y = 0;
        for (int step = 0; step < 50 + 8000; ++step) {
            const double r = Round(wb.Rng.Rnd(), 6);
            int j = 0;
            while (j < n - 1 && cum[static_cast<size_t>(j)] < r) ++j;
            const float nx = m.a[j] * x + m.b[j] * y + m.e[j];
            const float ny = m.c[j] * x + m.d[j] * y + m.f[j];
            x = nx;
            y = ny;
            if (step < 50) continue;
            // The bound rule of setscale: the first point only raises the maxima.
            if (x > xmax)
                xmax = x;
            else if (x < xmin)
                xmin = x;
            if (y > ymax)
                ymax = y;
            else if (y < ymin)
                ymin = y;
        }
    }
    widenIfEqual(xmin, xmax);
    widenIfEqual(ymin, ymax);
    if (!cs.chkMethod) {
        // The picture is stretched over the attractor of the colouring IFS.
        cs.CSWindow = {static_cast<float>(xmin - 0.001), static_cast<float>(xmax + 0.001),
                       static_cast<float>(ymin - 0.001), static_cast<float>(ymax + 0.001)};
    } else {
        SquareWindow(xmin, xmax, ymin, ymax);
        const double side = static_cast<double>(xmax) - xmin;
        double x0 = xmin - side * 0.001, x1 = xmax + side * 0.001;
        double y0 = ymin - side * 0.001, y1 = ymax + side * 0.001;
        const double w = cs.picImage.width(), h = cs.picImage.height();
        if (w > 0 && h > 0) {
            if (w >= h) {
                const double grow = h * (x1 - x0) / w - (y1 - y0);
                y0 -= grow / 2;
                y1 += grow / 2;
            } else {
                const double grow = w * (y1 - y0) / h - (x1 - x0);
                x0 -= grow / 2;
                x1 += grow / 2;
            }
        }
        cs.CSWindow = {static_cast<float>(x0), static_cast<float>(x1), static_cast<float>(y0),
                       static_cast<float>(y1)};
    }
    scalePictures(cs);
}

void SetColorStealingPicture(Workbench& wb, ColorStealingState& cs, const RasterSurface& picture) {
    cs.picImage = picture;
    if (cs.chkTrace) cs.picTrace = picture;
    setCSscale(wb, cs);
}

bool SettleColoringIFS(Workbench& wb, FractalPictures& pics, Host& host, int n) {
    ColorStealingState& cs = pics.Stealing;
    if (cs.ColoringIFS.nMaps == n) return true;
    if (cs.Visible) {
        host.warn("Error", ColoringMismatchMessage);
        return false;
    }
    if (cs.ConfigureComboList)
        cs.ConfigureComboList();
    else
        ConfigureComboList(wb, cs);
    return true;
}

}  // namespace quillane
