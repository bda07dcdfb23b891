#include "tests/desktop/render/picture.h"

#include <gtest/gtest.h>

#include <cmath>

namespace quor::desktop {
namespace {

constexpr std::uint32_t kBlack = 0xFF000000;

int green(std::uint32_t color) { return static_cast<int>(color >> 8 & 0xFFU); }
int red(std::uint32_t color) { return static_cast<int>(color >> 16 & 0xFFU); }

TEST(Face, FillsItsPixelsInAShadedPicture) {
    HandScene scene;
    scene.addSquare(10, 30, 0);
    Picture picture;

    picture.take(scene, cameraFromAbove(), shadedOptions(Lighting::Default));

    EXPECT_NE(picture.at(10, 89), kBlack);
    EXPECT_NE(picture.at(29, 70), kBlack);
    EXPECT_EQ(100 * 100 - picture.count(kBlack), 20 * 20);
}

TEST(Face, IsNotDrawnInAWireframe) {
    HandScene scene;
    scene.addSquare(10, 30, 0);
    Picture picture;

    picture.take(scene, cameraFromAbove(), plainOptions());

    EXPECT_EQ(picture.count(kBlack), 100 * 100);
}

TEST(Face, IsSeenFromBothSides) {
    HandScene scene;
    scene.addTriangle({10, 10, 0}, {40, 10, 0}, {10, 40, 0});
    scene.addTriangle({60, 60, 0}, {60, 90, 0}, {90, 60, 0});
    Picture picture;

    picture.take(scene, cameraFromAbove(), shadedOptions(Lighting::Default));

    EXPECT_NE(picture.at(15, 84), kBlack);
    EXPECT_EQ(picture.at(65, 34), picture.at(15, 84));
}

TEST(Face, InFrontHidesTheOneBehindWhicheverIsDrawnFirst) {
    HandScene scene;
    scene.addSquare(10, 40, 5, 0x00FF00);
    scene.addSquare(10, 40, 0, 0xFF0000);
    scene.addSquare(60, 90, 0, 0xFF0000);
    scene.addSquare(60, 90, 5, 0x00FF00);
    Picture picture;

    picture.take(scene, perspectiveFromAbove(), shadedOptions(Lighting::Default));

    EXPECT_GT(green(picture.at(25, 75)), red(picture.at(25, 75)));
    EXPECT_GT(green(picture.at(75, 25)), red(picture.at(75, 25)));
}

TEST(Face, HidesLinesBehindItAndShowsThoseOnIt) {
    HandScene scene;
    scene.addSquare(20, 80, 0);
    scene.addLine({0, 30.5F, -10}, {100, 30.5F, -10}, 0xFF0000);
    scene.addLine({0, 60.5F, 0}, {100, 60.5F, 0}, 0xFF0000);
    Picture picture;

    picture.take(scene, cameraFromAbove(), shadedOptions(Lighting::Default));

    EXPECT_GT(red(picture.at(10, 69)), 200);
    EXPECT_EQ(red(picture.at(50, 69)), 0);
    EXPECT_GT(red(picture.at(50, 39)), 200);
}

TEST(Face, ThatReachesBehindTheEyeIsCutBeforeIt) {
    HandScene scene;
    scene.addTriangle({50, 50, -50}, {50, 1000, 5000}, {-900, 50, 5000});
    Picture picture;

    picture.take(scene, perspectiveFromAbove(), shadedOptions(Lighting::Default));

    EXPECT_NE(picture.at(30, 30), kBlack);
    EXPECT_EQ(picture.at(70, 70), kBlack);
    EXPECT_TRUE(picture.isUntouchedAround());
}

TEST(Face, IsNeverBlackUnderTheLightsOfTheEye) {
    HandScene scene;
    scene.addTriangle({10, 10, 0}, {90, 10, 0}, {50, 90, -2000}, 0xFFFFFF);
    Picture picture;

    picture.take(scene, cameraFromAbove(), shadedOptions(Lighting::Default));

    EXPECT_GT(picture.brightness(50, 80), 3 * 60);
}

TEST(Face, IsTintedWhenItsEntityIsSelected) {
    HandScene scene;
    const std::uint32_t square = scene.addSquare(10, 90, 0, 0x808080);
    Picture plain;
    plain.take(scene, cameraFromAbove(), shadedOptions(Lighting::Default));
    scene.emphasize(square, gs::Emphasis::Selected);
    Picture picture;

    picture.take(scene, cameraFromAbove(), shadedOptions(Lighting::Default));

    EXPECT_NE(picture.at(50, 50), plain.at(50, 50));
}

gs::LightMark lightAt(const ZrGePoint3d& position, double candela = 1500) {
    gs::LightMark light;
    light.position = position;
    light.direction = {0, 0, -1};
    light.candela = candela;
    light.isGlyphShown = false;
    return light;
}

TEST(LightOfDrawing, IsBrighterNearTheLight) {
    HandScene scene;
    scene.addSquare(0, 100, 0, 0xFFFFFF);
    scene.addLight(lightAt({20, 50, 10}));
    Picture picture;

    picture.take(scene, cameraFromAbove(), shadedOptions(Lighting::OfDrawing));

    EXPECT_GT(picture.brightness(20, 50), picture.brightness(50, 50) + 60);
    EXPECT_GT(picture.brightness(50, 50), picture.brightness(90, 50) + 10);
}

TEST(LightOfDrawing, GivesTheSamePictureInAnyUnitAndStrength) {
    HandScene metres;
    metres.addSquare(0, 100, 0, 0xFFFFFF);
    metres.addLight(lightAt({20, 50, 10}, 5));
    HandScene millimetres;
    millimetres.addSquare(0, 100000, 0, 0xFFFFFF);
    millimetres.addLight(lightAt({20000, 50000, 10000}, 1e7));
    gs::Camera camera = cameraFromAbove();
    Picture small;
    small.take(metres, camera, shadedOptions(Lighting::OfDrawing));
    camera.target = {50000, 50000, 0};
    camera.height = 100000;
    Picture large;

    large.take(millimetres, camera, shadedOptions(Lighting::OfDrawing));

    EXPECT_NEAR(small.brightness(20, 50), large.brightness(20, 50), 6);
    EXPECT_NEAR(small.brightness(80, 50), large.brightness(80, 50), 6);
}

TEST(LightOfDrawing, ThatIsOffSendsNothing) {
    HandScene scene;
    scene.addSquare(0, 100, 0, 0xFFFFFF);
    gs::LightMark light = lightAt({20, 50, 10});
    light.isOn = false;
    scene.addLight(light);
    Picture picture;

    picture.take(scene, cameraFromAbove(), shadedOptions(Lighting::OfDrawing));

    EXPECT_EQ(picture.at(20, 50), picture.at(80, 50));
    EXPECT_GT(picture.brightness(20, 50), 0);
}

TEST(LightOfDrawing, OfASpotIsDarkOutsideItsFalloff) {
    HandScene scene;
    scene.addSquare(0, 100, 0, 0xFFFFFF);
    gs::LightMark light = lightAt({50, 50, 40});
    light.kind = gs::GlyphKind::Spot;
    light.hotspot = 2 * std::atan(10.0 / 40);
    light.falloff = 2 * std::atan(20.0 / 40);
    scene.addLight(light);
    Picture picture;

    picture.take(scene, cameraFromAbove(), shadedOptions(Lighting::OfDrawing));

    EXPECT_GT(picture.brightness(50, 50), picture.brightness(65, 50) + 30);
    EXPECT_GT(picture.brightness(65, 50), picture.brightness(72, 50) + 30);
    EXPECT_EQ(picture.at(72, 50), picture.at(80, 50));
}

TEST(LightOfDrawing, OfADistantLightIsTheSameEverywhere) {
    HandScene scene;
    scene.addSquare(0, 100, 0, 0xFFFFFF);
    gs::LightMark light = lightAt({50, 50, 40});
    light.kind = gs::GlyphKind::Distant;
    scene.addLight(light);
    Picture picture;

    picture.take(scene, cameraFromAbove(), shadedOptions(Lighting::OfDrawing));

    EXPECT_EQ(picture.at(10, 10), picture.at(90, 50));
    EXPECT_GT(picture.brightness(50, 50), 3 * 90);
}

TEST(LightOfDrawing, HasItsColor) {
    HandScene scene;
    scene.addSquare(0, 100, 0, 0xFFFFFF);
    gs::LightMark light = lightAt({50, 50, 40});
    light.rgb = 0xFF2000;
    scene.addLight(light);
    Picture picture;

    picture.take(scene, cameraFromAbove(), shadedOptions(Lighting::OfDrawing));

    EXPECT_GT(red(picture.at(50, 50)), green(picture.at(50, 50)) + 60);
}

TEST(LightOfDrawing, LooksNearlyTheSameWhileThePictureMoves) {
    HandScene scene;
    scene.addSquare(0, 100, 0, 0xFFFFFF);
    scene.addLight(lightAt({20, 50, 10}));
    RenderOptions options = shadedOptions(Lighting::OfDrawing);
    Picture still;
    still.take(scene, cameraFromAbove(), options);
    options.isMoving = true;
    Picture moving;

    moving.take(scene, cameraFromAbove(), options);

    EXPECT_NEAR(moving.brightness(20, 50), still.brightness(20, 50), 24);
    EXPECT_NEAR(moving.brightness(80, 20), still.brightness(80, 20), 24);
}

TEST(LightOfDrawing, OfManyLightsTakesThoseThatMatter) {
    HandScene scene;
    scene.addSquare(0, 100, 0, 0xFFFFFF);
    for (int i = 0; i < 500; ++i)
        scene.addLight(lightAt({5000.0 + i, 5000, 10}, 1));
    scene.addLight(lightAt({20, 50, 10}, 1500));
    Picture picture;

    picture.take(scene, cameraFromAbove(), shadedOptions(Lighting::OfDrawing));

    EXPECT_GT(picture.brightness(20, 50), picture.brightness(90, 50) + 60);
}

// A square of 20 units 10 above the floor, in the light of a lamp 20 above it: its shadow is 40 wide.
HandScene sceneWithShadow() {
    HandScene scene;
    scene.addSquare(0, 100, 0, 0xFFFFFF);
    scene.addSquare(20, 40, 10, 0x0000FF);
    scene.addLight(lightAt({30, 30, 20}));
    return scene;
}

TEST(Shadow, OfAFaceFallsOnWhatIsBehindIt) {
    Picture picture;

    picture.take(sceneWithShadow(), cameraFromAbove(), shadedOptions(Lighting::OfDrawing));

    EXPECT_GT(picture.brightness(53, 69), picture.brightness(46, 69) + 60);
    EXPECT_EQ(picture.at(44, 69), picture.at(48, 69));
}

TEST(Shadow, FallsAtTheSamePlaceOnAScreenOfTwicePixels) {
    RenderOptions options = shadedOptions(Lighting::OfDrawing);
    options.pixelRatio = 2;
    Picture picture;

    picture.take(sceneWithShadow(), cameraFromAbove(), options);

    EXPECT_GT(picture.brightness(54, 69), picture.brightness(46, 69) + 60);
    EXPECT_EQ(picture.at(54, 69), picture.at(55, 68));
}

TEST(Shadow, IsLeftOutWhileThePictureMoves) {
    RenderOptions options = shadedOptions(Lighting::OfDrawing);
    options.isMoving = true;
    Picture picture;

    picture.take(sceneWithShadow(), cameraFromAbove(), options);

    EXPECT_GT(picture.brightness(46, 69), picture.brightness(53, 69));
}

TEST(Shadow, IsNotThrownByAHiddenLayer) {
    HandScene scene = sceneWithShadow();
    scene.hide(1);
    Picture picture;

    picture.take(scene, cameraFromAbove(), shadedOptions(Lighting::OfDrawing));

    EXPECT_GT(picture.brightness(30, 69), picture.brightness(46, 69));
    EXPECT_GT(picture.brightness(46, 69), picture.brightness(53, 69));
}

TEST(Shadow, OfADistantLightFallsAlongItsDirection) {
    HandScene scene;
    scene.addSquare(0, 100, 0, 0xFFFFFF);
    scene.addSquare(20, 40, 10, 0x0000FF);
    gs::LightMark light = lightAt({0, 0, 5});
    light.kind = gs::GlyphKind::Distant;
    light.direction = ZrGeVector3d(1, 0, -0.5).normal();
    scene.addLight(light);
    Picture picture;

    picture.take(scene, cameraFromAbove(), shadedOptions(Lighting::OfDrawing));

    EXPECT_GT(picture.brightness(70, 69), picture.brightness(50, 69) + 100);
    EXPECT_GT(picture.brightness(10, 69), picture.brightness(50, 69) + 100);
}

} // namespace
} // namespace quor::desktop
