#include "sdk/gi/light_attenuation.h"
#include "sdk/gi/shadow_parameters.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace {
constexpr double infinity = std::numeric_limits<double>::infinity();
}

TEST(LightAttenuation, TakesItsThreeTypesOnly) {
    ZrGiLightAttenuation attenuation;
    EXPECT_TRUE(attenuation.setAttenuationType(ZrGiLightAttenuation::kInverseSquare));
    EXPECT_FALSE(attenuation.setAttenuationType(static_cast<ZrGiLightAttenuation::AttenuationType>(3)));
    EXPECT_FALSE(attenuation.setAttenuationType(static_cast<ZrGiLightAttenuation::AttenuationType>(-1)));
    EXPECT_EQ(attenuation.attenuationType(), ZrGiLightAttenuation::kInverseSquare);
}

TEST(LightAttenuation, LimitsNeedNoOrder) {
    ZrGiLightAttenuation attenuation;
    EXPECT_TRUE(attenuation.setLimits(20, 0));
    EXPECT_EQ(attenuation.startLimit(), 20);
    EXPECT_EQ(attenuation.endLimit(), 0);
}

TEST(LightAttenuation, WrongLimitRefusesBoth) {
    ZrGiLightAttenuation attenuation;
    EXPECT_FALSE(attenuation.setLimits(2, -1));
    EXPECT_FALSE(attenuation.setLimits(infinity, 5));
    EXPECT_FALSE(attenuation.setLimits(2, std::nan("")));
    EXPECT_EQ(attenuation, ZrGiLightAttenuation());
}

TEST(ShadowParameters, DefaultsAreThoseOfANewLight) {
    const ZrGiShadowParameters shadow;
    EXPECT_TRUE(shadow.shadowsOn());
    EXPECT_EQ(shadow.shadowType(), ZrGiShadowParameters::kShadowsRayTraced);
    EXPECT_EQ(shadow.shadowMapSize(), 256);
    EXPECT_EQ(shadow.shadowMapSoftness(), 1);
    EXPECT_EQ(shadow.shadowSamples(), 16);
    EXPECT_EQ(shadow.extendedLightShape(), ZrGiShadowParameters::kRect);
    EXPECT_FALSE(shadow.shapeVisibility());
}

TEST(ShadowParameters, TakesItsTypesAndShapesOnly) {
    ZrGiShadowParameters shadow;
    EXPECT_TRUE(shadow.setShadowType(ZrGiShadowParameters::kAreaSampled));
    EXPECT_FALSE(shadow.setShadowType(static_cast<ZrGiShadowParameters::ShadowType>(3)));
    EXPECT_TRUE(shadow.setExtendedLightShape(ZrGiShadowParameters::kSphere));
    EXPECT_FALSE(shadow.setExtendedLightShape(static_cast<ZrGiShadowParameters::ExtendedLightShape>(5)));
    EXPECT_EQ(shadow.shadowType(), ZrGiShadowParameters::kAreaSampled);
    EXPECT_EQ(shadow.extendedLightShape(), ZrGiShadowParameters::kSphere);
}

TEST(ShadowParameters, MapSizeIsAPowerOfTwoFrom64To4096) {
    ZrGiShadowParameters shadow;
    EXPECT_TRUE(shadow.setShadowMapSize(64));
    EXPECT_TRUE(shadow.setShadowMapSize(4096));
    EXPECT_FALSE(shadow.setShadowMapSize(32));
    EXPECT_FALSE(shadow.setShadowMapSize(8192));
    EXPECT_FALSE(shadow.setShadowMapSize(100));
    EXPECT_EQ(shadow.shadowMapSize(), 4096);
}

TEST(ShadowParameters, SoftnessIsFrom1To10) {
    ZrGiShadowParameters shadow;
    EXPECT_TRUE(shadow.setShadowMapSoftness(10));
    EXPECT_FALSE(shadow.setShadowMapSoftness(0));
    EXPECT_FALSE(shadow.setShadowMapSoftness(11));
    EXPECT_EQ(shadow.shadowMapSoftness(), 10);
}

TEST(ShadowParameters, SamplesAreFrom0To1024) {
    ZrGiShadowParameters shadow;
    EXPECT_TRUE(shadow.setShadowSamples(0));
    EXPECT_TRUE(shadow.setShadowSamples(1024));
    EXPECT_FALSE(shadow.setShadowSamples(1025));
    EXPECT_EQ(shadow.shadowSamples(), 1024);
}

TEST(ShadowParameters, SizesAreFiniteAndNotNegative) {
    ZrGiShadowParameters shadow;
    EXPECT_TRUE(shadow.setExtendedLightLength(0));
    EXPECT_TRUE(shadow.setExtendedLightWidth(2.5));
    EXPECT_FALSE(shadow.setExtendedLightLength(-1));
    EXPECT_FALSE(shadow.setExtendedLightWidth(infinity));
    EXPECT_FALSE(shadow.setExtendedLightRadius(std::nan("")));
    EXPECT_EQ(shadow.extendedLightWidth(), 2.5);
    EXPECT_EQ(shadow.extendedLightRadius(), 0);
}
