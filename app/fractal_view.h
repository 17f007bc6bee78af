#pragma once
// The commands of the fractal window's view and drawing: zoom, shift, restore, undo of a zoom,
// freeze, scale to fit, draw, stop, clear, draw this many, the selection rectangle, the keys and the
// mouse. Plain logic over the workbench and the pictures; the window only forwards events here.
#include <cstdint>
#include <optional>
#include <string>

#include "core/host.h"
#include "core/undo_menu.h"
#include "core/window_positions.h"
#include "core/workbench.h"
#include "render/fractal_pictures.h"

namespace quillane {

inline constexpr const char* ScaleFrozenTitle = "Not permitted";
inline constexpr const char* ScaleFrozenMessage = "Scale is frozen";
inline constexpr const char* UndoZoomCaption = "&Undo Zoom";

// Key codes as the window system gives them.
enum FractalKey : int {
    KeyLeft = 37,
    KeyUp = 38,
    KeyRight = 39,
    KeyDown = 40,
    KeyPageUp = 33,
    KeyPageDown = 34,
    KeyHome = 36,
    KeyDelete = 46,
    KeyQ = 81,
    KeyD = 68,
    KeyR = 82,
    KeyEsc = 27,
    KeySpace = 32,
    KeyAdd = 107,       // the keypad's plus
    KeySubtract = 109,  // the keypad's minus
    KeyPlus = 187,      // the plus key beside the digits
    KeyMinus = 189,     // the minus key beside the digits
};
// Shift mask bits.
enum ShiftMask : int { ShiftMaskShift = 1, ShiftMaskCtrl = 2, ShiftMaskAlt = 4 };

// The general view change: Percent 5, 25, 50, 100 zooms out, -5 is the zoom-in step, -1 restores.
void ZoomOut(Workbench& wb, FractalPictures& pics, Host& host, int Percent, bool PushUndo);
// Page Up: the selection rectangle, or the zoom-in step.
void ZoomIn(Workbench& wb, FractalPictures& pics, Host& host);
// The menu's Zoom In: as ZoomIn, but nothing once a deterministic drawing has begun.
void mnuZoom_Click(Workbench& wb, FractalPictures& pics, Host& host);
// Arrow keys: moves the window by 1% (37 left, 38 up, 39 right, 40 down).
void ShiftDrawWin(Workbench& wb, FractalPictures& pics, Host& host, int KeyCode);
// Puts UndoWindow back and updates the text boxes.
void RestoreFractalScale(Workbench& wb, FractalPictures& pics);
// "&Undo Zoom": the window before the last zoom or shift, its picture and its count.
void UndoZoom(Workbench& wb, FractalPictures& pics, Host& host);

void mnuCalcScale_Click(Workbench& wb, FractalPictures& pics, Host& host);
void mnuDrawFreezeScale_Click(Workbench& wb);
// "&Scale to Design Window": the design window's window becomes the fractal window's (and the one a
// change to Deterministic returns to), its boxes copied to txtWin; then the picture starts again.
void mnuDrawScaleDesign_Click(Workbench& wb, FractalPictures& pics, Host& host);
void mnuRun_Click(Workbench& wb, FractalPictures& pics, Host& host);
void mnuStop_Click(Workbench& wb);
void mnuClear_Click(Workbench& wb, FractalPictures& pics);
// Runs the drawing for a signed count from frmHowMany (+n more, -n until n).
void DrawFixedNumber(Workbench& wb, FractalPictures& pics, Host& host, int32_t count);

// frmHowMany: the text of txtPlay read as its OK button does (commas removed, rounded);
// the value, or the exact message of a number that is too large.
struct HowManyCheck {
    std::optional<int32_t> value;
    std::string message;  // shown in a warning box titled "Error"
};
HowManyCheck CheckHowMany(const std::string& text, bool randomMode);
inline constexpr const char* HowManyRandomLimitMessage = "Number must be less than 1,000,000,000";
inline constexpr const char* HowManyDeterministicLimitMessage = "Number must be less than 100";
inline constexpr const char* HowManyRandomTitle = "Number of points to plot";
inline constexpr const char* HowManyDeterministicTitle = "Number of iterations";
inline constexpr const char* HowManyDrawUntil = "Draw until this many plotted";
inline constexpr const char* HowManyDrawAdd = "Draw additional points";

// frmImageSize: unit 0 inches, 1 pixels, 2 centimetres; pixelsPerInch of the screen (96 usual).
struct ImageSizeCheck {
    std::optional<int> twips;
    std::string message;  // warning box titled "Error"
};
ImageSizeCheck CheckImageSize(const std::string& text, int unit, double pixelsPerInch);
// The captions of the three option buttons, stating the maxima.
std::string ImageSizeOptionCaption(int unit, double pixelsPerInch);
inline constexpr int MaxImageSizeTwips = 31680;  // 22 inches
inline constexpr const char* ImageSizeTooSmallMessage =
    "Size must be at least 1 pixel\n(although you won't see much at that size!)";
// The dialog's OK: the side is fixed at `twips` and "Unfreeze Image Size" enabled. The window then
// lays itself out again (ComputeFractalLayout, ResizeFractalWin).
void SetImageSize(Workbench& wb, FractalPictures& pics, int twips);
// "Unfreeze Image Size": the picture follows the window's size again; the window lays itself out.
void mnuDrawImageSize_Click(Workbench& wb, FractalPictures& pics);

// The side of the square picture in pixels for a window client area (all in pixels), and whether
// scrollbars are needed, as ResizeFractalWin lays it out. The gaps of 200 and 360 twips that the layout
// has always kept are 13 and 24 pixels here (15 twips a pixel).
inline constexpr int SideGapPixels = 13;
inline constexpr int BelowGapPixels = 24;
struct FractalLayout {
    int side = 0;       // picfractal side
    int outerSide = 0;  // picOuter side
    bool scrollbars = false;
    int scrollRange = 0;  // hidden length
};
FractalLayout ComputeFractalLayout(int clientWidth, int clientHeight, int coordHeight, int border,
                                   std::optional<int> fixedSide, int scrollbarSize);
// Applies a new picture side: pictures resized and cleared, window applied, drawing restarted.
void ResizeFractalWin(Workbench& wb, FractalPictures& pics, int side);
// "width x height" for txtFractalSize.
std::string FractalSizeText(int width, int height);

// The mouse: positions in world units of picfractal.
void FractalMouseMove(Workbench& wb, FractalPictures& pics, double x, double y);
void FractalMouseDown(Workbench& wb, FractalPictures& pics, double x, double y, int shiftMask);
void FractalMouseUp(Workbench& wb, FractalPictures& pics, double x, double y);
// "(x,y)" in "0.000", clamped to the window.
std::string CoordinateText(const WorldWindow& w, double x, double y);
// What picCoord shows while a selection is dragged: "(width,height)" of the rectangle in "0.000".
std::string SelectionSizeText(const FractalSelection& s);

// A key on the fractal window; returns true when the key was handled.
bool FractalKeyDown(Workbench& wb, FractalPictures& pics, Host& host, int keyCode, int shiftMask);

}  // namespace quillane
