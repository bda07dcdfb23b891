#include "light/commands/free_spot.h"

#include "tests/light/commands/cone_command.h"

namespace quor {
namespace {

constexpr const wchar_t* outOfRange = L"需要介于 0.00 和 160.00 之间的角度。";
constexpr double degree = 3.141592653589793 / 180;

class FreeSpotTest : public test::ConeCommandTest<CZrFreeSpotCmd> {
protected:
    FreeSpotTest() : ConeCommandTest({L"1,2,3"}) {}
};

TEST_F(FreeSpotTest, ItsTypeWordIsInCapitals) { EXPECT_STREQ(command_.typeName(), L"FREESPOTCMD"); }

TEST_F(FreeSpotTest, ItsKindWordIsFreespot) { EXPECT_STREQ(command_.kindWord(), L"Freespot"); }

TEST_F(FreeSpotTest, WhateverItBeganAsItIsASpotLightWithoutATarget) {
    command_.beginsWithTarget = true;

    EXPECT_EQ(run({L""}), RTNORM);

    EXPECT_EQ(light()->lightType(), DrawableType::kSpotLight);
    EXPECT_FALSE(light()->hasTarget());
}

TEST_F(FreeSpotTest, AHotspotIsKeptInRadians) {
    EXPECT_TRUE(hotspot({L"20"}));

    EXPECT_DOUBLE_EQ(light()->hotspotAngle(), 0.3490658503988659);
    EXPECT_DOUBLE_EQ(light()->falloffAngle(), 0.8726646259971648);
}

TEST_F(FreeSpotTest, AHotspotThatIsLeftAnswersFalse) {
    EXPECT_FALSE(hotspot({L""}));
    EXPECT_FALSE(hotspot({L"^C"}));
    EXPECT_FALSE(hotspot({})); // the input ends

    EXPECT_DOUBLE_EQ(light()->hotspotAngle(), 45 * degree);
}

TEST_F(FreeSpotTest, AHotspotOutOfRangeIsAskedAgainWithAMessage) {
    EXPECT_TRUE(hotspot({L"160.01", L"20"}));

    EXPECT_TRUE(front().shows(outOfRange));
    EXPECT_DOUBLE_EQ(light()->hotspotAngle(), 20 * degree);
}

TEST_F(FreeSpotTest, AHotspotThatIsLeftBehindOneOutOfRangeAnswersFalse) {
    EXPECT_FALSE(hotspot({L"160.01", L""}));
    EXPECT_FALSE(hotspot({L"160.01", L"^C"}));

    EXPECT_DOUBLE_EQ(light()->hotspotAngle(), 45 * degree);
}

TEST_F(FreeSpotTest, AHotspotThatTheLightRefusesAnswersFalseWithoutAMessage) {
    EXPECT_FALSE(hotspot({L"51", L"20"}));

    EXPECT_FALSE(front().shows(outOfRange));
    EXPECT_EQ(front().linesLeft(), 1U);
    EXPECT_DOUBLE_EQ(light()->hotspotAngle(), 45 * degree);
}

TEST_F(FreeSpotTest, AnAngleOfALightThatRefusesAllAnswersFalse) {
    before = [this] { command_.reopenForRead(); };

    EXPECT_FALSE(hotspot({L"20"}));
    EXPECT_FALSE(falloff({L"20"}));
}

TEST_F(FreeSpotTest, WithoutALightNoAngleIsAsked) {
    before = [this] { command_.loseLight(); };

    EXPECT_FALSE(hotspot({}));
    EXPECT_FALSE(falloff({}));

    EXPECT_EQ(lastQuestion(), L"\n指定源位置 <0,0,0>: ");
}

TEST_F(FreeSpotTest, AFalloffThatIsLeftAnswersFalse) {
    EXPECT_FALSE(falloff({L""}));
    EXPECT_FALSE(falloff({L"^C"}));
    EXPECT_FALSE(falloff({}));

    EXPECT_DOUBLE_EQ(light()->hotspotAngle(), 45 * degree);
    EXPECT_DOUBLE_EQ(light()->falloffAngle(), 50 * degree);
}

TEST_F(FreeSpotTest, AFalloffOutOfRangeIsAskedAgainWithAMessage) {
    EXPECT_TRUE(falloff({L"161", L"60"}));

    EXPECT_TRUE(front().shows(outOfRange));
    EXPECT_DOUBLE_EQ(light()->falloffAngle(), 60 * degree);
}

TEST_F(FreeSpotTest, AFalloffWhoseHotspotWouldBeNegativeAnswersFalseWithoutAMessage) {
    EXPECT_FALSE(falloff({L"0.99", L"20"}));

    EXPECT_FALSE(front().shows(outOfRange));
    EXPECT_EQ(front().linesLeft(), 1U);
    EXPECT_DOUBLE_EQ(light()->falloffAngle(), 50 * degree);
}

// Angles in radians, but for what is typed.
struct FreeFalloff {
    double hotspotBefore;
    const wchar_t* typed;
    double hotspot;
    double falloff;
};

class FalloffOfAFreeSpot : public FreeSpotTest, public testing::WithParamInterface<FreeFalloff> {};

TEST_P(FalloffOfAFreeSpot, KeepsAHotspotThatIsInside) {
    beginWith(GetParam().hotspotBefore, 160 * degree);

    EXPECT_TRUE(falloff({GetParam().typed}));

    EXPECT_DOUBLE_EQ(light()->hotspotAngle(), GetParam().hotspot);
    EXPECT_DOUBLE_EQ(light()->falloffAngle(), GetParam().falloff);
}

INSTANTIATE_TEST_SUITE_P(Inside, FalloffOfAFreeSpot,
                         testing::Values(FreeFalloff{44 * degree, L"60", 44 * degree, 60 * degree},
                                         FreeFalloff{44 * degree, L"44.00001", 44 * degree, 44.00001 * degree},
                                         FreeFalloff{0, L"0.00001", 0, 0.00001 * degree}));

INSTANTIATE_TEST_SUITE_P(NotInside, FalloffOfAFreeSpot,
                         testing::Values(FreeFalloff{44 * degree, L"30", 0.5061454830783556, 0.5235987755982988},
                                         FreeFalloff{44 * degree, L"43.99999", 42.99999 * degree, 43.99999 * degree},
                                         FreeFalloff{160 * degree, L"160", 159 * degree, 160 * degree},
                                         FreeFalloff{44 * degree, L"1", 0, degree}));

// Turned into radians and back, some of these come out smaller than they were typed.
class WholeDegreesOfAFreeSpot : public FreeSpotTest, public testing::WithParamInterface<int> {};

TEST_P(WholeDegreesOfAFreeSpot, AreNotInsideThemselves) {
    const ZrString typed = std::to_wstring(GetParam());

    EXPECT_EQ(run({L"F", L"160", L"H", typed, L"F", typed, L""}), RTNORM);

    EXPECT_NEAR(light()->hotspotAngle(), (GetParam() - 1) * degree, 1e-12);
    EXPECT_NEAR(light()->falloffAngle(), GetParam() * degree, 1e-12);
}

INSTANTIATE_TEST_SUITE_P(UpTo160, WholeDegreesOfAFreeSpot, testing::Range(1, 161));

TEST_F(FreeSpotTest, AnAngleOfALightThatIsGoneEndsTheOptions) {
    session_.addCommand(
        L"LOSE", [this] { return command_.loseLight(), RTNORM; }, ed::kTransparent);

    EXPECT_EQ(run({L"'LOSE", L"F", L"20"}), RTNORM);

    EXPECT_EQ(front().linesLeft(), 1U);
}

TEST_F(FreeSpotTest, InputThatBreaksAtAnAngleThrowsTheLightAway) {
    EXPECT_EQ(runToBreak({L"F"}), RTCAN);

    EXPECT_FALSE(light());
}

TEST_F(FreeSpotTest, TheNextLightBeginsWithAnglesOfItsOwn) {
    run({L"H", L"20", L"F", L"30", L""});

    EXPECT_EQ(run({L"H", L"", L""}), RTNORM);

    EXPECT_TRUE(front().shows(L"\nEnter hotspot angle (0.00-160.00) <45.0000>: \n输入要更改的选项"));
    EXPECT_DOUBLE_EQ(light()->falloffAngle(), 50 * degree);
}

} // namespace
} // namespace quor
