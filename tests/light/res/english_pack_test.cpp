// The English pack holds every text of the module, and each says what the built-in Chinese one does.
#include "tests/light/res/language_pack.h"

#include "host/ed/keywords.h"
#include "light/lightcmd/lamp_presets.h"
#include "sdk/sys/case_fold.h"

#include <algorithm>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <set>

namespace quor::light {
namespace {

const LanguagePack& english() { return LanguagePack::english(); }

// What a prompt ends with behind its last word, such as ">: ". A blank alone is no such end.
ZrString endOf(const ZrString& text) {
    const ZrString end = text.substr(text.find_last_not_of(L" :<>\n") + 1);
    return end == L" " ? L"" : end;
}

class EachEnglishText : public testing::TestWithParam<Text> {
protected:
    static ZrString text() { return english().shown(GetParam()); }
    static ZrString builtIn() { return GetParam().builtIn; }
};

TEST_P(EachEnglishText, IsInThePack) { EXPECT_NE(english().find(GetParam()), nullptr); }

TEST_P(EachEnglishText, HasAsManyLines) {
    EXPECT_EQ(std::ranges::count(text(), L'\n'), std::ranges::count(builtIn(), L'\n'));
}

TEST_P(EachEnglishText, StartsOnAFreshLineWhereTheBuiltInOneDoes) {
    EXPECT_EQ(text().starts_with(L'\n'), builtIn().starts_with(L'\n'));
}

TEST_P(EachEnglishText, EndsAsTheBuiltInOne) { EXPECT_EQ(endOf(text()), endOf(builtIn())); }

TEST_P(EachEnglishText, IsWrittenInPlainLetters) {
    EXPECT_TRUE(std::ranges::all_of(text(), [](wchar_t c) { return c < 0x80; })) << testing::PrintToString(text());
}

TEST_P(EachEnglishText, HasLessThanAThousandCharacters) { EXPECT_LT(text().size(), 1000U); }

INSTANTIATE_TEST_SUITE_P(All, EachEnglishText, testing::ValuesIn(allTexts()), nameOfText<testing::TestParamInfo<Text>>);

TEST(EnglishPack, HoldsNothingElse) {
    EXPECT_EQ(english().size(TextSource::CommandLibrary), textsOf(TextSource::CommandLibrary).size());
    EXPECT_EQ(english().size(TextSource::Keywords), textsOf(TextSource::Keywords).size());
}

TEST(EnglishPack, HasNoLineThatIsRefusedForItsFormOrItsPlaceholders) { EXPECT_TRUE(english().problems().empty()); }

// "_" marks the first of the global words.
class EachKeywordList : public testing::TestWithParam<Text> {
protected:
    static ed::KeywordList list() { return ed::KeywordList(english().shown(GetParam())); }
    static ed::KeywordList builtIn() { return ed::KeywordList(GetParam().builtIn); }
    static ZrString globalWords(const ZrString& list) { return list.substr(list.find(L'_')); }
};

TEST_P(EachKeywordList, HasAsManyWords) { EXPECT_EQ(list().words().size(), builtIn().words().size()); }

TEST_P(EachKeywordList, HasTheSameAbbreviations) { EXPECT_EQ(list().abbreviations(), builtIn().abbreviations()); }

TEST_P(EachKeywordList, HasTheSameGlobalWords) {
    EXPECT_EQ(globalWords(english().shown(GetParam())), globalWords(GetParam().builtIn));
}

INSTANTIATE_TEST_SUITE_P(All, EachKeywordList, testing::ValuesIn(textsWith(L" _")),
                         nameOfText<testing::TestParamInfo<Text>>);

class EachHelpPage : public testing::TestWithParam<Text> {
protected:
    // Words of four capital letters and more.
    static std::set<ZrString> namesIn(const ZrString& text) {
        std::set<ZrString> names;
        ZrString word;
        for (const wchar_t c : text + L" ") {
            if (c >= L'A' && c <= L'Z') {
                word += c;
                continue;
            }
            if (word.size() >= 4)
                names.insert(word);
            word.clear();
        }
        return names;
    }
    static ZrString behind(const ZrString& text, std::wstring_view label) {
        return text.substr(text.find(label) + label.size());
    }
};

TEST_P(EachHelpPage, HasTheSameExample) {
    EXPECT_EQ(behind(english().shown(GetParam()), L"\nExample: "), behind(GetParam().builtIn, L"\n例: "));
}

TEST_P(EachHelpPage, NamesTheSameCommandsAndVariables) {
    EXPECT_EQ(namesIn(english().shown(GetParam())), namesIn(GetParam().builtIn));
}

INSTANTIATE_TEST_SUITE_P(All, EachHelpPage, testing::ValuesIn(textsWith(L"\n例: ")),
                         nameOfText<testing::TestParamInfo<Text>>);

// What the names of lights begin with, and the words that are compared with it.
constexpr const Text* kindWords[] = {
    &texts.pointNamePrefix, &texts.targetPointNamePrefix, &texts.spotNamePrefix,
    &texts.spotKindWord,    &texts.freeSpotNamePrefix,    &texts.freeSpotKindWord,
    &texts.webNamePrefix,   &texts.distantNamePrefix,     &texts.distantKindWord,
};

// Two of them are equal in English where they are in Chinese.
std::vector<std::pair<unsigned, unsigned>> equalKindWords(const LanguagePack& pack) {
    std::vector<std::pair<unsigned, unsigned>> equal;
    for (const Text* a : kindWords)
        for (const Text* b : kindWords)
            if (equalFolded(pack.shown(*a), pack.shown(*b)))
                equal.emplace_back(a->number, b->number);
    return equal;
}

TEST(EnglishPack, TellsTheKindsOfLightsApartAsTheBuiltInTextsDo) {
    EXPECT_EQ(equalKindWords(english()), equalKindWords(LanguagePack::chinese()));
}

TEST(EnglishPack, CallsTheCommandsByTheirGlobalNames) {
    EXPECT_EQ(english().shown(texts.pointLightCommand), L"POINTLIGHT");
    EXPECT_EQ(english().shown(texts.spotLightCommand), L"SPOTLIGHT");
    EXPECT_EQ(english().shown(texts.targetPointCommand), L"TargetPoint");
    EXPECT_EQ(english().shown(texts.webLightCommand), L"WEBLIGHT");
    EXPECT_EQ(english().shown(texts.freeSpotCommand), L"FREESPOT");
    EXPECT_EQ(english().shown(texts.freeWebCommand), L"FREEWEB");
    EXPECT_EQ(english().shown(texts.distantLightCommand), L"distantlight");
    EXPECT_EQ(english().shown(texts.lightCommand), L"Light");
    EXPECT_EQ(english().shown(texts.lightListCommand), L"LightList");
    EXPECT_EQ(english().shown(texts.lightListCloseCommand), L"LightListClose");
}

class LampNames : public testing::TestWithParam<const LanguagePack*> {
protected:
    static ZrString name(const LampPreset& preset) {
        return preset.name != nullptr ? GetParam()->shown(*preset.name) : L"D65(D)";
    }
    // "(F)", from the keyword Fluorescent.
    static ZrString abbreviation(const LampPreset& preset) {
        return L"(" + ed::KeywordList(preset.keyword).abbreviations().front() + L")";
    }
    // The names in quotes, a line each; a tab stands behind the last but one.
    static ZrString listed() {
        ZrString list;
        for (const LampPreset& preset : lampPresets())
            list += (preset.value == LampColorPreset::kLowPressureSodium ? L"\t\n\"" : L"\n\"") + name(preset) + L"\"";
        return list;
    }
};

TEST_P(LampNames, AreTheOnesOfTheList) { EXPECT_EQ(GetParam()->shown(texts.lampListBody), listed()); }

TEST_P(LampNames, EndWithTheAbbreviationOfTheKeyword) {
    for (const LampPreset& preset : lampPresets())
        EXPECT_TRUE(name(preset).ends_with(abbreviation(preset))) << testing::PrintToString(name(preset));
}

TEST_P(LampNames, AreTypedWithoutBlanks) {
    for (const LampPreset& preset : lampPresets())
        EXPECT_EQ(name(preset).find(L' '), ZrString::npos) << testing::PrintToString(name(preset));
}

TEST_P(LampNames, AreInThePackAsNoneIsFoundByItsBuiltInName) {
    for (const LampPreset& preset : lampPresets().subspan(1))
        EXPECT_NE(GetParam()->find(*preset.name), nullptr) << preset.name->number;
}

INSTANTIATE_TEST_SUITE_P(Chinese, LampNames, testing::Values(&LanguagePack::chinese()));
INSTANTIATE_TEST_SUITE_P(English, LampNames, testing::Values(&LanguagePack::english()));

} // namespace
} // namespace quor::light
