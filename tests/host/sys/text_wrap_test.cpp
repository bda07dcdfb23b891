#include "host/sys/text_wrap.h"

#include <gtest/gtest.h>

namespace quor {
namespace {

TEST(TextWrap, LineAsWideAsTheScreenStaysAndAWiderOneBreaksAtAWord) {
    EXPECT_EQ(wrapped(L"one two three four five", 23), L"one two three four five");
    EXPECT_EQ(wrapped(L"one two three four five", 22), L"one two three four\n  five");
}

TEST(TextWrap, IndentedLineGoesOnFurtherRight) {
    EXPECT_EQ(wrapped(L"\n  one two three four five\nsix", 20), L"\n  one two three four\n    five\nsix");
}

TEST(TextWrap, ItemOfAListGoesOnBehindItsNumberOrBox) {
    EXPECT_EQ(wrapped(L"  1. one two three four", 20), L"  1. one two three\n     four");
    EXPECT_EQ(wrapped(L"  [ ] one two three four", 20), L"  [ ] one two three\n      four");
}

TEST(TextWrap, WhatStandsBehindALabelStaysBehindIt) {
    EXPECT_EQ(wrapped(L"  LAYER  one two three four", 20), L"  LAYER  one two\n         three four");
}

TEST(TextWrap, LabelOfMoreThanHalfTheScreenIsNotBrokenBehind) {
    EXPECT_EQ(wrapped(L"a long label  and much text", 20), L"a long label  and much text");
}

TEST(TextWrap, RowsOfTablesStayAsTheyAre) {
    EXPECT_EQ(wrapped(L"one  two  three four five six", 20), L"one  two  three four five six");
    EXPECT_EQ(wrapped(L"one two\tthree four five six", 20), L"one two\tthree four five six");
}

TEST(TextWrap, ChineseBreaksBetweenCharactersButNotBeforeClosingPunctuation) {
    EXPECT_EQ(wrapped(L"打开默认光源时无法显示，再试", 20), L"打开默认光源时无法显\n  示，再试");
    EXPECT_EQ(wrapped(L"打开默认光源时无法显，再试", 20), L"打开默认光源时无法\n  显，再试");
    EXPECT_EQ(wrapped(L"打开默认光源时无法（再试）", 20), L"打开默认光源时无法\n  （再试）");
}

TEST(TextWrap, WordAmongChineseStaysWhole) {
    EXPECT_EQ(wrapped(L"打开默认光源时用LIGHTTABLE命令", 20), L"打开默认光源时用\n  LIGHTTABLE命令");
}

TEST(TextWrap, WordThatIsWiderThanALineStaysInItsPlace) {
    EXPECT_EQ(wrapped(L"in /a/very/long/path/of/a/file there", 20), L"in /a/very/long/path/of/a/file there");
}

TEST(TextWrap, NarrowScreenBreaksByItself) {
    EXPECT_EQ(wrapped(L"one two three four five", 19), L"one two three four five");
}

TEST(TextWrap, LineBreaksAtBothEndsStay) {
    EXPECT_EQ(wrapped(L"\n\n" + ZrString(30, L'a') + L"\n\n", 20), L"\n\n" + ZrString(30, L'a') + L"\n\n");
}

} // namespace
} // namespace quor
