#pragma once
// frmPalette, "Edit IFS Palette": a source palette loaded from a file on the left, the IFS palette of
// 100 colours on the right; Accept gives the right one to the functions.
#include <optional>
#include <string>

#include "app/app_state.h"
#include "core/colors.h"
#include "core/host.h"

namespace quillane {

inline constexpr const char* PaletteFormCaption = "Edit IFS Palette";
inline constexpr int PaletteIndexLimit = 100;
inline constexpr const char* PaletteHelpLeft1 = "Click on color in left palette";
inline constexpr const char* PaletteHelpLeft2 = "to copy to index in right palette.";
inline constexpr const char* PaletteHelpRight1 = "Click in right palette to set index.";
inline constexpr const char* PaletteHelpRight2 = "Double Click to remove color.";
inline constexpr const char* PaletteIndexMessage = "Index must be between 1 and ";
inline constexpr const char* AllPalettesFilterText = "All Palettes (*.map; *.ifp)";
inline constexpr const char* NotAPaletteMessage = "Not a valid IFS palette file.";
inline constexpr const char* PaletteExtensionMessage = "Extension must end in .map or .ifp";
inline constexpr const char* SaveMapTitle = "Save Map file";
// A removed colour shows as the empty white of the panel.
inline constexpr Color RemovedPaletteColor = 0xFFFFFF;

struct PaletteForm {
    FunctionColors Source{};  // left: the loaded palette
    bool SourceLoaded = false;
    FunctionColors Target{};  // right: the IFS palette being edited
    int Index = 1;            // where a left click copies to, 1..100
};

// mnuCodeEditPalette: the right palette starts as the functions' colours, the left one empty.
PaletteForm mnuCodeEditPalette_Click(const Workbench& wb);
// A left click copies that colour to the index; nothing before a palette is loaded.
bool picSource_Click(PaletteForm& f, int i);
// A right click makes that entry the index; a double click removes its colour.
void picTarget_Click(PaletteForm& f, int i);
void picTarget_DblClick(PaletteForm& f, int i);
// The index box: a whole number from 1 to the limit, else the message and the index stays.
bool txtIndex_Change(PaletteForm& f, Host& host, const std::string& text);
// The load button: a .map or .ifp file into the left palette.
bool cmdLoadPalette_Click(PaletteForm& f, Host& host);
// The save button: the right palette as .map or .ifp by the name's extension.
bool cmdSavePalette_Click(const PaletteForm& f, Host& host);
// Accept copies the right palette to FunctionColor; Reject leaves everything as it was.
void cmdAccept_Click(AppState& s, const PaletteForm& f);

}  // namespace quillane
