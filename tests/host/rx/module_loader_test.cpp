#include "host/rx/module_loader.h"

#include "host/sys/system_variables.h"
#include "host/sys/utf8.h"
#include "sdk/sys/ads.h"
#include "tests/support/test_session.h"

#include <gtest/gtest.h>

#include <fstream>

using quor::test::TestSession;

namespace {

ZrString moduleFile(const std::string& name) { return quor::fromUtf8(QUOR_BUILD_DIR "/lib/quor/test-modules/" + name); }

bool contains(const ZrString& text, std::wstring_view part) { return text.find(part) != ZrString::npos; }

class Loader : public testing::Test {
protected:
    quor::rx::ModuleLoader& modules() { return session_.session().modules(); }
    short heard() { return session_.session().variables().number(L"GOODHEARD", -1); }

    TestSession session_;
};

} // namespace

TEST_F(Loader, MissingFileIsRefusedWithItsNameAndTheFolders) {
    EXPECT_EQ(modules().loadModule(L"absent"), Quor::eFileNotFound);
    EXPECT_TRUE(contains(modules().lastError(), L"absent"));
    EXPECT_TRUE(contains(modules().lastError(), L"modules"));
    EXPECT_EQ(modules().loadModule(L""), Quor::eFileNotFound);
}

TEST_F(Loader, FileThatIsNoLibraryIsRefused) {
    const std::filesystem::path file = session_.folder() / "text.so";
    std::ofstream(file) << "no library";
    EXPECT_EQ(modules().loadModule(quor::fromUtf8(file.string())), Quor::eInvalidInput);
    EXPECT_TRUE(contains(modules().lastError(), L"text.so"));
}

TEST_F(Loader, ModuleWithoutEntryPointIsRefusedByName) {
    EXPECT_EQ(modules().loadModule(moduleFile("no_entry.so")), Quor::eInvalidInput);
    EXPECT_TRUE(contains(modules().lastError(), L"zrrxEntryPoint"));
}

TEST_F(Loader, ModuleWithoutVersionIsRefusedByName) {
    EXPECT_EQ(modules().loadModule(moduleFile("no_version.so")), Quor::eInvalidInput);
    EXPECT_TRUE(contains(modules().lastError(), L"zrrxGetApiVersion"));
}

TEST_F(Loader, ModuleForAnotherVersionIsRefusedWithBothVersions) {
    EXPECT_EQ(modules().loadModule(moduleFile("wrong_version.so")), Quor::eInvalidInput);
    EXPECT_TRUE(contains(modules().lastError(), std::to_wstring(Zr::zrrxGetApiVersion() + 41)));
    EXPECT_TRUE(contains(modules().lastError(), std::to_wstring(Zr::zrrxGetApiVersion())));
}

TEST_F(Loader, ModuleWhoseInitialisationFailsIsNotLoaded) {
    EXPECT_EQ(modules().loadModule(moduleFile("failing_init.so")), Quor::eNotApplicable);
    EXPECT_TRUE(modules().loaded().empty());
    EXPECT_TRUE(contains(modules().lastError(), L"failing_init"));
    EXPECT_FALSE(session_.session().variables().has(L"FAILINGHEARD")); // told to take back what it had begun
}

TEST_F(Loader, ExceptionInInitialisationCountsAsFailure) {
    EXPECT_EQ(modules().loadModule(moduleFile("throwing_init.so")), Quor::eNotApplicable);
    EXPECT_TRUE(modules().loaded().empty());
    EXPECT_FALSE(session_.session().variables().has(L"THROWINGHEARD"));
}

TEST_F(Loader, ModuleHearsOfItsStartAndOfTheOpenDrawing) {
    ASSERT_EQ(modules().loadModule(moduleFile("good.so")), Quor::eOk);
    EXPECT_EQ(heard(), 13);
}

TEST_F(Loader, ModuleHearsOfDrawingsThatComeAndGo) {
    ASSERT_EQ(modules().loadModule(moduleFile("good")), Quor::eOk);
    quor::Document& second = session_.session().documents().newDocument();
    session_.session().documents().close(second);
    EXPECT_EQ(heard(), 1334);
}

TEST_F(Loader, SecondLoadIsNone) {
    ASSERT_EQ(modules().loadModule(moduleFile("good.so")), Quor::eOk);
    EXPECT_EQ(modules().loadModule(moduleFile("good")), Quor::eOk);
    EXPECT_EQ(modules().loaded().size(), 1U);
    EXPECT_EQ(heard(), 13);
}

TEST_F(Loader, UnlockedModuleIsUnloadedByItsBareName) {
    ASSERT_EQ(modules().loadModule(moduleFile("good.so")), Quor::eOk);
    EXPECT_EQ(modules().unloadModule(L"good"), Quor::eOk);
    EXPECT_TRUE(modules().loaded().empty());
    EXPECT_FALSE(session_.session().variables().has(L"GOODHEARD"));
}

TEST_F(Loader, ModuleCanBeLoadedAgainAfterUnloading) {
    ASSERT_EQ(modules().loadModule(moduleFile("good.so")), Quor::eOk);
    ASSERT_EQ(modules().unloadModule(moduleFile("good.so")), Quor::eOk);
    EXPECT_EQ(modules().loadModule(moduleFile("good.so")), Quor::eOk);
    EXPECT_EQ(heard(), 13);
}

TEST_F(Loader, ModuleThatIsNotLoadedCannotBeUnloaded) {
    EXPECT_EQ(modules().unloadModule(L"good"), Quor::eKeyNotFound);
    EXPECT_TRUE(contains(modules().lastError(), L"good"));
}

TEST_F(Loader, LockedModuleIsNotUnloaded) {
    ASSERT_EQ(modules().loadModule(moduleFile("locked.so")), Quor::eOk);
    EXPECT_EQ(modules().unloadModule(L"locked"), Quor::eNotAllowed);
    EXPECT_EQ(modules().loaded().size(), 1U);
}

TEST_F(Loader, ModuleTellsWhetherItWorksWithSeveralDrawings) {
    ASSERT_EQ(modules().loadModule(moduleFile("locked.so")), Quor::eOk);
    ASSERT_EQ(modules().loadModule(moduleFile("good.so")), Quor::eOk);
    EXPECT_FALSE(modules().isMdiAware(L"locked"));
    EXPECT_TRUE(modules().isMdiAware(L"good"));
    EXPECT_FALSE(modules().isMdiAware(L"absent"));
}

TEST_F(Loader, AllModulesAreUnloadedAtTheEnd) {
    ASSERT_EQ(modules().loadModule(moduleFile("good.so")), Quor::eOk);
    ASSERT_EQ(modules().loadModule(moduleFile("locked.so")), Quor::eOk);
    modules().unloadAll();
    EXPECT_TRUE(modules().loaded().empty());
    EXPECT_FALSE(session_.session().variables().has(L"GOODHEARD"));
}

TEST_F(Loader, TheModuleThatWasLoadedLastIsUnloadedFirst) {
    ASSERT_EQ(modules().loadModule(moduleFile("locked.so")), Quor::eOk);
    ASSERT_EQ(modules().loadModule(moduleFile("good.so")), Quor::eOk);
    modules().unloadAll();
    int seen = -1;
    EXPECT_TRUE(zwutads::GetValueFromReg(L"lockedSawGood", seen));
    EXPECT_EQ(seen, 0);
}

TEST_F(Loader, TheModuleThatWasLoadedFirstStandsWhenTheOthersAreUnloaded) {
    ASSERT_EQ(modules().loadModule(moduleFile("good.so")), Quor::eOk);
    ASSERT_EQ(modules().loadModule(moduleFile("locked.so")), Quor::eOk);
    modules().unloadAll();
    int seen = -1;
    EXPECT_TRUE(zwutads::GetValueFromReg(L"lockedSawGood", seen));
    EXPECT_EQ(seen, 13);
}

TEST_F(Loader, UnknownApplicationIdUnlocksNothing) {
    EXPECT_FALSE(modules().unlockApplication(this));
    EXPECT_FALSE(modules().registerAppMdiAware(nullptr));
}
