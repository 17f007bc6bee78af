#pragma once
// A picture over the fractal window: it floats in picPaste, is moved and resized with the mouse, and
// is then placed into the drawing, where it stays under a random drawing or becomes the initial set
// of a deterministic one.
#include <string>

#include "core/host.h"
#include "core/workbench.h"
#include "render/fractal_pictures.h"

namespace quillane {

inline constexpr const char* LoadPictureErrorTitle = "Error";
// The folder key shared by every dialog that opens a picture for the fractal window.
inline constexpr const char* PictureFolderKey = "PictureFigure";

// Grab handles: 0 top left, 1 top, 2 top right, 3 right, 4 bottom right, 5 bottom, 6 bottom left,
// 7 left; -1 the middle (a move), -2 outside the picture.
inline constexpr int HandleMiddle = -1;
inline constexpr int HandleNone = -2;
inline constexpr int GrabHandleSize = 5;

// A picture area with a picture floating over it: the fractal window's picfractal or the design
// window's picdesign, each with its own picPaste, picImagePaste and coordinate line.
struct PasteArea {
    const RasterSurface* area = nullptr;
    RasterSurface* picPaste = nullptr;
    RasterSurface* picImagePaste = nullptr;
    FloatingPicture* Floating = nullptr;
    std::string* picCoord = nullptr;
};
PasteArea FractalPasteArea(FractalPictures& pics);

// Nearest-pixel stretch: every target pixel takes the source pixel its centre falls on.
RasterSurface StretchPicture(const RasterSurface& source, int width, int height);
// picPaste from picImagePaste, stretched to the floating size.
void PicPasteResize(const PasteArea& a);
void PicPasteResize(FractalPictures& pics);
// PasteTo: picImagePaste floats over the area, centred. With the area W by H and the picture w by h
// in world units: a picture that fits keeps its size; else the longer of w and h gives the size,
// height H and width (w / h) W when w is below h, width W and height (h / w) H when h is below w,
// the whole area when they are equal. It is w against h that decides, not the area's proportions.
void PasteTo(const PasteArea& a);
// Takes `image` as the floating picture over picfractal, placed by PasteTo.
void FloatPicture(FractalPictures& pics, const RasterSurface& image);
// The floating picture's corners (left, top) and (right, bottom) in world units, for picCoord.
std::string PasteCornersText(const PasteArea& a);
std::string PasteCornersText(const FractalPictures& pics);
// The world position of the floating picture's top left pixel.
void FloatingOrigin(const PasteArea& a, double& x, double& y);
void FloatingOrigin(const FractalPictures& pics, double& x, double& y);

// Ends the floating state: the picture goes into picfractal, picImage2 and picImage3 and stays there
// at every restart (PasteX, PasteY). Nothing happens when no picture floats.
void PlaceFractalSelection(Workbench& wb, FractalPictures& pics);
// Hides picPaste and forgets the picture.
void ClearFractalPicPaste(FractalPictures& pics);
// The placed picture floats again where it was placed, its corners in picCoord.
void FloatPlacedPictureAgain(FractalPictures& pics);
// Esc in Deterministic mode at level 0 with a placed picture figure: the picture floats again.
bool LiftPlacedPicture(Workbench& wb, FractalPictures& pics);

// Which handle (or the middle) lies under picfractal's pixel (x, y).
int GrabHandleAt(const FloatingPicture& f, int x, int y);
// A drag of `handle` by (dx, dy) pixels from the rectangle `start`: the middle moves it, a handle
// moves the edges it sits on. A picture is never less than one pixel wide or high.
FloatingPicture DragFloating(const FloatingPicture& start, int handle, int dx, int dy);
// Sets the floating rectangle and rebuilds picPaste when the size changed.
void SetFloatingRect(const PasteArea& a, const FloatingPicture& rect);
void SetFloatingRect(FractalPictures& pics, const FloatingPicture& rect);

// frmPasteData: a corner (0 top left, 1 top right, 2 bottom left, 3 bottom right) and a size, all in
// world units, as typed.
struct PasteDataText {
    std::string txtX, txtY, txtWidth, txtHeight;
    int optCorner = 0;
};
// The message that keeps the dialog open, or empty when the values are good.
std::string CheckPasteData(const PasteDataText& t);
// The dialog's boxes for the floating picture as it stands.
PasteDataText PasteDataFor(const PasteArea& a, int corner);
PasteDataText PasteDataFor(FractalPictures& pics, int corner);
// Moves and sizes the floating picture by checked values.
void ApplyPasteData(const PasteArea& a, const PasteDataText& t);
void ApplyPasteData(FractalPictures& pics, const PasteDataText& t);

// Whether a background picture may be loaded or pasted now.
bool BackgroundPictureAllowed(const Workbench& wb);

}  // namespace quillane
