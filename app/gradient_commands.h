#pragma once
// frmPixelColoring, "Gradient Color Options": what its controls and the colour items of the Code
// menu do to the gradient, the colour mode and the visit counts.
#include <array>
#include <string>

#include "app/app_state.h"
#include "core/gradient_colors.h"
#include "core/host.h"

namespace quillane {

inline constexpr const char* PixelColoringCaption = "Gradient Color Options";
inline constexpr int VisitCountMode = 6;

// mnuColors_Click(Index): the item alone is checked.
void mnuColors_Click(Workbench& wb, int Index);
// mnuColorsGradient: the window opens with mnuColors(1) checked; the shell shows it.
void mnuColorsGradient_Click(Workbench& wb);

// optColoring click: the gradient item alone is checked; the visit counts start clean for mode 6.
void optColoring_Click(AppState& s, int Index);
// Visit counts need the random drawing.
bool optColoringEnabled(const Workbench& wb, int Index);
// txtCount, lblCount, lblPC and the tick lines show for mode 6 only.
bool CountRowsVisible(const AppState& s);
// picColors, txtCount and lblCount show up to GradientColorCount - 1.
bool GradientRowVisible(const Workbench& wb, int Index);

// cmbColors: list index + 2 is the count; the hidden rows keep their colours and thresholds.
void cmbColors_Click(Workbench& wb, int ListIndex);
int cmbColorsIndex(const Workbench& wb);

// picColors click: the colour dialog opens on the present colour; true when a colour was chosen.
bool picColors_Click(Workbench& wb, Host& host, int Index);

// cmdDefault: seven colours, the default colours (those of the last load) and thresholds.
void cmdDefault_Click(AppState& s);

// txtCount keys: digits and backspace only; Return moves to the next box.
bool txtCountKeyAccepted(char key);
int txtCountNextBox(int Index);
void txtCount_Change(Workbench& wb, int Index, const std::string& text);

// The strip at whose top lblCount(k) and the tick line of colour k stand.
int lblCountStrip(const Workbench& wb, int k);

// cmdSave, cmdLoad: the gradient text file; a file that cannot be read whole changes nothing.
bool cmdSaveGradient_Click(const Workbench& wb, Host& host);
bool cmdLoadGradient_Click(AppState& s, Host& host);
FileDialogRequest GradientFileRequest(const char* title);

}  // namespace quillane
