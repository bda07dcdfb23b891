// The lights of these tests shine with 1500 cd at distance 2, unless a test says otherwise. By hand:
//   flux         1500 cd x 4 pi = 18849.55592153876 lm; of a spot light 1500 x 0.3973980687964644 = 596.0971031946966
//   lm illuminance  at 2 ft 1500 / 2^2 = 375 fc, at 2 m 375 lx;
//                2 m = 6.561679790026247 ft: 1500 x 0.3048^2 / 4 = 34.83864 fc;
//                2 ft = 0.6096 m: 1500 / 0.6096^2 = 4036.466406266146 lx;
//                2 mm: 375 x 304.8^2 = 34838640 fc, 375 x 1000^2 = 375000000 lx
#include "light/lightcmd/intensity_conversion.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>

namespace quor::light {
namespace {

using enum PhysicalIntensityMethod;

constexpr double millimetres = 1;
constexpr double metres = 0.001;
constexpr double feet = 1 / 304.8;
constexpr int generic = 0;

constexpr double lumenAround = 18849.55592153876;
constexpr double lumenOfSpot = 596.0971031946966;

PhotometricIntensity pointLight(double value, PhysicalIntensityMethod method) {
    return {.value = value, .method = method, .distance = 2};
}

PhotometricIntensity spotLight(double value, PhysicalIntensityMethod method) {
    return {.value = value, .method = method, .distance = 2, .isSpot = true};
}

PhotometricIntensity lightIn(double drawingUnit, int lightingUnits, double value, PhysicalIntensityMethod method) {
    return {.value = value,
            .method = method,
            .distance = 2,
            .lightingUnits = lightingUnits,
            .unitsPerMillimetre = drawingUnit};
}

TEST(ConvertIntensity, AValueInTheSameMethodStays) {
    EXPECT_EQ(convertIntensity(pointLight(1500, kPeakIntensity), kPeakIntensity), 1500);
    EXPECT_DOUBLE_EQ(convertIntensity(pointLight(1000, kFlux), kFlux), 1000);
    EXPECT_DOUBLE_EQ(convertIntensity(spotLight(1000, kFlux), kFlux), 1000);
    EXPECT_DOUBLE_EQ(convertIntensity(pointLight(375, kIlluminance), kIlluminance), 375);
    EXPECT_DOUBLE_EQ(convertIntensity(lightIn(feet, footCandles, 375, kIlluminance), kIlluminance), 375);
    EXPECT_DOUBLE_EQ(convertIntensity(lightIn(metres, generic, 375, kIlluminance), kIlluminance), 375);
}

TEST(ConvertIntensity, CandelaBecomeLumenAllAround) {
    EXPECT_DOUBLE_EQ(convertIntensity(pointLight(1500, kPeakIntensity), kFlux), lumenAround);
}

TEST(ConvertIntensity, CandelaOfASpotBecomeLumenInItsCone) {
    EXPECT_DOUBLE_EQ(convertIntensity(spotLight(1500, kPeakIntensity), kFlux), lumenOfSpot);
}

TEST(ConvertIntensity, LumenBecomeCandela) {
    EXPECT_DOUBLE_EQ(convertIntensity(pointLight(lumenAround, kFlux), kPeakIntensity), 1500);
    EXPECT_DOUBLE_EQ(convertIntensity(spotLight(lumenOfSpot, kFlux), kPeakIntensity), 1500);
}

TEST(ConvertIntensity, CandelaBecomeLuxInTheUnitOfTheDrawing) {
    EXPECT_DOUBLE_EQ(convertIntensity(lightIn(metres, lux, 1500, kPeakIntensity), kIlluminance), 375);
    EXPECT_DOUBLE_EQ(convertIntensity(lightIn(feet, lux, 1500, kPeakIntensity), kIlluminance), 4036.466406266146);
    EXPECT_DOUBLE_EQ(convertIntensity(lightIn(millimetres, lux, 1500, kPeakIntensity), kIlluminance), 375000000);
}

TEST(ConvertIntensity, CandelaBecomeFootCandleInTheUnitOfTheDrawing) {
    EXPECT_DOUBLE_EQ(convertIntensity(lightIn(metres, footCandles, 1500, kPeakIntensity), kIlluminance), 34.83864);
    EXPECT_DOUBLE_EQ(convertIntensity(lightIn(feet, footCandles, 1500, kPeakIntensity), kIlluminance), 375);
    EXPECT_DOUBLE_EQ(convertIntensity(lightIn(millimetres, footCandles, 1500, kPeakIntensity), kIlluminance), 34838640);
}

// 1500 x 0.001^2 and 1500 / 304.8^2: the distance has no part in it.
TEST(ConvertIntensity, WithGenericUnitsOnlyTheUnitOfTheDrawingCounts) {
    EXPECT_DOUBLE_EQ(convertIntensity(lightIn(metres, generic, 1500, kPeakIntensity), kIlluminance), 0.0015);
    EXPECT_DOUBLE_EQ(convertIntensity(lightIn(feet, generic, 1500, kPeakIntensity), kIlluminance),
                     0.016145865625064584);
    EXPECT_DOUBLE_EQ(convertIntensity(lightIn(millimetres, generic, 1500, kPeakIntensity), kIlluminance), 1500);
}

TEST(ConvertIntensity, LuxBecomeCandela) {
    EXPECT_DOUBLE_EQ(convertIntensity(lightIn(metres, lux, 375, kIlluminance), kPeakIntensity), 1500);
    EXPECT_DOUBLE_EQ(convertIntensity(lightIn(feet, lux, 4036.466406266146, kIlluminance), kPeakIntensity), 1500);
    EXPECT_DOUBLE_EQ(convertIntensity(lightIn(millimetres, lux, 375000000, kIlluminance), kPeakIntensity), 1500);
}

TEST(ConvertIntensity, FootCandleBecomeCandela) {
    EXPECT_DOUBLE_EQ(convertIntensity(lightIn(metres, footCandles, 34.83864, kIlluminance), kPeakIntensity), 1500);
    EXPECT_DOUBLE_EQ(convertIntensity(lightIn(feet, footCandles, 375, kIlluminance), kPeakIntensity), 1500);
    EXPECT_DOUBLE_EQ(convertIntensity(lightIn(millimetres, footCandles, 34838640, kIlluminance), kPeakIntensity), 1500);
}

TEST(ConvertIntensity, GenericIlluminanceBecomesCandela) {
    EXPECT_DOUBLE_EQ(convertIntensity(lightIn(metres, generic, 0.0015, kIlluminance), kPeakIntensity), 1500);
    EXPECT_DOUBLE_EQ(convertIntensity(lightIn(feet, generic, 0.016145865625064584, kIlluminance), kPeakIntensity),
                     1500);
    EXPECT_DOUBLE_EQ(convertIntensity(lightIn(millimetres, generic, 1500, kIlluminance), kPeakIntensity), 1500);
}

TEST(ConvertIntensity, LumenBecomeIlluminance) {
    EXPECT_DOUBLE_EQ(convertIntensity(lightIn(metres, lux, lumenAround, kFlux), kIlluminance), 375);
    EXPECT_DOUBLE_EQ(convertIntensity(lightIn(feet, footCandles, lumenAround, kFlux), kIlluminance), 375);
    EXPECT_DOUBLE_EQ(convertIntensity(lightIn(millimetres, generic, lumenAround, kFlux), kIlluminance), 1500);
    EXPECT_DOUBLE_EQ(convertIntensity(spotLight(lumenOfSpot, kFlux), kIlluminance), 375000000);
}

TEST(ConvertIntensity, IlluminanceBecomesLumen) {
    EXPECT_DOUBLE_EQ(convertIntensity(lightIn(metres, lux, 375, kIlluminance), kFlux), lumenAround);
    EXPECT_DOUBLE_EQ(convertIntensity(lightIn(feet, footCandles, 375, kIlluminance), kFlux), lumenAround);
    EXPECT_DOUBLE_EQ(convertIntensity(lightIn(millimetres, generic, 1500, kIlluminance), kFlux), lumenAround);
    EXPECT_DOUBLE_EQ(convertIntensity(spotLight(375000000, kIlluminance), kFlux), lumenOfSpot);
}

// 1 m = 1000 mm = 3.280839895013123 ft.
TEST(ConvertIntensity, ACandelaGivesALuxAtAMetreWhateverTheUnit) {
    const PhotometricIntensity inMillimetres{.value = 1, .distance = 1000};
    const PhotometricIntensity inFeet{.value = 1, .distance = 3.280839895013123, .unitsPerMillimetre = feet};

    EXPECT_DOUBLE_EQ(convertIntensity(inMillimetres, kIlluminance), 1);
    EXPECT_DOUBLE_EQ(convertIntensity(inFeet, kIlluminance), 1);
}

TEST(ConvertIntensity, ALightOfIntensityZeroIsZeroInEveryMethod) {
    EXPECT_EQ(convertIntensity(pointLight(0, kPeakIntensity), kFlux), 0);
    EXPECT_EQ(convertIntensity(pointLight(0, kPeakIntensity), kIlluminance), 0);
    EXPECT_EQ(convertIntensity(pointLight(0, kIlluminance), kPeakIntensity), 0);
}

TEST(ConvertIntensity, AtDistanceZeroThereIsNoIlluminance) {
    const PhotometricIntensity bright{.value = 1500, .distance = 0};
    const PhotometricIntensity dark{.value = 0, .distance = 0};

    EXPECT_FALSE(std::isfinite(convertIntensity(bright, kIlluminance)));
    EXPECT_FALSE(std::isfinite(convertIntensity(dark, kIlluminance)));
}

TEST(ConvertIntensity, AnIlluminanceAtDistanceZeroIsNoIntensity) {
    EXPECT_EQ(convertIntensity({.value = 375, .method = kIlluminance, .distance = 0}, kPeakIntensity), 0);
}

TEST(ShownIlluminance, InLuxItIsTheConvertedOne) {
    EXPECT_DOUBLE_EQ(shownIlluminance(lightIn(metres, lux, 1500, kPeakIntensity)), 375);
    EXPECT_DOUBLE_EQ(shownIlluminance(lightIn(feet, lux, 1500, kPeakIntensity)), 4036.466406266146);
    EXPECT_DOUBLE_EQ(shownIlluminance(lightIn(millimetres, lux, 1500, kPeakIntensity)), 375000000);
    EXPECT_DOUBLE_EQ(shownIlluminance(lightIn(metres, lux, lumenAround, kFlux)), 375);
}

TEST(ShownIlluminance, InFootCandleTheDistanceCountsAsMillimetres) {
    EXPECT_DOUBLE_EQ(shownIlluminance(lightIn(metres, footCandles, 1500, kPeakIntensity)), 34838640);
    EXPECT_DOUBLE_EQ(shownIlluminance(lightIn(feet, footCandles, 1500, kPeakIntensity)), 34838640);
    EXPECT_DOUBLE_EQ(shownIlluminance(lightIn(millimetres, footCandles, 1500, kPeakIntensity)), 34838640);
}

// 375 fc at 2 ft are 1500 cd: on the way to candela the unit of the drawing counts.
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
