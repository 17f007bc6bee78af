#include "core/function_table.h"

#include <cmath>

#include "core/numbers.h"

namespace quillane {

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

RotationForm PrintRotation(float a, float b, float c, float d) {
    RotationForm f;
    f.r = std::sqrt(static_cast<double>(a) * a + static_cast<double>(c) * c);
    f.s = std::sqrt(static_cast<double>(b) * b + static_cast<double>(d) * d);
    f.theta = AngleOf(a, c);
    f.phi = AngleOf(d, -static_cast<double>(b));
    return f;
}

std::array<std::string, TableColumns> RowTexts(const Workbench& wb, int i) {
    const IFSEntry& ifs = wb.CurrentIFS;
    auto num = [](double v) { return Format(v, "0.000"); };
    std::array<std::string, TableColumns> t;
    if (wb.CodeForm == 2) {
        for (int k = 1; k <= 4; ++k) t[k - 1] = ifs.Step[k][i];
        t[4] = num(ifs.Scale[i]);
        t[5] = Format(ifs.Angle[i], "0.00");
        t[7] = num(ifs.FPx[i]);
        t[8] = num(ifs.FPy[i]);
    } else if (wb.CodeForm == 1) {
        const RotationForm f = PrintRotation(ifs.a[i], ifs.b[i], ifs.c[i], ifs.d[i]);
        t[0] = num(f.r);
        t[1] = num(f.s);
        t[2] = Format(f.theta, "0.00");
        t[3] = Format(f.phi, "0.00");
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

void WriteTableRows(Workbench& wb) {
    const int n = wb.mapsFromText();
    for (int i = 0; i < n; ++i) {
        const auto texts = RowTexts(wb, i);
        for (int k = 1; k <= TableColumnCount; ++k) {
            wb.Table.text(k, i) = texts[static_cast<size_t>(k - 1)];
            wb.Table.old(k, i) = texts[static_cast<size_t>(k - 1)];
        }
    }
    wb.Table.LastMaps = n;
}

std::string FunctionsCaptionFor(const std::string& name) {
    return "IFS [" + Trim(name) + "]";
}

}  // namespace quillane
