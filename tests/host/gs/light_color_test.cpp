#include "host/gs/light_color.h"

#include <gtest/gtest.h>

#include <limits>

namespace quor::gs {
namespace {

std::uint32_t red(std::uint32_t rgb) { return rgb >> 16U; }
std::uint32_t blue(std::uint32_t rgb) { return rgb & 0xFFU; }

TEST(LightColorTest, DaylightIsWhite) { EXPECT_EQ(glowRgb(6504), 0xFFFFFF); }

TEST(LightColorTest, WarmLightHasAllItsRedAndCoolLightAllItsBlue) {
    EXPECT_EQ(red(glowRgb(3000)), 255);
    EXPECT_LT(blue(glowRgb(3000)), 180);
    EXPECT_EQ(blue(glowRgb(12000)), 255);
    EXPECT_LT(red(glowRgb(12000)), 230);
}

TEST(LightColorTest, TheWarmerTheLightTheLessBlueItHas) {
    EXPECT_LT(blue(glowRgb(2000)), blue(glowRgb(2500)));
    EXPECT_LT(blue(glowRgb(2500)), blue(glowRgb(4000)));
    EXPECT_LT(blue(glowRgb(4000)), blue(glowRgb(6000)));
}

TEST(LightColorTest, BeyondWhatLampsHaveItStaysAsItIsThere) {
    EXPECT_EQ(glowRgb(-5), glowRgb(1000));
    EXPECT_EQ(glowRgb(1e9), glowRgb(20000));
    EXPECT_EQ(glowRgb(std::numeric_limits<double>::quiet_NaN()), 0xFFFFFF);
}

TEST(LightColorTest, PresetsStandForTemperatures) {
    EXPECT_EQ(glowRgb(temperatureOf(LampColorPreset::kD65White)), 0xFFFFFF);
    EXPECT_LT(temperatureOf(LampColorPreset::kLowPressureSodium), temperatureOf(LampColorPreset::kIncandescent));
    EXPECT_EQ(temperatureOf(static_cast<LampColorPreset>(99)), temperatureOf(LampColorPreset::kD65White));
}

TEST(LightColorTest, AFilterLetsItsShareThrough) {
    EXPECT_EQ(filteredRgb(0xFFFFFF, 0x102030), 0x102030);
    EXPECT_EQ(filteredRgb(0xFF8000, 0x80FFFF), 0x808000);
    EXPECT_EQ(filteredRgb(0xFF0000, 0x00FFFF), 0x000000);
}

} // namespace
} // namespace quor::gs
