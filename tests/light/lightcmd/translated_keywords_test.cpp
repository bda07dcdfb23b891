// Keyword lists come from language packs, so an answer may be a word that no prompt knows, or one that is longer than
// a reply may be.
#include "host/db/object_entry.h"
#include "host/ed/command_table.h"
#include "host/sys/utf8.h"
#include "sdk/db/database.h"
#include "tests/support/translated_session.h"

#include <algorithm>

namespace quor {
namespace {

const ZrString word259(259, L'x');
const ZrString word260(260, L'x');

class TranslatedKeywords : public test::TranslatedModuleTest {
protected:
    // Starts in a language whose keyword list holds, beside the built-in words, one of its own.
    void startWith(int number, const ZrString& builtIn, const ZrString& added) {
        const ZrString words = builtIn + L" " + added;
        start("quorkwlres.txt", std::to_string(number) + " = \"" + toUtf8(words + L" _" + words) + "\"\n");
    }
    // As pointLight(), where typing 'CHANGE at a question changes the light that the command holds open. The question
    // has read the record of the light by then: what it writes takes the change back, and the change stays where it
    // writes nothing.
    void pointLightChangedBy(Quor::ErrorStatus (*change)(ZrDbLight&), std::initializer_list<ZrString> lines) {
        bool isChanged = false;
        const auto run = [&] {
            isChanged = change(static_cast<ZrDbLight&>(*lightId().entry()->object)) == Quor::eOk;
            return RTNORM;
        };
        session_->session().commands().add({.group = L"TEST",
                                            .globalName = L"CHANGE",
                                            .localName = L"CHANGE",
                                            .flags = ed::kTransparent,
                                            .run = run,
                                            .isHost = false});
        pointLight(lines);
        EXPECT_TRUE(isChanged);
    }
    [[nodiscard]] std::size_t timesAsked(const wchar_t* prompt) {
        const auto& asked = front().asked();
        return static_cast<std::size_t>(std::count(asked.begin(), asked.end(), prompt));
    }

    static ZrDbObjectId lightId() {
        const ZrDbObjectPointer<ZrDbBlockTableRecord> space(zrdbWorkingDatabase()->currentSpaceId(), ZrDb::kForRead);
        return space->newIterator(ZrDbLight::desc())->entityId();
    }
    static ZrDbObjectPointer<ZrDbLight> light() { return {lightId(), ZrDb::kForRead}; }
    static ZrGiShadowParameters shadows() {
        ZrGiShadowParameters shadows;
        light()->shadowParameters(shadows);
        return shadows;
    }
};

Quor::ErrorStatus becomeSquared(ZrDbLight& light) {
    ZrGiLightAttenuation attenuation = light.lightAttenuation();
    attenuation.setAttenuationType(ZrGiLightAttenuation::kInverseSquare);
    return light.setLightAttenuation(attenuation);
}

Quor::ErrorStatus useLimits(ZrDbLight& light) {
    ZrGiLightAttenuation attenuation = light.lightAttenuation();
    attenuation.setUseLimits(true);
    return light.setLightAttenuation(attenuation);
}

Quor::ErrorStatus showShape(ZrDbLight& light) {
    ZrGiShadowParameters shadows;
    light.shadowParameters(shadows);
    shadows.setShapeVisibility(true);
    return light.setShadowParameters(shadows);
}

constexpr const wchar_t* shadowKinds = L"Off Sharp soFtmapped softsAmpled";
constexpr const wchar_t* typesOfAttenuation = L"None Inverse Squared";
constexpr const wchar_t* mapSizePrompt = L"\n输入贴图尺寸 [64/128/256/512/1024/2048/4096] <512>: ";
constexpr const wchar_t* sampledMenu = L"\n输入要更改的选项 [形(S)/样例(A)/可见(V)/退出(X)] <退出>:";
constexpr const wchar_t* attenuationMenu =
    L"\n输入要更改的选项 [衰减类型(T)/使用界限(U)/衰减起始界限(L)/衰减结束界限(E)/退出(X)] <退出>: ";

TEST_F(TranslatedKeywords, AnUnknownKindOfShadowsSetsNothing) {
    startWith(25091, shadowKinds, word259);

    pointLight({L"W", L"F", L"512", L"5", L"W", word259});

    EXPECT_EQ(timesAsked(mapSizePrompt), 0U);
    EXPECT_EQ(shadows().shadowType(), ZrGiShadowParameters::kShadowMaps);
    EXPECT_EQ(shadows().shadowMapSoftness(), 5);
}

TEST_F(TranslatedKeywords, AKindOfShadowsOf260CharactersIsTheKindOfTheLight) {
    startWith(25091, shadowKinds, word260);

    pointLight({L"W", L"F", L"512", L"5", L"W", word260, L"1024", L"6"});

    EXPECT_EQ(timesAsked(mapSizePrompt), 1U);
    EXPECT_EQ(shadows().shadowMapSize(), 1024);
    EXPECT_EQ(shadows().shadowMapSoftness(), 6);
}

TEST_F(TranslatedKeywords, AnUnknownItemOfTheSampledMenuIsAskedAgain) {
    startWith(25098, L"Shape sAmples Visible eXit", word259);

    pointLight({L"W", L"A", word259, L"X"});

    EXPECT_EQ(timesAsked(sampledMenu), 2U);
}

TEST_F(TranslatedKeywords, AnItemOfTheSampledMenuOf260CharactersLeavesIt) {
    startWith(25098, L"Shape sAmples Visible eXit", word260);

    pointLight({L"W", L"A", word260});

    EXPECT_EQ(timesAsked(sampledMenu), 1U);
}

TEST_F(TranslatedKeywords, AnUnknownShapeSetsNothing) {
    startWith(25100, L"Linear Disk Rect Sphere Cylinder", L"Torus");

    pointLight({L"W", L"A", L"S", L"T", L"X"});

    EXPECT_EQ(shadows().extendedLightShape(), ZrGiShadowParameters::kRect);
}

TEST_F(TranslatedKeywords, AShapeOf260CharactersSetsNothing) {
    startWith(25100, L"Linear Disk Rect Sphere Cylinder", word260);

    pointLight({L"W", L"A", L"S", word260, L"X"});

    EXPECT_EQ(shadows().extendedLightShape(), ZrGiShadowParameters::kRect);
}

TEST_F(TranslatedKeywords, AnUnknownVisibilityKeepsTheOneBefore) {
    startWith(10001, L"Yes No", L"Perhaps");

    pointLight({L"W", L"A", L"V", L"Y", L"V", L"P", L"X"});

    EXPECT_TRUE(shadows().shapeVisibility());
}

TEST_F(TranslatedKeywords, AnUnknownVisibilityWritesTheRecordBack) {
    startWith(10001, L"Yes No", L"Perhaps");

    pointLightChangedBy(showShape, {L"W", L"A", L"V", L"'CHANGE", L"P", L"X"});

    EXPECT_FALSE(shadows().shapeVisibility());
}

TEST_F(TranslatedKeywords, AVisibilityOf260CharactersWritesTheRecordBack) {
    startWith(10001, L"Yes No", word260);

    pointLightChangedBy(showShape, {L"W", L"A", L"V", L"'CHANGE", word260, L"X"});

    EXPECT_FALSE(shadows().shapeVisibility());
}

TEST_F(TranslatedKeywords, AnUnknownItemOfTheAttenuationMenuIsAskedAgain) {
    startWith(25092, L"attenuationType Uselimits attenuationstartLimit attenuationEndlimit eXit", word259);

    pointLight({L"A", word259, L"X"});

    EXPECT_EQ(timesAsked(attenuationMenu), 2U);
}

TEST_F(TranslatedKeywords, AnItemOfTheAttenuationMenuOf260CharactersLeavesIt) {
    startWith(25092, L"attenuationType Uselimits attenuationstartLimit attenuationEndlimit eXit", word260);

    pointLight({L"A", word260});

    EXPECT_EQ(timesAsked(attenuationMenu), 1U);
}

TEST_F(TranslatedKeywords, AnUnknownTypeOfAttenuationKeepsTheOneBefore) {
    startWith(25096, typesOfAttenuation, L"Cubic");

    pointLight({L"A", L"T", L"S", L"T", L"C", L"X"});

    EXPECT_EQ(light()->lightAttenuation().attenuationType(), ZrGiLightAttenuation::kInverseSquare);
}

TEST_F(TranslatedKeywords, AnUnknownTypeOfAttenuationWritesTheRecordBack) {
    startWith(25096, typesOfAttenuation, L"Cubic");

    pointLightChangedBy(becomeSquared, {L"A", L"T", L"'CHANGE", L"C", L"X"});

    EXPECT_EQ(light()->lightAttenuation().attenuationType(), ZrGiLightAttenuation::kNone);
}

TEST_F(TranslatedKeywords, ATypeOfAttenuationOf260CharactersWritesTheRecordBack) {
    startWith(25096, typesOfAttenuation, word260);

    pointLightChangedBy(becomeSquared, {L"A", L"T", L"'CHANGE", word260, L"X"});

    EXPECT_EQ(light()->lightAttenuation().attenuationType(), ZrGiLightAttenuation::kNone);
}

TEST_F(TranslatedKeywords, EnterAtTheTypeOfAttenuationWritesNothingBack) {
    startWith(25096, typesOfAttenuation, L"Cubic");

    pointLightChangedBy(becomeSquared, {L"A", L"T", L"'CHANGE", L"", L"X"});

    EXPECT_EQ(light()->lightAttenuation().attenuationType(), ZrGiLightAttenuation::kInverseSquare);
}

TEST_F(TranslatedKeywords, AnUnknownUseOfLimitsKeepsTheOneBefore) {
    startWith(25088, L"oN oFf", L"Auto");

    pointLight({L"A", L"U", L"N", L"U", L"A", L"X"});

    EXPECT_TRUE(light()->lightAttenuation().useLimits());
}

TEST_F(TranslatedKeywords, AnUnknownUseOfLimitsWritesTheRecordBack) {
    startWith(25088, L"oN oFf", L"Auto");

    pointLightChangedBy(useLimits, {L"A", L"U", L"'CHANGE", L"A", L"X"});

    EXPECT_FALSE(light()->lightAttenuation().useLimits());
}

TEST_F(TranslatedKeywords, AUseOfLimitsOf260CharactersWritesTheRecordBack) {
    startWith(25088, L"oN oFf", word260);

    pointLightChangedBy(useLimits, {L"A", L"U", L"'CHANGE", word260, L"X"});

    EXPECT_FALSE(light()->lightAttenuation().useLimits());
}

TEST_F(TranslatedKeywords, EnterAtTheUseOfLimitsWritesNothingBack) {
    startWith(25088, L"oN oFf", L"Auto");

    pointLightChangedBy(useLimits, {L"A", L"U", L"'CHANGE", L"", L"X"});

    EXPECT_TRUE(light()->lightAttenuation().useLimits());
}

} // namespace
} // namespace quor
