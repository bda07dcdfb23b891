#include "host/ies/tokens.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

namespace quor::ies {
namespace {

using Found = std::vector<std::pair<std::string, std::size_t>>;

Found tokensOf(std::string_view text, std::size_t line = 1) {
    Tokens tokens(text, line);
    Found found;
    for (Token token; tokens.next(token);)
        found.emplace_back(token.text, token.line);
    return found;
}

TEST(Tokens, AreSeparatedByBlanksTabsAndCommasInAnyMixture) {
    EXPECT_EQ(tokensOf(" 1 2\t3,4, 5 ,\t6,,7 "),
              (Found{{"1", 1}, {"2", 1}, {"3", 1}, {"4", 1}, {"5", 1}, {"6", 1}, {"7", 1}}));
}

TEST(Tokens, KnowTheirLineWithEachKindOfLineEnd) {
    EXPECT_EQ(tokensOf("1\n2\r\n3\r4\n\n5\r\r6"), (Found{{"1", 1}, {"2", 2}, {"3", 3}, {"4", 4}, {"5", 6}, {"6", 8}}));
}

TEST(Tokens, CountLinesFromTheOneTheTextBeginsIn) { EXPECT_EQ(tokensOf("\n1", 13), (Found{{"1", 14}})); }

TEST(Tokens, EndAtCtrlZ) {
    EXPECT_EQ(tokensOf("1 2\x1A 3"), (Found{{"1", 1}, {"2", 1}}));
    EXPECT_EQ(tokensOf("1\r\n\x1A"), (Found{{"1", 1}}));
}

TEST(Tokens, OfBlanksAreNone) {
    EXPECT_TRUE(tokensOf("").empty());
    EXPECT_TRUE(tokensOf(" \t\r\n,").empty());
}

struct Written {
    const char* text;
    double value;
};

class Number : public testing::TestWithParam<Written> {};

TEST_P(Number, IsRead) { EXPECT_EQ(numberOf(GetParam().text), GetParam().value); }

INSTANTIATE_TEST_SUITE_P(Forms, Number,
                         testing::Values(Written{"0", 0}, Written{"12", 12}, Written{".5", 0.5}, Written{"5.", 5},
                                         Written{"-.25", -0.25}, Written{"+3", 3}, Written{"+.5", 0.5},
                                         Written{"3.0", 3}, Written{"1e3", 1000}, Written{"1E3", 1000},
                                         Written{"1.5e+2", 150}, Written{"25E-1", 2.5}, Written{"007", 7},
                                         Written{"1e308", 1e308}, Written{"1e-999", 0}));

class NoNumber : public testing::TestWithParam<const char*> {};

TEST_P(NoNumber, IsRefused) { EXPECT_EQ(numberOf(GetParam()), std::nullopt); }

INSTANTIATE_TEST_SUITE_P(Texts, NoNumber,
                         testing::Values("", "+", "-", ".", "e3", "1e", "1e+", "+-3", "-+3", "--3", "++3", "1.2.3",
                                         "12a", "a12", "nan", "NaN", "inf", "-Infinity", "0x10", "1e309", "-1e999",
                                         "1\xC2\xA0", "1;", "1-2"));

} // namespace
} // namespace quor::ies
