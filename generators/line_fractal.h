#pragma once
// Line fractals: a polyline of 2 to 15 segments from (0,0) to (1,0), or to (0,1) in vertical mode.
// Every segment becomes one similarity that sends the unit segment onto it, so the attractor is the
// self-similar curve of the polyline. Plain logic shared by the window, the recursive drawing and
// the command line.
#include <array>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "core/ifs_entry.h"

namespace quillane {

inline constexpr int MinSegments = 2;
inline constexpr int MaxSegments = 15;
inline constexpr int GeneratorPointSlots = MaxSegments + 1;

inline constexpr const char* LineFractalCaption = "Line Fractal Design";
inline constexpr const char* NotContractingMessage = "IFS is not contracting.\nAdjust the red segment(s).   ";
inline constexpr const char* OrientLetters = "FBAG";

struct GeneratorPoint {
    float x = 0, y = 0;
    bool operator==(const GeneratorPoint&) const = default;
};

struct LineFractal {
    std::array<GeneratorPoint, GeneratorPointSlots> GeneratorPoints{};
    std::array<float, GeneratorPointSlots> GeneratorAngles{};
    std::array<float, GeneratorPointSlots> GeneratorRatios{};
    int nSegments = 2;
    int SegmentDirection = 0;  // 0 horizontal, 1 vertical
    float MaxRatio = 0;
    bool chkOrient = false;
    std::string txtOrient = "FF";  // letter i+1 belongs to segment i

    LineFractal();
    int segments() const;  // nSegments held to the slots there are
};

// The angle of (x, y) with pi as 3.141592654; an x within 0.01 of zero counts as straight up or down.
float ATan2(float y, float x);
// The angle of segment i: from the x axis, or from the y axis in vertical mode.
float SegmentAngle(const LineFractal& g, int i);
// The length of segment i as Single.
float SegmentLength(const LineFractal& g, int i);
// GeneratorRatios and GeneratorAngles from GeneratorPoints.
void InitializeGenerator(LineFractal& g);
// The preview's depth for n segments.
int RecDepth(int n);

// The recursion of the preview and of the recursive drawing: one call per line, in drawing order,
// from (x1, y1) to (x2, y2); `branch` is the segment index taken by the last level above the line.
// Stops early (returns false) when `line` returns false.
using LineSink = std::function<bool(double x1, double y1, double x2, double y2, int branch)>;
bool RecurseLines(const LineFractal& g, int depth, const LineSink& line);
// The number of lines RecurseLines draws at `depth`, saturating at INT64_MAX.
int64_t LineCount(const LineFractal& g, int depth);

// The level a recursive drawing may reach from the deterministic level L, for a pixel of `pixel`
// world units: held below the level where the longest segment shrinks to a pixel and below the one
// where about a million lines are reached. Never below -1 (a depth of 0, one line).
int LimitRecursionLevel(const LineFractal& g, int L, double pixel);

// What Create IFS builds: the maps, or the segment whose length refused the build.
struct LineMaps {
    IFSEntry ifs;  // a..f of the segments written before a refusal too
    int refusedSegment = -1;
    float MaxRatio = 0;
};
// The maps, one per segment, with rev and flip from the orientation letters when chkOrient is on.
LineMaps LineFractalMaps(const LineFractal& g);
// "; Line Fractal", one "; ( x, y)" line per vertex, and "; oriented: ..." with orientation.
std::vector<std::string> LineFractalComments(const LineFractal& g);
std::string LineFractalName(int nSegments);

// The edits of the window.
void ResetPolyline(LineFractal& g);
// cmdEdgeChange(0): the vertex added; SelectedPoint becomes it. No change at 15 segments.
void AddEdge(LineFractal& g, int& SelectedPoint);
// cmdEdgeChange(1): the selected vertex, or the last inner one, is dropped. No change at 2.
void RemoveEdge(LineFractal& g, int& SelectedPoint);
// optDirection: every vertex turned by a quarter towards the new direction.
void TurnPolyline(LineFractal& g, int direction);
// Round(v / spacing) * spacing, half to even.
float SnapValue(float v, float spacing);
// Snap All: every vertex, the end points too.
void SnapAll(LineFractal& g, float GridX, float GridY);
// txtOrient after a typed key: nullopt drops the key; Backspace (8) passes.
std::optional<char> OrientKey(char key);
// The letter of segment i, or 0 when the text is shorter.
char OrientLetter(const LineFractal& g, int i);

}  // namespace quillane
