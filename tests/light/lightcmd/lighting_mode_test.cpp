#include "tests/light/lightcmd/step_command.h"

namespace quor {
namespace {

class LightingModeTest : public test::StepCommandTest {};

TEST_F(LightingModeTest, TheDialogOffersTwoChoicesACheckBoxAndCancel) {
    zwutads::setVar(L"DEFAULTLIGHTING", 1);
    front().type({L"1"});

    EXPECT_EQ(run(), RTNORM);

    ASSERT_TRUE(front().lastDialog());
    const CZrUiTaskDialog& dialog = *front().lastDialog();
    EXPECT_EQ(dialog.title(), L"光源 - 视口光源模式");
    EXPECT_EQ(dialog.instruction(),
              L"打开默认光源时，无法在视口中显示日光和来自点光源、聚光灯和平行光的光。希望执行什么操作？");
    ASSERT_EQ(dialog.commands().size(), 2U);
    EXPECT_EQ(dialog.commands()[0].id, 6915);
    EXPECT_EQ(dialog.commands()[0].text, L"关闭默认光源(建议)");
    EXPECT_EQ(dialog.commands()[0].explanation, L"");
    EXPECT_EQ(dialog.commands()[1].id, 6916);
    EXPECT_EQ(dialog.commands()[1].text, L"使默认光源保持打开状态");
    EXPECT_EQ(dialog.commands()[1].explanation,
              L"添加用户光源时，默认光源将处于打开状态。要查看用户光源的效果，请手动关闭默认光源。");
    EXPECT_EQ(dialog.checkbox(), L"始终执行我的当前选择");
    EXPECT_EQ(dialog.options(), 25);
    EXPECT_EQ(dialog.buttons(), 8);
    EXPECT_EQ(dialog.width(), 500);
}

TEST_F(LightingModeTest, TheFirstChoiceTurnsTheDefaultLightsOff) {
    zwutads::setVar(L"DEFAULTLIGHTING", 1);
    front().type({L"1"});

    EXPECT_EQ(run(), RTNORM);

    EXPECT_EQ(defaultLighting(), 0);
}

TEST_F(LightingModeTest, TheChoiceTakesNoEffectWhenTheLightIsNotKept) {
    zwutads::setVar(L"DEFAULTLIGHTING", 1);
    command_.loopResult = RTCAN;
    front().type({L"1"});

    EXPECT_EQ(run(), RTCAN);

    EXPECT_EQ(defaultLighting(), 1);
}

TEST_F(LightingModeTest, TheTickIsWrittenAtOnceAndNotTheChoice) {
    zwutads::setVar(L"DEFAULTLIGHTING", 1);
    command_.placed = false;
    front().type({L"1+"});

    EXPECT_EQ(run(), RTERROR);

    int ticked = 0;
    EXPECT_TRUE(zwutads::GetValueFromReg(L"allowCurSelectDialog", ticked));
    EXPECT_EQ(ticked, 1);
    EXPECT_EQ(defaultLighting(), 1);
}

TEST_F(LightingModeTest, WithoutATickNothingIsWritten) {
    zwutads::setVar(L"DEFAULTLIGHTING", 1);
    front().type({L"2"});

    EXPECT_EQ(run(), RTNORM);

    int ticked = 0;
    EXPECT_FALSE(zwutads::GetValueFromReg(L"allowCurSelectDialog", ticked));
    EXPECT_EQ(defaultLighting(), 1);
}

TEST_F(LightingModeTest, ACancelledDialogMakesNoLight) {
    zwutads::setVar(L"DEFAULTLIGHTING", 1);
    front().type({L"^C"});

    EXPECT_EQ(run(), RTERROR);

    EXPECT_EQ(lightCount(), 0U);
    EXPECT_FALSE(command_.seen);
}

TEST_F(LightingModeTest, TheDialogIsSkippedOnceOnRequest) {
    zwutads::setVar(L"DEFAULTLIGHTING", 1);
    CZrMultiLight::s_skipLightingDialogOnce = true;

    EXPECT_EQ(run(), RTNORM);

    EXPECT_TRUE(front().asked().empty());
    EXPECT_FALSE(CZrMultiLight::s_skipLightingDialogOnce);
    EXPECT_EQ(defaultLighting(), 1);
}

TEST_F(LightingModeTest, ACommandThatAProgramStartedAsksNothing) {
    zwutads::setVar(L"DEFAULTLIGHTING", 1);

    EXPECT_EQ(session_.session().processor().run(L"STEP", true).result, RTNORM);

    EXPECT_TRUE(front().asked().empty());
    EXPECT_TRUE(CZrMultiLight::s_calledFromScript);
    EXPECT_EQ(defaultLighting(), 1);
}

TEST_F(LightingModeTest, ACommandThatWasTypedIsNotCalledByAProgram) {
    CZrMultiLight::s_calledFromScript = true;

    EXPECT_EQ(run(), RTNORM);

    EXPECT_FALSE(CZrMultiLight::s_calledFromScript);
}

} // namespace
} // namespace quor
