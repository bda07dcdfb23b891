#include "light/commands/distant_light.h"

#include "sdk/db/database.h"
#include "sdk/rx/result_codes.h"
#include "tests/light/commands/opened_command.h"
#include "tests/support/translated_session.h"

#include <functional>

namespace quor {
namespace {

constexpr const wchar_t* fromPrompt = L"\n指定光源来向 <0,0,0> 或 [矢量(V)]: ";
constexpr const wchar_t* toPrompt = L"\n指定光源去向 <1,1,1>: ";
constexpr const wchar_t* vectorPrompt = L"\n指定矢量方向 <0.0000,-0.0100,1.0000>: ";

class DistantCommand : public test::OpenedCommand<CZrDistantLightCmd> {
public:
    using CZrDistantLightCmd::m_physicalIntensity;
    using CZrDistantLightCmd::promptDistantDirection;
    using CZrDistantLightCmd::promptPhotometricIntensity;
};

class DistantLightTest : public test::OpenedCommandTest<DistantCommand> {
protected:
    DistantLightTest() { zwutads::SetValueFromReg(L"allowParallelLightDialog", 1); }

    int direction(std::initializer_list<ZrString> lines) {
        return answerOf(&DistantCommand::promptDistantDirection, lines, {L"0,0,0", L"0,0,-1"});
    }
    int candela(std::initializer_list<ZrString> lines) {
        return answerOf(&DistantCommand::promptPhotometricIntensity, lines, {L"0,0,0", L"0,0,-1"});
    }
};

TEST_F(DistantLightTest, ItsTypeWordIsInSmallLetters) { EXPECT_STREQ(command_.typeName(), L"distantlightCmd"); }

TEST_F(DistantLightTest, ItsKindWordIsDistant) { EXPECT_STREQ(command_.kindWord(), L"Distant"); }

TEST_F(DistantLightTest, ItsNamesBeginWithTheWordForDistantLights) { EXPECT_EQ(command_.namePrefix(), L"平行光"); }

TEST_F(DistantLightTest, TheCommandLibraryMayAlwaysExecuteIt) {
    zwutads::setVar(L"LIGHTINGUNITS", 0);

    EXPECT_TRUE(command_.finishLight());

    EXPECT_EQ(front().screen(), L"");
}

TEST_F(DistantLightTest, WhateverItBeganAsItIsADistantLightWithATarget) {
    EXPECT_EQ(run({L"", L"", L""}), RTNORM);

    EXPECT_EQ(light()->lightType(), DrawableType::kDistantLight);
    EXPECT_TRUE(light()->hasTarget());
}

// The direction.

TEST_F(DistantLightTest, TheFirstPointHasNoRubberBandButTheVectorForAKeyword) {
    run({L"^C"});

    EXPECT_EQ(lastQuestion(), fromPrompt);
    EXPECT_EQ(front().lastBase(), std::nullopt);
    EXPECT_EQ(front().lastKeywords(), std::vector<ZrString>{L"Vector"});
}

TEST_F(DistantLightTest, TheSecondPointHasARubberBandAndNoKeyword) {
    run({L"1,2,3", L"^C"});

    EXPECT_EQ(lastQuestion(), toPrompt);
    EXPECT_EQ(front().lastBase(), ZrGePoint3d(1, 2, 3));
    EXPECT_TRUE(front().lastKeywords().empty());
}

TEST_F(DistantLightTest, TheRubberBandBeginsAtTheFirstPointInAnyUcs) {
    session_.run({L"UCS", L"10,20,30", L""});

    run({L"1,2,3", L"^C"});

    EXPECT_EQ(front().lastBase(), ZrGePoint3d(11, 22, 33)); // of the world
}

TEST_F(DistantLightTest, ThePointsArePicked) {
    front().pick({1, 2, 3});
    front().pick({1, 2, 3});
    front().pick({4, 5, 6});

    EXPECT_EQ(run({L""}), RTNORM);

    EXPECT_TRUE(front().shows(L"请输入除“自”位置以外的位置。\n"));
    EXPECT_EQ(light()->position(), ZrGePoint3d(1, 2, 3));
    EXPECT_EQ(light()->targetLocation(), ZrGePoint3d(4, 5, 6));
}

TEST_F(DistantLightTest, InputThatBreaksAtTheFirstPointMakesNoLight) {
    EXPECT_EQ(runToBreak({}), RTERROR);

    EXPECT_EQ(lastQuestion(), fromPrompt);
    EXPECT_EQ(lightCount(), 0U);
}

TEST_F(DistantLightTest, InputThatBreaksAtTheSecondPointMakesNoLight) {
    EXPECT_EQ(runToBreak({L"1,2,3"}), RTERROR);

    EXPECT_EQ(lastQuestion(), toPrompt);
    EXPECT_EQ(lightCount(), 0U);
}

TEST_F(DistantLightTest, InputThatBreaksAtTheVectorMakesNoLight) {
    EXPECT_EQ(runToBreak({L"V"}), RTERROR);

    EXPECT_EQ(lastQuestion(), vectorPrompt);
    EXPECT_EQ(lightCount(), 0U);
}

TEST_F(DistantLightTest, TheDirectionAnswersHowItsQuestionsWereLeft) {
    EXPECT_EQ(direction({L"", L""}), RTNORM);
    EXPECT_EQ(direction({L"V", L""}), RTNORM);
    EXPECT_EQ(direction({L"^C"}), RTCAN);
    EXPECT_EQ(direction({L"", L"^C"}), RTCAN);
    EXPECT_EQ(direction({L"V", L"^C"}), RTCAN);
}

TEST_F(DistantLightTest, ADirectionThatIsBrokenOffAnswersRterror) {
    before = [this] { front().breakInput(); };

    EXPECT_EQ(direction({}), RTERROR);
}

TEST_F(DistantLightTest, WithoutALightNoDirectionIsAsked) {
    before = [this] { command_.loseLight(); };

    EXPECT_EQ(direction({}), RTERROR);

    EXPECT_EQ(lastQuestion(), toPrompt); // that of the placement
    EXPECT_EQ(front().asked().size(), 2U);
}

TEST_F(DistantLightTest, AFirstPointThatTheLightRefusesEndsTheDirection) {
    before = [this] { command_.reopenForRead(); };

    EXPECT_EQ(direction({L"1,2,3", L"4,5,6"}), RTCAN);

    EXPECT_EQ(front().linesLeft(), 1U);
    EXPECT_EQ(light()->position(), ZrGePoint3d(0, 0, 0));
}

// A point of the UCS that the world has no numbers for.
TEST_F(DistantLightTest, ASecondPointThatTheLightRefusesMakesNoLight) {
    session_.run({L"UCS", L"1.7e308,0,0", L""});

    EXPECT_EQ(run({L"0,0,0", L"1.7e308,0,0", L""}), RTERROR);

    EXPECT_EQ(lastQuestion(), toPrompt);
    EXPECT_EQ(lightCount(), 0U);
}

TEST_F(DistantLightTest, AFirstPointThatTheWorldHasNoNumbersForMakesNoLight) {
    session_.run({L"UCS", L"1.7e308,0,0", L""});

    EXPECT_EQ(run({L"1.7e308,0,0", L"0,0,0", L""}), RTERROR);

    EXPECT_EQ(lastQuestion(), fromPrompt);
    EXPECT_EQ(lightCount(), 0U);
}

TEST_F(DistantLightTest, AVectorTakesItsPlaceFromTheOriginOfTheWorld) {
    EXPECT_EQ(run({L"V", L"0,3,-4", L""}), RTNORM);

    EXPECT_EQ(light()->position(), ZrGePoint3d(0, 0, 0));
    EXPECT_EQ(light()->targetLocation(), ZrGePoint3d(0, 0.6, -0.8));
}

TEST_F(DistantLightTest, TheVectorThatIsShownIsMadeAsLongAs1Too) {
    EXPECT_EQ(run({L"V", L"", L""}), RTNORM);

    const ZrGePoint3d target = light()->targetLocation();
    EXPECT_EQ(target.x, 0);
    EXPECT_DOUBLE_EQ(target.y, -0.0099995000374968752);
    EXPECT_DOUBLE_EQ(target.z, 0.99995000374968752);
}

TEST_F(DistantLightTest, AVectorLeavesThePositionAlone) {
    before = [this] { command_.m_pLight->setPosition({10, 20, 30}); };

    EXPECT_EQ(direction({L"V", L"0,3,-4"}), RTNORM);

    EXPECT_EQ(light()->position(), ZrGePoint3d(10, 20, 30));
    EXPECT_EQ(light()->targetLocation(), ZrGePoint3d(0, 0.6, -0.8));
}

// The candela.

TEST_F(DistantLightTest, CandelaThatAreEnteredAnswerRtnorm) {
    EXPECT_EQ(candela({L"800"}), RTNORM);

    EXPECT_EQ(light()->physicalIntensityMethod(), PhysicalIntensityMethod::kPeakIntensity);
    EXPECT_EQ(light()->physicalIntensity(), 800);
    EXPECT_EQ(command_.m_physicalIntensity, 800);
    EXPECT_TRUE(front().lastKeywords().empty());
}

TEST_F(DistantLightTest, CandelaTakeTheLightBackFromLumen) {
    before = [this] {
        command_.m_pLight->setPhysicalIntensityMethod(PhysicalIntensityMethod::kFlux);
        command_.m_pLight->setPhysicalIntensity(12);
    };

    EXPECT_EQ(candela({L"800"}), RTNORM);

    EXPECT_EQ(lastQuestion(), L"\n输入强度 (Cd) <1500.0000>: ");
    EXPECT_EQ(light()->physicalIntensityMethod(), PhysicalIntensityMethod::kPeakIntensity);
    EXPECT_EQ(light()->physicalIntensity(), 800);
}

TEST_F(DistantLightTest, CandelaThatAreLeftAnswerRterror) {
    EXPECT_EQ(candela({L""}), RTERROR);
    EXPECT_EQ(candela({L"^C"}), RTERROR);
    EXPECT_EQ(candela({L"abc", L""}), RTERROR);
    EXPECT_EQ(candela({ZrString(257, L'0') + L"800"}), RTERROR);

    EXPECT_EQ(light()->physicalIntensity(), 1500);
}

TEST_F(DistantLightTest, CandelaThatAreBrokenOffAnswerRterror) {
    before = [this] { front().breakInput(); };

    EXPECT_EQ(candela({}), RTERROR);

    EXPECT_EQ(light()->physicalIntensity(), 1500);
}

TEST_F(DistantLightTest, WithoutALightNoCandelaAreAsked) {
    before = [this] { command_.loseLight(); };

    EXPECT_EQ(candela({}), RTERROR);

    EXPECT_EQ(lastQuestion(), toPrompt);
}

struct Candela {
    const wchar_t* typed;
    double ofTheLight;
    double shown;
};

class CandelaOfADistantLight : public DistantLightTest, public testing::WithParamInterface<Candela> {};

TEST_P(CandelaOfADistantLight, AreThoseOfTheLightAndThoseOfTheNextQuestion) {
    EXPECT_EQ(candela({GetParam().typed}), RTNORM);

    EXPECT_EQ(light()->physicalIntensity(), GetParam().ofTheLight);
    EXPECT_EQ(command_.m_physicalIntensity, GetParam().shown);
}

INSTANTIATE_TEST_SUITE_P(InRange, CandelaOfADistantLight,
                         testing::Values(Candela{L"0", 0, 0}, Candela{L"1e7", 1e7, 1e7},
                                         Candela{L"9999999.9", 9999999.9, 9999999.9}));
INSTANTIATE_TEST_SUITE_P(OutOfRange, CandelaOfADistantLight,
                         testing::Values(Candela{L"-0.1", 1500, -0.1}, Candela{L"10000000.1", 1500, 10000000.1},
                                         Candela{L"2e7", 1500, 2e7}, Candela{L"1e300", 1500, 1e300}));

// The options.

TEST_F(DistantLightTest, AnyKeywordForALightThatIsGoneLeavesTheOptionsWithoutAName) {
    EXPECT_EQ(run({L"", L"", L"'LOSE", L"N", L"X"}), RTERROR);
    EXPECT_EQ(front().linesLeft(), 1U);
}

TEST_F(DistantLightTest, InputThatBreaksAtTheOptionsThrowsTheLightAway) {
    EXPECT_EQ(runToBreak({L"", L""}), RTCAN);

    EXPECT_EQ(lightCount(), 0U);
}

TEST_F(DistantLightTest, TheOptionsOfferTheirKeywords) {
    run({L"", L"", L""});

    EXPECT_EQ(front().lastKeywords(), (std::vector<ZrString>{L"Name", L"Intensity", L"Status", L"Photometry", L"shadoW",
                                                             L"Color", L"filterColor", L"eXit"}));
}

class TranslatedDistantLight : public test::TranslatedModuleTest {};

TEST_F(TranslatedDistantLight, AListWithAttenuationHasIt) {
    start("quorkwlres.txt", "20832 = \"Name Attenuation eXit _Name Attenuation eXit\"\n");
    front().type({L"2", L"", L"", L"A", L"X", L"X"});

    EXPECT_EQ(session_->session().processor().run(L"DISTANTLIGHT", false).result, RTNORM);

    EXPECT_TRUE(front().shows(L"[衰减类型(T)/使用界限(U)/衰减起始界限(L)/衰减结束界限(E)/退出(X)]"));
}

} // namespace
} // namespace quor
