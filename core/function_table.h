#pragma once
// What the function table shows: the headings and the text of each row in the form in use.
#include <array>
#include <string>
#include <vector>

#include "core/workbench.h"

namespace quillane {

// txta, txtb, txtC, txtD, txtE, txtF, txtProb, txtFPx, txtFPy: the boxes of one row.
inline constexpr int TableColumns = TableColumnCount;

// Headings of columns 1 to 9 for the form in use; columns 8 and 9 are empty outside the fixed point form.
std::array<std::string, TableColumns> ColumnHeadings(const Workbench& wb);

// A caption over a run of columns (1-based, inclusive): "Moves" and "Parameters" in the fixed point form.
struct HeadingGroup {
    std::string caption;
    int firstColumn = 1;
    int lastColumn = 1;
    bool operator==(const HeadingGroup&) const = default;
};
std::vector<HeadingGroup> HeadingGroups(const Workbench& wb);

// Scale and rotation of a matrix: r, s, theta, phi (degrees).
struct RotationForm {
    double r = 0, s = 0, theta = 0, phi = 0;
};
RotationForm PrintRotation(float a, float b, float c, float d);
// The same as taking an entry from the list computes it: r and s rounded to four decimals, and for
// d = 0 phi is Sgn(b) * 90, the opposite sign of PrintRotation. The next edit of the row corrects it.
RotationForm ListEntryRotation(float a, float b, float c, float d);

// Where the scale and rotation texts come from.
enum class RowTextSource { Arrays, ListEntry };

// The texts of row i in the form in use: coefficients and probabilities "0.000", angles "0.00".
std::array<std::string, TableColumns> RowTexts(const Workbench& wb, int i,
                                               RowTextSource source = RowTextSource::Arrays);

// Rewrites the texts of rows 0 to n - 1 (n from txtMaps) from CurrentIFS in the form in use, and keeps
// them as the old texts.
void WriteTableRows(Workbench& wb, RowTextSource source = RowTextSource::Arrays);
// The same for row i alone.
void WriteTableRow(Workbench& wb, int i);
// Rewrites the probability boxes of all rows, and their old texts.
void WriteProbabilityTexts(Workbench& wb);

// The caption of the table window for an IFS name.
std::string FunctionsCaptionFor(const std::string& name);

}  // namespace quillane
