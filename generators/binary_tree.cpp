#include "generators/binary_tree.h"

#include <cmath>

#include "core/numbers.h"

namespace quillane {
namespace {

constexpr double Tolerance = 0.0005;

// The map that turns by t and shrinks by r, or its mirror turn for the right branch.
void setBranch(IFSEntry& ifs, int i, double r, double t, bool right) {
    const double cs = r * std::cos(t), sn = r * std::sin(t);
    ifs.a[i] = static_cast<float>(cs);
    ifs.b[i] = static_cast<float>(right ? sn : -sn);
    ifs.c[i] = static_cast<float>(right ? -sn : sn);
    ifs.d[i] = static_cast<float>(cs);
    ifs.e[i] = 0;
    ifs.f[i] = 1;
}

void setMap(IFSEntry& ifs, int i, float a, float d, float f, double p) {
    ifs.a[i] = a;
    ifs.b[i] = 0;
    ifs.c[i] = 0;
    ifs.d[i] = d;
    ifs.e[i] = 0;
    ifs.f[i] = f;
    ifs.p[i] = static_cast<float>(p);
}

std::string number(float x) {
    return LTrim(Str(x));
}

void comments(IFSEntry& ifs, std::initializer_list<std::string> lines) {
    ifs.nComments = 0;
    for (const std::string& line : lines) ifs.Comment[static_cast<size_t>(++ifs.nComments)] = line;
}

bool isIdentity(const IFSEntry& ifs, int i) {
    return ifs.a[i] == 1 && ifs.b[i] == 0 && ifs.c[i] == 0 && ifs.d[i] == 1 && ifs.e[i] == 0 && ifs.f[i] == 0;
}

bool turnAndScale(const IFSEntry& ifs, int i) {
    return std::fabs(static_cast<double>(ifs.d[i]) * ifs.b[i] + static_cast<double>(ifs.a[i]) * ifs.c[i]) <=
           Tolerance;
}

double turnOf(float a, float c) {
    if (a == 0) return c < 0 ? -Pi / 2 : Pi / 2;
    double t = std::atan(static_cast<double>(c) / a);
    if (a < 0) t += Pi;
    return t;
}

}  // namespace

double SelfContactingRatio(double angleDegrees) {
    const double t = angleDegrees * 0.017453292;
    const double ct = std::cos(t);
    if (angleDegrees >= 135) return -1 / (2 * ct);
    if (angleDegrees >= 90) return 1 / (std::sqrt(2 - 3 * ct * ct) - ct);
    const int n = static_cast<int>(std::floor(90 / angleDegrees)) + 1;
    const auto g = [&](double r) {
        const double top =
            std::pow(r, n + 1) * std::cos((n - 1) * t) - std::pow(r, n) * std::cos(n * t) - r * ct + 1;
        return r * r * top / (r * r + 1 - 2 * r * ct);
    };
    double lo = 0.5, hi = 0.71;
    for (int k = 0; k < 20; ++k) {
        const double r = (hi + lo) / 2;
        if (g(r) >= 0.5)
            hi = r;
        else
            lo = r;
    }
    return (hi + lo) / 2;
}

double TrunkWeight(float ratio) {
    const double r = ratio;
    return 19.0 / 20 + 7.0 / 8 * r * r - 71.0 / 40 * r;
}

float TrunkHeight(float ratio, float angleDegrees) {
    const double r = ratio, t = angleDegrees * DegToRad;
    return static_cast<float>((1 - r * r) / (r * std::cos(t) + 1));
}

IFSEntry SymmetricBinaryTreeIFS(float angle, float ratio, TreeMethod method, const std::string& angleText,
                                const std::string& ratioText) {
    IFSEntry ifs;
    const double t = angle * DegToRad;
    setBranch(ifs, 0, ratio, t, false);
    setBranch(ifs, 1, ratio, t, true);
    const double q = TrunkWeight(ratio);
    const float h = TrunkHeight(ratio, angle);
    ifs.p[0] = ifs.p[1] = static_cast<float>((1 - q) / 2);
    if (method == TreeMethod::Tips) {
        ifs.nMaps = 2;
        ifs.p[0] = ifs.p[1] = 0.5f;
    } else if (method == TreeMethod::Deterministic) {
        ifs.nMaps = 3;
        setMap(ifs, 2, 1, 1, 0, q);
    } else if (h < 1) {
        ifs.nMaps = 3;
        setMap(ifs, 2, 0, h, 0, q);
    } else {
        ifs.nMaps = 4;
        setMap(ifs, 2, 0, 0.5f, 0, q / 2);
        setMap(ifs, 3, 0, 0.5f, 0.5f, q / 2);
    }
    const bool tips = ifs.nMaps == 2;
    comments(ifs, {std::string("; Symmetric Binary Tree") + (tips ? " (branch tips)" : ""),
                   "; Branching angle: " + angleText + TreeDegreeSign, "; Scaling ratio: " + ratioText});
    ifs.Name =
        "SBT(" + number(angle) + TreeDegreeSign + ", 0" + number(ratio) + ")" + (tips ? " branch tips" : "");
    return ifs;
}

IFSEntry NonSymBinaryTreeIFS(const NonSymTreeInput& in, TreeMethod method) {
    IFSEntry ifs;
    setBranch(ifs, 0, in.ratioLeft, in.angleLeft * DegToRad, false);
    setBranch(ifs, 1, in.ratioRight, in.angleRight * DegToRad, true);
    ifs.p[0] = ifs.p[1] = 0.5f;
    ifs.nMaps = 2;
    if (method == TreeMethod::Deterministic) {
        ifs.nMaps = 3;
        setMap(ifs, 2, 1, 1, 0, 0);
    }
    const bool tips = ifs.nMaps == 2;
    comments(ifs, {std::string("; Binary Tree") + (tips ? " (branch tips)" : ""),
                   "; Left Branching angle: " + in.angleLeftText + TreeDegreeSign,
                   "; Left Scaling ratio: " + in.ratioLeftText,
                   "; Right Branching angle: " + in.angleRightText + TreeDegreeSign,
                   "; Right Scaling ratio: " + in.ratioRightText});
    ifs.Name = "IFS [BT(Left:" + number(in.angleLeft) + TreeDegreeSign + "," + number(in.ratioLeft) +
               "; Right:" + number(in.angleRight) + TreeDegreeSign + "," + number(in.ratioRight) + ")]" +
               (tips ? " (branch tips)" : "");
    return ifs;
}

bool CheckNonSymBinaryTree(const IFSEntry& ifs) {
    if (ifs.nMaps != 3) return false;
    if (ifs.e[0] != 0 || ifs.f[0] != 1 || ifs.e[1] != 0 || ifs.f[1] != 1) return false;
    // Each branch is a turn and a scaling on its own.
    for (int i = 0; i < 2; ++i)
        if (ifs.a[i] != ifs.d[i] || !turnAndScale(ifs, i)) return false;
    return isIdentity(ifs, 2);
}

bool CheckBinaryTree(const IFSEntry& ifs) {
    if (ifs.nMaps != 3) return false;
    if (ifs.e[0] != 0 || ifs.f[0] != 1 || ifs.e[1] != 0 || ifs.f[1] != 1) return false;
    if (ifs.a[0] != ifs.a[1] || ifs.b[0] != -ifs.b[1] || ifs.c[0] != -ifs.c[1] || ifs.d[0] != ifs.d[1])
        return false;
    if (ifs.a[0] != ifs.d[0]) return false;
    if (!turnAndScale(ifs, 0)) return false;
    return isIdentity(ifs, 2);
}

TreeBranches BranchesOf(const IFSEntry& ifs) {
    TreeBranches br;
    br.t1 = turnOf(ifs.a[0], ifs.c[0]);
    br.t2 = turnOf(ifs.a[1], ifs.c[1]);
    br.r1 = std::hypot(static_cast<double>(ifs.a[0]), static_cast<double>(ifs.c[0]));
    br.r2 = std::hypot(static_cast<double>(ifs.a[1]), static_cast<double>(ifs.c[1]));
    return br;
}

int BinaryTreeDepth(const TreeBranches& br, double pixel, double s) {
    const double rmax = std::max(br.r1, br.r2);
    if (!(rmax > 0 && rmax < 1) || !(pixel > 0) || !(s > 0)) return 0;
    const double depth = std::floor(std::log(pixel / s) / std::log(rmax));
    // A trunk under a pixel has no branches worth drawing; a huge count is no tree either.
    if (!(depth > 0)) return 0;
    return depth > 60 ? 60 : static_cast<int>(depth);
}

bool DrawBinaryTree(const TreeBranches& br, TreePainter& paint, int depth, double x, double y, double length,
                    double angle, int colour) {
    const double x2 = x + length * std::cos(angle), y2 = y + length * std::sin(angle);
    const Color c = paint.colourOf ? paint.colourOf(depth, colour) : Black;
    if (paint.picfractal) paint.picfractal->line(x, y, x2, y2, c);
    if (paint.picImage) paint.picImage->line(x, y, x2, y2, c);
    if (paint.step && !paint.step()) return false;
    if (depth <= 0) return true;
    if (!DrawBinaryTree(br, paint, depth - 1, x2, y2, length * br.r1, angle + br.t1, 0)) return false;
    return DrawBinaryTree(br, paint, depth - 1, x2, y2, length * br.r2, angle + br.t2, 1);
}

}  // namespace quillane
