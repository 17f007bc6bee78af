#include "design/polygon_image.h"

#include <algorithm>

#include "core/initial_polygons.h"

namespace quillane {

void MapPoint(const IFSEntry& ifs, int i, float x, float y, float& xOut, float& yOut) {
    xOut = ifs.a[i] * x + ifs.b[i] * y + ifs.e[i];
    yOut = ifs.c[i] * x + ifs.d[i] * y + ifs.f[i];
}

DesignPolygon PolygonImageOf(const IFSEntry& ifs, int i, const DesignPolygon& polygon) {
    DesignPolygon image;
    image.Kind = polygon.Kind;
    image.nPoints = polygon.nPoints;
    for (int k = 1; k <= polygon.nPoints; ++k) {
        if (polygon.isPenLift(k)) {
            image.x[k] = PenLift;
            image.y[k] = PenLift;
        } else {
            MapPoint(ifs, i, polygon.x[k], polygon.y[k], image.x[k], image.y[k]);
        }
    }
    return image;
}

BoundingBox MapBoundingBox(const IFSEntry& ifs, int i, const DesignPolygon& polygon) {
    BoundingBox box;
    if (polygon.nPoints < 1) return box;
    float x, y;
    MapPoint(ifs, i, polygon.x[1], polygon.y[1], x, y);
    box = {x, x, y, y};
    for (int k = 2; k <= polygon.nPoints; ++k) {
        if (polygon.isPenLift(k)) continue;
        MapPoint(ifs, i, polygon.x[k], polygon.y[k], x, y);
        box.xmin = std::min(box.xmin, x);
        box.xmax = std::max(box.xmax, x);
        box.ymin = std::min(box.ymin, y);
        box.ymax = std::max(box.ymax, y);
    }
    return box;
}

void TriangleCentroid(const IFSEntry& ifs, int i, float& cx, float& cy) {
    const DesignPolygon triangle = BuiltInPolygon(6);
    float sx = 0, sy = 0;
    for (int k = 1; k <= 3; ++k) {
        float x, y;
        MapPoint(ifs, i, triangle.x[k], triangle.y[k], x, y);
        sx += x;
        sy += y;
    }
    cx = sx / 3;
    cy = sy / 3;
}

}  // namespace quillane
