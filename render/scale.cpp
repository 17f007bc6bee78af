#include "render/scale.h"

#include <cmath>
#include <stdexcept>
#include <vector>

#include "core/numbers.h"
#include "render/fractal_pictures.h"

namespace quillane {

namespace {

struct ScaleOverflow : std::runtime_error {
    ScaleOverflow() : std::runtime_error("overflow") {}
};

float checked(double v) {
    float f = static_cast<float>(v);
    if (!std::isfinite(f)) throw ScaleOverflow();
    return f;
}

void widenIfEqual(float& lo, float& hi) {
    if (lo == 0 && hi == 0) {
        // The lopsided -0.1 .. 1 is what a point at the origin has always been shown in.
        lo = -0.1f;
        hi = 1.0f;
    }
    if (hi == lo) {
        lo = checked(static_cast<double>(lo) - 0.05);
        hi = checked(static_cast<double>(hi) + 0.05);
    }
}

struct Sample {
    float xmin = 100, xmax = -100, ymin = 100, ymax = -100;
};

Sample sampleAttractor(Workbench& wb, int n) {
    const IFSEntry& ifs = wb.CurrentIFS;
    std::vector<double> cum(static_cast<size_t>(n));
    double c = 0;
    for (int i = 0; i < n; ++i) {
        c = Round(c + ifs.p[i], 8);
        cum[static_cast<size_t>(i)] = c;
    }
    Sample s;
    float x = 0, y = 0;
    for (int step = 0; step < 10000; ++step) {
        const double r = Round(wb.Rng.Rnd(), 6);
        int j = 0;
        while (j < n && cum[static_cast<size_t>(j)] < r) ++j;
        if (j >= n) j = n - 1;
        const float nx = ifs.a[j] * x + ifs.b[j] * y + ifs.e[j];
        const float ny = ifs.c[j] * x + ifs.d[j] * y + ifs.f[j];
        if (!std::isfinite(nx) || !std::isfinite(ny)) throw ScaleOverflow();
        x = nx;
        y = ny;
        if (step < 2000) continue;
        // "else if" on purpose: the first point only raises the maxima.
        if (x > s.xmax)
            s.xmax = x;
        else if (x < s.xmin)
            s.xmin = x;
        if (y > s.ymax)
            s.ymax = y;
        else if (y < s.ymin)
            s.ymin = y;
    }
    return s;
}

}  // namespace

void SquareWindow(float& xmin, float& xmax, float& ymin, float& ymax) {
    widenIfEqual(xmin, xmax);
    widenIfEqual(ymin, ymax);
    const double dx = static_cast<double>(xmax) - xmin;
    const double dy = static_cast<double>(ymax) - ymin;
    if (dx <= dy) {
        xmin = checked(xmin - (dy - dx) / 2);
        xmax = checked(xmax + (dy - dx) / 2);
    } else {
        ymin = checked(ymin - (dx - dy) / 2);
        ymax = checked(ymax + (dx - dy) / 2);
    }
}

void AddWindowMargin(float& xmin, float& xmax, float& ymin, float& ymax) {
    const double mx = (static_cast<double>(xmax) - xmin) * 0.05;
    const double my = (static_cast<double>(ymax) - ymin) * 0.05;
    xmin = checked(xmin - mx);
    xmax = checked(xmax + mx);
    ymin = checked(ymin - my);
    ymax = checked(ymax + my);
}

bool setscale(Workbench& wb, Host& host, bool Redraw, FractalPictures* pics) {
    wb.Rng.Randomize();
    const int n = wb.mapsFromText();
    float sum = 0;
    for (int i = 0; i < n; ++i) sum += wb.CurrentIFS.p[i];
    wb.lblProbSum = Format(sum, "0.000");
    if (Round(sum, 3) < 1) {
        host.warn("Error", ProbabilitiesMessage);
        return false;
    }
    float xmin, xmax, ymin, ymax;
    try {
        Sample s = sampleAttractor(wb, n);
        wb.AttractorXMin = s.xmin;
        wb.AttractorXMax = s.xmax;
        wb.AttractorYMin = s.ymin;
        wb.AttractorYMax = s.ymax;
        if (wb.menu("mnuDrawFreezeScale").checked) return true;
        xmax = checked(Round(s.xmax + 0.05, 1));
        xmin = checked(Round(s.xmin - 0.05, 1));
        ymax = checked(Round(s.ymax + 0.05, 1));
        ymin = checked(Round(s.ymin - 0.05, 1));
        SquareWindow(xmin, xmax, ymin, ymax);
        AddWindowMargin(xmin, xmax, ymin, ymax);
    } catch (const ScaleOverflow&) {
        host.warn("Error", ScaleOverflowMessage);
        return false;
    } catch (const std::exception&) {
        host.warn("Error", ScaleProblemMessage);
        return false;
    }
    wb.Window = {xmin, xmax, ymin, ymax};
    WriteWindowText(wb);
    if (Redraw && pics) {
        ScalefrmFractalWindows(wb, *pics, xmin, xmax, ymin, ymax, false);
        // The placed picture is kept only when it is placed, not while it floats.
        ClearImage(wb, *pics, pics->PictureOverlaid && !pics->Floating.Visible);
    }
    return true;
}

}  // namespace quillane
