#pragma once
// The coefficient changes behind every gesture and command of the design window. Each takes a map and
// returns it changed; only a..f are touched, never the probability. Coefficients stay 32-bit floats;
// the trigonometry runs in doubles and is rounded once per coefficient, as the stores always were.
#include "core/ifs_entry.h"

namespace quillane {

// The rotate command and the arrow keys convert degrees with this shorter constant.
inline constexpr double RotateDegToRad = 0.017453292;

// The image moved by (dx, dy): e + dx, f + dy.
IFSFunction TranslateMap(const IFSFunction& m, float dx, float dy);

// A scale by (sx, sy) about (px, py), after the map and in the window's axes.
IFSFunction ScaleMapAbout(const IFSFunction& m, float sx, float sy, float px, float py);

// A rotation through `radians` about (cx, cy), after the map.
IFSFunction RotateMapAbout(const IFSFunction& m, double radians, float cx, float cy);

// Vertical shear with tangent s about the line x = xm: c, d, f change.
IFSFunction ShearMapVertical(const IFSFunction& m, double s, float xm);
// Horizontal shear with tangent s about the line y = ym: a, b, e change.
IFSFunction ShearMapHorizontal(const IFSFunction& m, double s, float ym);

// Mirror about the middle (xm, ym) of the box: Direction -1 left-right, +1 top-bottom.
IFSFunction ReflectMap(const IFSFunction& m, int Direction, float xm, float ym);

// a..d times s; e and f stay, so the image of the origin stays in place.
IFSFunction ScaleMatrix(const IFSFunction& m, float s);

// The stretch of frmSkew multiplies the columns, acting in the polygon's own axes before the map.
IFSFunction StretchColumns(const IFSFunction& m, float sh, float sv);

}  // namespace quillane
