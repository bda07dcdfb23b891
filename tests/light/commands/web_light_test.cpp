#include "light/commands/web_light.h"

#include "tests/light/commands/opened_command.h"

namespace quor {
namespace {

class WebLightTest : public test::OpenedCommandTest<test::OpenedCommand<CZrWebLightCmd>> {
protected:
    WebLightTest() { command_.beginsAs = DrawableType::kSpotLight; }
};

TEST_F(WebLightTest, ItsTypeWordIsInCapitals) { EXPECT_STREQ(command_.typeName(), L"WEBLIGHTCMD"); }

TEST_F(WebLightTest, ItsKindWordIsWeb) { EXPECT_STREQ(command_.kindWord(), L"Web"); }

TEST_F(WebLightTest, ItsNamesBeginWithTheWordForWebLights) { EXPECT_EQ(command_.namePrefix(), L"光域灯光"); }

TEST_F(WebLightTest, WhateverItBeganAsItIsAWebLightWithATarget) {
    command_.beginsWithTarget = false;

    EXPECT_EQ(run({L"1,2,3", L"4,5,6", L""}), RTNORM);

    EXPECT_EQ(light()->lightType(), DrawableType::kWebLight);
    EXPECT_TRUE(light()->hasTarget());
}

TEST_F(WebLightTest, ItCanBeUsedWithPhotometricUnits) {
    zwutads::setVar(L"LIGHTINGUNITS", 1);
    EXPECT_TRUE(command_.finishLight());
    zwutads::setVar(L"LIGHTINGUNITS", 2);
    EXPECT_TRUE(command_.finishLight());

    EXPECT_EQ(front().screen(), L"");
}

TEST_F(WebLightTest, ItCannotBeUsedWithGenericUnitsAndSaysSo) {
    zwutads::setVar(L"LIGHTINGUNITS", 0);

    EXPECT_FALSE(command_.finishLight());

    EXPECT_EQ(front().screen(), L"该命令不允许在 LIGHTINGUNITS = 0 时使用\n");
}

// As Light does, which does not ask first.
TEST_F(WebLightTest, ExecutedWithGenericUnitsItRefusesToo) {
    zwutads::setVar(L"LIGHTINGUNITS", 0);

    EXPECT_EQ(run({L"1,2,3", L"4,5,6", L""}), RTERROR);

    EXPECT_EQ(front().screen(), L"该命令不允许在 LIGHTINGUNITS = 0 时使用\n");
    EXPECT_TRUE(front().asked().empty());
    EXPECT_EQ(lightCount(), 0U);
}

TEST_F(WebLightTest, InputThatBreaksAtTheSourceMakesNoLight) {
    EXPECT_EQ(runToBreak({}), RTERROR);

    EXPECT_EQ(lastQuestion(), L"\n指定源位置 <0,0,0>: ");
    EXPECT_EQ(lightCount(), 0U);
}

TEST_F(WebLightTest, InputThatBreaksAtTheTargetMakesNoLight) {
    EXPECT_EQ(runToBreak({L"1,2,3"}), RTERROR);

    EXPECT_EQ(lastQuestion(), L"\n指定目标位置 <0,0,-10>: ");
    EXPECT_EQ(lightCount(), 0U);
}

TEST_F(WebLightTest, InputThatBreaksAtTheOptionsThrowsTheLightAway) {
    EXPECT_EQ(runToBreak({L"1,2,3", L"4,5,6"}), RTCAN);

    EXPECT_EQ(lightCount(), 0U);
}

TEST_F(WebLightTest, AKeywordForALightThatIsGoneEndsTheOptions) {
    EXPECT_EQ(run({L"1,2,3", L"4,5,6", L"'LOSE", L"N", L"X"}), RTNORM);

    EXPECT_EQ(front().linesLeft(), 1U);
    EXPECT_EQ(light()->name(), L"");
}

TEST_F(WebLightTest, ALightThatIsGoneCannotBeNamedAtTheEnd) {
    EXPECT_EQ(run({L"1,2,3", L"4,5,6", L"'LOSE", L"X"}), RTERROR);
    EXPECT_EQ(run({L"1,2,3", L"4,5,6", L"'LOSE", L""}), RTERROR);
}

TEST_F(WebLightTest, TheOptionsOfferTheirKeywords) {
    run({L"1,2,3", L"4,5,6", L""});

    EXPECT_EQ(front().lastKeywords(), (std::vector<ZrString>{L"Name", L"Intensityfactor", L"Status", L"Photometry",
                                                             L"weB", L"shadoW", L"filterColor", L"eXit"}));
}

TEST_F(WebLightTest, TheTargetIsDraggedFromTheSource) {
    front().pick({1, 2, 3}, {{7, 7, 7}});
    front().pick({4, 5, 6}, {{8, 8, 8}});

    EXPECT_EQ(run({L""}), RTNORM);

    EXPECT_EQ(light()->position(), ZrGePoint3d(1, 2, 3));
    EXPECT_EQ(light()->targetLocation(), ZrGePoint3d(4, 5, 6));
}

} // namespace
} // namespace quor
