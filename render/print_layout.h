#pragma once
// Where the pictures and the text lines of a printout stand on its pages, in inches from each
// page's top left. Printers and the PDF writer draw the same pages.
#include <string>
#include <vector>

namespace quillane {

class RasterSurface;

inline constexpr double PrintMarginInches = 0.75;
inline constexpr double PrintGapInches = 0.25;
inline constexpr double PrintFontPoints = 10;
inline constexpr double PrintLineInches = 12.0 / 72.0;

struct PrintSheet {
    double width = 8.5, height = 11;  // the paper as it lies, in inches
};

struct PrintPictures {
    const RasterSurface* fractal = nullptr;  // null when not printed
    const RasterSurface* design = nullptr;
    bool sideBySide = false;
    double sideInches = 3;  // each picture fits a square of this side
};

struct PagePicture {
    const RasterSurface* picture = nullptr;
    double x = 0, y = 0, width = 0, height = 0;
};
struct PageLine {
    double x = 0, baseline = 0;
    std::string text;
};
struct PrintPage {
    std::vector<PagePicture> pictures;
    std::vector<PageLine> lines;
};

// Side by side the two pictures and the gap between them must fit between the margins.
bool SideBySideFits(const PrintSheet& sheet, double sideInches);

// The pictures first (one above the other, or side by side), then the text's lines, each page
// filled to its bottom margin before the next begins. A picture larger than the space between
// the margins is made smaller.
std::vector<PrintPage> LayoutPrint(const PrintSheet& sheet, const PrintPictures& pictures, const std::string& text);

}  // namespace quillane
