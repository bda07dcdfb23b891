#include "host/commands/layer_name.h"
#include "host/commands/upper_case.h"
#include "host/commands/wildcard.h"

#include <gtest/gtest.h>

namespace quor::commands {

namespace {

TEST(Wildcard, AStarStandsForAnyTextTheEmptyOneIncluded) {
    EXPECT_TRUE(matchesPattern(L"LUPREC", L"*"));
    EXPECT_TRUE(matchesPattern(L"", L"*"));
    EXPECT_TRUE(matchesPattern(L"LUPREC", L"LUPREC*"));
    EXPECT_TRUE(matchesPattern(L"LUPREC", L"*PREC"));
    EXPECT_TRUE(matchesPattern(L"LUPREC", L"L*R*C"));
}

TEST(Wildcard, AQuestionMarkStandsForExactlyOneCharacter) {
    EXPECT_TRUE(matchesPattern(L"LUNITS", L"?UNITS"));
    EXPECT_FALSE(matchesPattern(L"UNITS", L"?UNITS"));
    EXPECT_FALSE(matchesPattern(L"LUNITS", L"LUNITS?"));
}

TEST(Wildcard, CaseDoesNotMatter) { EXPECT_TRUE(matchesPattern(L"LUPREC", L"luprec")); }

TEST(Wildcard, OtherTextDoesNotMatch) {
    EXPECT_FALSE(matchesPattern(L"LUPREC", L"AUPREC"));
    EXPECT_FALSE(matchesPattern(L"LUPREC", L"LUP"));
    EXPECT_FALSE(matchesPattern(L"LUPREC", L""));
    EXPECT_TRUE(matchesPattern(L"", L""));
}

TEST(Wildcard, ALaterStarTakesBackWhatAnEarlierOneTook) { EXPECT_TRUE(matchesPattern(L"aXbXc", L"*X*c")); }

TEST(Wildcard, ManyStarsDoNotTakeExponentialTime) {
    EXPECT_FALSE(matchesPattern(ZrString(2000, L'a'), L"*a*a*a*a*a*a*a*a*a*a*a*a*b"));
}

TEST(LayerName, MayHoldBlanksAndChinese) {
    EXPECT_TRUE(isLayerName(L"0"));
    EXPECT_TRUE(isLayerName(L"天花 灯具"));
}

TEST(LayerName, HasOneTo255Characters) {
    EXPECT_FALSE(isLayerName(L""));
    EXPECT_TRUE(isLayerName(ZrString(255, L'a')));
    EXPECT_FALSE(isLayerName(ZrString(256, L'a')));
}

TEST(LayerName, HoldsNoMarkThatFilesOrPatternsUse) {
    EXPECT_FALSE(isLayerName(L"*ADSK_SYSTEM_LIGHTS"));
    EXPECT_FALSE(isLayerName(L"a|b"));
    EXPECT_FALSE(isLayerName(L"a/b"));
    EXPECT_FALSE(isLayerName(L"a,b"));
}

TEST(LayerName, HoldsNoControlCharacter) {
    EXPECT_FALSE(isLayerName(L"a\nb"));
    EXPECT_FALSE(isLayerName(L"a\tb"));
    EXPECT_FALSE(isLayerName(L"a\x7F"));
}

TEST(UpperCase, ChangesAsciiLettersOnly) { EXPECT_EQ(upperCase(L"3dFace-ä"), L"3DFACE-ä"); }

} // namespace

} // namespace quor::commands
