#include "tests/host/gs/scene_testing.h"

namespace quor::gs {
namespace {

using db::drawings::addLight;
using db::drawings::change;
using testing::ElementsAre;
using testing::Field;
using testing::IsEmpty;

struct LightMarksTest : SceneTest {
    LightMark mark() { return updated().lights.front(); }
    void setGlyphs(long long shown) { database->setHeader(L"$LIGHTGLYPHDISPLAY", 280, shown); }
    void usePhotometricUnits(const ZrString& units) { database->setDictionaryVariable(L"LIGHTINGUNITS", units); }
    void usePhotometricUnits() { usePhotometricUnits(L"2"); }

    ZrDbObjectId light = addLight(*database);
};

TEST_F(LightMarksTest, ALightStandsWhereItIs) {
    change(light, [](ZrDbLight& each) {
        each.setPosition({1, 2, 3});
        each.setTargetLocation({1, 2, -7});
        each.setHasTarget(true);
    });
    EXPECT_EQ(mark().id, light);
    EXPECT_EQ(mark().position, ZrGePoint3d(1, 2, 3));
    EXPECT_EQ(mark().target, ZrGePoint3d(1, 2, -7));
    EXPECT_EQ(mark().direction, -ZrGeVector3d::kZAxis);
    EXPECT_TRUE(mark().hasTarget);
}

TEST_F(LightMarksTest, ALightThatAimsAtItselfShinesDown) {
    change(light, [](ZrDbLight& each) { each.setTargetLocation(each.position()); });
    EXPECT_EQ(mark().direction, -ZrGeVector3d::kZAxis);
}

TEST_F(LightMarksTest, EachKindHasItsGlyph) {
    ASSERT_EQ(mark().kind, GlyphKind::Point);
    change(light, [](ZrDbLight& each) { each.setLightType(DrawableType::kSpotLight); });
    EXPECT_EQ(mark().kind, GlyphKind::Spot);
    change(light, [](ZrDbLight& each) { each.setLightType(DrawableType::kWebLight); });
    EXPECT_EQ(mark().kind, GlyphKind::Web);
    change(light, [](ZrDbLight& each) { each.setLightType(DrawableType::kDistantLight); });
    EXPECT_EQ(mark().kind, GlyphKind::Distant);
}

TEST_F(LightMarksTest, ADistantLightHasNoPlaceToShow) {
    change(light, [](ZrDbLight& each) { each.setLightType(DrawableType::kDistantLight); });
    EXPECT_FALSE(mark().isGlyphShown);
    EXPECT_TRUE(scene->extents().isEmpty());
}

TEST_F(LightMarksTest, LightsStandInDrawingOrder) {
    const ZrDbObjectId second = addLight(*database, L"B");
    const ZrDbObjectId third = addLight(*database, L"C");
    scene->update();
    db::drawings::erase(second);
    EXPECT_THAT(updated().lights, ElementsAre(Field(&LightMark::id, light), Field(&LightMark::id, third)));
    db::drawings::erase(second, false);
    EXPECT_THAT(updated().lights,
                ElementsAre(Field(&LightMark::id, light), Field(&LightMark::id, second), Field(&LightMark::id, third)));
}

TEST_F(LightMarksTest, AnErasedLightIsLeftOut) {
    scene->update();
    db::drawings::erase(light);
    EXPECT_THAT(updated().lights, IsEmpty());
}

TEST_F(LightMarksTest, AutomaticGlyphsFollowTheSettingOfTheDrawing) {
    EXPECT_TRUE(mark().isGlyphShown);
    setGlyphs(0);
    EXPECT_FALSE(mark().isGlyphShown);
    setGlyphs(1);
    EXPECT_TRUE(mark().isGlyphShown);
}

TEST_F(LightMarksTest, AGlyphThatIsOnIsShownWhateverTheSetting) {
    change(light, [](ZrDbLight& each) { each.setGlyphDisplay(GlyphDisplay::kOn); });
    setGlyphs(0);
    EXPECT_TRUE(mark().isGlyphShown);
}

TEST_F(LightMarksTest, AGlyphThatIsOffIsNeverShown) {
    change(light, [](ZrDbLight& each) { each.setGlyphDisplay(GlyphDisplay::kOff); });
    EXPECT_FALSE(mark().isGlyphShown);
}

TEST_F(LightMarksTest, AnInvisibleLightHasNoGlyph) {
    change(light, [](ZrDbLight& each) { each.setVisibility(ZrDb::kInvisible); });
    EXPECT_FALSE(mark().isGlyphShown);
}

TEST_F(LightMarksTest, LightsOnTheirHiddenLayerAreShown) {
    ZrDbObjectId layer = database->makeLayer(L"ADSK_SYSTEM_LIGHTS");
    ZrDbObjectPointer<ZrDbLayerTableRecord>(layer, ZrDb::kForWrite)->setIsHidden(true);
    change(light, [&](ZrDbLight& each) { each.setLayer(layer, true, true); });
    EXPECT_TRUE(mark().isGlyphShown);
}

std::string oldDrawingWithLight(int layerFlags) {
    const std::string layer = "0\nTABLE\n2\nLAYER\n70\n1\n0\nLAYER\n5\n10\n100\nAcDbSymbolTableRecord\n100\n"
                              "AcDbLayerTableRecord\n2\nADSK_SYSTEM_LIGHTS\n70\n" +
                              std::to_string(layerFlags) + "\n62\n7\n6\nContinuous\n0\nENDTAB\n";
    std::string tags = db::drawings::kLightTags;
    tags.replace(tags.find("8\n0\n"), 4, "8\nADSK_SYSTEM_LIGHTS\n");
    return db::drawings::drawing("AC1018", {{}, {}, layer, "0\nLIGHT\n5\nA1\n" + tags, {}});
}

TEST_F(LightMarksTest, InOldDrawingsTheLayerOfLightsIsFrozenOnlyToHideIt) {
    use(db::drawings::parsed(oldDrawingWithLight(5)));
    EXPECT_TRUE(mark().isGlyphShown);
}

TEST_F(LightMarksTest, InOldDrawingsTheLayerOfLightsMayBeFrozenByAPerson) {
    use(db::drawings::parsed(oldDrawingWithLight(1)));
    EXPECT_FALSE(mark().isGlyphShown);
}

TEST_F(LightMarksTest, TheExtentsReachToTheGlyphs) {
    change(light, [](ZrDbLight& each) { each.setPosition({1, 2, 3}); });
    scene->update();
    EXPECT_EQ(scene->extents().low, ZrGePoint3d(1, 2, 3));
}

TEST_F(LightMarksTest, InGenericLightingTheFactorAloneCounts) {
    usePhotometricUnits(L"0");
    change(light, [](ZrDbLight& each) {
        each.setIntensity(2.5);
        each.setLampColorType(LampColorType::kKelvin);
        each.setLampColorTemp(2000);
    });
    EXPECT_EQ(mark().candela, 2.5);
    EXPECT_EQ(mark().rgb, 0xFFFFFF);
}

TEST_F(LightMarksTest, CandelaAreMultipliedByTheFactor) {
    usePhotometricUnits();
    change(light, [](ZrDbLight& each) {
        each.setIntensity(2);
        each.setPhysicalIntensity(750);
    });
    EXPECT_EQ(mark().candela, 1500);
}

TEST_F(LightMarksTest, LumenAreMadeCandela) {
    usePhotometricUnits();
    change(light, [](ZrDbLight& each) {
        each.setPhysicalIntensityMethod(PhysicalIntensityMethod::kFlux);
        each.setPhysicalIntensity(4 * std::numbers::pi * 100);
    });
    EXPECT_NEAR(mark().candela, 100, 1e-9);
}

TEST_F(LightMarksTest, LightsAreReadAgainWhenTheUnitsChange) {
    change(light, [](ZrDbLight& each) { each.setPhysicalIntensity(750); });
    usePhotometricUnits(L"0");
    ASSERT_EQ(mark().candela, 1);
    usePhotometricUnits(L"2");
    EXPECT_EQ(mark().candela, 750);
}

TEST_F(LightMarksTest, AWarmLampGlowsRedderThanDaylight) {
    usePhotometricUnits();
    change(light, [](ZrDbLight& each) { each.setLampColorPreset(LampColorPreset::kD65White); });
    EXPECT_EQ(mark().rgb, 0xFFFFFF);
    change(light, [](ZrDbLight& each) { each.setLampColorPreset(LampColorPreset::kIncandescent); });
    const std::uint32_t rgb = mark().rgb;
    EXPECT_EQ(rgb >> 16U, 255);
    EXPECT_GT(rgb >> 8U & 0xFFU, rgb & 0xFFU);
    EXPECT_LT(rgb >> 8U & 0xFFU, 255);
}

TEST_F(LightMarksTest, AFilterTakesItsPartOfTheLampsColor) {
    usePhotometricUnits();
    change(light, [](ZrDbLight& each) {
        each.setLampColorPreset(LampColorPreset::kD65White);
        each.setLightColor(ZrCmColor::fromRGB(10, 200, 30));
    });
    EXPECT_EQ(mark().rgb, 0x0AC81E);
}

} // namespace
} // namespace quor::gs
