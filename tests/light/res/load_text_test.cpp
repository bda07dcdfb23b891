#include "light/res/load_text.h"

#include "host/session.h"
#include "host/sys/utf8.h"
#include "tests/support/scripted_front_end.h"
#include "tests/support/test_session.h"

#include <fstream>
#include <gtest/gtest.h>
#include <optional>

namespace quor::light {
namespace {

TEST(LoadedText, WithoutAResourceModuleTheBuiltInTextIsReferredTo) {
    const LoadedText loaded(texts.pointOptions);

    EXPECT_EQ(loaded.c_str(), texts.pointOptions.builtIn);
}

TEST(LoadedText, ATextThatIsBuiltInEmptyIsEmpty) {
    const LoadedText loaded(texts.paletteTypeColumn);

    EXPECT_EQ(loaded.str(), L"");
}

// A session whose command library has one text, 6814.
class TranslatedText : public testing::Test {
protected:
    void translate(const ZrString& translation) {
        const std::filesystem::path language = folder_.path() / "lang" / "en";
        std::filesystem::create_directories(language);
        std::ofstream(language / "quorcmdres.txt") << "6814 = \"" << toUtf8(translation) << "\"\n";
        session_.emplace(front_, SessionOptions{.settingsFile = folder_.path() / "settings.ini",
                                                .resourceFolder = folder_.path(),
                                                .moduleFolders = {},
                                                .language = L"en"});
    }

private:
    test::TemporaryFolder folder_;
    test::ScriptedFrontEnd front_;
    std::optional<Session> session_;
};

TEST_F(TranslatedText, IsThatOfTheResourceModule) {
    translate(L"Not here.");

    EXPECT_STREQ(LoadedText(texts.spotTargetOnSource).c_str(), L"Not here.");
}

TEST_F(TranslatedText, IsReferredToAndNotCopied) {
    translate(L"Not here.");

    EXPECT_EQ(LoadedText(texts.spotTargetOnSource).c_str(), LoadedText(texts.spotTargetOnSource).c_str());
}

TEST_F(TranslatedText, OfWhichTheModuleHasNoneIsTheBuiltInOne) {
    translate(L"Not here.");

    EXPECT_EQ(LoadedText(texts.pointOptions).c_str(), texts.pointOptions.builtIn);
}

TEST_F(TranslatedText, ThatIsEmptyIsTheBuiltInOne) {
    translate(L"");

    EXPECT_EQ(LoadedText(texts.spotTargetOnSource).c_str(), texts.spotTargetOnSource.builtIn);
}

TEST_F(TranslatedText, Of999CharactersIsWhole) {
    translate(ZrString(999, L'x'));

    EXPECT_EQ(LoadedText(texts.spotTargetOnSource).str(), ZrString(999, L'x'));
}

TEST_F(TranslatedText, Of1000CharactersIsCut) {
    translate(ZrString(999, L'x') + L'y');

    EXPECT_EQ(LoadedText(texts.spotTargetOnSource).str(), ZrString(999, L'x'));
}

TEST_F(TranslatedText, ThatWasCutKeepsItsTextInACopy) {
    translate(ZrString(999, L'x') + L'y');
    std::optional<LoadedText> loaded(texts.spotTargetOnSource);
    const LoadedText copy(*loaded);
    loaded.reset();

    EXPECT_EQ(copy.str(), ZrString(999, L'x'));
}

} // namespace
} // namespace quor::light
