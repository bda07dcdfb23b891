#include "light/commands/free_web.h"

#include "tests/light/commands/opened_command.h"

namespace quor {
namespace {

class FreeWebTest : public test::OpenedCommandTest<test::OpenedCommand<CZrFreeWebCmd>> {
protected:
    FreeWebTest() { command_.beginsAs = DrawableType::kSpotLight; }
};

TEST_F(FreeWebTest, ItsTypeWordIsInCapitals) { EXPECT_STREQ(command_.typeName(), L"FREEWEBCMD"); }

TEST_F(FreeWebTest, ItsKindWordIsFreeweb) { EXPECT_STREQ(command_.kindWord(), L"freeweB"); }

TEST_F(FreeWebTest, ItsNamesBeginWithTheWordForWebLights) { EXPECT_EQ(command_.namePrefix(), L"光域灯光"); }

TEST_F(FreeWebTest, WhateverItBeganAsItIsAWebLightWithoutATarget) {
    command_.beginsWithTarget = true;

    EXPECT_EQ(run({L"1,2,3", L""}), RTNORM);

    EXPECT_EQ(light()->lightType(), DrawableType::kWebLight);
    EXPECT_FALSE(light()->hasTarget());
}

TEST_F(FreeWebTest, ItCanBeUsedWithPhotometricUnits) {
    zwutads::setVar(L"LIGHTINGUNITS", 1);
    EXPECT_TRUE(command_.finishLight());
    zwutads::setVar(L"LIGHTINGUNITS", 2);
    EXPECT_TRUE(command_.finishLight());

    EXPECT_EQ(front().screen(), L"");
}

TEST_F(FreeWebTest, ItCannotBeUsedWithGenericUnitsAndSaysSo) {
    zwutads::setVar(L"LIGHTINGUNITS", 0);

    EXPECT_FALSE(command_.finishLight());

    EXPECT_EQ(front().screen(), L"该命令不允许在 LIGHTINGUNITS = 0 时使用\n");
}

// As Light does, which does not ask first.
TEST_F(FreeWebTest, ExecutedWithGenericUnitsItRefusesToo) {
    zwutads::setVar(L"LIGHTINGUNITS", 0);

    EXPECT_EQ(run({L"1,2,3", L""}), RTERROR);

    EXPECT_EQ(front().screen(), L"该命令不允许在 LIGHTINGUNITS = 0 时使用\n");
    EXPECT_TRUE(front().asked().empty());
    EXPECT_EQ(lightCount(), 0U);
}

TEST_F(FreeWebTest, InputThatBreaksAtTheSourceMakesNoLight) {
    EXPECT_EQ(runToBreak({}), RTERROR);

    EXPECT_EQ(lastQuestion(), L"\n指定源位置 <0,0,0>: ");
    EXPECT_EQ(lightCount(), 0U);
}

TEST_F(FreeWebTest, InputThatBreaksAtTheOptionsThrowsTheLightAway) {
    EXPECT_EQ(runToBreak({L"1,2,3"}), RTCAN);

    EXPECT_EQ(lightCount(), 0U);
}

TEST_F(FreeWebTest, AKeywordForALightThatIsGoneEndsTheOptions) {
    EXPECT_EQ(run({L"1,2,3", L"'LOSE", L"N", L"X"}), RTNORM);

    EXPECT_EQ(front().linesLeft(), 1U);
    EXPECT_EQ(light()->name(), L"");
}

TEST_F(FreeWebTest, ALightThatIsGoneCannotBeNamedAtTheEnd) {
    EXPECT_EQ(run({L"1,2,3", L"'LOSE", L"X"}), RTERROR);
    EXPECT_EQ(run({L"1,2,3", L"'LOSE", L""}), RTERROR);
}

TEST_F(FreeWebTest, TheOptionsOfferTheirKeywords) {
    run({L"1,2,3", L""});

    EXPECT_EQ(front().lastKeywords(), (std::vector<ZrString>{L"Name", L"Intensityfactor", L"Status", L"Photometry",
                                                             L"weB", L"shadoW", L"filterColor", L"eXit"}));
}

TEST_F(FreeWebTest, WhereTheCursorPassesDoesNotCount) {
    front().pick({1, 2, 3}, {{7, 7, 7}, {8, 8, 8}});

    EXPECT_EQ(run({L""}), RTNORM);

    EXPECT_EQ(light()->position(), ZrGePoint3d(1, 2, 3));
    EXPECT_EQ(light()->targetLocation(), ZrGePoint3d(1, 2, -7));
}

} // namespace
} // namespace quor
