#include "light/lightcmd/replies.h"
#include "tests/light/lightcmd/prompt_command.h"

namespace quor {
namespace {

constexpr int millimetres = 4; // values of INSUNITS
constexpr int metres = 6;
constexpr int feet = 2;

using test::PromptCommand;

class PhotometryPromptTest : public test::PromptCommandTest {};

const ZrString tooLong(260, L'x');

TEST_F(PhotometryPromptTest, TheMenuAnswersHowItWasLeft) {
    EXPECT_EQ(answerOf(&PromptCommand::promptPhotometry, {L"X"}), RTNORM);
    EXPECT_EQ(answerOf(&PromptCommand::promptPhotometry, {L"^C"}), RTCAN);
}

TEST_F(PhotometryPromptTest, InTheMenuEnterAsksForTheIntensityAndTheMenuComesAgain) {
    EXPECT_EQ(answerOf(&PromptCommand::promptPhotometry, {L"", L"", L"C", L"", L"I", L"^C", L"X"}), RTNORM);

    EXPECT_EQ(front().linesLeft(), 0U);
}

TEST_F(PhotometryPromptTest, BrokenInputInTheMenuIsAskedAgain) {
    EXPECT_EQ(answerToBrokenInput(&PromptCommand::promptPhotometry), RTCAN);
}

TEST_F(PhotometryPromptTest, ResultsOfTheIntensity) {
    constexpr auto prompt = &PromptCommand::promptPhotometricIntensity;
    EXPECT_EQ(answerOf(prompt, {L"800"}), RTNORM);
    EXPECT_EQ(answerOf(prompt, {L"20000000"}), RTNORM);
    EXPECT_EQ(answerOf(prompt, {L""}), RTNONE);
    EXPECT_EQ(answerOf(prompt, {L"^C"}), RTCAN);
    EXPECT_EQ(answerOf(prompt, {tooLong}), light::replyTooLong);
    EXPECT_EQ(answerToBrokenInput(prompt), RTERROR);
}

TEST_F(PhotometryPromptTest, TheIntensityAnswersWhatItsAlternativesAnswer) {
    constexpr auto prompt = &PromptCommand::promptPhotometricIntensity;
    EXPECT_EQ(answerOf(prompt, {L"F", L"800"}), 1);
    EXPECT_EQ(answerOf(prompt, {L"F", L""}), -1);
    EXPECT_EQ(answerOf(prompt, {L"I", L"800"}), RTNORM);
    EXPECT_EQ(answerOf(prompt, {L"I", L""}), RTNONE);
}

TEST_F(PhotometryPromptTest, ResultsOfTheFlux) {
    EXPECT_EQ(answerOf(&PromptCommand::promptFlux, {L"800"}), 1);
    EXPECT_EQ(answerOf(&PromptCommand::promptFlux, {L""}), -1);
    EXPECT_EQ(answerOf(&PromptCommand::promptFlux, {L"^C"}), -1);
    EXPECT_EQ(answerToBrokenInput(&PromptCommand::promptFlux), -1);
}

TEST_F(PhotometryPromptTest, ResultsOfTheIlluminance) {
    constexpr auto prompt = &PromptCommand::promptIlluminance;
    EXPECT_EQ(answerOf(prompt, {L"800"}), RTNORM);
    EXPECT_EQ(answerOf(prompt, {L""}), RTNONE);
    EXPECT_EQ(answerOf(prompt, {L"^C"}), RTCAN);
    EXPECT_EQ(answerOf(prompt, {tooLong}), light::replyTooLong);
    EXPECT_EQ(answerToBrokenInput(prompt), RTERROR);
}

TEST_F(PhotometryPromptTest, TheDistanceEndsTheIlluminanceWellWhateverWasAnswered) {
    constexpr auto prompt = &PromptCommand::promptIlluminance;
    EXPECT_EQ(answerOf(prompt, {L"D", L"3"}), RTNORM);
    EXPECT_EQ(answerOf(prompt, {L"D", L""}), RTNORM);
    EXPECT_EQ(answerOf(prompt, {L"D", L"^C"}), RTNORM);
}

TEST_F(PhotometryPromptTest, ResultsOfTheLampColor) {
    constexpr auto prompt = &PromptCommand::promptLampColor;
    EXPECT_EQ(answerOf(prompt, {L"X"}), RTNORM);
    EXPECT_EQ(answerOf(prompt, {L""}), RTNONE);
    EXPECT_EQ(answerOf(prompt, {L"^C"}), RTCAN);
    EXPECT_EQ(answerOf(prompt, {tooLong}), light::replyTooLong);
    EXPECT_EQ(answerToBrokenInput(prompt), RTERROR);
}

TEST_F(PhotometryPromptTest, ResultsOfTheTemperature) {
    constexpr auto prompt = &PromptCommand::promptLampColor;
    EXPECT_EQ(answerOf(prompt, {L"K", L"1000"}), RTNORM);
    EXPECT_EQ(answerOf(prompt, {L"K", L"20000"}), RTNORM);
    EXPECT_EQ(answerOf(prompt, {L"K", L"999"}), RTCAN);
    EXPECT_EQ(answerOf(prompt, {L"K", L"20001"}), RTCAN);
    EXPECT_EQ(answerOf(prompt, {L"K", L""}), RTCAN);
    EXPECT_EQ(answerOf(prompt, {L"K", L"^C"}), RTCAN);
}

TEST_F(PhotometryPromptTest, ResultsOfTheListing) {
    constexpr auto prompt = &PromptCommand::promptLampColor;
    EXPECT_EQ(answerOf(prompt, {L"?", L"^C"}), RTCAN);
    EXPECT_EQ(answerOf(prompt, {L"?", L"", L"X"}), RTNORM);
    EXPECT_EQ(answerOf(prompt, {L"?", tooLong, L"X"}), RTNORM);
}

TEST_F(PhotometryPromptTest, BrokenInputInTheListingIsAskedAgain) {
    front().type(L"?");

    EXPECT_EQ(answerToBrokenInput(&PromptCommand::promptLampColor), RTCAN);
}

TEST_F(PhotometryPromptTest, ACustomColorHasNoNameToShow) {
    front().type(L"");
    withLight([&](ZrDbLight& light) {
        light.setLampColorPreset(LampColorPreset::kCustom);
        command_.promptLampColor();
    });

    EXPECT_TRUE(front().shows(L"[?/开尔文(K)] <>: "));
}

TEST_F(PhotometryPromptTest, ATemperatureThatTheLightRefusesForAnotherReasonIsAskedAgain) {
    before = [this] { command_.reopenForRead(); };

    EXPECT_EQ(answerOf(&PromptCommand::promptLampColor, {L"K", L"3000", L""}), RTNONE);

    EXPECT_EQ(command_.m_lampColorTemp, 3600);
}

TEST_F(PhotometryPromptTest, APresetIsSetByItsKeyword) {
    withLight([&](ZrDbLight& light) {
        light.setLampColorType(LampColorType::kKelvin);

        EXPECT_EQ(command_.setLampColorPresetByName(L"HIGHPRESSURESODIUM"), 0);

        EXPECT_EQ(light.lampColorPreset(), LampColorPreset::kHighPressureSodium);
        EXPECT_EQ(light.lampColorType(), LampColorType::kPreset);
    });
}

TEST_F(PhotometryPromptTest, ANameThatIsNoPresetIsToldAndTheLightTakesItsColorFromThePresetAllTheSame) {
    withLight([&](ZrDbLight& light) {
        light.setLampColorType(LampColorType::kKelvin);

        EXPECT_EQ(command_.setLampColorPresetByName(L"100%s"), -1);

        EXPECT_EQ(light.lampColorType(), LampColorType::kPreset);
    });
    EXPECT_TRUE(front().shows(L"100%s 不是预设颜色。"));
}

TEST_F(PhotometryPromptTest, APresetIsNotSetOnALightThatCannotBeChanged) {
    withLight([&](ZrDbLight&) {
        command_.reopenForRead();

        EXPECT_EQ(command_.setLampColorPresetByName(L"Xenon"), -1);
    });

    EXPECT_EQ(light()->lampColorPreset(), LampColorPreset::kD65White);
    EXPECT_FALSE(front().shows(L"不是预设颜色"));
}

// 1500 cd at 2 units of the drawing; the numbers as in the tests of the conversion.
TEST_F(PhotometryPromptTest, TheConversionFollowsTheUnitsOfTheDrawing) {
    withLight([&](ZrDbLight& light) {
        light.setIlluminanceDistance(2);
        zwutads::setVar(L"INSUNITS", metres);
        EXPECT_DOUBLE_EQ(command_.convertPhotometricIntensity(2), 375);
        zwutads::setVar(L"INSUNITS", feet);
        EXPECT_DOUBLE_EQ(command_.convertPhotometricIntensity(2), 4036.466406266146);
        zwutads::setVar(L"INSUNITS", millimetres);
        EXPECT_DOUBLE_EQ(command_.convertPhotometricIntensity(2), 375000000);
        zwutads::setVar(L"INSUNITS", 0);
        EXPECT_DOUBLE_EQ(command_.convertPhotometricIntensity(2), 375000000);
    });
}

TEST_F(PhotometryPromptTest, TheConversionFollowsTheLightingUnits) {
    withLight([&](ZrDbLight& light) {
        light.setIlluminanceDistance(2);
        zwutads::setVar(L"INSUNITS", feet);
        zwutads::setVar(L"LIGHTINGUNITS", 1);
        EXPECT_DOUBLE_EQ(command_.convertPhotometricIntensity(2), 375);
        zwutads::setVar(L"LIGHTINGUNITS", 0);
        EXPECT_DOUBLE_EQ(command_.convertPhotometricIntensity(2), 0.016145865625064582);
    });
}

TEST_F(PhotometryPromptTest, TheConversionToCandelaAndLumenFollowsTheKindOfTheLight) {
    withLight([&](ZrDbLight& light) {
        EXPECT_DOUBLE_EQ(command_.convertPhotometricIntensity(0), 1500);
        EXPECT_DOUBLE_EQ(command_.convertPhotometricIntensity(1), 18849.55592153876);
        light.setLightType(DrawableType::kSpotLight);
        EXPECT_DOUBLE_EQ(command_.convertPhotometricIntensity(1), 596.0971031946966);
    });
}

TEST_F(PhotometryPromptTest, AtDistanceZeroTheIlluminanceShowsZeroAndTheLightKeepsItsNumber) {
    front().type({L"D", L""});
    withLight([&](ZrDbLight& light) {
        light.setIlluminanceDistance(0);

        EXPECT_EQ(command_.promptIlluminance(), RTNORM);

        EXPECT_EQ(light.physicalIntensity(), 1500);
        EXPECT_EQ(light.physicalIntensityMethod(), PhysicalIntensityMethod::kIlluminance);
    });
    EXPECT_TRUE(front().shows(L"[距离(D)] <0.0000>: "));
}

// The largest of all numbers, in lumen of a spot light, is beyond all numbers in candela.
TEST_F(PhotometryPromptTest, AnIntensityBeyondAllNumbersShowsZeroAndTheLightKeepsItsNumber) {
    front().type({L"F", L""});
    withLight([&](ZrDbLight& light) {
        light.setLightType(DrawableType::kSpotLight);
        light.setPhysicalIntensityMethod(PhysicalIntensityMethod::kFlux);
        light.setPhysicalIntensity(1.7e308);

        EXPECT_EQ(command_.promptPhotometricIntensity(), -1);

        EXPECT_EQ(light.physicalIntensity(), 1.7e308);
    });
    EXPECT_TRUE(front().shows(L"[光通量(F)/照度(I)] <0.0000>: "));
}

TEST_F(PhotometryPromptTest, WithoutALightNothingIsAsked) {
    withLight([&](ZrDbLight&) {
        command_.loseLight();

        EXPECT_EQ(command_.promptPhotometricIntensity(), RTERROR);
        EXPECT_EQ(command_.promptLampColor(), RTERROR);
    });
    EXPECT_TRUE(front().asked().empty());
}

} // namespace
} // namespace quor
