#pragma once
// The design window's own keys: view, grid, toggles, selection by number, polygon mode letters,
// and the help card of picTrans.
#include <array>
#include <optional>
#include <utility>
#include <vector>

#include "core/workbench.h"
#include "design/design_pictures.h"

namespace quillane {

// Key codes of the window system beyond those of the fractal window.
enum DesignKeyCode : int {
    KeyEscape27 = 27,
    KeyShift16 = 16,
    KeyA = 65,
    KeyF = 70,
    KeyG = 71,
    KeyPadAdd = 107,
    KeyPadSubtract = 109,
    KeyPlusMain = 187,
    KeyMinusMain = 189,
};

// The help card of IFS mode: bold key, plain meaning; a blank line follows the seventh pair.
inline constexpr std::array<std::pair<const char*, const char*>, 12> DesignHelpCard{{
    {"Left click Boundary", "  select polygon"},
    {"Hold button and move", "  move polygon"},
    {"Click corner square", "  resize polygon"},
    {"Shift-Click corner square", "  resize x,y equally"},
    {"Click middle square", "  stretch/shrink polygon"},
    {"Ctrl-Click corner square", "  rotate polygon"},
    {"Ctrl-Click middle square", "  skew polygon"},
    {"Shift-arrow key", "  move polygon"},
    {"Ctrl-arrow key (up/down)", "  rotate polygon"},
    {"Alt-arrow key", "  skew polygon"},
    {"1,2,3,...,9", "  select that polygon"},
    {"shift-10,shift-11,...", "  select that polygon"},
}};
inline constexpr int HelpCardBlankAfter = 7;

// Key down on the design window: KeyCode as the window system numbers it, Shift the mask
// (1 Shift, 2 Ctrl, 4 Alt). True when the key was one of these.
bool DesignKeyDown(Workbench& wb, DesignPictures& d, int KeyCode, int Shift, bool Repeat);

// "+" (Up true) and "-": the grid ring 0.05, 0.1, 0.125, 0.25, or the larger / smaller of two sizes.
void StepDesignGrid(Workbench& wb, bool Up);
// The map a digit key selects, counted from 1: 1..9 alone, or two digits each with Shift (the first
// only stores the tens). 0 when the key was a digit that selects nothing yet; nothing when it is no
// selection key.
std::optional<int> DigitSelection(int nMaps, DesignPictures& d, int KeyCode, int Shift);
// A digit key: 1..9 alone, or two digits each with Shift.
bool DesignDigitKey(Workbench& wb, DesignPictures& d, int KeyCode, int Shift);
// Esc with a function selected: nothing selected any more.
void DeselectDesign(Workbench& wb, DesignPictures& d);

// The help card picTrans shows while pressed: bold key, plain meaning, and the pair after which a
// blank line stands. Chaos game mode has its own.
struct HelpCardLines {
    std::vector<std::pair<const char*, const char*>> lines;
    int blankAfter = 0;
};
HelpCardLines PicTransHelpCard(const Workbench& wb);

}  // namespace quillane
