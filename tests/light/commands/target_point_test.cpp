#include "light/commands/target_point.h"

#include "sdk/db/database.h"
#include "sdk/rx/result_codes.h"
#include "sdk/sys/ads.h"
#include "tests/support/test_session.h"

#include <gtest/gtest.h>

namespace quor {
namespace {

// TargetPoint that begins with a light of another kind.
class OpenTargetPoint : public CZrTargetPointCmd {
public:
    ZrDbObjectId made; // the light of the last run

    [[nodiscard]] const wchar_t* kindWord() const { return m_kindWord; }
    void loseLight() {
        m_pLight->close();
        m_pLight = nullptr;
    }

protected:
    bool placeLight() override {
        m_pLight->setLightType(DrawableType::kSpotLight);
        m_pLight->setHasTarget(false);
        return CZrTargetPointCmd::placeLight();
    }
    int optionLoop() override {
        made = m_pLight->objectId();
        return CZrTargetPointCmd::optionLoop();
    }
};

class TargetPointTest : public testing::Test {
protected:
    TargetPointTest() {
        session_.addCommand(L"TARGET", [this] { return command_.execute(); });
        session_.addCommand(
            L"LOSE", [this] { return command_.loseLight(), RTNORM; }, ed::kTransparent);
        zwutads::setVar(L"DEFAULTLIGHTING", 0);
    }

    // Runs the command with these lines behind its two points.
    int run(std::initializer_list<ZrString> lines) {
        front().type({L"1,2,3", L"4,5,6"});
        front().type(lines);
        return runOnTyped();
    }
    int runOnTyped() { return session_.session().processor().run(L"TARGET", false).result; }
    [[nodiscard]] test::ScriptedFrontEnd& front() { return session_.front(); }
    // The light of the last run.
    [[nodiscard]] ZrDbObjectPointer<ZrDbLight> light() const { return {command_.made, ZrDb::kForRead}; }

    test::TestSession session_;
    OpenTargetPoint command_;
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
    front().type({L"1,2,3", L"4,5,6", L"H"});
    front().breakInput();

    EXPECT_EQ(runOnTyped(), RTCAN);

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
