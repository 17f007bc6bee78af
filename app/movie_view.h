#pragma once
// The views of the movie creator: the active picture (the green box), its zoom and shift, the fitted
// views again, the frame size and the axes. Each change redraws the frame shown.
#include <optional>
#include <string>

#include "app/movie_commands.h"

namespace quillane {

inline constexpr const char* MovieSizeTitle = "Set Frame Size";
inline constexpr const char* MovieSizeLabel = "Display Size (pixels)";
inline constexpr const char* MovieSizeLimit = "Size must be between 50 and 400";
inline constexpr int MinMovieSize = 50;
inline constexpr int MaxMovieSize = 400;
inline constexpr const char* GreenBoxText =
    "The green box marks the active window for zoom and shift commands.";

// The three sizes of mnuSizeDim for a screen `screenHeight` pixels high, smallest first, each within
// 50..400: a fifth, a third and a half of the screen's height.
std::array<int, 3> MovieSizeChoices(int screenHeight);
// "Small (", "Medium (", "Large (" + the number + " pixels)".
std::string MovieSizeCaption(int index, int pixels);

// A click on picCanvas (fractal true) or picdesign makes it the active view.
void SetActiveMovieView(MovieCreator& mc, bool fractal);
// mnuViewZoom: index 0 zooms in (Page Up), 1 out (Page Down), about the middle of the active view.
void mnuViewZoom_Click(MovieCreator& mc, AppState& s, int index);
// mnuShiftDir: 0 left, 1 right, 2 up, 3 down; the arrow keys. The view moves a tenth of its width.
void mnuShiftDir_Click(MovieCreator& mc, AppState& s, int dir);
// mnuViewRestore: the active view as it was first fitted.
void mnuViewRestore_Click(MovieCreator& mc, AppState& s);
// mnuOptionsAxes.
void mnuOptionsAxes_Click(MovieCreator& mc, AppState& s, bool on);
// frmMovieSize's text: the size, or nothing after the message.
std::optional<int> MovieSizeFromText(const std::string& text, Host& host);
// mnuSizeDim and frmMovieSize: both pictures take the side and frame 1 is drawn again.
void SetMovieSize(MovieCreator& mc, AppState& s, int pixels);

}  // namespace quillane
