// "?" at the question for the lamp colour looks for names of the language pack, and a pack may have some of them or
// none.
#include "host/document.h"
#include "host/ed/command_processor.h"
#include "host/rx/module_loader.h"
#include "sdk/rx/result_codes.h"
#include "sdk/sys/ads.h"
#include "tests/support/scripted_front_end.h"
#include "tests/support/test_session.h"

#include <fstream>
#include <gtest/gtest.h>
#include <optional>

namespace quor {
namespace {

class TranslatedLampNames : public testing::Test {
protected:
    // Starts in a language whose command library has these texts, makes a light and asks for a name.
    void askFor(const ZrString& name, const char* commandLibrary) {
        const std::filesystem::path language = folder_.path() / "lang" / "en";
        std::filesystem::create_directories(language);
        std::ofstream(language / "quorcmdres.txt") << commandLibrary;
        session_.emplace(front_, SessionOptions{.settingsFile = folder_.path() / "settings.ini",
                                                .resourceFolder = folder_.path(),
                                                .moduleFolders = {QUOR_BUILD_DIR "/lib/quor/modules"},
                                                .language = L"en"});
        session_->documents().newDocument();
        zwutads::setVar(L"DEFAULTLIGHTING", 0);
        ASSERT_EQ(session_->modules().loadModule(L"light.so"), Quor::eOk);
        front_.type({L"0,0,0", L"P", L"C", L"?", name, L"", L"X", L"X"});
        ASSERT_EQ(session_->processor().run(L"POINTLIGHT", false).result, RTNORM);
    }

    test::ScriptedFrontEnd front_;

private:
    test::TemporaryFolder folder_;
    std::optional<Session> session_;
};

TEST_F(TranslatedLampNames, WithoutAnyABuiltInNameIsNotFound) {
    askFor(L"荧光灯", "");

    EXPECT_TRUE(front_.shows(L"荧光灯 不是预设颜色。"));
}

TEST_F(TranslatedLampNames, WithoutAnyErrorIsTheFirstOfThem) {
    askFor(L"error", "");

    EXPECT_TRUE(front_.shows(L"荧光灯(F)"));
}

TEST_F(TranslatedLampNames, ErrorIsTheFirstThatIsMissing) {
    askFor(L"error", "6873 = \"Tube(F)\"\n6875 = \"White tube(W)\"\n");

    EXPECT_TRUE(front_.shows(L"冷白光(C)"));
}

TEST_F(TranslatedLampNames, ATranslatedNameIsFoundAndShownInFull) {
    askFor(L"Cold", "6874 = \"Cold(C)\"\n");

    EXPECT_TRUE(front_.shows(L"Cold(C)"));
}

TEST_F(TranslatedLampNames, ANameWithoutItsAbbreviationIsFoundToo) {
    askFor(L"Lamp", "6878 = \"Lamp\"\n");

    EXPECT_FALSE(front_.shows(L"不是预设颜色"));
}

TEST_F(TranslatedLampNames, OfTwoEqualNamesTheFirstIsFound) {
    askFor(L"Lamp", "6884 = \"Lamp(S)\"\n6885 = \"Lamp(L)\"\n");

    EXPECT_TRUE(front_.shows(L"Lamp(S)"));
    EXPECT_FALSE(front_.shows(L"Lamp(L)"));
}

} // namespace
} // namespace quor
