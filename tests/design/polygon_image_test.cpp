#include "design/polygon_image.h"

#include <gtest/gtest.h>

#include "core/initial_polygons.h"

namespace quillane {
namespace {

IFSEntry oneMap(float a, float b, float c, float d, float e, float f) {
    IFSEntry ifs;
    ifs.nMaps = 1;
    ifs.a[0] = a;
    ifs.b[0] = b;
    ifs.c[0] = c;
    ifs.d[0] = d;
    ifs.e[0] = e;
    ifs.f[0] = f;
    return ifs;
}

TEST(PolygonImage, PenLiftsStayAndVerticesAreMapped) {
    IFSEntry ifs = oneMap(0.5f, 0, 0, 0.5f, 1, 2);
    DesignPolygon image = PolygonImageOf(ifs, 0, BuiltInPolygon(0));
    ASSERT_EQ(image.nPoints, 9);
    EXPECT_EQ(image.x[6], PenLift);
    EXPECT_EQ(image.y[6], PenLift);
    EXPECT_FLOAT_EQ(image.x[3], 1.5f);
    EXPECT_FLOAT_EQ(image.y[3], 2.5f);
    EXPECT_FLOAT_EQ(image.x[7], 1.05f);
    EXPECT_FLOAT_EQ(image.y[7], 2.45f);
}

TEST(PolygonImage, APenLiftAddsNothingToTheBoundingBox) {
    IFSEntry ifs = oneMap(1, 0, 0, 1, 0, 0);
    DesignPolygon p;
    p.add(0, 0);
    p.add(1, 0);
    p.addPenLift();
    p.add(2, 3);
    EXPECT_EQ(MapBoundingBox(ifs, 0, p), (BoundingBox{0, 2, 0, 3}));
}

TEST(PolygonImage, ARotatedSquareHasTheBoxOfItsCorners) {
    IFSEntry ifs = oneMap(0, -1, 1, 0, 0, 0);  // a quarter turn
    EXPECT_EQ(MapBoundingBox(ifs, 0, BuiltInPolygon(7)), (BoundingBox{-1, 0, 0, 1}));
}

TEST(PolygonImage, TheTriangleCentroidIsTheMeanOfTheMappedCorners) {
    IFSEntry ifs = oneMap(2, 0, 0, 2, 1, 0);
    float cx, cy;
    TriangleCentroid(ifs, 0, cx, cy);
    EXPECT_FLOAT_EQ(cx, 2.0f);
    EXPECT_NEAR(cy, 2 * 0.8660254f / 3, 1e-6);
}

}  // namespace
}  // namespace quillane
