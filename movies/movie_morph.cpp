#include "movies/movie_morph.h"

#include <algorithm>
#include <cmath>

#include "core/numbers.h"

namespace quillane {
namespace {

// Every entry of a map beyond the IFS's own count is zero, so the extra maps grow out of a point.
void padTo(IFSEntry& ifs, int maps) {
    for (int i = ifs.nMaps; i < maps && i < MaxMaps; ++i) {
        ifs.a[i] = ifs.b[i] = ifs.c[i] = ifs.d[i] = ifs.e[i] = ifs.f[i] = 0;
        ifs.p[i] = 0;
    }
    ifs.nMaps = static_cast<int16_t>(std::max<int>(ifs.nMaps, maps));
}

double degrees(double radians) {
    return radians * RadToDeg;
}

double thetaOf(double a, double c) {
    if (a == 0) return 90.0 * Sgn(c);
    if (a > 0) return degrees(std::atan(c / a));
    if (c != 0) return degrees(std::atan(c / a)) + 180.0 * Sgn(c);
    return 180.0;
}

// As written: with d = 0 the sign is that of b, not of -b.
double phiOf(double b, double d) {
    if (d == 0) return 90.0 * Sgn(b);
    if (d > 0) return degrees(std::atan(-b / d));
    if (b != 0) return degrees(std::atan(-b / d)) + 180.0 * Sgn(-b);
    return 180.0;
}

float lerp(float from, float to, float t) {
    return (1 - t) * from + t * to;
}

// Back from the forms to the matrix, each value rounded to 6 places.
void matrixFromForms(IFSEntry& out, int i, float r, float s, float theta, float phi, float e, float f) {
    const double th = theta * DegToRad, ph = phi * DegToRad;
    out.a[i] = static_cast<float>(Round(r * std::cos(th), 6));
    out.b[i] = static_cast<float>(Round(-s * std::sin(ph), 6));
    out.c[i] = static_cast<float>(Round(r * std::sin(th), 6));
    out.d[i] = static_cast<float>(Round(s * std::cos(ph), 6));
    out.e[i] = e;
    out.f[i] = f;
}

void startFrameIFS(MovieMorph& m) {
    m.FrameIFS = m.InitialIFS;
    m.FrameIFS.nMaps = static_cast<int16_t>(m.MovieMaps);
}

void rotationFrame(MovieMorph& m, float t) {
    const int k = std::clamp(m.RotateMap, 0, std::max(m.MovieMaps - 1, 0));
    const FormsTable& F = m.InitialForms;
    for (int i = 0; i < m.MovieMaps; ++i) {
        float theta = F[3][i], phi = F[4][i], e = F[5][i], f = F[6][i];
        if (i == k) {
            const float w = t * 360.0f * static_cast<float>(m.RotDir);
            theta += w;
            phi += w;
            const WorldPoint c = RotationCentre(m, k);
            const double rad = w * DegToRad;
            const double ex = e - c.x, fy = f - c.y;
            e = static_cast<float>(ex * std::cos(rad) - fy * std::sin(rad) + c.x);
            f = static_cast<float>(ex * std::sin(rad) + fy * std::cos(rad) + c.y);
        }
        matrixFromForms(m.FrameIFS, i, F[1][i], F[2][i], theta, phi, e, f);
    }
}

}  // namespace

void FillForms(FormsTable& forms, const IFSEntry& ifs, int maps, bool anglesPositive) {
    for (int i = 0; i < maps && i < MaxMaps; ++i) {
        const double a = ifs.a[i], b = ifs.b[i], c = ifs.c[i], d = ifs.d[i];
        double theta = thetaOf(a, c), phi = phiOf(b, d);
        if (anglesPositive) {
            if (theta < 0) theta += 360;
            if (phi < 0) phi += 360;
        }
        forms[1][i] = static_cast<float>(std::sqrt(a * a + c * c));
        forms[2][i] = static_cast<float>(std::sqrt(b * b + d * d));
        forms[3][i] = static_cast<float>(theta);
        forms[4][i] = static_cast<float>(phi);
        forms[5][i] = ifs.e[i];
        forms[6][i] = ifs.f[i];
    }
}

void RebuildForms(MovieMorph& m) {
    FillForms(m.InitialForms, m.InitialIFS, m.MovieMaps, m.AnglesPositive);
    FillForms(m.FinalForms, m.FinalIFS, m.MovieMaps, m.AnglesPositive);
}

void InitialSetup(MovieMorph& m, const IFSEntry& initial, const IFSEntry& final, bool sameIFS) {
    m.InitialIFS = initial;
    m.FinalIFS = final;
    m.SameIFS = sameIFS;
    m.MovieMaps = std::clamp<int>(std::max(initial.nMaps, final.nMaps), 0, MaxMaps);
    padTo(m.InitialIFS, m.MovieMaps);
    padTo(m.FinalIFS, m.MovieMaps);
    RebuildForms(m);
    startFrameIFS(m);
}

float FrameParameter(int frame, int nTransitions) {
    if (nTransitions <= 0) return 0;
    return static_cast<float>(frame - 1) / static_cast<float>(nTransitions);
}

void ComputeFrameIFS(MovieMorph& m, float t) {
    startFrameIFS(m);
    if (m.SameIFS) {
        rotationFrame(m, t);
        return;
    }
    if (m.Method == MorphMethod::AverageScalings) {
        const FormsTable &I = m.InitialForms, &F = m.FinalForms;
        for (int i = 0; i < m.MovieMaps; ++i) {
            float v[7];
            for (int row = 1; row <= 6; ++row) v[row] = lerp(I[row][i], F[row][i], t);
            matrixFromForms(m.FrameIFS, i, v[1], v[2], v[3], v[4], v[5], v[6]);
        }
        return;
    }
    const IFSEntry &I = m.InitialIFS, &F = m.FinalIFS;
    IFSEntry& out = m.FrameIFS;
    for (int i = 0; i < m.MovieMaps; ++i) {
        out.a[i] = lerp(I.a[i], F.a[i], t);
        out.b[i] = lerp(I.b[i], F.b[i], t);
        out.c[i] = lerp(I.c[i], F.c[i], t);
        out.d[i] = lerp(I.d[i], F.d[i], t);
        out.e[i] = lerp(I.e[i], F.e[i], t);
        out.f[i] = lerp(I.f[i], F.f[i], t);
    }
}

void ComputeFrame(MovieMorph& m, int frame) {
    ComputeFrameIFS(m, FrameParameter(frame, m.nTransitions));
}

WorldPoint RotationCentre(const MovieMorph& m, int k) {
    const IFSEntry& s = m.InitialIFS;
    auto image = [&](double x, double y) {
        return WorldPoint{s.a[k] * x + s.b[k] * y + s.e[k], s.c[k] * x + s.d[k] * y + s.f[k]};
    };
    if (m.TriangleFigure) {
        double cx = 0, cy = 0;
        for (const WorldPoint& v : m.Triangle) {
            const WorldPoint p = image(v.x, v.y);
            cx += p.x;
            cy += p.y;
        }
        return {cx / 3, cy / 3};
    }
    double xmin = 1e300, xmax = -1e300, ymin = 1e300, ymax = -1e300;
    for (const WorldPoint& v : {WorldPoint{0, 0}, WorldPoint{1, 0}, WorldPoint{1, 1}, WorldPoint{0, 1}}) {
        const WorldPoint p = image(v.x, v.y);
        xmin = std::min(xmin, p.x);
        xmax = std::max(xmax, p.x);
        ymin = std::min(ymin, p.y);
        ymax = std::max(ymax, p.y);
    }
    return {(xmin + xmax) / 2, (ymin + ymax) / 2};
}

}  // namespace quillane
