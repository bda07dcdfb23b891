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

    void countName() { ++names; }
    int countPhotometry() { return ++photometries; }
    bool countShadow() { return ++shadows > 0; }
    void loseLight() {
        m_pLight->close();
        m_pLight = nullptr;
    }

    const light::Text* keywords = &texts.pointOptionKeywords;
    std::span<const light::LightOption> options; // empty: those of the tests in common

protected:
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
                              .options = options.empty() ? std::span<const light::LightOption>(common) : options});
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
    session_.addCommand(
        L"GENERIC", [] { return zwutads::setVar(L"LIGHTINGUNITS", 0) ? RTNORM : RTERROR; }, ed::kTransparent);

    EXPECT_EQ(answer({L"'GENERIC", L"P", L"P", L"X"}), RTNORM);

    EXPECT_EQ(command_.photometries, 1); // the first P still answers the question asked with photometric units
    EXPECT_EQ(timesAsked(standardPrompt), 2U);
}

TEST_F(OptionLoopTest, UnitsReadOnceStayWhateverTheVariableBecomes) {
    command_.unitsRead = UnitsRead::OnceAtTheStart;
    session_.addCommand(
        L"GENERIC", [] { return zwutads::setVar(L"LIGHTINGUNITS", 0) ? RTNORM : RTERROR; }, ed::kTransparent);

    EXPECT_EQ(answer({L"'GENERIC", L"P", L"P", L"X"}), RTNORM);

    EXPECT_EQ(command_.photometries, 2);
    EXPECT_EQ(timesAsked(standardPrompt), 0U);
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

} // namespace
} // namespace quor
