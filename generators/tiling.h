#pragma once
// Self-affine tiles of an integer matrix M: the residues picked on the lattice of M's columns become
// the translations of the maps B M^-1 B^-1 (x) + B (u, v).
#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "core/ifs_entry.h"
#include "render/raster_surface.h"

namespace quillane {

inline constexpr int LatticeReach = 20;  // lattice points and the view stay within -20 .. 20
inline constexpr int LatticeSide = 2 * LatticeReach + 1;
inline constexpr int MaxResidues = 20;
inline constexpr int MaxTilingDet = 20;

struct TilingMatrix {
    int32_t m11 = 0, m12 = 0, m21 = 0, m22 = 0;
    int64_t det() const { return static_cast<int64_t>(m22) * m11 - static_cast<int64_t>(m21) * m12; }
    int64_t trace() const { return static_cast<int64_t>(m11) + m22; }
};

struct TilingBasis {
    float b11 = 1, b12 = 0, b21 = 0, b22 = 1;
    float det() const { return b22 * b11 - b21 * b12; }
};

// txtM(0..3) in the order m11, m12, m21, m22: Val of each text rounded half to even to an Integer.
TilingMatrix ReadTilingMatrix(const std::array<std::string, 4>& txtM);

// The captions of lblDet, lblTrace, lblEigType, lbleig1 and lbleig2 for M.
struct TilingEigenLabels {
    std::string lblDet, lblTrace, lblEigType, lbleig1, lbleig2;
};
TilingEigenLabels EigenLabels(const TilingMatrix& M);

// The picked residues and the view of the lattice.
struct TilingLattice {
    // ResidueMarks[u + 20][v + 20]: 1 for a chosen lattice point.
    std::array<std::array<int16_t, LatticeSide>, LatticeSide> ResidueMarks{};
    // The zero vector, once chosen, stands first.
    std::vector<std::pair<int, int>> ResidueVectors;
    int nResidues() const { return static_cast<int>(ResidueVectors.size()); }
    float BaseRadius = 0;
    float vxmin = 0, vxmax = 0, vymin = 0, vymax = 0;
    bool LatticeDrawn = false;  // the view is fitted once per window lifetime
    bool KeyLatch = false;      // a view key was handled and not yet released
    bool marked(int u, int v) const;
};

// The first fit of the view to M's cell: the largest of S(m11 + m12, m21 + m22), S(m11, m21),
// S(m12, m22), at most 10, S(x, y) = Round(sqrt(x^2 + y^2) + 0.45) * 1.2.
float LatticeBaseRadius(const TilingMatrix& M);
// The view from BaseRadius.
void RestoreLatticeView(TilingLattice& lat);

// Clears picDraw and paints the cells of the lattice of M under B, the axes and the base cell.
void DrawParallelograms(RasterSurface& picDraw, const TilingMatrix& M, const TilingBasis& B, double xmin,
                        double xmax, double ymin, double ymax);
// Every lattice point, red when marked; circles of a radius of 3 pixels.
void DrawLatticePoints(RasterSurface& picDraw, const TilingLattice& lat, const TilingBasis& B);
// Scales picDraw to the view (y upwards) and paints cells and points.
void PaintLattice(RasterSurface& picDraw, const TilingLattice& lat, const TilingMatrix& M,
                  const TilingBasis& B);

// Whether (u, v) lies in the class of an already chosen residue modulo M.
bool CongruentToChosen(const TilingLattice& lat, const TilingMatrix& M, int u, int v);

// A left release at the world point (x, y) of picDraw, with r the 3-pixel radius in world units: adds or
// removes the lattice point under it. Returns the point when its mark toggled.
std::optional<std::pair<int, int>> PickResidue(TilingLattice& lat, const TilingMatrix& M,
                                               const TilingBasis& B, double x, double y, double r);
// cmdClear: no marks, no residues.
void ClearLattice(TilingLattice& lat);

// The keys of the lattice view.
enum TilingViewKeyCode : int {
    TilingKeyPageUp = 33,
    TilingKeyPageDown = 34,
    TilingKeyHome = 36,
    TilingKeyLeft = 37,
    TilingKeyUp = 38,
    TilingKeyRight = 39,
    TilingKeyDown = 40,
};
// Key down on picDraw: true when the view changed and the lattice wants repainting.
bool LatticeViewKey(TilingLattice& lat, int KeyCode, bool ctrl);

// The maps of the tile: for each residue (u, v), T = B M^-1 B^-1 and the translation B (u, v), each with
// probability 1 / count. Needs det M and det B not 0.
IFSEntry TilingMaps(const TilingMatrix& M, const TilingBasis& B,
                    const std::vector<std::pair<int, int>>& residues);

}  // namespace quillane
