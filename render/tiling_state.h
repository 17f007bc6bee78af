#pragma once
// What the tiling windows publish to the drawing engines: the tile settings window's boxes, the
// tiling window's change of basis, and whether the settings window is open, which switches the tile mode.
#include <array>
#include <string>

namespace quillane {

inline constexpr int MaxTileRadius = 7;

struct TilingState {
    bool SettingsVisible = false;  // frmTilingSettings is shown: both drawings paint the tile's copies
    // txtT(0..3): the tile vectors (t0, t2) and (t1, t3); Create IFS writes M's columns here.
    std::array<std::string, 4> txtT{"1", "0", "0", "1"};
    int cmbRadius = 0;       // 0 to 7
    bool optColor2 = false;  // "Color each tile separately"; off is optColor1, the fractal's colours
    // frmTiling's chkbasis and the basis (A, B; C, D) it last evaluated.
    bool chkbasis = false;
    float A = 1, B = 0, C = 0, D = 1;
};

}  // namespace quillane
