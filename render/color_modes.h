#pragma once
// The colour modes of the drawings: the colour a point takes from its place, the gradient, the
// counts of visits to its cell, or a picture under a second orbit. Mode 0, the map's own colour,
// stays in the loops themselves.
#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <optional>
#include <vector>

#include "core/gradient_colors.h"
#include "core/ifs_entry.h"
#include "core/random.h"
#include "core/workbench.h"
#include "render/color_stealing_state.h"

namespace quillane {

struct FractalPictures;

enum ColorModes : int {
    IFSColorMode = 0,
    HeightColorMode = 1,
    WidthColorMode = 2,
    RadialColorMode = 3,
    FixedPointColorMode = 4,
    RandomColorMode = 5,
    VisitCountColorMode = 6,
    StealingColorMode = 7,
};

inline constexpr int HitCountSide = 1000;
inline constexpr int RandomStripRange = 180;

// PlayGame's ColorMode: mnuColors(2) gives 7, mnuColors(1) the selected optColoring button, else 0.
int PlayGameColorMode(const Workbench& wb, const FractalPictures& pics);

// Int() of the runtime for values that fit an int; std::floor is a library call on the baseline
// instruction set, and the modes call this several times a point.
inline int floorToInt(double v) {
    const int i = static_cast<int>(v);
    return i > v ? i - 1 : i;
}

// GradientColorCount as the drawing reads it: 0 is taken as 7.
inline int GradientCount(const GradientColors& g) {
    const int c = g.GradientColorCount == 0 ? GradientColorSlots : g.GradientColorCount;
    return std::clamp(c, 1, GradientColorSlots);
}

// Channel by channel Int(first + (second - first) * f). A wrapped visit count can push a channel
// beyond 0..255; it is held there, as the colour maker of the program always did. Inline, as the
// modes call it at every point.
inline Color MixColors(Color first, Color second, double f) {
    auto mix = [f](int a, int b) { return floorToInt(std::clamp(a + (b - a) * f, 0.0, 255.0)); };
    return RGB(mix(RedOf(first), RedOf(second)), mix(GreenOf(first), GreenOf(second)),
               mix(BlueOf(first), BlueOf(second)));
}

// The gradient lookup of modes 1 to 4 at t in [0, 1].
inline Color GradientLookup(const GradientColors& g, double t) {
    const int c = GradientCount(g);
    if (c < 2) return g.picColors[0];
    // 0.99999 keeps t = 1 from indexing past the last colour.
    const int k = floorToInt(0.99999 * (c - 1) * t);
    const double f = std::clamp((c - 1) * t - k, 0.0, 1.0);
    const int at = std::clamp(k, 0, c - 2);
    return MixColors(g.picColors[static_cast<size_t>(at)], g.picColors[static_cast<size_t>(at + 1)], f);
}

// The colour of a visit count h by the thresholds T(0) = 0 to T(c - 1) between the gradient's
// colours: mode 6 and the complex bases' own drawing share it.
Color ThresholdColor(const std::array<Color, GradientColorSlots>& colors,
                     const std::array<double, GradientColorSlots>& threshold, int c, int h);

// Modes 1 to 4: t from the attractor bounds, or from the fixed points of the maps, set up once.
class GradientPosition {
  public:
    GradientPosition(int mode, const Workbench& wb, const IFSEntry& ifs, int n);
    double t(float x, float y) const {
        switch (mode_) {
            case HeightColorMode:
                return std::min(std::fabs((y - lo_) / range_), 1.0);
            case WidthColorMode:
                return std::min(std::fabs((x - lo_) / range_), 1.0);
            case RadialColorMode: {
                const double dx = x - cx_, dy = y - cy_;
                return std::min(std::sqrt(dx * dx + dy * dy) / radius_, 1.0);
            }
            case FixedPointColorMode:
                return fixedPointT(x, y);
            default:
                return 0;
        }
    }
    Color color(const GradientColors& g, float x, float y) const { return GradientLookup(g, t(x, y)); }
    const std::vector<std::array<double, 2>>& fixedPoints() const { return fixed_; }

  private:
    double fixedPointT(float x, float y) const;
    // The smallest and largest squared distance from (x, y) to the fixed points, starting from the
    // values given.
    void nearestAndFarthest(double x, double y, double& smallest, double& largest) const;
    int mode_;
    double lo_ = 0, range_ = 1;
    double cx_ = 0, cy_ = 0, radius_ = 1;
    std::vector<std::array<double, 2>> fixed_;
    std::vector<double> fx_, fy_;  // the same, coordinate by coordinate, for the distance loop
};

// Mode 6: the visit counts of the cells of the window.
class VisitCounter {
  public:
    // Allocates the table on first use. res is the picture's width, at most 1000.
    VisitCounter(std::vector<int16_t>& table, const WorldWindow& w, int pictureWidth,
                 const GradientColors& g);
    // The plain loop: a point outside the window (on a bound is inside) takes colour 0 uncounted.
    Color plainColor(float x, float y) { return inWindow(x, y) ? countAndColor(x, y) : Black; }
    // The tile loop tests no window and counts the warm-up too; a point beyond the table is ignored
    // there and takes colour 0.
    Color tileColor(float x, float y) { return countAndColor(x, y); }
    // The colour of a count h between the thresholds.
    Color colorOfCount(int h) const;
    int resolution() const { return res_; }

  private:
    bool inWindow(float x, float y) const {
        return x >= w_.xmin && x <= w_.xmax && y >= w_.ymin && y <= w_.ymax;
    }
    Color countAndColor(float x, float y);

    std::vector<int16_t>& table_;
    WorldWindow w_;
    int res_;
    double sx_, sy_;
    int c_;
    std::array<Color, GradientColorSlots> colors_{};
    std::array<double, GradientColorSlots> threshold_{};
};

// All of HitCount set to 0, allocating it when needed.
void ClearHitCount(std::vector<int16_t>& table);

// Mode 5 and the deterministic mode 7: one of the first 180 strips, one Rnd a point.
inline Color RandomStripColor(const std::array<Color, GradientStripCount>& strips, Random& rng) {
    return strips[static_cast<size_t>(rng.Rnd() * RandomStripRange)];
}

// Mode 7: the colouring orbit, which runs with the colouring IFS over the picture in step with the
// drawing: the same map number at each plotted point.
class StealingOrbit {
  public:
    // The orbit starts at (0, 0) and takes 50 steps, step j by map j of the colouring IFS.
    explicit StealingOrbit(ColorStealingState& cs);
    // The colour under the orbit's next point, moved by map i; NoColor off the picture.
    Color next(int i);
    float x() const { return x_; }
    float y() const { return y_; }

  private:
    ColorStealingState& cs_;
    float x_ = 0, y_ = 0;
};

// What a run in a colour mode sets up once, before its loop.
struct RunColoring {
    int mode = IFSColorMode;
    GradientColors gradient;
    std::optional<GradientPosition> position;        // modes 1 to 4
    std::array<Color, GradientStripCount> strips{};  // mode 5
    std::optional<VisitCounter> visits;              // mode 6
    std::optional<StealingOrbit> orbit;              // mode 7

    // The tile loop's colour step for the point (x, y) made by map i, whose own colour is mapColor. It
    // runs at every iteration, warm-up included: mode 0 has no skip rule, mode 6 counts with no window
    // test, mode 7 moves the colouring orbit. NoColor when the point takes no colour.
    Color tileColor(Random& rng, int i, float x, float y, Color mapColor);
};

// The mode of the run (PlayGameColorMode) and its constants; mode 5 reseeds the generator once more.
void PrepareRunColoring(Workbench& wb, FractalPictures& pics, int n, RunColoring& rc);

}  // namespace quillane
