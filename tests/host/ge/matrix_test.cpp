// Transformations of space.
#include "sdk/ge/matrix3d.h"

#include <limits>
#include <numbers>

#include <gtest/gtest.h>

namespace {

constexpr double kPi = std::numbers::pi;

ZrGeMatrix3d skewSystem() {
    ZrGeMatrix3d m;
    m.setCoordSystem({5, -7, 11}, {1, 2, 0}, {0, 3, 1}, {2, 0, 4});
    return m;
}

TEST(Matrix3d, IsTheIdentityWhenNew) {
    EXPECT_EQ(ZrGeMatrix3d(), ZrGeMatrix3d::kIdentity);
    EXPECT_EQ(ZrGeMatrix3d() * ZrGePoint3d(1, 2, 3), ZrGePoint3d(1, 2, 3));
    EXPECT_EQ(skewSystem().setToIdentity(), ZrGeMatrix3d::kIdentity);
}

TEST(Matrix3d, TranslationMovesPointsAndLeavesVectors) {
    const ZrGeMatrix3d m = ZrGeMatrix3d().setToTranslation({10, 20, 30});
    EXPECT_EQ(m * ZrGePoint3d(1, 2, 3), ZrGePoint3d(11, 22, 33));
    EXPECT_EQ(m * ZrGeVector3d(1, 2, 3), ZrGeVector3d(1, 2, 3));
    EXPECT_EQ(m.translation(), ZrGeVector3d(10, 20, 30));
}

TEST(Matrix3d, RotationTurnsCounterclockwiseAboutItsCentre) {
    const ZrGeMatrix3d m = ZrGeMatrix3d().setToRotation(kPi / 2, {0, 0, 9}, {1, 1, 0});
    EXPECT_TRUE((m * ZrGePoint3d(2, 1, 5)).isEqualTo({1, 2, 5}));
    EXPECT_TRUE((m * ZrGePoint3d(1, 1, 5)).isEqualTo({1, 1, 5}));
    EXPECT_TRUE((m * ZrGeVector3d(0, 1, 0)).isEqualTo({-1, 0, 0}));
}

TEST(Matrix3d, RotationAboutTheDiagonalExchangesTheAxes) {
    const ZrGeMatrix3d m = ZrGeMatrix3d().setToRotation(2 * kPi / 3, {1, 1, 1});
    EXPECT_TRUE((m * ZrGeVector3d::kXAxis).isEqualTo(ZrGeVector3d::kYAxis));
    EXPECT_TRUE((m * ZrGeVector3d::kYAxis).isEqualTo(ZrGeVector3d::kZAxis));
}

TEST(Matrix3d, RotationAboutAnAxisOfLengthZeroIsTheIdentity) {
    EXPECT_EQ(ZrGeMatrix3d().setToRotation(1, {0, 0, 0}), ZrGeMatrix3d::kIdentity);
}

TEST(Matrix3d, ScalingKeepsItsCentre) {
    const ZrGeMatrix3d m = ZrGeMatrix3d().setToScaling(3, {1, 2, 3});
    EXPECT_EQ(m * ZrGePoint3d(1, 2, 3), ZrGePoint3d(1, 2, 3));
    EXPECT_EQ(m * ZrGePoint3d(2, 2, 3), ZrGePoint3d(4, 2, 3));
    EXPECT_DOUBLE_EQ(m.det(), 27);
}

TEST(Matrix3d, ProductAppliesTheRightFactorFirst) {
    const ZrGeMatrix3d turn = ZrGeMatrix3d().setToRotation(kPi / 2, ZrGeVector3d::kZAxis);
    const ZrGeMatrix3d shift = ZrGeMatrix3d().setToTranslation({10, 0, 0});
    EXPECT_TRUE((shift * turn * ZrGePoint3d(1, 0, 0)).isEqualTo({10, 1, 0}));
    EXPECT_TRUE((turn * shift * ZrGePoint3d(1, 0, 0)).isEqualTo({0, 11, 0}));
    EXPECT_EQ(ZrGeMatrix3d(shift).preMultBy(turn), turn * shift);
    EXPECT_EQ(ZrGeMatrix3d(shift).postMultBy(turn), shift * turn);
}

TEST(Matrix3d, MultipliedByItselfInPlaceGivesItsSquare) {
    ZrGeMatrix3d m = skewSystem();
    const ZrGeMatrix3d square = skewSystem() * skewSystem();
    m *= m;
    EXPECT_EQ(m, square);
}

TEST(Matrix3d, GivesBackTheCoordinateSystemItWasMadeOf) {
    ZrGePoint3d origin;
    ZrGeVector3d x;
    ZrGeVector3d y;
    ZrGeVector3d z;
    skewSystem().getCoordSystem(origin, x, y, z);
    EXPECT_EQ(origin, ZrGePoint3d(5, -7, 11));
    EXPECT_EQ(x, ZrGeVector3d(1, 2, 0));
    EXPECT_EQ(y, ZrGeVector3d(0, 3, 1));
    EXPECT_EQ(z, ZrGeVector3d(2, 0, 4));
    EXPECT_EQ(skewSystem() * ZrGePoint3d(1, 0, 0), ZrGePoint3d(6, -5, 11));
}

TEST(Matrix3d, InverseIsTheWayBack) {
    const ZrGeMatrix3d m = skewSystem();
    EXPECT_TRUE((m * m.inverse()).isEqualTo(ZrGeMatrix3d::kIdentity));
    EXPECT_TRUE((m.inverse() * m).isEqualTo(ZrGeMatrix3d::kIdentity));
    EXPECT_FALSE(m.isEqualTo(ZrGeMatrix3d::kIdentity));
    EXPECT_TRUE(ZrGeMatrix3d(m).invert().isEqualTo(m.inverse()));
}

TEST(Matrix3d, VerySmallScalesCanStillBeInverted) {
    const ZrGeMatrix3d m = ZrGeMatrix3d().setToScaling(1e-20);
    EXPECT_FALSE(m.isSingular());
    EXPECT_TRUE((m * m.inverse()).isEqualTo(ZrGeMatrix3d::kIdentity));
}

TEST(Matrix3d, WithAxesInOnePlaneIsSingularAndItsInverseTheIdentity) {
    ZrGeMatrix3d m;
    m.setCoordSystem({1, 2, 3}, {1, 0, 0}, {0, 1, 0}, {1, 1, 0});
    EXPECT_TRUE(m.isSingular());
    EXPECT_EQ(m.inverse(), ZrGeMatrix3d::kIdentity);
    EXPECT_TRUE(ZrGeMatrix3d().setToScaling(0).isSingular());
}

TEST(Matrix3d, WithNanCountsAsSingular) {
    EXPECT_TRUE(ZrGeMatrix3d().setToScaling(std::numeric_limits<double>::quiet_NaN()).isSingular());
}

TEST(Matrix3d, AlignmentTakesOneSystemOntoTheOther) {
    const ZrGeMatrix3d m = ZrGeMatrix3d().setToAlignCoordSys({1, 1, 1}, {1, 0, 0}, {0, 1, 0}, {0, 0, 1}, //
                                                             {10, 10, 10}, {0, 1, 0}, {0, 0, 1}, {1, 0, 0});
    EXPECT_TRUE((m * ZrGePoint3d(1, 1, 1)).isEqualTo({10, 10, 10}));
    EXPECT_TRUE((m * ZrGePoint3d(2, 1, 1)).isEqualTo({10, 11, 10}));
    EXPECT_TRUE((m * ZrGeVector3d::kZAxis).isEqualTo(ZrGeVector3d::kXAxis));
}

TEST(Matrix3d, AlignmentFromAFlatSystemIsTheIdentity) {
    const ZrGeMatrix3d m = ZrGeMatrix3d().setToAlignCoordSys({}, {1, 0, 0}, {1, 0, 0}, {0, 0, 1}, {9, 9, 9}, {1, 0, 0},
                                                             {0, 1, 0}, {0, 0, 1});
    EXPECT_EQ(m, ZrGeMatrix3d::kIdentity);
}

TEST(Matrix3d, PlaneToWorldIsRightHandedWithTheArbitraryXAxis) {
    const ZrGeMatrix3d m = ZrGeMatrix3d().setToPlaneToWorld({0, -2, 0});
    EXPECT_TRUE((m * ZrGeVector3d::kXAxis).isEqualTo({1, 0, 0}));
    EXPECT_TRUE((m * ZrGeVector3d::kYAxis).isEqualTo({0, 0, 1}));
    EXPECT_TRUE((m * ZrGeVector3d::kZAxis).isEqualTo({0, -1, 0}));
    EXPECT_EQ(ZrGeMatrix3d().setToPlaneToWorld(ZrGeVector3d::kZAxis), ZrGeMatrix3d::kIdentity);
    EXPECT_EQ(ZrGeMatrix3d().setToPlaneToWorld({}), ZrGeMatrix3d::kIdentity);
}

TEST(Matrix3d, TransformsInPlace) {
    const ZrGeMatrix3d m = ZrGeMatrix3d().setToTranslation({1, 0, 0});
    EXPECT_EQ(ZrGePoint3d(1, 1, 1).transformBy(m), ZrGePoint3d(2, 1, 1));
    EXPECT_EQ(ZrGeVector3d(1, 1, 1).transformBy(m), ZrGeVector3d(1, 1, 1));
}

TEST(Matrix3d, ComparesWithATolerance) {
    ZrGeMatrix3d m;
    m(0, 3) = 1e-11;
    EXPECT_TRUE(m.isEqualTo(ZrGeMatrix3d::kIdentity));
    EXPECT_NE(m, ZrGeMatrix3d::kIdentity);
    m(0, 3) = 1e-9;
    EXPECT_FALSE(m.isEqualTo(ZrGeMatrix3d::kIdentity));
}

} // namespace
