#include "design/gesture_math.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "core/numbers.h"
#include "design/map_transforms.h"

namespace quillane {

namespace {

constexpr int KeyLeftCode = 37, KeyUpCode = 38, KeyRightCode = 39, KeyDownCode = 40;

struct HandlePlace {
    int id;
    float x, y;
};

std::array<HandlePlace, 8> handlesInTestOrder(const BoundingBox& b) {
    const float xmid = (b.xmin + b.xmax) / 2;
    const float ymid = (b.ymin + b.ymax) / 2;
    return {{{1, b.xmin, b.ymin},
             {3, b.xmax, b.ymin},
             {2, b.xmin, b.ymax},
             {4, b.xmax, b.ymax},
             {5, xmid, b.ymin},
             {6, xmid, b.ymax},
             {7, b.xmin, ymid},
             {8, b.xmax, ymid}}};
}

bool inGrownBox(double px, double py, double x1, double y1, double x2, double y2, double tx, double ty) {
    return px > std::min(x1, x2) - tx && px < std::max(x1, x2) + tx && py > std::min(y1, y2) - ty &&
           py < std::max(y1, y2) + ty;
}

std::string factorText(const char* name, float s) {
    return std::string(name) + Format(s, "0.000");
}

bool isLeftHandle(int h) { return h == 1 || h == 2 || h == 7; }
bool isRightHandle(int h) { return h == 3 || h == 4 || h == 8; }
bool isBottomHandle(int h) { return h == 1 || h == 3 || h == 5; }
bool isTopHandle(int h) { return h == 2 || h == 4 || h == 6; }

// The factor of a moving edge, with the edge that stays.
float edgeFactor(float lo, float hi, float at, bool movesLow) {
    return movesLow ? (hi - at) / (hi - lo) : (at - lo) / (hi - lo);
}

GestureStep resizeEqual(const IFSFunction& o, const BoundingBox& b, int h, float x, float y) {
    GestureStep step{o, {}};
    const bool spanX = b.xmax != b.xmin, spanY = b.ymax != b.ymin;
    if (!spanX && !spanY) return step;
    const bool left = isLeftHandle(h), bottom = isBottomHandle(h);
    const float sx = spanX ? edgeFactor(b.xmin, b.xmax, x, left) : 0.0f;
    const float sy = spanY ? edgeFactor(b.ymin, b.ymax, y, bottom) : 0.0f;
    const float s = std::fabs(sy) <= std::fabs(sx) ? sx : sy;
    const float keptX = left ? b.xmax : b.xmin;
    const float keptY = bottom ? b.ymax : b.ymin;
    step.map = ScaleMapAbout(o, s, s, keptX, keptY);
    step.text = factorText("sx:", s) + "; " + factorText("sy:", s);
    return step;
}

}  // namespace

int HitHandle(const BoundingBox& box, double x, double y, int Size, int LineThickness, double pixelX) {
    const double t = (Size + 1.2 * LineThickness) * pixelX;
    for (const HandlePlace& h : handlesInTestOrder(box))
        if (std::fabs(x - h.x) < t && std::fabs(y - h.y) < t) return h.id;
    return 0;
}

bool OnBoundary(const DesignPolygon& image, double px, double py, double pixelX, double pixelY) {
    const double tx = PickTolerance * pixelX, ty = PickTolerance * pixelY;
    for (int k = 1; k <= image.nPoints - 1; ++k) {
        const double x1 = image.x[k], y1 = image.y[k], x2 = image.x[k + 1], y2 = image.y[k + 1];
        if (!inGrownBox(px, py, x1, y1, x2, y2, tx, ty)) continue;
        if (std::fabs((py - y1) * (x2 - x1) - (y2 - y1) * (px - x1)) < tx) return true;
    }
    return false;
}

PressHit PickAtPress(const Workbench& wb, const std::vector<DesignPolygon>& images, const BoundingBox& box,
                     double x, double y, double pixelX, double pixelY) {
    const int selected = wb.SelectedMap;
    const auto drawnAndHit = [&](int i) {
        return i >= 0 && i < static_cast<int>(images.size()) && OnBoundary(images[i], x, y, pixelX, pixelY);
    };
    int n = -1;
    if (wb.MapSelected) {
        const int h = HitHandle(box, x, y, HandleSize, wb.LineThickness, pixelX);
        if (h != 0) return {selected, h};
        if (drawnAndHit(selected)) n = selected;
    }
    for (int i = 0; n < 0 && i < wb.CurrentIFS.nMaps; ++i)
        if (drawnAndHit(i)) n = i;
    if (n < 0) return {};
    // The former selection's box still decides the handle.
    return {n, HitHandle(box, x, y, HandleSize, wb.LineThickness, pixelX)};
}

bool PastDragThreshold(double pressX, double pressY, double x, double y, double pixelX) {
    return std::hypot(x - pressX, y - pressY) >= DragThreshold * pixelX;
}

void RotationCentreOf(const Workbench& wb, int i, const BoundingBox& box, float& cx, float& cy) {
    if (wb.InitialPolygon.Kind == 1) {
        TriangleCentroid(wb.CurrentIFS, i, cx, cy);
        return;
    }
    cx = (box.xmin + box.xmax) / 2;
    cy = (box.ymin + box.ymax) / 2;
}

std::string DegreeText(double degrees) {
    return (degrees >= 0 ? " " : "") + Format(degrees, "0.0") + DegreeSign + " ";
}

std::string MoveText(double dx, double dy) {
    return "dx:" + Format(dx, "0.000") + "; dy:" + Format(dy, "0.000");
}

GestureStep MoveStep(const IFSFunction& original, float pressX, float pressY, float x, float y) {
    const float dx = x - pressX, dy = y - pressY;
    return {TranslateMap(original, dx, dy), MoveText(dx, dy)};
}

GestureStep ResizeStep(const IFSFunction& original, const BoundingBox& box, int HandleId, bool equal, float x,
                       float y) {
    if (equal && HandleId >= 1 && HandleId <= 4) return resizeEqual(original, box, HandleId, x, y);
    GestureStep step{original, {}};
    const bool left = isLeftHandle(HandleId), right = isRightHandle(HandleId);
    if ((left || right) && box.xmax != box.xmin) {
        const float s = edgeFactor(box.xmin, box.xmax, x, left);
        const IFSFunction r = ScaleMapAbout(original, s, 1, left ? box.xmax : box.xmin, 0);
        step.map.a = r.a;
        step.map.b = r.b;
        step.map.e = r.e;
        step.text += factorText("sx:", s) + "; ";
    }
    const bool bottom = isBottomHandle(HandleId), top = isTopHandle(HandleId);
    if ((bottom || top) && box.ymax != box.ymin) {
        const float s = edgeFactor(box.ymin, box.ymax, y, bottom);
        const IFSFunction r = ScaleMapAbout(original, 1, s, 0, bottom ? box.ymax : box.ymin);
        step.map.c = r.c;
        step.map.d = r.d;
        step.map.f = r.f;
        step.text += factorText("sy:", s);
    }
    return step;
}

RotationStart BeginRotation(const Workbench& wb, int i, const BoundingBox& box, float pressX, float pressY) {
    RotationStart r;
    RotationCentreOf(wb, i, box, r.cx, r.cy);
    r.vx = pressX - r.cx;
    r.vy = pressY - r.cy;
    r.length = std::hypot(r.vx, r.vy);
    return r;
}

double RotationAngle(const RotationStart& r, float x, float y) {
    const double wx = x - r.cx, wy = y - r.cy;
    double c = (wx * r.vx + wy * r.vy) / (std::hypot(wx, wy) * r.length);
    c = std::clamp(c, -1.0, 1.0);
    double t = 0;
    if (c != 1) {
        const double root = std::sqrt(1 - c * c);
        // The arc cosine has always answered Pi here, in a formula that is otherwise in degrees.
        t = root == 0 ? Pi : 90 + std::atan(-c / root) * RadToDeg;
    }
    t = std::floor((t - MouseRotationStep / 2) / MouseRotationStep) * MouseRotationStep;
    if (wy * r.vx - wx * r.vy < 0) t = -t;
    return t;
}

GestureStep RotationStep(const IFSFunction& original, const RotationStart& r, float x, float y) {
    const double t = RotationAngle(r, x, y);
    return {RotateMapAbout(original, t * DegToRad, r.cx, r.cy), DegreeText(t)};
}

GestureStep ComputeMouseShear(const IFSFunction& original, const BoundingBox& box, int HandleId, float x,
                              float y) {
    const float xm = (box.xmin + box.xmax) / 2;
    const float ym = (box.ymin + box.ymax) / 2;
    const bool vertical = HandleId == 7 || HandleId == 8;
    // An empty half-span gives an infinity that the tangent absorbs: no guard, as always.
    const float r = vertical ? (y - ym) * static_cast<float>(2 * HandleId - 15) / (box.xmax - xm)
                             : (x - xm) * static_cast<float>(2 * HandleId - 11) / (box.ymax - ym);
    double angle = std::atan(static_cast<double>(r)) * RadToDeg;
    angle = Round(angle / ShearStep) * ShearStep;
    const double s = std::tan(angle * DegToRad);
    if (vertical) return {ShearMapVertical(original, s, xm), DegreeText(angle)};
    return {ShearMapHorizontal(original, s, ym), DegreeText(-angle)};
}

GestureStep KeyMove(const IFSFunction& present, const IFSFunction& original, int KeyCode, float pixelX,
                    float pixelY) {
    float dx = 0, dy = 0;
    if (KeyCode == KeyLeftCode) dx = -pixelX;
    if (KeyCode == KeyRightCode) dx = pixelX;
    if (KeyCode == KeyUpCode) dy = pixelY;
    if (KeyCode == KeyDownCode) dy = -pixelY;
    const IFSFunction m = TranslateMap(present, dx, dy);
    return {m, MoveText(m.e - original.e, m.f - original.f)};
}

GestureStep KeyShear(const IFSFunction& original, const BoundingBox& box, int KeyCode, double& KeyShearV,
                     double& KeyShearH) {
    const float xm = (box.xmin + box.xmax) / 2;
    const float ym = (box.ymin + box.ymax) / 2;
    if (KeyCode == KeyUpCode || KeyCode == KeyDownCode) {
        KeyShearV += KeyCode == KeyUpCode ? ShearStep : -ShearStep;
        return {ShearMapVertical(original, std::tan(KeyShearV * DegToRad), xm), DegreeText(KeyShearV)};
    }
    if (KeyCode == KeyLeftCode || KeyCode == KeyRightCode) {
        KeyShearH += KeyCode == KeyRightCode ? ShearStep : -ShearStep;
        return {ShearMapHorizontal(original, std::tan(KeyShearH * DegToRad), ym), DegreeText(-KeyShearH)};
    }
    return {original, {}};
}

GestureStep ArrowKeyRotate(const Workbench& wb, int i, int KeyCode, double& KeyRotation) {
    const IFSFunction present = wb.CurrentIFS.function(i);
    if (KeyCode != KeyUpCode && KeyCode != KeyDownCode) return {present, {}};
    const double step = KeyCode == KeyUpCode ? KeyRotationStep : -KeyRotationStep;
    KeyRotation += step;
    float cx, cy;
    RotationCentreOf(wb, i, MapBoundingBox(wb.CurrentIFS, i, wb.InitialPolygon), cx, cy);
    return {RotateMapAbout(present, step * RotateDegToRad, cx, cy), DegreeText(KeyRotation)};
}

DesignCursor HandleCursor(int HandleId, bool ctrl) {
    switch (HandleId) {
        case 1:
        case 4:
            return ctrl ? DesignCursor::Rotate : DesignCursor::SizeNESW;
        case 2:
        case 3:
            return ctrl ? DesignCursor::Rotate : DesignCursor::SizeNWSE;
        case 5:
        case 6:
            return ctrl ? DesignCursor::SizeHorizontal : DesignCursor::SizeVertical;
        case 7:
        case 8:
            return ctrl ? DesignCursor::SizeVertical : DesignCursor::SizeHorizontal;
        default:
            return DesignCursor::Normal;
    }
}

}  // namespace quillane
