#include "desktop/viewport/aiming.h"

#include <gtest/gtest.h>

namespace quor::desktop::test {
namespace {

constexpr gs::PictureSize kSize{200, 100};

TEST(AimingTest, FromAboveAPointIsOnThePlaneOfTheUcs) {
    const gs::Projector projector(gs::Camera(), kSize);
    const ZrGePoint3d meant = meantPoint(projector, 130, 30, workPlane(ZrGeMatrix3d(), 0));
    EXPECT_TRUE(meant.isEqualTo({30, 20, 0}));
}

TEST(AimingTest, TheElevationLiftsThePlane) {
    const gs::Projector projector(gs::Camera(), kSize);
    const ZrGePoint3d meant = meantPoint(projector, 100, 50, workPlane(ZrGeMatrix3d(), 7));
    EXPECT_TRUE(meant.isEqualTo({0, 0, 7}));
}

TEST(AimingTest, ThePlaneGoesThroughTheOriginOfTheUcs) {
    const ZrGeMatrix3d ucs =
        ZrGeMatrix3d().setCoordSystem({5, 6, 3}, ZrGeVector3d::kXAxis, ZrGeVector3d::kYAxis, ZrGeVector3d::kZAxis);
    const gs::Projector projector(gs::Camera(), kSize);
    EXPECT_TRUE(meantPoint(projector, 100, 50, workPlane(ucs, 2)).isEqualTo({0, 0, 5}));
}

TEST(AimingTest, APlaneSeenFromItsEdgeGivesWayToOneThatFacesTheEye) {
    const gs::Camera fromTheFront = gs::lookingAlong(gs::Camera(), {0, -1, 0});
    const gs::Projector projector(fromTheFront, kSize);
    const ZrGePoint3d meant = meantPoint(projector, 110, 40, workPlane(ZrGeMatrix3d(), 0));
    EXPECT_TRUE(meant.isEqualTo({10, 0, 10}));
}

TEST(AimingTest, APlaneBehindThePerspectiveEyeIsNotMeant) {
    gs::Camera upwards = gs::lookingAlong(gs::Camera(), {0, -1, -0.5});
    upwards.target = {0, 0, 500};
    upwards.projection = gs::Projection::Perspective;
    const gs::Projector projector(upwards, kSize);
    const ZrGePoint3d meant = meantPoint(projector, 100, 50, workPlane(ZrGeMatrix3d(), 0));
    EXPECT_TRUE(meant.isEqualTo(upwards.target, ZrGeTol(1e-6, 1e-6)));
}

TEST(AimingTest, OrthoKeepsTheLongerWayAlongAnAxis) {
    const WorkPlane plane = workPlane(ZrGeMatrix3d(), 0);
    EXPECT_TRUE(alongAnAxis({1, 1, 4}, {9, 3, 0}, plane).isEqualTo({9, 1, 4}));
    EXPECT_TRUE(alongAnAxis({1, 1, 4}, {3, -9, 0}, plane).isEqualTo({1, -9, 4}));
}

TEST(AimingTest, OrthoFollowsTheAxesOfTheUcs) {
    const ZrGeMatrix3d turned = ZrGeMatrix3d().setToRotation(std::numbers::pi / 4, ZrGeVector3d::kZAxis);
    EXPECT_TRUE(alongAnAxis({}, {3, 2, 0}, workPlane(turned, 0)).isEqualTo({2.5, 2.5, 0}));
}

} // namespace
} // namespace quor::desktop::test
