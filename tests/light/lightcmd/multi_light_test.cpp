#include "light/lightcmd/multi_light.h"

#include "sdk/db/database.h"
#include "sdk/rx/result_codes.h"
#include "sdk/sys/ads.h"
#include "sdk/sys/global_vars.h"
#include "tests/support/test_session.h"

#include <gtest/gtest.h>
#include <optional>

namespace quor {
namespace {

// What the light is like while the option loop runs.
struct Seen {
    bool on = true;
    ZrDb::Visibility visibility = ZrDb::kVisible;
    GlyphDisplay glyph = GlyphDisplay::kAutomatic;
    ZrGiShadowParameters shadows;
};

// A light command whose steps are given.
class StepCommand : public CZrMultiLight {
public:
    StepCommand() : CZrMultiLight(L"Step") {}
    [[nodiscard]] const wchar_t* typeName() const override { return L"STEPCMD"; }

    DrawableType type = DrawableType::kPointLight;
    bool placed = true;
    int loopResult = RTNORM;
    ZrString prefix = L"Lamp";
    std::optional<Seen> seen;

protected:
    bool placeLight() override {
        m_pLight->setLightType(type);
        return placed;
    }
    ZrString& defaultNamePrefix(ZrString& out) override { return out = prefix; }
    int optionLoop() override {
        seen = Seen{m_pLight->isOn(), m_pLight->visibility(), m_pLight->glyphDisplay(), {}};
        m_pLight->shadowParameters(seen->shadows);
        return applyName() ? loopResult : RTERROR;
    }
};

class MultiLightTest : public testing::Test {
protected:
    MultiLightTest() {
        session_.addCommand(L"STEP", [this] { return command_.execute(); });
        zwutads::setVar(L"DEFAULTLIGHTING", 0);
        CZrMultiLight::s_skipLightingDialogOnce = false;
    }

    int run() { return session_.session().processor().run(L"STEP", false).result; }
    test::ScriptedFrontEnd& front() { return session_.front(); }

    static ZrDbObjectPointer<ZrDbBlockTableRecord> space() {
        return {zrdbWorkingDatabase()->currentSpaceId(), ZrDb::kForRead};
    }
    static std::size_t lightCount() { return space()->entityCount(ZrDbLight::desc()); }
    static ZrDbObjectId firstLight() { return space()->newIterator(ZrDbLight::desc())->entityId(); }
    static short defaultLighting() {
        short value = -1;
        zwutads::getVar(L"DEFAULTLIGHTING", value);
        return value;
    }
    static void setLastNumber(short number) {
        ZrGlobalVarManager* globals = ZrGlobalVarManager::instance();
        globals->reg(ZrGlobalVarManager::kShort, L"LAST_LIGHT_NUM_DISPLAY");
        globals->set(L"LAST_LIGHT_NUM_DISPLAY", number);
    }
    static short lastNumber() {
        short number = -1;
        ZrGlobalVarManager::instance()->get(L"LAST_LIGHT_NUM_DISPLAY", number);
        return number;
    }

    test::TestSession session_;
    StepCommand command_;
};

TEST_F(MultiLightTest, WhileItsOptionsAreAskedTheLightIsOffAndHidden) {
    EXPECT_EQ(run(), RTNORM);

    ASSERT_TRUE(command_.seen);
    EXPECT_FALSE(command_.seen->on);
    EXPECT_EQ(command_.seen->visibility, ZrDb::kInvisible);
    EXPECT_EQ(command_.seen->glyph, GlyphDisplay::kOff);
}

TEST_F(MultiLightTest, AKeptLightIsOnVisibleAndShowsItsGlyphAutomatically) {
    EXPECT_EQ(run(), RTNORM);

    ASSERT_EQ(lightCount(), 1U);
    const ZrDbObjectPointer<ZrDbLight> light(firstLight(), ZrDb::kForRead);
    EXPECT_TRUE(light->isOn());
    EXPECT_EQ(light->visibility(), ZrDb::kVisible);
    EXPECT_EQ(light->glyphDisplay(), GlyphDisplay::kAutomatic);
    EXPECT_EQ(light->name(), L"Lamp1");
}

TEST_F(MultiLightTest, LightsLieOnTheHiddenLayerOfAllLights) {
    EXPECT_EQ(run(), RTNORM);

    const ZrDbObjectPointer<ZrDbLight> light(firstLight(), ZrDb::kForRead);
    const ZrDbObjectPointer<ZrDbLayerTableRecord> layer(light->layerId(), ZrDb::kForRead);
    EXPECT_EQ(light->layer(), L"*ADSK_SYSTEM_LIGHTS");
    EXPECT_EQ(layer->getName(), L"ADSK_SYSTEM_LIGHTS");
    EXPECT_TRUE(layer->isHidden());
    EXPECT_TRUE(layer->isPlottable());
    EXPECT_EQ(layer->color().colorIndex(), 7);
    EXPECT_EQ(layer->lineWeight(), -3);
    EXPECT_EQ(layer->linetypeObjectId(), zrdbWorkingDatabase()->linetypeId(L"CONTINUOUS"));
}

TEST_F(MultiLightTest, ASecondLightUsesTheLayerOfTheFirst) {
    run();
    const ZrDbObjectId first = ZrDbObjectPointer<ZrDbLight>(firstLight(), ZrDb::kForRead)->layerId();
    StepCommand second;
    session_.addCommand(L"SECOND", [&] { return second.execute(); });

    session_.session().processor().run(L"SECOND", false);

    auto lights = space()->newIterator(ZrDbLight::desc());
    lights->step();
    ASSERT_FALSE(lights->done());
    EXPECT_EQ(ZrDbObjectPointer<ZrDbLight>(lights->entityId(), ZrDb::kForRead)->layerId(), first);
}

TEST_F(MultiLightTest, ALightThatIsNotKeptIsErasedAndItsNumberIsUsedUp) {
    command_.loopResult = RTCAN;

    EXPECT_EQ(run(), RTCAN);

    EXPECT_EQ(lightCount(), 0U);
    EXPECT_EQ(lastNumber(), 1);
}

TEST_F(MultiLightTest, ALightThatIsNotPlacedUsesNoNumber) {
    command_.placed = false;

    EXPECT_EQ(run(), RTERROR);

    EXPECT_EQ(lightCount(), 0U);
    EXPECT_EQ(lastNumber(), 0);
    EXPECT_FALSE(command_.seen);
}

TEST_F(MultiLightTest, ANameThatTheLightRefusesErasesIt) {
    command_.prefix = L"\t";

    EXPECT_EQ(run(), RTERROR);

    EXPECT_EQ(lightCount(), 0U);
}

TEST_F(MultiLightTest, ANameThatDiffersOnlyInCaseBlocksItsNumber) {
    command_.prefix = L"LAMP";
    run();
    setLastNumber(0);
    StepCommand second;
    session_.addCommand(L"SECOND", [&] { return second.execute(); });

    session_.session().processor().run(L"SECOND", false);

    EXPECT_TRUE(space()->hasLightNamed(L"lamp2"));
    EXPECT_EQ(lastNumber(), 2);
}

TEST_F(MultiLightTest, TheCounterRunsOverBehind32767) {
    setLastNumber(32767);

    EXPECT_EQ(run(), RTNORM);

    EXPECT_TRUE(space()->hasLightNamed(L"Lamp-32768"));
    EXPECT_EQ(lastNumber(), -32768);
}

TEST_F(MultiLightTest, ASpotLightBeginsWithShadowsFromADisk) {
    command_.type = DrawableType::kSpotLight;

    EXPECT_EQ(run(), RTNORM);

    ZrGiShadowParameters expected;
    expected.setExtendedLightShape(ZrGiShadowParameters::kDisk);
    ASSERT_TRUE(command_.seen);
    EXPECT_EQ(command_.seen->shadows, expected);
}

TEST_F(MultiLightTest, OtherLightsBeginWithShadowsFromARectangle) {
    EXPECT_EQ(run(), RTNORM);

    ASSERT_TRUE(command_.seen);
    EXPECT_EQ(command_.seen->shadows, ZrGiShadowParameters());
}

TEST_F(MultiLightTest, TheDialogOffersTwoChoicesAndACheckBox) {
    zwutads::setVar(L"DEFAULTLIGHTING", 1);
    front().type({L"1"});

    EXPECT_EQ(run(), RTNORM);

    EXPECT_TRUE(front().shows(L"光源 - 视口光源模式\n打开默认光源时"));
    EXPECT_TRUE(front().shows(L"关闭默认光源(建议)"));
    EXPECT_TRUE(front().shows(L"使默认光源保持打开状态"));
    EXPECT_TRUE(front().shows(L"添加用户光源时，默认光源将处于打开状态。"));
    EXPECT_TRUE(front().shows(L"始终执行我的当前选择"));
    EXPECT_EQ(defaultLighting(), 0);
}

TEST_F(MultiLightTest, TheChoiceTakesNoEffectWhenTheLightIsNotKept) {
    zwutads::setVar(L"DEFAULTLIGHTING", 1);
    command_.loopResult = RTCAN;
    front().type({L"1"});

    EXPECT_EQ(run(), RTCAN);

    EXPECT_EQ(defaultLighting(), 1);
}

TEST_F(MultiLightTest, TheTickIsWrittenAtOnceAndNotTheChoice) {
    zwutads::setVar(L"DEFAULTLIGHTING", 1);
    command_.placed = false;
    front().type({L"2+"});

    EXPECT_EQ(run(), RTERROR);

    int ticked = 0;
    EXPECT_TRUE(zwutads::GetValueFromReg(L"allowCurSelectDialog", ticked));
    EXPECT_EQ(ticked, 1);
}

TEST_F(MultiLightTest, WithoutATickNothingIsWritten) {
    zwutads::setVar(L"DEFAULTLIGHTING", 1);
    front().type({L"2"});

    EXPECT_EQ(run(), RTNORM);

    int ticked = 0;
    EXPECT_FALSE(zwutads::GetValueFromReg(L"allowCurSelectDialog", ticked));
    EXPECT_EQ(defaultLighting(), 1);
}

TEST_F(MultiLightTest, ACancelledDialogMakesNoLight) {
    zwutads::setVar(L"DEFAULTLIGHTING", 1);
    front().type({L"^C"});

    EXPECT_EQ(run(), RTERROR);

    EXPECT_EQ(lightCount(), 0U);
    EXPECT_FALSE(command_.seen);
}

TEST_F(MultiLightTest, TheDialogIsSkippedOnceOnRequest) {
    zwutads::setVar(L"DEFAULTLIGHTING", 1);
    CZrMultiLight::s_skipLightingDialogOnce = true;

    EXPECT_EQ(run(), RTNORM);

    EXPECT_TRUE(front().asked().empty());
    EXPECT_FALSE(CZrMultiLight::s_skipLightingDialogOnce);
    EXPECT_EQ(defaultLighting(), 1);
}

TEST_F(MultiLightTest, ACommandThatAProgramStartedAsksNothing) {
    zwutads::setVar(L"DEFAULTLIGHTING", 1);

    EXPECT_EQ(session_.session().processor().run(L"STEP", true).result, RTNORM);

    EXPECT_TRUE(front().asked().empty());
    EXPECT_TRUE(CZrMultiLight::s_calledFromScript);
    EXPECT_EQ(defaultLighting(), 1);
}

TEST_F(MultiLightTest, ACommandThatWasTypedIsNotCalledByAProgram) {
    CZrMultiLight::s_calledFromScript = true;

    EXPECT_EQ(run(), RTNORM);

    EXPECT_FALSE(CZrMultiLight::s_calledFromScript);
}

TEST_F(MultiLightTest, PaperSpaceAnswersMinusOne) {
    zwutads::setVar(L"TILEMODE", 0);

    EXPECT_EQ(run(), -1);

    EXPECT_TRUE(front().shows(L"** 命令仅在模型空间中有效 **"));
    EXPECT_FALSE(command_.seen);
}

TEST_F(MultiLightTest, GenericLightingUnitsAnswerAnErrorBeforeTheSpaceIsLookedAt) {
    zwutads::setVar(L"LIGHTINGUNITS", 0);
    zwutads::setVar(L"TILEMODE", 0);

    EXPECT_EQ(run(), RTERROR);

    EXPECT_TRUE(front().shows(L"该命令不允许在 LIGHTINGUNITS = 0 时使用\n"));
    EXPECT_FALSE(front().shows(L"模型空间"));
}

} // namespace
} // namespace quor
