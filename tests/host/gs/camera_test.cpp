#include "host/gs/camera.h"

#include <gmock/gmock.h>

#include <limits>
#include <numbers>

namespace quor::gs {
namespace {

constexpr PictureSize kSize{800, 600};

Camera oblique(Projection projection) {
    Camera camera;
    camera.target = {10, 20, 30};
    camera.height = 50;
    camera.projection = projection;
    return lookingAlong(camera, {1, -2, 1.5});
}

Box sampleBox() {
    Box box;
    box.add({-5, 2, 1});
    box.add({95, 42, 21});
    return box;
}

// Seen from the middle of the picture in either direction.
struct CameraTest : testing::TestWithParam<Projection> {
    Camera camera = oblique(GetParam());
};
INSTANTIATE_TEST_SUITE_P(Projections, CameraTest, testing::Values(Projection::Parallel, Projection::Perspective));

MATCHER_P2(IsNear, expected, tolerance, "") { return arg.distanceTo(expected) <= tolerance; }

MATCHER(IsUpright, "") {
    return std::abs(arg.up.length() - 1) < 1e-12 && std::abs(arg.backward.length() - 1) < 1e-12 &&
           std::abs(arg.up.dotProduct(arg.backward)) < 1e-12;
}

TEST(BoxTest, IsEmptyUntilAPointIsPutIn) {
    Box box;
    EXPECT_TRUE(box.isEmpty());
    EXPECT_EQ(box.diagonal(), 0);
    box.add({1, 2, 3});
    EXPECT_FALSE(box.isEmpty());
    EXPECT_EQ(box.center(), ZrGePoint3d(1, 2, 3));
}

TEST(BoxTest, AnEmptyBoxAddsNothingToAnother) {
    Box box = sampleBox();
    box.add(Box());
    EXPECT_EQ(box.low, ZrGePoint3d(-5, 2, 1));
    EXPECT_EQ(box.high, ZrGePoint3d(95, 42, 21));
}

TEST_P(CameraTest, TheTargetStandsInTheMiddleOfThePicture) {
    const auto at = Projector(camera, kSize).toScreen(camera.target);
    ASSERT_TRUE(at);
    EXPECT_NEAR(at->x, 400, 1e-9);
    EXPECT_NEAR(at->y, 300, 1e-9);
    EXPECT_NEAR(at->depth, camera.eyeDistance(), 1e-9);
}

TEST_P(CameraTest, ThePlaneThroughTheTargetShowsTheHeightFromTopToBottom) {
    const Projector projector(camera, kSize);
    EXPECT_NEAR(projector.toScreen(camera.target + camera.up * 25)->y, 0, 1e-9);
    EXPECT_NEAR(projector.toScreen(camera.target - camera.up * 25)->y, 600, 1e-9);
    EXPECT_NEAR(projector.unitsPerPixel(camera.target), 50.0 / 600, 1e-12);
}

TEST_P(CameraTest, WhatIsNearerHasLessDepth) {
    const Projector projector(camera, kSize);
    EXPECT_LT(projector.toScreen(camera.target + camera.backward * 3)->depth,
              projector.toScreen(camera.target - camera.backward * 3)->depth);
}

TEST_P(CameraTest, ARayGoesThroughThePointsThatItsPixelShows) {
    const Projector projector(camera, kSize);
    const ZrGePoint3d point(12, 17, 33);
    const auto at = projector.toScreen(point);
    const Ray ray = projector.rayAt(at->x, at->y);
    const double along = (point - ray.origin).dotProduct(ray.direction);
    EXPECT_THAT(ray.origin + ray.direction * along, IsNear(point, 1e-9));
    EXPECT_NEAR(ray.direction.length(), 1, 1e-12);
    EXPECT_GT(along, 0);
}

TEST_P(CameraTest, APointOfAPlaneIsFoundBehindItsPixel) {
    const Projector projector(camera, kSize);
    const ZrGePoint3d point(22, 11, 5);
    const auto at = projector.toScreen(point);
    EXPECT_THAT(*projector.onPlane(at->x, at->y, {0, 0, 5}, ZrGeVector3d::kZAxis), IsNear(point, 1e-9));
}

TEST_P(CameraTest, APlaneThatIsSeenEdgeOnIsNotHit) {
    EXPECT_FALSE(Projector(camera, kSize).onPlane(400, 300, {0, 0, 0}, camera.up));
}

TEST_P(CameraTest, FarFromTheOriginPixelsAreAsExact) {
    camera.target += ZrGeVector3d(1e7, -1e7, 1e7);
    const Projector projector(camera, kSize);
    const ZrGePoint3d point = camera.target + ZrGeVector3d(3, 4, 5);
    const auto at = projector.toScreen(point);
    EXPECT_THAT(*projector.onPlane(at->x, at->y, point, ZrGeVector3d::kZAxis), IsNear(point, 1e-7));
}

TEST_P(CameraTest, OrbitingKeepsTheDistanceFromItsCenter) {
    const ZrGePoint3d center(3, 4, 5);
    const Camera turned = orbited(camera, center, 0.7, 0.2);
    EXPECT_NEAR(turned.eye().distanceTo(center), camera.eye().distanceTo(center), 1e-9);
    EXPECT_EQ(turned.height, camera.height);
    EXPECT_THAT(turned, IsUpright());
}

TEST_P(CameraTest, OrbitingAcrossTurnsTheEyeCounterclockwiseAboutTheZAxis) {
    camera = lookingAlong(camera, {1, 0, 0});
    const Camera turned = orbited(camera, camera.target, std::numbers::pi / 2, 0);
    EXPECT_TRUE(turned.backward.isEqualTo(ZrGeVector3d::kYAxis));
    EXPECT_TRUE(turned.up.isEqualTo(ZrGeVector3d::kZAxis));
}

TEST_P(CameraTest, OrbitingOverRaisesTheEye) {
    camera = lookingAlong(camera, {1, 0, 0});
    const Camera raised = orbited(camera, camera.target, 0, std::numbers::pi / 6);
    EXPECT_NEAR(raised.backward.z, 0.5, 1e-12);
}

TEST_P(CameraTest, OrbitingStopsStraightAbove) {
    camera = lookingAlong(camera, {1, 0, 1});
    const Camera raised = orbited(camera, camera.target, 0, 2);
    EXPECT_TRUE(raised.backward.isEqualTo(ZrGeVector3d::kZAxis));
    EXPECT_THAT(raised, IsUpright());
}

TEST_P(CameraTest, OrbitingFromAboveCanOnlySink) {
    camera = lookingAlong(camera, {0, 0, 1});
    EXPECT_TRUE(orbited(camera, camera.target, 0, 0.5).backward.isEqualTo(ZrGeVector3d::kZAxis));
    EXPECT_NEAR(orbited(camera, camera.target, 0, -0.5).backward.z, std::cos(0.5), 1e-12);
}

TEST_P(CameraTest, PanningTakesThePointUnderTheCursorAlong) {
    const Projector before(camera, kSize);
    const ZrGePoint3d held = *before.onPlane(100, 50, camera.target, camera.backward);
    const auto at = Projector(panned(camera, kSize, 70, -20), kSize).toScreen(held);
    EXPECT_NEAR(at->x, 170, 1e-9);
    EXPECT_NEAR(at->y, 30, 1e-9);
}

TEST_P(CameraTest, ZoomingKeepsThePointUnderTheCursor) {
    const Projector before(camera, kSize);
    const Ray ray = before.rayAt(123, 456);
    const ZrGePoint3d point = ray.origin + ray.direction * 90;
    const Camera nearer = zoomedAt(camera, kSize, 123, 456, 1.5);
    const auto at = Projector(nearer, kSize).toScreen(point);
    EXPECT_NEAR(at->x, 123, 1e-9);
    EXPECT_NEAR(at->y, 456, 1e-9);
    EXPECT_NEAR(nearer.height, camera.height / 1.5, 1e-12);
}

TEST_P(CameraTest, ZoomingBackGivesTheSamePicture) {
    const Camera there = zoomedAt(camera, kSize, 20, 30, 4);
    const Camera back = zoomedAt(there, kSize, 20, 30, 0.25);
    EXPECT_THAT(back.target, IsNear(camera.target, 1e-9));
    EXPECT_NEAR(back.height, camera.height, 1e-12);
}

TEST_P(CameraTest, AFactorThatIsNoneChangesNothing) {
    EXPECT_EQ(zoomedAt(camera, kSize, 1, 2, 0), camera);
    EXPECT_EQ(zoomedAt(camera, kSize, 1, 2, -3), camera);
    EXPECT_EQ(zoomedAt(camera, kSize, 1, 2, std::numeric_limits<double>::infinity()), camera);
    EXPECT_EQ(zoomedAt(camera, kSize, 1, 2, std::numeric_limits<double>::quiet_NaN()), camera);
}

TEST_P(CameraTest, ZoomingStopsWhereNumbersEnd) {
    EXPECT_EQ(zoomedAt(camera, kSize, 1, 2, 1e20), camera);
    EXPECT_EQ(zoomedAt(camera, kSize, 1, 2, 1e-20), camera);
}

TEST_P(CameraTest, AFittedPictureShowsAllCornersWithAMargin) {
    const Box box = sampleBox();
    const Projector projector(fitted(camera, kSize, box), kSize);
    double leastEdge = 1000;
    for (const double x : {box.low.x, box.high.x})
        for (const double y : {box.low.y, box.high.y})
            for (const double z : {box.low.z, box.high.z}) {
                const auto at = projector.toScreen({x, y, z});
                ASSERT_TRUE(at);
                leastEdge = std::min({leastEdge, at->x, kSize.width - at->x, at->y, kSize.height - at->y});
            }
    EXPECT_GT(leastEdge, 5);
    EXPECT_LT(leastEdge, 60);
}

TEST_P(CameraTest, FittingKeepsTheDirection) {
    const Camera whole = fitted(camera, kSize, sampleBox());
    EXPECT_EQ(whole.backward, camera.backward);
    EXPECT_EQ(whole.up, camera.up);
    EXPECT_EQ(whole.target, sampleBox().center());
}

TEST_P(CameraTest, FittingAnEmptyBoxChangesNothing) { EXPECT_EQ(fitted(camera, kSize, Box()), camera); }

TEST_P(CameraTest, FittingASinglePointOnlyMovesThere) {
    Box box;
    box.add({7, 8, 9});
    const Camera there = fitted(camera, kSize, box);
    EXPECT_EQ(there.target, ZrGePoint3d(7, 8, 9));
    EXPECT_EQ(there.height, camera.height);
}

TEST_P(CameraTest, FittingALineThatIsLookedAlongShowsIt) {
    camera = lookingAlong(camera, {0, 0, 1});
    Box box;
    box.add({0, 0, -100});
    box.add({0, 0, 100});
    const Projector projector(fitted(camera, kSize, box), kSize);
    EXPECT_TRUE(projector.toScreen({0, 0, 100}));
    EXPECT_TRUE(projector.toScreen({0, 0, -100}));
}

TEST_P(CameraTest, FromTheSideTheZAxisPointsUpwards) {
    const Camera side = lookingAlong(camera, {0, -10, 0});
    EXPECT_TRUE(side.backward.isEqualTo({0, -1, 0}));
    EXPECT_TRUE(side.up.isEqualTo(ZrGeVector3d::kZAxis));
    EXPECT_TRUE(side.right().isEqualTo(ZrGeVector3d::kXAxis));
}

TEST_P(CameraTest, FromAboveAndBelowTheYAxisPointsUpwards) {
    EXPECT_EQ(lookingAlong(camera, {0, 0, 3}).up, ZrGeVector3d::kYAxis);
    EXPECT_EQ(lookingAlong(camera, {0, 0, -3}).up, ZrGeVector3d::kYAxis);
    EXPECT_EQ(lookingAlong(camera, {0, 0, -3}).backward, -ZrGeVector3d::kZAxis);
}

TEST_P(CameraTest, ADirectionThatIsNoneChangesNothing) {
    EXPECT_EQ(lookingAlong(camera, {0, 0, 0}), camera);
    EXPECT_EQ(lookingAlong(camera, {std::numeric_limits<double>::quiet_NaN(), 0, 1}), camera);
}

TEST(ProjectorTest, InPerspectiveNothingIsSeenBehindTheEye) {
    const Camera camera = oblique(Projection::Perspective);
    const Projector projector(camera, kSize);
    EXPECT_FALSE(projector.toScreen(camera.eye()));
    EXPECT_FALSE(projector.toScreen(camera.eye() + camera.backward));
    EXPECT_FALSE(projector.onPlane(400, 300, camera.eye() + camera.backward, camera.backward));
}

TEST(ProjectorTest, InPerspectiveFartherPixelsShowMore) {
    const Camera camera = oblique(Projection::Perspective);
    const Projector projector(camera, kSize);
    const ZrGePoint3d twiceAsFar = camera.target - camera.backward * camera.eyeDistance();
    EXPECT_NEAR(projector.unitsPerPixel(twiceAsFar), 2 * projector.unitsPerPixel(camera.target), 1e-12);
}

TEST(ProjectorTest, AParallelPictureShowsWhatIsBehindItsEyeToo) {
    const Camera camera = oblique(Projection::Parallel);
    EXPECT_TRUE(Projector(camera, kSize).toScreen(camera.eye() + camera.backward * 5));
}

} // namespace
} // namespace quor::gs
