#pragma once
// Koch curves with n-gons: the unit segment becomes a start piece, n - 1 sides of a regular n-gon of
// side c and an end piece, n + 1 maps in all. The curve can also be drawn by its own recursion.
#include <cmath>
#include <vector>

#include "core/ifs_entry.h"

namespace quillane {

inline constexpr int KochMinEdges = 3;
inline constexpr int KochMaxEdges = 60;
// The decimal two pi of the maps and the Single pi of the turn angles and the self-avoiding length.
inline constexpr double KochTwoPi = 6.283185308;
inline constexpr float KochPi = 3.1415927f;

// The n + 1 maps for n edges and edge length c, worked in double and stored as Single.
std::vector<IFSFunction> KochMaps(int n, double c);

// KochTurn(1..n+1) in slots 1..n+1 (slot 0 unused): the turns of the generator, in Single arithmetic.
// They add up to no turn, so the heading after the generator is the heading before it.
std::vector<float> KochTurns(int n);

// The ratio that limits the recursion: c from 1/3 up, else 1 - 2c. Below 1/3 this is not the length
// of the end pieces; the rule is kept as it stands.
float KochRatioFor(float c);

// cmdAvoid: the largest c for which the curve with n edges does not touch itself.
float SelfAvoidingLength(int n);

// The fitted view of the preview: left, top, right, bottom.
struct KochView {
    double left = 0, top = 0, right = 0, bottom = 0;
};
KochView KochPreviewView(int n, double c);

// The recursion limits in the fractal window for one pixel of w world units: p by the ratio, q by a
// million lines at most; and the level a pass at counter L draws at (before its + 1).
struct KochLimits {
    int p = 0;
    int q = 0;
};
KochLimits KochRecursionLimits(int n, float ratio, double pixel);
int KochRecursionLevel(int L, const KochLimits& limits);

// KochSegment: from (x, y) with the heading, a piece of `length` drawn to `Level` levels; (x, y) moves
// to its end. The sink is told piece i (1..n+1) before each recursive call, and takes the lines; a
// line it refuses (false) ends the drawing. Returns false when ended that way.
template <class Sink>
bool KochSegment(const std::vector<float>& turns, int Level, double& x, double& y, double heading,
                 double length, double ratio, Sink& sink) {
    const int pieces = static_cast<int>(turns.size()) - 1;
    if (Level < 1) {
        const double x2 = x + length * std::cos(heading), y2 = y + length * std::sin(heading);
        const bool go = sink.line(x, y, x2, y2);
        x = x2;
        y = y2;
        return go;
    }
    const double end = (1 - ratio) * length / 2, middle = length * ratio;
    for (int i = 1; i <= pieces; ++i) {
        // The heading runs on over the loop; each call gets its own copy.
        heading += turns[static_cast<size_t>(i)];
        sink.piece(i);
        if (!KochSegment(turns, Level - 1, x, y, heading, i == 1 || i == pieces ? end : middle, ratio, sink))
            return false;
    }
    return true;
}

}  // namespace quillane
