#include "host/ed/reading.h"

#include "sdk/ed/get.h"

#include <gtest/gtest.h>

#include <numbers>

using namespace quor;
using namespace quor::ed;

namespace {

// A drawing whose UCS lies 100 along x of the world and whose last point is 1,2,3.
DrawingRules drawing(int lengthFormat = units::kDecimal) {
    DrawingRules rules;
    rules.units = [lengthFormat] {
        units::UnitSettings settings;
        settings.lengthFormat = lengthFormat;
        return settings;
    };
    rules.lastPoint = [] { return std::optional(ZrGePoint3d(1, 2, 3)); };
    rules.worldToUcs = [](const ZrGePoint3d& p) { return ZrGePoint3d(p.x - 100, p.y, p.z); };
    rules.ucsToWorld = [](const ZrGePoint3d& p) { return ZrGePoint3d(p.x + 100, p.y, p.z); };
    return rules;
}

const KeywordList kVector(L"Vektor _Vector");

Reading read(Wanted wanted, const wchar_t* typed, int flags = 0, const KeywordList* keywords = nullptr) {
    return readAnswer(typed, {.wanted = wanted, .flags = flags, .keywords = keywords, .low = -1000, .high = 1000},
                      drawing());
}

ZrString refusal(const Reading& reading) {
    const auto* refused = std::get_if<Refusal>(&reading);
    return refused != nullptr ? refused->message : ZrString(L"(accepted)");
}

TEST(Reading, RealIsRead) { EXPECT_EQ(std::get<double>(read(Wanted::Real, L"-1.5e2")), -150); }

TEST(Reading, RealInTheDrawingsUnitsIsRead) {
    const Reading reading = readAnswer(L"1'3\"", {.wanted = Wanted::Real}, drawing(units::kArchitectural));
    EXPECT_EQ(std::get<double>(reading), 15);
}

TEST(Reading, NanInfHexAndTrailingRubbishAreNoNumbers) {
    for (const wchar_t* typed : {L"nan", L"inf", L"-inf", L"0x10", L"1.5x", L"1,5", L"--1"})
        EXPECT_EQ(refusal(read(Wanted::Real, typed)), L"\n需要数值。\n");
}

TEST(Reading, RefusalNamesKeywordsWhereThereAreSome) {
    EXPECT_EQ(refusal(read(Wanted::Real, L"abc", 0, &kVector)), L"\n需要数值或选项关键字。\n");
}

TEST(Reading, NoNegativeRefusesBelowZeroOnly) {
    EXPECT_EQ(refusal(read(Wanted::Real, L"-0.1", RSG_NONEG)), L"\n值必须为正数或零。\n");
    EXPECT_EQ(std::get<double>(read(Wanted::Real, L"0", RSG_NONEG)), 0);
}

TEST(Reading, NoZeroRefusesZeroOnly) {
    EXPECT_EQ(refusal(read(Wanted::Real, L"0", RSG_NOZERO)), L"\n值不能为零。\n");
    EXPECT_EQ(std::get<double>(read(Wanted::Real, L"-1", RSG_NOZERO)), -1);
}

TEST(Reading, NoZeroAndNoNegativeRefuseBothWithOneMessage) {
    EXPECT_EQ(refusal(read(Wanted::Real, L"0", RSG_NOZERO | RSG_NONEG)), L"\n值必须为正数且不为零。\n");
    EXPECT_EQ(refusal(read(Wanted::Real, L"-5", RSG_NOZERO | RSG_NONEG)), L"\n值必须为正数且不为零。\n");
    EXPECT_EQ(std::get<double>(read(Wanted::Real, L"0.001", RSG_NOZERO | RSG_NONEG)), 0.001);
}

TEST(Reading, IntegerTakesWholeNumbersOnly) {
    EXPECT_EQ(std::get<long long>(read(Wanted::Integer, L"+12")), 12);
    EXPECT_EQ(refusal(read(Wanted::Integer, L"12.0")), L"\n需要整数。\n");
    EXPECT_EQ(refusal(read(Wanted::Integer, L"-")), L"\n需要整数。\n");
}

TEST(Reading, IntegerBoundsAreIncluded) {
    EXPECT_EQ(std::get<long long>(read(Wanted::Integer, L"1000")), 1000);
    EXPECT_EQ(refusal(read(Wanted::Integer, L"1001")), L"\n需要 -1000 到 1000 之间的整数。\n");
    EXPECT_EQ(std::get<long long>(read(Wanted::Integer, L"-1000")), -1000);
    EXPECT_EQ(refusal(read(Wanted::Integer, L"-1001")), L"\n需要 -1000 到 1000 之间的整数。\n");
}

TEST(Reading, IntegerWithThousandDigitsIsOutOfBounds) {
    const ZrString digits(1000, L'9');
    EXPECT_EQ(refusal(read(Wanted::Integer, digits.c_str())), L"\n需要 -1000 到 1000 之间的整数。\n");
}

TEST(Reading, KeywordWinsWhereAValueIsAsked) {
    EXPECT_EQ(std::get<KeywordAnswer>(read(Wanted::Point, L"v", 0, &kVector)).word, L"Vector");
    EXPECT_EQ(std::get<KeywordAnswer>(read(Wanted::Real, L"_v", 0, &kVector)).word, L"Vector");
}

TEST(Reading, WrongKeywordIsRefused) {
    EXPECT_EQ(refusal(read(Wanted::Keyword, L"w", 0, &kVector)), L"\n选项关键字无效。\n");
}

TEST(Reading, ArbitraryTextIsHandedOverAsTyped) {
    EXPECT_EQ(std::get<TextAnswer>(read(Wanted::Keyword, L"3600K", RSG_OTHER, &kVector)).text, L"3600K");
    EXPECT_EQ(std::get<TextAnswer>(read(Wanted::Real, L"abc", RSG_OTHER)).text, L"abc");
    EXPECT_EQ(std::get<TextAnswer>(read(Wanted::Point, L"#1F", RSG_OTHER)).text, L"#1F");
}

TEST(Reading, NumberOutOfBoundsIsNoArbitraryText) {
    EXPECT_EQ(refusal(read(Wanted::Real, L"-1", RSG_OTHER | RSG_NONEG)), L"\n值必须为正数或零。\n");
}

TEST(Reading, KeywordQuestionTakesNumbersAsArbitraryText) {
    EXPECT_EQ(std::get<TextAnswer>(read(Wanted::Keyword, L"3600", RSG_OTHER)).text, L"3600");
}

TEST(Reading, PointIsInTheUcs) { EXPECT_EQ(std::get<ZrGePoint3d>(read(Wanted::Point, L"4,5")), ZrGePoint3d(4, 5, 0)); }

TEST(Reading, RelativePointStartsFromTheLastPoint) {
    EXPECT_EQ(std::get<ZrGePoint3d>(read(Wanted::Point, L"@1,1")), ZrGePoint3d(2, 3, 3));
}

TEST(Reading, StarIsAWorldPoint) {
    EXPECT_EQ(std::get<ZrGePoint3d>(read(Wanted::Point, L"*101,5,6")), ZrGePoint3d(1, 5, 6));
}

TEST(Reading, OneNumberIsNoPoint) { EXPECT_EQ(refusal(read(Wanted::Point, L"5")), L"\n点无效。\n"); }

TEST(Reading, DistanceIsANumberOrAPoint) {
    EXPECT_EQ(std::get<double>(read(Wanted::Distance, L"7")), 7);
    EXPECT_EQ(std::get<ZrGePoint3d>(read(Wanted::Distance, L"3,4")), ZrGePoint3d(3, 4, 0));
}

TEST(Reading, AngleIsTypedInDegreesAndAnsweredInRadians) {
    EXPECT_NEAR(std::get<double>(read(Wanted::Angle, L"90")), std::numbers::pi / 2, 1e-15);
}

TEST(Reading, TextIsTakenAsItStandsEvenWhereKeywordsAreGiven) {
    EXPECT_EQ(std::get<TextAnswer>(read(Wanted::Text, L"v", RSG_OTHER, &kVector)).text, L"v");
}

} // namespace
