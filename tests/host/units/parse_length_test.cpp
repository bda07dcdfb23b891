// Lengths as people type them.
#include <string>

#include <gtest/gtest.h>

#include "host/db/units_format.h"
#include "host/db/units_parse.h"

namespace {

using namespace quor::units;

struct Typed {
    std::wstring text;
    double value;
};

class NumberInEveryFormat : public testing::TestWithParam<std::tuple<int, Typed>> {};

TEST_P(NumberInEveryFormat, IsRead) {
    const auto& [format, typed] = GetParam();
    const auto value = parseLength(typed.text, format, {});
    ASSERT_TRUE(value.has_value());
    EXPECT_DOUBLE_EQ(*value, typed.value);
}

INSTANTIATE_TEST_SUITE_P(
    Decimals, NumberInEveryFormat,
    testing::Combine(testing::Values(-1, 1, 2, 3, 4, 5),
                     testing::Values(Typed{L"15.5", 15.5}, Typed{L"0", 0}, Typed{L"-7", -7}, Typed{L"+7", 7},
                                     Typed{L".5", 0.5}, Typed{L"5.", 5}, Typed{L"-.5", -0.5}, Typed{L"1e3", 1000},
                                     Typed{L"1.5E-2", 0.015}, Typed{L"1E+2", 100}, Typed{L"007", 7},
                                     Typed{L"1e-400", 0}, Typed{L"1.7976931348623157e308", 1.7976931348623157e308})));

class NoNumberInAnyFormat : public testing::TestWithParam<std::tuple<int, std::wstring>> {};

TEST_P(NoNumberInAnyFormat, IsRefused) {
    const auto& [format, text] = GetParam();
    EXPECT_FALSE(parseLength(text, format, {}).has_value());
}

INSTANTIATE_TEST_SUITE_P(
    Texts, NoNumberInAnyFormat,
    testing::Combine(testing::Values(1, 2, 3, 4, 5),
                     testing::Values(L"", L" ", L"-", L"+", L".", L"-.", L"e5", L".e5", L"1e", L"1e+", L"1,5", L"1.2.3",
                                     L"1x", L"x", L"nan", L"-nan", L"inf", L"Infinity", L"0x10", L"1e309", L"-1e309",
                                     L"--1", L"+-1", L"1-", L"1 ", L" 1", L"1\n", L"1/0", L"1/", L"/2", L"1//2",
                                     L"1-1/0", L"1.5-1/2", L"1/2.5", L"1/-2", L"-1/2/3", L"1-2", L"'", L"\"", L"'5",
                                     L"5'-", L"5'--3", L"5'3'", L"5''", L"5'3\"\"", L"1'-3-", L"1'-3-1", L"1  1/2",
                                     L"\uFF11", L"\u0661", L"1\u00A0", L"1e308'")));

struct FormatRow {
    std::wstring text;
    int format;
    double value;
};

class FeetAndFractions : public testing::TestWithParam<FormatRow> {};

TEST_P(FeetAndFractions, AreReadWhereTheFormatHasThem) {
    const auto value = parseLength(GetParam().text, GetParam().format, {});
    ASSERT_TRUE(value.has_value());
    EXPECT_DOUBLE_EQ(*value, GetParam().value);
}

INSTANTIATE_TEST_SUITE_P(Engineering, FeetAndFractions,
                         testing::Values(FormatRow{L"1'3\"", 3, 15}, FormatRow{L"1'3", 3, 15},
                                         FormatRow{L"1'-3.5\"", 3, 15.5}, FormatRow{L"5'6.5", 3, 66.5},
                                         FormatRow{L"5'", 3, 60}, FormatRow{L"3\"", 3, 3},
                                         FormatRow{L"-1'-3\"", 3, -15}, FormatRow{L"1.5'", 3, 18},
                                         FormatRow{L"0'-0\"", 3, 0}));

INSTANTIATE_TEST_SUITE_P(Architectural, FeetAndFractions,
                         testing::Values(FormatRow{L"1'-3-1/2\"", 4, 15.5}, FormatRow{L"1'-3-1/2", 4, 15.5},
                                         FormatRow{L"1'3-1/2\"", 4, 15.5}, FormatRow{L"1'-3 1/2\"", 4, 15.5},
                                         FormatRow{L"1'1/2\"", 4, 12.5}, FormatRow{L"1'-1/2", 4, 12.5},
                                         FormatRow{L"15-1/2", 4, 15.5}, FormatRow{L"1/2\"", 4, 0.5},
                                         FormatRow{L"5'6.5", 4, 66.5}, FormatRow{L"-1'-3-1/2\"", 4, -15.5},
                                         FormatRow{L"1'3\"", 4, 15}));

INSTANTIATE_TEST_SUITE_P(Fractional, FeetAndFractions,
                         testing::Values(FormatRow{L"15-1/2", 5, 15.5}, FormatRow{L"15 1/2", 5, 15.5},
                                         FormatRow{L"1/2", 5, 0.5}, FormatRow{L"-1/2", 5, -0.5},
                                         FormatRow{L"7/2", 5, 3.5}, FormatRow{L"-15-3/8", 5, -15.375}));

class FormsOfOtherFormats : public testing::TestWithParam<std::pair<std::wstring, int>> {};

TEST_P(FormsOfOtherFormats, AreRefused) {
    EXPECT_FALSE(parseLength(GetParam().first, GetParam().second, {}).has_value());
}

INSTANTIATE_TEST_SUITE_P(Forms, FormsOfOtherFormats,
                         testing::Values(std::pair(L"1'3\"", 1), std::pair(L"1'3\"", 2), std::pair(L"1'3\"", 5),
                                         std::pair(L"5'", 2), std::pair(L"3\"", 2), std::pair(L"3\"", 5),
                                         std::pair(L"1/2", 1), std::pair(L"1/2", 2), std::pair(L"1/2", 3),
                                         std::pair(L"1'-3-1/2\"", 3), std::pair(L"15-1/2", 2)));

TEST(ParseLength, RefusesAnUnknownFormat) {
    EXPECT_FALSE(parseLength(L"1", 0, {}).has_value());
    EXPECT_FALSE(parseLength(L"1", 6, {}).has_value());
    EXPECT_FALSE(parseLength(L"1", -2, {}).has_value());
}

TEST(ParseLength, TakesTheFormatOfTheSettingsForMinusOne) {
    UnitSettings settings;
    settings.lengthFormat = kArchitectural;
    EXPECT_EQ(parseLength(L"1'3-1/2\"", -1, settings), 15.5);
    EXPECT_FALSE(parseLength(L"1'3-1/2\"", kDecimal, settings).has_value());
}

TEST(ParseLength, ReadsAVeryLongNumber) {
    EXPECT_EQ(parseLength(L"0." + std::wstring(100000, L'0') + L"1", 2, {}), 0.0);
    EXPECT_FALSE(parseLength(std::wstring(100000, L'9'), 2, {}).has_value());
}

// Values that every format shows exactly: multiples of 1/16 with few digits.
using RoundTripRow = std::tuple<double, int, int, int>;

class LengthRoundTrip : public testing::TestWithParam<RoundTripRow> {};

TEST_P(LengthRoundTrip, GivesTheValueBack) {
    const auto [value, format, unitMode, suppressZeros] = GetParam();
    UnitSettings settings;
    settings.unitMode = unitMode;
    settings.suppressZeros = suppressZeros;
    const std::wstring text = formatLength(value, format, kMaxPrecision, settings);
    EXPECT_EQ(parseLength(text, format, settings), value) << testing::PrintToString(text);
}

INSTANTIATE_TEST_SUITE_P(
    Table, LengthRoundTrip,
    testing::Combine(testing::Values(0.0, 0.0625, -0.5, 1.0, 11.9375, 12.0, -12.5, 15.5, 143.75, 1234.5, -100000.25),
                     testing::Values(1, 2, 3, 4, 5), testing::Values(0, 1), testing::Values(0, 1, 2, 3, 4, 8, 15)));

} // namespace
