#pragma once
// The picture areas of the fractal window. They all share the fractal WorldWindow.
#include <cstdint>
#include <functional>
#include <string>

#include "core/workbench.h"
#include "render/color_stealing_state.h"
#include "render/deterministic_state.h"
#include "render/raster_surface.h"

namespace quillane {

// The zoom command caption while no selection rectangle stands, and while one does.
inline constexpr const char* ZoomInCaption = "Zoom In\tPage Up";
inline constexpr const char* ZoomSelectionCaption = "Zoom Selection\tPage Up";

// The selection rectangle and ruler line of the fractal window, in world units.
struct FractalSelection {
    double SelX1 = 0, SelY1 = 0, SelX2 = 0, SelY2 = 0;
    bool SelectionActive = false;
    bool SelectionDragging = false;
    bool DrawingLine = false;
    int SelectionAspect = 0;  // 1 square, 0 free
    // The pen of picfractal from before the drag, put back when it ends.
    DrawMode SavedDrawMode = DrawMode::CopyPen;
    DrawStyle SavedDrawStyle = DrawStyle::Solid;
    int SavedDrawWidth = 1;
};

// picPaste while it floats over picfractal: its place and size in picfractal's pixels.
struct FloatingPicture {
    bool Visible = false;
    int Left = 0, Top = 0, Width = 0, Height = 0;
    // mnuPicPastePopUpResize: the grab handles resize; off, they only move the picture.
    bool ResizeHandles = true;
};

struct FractalPictures {
    RasterSurface picfractal;     // what the person sees
    RasterSurface picImage2;      // shadow of the drawing; zoom rectangles and trace dots erase back to it
    RasterSurface picImage3;      // the drawing before the last view change
    RasterSurface picImageShift;  // what a shift of the view slides
    RasterSurface picImage;
    RasterSurface picMask;        // the drawing with the trace dots, ANDed back after an overlay goes
    RasterSurface picMaskShift;   // picMask at the present scale
    // The dots of the trace since its point was set, in world units: ANDing picMask back mixes a
    // coloured dot with a drawn pixel under it, so a removed overlay paints them again.
    struct TraceDot {
        double x, y, r;
        Color color;
    };
    std::vector<TraceDot> TraceDots;
    RasterSurface picImage4;
    RasterSurface picPaste;       // the picture at its present size, floating or placed
    RasterSurface picImagePaste;  // the picture at its own size, which every resize starts from
    FloatingPicture Floating;
    bool PictureOverlaid = false;
    double PasteX = 0, PasteY = 0;  // in world units

    // The number display picCount: empty when cleared.
    std::string picCount;
    // The coordinate display picCoord.
    std::string picCoord;
    // Whether a text fits the width of picTrace; the window measures it, and without one all fits.
    std::function<bool(const std::string&)> picTraceFits;
    // The dialog a key asks the window to open: "frmAxisSize", "frmGridSize", "frmTracePoint" or
    // "picPasteSetPosition"; the window opens it and empties this.
    std::string KeyDialog;

    FractalSelection Selection;
    DeterministicState Det;
    ColorStealingState Stealing;
    // View state of the window.
    int32_t SavedPointCount = 0;  // PointCount before the last view change, for Undo Zoom
    bool LastChangeWasZoom = false;
    bool ImageSizeFixed = false;  // mnuDrawImageSize enabled
    int ImageSizeTwips = 0;
    int32_t LastFixedCount = 10000;  // the last signed count of "Draw This Many..." (Ctrl+Alt+D)
    // Counts the runs of PlayGame begun on these pictures. A run that comes back from a yield in which
    // another run began (a zoom restarts the drawing) sees the change and ends.
    uint32_t RunNumber = 0;

    // A new square side in pixels for all areas, cleared to the fractal background.
    void resize(int side, Color back);
};

// Gives every picture area the mapping of the window: left xmin, top ymax, right xmax, bottom ymin.
void ApplyWindow(FractalPictures& pics, const WorldWindow& w);

// Reconciles the requested window with the typed one in txtWin, writes the boxes when it changes
// the window, then clears and rescales all picture areas. The four bounds may be changed.
void ScalefrmFractalWindows(Workbench& wb, FractalPictures& pics, float& xmin, float& xmax, float& ymin,
                            float& ymax, bool AddMargin);

// Ends a drawing and returns the random picture to its empty start.
void ClearImage(Workbench& wb, FractalPictures& pics, bool KeepPicture);

// The pen the picture had before a selection drag or ruler line began.
void RestoreSelectionPen(FractalPictures& pics);
// Takes the selection rectangle or ruler line off the picture; Zoom In loses its "Selection".
void ClearSelectionRect(Workbench& wb, FractalPictures& pics);

}  // namespace quillane
