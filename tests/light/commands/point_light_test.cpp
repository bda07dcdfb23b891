#include "light/commands/point_light.h"

#include "tests/light/commands/opened_command.h"

namespace quor {
namespace {

class PointLightTest : public test::OpenedCommandTest<test::OpenedCommand<CZrPointLightCmd>> {
protected:
    PointLightTest() : OpenedCommandTest({L"1,2,3"}) {
        command_.beginsAs = DrawableType::kSpotLight;
        command_.beginsWithTarget = true;
    }
};

TEST_F(PointLightTest, WhateverItBeganAsItIsAPointLightWithoutATarget) {
    EXPECT_EQ(run({L""}), RTNORM);

    ASSERT_TRUE(light());
    EXPECT_EQ(light()->lightType(), DrawableType::kPointLight);
    EXPECT_FALSE(light()->hasTarget());
}

TEST_F(PointLightTest, ItsKindWordIsPoint) { EXPECT_STREQ(command_.kindWord(), L"Point"); }

TEST_F(PointLightTest, InputThatBreaksAtTheNameIsToldAsAnInvalidName) {
    EXPECT_EQ(runToBreak({L"N"}), RTCAN);

    EXPECT_TRUE(front().shows(L"\n\"\"是无效光源名称。\n"));
    EXPECT_EQ(lightCount(), 0U);
}

} // namespace
} // namespace quor
