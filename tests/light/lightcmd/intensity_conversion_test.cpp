#include "light/lightcmd/intensity_conversion.h"

#include <gtest/gtest.h>
#include <limits>

namespace quor::light {
namespace {

using enum PhysicalIntensityMethod;

constexpr double millimetres = 1;
constexpr double metres = 0.001;
constexpr double feet = 1 / 304.8;

// The lights of these tests shine with 1500 cd at distance 2, unless a test says otherwise.
constexpr double candela = 1500;
constexpr double distance = 2;
constexpr double lumenAround = 18849.55592153876; // 1500 x 12.566370614359172, which is 4 pi

PhotometricIntensity lightIn(double drawingUnit, int lightingUnits, double value, PhysicalIntensityMethod method) {
    return {.value = value,
            .method = method,
            .distance = distance,
            .lightingUnits = lightingUnits,
            .unitsPerMillimetre = drawingUnit};
}

// Candela x 1000000 / distance^2 / (millimetres of the drawing's unit)^2.
TEST(ShownIlluminance, InLuxItIsTheConvertedOne) {
    EXPECT_DOUBLE_EQ(shownIlluminance(lightIn(millimetres, lux, candela, kPeakIntensity)), 375000000);
    EXPECT_DOUBLE_EQ(shownIlluminance(lightIn(metres, lux, candela, kPeakIntensity)), 375);
    EXPECT_DOUBLE_EQ(shownIlluminance(lightIn(feet, lux, candela, kPeakIntensity)), 4036.466406266146);
    EXPECT_DOUBLE_EQ(shownIlluminance(lightIn(metres, lux, lumenAround, kFlux)), 375);
}

// 1500 x 92903.04 / 2^2.
TEST(ShownIlluminance, InFootCandleTheDistanceCountsAsMillimetres) {
    EXPECT_DOUBLE_EQ(shownIlluminance(lightIn(millimetres, footCandles, candela, kPeakIntensity)), 34838640);
    EXPECT_DOUBLE_EQ(shownIlluminance(lightIn(metres, footCandles, candela, kPeakIntensity)), 34838640);
    EXPECT_DOUBLE_EQ(shownIlluminance(lightIn(feet, footCandles, candela, kPeakIntensity)), 34838640);
}

// 375 fc at 2 ft are 1500 cd, for on the way to candela the unit of the drawing counts; they show as 1500 cd do.
TEST(ShownIlluminance, AStoredFootCandleIsShownAsAnotherNumber) {
    EXPECT_DOUBLE_EQ(shownIlluminance(lightIn(feet, footCandles, 375, kIlluminance)), 34838640);
    EXPECT_DOUBLE_EQ(shownIlluminance(lightIn(millimetres, footCandles, 375, kIlluminance)), 375);
}

TEST(AcceptedCandela, BothEndsOfTheRangeAreAccepted) {
    EXPECT_EQ(acceptedCandela(0), 0);
    EXPECT_EQ(acceptedCandela(10000000), 10000000);
}

TEST(AcceptedCandela, WhatIsOutOfTheRangeBecomes1500) {
    EXPECT_EQ(acceptedCandela(-std::numeric_limits<double>::denorm_min()), 1500);
    EXPECT_EQ(acceptedCandela(-1), 1500);
    EXPECT_EQ(acceptedCandela(10000000.000000002), 1500);
    EXPECT_EQ(acceptedCandela(20000000), 1500);
}

} // namespace
} // namespace quor::light
