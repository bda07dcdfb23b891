// The options that a prompt offers in brackets are the same in both languages, and what it marks is a keyword.
#include "tests/light/res/language_pack.h"

#include "host/ed/keywords.h"
#include "host/sys/case_fold.h"

#include <algorithm>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace quor::light {
namespace {

using testing::ElementsAre;

TEST(OptionsOf, AreReadWithAbbreviationsInBracketsAndInCapitals) {
    EXPECT_THAT(optionsOf(L"\n输入选项 [?/开尔文(K)/X] <退出>: "),
                ElementsAre(Option{L"?", L""}, Option{L"开尔文", L"K"}, Option{L"X", L"X"}));
    EXPECT_THAT(optionsOf(L"\nEnter an option [64/Uselimits/eXit] <%s>:"),
                ElementsAre(Option{L"64", L""}, Option{L"Uselimits", L"U"}, Option{L"eXit", L"X"}));
    EXPECT_TRUE(optionsOf(L"\nEnter length <%s>: ").empty());
}

// The default that a prompt shows behind its options: "退出"; empty when another text is put there.
ZrString shownDefault(const ZrString& prompt) {
    const std::size_t open = prompt.find(L"] <");
    if (open == ZrString::npos)
        return {};
    const ZrString shown = prompt.substr(open + 3, prompt.find(L'>', open) - open - 3);
    return shown.starts_with(L'%') ? ZrString() : shown;
}

// Its place among the options; as many as there are when it is none of them.
std::ptrdiff_t placeOfDefault(const ZrString& prompt) {
    const std::vector<Option> options = optionsOf(prompt);
    const auto at = std::ranges::find_if(
        options, [&](const Option& option) { return equalFolded(option.name, shownDefault(prompt)); });
    return at - options.begin();
}

class EachPromptWithOptions : public testing::TestWithParam<Text> {
protected:
    static ZrString english() { return LanguagePack::english().shown(GetParam()); }
    static ZrString chinese() { return LanguagePack::chinese().shown(GetParam()); }
};

TEST_P(EachPromptWithOptions, MarksTheSameOnesInBothLanguages) {
    EXPECT_EQ(abbreviationsOf(optionsOf(english())), abbreviationsOf(optionsOf(chinese())));
}

TEST_P(EachPromptWithOptions, ShowsTheSameDefaultInBothLanguages) {
    EXPECT_EQ(shownDefault(english()).empty(), shownDefault(chinese()).empty());
    EXPECT_EQ(placeOfDefault(english()), placeOfDefault(chinese()));
}

INSTANTIATE_TEST_SUITE_P(All, EachPromptWithOptions, testing::ValuesIn(textsWith(L"[")),
                         nameOfText<testing::TestParamInfo<Text>>);

// A prompt, and the keywords that answer it.
struct Answered {
    const Text& prompt;
    const Text& keywords;
    unsigned number = prompt.number;
};

constexpr Answered answeredPrompts[] = {
    {texts.lightKindPrompt, texts.lightKindKeywords},
    {texts.distantFromPrompt, texts.distantFromKeywords},
    {texts.pointOptions, texts.pointOptionKeywords},
    {texts.pointPhotometricOptions, texts.pointOptionKeywords},
    {texts.spotOptions, texts.spotOptionKeywords},
    {texts.spotPhotometricOptions, texts.spotOptionKeywords},
    {texts.targetPointOptions, texts.targetPointOptionKeywords},
    {texts.targetPointPhotometricOptions, texts.targetPointOptionKeywords},
    {texts.freeSpotOptions, texts.freeSpotOptionKeywords},
    {texts.freeSpotPhotometricOptions, texts.freeSpotOptionKeywords},
    {texts.webOptions, texts.webOptionKeywords},
    {texts.distantOptions, texts.distantOptionKeywords},
    {texts.distantPhotometricOptions, texts.distantOptionKeywords},
    {texts.statusPromptOn, texts.onOffKeywords},
    {texts.statusPromptOff, texts.onOffKeywords},
    {texts.useLimitsPrompt, texts.onOffKeywords},
    {texts.photometryPrompt, texts.photometryKeywords},
    {texts.candelaPrompt, texts.candelaKeywords},
    {texts.illuminancePromptFootCandle, texts.illuminanceKeywords},
    {texts.illuminancePromptLux, texts.illuminanceKeywords},
    {texts.distantShadowPrompt, texts.distantShadowKeywords},
    {texts.shadowPrompt, texts.shadowKeywords},
    {texts.sampledMenuPrompt, texts.sampledMenuKeywords},
    {texts.spotShapePrompt, texts.spotShapeKeywords},
    {texts.shapePrompt, texts.shapeKeywords},
    {texts.shapeVisiblePromptNo, texts.yesNoKeywords},
    {texts.shapeVisiblePromptYes, texts.yesNoKeywords},
    {texts.attenuationMenuPrompt, texts.attenuationMenuKeywords},
    {texts.attenuationTypePrompt, texts.attenuationTypeKeywords},
    {texts.trueColorPrompt, texts.trueColorKeywords},
    {texts.webMenuPrompt, texts.webMenuKeywords},
};

// The keyword that each option gets when what it marks is typed; "-" for none.
std::vector<ZrString> keywordsFor(const LanguagePack& pack, const Answered& answered) {
    const ed::KeywordList keywords(pack.shown(answered.keywords));
    std::vector<ZrString> found;
    for (const ZrString& typed : abbreviationsOf(optionsOf(pack.shown(answered.prompt)))) {
        const ZrString* const keyword = keywords.match(typed);
        found.push_back(keyword != nullptr ? *keyword : L"-");
    }
    return found;
}

class EachAnsweredPrompt : public testing::TestWithParam<Answered> {};

TEST_P(EachAnsweredPrompt, HasAKeywordForEachOption) {
    EXPECT_THAT(keywordsFor(LanguagePack::english(), GetParam()), testing::Not(testing::Contains(L"-")));
}

TEST_P(EachAnsweredPrompt, HasTheSameKeywordsInBothLanguages) {
    EXPECT_EQ(keywordsFor(LanguagePack::english(), GetParam()), keywordsFor(LanguagePack::chinese(), GetParam()));
}

TEST_P(EachAnsweredPrompt, SpellsEachEnglishOptionAsTheKeywordThatItAnswersWhenItIsTyped) {
    const ed::KeywordList keywords(LanguagePack::english().shown(GetParam().keywords));
    for (const Option& option : optionsOf(LanguagePack::english().shown(GetParam().prompt))) {
        const ZrString* const answered = keywords.match(option.name);
        ASSERT_NE(answered, nullptr) << testing::PrintToString(option.name);
        EXPECT_EQ(*answered, option.name);
    }
}

INSTANTIATE_TEST_SUITE_P(All, EachAnsweredPrompt, testing::ValuesIn(answeredPrompts),
                         nameOfText<testing::TestParamInfo<Answered>>);

// Only the sizes of shadow maps and the question for a lamp have options that are no keywords of their own.
TEST(AnsweredPrompts, AreAllThatHaveOptions) {
    std::vector<unsigned> numbers{texts.mapSizePrompt.number, texts.lampColorPrompt.number};
    for (const Answered& answered : answeredPrompts)
        numbers.push_back(answered.number);
    std::vector<unsigned> expected;
    for (const Text& text : textsWith(L"["))
        expected.push_back(text.number);

    EXPECT_THAT(numbers, testing::UnorderedElementsAreArray(expected));
}

TEST(LampColorPrompt, HasAKeywordForKelvin) {
    const ed::KeywordList keywords(LanguagePack::english().shown(texts.lampColorKeywords));

    ASSERT_NE(keywords.match(L"K"), nullptr);
    EXPECT_EQ(*keywords.match(L"K"), L"Kelvin");
}

// A prompt, and a text that is put there as the value that Enter takes.
struct Shown {
    const Text& prompt;
    const Text& word;
    unsigned number = word.number;
};

constexpr Shown shownWords[] = {
    {texts.lightKindPrompt, texts.kindPoint},
    {texts.lightKindPrompt, texts.kindSpot},
    {texts.lightKindPrompt, texts.kindWeb},
    {texts.lightKindPrompt, texts.kindTargetPoint},
    {texts.lightKindPrompt, texts.kindFreeSpot},
    {texts.lightKindPrompt, texts.kindFreeWeb},
    {texts.lightKindPrompt, texts.kindDistant},
    {texts.shadowPrompt, texts.off},
    {texts.shadowPrompt, texts.shadowSharp},
    {texts.shadowPrompt, texts.shadowSoftMapped},
    {texts.shadowPrompt, texts.shadowSoftSampled},
    {texts.sampledMenuPrompt, texts.sampledMenuDefault},
    {texts.shapePrompt, texts.shapeLinear},
    {texts.shapePrompt, texts.shapeRect},
    {texts.shapePrompt, texts.shapeDisk},
    {texts.shapePrompt, texts.shapeCylinder},
    {texts.shapePrompt, texts.shapeSphere},
    {texts.attenuationMenuPrompt, texts.attenuationMenuDefault},
    {texts.attenuationTypePrompt, texts.attenuationNone},
    {texts.attenuationTypePrompt, texts.attenuationInverseLinear},
    {texts.attenuationTypePrompt, texts.attenuationInverseSquare},
    {texts.useLimitsPrompt, texts.on},
};

class EachShownWord : public testing::TestWithParam<Shown> {};

TEST_P(EachShownWord, IsSpelledInEnglishAsItsOption) {
    ZrString word = LanguagePack::english().shown(GetParam().word);
    std::erase_if(word, [](wchar_t c) { return c == L'<' || c == L'>'; });
    const std::vector<Option> options = optionsOf(LanguagePack::english().shown(GetParam().prompt));

    EXPECT_TRUE(std::ranges::any_of(options, [&](const Option& option) { return equalFolded(option.name, word); }));
}

INSTANTIATE_TEST_SUITE_P(All, EachShownWord, testing::ValuesIn(shownWords), nameOfText<testing::TestParamInfo<Shown>>);

} // namespace
} // namespace quor::light
