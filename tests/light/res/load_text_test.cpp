#include "light/res/load_text.h"

#include "host/session.h"
#include "host/sys/utf8.h"
#include "tests/support/translated_session.h"

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
        session_.emplace("quorcmdres.txt", "6814 = \"" + toUtf8(translation) + "\"\n");
    }

private:
    std::optional<test::TranslatedSession> session_;
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
