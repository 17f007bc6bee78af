#include "core/gradient_colors.h"

#include <algorithm>
#include <cmath>
#include <sstream>
#include <vector>

#include "core/numbers.h"

namespace quillane {

GradientColors DefaultGradient() {
    GradientColors g;
    g.picColors = {RGB(255, 0, 0),   RGB(255, 128, 0), RGB(255, 255, 0), RGB(0, 192, 0),
                   RGB(0, 192, 255), RGB(0, 0, 255),   RGB(160, 0, 192)};
    for (int k = 0; k < GradientColorSlots; ++k) g.txtCount[static_cast<size_t>(k)] = std::to_string(k * 5);
    return g;
}

void GetRGBColors(Color c, int& Red, int& Green, int& Blue) {
    Red = RedOf(c);
    Green = GreenOf(c);
    Blue = BlueOf(c);
}

int GradientBandWidth(int count) {
    return CInt(180.0 / (std::clamp(count, 2, GradientColorSlots) - 1));
}

std::array<Color, GradientStripCount> GradientStrips(const GradientColors& g) {
    std::array<Color, GradientStripCount> strips{};
    const int c = std::clamp(g.GradientColorCount, 2, GradientColorSlots);
    const int s = GradientBandWidth(c);
    for (int k = 1; k <= c - 1; ++k) {
        int r1, g1, b1, r2, g2, b2;
        GetRGBColors(g.picColors[static_cast<size_t>(k - 1)], r1, g1, b1);
        GetRGBColors(g.picColors[static_cast<size_t>(k)], r2, g2, b2);
        for (int j = 0; j <= s; ++j) {
            const int at = (k - 1) * s + j;
            if (at >= GradientStripCount) break;
            const double t = static_cast<double>(j) / s;
            auto mix = [t](int a, int b) { return static_cast<int>(std::floor(a + (b - a) * t)); };
            strips[static_cast<size_t>(at)] = RGB(mix(r1, r2), mix(g1, g2), mix(b1, b2));
        }
    }
    return strips;
}

std::string GradientFileText(const GradientColors& g) {
    std::string text = std::to_string(g.GradientColorCount) + "\r\n";
    for (int k = 0; k < GradientColorSlots; ++k) {
        int r, gr, b;
        GetRGBColors(g.picColors[static_cast<size_t>(k)], r, gr, b);
        text += std::to_string(r) + "," + std::to_string(gr) + "," + std::to_string(b) + "," +
                std::to_string(CLng(Val(g.txtCount[static_cast<size_t>(k)]))) + "\r\n";
    }
    return text;
}

std::optional<GradientColors> ReadGradientFile(const std::string& text) {
    const std::vector<std::string> lines = TextLines(text);
    if (lines.size() < 1 + GradientColorSlots) return std::nullopt;
    GradientColors g;
    g.GradientColorCount = CInt(Val(lines[0]));
    if (g.GradientColorCount < 2 || g.GradientColorCount > GradientColorSlots) return std::nullopt;
    for (int k = 0; k < GradientColorSlots; ++k) {
        std::array<std::string, 4> fields;
        std::istringstream row(lines[static_cast<size_t>(k + 1)]);
        for (std::string& f : fields)
            if (!std::getline(row, f, ',')) return std::nullopt;
        auto channel = [](const std::string& f) { return std::clamp(CInt(Val(f)), 0, 255); };
        g.picColors[static_cast<size_t>(k)] = RGB(channel(fields[0]), channel(fields[1]), channel(fields[2]));
        g.txtCount[static_cast<size_t>(k)] = std::to_string(CLng(Val(fields[3])));
    }
    return g;
}

}  // namespace quillane
