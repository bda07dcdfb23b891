#include "sdk/gi/photometric_intensity.h"

#include "host/sys/system_variables.h"
#include "tests/support/test_session.h"

#include <cmath>
#include <gtest/gtest.h>

namespace quor {
namespace {

using enum PhysicalIntensityMethod;

constexpr double millimetres = 1;
constexpr double metres = 0.001;
constexpr double feet = 1 / 304.8;
constexpr int generic = 0;

// The lights of these tests shine with 1500 cd at distance 2, unless a test says otherwise.
constexpr double candela = 1500;
constexpr double distance = 2;

// clang-format off
constexpr double lumenAround = 18849.55592153876; // 1500 x 12.566370614359172, which is 4 pi
constexpr double lumenOfSpot = 596.0971031946966; // 1500 x 0.3973980687964644, whatever its cone

// Illuminance = candela x k / distance^2 / (millimetres of the drawing's unit)^2, where k is the square millimetres of a
// square foot (304.8^2 = 92903.04) or of a square metre (1000^2 = 1000000). With generic units neither k nor the
// distance have a part in it.
struct Row {
    const char* name;
    double drawingUnit;
    int lightingUnits;
    double illuminance;
};

constexpr Row rows[] = {
    {"FootCandleInMillimetres", millimetres, footCandles, 34838640},             // 1500 x 92903.04 / 2^2
    {"FootCandleInMetres",      metres,      footCandles, 34.83864},             // 1500 x 92903.04 / 2^2 / 1000^2
    {"FootCandleInFeet",        feet,        footCandles, 375},                  // 1500 x 92903.04 / 2^2 / 304.8^2
    {"LuxInMillimetres",        millimetres, lux,         375000000},            // 1500 x 1000000  / 2^2
    {"LuxInMetres",             metres,      lux,         375},                  // 1500 x 1000000  / 2^2 / 1000^2
    {"LuxInFeet",               feet,        lux,         4036.466406266146},    // 1500 x 1000000  / 2^2 / 304.8^2
    {"GenericInMillimetres",    millimetres, generic,     1500},                 // 1500
    {"GenericInMetres",         metres,      generic,     0.0015},               // 1500 / 1000^2
    {"GenericInFeet",           feet,        generic,     0.016145865625064582}, // 1500 / 304.8^2
};
// clang-format on

PhotometricIntensity pointLight(double value, PhysicalIntensityMethod method) {
    return {.value = value, .method = method, .distance = distance};
}

PhotometricIntensity spotLight(double value, PhysicalIntensityMethod method) {
    return {.value = value, .method = method, .distance = distance, .isSpot = true};
}

PhotometricIntensity lightIn(double drawingUnit, int lightingUnits, double value, PhysicalIntensityMethod method) {
    return {.value = value,
            .method = method,
            .distance = distance,
            .lightingUnits = lightingUnits,
            .unitsPerMillimetre = drawingUnit};
}

class ConvertIlluminance : public testing::TestWithParam<Row> {
protected:
    static PhotometricIntensity pointLight(double value, PhysicalIntensityMethod method) {
        return lightIn(GetParam().drawingUnit, GetParam().lightingUnits, value, method);
    }
    static PhotometricIntensity spotLight(double value, PhysicalIntensityMethod method) {
        PhotometricIntensity spot = pointLight(value, method);
        spot.isSpot = true;
        return spot;
    }
};

TEST_P(ConvertIlluminance, FromCandela) {
    EXPECT_DOUBLE_EQ(convertIntensity(pointLight(candela, kPeakIntensity), kIlluminance), GetParam().illuminance);
    EXPECT_DOUBLE_EQ(convertIntensity(spotLight(candela, kPeakIntensity), kIlluminance), GetParam().illuminance);
}

TEST_P(ConvertIlluminance, ToCandela) {
    EXPECT_DOUBLE_EQ(convertIntensity(pointLight(GetParam().illuminance, kIlluminance), kPeakIntensity), candela);
    EXPECT_DOUBLE_EQ(convertIntensity(spotLight(GetParam().illuminance, kIlluminance), kPeakIntensity), candela);
}

TEST_P(ConvertIlluminance, FromLumen) {
    EXPECT_DOUBLE_EQ(convertIntensity(pointLight(lumenAround, kFlux), kIlluminance), GetParam().illuminance);
    EXPECT_DOUBLE_EQ(convertIntensity(spotLight(lumenOfSpot, kFlux), kIlluminance), GetParam().illuminance);
}

TEST_P(ConvertIlluminance, ToLumen) {
    EXPECT_DOUBLE_EQ(convertIntensity(pointLight(GetParam().illuminance, kIlluminance), kFlux), lumenAround);
    EXPECT_DOUBLE_EQ(convertIntensity(spotLight(GetParam().illuminance, kIlluminance), kFlux), lumenOfSpot);
}

TEST_P(ConvertIlluminance, ToItself) {
    EXPECT_DOUBLE_EQ(convertIntensity(pointLight(GetParam().illuminance, kIlluminance), kIlluminance),
                     GetParam().illuminance);
}

INSTANTIATE_TEST_SUITE_P(Units, ConvertIlluminance, testing::ValuesIn(rows),
                         [](const auto& row) { return row.param.name; });

TEST(ConvertIntensity, CandelaAndLumenStayInTheSameMethod) {
    EXPECT_EQ(convertIntensity(pointLight(candela, kPeakIntensity), kPeakIntensity), candela);
    EXPECT_DOUBLE_EQ(convertIntensity(pointLight(1000, kFlux), kFlux), 1000);
    EXPECT_DOUBLE_EQ(convertIntensity(spotLight(1000, kFlux), kFlux), 1000);
}

TEST(ConvertIntensity, CandelaBecomeLumenAllAround) {
    EXPECT_DOUBLE_EQ(convertIntensity(pointLight(candela, kPeakIntensity), kFlux), lumenAround);
}

TEST(ConvertIntensity, CandelaOfASpotBecomeLumenInItsCone) {
    EXPECT_DOUBLE_EQ(convertIntensity(spotLight(candela, kPeakIntensity), kFlux), lumenOfSpot);
}

TEST(ConvertIntensity, LumenBecomeCandela) {
    EXPECT_DOUBLE_EQ(convertIntensity(pointLight(lumenAround, kFlux), kPeakIntensity), candela);
    EXPECT_DOUBLE_EQ(convertIntensity(spotLight(lumenOfSpot, kFlux), kPeakIntensity), candela);
}

// 1 m = 1000 mm = 1000 / 304.8 ft = 3.2808398950131235 ft; 1 cd / (1 m)^2 = 1 lx.
TEST(ConvertIntensity, ACandelaGivesALuxAtAMetreWhateverTheUnit) {
    const PhotometricIntensity inMillimetres{.value = 1, .distance = 1000};
    const PhotometricIntensity inFeet{.value = 1, .distance = 3.2808398950131235, .unitsPerMillimetre = feet};

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

TEST(PhotometricUnits, AreThoseOfTheCurrentDrawing) {
    test::TestSession host;
    ASSERT_EQ(host.session().variables().set(L"LIGHTINGUNITS", short{1}), sys::SetResult::Ok);
    ASSERT_EQ(host.session().variables().set(L"INSUNITS", short{6}), sys::SetResult::Ok);

    const PhotometricUnits units = photometricUnits();

    EXPECT_EQ(units.lightingUnits, footCandles);
    EXPECT_DOUBLE_EQ(units.unitsPerMillimetre, metres);
}

TEST(PhotometricUnits, OfAUnitlessDrawingAreMillimetres) {
    test::TestSession host;
    ASSERT_EQ(host.session().variables().set(L"INSUNITS", short{0}), sys::SetResult::Ok);

    EXPECT_EQ(photometricUnits().unitsPerMillimetre, 1);
}

TEST(PhotometricUnits, HaveAUnitOfIlluminanceUnlessTheyAreGeneric) {
    EXPECT_FALSE(isPhotometric(generic));
    EXPECT_TRUE(isPhotometric(footCandles));
    EXPECT_TRUE(isPhotometric(lux));
    EXPECT_FALSE(isPhotometric(3));
}

TEST(PhotometricIntensityOf, ALightIsWhatTheLightHolds) {
    ZrDbLight light;
    light.setPhysicalIntensityMethod(kFlux);
    light.setPhysicalIntensity(1000);
    light.setIlluminanceDistance(3);

    const PhotometricIntensity intensity = photometricIntensityOf(light, {footCandles, feet});

    EXPECT_EQ(intensity.value, 1000);
    EXPECT_EQ(intensity.method, kFlux);
    EXPECT_EQ(intensity.distance, 3);
    EXPECT_EQ(intensity.lightingUnits, footCandles);
    EXPECT_EQ(intensity.unitsPerMillimetre, feet);
}

TEST(PhotometricIntensityOf, ALightHasTheConeOfASpotAsASpotOnly) {
    ZrDbLight light;
    EXPECT_FALSE(photometricIntensityOf(light, {}).isSpot);

    light.setLightType(DrawableType::kSpotLight);
    EXPECT_TRUE(photometricIntensityOf(light, {}).isSpot);

    light.setLightType(DrawableType::kWebLight);
    EXPECT_FALSE(photometricIntensityOf(light, {}).isSpot);
}

} // namespace
} // namespace quor
