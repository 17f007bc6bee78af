#pragma once
// The tile mode of both drawings: every point is plotted with its copies at i u + j v for i and j
// from -R to R, where u and v are the tile vectors under the basis of the tiling window.
#include <array>
#include <cstdint>

#include "core/workbench.h"
#include "render/color_modes.h"
#include "render/fractal_pictures.h"
#include "render/map_choice.h"
#include "render/run_maps.h"

namespace quillane {

inline constexpr int MaxTileSide = 2 * MaxTileRadius + 1;

// The copies of one point: x of copy (i, j) is (x + ix[i]) + jx[j], and the same for y.
struct TileCopies {
    int radius = 0;
    int side = 1;  // 2 R + 1
    std::array<float, MaxTileSide> ix{}, iy{}, jx{}, jy{};
    // With separate tile colours, copy (i, j) at [(i + R) side + (j + R)] takes its tile colour; else
    // NoColor.
    std::array<Color, MaxTileSide * MaxTileSide> color{};
    bool separateColors = false;
};

// The copies from txtT (evaluated), the basis when chkbasis is on, cmbRadius and the colour option.
TileCopies PrepareTileCopies(const TilingState& t, const TilingColors& colors);

// The tile colour of copy (i, j): ((i + 7) mod 3) 3 + ((j + 7) mod 3).
int TileColorIndex(int i, int j);

// Iterations of the tile loop from PointCount to `stop`; the caller yields. The colour step runs at every
// iteration, warm-up included; plotted iterations set every copy in picfractal and picImage2. Throws
// SurfaceOverflow for a copy whose pixel position does not fit an integer; that point is not kept.
void TileLoop(Workbench& wb, FractalPictures& pics, const RunMaps& m, const MapChoice& choice,
              RunColoring& rc, const TileCopies& copies, int32_t stop);

}  // namespace quillane
