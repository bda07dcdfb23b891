#include "host/commands/ucs_math.h"

#include <gtest/gtest.h>

#include <numbers>

namespace quor::commands {

namespace {

constexpr double kQuarter = std::numbers::pi / 2;

// World with its origin at 1,2,3, turned a quarter about Z.
db::Ucs turnedUcs() { return {{1, 2, 3}, ZrGeVector3d::kYAxis, {-1, 0, 0}, {}}; }

TEST(UcsMath, MovedKeepsTheAxes) {
    const db::Ucs moved = movedUcs(turnedUcs(), {5, 6, 7});

    EXPECT_EQ(moved.origin, ZrGePoint3d(5, 6, 7));
    EXPECT_EQ(moved.xAxis, ZrGeVector3d::kYAxis);
    EXPECT_EQ(moved.yAxis, ZrGeVector3d(-1, 0, 0));
}

TEST(UcsMath, APointOnXTurnsTheAxesAboutTheZAxis) {
    const auto ucs = ucsTowards(db::Ucs(), {0, 0, 0}, {0, 5, 0});

    ASSERT_TRUE(ucs.has_value());
    EXPECT_TRUE(ucs->xAxis.isEqualTo(ZrGeVector3d::kYAxis));
    EXPECT_TRUE(zAxisOf(*ucs).isEqualTo(ZrGeVector3d::kZAxis));
}

TEST(UcsMath, APointOnXOutOfThePlaneTiltsTheZAxisAsLittleAsPossible) {
    const auto ucs = ucsTowards(db::Ucs(), {0, 0, 0}, {1, 0, 1});

    ASSERT_TRUE(ucs.has_value());
    EXPECT_TRUE(zAxisOf(*ucs).isEqualTo(ZrGeVector3d(-1, 0, 1).normal()));
}

TEST(UcsMath, APointOnXStraightAboveTheOriginGivesRightAngledAxes) {
    const auto ucs = ucsTowards(db::Ucs(), {0, 0, 0}, {0, 0, 2});

    ASSERT_TRUE(ucs.has_value());
    EXPECT_TRUE(ucs->xAxis.isEqualTo(ZrGeVector3d::kZAxis));
    EXPECT_NEAR(ucs->xAxis.dotProduct(ucs->yAxis), 0, 1e-12);
    EXPECT_NEAR(ucs->yAxis.length(), 1, 1e-12);
}

TEST(UcsMath, AnOriginOnItsOwnXAxisGivesNothing) {
    EXPECT_FALSE(ucsTowards(db::Ucs(), {1, 1, 1}, {1, 1, 1}).has_value());
}

TEST(UcsMath, ThreePointsGiveYOnTheSideOfTheThird) {
    const auto ucs = ucsThrough({0, 0, 0}, {2, 0, 0}, {1, -3, 0});

    ASSERT_TRUE(ucs.has_value());
    EXPECT_TRUE(ucs->yAxis.isEqualTo(ZrGeVector3d(0, -1, 0)));
    EXPECT_TRUE(zAxisOf(*ucs).isEqualTo(ZrGeVector3d(0, 0, -1)));
}

TEST(UcsMath, ThreePointsInLineGiveNothing) { EXPECT_FALSE(ucsThrough({0, 0, 0}, {1, 1, 0}, {-3, -3, 0}).has_value()); }

TEST(UcsMath, AZAxisAlongWorldYTakesItsXByTheArbitraryAxisRule) {
    const auto ucs = ucsAlongZ({0, 0, 0}, {0, 1, 0});

    ASSERT_TRUE(ucs.has_value());
    EXPECT_TRUE(ucs->xAxis.isEqualTo({-1, 0, 0}));
    EXPECT_TRUE(zAxisOf(*ucs).isEqualTo(ZrGeVector3d::kYAxis));
}

TEST(UcsMath, AZAxisWithoutLengthGivesNothing) { EXPECT_FALSE(ucsAlongZ({1, 0, 0}, {1, 0, 0}).has_value()); }

TEST(UcsMath, RotationAboutZTurnsXToY) {
    const db::Ucs turned = rotatedUcs(db::Ucs(), L'Z', kQuarter);

    EXPECT_TRUE(turned.xAxis.isEqualTo(ZrGeVector3d::kYAxis));
    EXPECT_TRUE(zAxisOf(turned).isEqualTo(ZrGeVector3d::kZAxis));
}

TEST(UcsMath, RotationIsAboutTheOwnAxisNotTheWorlds) {
    const db::Ucs turned = rotatedUcs(turnedUcs(), L'X', kQuarter);

    EXPECT_TRUE(turned.xAxis.isEqualTo(ZrGeVector3d::kYAxis));
    EXPECT_TRUE(turned.yAxis.isEqualTo(ZrGeVector3d::kZAxis));
    EXPECT_EQ(turned.origin, ZrGePoint3d(1, 2, 3));
}

TEST(UcsMath, RotationAboutYKeepsY) {
    const db::Ucs turned = rotatedUcs(db::Ucs(), L'Y', kQuarter);

    EXPECT_TRUE(turned.yAxis.isEqualTo(ZrGeVector3d::kYAxis));
    EXPECT_TRUE(turned.xAxis.isEqualTo({0, 0, -1}));
}

TEST(UcsMath, SameUcsSeesOriginAndAxes) {
    EXPECT_TRUE(sameUcs(turnedUcs(), turnedUcs()));
    EXPECT_FALSE(sameUcs(turnedUcs(), movedUcs(turnedUcs(), {1, 2, 4})));
    EXPECT_FALSE(sameUcs(turnedUcs(), rotatedUcs(turnedUcs(), L'Z', kQuarter)));
}

TEST(UcsMath, WorldFromUcsTakesTheOriginOfTheUcsToItsPlace) {
    EXPECT_TRUE((worldFromUcs(turnedUcs()) * ZrGePoint3d(1, 0, 0)).isEqualTo({1, 3, 3}));
}

} // namespace

} // namespace quor::commands
