#include "host/commands/upper_case.h"
#include "host/commands/wildcard.h"
#include "host/props/layer_name.h"
#include "tests/support/test_session.h"

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
    EXPECT_FALSE(isLayerName(L"a\x009B"));
    EXPECT_TRUE(isLayerName(L"a\x00A0"));
}

TEST(LayerName, HoldsNoMarkOfWritingDirection) {
    EXPECT_FALSE(isLayerName(L"a\x202E"));
    EXPECT_FALSE(isLayerName(L"a\x2066"));
    EXPECT_TRUE(isLayerName(L"a\x2010"));
}

TEST(NamesInMessages, AreShownWithTheirControlCharactersSpelledOut) {
    test::TestSession host;

    host.run({L"LAYER", L"M", L"a\x009B", L"", L"", L"LAYOUT", L"S", L"b\x202E", L"", L"DOCUMENTS", L"c\x009B", L"",
              L"HELP", L"d\x202E", L"SETVAR", L"e\x009B", L"f\x202E"});

    EXPECT_TRUE(host.front().shows(L"“aU+009B”不能作为图层名"));
    EXPECT_TRUE(host.front().shows(L"没有名为“bU+202E”的布局"));
    EXPECT_TRUE(host.front().shows(L"没有编号或名称为“cU+009B”的图形"));
    EXPECT_TRUE(host.front().shows(L"没有名为“dU+202E”的命令"));
    EXPECT_TRUE(host.front().shows(L"没有名为“eU+009B”的系统变量"));
    EXPECT_TRUE(host.front().shows(L"未知命令“fU+202E”"));
}

TEST(UpperCase, ChangesAsciiLettersOnly) { EXPECT_EQ(upperCase(L"3dFace-ä"), L"3DFACE-ä"); }

} // namespace

} // namespace quor::commands
