#include "tests/desktop/render/picture.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <numbers>

namespace quor::desktop {
namespace {

constexpr float kNotANumber = std::numeric_limits<float>::quiet_NaN();
constexpr float kInfinite = std::numeric_limits<float>::infinity();
constexpr float kHuge = std::numeric_limits<float>::max();
constexpr std::uint32_t kBlack = 0xFF000000;

// A little of everything, close together.
HandScene fullScene() {
    HandScene scene;
    for (int i = 0; i < 700; ++i) {
        const auto at = static_cast<float>(i % 97);
        const auto by = static_cast<float>(i % 31);
        scene.addLine({at, by, at - by}, {100 - by, at, by}, static_cast<std::uint32_t>(i * 7919) & 0xFFFFFFU);
    }
    for (int i = 0; i < 40; ++i) {
        const auto at = static_cast<float>(2 * i);
        scene.addTriangle({at, 10, 0}, {at + 30, 20, at}, {50, 100 - at, -at}, 0x8090A0);
    }
    for (int i = 0; i < 80; ++i) {
        gs::LightMark light;
        light.kind = static_cast<gs::GlyphKind>(i % 4);
        light.position = ZrGePoint3d(i * 37 % 100, i * 61 % 100, i % 13 * 3);
        light.direction = {0, 0, -1};
        light.hotspot = 0.5;
        light.falloff = 1;
        light.candela = 100 + i;
        scene.addLight(light);
    }
    scene.emphasize(5, gs::Emphasis::Selected);
    scene.emphasize(705, gs::Emphasis::Hovered);
    scene.emphasize(745, gs::Emphasis::Selected);
    return scene;
}

// Both styles, both lightings, still and moving.
std::vector<RenderOptions> allOptions() {
    std::vector<RenderOptions> all;
    for (const gs::VisualStyle style : {gs::VisualStyle::Wireframe, gs::VisualStyle::Shaded})
        for (const Lighting lighting : {Lighting::Default, Lighting::OfDrawing})
            for (const bool isMoving : {false, true})
                all.push_back({.style = style, .lighting = lighting, .colors = {}, .isMoving = isMoving});
    return all;
}

// Each way of drawing it, with and without an eye; nothing is written beside the picture.
void drawEachWay(const HandScene& scene) {
    for (const RenderOptions& options : allOptions()) {
        Picture parallel;
        Picture perspective;
        parallel.take(scene, cameraFromAbove(), options, 2);
        perspective.take(scene, perspectiveFromAbove(), options, 2);
        EXPECT_TRUE(parallel.isUntouchedAround());
        EXPECT_TRUE(perspective.isUntouchedAround());
    }
}

TEST(Threads, MakeTheSamePictureWhateverTheirNumber) {
    const HandScene scene = fullScene();
    for (const RenderOptions& options : allOptions()) {
        Picture one(160, 130);
        Picture three(160, 130);
        Picture eight(160, 130);
        one.take(scene, perspectiveFromAbove(), options, 1);
        three.take(scene, perspectiveFromAbove(), options, 3);
        eight.take(scene, perspectiveFromAbove(), options, 8);
        EXPECT_EQ(one.differences(three), 0);
        EXPECT_EQ(one.differences(eight), 0);
    }
}

TEST(Renderer, DrawsTheSameAgainAfterOtherPictures) {
    const HandScene scene = fullScene();
    const RenderOptions options = shadedOptions(Lighting::OfDrawing);
    Picture first;
    first.take(scene, perspectiveFromAbove(), options);
    Renderer renderer;
    std::vector<std::uint32_t> pixels(std::size_t{300} * 200);
    renderer.render(scene.data(), cameraFromAbove(), plainOptions(), {pixels.data(), 300, 200, 300});
    renderer.render({}, cameraFromAbove(), options, {pixels.data(), 50, 20, 50});

    renderer.render(scene.data(), perspectiveFromAbove(), options, {pixels.data(), 100, 100, 300});

    EXPECT_EQ(pixels[50 * 300 + 50], first.at(50, 50));
    EXPECT_EQ(pixels[99 * 300 + 99], first.at(99, 99));
}

TEST(OddScene, OfNothingIsBackground) {
    Picture picture;

    picture.take({}, perspectiveFromAbove(), shadedOptions(Lighting::OfDrawing));

    EXPECT_EQ(picture.count(kBlack), 100 * 100);
}

TEST(OddScene, LinesWithCoordinatesThatAreNoNumbersAreLeftOut) {
    HandScene scene;
    scene.addLine({kNotANumber, 50, 0}, {90, 50, 0});
    scene.addLine({10, kInfinite, 0}, {90, 50, 0});
    scene.addLine({10, 50, -kInfinite}, {kNotANumber, kNotANumber, kNotANumber});
    scene.addLine({10, 20.5F, 0}, {90, 20.5F, 0}, 0x00FF00);
    Picture picture;

    picture.take(scene, perspectiveFromAbove(), plainOptions());

    EXPECT_EQ(picture.count(0xFFFF0000), 0);
    EXPECT_EQ(picture.at(50, 79), 0xFF00FF00U);
    drawEachWay(scene);
}

TEST(OddScene, HugeLinesAreCut) {
    HandScene scene;
    scene.addLine({-kHuge, 0, 0}, {kHuge, 0, 0});
    scene.addLine({-1e15F, 50, 0}, {1e15F, 50, 0}, 0x00FF00);
    scene.addLine({50, 50, -1e12F}, {50, 50, 1e12F});
    Picture picture;

    picture.take(scene, cameraFromAbove(), plainOptions());

    EXPECT_GE(picture.count(0xFF00FF00), 99);
    drawEachWay(scene);
}

TEST(OddScene, TrianglesThatAreNoneAreLeftOut) {
    HandScene scene;
    scene.addTriangle({50, 50, 0}, {50, 50, 0}, {50, 50, 0});
    scene.addTriangle({10, 50, 0}, {50, 50, 0}, {90, 50, 0});
    scene.addTriangle({kNotANumber, 50, 0}, {50, kInfinite, 0}, {90, 50, 0});
    scene.addTriangle({kHuge, kHuge, 0}, {-kHuge, 50, kHuge}, {90, 50, -kHuge});
    Picture picture;

    picture.take(scene, cameraFromAbove(), shadedOptions(Lighting::OfDrawing));

    EXPECT_EQ(picture.count(kBlack), 100 * 100);
    drawEachWay(scene);
}

TEST(OddScene, HugeTrianglesFillThePicture) {
    HandScene scene;
    scene.addSquare(-1e9F, 1e9F, 0);
    scene.addTriangle({0, 0, -1e7F}, {1e8F, 0, 1e6F}, {50, 1e8F, 1});
    Picture picture;

    picture.take(scene, cameraFromAbove(), shadedOptions(Lighting::Default));

    EXPECT_EQ(picture.count(kBlack), 0);
    drawEachWay(scene);
}

TEST(OddScene, LightsAtASurfaceOrNowhereDoNoHarm) {
    HandScene scene;
    scene.addSquare(0, 100, 0, 0xFFFFFF);
    gs::LightMark light;
    light.candela = 1500;
    for (const ZrGePoint3d& at : {ZrGePoint3d(50.5, 49.5, 0), ZrGePoint3d(kNotANumber, 0, 0), ZrGePoint3d(1e300, 0, 0),
                                  ZrGePoint3d(0, kInfinite, 5)}) {
        light.position = at;
        scene.addLight(light);
    }
    light.position = {20, 20, 10};
    for (const double candela : {-5.0, 0.0, 1e300, std::numeric_limits<double>::quiet_NaN()}) {
        light.candela = candela;
        scene.addLight(light);
    }
    light.kind = gs::GlyphKind::Spot;
    light.candela = 100;
    light.direction = {0, 0, 0};
    light.hotspot = std::numeric_limits<double>::quiet_NaN();
    light.falloff = 1e9;
    scene.addLight(light);

    drawEachWay(scene);
}

TEST(OddScene, ItemsThatReachOverTheEndAreLeftOut) {
    HandScene scene;
    scene.addLine({10, 20.5F, 0}, {90, 20.5F, 0});
    std::vector<gs::SceneItem> items{{.firstLine = 0, .lineCount = 0xFFFFFFFF},
                                     {.entity = 99, .firstTriangle = 0xFFFFFFFF, .triangleCount = 0xFFFFFFFF}};
    const std::vector<gs::SceneChunk> chunks{{{0, 0, 0}, {100, 100, 0}, 0, 0xFFFFFFFF},
                                             {{0, 0, 0}, {100, 100, 0}, 7, 3}};
    gs::SceneData data = scene.data();
    data.items = items;
    data.chunks = chunks;
    std::vector<std::uint32_t> pixels(std::size_t{100} * 100);

    Renderer().render(data, cameraFromAbove(), shadedOptions(Lighting::Default), {pixels.data(), 100, 100, 100});

    EXPECT_EQ(pixels, std::vector<std::uint32_t>(pixels.size(), kBlack));
}

TEST(OddCamera, ThatLooksNowhereShowsTheBackground) {
    const HandScene scene = fullScene();
    std::vector<gs::Camera> cameras(6, perspectiveFromAbove());
    cameras[0].height = 0;
    cameras[1].height = -5;
    cameras[2].height = std::numeric_limits<double>::quiet_NaN();
    cameras[3].target.x = std::numeric_limits<double>::infinity();
    cameras[4].up = cameras[4].backward;
    cameras[5].height = 1e-320;
    for (const gs::Camera& camera : cameras) {
        Picture picture;
        picture.take(scene, camera, shadedOptions(Lighting::OfDrawing));
        EXPECT_EQ(picture.count(kBlack), 100 * 100);
    }
}

TEST(OddTarget, OfNoSizeStaysAsItIs) {
    const HandScene scene = fullScene();
    std::vector<std::uint32_t> pixels(100, 7);
    Renderer renderer;

    renderer.render(scene.data(), cameraFromAbove(), {}, {nullptr, 10, 10, 10});
    renderer.render(scene.data(), cameraFromAbove(), {}, {pixels.data(), 0, 10, 10});
    renderer.render(scene.data(), cameraFromAbove(), {}, {pixels.data(), 10, -1, 10});
    renderer.render(scene.data(), cameraFromAbove(), {}, {pixels.data(), 10, 10, 9});
    renderer.render(scene.data(), cameraFromAbove(), {}, {pixels.data(), 1 << 30, 1 << 30, 1 << 30});

    EXPECT_EQ(pixels, std::vector<std::uint32_t>(100, 7));
}

TEST(OddTarget, OfOnePixelIsDrawn) {
    Picture picture(1, 1);

    picture.take(fullScene(), cameraFromAbove(), shadedOptions(Lighting::OfDrawing));

    EXPECT_NE(picture.at(0, 0), kBlack);
    EXPECT_TRUE(picture.isUntouchedAround());
}

TEST(OddOptions, WithoutASensibleRatioOfPixelsAreDrawn) {
    for (const double ratio : {0.0, -3.0, 1e30, std::numeric_limits<double>::quiet_NaN()}) {
        RenderOptions options = plainOptions();
        options.pixelRatio = ratio;
        Picture picture;
        picture.take(fullScene(), cameraFromAbove(), options);
        EXPECT_LT(picture.count(kBlack), 100 * 100);
    }
}

TEST(AnyCamera, DrawsWithoutHarm) {
    const HandScene scene = fullScene();
    for (int i = 0; i < 60; ++i) {
        const double turn = i * std::numbers::pi / 30;
        gs::Camera camera = i % 2 == 0 ? cameraFromAbove() : perspectiveFromAbove();
        camera.backward = ZrGeVector3d(std::cos(turn), std::sin(turn), 0.3 * (i % 5)).normal();
        const ZrGeVector3d right = ZrGeVector3d(0, 0, 1).crossProduct(camera.backward).normal();
        camera.up = camera.backward.crossProduct(right);
        camera.height = std::pow(10.0, i % 9 - 3);
        Picture picture;
        picture.take(scene, camera, shadedOptions(i % 3 == 0 ? Lighting::Default : Lighting::OfDrawing));
        EXPECT_TRUE(picture.isUntouchedAround());
    }
}

} // namespace
} // namespace quor::desktop
