#include "core/function_forms.h"

#include <algorithm>
#include <cmath>
#include <vector>

#include "core/chaos_game.h"
#include "core/function_table.h"
#include "core/menu_tree.h"
#include "core/numbers.h"
#include "core/table_editing.h"

namespace quillane {

namespace {

// a, b, c, d from r, s, theta and phi in degrees.
void rebuildMatrix(IFSEntry& ifs, int i, const RotationForm& f) {
    const double theta = f.theta * DegToRad;
    const double phi = f.phi * DegToRad;
    ifs.a[i] = static_cast<float>(f.r * std::cos(theta));
    ifs.c[i] = static_cast<float>(f.r * std::sin(theta));
    ifs.b[i] = static_cast<float>(-f.s * std::sin(phi));
    ifs.d[i] = static_cast<float>(f.s * std::cos(phi));
}

// a, b, c, d of the row as they stood when its box was entered; the present ones if it was not.
RotationForm enteredRotation(const Workbench& wb, int row) {
    const IFSEntry& ifs = wb.CurrentIFS;
    if (wb.EnteredRow != row) return PrintRotation(ifs.a[row], ifs.b[row], ifs.c[row], ifs.d[row]);
    const auto& m = wb.EnteredCoefficients;
    return PrintRotation(m[0], m[1], m[2], m[3]);
}

void convertMatrix(IFSEntry& ifs, int column, int row, float v) {
    MapArray* const columns[] = {&ifs.a, &ifs.b, &ifs.c, &ifs.d, &ifs.e, &ifs.f};
    if (column >= 1 && column <= 6) (*columns[column - 1])[row] = v;
}

void convertRotation(Workbench& wb, int column, int row, double v) {
    IFSEntry& ifs = wb.CurrentIFS;
    if (column == 5) ifs.e[row] = static_cast<float>(v);
    if (column == 6) ifs.f[row] = static_cast<float>(v);
    if (column > 4) return;
    RotationForm f = enteredRotation(wb, row);
    double* const parts[] = {&f.r, &f.s, &f.theta, &f.phi};
    *parts[column - 1] = v;
    rebuildMatrix(ifs, row, f);
}

void convertRecipe(IFSEntry& ifs, int column, int row, const std::string& text) {
    const auto v = static_cast<float>(Val(text));
    if (column <= 4) ifs.Step[column][row] = ToUpper(Trim(text));
    if (column == 5) ifs.Scale[row] = v;
    if (column == 6) ifs.Angle[row] = v;
    if (column == 8) ifs.FPx[row] = v;
    if (column == 9) ifs.FPy[row] = v;
}

float boxValue(const Workbench& wb, int column, int row) {
    return static_cast<float>(Val(wb.Table.text(column, row)));
}

void readRow(const Workbench& wb, IFSEntry& target, int i) {
    if (wb.CodeForm == 2) {
        for (int k = 1; k <= 4; ++k) target.Step[k][i] = ToUpper(Trim(wb.Table.text(k, i)));
        target.Scale[i] = boxValue(wb, 5, i);
        target.Angle[i] = boxValue(wb, 6, i);
        target.FPx[i] = boxValue(wb, 8, i);
        target.FPy[i] = boxValue(wb, 9, i);
        CGMatrixOf(target, i);
    } else if (wb.CodeForm == 1) {
        const RotationForm f{boxValue(wb, 1, i), boxValue(wb, 2, i), boxValue(wb, 3, i), boxValue(wb, 4, i)};
        rebuildMatrix(target, i, f);
        target.e[i] = boxValue(wb, 5, i);
        target.f[i] = boxValue(wb, 6, i);
    } else {
        for (int k = 1; k <= 6; ++k) convertMatrix(target, k, i, boxValue(wb, k, i));
    }
    target.p[i] = boxValue(wb, 7, i);
}

std::vector<float> probabilities(const IFSEntry& ifs) {
    return {ifs.p.begin(), ifs.p.begin() + ifs.nMaps};
}

}  // namespace

void ShowFunctionForm(Workbench& wb, const char* item, int16_t codeForm) {
    for (const std::string& key : RadioGroupKeys(MatrixItem)) wb.Menu.setChecked(key, key == item);
    wb.CodeForm = codeForm;
    WriteTableRows(wb);
    if (codeForm == 2) {
        wb.DesignMode = 1;
        wb.DesignCaption = DesignChaosGameCaption;
        wb.ScaleCGCaption = ScaleCGWindowCaption;
        LockFunctions(wb, false);
    } else {
        wb.DesignMode = 0;
        wb.DesignCaption = DesignIFSCaption;
    }
}

void UseMatrixForm(Workbench& wb) {
    wb.MatrixFunctionForm = 0;
    ShowFunctionForm(wb, MatrixItem, 0);
}

void EnterBox(Workbench& wb, int /*Column*/, int Row) {
    const IFSEntry& ifs = wb.CurrentIFS;
    wb.EnteredRow = static_cast<int16_t>(Row);
    wb.EnteredCoefficients = {ifs.a[Row], ifs.b[Row], ifs.c[Row], ifs.d[Row]};
}

void convert(Workbench& wb, int Column, int Row) {
    const std::string& text = wb.Table.text(Column, Row);
    IFSEntry& ifs = wb.CurrentIFS;
    if (Column == 7) {
        ifs.p[Row] = static_cast<float>(Val(text));
        return;
    }
    switch (wb.CodeForm) {
        case 0:
            convertMatrix(ifs, Column, Row, static_cast<float>(Val(text)));
            break;
        case 1:
            convertRotation(wb, Column, Row, Val(text));
            break;
        default:
            convertRecipe(ifs, Column, Row, text);
            break;
    }
}

void TextToCode(const Workbench& wb, IFSEntry& Target) {
    const int n = wb.mapsFromText();
    Target.nMaps = static_cast<int16_t>(n);
    for (int i = 0; i < n; ++i) readRow(wb, Target, i);
}

void SetUpFunctions(Workbench& wb, Host& host, int n) {
    n = std::clamp(n, 1, MaxMaps);
    // Only the compact layout has room for more rows; the flag alone, in another form, is left be.
    if (n > MaxMatrixFunctionForm && wb.CodeForm == 0 && wb.MatrixFunctionForm == 1) {
        host.warn(MatrixFunctionFormTitle, MatrixFunctionFormReset);
        UseMatrixForm(wb);
    }
    LockFunctions(wb, false);
    wb.txtMaps = std::to_string(n);
    wb.Table.LastMaps = n;
    for (int k = 1; k <= TableColumnCount; ++k) {
        for (int i = n; i < MaxMaps; ++i) {
            wb.Table.text(k, i).clear();
            wb.Table.old(k, i).clear();
        }
    }
}

bool SetProb(Workbench& wb) {
    IFSEntry& ifs = wb.CurrentIFS;
    const int n = ifs.nMaps;
    if (n < 1) return false;
    const std::vector<float> before = probabilities(ifs);
    const double q = Round(1.0 / n, 6);
    for (int i = 0; i < n - 1; ++i) ifs.p[i] = static_cast<float>(q);
    ifs.p[n - 1] = static_cast<float>(Round(1 - (n - 1) * q, 6));
    WriteProbabilityTexts(wb);
    return probabilities(ifs) != before;
}

std::optional<bool> ProbCalc(Workbench& wb) {
    IFSEntry& ifs = wb.CurrentIFS;
    double total = 0;
    for (int i = 0; i < ifs.nMaps; ++i)
        total +=
            std::fabs(static_cast<double>(ifs.d[i]) * ifs.a[i] - static_cast<double>(ifs.c[i]) * ifs.b[i]);
    if (total == 0) return std::nullopt;
    const std::vector<float> before = probabilities(ifs);
    // With a non-zero total the guarded PropProb computes exactly what the command does.
    PropProb(wb);
    WriteProbabilityTexts(wb);
    return probabilities(ifs) != before;
}

std::string ProbSumText(const Workbench& wb) {
    float sum = 0;
    for (int i = 0; i < wb.CurrentIFS.nMaps; ++i) sum += wb.CurrentIFS.p[i];
    return Format(sum, "0.000");
}

}  // namespace quillane
