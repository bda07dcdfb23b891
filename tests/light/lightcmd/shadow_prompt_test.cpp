#include "tests/light/lightcmd/prompt_command.h"

namespace quor {
namespace {

using test::PromptCommand;

const ZrString tooLongReply(260, L'0');

// The record of a new light with something changed.
ZrGiShadowParameters shadowsWith(void (*change)(ZrGiShadowParameters&)) {
    ZrGiShadowParameters shadows;
    change(shadows);
    return shadows;
}

ZrGiShadowParameters softMapped() {
    return shadowsWith([](auto& record) { record.setShadowType(ZrGiShadowParameters::kShadowMaps); });
}

class ShadowPromptTest : public test::PromptCommandTest {
protected:
    void beginWith(const ZrGiShadowParameters& shadows) {
        before = [this, shadows] { command_.m_pLight->setShadowParameters(shadows); };
    }
    [[nodiscard]] ZrGiShadowParameters shadows() const {
        ZrGiShadowParameters shadows;
        light()->shadowParameters(shadows);
        return shadows;
    }
};

using ShadowKindPrompt = ShadowPromptTest;

TEST_F(ShadowKindPrompt, AnswersRtnormForAKind) { EXPECT_EQ(answerOf(&PromptCommand::promptShadow, {L"S"}), RTNORM); }

TEST_F(ShadowKindPrompt, AnswersRtnoneForEnterWhateverTheQuestionsBehindItAnswer) {
    beginWith(softMapped());

    EXPECT_EQ(answerOf(&PromptCommand::promptShadow, {L"", L"^C"}), RTNONE);
}

TEST_F(ShadowKindPrompt, AnswersRtcanForEscWhateverTheQuestionsBehindItAnswer) {
    beginWith(softMapped());

    EXPECT_EQ(answerOf(&PromptCommand::promptShadow, {L"^C", L"512", L"5"}), RTCAN);

    EXPECT_EQ(shadows().shadowMapSize(), 512);
    EXPECT_EQ(shadows().shadowMapSoftness(), 5);
}

TEST_F(ShadowKindPrompt, AnswersRterrorForBrokenInputAndKeepsTheKind) {
    beginWith(shadowsWith([](auto& record) { record.setShadowsOn(false); }));

    EXPECT_EQ(answerToBrokenInput(&PromptCommand::promptShadow), RTERROR);

    EXPECT_FALSE(shadows().shadowsOn());
}

TEST_F(ShadowKindPrompt, ShadowsThatAreOffShowAsOffWhateverTheirTypeAndKeepIt) {
    const ZrGiShadowParameters begun = shadowsWith([](auto& record) {
        record.setShadowType(ZrGiShadowParameters::kShadowMaps);
        record.setShadowsOn(false);
    });
    beginWith(begun);

    EXPECT_EQ(answerOf(&PromptCommand::promptShadow, {L""}), RTNONE);

    EXPECT_TRUE(asked().back().ends_with(L" <关>: "));
    EXPECT_EQ(shadows(), begun);
}

TEST_F(ShadowKindPrompt, TheKindThatTheLightHasIsWrittenAgainByEnterAndEsc) {
    EXPECT_TRUE(writes(&PromptCommand::promptShadow, {L""}));
    EXPECT_TRUE(writes(&PromptCommand::promptShadow, {L"^C"}));
}

TEST_F(ShadowKindPrompt, ALightThatRefusesTheRecordKeepsItsOwn) {
    before = [this] { command_.reopenForRead(); };

    EXPECT_EQ(answerOf(&PromptCommand::promptShadow, {L"O"}), RTNORM);

    EXPECT_TRUE(shadows().shadowsOn());
}

TEST_F(ShadowKindPrompt, WithoutALightAllQuestionsAreAskedAsForANewOne) {
    before = [this] { command_.loseLight(); };

    EXPECT_EQ(answerOf(&PromptCommand::promptShadow, {L"F", L"512", L"5"}), RTNORM);

    EXPECT_EQ(linesLeft(), 0U);
    EXPECT_EQ(shadows(), ZrGiShadowParameters());
}

TEST_F(ShadowKindPrompt, WithoutALightTheMenuOfSampledShadowsWorks) {
    before = [this] { command_.loseLight(); };

    EXPECT_EQ(answerOf(&PromptCommand::promptShadow,
                       {L"A", L"S", L"C", L"1", L"2", L"S", L"R", L"1", L"2", L"A", L"5", L"V", L"Y", L"X"}),
              RTNORM);

    EXPECT_EQ(linesLeft(), 0U);
    EXPECT_EQ(shadows(), ZrGiShadowParameters());
}

using MapSizePrompt = ShadowPromptTest;

TEST_F(MapSizePrompt, AnswersOneForASize) { EXPECT_EQ(answerOf(&PromptCommand::promptShadowMapSize, {L"512"}), 1); }

TEST_F(MapSizePrompt, AnswersOneForEnter) { EXPECT_EQ(answerOf(&PromptCommand::promptShadowMapSize, {L""}), 1); }

TEST_F(MapSizePrompt, AnswersZeroForEsc) { EXPECT_EQ(answerOf(&PromptCommand::promptShadowMapSize, {L"^C"}), 0); }

TEST_F(MapSizePrompt, AnswersZeroForBrokenInput) {
    EXPECT_EQ(answerToBrokenInput(&PromptCommand::promptShadowMapSize), 0);
}

TEST_F(MapSizePrompt, AnswersZeroForAReplyThatIsTooLong) {
    EXPECT_EQ(answerOf(&PromptCommand::promptShadowMapSize, {tooLongReply}), 0);
}

TEST_F(MapSizePrompt, ASizeIsKeptByEnterAndWrittenAgain) {
    beginWith(shadowsWith([](auto& record) { record.setShadowMapSize(1024); }));

    EXPECT_TRUE(writes(&PromptCommand::promptShadowMapSize, {L""}));

    EXPECT_TRUE(asked().back().ends_with(L" <1024>: "));
    EXPECT_EQ(shadows().shadowMapSize(), 1024);
}

TEST_F(MapSizePrompt, NothingIsWrittenWhenItIsLeft) {
    EXPECT_FALSE(writes(&PromptCommand::promptShadowMapSize, {L"^C"}));
    EXPECT_FALSE(writes(&PromptCommand::promptShadowMapSize, {tooLongReply}));
}

using SoftnessPrompt = ShadowPromptTest;

TEST_F(SoftnessPrompt, AnswersTrueForASoftness) {
    EXPECT_TRUE(answerOf(&PromptCommand::promptShadowSoftness, {L"10"}));

    EXPECT_EQ(shadows().shadowMapSoftness(), 10);
}

TEST_F(SoftnessPrompt, AnswersTrueForEsc) { EXPECT_TRUE(answerOf(&PromptCommand::promptShadowSoftness, {L"^C"})); }

TEST_F(SoftnessPrompt, AnswersTrueForBrokenInput) {
    EXPECT_TRUE(answerToBrokenInput(&PromptCommand::promptShadowSoftness));
}

TEST_F(SoftnessPrompt, AnswersTrueForAReplyThatIsTooLong) {
    EXPECT_TRUE(answerOf(&PromptCommand::promptShadowSoftness, {tooLongReply}));
}

TEST_F(SoftnessPrompt, NothingIsWrittenWhenItIsLeft) {
    EXPECT_FALSE(writes(&PromptCommand::promptShadowSoftness, {L"^C"}));
    EXPECT_FALSE(writes(&PromptCommand::promptShadowSoftness, {tooLongReply}));
}

using SampledMenu = ShadowPromptTest;

TEST_F(SampledMenu, AnswersFalseHoweverItIsLeft) {
    EXPECT_FALSE(answerOf(&PromptCommand::promptShadowSampledOptions, {L"X"}));
    EXPECT_FALSE(answerOf(&PromptCommand::promptShadowSampledOptions, {L""}));
    EXPECT_FALSE(answerOf(&PromptCommand::promptShadowSampledOptions, {L"^C"}));
    EXPECT_FALSE(answerToBrokenInput(&PromptCommand::promptShadowSampledOptions));
}

using SamplesPrompt = ShadowPromptTest;

TEST_F(SamplesPrompt, AnswersOneWhenTheLightGotTheCount) {
    EXPECT_EQ(answerOf(&PromptCommand::promptShadowSamples, {L"1024"}), 1);

    EXPECT_EQ(asked().back(), L"\n输入阴影采样 <16>: ");
    EXPECT_EQ(shadows().shadowSamples(), 1024);
}

TEST_F(SamplesPrompt, AnswersZeroForMoreSamplesThanALightTakesAndRemembersThem) {
    EXPECT_EQ(answerOf(&PromptCommand::promptShadowSamples, {L"1025"}), 0);

    EXPECT_EQ(shadows().shadowSamples(), 16);
    EXPECT_EQ(command_.m_shadowSamples, 1025);
}

TEST_F(SamplesPrompt, AnswersZeroForEnter) { EXPECT_EQ(answerOf(&PromptCommand::promptShadowSamples, {L""}), 0); }

TEST_F(SamplesPrompt, AnswersZeroForEsc) { EXPECT_EQ(answerOf(&PromptCommand::promptShadowSamples, {L"^C"}), 0); }

TEST_F(SamplesPrompt, ShowsTheCountOfTheCommandNotThatOfTheLight) {
    beginWith(shadowsWith([](auto& record) { record.setShadowSamples(100); }));

    EXPECT_EQ(answerOf(&PromptCommand::promptShadowSamples, {L"^C"}), 0);

    EXPECT_EQ(asked().back(), L"\n输入阴影采样 <16>: ");
}

using VisibilityPrompt = ShadowPromptTest;

TEST_F(VisibilityPrompt, AnswersTrueForEveryAnswer) {
    EXPECT_TRUE(answerOf(&PromptCommand::promptShadowVisibility, {L"N"}));
    EXPECT_TRUE(answerOf(&PromptCommand::promptShadowVisibility, {L""}));
    EXPECT_TRUE(answerOf(&PromptCommand::promptShadowVisibility, {L"^C"}));
    EXPECT_TRUE(answerToBrokenInput(&PromptCommand::promptShadowVisibility));
}

TEST_F(VisibilityPrompt, WritesTheRecordWhateverIsAnswered) {
    EXPECT_TRUE(writes(&PromptCommand::promptShadowVisibility, {L"Y"}));
    EXPECT_TRUE(writes(&PromptCommand::promptShadowVisibility, {L"N"}));
    EXPECT_TRUE(writes(&PromptCommand::promptShadowVisibility, {L""}));
    EXPECT_TRUE(writes(&PromptCommand::promptShadowVisibility, {L"^C"}));
    front().breakInput();
    EXPECT_TRUE(writes(&PromptCommand::promptShadowVisibility, {}));
}

TEST_F(VisibilityPrompt, EnterAndEscKeepAShapeThatIsVisible) {
    beginWith(shadowsWith([](auto& record) { record.setShapeVisibility(true); }));

    EXPECT_TRUE(answerOf(&PromptCommand::promptShadowVisibility, {L""}));
    EXPECT_TRUE(shadows().shapeVisibility());
    EXPECT_TRUE(answerOf(&PromptCommand::promptShadowVisibility, {L"^C"}));
    EXPECT_TRUE(shadows().shapeVisibility());
}

TEST_F(VisibilityPrompt, YesMakesTheShapeVisible) {
    EXPECT_TRUE(answerOf(&PromptCommand::promptShadowVisibility, {L"Y"}));

    EXPECT_TRUE(shadows().shapeVisibility());
}

TEST_F(VisibilityPrompt, NoHidesAShapeThatIsVisible) {
    beginWith(shadowsWith([](auto& record) { record.setShapeVisibility(true); }));

    EXPECT_TRUE(answerOf(&PromptCommand::promptShadowVisibility, {L"N"}));

    EXPECT_FALSE(shadows().shapeVisibility());
}

using ShapePrompt = ShadowPromptTest;

TEST_F(ShapePrompt, AnswersFalseForEveryAnswer) {
    EXPECT_FALSE(answerOf(&PromptCommand::promptShadowShape, {L"L", L"1"}));
    EXPECT_FALSE(answerOf(&PromptCommand::promptShadowShape, {L"^C"}));
    EXPECT_FALSE(answerToBrokenInput(&PromptCommand::promptShadowShape));
}

TEST_F(ShapePrompt, EnterTakesTheShapeOfASpotLightAlsoWhenItIsNotOffered) {
    command_.prefix = L"聚光灯";
    beginWith(shadowsWith([](auto& record) { record.setExtendedLightShape(ZrGiShadowParameters::kCylinder); }));

    EXPECT_FALSE(answerOf(&PromptCommand::promptShadowShape, {L"", L"3", L"4"}));

    EXPECT_EQ(asked().front(), L"\n输入形 [圆盘形(D)/矩形(R)] <圆柱体>:");
    EXPECT_EQ(shadows(), shadowsWith([](auto& record) {
                  record.setExtendedLightShape(ZrGiShadowParameters::kCylinder);
                  record.setExtendedLightRadius(3);
                  record.setExtendedLightLength(4);
              }));
}

// No command names its lights so.
TEST_F(ShapePrompt, TheWordForFreeSpotLightsOffersTheTwoShapesOfSpotLightsToo) {
    command_.prefix = L"自由聚光灯";
    command_.type = DrawableType::kSpotLight;

    EXPECT_FALSE(answerOf(&PromptCommand::promptShadowShape, {L"L", L"Sphere", L"R", L"2", L"3"}));

    EXPECT_EQ(asked().front(), L"\n输入形 [圆盘形(D)/矩形(R)] <圆盘形>:");
    EXPECT_EQ(linesLeft(), 0U);
    EXPECT_EQ(shadows(), shadowsWith([](auto& record) {
                  record.setExtendedLightShape(ZrGiShadowParameters::kRect);
                  record.setExtendedLightLength(2);
                  record.setExtendedLightWidth(3);
              }));
}

TEST_F(ShapePrompt, TheWordOfTheCommandDecidesNotTheTypeOfTheLight) {
    command_.type = DrawableType::kSpotLight;

    EXPECT_FALSE(answerOf(&PromptCommand::promptShadowShape, {L"^C"}));

    EXPECT_EQ(asked().back(), L"\n输入形 [直线形(L)/圆盘形(D)/矩形(R)/球形(S)/圆柱形(C)] <圆盘形>: ");
}

using SizePrompts = ShadowPromptTest;

TEST_F(SizePrompts, TheLengthAnswersZeroForEscOnly) {
    EXPECT_EQ(answerOf(&PromptCommand::promptShadowLength, {L"1"}), 1);
    EXPECT_EQ(answerOf(&PromptCommand::promptShadowLength, {L""}), 1);
    EXPECT_EQ(answerOf(&PromptCommand::promptShadowLength, {L"^C"}), 0);
    EXPECT_EQ(answerToBrokenInput(&PromptCommand::promptShadowLength), 1);
}

TEST_F(SizePrompts, TheRadiusAnswersZeroForEscOnly) {
    EXPECT_EQ(answerOf(&PromptCommand::promptShadowRadius, {L"1"}), 1);
    EXPECT_EQ(answerOf(&PromptCommand::promptShadowRadius, {L""}), 1);
    EXPECT_EQ(answerOf(&PromptCommand::promptShadowRadius, {L"^C"}), 0);
    EXPECT_EQ(answerToBrokenInput(&PromptCommand::promptShadowRadius), 1);
}

TEST_F(SizePrompts, TheWidthAnswersFalseAlways) {
    EXPECT_FALSE(answerOf(&PromptCommand::promptShadowWidth, {L"1"}));
    EXPECT_FALSE(answerOf(&PromptCommand::promptShadowWidth, {L""}));
    EXPECT_FALSE(answerOf(&PromptCommand::promptShadowWidth, {L"^C"}));
}

TEST_F(SizePrompts, EachChangesItsOwnSize) {
    withLight(
        [this](ZrDbLight&) {
            command_.promptShadowLength();
            command_.promptShadowWidth();
            command_.promptShadowRadius();
        },
        {L"1", L"2", L"3"});

    EXPECT_EQ(shadows(), shadowsWith([](auto& record) {
                  record.setExtendedLightLength(1);
                  record.setExtendedLightWidth(2);
                  record.setExtendedLightRadius(3);
              }));
}

} // namespace
} // namespace quor
