#include "host/gs/light_distribution.h"
#include "tests/desktop/render/picture.h"

#include <gtest/gtest.h>

#include <numbers>

namespace quor::desktop {
namespace {

gs::LightMark lampAt(const ZrGePoint3d& position) {
    gs::LightMark light;
    light.position = position;
    light.direction = {0, 0, -1};
    light.candela = 1500;
    light.isGlyphShown = false;
    return light;
}

// Bright up to 30 degrees around its direction, half as bright on one side up to 60, dark elsewhere.
std::shared_ptr<const gs::LightDistribution> sideways() {
    ies::PhotometricWeb web;
    web.symmetry = ies::Symmetry::None;
    web.vertical = {0, 30, 31, 60, 61, 180};
    web.horizontal = {0, 89, 91, 269, 271, 360};
    for (const double aside : {1.0, 1.0, 0.0, 0.0, 1.0, 1.0})
        web.candela.insert(web.candela.end(), {1, 1, aside / 2, aside / 2, 0, 0});
    return std::make_shared<const gs::LightDistribution>(gs::distributionOf(web));
}

// A web over the middle of a floor, its luminaire turned about the vertical by so much.
HandScene floorUnderWeb(double turn) {
    HandScene scene;
    scene.addSquare(0, 100, 0, 0xFFFFFF);
    gs::LightMark light = lampAt({50, 50, 20});
    light.kind = gs::GlyphKind::Web;
    light.distribution = sideways();
    light.axes = {ZrGeVector3d(std::cos(turn), std::sin(turn), 0), ZrGeVector3d(-std::sin(turn), std::cos(turn), 0),
                  ZrGeVector3d::kZAxis};
    scene.addLight(light);
    return scene;
}

TEST(WebLight, IsBrightWhereItsFileSaysSo) {
    Picture picture;

    picture.take(floorUnderWeb(0), cameraFromAbove(), shadedOptions(Lighting::OfDrawing));

    EXPECT_GT(picture.brightness(50, 50), picture.brightness(75, 50) + 60);
    EXPECT_GT(picture.brightness(75, 50), picture.brightness(25, 50) + 60);
    EXPECT_EQ(picture.at(25, 50), picture.at(5, 50));
}

TEST(WebLight, IsTurnedWithItsLuminaire) {
    Picture picture;

    picture.take(floorUnderWeb(std::numbers::pi), cameraFromAbove(), shadedOptions(Lighting::OfDrawing));

    EXPECT_GT(picture.brightness(25, 50), picture.brightness(75, 50) + 60);
}

TEST(WebLight, IsDarkBehindADownlight) {
    HandScene scene;
    scene.addTriangle({10, 10, 0}, {90, 10, 0}, {50, 90, 0}, 0xFFFFFF);
    gs::LightMark light = lampAt({50, 40, -20});
    light.kind = gs::GlyphKind::Web;
    light.axes = {ZrGeVector3d::kXAxis, ZrGeVector3d::kYAxis, ZrGeVector3d::kZAxis};
    light.distribution = sideways();
    scene.addLight(light);
    gs::Camera fromBelow = cameraFromAbove();
    fromBelow.backward = {0, 0, -1};
    Picture picture;

    picture.take(scene, fromBelow, shadedOptions(Lighting::OfDrawing));

    EXPECT_EQ(picture.at(50, 60), picture.at(50, 80));
}

TEST(WebLight, WithoutAFileShinesAsAPoint) {
    HandScene web;
    web.addSquare(0, 100, 0, 0xFFFFFF);
    gs::LightMark light = lampAt({50, 50, 20});
    light.kind = gs::GlyphKind::Web;
    web.addLight(light);
    HandScene point;
    point.addSquare(0, 100, 0, 0xFFFFFF);
    point.addLight(lampAt({50, 50, 20}));
    Picture ofWeb;
    ofWeb.take(web, cameraFromAbove(), shadedOptions(Lighting::OfDrawing));
    Picture ofPoint;

    ofPoint.take(point, cameraFromAbove(), shadedOptions(Lighting::OfDrawing));

    EXPECT_EQ(ofWeb.differences(ofPoint), 0);
}

// A floor, a plate over most of it, and a lamp above both.
struct LitPlate : testing::Test {
    LitPlate() {
        scene.addSquare(0, 100, 0, 0xFFFFFF);
        plate = scene.addSquare(30, 70, 10, 0x0000FF);
        scene.addLight(lampAt({50, 50, 20}));
    }
    HandScene scene;
    std::uint32_t plate = 0;
    RenderOptions options = shadedOptions(Lighting::OfDrawing);
    Renderer renderer{2};
    Picture before;
    Picture after;
};

TEST_F(LitPlate, IsAsBrightWhileThePictureMoves) {
    before.take(scene, cameraFromAbove(), options);
    options.isMoving = true;

    after.take(scene, cameraFromAbove(), options);

    EXPECT_NEAR(after.brightness(49, 49), before.brightness(49, 49), 4);
    EXPECT_NEAR(after.brightness(35, 62), before.brightness(35, 62), 4);
}

TEST_F(LitPlate, IsTintedWhenItIsSelectedAndNothingElseIs) {
    before.take(scene, cameraFromAbove(), options);
    scene.emphasize(plate, gs::Emphasis::Selected);

    after.take(scene, cameraFromAbove(), options);

    EXPECT_NE(after.at(50, 50), before.at(50, 50));
    EXPECT_EQ(after.differences(before), 40 * 40);
}

TEST_F(LitPlate, GivesTheSamePictureFromWhatWasKept) {
    scene.setContents(7);
    before.take(scene, cameraFromAbove(), options);
    after.take(scene, cameraFromAbove(), options, renderer);
    scene.emphasize(plate, gs::Emphasis::Hovered);
    after.take(scene, cameraFromAbove(), options, renderer);
    EXPECT_EQ(after.differences(before), 40 * 40);
    scene.emphasize(plate, gs::Emphasis::None);

    after.take(scene, cameraFromAbove(), options, renderer);

    EXPECT_EQ(after.differences(before), 0);
}

TEST_F(LitPlate, IsMadeAnewWhenTheContentsAreOthers) {
    scene.setContents(7);
    before.take(scene, cameraFromAbove(), options, renderer);
    scene.hide(1);
    scene.setContents(8);

    after.take(scene, cameraFromAbove(), options, renderer);

    EXPECT_NE(after.at(50, 50), before.at(50, 50));
    EXPECT_GT(after.brightness(20, 20), before.brightness(20, 20)) << "its shadow is gone, too";
}

TEST_F(LitPlate, IsMadeAnewWhenNobodyKnowsTheContents) {
    before.take(scene, cameraFromAbove(), options, renderer);
    scene.hide(1);

    after.take(scene, cameraFromAbove(), options, renderer);

    EXPECT_NE(after.at(50, 50), before.at(50, 50));
}

TEST(Interior, IsLookedIntoFromOutside) {
    HandScene room;
    room.addSquare(0, 100, 0, 0x00FF00);
    room.addSquare(0, 100, 40, 0xFF0000);
    RenderOptions options = shadedOptions(Lighting::Default);
    Picture shaded;
    shaded.take(room, cameraFromAbove(), options);
    options.style = gs::VisualStyle::Interior;
    Picture open;

    open.take(room, cameraFromAbove(), options);

    EXPECT_GT(shaded.at(50, 50) >> 16 & 0xFFU, shaded.at(50, 50) >> 8 & 0xFFU);
    EXPECT_GT(open.at(50, 50) >> 8 & 0xFFU, open.at(50, 50) >> 16 & 0xFFU);
}

} // namespace
} // namespace quor::desktop
