#include "tests/light/lightcmd/prompt_command.h"

namespace quor {
namespace {

using test::PromptCommand;

ZrGiLightAttenuation limits(double start, double end) {
    ZrGiLightAttenuation attenuation;
    attenuation.setLimits(start, end);
    return attenuation;
}

ZrGiLightAttenuation ofType(ZrGiLightAttenuation::AttenuationType type) {
    ZrGiLightAttenuation attenuation;
    attenuation.setAttenuationType(type);
    return attenuation;
}

class AttenuationPromptTest : public test::PromptCommandTest {
protected:
    void beginWith(const ZrGiLightAttenuation& attenuation) {
        before = [this, attenuation] { command_.m_pLight->setLightAttenuation(attenuation); };
    }
    [[nodiscard]] ZrGiLightAttenuation attenuation() const { return light()->lightAttenuation(); }
};

using AttenuationMenu = AttenuationPromptTest;

TEST_F(AttenuationMenu, AnswersZeroHoweverItIsLeft) {
    EXPECT_EQ(answerOf(&PromptCommand::promptAttenuation, {L"X"}), 0);
    EXPECT_EQ(answerOf(&PromptCommand::promptAttenuation, {L""}), 0);
    EXPECT_EQ(answerOf(&PromptCommand::promptAttenuation, {L"^C"}), 0);
    EXPECT_EQ(answerToBrokenInput(&PromptCommand::promptAttenuation), 0);
}

TEST_F(AttenuationMenu, ShowsTheLimitsOfTheCommandNotThoseOfTheLight) {
    beginWith(limits(3, 30));

    EXPECT_EQ(answerOf(&PromptCommand::promptAttenuation, {L"L", L"", L"E", L"", L"X"}), 0);

    EXPECT_EQ(asked()[1], L"\n指定起始界限偏移 <1.0000>: ");
    EXPECT_EQ(asked()[3], L"\n指定结束界限偏移 <10.0000>: ");
    EXPECT_EQ(attenuation(), limits(3, 30));
}

TEST_F(AttenuationMenu, AStartLimitKeepsTheEndLimitOfTheLight) {
    beginWith(limits(3, 30));

    EXPECT_EQ(answerOf(&PromptCommand::promptAttenuation, {L"L", L"2", L"X"}), 0);

    EXPECT_EQ(attenuation(), limits(2, 30));
    EXPECT_EQ(command_.m_startLimit, 2);
    EXPECT_EQ(command_.m_endLimit, 10);
}

TEST_F(AttenuationMenu, AnEndLimitKeepsTheStartLimitOfTheLight) {
    beginWith(limits(3, 30));

    EXPECT_EQ(answerOf(&PromptCommand::promptAttenuation, {L"E", L"20", L"X"}), 0);

    EXPECT_EQ(attenuation(), limits(3, 20));
    EXPECT_EQ(command_.m_startLimit, 1);
    EXPECT_EQ(command_.m_endLimit, 20);
}

TEST_F(AttenuationMenu, ALightThatRefusesTheRecordKeepsItsOwn) {
    before = [this] { command_.reopenForRead(); };

    EXPECT_EQ(answerOf(&PromptCommand::promptAttenuation, {L"T", L"S", L"U", L"N", L"L", L"2", L"X"}), 0);

    EXPECT_EQ(attenuation(), ZrGiLightAttenuation());
}

TEST_F(AttenuationMenu, WithoutALightAllQuestionsAreAskedAsForANewOne) {
    before = [this] { command_.loseLight(); };

    EXPECT_EQ(answerOf(&PromptCommand::promptAttenuation, {L"T", L"S", L"U", L"N", L"L", L"2", L"E", L"20", L"X"}), 0);

    EXPECT_EQ(linesLeft(), 0U);
    EXPECT_EQ(attenuation(), ZrGiLightAttenuation());
}

using AttenuationTypePrompt = AttenuationPromptTest;

TEST_F(AttenuationTypePrompt, AnswersOneWhenATypeWasChosen) {
    EXPECT_EQ(answerOf(&PromptCommand::promptAttenuationType, {L"I"}), 1);

    EXPECT_EQ(attenuation(), ofType(ZrGiLightAttenuation::kInverseLinear));
}

TEST_F(AttenuationTypePrompt, TheTypeThatTheLightHasIsWrittenTooWhenItIsChosen) {
    EXPECT_TRUE(writes(&PromptCommand::promptAttenuationType, {L"N"}));
}

TEST_F(AttenuationTypePrompt, AnswersZeroWhenItIsLeft) {
    EXPECT_EQ(answerOf(&PromptCommand::promptAttenuationType, {L""}), 0);
    EXPECT_EQ(answerOf(&PromptCommand::promptAttenuationType, {L"^C"}), 0);
    EXPECT_EQ(answerToBrokenInput(&PromptCommand::promptAttenuationType), 0);
}

TEST_F(AttenuationTypePrompt, WritesNothingWhenItIsLeft) {
    EXPECT_FALSE(writes(&PromptCommand::promptAttenuationType, {L""}));
    EXPECT_FALSE(writes(&PromptCommand::promptAttenuationType, {L"^C"}));
    front().breakInput();
    EXPECT_FALSE(writes(&PromptCommand::promptAttenuationType, {}));
}

using UseLimitsPrompt = AttenuationPromptTest;

TEST_F(UseLimitsPrompt, OnAnswersOneAndTurnsThemOn) {
    EXPECT_EQ(answerOf(&PromptCommand::promptAttenuationLimits, {L"N"}), 1);

    EXPECT_TRUE(attenuation().useLimits());
}

TEST_F(UseLimitsPrompt, OffAnswersOneAndTurnsThemOff) {
    ZrGiLightAttenuation limited;
    limited.setUseLimits(true);
    beginWith(limited);

    EXPECT_EQ(answerOf(&PromptCommand::promptAttenuationLimits, {L"F"}), 1);

    EXPECT_FALSE(attenuation().useLimits());
}

TEST_F(UseLimitsPrompt, TheUseThatTheLightMakesIsWrittenTooWhenItIsChosen) {
    EXPECT_TRUE(writes(&PromptCommand::promptAttenuationLimits, {L"F"}));
}

TEST_F(UseLimitsPrompt, AnswersZeroWhenItIsLeft) {
    EXPECT_EQ(answerOf(&PromptCommand::promptAttenuationLimits, {L""}), 0);
    EXPECT_EQ(answerOf(&PromptCommand::promptAttenuationLimits, {L"^C"}), 0);
    EXPECT_EQ(answerToBrokenInput(&PromptCommand::promptAttenuationLimits), 0);
}

TEST_F(UseLimitsPrompt, WritesNothingWhenItIsLeft) {
    EXPECT_FALSE(writes(&PromptCommand::promptAttenuationLimits, {L""}));
    EXPECT_FALSE(writes(&PromptCommand::promptAttenuationLimits, {L"^C"}));
    front().breakInput();
    EXPECT_FALSE(writes(&PromptCommand::promptAttenuationLimits, {}));
}

TEST_F(UseLimitsPrompt, KeepsTheTypeAndTheLimits) {
    ZrGiLightAttenuation begun = limits(3, 30);
    begun.setAttenuationType(ZrGiLightAttenuation::kInverseSquare);
    beginWith(begun);

    EXPECT_EQ(answerOf(&PromptCommand::promptAttenuationLimits, {L"N"}), 1);

    begun.setUseLimits(true);
    EXPECT_EQ(attenuation(), begun);
}

} // namespace
} // namespace quor
