#include "render/print_layout.h"

#include <algorithm>
#include <sstream>

#include "render/raster_surface.h"

namespace quillane {

namespace {

// The picture fitted into a square of `side` inches, keeping its proportions.
PagePicture fitted(const RasterSurface* picture, double x, double y, double side) {
    PagePicture p;
    p.picture = picture;
    p.x = x;
    p.y = y;
    const double w = std::max(1, picture->width()), h = std::max(1, picture->height());
    const double scale = side / std::max(w, h);
    p.width = w * scale;
    p.height = h * scale;
    return p;
}

}  // namespace

bool SideBySideFits(const PrintSheet& sheet, double sideInches) {
    return 2 * sideInches + PrintGapInches <= sheet.width - 2 * PrintMarginInches + 1e-9;
}

std::vector<PrintPage> LayoutPrint(const PrintSheet& sheet, const PrintPictures& pictures, const std::string& text) {
    const double left = PrintMarginInches, top = PrintMarginInches;
    const double right = sheet.width - PrintMarginInches, bottom = sheet.height - PrintMarginInches;
    const double side = std::max(0.1, std::min({pictures.sideInches, right - left, bottom - top}));
    std::vector<PrintPage> pages(1);
    double y = top;
    std::vector<const RasterSurface*> shown;
    for (const RasterSurface* p : {pictures.fractal, pictures.design})
        if (p) shown.push_back(p);
    if (pictures.sideBySide && shown.size() == 2 && SideBySideFits(sheet, side)) {
        pages.back().pictures.push_back(fitted(shown[0], left, y, side));
        pages.back().pictures.push_back(fitted(shown[1], left + side + PrintGapInches, y, side));
        y += side + PrintGapInches;
    } else {
        for (const RasterSurface* p : shown) {
            if (y + side > bottom && y > top) {
                pages.emplace_back();
                y = top;
            }
            pages.back().pictures.push_back(fitted(p, left, y, side));
            y += side + PrintGapInches;
        }
    }
    std::istringstream lines(text);
    for (std::string line; std::getline(lines, line);) {
        if (y + PrintLineInches > bottom && y > top) {
            pages.emplace_back();
            y = top;
        }
        y += PrintLineInches;
        pages.back().lines.push_back({left, y, line});
    }
    return pages;
}

}  // namespace quillane
