#include "core/colors.h"

namespace quillane {

FunctionColors FunctionColorDefaults() {
    static constexpr Color first20[20] = {
        RGB(255, 0, 0),    RGB(0, 0, 255),    RGB(0, 128, 0),     RGB(123, 4, 112),   RGB(255, 128, 0),
        RGB(0, 215, 107),  RGB(72, 206, 189), RGB(128, 128, 0),   RGB(255, 128, 128), RGB(120, 126, 158),
        RGB(255, 153, 51), RGB(153, 153, 51), RGB(102, 102, 102), RGB(204, 51, 204),  RGB(153, 51, 0),
        RGB(51, 204, 0),   RGB(197, 85, 82),  RGB(255, 0, 255),   RGB(102, 0, 204),   RGB(100, 100, 100)};
    FunctionColors table{};
    for (int i = 0; i < FunctionColorCount; ++i) table[i] = first20[i % 20];
    return table;
}

TilingColors TilingColorDefaults() {
    return {RGB(128, 128, 0), RGB(255, 255, 0),   RGB(255, 0, 255), RGB(0, 0, 255),    RGB(255, 0, 0),
            RGB(0, 128, 0),   RGB(128, 255, 255), RGB(128, 0, 128), RGB(255, 192, 128)};
}

}  // namespace quillane
