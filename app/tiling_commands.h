#pragma once
// "Tiling with Integer Matrices": the lattice of M's columns, the residues picked on it and Create IFS.
// The window keeps its boxes and lattice in a TilingForm; the commands here are its buttons and mouse.
#include <array>
#include <string>

#include "app/app_state.h"
#include "core/host.h"
#include "generators/tiling.h"

namespace quillane {

inline constexpr const char* TilingCaption = "Tiling with Integer Matrices";
inline constexpr const char* TilingDetRangeMessage = "Must have |Det(M)| between 1 and 20";
inline constexpr const char* TilingSingularBMessage =
    "B is too close to a singular matrix to be\nan appropriate change of basis matrix.";
inline constexpr const char* TilingTwoResiduesMessage = "Must select at least two residue vectors";
inline constexpr const char* TilingDetMFailed = "Creating IFS failed: Det(M) = 0";
inline constexpr const char* TilingDetBFailed = "Creating IFS failed: Det(B) = 0";
inline constexpr std::array<const char*, 4> TilingBasisMessages{
    "Cannot evaluate expression for B(1,1).  ", "Cannot evaluate expression for B(1,2).  ",
    "Cannot evaluate expression for B(2,1).  ", "Cannot evaluate expression for B(2,2).  "};

struct TilingForm {
    std::array<std::string, 4> txtM{"1", "-1", "1", "1"};  // m11, m12, m21, m22
    std::array<std::string, 4> txtb{"1", "0", "0", "1"};   // b11, b12, b21, b22
    bool chkbasis = false;
    TilingBasis B;  // the last B that evaluated
    TilingLattice lattice;
    RasterSurface picDraw{400, 400};
    std::string lblRV = "0";
};

// The change of basis from txtb through the Evaluator; on a failure its message, the old B stays and
// the result is false. The tile settings hear the new B.
bool EvaluateTilingBasis(TilingState& tiles, Host& host, TilingForm& form);
// B when chkbasis is on, else the identity.
TilingBasis TilingBasisInForce(const TilingForm& form);
// chkbasis changed: the tile settings hear it.
void SetTilingBasisCheck(TilingState& tiles, TilingForm& form, bool on);

// cmdDraw, "Draw Lattice": false (after any message) when refused.
bool TilingDrawLattice(TilingState& tiles, Host& host, TilingForm& form);
// A release of a button other than the right one at world point (x, y) of picDraw: true when a mark toggled.
bool TilingLatticeClick(TilingState& tiles, Host& host, TilingForm& form, double x, double y);
// cmdClear, "Clear Lattice".
void TilingClearLattice(TilingForm& form);
// Key down and key up on picDraw; true when the lattice was repainted.
bool TilingLatticeKeyDown(TilingForm& form, int KeyCode, bool ctrl);
void TilingLatticeKeyUp(TilingForm& form);

// cmdApply, "Create IFS": the maps of the tile into CurrentIFS, txtT of the tile settings from txtM.
// False (after the message) when refused; the IFS is then unchanged.
bool TilingCreate(AppState& s, Host& host, TilingForm& form);

}  // namespace quillane
