#pragma once
// The twisted Sierpinski triangle: the triangle ABC is cut into the three corner triangles aBc, abC
// and Abc of the dividing points (as method 2), and each piece is turned about its centroid by the
// twist before it is cut again. Drawn, not an IFS: the turn compounds from level to level.
#include <array>
#include <vector>

#include "generators/sierpinski_maps.h"
#include "render/draw_surface.h"

namespace quillane {

inline constexpr int TwistSliderMax = 100;
// The turn at each level at the slider's far end ("Large"), in radians: a sixth of a half turn.
inline constexpr double TwistLargest = 3.14159265358979 / 6;
inline constexpr int TwistMaxIterations = 9;

using TwistTriangle = std::array<TrianglePoint, 3>;

struct TwistSettings {
    int sliTwist = 0;        // 0 ("None") to TwistSliderMax ("Large")
    int iterations = 4;      // cmbIterations: 1 to TwistMaxIterations
    bool alternate = false;  // chkOpenTwist: the turn changes direction at every level
};

// The pieces after `iterations` cuts, each with the corner (0 at B, 1 at C, 2 at A) it came from at
// the last cut. Factors are fractions of the sides: a on BC from B, b on CA from C, c on AB from A.
struct TwistPiece {
    TwistTriangle t;
    int corner;
};
std::vector<TwistPiece> TwistedSierpinski(TrianglePoint apex, const std::array<float, 3>& factors,
                                          const TwistSettings& settings);

// Draws the pieces on `canvas`: filled or outlined, in `color` or, with byCorner, in one colour of
// `cornerColors` by the corner each piece came from.
void DrawTwistedSierpinski(DrawSurface& canvas, const std::vector<TwistPiece>& pieces, bool filled,
                           bool byCorner, Color color, const std::array<Color, 3>& cornerColors);

}  // namespace quillane
