#include "host/ed/completion.h"

#include <gtest/gtest.h>

namespace quor::ed {
namespace {

using Words = std::vector<ZrString>;

CompletionSource atCommandPrompt() {
    CompletionSource source;
    source.atCommandPrompt = true;
    source.commands = {
        {L"POINTLIGHT", L"点光源"}, {L"SPOTLIGHT", L"SPOTLIGHT"}, {L"SAVE", L"SAVE"}, {L"SAVEAS", L"SAVEAS"}};
    return source;
}

CompletionSource atQuestion(const Words& keywords) {
    CompletionSource source;
    source.keywords = keywords;
    source.commands = {{L"HELP", L"HELP"}};
    return source;
}

TEST(CompletionTest, CommandsAreFoundByTheirBeginningWithoutRegardToCase) {
    EXPECT_EQ(complete(L"sa", atCommandPrompt()).candidates, (Words{L"SAVE", L"SAVEAS"}));
    EXPECT_EQ(complete(L"sa", atCommandPrompt()).common, L"SAVE");
}

TEST(CompletionTest, LocalNameIsOfferedWhereItFitsElseTheGlobalOne) {
    EXPECT_EQ(complete(L"点", atCommandPrompt()).candidates, (Words{L"点光源"}));
    EXPECT_EQ(complete(L"poi", atCommandPrompt()).candidates, (Words{L"POINTLIGHT"}));
}

TEST(CompletionTest, UnderscoreAsksForGlobalNamesAndStays) {
    EXPECT_EQ(complete(L"_p", atCommandPrompt()).candidates, (Words{L"_POINTLIGHT"}));
    EXPECT_EQ(complete(L"'_.p", atCommandPrompt()).candidates, (Words{L"'_.POINTLIGHT"}));
    EXPECT_TRUE(complete(L"_点", atCommandPrompt()).candidates.empty());
}

TEST(CompletionTest, NothingTypedOffersAll) { EXPECT_EQ(complete(L"", atCommandPrompt()).candidates.size(), 4u); }

TEST(CompletionTest, AnswersBehindACommandAreNoCommands) {
    EXPECT_TRUE(complete(L"POINTLIGHT sa", atCommandPrompt()).candidates.empty());
}

TEST(CompletionTest, KeywordsAreSortedAndShareTheirBeginning) {
    const Words keywords{L"intensity", L"Name", L"intensityFactor"};
    const Completion completion = complete(L"IN", atQuestion(keywords));
    EXPECT_EQ(completion.candidates, (Words{L"intensity", L"intensityFactor"}));
    EXPECT_EQ(completion.common, L"intensity");
    EXPECT_EQ(completion.from, 0u);
}

TEST(CompletionTest, WordBehindABlankIsCompletedWhereBlanksEndAnswers) {
    const Words keywords{L"Name"};
    const Completion completion = complete(L"5 na", atQuestion(keywords));
    EXPECT_EQ(completion.from, 2u);
    EXPECT_EQ(completion.candidates, (Words{L"Name"}));
}

TEST(CompletionTest, WholeLineIsTheWordWhereBlanksBelongToTheAnswer) {
    const Words keywords{L"Name"};
    CompletionSource source = atQuestion(keywords);
    source.acceptsBlanks = true;
    EXPECT_TRUE(complete(L"5 na", source).candidates.empty());
}

TEST(CompletionTest, TransparentCommandIsOfferedAtAQuestion) {
    EXPECT_EQ(complete(L"'he", atQuestion({})).candidates, (Words{L"'HELP"}));
}

TEST(CompletionTest, PathsAreOfferedOnlyWhereTheTextLooksLikeOne) {
    CompletionSource source = atQuestion({});
    source.acceptsText = true;
    source.files = [](const ZrString& folder) {
        return folder == L"plans/" ? Words{L"office.dxf", L"old/", L".hidden", L"zoo.dxf"} : Words{L"wrong folder"};
    };
    EXPECT_EQ(complete(L"plans/o", source).candidates, (Words{L"plans/office.dxf", L"plans/old/"}));
    EXPECT_EQ(complete(L"plans/.", source).candidates, (Words{L"plans/.hidden"}));
    EXPECT_TRUE(complete(L"o", source).candidates.empty());
}

TEST(CompletionTest, WhatFitsNothingHasNoCandidates) {
    const Completion completion = complete(L"xyz", atCommandPrompt());
    EXPECT_TRUE(completion.candidates.empty());
    EXPECT_EQ(completion.common, L"");
}

} // namespace
} // namespace quor::ed
