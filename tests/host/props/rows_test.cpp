// Which rows there are, and what they tell.
#include "tests/host/props/selected.h"

#include "host/sys/system_variables.h"
#include "sdk/db/symbol_table.h"

#include <gmock/gmock.h>

#include <filesystem>

namespace quor::props {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsSupersetOf;
using testing::Not;

using RowsOfSelected = Selected;

TEST_F(RowsOfSelected, BeginWithWhatEveryObjectHas) {
    select({addLine()});

    EXPECT_EQ(text("kind"), L"Line");
    EXPECT_EQ(text("layer"), L"0");
    EXPECT_EQ(text("color"), L"ByLayer");
    EXPECT_EQ(text("linetype"), L"ByLayer");
    EXPECT_EQ(text("lineweight"), L"ByLayer");
    EXPECT_EQ(text("visible"), L"yes");
    EXPECT_FALSE(text("handle").empty());
    EXPECT_EQ(row("color").color, std::nullopt);
    EXPECT_EQ(row("handle").editor, Editor::ReadOnly);
    EXPECT_EQ(row("kind").editor, Editor::ReadOnly);
}

TEST_F(RowsOfSelected, LinesHaveTheirEndsAndTheirLength) {
    select({addLine(7)});

    EXPECT_EQ(text("line.start.x"), L"7.0000 mm");
    EXPECT_EQ(text("line.start.y"), L"0.0000 mm");
    EXPECT_EQ(text("line.start.z"), L"0.0000 mm");
    EXPECT_EQ(text("line.end.x"), L"7.0000 mm");
    EXPECT_EQ(text("line.end.y"), L"3.0000 mm");
    EXPECT_EQ(text("line.end.z"), L"4.0000 mm");
    EXPECT_EQ(text("line.length"), L"5.0000 mm");
    EXPECT_EQ(row("line.length").editor, Editor::ReadOnly);
}

TEST_F(RowsOfSelected, FacesHaveTheirCornersAndEdges) {
    select({addFace()});

    EXPECT_EQ(text("face.1.x"), L"0.0000 mm");
    EXPECT_EQ(text("face.3.y"), L"1.0000 mm");
    EXPECT_EQ(text("face.4.z"), L"5.0000 mm");
    EXPECT_EQ(text("face.edge.4"), L"yes");
    EXPECT_EQ(row("face.4.z").label, L"Vertex 4 Z");
}

TEST_F(RowsOfSelected, PointLightsHaveWhatCountsForThem) {
    select({addLight()});

    EXPECT_THAT(ids(),
                ElementsAre("kind", "handle", "layer", "color", "linetype", "lineweight", "visible", "light.name",
                            "light.kind", "light.on", "light.shadows", "light.intensity", "light.color",
                            "photometric.given", "photometric.candela", "photometric.lumen", "photometric.illuminance",
                            "photometric.distance", "photometric.lamp", "photometric.preset", "photometric.result",
                            "geometry.position.x", "geometry.position.y", "geometry.position.z", "geometry.targeted",
                            "attenuation.type", "attenuation.limits", "shadows.type", "glyph.display", "glyph.plot"));
}

TEST_F(RowsOfSelected, TargetsHaveCoordinatesOnlyWhereThereIsOne) {
    const ZrDbObjectId light = addLight();
    select({light});
    EXPECT_THAT(ids(), Not(Contains("geometry.target.x")));

    write(light)->setHasTarget(true);

    EXPECT_EQ(text("geometry.target.x"), L"0.0000 mm");
    EXPECT_EQ(text("geometry.target.y"), L"0.0000 mm");
    EXPECT_EQ(text("geometry.target.z"), L"-10.0000 mm");
}

TEST_F(RowsOfSelected, SpotsHaveACone) {
    select({addLight(L"Spot", DrawableType::kSpotLight)});

    EXPECT_EQ(text("geometry.hotspot"), L"45°");
    EXPECT_EQ(text("geometry.falloff"), L"50°");
    EXPECT_EQ(text("light.kind"), L"free spot");
    EXPECT_EQ(text("geometry.direction.z"), L"-1");
    EXPECT_EQ(row("geometry.direction.z").editor, Editor::ReadOnly);
}

TEST_F(RowsOfSelected, DistantLightsAreNowhereAndHaveCandelaOnly) {
    select({addLight(L"Sun", DrawableType::kDistantLight, true)});

    EXPECT_THAT(ids(), Not(Contains("geometry.position.x")));
    EXPECT_THAT(ids(), Not(Contains("geometry.target.x")));
    EXPECT_THAT(ids(), Not(Contains("geometry.targeted")));
    EXPECT_THAT(ids(), Not(Contains("photometric.lumen")));
    EXPECT_THAT(ids(), Not(Contains("photometric.illuminance")));
    EXPECT_THAT(ids(), Not(Contains("photometric.distance")));
    EXPECT_THAT(ids(), Not(Contains("attenuation.type")));
    EXPECT_EQ(text("photometric.candela"), L"1500 cd");
    EXPECT_EQ(text("geometry.direction.z"), L"-1");
}

TEST_F(RowsOfSelected, WebLightsHaveAWeb) {
    const ZrDbObjectId light = addLight(L"Web", DrawableType::kWebLight);
    select({light});
    EXPECT_EQ(text("web.file"), L"");
    EXPECT_THAT(ids(), Not(Contains("web.flux")));

    const std::filesystem::path webs = std::filesystem::path(QUOR_TEST_DATA) / "../../resources/webs";
    ASSERT_EQ(write(light)->setWebFile((webs / "wall_washer.ies").wstring()), Quor::eOk);
    write(light)->setWebRotation({10, 20, 370});

    EXPECT_TRUE(text("web.file").ends_with(L"wall_washer.ies"));
    EXPECT_EQ(text("web.flux"), L"2000 lm");
    EXPECT_EQ(text("web.symmetry"), L"about the 0-180 plane");
    EXPECT_EQ(text("web.rotation.x"), L"10");
    EXPECT_EQ(text("web.rotation.y"), L"20");
    EXPECT_EQ(text("web.rotation.z"), L"370");
    EXPECT_EQ(text("photometric.lumen"), L"—");
}

TEST_F(RowsOfSelected, GenericLightingHasNoPhotometricRows) {
    host.session().variables().set(L"LIGHTINGUNITS", short{0});
    select({addLight()});

    EXPECT_THAT(ids(), Not(Contains("photometric.given")));
    EXPECT_THAT(ids(), Not(Contains("photometric.candela")));
    EXPECT_THAT(ids(), Not(Contains("photometric.result")));
    EXPECT_TRUE(has("light.intensity"));
}

TEST_F(RowsOfSelected, IntensityIsShownInEveryMeasure) {
    const ZrDbObjectId light = addLight();
    write(light)->setIlluminanceDistance(2000);
    select({light});

    EXPECT_EQ(text("photometric.given"), L"intensity (candela)");
    EXPECT_EQ(text("photometric.candela"), L"1500 cd");
    EXPECT_EQ(text("photometric.lumen"), L"18849.6 lm");
    EXPECT_EQ(text("photometric.illuminance"), L"375 lx");
    EXPECT_EQ(text("photometric.distance"), L"2000.0000 mm");
}

TEST_F(RowsOfSelected, IlluminanceIsInFootCandlesWhereTheDrawingIs) {
    const ZrDbObjectId light = addLight();
    write(light)->setIlluminanceDistance(304.8);
    host.session().variables().set(L"LIGHTINGUNITS", short{1});
    select({light});

    EXPECT_EQ(text("photometric.illuminance"), L"1500 fc");
}

TEST_F(RowsOfSelected, LampHasAPresetOrATemperature) {
    const ZrDbObjectId light = addLight();
    select({light});
    EXPECT_EQ(text("photometric.lamp"), L"by preset");
    EXPECT_EQ(text("photometric.preset"), L"D65 white");
    EXPECT_FALSE(has("photometric.kelvin"));

    write(light)->setLampColorType(LampColorType::kKelvin);

    EXPECT_EQ(text("photometric.kelvin"), L"3600 K");
    EXPECT_FALSE(has("photometric.preset"));
}

TEST_F(RowsOfSelected, ResultingColourIsTheLampsThroughTheFilter) {
    const ZrDbObjectId light = addLight();
    write(light)->setLightColor(ZrCmColor::fromRGB(200, 100, 0));
    select({light});

    EXPECT_EQ(text("photometric.result"), L"200,100,0");
    EXPECT_EQ(row("photometric.result").editor, Editor::ReadOnly);
}

TEST_F(RowsOfSelected, AttenuationHasLimitsWhereItUsesThem) {
    const ZrDbObjectId light = addLight();
    select({light});
    EXPECT_EQ(text("attenuation.type"), L"none");
    EXPECT_FALSE(has("attenuation.start"));

    ZrGiLightAttenuation attenuation;
    attenuation.setUseLimits(true);
    write(light)->setLightAttenuation(attenuation);

    EXPECT_EQ(text("attenuation.start"), L"1.0000 mm");
    EXPECT_EQ(text("attenuation.end"), L"10.0000 mm");
}

struct ShadowRows {
    ZrGiShadowParameters::ShadowType type;
    ZrGiShadowParameters::ExtendedLightShape shape;
    std::vector<std::string_view> rows;
};

class EachShadow : public Selected, public testing::WithParamInterface<ShadowRows> {};

TEST_P(EachShadow, HasItsOwnRows) {
    const ZrDbObjectId light = addLight();
    ZrGiShadowParameters shadows;
    shadows.setShadowType(GetParam().type);
    shadows.setExtendedLightShape(GetParam().shape);
    write(light)->setShadowParameters(shadows);
    select({light});

    std::vector<std::string_view> found = ids();
    std::erase_if(found, [](std::string_view id) { return !id.starts_with("shadows."); });
    EXPECT_EQ(found, GetParam().rows);
}

using Shadow = ZrGiShadowParameters;
INSTANTIATE_TEST_SUITE_P(
    Shadows, EachShadow,
    testing::Values(
        ShadowRows{Shadow::kShadowsRayTraced, Shadow::kRect, {"shadows.type"}},
        ShadowRows{Shadow::kShadowMaps, Shadow::kRect, {"shadows.type", "shadows.map", "shadows.softness"}},
        ShadowRows{Shadow::kAreaSampled,
                   Shadow::kLinear,
                   {"shadows.type", "shadows.samples", "shadows.shape", "shadows.length", "shadows.visible"}},
        ShadowRows{
            Shadow::kAreaSampled,
            Shadow::kRect,
            {"shadows.type", "shadows.samples", "shadows.shape", "shadows.length", "shadows.width", "shadows.visible"}},
        ShadowRows{Shadow::kAreaSampled,
                   Shadow::kDisk,
                   {"shadows.type", "shadows.samples", "shadows.shape", "shadows.radius", "shadows.visible"}},
        ShadowRows{Shadow::kAreaSampled,
                   Shadow::kCylinder,
                   {"shadows.type", "shadows.samples", "shadows.shape", "shadows.length", "shadows.radius",
                    "shadows.visible"}},
        ShadowRows{Shadow::kAreaSampled,
                   Shadow::kSphere,
                   {"shadows.type", "shadows.samples", "shadows.shape", "shadows.radius", "shadows.visible"}}));

TEST_F(RowsOfSelected, ShadowsThatAreOffHaveNoDetails) {
    const ZrDbObjectId light = addLight();
    ZrGiShadowParameters shadows;
    shadows.setShadowsOn(false);
    write(light)->setShadowParameters(shadows);
    select({light});

    EXPECT_EQ(text("light.shadows"), L"off");
    EXPECT_FALSE(has("shadows.type"));
}

TEST_F(RowsOfSelected, CoordinatesAreThoseOfTheCurrentUcs) {
    const ZrDbObjectId light = addLight();
    write(light)->setPosition({10, 0, 0});
    select({light});
    EXPECT_TRUE(sheet.isWorld());

    host.run({L"UCS Z 90"});

    EXPECT_FALSE(sheet.isWorld());
    select({light});
    EXPECT_EQ(text("geometry.position.x"), L"0.0000 mm");
    EXPECT_EQ(text("geometry.position.y"), L"-10.0000 mm");
    EXPECT_EQ(headingOf(Group::Geometry, sheet.isWorld()), L"Geometry (current UCS)");
    EXPECT_EQ(headingOf(Group::Geometry, true), L"Geometry (world)");
}

TEST_F(RowsOfSelected, LengthsAreInTheDrawingsUnits) {
    host.session().variables().set(L"LUNITS", short{4});
    select({addLine(18)});

    EXPECT_EQ(text("line.start.x"), L"1'-6\"");
    EXPECT_EQ(row("line.start.x").unit, L"");
}

TEST_F(RowsOfSelected, ThatDifferVaryAndTheOthersDoNot) {
    const ZrDbObjectId one = addLight(L"A");
    const ZrDbObjectId two = addLight(L"B");
    write(two)->setIntensity(2);
    select({one, two});

    EXPECT_EQ(text("light.intensity"), L"*VARIES*");
    EXPECT_TRUE(row("light.intensity").varies);
    EXPECT_EQ(row("light.intensity").input, L"");
    EXPECT_EQ(text("light.name"), L"*VARIES*");
    EXPECT_EQ(text("light.on"), L"on");
    EXPECT_FALSE(row("light.on").varies);
}

TEST_F(RowsOfSelected, SeveralLightsHaveWhatCountsForEachOfThem) {
    select({addLight(L"A"), addLight(L"B", DrawableType::kSpotLight), addLight(L"C", DrawableType::kDistantLight)});

    EXPECT_FALSE(has("geometry.position.x"));
    EXPECT_FALSE(has("geometry.hotspot"));
    EXPECT_TRUE(has("light.intensity"));
    EXPECT_TRUE(has("photometric.candela"));
    EXPECT_EQ(text("light.kind"), L"*VARIES*");
}

TEST_F(RowsOfSelected, ObjectsOfSeveralKindsHaveTheGeneralRowsOnlyAndAreChosenByKind) {
    select({addLine(1), addLight(L"A"), addLine(2), addLight(L"B"), addLight(L"C")});

    ASSERT_EQ(sheet.kinds().size(), 3U);
    EXPECT_EQ(sheet.kinds()[0].text, L"All (5)");
    EXPECT_EQ(sheet.kinds()[1].text, L"Line (2)");
    EXPECT_EQ(sheet.kinds()[2].text, L"Light (3)");
    EXPECT_EQ(sheet.chosenKind(), 0U);
    EXPECT_EQ(ids().size(), 7U);
    EXPECT_EQ(text("kind"), L"*VARIES*");

    sheet.chooseKind(2);
    EXPECT_TRUE(has("light.intensity"));
    EXPECT_FALSE(has("line.start.x"));

    sheet.chooseKind(1);
    EXPECT_TRUE(has("line.start.y"));
    EXPECT_EQ(text("line.start.x"), L"*VARIES*");
}

TEST_F(RowsOfSelected, KindThatWasChosenIsKeptForTheNextSelection) {
    const ZrDbObjectId line = addLine();
    const ZrDbObjectId light = addLight();
    const ZrDbObjectId face = addFace();
    select({line, light});
    sheet.chooseKind(2);

    select({face, line, light});
    EXPECT_EQ(sheet.kinds()[sheet.chosenKind()].text, L"Light (1)");

    select({face, line});
    EXPECT_EQ(sheet.kinds()[sheet.chosenKind()].text, L"All (2)");
}

TEST_F(RowsOfSelected, OneKindIsTheOnlyChoice) {
    select({addLight(L"A"), addLight(L"B")});

    ASSERT_EQ(sheet.kinds().size(), 1U);
    EXPECT_EQ(sheet.kinds()[0].text, L"Light (2)");
}

TEST_F(RowsOfSelected, LightsOnTheHiddenLayerShowItAndKeepIt) {
    ASSERT_TRUE(host.loadLight(QUOR_BUILD_DIR));
    host.session().variables().set(L"DEFAULTLIGHTING", short{0});
    host.run({L"POINTLIGHT 0,0,0", L""});
    select(host.document().drawing().entities(host.document().database()->modelSpaceId()));

    EXPECT_EQ(text("layer"), L"*ADSK_SYSTEM_LIGHTS");
    EXPECT_EQ(row("layer").editor, Editor::ReadOnly);
    EXPECT_TRUE(set("layer", L"0").has_value());
}

TEST_F(RowsOfSelected, LayersToChooseAreThoseThatAreNotHidden) {
    host.document().drawing().makeLayer(L"Walls");
    select({addLine()});

    EXPECT_THAT(row("layer").choices, ElementsAre(L"0", L"Walls"));
}

TEST_F(RowsOfSelected, WithoutASelectionAreTheDrawingsSettings) {
    EXPECT_EQ(sheet.kinds().at(0).text, L"No selection");
    EXPECT_THAT(ids(), ElementsAre("drawing.lightingunits", "drawing.defaultlighting", "drawing.layer",
                                   "drawing.insertionunits"));
    EXPECT_EQ(text("drawing.lightingunits"), L"international (lux)");
    EXPECT_EQ(text("drawing.defaultlighting"), L"on");
    EXPECT_EQ(text("drawing.layer"), L"0");
    EXPECT_EQ(text("drawing.insertionunits"), L"millimeters");
}

TEST_F(RowsOfSelected, WithoutADrawingThereAreNone) {
    host.session().documents().close(host.document());

    EXPECT_EQ(sheet.kinds().at(0).text, L"No drawing is open");
    EXPECT_TRUE(sheet.rows().empty());
    EXPECT_FALSE(sheet.isEditable());
    EXPECT_TRUE(set("light.on", L"on").has_value());
}

TEST_F(RowsOfSelected, LargeNumbersAreWrittenOut) {
    const ZrDbObjectId light = addLight();
    select({light});
    EXPECT_EQ(text("photometric.illuminance"), L"1500000000 lx");

    EXPECT_EQ(set("photometric.candela", L"123456789"), std::nullopt);
    EXPECT_EQ(text("photometric.candela"), L"123456789 cd");
    EXPECT_EQ(set("photometric.candela", L"99999999.9"), std::nullopt);
    EXPECT_EQ(text("photometric.candela"), L"100000000 cd");
    EXPECT_EQ(set("photometric.candela", L"2e15"), std::nullopt);
    EXPECT_EQ(text("photometric.candela"), L"2e+15 cd");
}

TEST_F(RowsOfSelected, ChineseAndEnglishTellTheSame) {
    const test::TestSessionOptions options;
    select({addLight()});
    const std::size_t rows = sheet.rows().size();
    setLanguage(Language::Chinese);

    select({});
    EXPECT_EQ(text("drawing.lightingunits"), L"国际 (勒克斯)");
    select({addLight()});
    EXPECT_EQ(sheet.rows().size(), rows);
    EXPECT_EQ(row("light.intensity").label, L"强度因子");
    setLanguage(Language::English);
}

} // namespace
} // namespace quor::props
