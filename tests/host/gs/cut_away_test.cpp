#include "host/gs/cut_away.h"

#include "host/gs/picking.h"

#include <gtest/gtest.h>

namespace quor::gs {
namespace {

constexpr float kFar = 10000;
constexpr float kHigh = 3000;

// A room of four walls, floor and ceiling, and a table in it.
struct Room : testing::Test {
    Room() {
        items.push_back({.triangleCount = static_cast<std::uint32_t>(triangles.size())});
        data.items = items;
        data.chunks = chunks;
        data.triangles = triangles;
    }
    bool hides(const ZrGeVector3d& backward, const SceneTriangle& triangle) {
        camera = lookingAlong(camera, backward);
        return CutAway(data, camera).hides(triangle);
    }
    SceneTriangle floor{{0, 0, 0}, {kFar, 0, 0}, {kFar, kFar, 0}};
    SceneTriangle ceiling{{0, 0, kHigh}, {kFar, 0, kHigh}, {kFar, kFar, kHigh}};
    SceneTriangle east{{kFar, 0, 0}, {kFar, kFar, 0}, {kFar, 0, kHigh}};
    SceneTriangle west{{0, 0, 0}, {0, kFar, 0}, {0, 0, kHigh}};
    SceneTriangle table{{4000, 4000, 750}, {5000, 4000, 750}, {5000, 5000, 750}};
    std::vector<SceneTriangle> triangles{floor, ceiling, east, west, table};
    std::vector<SceneItem> items;
    std::vector<SceneChunk> chunks{{{0, 0, 0}, {kFar, kFar, kHigh}, 0, 1}};
    SceneData data;
    Camera camera{.target = {kFar / 2, kFar / 2, 0}, .height = kFar};
};

TEST_F(Room, FromAboveLosesItsCeiling) {
    EXPECT_TRUE(hides({0, 0, 1}, ceiling));
    EXPECT_FALSE(hides({0, 0, 1}, floor));
    EXPECT_FALSE(hides({0, 0, 1}, east));
    EXPECT_FALSE(hides({0, 0, 1}, table));
}

TEST_F(Room, FromACornerLosesTheWallsInFront) {
    EXPECT_TRUE(hides({1, -1, 1}, east));
    EXPECT_TRUE(hides({1, -1, 1}, ceiling));
    EXPECT_FALSE(hides({1, -1, 1}, west));
    EXPECT_FALSE(hides({1, -1, 1}, floor));
}

TEST_F(Room, ThatIsOpenIsPickedInside) {
    const ZrDbObjectId none;
    data.entities = std::span(&none, 1);
    camera.target = {4800, 4200, 0};
    camera.height = 100;
    const Projector projector(camera, {100, 100});
    EXPECT_NEAR(snapAt(data, projector, 50, 50, kSnapFace, kSnapRadius, true).value().at.z, 750, 1e-6);
    EXPECT_NEAR(snapAt(data, projector, 50, 50, kSnapFace).value().at.z, kHigh, 1e-6);
}

TEST_F(Room, FromBelowLosesItsFloor) { EXPECT_TRUE(hides({0, 0, -1}, floor)); }

TEST_F(Room, WithTheEyeInItIsWhole) {
    camera.projection = Projection::Perspective;
    camera.target.z = 1500;
    camera.height = 500;
    for (const SceneTriangle& each : triangles)
        EXPECT_FALSE(hides({1, -1, 0.1}, each));
}

TEST_F(Room, WithTheEyeOutsideIsOpenedThere) {
    camera.projection = Projection::Perspective;
    EXPECT_TRUE(hides({0, 0, 1}, ceiling));
}

TEST_F(Room, WithoutHeightLosesNothing) {
    triangles = {floor};
    items = {{.triangleCount = 1}};
    data.items = items;
    data.triangles = triangles;
    EXPECT_FALSE(hides({0, 0, 1}, floor));
}

} // namespace
} // namespace quor::gs
