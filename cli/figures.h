#pragma once
// The command line's initial sets of a deterministic drawing: polygon, line, triangle, square, circle.
#include <string>

#include "render/deterministic_state.h"

namespace quillane::cli {

// Draws the named figure in DetSingleColor into picfractal and picImage3, growing the window to hold it.
DetFigureDrawer FigureDrawerFor(const std::string& figure);

}  // namespace quillane::cli
