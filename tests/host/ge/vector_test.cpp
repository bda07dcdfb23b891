// Points and vectors of the plane and of space.
#include <limits>
#include <numbers>

#include <gtest/gtest.h>

#include "sdk/ge/matrix3d.h"
#include "sdk/ge/point2d.h"
#include "sdk/ge/point3d.h"

namespace {

constexpr double kPi = std::numbers::pi;

TEST(Vector3d, AddsSubtractsAndScalesByComponent) {
    const ZrGeVector3d a(1, 2, 3);
    const ZrGeVector3d b(10, 20, 30);
    EXPECT_EQ(a + b, ZrGeVector3d(11, 22, 33));
    EXPECT_EQ(b - a, ZrGeVector3d(9, 18, 27));
    EXPECT_EQ(a * 2, ZrGeVector3d(2, 4, 6));
    EXPECT_EQ(2 * a, ZrGeVector3d(2, 4, 6));
    EXPECT_EQ(b / 10, a);
    EXPECT_EQ(-a, ZrGeVector3d(-1, -2, -3));
    EXPECT_EQ(ZrGeVector3d(a).negate(), -a);
}

TEST(Vector3d, MultipliesAsDotAndCrossProduct) {
    EXPECT_EQ(ZrGeVector3d(1, 2, 3).dotProduct({4, 5, 6}), 32);
    EXPECT_EQ(ZrGeVector3d(1, 2, 3).crossProduct({4, 5, 6}), ZrGeVector3d(-3, 6, -3));
    EXPECT_EQ(ZrGeVector3d::kXAxis.crossProduct(ZrGeVector3d::kYAxis), ZrGeVector3d::kZAxis);
}

TEST(Vector3d, MeasuresItsLengthWithoutOverflow) {
    EXPECT_EQ(ZrGeVector3d(2, 3, 6).length(), 7);
    EXPECT_EQ(ZrGeVector3d(2, 3, 6).lengthSqrd(), 49);
    EXPECT_DOUBLE_EQ(ZrGeVector3d(3e300, 4e300, 0).length(), 5e300);
}

TEST(Vector3d, NormalHasLengthOneAndKeepsTheVectorItself) {
    ZrGeVector3d v(0, 3, 4);
    EXPECT_TRUE(v.normal().isEqualTo({0, 0.6, 0.8}));
    EXPECT_EQ(v, ZrGeVector3d(0, 3, 4));
    EXPECT_TRUE(v.normalize().isEqualTo({0, 0.6, 0.8}));
    EXPECT_DOUBLE_EQ(v.length(), 1);
}

TEST(Vector3d, OfLengthZeroWithinToleranceStaysAsItIsWhenNormalized) {
    ZrGeVector3d zero;
    EXPECT_EQ(zero.normalize(), ZrGeVector3d());
    ZrGeVector3d tiny(1e-11, 0, 0);
    EXPECT_EQ(tiny.normalize(), ZrGeVector3d(1e-11, 0, 0));
    EXPECT_EQ(tiny.normalize(ZrGeTol(1e-12, 1e-12)), ZrGeVector3d::kXAxis);
}

TEST(Vector3d, IsZeroLengthUpToTheTolerance) {
    EXPECT_TRUE(ZrGeVector3d(1e-10, 0, 0).isZeroLength());
    EXPECT_FALSE(ZrGeVector3d(1.1e-10, 0, 0).isZeroLength());
    EXPECT_TRUE(ZrGeVector3d(0.5, 0, 0).isZeroLength(ZrGeTol(1, 1)));
}

TEST(Vector3d, IsParallelToSameAndOppositeDirectionOfAnyLength) {
    EXPECT_TRUE(ZrGeVector3d(1, 2, 3).isParallelTo({100, 200, 300}));
    EXPECT_TRUE(ZrGeVector3d(1, 2, 3).isParallelTo({-1, -2, -3}));
    EXPECT_FALSE(ZrGeVector3d(1, 2, 3).isParallelTo({1, 2, 3.001}));
    EXPECT_FALSE(ZrGeVector3d(1, 2, 3).isParallelTo({0, 0, 0}));
    EXPECT_FALSE(ZrGeVector3d().isParallelTo({1, 2, 3}));
}

TEST(Vector3d, AngleToIsZeroToPi) {
    EXPECT_DOUBLE_EQ(ZrGeVector3d::kXAxis.angleTo({0, 5, 0}), kPi / 2);
    EXPECT_DOUBLE_EQ(ZrGeVector3d::kXAxis.angleTo({0, -5, 0}), kPi / 2);
    EXPECT_DOUBLE_EQ(ZrGeVector3d::kXAxis.angleTo({-1, 0, 0}), kPi);
    EXPECT_EQ(ZrGeVector3d::kXAxis.angleTo({7, 0, 0}), 0);
}

TEST(Vector3d, AngleAboutAReferenceIsLessThanOneTurn) {
    const ZrGeVector3d z = ZrGeVector3d::kZAxis;
    EXPECT_DOUBLE_EQ(ZrGeVector3d::kXAxis.angleTo({0, 1, 0}, z), kPi / 2);
    EXPECT_DOUBLE_EQ(ZrGeVector3d::kXAxis.angleTo({0, -1, 0}, z), 3 * kPi / 2);
    EXPECT_DOUBLE_EQ(ZrGeVector3d::kXAxis.angleTo({0, -1, 0}, -z), kPi / 2);
    EXPECT_LT(ZrGeVector3d::kXAxis.angleTo({1, -1e-20, 0}, z), 2 * kPi);
}

TEST(Vector3d, PerpVectorFollowsTheArbitraryAxisRule) {
    EXPECT_EQ(ZrGeVector3d::kZAxis.perpVector(), ZrGeVector3d::kXAxis);
    EXPECT_TRUE((-ZrGeVector3d::kZAxis).perpVector().isEqualTo(-ZrGeVector3d::kXAxis));
    EXPECT_TRUE(ZrGeVector3d::kXAxis.perpVector().isEqualTo(ZrGeVector3d::kYAxis));
    EXPECT_TRUE(ZrGeVector3d(0, 5, 0).perpVector().isEqualTo(-ZrGeVector3d::kXAxis));
    EXPECT_EQ(ZrGeVector3d().perpVector(), ZrGeVector3d());
}

TEST(Vector3d, PerpVectorChangesItsHelperAtOneSixtyFourth) {
    const double below = 1.0 / 64 - 1e-6;
    const double above = 1.0 / 64 + 1e-6;
    EXPECT_GT(ZrGeVector3d(0, below, std::sqrt(1 - below * below)).perpVector().x, 0.99);
    EXPECT_LT(ZrGeVector3d(0, above, std::sqrt(1 - above * above)).perpVector().x, -0.99);
}

TEST(Vector3d, RotatesCounterclockwiseAboutAnAxis) {
    ZrGeVector3d v(2, 0, 1);
    EXPECT_TRUE(v.rotateBy(kPi / 2, ZrGeVector3d::kZAxis).isEqualTo({0, 2, 1}));
}

TEST(Vector3d, NanEqualsNothing) {
    const ZrGeVector3d v(std::numeric_limits<double>::quiet_NaN(), 0, 0);
    EXPECT_FALSE(v.isEqualTo(v));
}

TEST(Vector2d, KnowsAnglesCrossProductAndPerpendicular) {
    const ZrGeVector2d v(3, 4);
    EXPECT_EQ(v.length(), 5);
    EXPECT_EQ(v.perpVector(), ZrGeVector2d(-4, 3));
    EXPECT_EQ(v.dotProduct({-4, 3}), 0);
    EXPECT_GT(v.crossProduct({-4, 3}), 0);
    EXPECT_DOUBLE_EQ(ZrGeVector2d(0, -1).angle(), 3 * kPi / 2);
    EXPECT_LT(ZrGeVector2d(1, -1e-20).angle(), 2 * kPi);
    EXPECT_DOUBLE_EQ(ZrGeVector2d(1, 0).angleTo({0, -2}), kPi / 2);
    EXPECT_TRUE(v.normal().isEqualTo({0.6, 0.8}));
    EXPECT_TRUE(v.isParallelTo({-3, -4}));
    EXPECT_FALSE(v.isParallelTo({3, 4.1}));
    EXPECT_FALSE(v.isParallelTo({0, 0}));
    EXPECT_EQ(ZrGeVector2d().normal(), ZrGeVector2d());
}

TEST(Vector2d, AddsSubtractsAndScales) {
    EXPECT_EQ(ZrGeVector2d(1, 2) + ZrGeVector2d(3, 4), ZrGeVector2d(4, 6));
    EXPECT_EQ(ZrGeVector2d(1, 2) - ZrGeVector2d(3, 5), ZrGeVector2d(-2, -3));
    EXPECT_EQ(2 * ZrGeVector2d(1, 2), ZrGeVector2d(2, 4));
    EXPECT_EQ(ZrGeVector2d(2, 4) / 2, ZrGeVector2d(1, 2));
    EXPECT_EQ(-ZrGeVector2d(1, 2), ZrGeVector2d(-1, -2));
}

TEST(Point3d, DiffersFromAnotherByAVector) {
    const ZrGePoint3d p(1, 2, 3);
    EXPECT_EQ(p + ZrGeVector3d(1, 1, 1), ZrGePoint3d(2, 3, 4));
    EXPECT_EQ(p - ZrGeVector3d(1, 1, 1), ZrGePoint3d(0, 1, 2));
    EXPECT_EQ(p - ZrGePoint3d::kOrigin, ZrGeVector3d(1, 2, 3));
    EXPECT_EQ(p.asVector(), ZrGeVector3d(1, 2, 3));
    EXPECT_EQ(ZrGePoint3d(2, 3, 6).distanceTo(ZrGePoint3d::kOrigin), 7);
}

TEST(Point3d, IsEqualUpToThePointTolerance) {
    const ZrGePoint3d p(1e-10, 0, 0);
    EXPECT_TRUE(p.isEqualTo(ZrGePoint3d::kOrigin));
    EXPECT_FALSE(ZrGePoint3d(1.1e-10, 0, 0).isEqualTo(ZrGePoint3d::kOrigin));
    EXPECT_TRUE(ZrGePoint3d(0.5, 0, 0).isEqualTo(ZrGePoint3d::kOrigin, ZrGeTol(1, 0)));
    EXPECT_FALSE(p == ZrGePoint3d::kOrigin);
}

TEST(Point2d, DiffersFromAnotherByAVector) {
    EXPECT_EQ(ZrGePoint2d(1, 2) + ZrGeVector2d(1, 1), ZrGePoint2d(2, 3));
    EXPECT_EQ(ZrGePoint2d(1, 2) - ZrGePoint2d::kOrigin, ZrGeVector2d(1, 2));
    EXPECT_EQ(ZrGePoint2d(3, 4).distanceTo(ZrGePoint2d::kOrigin), 5);
    EXPECT_TRUE(ZrGePoint2d(1e-11, 0).isEqualTo(ZrGePoint2d::kOrigin));
    EXPECT_FALSE(ZrGePoint2d(1e-9, 0).isEqualTo(ZrGePoint2d::kOrigin));
}

} // namespace
