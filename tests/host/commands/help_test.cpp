#include "host/sys/text_width.h"
#include "host/texts/help.h"
#include "tests/support/test_session.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <set>

namespace quor {

namespace {

using ::testing::ElementsAreArray;
using ::testing::IsEmpty;

std::set<ZrString> hostCommands(Session& session) {
    std::set<ZrString> names;
    for (const ed::Command* command : session.commands().all())
        if (command->isHost)
            names.insert(command->globalName);
    return names;
}

std::set<ZrString> pageNames() {
    std::set<ZrString> names;
    for (const texts::HelpPage& page : texts::helpPages())
        names.insert(page.command);
    return names;
}

TEST(HelpPages, EveryCommandOfTheHostHasOneAndNoOtherHas) {
    test::TestSession host;

    EXPECT_THAT(pageNames(), ElementsAreArray(hostCommands(host.session())));
}

TEST(HelpPages, NoCommandHasTwo) { EXPECT_EQ(pageNames().size(), texts::helpPages().size()); }

TEST(HelpPages, TellWhatTheCommandDoesInBothLanguages) {
    for (const texts::HelpPage& page : texts::helpPages()) {
        EXPECT_STRNE(page.summary.chinese, L"") << page.command;
        EXPECT_STRNE(page.summary.english, L"") << page.command;
        EXPECT_EQ(*page.questions.chinese == 0, *page.questions.english == 0) << page.command;
    }
}

TEST(HelpPages, ExamplesBeginWithTheCommand) {
    for (const texts::HelpPage& page : texts::helpPages()) {
        const std::wstring_view example = page.example;
        EXPECT_EQ(example.substr(0, example.find(L' ')), page.command);
    }
}

TEST(HelpPages, SummariesFitBesideTheNamesInTheOverview) {
    constexpr int kRoom = 80;
    for (const texts::HelpPage& page : texts::helpPages()) {
        EXPECT_LE(columnsOf(page.summary.chinese), kRoom) << page.command;
        EXPECT_LE(columnsOf(page.summary.english), kRoom) << page.command;
    }
}

TEST(Help, ShowsAPageByAliasWithoutRegardToCase) {
    test::TestSession host;

    host.run({L"HELP", L"li"});

    EXPECT_TRUE(host.front().shows(L"LIST\n"));
    EXPECT_TRUE(host.front().shows(L"LI, LS"));
}

TEST(Help, NamesTheCommandsOfModulesByGroup) {
    test::TestSession host;
    host.addCommand(L"GLOW", [] { return 5100; });

    host.run({L"HELP", L""});

    EXPECT_TRUE(host.front().shows(L"模块 TEST\n  GLOW\n"));
}

TEST(Help, SaysWhichModuleACommandBelongsTo) {
    test::TestSession host;
    host.addCommand(L"GLOW", [] { return 5100; });

    const ed::Verdict verdict = host.run({L"HELP", L"glow"});

    EXPECT_EQ(verdict.kind, ed::Verdict::Kind::Done);
    EXPECT_TRUE(host.front().shows(L"GLOW 是模块 TEST 的命令"));
}

TEST(Help, ShowsThePageThatAModuleGaveForItsCommand) {
    test::TestSession host;
    host.addCommand(L"GLOW", [] { return 5100; });
    host.session().commands().setHelp(L"TEST", L"glow", L"发光。\n例: GLOW");

    host.run({L"HELP", L"glow"});

    EXPECT_TRUE(host.front().shows(L"GLOW\n  发光。\n  例: GLOW\n"));
}

TEST(Help, OfNoCommandFails) {
    test::TestSession host;

    const ed::Verdict verdict = host.run({L"HELP", L"nothing"});

    EXPECT_EQ(verdict.kind, ed::Verdict::Kind::Failed);
    EXPECT_TRUE(host.front().shows(L"没有名为“nothing”的命令"));
}

} // namespace

} // namespace quor
