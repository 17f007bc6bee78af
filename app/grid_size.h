#pragma once
// frmDesignGridSize (and the fractal window's frmGridSize, the same dialog): the grid's spacing by
// expressions, x alone or x and y apart.
#include <optional>
#include <string>

namespace quillane {

class Host;
class Workbench;
struct DesignPictures;

inline constexpr const char* GridSizeCaption = "Grid Size";
inline constexpr const char* XGridSizeCaption = "x Grid Size";
inline constexpr const char* GridSizeErrorText = "Cannot evaluate expression for grid size.  ";
inline constexpr const char* YGridSizeErrorText = "Cannot evaluate expression for y grid size.  ";
inline constexpr const char* GridSizePositiveText = "Grid size must be positive.  ";

struct GridSizeInput {
    std::string txtGrid, txtygrid;
    bool chkScale = false;  // x and y apart
};
struct GridSpacing {
    float x = 0, y = 0;
};

// lblxgrid's caption: "x Grid Size" with chkScale, else "Grid Size" (and txtygrid hidden).
const char* GridSizeLabel(bool chkScale);

// The dialog's OK: each box through the evaluator, above 0, else its message (title "Error") and
// nothing; y is x without chkScale.
std::optional<GridSpacing> EvaluateGridSize(const GridSizeInput& in, Host& host);

// Ctrl+Alt+G on the design window after OK: the grid takes the spacing and is switched on.
void DesignGridSize(Workbench& wb, DesignPictures& d, const GridSpacing& g);

}  // namespace quillane
