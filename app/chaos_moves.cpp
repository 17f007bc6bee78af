#include "app/chaos_moves.h"

#include <algorithm>
#include <cmath>

#include "core/chaos_game.h"
#include "core/evaluator.h"
#include "core/function_forms.h"
#include "core/function_table.h"
#include "core/numbers.h"
#include "core/table_editing.h"
#include "design/design_drawing.h"
#include "app/fractal_view.h"

namespace quillane {

namespace {

int selected(const Workbench& wb) {
    return wb.SelectedMap;
}

// After any change: the matrix follows, the table shows the letters, the window remembers it.
void changed(Workbench& wb) {
    const int i = selected(wb);
    CGMatrix(wb, i);
    WriteTableRow(wb, i);
    WriteProbabilityTexts(wb);
    wb.ScaleCG.Changed = true;
}

void writeStepTexts(Workbench& wb) {
    const int i = selected(wb);
    for (int k = 1; k <= 4; ++k) wb.ScaleCG.txtStep[k] = wb.CurrentIFS.Step[k][i];
}

int letterIndex(const std::string& s) {
    if (s.empty()) return 0;
    const size_t at = std::string(StepLetters).find(s[0], 1);
    return at == std::string::npos ? 0 : static_cast<int>(at);
}

void setScale(Workbench& wb, int slider) {
    wb.ScaleCG.sliScale = slider;
    const float v = static_cast<float>(slider / 1000.0);
    wb.CurrentIFS.Scale[selected(wb)] = v;
    wb.ScaleCG.txtS = Format(v, "0.000");
    changed(wb);
}

void setAngle(Workbench& wb, int slider) {
    wb.ScaleCG.sliRotate = slider;
    wb.CurrentIFS.Angle[selected(wb)] = static_cast<float>(slider);
    wb.ScaleCG.txtRotate = std::to_string(slider);
    changed(wb);
}

std::optional<double> evaluate(const std::string& text) {
    Evaluator e;
    float v = 0;
    if (!e.Evaluate(text, v)) return std::nullopt;
    return v;
}

}  // namespace

void OpenScaleCG(Workbench& wb) {
    wb.ScaleCG.Loaded = wb.ScaleCG.Showing = true;
    wb.ScaleCG.Changed = false;
    LockFunctions(wb, true);
    if (!wb.CGMapSelected) {
        wb.SelectedMap = static_cast<int16_t>(wb.ScaleCG.cmbFP);
        wb.CGMapSelected = true;
    }
    SetFPSettings(wb, true);
}

void SetFPSettings(Workbench& wb, bool /*RefillList*/) {
    const IFSEntry& ifs = wb.CurrentIFS;
    const int i = selected(wb);
    Workbench::ScaleCGControls& c = wb.ScaleCG;
    c.cmbFP = i;
    c.chkStep.fill(false);
    for (int k = 1; k <= 4; ++k) c.chkStep[static_cast<size_t>(letterIndex(ifs.Step[k][i]))] = true;
    c.chkStep[0] = false;
    writeStepTexts(wb);
    c.BoldStep = 0;
    c.sliScale = static_cast<int>(std::floor(ifs.Scale[i] * 1000));
    c.sliRotate = static_cast<int>(std::floor(ifs.Angle[i]));
    c.txtS = Format(ifs.Scale[i], "0.000");
    c.txtRotate = Format(ifs.Angle[i], "0.00");
    c.ScaleEnabled = c.chkStep[1];
    c.RotateEnabled = c.chkStep[2];
}

void cmbFP_Click(Workbench& wb, int i) {
    if (i < 0 || i >= wb.CurrentIFS.nMaps) return;
    wb.SelectedMap = static_cast<int16_t>(i);
    wb.CGMapSelected = true;
    SetFPSettings(wb, false);
}

void chkStep_Click(Workbench& wb, int k, bool on) {
    if (k < 1 || k > 4) return;
    IFSEntry& ifs = wb.CurrentIFS;
    const int i = selected(wb);
    const std::string letter(1, StepLetters[k]);
    if (on) {
        for (int m = 1; m <= 4; ++m)
            if (ifs.Step[m][i].empty() || ifs.Step[m][i] == " ") {
                ifs.Step[m][i] = letter;
                break;
            }
    } else {
        for (int m = 1; m <= 4; ++m) {
            if (ifs.Step[m][i].substr(0, 1) != letter) continue;
            for (int n = m; n < 4; ++n) ifs.Step[n][i] = ifs.Step[n + 1][i];
            ifs.Step[4][i].clear();
            break;
        }
    }
    wb.ScaleCG.chkStep[static_cast<size_t>(k)] = on;
    if (k == 1) wb.ScaleCG.ScaleEnabled = on;
    if (k == 2) wb.ScaleCG.RotateEnabled = on;
    writeStepTexts(wb);
    changed(wb);
}

void picStep_Click(Workbench& wb, int k) {
    Workbench::ScaleCGControls& c = wb.ScaleCG;
    if (k < 1 || k > 4 || c.txtStep[k].empty()) return;
    if (c.BoldStep == 0) {
        c.BoldStep = k;
        return;
    }
    if (c.BoldStep != k) {
        IFSEntry& ifs = wb.CurrentIFS;
        std::swap(ifs.Step[c.BoldStep][selected(wb)], ifs.Step[k][selected(wb)]);
        writeStepTexts(wb);
        changed(wb);
    }
    c.BoldStep = 0;
}

bool sliScale_KeyDown(Workbench& wb, int KeyCode) {
    const int v = wb.ScaleCG.sliScale;
    int to = v;
    if (KeyCode == 34 && v > 4) to = v - 5;
    if (KeyCode == 33 && v < 996) to = v + 5;
    if (KeyCode == 37 && v > 0) to = v - 1;
    if (KeyCode == 39 && v < 1000) to = v + 1;
    if (to == v) return false;
    setScale(wb, to);
    return true;
}

bool sliRotate_KeyDown(Workbench& wb, int KeyCode) {
    const int v = wb.ScaleCG.sliRotate;
    int to = v;
    if (KeyCode == 34 && v > -356) to = v - 5;
    if (KeyCode == 33 && v < 356) to = v + 5;
    if (KeyCode == 37 && v > -360) to = v - 1;
    if (KeyCode == 39 && v < 360) to = v + 1;
    if (to == v) return false;
    setAngle(wb, to);
    return true;
}

void sliScale_Change(Workbench& wb, int value) {
    setScale(wb, std::clamp(value, 0, 1000));
}

void sliRotate_Change(Workbench& wb, int value) {
    setAngle(wb, std::clamp(value, -360, 360));
}

bool txtS_Commit(Workbench& wb, Host& host, bool Quiet) {
    const int i = selected(wb);
    const std::optional<double> v = evaluate(wb.ScaleCG.txtS);
    const char* problem = !v ? ScaleNotEvaluated : (*v < 0 ? ScaleNegative : nullptr);
    if (problem) {
        if (Quiet)
            txtS_Escape(wb);
        else
            host.warn(ScaleCGErrorTitle, problem);
        return false;
    }
    const float s = static_cast<float>(std::min(*v, 1.0));
    wb.CurrentIFS.Scale[i] = s;
    wb.ScaleCG.txtS = Format(s, "0.000");
    wb.ScaleCG.sliScale = static_cast<int>(std::floor(s * 1000));
    changed(wb);
    return true;
}

bool txtRotate_Commit(Workbench& wb, Host& host, bool Quiet) {
    const std::optional<double> v = evaluate(wb.ScaleCG.txtRotate);
    if (!v) {
        if (Quiet)
            txtRotate_Escape(wb);
        else
            host.warn(ScaleCGErrorTitle, RotateNotEvaluated);
        return false;
    }
    // A typed angle beyond a whole turn is taken modulo 360, keeping its sign.
    const int whole = static_cast<int>(std::trunc(*v)) % 360;
    wb.CurrentIFS.Angle[selected(wb)] = static_cast<float>(whole);
    wb.ScaleCG.sliRotate = whole;
    wb.ScaleCG.txtRotate = Format(whole, "0.00");
    changed(wb);
    return true;
}

void txtS_Escape(Workbench& wb) {
    wb.ScaleCG.txtS = Format(wb.CurrentIFS.Scale[selected(wb)], "0.000");
}

void txtRotate_Escape(Workbench& wb) {
    wb.ScaleCG.txtRotate = Format(wb.CurrentIFS.Angle[selected(wb)], "0.00");
}

void cmdApply_Click(Workbench& wb) {
    wb.SavedIFS = wb.CurrentIFS;
}

void cmdOk_Click(Workbench& wb) {
    if (wb.ScaleCG.Changed) {
        CountEdit(wb);
        ResetUndoMenu(wb);
    }
    LockFunctions(wb, false);
    wb.ScaleCG.Loaded = wb.ScaleCG.Showing = false;
    wb.ScaleCG.Changed = false;
}

void cmdCancel_Click(Workbench& wb, Host&) {
    wb.CurrentIFS = wb.SavedIFS;
    WriteTableRows(wb);
    wb.lblProbSum = ProbSumText(wb);
    ResetUndoMenu(wb);
    LockFunctions(wb, false);
    wb.ScaleCG.Loaded = wb.ScaleCG.Showing = false;
    wb.ScaleCG.Changed = false;
}

}  // namespace quillane
