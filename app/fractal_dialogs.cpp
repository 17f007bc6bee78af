// The checks of "Draw This Many..." and "Set Image Size", and the layout of the fractal window.
#include <algorithm>
#include <cmath>
#include <string>

#include "core/numbers.h"
#include "core/window_positions.h"
#include "app/fractal_view.h"

namespace quillane {

namespace {

constexpr int32_t MaxRandomCount = 1000000000;
constexpr int32_t MaxIterations = 100;
constexpr double CmPerInch = 2.54;
constexpr int MaxImageInches = MaxImageSizeTwips / 1440;
// The gaps of the layout: 200 and 360 twips, at 15 twips a pixel.

enum ImageUnit { Inches = 0, Pixels = 1, Centimetres = 2 };

int maxCentimetres() {
    return static_cast<int>(std::floor(MaxImageSizeTwips / TwipsPerInch * CmPerInch));
}

int maxPixels(double pixelsPerInch) {
    return static_cast<int>(std::floor(MaxImageSizeTwips * pixelsPerInch / TwipsPerInch));
}

ImageSizeCheck failed(const std::string& message) {
    return {std::nullopt, message};
}

ImageSizeCheck twips(double value) {
    return {CLng(value), ""};
}

}  // namespace

HowManyCheck CheckHowMany(const std::string& text, bool randomMode) {
    std::string digits;
    for (char c : text)
        if (c != ',') digits += c;
    const int32_t n = CLng(Val(digits));
    if (randomMode && n > MaxRandomCount) return {std::nullopt, HowManyRandomLimitMessage};
    if (!randomMode && n > MaxIterations) return {std::nullopt, HowManyDeterministicLimitMessage};
    return {n, ""};
}

ImageSizeCheck CheckImageSize(const std::string& text, int unit, double pixelsPerInch) {
    const double v = Val(text);
    switch (unit) {
        case Inches:
            if (v > MaxImageInches)
                return failed("Size cannot exceed " + std::to_string(MaxImageInches) + " inches");
            // Nothing, a negative size or less than a pixel has no picture in any unit.
            if (v * pixelsPerInch < 1) return failed(ImageSizeTooSmallMessage);
            return twips(v * TwipsPerInch);
        case Centimetres:
            if (v > maxCentimetres())
                return failed("Size cannot exceed " + std::to_string(maxCentimetres()) + " cm");
            if (v * pixelsPerInch / CmPerInch < 1) return failed(ImageSizeTooSmallMessage);
            return twips(v * TwipsPerInch / CmPerInch);
        default:
            if (v > maxPixels(pixelsPerInch))
                return failed("Size must be at most " + std::to_string(maxPixels(pixelsPerInch)) + " pixels");
            if (v < 1) return failed(ImageSizeTooSmallMessage);
            return twips(v * TwipsPerInch / pixelsPerInch);
    }
}

std::string ImageSizeOptionCaption(int unit, double pixelsPerInch) {
    switch (unit) {
        case Inches:
            return "Max " + std::to_string(MaxImageInches) + " inches";
        case Centimetres:
            return "Max " + std::to_string(maxCentimetres()) + " cm";
        default:
            return "Max " + std::to_string(maxPixels(pixelsPerInch)) + " pixels";
    }
}

void SetImageSize(Workbench& wb, FractalPictures& pics, int twips) {
    pics.ImageSizeTwips = twips;
    pics.ImageSizeFixed = true;
    wb.Menu.setEnabled("mnuDrawImageSize", true);
}

void mnuDrawImageSize_Click(Workbench& wb, FractalPictures& pics) {
    pics.ImageSizeFixed = false;
    wb.Menu.setEnabled("mnuDrawImageSize", false);
}

FractalLayout ComputeFractalLayout(int clientWidth, int clientHeight, int coordHeight, int border,
                                   std::optional<int> fixedSide, int scrollbarSize) {
    int s =
        std::min(clientWidth - border, clientHeight - coordHeight - border - BelowGapPixels) - SideGapPixels;
    // A window squeezed below the gaps still keeps a picture of one pixel.
    s = std::max(s, 1);
    FractalLayout layout;
    layout.side = fixedSide ? *fixedSide : s;
    if (layout.side <= s) {
        s = layout.side;
    } else {
        layout.scrollbars = true;
        s = std::max(s - scrollbarSize, 0);
        layout.scrollRange = layout.side - s;
    }
    layout.outerSide = s + border;
    return layout;
}

}  // namespace quillane
