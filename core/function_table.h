#pragma once
// What the function table shows: the headings and the text of each row in the form in use.
#include <array>
#include <string>

#include "core/workbench.h"

namespace quillane {

inline constexpr int TableColumns = 9;  // txta, txtb, txtC, txtD, txtE, txtF, txtProb, txtFPx, txtFPy

// Headings of columns 1 to 9 for the form in use; columns 8 and 9 are empty outside the fixed point form.
std::array<std::string, TableColumns> ColumnHeadings(const Workbench& wb);

// Scale and rotation of a matrix: r, s, theta, phi (degrees).
struct RotationForm {
    double r = 0, s = 0, theta = 0, phi = 0;
};
RotationForm PrintRotation(float a, float b, float c, float d);

// The texts of row i in the form in use: coefficients and probabilities "0.000", angles "0.00".
std::array<std::string, TableColumns> RowTexts(const Workbench& wb, int i);

// Rewrites the texts of rows 0 to n - 1 (n from txtMaps) from CurrentIFS in the form in use, and keeps
// them as the old texts.
void WriteTableRows(Workbench& wb);

// The caption of the table window for an IFS name.
std::string FunctionsCaptionFor(const std::string& name);

}  // namespace quillane
