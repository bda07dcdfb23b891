#include "host/props/lamp_color.h"

#include <gtest/gtest.h>

namespace quor::props {
namespace {

TEST(LampColor, WarmLampsAreRedderThanColdOnes) {
    const ZrCmColor warm = colorOfTemperature(2000);
    const ZrCmColor cold = colorOfTemperature(12000);

    EXPECT_EQ(warm.red(), 255);
    EXPECT_LT(warm.blue(), warm.green());
    EXPECT_LT(warm.green(), warm.red());
    EXPECT_EQ(cold.blue(), 255);
    EXPECT_LT(cold.red(), cold.green());
}

TEST(LampColor, DaylightIsNearlyWhite) {
    const ZrCmColor daylight = colorOfTemperature(6500);
    EXPECT_GT(daylight.red(), 245);
    EXPECT_GT(daylight.green(), 240);
    EXPECT_GT(daylight.blue(), 240);
}

TEST(LampColor, IsThatOfTheNearestTemperatureThatIsKnown) {
    EXPECT_EQ(colorOfTemperature(1000), colorOfTemperature(1667));
    EXPECT_EQ(colorOfTemperature(1e9), colorOfTemperature(25000));
}

TEST(LampColor, OfAWhitePresetIsWhite) {
    EXPECT_EQ(colorOfPreset(LampColorPreset::kD65White), ZrCmColor::fromRGB(255, 255, 255));
    EXPECT_EQ(colorOfPreset(LampColorPreset::kCustom), ZrCmColor::fromRGB(255, 255, 255));
}

TEST(LampColor, OfEveryOtherPresetIsThatOfItsTemperature) {
    EXPECT_EQ(colorOfPreset(LampColorPreset::kIncandescent), colorOfTemperature(2856));
    EXPECT_EQ(colorOfPreset(LampColorPreset::kLowPressureSodium), colorOfTemperature(1800));
}

TEST(LampColor, IsSeenThroughTheFilter) {
    ZrDbLight light;
    light.setLightColor(ZrCmColor::fromRGB(255, 0, 128));
    EXPECT_EQ(resultingColor(light), ZrCmColor::fromRGB(255, 0, 128));

    light.setLampColorType(LampColorType::kKelvin);
    light.setLampColorTemp(2700);
    EXPECT_EQ(resultingColor(light).green(), 0);
    EXPECT_LT(resultingColor(light).blue(), 128);
}

} // namespace
} // namespace quor::props
