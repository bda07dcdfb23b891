#include "console/options.h"

#include <gtest/gtest.h>

namespace quor::console {
namespace {

std::variant<Options, Notice> parse(std::vector<const char*> arguments) {
    return parseOptions(arguments, Language::English);
}

Options options(std::vector<const char*> arguments) {
    const auto parsed = parse(std::move(arguments));
    return std::holds_alternative<Options>(parsed) ? std::get<Options>(parsed)
                                                   : Options{"(refused)", {}, {}, {}, {}, {}};
}

Notice notice(std::vector<const char*> arguments) {
    const auto parsed = parse(std::move(arguments));
    return std::holds_alternative<Notice>(parsed) ? std::get<Notice>(parsed) : Notice{-1, L"(accepted)"};
}

TEST(OptionsTest, NothingGivenIsANewDrawingAndStandardInput) {
    const Options given = options({});
    EXPECT_EQ(given.drawing, "");
    EXPECT_TRUE(given.runs.empty());
    EXPECT_FALSE(given.recover || given.keepGoing || given.quiet);
}

TEST(OptionsTest, ScriptsAndCommandsKeepTheOrderOfTheCommandLine) {
    const Options given = options({"-c", "A", "-s", "one.scr", "plan.dxf", "--command=B", "--script", "two.scr"});
    ASSERT_EQ(given.runs.size(), 4u);
    EXPECT_EQ(given.runs[0].text, "A");
    EXPECT_EQ(given.runs[0].kind, Run::Kind::Command);
    EXPECT_EQ(given.runs[1].text, "one.scr");
    EXPECT_EQ(given.runs[1].kind, Run::Kind::Script);
    EXPECT_EQ(given.runs[2].text, "B");
    EXPECT_EQ(given.runs[3].text, "two.scr");
    EXPECT_EQ(given.drawing, "plan.dxf");
}

TEST(OptionsTest, CommandTextIsTakenCharacterByCharacter) {
    const Options given = options({"-c", "POINTLIGHT 0,0,0 ", "-c", "[a,b]", "-c", "-x", "-c", ""});
    ASSERT_EQ(given.runs.size(), 4u);
    EXPECT_EQ(given.runs[0].text, "POINTLIGHT 0,0,0 ");
    EXPECT_EQ(given.runs[1].text, "[a,b]");
    EXPECT_EQ(given.runs[2].text, "-x");
    EXPECT_EQ(given.runs[3].text, "");
}

TEST(OptionsTest, EverythingBehindTwoDashesIsTheDrawing) {
    EXPECT_EQ(options({"-k", "--", "-odd.dxf"}).drawing, "-odd.dxf");
}

TEST(OptionsTest, SettingIsCutAtItsFirstEqualSign) {
    const Options given = options({"--set", "LIGHTINGUNITS=1", "--set", "PROJECTNAME=a=b", "--set", "EMPTY="});
    ASSERT_EQ(given.settings.size(), 3u);
    EXPECT_EQ(given.settings[0].name, L"LIGHTINGUNITS");
    EXPECT_EQ(given.settings[0].value, L"1");
    EXPECT_EQ(given.settings[1].value, L"a=b");
    EXPECT_EQ(given.settings[2].value, L"");
}

TEST(OptionsTest, FlagsHaveTheirShortForms) {
    const Options given = options({"-k", "--quiet", "--recover", "-o", "out.dxf"});
    EXPECT_TRUE(given.keepGoing);
    EXPECT_TRUE(given.quiet);
    EXPECT_TRUE(given.recover);
    EXPECT_EQ(given.output, "out.dxf");
}

TEST(OptionsTest, HelpGoesBeforeEverythingElse) {
    const Notice help = notice({"--help", "--nonsense"});
    EXPECT_EQ(help.status, 0);
    EXPECT_NE(help.text.find(L"Exit status"), ZrString::npos);
}

TEST(OptionsTest, VersionIsOneLine) {
    const Notice version = notice({"--version"});
    EXPECT_EQ(version.status, 0);
    EXPECT_EQ(version.text.find(L"quorc "), 0u);
    EXPECT_EQ(version.text.find(L'\n'), version.text.size() - 1);
}

TEST(OptionsTest, LanguageOptionChoosesTheLanguageOfItsOwnHelp) {
    EXPECT_NE(notice({"--lang", "zh", "--help"}).text.find(L"退出状态"), ZrString::npos);
    EXPECT_NE(notice({"--help", "--lang=zh"}).text.find(L"退出状态"), ZrString::npos);
}

struct Wrong {
    std::vector<const char*> arguments;
    const wchar_t* said;
};

class WrongUsageTest : public testing::TestWithParam<Wrong> {};

TEST_P(WrongUsageTest, IsRefusedWithStatusTwoAndSaysWhatIsWrong) {
    const Notice refused = notice(GetParam().arguments);
    EXPECT_EQ(refused.status, 2);
    EXPECT_NE(refused.text.find(GetParam().said), ZrString::npos) << testing::PrintToString(refused.text);
    EXPECT_NE(refused.text.find(L"quorc --help"), ZrString::npos);
}

INSTANTIATE_TEST_SUITE_P(Each, WrongUsageTest,
                         testing::Values(Wrong{{"--nonsense"}, L"There is no option \"--nonsense\"."},
                                         Wrong{{"-x"}, L"There is no option \"-x\"."},
                                         Wrong{{"a.dxf", "b.dxf"}, L"the extra argument is \"b.dxf\"."},
                                         Wrong{{""}, L"The drawing file name is empty."},
                                         Wrong{{"-s"}, L"--script takes exactly one value."},
                                         Wrong{{"-o", "a", "-o", "b"}, L"--output takes exactly one value."},
                                         Wrong{{"-o", ""}, L"The value of option --output must not be empty."},
                                         Wrong{{"--quiet=1x"}, L"--quiet does not take a value."},
                                         Wrong{{"--lang", "de"}, L"--lang must be zh or en, not \"de\"."},
                                         Wrong{{"--set", "NAME"}, L"--set takes NAME=VALUE, not \"NAME\"."},
                                         Wrong{{"--set", "=1"}, L"--set takes NAME=VALUE, not \"=1\"."}));

TEST(OptionsTest, WrongUsageIsSaidInTheLanguageAskedFor) {
    EXPECT_NE(notice({"--lang", "zh", "--nonsense"}).text.find(L"没有选项“--nonsense”。"), ZrString::npos);
}

} // namespace
} // namespace quor::console
