#include "host/gs/picking.h"

#include "sdk/db/face.h"
#include "tests/host/gs/scene_testing.h"

namespace quor::gs {
namespace {

using db::drawings::addLight;
using db::drawings::append;
using db::drawings::change;
using testing::ElementsAre;
using testing::IsEmpty;

Camera onePixelPerUnit() {
    Camera camera;
    camera.height = 600;
    return camera;
}

// One drawing unit is a pixel; the point 0,0,0 stands in the middle, at 400,300.
struct PickingTest : SceneTest {
    Projector projector() { return {camera, {800, 600}}; }
    ZrDbObjectId pick(double x, double y, const PickOptions& options = {}) {
        return pickAt(updated(), projector(), x, y, options);
    }
    std::vector<ZrDbObjectId> pickRect(const PixelRect& rect, RectPick how, const PickOptions& options = {}) {
        return pickIn(updated(), projector(), rect, how, options);
    }
    ZrDbObjectId addFace(double z) {
        return append(database->interface().modelSpaceId(),
                      std::make_unique<ZrDbFace>(ZrGePoint3d(-100, -100, z), ZrGePoint3d(100, -100, z),
                                                 ZrGePoint3d(100, 100, z), ZrGePoint3d(-100, 100, z)));
    }
    ZrDbObjectId addLightAt(const ZrGePoint3d& place) {
        const ZrDbObjectId light = addLight(*database);
        change(light, [&](ZrDbLight& each) { each.setPosition(place); });
        return light;
    }

    Camera camera = onePixelPerUnit();
};

constexpr PickOptions kFaces{5, kGlyphRadius, true};

TEST_F(PickingTest, NothingIsPickedWhereNothingIs) {
    addLine({-100, 0, 0}, {100, 0, 0});
    EXPECT_TRUE(pick(400, 320).isNull());
}

TEST_F(PickingTest, ALineIsPickedWithinTheRadius) {
    const ZrDbObjectId line = addLine({-100, 0, 0}, {100, 0, 0});
    EXPECT_EQ(pick(400, 304), line);
    EXPECT_TRUE(pick(400, 306).isNull());
    EXPECT_EQ(pick(400, 306, {8, kGlyphRadius, false}), line);
    EXPECT_EQ(pick(504, 300), line);
    EXPECT_TRUE(pick(506, 300).isNull());
}

TEST_F(PickingTest, TheNearerOfTwoLinesIsPicked) {
    const ZrDbObjectId upper = addLine({-100, 3, 0}, {100, 3, 0});
    const ZrDbObjectId lower = addLine({-100, -3, 0}, {100, -3, 0});
    EXPECT_EQ(pick(400, 299), upper);
    EXPECT_EQ(pick(400, 301), lower);
}

TEST_F(PickingTest, OfLinesThatCoverEachOtherTheOneInFrontIsPicked) {
    addLine({-100, 0, 0}, {100, 0, 0});
    const ZrDbObjectId above = addLine({-100, 0, 50}, {100, 0, 50});
    addLine({-100, 0, -50}, {100, 0, -50});
    EXPECT_EQ(pick(400, 301), above);
}

TEST_F(PickingTest, AGlyphWinsOverLines) {
    addLine({-100, 0, 0}, {100, 0, 0});
    const ZrDbObjectId light = addLightAt({0, 0, 0});
    EXPECT_EQ(pick(409, 300), light);
    EXPECT_NE(pick(413, 300), light);
}

TEST_F(PickingTest, AGlyphThatIsNotShownIsNotPicked) {
    addLightAt({0, 0, 0});
    database->setHeader(L"$LIGHTGLYPHDISPLAY", 280, 0LL);
    EXPECT_TRUE(pick(400, 300).isNull());
}

TEST_F(PickingTest, AFaceIsPickedInsideWhereFacesAreSeen) {
    const ZrDbObjectId face = addFace(0);
    EXPECT_TRUE(pick(430, 350).isNull());
    EXPECT_EQ(pick(430, 350, kFaces), face);
    EXPECT_EQ(pick(500, 350), face);
}

TEST_F(PickingTest, TheForemostFaceIsPicked) {
    addFace(0);
    const ZrDbObjectId front = addFace(10);
    addFace(-10);
    EXPECT_EQ(pick(430, 350, kFaces), front);
}

TEST_F(PickingTest, ALineInFrontOfAFaceIsPickedAndOneBehindItIsNot) {
    const ZrDbObjectId face = addFace(0);
    const ZrDbObjectId front = addLine({-50, 0, 60}, {50, 0, 60});
    const ZrDbObjectId behind = addLine({-50, 40, -60}, {50, 40, -60});
    EXPECT_EQ(pick(410, 300, kFaces), front);
    EXPECT_EQ(pick(410, 260, kFaces), face);
    EXPECT_EQ(pick(410, 260), behind);
}

TEST_F(PickingTest, WhatIsOnALayerThatIsOffIsNotPicked) {
    const std::string layer = "0\nTABLE\n2\nLAYER\n70\n1\n0\nLAYER\n2\nDark\n70\n0\n62\n-1\n6\nContinuous\n0\nENDTAB\n";
    const std::string line = "0\nLINE\n5\nA1\n8\nDark\n10\n-9\n20\n0\n30\n0\n11\n9\n21\n0\n31\n0\n";
    use(db::drawings::parsed(db::drawings::drawing("AC1009", {{}, {}, layer, line, {}})));
    EXPECT_TRUE(pick(400, 300).isNull());
    EXPECT_THAT(pickRect({0, 0, 800, 600}, RectPick::Crossing), IsEmpty());
}

TEST_F(PickingTest, InPerspectiveALineThatGoesPastTheEyeIsPicked) {
    camera.projection = Projection::Perspective;
    const double eye = camera.eyeDistance();
    const ZrDbObjectId line = addLine({0, 10, 0}, {0, 10, eye + 500});
    const auto at = projector().toScreen({0, 10, eye / 2});
    EXPECT_EQ(pick(at->x, at->y), line);
    EXPECT_THAT(pickRect({at->x - 5, at->y - 5, at->x + 5, at->y + 5}, RectPick::Crossing), ElementsAre(line));
}

TEST_F(PickingTest, InPerspectiveNothingBehindTheEyeIsPicked) {
    camera.projection = Projection::Perspective;
    const double behind = camera.eyeDistance() + 10;
    addLine({-100, 0, behind}, {100, 0, behind});
    addFace(behind);
    EXPECT_TRUE(pick(400, 300, kFaces).isNull());
    EXPECT_THAT(pickRect({0, 0, 800, 600}, RectPick::Crossing, kFaces), IsEmpty());
}

TEST_F(PickingTest, AParallelPictureShowsFacesBehindItsEye) {
    const ZrDbObjectId face = addFace(camera.eyeDistance() + 10);
    EXPECT_EQ(pick(430, 350, kFaces), face);
}

TEST_F(PickingTest, AWindowTakesWhatLiesWhollyInside) {
    const ZrDbObjectId inside = addLine({-10, 0, 0}, {10, 0, 0});
    addLine({-10, 5, 0}, {200, 5, 0});
    EXPECT_THAT(pickRect({350, 250, 450, 350}, RectPick::Window), ElementsAre(inside));
}

TEST_F(PickingTest, ACrossingTakesWhatItTouches) {
    const ZrDbObjectId inside = addLine({-10, 0, 0}, {10, 0, 0});
    const ZrDbObjectId across = addLine({-300, 5, 0}, {300, 5, 0});
    addLine({-300, 100, 0}, {300, 100, 0});
    EXPECT_THAT(pickRect({350, 250, 450, 350}, RectPick::Crossing), ElementsAre(inside, across));
}

TEST_F(PickingTest, ALineThatPassesACornerIsNotTouched) {
    addLine({-100, 0, 0}, {0, 100, 0});
    EXPECT_THAT(pickRect({390, 290, 410, 310}, RectPick::Crossing), IsEmpty());
}

TEST_F(PickingTest, TheCornersOfARectangleMayBeGivenInAnyOrder) {
    const ZrDbObjectId inside = addLine({-10, 0, 0}, {10, 0, 0});
    EXPECT_THAT(pickRect({450, 350, 350, 250}, RectPick::Window), ElementsAre(inside));
}

TEST_F(PickingTest, ARectangleWithoutSizeIsAPixel) {
    const ZrDbObjectId line = addLine({-10, 0, 0}, {10, 0, 0});
    EXPECT_THAT(pickRect({400, 300, 400, 300}, RectPick::Crossing), ElementsAre(line));
}

TEST_F(PickingTest, ACrossingWithinAFaceTakesItWhereFacesAreSeen) {
    const ZrDbObjectId face = addFace(0);
    EXPECT_THAT(pickRect({420, 310, 430, 320}, RectPick::Crossing), IsEmpty());
    EXPECT_THAT(pickRect({420, 310, 430, 320}, RectPick::Crossing, kFaces), ElementsAre(face));
}

TEST_F(PickingTest, ACrossingTouchesGlyphsAndAWindowHoldsThem) {
    const ZrDbObjectId light = addLightAt({0, 0, 0});
    EXPECT_THAT(pickRect({405, 290, 500, 310}, RectPick::Crossing), ElementsAre(light));
    EXPECT_THAT(pickRect({405, 290, 500, 310}, RectPick::Window), IsEmpty());
    EXPECT_THAT(pickRect({380, 280, 420, 320}, RectPick::Window), ElementsAre(light));
}

TEST_F(PickingTest, WhatIsPickedComesInDrawingOrder) {
    const ZrDbObjectId line = addLine({-10, 0, 0}, {10, 0, 0});
    const ZrDbObjectId light = addLightAt({0, 0, 0});
    const ZrDbObjectId last = addLine({-10, 0, 0}, {10, 0, 0});
    scene->update();
    db::drawings::erase(line);
    scene->update();
    db::drawings::erase(line, false);
    EXPECT_THAT(pickRect({300, 200, 500, 400}, RectPick::Window), ElementsAre(line, light, last));
}

TEST_F(PickingTest, FarFromTheOriginPickingIsAsExact) {
    const ZrDbObjectId line = addLine({1e7 - 10, 1e7, 0}, {1e7 + 10, 1e7, 0});
    addLine({1e7 - 10, 1e7 + 0.5, 0}, {1e7 + 10, 1e7 + 0.5, 0});
    camera.target = {1e7, 1e7, 0};
    camera.height = 6;
    EXPECT_EQ(pick(400, 302), line);
}

} // namespace
} // namespace quor::gs
