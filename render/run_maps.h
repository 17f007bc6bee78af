#pragma once
// A drawing's private copy of the maps of CurrentIFS, so its loops touch no shared state.
#include <array>

#include "core/colors.h"
#include "core/workbench.h"

namespace quillane {

struct RunMaps {
    int n = 0;  // the count from txtMaps
    std::array<float, MaxMaps> a{}, b{}, c{}, d{}, e{}, f{}, p{};
    std::array<Color, MaxMaps> color{};  // FunctionColor of each map
};

RunMaps CopyRunMaps(const Workbench& wb);

}  // namespace quillane
