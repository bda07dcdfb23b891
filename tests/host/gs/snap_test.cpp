#include "host/gs/picking.h"

#include "sdk/db/face.h"
#include "tests/host/gs/scene_testing.h"

namespace quor::gs {
namespace {

constexpr int kAll = kSnapEnd | kSnapMiddle | kSnapCenter | kSnapFace;

Camera onePixelPerUnit() {
    Camera camera;
    camera.height = 600;
    return camera;
}

// One drawing unit is a pixel; the point 0,0,0 stands in the middle, at 400,300.
struct SnapTest : SceneTest {
    std::optional<Snap> snap(double x, double y, int modes = kAll) {
        return snapAt(updated(), {camera, {800, 600}}, x, y, modes);
    }
    Camera camera = onePixelPerUnit();
};

TEST_F(SnapTest, TheEndOfALineIsMeantNearIt) {
    addLine({-100, 0, 5}, {100, 0, 7});
    const auto end = snap(495, 304);
    ASSERT_TRUE(end);
    EXPECT_EQ(end->kind, Snap::Kind::End);
    EXPECT_EQ(end->at, ZrGePoint3d(100, 0, 7));
}

TEST_F(SnapTest, TheMiddleOfALineIsMeantNearIt) {
    addLine({-100, 0, 5}, {100, 0, 7});
    const auto middle = snap(405, 304);
    ASSERT_TRUE(middle);
    EXPECT_EQ(middle->kind, Snap::Kind::Middle);
    EXPECT_EQ(middle->at, ZrGePoint3d(0, 0, 6));
}

TEST_F(SnapTest, OfTwoPlacesTheNearerOneIsMeant) {
    addLine({0, 0, 0}, {12, 0, 0});
    EXPECT_EQ(snap(401, 300)->kind, Snap::Kind::End);
    EXPECT_EQ(snap(405, 300)->kind, Snap::Kind::Middle);
}

TEST_F(SnapTest, BetweenThemNothingIsMeant) {
    addLine({-100, 0, 0}, {100, 0, 0});
    EXPECT_FALSE(snap(450, 300));
}

TEST_F(SnapTest, OnlyWhatIsSwitchedOnIsMeant) {
    addLine({-100, 0, 0}, {100, 0, 0});
    EXPECT_FALSE(snap(495, 300, kSnapMiddle));
    EXPECT_FALSE(snap(400, 300, kSnapEnd));
    EXPECT_FALSE(snap(495, 300, kAll | kSnapOff));
}

TEST_F(SnapTest, APlaceIsFoundAtAnyNumberOfPixelsFromTheOrigin) {
    addLine({1e7 + 0.25, 1e7, 0}, {1e7 + 90, 1e7, 0});
    camera.target = {1e7, 1e7, 0};
    camera.height = 6;
    EXPECT_EQ(snap(430, 304)->at, ZrGePoint3d(1e7 + 0.25, 1e7, 0));
}

TEST_F(SnapTest, ThePlaceOnAFaceIsWhereTheCursorMeetsIt) {
    db::drawings::append(database->interface().modelSpaceId(),
                         std::make_unique<ZrDbFace>(ZrGePoint3d(-100, -100, 0), ZrGePoint3d(100, -100, 200),
                                                    ZrGePoint3d(100, 100, 200), ZrGePoint3d(-100, 100, 0)));
    const auto face = snap(430, 340);
    ASSERT_TRUE(face);
    EXPECT_EQ(face->kind, Snap::Kind::Face);
    EXPECT_TRUE(face->at.isEqualTo({30, -40, 130}, ZrGeTol(1e-6, 1e-6)));
    EXPECT_FALSE(snap(430, 340, kSnapEnd | kSnapMiddle));
}

TEST_F(SnapTest, ALightIsMeantNearItsGlyph) {
    const ZrDbObjectId light = db::drawings::addLight(*database);
    db::drawings::change(light, [](ZrDbLight& each) { each.setPosition({3, 4, 5}); });
    const auto center = snap(400, 300);
    ASSERT_TRUE(center);
    EXPECT_EQ(center->kind, Snap::Kind::Center);
    EXPECT_EQ(center->at, ZrGePoint3d(3, 4, 5));
    EXPECT_FALSE(snap(400, 300, kSnapEnd | kSnapMiddle));
}

TEST_F(SnapTest, TheCenterOfACircleIsMeantNearItsLine) {
    const std::string circle = "0\nCIRCLE\n5\nA1\n8\n0\n10\n0\n20\n0\n30\n0\n40\n150\n";
    use(db::drawings::parsed(db::drawings::drawing("AC1009", {{}, {}, {}, circle, {}})));
    const auto center = snap(400 + 106, 300 - 106);
    ASSERT_TRUE(center);
    EXPECT_EQ(center->kind, Snap::Kind::Center);
    EXPECT_EQ(center->at, ZrGePoint3d(0, 0, 0));
}

} // namespace
} // namespace quor::gs
