#include "sdk/sys/format.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

TEST(Format, TextWithoutPlaceholdersStaysAsItIs) { EXPECT_EQ(zrFormat(L"光源", {}), L"光源"); }

TEST(Format, TwoPercentSignsAreOne) { EXPECT_EQ(zrFormat(L"100%% %d%%", {7}), L"100% 7%"); }

TEST(Format, PercentSignThatBeginsNoPlaceholderStays) { EXPECT_EQ(zrFormat(L"5% of %q %", {1}), L"5% of %q %"); }

TEST(Format, EachPlaceholderTakesTheNextArgument) {
    EXPECT_EQ(zrFormat(L"%s: %d/%i", {L"点光源", 1, 2}), L"点光源: 1/2");
}

TEST(Format, PlaceholderWithoutArgumentStaysAsItIs) { EXPECT_EQ(zrFormat(L"%d and %5.2f", {1}), L"1 and %5.2f"); }

TEST(Format, SuperfluousArgumentsAreIgnored) { EXPECT_EQ(zrFormat(L"%d", {1, 2, 3}), L"1"); }

TEST(Format, WholeNumbersTakeFlagsWidthAndPrecision) {
    EXPECT_EQ(zrFormat(L"[%5d][%-5d][%05d][%+d][% d][%.3d]", {42, 42, -42, 42, 42, 7}),
              L"[   42][42   ][-0042][+42][ 42][007]");
}

TEST(Format, SmallestWholeNumberKeepsItsSign) {
    EXPECT_EQ(zrFormat(L"%lld", {std::numeric_limits<long long>::min()}), L"-9223372036854775808");
}

TEST(Format, HexadecimalShowsNegativeNumbersAsBits) {
    EXPECT_EQ(zrFormat(L"%x %X %#x %04x", {255, 255, 255, 10}), L"ff FF 0xff 000a");
    EXPECT_EQ(zrFormat(L"%x", {-1}), L"ffffffff");
    EXPECT_EQ(zrFormat(L"%llx", {-1LL << 32}), L"ffffffff00000000");
}

TEST(Format, LengthsAreSkipped) { EXPECT_EQ(zrFormat(L"%ld %lld %hd %ls %S", {1, 2, 3, L"a", L"b"}), L"1 2 3 a b"); }

TEST(Format, RealNumbersHaveSixDecimalsUnlessToldOtherwise) {
    EXPECT_EQ(zrFormat(L"%f %.2f %.0f", {1.5, 2.345, 2.5}), L"1.500000 2.35 2");
    EXPECT_EQ(zrFormat(L"%g %g %e", {0.0001, 1e10, 12345.678}), L"0.0001 1e+10 1.234568e+04");
    EXPECT_EQ(zrFormat(L"[%8.3f][%-8.1f][%08.2f]", {3.14159, 2.0, -1.5}), L"[   3.142][2.0     ][-0001.50]");
}

TEST(Format, InfinityIsNotFilledWithZeros) {
    EXPECT_EQ(zrFormat(L"%06.1f", {std::numeric_limits<double>::infinity()}), L"   inf");
    EXPECT_EQ(zrFormat(L"%f", {std::nan("")}), L"nan");
}

TEST(Format, LargestNumberWithMostDecimalsFits) {
    EXPECT_EQ(zrFormat(L"%.999f", {std::numeric_limits<double>::max()}).size(), 309U + 1 + 99);
}

TEST(Format, TextsTakeWidthAndPrecision) {
    EXPECT_EQ(zrFormat(L"[%4s][%-4s][%.1s]", {L"光源", L"光源", L"光源"}), L"[  光源][光源  ][光]");
}

TEST(Format, CharacterIsWrittenByItsCode) { EXPECT_EQ(zrFormat(L"%c%c", {L'光', 65}), L"光A"); }

TEST(Format, ArgumentOfAnotherKindIsShownAsItLooks) {
    EXPECT_EQ(zrFormat(L"%d", {L"text"}), L"text");
    EXPECT_EQ(zrFormat(L"%d", {2.5}), L"2.5");
    EXPECT_EQ(zrFormat(L"%s", {12}), L"12");
    EXPECT_EQ(zrFormat(L"%.2f", {3}), L"3");
    EXPECT_EQ(zrFormat(L"%.1f", {L"text"}), L"text");
    EXPECT_EQ(zrFormat(L"%s", {0.25}), L"0.25");
}

TEST(Format, PlaceholdersInArgumentsAreNotFilled) { EXPECT_EQ(zrFormat(L"%s %d", {L"%d%s", 1}), L"%d%s 1"); }

TEST(Format, NullTextIsEmpty) {
    const wchar_t* none = nullptr;
    EXPECT_EQ(zrFormat(L"[%s]", {none}), L"[]");
}

TEST(Format, HugeWidthIsCut) { EXPECT_EQ(zrFormat(L"%99999999999999999999d", {1}).size(), 255U); }
