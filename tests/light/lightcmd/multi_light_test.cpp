#include "tests/light/lightcmd/step_command.h"

#include "host/commands/drawing_files.h"

namespace quor {
namespace {

using test::StepCommand;

class MultiLightTest : public test::StepCommandTest {};

TEST_F(MultiLightTest, WhileItIsPlacedTheLightIsOffAndShowsItsGlyph) {
    EXPECT_EQ(run(), RTNORM);

    ASSERT_TRUE(command_.seenPlacing);
    EXPECT_FALSE(command_.seenPlacing->on);
    EXPECT_EQ(command_.seenPlacing->glyph, GlyphDisplay::kOn);
}

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
    EXPECT_EQ(layer->plotStyleName(), L"Color_7");
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

// Shadows that no new light has.
ZrGiShadowParameters otherShadows() {
    ZrGiShadowParameters shadows;
    shadows.setShadowsOn(false);
    shadows.setShadowType(ZrGiShadowParameters::kAreaSampled);
    shadows.setShadowMapSize(1024);
    shadows.setShadowSamples(32);
    shadows.setExtendedLightShape(ZrGiShadowParameters::kCylinder);
    return shadows;
}

TEST_F(MultiLightTest, ASpotLightBeginsWithTheShadowsOfANewLightButFromADisk) {
    command_.type = DrawableType::kSpotLight;
    command_.prepare = [](ZrDbLight& light) { light.setShadowParameters(otherShadows()); };

    EXPECT_EQ(run(), RTNORM);

    ZrGiShadowParameters expected;
    expected.setExtendedLightShape(ZrGiShadowParameters::kDisk);
    ASSERT_TRUE(command_.seen);
    EXPECT_EQ(command_.seen->shadows, expected);
}

TEST_F(MultiLightTest, OtherLightsKeepTheirShadows) {
    command_.prepare = [](ZrDbLight& light) { light.setShadowParameters(otherShadows()); };

    EXPECT_EQ(run(), RTNORM);

    ASSERT_TRUE(command_.seen);
    EXPECT_EQ(command_.seen->shadows, otherShadows());
}

TEST_F(MultiLightTest, WhatThePromptsShowIsTakenFromTheLight) {
    command_.prepare = [](ZrDbLight& light) {
        light.setIntensity(2.5);
        light.setPhysicalIntensity(700);
        light.setLampColorTemp(5000);
        light.setIlluminanceDistance(3);
        ZrGiLightAttenuation attenuation;
        attenuation.setLimits(4, 20);
        light.setLightAttenuation(attenuation);
        light.setShadowParameters(otherShadows());
    };

    EXPECT_EQ(run(), RTNORM);

    EXPECT_EQ(command_.snapshot.intensity, 2.5);
    EXPECT_EQ(command_.snapshot.physicalIntensity, 700);
    EXPECT_EQ(command_.snapshot.lampColorTemp, 5000);
    EXPECT_EQ(command_.snapshot.illuminanceDistance, 3);
    EXPECT_EQ(command_.snapshot.startLimit, 4);
    EXPECT_EQ(command_.snapshot.endLimit, 20);
    EXPECT_EQ(command_.snapshot.shadowSamples, 32);
    EXPECT_EQ(command_.snapshot.flux, 18849.5559);
    EXPECT_EQ(command_.snapshot.illuminance, 1500000000.0);
}

TEST_F(MultiLightTest, ALightThatIsGoneLeavesTheCounterAndTheLightingModeAsIfItWereKept) {
    zwutads::setVar(L"DEFAULTLIGHTING", 1);
    front().type({L"1"});
    command_.losesLight = true;

    EXPECT_EQ(run(), RTNORM);

    EXPECT_EQ(lastNumber(), 1);
    EXPECT_EQ(defaultLighting(), 0);
}

TEST_F(MultiLightTest, ALightThatIsGoneAndNotKeptLeavesTheLightingModeAlone) {
    zwutads::setVar(L"DEFAULTLIGHTING", 1);
    front().type({L"1"});
    command_.losesLight = true;
    command_.loopResult = RTCAN;

    EXPECT_EQ(run(), RTCAN);

    EXPECT_EQ(lastNumber(), 1);
    EXPECT_EQ(defaultLighting(), 1);
}

TEST_F(MultiLightTest, WithoutTheLayerNoLightIsPlaced) {
    ZrDbLayerTable* table = nullptr;
    ASSERT_EQ(zrdbWorkingDatabase()->getLayerTable(table, ZrDb::kForWrite), Quor::eOk);

    EXPECT_EQ(run(), RTERROR);

    table->close();
    EXPECT_EQ(lightCount(), 0U);
    EXPECT_FALSE(command_.seenPlacing);
    EXPECT_FALSE(command_.holdsLight());
}

TEST_F(MultiLightTest, ALightThatCannotBePostedIsThrownAway) {
    {
        const auto held = space();

        EXPECT_EQ(run(), RTERROR);
    }

    EXPECT_EQ(lightCount(), 0U);
    EXPECT_TRUE(command_.seenPlacing);
    EXPECT_FALSE(command_.seen);
    EXPECT_FALSE(command_.holdsLight());
    EXPECT_EQ(lastNumber(), 0);
}

TEST_F(MultiLightTest, TheLayerIsMadeWithoutALinetypeWhereTheDrawingHasNoContinuousOne) {
    ASSERT_EQ(commands::openPath(session_.session(), QUOR_TEST_DATA "/dxf/ez_Minimal_DXF_AC1009.dxf", false), RTNORM);
    ASSERT_FALSE(zrdbWorkingDatabase()->linetypeId(L"CONTINUOUS").isValid());
    zwutads::setVar(L"LIGHTINGUNITS", 2);
    zwutads::setVar(L"DEFAULTLIGHTING", 0);

    EXPECT_EQ(run(), RTNORM);

    const ZrDbObjectPointer<ZrDbLight> light(firstLight(), ZrDb::kForRead);
    EXPECT_EQ(light->layer(), L"*ADSK_SYSTEM_LIGHTS");
}

TEST_F(MultiLightTest, TheKindWordIsTheOneOfTheCommand) {
    EXPECT_STREQ(command_.kindWord(), L"Step");
    EXPECT_EQ(StepCommand(ZrString(300, L'x').c_str()).kindWord(), ZrString(259, L'x'));
}

TEST_F(MultiLightTest, ThroughAViewportOfALayoutLightsGoToModelSpace) {
    zwutads::setVar(L"TILEMODE", 0);
    session_.document().drawing().setCurrentViewport(2);

    EXPECT_EQ(run(), RTNORM);

    const ZrDbObjectPointer<ZrDbBlockTableRecord> model(zrdbWorkingDatabase()->modelSpaceId(), ZrDb::kForRead);
    EXPECT_TRUE(model->hasLightNamed(L"Lamp1"));
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
