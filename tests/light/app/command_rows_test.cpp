// The table of commands, row by row, and what becomes of each row when the module is loaded.
#include "light/app/command_rows.h"

#include "host/ed/command_table.h"
#include "host/rx/module_loader.h"
#include "host/sys/utf8.h"
#include "sdk/db/database.h"
#include "sdk/db/light.h"
#include "sdk/rx/command.h"
#include "tests/support/test_session.h"
#include "tests/support/translated_session.h"

#include <algorithm>
#include <cwctype>
#include <gtest/gtest.h>
#include <memory>
#include <span>

namespace quor {
namespace {

constexpr std::size_t commandCount = 10;

// What a command is known by.
struct Known {
    const char* test;
    std::size_t place; // among the rows
    const wchar_t* globalName;
    unsigned localName; // number of the text
    const wchar_t* typeWord;
    unsigned help;
    const wchar_t* example; // how the last part of its page begins
};

// Those that make lights come first.
constexpr std::size_t lightCommandCount = 8;
constexpr Known commands[] = {
    {"PointLight", 0, L"POINTLIGHT", 63301, L"POINTLIGHTCMD", 64001, L"\n例: POINTLIGHT "},
    {"SpotLight", 1, L"SPOTLIGHT", 63305, L"SPOTLIGHTCMD", 64002, L"\n例: SPOTLIGHT "},
    {"TargetPoint", 2, L"TargetPoint", 63324, L"TargetPointCmd", 64003, L"\n例: TARGETPOINT "},
    {"WebLight", 3, L"WEBLIGHT", 63302, L"WEBLIGHTCMD", 64004, L"\n例: WEBLIGHT "},
    {"DistantLight", 4, L"distantlight", 63295, L"distantlightCmd", 64007, L"\n例: DISTANTLIGHT "},
    {"FreeSpot", 5, L"FREESPOT", 63303, L"FREESPOTCMD", 64005, L"\n例: FREESPOT "},
    {"FreeWeb", 6, L"FREEWEB", 63304, L"FREEWEBCMD", 64006, L"\n例: FREEWEB "},
    {"Light", 7, L"Light", 63325, L"LightCmd", 64008, L"\n例: LIGHT "},
    {"LightList", 8, L"LightList", 63318, L"LightListCmd", 64009, L"\n例: LIGHTLIST"},
    {"LightListClose", 9, L"LightListClose", 63319, L"LightListCloseCmd", 64010, L"\n例: LIGHTLISTCLOSE"},
};

TEST(CommandRows, ThereIsOneForEachCommand) {
    EXPECT_EQ(light::commandRows().size(), commandCount);
    EXPECT_EQ(std::size(commands), commandCount);
}

class EachCommand : public testing::TestWithParam<Known> {
protected:
    static const light::CommandRow& row() { return light::commandRows()[GetParam().place]; }
    static ed::CommandWord word() { return {.name = GetParam().globalName}; }
    // Null when the module does not give it.
    const ed::Command* registered() {
        EXPECT_TRUE(session_.loadLight(QUOR_BUILD_DIR));
        return session_.session().commands().find(word());
    }
    ZrString help() { return registered()->help(); }
    static std::size_t lightCount() {
        const ZrDbObjectPointer<ZrDbBlockTableRecord> space(zrdbWorkingDatabase()->currentSpaceId(), ZrDb::kForRead);
        return space->entityCount(ZrDbLight::desc());
    }

    test::TestSession session_;
};

TEST_P(EachCommand, HasItsNamesInItsRow) {
    EXPECT_STREQ(row().globalName, GetParam().globalName);
    EXPECT_EQ(row().localName.number, GetParam().localName);
    EXPECT_EQ(row().localName.source, light::TextSource::Keywords);
    EXPECT_STREQ(row().localName.builtIn, GetParam().globalName);
    EXPECT_EQ(row().help.number, GetParam().help);
}

TEST_P(EachCommand, IsMadeByTheFactoryOfItsRow) {
    const std::unique_ptr<RxCommand> command(row().make());

    ASSERT_NE(command, nullptr);
    EXPECT_STREQ(command->typeName(), GetParam().typeWord);
}

TEST_P(EachCommand, StandsInTheGroupWithoutFlags) {
    const ed::Command* command = registered();

    ASSERT_NE(command, nullptr);
    EXPECT_EQ(command->group, L"QUOR_COMMAND_GROUP");
    EXPECT_EQ(command->globalName, GetParam().globalName);
    EXPECT_EQ(command->flags, 0);
    EXPECT_FALSE(command->isHost);
}

TEST_P(EachCommand, IsTakenAwayWithTheModule) {
    ASSERT_NE(registered(), nullptr);

    EXPECT_EQ(session_.session().modules().unloadModule(L"light"), Quor::eOk);

    EXPECT_EQ(session_.session().commands().find(word()), nullptr);
}

class EachLightCommand : public EachCommand {};

TEST_P(EachLightCommand, RunsFromItsGlobalNameWhateverItsCase) {
    zwutads::setVar(L"LIGHTINGUNITS", 2);
    zwutads::setVar(L"TILEMODE", 0);
    const ed::Command* command = registered();
    ASSERT_NE(command, nullptr);
    const std::wstring_view refused = light::texts.modelSpaceOnly.builtIn;
    ZrString lowerCase = command->globalName;
    std::transform(lowerCase.begin(), lowerCase.end(), lowerCase.begin(), towlower);

    session_.run({L"_" + lowerCase});

    EXPECT_TRUE(session_.front().shows(refused.substr(1)));
}

// Enter where a light is thrown away would keep it: every line of the page's example counts.
TEST_P(EachLightCommand, TheExampleOfItsPageMakesOneLight) {
    const ZrString page = help();
    const std::size_t begin = page.rfind(GetParam().example);
    ASSERT_NE(begin, ZrString::npos);

    session_.runScript(toUtf8(page.substr(page.find(L' ', begin) + 1) + L"\n"));

    EXPECT_EQ(lightCount(), 1U);
    EXPECT_FALSE(session_.front().shows(L"无效"));
    EXPECT_FALSE(session_.front().shows(L"无法"));
    EXPECT_FALSE(session_.front().shows(L"取消"));
}

// The overview shows that line.
TEST_P(EachCommand, TheFirstLineOfItsPageIsASentence) {
    const ZrString page = help();

    EXPECT_EQ(page.find(L"。\n"), page.find(L'\n') - 1);
}

TEST_P(EachCommand, HelpShowsItsPageUnderBothNames) {
    ASSERT_NE(registered(), nullptr);

    session_.run({L"HELP", GetParam().globalName});

    const ZrString heading = ZrString(GetParam().globalName) + L" (" + registered()->localName + L")\n  ";
    const std::wstring_view page = row().help.builtIn;
    EXPECT_TRUE(session_.front().shows(heading + ZrString(page.substr(0, page.find(L'\n')))));
}

// The last part of it, so that it can be typed.
TEST_P(EachCommand, ItsPageEndsWithAnExample) {
    const ZrString page = help();

    EXPECT_NE(page.rfind(GetParam().example), ZrString::npos);
}

INSTANTIATE_TEST_SUITE_P(All, EachCommand, testing::ValuesIn(commands),
                         [](const auto& info) { return std::string(info.param.test); });
INSTANTIATE_TEST_SUITE_P(All, EachLightCommand, testing::ValuesIn(std::span(commands).first(lightCommandCount)),
                         [](const auto& info) { return std::string(info.param.test); });

class EachTranslatedCommand : public test::TranslatedModuleTest, public testing::WithParamInterface<Known> {
protected:
    const ed::Command* find(const ed::CommandWord& word) { return session_->session().commands().find(word); }
};

TEST_P(EachTranslatedCommand, IsFoundByItsLocalNameAndByItsGlobalName) {
    start("quorkwlres.txt", std::to_string(GetParam().localName) + " = \"灯\"\n");

    const ed::Command* command = find({.name = L"灯"});

    ASSERT_NE(command, nullptr);
    EXPECT_EQ(command->globalName, GetParam().globalName);
    EXPECT_EQ(find({.name = GetParam().globalName}), command);
    EXPECT_EQ(find({.name = GetParam().globalName, .globalOnly = true}), command);
    EXPECT_EQ(find({.name = L"灯", .globalOnly = true}), nullptr);
}

TEST_P(EachTranslatedCommand, KeepsItsGlobalNameWhereThereIsNoOther) {
    start("quorkwlres.txt", "63000 = \"灯\"\n");

    const ed::Command* command = find({.name = GetParam().globalName});

    ASSERT_NE(command, nullptr);
    EXPECT_EQ(command->localName, GetParam().globalName);
}

INSTANTIATE_TEST_SUITE_P(All, EachTranslatedCommand, testing::ValuesIn(commands),
                         [](const auto& info) { return std::string(info.param.test); });

} // namespace
} // namespace quor
