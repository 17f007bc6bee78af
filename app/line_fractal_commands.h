#pragma once
// The commands of the line fractal window over the program's state: Create IFS, the recursion box,
// the closing, the points file, and the recursive drawing a deterministic level asks for.
#include <optional>
#include <string>

#include "app/app_state.h"
#include "core/host.h"
#include "generators/line_fractal_file.h"

namespace quillane {

// cmdSetup ("Create IFS"): the maps of s.Line.Generator into CurrentIFS. False after the message
// when a segment would not contract; the maps before it stay in the arrays, nothing else changes.
bool LineFractalSetup(AppState& s, Host& host, bool chkRecursion);
// chkRecursion ticked or unticked.
void chkRecursion_Click(AppState& s, Host& host, bool ticked);
// The window's part of Close and Cancel: the recursion ends and the colour item comes back.
void LineFractalClosing(AppState& s);

// The recursive drawing of a deterministic level; false when the flags don't ask for it.
bool LineRecursionPass(LineFractalState& line, Workbench& wb, FractalPictures& pics, Host& host);
// DrawLineFractal(depth) on the fractal window: the curve into picfractal and picImage.
void DrawLineFractal(LineFractalState& line, Workbench& wb, FractalPictures& pics, Host& host, int depth);

// The points file dialogs: the text written, or the file read; nothing on a cancelled dialog.
// Save adds ".txt" when the name lacks it. A read file's refusal has been shown already.
bool SaveLinePoints(const LineFractal& g, Host& host);
std::optional<PointsFile> OpenLinePoints(Host& host);
// The name with ".txt" behind it unless it already ends so.
std::string WithTxtExtension(const std::string& name);

}  // namespace quillane
