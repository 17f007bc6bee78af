#include "design/map_transforms.h"

#include <gtest/gtest.h>

#include <cmath>

namespace quillane {
namespace {

IFSFunction mapOf(float a, float b, float c, float d, float e, float f, float p = 0.25f) {
    IFSFunction m;
    m.a = a, m.b = b, m.c = c, m.d = d, m.e = e, m.f = f, m.p = p;
    return m;
}

TEST(MapTransforms, TranslationAddsToEAndF) {
    const IFSFunction m = TranslateMap(mapOf(0.5f, 0, 0, 0.5f, 0.1f, 0.2f), 0.3f, -0.4f);
    EXPECT_EQ(m.e, 0.1f + 0.3f);
    EXPECT_EQ(m.f, 0.2f + -0.4f);
    EXPECT_EQ(m.a, 0.5f);
    EXPECT_EQ(m.p, 0.25f);
}

TEST(MapTransforms, ScaleAboutAPointKeepsThatPointsImage) {
    const IFSFunction o = mapOf(0.5f, 0.1f, 0.2f, 0.4f, 0.3f, 0.6f);
    const IFSFunction m = ScaleMapAbout(o, 2, 0.5f, 1, 1);
    EXPECT_EQ(m.a, 1.0f);
    EXPECT_EQ(m.b, 0.2f);
    EXPECT_EQ(m.c, 0.1f);
    EXPECT_EQ(m.d, 0.2f);
    EXPECT_EQ(m.e, 2 * 0.3f + (1 - 2.0f) * 1);
    EXPECT_EQ(m.f, 0.5f * 0.6f + (1 - 0.5f) * 1);
    EXPECT_EQ(m.p, o.p);
}

TEST(MapTransforms, RotationAboutAPointRoundsEachCoefficientOnceToFloat) {
    const IFSFunction o = mapOf(0.5f, 0, 0, 0.5f, 0.25f, 0.5f);
    const double t = 30 * RotateDegToRad;
    const IFSFunction m = RotateMapAbout(o, t, 0.5f, 0.5f);
    EXPECT_EQ(m.a, static_cast<float>(0.5 * std::cos(t)));
    EXPECT_EQ(m.b, static_cast<float>(-0.5 * std::sin(t)));
    EXPECT_EQ(m.c, static_cast<float>(0.5 * std::sin(t)));
    EXPECT_EQ(m.d, static_cast<float>(0.5 * std::cos(t)));
    EXPECT_EQ(m.e, static_cast<float>(-0.25 * std::cos(t) - 0 * std::sin(t) + 0.5));
    EXPECT_EQ(m.f, static_cast<float>(0 * std::cos(t) + -0.25 * std::sin(t) + 0.5));
}

TEST(MapTransforms, QuarterTurnAboutTheOriginSwapsColumns) {
    const IFSFunction m = RotateMapAbout(mapOf(1, 2, 3, 4, 5, 6), 3.141592654 / 2, 0, 0);
    EXPECT_NEAR(m.a, -3, 1e-6);
    EXPECT_NEAR(m.b, -4, 1e-6);
    EXPECT_NEAR(m.c, 1, 1e-6);
    EXPECT_NEAR(m.d, 2, 1e-6);
    EXPECT_NEAR(m.e, -6, 1e-6);
    EXPECT_NEAR(m.f, 5, 1e-6);
}

TEST(MapTransforms, VerticalShearChangesOnlyTheSecondRow) {
    const IFSFunction o = mapOf(0.5f, 0.1f, 0.2f, 0.4f, 0.3f, 0.6f);
    const IFSFunction m = ShearMapVertical(o, 0.5, 0.1f);
    EXPECT_EQ(m.c, static_cast<float>(0.5f * 0.5 + 0.2f));
    EXPECT_EQ(m.d, static_cast<float>(0.1f * 0.5 + 0.4f));
    EXPECT_EQ(m.f, static_cast<float>((0.3f - 0.1f) * 0.5 + 0.6f));
    EXPECT_EQ(m.a, o.a);
    EXPECT_EQ(m.b, o.b);
    EXPECT_EQ(m.e, o.e);
}

TEST(MapTransforms, HorizontalShearChangesOnlyTheFirstRow) {
    const IFSFunction o = mapOf(0.5f, 0.1f, 0.2f, 0.4f, 0.3f, 0.6f);
    const IFSFunction m = ShearMapHorizontal(o, -0.25, 0.2f);
    EXPECT_EQ(m.a, static_cast<float>(0.2f * -0.25 + 0.5f));
    EXPECT_EQ(m.b, static_cast<float>(0.4f * -0.25 + 0.1f));
    EXPECT_EQ(m.e, static_cast<float>((0.6f - 0.2f) * -0.25 + 0.3f));
    EXPECT_EQ(m.c, o.c);
    EXPECT_EQ(m.d, o.d);
    EXPECT_EQ(m.f, o.f);
}

TEST(MapTransforms, HorizontalReflectionNegatesTheFirstRowAndMirrorsE) {
    const IFSFunction m = ReflectMap(mapOf(0.5f, 0.1f, 0.2f, 0.4f, 0.3f, 0.6f), -1, 0.5f, 0.75f);
    EXPECT_EQ(m.a, -0.5f);
    EXPECT_EQ(m.b, -0.1f);
    EXPECT_EQ(m.c, 0.2f);
    EXPECT_EQ(m.d, 0.4f);
    EXPECT_EQ(m.e, (0.3f - 0.5f) * -1 + 0.5f);
    EXPECT_EQ(m.f, 0.6f);
}

TEST(MapTransforms, VerticalReflectionNegatesTheSecondRowAndMirrorsF) {
    const IFSFunction m = ReflectMap(mapOf(0.5f, 0.1f, 0.2f, 0.4f, 0.3f, 0.6f), 1, 0.5f, 0.75f);
    EXPECT_EQ(m.a, 0.5f);
    EXPECT_EQ(m.c, -0.2f);
    EXPECT_EQ(m.d, -0.4f);
    EXPECT_EQ(m.e, 0.3f);
    EXPECT_EQ(m.f, (0.6f - 0.75f) * -1 + 0.75f);
}

TEST(MapTransforms, StretchMultipliesColumnsAndScaleTheMatrixOnly) {
    const IFSFunction o = mapOf(1, 2, 3, 4, 5, 6);
    const IFSFunction s = StretchColumns(o, 2, 0.5f);
    EXPECT_EQ(s.a, 2);
    EXPECT_EQ(s.b, 1);
    EXPECT_EQ(s.c, 6);
    EXPECT_EQ(s.d, 2);
    EXPECT_EQ(s.e, 5);
    const IFSFunction m = ScaleMatrix(o, 0.5f);
    EXPECT_EQ(m.a, 0.5f);
    EXPECT_EQ(m.d, 2);
    EXPECT_EQ(m.e, 5);
    EXPECT_EQ(m.f, 6);
}

TEST(MapTransforms, StoreCoefficientsLeavesTheProbability) {
    IFSEntry ifs;
    ifs.nMaps = 1;
    ifs.p[0] = 0.7f;
    StoreCoefficients(ifs, 0, mapOf(1, 2, 3, 4, 5, 6, 0.1f));
    EXPECT_EQ(ifs.a[0], 1);
    EXPECT_EQ(ifs.f[0], 6);
    EXPECT_EQ(ifs.p[0], 0.7f);
}

}  // namespace
}  // namespace quillane
