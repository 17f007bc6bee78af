#pragma once
// The four forms of the function table and the conversions between the boxes and CurrentIFS:
// matrix compact, matrix function form, scale and rotation, fixed point. The coefficients a..f and p
// are the truth, except in the fixed point form, where the recipe is and the matrix follows from it.
#include <optional>
#include <string>

#include "core/host.h"
#include "core/workbench.h"

namespace quillane {

inline constexpr const char* DesignIFSCaption = "Design (IFS)";
inline constexpr const char* DesignChaosGameCaption = "Design (Chaos Game)";
inline constexpr const char* ScaleCGWindowCaption = "Chaos Game Design";
inline constexpr const char* MatrixFunctionFormTitle = "Warning";
// mnuCodeMatrixFormat refuses to switch for 36 functions or more.
inline constexpr const char* MatrixFunctionFormRefused =
    "The matrix function form can only be used\nwith at most 35 functions.";
// SetUpFunctions falls back to the compact form.
inline constexpr const char* MatrixFunctionFormReset =
    "The matrix function form can only be used\nwith at most 35 functions. The format will\n"
    "be reset to the matrix compact form.    ";

// The Code menu's items of the four forms.
inline constexpr const char* MatrixItem = "mnuMatrix";
inline constexpr const char* MatrixFunctionItem = "mnuCodeMatrixFormat";
inline constexpr const char* RotationItem = "mnuRotation";
inline constexpr const char* FixedPointItem = "mnuCodeFP";

// The form in use: its item checked in the Code menu's radio group, CodeForm, the table's texts in
// it, and the design's mode (the fixed point form is chaos game mode).
void ShowFunctionForm(Workbench& wb, const char* item, int16_t codeForm);
// The matrix form with full rows.
void UseMatrixForm(Workbench& wb);

// A box of the table was entered: keeps a, b, c, d of its row as they stand now, so that an edit of
// one of r, s, theta, phi computes the other three from full-precision coefficients.
void EnterBox(Workbench& wb, int Column, int Row);

// Puts the text of box (Column, Row) into CurrentIFS in the form in use. Column 7 is p in every form.
void convert(Workbench& wb, int Column, int Row);

// Reads all rows of the boxes (count from txtMaps) into Target. Loses precision to the display
// texts, so it is only for when the boxes are the truth. In the fixed point form the recipe is read
// and the matrix built from it.
void TextToCode(const Workbench& wb, IFSEntry& Target);


// Lays the table out for n functions (1..100): txtMaps, the rows' count, the lock removed. With more
// than 35 functions the matrix function form falls back to the compact form, with a warning.
void SetUpFunctions(Workbench& wb, Host& host, int n);

// Equal probabilities: 1/n rounded to six decimals, the last function takes the rest. Writes the
// probability boxes. Returns whether any p changed.
bool SetProb(Workbench& wb);

// Probabilities in proportion to the areas of the maps, into CurrentIFS, the probability boxes and
// lblProbSum; returns whether any p changed. When all maps have area 0 the command has no guard
// against the division by zero: it ends with nothing and leaves everything as it was.
std::optional<bool> ProbCalc(Workbench& wb);


// The sum of p over the functions, in "0.000", as lblProbSum shows it.
std::string ProbSumText(const Workbench& wb);

}  // namespace quillane
