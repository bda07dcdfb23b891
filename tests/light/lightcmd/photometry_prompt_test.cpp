#include "light/lightcmd/multi_light.h"
#include "light/lightcmd/replies.h"
#include "sdk/rx/result_codes.h"
#include "sdk/sys/ads.h"
#include "tests/support/test_session.h"

#include <functional>
#include <gtest/gtest.h>

namespace quor {
namespace {

constexpr int millimetres = 4; // values of INSUNITS
constexpr int metres = 6;
constexpr int feet = 2;

// A point light whose option loop is one given step.
class PromptCommand : public CZrMultiLight {
public:
    PromptCommand() : CZrMultiLight(L"Prompt") {}
    [[nodiscard]] const wchar_t* typeName() const override { return L"PROMPTCMD"; }

    using CZrMultiLight::convertPhotometricIntensity;
    using CZrMultiLight::promptFlux;
    using CZrMultiLight::promptIlluminance;
    using CZrMultiLight::promptLampColor;
    using CZrMultiLight::promptPhotometricIntensity;
    using CZrMultiLight::promptPhotometry;
    using CZrMultiLight::setLampColorPresetByName;

    std::function<void()> step;

    [[nodiscard]] ZrDbLight& light() const { return *m_pLight; }
    [[nodiscard]] double shownTemperature() const { return m_lampColorTemp; }
    void reopen(ZrDb::OpenMode mode) {
        const ZrDbObjectId id = m_pLight->objectId();
        m_pLight->close();
        zrdbOpenObject(m_pLight, id, mode);
    }
    void loseLight() {
        m_pLight->close();
        m_pLight = nullptr;
    }

protected:
    int optionLoop() override {
        step();
        return RTCAN;
    }
};

class PhotometryPromptTest : public testing::Test {
protected:
    PhotometryPromptTest() {
        session_.addCommand(L"PROMPT", [this] { return command_.execute(); });
        zwutads::setVar(L"DEFAULTLIGHTING", 0);
    }

    void withLight(std::function<void()> step) {
        command_.step = std::move(step);
        session_.session().processor().run(L"PROMPT", false);
    }
    // What a prompt answers when the lines are typed.
    int answer(int (PromptCommand::*prompt)(), std::initializer_list<ZrString> lines) {
        front().type(lines);
        int result = 0;
        withLight([&] { result = (command_.*prompt)(); });
        return result;
    }
    int answerOfBrokenInput(int (PromptCommand::*prompt)()) {
        front().breakInput();
        return answer(prompt, {});
    }
    int setPreset(const wchar_t* name) {
        int result = 0;
        withLight([&] { result = command_.setLampColorPresetByName(name); });
        return result;
    }
    test::ScriptedFrontEnd& front() { return session_.front(); }

    test::TestSession session_;
    PromptCommand command_;
};

const ZrString tooLong(260, L'x');

TEST_F(PhotometryPromptTest, TheMenuAnswersHowItWasLeft) {
    EXPECT_EQ(answer(&PromptCommand::promptPhotometry, {L"X"}), RTNORM);
    EXPECT_EQ(answer(&PromptCommand::promptPhotometry, {L"^C"}), RTCAN);
}

TEST_F(PhotometryPromptTest, InTheMenuEnterAsksForTheIntensityAndTheMenuComesAgain) {
    EXPECT_EQ(answer(&PromptCommand::promptPhotometry, {L"", L"", L"C", L"", L"I", L"^C", L"X"}), RTNORM);

    EXPECT_EQ(front().linesLeft(), 0U);
}

TEST_F(PhotometryPromptTest, BrokenInputInTheMenuIsAskedAgain) {
    EXPECT_EQ(answerOfBrokenInput(&PromptCommand::promptPhotometry), RTCAN);
}

TEST_F(PhotometryPromptTest, ResultsOfTheIntensity) {
    constexpr auto prompt = &PromptCommand::promptPhotometricIntensity;
    EXPECT_EQ(answer(prompt, {L"800"}), RTNORM);
    EXPECT_EQ(answer(prompt, {L"20000000"}), RTNORM);
    EXPECT_EQ(answer(prompt, {L""}), RTNONE);
    EXPECT_EQ(answer(prompt, {L"^C"}), RTCAN);
    EXPECT_EQ(answer(prompt, {tooLong}), light::replyTooLong);
    EXPECT_EQ(answerOfBrokenInput(prompt), RTERROR);
}

TEST_F(PhotometryPromptTest, TheIntensityAnswersWhatItsAlternativesAnswer) {
    constexpr auto prompt = &PromptCommand::promptPhotometricIntensity;
    EXPECT_EQ(answer(prompt, {L"F", L"800"}), 1);
    EXPECT_EQ(answer(prompt, {L"F", L""}), -1);
    EXPECT_EQ(answer(prompt, {L"I", L"800"}), RTNORM);
    EXPECT_EQ(answer(prompt, {L"I", L""}), RTNONE);
}

TEST_F(PhotometryPromptTest, ResultsOfTheFlux) {
    EXPECT_EQ(answer(&PromptCommand::promptFlux, {L"800"}), 1);
    EXPECT_EQ(answer(&PromptCommand::promptFlux, {L""}), -1);
    EXPECT_EQ(answer(&PromptCommand::promptFlux, {L"^C"}), -1);
    EXPECT_EQ(answerOfBrokenInput(&PromptCommand::promptFlux), -1);
}

TEST_F(PhotometryPromptTest, ResultsOfTheIlluminance) {
    constexpr auto prompt = &PromptCommand::promptIlluminance;
    EXPECT_EQ(answer(prompt, {L"800"}), RTNORM);
    EXPECT_EQ(answer(prompt, {L""}), RTNONE);
    EXPECT_EQ(answer(prompt, {L"^C"}), RTCAN);
    EXPECT_EQ(answer(prompt, {tooLong}), light::replyTooLong);
    EXPECT_EQ(answerOfBrokenInput(prompt), RTERROR);
}

TEST_F(PhotometryPromptTest, TheDistanceEndsTheIlluminanceWellWhateverWasAnswered) {
    constexpr auto prompt = &PromptCommand::promptIlluminance;
    EXPECT_EQ(answer(prompt, {L"D", L"3"}), RTNORM);
    EXPECT_EQ(answer(prompt, {L"D", L""}), RTNORM);
    EXPECT_EQ(answer(prompt, {L"D", L"^C"}), RTNORM);
}

TEST_F(PhotometryPromptTest, ResultsOfTheLampColor) {
    constexpr auto prompt = &PromptCommand::promptLampColor;
    EXPECT_EQ(answer(prompt, {L"X"}), RTNORM);
    EXPECT_EQ(answer(prompt, {L""}), RTNONE);
    EXPECT_EQ(answer(prompt, {L"^C"}), RTCAN);
    EXPECT_EQ(answer(prompt, {tooLong}), light::replyTooLong);
    EXPECT_EQ(answerOfBrokenInput(prompt), RTERROR);
}

TEST_F(PhotometryPromptTest, ResultsOfTheTemperature) {
    constexpr auto prompt = &PromptCommand::promptLampColor;
    EXPECT_EQ(answer(prompt, {L"K", L"1000"}), RTNORM);
    EXPECT_EQ(answer(prompt, {L"K", L"20000"}), RTNORM);
    EXPECT_EQ(answer(prompt, {L"K", L"999"}), RTCAN);
    EXPECT_EQ(answer(prompt, {L"K", L"20001"}), RTCAN);
    EXPECT_EQ(answer(prompt, {L"K", L""}), RTCAN);
    EXPECT_EQ(answer(prompt, {L"K", L"^C"}), RTCAN);
}

TEST_F(PhotometryPromptTest, ResultsOfTheListing) {
    constexpr auto prompt = &PromptCommand::promptLampColor;
    EXPECT_EQ(answer(prompt, {L"?", L"^C"}), RTCAN);
    EXPECT_EQ(answer(prompt, {L"?", L"", L"X"}), RTNORM);
    EXPECT_EQ(answer(prompt, {L"?", tooLong, L"X"}), RTNORM);
}

TEST_F(PhotometryPromptTest, BrokenInputInTheListingIsAskedAgain) {
    front().type(L"?");

    EXPECT_EQ(answerOfBrokenInput(&PromptCommand::promptLampColor), RTCAN);
}

TEST_F(PhotometryPromptTest, WithoutNamesFromAResourceModuleErrorIsTheNameOfTheFirstPreset) {
    EXPECT_EQ(answer(&PromptCommand::promptLampColor, {L"?", L"error", L""}), RTNONE);

    EXPECT_TRUE(front().shows(L"荧光灯(F)"));
}

TEST_F(PhotometryPromptTest, ACustomColorHasNoNameToShow) {
    front().type(L"");
    withLight([&] {
        command_.light().setLampColorPreset(LampColorPreset::kCustom);
        command_.promptLampColor();
    });

    EXPECT_TRUE(front().shows(L"[?/开尔文(K)] <>: "));
}

TEST_F(PhotometryPromptTest, ATemperatureThatTheLightRefusesForAnotherReasonIsAskedAgain) {
    front().type({L"K", L"3000", L""});
    int result = 0;
    withLight([&] {
        command_.reopen(ZrDb::kForRead);
        result = command_.promptLampColor();
        command_.reopen(ZrDb::kForWrite);
    });

    EXPECT_EQ(result, RTNONE);
    EXPECT_EQ(command_.shownTemperature(), 3600);
}

TEST_F(PhotometryPromptTest, APresetIsSetByItsKeyword) {
    withLight([&] {
        command_.light().setLampColorType(LampColorType::kKelvin);

        EXPECT_EQ(command_.setLampColorPresetByName(L"HIGHPRESSURESODIUM"), 0);

        EXPECT_EQ(command_.light().lampColorPreset(), LampColorPreset::kHighPressureSodium);
        EXPECT_EQ(command_.light().lampColorType(), LampColorType::kPreset);
    });
}

TEST_F(PhotometryPromptTest, ANameThatIsNoPresetIsToldAndTheLightTakesItsColorFromThePresetAllTheSame) {
    withLight([&] {
        command_.light().setLampColorType(LampColorType::kKelvin);

        EXPECT_EQ(command_.setLampColorPresetByName(L"100%s"), -1);

        EXPECT_EQ(command_.light().lampColorType(), LampColorType::kPreset);
    });
    EXPECT_TRUE(front().shows(L"100%s 不是预设颜色。"));
}

TEST_F(PhotometryPromptTest, APresetIsNotSetOnALightThatCannotBeChanged) {
    int result = 0;
    withLight([&] {
        command_.reopen(ZrDb::kForRead);
        result = command_.setLampColorPresetByName(L"Xenon");
        command_.reopen(ZrDb::kForWrite);
        EXPECT_EQ(command_.light().lampColorPreset(), LampColorPreset::kD65White);
    });

    EXPECT_EQ(result, -1);
    EXPECT_FALSE(front().shows(L"不是预设颜色"));
}

// 1500 cd at 2 units of the drawing; the numbers as in the tests of the conversion.
TEST_F(PhotometryPromptTest, TheConversionFollowsTheUnitsOfTheDrawing) {
    withLight([&] {
        command_.light().setIlluminanceDistance(2);
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
    withLight([&] {
        command_.light().setIlluminanceDistance(2);
        zwutads::setVar(L"INSUNITS", feet);
        zwutads::setVar(L"LIGHTINGUNITS", 1);
        EXPECT_DOUBLE_EQ(command_.convertPhotometricIntensity(2), 375);
        zwutads::setVar(L"LIGHTINGUNITS", 0);
        EXPECT_DOUBLE_EQ(command_.convertPhotometricIntensity(2), 0.016145865625064584);
    });
}

TEST_F(PhotometryPromptTest, TheConversionToCandelaAndLumenFollowsTheKindOfTheLight) {
    withLight([&] {
        EXPECT_DOUBLE_EQ(command_.convertPhotometricIntensity(0), 1500);
        EXPECT_DOUBLE_EQ(command_.convertPhotometricIntensity(1), 18849.55592153876);
        command_.light().setLightType(DrawableType::kSpotLight);
        EXPECT_DOUBLE_EQ(command_.convertPhotometricIntensity(1), 596.0971031946966);
    });
}

TEST_F(PhotometryPromptTest, AtDistanceZeroTheIlluminanceShowsZeroAndTheLightKeepsItsNumber) {
    front().type({L"D", L""});
    withLight([&] {
        command_.light().setIlluminanceDistance(0);

        EXPECT_EQ(command_.promptIlluminance(), RTNORM);

        EXPECT_EQ(command_.light().physicalIntensity(), 1500);
        EXPECT_EQ(command_.light().physicalIntensityMethod(), PhysicalIntensityMethod::kIlluminance);
    });
    EXPECT_TRUE(front().shows(L"[距离(D)] <0.0000>: "));
}

// The largest of all numbers, in lumen of a spot light, is beyond all numbers in candela.
TEST_F(PhotometryPromptTest, AnIntensityBeyondAllNumbersShowsZeroAndTheLightKeepsItsNumber) {
    front().type({L"F", L""});
    withLight([&] {
        command_.light().setLightType(DrawableType::kSpotLight);
        command_.light().setPhysicalIntensityMethod(PhysicalIntensityMethod::kFlux);
        command_.light().setPhysicalIntensity(1.7e308);

        EXPECT_EQ(command_.promptPhotometricIntensity(), -1);

        EXPECT_EQ(command_.light().physicalIntensity(), 1.7e308);
    });
    EXPECT_TRUE(front().shows(L"[光通量(F)/照度(I)] <0.0000>: "));
}

TEST_F(PhotometryPromptTest, WithoutALightNothingIsAsked) {
    withLight([&] {
        command_.loseLight();

        EXPECT_EQ(command_.promptPhotometricIntensity(), RTERROR);
        EXPECT_EQ(command_.promptLampColor(), RTERROR);
    });
    EXPECT_TRUE(front().asked().empty());
}

} // namespace
} // namespace quor
