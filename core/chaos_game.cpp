#include "core/chaos_game.h"

#include <cmath>

#include "core/numbers.h"
#include "core/workbench.h"

namespace quillane {

void CGMatrixOf(IFSEntry& ifs, int i) {
    // Working values start as the identity and are read back from the float slots after each
    // step, so every step truncates to 32-bit float as the recipe is applied.
    double A = 1, B = 0, C = 0, D = 1;
    bool unchanged = true;
    for (int k = 1; k <= 4; ++k) {
        const std::string& step = ifs.Step[k][i];
        char L = step.empty() ? ' ' : step[0];
        const double s = ifs.Scale[i];
        switch (L) {
            case 'S':
                ifs.a[i] = static_cast<float>(A * s);
                ifs.b[i] = static_cast<float>(B * s);
                ifs.c[i] = static_cast<float>(C * s);
                ifs.d[i] = static_cast<float>(D * s);
                unchanged = false;
                break;
            case 'R': {
                const double t = ifs.Angle[i] * (Pi / 180.0);
                const double ct = std::cos(t), st = std::sin(t);
                ifs.a[i] = static_cast<float>(ct * A - st * C);
                ifs.b[i] = static_cast<float>(ct * B - st * D);
                ifs.c[i] = static_cast<float>(C * ct + st * A);
                ifs.d[i] = static_cast<float>(D * ct + st * B);
                unchanged = false;
                break;
            }
            case 'V':
                ifs.a[i] = static_cast<float>(A);
                ifs.b[i] = static_cast<float>(B);
                ifs.c[i] = static_cast<float>(-C);
                ifs.d[i] = static_cast<float>(-D);
                unchanged = false;
                break;
            case 'H':
                ifs.a[i] = static_cast<float>(-A);
                ifs.b[i] = static_cast<float>(-B);
                ifs.c[i] = static_cast<float>(C);
                ifs.d[i] = static_cast<float>(D);
                unchanged = false;
                break;
            default:
                break;
        }
        A = ifs.a[i];
        B = ifs.b[i];
        C = ifs.c[i];
        D = ifs.d[i];
    }
    if (unchanged) {
        // No letter at all: the matrix is zero, yet D keeps its 1 in the translation below,
        // so the f coordinate of the fixed point is lost. Kept as the format defines it.
        ifs.a[i] = ifs.b[i] = ifs.c[i] = ifs.d[i] = 0;
        A = B = C = 0;
        D = 1;
    }
    ifs.e[i] = static_cast<float>((1 - A) * ifs.FPx[i] - B * ifs.FPy[i]);
    ifs.f[i] = static_cast<float>((1 - D) * ifs.FPy[i] - C * ifs.FPx[i]);
    ifs.HasChaosGame = True16;
}

void CGMatrix(Workbench& wb, int i) {
    CGMatrixOf(wb.CurrentIFS, i);
    PropProb(wb);
}

double PropProbOf(IFSEntry& ifs) {
    const int n = ifs.nMaps;
    double total = 0;
    for (int i = 0; i < n; ++i)
        total +=
            std::fabs(static_cast<double>(ifs.d[i]) * ifs.a[i] - static_cast<double>(ifs.c[i]) * ifs.b[i]);
    if (total == 0) total = 1;
    double sum = 0;
    for (int i = 0; i < n; ++i) {
        double w =
            std::fabs(static_cast<double>(ifs.d[i]) * ifs.a[i] - static_cast<double>(ifs.c[i]) * ifs.b[i]);
        double q = Round(w / total, 6);
        if (Round(q, 3) == 0) q = 0.01;
        ifs.p[i] = static_cast<float>(q);
        sum += q;
    }
    double psum = 0;
    for (int i = 0; i < n; ++i) {
        ifs.p[i] = static_cast<float>(ifs.p[i] / sum);
        psum += ifs.p[i];
    }
    return psum;
}

void PropProb(Workbench& wb) {
    double psum = PropProbOf(wb.CurrentIFS);
    wb.lblProbSum = Format(psum, "0.000");
}

}  // namespace quillane
