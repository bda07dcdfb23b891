#include "tests/host/gs/scene_testing.h"

#include <filesystem>

namespace quor::gs {
namespace {

using db::drawings::addLight;
using db::drawings::change;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

struct LightLinesTest : SceneTest {
    template <class Change>
    std::vector<ZrGePoint3d> linesAfter(Change&& act) {
        change(light, act);
        return Scene::lightLines(light);
    }
    ZrDbObjectId light = addLight(*database);
};

Box boxOf(const std::vector<ZrGePoint3d>& points) {
    Box box;
    for (const ZrGePoint3d& point : points)
        box.add(point);
    return box;
}

ZrString webFile(const std::string& name) { return (std::filesystem::path(QUOR_TEST_DATA) / "ies" / name).wstring(); }

TEST_F(LightLinesTest, APointLightShowsNothing) { EXPECT_THAT(Scene::lightLines(light), IsEmpty()); }

TEST_F(LightLinesTest, WhatIsNoLightShowsNothing) {
    EXPECT_THAT(Scene::lightLines(addLine({1, 2, 3}, {4, 5, 6})), IsEmpty());
    EXPECT_THAT(Scene::lightLines(ZrDbObjectId()), IsEmpty());
}

TEST_F(LightLinesTest, ALightWithATargetShowsTheLineThere) {
    const auto lines = linesAfter([](ZrDbLight& each) {
        each.setPosition({1, 2, 3});
        each.setTargetLocation({4, 5, 6});
        each.setHasTarget(true);
    });
    EXPECT_THAT(lines, ElementsAre(ZrGePoint3d(1, 2, 3), ZrGePoint3d(4, 5, 6)));
}

TEST_F(LightLinesTest, ASpotLightShowsTheConeOfItsFalloffUpToTheTarget) {
    const auto lines = linesAfter([](ZrDbLight& each) {
        each.setLightType(DrawableType::kSpotLight);
        each.setPosition({0, 0, 20});
        each.setTargetLocation({0, 0, 0});
        each.setHotspotAndFalloff(std::numbers::pi / 4, std::numbers::pi / 2);
    });
    EXPECT_NEAR(boxOf(lines).low.x, -20, 1e-9);
    EXPECT_NEAR(boxOf(lines).high.y, 20, 1e-9);
    EXPECT_NEAR(boxOf(lines).low.z, 0, 1e-9);
    EXPECT_NEAR(boxOf(lines).high.z, 20, 1e-9);
    // Two circles of 48 steps, and eight lines to each.
    EXPECT_THAT(lines, SizeIs(2 * 2 * (48 + 8)));
}

TEST_F(LightLinesTest, TheConeOfALightThatAimsAtItselfReachesTenUnits) {
    const auto lines = linesAfter([](ZrDbLight& each) {
        each.setLightType(DrawableType::kSpotLight);
        each.setTargetLocation(each.position());
    });
    EXPECT_NEAR(boxOf(lines).low.z, -10, 1e-9);
}

TEST_F(LightLinesTest, ADistantLightShowsAnArrowAlongItsDirection) {
    const auto lines = linesAfter([](ZrDbLight& each) {
        each.setLightType(DrawableType::kDistantLight);
        each.setPosition({0, 0, 0});
        each.setTargetLocation({300, 0, 0});
    });
    EXPECT_NEAR(boxOf(lines).high.x, 10, 1e-9);
    EXPECT_THAT(lines, SizeIs(6));
}

TEST_F(LightLinesTest, AWebLightShowsItsWebAsLargeAsTheTargetIsFar) {
    const auto lines = linesAfter([](ZrDbLight& each) {
        each.setLightType(DrawableType::kWebLight);
        each.setPosition({0, 0, 30});
        each.setTargetLocation({0, 0, 0});
        ASSERT_EQ(each.setWebFile(webFile("dl_round_opening.ies")), Quor::eOk);
    });
    const Box box = boxOf(lines);
    ASSERT_FALSE(box.isEmpty());
    EXPECT_GE(box.low.z, -1e-9);
    EXPECT_LT(box.low.z, 29);
    EXPECT_GT(box.diagonal(), 5);
}

TEST_F(LightLinesTest, TheRotationOfAWebIsInDegrees) {
    const auto web = [](ZrDbLight& each) {
        each.setLightType(DrawableType::kWebLight);
        each.setPosition({0, 0, 0});
        each.setTargetLocation({0, 0, -30});
        ASSERT_EQ(each.setWebFile(webFile("dl_round_opening.ies")), Quor::eOk);
    };
    const Box upright = boxOf(linesAfter(web));
    const Box turned = boxOf(linesAfter([](ZrDbLight& each) { each.setWebRotation({180, 0, 0}); }));
    ASSERT_LT(upright.low.z, -1);
    EXPECT_NEAR(turned.high.z, -upright.low.z, 1e-9);
    EXPECT_NEAR(turned.low.z, -upright.high.z, 1e-9);
}

TEST_F(LightLinesTest, AWebLightWithoutItsFileShowsNoWeb) {
    EXPECT_THAT(linesAfter([](ZrDbLight& each) { each.setLightType(DrawableType::kWebLight); }), IsEmpty());
}

} // namespace
} // namespace quor::gs
