#include "host/gs/light_distribution.h"

#include "host/db/light_web.h"
#include "host/gs/web_directions.h"
#include "tests/host/gs/scene_testing.h"

#include <filesystem>
#include <numbers>

namespace quor::gs {
namespace {

std::filesystem::path fileOf(const std::string& name) { return std::filesystem::path(QUOR_TEST_DATA) / "ies" / name; }

// Bright straight down, half as bright 45 degrees from there, dark at the horizon and above.
ies::PhotometricWeb downlight() {
    ies::PhotometricWeb web;
    web.symmetry = ies::Symmetry::Axial;
    web.vertical = {0, 45, 90};
    web.horizontal = {0};
    web.candela = {200, 100, 0};
    return web;
}

TEST(LightDistribution, OfADownlightIsBrightBelowAndDarkAbove) {
    const LightDistribution shares = distributionOf(downlight());
    EXPECT_NEAR(shares.towards(0, 0, -3), 1, 1e-4);
    EXPECT_NEAR(shares.towards(2, 0, -2), 0.5, 0.01);
    EXPECT_NEAR(shares.towards(-1, -1, -std::numbers::sqrt2_v<float>), 0.5, 0.01);
    EXPECT_EQ(shares.towards(0, 0, 1), 0);
    EXPECT_EQ(shares.towards(1, 0.5, 0.2F), 0);
}

TEST(LightDistribution, OfADarkWebIsDark) {
    ies::PhotometricWeb web = downlight();
    web.candela = {0, 0, 0};
    EXPECT_EQ(distributionOf(web).towards(0, 0, -1), 0);
}

TEST(LightDistribution, HasNoDirectionWithoutLength) {
    EXPECT_EQ(distributionOf(downlight()).towards(0, 0, 0), 0);
    EXPECT_EQ(distributionOf(downlight()).towards(std::nanf(""), 0, 0), 0);
}

struct WebOfEachType : testing::TestWithParam<const char*> {
    const ies::LoadedWeb loaded = ies::loadWeb(fileOf(GetParam()));
    const ies::PhotometricWeb& web = (*loaded)->web;
};

TEST_P(WebOfEachType, HasTheDirectionsOfItsAngles) {
    for (const double horizontal : {-80.0, -10.0, 0.0, 30.0, 75.0})
        for (const double vertical : {5.0, 40.0, 85.0}) {
            const WebAngles back = webAngles(web.photometry, webDirection(web.photometry, horizontal, vertical));
            EXPECT_NEAR(std::remainder(back.horizontal - horizontal, 360), 0, 1e-9);
            EXPECT_NEAR(back.vertical, vertical, 1e-9);
        }
}

TEST_P(WebOfEachType, SharesItsLightAsTheFileSays) {
    const LightDistribution shares = distributionOf(web);
    double farthest = 0;
    for (double horizontal = 1; horizontal < 90; horizontal += 11)
        for (double vertical = 3; vertical < 90; vertical += 7) {
            const ZrGeVector3d to = webDirection(web.photometry, horizontal, vertical);
            const double share = ies::intensityAt(web, horizontal, vertical) / ies::maxIntensity(web);
            const float kept = shares.towards(float(to.x), float(to.y), float(to.z));
            farthest = std::max(farthest, std::abs(kept - share));
        }
    EXPECT_LT(farthest, 0.06);
}

INSTANTIATE_TEST_SUITE_P(Files, WebOfEachType,
                         testing::Values("pp_LLIA001477-003.ies", "pp_type_a_symmetric.ies", "pp_type_b_full.ies"));

// Lights in a drawing.
struct WebLights : SceneTest {
    ZrDbObjectId addWeb(const ZrString& file, const ZrGeVector3d& rotation = {}) {
        const ZrDbObjectId id = db::drawings::addLight(*database);
        db::drawings::change(id, [&](ZrDbLight& each) {
            each.setLightType(DrawableType::kWebLight);
            each.setPosition({0, 0, 10});
            each.setTargetLocation({0, 0, 0});
            each.setWebFile(file);
            each.setWebRotation(rotation);
        });
        return id;
    }
    ZrString file = fileOf("pp_LLIA001477-003.ies").wstring();
};

TEST_F(WebLights, OfOneFileShareOneDistribution) {
    addWeb(file);
    addWeb(file);
    const SceneData data = updated();
    ASSERT_NE(data.lights[0].distribution, nullptr);
    EXPECT_EQ(data.lights[0].distribution, data.lights[1].distribution);
}

TEST_F(WebLights, KeepTheirDistributionWhenTheyChange) {
    const ZrDbObjectId light = addWeb(file);
    const auto before = updated().lights[0].distribution;
    db::drawings::change(light, [](ZrDbLight& each) { each.setPosition({5, 5, 5}); });
    EXPECT_EQ(updated().lights[0].distribution, before);
}

TEST_F(WebLights, WithoutAFileShineEvenly) {
    addWeb({});
    addWeb(L"/nowhere/missing.ies");
    const SceneData data = updated();
    EXPECT_EQ(data.lights[0].distribution, nullptr);
    EXPECT_EQ(data.lights[1].distribution, nullptr);
}

TEST_F(WebLights, ShineBackwardsAlongTheirThirdAxis) {
    addWeb(file);
    EXPECT_TRUE(updated().lights[0].axes[2].isEqualTo(ZrGeVector3d::kZAxis));
}

TEST_F(WebLights, AreTurnedByTheRotationOfTheirWeb) {
    addWeb(file, {180, 0, 0});
    EXPECT_TRUE(updated().lights[0].axes[2].isEqualTo(-ZrGeVector3d::kZAxis));
}

} // namespace
} // namespace quor::gs
