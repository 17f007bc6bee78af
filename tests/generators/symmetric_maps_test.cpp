#include "generators/symmetric_maps.h"

#include <gtest/gtest.h>

#include <cmath>

namespace quillane::testing {
namespace {

IFSFunction fernStem() {
    IFSFunction m;
    m.a = 0.85f, m.b = 0.04f, m.c = -0.04f, m.d = 0.85f, m.e = 0.0f, m.f = 1.6f, m.p = 0.85f;
    return m;
}

void expectSameMap(const IFSFunction& x, const IFSFunction& y) {
    EXPECT_NEAR(x.a, y.a, 1e-6);
    EXPECT_NEAR(x.b, y.b, 1e-6);
    EXPECT_NEAR(x.c, y.c, 1e-6);
    EXPECT_NEAR(x.d, y.d, 1e-6);
    EXPECT_NEAR(x.e, y.e, 1e-6);
    EXPECT_NEAR(x.f, y.f, 1e-6);
}

TEST(SymmetricMaps, RotationZeroReproducesTheBaseMap) {
    const IFSFunction base = fernStem();
    for (int n : {2, 5, 100}) expectSameMap(RotatedMap(base, 0, n), base);
}

TEST(SymmetricMaps, RotationOfAQuarterTurnTurnsTheImage) {
    // Base: the point (1, 0) goes to (1, 0); a quarter turn then takes it to (0, 1).
    IFSFunction base;
    base.a = 0.5f, base.d = 0.5f, base.e = 0.5f;
    const IFSFunction r = RotatedMap(base, 1, 4);
    EXPECT_NEAR(r.a * 1 + r.e, 0.0, 1e-6);
    EXPECT_NEAR(r.c * 1 + r.f, 1.0, 1e-6);
}

TEST(SymmetricMaps, ReflectionZeroMirrorsInTheXAxis) {
    const IFSFunction base = fernStem();
    const IFSFunction s = ReflectedMap(base, 0, 7);
    EXPECT_FLOAT_EQ(s.a, base.a);
    EXPECT_FLOAT_EQ(s.b, base.b);
    EXPECT_FLOAT_EQ(s.c, -base.c);
    EXPECT_FLOAT_EQ(s.d, -base.d);
    EXPECT_FLOAT_EQ(s.e, base.e);
    EXPECT_FLOAT_EQ(s.f, -base.f);
}

TEST(SymmetricMaps, DihedralFiftyFillsExactlyOneHundredMaps) {
    const IFSEntry ifs = SymmetricFromBase(fernStem(), SymmetryGroup::Dihedral, 50);
    EXPECT_EQ(ifs.nMaps, 100);
    EXPECT_EQ(CopiesPerMap(SymmetryGroup::Dihedral, 50), 100);
    EXPECT_NEAR(ifs.p[0], 0.01, 1e-7);
    EXPECT_NEAR(ifs.p[99], 0.01, 1e-7);
    expectSameMap(ifs.function(50), ReflectedMap(fernStem(), 0, 50));
}

TEST(SymmetricMaps, DihedralFiftyOneDoesNotFit) {
    EXPECT_EQ(LargestOrder(SymmetryGroup::Dihedral, 1), 50);
    IFSEntry one;
    one.nMaps = 1;
    one.setFunction(0, fernStem());
    EXPECT_FALSE(SymmetricFromIFS(one, SymmetryGroup::Dihedral, 51).has_value());
}

TEST(SymmetricMaps, CyclicHundredIsAccepted) {
    const IFSEntry ifs = SymmetricFromBase(fernStem(), SymmetryGroup::Cyclic, 100);
    EXPECT_EQ(ifs.nMaps, 100);
    EXPECT_NEAR(ifs.p[37], 0.01, 1e-7);
    expectSameMap(ifs.function(25), RotatedMap(fernStem(), 25, 100));
}

TEST(SymmetricMaps, ListIFSPlacesCopiesByMapAndSharesItsProbability) {
    IFSEntry src;
    src.nMaps = 2;
    IFSFunction m0 = fernStem();
    m0.p = 0.75f;
    IFSFunction m1;
    m1.a = 0.3f, m1.d = 0.3f, m1.e = 0.2f, m1.p = 0.25f;
    src.setFunction(0, m0);
    src.setFunction(1, m1);
    const auto ifs = SymmetricFromIFS(src, SymmetryGroup::Dihedral, 3);
    ASSERT_TRUE(ifs.has_value());
    ASSERT_EQ(ifs->nMaps, 12);
    // Map j's rotation k at 2 n j + k, its reflection at 2 n j + n + k.
    expectSameMap(ifs->function(2 * 3 * 1 + 2), RotatedMap(m1, 2, 3));
    expectSameMap(ifs->function(2 * 3 * 1 + 3 + 1), ReflectedMap(m1, 1, 3));
    EXPECT_NEAR(ifs->p[0], 0.125, 1e-7);
    EXPECT_NEAR(ifs->p[11], 0.25 / 6, 1e-7);
    const auto cyc = SymmetricFromIFS(src, SymmetryGroup::Cyclic, 4);
    ASSERT_TRUE(cyc.has_value());
    expectSameMap(cyc->function(4 * 1 + 3), RotatedMap(m1, 3, 4));
    EXPECT_EQ(LargestOrder(SymmetryGroup::Cyclic, 3), 33);
    EXPECT_EQ(LargestOrder(SymmetryGroup::Dihedral, 3), 16);
}

TEST(SymmetricMaps, DihedralOrderFourOfASymmetricMapRepeatsItsImages) {
    // A centred square scaled by 1/2 is already symmetric: every rotation and reflection of it is
    // the same map, so the group's 8 maps are all equal to it.
    IFSFunction sq;
    sq.a = 0.5f, sq.d = 0.5f;
    const IFSEntry ifs = SymmetricFromBase(sq, SymmetryGroup::Dihedral, 4);
    ASSERT_EQ(ifs.nMaps, 8);
    // The rotations turn the image by k quarter turns; the square's corners map onto corners.
    for (int i = 0; i < 8; ++i) {
        const IFSFunction m = ifs.function(i);
        EXPECT_NEAR(std::abs(m.a * m.d - m.b * m.c), 0.25, 1e-6) << i;
        EXPECT_NEAR(m.e, 0, 1e-6);
        EXPECT_NEAR(m.f, 0, 1e-6);
        // The image of the corner (1,1) is again a corner of the half square.
        EXPECT_NEAR(std::abs(m.a + m.b), 0.5, 1e-6) << i;
        EXPECT_NEAR(std::abs(m.c + m.d), 0.5, 1e-6) << i;
    }
}

}  // namespace
}  // namespace quillane::testing
