#pragma once
// The gradient of the gradient colour modes: up to seven colours with a visit-count threshold each,
// the 181 strips that show it (and that one mode picks from), and its eight-line text file.
#include <array>
#include <optional>
#include <string>

#include "core/colors.h"

namespace quillane {

inline constexpr int GradientColorSlots = 7;
inline constexpr int GradientStripCount = 181;
inline constexpr const char* SaveGradientTitle = "Save Gradient Colors";
inline constexpr const char* LoadGradientTitle = "Load Gradient Colors";
inline constexpr const char* GradientFilterText = "Gradient Text File (*.txt)";

struct GradientColors {
    int GradientColorCount = 7;  // 2 to 7 in use
    std::array<Color, GradientColorSlots> picColors{};
    // The visit-count thresholds, as their boxes hold them; hidden rows keep theirs.
    std::array<std::string, GradientColorSlots> txtCount{};
    bool operator==(const GradientColors&) const = default;
};

// Seven colours from red through yellow, green and blue to violet, thresholds 0, 5, ..., 30.
GradientColors DefaultGradient();

// The three channels of a colour: red is the low byte.
void GetRGBColors(Color c, int& Red, int& Green, int& Blue);

// The whole number of strips per band: 180 / (count - 1), rounded.
int GradientBandWidth(int count);
// The strips: band k runs from colour k - 1 to colour k, channel = Int(first + (second - first) * t).
std::array<Color, GradientStripCount> GradientStrips(const GradientColors& g);

// Line 1 the count, then all seven colours as "red,green,blue,threshold", CR LF.
std::string GradientFileText(const GradientColors& g);
// Reads all seven colour lines whatever the count; nothing when the text falls short, so the caller
// keeps what it had.
std::optional<GradientColors> ReadGradientFile(const std::string& text);

}  // namespace quillane
