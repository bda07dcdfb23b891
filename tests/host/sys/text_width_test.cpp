#include "host/sys/text_width.h"

#include <gtest/gtest.h>

namespace quor {

namespace {

TEST(TextWidth, AsciiCharactersAreOneColumnWide) { EXPECT_EQ(columnsOf(L"LINE 3d~"), 8); }

TEST(TextWidth, ChineseCharactersAndFullWidthMarksAreTwoColumnsWide) {
    EXPECT_EQ(columnsOf(L"句柄"), 4);
    EXPECT_EQ(columnsOf(L"。："), 4);
    EXPECT_EQ(columnsOf(L"阴影 256"), 8);
}

TEST(TextWidth, OtherAlphabetsAreOneColumnWide) { EXPECT_EQ(columnsOf(L"°äжλ"), 4); }

TEST(TextWidth, CombiningAndControlCharactersTakeNoColumn) {
    EXPECT_EQ(columnsOf(L"e\u0301"), 1);
    EXPECT_EQ(columnsOf(L"\t\n"), 0);
}

TEST(TextWidth, TheEdgesOfAWideRangeBelongToIt) {
    EXPECT_EQ(columnsOf(L'\u4DFF'), 1);
    EXPECT_EQ(columnsOf(L'\u4E00'), 2);
    EXPECT_EQ(columnsOf(L'\uA4CF'), 2);
    EXPECT_EQ(columnsOf(L'\uA4D0'), 1);
}

TEST(TextWidth, PaddingCountsColumns) {
    EXPECT_EQ(padRight(L"句柄", 6), L"句柄  ");
    EXPECT_EQ(padLeft(L"7", 3), L"  7");
}

TEST(TextWidth, WordOf60CharactersIsShownWholeAndALongerOneIsShortened) {
    EXPECT_EQ(shortened(ZrString(60, L'灯')), ZrString(60, L'灯'));
    EXPECT_EQ(shortened(ZrString(61, L'灯')), ZrString(60, L'灯') + L"…");
}

TEST(TextWidth, ALongerTextIsNotCut) {
    EXPECT_EQ(padRight(L"句柄", 3), L"句柄");
    EXPECT_EQ(padLeft(L"1234", 2), L"1234");
}

} // namespace

} // namespace quor
