#include "host/sys/case_fold.h"

#include <unordered_map>

#include <gtest/gtest.h>

namespace {

using namespace quor;

TEST(CaseFold, LettersOfEachScriptFoldAndOthersStay) {
    EXPECT_EQ(foldCase(L"@AZ[`az{"), L"@az[`az{");
    EXPECT_EQ(foldCase(L"ÀÖ×ØÞß"), L"àö×øþß");
    EXPECT_EQ(foldCase(L"ĀāŸŽ"), L"āāÿž");
    EXPECT_EQ(foldCase(L"ΆΑΡΣΫΏ"), L"άαρσϋώ");
    EXPECT_EQ(foldCase(L"ЀЏАЯЁ"), L"ѐџаяё");
    EXPECT_EQ(foldCase(L"ＡＺ［"), L"ａｚ［");
    EXPECT_EQ(foldCase(L"灯光Light01"), L"灯光light01");
}

TEST(CaseFold, BothSmallSigmasAreTheSame) { EXPECT_TRUE(equalFolded(L"ΟΔΟΣ", L"οδος")); }

TEST(CaseFold, NoOtherCharacterFoldsIntoAscii) {
    for (wchar_t c = 0x80; c < 0x3000; ++c)
        ASSERT_GE(foldChar(c), 0x80) << static_cast<int>(c);
}

TEST(CaseFold, FoldingTwiceIsFoldingOnce) {
    for (wchar_t c = 0; c <= 0x10000; ++c)
        ASSERT_EQ(foldChar(foldChar(c)), foldChar(c)) << static_cast<int>(c);
}

TEST(CaseFold, CharactersOutsideTheTablesRangeStay) {
    EXPECT_EQ(foldChar(static_cast<wchar_t>(-1)), static_cast<wchar_t>(-1));
    EXPECT_EQ(foldChar(0x10FFFF), 0x10FFFF);
    EXPECT_EQ(foldChar(0x1F600), 0x1F600);
}

TEST(CaseFold, EqualNeedsTheSameLength) {
    EXPECT_TRUE(equalFolded(L"", L""));
    EXPECT_TRUE(equalFolded(L"Light", L"LIGHT"));
    EXPECT_FALSE(equalFolded(L"Light", L"Lights"));
    EXPECT_FALSE(equalFolded(L"Lights", L"Light"));
    EXPECT_FALSE(equalFolded(L"Light", L"Lighs"));
}

TEST(CaseFold, ABeginningIsFoundUpToTheWholeText) {
    EXPECT_TRUE(startsWithFolded(L"Shadow", L""));
    EXPECT_TRUE(startsWithFolded(L"Shadow", L"sHA"));
    EXPECT_TRUE(startsWithFolded(L"Shadow", L"SHADOW"));
    EXPECT_FALSE(startsWithFolded(L"Shadow", L"ha"));
    EXPECT_FALSE(startsWithFolded(L"Shadow", L"shadows"));
}

TEST(CaseFold, OrderIgnoresCaseAndPutsTheShorterFirst) {
    EXPECT_LT(compareFolded(L"apple", L"BANANA"), 0);
    EXPECT_GT(compareFolded(L"b", L"Apple"), 0);
    EXPECT_EQ(compareFolded(L"Apple", L"aPPLE"), 0);
    EXPECT_LT(compareFolded(L"light", L"Light1"), 0);
    EXPECT_GT(compareFolded(L"Light1", L"light"), 0);
}

TEST(CaseFold, AMapFindsANameInAnyCaseWithoutACopy) {
    std::unordered_map<std::wstring, int, FoldedHash, FoldedEqual> names{{L"Ärger", 1}};
    EXPECT_EQ(names.find(std::wstring_view(L"äRGER"))->second, 1);
    EXPECT_EQ(names.find(std::wstring_view(L"arger")), names.end());
}

} // namespace
