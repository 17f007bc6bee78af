#pragma once
// Built-in colour tables. A colour value is R + 256 * G + 65536 * B.
#include <array>
#include <cstdint>

namespace quillane {

using Color = uint32_t;

inline constexpr Color RGB(int r, int g, int b) {
    return static_cast<Color>(r) + 256u * static_cast<Color>(g) + 65536u * static_cast<Color>(b);
}
inline constexpr int RedOf(Color c) {
    return static_cast<int>(c & 255u);
}
inline constexpr int GreenOf(Color c) {
    return static_cast<int>((c >> 8) & 255u);
}
inline constexpr int BlueOf(Color c) {
    return static_cast<int>((c >> 16) & 255u);
}

inline constexpr Color White = RGB(255, 255, 255);
inline constexpr Color Black = RGB(0, 0, 0);

inline constexpr int FunctionColorCount = 100;
inline constexpr int TilingColorCount = 9;

using FunctionColors = std::array<Color, FunctionColorCount>;
using TilingColors = std::array<Color, TilingColorCount>;

// 20 colours repeated: entry i is entry i mod 20.
FunctionColors FunctionColorDefaults();
TilingColors TilingColorDefaults();

}  // namespace quillane
