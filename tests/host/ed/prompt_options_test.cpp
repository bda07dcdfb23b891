#include "host/ed/prompt_options.h"

#include <gtest/gtest.h>

namespace quor::ed {
namespace {

using Words = std::vector<ZrString>;
using Parts = std::vector<PromptPart>;

PromptPart plain(const ZrString& text) { return {PromptPart::Kind::Plain, text, {}}; }
PromptPart option(const ZrString& text, const ZrString& answer) { return {PromptPart::Kind::Option, text, answer}; }
PromptPart fallback(const ZrString& text) { return {PromptPart::Kind::Default, text, {}}; }

Words answersOf(std::wstring_view prompt, const Words& keywords) {
    Words answers;
    for (const PromptPart& part : promptParts(prompt, keywords))
        if (part.kind == PromptPart::Kind::Option)
            answers.push_back(part.answer);
    return answers;
}

TEST(PromptOptionsTest, LettersBehindAWordAreWhatIsTyped) {
    EXPECT_EQ(promptParts(L"输入选项 [名称(N)/退出(X)] <退出>: ", Words{L"Name", L"eXit"}),
              (Parts{plain(L"输入选项 ["), option(L"名称(N)", L"N"), plain(L"/"), option(L"退出(X)", L"X"),
                     plain(L"] <"), fallback(L"退出"), plain(L">: ")}));
}

TEST(PromptOptionsTest, WordsWithoutLettersAreTypedThemselves) {
    EXPECT_EQ(promptParts(L"Option [Name/eXit] <eXit>: ", Words{L"Name", L"eXit"}),
              (Parts{plain(L"Option ["), option(L"Name", L"Name"), plain(L"/"), option(L"eXit", L"eXit"), plain(L"] <"),
                     fallback(L"eXit"), plain(L">: ")}));
}

TEST(PromptOptionsTest, OptionOfSeveralWordsIsTypedWithoutItsBlanks) {
    EXPECT_EQ(answersOf(L"[Intensity factor/eXit]", {L"Intensityfactor", L"eXit"}),
              (Words{L"Intensityfactor", L"eXit"}));
}

TEST(PromptOptionsTest, OptionOfSeveralWordsIsTypedByItsCapitalsWhereTheKeywordHasAnotherSpelling) {
    EXPECT_EQ(answersOf(L"[Intensity factor/Name]", {L"Intensity", L"Name"}), (Words{L"I", L"Name"}));
}

TEST(PromptOptionsTest, OptionThatIsSpelledLikeNoKeywordIsTheKeywordOfItsPlace) {
    EXPECT_EQ(answersOf(L"[开/关]", {L"oN", L"oFf"}), (Words{L"oN", L"oFf"}));
}

TEST(PromptOptionsTest, OptionThatGoesWithNoKeywordIsPlainText) {
    EXPECT_EQ(promptParts(L"[q/Name]: ", Words{L"Name", L"eXit", L"Status"}),
              (Parts{plain(L"[q/"), option(L"Name", L"Name"), plain(L"]: ")}));
}

TEST(PromptOptionsTest, WithoutKeywordsAnOptionIsWhatItSays) {
    EXPECT_EQ(answersOf(L"[?/开尔文(K)/64]", {}), (Words{L"?", L"K", L"64"}));
}

TEST(PromptOptionsTest, DefaultMayStandInFrontOfTheOptions) {
    EXPECT_EQ(promptParts(L"来向 <0,0,0> 或 [矢量(V)]: ", Words{L"Vector"}),
              (Parts{plain(L"来向 <"), fallback(L"0,0,0"), plain(L"> 或 ["), option(L"矢量(V)", L"V"), plain(L"]: ")}));
}

TEST(PromptOptionsTest, BracketsInFrontOfTheLastOnesAreText) {
    EXPECT_EQ(answersOf(L"文件 [旧]/a.dxf 已存在。是否替换? [是(Y)/否(N)] <否>: ", {L"Yes", L"No"}),
              (Words{L"Y", L"N"}));
}

TEST(PromptOptionsTest, PromptWithoutBracketsIsOnePart) {
    EXPECT_EQ(promptParts(L"命令: ", {}), (Parts{plain(L"命令: ")}));
}

TEST(PromptOptionsTest, EmptyBracketsHoldNothing) {
    EXPECT_EQ(promptParts(L"[] <>: ", {}), (Parts{plain(L"[] <>: ")}));
}

TEST(PromptOptionsTest, UnclosedBracketsHoldNothing) {
    EXPECT_EQ(promptParts(L"[是(Y)/ <", {}), (Parts{plain(L"[是(Y)/ <")}));
}

} // namespace
} // namespace quor::ed
