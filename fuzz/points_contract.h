#pragma once
// What the line fractal points reader promises for any bytes: a polyline of at most 16 points, or
// one of its messages; what it hands the window keeps nSegments and the letters in their bounds.
#include <string>

#include "generators/line_fractal_file.h"

namespace quillane::contracts {

inline const char* checkPointsRead(const std::string& text) {
    const PointsFile file = ReadPointsFile(text);
    if (file.points.size() > GeneratorPointSlots) return "at most 16 points are read";
    if (file.letters.size() > file.points.size()) return "at most one letter a point";
    const std::string& e = file.error;
    if (!e.empty() && e != NoPointsMessage && e != TooFewPointsMessage && e != FirstPointMessage &&
        e != ReadProblemMessage)
        return "a refusal is one of the reader's messages";
    if (e.empty() && (file.points.size() < 2 || !(file.points[0] == GeneratorPoint{0, 0})))
        return "an accepted file starts at (0,0) and has a segment";
    LineFractal g;
    ApplyPointsFile(g, file);
    if (g.nSegments < 1 || g.nSegments > MaxSegments) return "the window gets 1 to 15 segments";
    if (g.txtOrient.size() > static_cast<size_t>(g.nSegments)) return "the letters fit the segments";
    InitializeGenerator(g);
    const LineMaps maps = LineFractalMaps(g);
    if (maps.refusedSegment < 0 && maps.ifs.nMaps != g.nSegments) return "a build has one map a segment";
    // The writer takes any polyline the reader gave and the reader takes it back.
    const PointsFile again = ReadPointsFile(WritePointsFile(g));
    if (e.empty() && again.points.size() != file.points.size()) return "a written file keeps its points";
    return nullptr;
}

}  // namespace quillane::contracts
