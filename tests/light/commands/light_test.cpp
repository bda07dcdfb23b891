#include "light/commands/light.h"

#include "host/sys/utf8.h"
#include "light/lightcmd/multi_light.h"
#include "light/res/text_table.h"
#include "sdk/db/database.h"
#include "sdk/rx/result_codes.h"
#include "sdk/sys/ads.h"
#include "sdk/sys/global_vars.h"
#include "tests/support/test_session.h"
#include "tests/support/translated_session.h"

#include <gtest/gtest.h>

namespace quor {
namespace {

constexpr const wchar_t* variable = L"LightCmdDefLightType";

ZrGlobalVarManager& globals() { return *ZrGlobalVarManager::instance(); }

ZrString keptKind() {
    ZrString kind;
    globals().get(variable, kind);
    return kind;
}

// As something else in the program would have it.
void keepKind(const wchar_t* kind) {
    globals().reg(ZrGlobalVarManager::kString, variable);
    globals().set(variable, kind);
}

ZrString kindPrompt(const ZrString& shownDefault) {
    return L"\n输入光源类型 [点光源(P)/聚光灯(S)/光域网(W)/目标点光源(T)/自由聚光灯(F)/自由光域(B)/平行光(D)] " +
           shownDefault + L": ";
}

short shortVariable(const wchar_t* name) {
    short value = -1;
    zwutads::getVar(name, value);
    return value;
}

ZrDbObjectPointer<ZrDbBlockTableRecord> space() { return {zrdbWorkingDatabase()->currentSpaceId(), ZrDb::kForRead}; }
std::size_t lightCount() { return space()->entityCount(ZrDbLight::desc()); }
ZrDbObjectPointer<ZrDbLight> onlyLight() {
    return {space()->newIterator(ZrDbLight::desc())->entityId(), ZrDb::kForRead};
}

class LightTest : public testing::Test {
protected:
    LightTest() {
        session_.addCommand(L"KIND", [] { return CZrLightCmd().execute(); });
        zwutads::setVar(L"DEFAULTLIGHTING", 0);
        CZrMultiLight::s_skipLightingDialogOnce = false;
    }

    int answer(std::initializer_list<ZrString> lines, bool byProgram = false) {
        front().type(lines);
        return session_.session().processor().run(L"KIND", byProgram).result;
    }
    test::ScriptedFrontEnd& front() { return session_.front(); }
    const ZrString& firstQuestion() { return front().asked().front(); }

    test::TestSession session_;
};

TEST_F(LightTest, ItsTypeWordIsLightCmd) { EXPECT_STREQ(CZrLightCmd().typeName(), L"LightCmd"); }

TEST_F(LightTest, TheCommandLibraryMayAlwaysExecuteIt) { EXPECT_TRUE(CZrLightCmd().canExecute()); }

TEST_F(LightTest, ItLeavesTheCursorAlone) { EXPECT_FALSE(CZrLightCmd().filtersPoints()); }

// The variable of the default kind.

TEST(LightWithoutAHost, TheDefaultKindCannotBeRegistered) {
    ASSERT_EQ(ZrGlobalVarManager::instance(), nullptr);

    EXPECT_EQ(CZrLightCmd::registerDefaultKind(), RTERROR);
}

TEST_F(LightTest, RegisteringTheDefaultKindMakesItAFreeSpotLight) {
    EXPECT_EQ(CZrLightCmd::registerDefaultKind(), RTNORM);

    EXPECT_EQ(keptKind(), L"Freespot");
}

TEST_F(LightTest, RegisteringTheDefaultKindAgainKeepsIt) {
    keepKind(L"Web");

    EXPECT_EQ(CZrLightCmd::registerDefaultKind(), RTNORM);

    EXPECT_EQ(keptKind(), L"Web");
}

TEST_F(LightTest, AVariableWithoutAValueGetsOne) {
    globals().reg(ZrGlobalVarManager::kString, variable);

    EXPECT_EQ(CZrLightCmd::registerDefaultKind(), RTNORM);

    EXPECT_EQ(keptKind(), L"Freespot");
}

TEST_F(LightTest, TheVariableIsThereFromTheFirstRunOn) {
    ZrString kind;
    ASSERT_EQ(globals().get(variable, kind), ZrGlobalVarManager::kUnknown);

    EXPECT_EQ(answer({L"^C"}), RTCAN);

    EXPECT_EQ(globals().get(variable, kind), ZrGlobalVarManager::kOk);
    EXPECT_EQ(kind, L"Freespot");
}

TEST_F(LightTest, TheKindIsKeptAsAGlobalWord) {
    EXPECT_EQ(answer({L"b", L"^C"}), RTERROR);

    EXPECT_EQ(keptKind(), L"freeweB");
}

TEST_F(LightTest, AStoredKindIsComparedWithoutRegardToCase) {
    keepKind(L"TARGETPOINT");

    EXPECT_EQ(answer({L"", L"1,2,3", L"4,5,6", L""}), RTNORM);

    EXPECT_EQ(firstQuestion(), kindPrompt(L"<目标点光源>"));
    EXPECT_EQ(onlyLight()->lightType(), DrawableType::kPointLight);
    EXPECT_TRUE(onlyLight()->hasTarget());
    EXPECT_EQ(keptKind(), L"TARGETPOINT");
}

TEST_F(LightTest, AStoredTextThatIsNoKindIsNotShown) {
    keepKind(L"Lantern");

    EXPECT_EQ(answer({L"^C"}), RTCAN);

    EXPECT_EQ(firstQuestion(), kindPrompt(L""));
    EXPECT_EQ(keptKind(), L"Lantern");
}

TEST_F(LightTest, EnterFailsWhereTheStoredTextIsNoKind) {
    keepKind(L"Lantern");

    EXPECT_EQ(answer({L""}), RTERROR);

    EXPECT_EQ(lightCount(), 0U);
    EXPECT_EQ(keptKind(), L"Lantern");
    EXPECT_FALSE(CZrMultiLight::s_skipLightingDialogOnce);
}

TEST_F(LightTest, EnterFailsWhereTheStoredTextIsEmpty) {
    keepKind(L"");

    EXPECT_EQ(answer({L""}), RTERROR);

    EXPECT_EQ(firstQuestion(), kindPrompt(L""));
}

TEST_F(LightTest, AnAbbreviationThatIsStoredIsNoKind) {
    keepKind(L"P");

    EXPECT_EQ(answer({L""}), RTERROR);
}

TEST_F(LightTest, AKindThatIsTypedReplacesAStoredTextThatIsNone) {
    keepKind(L"Lantern");

    EXPECT_EQ(answer({L"P", L"1,2,3", L""}), RTNORM);

    EXPECT_EQ(keptKind(), L"Point");
}

TEST_F(LightTest, AVariableOfAnotherTypeShowsNoDefaultAndKeepsNoKind) {
    globals().reg(ZrGlobalVarManager::kShort, variable);

    EXPECT_EQ(answer({L"P", L"1,2,3", L""}), RTNORM);
    EXPECT_EQ(answer({L""}), RTERROR);

    EXPECT_EQ(firstQuestion(), kindPrompt(L""));
    EXPECT_EQ(front().asked().back(), kindPrompt(L""));
    EXPECT_EQ(lightCount(), 1U);
}

TEST_F(LightTest, TheKindIsKeptForAllDrawings) {
    EXPECT_EQ(answer({L"W", L"1,2,3", L"4,5,6", L""}), RTNORM);
    session_.session().documents().newDocument();
    zwutads::setVar(L"DEFAULTLIGHTING", 0);

    EXPECT_EQ(answer({L"", L"1,2,3", L"4,5,6", L""}), RTNORM);

    EXPECT_EQ(onlyLight()->lightType(), DrawableType::kWebLight);
}

// What it answers.

TEST_F(LightTest, OnPaperItAnswersRtcanAndRegistersNothing) {
    zwutads::setVar(L"TILEMODE", 0);

    EXPECT_EQ(answer({L"P"}), RTCAN);

    ZrString kind;
    EXPECT_EQ(globals().get(variable, kind), ZrGlobalVarManager::kUnknown);
    EXPECT_TRUE(front().asked().empty());
    EXPECT_TRUE(front().shows(L"** 命令仅在模型空间中有效 **"));
}

TEST_F(LightTest, ACancelledDialogAnswersRterrorAndRegistersNothing) {
    zwutads::setVar(L"DEFAULTLIGHTING", 1);

    EXPECT_EQ(answer({L"^C"}), RTERROR);

    ZrString kind;
    EXPECT_EQ(globals().get(variable, kind), ZrGlobalVarManager::kUnknown);
}

TEST_F(LightTest, InputThatBreaksAtTheKindAnswersRterror) {
    front().breakInput();

    EXPECT_EQ(answer({}), RTERROR);

    EXPECT_EQ(keptKind(), L"Freespot");
}

TEST_F(LightTest, ItAnswersWhatTheKindAnswers) {
    EXPECT_EQ(answer({L"P", L"1,2,3", L""}), RTNORM);
    EXPECT_EQ(answer({L"P", L"1,2,3", L"^C"}), RTCAN);
    EXPECT_EQ(answer({L"P", L"^C"}), RTERROR);
    EXPECT_EQ(answer({L"P", L"1,2,3", L"N", L"a\tb", L""}), RTERROR);

    EXPECT_EQ(lightCount(), 1U);
}

TEST_F(LightTest, AKindThatFindsItselfOnPaperAnswersMinusOne) {
    session_.addCommand(
        L"PAPERNOW", [] { return zwutads::setVar(L"TILEMODE", 0) ? RTNORM : RTERROR; }, ed::kTransparent);

    EXPECT_EQ(answer({L"'PAPERNOW", L"P"}), -1);
}

TEST_F(LightTest, LightingUnits0AreRefusedByTheKindOnlyOnce) {
    zwutads::setVar(L"LIGHTINGUNITS", 0);

    EXPECT_EQ(answer({L"W"}), RTERROR);

    const ZrString& screen = front().screen();
    const std::wstring_view message = light::texts.notWithGenericUnits.builtIn;
    EXPECT_TRUE(screen.ends_with(message));
    EXPECT_EQ(screen.find(message), screen.size() - message.size());
    EXPECT_EQ(keptKind(), L"Web");
}

// The viewport-lighting-mode question.

TEST_F(LightTest, AKeptLightLeavesTheAnswerOfTheDialog) {
    zwutads::setVar(L"DEFAULTLIGHTING", 1);

    EXPECT_EQ(answer({L"1", L"P", L"1,2,3", L""}), RTNORM);

    EXPECT_EQ(shortVariable(L"DEFAULTLIGHTING"), 0);
    EXPECT_FALSE(CZrMultiLight::s_skipLightingDialogOnce);
}

TEST_F(LightTest, AThrownAwayLightLeavesTheDefaultLightsAlone) {
    zwutads::setVar(L"DEFAULTLIGHTING", 1);

    EXPECT_EQ(answer({L"1", L"P", L"1,2,3", L"^C"}), RTCAN);

    EXPECT_EQ(shortVariable(L"DEFAULTLIGHTING"), 1);
    EXPECT_FALSE(CZrMultiLight::s_skipLightingDialogOnce);
}

TEST_F(LightTest, ARefusedKindLeavesTheNextQuestionSkipped) {
    zwutads::setVar(L"LIGHTINGUNITS", 0);

    EXPECT_EQ(answer({L"P"}), RTERROR);

    EXPECT_TRUE(CZrMultiLight::s_skipLightingDialogOnce);
}

TEST_F(LightTest, EscAtTheKindSkipsNoQuestion) {
    EXPECT_EQ(answer({L"^C"}), RTCAN);

    EXPECT_FALSE(CZrMultiLight::s_skipLightingDialogOnce);
}

TEST_F(LightTest, CalledByAProgramItShowsNoDialog) {
    zwutads::setVar(L"DEFAULTLIGHTING", 1);

    EXPECT_EQ(answer({L"D", L"0,0,0", L"1,1,1", L""}, true), RTNORM);

    EXPECT_FALSE(front().lastDialog());
    EXPECT_TRUE(CZrMultiLight::s_calledFromScript);
    EXPECT_EQ(shortVariable(L"DEFAULTLIGHTING"), 1);
}

TEST_F(LightTest, TypedItIsNotCalledByAProgram) {
    CZrMultiLight::s_calledFromScript = true;

    EXPECT_EQ(answer({L"P", L"1,2,3", L""}), RTNORM);

    EXPECT_FALSE(CZrMultiLight::s_calledFromScript);
}

// Words of a language pack that are no kind.

class TranslatedLight : public test::TranslatedModuleTest {
protected:
    int answerWithKeyword(const ZrString& word, std::initializer_list<ZrString> lines) {
        const ZrString words = L"Point Spot Web Targetpoint Freespot freeweB Distant " + word;
        start("quorkwlres.txt", "25087 = \"" + toUtf8(words + L" _" + words) + "\"\n");
        front().type(lines);
        return session_->session().processor().run(L"Light", false).result;
    }
};

TEST_F(TranslatedLight, AWordThatIsNoKindFailsAndIsNotKept) {
    EXPECT_EQ(answerWithKeyword(L"Lantern", {L"L"}), RTERROR);

    EXPECT_EQ(keptKind(), L"Freespot");
}

TEST_F(TranslatedLight, AnAnswerOf259CharactersIsNoKind) {
    EXPECT_EQ(answerWithKeyword(ZrString(259, L'x'), {ZrString(259, L'x')}), RTERROR);
}

TEST_F(TranslatedLight, AnAnswerOf260CharactersIsNoKind) {
    EXPECT_EQ(answerWithKeyword(ZrString(260, L'x'), {ZrString(260, L'x')}), RTERROR);

    EXPECT_EQ(keptKind(), L"Freespot");
}

TEST_F(TranslatedLight, TheShownDefaultComesFromTheLanguagePack) {
    start("quorcmdres.txt", "6806 = \"<Free>\"\n6931 = \"\\nWhich? %s: \"\n");
    front().type(L"^C");

    EXPECT_EQ(session_->session().processor().run(L"Light", false).result, RTCAN);

    EXPECT_EQ(front().asked().front(), L"\nWhich? <Free>: ");
}

} // namespace
} // namespace quor
