// Angles as text.
#include <limits>
#include <numbers>
#include <string>

#include <gtest/gtest.h>

#include "host/db/units_format.h"

namespace {

using namespace quor::units;

constexpr double kDegree = std::numbers::pi / 180;

struct Shown {
    double degrees;
    int format;
    int precision;
    std::wstring text;
    double baseDegrees = 0;
    bool clockwise = false;
    int unitMode = 0;
};

class AngleText : public testing::TestWithParam<Shown> {};

TEST_P(AngleText, IsAsWritten) {
    const Shown& row = GetParam();
    UnitSettings settings;
    settings.angleBase = row.baseDegrees * kDegree;
    settings.clockwise = row.clockwise;
    settings.unitMode = row.unitMode;
    EXPECT_EQ(formatAngle(row.degrees * kDegree, row.format, row.precision, settings), row.text);
}

INSTANTIATE_TEST_SUITE_P(Degrees, AngleText,
                         testing::Values(Shown{45, 0, 0, L"45"}, Shown{45, 0, 2, L"45.00"}, Shown{0, 0, 0, L"0"},
                                         Shown{-0.0, 0, 1, L"0.0"}, Shown{-45, 0, 0, L"315"}, Shown{360, 0, 0, L"0"},
                                         Shown{765, 0, 0, L"45"}, Shown{359.6, 0, 0, L"0"}, Shown{359.4, 0, 0, L"359"},
                                         Shown{359.999, 0, 2, L"0.00"}, Shown{-1e-30, 0, 4, L"0.0000"},
                                         Shown{160, 0, 0, L"160"}));

INSTANTIATE_TEST_SUITE_P(DegreesMinutesSeconds, AngleText,
                         testing::Values(Shown{45.5, 1, 0, L"46d"}, Shown{45.5, 1, 1, L"45d30'"},
                                         Shown{45.5, 1, 2, L"45d30'"}, Shown{45.5 + 15.5 / 3600, 1, 5, L"45d30'15.5\""},
                                         Shown{45.5 + 15.05 / 3600, 1, 6, L"45d30'15.05\""},
                                         Shown{45.5 + 15.5 / 3600, 1, 3, L"45d30'16\""},
                                         Shown{45.5 + 15.4 / 3600, 1, 4, L"45d30'15\""},
                                         Shown{45.5 + 15.1234 / 3600, 1, 8, L"45d30'15.1234\""},
                                         Shown{45 + 59.0 / 60 + 59.99 / 3600, 1, 4, L"46d0'0\""},
                                         Shown{359 + 59.0 / 60 + 59.99 / 3600, 1, 4, L"0d0'0\""},
                                         Shown{0, 1, 4, L"0d0'0\""}));

INSTANTIATE_TEST_SUITE_P(GradsAndRadians, AngleText,
                         testing::Values(Shown{45, 2, 4, L"50.0000g"}, Shown{359.99, 2, 0, L"0g"},
                                         Shown{45, 3, 4, L"0.7854r"}, Shown{360, 3, 4, L"0.0000r"},
                                         Shown{-1e-9, 3, 4, L"0.0000r"}, Shown{180, 3, 8, L"3.14159265r"}));

INSTANTIATE_TEST_SUITE_P(Surveyor, AngleText,
                         testing::Values(Shown{45, 4, 4, L"N 45d0'0\" E"}, Shown{135, 4, 4, L"N 45d0'0\" W"},
                                         Shown{225, 4, 0, L"S 45d W"}, Shown{315, 4, 1, L"S 45d0' E"},
                                         Shown{0, 4, 4, L"E"}, Shown{90, 4, 4, L"N"}, Shown{180, 4, 4, L"W"},
                                         Shown{270, 4, 4, L"S"}, Shown{360, 4, 4, L"E"}, Shown{89.9999, 4, 4, L"N"},
                                         Shown{89.9, 4, 4, L"N 0d6'0\" E"}, Shown{0.1, 4, 4, L"N 89d54'0\" E"},
                                         Shown{30.5, 4, 5, L"N 59d30'0.0\" E"},
                                         Shown{45, 4, 4, L"N45d0'0\"E", 0, false, 1}));

INSTANTIATE_TEST_SUITE_P(BaseAndDirection, AngleText,
                         testing::Values(Shown{90, 0, 0, L"0", 90}, Shown{0, 0, 0, L"270", 90},
                                         Shown{0, 0, 0, L"90", 90, true}, Shown{90, 0, 0, L"270", 0, true},
                                         Shown{0, 0, 0, L"0", 0, true}, Shown{135, 1, 2, L"45d0'", 90}));

TEST(FormatAngle, TakesFormatAndPrecisionOfTheSettingsForMinusOne) {
    UnitSettings settings;
    settings.angleFormat = kGrads;
    settings.anglePrecision = 2;
    EXPECT_EQ(formatAngle(45 * kDegree, -1, -1, settings), L"50.00g");
    EXPECT_EQ(formatAngle(45 * kDegree, kDegrees, -1, settings), L"45.00");
    EXPECT_EQ(formatAngle(45 * kDegree, -1, 0, settings), L"50g");
}

TEST(FormatAngle, GivesNothingForAnUnknownFormatOrWhatIsNotFinite) {
    EXPECT_EQ(formatAngle(1, 5, 0, {}), L"");
    EXPECT_EQ(formatAngle(1, -2, 0, {}), L"");
    EXPECT_EQ(formatAngle(std::numeric_limits<double>::quiet_NaN(), 0, 0, {}), L"");
    EXPECT_EQ(formatAngle(std::numeric_limits<double>::infinity(), 4, 0, {}), L"");
}

TEST(FormatAngle, TakesAPrecisionAboveEightAsEight) { EXPECT_EQ(formatAngle(0, 0, 20, {}), L"0.00000000"); }

} // namespace
