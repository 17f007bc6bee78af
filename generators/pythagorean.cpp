#include "generators/pythagorean.h"

#include <cmath>
#include <vector>

#include "core/numbers.h"

namespace quillane {
namespace {

constexpr double Tolerance = 0.0005;

void setMap(IFSEntry& ifs, int i, float a, float b, float c, float d, float e, float f, float p) {
    ifs.a[i] = a;
    ifs.b[i] = b;
    ifs.c[i] = c;
    ifs.d[i] = d;
    ifs.e[i] = e;
    ifs.f[i] = f;
    ifs.p[i] = p;
}

}  // namespace

bool PythAngleAccepted(float angle) {
    return angle >= PythMinAngle && angle <= PythMaxAngle;
}

IFSEntry PythagoreanIFS(float angle, const std::string& thetaText) {
    const double t = angle * DegToRad;
    const float u = static_cast<float>(std::cos(t) * std::cos(t));
    const float v = static_cast<float>(1 - std::cos(t) * std::cos(t));
    const float s = static_cast<float>(std::sin(t) * std::cos(t));
    IFSEntry ifs;
    ifs.nMaps = 3;
    setMap(ifs, 0, u, -s, s, u, 0, 1, u / 2);
    setMap(ifs, 1, v, s, -s, v, u, s + 1, v / 2);
    setMap(ifs, 2, 1, 0, 0, 1, 0, 0, 0.5f);
    ifs.nComments = 2;
    ifs.Comment[1] = "; Pythagorean Tree";
    ifs.Comment[2] = "; Angle: " + thetaText + " degrees";
    ifs.Name = "Pythagorean Tree (" + LTrim(Str(angle)) + ")";
    return ifs;
}

bool CheckPythTree(const IFSEntry& ifs) {
    if (ifs.nMaps != 3) return false;
    const auto& a = ifs.a;
    const auto& b = ifs.b;
    const auto& c = ifs.c;
    const auto& d = ifs.d;
    if (!(a[0] > 0 && a[1] > 0)) return false;
    if (a[0] != d[0] || a[1] != d[1]) return false;
    if (std::fabs(static_cast<double>(a[0]) + a[1] - 1) > Tolerance) return false;
    if (b[0] != -c[0] || b[1] != -c[1] || b[0] != c[1] || c[0] != b[1]) return false;
    if (std::fabs(std::sqrt(static_cast<double>(a[0]) * a[1]) - c[0]) > Tolerance) return false;
    if (ifs.e[0] != 0 || ifs.f[0] != 1 || ifs.e[1] != a[0]) return false;
    if (std::fabs(static_cast<double>(ifs.f[1]) - (static_cast<double>(b[1]) + 1)) > Tolerance) return false;
    return a[2] == 1 && b[2] == 0 && c[2] == 0 && d[2] == 1 && ifs.e[2] == 0 && ifs.f[2] == 0;
}

PythBox PythBoxCorners(double x, double y, double side, double angle) {
    const double cs = std::cos(angle), sn = std::sin(angle);
    PythBox box{};
    box.x[0] = x;
    box.y[0] = y;
    box.x[1] = x - side * sn;
    box.y[1] = y + side * cs;
    box.x[2] = box.x[1] + side * cs;
    box.y[2] = box.y[1] + side * sn;
    box.x[3] = x + side * cs;
    box.y[3] = y + side * sn;
    return box;
}

double PythPhi(const IFSEntry& ifs) {
    if (ifs.a[0] == 0) return Pi / 4;
    return std::atan(static_cast<double>(ifs.c[0]) / ifs.a[0]);
}

int PythTreeDepthLimit(double phi, double pixel) {
    const double lc = std::log(std::cos(phi)), ls = std::log(std::sin(phi));
    if (!(pixel > 0) || !(lc < 0) || !(ls < 0)) return 0;
    const double lw = std::log(pixel);
    const double limit = std::max(std::floor(lw / lc), std::floor(lw / ls));
    if (!(limit > 0)) return 0;
    return limit > 1000 ? 1000 : static_cast<int>(limit);
}

bool PythTreeBoxFilled(double phi, BoxPainter& paint, int depth, double x, double y, double side,
                       double angle, int colour) {
    const PythBox box = PythBoxCorners(x, y, side, angle);
    const std::vector<WorldPoint> corners{
        {box.x[0], box.y[0]}, {box.x[1], box.y[1]}, {box.x[2], box.y[2]}, {box.x[3], box.y[3]}};
    const Color c = paint.colourOf ? paint.colourOf(depth, colour) : Black;
    for (RasterSurface* s : {paint.picfractal, paint.picImage}) {
        if (!s) continue;
        if (paint.filled) {
            const int width = s->drawWidth();
            s->setDrawWidth(1);
            s->polygon(corners, c, true);
            s->setDrawWidth(width);
        }
        if (!paint.filled || paint.border) s->polygon(corners, c, false);
    }
    if (paint.step && !paint.step()) return false;
    if (depth <= 0) return true;
    const double cs = std::cos(phi), sn = std::sin(phi);
    // The tip of the triangle on the box's top side.
    const double tipX = box.x[1] + side * cs * std::cos(angle + phi);
    const double tipY = box.y[1] + side * cs * std::sin(angle + phi);
    if (!PythTreeBoxFilled(phi, paint, depth - 1, box.x[1], box.y[1], side * cs, angle + phi, 0))
        return false;
    return PythTreeBoxFilled(phi, paint, depth - 1, tipX, tipY, side * sn, angle + phi - Pi / 2, 1);
}

}  // namespace quillane
