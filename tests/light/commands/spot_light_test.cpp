#include "light/commands/spot_light.h"

#include "tests/light/commands/cone_command.h"

namespace quor {
namespace {

constexpr const wchar_t* outOfRange = L"需要介于 0.00 和 160.00 之间的角度。";
constexpr double degree = 3.141592653589793 / 180;

class SpotLightTest : public test::ConeCommandTest<CZrSpotLightCmd> {
protected:
    SpotLightTest() : ConeCommandTest({L"1,2,3", L"4,5,6"}) {}
};

TEST_F(SpotLightTest, ItsTypeWordIsInCapitals) { EXPECT_STREQ(command_.typeName(), L"SPOTLIGHTCMD"); }

TEST_F(SpotLightTest, ItsKindWordIsSpot) { EXPECT_STREQ(command_.kindWord(), L"Spot"); }

TEST_F(SpotLightTest, WhateverItBeganAsItIsASpotLightWithATarget) {
    EXPECT_EQ(run({L""}), RTNORM);

    EXPECT_EQ(light()->lightType(), DrawableType::kSpotLight);
    EXPECT_TRUE(light()->hasTarget());
}

TEST_F(SpotLightTest, AHotspotIsKeptInRadians) {
    EXPECT_TRUE(hotspot({L"20"}));

    EXPECT_DOUBLE_EQ(light()->hotspotAngle(), 0.3490658503988659);
    EXPECT_DOUBLE_EQ(light()->falloffAngle(), 0.8726646259971648);
}

TEST_F(SpotLightTest, AHotspotThatIsLeftIsDone) {
    EXPECT_TRUE(hotspot({L""}));
    EXPECT_TRUE(hotspot({L"^C"}));
    EXPECT_TRUE(hotspot({})); // the input ends

    EXPECT_DOUBLE_EQ(light()->hotspotAngle(), 45 * degree);
}

TEST_F(SpotLightTest, AHotspotOutOfRangeIsToBeAskedAgainWithAMessage) {
    EXPECT_FALSE(hotspot({L"160.01"}));

    EXPECT_TRUE(front().shows(outOfRange));
    EXPECT_DOUBLE_EQ(light()->hotspotAngle(), 45 * degree);
}

TEST_F(SpotLightTest, AHotspotThatTheLightRefusesIsToBeAskedAgainWithoutAMessage) {
    EXPECT_FALSE(hotspot({L"51"}));

    EXPECT_FALSE(front().shows(outOfRange));
    EXPECT_DOUBLE_EQ(light()->hotspotAngle(), 45 * degree);
}

TEST_F(SpotLightTest, AHotspotAsLargeAsATypedFalloffIsAcceptedWhateverItsRounding) {
    beginWith(0, 147 * 3.141592653589793 / 180);

    EXPECT_TRUE(hotspot({L"147"}));
}

TEST_F(SpotLightTest, AHotspotOfALightThatRefusesAllIsToBeAskedAgain) {
    before = [this] { command_.reopenForRead(); };

    EXPECT_FALSE(hotspot({L"20"}));
    EXPECT_FALSE(falloff({L"20"}));
}

TEST_F(SpotLightTest, WithoutALightNoAngleIsAsked) {
    before = [this] { command_.loseLight(); };

    EXPECT_FALSE(hotspot({}));
    EXPECT_FALSE(falloff({}));

    EXPECT_EQ(lastQuestion(), L"\n指定目标位置 <0,0,-10>: ");
}

TEST_F(SpotLightTest, AFalloffThatIsLeftIsDone) {
    EXPECT_TRUE(falloff({L""}));
    EXPECT_TRUE(falloff({L"^C"}));
    EXPECT_TRUE(falloff({}));

    EXPECT_DOUBLE_EQ(light()->hotspotAngle(), 45 * degree);
    EXPECT_DOUBLE_EQ(light()->falloffAngle(), 50 * degree);
}

TEST_F(SpotLightTest, AFalloffOutOfRangeIsToBeAskedAgainWithAMessage) {
    EXPECT_FALSE(falloff({L"160.01"}));

    EXPECT_TRUE(front().shows(outOfRange));
    EXPECT_DOUBLE_EQ(light()->falloffAngle(), 50 * degree);
}

TEST_F(SpotLightTest, AFalloffWhoseHotspotWouldBeNegativeIsToBeAskedAgainWithoutAMessage) {
    EXPECT_FALSE(falloff({L"0.99"}));

    EXPECT_FALSE(front().shows(outOfRange));
    EXPECT_DOUBLE_EQ(light()->hotspotAngle(), 45 * degree);
    EXPECT_DOUBLE_EQ(light()->falloffAngle(), 50 * degree);
}

// Angles in radians, but for what is typed.
struct SpotFalloff {
    double hotspotBefore;
    const wchar_t* typed;
    double hotspot;
    double falloff;
};

class FalloffOfASpotLight : public SpotLightTest, public testing::WithParamInterface<SpotFalloff> {};

TEST_P(FalloffOfASpotLight, TakesTheHotspotWithIt) {
    beginWith(GetParam().hotspotBefore, 160 * degree);

    EXPECT_TRUE(falloff({GetParam().typed}));

    EXPECT_DOUBLE_EQ(light()->hotspotAngle(), GetParam().hotspot);
    EXPECT_DOUBLE_EQ(light()->falloffAngle(), GetParam().falloff);
}

INSTANTIATE_TEST_SUITE_P(Below46OneDegreeInside, FalloffOfASpotLight,
                         testing::Values(SpotFalloff{44 * degree, L"30", 0.5061454830783556, 0.5235987755982988},
                                         SpotFalloff{0, L"30", 0.5061454830783556, 0.5235987755982988},
                                         SpotFalloff{44 * degree, L"1", 0, degree},
                                         SpotFalloff{44 * degree, L"45.99", 0.785223630472249, 45.99 * degree}));

INSTANTIATE_TEST_SUITE_P(From46OnItsRadiansAreTakenForDegrees, FalloffOfASpotLight,
                         testing::Values(SpotFalloff{45 * degree, L"46", 0.013707783890401885, 46 * degree},
                                         SpotFalloff{44 * degree, L"60", 0.7679448708775051 * degree, 60 * degree},
                                         SpotFalloff{160 * degree, L"160", 2.792526803190927 * degree, 160 * degree},
                                         SpotFalloff{0, L"60", 0, 60 * degree}));

TEST_F(SpotLightTest, AnAngleOfALightThatIsGoneEndsTheOptions) {
    session_.addCommand(
        L"LOSE", [this] { return command_.loseLight(), RTNORM; }, ed::kTransparent);

    EXPECT_EQ(run({L"'LOSE", L"H", L"20"}), RTNORM);

    EXPECT_EQ(front().linesLeft(), 1U);
}

TEST_F(SpotLightTest, InputThatBreaksAtAnAngleThrowsTheLightAway) {
    EXPECT_EQ(runToBreak({L"H"}), RTCAN);

    EXPECT_FALSE(light());
}

TEST_F(SpotLightTest, TheNextLightBeginsWithAnglesOfItsOwn) {
    run({L"H", L"20", L"F", L"30", L""});

    EXPECT_EQ(run({L"H", L"", L""}), RTNORM);

    EXPECT_TRUE(front().shows(L"\n输入聚光角 (0.00-160.00) <45.0000>: \n输入要更改的选项"));
    EXPECT_DOUBLE_EQ(light()->falloffAngle(), 50 * degree);
}

} // namespace
} // namespace quor
