#pragma once
// Where the child windows stand, in 1/1440 inch as the settings file keeps them, and their defaults.
namespace quillane {

inline constexpr double TwipsPerInch = 1440;

struct WindowPlace {
    int left = 0, top = 0, width = 0, height = 0;
    int right() const { return left + width; }
    int bottom() const { return top + height; }
};

struct WindowPositions {
    WindowPlace functions, fractal, design;
    WindowPlace tilingOptions;  // left and top only
    WindowPlace preview, colorStealing;
};

// The positions of a first start; the preview stands at the frame's right edge (frameWidth, twips).
WindowPositions SetDefaultWindowPositions(int frameWidth);

// The smallest box from the origin that holds the table, fractal and design windows.
WindowPlace MainWindowsExtent(const WindowPositions& p);

// Twips to the screen's pixels and back, rounded half to even.
int TwipsToPixels(int twips, double pixelsPerInch);
int PixelsToTwips(int pixels, double pixelsPerInch);

}  // namespace quillane
