#pragma once
// The settings file: colours, window places, the recent files and the tool-tip switch, one
// strictly sequential record of fifteen sections.
#include <array>
#include <istream>
#include <string>

#include "core/window_positions.h"

namespace quillane {

class Workbench;

inline constexpr const char* SettingsFileName = "Quillane.ini";

struct SettingsReadResult {
    bool SettingsRead = false;     // the file was there
    bool SettingsInvalid = false;  // reading stopped early, or there was no file
};

// Reads the record into wb; the tool-tip switch is the check of mnuEditToolTips. `frame` is the box the windows must stand in (twips); a window whose
// left or top lies beyond it is brought back and SettingsChanged set. A stop in the first eight
// sections gives every default; a stop later keeps what was read and defaults the rest.
SettingsReadResult ReadSettingsText(std::istream& in, Workbench& wb, const WindowPlace& frame);
// The same from a file; a file that cannot be opened reads as none (defaults, invalid, not read).
SettingsReadResult ReadSettingsFile(const std::string& path, Workbench& wb, const WindowPlace& frame);

// Every setting's first-start value; the preview window stands at the frame's right edge.
void DefaultSettings(Workbench& wb, int frameWidth);

// The record as the writer puts it: a heading per line, an item per line, strings quoted,
// booleans 0 and -1.
std::string SettingsText(const Workbench& wb);
// Writes through a file beside the target renamed over it, so a failed write leaves the old file.
// A failure is swallowed (the settings are lost for this run): returns whether it was written.
bool WriteSettingsFile(const std::string& path, const Workbench& wb);

// Keeps the live places of the three main windows and their hidden flags; any difference from
// what is kept sets SettingsChanged, so a moved window is saved without any command.
void TakeLiveWindows(Workbench& wb, const WindowPlace& functions, const WindowPlace& fractal,
                     const WindowPlace& design, const std::array<bool, 3>& hidden);

}  // namespace quillane
