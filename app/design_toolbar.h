#pragma once
// The drop-down items of the design window's Toolbar1 and what they do: line styles on "lines",
// fixed angles and "Other" on "rotate left" and "rotate right". Plain C++, the window builds its
// menus from these.
#include <functional>
#include <string>
#include <vector>

#include "core/host.h"
#include "core/workbench.h"

namespace quillane {

// A drop-down item: its key, and the caption the person sees.
struct ToolbarDropItem {
    std::string key;
    std::string caption;
};

inline constexpr const char* RotateOtherKey = "Other";
inline constexpr int RotateItemAngles[] = {30, 45, 60, 90, 120, 180};
inline constexpr int RotateItemCount = 6;  // fixed angles; "Other" follows as item 6

// "thin", "medium", "thick": index i chooses mnuDesignLine(i).
std::vector<ToolbarDropItem> LineDropItems();
// The fixed angles of one side ("30 left" -> "30° ccw", "30 right" -> "30° cw"), then "Other".
std::vector<ToolbarDropItem> RotateDropItems(bool left);
// The signed angle of fixed item `item` of a side: left turns counterclockwise (+), right clockwise (-).
double RotateItemAngle(int item, bool left);

// Whether a function is selected in the current design mode and no drawing runs, so that a
// rotation or its dialog applies.
bool ToolbarCanRotate(const Workbench& wb);
// Rotates the selected function by `angle` degrees: RotateIFSDesign, or RotateCGDesign in chaos
// game mode; nothing without a selection or while drawing.
void ToolbarRotate(Workbench& wb, double angle);

// The "help" button: the design window's help page through GetHelpFile, which reports a missing
// folder or page, or a failed showing, in the "Help Error" box. True when the page is shown.
bool DesignHelp(Host& host, const std::string& programDir, const std::function<bool(const std::string&)>& show);

}  // namespace quillane
