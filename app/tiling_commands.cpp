#include "app/tiling_commands.h"

#include <cmath>

#include "app/grid_generator_commands.h"
#include "core/evaluator.h"

namespace quillane {
namespace {

void critical(Host& host, const char* text) {
    host.message(MessageIcon::Critical, "Error", text, MessageButtons::OK);
}

void publishBasis(TilingState& tiles, const TilingForm& form) {
    tiles.chkbasis = form.chkbasis;
    tiles.A = form.B.b11;
    tiles.B = form.B.b12;
    tiles.C = form.B.b21;
    tiles.D = form.B.b22;
}

void repaint(TilingForm& form) {
    const TilingMatrix M = ReadTilingMatrix(form.txtM);
    PaintLattice(form.picDraw, form.lattice, M, TilingBasisInForce(form));
    form.lblRV = std::to_string(form.lattice.nResidues());
}

}  // namespace

bool EvaluateTilingBasis(TilingState& tiles, Host& host, TilingForm& form) {
    std::array<float, 4> v{};
    for (size_t k = 0; k < 4; ++k) {
        const auto value = EvaluateText(form.txtb[k]);
        if (!value) {
            critical(host, TilingBasisMessages[k]);
            return false;
        }
        v[k] = *value;
    }
    form.B = {v[0], v[1], v[2], v[3]};
    publishBasis(tiles, form);
    return true;
}

TilingBasis TilingBasisInForce(const TilingForm& form) {
    return form.chkbasis ? form.B : TilingBasis{};
}

void SetTilingBasisCheck(TilingState& tiles, TilingForm& form, bool on) {
    form.chkbasis = on;
    publishBasis(tiles, form);
}

bool TilingDrawLattice(TilingState& tiles, Host& host, TilingForm& form) {
    const TilingMatrix M = ReadTilingMatrix(form.txtM);
    const int64_t det = M.det();
    if (det == 0 || det > MaxTilingDet || det < -MaxTilingDet) {
        host.warn("Warning", TilingDetRangeMessage);
        return false;
    }
    if (form.chkbasis) {
        if (!EvaluateTilingBasis(tiles, host, form)) return false;
        if (std::fabs(form.B.det()) < 0.0001f) {
            critical(host, TilingSingularBMessage);
            return false;
        }
    }
    TilingLattice& lat = form.lattice;
    if (!lat.LatticeDrawn) {
        lat.BaseRadius = LatticeBaseRadius(M);
        RestoreLatticeView(lat);
    }
    repaint(form);
    lat.LatticeDrawn = true;
    return true;
}

bool TilingLatticeClick(TilingState& tiles, Host& host, TilingForm& form, double x, double y) {
    if (!form.lattice.LatticeDrawn) return false;
    if (form.chkbasis && !EvaluateTilingBasis(tiles, host, form)) return false;
    const TilingMatrix M = ReadTilingMatrix(form.txtM);
    const double r = std::fabs(form.picDraw.pixelsToWorldX(3));
    if (!PickResidue(form.lattice, M, TilingBasisInForce(form), x, y, r)) return false;
    repaint(form);
    return true;
}

void TilingClearLattice(TilingForm& form) {
    ClearLattice(form.lattice);
    if (form.lattice.LatticeDrawn) repaint(form);
    form.lblRV = "0";
}

bool TilingLatticeKeyDown(TilingForm& form, int KeyCode, bool ctrl) {
    if (!form.lattice.LatticeDrawn) return false;
    if (!LatticeViewKey(form.lattice, KeyCode, ctrl)) return false;
    repaint(form);
    return true;
}

void TilingLatticeKeyUp(TilingForm& form) {
    form.lattice.KeyLatch = false;
}

bool TilingCreate(AppState& s, Host& host, TilingForm& form) {
    const TilingLattice& lat = form.lattice;
    if (lat.nResidues() < 2) {
        host.warn("Warning", TilingTwoResiduesMessage);
        return false;
    }
    const TilingMatrix M = ReadTilingMatrix(form.txtM);
    if (M.det() == 0) {
        critical(host, TilingDetMFailed);
        return false;
    }
    TilingBasis B;
    if (form.chkbasis) {
        if (!EvaluateTilingBasis(s.pics.Tiling, host, form)) return false;
        B = form.B;
    }
    if (B.det() == 0) {
        critical(host, TilingDetBFailed);
        return false;
    }
    s.wb.CurrentIFS = TilingMaps(M, B, lat.ResidueVectors);
    ShowBuiltIFS(s, host, true);
    // The tile vectors begin as the columns of M.
    s.pics.Tiling.txtT = form.txtM;
    return true;
}

}  // namespace quillane
