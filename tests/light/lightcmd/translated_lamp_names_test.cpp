// "?" at the question for the lamp colour looks for names of the language pack, and a pack may have some of them or
// none.
#include "tests/support/translated_session.h"

namespace quor {
namespace {

class TranslatedLampNames : public test::TranslatedModuleTest {
protected:
    // Asks for a name in a language whose command library has these texts.
    void askFor(const ZrString& name, const char* commandLibrary) {
        start("quorcmdres.txt", commandLibrary);
        pointLight({L"P", L"C", L"?", name, L"", L"X"});
    }
};

TEST_F(TranslatedLampNames, WithoutAnyABuiltInNameIsNotFound) {
    askFor(L"荧光灯", "");

    EXPECT_TRUE(front().shows(L"荧光灯 不是预设颜色。"));
}

TEST_F(TranslatedLampNames, WithoutAnyErrorIsTheFirstOfThem) {
    askFor(L"error", "");

    EXPECT_TRUE(front().shows(L"荧光灯(F)"));
}

TEST_F(TranslatedLampNames, ErrorIsTheFirstThatIsMissing) {
    askFor(L"error", "6873 = \"Tube(F)\"\n6875 = \"White tube(W)\"\n");

    EXPECT_TRUE(front().shows(L"冷白光(C)"));
}

TEST_F(TranslatedLampNames, ATranslatedNameIsFoundAndShownInFull) {
    askFor(L"Cold", "6874 = \"Cold(C)\"\n");

    EXPECT_TRUE(front().shows(L"Cold(C)"));
}

TEST_F(TranslatedLampNames, ANameWithoutItsAbbreviationIsFoundToo) {
    askFor(L"Lamp", "6878 = \"Lamp\"\n");

    EXPECT_FALSE(front().shows(L"不是预设颜色"));
}

TEST_F(TranslatedLampNames, OfTwoEqualNamesTheFirstIsFound) {
    askFor(L"Lamp", "6884 = \"Lamp(S)\"\n6885 = \"Lamp(L)\"\n");

    EXPECT_TRUE(front().shows(L"Lamp(S)"));
    EXPECT_FALSE(front().shows(L"Lamp(L)"));
}

} // namespace
} // namespace quor
