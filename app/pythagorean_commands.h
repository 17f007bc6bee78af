#pragma once
// Pythagorean Tree: the angle of the slider and the box, its limits, and Create IFS.
#include <optional>
#include <string>

#include "app/app_state.h"
#include "core/host.h"
#include "generators/pythagorean.h"

namespace quillane {

inline constexpr const char* PythagoreanCaption = "Pythagorean Tree";
inline constexpr const char* PythAngleError = "Must have 0 < angle < 90 degrees";
// The design view of the tree: x from -0.71 to 1.71, y from -0.21 to 2.21.
inline constexpr WorldWindow PythDesignWindow{-0.71f, 1.71f, -0.21f, 2.21f};

// txtTheta's Enter and leave checks and those of Create IFS: the angle read by Val, or the message.
std::optional<float> PythCheckTheta(const std::string& txtTheta, Host& host);
// sliTheta's value for an angle: whole degrees, rounded.
int PythSliderValue(float angle);
// sliTheta moved: the box shows its whole degrees.
std::string PythThetaText(int slider);

// SetUpDesign: the design view that holds the tree, drawn, with its bounds in txtDesign.
void SetUpDesign(Workbench& wb, DesignPictures& design);

// cmdSetup ("Create IFS"): the tree of the angle in txtTheta into CurrentIFS; false after a message.
bool PythagoreanSetup(AppState& s, Host& host, const std::string& txtTheta);

// The picture the first square and its two children make at this angle: the square black, the first
// child red, the second blue, on a white picture `side` pixels square.
RasterSurface PythagoreanImage(float angle, int side);

}  // namespace quillane
