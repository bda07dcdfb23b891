#include "console/columns.h"

#include <gtest/gtest.h>

namespace quor::console {
namespace {

TEST(Columns, WordsRunDownTheColumnsThatFit) {
    EXPECT_EQ(inColumns({L"a", L"bb", L"cc"}, 8), L"a   cc\nbb\n");
    EXPECT_EQ(inColumns({L"a", L"bb", L"cc"}, 4), L"a\nbb\ncc\n");
}

TEST(Columns, WideCharactersCountTwice) {
    EXPECT_EQ(inColumns({L"点光源", L"ab", L"c"}, 20), L"点光源  c\nab\n");
    EXPECT_EQ(inColumns({L"longer than the screen", L"b"}, 10), L"longer than the screen\nb\n");
}

TEST(Columns, CursorBehindAFullRowStandsOnTheNextOne) {
    EXPECT_EQ(lastRowOf(L"", 5), 0);
    EXPECT_EQ(lastRowOf(L"abcd", 5), 0);
    EXPECT_EQ(lastRowOf(L"abcde", 5), 1);
    EXPECT_EQ(lastRowOf(L"abcdefghij", 5), 2);
}

TEST(Columns, WideCharacterDoesNotLieOnTwoRows) {
    EXPECT_EQ(lastRowOf(L"光光", 5), 0);
    EXPECT_EQ(lastRowOf(L"光光光", 5), 1);
    EXPECT_EQ(lastRowOf(L"光光光光光", 5), 2);
}

} // namespace
} // namespace quor::console
