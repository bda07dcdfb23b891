// The command line of the desktop program.
#include "desktop/options.h"

#include <gtest/gtest.h>

namespace quor::desktop {
namespace {

using Paths = std::vector<std::filesystem::path>;

std::variant<Options, Notice> parse(const std::vector<std::string>& arguments) {
    return parseOptions(arguments, Language::English);
}

Options options(const std::vector<std::string>& arguments) {
    const auto parsed = parse(arguments);
    return std::holds_alternative<Options>(parsed) ? std::get<Options>(parsed) : Options{{"(refused)"}, {}, {}, {}};
}

Notice notice(const std::vector<std::string>& arguments) {
    const auto parsed = parse(arguments);
    return std::holds_alternative<Notice>(parsed) ? std::get<Notice>(parsed) : Notice{-1, L"(accepted)"};
}

TEST(OptionsTest, NothingGivenIsANewDrawingWithTheUsualModuleInTheUsualLanguage) {
    const Options given = options({});
    EXPECT_TRUE(given.drawings.empty());
    EXPECT_TRUE(given.scripts.empty());
    EXPECT_TRUE(given.modules.empty());
    EXPECT_TRUE(given.language.empty());
}

TEST(OptionsTest, SeveralDrawingsKeepTheirOrder) {
    EXPECT_EQ(options({"b.dxf", "a.dxf", "图 3.dxf"}).drawings, (Paths{"b.dxf", "a.dxf", "图 3.dxf"}));
}

TEST(OptionsTest, NamesOfDrawingsAreTakenCharacterByCharacter) {
    EXPECT_EQ(options({"[a,b].dxf", "-", "a=b;c"}).drawings, (Paths{"[a,b].dxf", "-", "a=b;c"}));
}

TEST(OptionsTest, EverythingBehindTwoDashesIsADrawing) {
    const Options given = options({"plan.dxf", "--", "-odd.dxf", "--lang", "--", "--version"});
    EXPECT_EQ(given.drawings, (Paths{"plan.dxf", "-odd.dxf", "--lang", "--", "--version"}));
    EXPECT_TRUE(given.language.empty());
}

TEST(OptionsTest, ScriptsKeepTheirOrderAmongDrawings) {
    const Options given = options({"-s", "one.scr", "plan.dxf", "--script=two.scr", "--script", "three.scr", "b.dxf"});
    EXPECT_EQ(given.scripts, (std::vector<std::string>{"one.scr", "two.scr", "three.scr"}));
    EXPECT_EQ(given.drawings, (Paths{"plan.dxf", "b.dxf"}));
}

TEST(OptionsTest, ModulesMayBeRepeated) {
    EXPECT_EQ(options({"--module", "light", "--module=灯"}).modules, (std::vector<ZrString>{L"light", L"灯"}));
}

TEST(OptionsTest, LanguageIsThatOfTheLanguageOptionElseTheUsualOne) {
    EXPECT_EQ(options({"--lang", "zh"}).language, L"zh");
    EXPECT_EQ(language(), Language::Chinese);
    EXPECT_EQ(options({}).language, L"");
    EXPECT_EQ(language(), Language::English);
}

TEST(OptionsTest, HelpGoesBeforeEverythingElse) {
    EXPECT_EQ(notice({"--help", "--nonsense"}).status, 0);
    EXPECT_NE(notice({"-h"}).text.find(L"Usage: quor [OPTIONS]... [DRAWING]..."), ZrString::npos);
}

TEST(OptionsTest, HelpNamesEveryOptionInBothLanguages) {
    for (const char* spoken : {"--lang=en", "--lang=zh"})
        for (const wchar_t* option : {L"-s, --script", L"--lang zh|en", L"--module", L"-h, --help", L"--version"})
            EXPECT_NE(notice({spoken, "--help"}).text.find(option), ZrString::npos) << spoken << " " << option;
}

TEST(OptionsTest, LanguageOptionChoosesTheLanguageOfItsOwnHelp) {
    EXPECT_EQ(notice({"--lang", "zh", "--help"}).text.find(L"用法: quor"), 0U);
    EXPECT_EQ(notice({"--help", "--lang=en"}).text.find(L"Usage: quor"), 0U);
}

TEST(OptionsTest, VersionIsOneLine) {
    const Notice version = notice({"--version"});
    EXPECT_EQ(version.status, 0);
    EXPECT_EQ(version.text, L"quor " QUOR_VERSION "\n");
}

struct Wrong {
    std::vector<std::string> arguments;
    const wchar_t* english;
    const wchar_t* chinese;
};

class WrongUsageTest : public testing::TestWithParam<Wrong> {};

TEST_P(WrongUsageTest, IsRefusedWithStatusTwoAndSaysWhatIsWrong) {
    const Notice refused = notice(GetParam().arguments);
    EXPECT_EQ(refused.status, 2);
    EXPECT_EQ(refused.text, ZrString(L"quor: ") + GetParam().english + L"\nSee quor --help.\n");
}

TEST_P(WrongUsageTest, IsSaidInChineseToo) {
    const auto refused = parseOptions(GetParam().arguments, Language::Chinese);
    EXPECT_EQ(std::get<Notice>(refused).text,
              ZrString(L"quor: ") + GetParam().chinese + L"\n使用 quor --help 查看用法。\n");
}

INSTANTIATE_TEST_SUITE_P(
    Each, WrongUsageTest,
    testing::Values(
        Wrong{{"--nonsense"}, L"There is no option \"--nonsense\".", L"没有选项“--nonsense”。"},
        Wrong{{"a.dxf", "-x", "b.dxf"}, L"There is no option \"-x\".", L"没有选项“-x”。"},
        Wrong{{""}, L"The drawing file name is empty.", L"图形的文件名为空。"},
        Wrong{{"a.dxf", ""}, L"The drawing file name is empty.", L"图形的文件名为空。"},
        Wrong{{"--script"}, L"Option --script takes exactly one value.", L"选项 --script 需要且只能有一个值。"},
        Wrong{{"--module"}, L"Option --module takes exactly one value.", L"选项 --module 需要且只能有一个值。"},
        Wrong{{"--lang"}, L"Option --lang takes exactly one value.", L"选项 --lang 需要且只能有一个值。"},
        Wrong{{"--script", ""}, L"The value of option --script must not be empty.", L"选项 --script 的值不能为空。"},
        Wrong{{"--module", ""}, L"The value of option --module must not be empty.", L"选项 --module 的值不能为空。"},
        Wrong{{"--lang", ""}, L"The value of option --lang must not be empty.", L"选项 --lang 的值不能为空。"},
        Wrong{{"--lang", "de"}, L"--lang must be zh or en, not \"de\".", L"--lang 只能是 zh 或 en，不能是“de”。"},
        Wrong{{"--version=1"}, L"Option --version does not take a value.", L"选项 --version 不带值。"},
        Wrong{{"--help=x"}, L"Option --help does not take a value.", L"选项 --help 不带值。"}));

} // namespace
} // namespace quor::desktop
