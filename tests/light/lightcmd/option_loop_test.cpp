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

protected:
    int optionLoop() override {
        static constexpr light::LightOption options[] = {
            {L"Name", light::ask<&LoopCommand::countName>},
            {L"Photometry", light::ask<&LoopCommand::countPhotometry>, true},
            {L"shadoW", light::ask<&LoopCommand::countShadow>},
            {L"Color", light::ask<&LoopCommand::loseLight>},
        };
        return runOptionLoop({.standardPrompt = texts.pointOptions,
                              .photometricPrompt = texts.pointPhotometricOptions,
                              .keywords = texts.pointOptionKeywords,
                              .unitsRead = unitsRead,
                              .withoutLight = withoutLight,
                              .options = options});
    }

private:
    void countName() { ++names; }
    int countPhotometry() { return ++photometries; }
    bool countShadow() { return ++shadows > 0; }
    void loseLight() {
        m_pLight->close();
        m_pLight = nullptr;
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
    EXPECT_EQ(answer({L"I", L"Hotspot", L"filterColor", L"X"}), RTNORM);

    EXPECT_EQ(timesAsked(photometricPrompt), 4U);
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
