#include "host/ed/input_stack.h"
#include "host/ed/script_run.h"
#include "host/ed/script_source.h"
#include "host/sys/system_variables.h"
#include "host/sys/text_width.h"
#include "host/sys/utf8.h"
#include "host/texts/help.h"
#include "tests/support/test_session.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <set>

namespace quor {

namespace {

using ::testing::ElementsAreArray;

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

// An open drawing with a line and a layout, and beside it the files that the examples name.
class HelpExample : public testing::Test {
protected:
    HelpExample() : before_(std::filesystem::current_path()) {
        std::filesystem::current_path(host_.folder());
        std::ofstream("lights.scr") << "LINE 1,1 2,2 \n";
        host_.runScript("LINE 0,0 1,1 \nLINE 2,2 3,3 \nSAVEAS broken.dxf\nSAVEAS office.dxf\nLINE 3,3 4,4 \nU\n");
    }
    ~HelpExample() override { std::filesystem::current_path(before_); }

    std::filesystem::path before_;
    test::TestSession host_;
};

TEST_F(HelpExample, HoldsEveryAnswerThatItsCommandAsksFor) {
    for (const texts::HelpPage& page : texts::helpPages()) {
        host_.session().input().push(std::make_unique<ed::ScriptSource>(toUtf8(page.example) + "\n"));
        const auto failure = ed::runSources(host_.session(), false).first;
        EXPECT_FALSE(failure && failure->verdict.kind == ed::Verdict::Kind::EndOfInput) << page.example;
        EXPECT_EQ(failure && failure->verdict.kind == ed::Verdict::Kind::Unknown, false) << page.example;
    }
}

TEST(Help, ShowsTheBlankThatEndsAnExample) {
    test::TestSession host;

    host.run({L"HELP", L"LIST"});

    EXPECT_TRUE(host.front().shows(L"例: \"LIST ALL \"(末尾的空格就是 Enter)"));
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

TEST(Help, NamesTheCommandsOfModules) {
    test::TestSession host;
    host.addCommand(L"GLOW", [] { return 5100; });

    host.run({L"HELP", L""});

    EXPECT_TRUE(host.front().shows(L"模块命令\n  GLOW\n"));
}

TEST(Help, ShowsTheFirstLineOfThePageBesideTheNameOfAModulesCommand) {
    test::TestSession host;
    host.addCommand(L"GLOW", [] { return 5100; });
    host.addCommand(L"GLOWING", [] { return 5100; });
    host.session().commands().setHelp(L"TEST", L"glow", [] { return ZrString(L"发光。\n例: GLOW"); });
    host.session().commands().setHelp(L"TEST", L"glowing", [] { return ZrString(L"一直发光。"); });

    host.run({L"HELP", L""});

    EXPECT_TRUE(host.front().shows(L"模块命令\n  GLOW     发光。\n  GLOWING  一直发光。\n"));
}

TEST(Help, SaysThatACommandWithoutAPageComesFromAModule) {
    test::TestSession host;
    host.addCommand(L"GLOW", [] { return 5100; });

    const ed::Verdict verdict = host.run({L"HELP", L"glow"});

    EXPECT_EQ(verdict.kind, ed::Verdict::Kind::Done);
    EXPECT_TRUE(host.front().shows(L"GLOW 是已加载模块的命令"));
}

TEST(Help, ShowsThePageThatAModuleGaveForItsCommand) {
    test::TestSession host;
    host.addCommand(L"GLOW", [] { return 5100; });
    host.session().commands().setHelp(L"TEST", L"glow", [] { return ZrString(L"发光。\n例: GLOW"); });

    host.run({L"HELP", L"glow"});

    EXPECT_TRUE(host.front().shows(L"GLOW\n  发光。\n  例: GLOW\n"));
}

TEST(Help, TellsTheLocalNameOfAModulesCommand) {
    test::TestSession host;
    host.session().commands().add(
        {.group = L"TEST", .globalName = L"GLOW", .localName = L"发光", .run = [] { return 5100; }, .isHost = false});
    host.session().commands().setHelp(L"TEST", L"glow", [] { return ZrString(L"发光。\n例: GLOW"); });

    host.run({L"HELP", L"发光"});

    EXPECT_TRUE(host.front().shows(L"GLOW (发光)\n  发光。\n"));
}

TEST(Help, OfAVariableTellsWhatItsValuesMean) {
    test::TestSession host;

    host.run({L"HELP", L"colortheme"});

    EXPECT_TRUE(host.front().shows(L"输入其名称可查看或更改它的值。\n  0 为深色，1 为浅色"));
}

TEST(Help, OfAVariableThatIsReadOnlySaysSo) {
    test::TestSession host;

    host.run({L"HELP", L"QUORVERSION"});

    EXPECT_TRUE(host.front().shows(L"是只读的系统变量。输入其名称可查看它的值。"));
}

TEST(Help, OfAModulesVariableIsTheLineAboutItInAPageOfTheModule) {
    test::TestSession host;
    host.addCommand(L"GLOW", [] { return 5100; });
    host.session().commands().setHelp(L"TEST", L"glow",
                                      [] { return ZrString(L"发光。\nGLOWSTATE: 发光时为 1。\n例: GLOW"); });
    host.session().variables().registerVariable(L"GlowState", [] { return short{1}; });

    host.run({L"HELP", L"glowstate"});

    EXPECT_TRUE(host.front().shows(L"是只读的系统变量。输入其名称可查看它的值。\n  发光时为 1。\n"));
    EXPECT_FALSE(host.front().shows(L"例: GLOW"));
}

TEST(Help, OfNoCommandFails) {
    test::TestSession host;

    const ed::Verdict verdict = host.run({L"HELP", L"nothing"});

    EXPECT_EQ(verdict.kind, ed::Verdict::Kind::Failed);
    EXPECT_TRUE(host.front().shows(L"没有名为“nothing”的命令"));
}

} // namespace

} // namespace quor
