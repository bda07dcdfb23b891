#include "light/commands/target_point.h"

#include "tests/light/commands/opened_command.h"

namespace quor {
namespace {

class TargetPointTest : public test::OpenedCommandTest<test::OpenedCommand<CZrTargetPointCmd>> {
protected:
    TargetPointTest() : OpenedCommandTest({L"1,2,3", L"4,5,6"}) { command_.beginsAs = DrawableType::kSpotLight; }
};

TEST_F(TargetPointTest, ItsTypeWordIsInMixedCase) { EXPECT_STREQ(command_.typeName(), L"TargetPointCmd"); }

TEST_F(TargetPointTest, ItsKindWordIsTargetpoint) { EXPECT_STREQ(command_.kindWord(), L"Targetpoint"); }

TEST_F(TargetPointTest, WhateverItBeganAsItIsAPointLightWithATarget) {
    EXPECT_EQ(run({L""}), RTNORM);

    EXPECT_EQ(light()->lightType(), DrawableType::kPointLight);
    EXPECT_TRUE(light()->hasTarget());
}

TEST_F(TargetPointTest, HotspotAndFalloffLeaveTheConeAlone) {
    EXPECT_EQ(run({L"H", L"F", L""}), RTNORM);

    EXPECT_DOUBLE_EQ(light()->hotspotAngle(), 0.7853981633974483);
    EXPECT_DOUBLE_EQ(light()->falloffAngle(), 0.8726646259971648);
}

TEST_F(TargetPointTest, OptionsAreAskedWithoutALightToo) {
    EXPECT_EQ(run({L"'LOSE", L"S", L"F", L"H", L"S", L"N", L"X", L"N"}), RTERROR); // there is nothing to name

    EXPECT_TRUE(front().shows(L"\n输入状态 [开(N)/关(F)] <关>: N"));
    EXPECT_EQ(front().linesLeft(), 1U);
}

TEST_F(TargetPointTest, InputThatBreaksAtTheOptionsThrowsTheLightAway) {
    EXPECT_EQ(runToBreak({L"H"}), RTCAN);

    EXPECT_FALSE(light());
}

TEST_F(TargetPointTest, InputThatBreaksAtTheTargetMakesNoLight) {
    front().type(L"1,2,3");
    front().breakInput();

    EXPECT_EQ(runOnTyped(), RTERROR);

    EXPECT_FALSE(command_.made.isValid());
}

} // namespace
} // namespace quor
