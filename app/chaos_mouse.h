#pragma once
// The mouse and keys of picCGDesign: picking fixed points, new points, dragging points and the
// reference point, arrows and digits. World coordinates; pixel tolerances go through the area's scale.
#include <array>
#include <utility>

#include "core/host.h"
#include "core/workbench.h"
#include "design/design_pictures.h"

namespace quillane {

// Mouse buttons as the window system numbers them.
enum CGButton : int { CGButtonLeft = 1, CGButtonRight = 2, CGButtonMiddle = 4 };

// The help card of chaos game mode; a blank line follows the fourth pair.
inline constexpr std::array<std::pair<const char*, const char*>, 6> CGHelpCard{{
    {"Left mouse click on FP", "  select that fixed point"},
    {"Ctrl-Left mouse click", "  new fixed point"},
    {"Shift-Left mouse click", "  snap fixed point to grid"},
    {"Ctrl-Right mouse click", "  change reference point"},
    {"1,2,3,...,9", "  select that fixed point"},
    {"shift-10,shift-11,...", "  select that fixed point"},
}};
inline constexpr int CGHelpCardBlankAfter = 4;

void picCGDesign_MouseDown(Workbench& wb, Host& host, DesignPictures& d, int Button, int Shift, float x,
                           float y);
void picCGDesign_MouseMove(Workbench& wb, DesignPictures& d, int Button, int Shift, float x, float y);
// True when the design popup menu is due (right button alone).
bool picCGDesign_MouseUp(Workbench& wb, DesignPictures& d, int Button, int Shift, float x, float y);
// True when the key was one of these.
bool picCGDesign_KeyDown(Workbench& wb, DesignPictures& d, int KeyCode, int Shift);
void picCGDesign_KeyUp(Workbench& wb, DesignPictures& d, int KeyCode, int Shift);

}  // namespace quillane
