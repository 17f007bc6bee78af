#pragma once
// The points file of the line fractal window: the polyline as text, one vertex a line between
// "Line Fractal Design {" and "}", with the orientation letter behind each segment's start.
#include <string>
#include <string_view>
#include <vector>

#include "generators/line_fractal.h"

namespace quillane {

inline constexpr const char* PointsFileTitle = "File Error";
inline constexpr const char* NoPointsMessage =
    "No points were found in this file.\nThis may not be a file of points for a line fractal design   "
    "\nor the file may not be constructed correctly.";
inline constexpr const char* TooFewPointsMessage = "The file must have at least 3 points.   ";
inline constexpr const char* FirstPointMessage = "The first point must be 0,0";
inline constexpr const char* ReadProblemMessage =
    "There was a problem reading the file.\nThis may not be a file of points for a line fractal design   "
    "\nor the file may not be constructed correctly.";
inline constexpr const char* SavePointsTitle = "Save Points";
inline constexpr const char* OpenPointsTitle = "Open Point File";
inline constexpr const char* SavePointsFilter = "Line Fractal Points (*.txt)";
inline constexpr const char* OpenPointsFilter = "Linear Fractal Point Files (*.txt)";

// The text of the file: numbers as the runtime prints them, LF line ends.
std::string WritePointsFile(const LineFractal& g);

struct PointsFile {
    std::vector<GeneratorPoint> points;  // at most 16; stored into the polyline even when refused
    std::string letters;                 // one per point line that carried a known letter or none
    float maxX = 1, minX = 0, maxY = 0.5f, minY = -0.5f;
    std::string error;  // the message of a refusal (title PointsFileTitle); empty when accepted
};

// Reads any bytes; never fails otherwise than with one of the messages above.
PointsFile ReadPointsFile(std::string_view text);
// Puts an accepted file into the polyline: nSegments, the letters, horizontal direction, and the
// orientation switched on when a letter other than F is there. A refused file stores its vertices only.
void ApplyPointsFile(LineFractal& g, const PointsFile& file);

}  // namespace quillane
