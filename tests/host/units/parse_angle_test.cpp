// Angles as people type them.
#include <cmath>
#include <numbers>
#include <string>

#include <gtest/gtest.h>

#include "host/db/units_format.h"
#include "host/db/units_parse.h"

namespace {

using namespace quor::units;

constexpr double kDegree = std::numbers::pi / 180;

struct Typed {
    std::wstring text;
    double degrees;
};

class AngleInEveryFormat : public testing::TestWithParam<std::tuple<int, Typed>> {};

TEST_P(AngleInEveryFormat, IsRead) {
    const auto& [format, typed] = GetParam();
    const auto angle = parseAngle(typed.text, format, {});
    ASSERT_TRUE(angle.has_value());
    EXPECT_NEAR(*angle, typed.degrees * kDegree, 1e-14);
}

INSTANTIATE_TEST_SUITE_P(
    Marked, AngleInEveryFormat,
    testing::Combine(testing::Values(0, 1, 2, 3, 4),
                     testing::Values(Typed{L"45d", 45}, Typed{L"45D", 45}, Typed{L"45.5d", 45.5}, Typed{L"50g", 45},
                                     Typed{L"50G", 45}, Typed{L"-50g", -45}, Typed{L"0.5r", 0.5 / kDegree},
                                     Typed{L"45d30'", 45.5}, Typed{L"45d30", 45.5},
                                     Typed{L"45d30'15.5\"", 45.5 + 15.5 / 3600}, Typed{L"45d30'36", 45.51},
                                     Typed{L"45d36\"", 45.01}, Typed{L"-45d30'", -45.5}, Typed{L"45d0'0\"", 45},
                                     Typed{L"45d59'59.9\"", 45 + 3599.9 / 3600}, Typed{L"N", 90}, Typed{L"E", 0},
                                     Typed{L"S", 270}, Typed{L"W", 180}, Typed{L"w", 180}, Typed{L"N45dE", 45},
                                     Typed{L"n45de", 45}, Typed{L"N45E", 45}, Typed{L"N45dW", 135},
                                     Typed{L"S45dW", 225}, Typed{L"S45dE", 315}, Typed{L"N 45d0'0\" E", 45},
                                     Typed{L"S30d30'W", 239.5}, Typed{L"N0E", 90}, Typed{L"N90dE", 0})));

struct PlainNumber {
    int format;
    std::wstring text;
    double degrees;
};

class PlainAngle : public testing::TestWithParam<PlainNumber> {};

TEST_P(PlainAngle, IsInTheUnitOfTheFormat) {
    const auto angle = parseAngle(GetParam().text, GetParam().format, {});
    ASSERT_TRUE(angle.has_value());
    EXPECT_DOUBLE_EQ(*angle, GetParam().degrees * kDegree);
}

INSTANTIATE_TEST_SUITE_P(Formats, PlainAngle,
                         testing::Values(PlainNumber{0, L"45", 45}, PlainNumber{0, L"-45", -45},
                                         PlainNumber{0, L"+720.5", 720.5}, PlainNumber{0, L"1e2", 100},
                                         PlainNumber{1, L"45", 45}, PlainNumber{2, L"50", 45},
                                         PlainNumber{3, L"0.5", 0.5 / kDegree}, PlainNumber{4, L"45", 45},
                                         PlainNumber{-1, L"45", 45}));

class NoAngle : public testing::TestWithParam<std::tuple<int, std::wstring>> {};

TEST_P(NoAngle, IsRefused) {
    const auto& [format, text] = GetParam();
    EXPECT_FALSE(parseAngle(text, format, {}).has_value());
}

INSTANTIATE_TEST_SUITE_P(
    Texts, NoAngle,
    testing::Combine(testing::Values(0, 1, 2, 3, 4),
                     testing::Values(L"", L"-", L"d", L"g", L"r", L"45x", L"45 ", L" 45", L"45dd", L"45gr", L"45d60'",
                                     L"45d30'60\"", L"45.5d30'", L"45d30.5'10\"", L"45d30'15\"\"", L"45d-30'", L"45'",
                                     L"nan", L"inf", L"0x1", L"1,5", L"1e309", L"-N", L"NN", L"NE", L"N45", L"N91dE",
                                     L"N-45dE", L"N45gE", L"E45dN", L"N45dEE", L"N45dS", L"Nd", L"N  45dE", L"1/2")));

TEST(ParseAngle, RefusesAnUnknownFormat) {
    EXPECT_FALSE(parseAngle(L"1", 5, {}).has_value());
    EXPECT_FALSE(parseAngle(L"1", -2, {}).has_value());
}

TEST(ParseAngle, CountsFromTheBaseInTheDirectionOfTheSettings) {
    UnitSettings settings;
    settings.angleBase = 90 * kDegree;
    EXPECT_DOUBLE_EQ(parseAngle(L"30", -1, settings).value(), 120 * kDegree);
    settings.clockwise = true;
    EXPECT_DOUBLE_EQ(parseAngle(L"30", -1, settings).value(), 60 * kDegree);
    EXPECT_NEAR(parseAngle(L"N", -1, settings).value(), 0, 1e-15);
}

TEST(ParseAngle, TakesTheFormatOfTheSettingsForMinusOne) {
    UnitSettings settings;
    settings.angleFormat = kRadians;
    EXPECT_EQ(parseAngle(L"1.5", -1, settings), 1.5);
    EXPECT_DOUBLE_EQ(parseAngle(L"90", kDegrees, settings).value(), 90 * kDegree);
}

using RoundTripRow = std::tuple<double, int, double, bool, int>;

class AngleRoundTrip : public testing::TestWithParam<RoundTripRow> {};

TEST_P(AngleRoundTrip, GivesTheTextBack) {
    const auto [degrees, format, baseDegrees, clockwise, unitMode] = GetParam();
    UnitSettings settings;
    settings.angleBase = baseDegrees * kDegree;
    settings.clockwise = clockwise;
    settings.unitMode = unitMode;
    const std::wstring text = formatAngle(degrees * kDegree, format, 6, settings);
    const auto angle = parseAngle(text, format, settings);
    ASSERT_TRUE(angle.has_value()) << testing::PrintToString(text);
    EXPECT_EQ(formatAngle(*angle, format, 6, settings), text);
    EXPECT_NEAR(std::remainder(*angle - degrees * kDegree, 2 * std::numbers::pi), 0, 1e-6);
}

INSTANTIATE_TEST_SUITE_P(Table, AngleRoundTrip,
                         testing::Combine(testing::Values(0.0, 0.25, 45.0, 89.75, 90.0, 135.5, 180.0, 200.125, 270.0,
                                                          315.0, 359.75),
                                          testing::Values(0, 1, 2, 3, 4), testing::Values(0.0, 90.0, 33.5),
                                          testing::Values(false, true), testing::Values(0, 1)));

} // namespace
