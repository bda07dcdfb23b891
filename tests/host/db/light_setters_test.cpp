#include "host/db/data.h"
#include "tests/host/db/drawings.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace {

constexpr double kNan = std::numeric_limits<double>::quiet_NaN();
constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kDegree = quor::db::kDegree;

struct LightSetters : testing::Test {
    ZrDbLight light;
};

TEST_F(LightSetters, NewLightHasTheValuesOfANewLight) {
    EXPECT_EQ(light.name(), L"");
    EXPECT_EQ(light.lightType(), DrawableType::kPointLight);
    EXPECT_TRUE(light.isOn());
    EXPECT_EQ(light.lightColor(), ZrCmColor::fromIndex(7));
    EXPECT_EQ(light.intensity(), 1);
    EXPECT_EQ(light.position(), ZrGePoint3d(0, 0, 0));
    EXPECT_EQ(light.targetLocation(), ZrGePoint3d(0, 0, -10));
    EXPECT_DOUBLE_EQ(light.hotspotAngle(), 45 * kDegree);
    EXPECT_DOUBLE_EQ(light.falloffAngle(), 50 * kDegree);
    EXPECT_EQ(light.glyphDisplay(), GlyphDisplay::kAutomatic);
    EXPECT_FALSE(light.plotsGlyph());
}

TEST_F(LightSetters, NewLightHasTheAttenuationAndShadowOfANewLight) {
    ZrGiShadowParameters shadow;
    EXPECT_EQ(light.shadowParameters(shadow), Quor::eOk);
    EXPECT_EQ(shadow, ZrGiShadowParameters());
    EXPECT_EQ(light.lightAttenuation().attenuationType(), ZrGiLightAttenuation::kNone);
    EXPECT_FALSE(light.lightAttenuation().useLimits());
    EXPECT_EQ(light.lightAttenuation().startLimit(), 1);
    EXPECT_EQ(light.lightAttenuation().endLimit(), 10);
}

TEST_F(LightSetters, NewLightHasThePhotometryOfANewLight) {
    ZrGeVector3d rotation(1, 1, 1);
    EXPECT_EQ(light.physicalIntensityMethod(), PhysicalIntensityMethod::kPeakIntensity);
    EXPECT_EQ(light.physicalIntensity(), 1500);
    EXPECT_EQ(light.illuminanceDistance(), 1);
    EXPECT_EQ(light.lampColorType(), LampColorType::kPreset);
    EXPECT_EQ(light.lampColorPreset(), LampColorPreset::kD65White);
    EXPECT_EQ(light.lampColorTemp(), 3600);
    EXPECT_EQ(light.webFile(), L"");
    EXPECT_EQ(light.webRotation(rotation), Quor::eOk);
    EXPECT_EQ(rotation, ZrGeVector3d());
}

TEST_F(LightSetters, NameHasOneTo255CharactersWithoutControlCharacters) {
    EXPECT_EQ(light.setName(L"x"), Quor::eOk);
    EXPECT_EQ(light.setName(ZrString(255, L'灯')), Quor::eOk);
    EXPECT_EQ(light.setName(ZrString(256, L'x')), Quor::eInvalidName);
    EXPECT_EQ(light.setName(L""), Quor::eInvalidName);
    EXPECT_EQ(light.setName(L"a\tb"), Quor::eInvalidName);
    EXPECT_EQ(light.setName(L"a\x7F"), Quor::eInvalidName);
    EXPECT_EQ(light.name(), ZrString(255, L'灯'));
}

TEST_F(LightSetters, TypeIsOneOfTheFourKinds) {
    EXPECT_EQ(light.setLightType(1), Quor::eOk);
    EXPECT_EQ(light.setLightType(2), Quor::eOk);
    EXPECT_EQ(light.setLightType(3), Quor::eOk);
    EXPECT_EQ(light.setLightType(10), Quor::eOk);
    for (const int wrong : {-1, 0, 4, 9, 11})
        EXPECT_EQ(light.setLightType(wrong), Quor::eInvalidInput);
    EXPECT_EQ(light.lightType(), DrawableType::kWebLight);
}

// The setters of one real number that may be 0 but not negative.
struct NotNegative {
    const char* name;
    Quor::ErrorStatus (ZrDbLight::*set)(double);
    double (ZrDbLight::*get)() const;
};

struct NotNegativeSetters : testing::TestWithParam<NotNegative> {};

TEST_P(NotNegativeSetters, TakeZeroAndMoreAndNoOtherNumber) {
    const auto [name, set, get] = GetParam();
    ZrDbLight light;
    EXPECT_EQ((light.*set)(0), Quor::eOk);
    EXPECT_EQ((light.*get)(), 0);
    EXPECT_EQ((light.*set)(std::numeric_limits<double>::max()), Quor::eOk);
    EXPECT_EQ((light.*set)(2.5), Quor::eOk);
    EXPECT_EQ((light.*set)(-std::numeric_limits<double>::denorm_min()), Quor::eInvalidInput);
    EXPECT_EQ((light.*set)(kNan), Quor::eInvalidInput);
    EXPECT_EQ((light.*set)(kInfinity), Quor::eInvalidInput);
    EXPECT_EQ((light.*set)(-kInfinity), Quor::eInvalidInput);
    EXPECT_EQ((light.*get)(), 2.5);
}

INSTANTIATE_TEST_SUITE_P(Light, NotNegativeSetters,
                         testing::Values(NotNegative{"Intensity", &ZrDbLight::setIntensity, &ZrDbLight::intensity},
                                         NotNegative{"PhysicalIntensity", &ZrDbLight::setPhysicalIntensity,
                                                     &ZrDbLight::physicalIntensity},
                                         NotNegative{"IlluminanceDistance", &ZrDbLight::setIlluminanceDistance,
                                                     &ZrDbLight::illuminanceDistance}),
                         [](const auto& info) { return info.param.name; });

TEST_F(LightSetters, LampTemperatureGoesFrom1000To20000Kelvin) {
    EXPECT_EQ(light.setLampColorTemp(1000), Quor::eOk);
    EXPECT_EQ(light.setLampColorTemp(20000), Quor::eOk);
    EXPECT_EQ(light.setLampColorTemp(std::nextafter(1000, 0)), Quor::eInvalidInput);
    EXPECT_EQ(light.setLampColorTemp(std::nextafter(20000, 30000)), Quor::eInvalidInput);
    EXPECT_EQ(light.setLampColorTemp(kNan), Quor::eInvalidInput);
    EXPECT_EQ(light.setLampColorTemp(kInfinity), Quor::eInvalidInput);
    EXPECT_EQ(light.lampColorTemp(), 20000);
    EXPECT_EQ(static_cast<int>(Quor::eInvalidInput), 3);
}

TEST_F(LightSetters, ConeGoesFromZeroTo160DegreesWithTheHotspotInside) {
    EXPECT_EQ(light.setHotspotAndFalloff(0, 0), Quor::eOk);
    EXPECT_EQ(light.setHotspotAndFalloff(160 * kDegree, 160 * kDegree), Quor::eOk);
    EXPECT_EQ(light.setHotspotAndFalloff(30 * kDegree, 40 * kDegree), Quor::eOk);
    EXPECT_EQ(light.setHotspotAndFalloff(41 * kDegree, 40 * kDegree), Quor::eInvalidInput);
    EXPECT_EQ(light.setHotspotAndFalloff(0, 160.001 * kDegree), Quor::eInvalidInput);
    EXPECT_EQ(light.setHotspotAndFalloff(-0.001, 1), Quor::eInvalidInput);
    EXPECT_EQ(light.setHotspotAndFalloff(kNan, 1), Quor::eInvalidInput);
    EXPECT_EQ(light.setHotspotAndFalloff(0, kNan), Quor::eInvalidInput);
    EXPECT_EQ(light.setHotspotAndFalloff(0, kInfinity), Quor::eInvalidInput);
    EXPECT_EQ(light.hotspotAngle(), 30 * kDegree);
    EXPECT_EQ(light.falloffAngle(), 40 * kDegree);
}

TEST_F(LightSetters, PointsAndRotationAreFiniteNumbers) {
    ZrGeVector3d rotation;
    EXPECT_EQ(light.setPosition({1, 2, 3}), Quor::eOk);
    EXPECT_EQ(light.setTargetLocation({4, 5, 6}), Quor::eOk);
    EXPECT_EQ(light.setWebRotation({-10, 720, 0.5}), Quor::eOk);
    for (const double wrong : {kNan, kInfinity, -kInfinity}) {
        EXPECT_EQ(light.setPosition({wrong, 0, 0}), Quor::eInvalidInput);
        EXPECT_EQ(light.setTargetLocation({0, wrong, 0}), Quor::eInvalidInput);
        EXPECT_EQ(light.setWebRotation({0, 0, wrong}), Quor::eInvalidInput);
        EXPECT_EQ(light.setLightDirection({wrong, 0, 0}), Quor::eInvalidInput);
    }
    light.webRotation(rotation);
    EXPECT_EQ(light.position(), ZrGePoint3d(1, 2, 3));
    EXPECT_EQ(light.targetLocation(), ZrGePoint3d(4, 5, 6));
    EXPECT_EQ(rotation, ZrGeVector3d(-10, 720, 0.5));
}

TEST_F(LightSetters, DirectionKeepsPositionAndDistance) {
    light.setPosition({1, 0, 0});
    light.setTargetLocation({1, 0, -4});
    EXPECT_EQ(light.lightDirection(), ZrGeVector3d(0, 0, -1));
    EXPECT_EQ(light.setLightDirection({0, 20, 0}), Quor::eOk);
    EXPECT_EQ(light.position(), ZrGePoint3d(1, 0, 0));
    EXPECT_EQ(light.targetLocation(), ZrGePoint3d(1, 4, 0));
}

TEST_F(LightSetters, DirectionOfALightOnItsTargetIsZeroAndSetAtDistanceOne) {
    light.setTargetLocation({0, 0, 0});
    EXPECT_EQ(light.lightDirection(), ZrGeVector3d());
    EXPECT_EQ(light.setLightDirection({0, 0, 0}), Quor::eInvalidInput);
    EXPECT_EQ(light.setLightDirection({3, 0, 0}), Quor::eOk);
    EXPECT_EQ(light.targetLocation(), ZrGePoint3d(1, 0, 0));
}

TEST_F(LightSetters, ChoicesTakeTheirNumbersOnly) {
    EXPECT_EQ(light.setGlyphDisplay(0), Quor::eOk);
    EXPECT_EQ(light.setGlyphDisplay(2), Quor::eOk);
    EXPECT_EQ(light.setGlyphDisplay(3), Quor::eInvalidInput);
    EXPECT_EQ(light.setGlyphDisplay(-1), Quor::eInvalidInput);
    EXPECT_EQ(light.setPhysicalIntensityMethod(PhysicalIntensityMethod::kIlluminance), Quor::eOk);
    EXPECT_EQ(light.setPhysicalIntensityMethod(PhysicalIntensityMethod{3}), Quor::eInvalidInput);
    EXPECT_EQ(light.setPhysicalIntensityMethod(PhysicalIntensityMethod{-1}), Quor::eInvalidInput);
    EXPECT_EQ(light.setLampColorType(LampColorType::kKelvin), Quor::eOk);
    EXPECT_EQ(light.setLampColorType(LampColorType{2}), Quor::eInvalidInput);
    EXPECT_EQ(light.setLampColorType(LampColorType{-1}), Quor::eInvalidInput);
    EXPECT_EQ(light.setLampColorPreset(LampColorPreset::kCustom), Quor::eOk);
    EXPECT_EQ(light.setLampColorPreset(LampColorPreset{15}), Quor::eInvalidInput);
    EXPECT_EQ(light.setLampColorPreset(LampColorPreset{-1}), Quor::eInvalidInput);
    EXPECT_EQ(light.glyphDisplay(), GlyphDisplay::kOff);
    EXPECT_EQ(light.physicalIntensityMethod(), PhysicalIntensityMethod::kIlluminance);
    EXPECT_EQ(light.lampColorType(), LampColorType::kKelvin);
    EXPECT_EQ(light.lampColorPreset(), LampColorPreset::kCustom);
}

TEST_F(LightSetters, FlagsColourAndRecordsAreTakenAsGiven) {
    ZrGiLightAttenuation attenuation;
    ZrGiShadowParameters shadow;
    ZrGiShadowParameters read;
    attenuation.setLimits(2, 20);
    shadow.setShadowSamples(1024);
    EXPECT_EQ(light.setOn(false), Quor::eOk);
    EXPECT_EQ(light.setHasTarget(true), Quor::eOk);
    EXPECT_EQ(light.setPlotsGlyph(true), Quor::eOk);
    EXPECT_EQ(light.setLightColor(ZrCmColor::fromRGB(1, 2, 3)), Quor::eOk);
    EXPECT_EQ(light.setLightAttenuation(attenuation), Quor::eOk);
    EXPECT_EQ(light.setShadowParameters(shadow), Quor::eOk);
    light.shadowParameters(read);
    EXPECT_FALSE(light.isOn());
    EXPECT_TRUE(light.hasTarget());
    EXPECT_TRUE(light.plotsGlyph());
    EXPECT_EQ(light.lightColor(), ZrCmColor::fromRGB(1, 2, 3));
    EXPECT_EQ(light.lightAttenuation(), attenuation);
    EXPECT_EQ(read, shadow);
}

// Every setter with a value that it takes.
using Setter = Quor::ErrorStatus (*)(ZrDbLight&);
struct ClosedLight : testing::TestWithParam<Setter> {};

TEST_P(ClosedLight, CannotBeChanged) {
    const auto database = quor::db::Database::makeNew();
    const ZrDbObjectId id = quor::db::drawings::addLight(*database);
    const std::string before = quor::db::drawings::bytesOf(*database);
    const ZrDbObjectPointer<ZrDbLight> reader(id, ZrDb::kForRead);
    EXPECT_EQ(GetParam()(*reader), Quor::eNotOpenForWrite);
    EXPECT_EQ(quor::db::drawings::bytesOf(*database), before);
}

INSTANTIATE_TEST_SUITE_P(
    Setters, ClosedLight,
    testing::Values([](ZrDbLight& l) { return l.setName(L"other"); }, [](ZrDbLight& l) { return l.setLightType(1); },
                    [](ZrDbLight& l) { return l.setOn(false); }, [](ZrDbLight& l) { return l.setIntensity(2); },
                    [](ZrDbLight& l) { return l.setLightColor(ZrCmColor::fromIndex(1)); },
                    [](ZrDbLight& l) {
                        return l.setPosition({1, 1, 1});
                    },
                    [](ZrDbLight& l) {
                        return l.setTargetLocation({1, 1, 1});
                    },
                    [](ZrDbLight& l) {
                        return l.setLightDirection({1, 1, 1});
                    },
                    [](ZrDbLight& l) { return l.setHasTarget(true); },
                    [](ZrDbLight& l) { return l.setHotspotAndFalloff(0.1, 0.2); },
                    [](ZrDbLight& l) { return l.setLightAttenuation({}); },
                    [](ZrDbLight& l) { return l.setShadowParameters({}); },
                    [](ZrDbLight& l) { return l.setGlyphDisplay(1); },
                    [](ZrDbLight& l) { return l.setPlotsGlyph(true); },
                    [](ZrDbLight& l) { return l.setPhysicalIntensityMethod(PhysicalIntensityMethod::kFlux); },
                    [](ZrDbLight& l) { return l.setPhysicalIntensity(2); },
                    [](ZrDbLight& l) { return l.setIlluminanceDistance(2); },
                    [](ZrDbLight& l) { return l.setLampColorType(LampColorType::kKelvin); },
                    [](ZrDbLight& l) { return l.setLampColorTemp(5000); },
                    [](ZrDbLight& l) { return l.setLampColorPreset(LampColorPreset::kXenon); },
                    [](ZrDbLight& l) { return l.setWebFile(L""); },
                    [](ZrDbLight& l) {
                        return l.setWebRotation({1, 0, 0});
                    }));

} // namespace
