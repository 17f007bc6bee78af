#include "core/initial_polygons.h"

#include <algorithm>
#include <cmath>
#include <initializer_list>
#include <utility>

#include "core/numbers.h"

namespace quillane {

namespace {

// The polygon rules use the program's decimal two pi, not the library's.
constexpr double TwoPi = 6.283185308;
const float H = static_cast<float>(std::sqrt(3.0) / 2.0);

using Entries = std::initializer_list<std::pair<float, float>>;

DesignPolygon make(int16_t kind, Entries entries) {
    DesignPolygon p;
    p.Kind = kind;
    for (const auto& [px, py] : entries) p.add(px, py);
    return p;
}

constexpr std::pair<float, float> Lift{PenLift, PenLift};

std::string_view trimmed(std::string_view s) {
    const auto blank = [](char c) { return c == ' ' || c == '\t' || c == '\r' || c == '\n'; };
    while (!s.empty() && blank(s.front())) s.remove_prefix(1);
    while (!s.empty() && blank(s.back())) s.remove_suffix(1);
    return s;
}

void readEntry(std::string_view line, float& px, float& py) {
    std::string plain;
    for (char c : line)
        if (c != '(' && c != ')') plain += c;
    const size_t comma = plain.find(',');
    px = static_cast<float>(Val(plain.substr(0, comma)));
    py = comma == std::string::npos ? 0.0f : static_cast<float>(Val(plain.substr(comma + 1)));
}

// One axis of the preview: a margin of 0.05 beyond the bounds rounded to tenths.
void previewSpan(float lo, float hi, float& outLo, float& outHi) {
    if (hi - lo == 0) {
        outLo = lo - 0.05f;
        outHi = hi + 0.05f;
        return;
    }
    outHi = static_cast<float>(Round(hi + 0.05, 1) + 0.05);
    outLo = static_cast<float>(Round(lo - 0.05, 1) - 0.05);
}

}  // namespace

bool DesignPolygon::add(float px, float py) {
    if (nPoints >= MaxPolygonPoints) return false;
    ++nPoints;
    x[nPoints] = px;
    y[nPoints] = py;
    return true;
}

DesignPolygon RegularPolygon(int n) {
    DesignPolygon p;
    if (n < 3 || n + 1 > MaxPolygonPoints) return p;
    p.add(0, 0);
    p.add(1, 0);
    for (int k = 2; k <= n - 1; ++k) {
        const double angle = (k - 1) * TwoPi / n;
        p.add(p.x[k] + static_cast<float>(std::cos(angle)), p.y[k] + static_cast<float>(std::sin(angle)));
    }
    p.add(0, 0);
    return p;
}

DesignPolygon BuiltInPolygon(int index) {
    switch (index) {
        case 0:
            return make(
                0, {{0, 0}, {1, 0}, {1, 1}, {0, 1}, {0, 0}, Lift, {0.1f, 0.9f}, {0.1f, 0.1f}, {0.5f, 0.1f}});
        case 1:
            return make(1,
                        {{0, 0}, {1, 0}, {0.5f, H}, {0, 0}, Lift, {0.7f, 0.1f}, {0.4f, 0.1f}, {0.4f, 0.6f}});
        case 2:
            return make(5, {{0, 0}, {1, 0}, Lift, {0.55f, 0.05f}, {0.65f, 0}, {0.55f, -0.05f}});
        case 3:
            return make(5, {{0, 0}, {0, 1}, Lift, {0.05f, 0.55f}, {0, 0.65f}, {-0.05f, 0.55f}});
        case 4:
            return make(4, {{0, 0}, {1, 0}});
        case 5:
            return make(3, {{0, 0}, {0, 1}});
        case 6:
            return make(1, {{0, 0}, {1, 0}, {0.5f, H}, {0, 0}});
        case 7:
            return make(2, {{0, 0}, {1, 0}, {1, 1}, {0, 1}, {0, 0}});
        default:
            if (index >= 8 && index <= 12) return RegularPolygon(index - 3);
            return {};
    }
}

std::string WritePolygonText(const DesignPolygon& polygon) {
    std::string text;
    for (int i = 1; i <= polygon.nPoints; ++i) text += Str(polygon.x[i]) + " ," + Str(polygon.y[i]) + " \r\n";
    return text;
}

void ReadPolygonText(std::string_view text, DesignPolygon& polygon) {
    polygon.nPoints = 0;
    while (!text.empty() && polygon.nPoints < MaxPolygonPoints) {
        const size_t end = text.find('\n');
        const std::string_view line = trimmed(text.substr(0, end));
        text = end == std::string_view::npos ? std::string_view{} : text.substr(end + 1);
        if (line.empty()) continue;
        float px = 0, py = 0;
        readEntry(line, px, py);
        polygon.add(px, py);
    }
}

WorldWindow PolygonPreviewWindow(const DesignPolygon& polygon) {
    float xlo = 0, xhi = 0, ylo = 0, yhi = 0;
    bool any = false;
    for (int i = 1; i <= polygon.nPoints; ++i) {
        if (polygon.x[i] >= PenLift || polygon.y[i] >= PenLift) continue;
        xlo = any ? std::min(xlo, polygon.x[i]) : polygon.x[i];
        xhi = any ? std::max(xhi, polygon.x[i]) : polygon.x[i];
        ylo = any ? std::min(ylo, polygon.y[i]) : polygon.y[i];
        yhi = any ? std::max(yhi, polygon.y[i]) : polygon.y[i];
        any = true;
    }
    WorldWindow w;
    previewSpan(xlo, xhi, w.xmin, w.xmax);
    previewSpan(ylo, yhi, w.ymin, w.ymax);
    const float dx = w.xmax - w.xmin, dy = w.ymax - w.ymin;
    if (dx < dy) {
        w.xmin -= (dy - dx) / 2;
        w.xmax += (dy - dx) / 2;
    } else if (dy < dx) {
        w.ymin -= (dx - dy) / 2;
        w.ymax += (dx - dy) / 2;
    }
    return w;
}

}  // namespace quillane

namespace quillane {

namespace {

void store(PolygonDrawing& d, float px, float py) {
    DesignPolygon& u = d.UserPolygon;
    if (d.PolygonPointCount < 1 || d.PolygonPointCount > MaxPolygonPoints) return;
    u.x[d.PolygonPointCount] = px;
    u.y[d.PolygonPointCount] = py;
    u.nPoints = static_cast<int16_t>(std::max<int>(u.nPoints, d.PolygonPointCount));
}

float snapped(float v, float grid) {
    return static_cast<float>(Round(v / grid) * grid);
}

void closePath(PolygonDrawing& d, DesignPolygon& InitialPolygon) {
    ++d.PolygonPointCount;
    d.LastVertexX = d.PathStartX;
    d.LastVertexY = d.PathStartY;
    store(d, d.LastVertexX, d.LastVertexY);
    d.UserPolygon.nPoints = static_cast<int16_t>(d.PolygonPointCount);
    InitialPolygon = d.UserPolygon;
}

}  // namespace

void BeginPolygonMode(PolygonDrawing& d) {
    d.PolygonMode = true;
    d.PolygonFinished = false;
    d.RubberBandActive = false;
    d.PolygonPointCount = 0;
    d.PathStartX = d.PathStartY = PenLift;
    d.EarlierStartX = d.EarlierStartY = PenLift;
    d.UserPolygon.x[1] = d.UserPolygon.y[1] = PenLift;
    d.UserPolygon.nPoints = 0;
    d.PathStartPending = true;
    d.PathPointCount = 0;
}

bool PolygonClick(PolygonDrawing& d, float x, float y, bool Snap, float GridX, float GridY,
                  float CloseTolerance, DesignPolygon& InitialPolygon) {
    if (d.PolygonFinished) return false;
    if (std::hypot(x - d.PathStartX, y - d.PathStartY) < CloseTolerance) {
        closePath(d, InitialPolygon);
        return true;
    }
    if (d.PolygonPointCount >= MaxPolygonPoints - 1) return false;
    d.RubberBandActive = true;
    if (d.PathStartPending) {
        // The first vertex snaps its y to a multiple of GridX; later ones use GridY.
        d.PathStartX = Snap ? snapped(x, GridX) : x;
        d.PathStartY = Snap ? static_cast<float>(Round(y / GridY) * GridX) : y;
        d.LastVertexX = d.PathStartX;
        d.LastVertexY = d.PathStartY;
        d.PathStartPending = false;
    }
    ++d.PolygonPointCount;
    ++d.PathPointCount;
    d.RubberEndX = Snap ? snapped(x, GridX) : x;
    d.RubberEndY = Snap ? snapped(y, GridY) : y;
    d.LastVertexX = d.RubberEndX;
    d.LastVertexY = d.RubberEndY;
    store(d, d.RubberEndX, d.RubberEndY);
    return false;
}

void PolygonDelete(PolygonDrawing& d) {
    if (d.PolygonPointCount < 1) return;
    --d.PolygonPointCount;
    const DesignPolygon& u = d.UserPolygon;
    if (d.PolygonPointCount >= 1 && u.isPenLift(d.PolygonPointCount)) {
        d.PathStartPending = false;
        --d.PolygonPointCount;
        d.PathStartX = d.EarlierStartX;
        d.PathStartY = d.EarlierStartY;
    }
    d.UserPolygon.nPoints = static_cast<int16_t>(d.PolygonPointCount);
    if (d.PolygonPointCount >= 1) {
        d.LastVertexX = u.x[d.PolygonPointCount];
        d.LastVertexY = u.y[d.PolygonPointCount];
    }
}

void PolygonLift(PolygonDrawing& d) {
    if (d.PolygonPointCount >= MaxPolygonPoints) return;
    ++d.PolygonPointCount;
    store(d, PenLift, PenLift);
    d.PathStartPending = true;
    d.RubberBandActive = false;
    d.PathPointCount = 0;
    d.EarlierStartX = d.PathStartX;
    d.EarlierStartY = d.PathStartY;
}

bool PolygonFinish(PolygonDrawing& d, DesignPolygon& InitialPolygon) {
    d.RubberBandActive = false;
    d.PolygonFinished = true;
    d.PolygonMode = false;
    bool replaced = false;
    if (d.PolygonPointCount > 1) {
        if (d.UserPolygon.isPenLift(d.PolygonPointCount)) --d.PolygonPointCount;
        d.UserPolygon.nPoints = static_cast<int16_t>(d.PolygonPointCount);
        InitialPolygon = d.UserPolygon;
        replaced = true;
    }
    d.PathStartPending = false;
    d.PolygonPointCount = 0;
    return replaced;
}

bool PolygonKey(PolygonDrawing& d, char key, bool repeat, DesignPolygon& InitialPolygon) {
    switch (key) {
        case 'Q':
        case 'q':
            PolygonFinish(d, InitialPolygon);
            return true;
        case 'D':
        case 'd':
            if (!d.RubberBandActive || d.PolygonPointCount <= 1 || repeat) return false;
            PolygonDelete(d);
            return true;
        case 'L':
        case 'l':
            if (!d.RubberBandActive || repeat) return false;
            PolygonLift(d);
            return true;
        default:
            return false;
    }
}

}  // namespace quillane
