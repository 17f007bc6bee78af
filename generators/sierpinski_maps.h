#pragma once
// Modified Sierpinski triangles: three maps carry the triangle ABC, B = (0,0), C = (1,0), A above
// the base, onto sub-triangles whose free corners divide the sides by three factors. Three rule sets
// say which corner goes where.
#include <array>
#include <optional>
#include <string>

#include "core/ifs_entry.h"

namespace quillane {

struct TrianglePoint {
    float x = 0, y = 0;
};

// The rules of each method, as picMethod shows them, and the comment line of the IFS.
const std::array<std::string, 3>& SierpinskiRules(int method);
const std::string& SierpinskiCommentLine(int method);

// The apex A of a triangle from its angles in degrees; the reason when they make none.
struct TriangleFromAngles {
    std::optional<TrianglePoint> apex;
    std::string error;  // empty when apex holds
};
TriangleFromAngles ApexFromAngles(double angleA, double angleB, double angleC);

// Factors of the pedal triangle of ABC: the feet of the altitudes, as fractions of the sides.
std::array<float, 3> PedalFactors(TrianglePoint apex);

// The three maps of `method` (1..3) for apex A and factors a, b, c. A must lie above the base (y > 0).
std::array<IFSFunction, 3> SierpinskiMaps(int method, TrianglePoint apex, float fa, float fb, float fc);

}  // namespace quillane
