#pragma once
// The IFS palettes: the colours of the 100 function indexes in "IFS RGB Palette" (.map) files of
// one "R,G,B" line each, or "IFS Classic Palette" (.ifp) files of one colour value per line; and
// the commands that set the colours from a file, from function 1 or from the settings.
#include <optional>
#include <string>

#include "core/colors.h"
#include "core/host.h"
#include "core/workbench.h"

namespace quillane {

inline constexpr const char* OpenPaletteTitle = "Open Color Palette file";
inline constexpr const char* SavePaletteTitle = "Save Color Palette file";
inline constexpr const char* MapPaletteFilterText = "IFS RGB Palette (*.map)";
inline constexpr const char* IfpPaletteFilterText = "IFS Classic Palette (*.ifp)";

// One line of a .map file: commas and tabs count as blanks; the first two numbers end at the first
// blank each, the rest is the third. Channels beyond 0..255 are held to that range.
Color MapPaletteLine(const std::string& line);
// The 100 colours of a .map text, or nothing when it has fewer than 100 lines.
std::optional<FunctionColors> ReadMapPalette(const std::string& text);
// 100 lines "R,G,B", CR LF.
std::string MapPaletteText(const FunctionColors& colors);

// The colours of an .ifp text, one decimal colour value per line; nothing when a line is missing.
std::optional<FunctionColors> ReadIfpPalette(const std::string& text);
std::string IfpPaletteText(const FunctionColors& colors);

// SameColor(i): functions i to the last one of CurrentIFS take the colour of function i.
void SameColor(Workbench& wb, int i);
// mnuDefaultColors: the colours of the settings file (FileColors), not the built-in table.
void DefaultColors(Workbench& wb);

// The whole text of a palette file, or nothing when it cannot be opened.
std::optional<std::string> ReadPaletteText(const std::string& path);
// Both palette dialogs offer .map files and share their folder.
FileDialogRequest PaletteFileRequest(const char* title);

}  // namespace quillane
