#include "light/res/text_table.h"

#include "sdk/sys/string.h"

#include <algorithm>
#include <cwchar>
#include <functional>
#include <gtest/gtest.h>
#include <sstream>
#include <vector>

namespace quor::light {
namespace {

std::vector<ZrString> wordsOf(const wchar_t* list) {
    std::wistringstream stream(list);
    std::vector<ZrString> words;
    for (ZrString word; stream >> word;)
        words.push_back(word);
    return words;
}

std::ptrdiff_t half(const std::vector<ZrString>& words) { return static_cast<std::ptrdiff_t>(words.size() / 2); }

// The local words of a list as global ones: the first with "_" in front.
std::vector<ZrString> expectedGlobals(const std::vector<ZrString>& words) {
    std::vector<ZrString> globals(words.begin(), words.begin() + half(words));
    globals.front().insert(0, L"_");
    return globals;
}

std::vector<ZrString> globalsOf(const std::vector<ZrString>& words) {
    return {words.begin() + half(words), words.end()};
}

bool isKeywordList(const Text& text) {
    return text.source == TextSource::Keywords && std::wcschr(text.builtIn, L'_') != nullptr;
}

TEST(TextTable, NumbersAscendAndNoneIsUsedTwice) {
    const auto all = allTexts();

    const auto wrong =
        std::adjacent_find(all.begin(), all.end(), [](const Text& a, const Text& b) { return a.number >= b.number; });

    EXPECT_EQ(wrong, all.end()) << wrong->number;
}

TEST(TextTable, EveryKeywordListRepeatsItsWordsAsGlobalOnes) {
    for (const Text& text : allTexts()) {
        if (isKeywordList(text)) {
            EXPECT_EQ(globalsOf(wordsOf(text.builtIn)), expectedGlobals(wordsOf(text.builtIn))) << text.number;
        }
    }
}

TEST(TextTable, EveryTextFitsIntoAThousandCharacters) {
    for (const Text& text : allTexts())
        EXPECT_LT(std::wcslen(text.builtIn), 1000U) << text.number;
}

TEST(TextTable, KeywordListsAndLocalNamesAreReadFromTheKeywordModule) {
    EXPECT_EQ(texts.pointOptionKeywords.source, TextSource::Keywords);
    EXPECT_EQ(texts.yesNoKeywords.source, TextSource::Keywords);
    EXPECT_EQ(texts.pointLightCommand.source, TextSource::Keywords);
    EXPECT_EQ(texts.pointOptions.source, TextSource::CommandLibrary);
    EXPECT_EQ(texts.paletteTitle.source, TextSource::CommandLibrary);
}

TEST(TextTable, TheListOfCharactersThatNamesMayNotHoldStandsBehindThirteenBlanks) {
    EXPECT_STREQ(texts.nameHasInvalidCharacters.builtIn,
                 L"名称中的字符无效。\n以下字符在光源名称中无效:\n             <>/\\\"':;?*|,=`");
}

} // namespace
} // namespace quor::light
