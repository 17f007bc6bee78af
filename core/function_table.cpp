#include "core/function_table.h"

#include <cmath>

#include "core/numbers.h"

namespace quillane {

namespace {
std::string num(double v) {
    return Format(v, "0.000");
}
std::string angle(double v) {
    return Format(v, "0.00");
}

void setRow(Workbench& wb, int i, const std::array<std::string, TableColumns>& texts) {
    for (int k = 1; k <= TableColumnCount; ++k) {
        wb.Table.text(k, i) = texts[static_cast<size_t>(k - 1)];
        wb.Table.old(k, i) = texts[static_cast<size_t>(k - 1)];
    }
}
}  // namespace

std::array<std::string, TableColumns> ColumnHeadings(const Workbench& wb) {
    switch (wb.CodeForm) {
        case 1:
            return {"r", "s", "theta", "phi", "e", "f", "p", "", ""};
        case 2:
            return {"Step 1", "Step 2", "Step 3", "Step 4", "Scale", "Angle", "p", "x", "y"};
        default:
            return {"a", "b", "c", "d", "e", "f", "p", "", ""};
    }
}

std::vector<HeadingGroup> HeadingGroups(const Workbench& wb) {
    if (wb.CodeForm != 2) return {};
    return {{"Moves", 1, 4}, {"Parameters", 5, 6}};
}

RotationForm PrintRotation(float a, float b, float c, float d) {
    RotationForm f;
    f.r = std::sqrt(static_cast<double>(a) * a + static_cast<double>(c) * c);
    f.s = std::sqrt(static_cast<double>(b) * b + static_cast<double>(d) * d);
    f.theta = AngleOf(a, c);
    f.phi = AngleOf(d, -static_cast<double>(b));
    return f;
}

RotationForm ListEntryRotation(float a, float b, float c, float d) {
    RotationForm f = PrintRotation(a, b, c, d);
    f.r = Round(f.r, 4);
    f.s = Round(f.s, 4);
    if (d == 0) f.phi = Sgn(b) * 90.0;
    return f;
}

std::array<std::string, TableColumns> RowTexts(const Workbench& wb, int i, RowTextSource source) {
    const IFSEntry& ifs = wb.CurrentIFS;
    std::array<std::string, TableColumns> t;
    if (wb.CodeForm == 2) {
        for (int k = 1; k <= 4; ++k) t[k - 1] = ifs.Step[k][i];
        t[4] = num(ifs.Scale[i]);
        t[5] = angle(ifs.Angle[i]);
        t[7] = num(ifs.FPx[i]);
        t[8] = num(ifs.FPy[i]);
    } else if (wb.CodeForm == 1) {
        const RotationForm f = source == RowTextSource::ListEntry
                                   ? ListEntryRotation(ifs.a[i], ifs.b[i], ifs.c[i], ifs.d[i])
                                   : PrintRotation(ifs.a[i], ifs.b[i], ifs.c[i], ifs.d[i]);
        t[0] = num(f.r);
        t[1] = num(f.s);
        t[2] = angle(f.theta);
        t[3] = angle(f.phi);
        t[4] = num(ifs.e[i]);
        t[5] = num(ifs.f[i]);
    } else {
        t[0] = num(ifs.a[i]);
        t[1] = num(ifs.b[i]);
        t[2] = num(ifs.c[i]);
        t[3] = num(ifs.d[i]);
        t[4] = num(ifs.e[i]);
        t[5] = num(ifs.f[i]);
    }
    t[6] = num(ifs.p[i]);
    return t;
}

void WriteTableRows(Workbench& wb, RowTextSource source) {
    const int n = wb.mapsFromText();
    for (int i = 0; i < n; ++i) setRow(wb, i, RowTexts(wb, i, source));
    wb.Table.LastMaps = n;
}

void WriteTableRow(Workbench& wb, int i) {
    setRow(wb, i, RowTexts(wb, i));
}

void WriteProbabilityTexts(Workbench& wb) {
    for (int i = 0; i < wb.CurrentIFS.nMaps; ++i) {
        wb.Table.text(7, i) = num(wb.CurrentIFS.p[i]);
        wb.Table.old(7, i) = wb.Table.text(7, i);
    }
}

std::string FunctionsCaptionFor(const std::string& name) {
    return "IFS [" + Trim(name) + "]";
}

}  // namespace quillane
