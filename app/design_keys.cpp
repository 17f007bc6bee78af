#include "app/design_keys.h"

#include <algorithm>
#include <optional>

#include "app/chaos_mouse.h"
#include "app/design_picture_commands.h"
#include "app/design_selection.h"
#include "app/design_view.h"
#include "app/fractal_view.h"
#include "app/polygon_commands.h"
#include "design/design_drawing.h"

namespace quillane {

namespace {

constexpr std::array<float, 4> GridRing{0.05f, 0.1f, 0.125f, 0.25f};

bool isArrow(int KeyCode) {
    return KeyCode >= KeyLeft && KeyCode <= KeyDown;
}

// Zoom and shift work in polygon mode only before its first point.
bool viewKeysFree(const DesignPictures& d) {
    return !d.Poly.PolygonMode || d.Poly.PolygonPointCount == 0;
}

bool gridKey(Workbench& wb, DesignPictures& d, int KeyCode) {
    const bool up = KeyCode == KeyPadAdd || KeyCode == KeyPlusMain;
    const bool down = KeyCode == KeyPadSubtract || KeyCode == KeyMinusMain;
    if ((!up && !down) || !wb.menu("mnuDesignGrid").checked) return false;
    StepDesignGrid(wb, up);
    RedrawDesignView(wb, d);
    return true;
}

bool toggleKey(Workbench& wb, DesignPictures& d, int KeyCode) {
    switch (KeyCode) {
        case KeyA:
            wb.Menu.setChecked("mnuDesignAxes", !wb.menu("mnuDesignAxes").checked);
            DesignAxes(wb, d);
            return true;
        case KeyG:
            DesignGrid(wb, d);
            return true;
        case KeyF:
            if (wb.menu("mnuCodeFP").checked) return false;
            DesignFixedPoints(wb, d);
            return true;
        default:
            return false;
    }
}

bool viewKey(Workbench& wb, DesignPictures& d, int KeyCode, int Shift) {
    if ((KeyCode == KeyPageDown || KeyCode == KeyPageUp) && viewKeysFree(d)) {
        DesignWinZoom(wb, d, KeyCode == KeyPageDown ? 1 : -1);
        return true;
    }
    if (KeyCode == KeyHome && !d.Poly.PolygonMode) {
        DesignScale(wb, d);
        return true;
    }
    if (isArrow(KeyCode) && Shift == 0 && viewKeysFree(d)) {
        ShiftDesignWin(wb, d, KeyCode);
        return true;
    }
    return false;
}

}  // namespace

void StepDesignGrid(Workbench& wb, bool Up) {
    if (wb.GridX == wb.GridY) {
        int at = -1;
        for (int k = 0; k < static_cast<int>(GridRing.size()); ++k)
            if (GridRing[static_cast<size_t>(k)] == wb.GridX) at = k;
        const int n = static_cast<int>(GridRing.size());
        wb.GridX = at < 0 ? 0.1f : GridRing[static_cast<size_t>((at + (Up ? 1 : n - 1)) % n)];
    } else {
        wb.GridX = Up ? std::max(wb.GridX, wb.GridY) : std::min(wb.GridX, wb.GridY);
    }
    wb.GridY = wb.GridX;
}

void DeselectDesign(Workbench& wb, DesignPictures& d) {
    wb.MapSelected = false;
    DrawDesign(wb, d, false);
    d.picCoord.clear();
    AdjustDesignMenu(wb, false);
}

std::optional<int> DigitSelection(int nMaps, DesignPictures& d, int KeyCode, int Shift) {
    const bool digit = KeyCode >= '0' && KeyCode <= '9';
    if (Shift == ShiftMaskShift && KeyCode != KeyShift16 && !digit) {
        d.StoredTensSet = false;
        return std::nullopt;
    }
    if (!digit) return std::nullopt;
    const int n = KeyCode - '0';
    if (Shift == 0) return n >= 1 && n <= std::min(nMaps, 9) ? n : 0;
    if (Shift != ShiftMaskShift) return std::nullopt;
    if (!d.StoredTensSet) {
        d.StoredTens = n;
        d.StoredTensSet = true;
        return 0;
    }
    d.StoredTensSet = false;
    const int two = d.StoredTens * 10 + n;
    return two >= 1 && two <= nMaps ? two : 0;
}

bool DesignDigitKey(Workbench& wb, DesignPictures& d, int KeyCode, int Shift) {
    const std::optional<int> chosen = DigitSelection(wb.CurrentIFS.nMaps, d, KeyCode, Shift);
    if (!chosen) return false;
    if (*chosen > 0) DrawSelectedIFS(wb, d, *chosen - 1, false);
    return true;
}

bool DesignKeyDown(Workbench& wb, DesignPictures& d, int KeyCode, int Shift, bool Repeat) {
    if (DesignPictureKeyDown(wb, d, KeyCode, Shift)) return true;
    if (KeyCode == KeyEscape27 && wb.MapSelected && !d.Poly.PolygonMode) {
        DeselectDesign(wb, d);
        return true;
    }
    if (KeyCode == KeyEscape27 && LiftDesignPicture(wb, d)) return true;
    if (viewKey(wb, d, KeyCode, Shift)) return true;
    if (Shift == ShiftMaskCtrl && toggleKey(wb, d, KeyCode)) return true;
    if (gridKey(wb, d, KeyCode)) return true;
    if (d.Poly.PolygonMode)
        return (Shift & ~ShiftMaskShift) == 0 && PolygonModeKey(wb, d, static_cast<char>(KeyCode), Repeat);
    if (wb.DesignMode == 0) return DesignDigitKey(wb, d, KeyCode, Shift);
    return false;
}

HelpCardLines PicTransHelpCard(const Workbench& wb) {
    if (wb.DesignMode == 1) return {{CGHelpCard.begin(), CGHelpCard.end()}, CGHelpCardBlankAfter};
    return {{DesignHelpCard.begin(), DesignHelpCard.end()}, HelpCardBlankAfter};
}

}  // namespace quillane
