#pragma once
// A function of the working IFS seen in the design window: the image of the initial polygon under
// its coefficients, and that image's bounding box. Drawing, picking and the commands all start here.
#include "core/design_polygon.h"
#include "core/ifs_entry.h"

namespace quillane {

struct BoundingBox {
    float xmin = 0, xmax = 0, ymin = 0, ymax = 0;
    bool operator==(const BoundingBox&) const = default;
};

// The image of (x, y) under function i of `ifs`: (a x + b y + e, c x + d y + f) in 32-bit floats.
void MapPoint(const IFSEntry& ifs, int i, float x, float y, float& xOut, float& yOut);

// PolygonImage(i): the same entries mapped; pen lifts stay (1000, 1000).
DesignPolygon PolygonImageOf(const IFSEntry& ifs, int i, const DesignPolygon& polygon);

// BoundingBoxes(i): the box of the image of entry 1 and of every later entry that is no pen lift.
BoundingBox MapBoundingBox(const IFSEntry& ifs, int i, const DesignPolygon& polygon);

// The centroid of function i's image of the built-in triangle's three vertices, the centre of
// rotations when the initial polygon is a triangle.
void TriangleCentroid(const IFSEntry& ifs, int i, float& cx, float& cy);

}  // namespace quillane
