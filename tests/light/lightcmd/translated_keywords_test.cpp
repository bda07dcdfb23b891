// Keyword lists come from language packs, so an answer may be a word that no prompt knows, or one that is longer than
// a reply may be.
#include "host/ed/command_processor.h"
#include "host/rx/module_loader.h"
#include "host/sys/utf8.h"
#include "sdk/db/database.h"
#include "sdk/db/light.h"
#include "sdk/rx/result_codes.h"
#include "sdk/sys/ads.h"
#include "tests/support/scripted_front_end.h"
#include "tests/support/test_session.h"

#include <algorithm>
#include <fstream>
#include <gtest/gtest.h>
#include <optional>

namespace quor {
namespace {

const ZrString word259(259, L'x');
const ZrString word260(260, L'x');

// A session in a language whose keyword lists hold, beside the built-in words, one of its own.
class TranslatedKeywords : public testing::Test {
protected:
    void start(int number, const ZrString& builtIn, const ZrString& added) {
        const std::filesystem::path language = folder_.path() / "lang" / "en";
        std::filesystem::create_directories(language);
        const ZrString words = builtIn + L" " + added;
        std::ofstream(language / "quorkwlres.txt") << number << " = \"" << toUtf8(words + L" _" + words) << "\"\n";
        session_.emplace(front_, SessionOptions{.settingsFile = folder_.path() / "settings.ini",
                                                .resourceFolder = folder_.path(),
                                                .moduleFolders = {QUOR_BUILD_DIR "/lib/quor/modules"},
                                                .language = L"en"});
        session_->documents().newDocument();
        zwutads::setVar(L"DEFAULTLIGHTING", 0);
        ASSERT_EQ(session_->modules().loadModule(L"light.so"), Quor::eOk);
    }

    // Makes a light that is kept; the lines answer its options.
    void pointLight(std::initializer_list<ZrString> lines) {
        front_.type({L"0,0,0"});
        front_.type(lines);
        front_.type(L"X");
        ASSERT_EQ(session_->processor().run(L"POINTLIGHT", false).result, RTNORM);
    }
    [[nodiscard]] std::size_t timesAsked(const wchar_t* prompt) {
        const auto& asked = front_.asked();
        return static_cast<std::size_t>(std::count(asked.begin(), asked.end(), prompt));
    }

    static ZrDbObjectPointer<ZrDbLight> light() {
        const ZrDbObjectPointer<ZrDbBlockTableRecord> space(zrdbWorkingDatabase()->currentSpaceId(), ZrDb::kForRead);
        return {space->newIterator(ZrDbLight::desc())->entityId(), ZrDb::kForRead};
    }
    static ZrGiShadowParameters shadows() {
        ZrGiShadowParameters shadows;
        light()->shadowParameters(shadows);
        return shadows;
    }

    test::ScriptedFrontEnd front_;

private:
    test::TemporaryFolder folder_;
    std::optional<Session> session_;
};

constexpr const wchar_t* shadowKinds = L"Off Sharp soFtmapped softsAmpled";
constexpr const wchar_t* mapSizePrompt = L"\n输入贴图尺寸 [64/128/256/512/1024/2048/4096] <512>: ";
constexpr const wchar_t* sampledMenu = L"\n输入要更改的选项 [形(S)/样例(A)/可见(V)/退出(X)] <退出>:";
constexpr const wchar_t* attenuationMenu =
    L"\n输入要更改的选项 [衰减类型(T)/使用界限(U)/衰减起始界限(L)/衰减结束界限(E)/退出(X)] <退出>: ";

TEST_F(TranslatedKeywords, AnUnknownKindOfShadowsSetsNothing) {
    start(25091, shadowKinds, word259);

    pointLight({L"W", L"F", L"512", L"5", L"W", word259});

    EXPECT_EQ(timesAsked(mapSizePrompt), 0U);
    EXPECT_EQ(shadows().shadowType(), ZrGiShadowParameters::kShadowMaps);
    EXPECT_EQ(shadows().shadowMapSoftness(), 5);
}

TEST_F(TranslatedKeywords, AKindOfShadowsOf260CharactersIsTheKindOfTheLight) {
    start(25091, shadowKinds, word260);

    pointLight({L"W", L"F", L"512", L"5", L"W", word260, L"1024", L"6"});

    EXPECT_EQ(timesAsked(mapSizePrompt), 1U);
    EXPECT_EQ(shadows().shadowMapSize(), 1024);
    EXPECT_EQ(shadows().shadowMapSoftness(), 6);
}

TEST_F(TranslatedKeywords, AnUnknownItemOfTheSampledMenuIsAskedAgain) {
    start(25098, L"Shape sAmples Visible eXit", word259);

    pointLight({L"W", L"A", word259, L"X"});

    EXPECT_EQ(timesAsked(sampledMenu), 2U);
}

TEST_F(TranslatedKeywords, AnItemOfTheSampledMenuOf260CharactersLeavesIt) {
    start(25098, L"Shape sAmples Visible eXit", word260);

    pointLight({L"W", L"A", word260});

    EXPECT_EQ(timesAsked(sampledMenu), 1U);
}

TEST_F(TranslatedKeywords, AnUnknownShapeSetsNothing) {
    start(25100, L"Linear Disk Rect Sphere Cylinder", L"Torus");

    pointLight({L"W", L"A", L"S", L"T", L"X"});

    EXPECT_EQ(shadows().extendedLightShape(), ZrGiShadowParameters::kRect);
}

TEST_F(TranslatedKeywords, AShapeOf260CharactersSetsNothing) {
    start(25100, L"Linear Disk Rect Sphere Cylinder", word260);

    pointLight({L"W", L"A", L"S", word260, L"X"});

    EXPECT_EQ(shadows().extendedLightShape(), ZrGiShadowParameters::kRect);
}

TEST_F(TranslatedKeywords, AnUnknownVisibilityKeepsTheOneBefore) {
    start(10001, L"Yes No", L"Perhaps");

    pointLight({L"W", L"A", L"V", L"Y", L"V", L"P", L"X"});

    EXPECT_TRUE(shadows().shapeVisibility());
}

TEST_F(TranslatedKeywords, AnUnknownItemOfTheAttenuationMenuIsAskedAgain) {
    start(25092, L"attenuationType Uselimits attenuationstartLimit attenuationEndlimit eXit", word259);

    pointLight({L"A", word259, L"X"});

    EXPECT_EQ(timesAsked(attenuationMenu), 2U);
}

TEST_F(TranslatedKeywords, AnItemOfTheAttenuationMenuOf260CharactersLeavesIt) {
    start(25092, L"attenuationType Uselimits attenuationstartLimit attenuationEndlimit eXit", word260);

    pointLight({L"A", word260});

    EXPECT_EQ(timesAsked(attenuationMenu), 1U);
}

TEST_F(TranslatedKeywords, AnUnknownTypeOfAttenuationKeepsTheOneBefore) {
    start(25096, L"None Inverse Squared", L"Cubic");

    pointLight({L"A", L"T", L"S", L"T", L"C", L"X"});

    EXPECT_EQ(light()->lightAttenuation().attenuationType(), ZrGiLightAttenuation::kInverseSquare);
}

TEST_F(TranslatedKeywords, AnUnknownUseOfLimitsKeepsTheOneBefore) {
    start(25088, L"oN oFf", L"Auto");

    pointLight({L"A", L"U", L"N", L"U", L"A", L"X"});

    EXPECT_TRUE(light()->lightAttenuation().useLimits());
}

} // namespace
} // namespace quor
