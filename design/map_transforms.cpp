#include "design/map_transforms.h"

#include <cmath>

namespace quillane {

IFSFunction TranslateMap(const IFSFunction& m, float dx, float dy) {
    IFSFunction r = m;
    r.e = m.e + dx;
    r.f = m.f + dy;
    return r;
}

IFSFunction ScaleMapAbout(const IFSFunction& m, float sx, float sy, float px, float py) {
    IFSFunction r = m;
    r.a = m.a * sx;
    r.b = m.b * sx;
    r.c = m.c * sy;
    r.d = m.d * sy;
    r.e = sx * m.e + (1 - sx) * px;
    r.f = sy * m.f + (1 - sy) * py;
    return r;
}

IFSFunction RotateMapAbout(const IFSFunction& m, double radians, float cx, float cy) {
    const double ct = std::cos(radians);
    const double st = std::sin(radians);
    const double ex = m.e - cx;
    const double fy = m.f - cy;
    IFSFunction r = m;
    r.a = static_cast<float>(m.a * ct - m.c * st);
    r.b = static_cast<float>(m.b * ct - m.d * st);
    r.c = static_cast<float>(m.a * st + m.c * ct);
    r.d = static_cast<float>(m.b * st + m.d * ct);
    r.e = static_cast<float>(ex * ct - fy * st + cx);
    r.f = static_cast<float>(fy * ct + ex * st + cy);
    return r;
}

IFSFunction ShearMapVertical(const IFSFunction& m, double s, float xm) {
    IFSFunction r = m;
    r.c = static_cast<float>(m.a * s + m.c);
    r.d = static_cast<float>(m.b * s + m.d);
    r.f = static_cast<float>(static_cast<double>(m.e - xm) * s + m.f);
    return r;
}

IFSFunction ShearMapHorizontal(const IFSFunction& m, double s, float ym) {
    IFSFunction r = m;
    r.a = static_cast<float>(m.c * s + m.a);
    r.b = static_cast<float>(m.d * s + m.b);
    r.e = static_cast<float>(static_cast<double>(m.f - ym) * s + m.e);
    return r;
}

IFSFunction ReflectMap(const IFSFunction& m, int Direction, float xm, float ym) {
    const float D = static_cast<float>(Direction);
    IFSFunction r = m;
    r.a = D * m.a;
    r.b = D * m.b;
    r.c = -D * m.c;
    r.d = -D * m.d;
    r.e = (m.e - xm) * D + xm;
    r.f = (m.f - ym) * -D + ym;
    return r;
}

IFSFunction ScaleMatrix(const IFSFunction& m, float s) {
    IFSFunction r = m;
    r.a = m.a * s;
    r.b = m.b * s;
    r.c = m.c * s;
    r.d = m.d * s;
    return r;
}

IFSFunction StretchColumns(const IFSFunction& m, float sh, float sv) {
    IFSFunction r = m;
    r.a = m.a * sh;
    r.b = m.b * sv;
    r.c = m.c * sh;
    r.d = m.d * sv;
    return r;
}

}  // namespace quillane
