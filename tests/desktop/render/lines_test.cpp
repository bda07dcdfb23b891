#include "tests/desktop/render/picture.h"

#include <gtest/gtest.h>

namespace quor::desktop {
namespace {

constexpr std::uint32_t kBlack = 0xFF000000;
constexpr std::uint32_t kRed = 0xFFFF0000;
constexpr std::uint32_t kGreen = 0xFF00FF00;
constexpr std::uint32_t kWhite = 0xFFFFFFFF;

TEST(Background, IsAGradientFromTopToBottom) {
    RenderOptions options;
    options.colors.backgroundTop = 0xFF102030;
    options.colors.backgroundBottom = 0xFF506070;
    Picture picture;

    picture.take({}, cameraFromAbove(), options);

    EXPECT_EQ(picture.at(0, 0), 0xFF102030U);
    EXPECT_EQ(picture.at(99, 99), 0xFF506070U);
    EXPECT_GT(picture.brightness(50, 50), picture.brightness(50, 10));
}

TEST(Line, IsOnePixelWideFromEndToEnd) {
    HandScene scene;
    scene.addLine({10.5F, 49.5F, 0}, {20.5F, 49.5F, 0});
    Picture picture;

    picture.take(scene, cameraFromAbove(), plainOptions());

    EXPECT_EQ(picture.at(10, 50), kRed);
    EXPECT_EQ(picture.at(20, 50), kRed);
    EXPECT_EQ(picture.count(kRed), 11);
}

TEST(Line, StandsAtTheSamePlaceInPerspective) {
    HandScene scene;
    scene.addLine({10.5F, 49.5F, 0}, {20.5F, 49.5F, 0});
    Picture picture;

    picture.take(scene, perspectiveFromAbove(), plainOptions());

    EXPECT_EQ(picture.at(10, 50), kRed);
    EXPECT_EQ(picture.at(20, 50), kRed);
    EXPECT_EQ(picture.count(kRed), 11);
}

TEST(Line, IsFoundFarFromTheOriginOfTheWorld) {
    HandScene scene;
    scene.setOrigin({1e9, -2e9, 3e9});
    scene.addLine({10.5F, 49.5F, 0}, {20.5F, 49.5F, 0});
    gs::Camera camera = cameraFromAbove();
    camera.target = {1e9 + 50, -2e9 + 50, 3e9};
    Picture picture;

    picture.take(scene, camera, plainOptions());

    EXPECT_EQ(picture.at(10, 50), kRed);
    EXPECT_EQ(picture.count(kRed), 11);
}

TEST(Line, IsDrawnUpwardsAndAcrossAsWell) {
    HandScene scene;
    scene.addLine({30.5F, 9.5F, 0}, {30.5F, 19.5F, 0});
    scene.addLine({60.5F, 19.5F, 0}, {50.5F, 9.5F, 0});
    Picture picture;

    picture.take(scene, cameraFromAbove(), plainOptions());

    EXPECT_EQ(picture.at(30, 90), kRed);
    EXPECT_EQ(picture.at(30, 80), kRed);
    EXPECT_EQ(picture.at(55, 85), kRed);
    EXPECT_EQ(picture.count(kRed), 22);
}

TEST(Line, OfNoLengthIsAPoint) {
    HandScene scene;
    scene.addLine({30.5F, 49.5F, 0}, {30.5F, 49.5F, 0});
    Picture picture;

    picture.take(scene, cameraFromAbove(), plainOptions());

    EXPECT_EQ(picture.at(30, 50), kRed);
    EXPECT_EQ(picture.count(kRed), 1);
}

TEST(Line, IsTwoPixelsWideOnAScreenOfTwicePixels) {
    HandScene scene;
    scene.addLine({10.5F, 49.5F, 0}, {20.5F, 49.5F, 0});
    RenderOptions options = plainOptions();
    options.pixelRatio = 2;
    Picture picture;

    picture.take(scene, cameraFromAbove(), options);

    EXPECT_EQ(picture.count(kRed), 22);
}

TEST(Line, IsCutAtThePictureAndNothingIsWrittenBesideIt) {
    HandScene scene;
    scene.addLine({-500, 49.5F, 0}, {900, 49.5F, 0});
    scene.addLine({49.5F, -3e6F, 0}, {49.5F, 4e6F, 0}, 0x00FF00);
    scene.addLine({-50, -50, 0}, {150, 150, 0}, 0x00FFFF);
    Picture picture;

    picture.take(scene, cameraFromAbove(), plainOptions());

    EXPECT_EQ(picture.at(0, 50), kRed);
    EXPECT_EQ(picture.at(99, 50), kRed);
    EXPECT_EQ(picture.count(kRed) + picture.count(kGreen), 198);
    EXPECT_TRUE(picture.isUntouchedAround());
}

TEST(Line, ThatComesFromBehindTheEyeIsCutBeforeIt) {
    HandScene scene;
    scene.addLine({50.5F, 49.999F, -100}, {60.5F, 49.999F, 100000});
    Picture picture;

    picture.take(scene, perspectiveFromAbove(), plainOptions());

    EXPECT_EQ(picture.at(70, 50), kRed);
    EXPECT_EQ(picture.at(99, 50), kRed);
    EXPECT_EQ(picture.at(40, 50), kBlack);
}

TEST(Line, InFrontHidesTheOneBehindWhicheverIsDrawnFirst) {
    HandScene scene;
    scene.addLine({10, 50.5F, 5}, {90, 50.5F, 5}, 0x00FF00);
    scene.addLine({10, 50.5F, 0}, {90, 50.5F, 0}, 0xFF0000);
    scene.addLine({10, 20.5F, 0}, {90, 20.5F, 0}, 0xFF0000);
    scene.addLine({10, 20.5F, 5}, {90, 20.5F, 5}, 0x00FF00);
    Picture picture;

    picture.take(scene, cameraFromAbove(), plainOptions());

    EXPECT_EQ(picture.at(50, 49), kGreen);
    EXPECT_EQ(picture.at(50, 79), kGreen);
}

TEST(Line, OfAHiddenLayerIsNotDrawn) {
    HandScene scene;
    scene.addLine({10, 50.5F, 0}, {90, 50.5F, 0});
    scene.hide(0);
    Picture picture;

    picture.take(scene, cameraFromAbove(), plainOptions());

    EXPECT_EQ(picture.count(kBlack), 100 * 100);
}

TEST(LineColor, WhiteAndBlackBecomeInk) {
    HandScene scene;
    scene.addLine({10, 50.5F, 0}, {90, 50.5F, 0}, 0xFFFFFF);
    scene.addLine({10, 20.5F, 0}, {90, 20.5F, 0}, 0x000000);
    RenderOptions options = plainOptions();
    options.colors.backgroundTop = kWhite;
    options.colors.backgroundBottom = kWhite;
    options.colors.ink = 0xFF102030;
    Picture picture;

    picture.take(scene, cameraFromAbove(), options);

    EXPECT_EQ(picture.at(50, 49), 0xFF102030U);
    EXPECT_EQ(picture.at(50, 79), 0xFF102030U);
}

TEST(LineColor, CloseToTheBackgroundIsLifted) {
    HandScene scene;
    scene.addLine({10, 50.5F, 0}, {90, 50.5F, 0}, 0x0A0A0A);
    Picture picture;

    picture.take(scene, cameraFromAbove(), plainOptions());

    EXPECT_GT(picture.brightness(50, 49), 3 * 50);
}

TEST(LineColor, ThatCanBeReadStaysAsItIs) {
    HandScene scene;
    scene.addLine({10, 50.5F, 0}, {90, 50.5F, 0}, 0xC08040);
    Picture picture;

    picture.take(scene, cameraFromAbove(), plainOptions());

    EXPECT_EQ(picture.at(50, 49), 0xFFC08040U);
}

TEST(SmoothLine, CoversTwiceAsManyPixelsInPartWhenItIsSlanted) {
    HandScene scene;
    scene.addLine({10.5F, 40.5F, 0}, {90.5F, 50.5F, 0});
    RenderOptions options = plainOptions();
    options.isMoving = false;
    Picture picture;

    picture.take(scene, cameraFromAbove(), options);

    EXPECT_LT(picture.count(kRed), 30);
    EXPECT_GT(100 * 100 - picture.count(kBlack), 140);
    EXPECT_NEAR(static_cast<double>(picture.sum()), 255 * 81, 255 * 4);
}

TEST(SmoothLine, OfOneEntityMeetsTheNextWithoutABead) {
    HandScene whole;
    whole.addLine({10.5F, 40.5F, 0}, {90.5F, 50.5F, 0});
    HandScene parts;
    parts.addLines({{{10.5F, 40.5F, 0}, {50.5F, 45.5F, 0}}, {{50.5F, 45.5F, 0}, {90.5F, 50.5F, 0}}});
    RenderOptions options = plainOptions();
    options.isMoving = false;
    Picture one;
    one.take(whole, cameraFromAbove(), options);
    Picture two;

    two.take(parts, cameraFromAbove(), options);

    EXPECT_NEAR(static_cast<double>(two.sum()), static_cast<double>(one.sum()), 8);
}

TEST(SmoothLine, IsCrispAlongTheRowsOfThePicture) {
    HandScene scene;
    scene.addLine({10.5F, 49.8F, 0}, {20.5F, 49.8F, 0});
    RenderOptions options = plainOptions();
    options.isMoving = false;
    Picture picture;

    picture.take(scene, cameraFromAbove(), options);

    EXPECT_EQ(picture.count(kRed), 11);
    EXPECT_EQ(picture.count(kBlack), 100 * 100 - 11);
}

TEST(SmoothLine, StaysInsideThePicture) {
    HandScene scene;
    scene.addLine({-20, -30, 0}, {130, 120, 0});
    scene.addLine({0, 0, 0}, {0, 100, 0});
    scene.addLine({-50, 100.2F, 0}, {150, 99.9F, 0});
    RenderOptions options = plainOptions();
    options.isMoving = false;
    options.pixelRatio = 3;
    Picture picture;

    picture.take(scene, cameraFromAbove(), options);

    EXPECT_TRUE(picture.isUntouchedAround());
    EXPECT_EQ(picture.at(50, 59), kRed);
}

TEST(Emphasis, MakesLinesThickerInTheirColor) {
    HandScene scene;
    scene.emphasize(scene.addLine({10.5F, 49.5F, 0}, {20.5F, 49.5F, 0}), gs::Emphasis::Hovered);
    scene.emphasize(scene.addLine({10.5F, 19.5F, 0}, {20.5F, 19.5F, 0}), gs::Emphasis::Selected);
    const RenderOptions options = plainOptions();
    Picture picture;

    picture.take(scene, cameraFromAbove(), options);

    EXPECT_EQ(picture.count(options.colors.hovered), 22);
    EXPECT_EQ(picture.count(options.colors.selected), 22);
}

TEST(Emphasis, ShowsOverAllOtherLines) {
    HandScene scene;
    scene.emphasize(scene.addLine({10.5F, 49.5F, 0}, {20.5F, 49.5F, 0}), gs::Emphasis::Selected);
    scene.addLine({10.5F, 49.5F, 40}, {20.5F, 49.5F, 40});
    const RenderOptions options = plainOptions();
    Picture picture;

    picture.take(scene, perspectiveFromAbove(), options);

    EXPECT_EQ(picture.at(15, 50), options.colors.selected);
}

} // namespace
} // namespace quor::desktop
