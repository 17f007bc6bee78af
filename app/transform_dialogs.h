#pragma once
// The checks of the dialogs frmScale, frmRotate and frmSkew: their texts in, the values or the exact
// message out. The Qt dialog shows the message in a box titled "Error", sends the focus back to the
// faulty box with its text selected, and stays open.
#include <optional>
#include <string>

#include "app/transform_commands.h"

namespace quillane {

inline constexpr const char* TransformDialogTitle = "Error";
inline constexpr const char* ScalePercentNotNumber = "Cannot evaluate expression for the scale percentage.  ";
inline constexpr const char* PositiveScaleMessage = "Enter a positive scale value";
inline constexpr const char* RotationAngleNotNumber = "Cannot evaluate expression for the rotation angle.  ";
inline constexpr const char* StretchHoriNotNumber = "Cannot evaluate expression for horizontal stretch.  ";
inline constexpr const char* StretchVertNotNumber = "Cannot evaluate expression for vertical stretch.  ";
inline constexpr const char* ShearHoriNotNumber = "Cannot evaluate expression for horizontal shear.  ";
inline constexpr const char* ShearVertNotNumber = "Cannot evaluate expression for vertical shear.  ";
inline constexpr const char* ShearRangeMessage = "Enter a shear value between -90 and 90";

// A dialog's verdict: the value, or the message and the box (counted from 0) that gets the focus.
template <class T>
struct DialogCheck {
    std::optional<T> value;
    std::string message;
    int box = 0;
};

// frmScale: txtScale, a percentage (100 by default).
DialogCheck<float> CheckScaleDialog(const std::string& txtScale);

// frmRotate: txtRotate in degrees; optDirection 1 turns the other way, so the angle is negated.
DialogCheck<double> CheckRotateDialog(const std::string& txtRotate, int optDirection);

// frmSkew, checked in the order txtStrHori, txtStrVert, txtSkewHori, txtSkewVert (boxes 0..3).
struct SkewDialogText {
    std::string txtStrHori = "100", txtStrVert = "100", txtSkewHori = "0", txtSkewVert = "0";
};
DialogCheck<SkewValues> CheckSkewDialog(const SkewDialogText& t);

}  // namespace quillane
