#include "host/props/light_facts.h"

#include "sdk/db/light.h"

#include <gtest/gtest.h>

#include <cmath>
#include <filesystem>

namespace quor {

namespace {

using enum PhysicalIntensityMethod;

constexpr PhotometricUnits kLux{.lightingUnits = lux};
constexpr PhotometricUnits kGeneric{.lightingUnits = 0};
constexpr double kRadiansOfADegree = 0.017453292519943295;

LightFacts facts(const ZrDbLight& light, const PhotometricUnits& units = kLux) { return factsOf(light, {}, units); }

class ALight : public testing::Test {
protected:
    void be(DrawableType type, bool hasTarget) {
        light.setLightType(type);
        light.setHasTarget(hasTarget);
    }
    void shine(PhysicalIntensityMethod method, double intensity, double distance = 2) {
        light.setPhysicalIntensityMethod(method);
        light.setPhysicalIntensity(intensity);
        light.setIlluminanceDistance(distance);
    }

    ZrDbLight light;
};

struct KindRow {
    DrawableType type;
    bool hasTarget;
    LightKind kind;
};

class EachKind : public ALight, public testing::WithParamInterface<KindRow> {};

TEST_P(EachKind, ComesFromTheTypeAndFromWhetherThereIsATarget) {
    be(GetParam().type, GetParam().hasTarget);

    EXPECT_EQ(facts(light).kind, GetParam().kind);
}

INSTANTIATE_TEST_SUITE_P(Kinds, EachKind,
                         testing::Values(KindRow{DrawableType::kPointLight, false, LightKind::Point},
                                         KindRow{DrawableType::kPointLight, true, LightKind::TargetPoint},
                                         KindRow{DrawableType::kSpotLight, true, LightKind::Spot},
                                         KindRow{DrawableType::kSpotLight, false, LightKind::FreeSpot},
                                         KindRow{DrawableType::kWebLight, true, LightKind::Web},
                                         KindRow{DrawableType::kWebLight, false, LightKind::FreeWeb},
                                         KindRow{DrawableType::kDistantLight, true, LightKind::Distant},
                                         KindRow{DrawableType::kDistantLight, false, LightKind::Distant}));

TEST_F(ALight, WithATargetHasOne) {
    be(DrawableType::kSpotLight, true);
    light.setPosition({1, 2, 3});
    light.setTargetLocation({1, 2, -7});

    const LightFacts told = facts(light);

    EXPECT_EQ(told.position, ZrGePoint3d(1, 2, 3));
    EXPECT_EQ(told.target, ZrGePoint3d(1, 2, -7));
    EXPECT_EQ(told.direction->z, -1);
}

TEST_F(ALight, ThatIsFreeHasADirectionOnly) {
    be(DrawableType::kWebLight, false);
    light.setTargetLocation({10, 0, 0});

    const LightFacts told = facts(light);

    EXPECT_EQ(told.target, std::nullopt);
    EXPECT_EQ(told.direction->x, 1);
}

TEST_F(ALight, ThatIsAPointShinesInNoDirection) {
    EXPECT_EQ(facts(light).target, std::nullopt);
    EXPECT_FALSE(facts(light).direction);
}

TEST_F(ALight, WhoseTargetIsItsPositionHasNoDirection) {
    be(DrawableType::kSpotLight, true);
    light.setTargetLocation(light.position());

    EXPECT_FALSE(facts(light).direction);
}

TEST_F(ALight, ThatIsDistantIsNowhere) {
    be(DrawableType::kDistantLight, true);
    light.setPosition({5, 5, 5});
    light.setTargetLocation({5, 5, 0});

    const LightFacts told = facts(light);

    EXPECT_EQ(told.position, std::nullopt);
    EXPECT_EQ(told.target, std::nullopt);
    EXPECT_EQ(told.direction->z, -1);
}

TEST_F(ALight, HasAConeAsASpotOnly) {
    light.setHotspotAndFalloff(30 * kRadiansOfADegree, 60 * kRadiansOfADegree);
    EXPECT_EQ(facts(light).hotspot, std::nullopt);

    be(DrawableType::kSpotLight, false);

    EXPECT_EQ(facts(light).hotspot, 30);
    EXPECT_EQ(facts(light).falloff, 60);
}

// 43 degrees in radians, and back, is 42.99999999999999.
TEST_F(ALight, HasTheAnglesThatWereTyped) {
    be(DrawableType::kSpotLight, false);
    light.setHotspotAndFalloff(std::nextafter(43 * kRadiansOfADegree, 0), 43.123456789012 * kRadiansOfADegree);

    EXPECT_EQ(facts(light).hotspot, 43);
    EXPECT_EQ(facts(light).falloff, 43.123456789012);
}

// 4 pi times the candela; candela x 1000000 / distance^2 in a drawing in millimetres.
TEST_F(ALight, IsToldInEveryUnit) {
    shine(kPeakIntensity, 1500);

    EXPECT_EQ(facts(light).candela, 1500);
    EXPECT_DOUBLE_EQ(*facts(light).lumen, 18849.55592153876);
    EXPECT_DOUBLE_EQ(*facts(light).illuminance, 375000000);
}

// 1500 x 0.3973980687964644.
TEST_F(ALight, ThatIsASpotHasTheFluxOfItsCone) {
    be(DrawableType::kSpotLight, false);
    shine(kPeakIntensity, 1500);

    EXPECT_DOUBLE_EQ(*facts(light).lumen, 596.0971031946966);
}

class AWebLight : public ALight {
protected:
    AWebLight() {
        be(DrawableType::kWebLight, false);
        const std::filesystem::path webs = std::filesystem::path(QUOR_TEST_DATA) / "../../resources/webs";
        light.setWebFile((webs / "wall_washer.ies").wstring());
    }
};

TEST_F(AWebLight, HasTheFluxOfItsFileAndNoneOfItsIntensity) {
    shine(kPeakIntensity, 1500);

    EXPECT_NEAR(*facts(light).webFlux, 2000, 0.01);
    EXPECT_EQ(facts(light).lumen, std::nullopt);
    EXPECT_EQ(facts(light).candela, 1500);
    EXPECT_DOUBLE_EQ(*facts(light).illuminance, 375000000);
}

TEST_F(AWebLight, GivenAsFluxHasNothingElse) {
    shine(kFlux, 1200);

    EXPECT_EQ(facts(light).lumen, 1200);
    EXPECT_EQ(facts(light).candela, std::nullopt);
    EXPECT_EQ(facts(light).illuminance, std::nullopt);
}

TEST_F(AWebLight, ShinesAllAroundWithoutAWeb) {
    light.setWebFile(L"");
    shine(kPeakIntensity, 1500);

    EXPECT_EQ(facts(light).webFlux, std::nullopt);
    EXPECT_DOUBLE_EQ(*facts(light).lumen, 18849.55592153876);
}

TEST_F(AWebLight, IsTheOnlyOneWithARotation) {
    light.setWebRotation({10, 20, 370});
    EXPECT_EQ(facts(light).webRotation, ZrGeVector3d(10, 20, 370));

    be(DrawableType::kPointLight, false);
    EXPECT_FALSE(facts(light).webRotation);
}

TEST(RoundedTo, KeepsSoManyDigits) {
    EXPECT_EQ(roundedTo(6, 18849.55592), 18849.6);
    EXPECT_EQ(roundedTo(6, 95492965.9), 95493000);
    EXPECT_EQ(roundedTo(3, -0.0012345), -0.00123);
    EXPECT_EQ(roundedTo(6, 0), 0);
}

TEST_F(ALight, KeepsTheNumberThatItIsGivenIn) {
    shine(kIlluminance, 0.1, 0.3);
    EXPECT_EQ(facts(light).illuminance, 0.1);

    shine(kFlux, 0.1);
    EXPECT_EQ(facts(light).lumen, 0.1);
}

TEST_F(ALight, HasNoIlluminanceAtDistanceZero) {
    shine(kPeakIntensity, 1500, 0);

    EXPECT_EQ(facts(light).illuminance, std::nullopt);
    EXPECT_EQ(facts(light).illuminanceDistance, 0);
    EXPECT_EQ(facts(light).candela, 1500);
}

TEST_F(ALight, HasNoIntensityBeyondAllNumbers) {
    shine(kPeakIntensity, 1e308);

    EXPECT_EQ(facts(light).lumen, std::nullopt);
    EXPECT_EQ(facts(light).candela, 1e308);
}

TEST_F(ALight, ThatIsDistantHasCandelaOnly) {
    be(DrawableType::kDistantLight, true);
    shine(kPeakIntensity, 1500);

    EXPECT_EQ(facts(light).candela, 1500);
    EXPECT_EQ(facts(light).lumen, std::nullopt);
    EXPECT_EQ(facts(light).illuminance, std::nullopt);
    EXPECT_EQ(facts(light).illuminanceDistance, std::nullopt);
}

TEST_F(ALight, ThatIsDistantKeepsTheIlluminanceThatItIsGivenIn) {
    be(DrawableType::kDistantLight, true);
    shine(kIlluminance, 40, 3);

    EXPECT_EQ(facts(light).illuminance, 40);
    EXPECT_EQ(facts(light).illuminanceDistance, 3);
}

TEST_F(ALight, HasNoIlluminanceWithoutAUnitForIt) {
    shine(kPeakIntensity, 1500);
    EXPECT_EQ(facts(light, kGeneric).candela, 1500);
    EXPECT_EQ(facts(light, kGeneric).illuminance, std::nullopt);

    shine(kIlluminance, 40);
    EXPECT_EQ(facts(light, kGeneric).illuminance, 40);
    EXPECT_EQ(facts(light, kGeneric).candela, std::nullopt);
    EXPECT_EQ(facts(light, kGeneric).lumen, std::nullopt);
}

TEST_F(ALight, HasAPresetOrATemperature) {
    light.setLampColorType(LampColorType::kPreset);
    light.setLampColorPreset(LampColorPreset::kXenon);
    EXPECT_EQ(facts(light).lampPreset, LampColorPreset::kXenon);
    EXPECT_EQ(facts(light).lampKelvin, std::nullopt);

    light.setLampColorType(LampColorType::kKelvin);
    light.setLampColorTemp(2700);
    EXPECT_EQ(facts(light).lampPreset, std::nullopt);
    EXPECT_EQ(facts(light).lampKelvin, 2700);
}

} // namespace

} // namespace quor
