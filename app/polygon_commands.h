#pragma once
// Choosing, loading, saving and drawing the initial polygon.
#include <string>

#include "core/host.h"
#include "core/workbench.h"
#include "design/design_pictures.h"
#include "render/fractal_pictures.h"

namespace quillane {

inline constexpr const char* PolygonSaveFilter = "IFS Polygon files (*.gon)";
inline constexpr const char* PolygonLoadFilter = "Polygon Files (*.gon)";
inline constexpr const char* PolygonFolderKey = "polygon";

// mnupoly(Index): use that polygon (13 the user's).
void mnupoly_Click(Workbench& wb, DesignPictures& d, FractalPictures& pics, Host& host, int Index);
// "&Load Initial Polygon...": a .gon file becomes the user's polygon and the one in use.
void mnuDesignLoadPoly_Click(Workbench& wb, DesignPictures& d, FractalPictures& pics, Host& host);
// "Save &Initial Polygon": the polygon in use, written as .gon text.
void mnuFileSavePolygon_Click(Workbench& wb, Host& host);
// "&Show Initial Polygon".
void mnuDesignPoly_Click(Workbench& wb, DesignPictures& d);

// The hint appended to the coordinates in polygon mode, by the width of picCoord in letters "w".
std::string PolygonHintText(int coordWidth, int letterWidth);
// "&Design Initial Polygon": enters PolygonMode with the given hint.
void mnuDrawPoly_Click(Workbench& wb, DesignPictures& d, const std::string& hint);
// A left click at release in PolygonMode. Snap is Shift held alone.
void PolygonModeClick(Workbench& wb, DesignPictures& d, float x, float y, bool Snap);
// The rubber band follows the mouse. True when a click here would close the path (cross cursor).
bool PolygonModeMove(Workbench& wb, DesignPictures& d, float x, float y);
// Q, D, L in either case. True when the key acted.
bool PolygonModeKey(Workbench& wb, DesignPictures& d, char key, bool repeat);
// Q, a double click, or the picture losing the focus.
void PolygonModeFinish(Workbench& wb, DesignPictures& d);
// Clears both areas and draws grid, axes, fixed points and the path so far with its rubber band.
void RedrawPolygonMode(Workbench& wb, DesignPictures& d);

// The 15 buttons of Toolbar1 around polygon mode.
void SaveToolbarStatus(Workbench& wb, DesignPictures& d);
void RestoreToolbarStatus(Workbench& wb, const DesignPictures& d);
// The design menus that make no sense while a polygon is drawn.
void ToggleDesignMenus(Workbench& wb, bool Enabled);

}  // namespace quillane
