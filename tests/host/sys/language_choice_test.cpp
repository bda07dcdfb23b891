#include "host/sys/language_choice.h"

#include "host/session.h"
#include "host/sys/resource_library.h"
#include "host/sys/settings_store.h"
#include "host/sys/system_variables.h"
#include "tests/support/scripted_front_end.h"
#include "tests/support/test_session.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <map>
#include <string>

namespace quor::sys {
namespace {

using Variables = std::map<std::string, const char*>;

ZrString automatic(const Variables& variables) {
    return languageOf(L"auto", [&](const char* name) {
        const auto at = variables.find(name);
        return at == variables.end() ? nullptr : at->second;
    });
}

// An environment in which everything is English.
const char* english(const char*) { return "en_US.UTF-8"; }

TEST(LanguageChoice, ALanguageIsItselfWhateverTheEnvironment) {
    EXPECT_EQ(languageOf(L"zh", english), L"zh");
    EXPECT_EQ(languageOf(L"en", [](const char*) { return "zh_CN.UTF-8"; }), L"en");
}

TEST(LanguageChoice, WhatIsNoLanguageIsChineseWhateverTheEnvironment) {
    EXPECT_EQ(languageOf(L"", english), L"zh");
    EXPECT_EQ(languageOf(L"fr", english), L"zh");
}

TEST(LanguageChoice, IsTakenWithoutRegardToCase) {
    EXPECT_EQ(languageOf(L"Auto", english), L"en");
    EXPECT_EQ(languageOf(L"EN", [](const char*) { return "zh_CN.UTF-8"; }), L"en");
}

TEST(LanguageChoice, AutomaticIsChineseInAnEmptyEnvironment) { EXPECT_EQ(automatic({}), L"zh"); }

TEST(LanguageChoice, AutomaticIsEnglishInEveryCountryThatSpeaksIt) {
    EXPECT_EQ(automatic({{"LANG", "en"}}), L"en");
    EXPECT_EQ(automatic({{"LANG", "en_US.UTF-8"}}), L"en");
    EXPECT_EQ(automatic({{"LANG", "en_GB"}}), L"en");
}

TEST(LanguageChoice, AutomaticIsChineseInEveryOtherLanguage) {
    EXPECT_EQ(automatic({{"LANG", "zh_CN.UTF-8"}}), L"zh");
    EXPECT_EQ(automatic({{"LANG", "de_DE.UTF-8"}}), L"zh");
    EXPECT_EQ(automatic({{"LANG", "C.UTF-8"}}), L"zh");
    EXPECT_EQ(automatic({{"LANG", "sv_EN"}}), L"zh");
}

TEST(LanguageChoice, AutomaticAsksLcAllFirst) {
    EXPECT_EQ(automatic({{"LC_ALL", "en_US"}, {"LC_MESSAGES", "zh_CN"}, {"LANG", "zh_CN"}}), L"en");
    EXPECT_EQ(automatic({{"LC_ALL", "zh_CN"}, {"LC_MESSAGES", "en_US"}, {"LANG", "en_US"}}), L"zh");
}

TEST(LanguageChoice, AutomaticAsksLcMessagesNext) {
    EXPECT_EQ(automatic({{"LC_MESSAGES", "en_US"}, {"LANG", "zh_CN"}}), L"en");
    EXPECT_EQ(automatic({{"LC_MESSAGES", "zh_CN"}, {"LANG", "en_US"}}), L"zh");
}

TEST(LanguageChoice, AutomaticPassesOverVariablesWithoutAValue) {
    EXPECT_EQ(automatic({{"LC_ALL", ""}, {"LC_MESSAGES", ""}, {"LANG", "en_US"}}), L"en");
}

TEST(LanguageChoice, AutomaticAsksNoOtherVariable) {
    EXPECT_EQ(automatic({{"LANGUAGE", "en"}, {"LC_CTYPE", "en_US"}}), L"zh");
}

// The start of a session whose user has chosen a language; LC_ALL is as it is given.
class ChosenLanguage : public testing::Test {
protected:
    ~ChosenLanguage() override { ::unsetenv("LC_ALL"); }

    void choose(const ZrString& choice) {
        ASSERT_FALSE(SettingsStore(settings_).set(kLanguageSection, kLanguageKey, choice));
    }
    [[nodiscard]] ZrString languageOfASession(const ZrString& asked = {}) {
        const Session session(
            front_,
            {.settingsFile = settings_, .resourceFolder = folder_.path(), .moduleFolders = {}, .language = asked});
        return session.options().language;
    }

private:
    test::TemporaryFolder folder_;
    test::ScriptedFrontEnd front_;
    std::filesystem::path settings_ = folder_.path() / "settings.ini";
};

TEST_F(ChosenLanguage, IsChineseWithoutASetting) {
    ::setenv("LC_ALL", "en_US.UTF-8", 1);
    EXPECT_EQ(languageOfASession(), L"zh");
}

TEST_F(ChosenLanguage, IsThatOfTheSetting) {
    choose(L"en");
    EXPECT_EQ(languageOfASession(), L"en");
}

TEST_F(ChosenLanguage, FollowsTheEnvironmentWhenTheSettingSaysSo) {
    choose(L"auto");
    ::setenv("LC_ALL", "en_US.UTF-8", 1);
    EXPECT_EQ(languageOfASession(), L"en");
    ::setenv("LC_ALL", "zh_CN.UTF-8", 1);
    EXPECT_EQ(languageOfASession(), L"zh");
}

TEST_F(ChosenLanguage, OfTheStartGoesBeforeTheSetting) {
    choose(L"en");
    EXPECT_EQ(languageOfASession(L"zh"), L"zh");
}

} // namespace
} // namespace quor::sys
