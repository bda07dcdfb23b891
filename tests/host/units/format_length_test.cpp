// Lengths as text.
#include <limits>
#include <string>

#include <gtest/gtest.h>

#include "host/db/units_format.h"

namespace {

using namespace quor::units;

struct Shown {
    double value;
    int format;
    int precision;
    std::wstring text;
    int suppressZeros = 0;
    int unitMode = 0;
};

class LengthText : public testing::TestWithParam<Shown> {};

TEST_P(LengthText, IsAsWritten) {
    const Shown& row = GetParam();
    UnitSettings settings;
    settings.suppressZeros = row.suppressZeros;
    settings.unitMode = row.unitMode;
    EXPECT_EQ(formatLength(row.value, row.format, row.precision, settings), row.text);
}

INSTANTIATE_TEST_SUITE_P(Scientific, LengthText,
                         testing::Values(Shown{15.5, 1, 4, L"1.5500E+01"}, Shown{0, 1, 4, L"0.0000E+00"},
                                         Shown{-0.0, 1, 2, L"0.00E+00"}, Shown{-15.5, 1, 1, L"-1.6E+01"},
                                         Shown{0.00155, 1, 2, L"1.55E-03"}, Shown{9.9999, 1, 2, L"1.00E+01"},
                                         Shown{1e300, 1, 0, L"1E+300"}, Shown{15.5, 1, 4, L"1.55E+01", kTrailingZeros},
                                         Shown{1, 1, 4, L"1E+00", kTrailingZeros}));

INSTANTIATE_TEST_SUITE_P(
    Decimal, LengthText,
    testing::Values(Shown{15.5, 2, 4, L"15.5000"}, Shown{1, 2, 4, L"1.0000"}, Shown{15.5, 2, 0, L"16"},
                    Shown{-15.5, 2, 2, L"-15.50"}, Shown{0, 2, 4, L"0.0000"}, Shown{-0.0, 2, 4, L"0.0000"},
                    Shown{-0.00004, 2, 4, L"0.0000"}, Shown{-0.00006, 2, 4, L"-0.0001"},
                    Shown{9.99996, 2, 4, L"10.0000"}, Shown{1.0 / 3, 2, 8, L"0.33333333"},
                    Shown{1e15, 2, 1, L"1000000000000000.0"}, Shown{1.0 / 3, 2, 9, L"0.33333333"},
                    Shown{1.25, 2, -2, L"1"}, Shown{1.5, 2, 4, L"1.5", kTrailingZeros},
                    Shown{100, 2, 4, L"100", kTrailingZeros}, Shown{100, 2, 0, L"100", kTrailingZeros},
                    Shown{0.5, 2, 4, L".5000", kLeadingZeros},
                    Shown{-0.5, 2, 4, L"-.5", kLeadingZeros | kTrailingZeros},
                    Shown{0, 2, 4, L"0", kLeadingZeros | kTrailingZeros}, Shown{0, 2, 4, L"0.0000", kLeadingZeros}));

INSTANTIATE_TEST_SUITE_P(Engineering, LengthText,
                         testing::Values(Shown{15.5, 3, 4, L"1'-3.5000\""}, Shown{3.5, 3, 4, L"0'-3.5000\""},
                                         Shown{0, 3, 2, L"0'-0.00\""}, Shown{-0.0, 3, 2, L"0'-0.00\""},
                                         Shown{12, 3, 1, L"1'-0.0\""}, Shown{11.99999, 3, 4, L"1'-0.0000\""},
                                         Shown{11.99994, 3, 4, L"0'-11.9999\""}, Shown{-23.99999, 3, 2, L"-2'-0.00\""},
                                         Shown{-15.5, 3, 1, L"-1'-3.5\""}, Shown{11.6, 3, 0, L"1'-0\""},
                                         Shown{1.2e16, 3, 0, L"1000000000000000'-0\""},
                                         Shown{3.5, 3, 2, L"3.50\"", kZeroFeet}, Shown{12, 3, 2, L"1'", kZeroInches},
                                         Shown{0, 3, 2, L"0.00\"", kZeroFeet | kZeroInches},
                                         Shown{12.5, 3, 4, L"1'-.5\"", kLeadingZeros | kTrailingZeros},
                                         Shown{15.5, 3, 1, L"1'3.5\"", 0, 1}));

INSTANTIATE_TEST_SUITE_P(
    Architectural, LengthText,
    testing::Values(Shown{15.5, 4, 1, L"1'-3 1/2\""}, Shown{15.5, 4, 0, L"1'-4\""}, Shown{15.25, 4, 8, L"1'-3 1/4\""},
                    Shown{11.99999, 4, 4, L"1'-0\""}, Shown{-11.99999, 4, 4, L"-1'-0\""},
                    Shown{11.9375, 4, 4, L"0'-11 15/16\""}, Shown{0, 4, 4, L"0'-0\""}, Shown{-0.0, 4, 4, L"0'-0\""},
                    Shown{-0.01, 4, 4, L"0'-0\""}, Shown{-0.5, 4, 4, L"-0'-0 1/2\""}, Shown{12.5, 4, 4, L"1'-0 1/2\""},
                    Shown{1.0 / 256, 4, 8, L"0'-0 1/256\""}, Shown{1.2e16, 4, 4, L"1000000000000000'-0\""},
                    Shown{0.5, 4, 4, L"1/2\"", kZeroFeet}, Shown{3.5, 4, 4, L"3 1/2\"", kZeroFeet},
                    Shown{12, 4, 4, L"1'", kZeroInches}, Shown{0, 4, 4, L"0\"", kZeroFeet | kZeroInches},
                    Shown{15.5, 4, 4, L"1'3-1/2\"", 0, 1}));

INSTANTIATE_TEST_SUITE_P(Fractional, LengthText,
                         testing::Values(Shown{15.5, 5, 1, L"15 1/2"}, Shown{15.5, 5, 4, L"15 1/2"},
                                         Shown{0.5, 5, 4, L"1/2"}, Shown{0, 5, 4, L"0"}, Shown{-0.0, 5, 4, L"0"},
                                         Shown{-0.001, 5, 4, L"0"}, Shown{-15.375, 5, 3, L"-15 3/8"},
                                         Shown{-15.375, 5, 2, L"-15 1/2"}, Shown{7.999, 5, 4, L"8"},
                                         Shown{15.25, 5, 0, L"15"}, Shown{15.5, 5, 0, L"16"},
                                         Shown{3e15, 5, 8, L"3000000000000000"}, Shown{15.5, 5, 1, L"15-1/2", 0, 1}));

TEST(FormatLength, TakesFormatAndPrecisionOfTheSettingsForMinusOne) {
    UnitSettings settings;
    settings.lengthFormat = kArchitectural;
    settings.lengthPrecision = 1;
    EXPECT_EQ(formatLength(15.5, -1, -1, settings), L"1'-3 1/2\"");
    EXPECT_EQ(formatLength(15.5, kDecimal, -1, settings), L"15.5");
    EXPECT_EQ(formatLength(15.25, -1, 2, settings), L"1'-3 1/4\"");
}

TEST(FormatLength, DefaultsToDecimalWithFourPlaces) { EXPECT_EQ(formatLength(1, -1, -1, {}), L"1.0000"); }

TEST(FormatLength, GivesNothingForAnUnknownFormat) {
    EXPECT_EQ(formatLength(1, 0, 4, {}), L"");
    EXPECT_EQ(formatLength(1, 6, 4, {}), L"");
    EXPECT_EQ(formatLength(1, -2, 4, {}), L"");
}

TEST(FormatLength, GivesNothingForWhatIsNotFinite) {
    EXPECT_EQ(formatLength(std::numeric_limits<double>::quiet_NaN(), 2, 4, {}), L"");
    EXPECT_EQ(formatLength(std::numeric_limits<double>::infinity(), 4, 4, {}), L"");
}

TEST(FormatLength, WritesTheLargestNumberInEveryFormat) {
    const double largest = std::numeric_limits<double>::max();
    EXPECT_EQ(formatLength(largest, kScientific, 2, {}), L"1.80E+308");
    EXPECT_EQ(formatLength(largest, kDecimal, 0, {}).size(), 309U);
    EXPECT_EQ(formatLength(largest, kFractional, 8, {}).size(), 309U);
    EXPECT_EQ(formatLength(largest, kEngineering, 0, {}).size(), 312U);
    EXPECT_EQ(formatLength(largest, kArchitectural, 0, {}).size(), 312U);
}

} // namespace
