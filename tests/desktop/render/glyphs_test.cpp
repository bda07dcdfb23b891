#include "tests/desktop/render/picture.h"

#include <gtest/gtest.h>

namespace quor::desktop {
namespace {

gs::LightMark lightOf(gs::GlyphKind kind, const ZrGePoint3d& position = {50, 50, 0}) {
    gs::LightMark light;
    light.kind = kind;
    light.position = position;
    light.direction = {1, 0, 0};
    return light;
}

Picture pictureOf(const HandScene& scene, RenderOptions options = plainOptions()) {
    Picture picture;
    picture.take(scene, cameraFromAbove(), options);
    return picture;
}

class GlyphOfEachKind : public testing::TestWithParam<gs::GlyphKind> {};

TEST_P(GlyphOfEachKind, StandsAroundItsLightAndNowhereElse) {
    HandScene scene;
    scene.addLight(lightOf(GetParam()));

    const Picture picture = pictureOf(scene);

    const Picture empty = pictureOf({});
    EXPECT_GT(picture.differences(empty, 39, 39, 23, 23), 100);
    EXPECT_EQ(picture.differences(empty, 34, 34, 33, 33), picture.differences(empty));
    EXPECT_GT(picture.count(plainOptions().colors.lightOn), 20);
}

TEST_P(GlyphOfEachKind, IsGreyWhenTheLightIsOff) {
    HandScene scene;
    gs::LightMark light = lightOf(GetParam());
    light.isOn = false;
    scene.addLight(light);

    const Picture picture = pictureOf(scene);

    EXPECT_GT(picture.count(plainOptions().colors.lightOff), 20);
    EXPECT_EQ(picture.count(plainOptions().colors.lightOn), 0);
}

TEST_P(GlyphOfEachKind, GetsARingInItsColorWhenItIsHoveredOrSelected) {
    HandScene hovered;
    hovered.emphasize(hovered.addLight(lightOf(GetParam())), gs::Emphasis::Hovered);
    HandScene selected;
    selected.emphasize(selected.addLight(lightOf(GetParam())), gs::Emphasis::Selected);

    const Picture first = pictureOf(hovered);
    const Picture second = pictureOf(selected);

    EXPECT_GT(first.count(plainOptions().colors.hovered), 40);
    EXPECT_GT(second.count(plainOptions().colors.selected), 40);
    EXPECT_GT(first.brightness(63, 50), 100);
}

TEST_P(GlyphOfEachKind, IsLargerOnAScreenOfTwicePixels) {
    HandScene scene;
    scene.addLight(lightOf(GetParam()));
    RenderOptions options = plainOptions();
    options.pixelRatio = 2;

    const Picture picture = pictureOf(scene, options);

    const int usual = pictureOf(scene).differences(pictureOf({}));
    EXPECT_GT(picture.differences(pictureOf({})), 3 * usual);
}

INSTANTIATE_TEST_SUITE_P(Kinds, GlyphOfEachKind,
                         testing::Values(gs::GlyphKind::Point, gs::GlyphKind::Spot, gs::GlyphKind::Web,
                                         gs::GlyphKind::Distant));

TEST(Glyph, LooksDifferentForEachKind) {
    HandScene point, spot, web;
    point.addLight(lightOf(gs::GlyphKind::Point));
    spot.addLight(lightOf(gs::GlyphKind::Spot));
    web.addLight(lightOf(gs::GlyphKind::Web));

    EXPECT_GT(pictureOf(point).differences(pictureOf(spot)), 100);
    EXPECT_GT(pictureOf(point).differences(pictureOf(web)), 100);
    EXPECT_GT(pictureOf(spot).differences(pictureOf(web)), 100);
}

TEST(Glyph, OfASpotPointsWhereItShines) {
    HandScene right, up;
    right.addLight(lightOf(gs::GlyphKind::Spot));
    gs::LightMark light = lightOf(gs::GlyphKind::Spot);
    light.direction = {0, 1, 0};
    up.addLight(light);

    const Picture toRight = pictureOf(right);
    const Picture upwards = pictureOf(up);

    EXPECT_EQ(toRight.at(59, 50), plainOptions().colors.lightOn);
    EXPECT_EQ(upwards.at(50, 41), plainOptions().colors.lightOn);
    EXPECT_NE(upwards.at(59, 50), plainOptions().colors.lightOn);
}

TEST(Glyph, IsNotShownWhenItIsSwitchedOff) {
    HandScene scene;
    gs::LightMark light = lightOf(gs::GlyphKind::Point);
    light.isGlyphShown = false;
    scene.addLight(light);

    EXPECT_EQ(pictureOf(scene).differences(pictureOf({})), 0);
}

TEST(Glyph, ShinesWeaklyThroughTheFaceThatHidesIt) {
    HandScene free, hidden;
    free.addSquare(0, 100, 0, 0x404040);
    free.addLight(lightOf(gs::GlyphKind::Point, {50, 50, 50}));
    hidden.addSquare(0, 100, 0, 0x404040);
    hidden.addLight(lightOf(gs::GlyphKind::Point, {50, 50, -50}));
    HandScene empty;
    empty.addSquare(0, 100, 0, 0x404040);
    const RenderOptions options = shadedOptions(Lighting::Default);

    const Picture before = pictureOf(free, options);
    const Picture behind = pictureOf(hidden, options);

    const Picture face = pictureOf(empty, options);
    EXPECT_GT(behind.brightness(50, 50), face.brightness(50, 50) + 60);
    EXPECT_GT(before.brightness(50, 50), behind.brightness(50, 50) + 60);
}

TEST(Glyph, OfALightFixedToAFaceIsShownWhole) {
    HandScene scene;
    scene.addSquare(0, 100, 0, 0x404040);
    scene.addLight(lightOf(gs::GlyphKind::Point));

    const Picture picture = pictureOf(scene, shadedOptions(Lighting::Default));

    EXPECT_GT(picture.count(plainOptions().colors.lightOn), 20);
}

TEST(Glyph, IsCutAtTheBorderOfThePicture) {
    HandScene scene;
    for (const double x : {-9.0, 0.0, 100.0, 109.0})
        for (const double y : {-9.0, 0.0, 50.0, 100.0, 109.0})
            scene.addLight(lightOf(gs::GlyphKind::Web, {x, y, 0}));

    const Picture picture = pictureOf(scene);

    EXPECT_TRUE(picture.isUntouchedAround());
    EXPECT_GT(picture.differences(pictureOf({})), 300);
}

} // namespace
} // namespace quor::desktop
