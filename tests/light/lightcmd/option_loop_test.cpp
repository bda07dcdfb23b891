#include "light/lightcmd/option_loop.h"

#include "light/lightcmd/multi_light.h"
#include "sdk/rx/result_codes.h"
#include "sdk/sys/ads.h"
#include "tests/support/test_session.h"

#include <gtest/gtest.h>

namespace quor {
namespace {

using light::texts;
using light::UnitsRead;
using light::WithoutLight;

constexpr const wchar_t* standardPrompt = texts.pointOptions.builtIn;
constexpr const wchar_t* photometricPrompt = texts.pointPhotometricOptions.builtIn;

// A light command that counts what its options are asked.
class LoopCommand : public CZrMultiLight {
public:
    LoopCommand() : CZrMultiLight(L"Loop") {}
    [[nodiscard]] const wchar_t* typeName() const override { return L"LOOPCMD"; }

    UnitsRead unitsRead = UnitsRead::OnEveryPass;
    WithoutLight withoutLight = WithoutLight::EndsAtOnce;
    int names = 0;
    int photometries = 0;
    int shadows = 0;
    int refusals = 0;            // of the prompt below, before it is done
    bool becomesGeneric = false; // while the light is placed

    using CZrMultiLight::usualOptions;

    bool countUntilDone() { return ++names > refusals; }
    void countName() { ++names; }
    int countPhotometry() { return ++photometries; }
    bool countShadow() { return ++shadows > 0; }
    void loseLight() {
        m_pLight->close();
        m_pLight = nullptr;
    }

    const light::Text* keywords = &texts.pointOptionKeywords;
    std::span<const light::LightOption> options; // empty: those of the tests in common
    std::span<const light::LightOption> ownOptions;

protected:
    bool placeLight() override { return !becomesGeneric || zwutads::setVar(L"LIGHTINGUNITS", 0); }
    int optionLoop() override {
        static constexpr light::LightOption common[] = {
            {L"Name", light::ask<&LoopCommand::countName>},
            {L"Photometry", light::ask<&LoopCommand::countPhotometry>, true},
            {L"shadoW", light::ask<&LoopCommand::countShadow>},
            {L"Color", light::ask<&LoopCommand::loseLight>},
            {L"filterColor", light::ask<&LoopCommand::loseLight>},
        };
        return runOptionLoop({.standardPrompt = texts.pointOptions,
                              .photometricPrompt = texts.pointPhotometricOptions,
                              .keywords = *keywords,
                              .unitsRead = unitsRead,
                              .withoutLight = withoutLight,
                              .options = options.empty() ? std::span<const light::LightOption>(common) : options,
                              .ownOptions = ownOptions});
    }
};

class OptionLoopTest : public testing::Test {
protected:
    OptionLoopTest() {
        session_.addCommand(L"LOOP", [this] { return command_.execute(); });
        zwutads::setVar(L"DEFAULTLIGHTING", 0);
    }

    int answer(std::initializer_list<ZrString> lines) {
        session_.front().type(lines);
        return session_.session().processor().run(L"LOOP", false).result;
    }
    // Adds a transparent command that sets LIGHTINGUNITS.
    void addUnitsCommand(const wchar_t* name, short units) {
        session_.addCommand(
            name, [units] { return zwutads::setVar(L"LIGHTINGUNITS", units) ? RTNORM : RTERROR; }, ed::kTransparent);
    }
    [[nodiscard]] std::size_t timesAsked(const wchar_t* prompt) {
        const auto& asked = session_.front().asked();
        return static_cast<std::size_t>(std::count(asked.begin(), asked.end(), prompt));
    }

    test::TestSession session_;
    LoopCommand command_;
};

TEST_F(OptionLoopTest, EachKeywordAsksItsOptionAndTheQuestionComesAgain) {
    EXPECT_EQ(answer({L"N", L"w", L"SHADOW", L"P", L""}), RTNORM);

    EXPECT_EQ(command_.names, 1);
    EXPECT_EQ(command_.shadows, 2);
    EXPECT_EQ(command_.photometries, 1);
    EXPECT_EQ(timesAsked(photometricPrompt), 5U);
}

TEST_F(OptionLoopTest, KeywordsWithoutARowDoNothing) {
    EXPECT_EQ(answer({L"I", L"Hotspot", L"Falloff", L"X"}), RTNORM);

    EXPECT_EQ(timesAsked(photometricPrompt), 4U);
}

TEST_F(OptionLoopTest, FilterColorTypedInFullIsTheOptionColor) {
    EXPECT_EQ(answer({L"filterColor", L"N"}), RTNORM); // the light is gone by then

    EXPECT_EQ(command_.names, 0);
}

TEST_F(OptionLoopTest, AKeywordOf260CharactersIsNoAnswerAndOneOf259Is) {
    const ZrString word(259, L'x');
    const ZrString longer = word + L"x";
    const ZrString list = word + L" " + longer + L" _" + word + L" " + longer;
    const light::Text keywords{1, light::TextSource::Keywords, list.c_str()};
    const light::LightOption options[] = {
        {word.c_str(), light::ask<&LoopCommand::countName>},
        {longer.c_str(), light::ask<&LoopCommand::countShadow>},
    };
    command_.keywords = &keywords;
    command_.options = options;

    EXPECT_EQ(answer({longer, word, L""}), RTNORM);

    EXPECT_EQ(command_.names, 1);
    EXPECT_EQ(command_.shadows, 0);
    EXPECT_EQ(timesAsked(photometricPrompt), 3U);
}

TEST_F(OptionLoopTest, BrokenInputEndsTheLoopAsEsc) {
    session_.front().type(L"N");
    session_.front().breakInput();

    EXPECT_EQ(answer({}), RTCAN);

    EXPECT_EQ(command_.names, 1);
}

TEST_F(OptionLoopTest, EscAnswersRtcan) { EXPECT_EQ(answer({L"N", L"^C"}), RTCAN); }

TEST_F(OptionLoopTest, TheEndOfTheInputIsEsc) { EXPECT_EQ(answer({L"N"}), RTCAN); }

TEST_F(OptionLoopTest, UnitsReadOnEveryPassFollowTheVariable) {
    addUnitsCommand(L"GENERIC", 0);

    EXPECT_EQ(answer({L"'GENERIC", L"P", L"P", L"X"}), RTNORM);

    EXPECT_EQ(command_.photometries, 1); // the first P still answers the question asked with photometric units
    EXPECT_EQ(timesAsked(standardPrompt), 2U);
}

TEST_F(OptionLoopTest, UnitsReadOnceStayWhateverTheVariableBecomes) {
    command_.unitsRead = UnitsRead::OnceAtTheStart;
    addUnitsCommand(L"GENERIC", 0);

    EXPECT_EQ(answer({L"'GENERIC", L"P", L"P", L"X"}), RTNORM);

    EXPECT_EQ(command_.photometries, 2);
    EXPECT_EQ(timesAsked(standardPrompt), 0U);
}

TEST_F(OptionLoopTest, UnitsReadOnceAreThoseOfTheStartNotOfTheCommand) {
    command_.unitsRead = UnitsRead::OnceAtTheStart;
    command_.becomesGeneric = true;
    addUnitsCommand(L"LUX", 2);

    EXPECT_EQ(answer({L"P", L"'LUX", L"P", L"X"}), RTNORM);

    EXPECT_EQ(command_.photometries, 0);
    EXPECT_EQ(timesAsked(photometricPrompt), 0U);
}

TEST_F(OptionLoopTest, UnitsReadOnEveryPassBecomePhotometricAgain) {
    command_.becomesGeneric = true;
    addUnitsCommand(L"FOOTCANDLE", 1);

    EXPECT_EQ(answer({L"P", L"'FOOTCANDLE", L"P", L"P", L"X"}), RTNORM);

    EXPECT_EQ(command_.photometries, 1); // the second P still answers the standard question
    EXPECT_EQ(timesAsked(photometricPrompt), 2U);
}

TEST_F(OptionLoopTest, UnitsNeverReadArePhotometricWhateverTheVariableIs) {
    command_.unitsRead = UnitsRead::Never;
    command_.becomesGeneric = true;

    EXPECT_EQ(answer({L"P", L"X"}), RTNORM);

    EXPECT_EQ(command_.photometries, 1);
    EXPECT_EQ(timesAsked(photometricPrompt), 2U);
    EXPECT_EQ(timesAsked(standardPrompt), 0U);
}

TEST_F(OptionLoopTest, OptionsOfItsOwnAreAnsweredBesideTheOthers) {
    static constexpr light::LightOption own[] = {{L"Hotspot", light::ask<&LoopCommand::countShadow>}};
    command_.ownOptions = own;

    EXPECT_EQ(answer({L"h", L"N", L"_HOTSPOT", L"F", L"X"}), RTNORM);

    EXPECT_EQ(command_.shadows, 2);
    EXPECT_EQ(command_.names, 1);
}

TEST_F(OptionLoopTest, AnOptionOfItsOwnStandsBackBehindOneOfTheOthers) {
    static constexpr light::LightOption own[] = {{L"Name", light::ask<&LoopCommand::countShadow>}};
    command_.ownOptions = own;

    EXPECT_EQ(answer({L"N", L"X"}), RTNORM);

    EXPECT_EQ(command_.names, 1);
    EXPECT_EQ(command_.shadows, 0);
}

TEST_F(OptionLoopTest, AnOptionOfItsOwnMayBePhotometricOnly) {
    static constexpr light::LightOption own[] = {{L"Hotspot", light::ask<&LoopCommand::countShadow>, true}};
    command_.ownOptions = own;
    addUnitsCommand(L"GENERIC", 0);

    EXPECT_EQ(answer({L"H", L"'GENERIC", L"H", L"H", L"X"}), RTNORM);

    EXPECT_EQ(command_.shadows, 2);
}

TEST_F(OptionLoopTest, OfTheUsualOptionsPhotometryAloneNeedsPhotometricUnits) {
    const auto options = LoopCommand::usualOptions();
    const auto needsUnits = [](const light::LightOption& option) { return option.photometricOnly; };

    EXPECT_EQ(options.size(), 8U);
    EXPECT_EQ(std::count_if(options.begin(), options.end(), needsUnits), 1);
    EXPECT_STREQ(std::find_if(options.begin(), options.end(), needsUnits)->keyword, L"Photometry");
}

TEST_F(OptionLoopTest, APromptIsAskedUntilItIsDoneWhereItsOptionSaysSo) {
    static constexpr light::LightOption own[] = {{L"Hotspot", light::askUntilDone<&LoopCommand::countUntilDone>}};
    command_.ownOptions = own;
    command_.refusals = 3;

    EXPECT_EQ(answer({L"H", L"X"}), RTNORM);

    EXPECT_EQ(command_.names, 4);
}

TEST_F(OptionLoopTest, APromptThatIsNotDoneIsAskedOnceElsewhere) {
    static constexpr light::LightOption own[] = {{L"Falloff", light::ask<&LoopCommand::countUntilDone>}};
    command_.ownOptions = own;
    command_.refusals = 3;

    EXPECT_EQ(answer({L"F", L"F", L"X"}), RTNORM);

    EXPECT_EQ(command_.names, 2);
}

TEST_F(OptionLoopTest, WithoutALightAKeywordEndsTheLoopAtOnce) {
    EXPECT_EQ(answer({L"C", L"N", L"N"}), RTNORM);

    EXPECT_EQ(command_.names, 0);
    EXPECT_EQ(session_.front().linesLeft(), 1U);
}

TEST_F(OptionLoopTest, WithoutALightKeywordsAreAnsweredAllTheSameWhereTheCommandSaysSo) {
    command_.withoutLight = WithoutLight::IsIgnored;

    EXPECT_EQ(answer({L"C", L"N", L"N", L""}), RTERROR);

    EXPECT_EQ(command_.names, 2);
}

TEST_F(OptionLoopTest, WithoutALightAKeywordLeavesTheLoopWhereTheCommandSaysSo) {
    command_.withoutLight = WithoutLight::LeavesTheLoop;

    EXPECT_EQ(answer({L"C", L"N", L"N"}), RTERROR);

    EXPECT_EQ(command_.names, 0);
    EXPECT_EQ(session_.front().linesLeft(), 1U);
}

TEST_F(OptionLoopTest, WithoutALightAKeywordEndsTheLoopAtOnceThoughExitWouldNot) {
    command_.withoutLight = WithoutLight::EndsButForExit;

    EXPECT_EQ(answer({L"C", L"N", L"N"}), RTNORM);

    EXPECT_EQ(command_.names, 0);
    EXPECT_EQ(session_.front().linesLeft(), 1U);
}

// Leaving the loop names the light, which without one fails; ending it at once does not.
struct ExitWithoutLight {
    WithoutLight rule;
    int result;
};

class ExitOfALightThatIsGone : public OptionLoopTest, public testing::WithParamInterface<ExitWithoutLight> {};

TEST_P(ExitOfALightThatIsGone, EndsOrLeavesTheLoop) {
    command_.withoutLight = GetParam().rule;

    EXPECT_EQ(answer({L"C", L"X", L"N"}), GetParam().result);

    EXPECT_EQ(session_.front().linesLeft(), 1U);
}

INSTANTIATE_TEST_SUITE_P(AsTheCommandSays, ExitOfALightThatIsGone,
                         testing::Values(ExitWithoutLight{WithoutLight::EndsAtOnce, RTNORM},
                                         ExitWithoutLight{WithoutLight::EndsButForExit, RTERROR},
                                         ExitWithoutLight{WithoutLight::IsIgnored, RTERROR},
                                         ExitWithoutLight{WithoutLight::LeavesTheLoop, RTERROR}));

class EnterAtALightThatIsGone : public OptionLoopTest, public testing::WithParamInterface<WithoutLight> {};

TEST_P(EnterAtALightThatIsGone, LeavesTheLoop) {
    command_.withoutLight = GetParam();

    EXPECT_EQ(answer({L"C", L"", L"N"}), RTERROR);

    EXPECT_EQ(session_.front().linesLeft(), 1U);
}

TEST_P(EnterAtALightThatIsGone, AndEscAnswersRtcan) {
    command_.withoutLight = GetParam();

    EXPECT_EQ(answer({L"C", L"^C", L"N"}), RTCAN);
}

INSTANTIATE_TEST_SUITE_P(WhateverTheCommandSays, EnterAtALightThatIsGone,
                         testing::Values(WithoutLight::EndsAtOnce, WithoutLight::EndsButForExit,
                                         WithoutLight::IsIgnored, WithoutLight::LeavesTheLoop));

} // namespace
} // namespace quor
