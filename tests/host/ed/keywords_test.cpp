#include "host/ed/keywords.h"

#include <gtest/gtest.h>

using quor::ed::cachedKeywords;
using quor::ed::KeywordList;

namespace {

ZrString match(const wchar_t* list, const wchar_t* answer) {
    const KeywordList keywords(list);
    const ZrString* word = keywords.match(answer);
    return word != nullptr ? *word : ZrString(L"(none)");
}

constexpr const wchar_t* kLoop =
    L"Name Intensity Status Photometry Hotspot Falloff shadoW Attenuation Color filterColor "
    L"eXit _Name Intensity Status Photometry Hotspot Falloff shadoW Attenuation Color "
    L"filterColor eXit";
constexpr const wchar_t* kLimits = L"attenuationType Use sTart eNd eXit _attenuationType Use sTart eNd eXit";

TEST(Keywords, WholeWordMatchesWithoutRegardToCase) {
    EXPECT_EQ(match(kLoop, L"sHADOw"), L"shadoW");
    EXPECT_EQ(match(kLoop, L"FILTERCOLOR"), L"filterColor");
}

TEST(Keywords, CapitalLettersMatchInAnyCase) {
    EXPECT_EQ(match(kLoop, L"W"), L"shadoW");
    EXPECT_EQ(match(kLoop, L"x"), L"eXit");
}

TEST(Keywords, CGivesColorBeforeFilterColorByListOrder) { EXPECT_EQ(match(kLoop, L"C"), L"Color"); }

TEST(Keywords, BGivesFreeweB) { EXPECT_EQ(match(L"Web Freespot freeweB _Web Freespot freeweB", L"B"), L"freeweB"); }

TEST(Keywords, DGivesD65) { EXPECT_EQ(match(L"Xenon D65 D50 _Xenon D65 D50", L"D"), L"D65"); }

TEST(Keywords, D5GivesTheFirstWordThatBeginsSo) { EXPECT_EQ(match(L"Xenon D65 D50 _Xenon D65 D50", L"d5"), L"D50"); }

TEST(Keywords, TGivesAttenuationTypeBeforeStart) { EXPECT_EQ(match(kLimits, L"T"), L"attenuationType"); }

TEST(Keywords, BeginningThatHoldsAllCapitalsMatches) {
    EXPECT_EQ(match(kLoop, L"ex"), L"eXit");
    EXPECT_EQ(match(kLoop, L"int"), L"Intensity");
}

TEST(Keywords, BeginningWithoutAllCapitalsIsNoKeyword) {
    EXPECT_EQ(match(kLoop, L"e"), L"(none)");
    EXPECT_EQ(match(kLoop, L"shado"), L"(none)");
}

TEST(Keywords, WholeWordBeatsCapitalsOfAnEarlierWord) { EXPECT_EQ(match(L"oNly N _oNly N", L"n"), L"N"); }

TEST(Keywords, CapitalsBeatTheBeginningOfAnEarlierWord) {
    EXPECT_EQ(match(L"ABout xABy _ABout xABy", L"ab"), L"ABout");
}

TEST(Keywords, LongerThanTheWordIsNoKeyword) { EXPECT_EQ(match(kLoop, L"eXits"), L"(none)"); }

TEST(Keywords, EmptyAnswerAndLoneUnderscoreAreNoKeywords) {
    EXPECT_EQ(match(kLoop, L""), L"(none)");
    EXPECT_EQ(match(kLoop, L"_"), L"(none)");
}

TEST(Keywords, LocalWordAnswersItsGlobalWord) {
    EXPECT_EQ(match(L"Ja Nein _Yes No", L"j"), L"Yes");
    EXPECT_EQ(match(L"Ja Nein _Yes No", L"Nein"), L"No");
}

TEST(Keywords, LocalListDoesNotAcceptGlobalWordsWithoutUnderscore) {
    EXPECT_EQ(match(L"Ja Nein _Yes No", L"Yes"), L"(none)");
}

TEST(Keywords, UnderscoreMatchesGlobalWordsOnly) {
    EXPECT_EQ(match(L"Ja Nein _Yes No", L"_y"), L"Yes");
    EXPECT_EQ(match(L"Ja Nein _Yes No", L"_Ja"), L"(none)");
}

TEST(Keywords, EveryGlobalWordMayCarryItsOwnUnderscore) { EXPECT_EQ(match(L"Ja Nein _Yes _No", L"_n"), L"No"); }

TEST(Keywords, ListWithoutGlobalWordsIsItsOwn) {
    EXPECT_EQ(match(L"Yes No", L"y"), L"Yes");
    EXPECT_EQ(match(L"Yes No", L"_no"), L"No");
}

TEST(Keywords, WordWithoutCapitalsHasNoAbbreviation) {
    EXPECT_EQ(match(L"all", L"a"), L"(none)");
    EXPECT_EQ(match(L"all", L"ALL"), L"all");
}

TEST(Keywords, LettersThatOnlyLookLikeAsciiDoNotMatch) {
    EXPECT_EQ(match(L"Kelvin", L"\u212A"), L"(none)"); // the Kelvin sign
}

TEST(Keywords, ChineseLocalWordsMatch) {
    EXPECT_EQ(match(L"\u540d\u79f0(N) \u9000\u51fa(X) _Name eXit", L"x"), L"eXit");
    EXPECT_EQ(match(L"\u540d\u79f0 \u9000\u51fa _Name eXit", L"\u9000\u51fa"), L"eXit");
}

TEST(Keywords, WordsAreThoseThatPeopleSee) {
    EXPECT_EQ(KeywordList(L"Ja Nein _Yes No").words(), (std::vector<ZrString>{L"Ja", L"Nein"}));
}

TEST(Keywords, AbbreviationsAreTheCapitals) {
    EXPECT_EQ(KeywordList(L"shadoW ALL none").abbreviations(), (std::vector<ZrString>{L"W", L"ALL", L"none"}));
}

TEST(Keywords, CacheGivesTheSameListForTheSameText) {
    EXPECT_EQ(cachedKeywords(L"One Two"), cachedKeywords(L"One Two"));
    EXPECT_NE(cachedKeywords(L"One Two")->words(), cachedKeywords(L"One Three")->words());
}

} // namespace
