#pragma once
// A fractal window without a window: the workbench, its pictures and a scripted host.
#include <cstdint>
#include <string>
#include <vector>

#include "core/sample_systems.h"
#include "core/scripted_host.h"
#include "app/fractal_view.h"
#include "render/play_game.h"

namespace quillane {

struct ViewBench {
    Workbench wb;
    FractalPictures pics;
    ScriptedHost host;

    explicit ViewBench(const IFSEntry& ifs = SierpinskiTriangleIFS(), WorldWindow w = {-1, 1, -1, 1},
                       int side = 64) {
        wb.CurrentIFS = ifs;
        wb.txtMaps = std::to_string(ifs.nMaps);
        wb.Rng.pin(11);
        pics.resize(side, White);
        setWindow(w);
    }

    void setWindow(WorldWindow w) {
        wb.Window = w;
        WriteWindowText(wb);
        ApplyWindow(pics, w);
    }

    // Every run begun from now on is stopped at its n-th yield, as a person pressing Q would.
    void stopRunsAfter(int n) {
        host.onYield = [this, n](int) {
            if (pics.RunNumber != seenRun_) {
                seenRun_ = pics.RunNumber;
                yieldsOfRun_ = 0;
            }
            if (++yieldsOfRun_ >= n) wb.DrawingActive = false;
        };
    }

  private:
    uint32_t seenRun_ = 0;
    int yieldsOfRun_ = 0;
};

inline std::vector<Color> pixelsOf(const RasterSurface& s) {
    std::vector<Color> v;
    v.reserve(static_cast<size_t>(s.width()) * s.height());
    for (int r = 0; r < s.height(); ++r)
        for (int c = 0; c < s.width(); ++c) v.push_back(s.pixel(c, r));
    return v;
}

inline int paintedPixels(const RasterSurface& s) {
    int n = 0;
    for (int r = 0; r < s.height(); ++r)
        for (int c = 0; c < s.width(); ++c) n += s.pixel(c, r) != s.backColor();
    return n;
}

// Painted pixels outside the columns c0..c1 and rows r0..r1.
inline int paintedOutside(const RasterSurface& s, int c0, int c1, int r0, int r1) {
    int n = 0;
    for (int r = 0; r < s.height(); ++r)
        for (int c = 0; c < s.width(); ++c)
            n += s.pixel(c, r) != s.backColor() && (c < c0 || c > c1 || r < r0 || r > r1);
    return n;
}

inline float sideOf(const WorldWindow& w) {
    return w.xmax - w.xmin;
}

// One map of scale 1/2 whose orbit settles on the fixed point (fx, fy).
inline IFSEntry contractionTo(float fx, float fy) {
    IFSEntry ifs = DefaultIFS();
    ifs.a[0] = ifs.d[0] = 0.5f;
    ifs.b[0] = ifs.c[0] = 0;
    ifs.e[0] = fx / 2;
    ifs.f[0] = fy / 2;
    ifs.p[0] = 1;
    return ifs;
}

}  // namespace quillane
