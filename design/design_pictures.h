#pragma once
// The picture areas and window state of the design window. They all share DesignWindow.
#include <array>
#include <functional>
#include <string>

#include "core/menu_tree.h"
#include "core/initial_polygons.h"
#include "core/workbench.h"
#include "design/polygon_image.h"
#include "render/fractal_pictures.h"
#include "render/raster_surface.h"

namespace quillane {

// Slot 100 of a..f: the selected map before a gesture, drawn as a dashed ghost.
inline constexpr int GhostSlot = 100;
// Pixel sizes of the design window, converted to world units along x when used.
inline constexpr int HandleSize = 3;
inline constexpr int CloseTolerance = 5;

struct DesignPictures {
    RasterSurface picdesign;    // IFS mode: polygons, grid, axes, fixed points
    RasterSurface picCGDesign;  // chaos game mode; kept at the same scale
    RasterSurface picImage;     // off-screen copy used in polygon mode
    // The picture the design window shows: the chaos game's in chaos game mode.
    const RasterSurface& shownPicture(bool chaosGame) const { return chaosGame ? picCGDesign : picdesign; }
    std::string picCoord;       // status line
    std::string picTrans;       // selected number or grid size

    // Derived per function from the coefficients: the images of the initial polygon and their boxes.
    std::array<DesignPolygon, 101> PolygonImage{};
    std::array<quillane::BoundingBox, 101> BoundingBox{};

    WorldWindow DesignUndoWindow;  // before the last zoom
    WorldWindow ShiftUndoWindow;   // before the last shift

    // Polygon mode.
    PolygonDrawing Poly;
    std::string HintText;
    bool PolygonClicked = false;  // once a point was placed, the help card stays away
    DrawMode SavedPenMode = DrawMode::CopyPen;
    std::array<bool, DesignToolbarButtons + 1> SavedToolbar{};  // 1..15

    // Two-digit selection: the tens stored by Shift + digit, 0 when none.
    int StoredTens = 0;
    bool StoredTensSet = false;

    // What the last redraw after a change of the working IFS showed.
    struct Shown {
        int16_t nMaps = -1;
        MapArray a{}, b{}, c{}, d{}, e{}, f{};
        FunctionColors colors{};
        DesignPolygon polygon;
        bool operator==(const Shown&) const = default;
    } LastShown;

    // A picture behind the design: it floats in picPaste over picdesign until placed, then it is
    // picdesign's picture. picImagePaste keeps it at its own size.
    RasterSurface picPaste;
    RasterSurface picImagePaste;
    FloatingPicture Floating;
    bool PastePlaced = false;     // the floating picture was placed (a drag clears it)
    bool PictureInPlace = false;  // a placed picture lies behind the design

    // The preview window's Draw, when the frame has one.
    std::function<void()> DrawPreview;

    // A new size in pixels for all three areas.
    void resize(int width, int height, Color back);
    // The background of the three design pictures.
    void setBackColor(Color back);
};

}  // namespace quillane
