#pragma once
// Create IFS of the box and triangle fractal windows: the kept cells become the maps of CurrentIFS.
#include "app/app_state.h"
#include "core/host.h"
#include "generators/box_fractal.h"
#include "generators/triangle_fractal.h"

namespace quillane {

inline constexpr const char* NoBoxesMessage = "You cannot remove all the boxes";
inline constexpr const char* NoTrianglesMessage = "You cannot remove all the triangles";

// The steps the generators share once their maps stand in CurrentIFS: the table, the scales, the design
// (with bounding boxes when asked), the menus, a deterministic restart and the run's SetupDone.
void ShowBuiltIFS(AppState& s, Host& host, bool boundingBoxes);
// cmdSetup of the box window; false (after the message) when every box was removed.
bool BoxFractalSetup(AppState& s, Host& host, const BoxFractal& box);
// cmdCreate of the triangle window; false (after the message) when every triangle was removed.
bool TriangleFractalCreate(AppState& s, Host& host, const TriangleFractal& tri);

}  // namespace quillane
