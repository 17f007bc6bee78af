#pragma once
// The initial polygons: every function of the design window is an image of one of them, and the
// deterministic drawing can start from it. The built-in ones are plain data; `.gon` files hold them
// as text.
#include <array>
#include <cstdint>
#include <string>
#include <string_view>

#include "core/design_polygon.h"
#include "core/workbench.h"

namespace quillane {

// The items of mnupoly: 0..12 built in, 13 the user's polygon.
inline constexpr int BuiltInPolygonCount = 13;
inline constexpr int UserPolygonItem = 13;
inline constexpr std::array<const char*, 14> PolygonCaptions{"Oriented Unit Square",
                                                             "Oriented Equilateral Triangle",
                                                             "Oriented Horizontal Unit Line",
                                                             "Oriented Vertical Unit Line",
                                                             "Horizontal Unit Line",
                                                             "Vertical Unit Line",
                                                             "Equilateral Triangle",
                                                             "Unit Square",
                                                             "Pentagon",
                                                             "Hexagon",
                                                             "Heptagon",
                                                             "Octogon",
                                                             "Nonagon",
                                                             "User Defined"};

// The regular polygon with n sides of length 1, from (0,0) along the x axis, closed at (0,0).
DesignPolygon RegularPolygon(int n);
// Built-in polygon `index` (0..12); an empty polygon for any other index.
DesignPolygon BuiltInPolygon(int index);

// The entries as `.gon` text: one "x , y" line each, CR LF line ends.
std::string WritePolygonText(const DesignPolygon& polygon);
// Reads `.gon` text into the entries of `polygon`, keeping its Kind. Blank lines are not entries,
// brackets are ignored, a missing or unreadable number is 0; entries past 110 are dropped.
void ReadPolygonText(std::string_view text, DesignPolygon& polygon);

// The square preview window of frmPolygonDesign around the polygon's vertices.
WorldWindow PolygonPreviewWindow(const DesignPolygon& polygon);

// The path a person draws with the mouse in PolygonMode, as entries of UserPolygon. Only the
// bookkeeping: the window draws the lines and the rubber band itself.
struct PolygonDrawing {
    bool PolygonMode = false;
    bool PolygonFinished = true;
    bool RubberBandActive = false;
    bool PathStartPending = true;
    int PolygonPointCount = 0;
    int PathPointCount = 0;
    float PathStartX = PenLift, PathStartY = PenLift;
    float LastVertexX = 0, LastVertexY = 0;
    float RubberEndX = 0, RubberEndY = 0;
    // The start of the path before the last pen lift, for Delete.
    float EarlierStartX = PenLift, EarlierStartY = PenLift;
    DesignPolygon UserPolygon;
};

// mnuDrawPoly_Click: a fresh path; UserPolygon keeps its Kind.
void BeginPolygonMode(PolygonDrawing& d);
// A left click at release. Snap is Shift held alone. True when the click closed the path, and then
// UserPolygon has been copied to InitialPolygon.
bool PolygonClick(PolygonDrawing& d, float x, float y, bool Snap, float GridX, float GridY,
                  float CloseTolerance, DesignPolygon& InitialPolygon);
// "D": the last vertex goes; after a pen lift, back to the end of the earlier path.
void PolygonDelete(PolygonDrawing& d);
// "L": lifts the pen; the next click starts a new path.
void PolygonLift(PolygonDrawing& d);
// "Q": ends PolygonMode. True when the drawn polygon replaced InitialPolygon; a path of one point or
// none keeps the former polygon.
bool PolygonFinish(PolygonDrawing& d, DesignPolygon& InitialPolygon);
// The keys of PolygonMode, letters in either case. True when one acted.
bool PolygonKey(PolygonDrawing& d, char key, bool repeat, DesignPolygon& InitialPolygon);

}  // namespace quillane
