#include "generators/line_fractal.h"

#include <algorithm>
#include <cctype>
#include <cmath>
#include <limits>

#include "core/numbers.h"

namespace quillane {
namespace {

constexpr double LinePi = 3.141592654;

std::string upperTrimmed(const std::string& text) {
    size_t b = 0, e = text.size();
    while (b < e && text[b] == ' ') ++b;
    while (e > b && text[e - 1] == ' ') --e;
    std::string t = text.substr(b, e - b);
    for (char& c : t) c = static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
    return t;
}

// InStr(set, c) > 0 for a letter that may be missing: the empty string is found in every set.
bool occursIn(const char* set, char c) {
    return c == 0 || std::string(set).find(c) != std::string::npos;
}

struct Walker {
    const LineFractal& g;
    const LineSink& line;
    int n;
    double x = 0, y = 0;
    bool go = true;

    void walk(int depth, double length, double angle, int branch) {
        if (!go) return;
        if (depth < 1) {
            const double x2 = x + length * std::cos(angle);
            const double y2 = y + length * std::sin(angle);
            go = line(x, y, x2, y2, branch);
            x = x2;
            y = y2;
            return;
        }
        for (int i = 0; i < n && go; ++i) {
            angle += g.GeneratorAngles[static_cast<size_t>(i)];
            walk(depth - 1, length * g.GeneratorRatios[static_cast<size_t>(i)], angle, i);
        }
    }
};

}  // namespace

LineFractal::LineFractal() {
    ResetPolyline(*this);
}

int LineFractal::segments() const {
    return std::clamp(nSegments, 0, MaxSegments);
}

float ATan2(float y, float x) {
    if (std::fabs(x) < 0.01f) return static_cast<float>(y >= 0 ? LinePi / 2 : -LinePi / 2);
    const double v = std::atan(static_cast<double>(y) / x);
    if (x < 0 && y >= 0) return static_cast<float>(v + LinePi);
    if (x < 0 && y < 0) return static_cast<float>(-(LinePi - v));
    return static_cast<float>(v);
}

float SegmentAngle(const LineFractal& g, int i) {
    const GeneratorPoint& p = g.GeneratorPoints[static_cast<size_t>(i)];
    const GeneratorPoint& q = g.GeneratorPoints[static_cast<size_t>(i + 1)];
    const float dx = q.x - p.x;
    const float dy = q.y - p.y;
    return g.SegmentDirection == 1 ? ATan2(-dx, dy) : ATan2(dy, dx);
}

float SegmentLength(const LineFractal& g, int i) {
    const GeneratorPoint& p = g.GeneratorPoints[static_cast<size_t>(i)];
    const GeneratorPoint& q = g.GeneratorPoints[static_cast<size_t>(i + 1)];
    const float dx = q.x - p.x;
    const float dy = q.y - p.y;
    return static_cast<float>(std::sqrt(static_cast<double>(dx) * dx + static_cast<double>(dy) * dy));
}

void InitializeGenerator(LineFractal& g) {
    float previous = 0;
    for (int i = 0; i < g.segments(); ++i) {
        const float angle = SegmentAngle(g, i);
        g.GeneratorRatios[static_cast<size_t>(i)] = SegmentLength(g, i);
        g.GeneratorAngles[static_cast<size_t>(i)] = i == 0 ? angle : angle - previous;
        previous = angle;
    }
}

int RecDepth(int n) {
    if (n == 2) return 7;
    if (n == 3) return 6;
    if (n == 4) return 5;
    if (n >= 5 && n <= 7) return 4;
    if (n >= 8 && n <= 13) return 3;
    if (n == 14 || n == 15) return 2;
    return 1;
}

bool RecurseLines(const LineFractal& g, int depth, const LineSink& line) {
    Walker w{g, line, g.segments()};
    w.walk(depth, 1.0, g.SegmentDirection == 1 ? LinePi / 2 : 0.0, -1);
    return w.go;
}

int64_t LineCount(const LineFractal& g, int depth) {
    const int64_t n = g.segments();
    int64_t count = 1;
    for (int k = 0; k < depth; ++k) {
        if (n != 0 && count > std::numeric_limits<int64_t>::max() / n)
            return std::numeric_limits<int64_t>::max();
        count *= n;
    }
    return count;
}

int LimitRecursionLevel(const LineFractal& g, int L, double pixel) {
    constexpr double NoLimit = 1e9;
    double p = NoLimit;
    if (g.MaxRatio > 0 && g.MaxRatio < 1 && pixel > 0) p = std::floor(std::log(pixel) / std::log(g.MaxRatio));
    double q = NoLimit;
    if (g.segments() >= 2) q = Round(std::log(1000000.0) / std::log(static_cast<double>(g.segments())));
    p = std::clamp(p, -NoLimit, NoLimit);
    double level = L;
    if (level >= q - 1 || level >= p - 1) level = std::min(q - 1, p - 1);
    return static_cast<int>(std::clamp(level, -1.0, NoLimit));
}

LineMaps LineFractalMaps(const LineFractal& g) {
    LineMaps out;
    const std::string text = upperTrimmed(g.txtOrient);
    for (int i = 0; i < g.segments(); ++i) {
        const float r = SegmentLength(g, i);
        if (r >= 1) {
            out.refusedSegment = i;
            return out;
        }
        out.MaxRatio = std::max(out.MaxRatio, r);
        float rev = 1, flip = 1;
        if (g.chkOrient) {
            const char c = static_cast<size_t>(i) < text.size() ? text[static_cast<size_t>(i)] : 0;
            if (occursIn("AB", c)) rev = -1;
            if (occursIn("AG", c)) flip = -1;
        }
        const double t = SegmentAngle(g, i);
        const auto k = static_cast<size_t>(i);
        out.ifs.a[k] = static_cast<float>(r * std::cos(t) * rev);
        out.ifs.b[k] = static_cast<float>(-r * std::sin(t) * rev * flip);
        out.ifs.c[k] = static_cast<float>(r * std::sin(t) * rev);
        out.ifs.d[k] = static_cast<float>(r * std::cos(t) * rev * flip);
        const GeneratorPoint& at = g.GeneratorPoints[rev == 1 ? k : k + 1];
        out.ifs.e[k] = at.x;
        out.ifs.f[k] = at.y;
    }
    out.ifs.nMaps = static_cast<int16_t>(g.segments());
    return out;
}

std::vector<std::string> LineFractalComments(const LineFractal& g) {
    std::vector<std::string> lines{"; Line Fractal"};
    for (int i = 0; i <= g.segments(); ++i) {
        const GeneratorPoint& p = g.GeneratorPoints[static_cast<size_t>(i)];
        lines.push_back("; (" + Str(p.x) + "," + Str(p.y) + ")");
    }
    if (g.chkOrient) lines.push_back("; oriented: " + g.txtOrient);
    return lines;
}

std::string LineFractalName(int nSegments) {
    return "Line Fractal (" + std::to_string(nSegments) + " segments)";
}

void ResetPolyline(LineFractal& g) {
    const int n = std::clamp(g.nSegments, MinSegments, MaxSegments);
    g.nSegments = n;
    for (int i = 0; i <= n; ++i) {
        const auto t = static_cast<float>(static_cast<double>(i) / n);
        g.GeneratorPoints[static_cast<size_t>(i)] =
            g.SegmentDirection == 1 ? GeneratorPoint{0, t} : GeneratorPoint{t, 0};
    }
    g.txtOrient = std::string(static_cast<size_t>(n), 'F');
}

void AddEdge(LineFractal& g, int& SelectedPoint) {
    if (g.nSegments >= MaxSegments || g.nSegments < 1) return;
    int v = SelectedPoint;
    if (v < 1 || v > g.nSegments) v = g.nSegments;
    SelectedPoint = v;
    ++g.nSegments;
    for (int k = g.nSegments; k > v; --k)
        g.GeneratorPoints[static_cast<size_t>(k)] = g.GeneratorPoints[static_cast<size_t>(k - 1)];
    const GeneratorPoint& a = g.GeneratorPoints[static_cast<size_t>(v - 1)];
    const GeneratorPoint& b = g.GeneratorPoints[static_cast<size_t>(v + 1)];
    g.GeneratorPoints[static_cast<size_t>(v)] = {(a.x + b.x) / 2, (a.y + b.y) / 2};
    const size_t at = std::min(static_cast<size_t>(v - 1), g.txtOrient.size());
    g.txtOrient.insert(at, 1, 'F');
    if (g.txtOrient.size() > static_cast<size_t>(g.nSegments))
        g.txtOrient.resize(static_cast<size_t>(g.nSegments));
}

void RemoveEdge(LineFractal& g, int& SelectedPoint) {
    if (g.nSegments <= MinSegments || g.nSegments > MaxSegments) return;
    int v = SelectedPoint;
    if (v < 1 || v >= g.nSegments) v = g.nSegments - 1;
    for (int k = v; k < g.nSegments; ++k)
        g.GeneratorPoints[static_cast<size_t>(k)] = g.GeneratorPoints[static_cast<size_t>(k + 1)];
    if (static_cast<size_t>(v - 1) < g.txtOrient.size()) g.txtOrient.erase(static_cast<size_t>(v - 1), 1);
    SelectedPoint = -1;
    --g.nSegments;
    if (g.txtOrient.size() > static_cast<size_t>(g.nSegments))
        g.txtOrient.resize(static_cast<size_t>(g.nSegments));
}

void TurnPolyline(LineFractal& g, int direction) {
    if (direction == g.SegmentDirection || direction < 0 || direction > 1) return;
    for (int i = 0; i <= g.segments(); ++i) {
        GeneratorPoint& p = g.GeneratorPoints[static_cast<size_t>(i)];
        p = direction == 1 ? GeneratorPoint{-p.y, p.x} : GeneratorPoint{p.y, -p.x};
    }
    g.SegmentDirection = direction;
}

float SnapValue(float v, float spacing) {
    if (!(spacing > 0)) return v;
    const float q = v / spacing;
    if (!std::isfinite(q)) return v;
    return static_cast<float>(Round(q) * spacing);
}

void SnapAll(LineFractal& g, float GridX, float GridY) {
    for (int i = 0; i <= g.segments(); ++i) {
        GeneratorPoint& p = g.GeneratorPoints[static_cast<size_t>(i)];
        p.x = SnapValue(p.x, GridX);
        p.y = SnapValue(p.y, GridY);
    }
}

std::optional<char> OrientKey(char key) {
    if (key == 8) return key;
    const char up = static_cast<char>(std::toupper(static_cast<unsigned char>(key)));
    if (up != 0 && std::string(OrientLetters).find(up) != std::string::npos) return up;
    return std::nullopt;
}

char OrientLetter(const LineFractal& g, int i) {
    return i >= 0 && static_cast<size_t>(i) < g.txtOrient.size() ? g.txtOrient[static_cast<size_t>(i)] : 0;
}

}  // namespace quillane
