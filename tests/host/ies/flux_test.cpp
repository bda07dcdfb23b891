// Luminous flux against what can be worked out by hand.
#include "tests/host/ies/made_web.h"

#include <gtest/gtest.h>

namespace quor::ies {
namespace {

constexpr double kPi = std::numbers::pi;
constexpr double kExact = 1e-9; // relative

Intensity uniform(double candela) {
    return [candela](double, double) { return candela; };
}

testing::AssertionResult isCloseTo(double expected, double actual) {
    if (std::abs(actual - expected) <= kExact * expected)
        return testing::AssertionSuccess();
    return testing::AssertionFailure() << actual << " instead of " << expected;
}

// All around, I over the whole sphere of 4 pi steradians.
TEST(Flux, OfAUniformSphereIsFourPiTimesTheIntensity) {
    EXPECT_TRUE(isCloseTo(4 * kPi * 100, luminousFlux(made(Photometry::C, steps(0, 180, 5), {0}, uniform(100)))));
    EXPECT_TRUE(isCloseTo(4 * kPi * 100, luminousFlux(made(Photometry::C, {0, 180}, {0}, uniform(100)))));
}

TEST(Flux, OfAUniformHalfIsHalfOfThat) {
    EXPECT_TRUE(isCloseTo(2 * kPi * 100, luminousFlux(made(Photometry::C, steps(0, 90, 10), {0}, uniform(100)))));
    EXPECT_TRUE(isCloseTo(2 * kPi * 100, luminousFlux(made(Photometry::C, steps(90, 180, 10), {0}, uniform(100)))));
}

// The integral of I cos t sin t dt dp over the lower half is pi I. In u = cos t the intensity is a straight line, so
// that the mean of the corners is exact whatever the steps.
TEST(Flux, OfACosineIsPiTimesTheIntensity) {
    const Intensity lambert = [](double, double v) { return 100 * cosine(v); };

    EXPECT_TRUE(isCloseTo(kPi * 100, luminousFlux(made(Photometry::C, steps(0, 90, 1), {0}, lambert))));
    EXPECT_TRUE(isCloseTo(kPi * 100, luminousFlux(made(Photometry::C, {0, 7, 50, 90}, {0}, lambert))));
}

// A cone of 60 degrees around straight down: 2 pi (1 - cos 60) = pi steradians.
TEST(Flux, OfAConeEndsWithIt) {
    EXPECT_TRUE(isCloseTo(kPi * 100, luminousFlux(made(Photometry::C, steps(0, 60, 5), {0}, uniform(100)))));
}

// By hand: zones 0..60 and 60..90 have the weights cos 0 - cos 60 = 1/2 and cos 60 - cos 90 = 1/2, so that
// 2 pi ((200 + 100) / 2 / 2 + (100 + 40) / 2 / 2) = 220 pi.
TEST(Flux, OfThreeAnglesIsTheSumOfTwoZones) {
    const PhotometricWeb web = made(Photometry::C, {0, 60, 90}, {0}, [](double, double v) {
        return v == 0 ? 200 : v == 60 ? 100 : 40;
    });

    EXPECT_TRUE(isCloseTo(220 * kPi, luminousFlux(web)));
}

// By hand: one zone of weight cos 0 - cos 90 = 1, planes at 0, 90, 270 and 360 of 10, 20, 40 and 10 cd in steps of
// pi/2, pi and pi/2: 15 pi/2 + 30 pi + 25 pi/2 = 50 pi.
TEST(Flux, OfUnevenPlanesWeighsEachByItsStep) {
    const PhotometricWeb web = made(Photometry::C, {0, 90}, {0, 90, 270, 360}, [](double h, double) {
        return h == 90 ? 20 : h == 270 ? 40 : 10;
    });

    EXPECT_TRUE(isCloseTo(50 * kPi, luminousFlux(web)));
}

// 100 + 100 cos(h - 22.5) cd: the mean of all planes is 100, whose flux over the lower half is 2 pi x 100.
TEST(Flux, OfACircleThatBeginsElsewhereIsThatOfAllDirections) {
    const Intensity uneven = [](double h, double) { return 100 + 100 * cosine(h - 22.5); };
    const PhotometricWeb web = made(Photometry::C, steps(0, 90, 10), steps(22.5, 382.5, 45), uneven);

    EXPECT_TRUE(isCloseTo(2 * kPi * 100, luminousFlux(web)));
    EXPECT_NEAR(intensityAt(web, 0, 45), (uneven(-22.5, 45) + uneven(22.5, 45)) / 2, 1e-9);
}

struct OneLight {
    const char* name;
    Intensity intensity;
    std::vector<double> planes;
    friend void PrintTo(const OneLight& light, std::ostream* out) { *out << light.name; }
};

class SymmetricWeb : public testing::TestWithParam<OneLight> {};

TEST_P(SymmetricWeb, HasTheFluxOfTheFullOne) {
    const std::vector<double> vertical = steps(0, 180, 15);
    const PhotometricWeb part = made(Photometry::C, vertical, GetParam().planes, GetParam().intensity);
    const PhotometricWeb full = made(Photometry::C, vertical, steps(0, 360, 15), GetParam().intensity);

    EXPECT_NE(part.symmetry, Symmetry::None);
    EXPECT_EQ(full.symmetry, Symmetry::None);
    EXPECT_TRUE(isCloseTo(luminousFlux(full), luminousFlux(part)));
}

TEST_P(SymmetricWeb, HasTheIntensitiesOfTheFullOne) {
    const std::vector<double> vertical = steps(0, 180, 15);
    const PhotometricWeb part = made(Photometry::C, vertical, GetParam().planes, GetParam().intensity);

    for (const double h : steps(0, 360, 15))
        EXPECT_NEAR(intensityAt(part, h, 45), GetParam().intensity(h, 45), 1e-9) << h;
}

INSTANTIATE_TEST_SUITE_P(
    Kinds, SymmetricWeb,
    testing::Values(
        OneLight{"axial", [](double, double v) { return 100 + v; }, {0}},
        OneLight{"quadrants", [](double h, double v) { return 200 + 50 * cosine(2 * h) + v; }, steps(0, 90, 15)},
        OneLight{"mirror at 0-180", [](double h, double v) { return 200 + 50 * cosine(h) + v; }, steps(0, 180, 15)},
        OneLight{"mirror at 90-270", [](double h, double v) { return 200 + 50 * sine(h) + v; }, steps(90, 270, 15)}));

// Types A and B have the half of the sphere in front of the luminaire: 2 pi steradians.
TEST(Flux, OfUniformWebsOfTypesAAndBIsTwoPiTimesTheIntensity) {
    for (const Photometry type : {Photometry::A, Photometry::B}) {
        EXPECT_TRUE(
            isCloseTo(2 * kPi * 100, luminousFlux(made(type, steps(-90, 90, 10), steps(-90, 90, 30), uniform(100)))));
        EXPECT_TRUE(
            isCloseTo(2 * kPi * 100, luminousFlux(made(type, steps(-90, 90, 10), steps(0, 90, 30), uniform(100)))));
        EXPECT_TRUE(isCloseTo(2 * kPi * 100, luminousFlux(made(type, {-90, 90}, {-90, 90}, uniform(100)))));
    }
}

// A cell of 30 degrees of latitude up from 0 and of 90 degrees of azimuth: sin 30 x pi/2 = pi/4. Where latitude and
// azimuth are told by the other angle, sin 90 x pi/6 = pi/6.
TEST(Flux, OfTypesAAndBExchangesTheAngles) {
    EXPECT_TRUE(isCloseTo(kPi / 4 * 100, luminousFlux(made(Photometry::A, {0, 30}, {-90, 0}, uniform(100)))));
    EXPECT_TRUE(isCloseTo(kPi / 6 * 100, luminousFlux(made(Photometry::B, {0, 30}, {-90, 0}, uniform(100)))));
    EXPECT_TRUE(isCloseTo(kPi / 4 * 100, luminousFlux(made(Photometry::B, {0, 90}, {-30, 0}, uniform(100)))));
    EXPECT_TRUE(isCloseTo(kPi / 6 * 100, luminousFlux(made(Photometry::A, {0, 90}, {-30, 0}, uniform(100)))));
}

// A Lambert emitter that faces (0, 0): the cosine of the angle to that direction is cos V cos H in either type, and the
// flux is pi I.
TEST(Flux, OfACosineInTypesAAndBIsPiTimesTheIntensity) {
    const Intensity lambert = [](double h, double v) { return 100 * cosine(h) * cosine(v); };

    EXPECT_NEAR(luminousFlux(made(Photometry::B, steps(-90, 90, 1), steps(-90, 90, 1), lambert)), kPi * 100, 0.05);
    EXPECT_NEAR(luminousFlux(made(Photometry::A, steps(-90, 90, 1), steps(0, 90, 1), lambert)), kPi * 100, 0.05);
}

TEST(Flux, OfAWebWithoutExtentIsZero) {
    EXPECT_EQ(luminousFlux(made(Photometry::C, {45}, {0}, uniform(100))), 0);
    EXPECT_EQ(luminousFlux(made(Photometry::B, {-90, 90}, {0}, uniform(100))), 0);
}

} // namespace
} // namespace quor::ies
