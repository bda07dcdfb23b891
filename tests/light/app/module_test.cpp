#include "host/ed/command_table.h"
#include "host/rx/module_loader.h"
#include "host/sys/resource_library.h"
#include "light/app/command_rows.h"
#include "sdk/rx/application.h"
#include "tests/support/test_session.h"

#include <fstream>
#include <gtest/gtest.h>
#include <optional>

extern "C" Zr::AppRetCode zrrxEntryPoint(unsigned message, void* applicationId);
extern "C" unsigned zrrxGetApiVersion();

namespace quor {
namespace {

using test::TestSession;

const ed::Command* findCommand(TestSession& session, const ZrString& name) {
    return session.session().commands().find(ed::CommandWord{.name = name});
}

TEST(Module, LoadingItRegistersItsCommandsAndUnloadingTakesThemAway) {
    TestSession session;
    EXPECT_EQ(findCommand(session, L"POINTLIGHT"), nullptr);

    ASSERT_TRUE(session.loadLight(QUOR_BUILD_DIR));
    EXPECT_NE(findCommand(session, L"POINTLIGHT"), nullptr);

    EXPECT_EQ(session.session().modules().unloadModule(L"light"), Quor::eOk);
    EXPECT_EQ(findCommand(session, L"POINTLIGHT"), nullptr);
}

TEST(Module, ItCanBeLoadedAgain) {
    TestSession session;
    ASSERT_TRUE(session.loadLight(QUOR_BUILD_DIR));
    ASSERT_EQ(session.session().modules().unloadModule(L"light"), Quor::eOk);

    EXPECT_TRUE(session.loadLight(QUOR_BUILD_DIR));

    EXPECT_NE(findCommand(session, L"POINTLIGHT"), nullptr);
}

TEST(Module, ItWorksWithSeveralOpenDrawings) {
    TestSession session;
    ASSERT_TRUE(session.loadLight(QUOR_BUILD_DIR));

    EXPECT_TRUE(session.session().modules().isMdiAware(L"light"));
}

TEST(Module, ItReportsTheVersionOfTheHostsInterface) { EXPECT_EQ(zrrxGetApiVersion(), Zr::zrrxGetApiVersion()); }

TEST(Module, MessagesFromSixteenOnAnswerZeroAndChangeNothing) {
    TestSession session;
    const std::size_t before = session.session().commands().all().size();

    EXPECT_EQ(zrrxEntryPoint(16, nullptr), 0);
    EXPECT_EQ(zrrxEntryPoint(0xFFFFFFFFU, nullptr), 0);

    EXPECT_EQ(session.session().commands().all().size(), before);
}

TEST(Module, MessagesWithoutAStepOfItsOwnAnswerZero) {
    TestSession session;

    for (const unsigned message : {Zr::kNullMsg, Zr::kLoadDwgMsg, Zr::kUnloadDwgMsg, Zr::kSaveMsg, Zr::kSuspendMsg})
        EXPECT_EQ(zrrxEntryPoint(message, nullptr), 0) << message;
}

TEST(Module, CommandsStandInTheirGroupWithoutFlags) {
    TestSession session;
    ASSERT_TRUE(session.loadLight(QUOR_BUILD_DIR));

    const ed::Command* command = findCommand(session, L"pointlight");

    ASSERT_NE(command, nullptr);
    EXPECT_EQ(command->group, L"QUOR_COMMAND_GROUP");
    EXPECT_EQ(command->globalName, L"POINTLIGHT");
    EXPECT_EQ(command->flags, 0);
    EXPECT_FALSE(command->isHost);
}

TEST(Module, TheLocalNamesOfItsCommandsAreThoseOfTheLanguage) {
    TestSession session;
    ASSERT_TRUE(session.loadLight(QUOR_BUILD_DIR));

    const ed::Command* command = findCommand(session, L"点光源");

    ASSERT_NE(command, nullptr);
    EXPECT_EQ(command->globalName, L"POINTLIGHT");
    EXPECT_EQ(command, findCommand(session, L"POINTLIGHT"));
}

// A session with a language of its own, whose resource modules are given.
class ModuleInALanguage : public testing::Test {
protected:
    void start(const char* keywordModule, const char* commandLibrary = "") {
        const std::filesystem::path language = folder_.path() / "lang" / "en";
        std::filesystem::create_directories(language);
        std::ofstream(language / "quorkwlres.txt") << keywordModule;
        std::ofstream(language / "quorcmdres.txt") << commandLibrary;
        startWithFolder();
    }
    // The folder of the language as it is: without `start`, there is none.
    void startWithFolder() {
        session_.emplace(front_, SessionOptions{.settingsFile = folder_.path() / "settings.ini",
                                                .resourceFolder = folder_.path(),
                                                .moduleFolders = {QUOR_BUILD_DIR "/lib/quor/modules"},
                                                .language = L"en"});
        ASSERT_EQ(session_->modules().loadModule(L"light.so"), Quor::eOk);
    }
    ZrString helpOfPointLight() { return session_->commands().find(ed::CommandWord{.name = L"POINTLIGHT"})->help(); }
    std::size_t problemCount() { return session_->resources().problems().size(); }
    ZrString localNameOfPointLight() {
        const ed::Command* command = session_->commands().find(ed::CommandWord{.name = L"POINTLIGHT"});
        return command != nullptr ? command->localName : ZrString();
    }

private:
    test::TemporaryFolder folder_;
    test::ScriptedFrontEnd front_;
    std::optional<Session> session_;
};

TEST_F(ModuleInALanguage, ItsKeywordModuleGivesTheLocalName) {
    start("63301 = \"PLAMP\"\n");

    EXPECT_EQ(localNameOfPointLight(), L"PLAMP");
}

TEST_F(ModuleInALanguage, WithoutAKeywordModuleLocalNamesAreTheGlobalOnes) {
    startWithFolder();

    EXPECT_EQ(localNameOfPointLight(), L"POINTLIGHT");
}

TEST_F(ModuleInALanguage, ANumberThatIsMissingThereIsTheBuiltInName) {
    start("63305 = \"SLAMP\"\n");

    EXPECT_EQ(localNameOfPointLight(), L"POINTLIGHT");
}

TEST_F(ModuleInALanguage, TheHelpPageIsReadFromTheCommandLibrary) {
    start("", "64001 = \"Places a lamp.\"\n");

    EXPECT_EQ(helpOfPointLight(), L"Places a lamp.");
}

TEST_F(ModuleInALanguage, TheCommandLibraryIsReadForTheTitleOfThePalette) {
    start("", "this is no text\n");
    EXPECT_EQ(problemCount(), 1U);

    helpOfPointLight();

    EXPECT_EQ(problemCount(), 1U);
}

TEST_F(ModuleInALanguage, ATextOfTheCommandLibraryWithOtherPlaceholdersIsLeftOut) {
    start("", "64001 = \"Places %d lamps.\"\n");

    EXPECT_EQ(helpOfPointLight(), light::texts.pointLightHelp.builtIn);

    EXPECT_EQ(problemCount(), 1U);
}

TEST_F(ModuleInALanguage, ATextOfTheKeywordModuleWithOtherPlaceholdersIsLeftOutAtOnce) {
    start("63301 = \"P%dLIGHT\"\n");

    EXPECT_EQ(problemCount(), 1U);
    EXPECT_EQ(localNameOfPointLight(), L"POINTLIGHT");
}

} // namespace
} // namespace quor
