#include "tests/light/lightcmd/prompt_command.h"

#include <bit>

namespace quor {
namespace {

using test::PromptCommand;

// The fields of an attenuation record, for a type that its setter refuses, as a later version of the host may know it.
struct AttenuationFields {
    double start = 1;
    double end = 10;
    int type = 0;
    bool useLimits = false;
};

ZrGiLightAttenuation recordOf(const AttenuationFields& fields) { return std::bit_cast<ZrGiLightAttenuation>(fields); }

class AttenuationPromptTest : public test::PromptCommandTest {
protected:
    void beginWith(const ZrGiLightAttenuation& attenuation) {
        before = [this, attenuation] { command_.m_pLight->setLightAttenuation(attenuation); };
    }
    static ZrGiLightAttenuation attenuation() { return light()->lightAttenuation(); }
};

using AttenuationMenu = AttenuationPromptTest;

TEST_F(AttenuationMenu, AnswersZeroHoweverItIsLeft) {
    EXPECT_EQ(answerOf(&PromptCommand::promptAttenuation, {L"X"}), 0);
    EXPECT_EQ(answerOf(&PromptCommand::promptAttenuation, {L""}), 0);
    EXPECT_EQ(answerOf(&PromptCommand::promptAttenuation, {L"^C"}), 0);
    EXPECT_EQ(answerToBrokenInput(&PromptCommand::promptAttenuation), 0);
}

TEST_F(AttenuationMenu, ShowsTheLimitsOfTheCommandNotThoseOfTheLight) {
    beginWith(recordOf({.start = 3, .end = 30}));

    EXPECT_EQ(answerOf(&PromptCommand::promptAttenuation, {L"L", L"", L"E", L"", L"X"}), 0);

    EXPECT_EQ(asked()[1], L"\n指定起始界限偏移 <1.0000>: ");
    EXPECT_EQ(asked()[3], L"\n指定结束界限偏移 <10.0000>: ");
    EXPECT_EQ(attenuation(), recordOf({.start = 3, .end = 30}));
}

TEST_F(AttenuationMenu, AStartLimitKeepsTheEndLimitOfTheLight) {
    beginWith(recordOf({.start = 3, .end = 30}));

    EXPECT_EQ(answerOf(&PromptCommand::promptAttenuation, {L"L", L"2", L"X"}), 0);

    EXPECT_EQ(attenuation(), recordOf({.start = 2, .end = 30}));
    EXPECT_EQ(command_.m_startLimit, 2);
    EXPECT_EQ(command_.m_endLimit, 10);
}

TEST_F(AttenuationMenu, AnEndLimitKeepsTheStartLimitOfTheLight) {
    beginWith(recordOf({.start = 3, .end = 30}));

    EXPECT_EQ(answerOf(&PromptCommand::promptAttenuation, {L"E", L"20", L"X"}), 0);

    EXPECT_EQ(attenuation(), recordOf({.start = 3, .end = 20}));
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

    EXPECT_EQ(attenuation(), recordOf({.type = ZrGiLightAttenuation::kInverseLinear}));
}

TEST_F(AttenuationTypePrompt, AnswersZeroWhenItIsLeft) {
    EXPECT_EQ(answerOf(&PromptCommand::promptAttenuationType, {L""}), 0);
    EXPECT_EQ(answerOf(&PromptCommand::promptAttenuationType, {L"^C"}), 0);
    EXPECT_EQ(answerToBrokenInput(&PromptCommand::promptAttenuationType), 0);
}

TEST_F(AttenuationTypePrompt, ATypeThatIsUnknownIsShownAsNothingAndKeptByEnter) {
    beginWith(recordOf({.type = 3}));

    EXPECT_EQ(answerOf(&PromptCommand::promptAttenuationType, {L""}), 0);

    EXPECT_TRUE(asked().back().ends_with(L" <>: "));
    EXPECT_EQ(attenuation(), recordOf({.type = 3}));
}

TEST_F(AttenuationTypePrompt, ATypeThatIsUnknownIsReplacedByTheOneChosen) {
    beginWith(recordOf({.type = 3}));

    EXPECT_EQ(answerOf(&PromptCommand::promptAttenuationType, {L"N"}), 1);

    EXPECT_EQ(attenuation(), recordOf({.type = ZrGiLightAttenuation::kNone}));
}

using UseLimitsPrompt = AttenuationPromptTest;

TEST_F(UseLimitsPrompt, AnswersOneForOnAndOff) {
    EXPECT_EQ(answerOf(&PromptCommand::promptAttenuationLimits, {L"N"}), 1);
    EXPECT_TRUE(attenuation().useLimits());

    EXPECT_EQ(answerOf(&PromptCommand::promptAttenuationLimits, {L"F"}), 1);
}

TEST_F(UseLimitsPrompt, AnswersZeroWhenItIsLeft) {
    EXPECT_EQ(answerOf(&PromptCommand::promptAttenuationLimits, {L""}), 0);
    EXPECT_EQ(answerOf(&PromptCommand::promptAttenuationLimits, {L"^C"}), 0);
    EXPECT_EQ(answerToBrokenInput(&PromptCommand::promptAttenuationLimits), 0);
}

TEST_F(UseLimitsPrompt, KeepsATypeThatIsUnknown) {
    beginWith(recordOf({.type = 3}));

    EXPECT_EQ(answerOf(&PromptCommand::promptAttenuationLimits, {L"N"}), 1);

    EXPECT_EQ(attenuation(), recordOf({.type = 3, .useLimits = true}));
}

} // namespace
} // namespace quor
