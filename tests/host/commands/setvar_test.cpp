#include "tests/support/test_session.h"

#include "host/sys/settings_store.h"
#include "host/sys/system_variables.h"
#include "host/texts/text.h"

#include <fstream>
#include <gtest/gtest.h>

namespace quor {

namespace {

// A settings file that cannot be written: its name is that of a folder.
void closeSettings(const test::TestSession& test) { std::filesystem::create_directory(test.folder() / "settings.ini"); }

TEST(SetVariable, LanguageIsKeptWhereTheHostLooksForItAndCountsFromTheNextStart) {
    test::TestSession test;

    test.run({L"LANGUAGE", L"en"});

    EXPECT_TRUE(test.front().shows(L"LANGUAGE 的新值从下次启动起有效。"));
    EXPECT_EQ(test.session().settings().get(sys::kLanguageSection, sys::kLanguageKey), L"en");
    EXPECT_EQ(language(), Language::Chinese);
}

TEST(SetVariable, LanguageThatCannotBeKeptIsSaidOnceAndNotAskedAgain) {
    test::TestSession test;
    closeSettings(test);

    const ed::Verdict verdict = test.run({L"LANGUAGE", L"en"});

    EXPECT_EQ(verdict.kind, ed::Verdict::Kind::Done);
    EXPECT_TRUE(test.front().shows(L"LANGUAGE 的新值从下次启动起才有效，但无法写入用户设置，因此不会保留。"));
}

TEST(SetVariable, SaysThatAValueIsEmpty) {
    test::TestSession test;

    test.run({L"REFEDITNAME", L"SETVAR", L"?", L"SUPPORTPATH"});

    EXPECT_TRUE(test.front().shows(L"REFEDITNAME = (无) (只读)"));
    EXPECT_TRUE(test.front().shows(L"SUPPORTPATH  (无)\n"));
}

TEST(SetVariable, ValueThatCannotBeKeptHoldsForThisRun) {
    test::TestSession test;
    closeSettings(test);

    const ed::Verdict verdict = test.run({L"SUPPORTPATH", L"/lamps"});

    EXPECT_EQ(verdict.kind, ed::Verdict::Kind::Done);
    EXPECT_TRUE(test.front().shows(L"SUPPORTPATH 仅在本次运行中有效"));
    EXPECT_EQ(test.session().variables().text(L"SUPPORTPATH"), L"/lamps");
}

} // namespace

} // namespace quor
