#include "render/play_game.h"

#include <array>
#include <optional>
#include <string>

#include "core/menu_tree.h"
#include "core/numbers.h"
#include "render/color_modes.h"
#include "render/color_stealing.h"
#include "render/fractal_overlays.h"
#include "render/map_choice.h"
#include "render/run_maps.h"
#include "render/tile_loop.h"

namespace quillane {

namespace {

void switchCommandsForRun(Workbench& wb) {
    MenuTable& m = wb.Menu;
    m.setEnabled(FrameButtonKey(14), false);
    m.setEnabled(FrameButtonKey(15), true);
    m.setCaption("Toolbar1(1)", "Stop");
    m.setEnabled("mnuStop", true);
    m.setEnabled("mnuSaveFractal", false);
    m.setEnabled("mnuEditCopy", false);
    m.setEnabled("mnuClear", false);
    m.setCaption("mnuZoom", ZoomInCaption);
}

void showCount(const Workbench& wb, FractalPictures& pics) {
    if (wb.PointCount > WarmUpIterations) pics.picCount = std::to_string(wb.PointCount - WarmUpIterations);
}

// Both pictures of the plain loop, when they share size and mapping, so one pixel position serves both.
struct PlotTarget {
    uint32_t* shown = nullptr;
    uint32_t* shadow = nullptr;
    double left = 0, top = 0, sx = 0, sy = 0;
    double width = 0, height = 0;
    size_t stride = 0;
    bool shared = false;
};

PlotTarget plotTarget(RasterSurface& shown, RasterSurface& shadow) {
    PlotTarget t;
    t.shared = shown.width() == shadow.width() && shown.height() == shadow.height() &&
               shown.scaleLeft() == shadow.scaleLeft() && shown.scaleTop() == shadow.scaleTop() &&
               shown.pixelScaleX() == shadow.pixelScaleX() && shown.pixelScaleY() == shadow.pixelScaleY();
    t.shown = shown.data();
    t.shadow = shadow.data();
    t.left = shown.scaleLeft();
    t.top = shown.scaleTop();
    t.sx = shown.pixelScaleX();
    t.sy = shown.pixelScaleY();
    t.width = shown.width();
    t.height = shown.height();
    t.stride = static_cast<size_t>(shown.width());
    return t;
}

// The run's position in the orbit, kept in locals while the loop runs.
struct Orbit {
    float x, y;
    int32_t count;
};

// Warm-up iterations: computed, neither counted to the person nor plotted.
void warmUp(Random& rng, const RunMaps& m, const MapChoice& choice, Orbit& o, int32_t stop) {
    while (o.count < stop && o.count < WarmUpIterations) {
        const int i = choice.fast(rng.next32());
        ++o.count;
        const float nx = m.a[i] * o.x + m.b[i] * o.y + m.e[i];
        const float ny = m.c[i] * o.x + m.d[i] * o.y + m.f[i];
        o.x = nx;
        o.y = ny;
    }
}

// Pixel writes to both pictures that wait a few points behind a prefetch of their lines, so that cache
// misses overlap instead of stalling the loop. Values are written in order, so the pictures end as
// direct writes would leave them; flush() before anything reads them.
class DelayedWrites {
  public:
    explicit DelayedWrites(const PlotTarget& t) : t_(t) {}
    void push(size_t at, uint32_t value) {
        __builtin_prefetch(t_.shown + at, 1);
        __builtin_prefetch(t_.shadow + at, 1);
        Pending& slot = pending_[head_ & (Delay - 1)];
        if (head_ >= Delay) write(slot);
        slot = {at, value};
        ++head_;
    }
    void flush() {
        for (uint32_t k = head_ > Delay ? head_ - Delay : 0; k < head_; ++k) write(pending_[k & (Delay - 1)]);
        head_ = 0;
    }

  private:
    struct Pending {
        size_t at;
        uint32_t value;
    };
    static constexpr uint32_t Delay = 16;
    void write(const Pending& slot) {
        t_.shown[slot.at] = slot.value;
        t_.shadow[slot.at] = slot.value;
    }
    const PlotTarget& t_;
    Pending pending_[Delay];
    uint32_t head_ = 0;
};

// The pixel of world point (x, y) in the shared pictures: true with its place when it lies on them;
// `overflow` set when its pixel position does not fit an integer.
inline bool pixelAt(const PlotTarget& t, float x, float y, size_t& at, bool& overflow) {
    const double tx = (static_cast<double>(x) - t.left) * t.sx;
    const double ty = (static_cast<double>(y) - t.top) * t.sy;
    // floor(t) lies in [0, size) exactly when t does, so no floor is needed here.
    if (tx >= 0 && ty >= 0 && tx < t.width && ty < t.height) {
        at = static_cast<size_t>(static_cast<int>(ty)) * t.stride + static_cast<size_t>(static_cast<int>(tx));
        return true;
    }
    overflow = !(tx > -2147483649.0 && tx < 2147483648.0 && ty > -2147483649.0 && ty < 2147483648.0);
    return false;
}

// Plotted iterations in colour mode 0 up to `stop`. Returns false on a point whose pixel position does
// not fit an integer; that point is counted but not kept.
bool plotLoop(Random& rng, const RunMaps& m, const MapChoice& choice, const std::array<bool, MaxMaps>& skip,
              const PlotTarget& t, Orbit& o, int32_t stop) {
    float x = o.x, y = o.y;
    int32_t count = o.count;
    bool ok = true;
    DelayedWrites writes(t);
    while (count < stop) {
        const int i = choice.fast(rng.next32());
        ++count;
        const float nx = m.a[i] * x + m.b[i] * y + m.e[i];
        const float ny = m.c[i] * x + m.d[i] * y + m.f[i];
        if (!skip[i]) {
            size_t at = 0;
            bool overflow = false;
            if (pixelAt(t, nx, ny, at, overflow)) {
                writes.push(at, m.color[i] | 0xFF000000u);
            } else if (overflow) {
                ok = false;
                break;
            }
        }
        x = nx;
        y = ny;
    }
    writes.flush();
    o = {x, y, count};
    return ok;
}

// The same through pset, for pictures that differ in size or mapping. Throws SurfaceOverflow.
void plotLoopSlow(Random& rng, const RunMaps& m, const MapChoice& choice,
                  const std::array<bool, MaxMaps>& skip, FractalPictures& pics, Orbit& o, int32_t stop) {
    while (o.count < stop) {
        const int i = choice.fast(rng.next32());
        ++o.count;
        const float nx = m.a[i] * o.x + m.b[i] * o.y + m.e[i];
        const float ny = m.c[i] * o.x + m.d[i] * o.y + m.f[i];
        if (!skip[i]) {
            pics.picfractal.pset(nx, ny, m.color[i]);
            pics.picImage2.pset(nx, ny, m.color[i]);
        }
        o.x = nx;
        o.y = ny;
    }
}

// Colour mode 0 from the current PointCount to `stop`; the caller yields.
void plainLoop(Workbench& wb, FractalPictures& pics, const RunMaps& m, const MapChoice& choice,
               const std::array<bool, MaxMaps>& skip, const PlotTarget& t, int32_t stop) {
    Random rng = wb.Rng;  // a local copy stays in registers
    Orbit o{wb.PlotX, wb.PlotY, wb.PointCount};
    warmUp(rng, m, choice, o, stop);
    bool ok = true;
    if (t.shared) {
        ok = plotLoop(rng, m, choice, skip, t, o, stop);
    } else {
        try {
            plotLoopSlow(rng, m, choice, skip, pics, o, stop);
        } catch (const SurfaceOverflow&) {
            ok = false;  // the failed point is counted but not kept
        }
    }
    wb.Rng = rng;
    wb.PointCount = o.count;
    wb.PlotX = o.x;
    wb.PlotY = o.y;
    if (!ok) throw SurfaceOverflow();
}

// Plotted iterations in colour modes 1 to 7, each point in the colour `colorOf(rng, i, x, y)` gives;
// NoColor plots nothing. Kept apart from mode 0 so that loop stays as lean as it is. Returns false
// on a point whose pixel position does not fit an integer, as plotLoop does.
template <class ColorOf>
bool colorLoop(Random& rng, const RunMaps& m, const MapChoice& choice, const PlotTarget& t,
               FractalPictures& pics, Orbit& o, int32_t stop, ColorOf& colorOf) {
    float x = o.x, y = o.y;
    int32_t count = o.count;
    bool ok = true;
    DelayedWrites writes(t);
    try {
        while (count < stop) {
            const int i = choice.fast(rng.next32());
            ++count;
            const float nx = m.a[i] * x + m.b[i] * y + m.e[i];
            const float ny = m.c[i] * x + m.d[i] * y + m.f[i];
            const Color c = colorOf(rng, i, nx, ny);
            if (c != NoColor) {
                if (t.shared) {
                    size_t at = 0;
                    bool overflow = false;
                    if (pixelAt(t, nx, ny, at, overflow)) {
                        writes.push(at, (c & 0xFFFFFFu) | 0xFF000000u);
                    } else if (overflow) {
                        ok = false;
                        break;
                    }
                } else {
                    pics.picfractal.pset(nx, ny, c);
                    pics.picImage2.pset(nx, ny, c);
                }
            }
            x = nx;
            y = ny;
        }
    } catch (const SurfaceOverflow&) {
        ok = false;
    }
    writes.flush();
    o = {x, y, count};
    return ok;
}

// Colour modes 1 to 7 from the current PointCount to `stop`; the caller yields.
void coloredLoop(Workbench& wb, FractalPictures& pics, const RunMaps& m, const MapChoice& choice,
                 RunColoring& rc, const PlotTarget& t, int32_t stop) {
    Random rng = wb.Rng;
    Orbit o{wb.PlotX, wb.PlotY, wb.PointCount};
    warmUp(rng, m, choice, o, stop);
    bool ok = true;
    switch (rc.mode) {
        case HeightColorMode:
        case WidthColorMode:
        case RadialColorMode:
        case FixedPointColorMode: {
            auto colorOf = [&rc](Random&, int, float x, float y) {
                return rc.position->color(rc.gradient, x, y);
            };
            ok = colorLoop(rng, m, choice, t, pics, o, stop, colorOf);
            break;
        }
        case RandomColorMode: {
            auto colorOf = [&rc](Random& r, int, float, float) { return RandomStripColor(rc.strips, r); };
            ok = colorLoop(rng, m, choice, t, pics, o, stop, colorOf);
            break;
        }
        case VisitCountColorMode: {
            VisitCounter& v = *rc.visits;
            auto colorOf = [&v](Random&, int, float x, float y) { return v.plainColor(x, y); };
            ok = colorLoop(rng, m, choice, t, pics, o, stop, colorOf);
            break;
        }
        case StealingColorMode: {
            StealingOrbit& orbit = *rc.orbit;
            auto colorOf = [&orbit](Random&, int i, float, float) { return orbit.next(i); };
            ok = colorLoop(rng, m, choice, t, pics, o, stop, colorOf);
            break;
        }
        default:
            break;
    }
    wb.Rng = rng;
    wb.PointCount = o.count;
    wb.PlotX = o.x;
    wb.PlotY = o.y;
    if (!ok) throw SurfaceOverflow();
}

void restartPictures(Workbench& wb, FractalPictures& pics) {
    wb.PointCount = 0;
    pics.picImage3.takeImage(pics.picImage2);
    pics.picfractal.clear();
    if (pics.PictureOverlaid) pics.picfractal.paint(pics.picPaste, pics.PasteX, pics.PasteY, RasterOp::Copy);
    pics.picImage2.takeImage(pics.picfractal);
    ShowOverlays(wb, pics);
}

}  // namespace

int32_t PlayGameLimit(int32_t Count, int32_t PointCount) {
    int64_t limit;
    if (Count == 0)
        limit = RunUntilStopped;
    else if (Count < 0)
        limit = -static_cast<int64_t>(Count) + WarmUpIterations;
    else if (PointCount != 0)
        limit = static_cast<int64_t>(PointCount) + Count;
    else
        limit = static_cast<int64_t>(Count) + WarmUpIterations;
    return limit > INT32_MAX ? INT32_MAX : static_cast<int32_t>(limit);
}

void FinishPlayGame(Workbench& wb, FractalPictures& pics) {
    wb.DrawingActive = false;
    MenuTable& m = wb.Menu;
    m.setEnabled("mnuSaveFractal", true);
    m.setEnabled("mnuEditCopy", true);
    m.setEnabled("mnuOpen", true);
    wb.FractalWindowCaption = wb.FractalCaption;
    m.setEnabled("mnuClear", true);
    m.setEnabled(FrameButtonKey(14), true);
    m.setEnabled(FrameButtonKey(15), false);
    m.setCaption("Toolbar1(1)", "Draw");
    for (const char* k : {"mnuDrawZoom", "mnuZoom", "mnuDrawShift", "mnuDrawRestore", "mnuDesign"})
        m.setEnabled(k, true);
    pics.picImageShift.setScale(wb.Window.xmin, wb.Window.ymax, wb.Window.xmax, wb.Window.ymin);
    pics.picImageShift.takeImage(pics.picImage2);
    showCount(wb, pics);
}

void PlayGame(Workbench& wb, FractalPictures& pics, Host& host, int16_t Restart, int32_t Count) {
    const int32_t limit = PlayGameLimit(Count, wb.PointCount);
    const bool fresh = !wb.DrawingStarted || Restart == 1;
    if (Restart == 1) restartPictures(wb, pics);
    // The option button alone decides, whatever colour scheme is in force.
    if (pics.Det.optColoring == VisitCountColorMode && wb.PointCount == 0) ClearHitCount(wb.HitCount);
    // Off and on again: the dots follow a changed scale.
    if (wb.menu("mnuFixedPoints").checked) RedrawOverlays(wb, pics);
    if (pics.Selection.SelectionActive) ClearSelectionRect(wb, pics);

    const RunMaps maps = CopyRunMaps(wb);
    float sum = 0;
    for (int i = 0; i < maps.n; ++i) sum += maps.p[i];
    if (Round(sum, 3) != 1) {
        host.warn("Error", "Probabilities do not add to 1");
        return;
    }
    if (!wb.DrawingStarted) {
        wb.PointCount = 0;
        wb.PlotX = wb.Window.xmin;
        wb.PlotY = wb.Window.ymin;
    }
    // A colouring IFS that does not fit stops the run before any menu changes.
    if (PlayGameColorMode(wb, pics) == StealingColorMode && !SettleColoringIFS(wb, pics, host, maps.n))
        return;
    wb.Rng.Randomize();
    switchCommandsForRun(wb);
    pics.Selection.SelectionActive = false;
    const MapChoice choice(MapChoice::CumProb(maps.p.data(), maps.n));
    RunColoring coloring;
    PrepareRunColoring(wb, pics, maps.n, coloring);
    wb.FractalWindowCaption = PressQCaption;
    wb.DrawingStarted = true;
    wb.DrawingActive = true;
    const uint32_t run = ++pics.RunNumber;
    // The open tiling settings window is the switch of the tile mode.
    std::optional<TileCopies> tiles;
    if (pics.Tiling.SettingsVisible) tiles = PrepareTileCopies(pics.Tiling, wb.TilingColor);

    // A copy: the source may let go of the loop during one of its yields.
    const auto source = pics.PlotSource;
    try {
        const bool handedOver = source && source(wb, pics, host, Count, fresh);
        while (!handedOver && wb.DrawingActive && wb.PointCount < limit) {
            // A yield may have rescaled, resized or shifted the pictures, so their layout is read anew.
            const PlotTarget target = plotTarget(pics.picfractal, pics.picImage2);
            // Colour mode 0 leaves out the points of a map coloured like the background.
            std::array<bool, MaxMaps> skip{};
            for (int i = 0; i < maps.n; ++i) skip[i] = maps.color[i] == pics.picfractal.backColor();
            // Yields fall at the counts 50, 150, 250 ...
            int32_t nextYield = wb.PointCount + 1;
            nextYield += static_cast<int32_t>(((50 - nextYield) % 100 + 100) % 100);
            const int32_t stop = nextYield < limit ? nextYield : limit;
            // The complex bases dialog will hand over to its own loop here.
            if (tiles)
                TileLoop(wb, pics, maps, choice, coloring, *tiles, stop);
            else if (coloring.mode == IFSColorMode)
                plainLoop(wb, pics, maps, choice, skip, target, stop);
            else
                coloredLoop(wb, pics, maps, choice, coloring, target, stop);
            if ((static_cast<int64_t>(wb.PointCount) + 50) % 100 == 0) {
                showCount(wb, pics);
                host.yield();
                // A run begun during the yield has finished by now and owns the pictures.
                if (pics.RunNumber != run) break;
            }
        }
    } catch (const SurfaceOverflow&) {
        host.warn(DrawingProblemTitle, DrawingOverflowMessage);
    } catch (const std::exception& e) {
        host.warn(DrawingProblemTitle, std::string("An error was encountered:\n") + e.what());
    }
    FinishPlayGame(wb, pics);
}

}  // namespace quillane
