// What a person enters, and what becomes of it.
#include "tests/host/props/selected.h"

#include "host/db/database.h"
#include "host/sys/system_variables.h"
#include "sdk/db/symbol_table.h"

#include <gmock/gmock.h>

#include <filesystem>
#include <numbers>

namespace quor::props {
namespace {

using testing::HasSubstr;

constexpr double kDegree = std::numbers::pi / 180;

// A light for which every row counts in one of its states.
void prepare(ZrDbLight& light, std::string_view id) {
    const bool isTarget = id.starts_with("geometry.target.");
    const bool isSampled = id.starts_with("shadows.") && id != "shadows.map" && id != "shadows.softness";
    ZrGiShadowParameters shadows;
    shadows.setShadowType(isSampled ? ZrGiShadowParameters::kAreaSampled : ZrGiShadowParameters::kShadowMaps);
    if (id == "shadows.radius")
        shadows.setExtendedLightShape(ZrGiShadowParameters::kCylinder);
    ZrGiLightAttenuation attenuation;
    attenuation.setUseLimits(id == "attenuation.start" || id == "attenuation.end");
    light.setLightType(id.starts_with("web.") ? DrawableType::kWebLight : DrawableType::kSpotLight);
    light.setHasTarget(isTarget);
    light.setShadowParameters(shadows);
    light.setLightAttenuation(attenuation);
    if (id == "photometric.kelvin")
        light.setLampColorType(LampColorType::kKelvin);
}

struct Entered {
    const char* id;
    const wchar_t* typed;
    const wchar_t* shown; // afterwards
};

class EachRow : public Selected, public testing::WithParamInterface<Entered> {};

TEST_P(EachRow, TakesWhatIsEnteredForAllLightsAsOneStepOfUndo) {
    const ZrDbObjectIdArray lights{addLight(L"A"), addLight(L"B"), addLight(L"C")};
    for (const ZrDbObjectId light : lights)
        prepare(*write(light), GetParam().id);
    select(lights);
    const ZrString before = text(GetParam().id);
    const std::size_t depth = journal().undoDepth();

    EXPECT_EQ(set(GetParam().id, GetParam().typed), std::nullopt);

    EXPECT_EQ(text(GetParam().id), GetParam().shown);
    EXPECT_NE(before, GetParam().shown);
    EXPECT_EQ(journal().undoDepth(), depth + 1);

    host.run({L"U"});
    select(lights);
    EXPECT_EQ(text(GetParam().id), before);
    EXPECT_TRUE(host.front().shows(L"PROPERTIES"));
}

INSTANTIATE_TEST_SUITE_P(
    Rows, EachRow,
    testing::Values(
        Entered{"color", L"1", L"Red"}, Entered{"color", L"BYBLOCK", L"ByBlock"}, Entered{"visible", L"no", L"no"},
        Entered{"light.on", L"off", L"off"}, Entered{"light.shadows", L" OFF ", L"off"},
        Entered{"light.intensity", L"2.5", L"2.5"}, Entered{"light.color", L"255, 200, 1", L"255,200,1"},
        Entered{"photometric.given", L"flux (lumen)", L"flux (lumen)"},
        Entered{"photometric.candela", L"800", L"800 cd"}, Entered{"photometric.lumen", L"800 lm", L"800 lm"},
        Entered{"photometric.illuminance", L"40lx", L"40 lx"}, Entered{"photometric.distance", L"2.5 mm", L"2.5000 mm"},
        Entered{"photometric.lamp", L"by temperature", L"by temperature"},
        Entered{"photometric.preset", L"xenon", L"xenon"}, Entered{"photometric.kelvin", L"2700 K", L"2700 K"},
        Entered{"geometry.position.x", L"1", L"1.0000 mm"}, Entered{"geometry.position.y", L"-2.5", L"-2.5000 mm"},
        Entered{"geometry.position.z", L"1e3", L"1000.0000 mm"}, Entered{"geometry.targeted", L"yes", L"yes"},
        Entered{"geometry.target.x", L"7", L"7.0000 mm"}, Entered{"geometry.target.y", L"8", L"8.0000 mm"},
        Entered{"geometry.target.z", L"9", L"9.0000 mm"}, Entered{"geometry.hotspot", L"30°", L"30°"},
        Entered{"geometry.falloff", L"60", L"60°"}, Entered{"attenuation.type", L"inverse square", L"inverse square"},
        Entered{"attenuation.limits", L"yes", L"yes"}, Entered{"attenuation.start", L"2", L"2.0000 mm"},
        Entered{"attenuation.end", L"20", L"20.0000 mm"}, Entered{"shadows.type", L"sharp", L"sharp"},
        Entered{"shadows.map", L"512", L"512"}, Entered{"shadows.softness", L"5", L"5"},
        Entered{"shadows.samples", L"32", L"32"}, Entered{"shadows.shape", L"disk", L"disk"},
        Entered{"shadows.length", L"2", L"2.0000 mm"}, Entered{"shadows.width", L"3", L"3.0000 mm"},
        Entered{"shadows.radius", L"4", L"4.0000 mm"}, Entered{"shadows.visible", L"yes", L"yes"},
        Entered{"web.rotation.x", L"10", L"10"}, Entered{"web.rotation.y", L"-20", L"-20"},
        Entered{"web.rotation.z", L"370", L"370"}, Entered{"glyph.display", L"on", L"on"},
        Entered{"glyph.plot", L"yes", L"yes"}));

struct Bound {
    const char* id;
    const wchar_t* inside;
    const wchar_t* outside;
    const wchar_t* allowed; // what the message says
};

class EachBound : public Selected, public testing::WithParamInterface<Bound> {};

TEST_P(EachBound, IsTakenAndWhatLiesBeyondIsRefusedAndChangesNothing) {
    const ZrDbObjectIdArray lights{addLight(L"A"), addLight(L"B")};
    for (const ZrDbObjectId light : lights)
        prepare(*write(light), GetParam().id);
    select(lights);
    EXPECT_EQ(set(GetParam().id, GetParam().inside), std::nullopt);
    const ZrString taken = text(GetParam().id);
    const std::size_t depth = journal().undoDepth();

    const Refusal refusal = set(GetParam().id, GetParam().outside);

    ASSERT_TRUE(refusal.has_value());
    EXPECT_THAT(*refusal, HasSubstr(GetParam().allowed));
    EXPECT_EQ(text(GetParam().id), taken);
    EXPECT_EQ(journal().undoDepth(), depth);
}

INSTANTIATE_TEST_SUITE_P(
    Bounds, EachBound,
    testing::Values(
        Bound{"light.intensity", L"0", L"-0.0001", L"must be 0 or more"},
        Bound{"light.intensity", L"1e300", L"1e400", L"Enter a number"},
        Bound{"photometric.candela", L"0", L"-1", L"0 cd or more"},
        Bound{"photometric.lumen", L"0", L"-1", L"0 lm or more"},
        Bound{"photometric.illuminance", L"0", L"-1", L"0 lx or more"},
        Bound{"photometric.distance", L"0", L"-1", L"0 mm or more"},
        Bound{"photometric.kelvin", L"1000", L"999.99", L"from 1000 K to 20000 K"},
        Bound{"photometric.kelvin", L"20000", L"20000.1", L"from 1000 K to 20000 K"},
        Bound{"geometry.hotspot", L"0", L"-1", L"from 0° to 160°"},
        Bound{"geometry.hotspot", L"160", L"160.001", L"from 0° to 160°"},
        Bound{"geometry.falloff", L"0", L"-1", L"from 0° to 160°"},
        Bound{"geometry.falloff", L"160", L"161", L"from 0° to 160°"},
        Bound{"attenuation.start", L"0", L"-1", L"0 mm or more"},
        Bound{"attenuation.end", L"0", L"-1", L"0 mm or more"}, Bound{"shadows.softness", L"1", L"0", L"from 1 to 10"},
        Bound{"shadows.softness", L"10", L"11", L"from 1 to 10"},
        Bound{"shadows.softness", L"2", L"2.5", L"whole number"},
        Bound{"shadows.samples", L"0", L"-1", L"from 0 to 1024"},
        Bound{"shadows.samples", L"1024", L"1025", L"from 0 to 1024"},
        Bound{"shadows.map", L"64", L"100", L"64 / 128 / 256 / 512 / 1024 / 2048 / 4096"},
        Bound{"shadows.map", L"4096", L"8192", L"64 / 128"}, Bound{"shadows.length", L"0", L"-1", L"0 mm or more"},
        Bound{"shadows.width", L"0", L"-1", L"0 mm or more"}, Bound{"shadows.radius", L"0", L"-1", L"0 mm or more"},
        Bound{"light.color", L"255", L"256", L"1 to 255"}, Bound{"light.color", L"0,0,0", L"ByLayer", L"1 to 255"},
        Bound{"light.color", L"255,255,255", L"256,0,0", L"1 to 255"}, Bound{"light.color", L"1", L"0", L"1 to 255"},
        Bound{"color", L"ByLayer", L"256", L"ByLayer"}, Bound{"light.on", L"off", L"maybe", L"off / on"},
        Bound{"photometric.preset", L"custom", L"candle", L"low pressure sodium"},
        Bound{"geometry.position.x", L"-1e9", L"nan", L"drawing's units"},
        Bound{"geometry.position.x", L"0.5", L"1 2", L"drawing's units"},
        Bound{"geometry.position.x", L"5", L"", L"drawing's units"},
        Bound{"layer", L"0", L"Nowhere", L"no layer \"Nowhere\""}));

class Entering : public Selected {};

TEST_F(Entering, LeavesTheDrawingAloneWhereTheValueIsTheSame) {
    const ZrDbObjectId light = addLight();
    write(light)->setIntensity(1.0 / 3);
    select({light});
    const std::size_t depth = journal().undoDepth();

    EXPECT_EQ(set("light.intensity", row("light.intensity").input), std::nullopt);
    EXPECT_EQ(set("light.on", L"on"), std::nullopt);

    EXPECT_EQ(read(light)->intensity(), 1.0 / 3);
    EXPECT_EQ(journal().undoDepth(), depth);
}

TEST_F(Entering, ChangesOnlyTheObjectsOfTheKindThatIsShown) {
    const ZrDbObjectId line = addLine();
    const ZrDbObjectId light = addLight();
    select({line, light});
    sheet.chooseKind(2);

    EXPECT_EQ(set("color", L"3"), std::nullopt);

    EXPECT_EQ(read(light)->color().colorIndex(), 3);
    EXPECT_TRUE(read<ZrDbLine>(line)->color().isByLayer());
}

TEST_F(Entering, MovesLinesAndFaces) {
    const ZrDbObjectId line = addLine();
    const ZrDbObjectId face = addFace();
    select({line});
    EXPECT_EQ(set("line.end.z", L"12"), std::nullopt);
    select({face});
    EXPECT_EQ(set("face.2.y", L"-4"), std::nullopt);
    EXPECT_EQ(set("face.edge.2", L"no"), std::nullopt);

    ZrGePoint3d corner;
    bool visible = true;
    read<ZrDbFace>(face)->getVertexAt(1, corner);
    read<ZrDbFace>(face)->isEdgeVisibleAt(1, visible);
    EXPECT_EQ(read<ZrDbLine>(line)->endPoint(), ZrGePoint3d(0, 3, 12));
    EXPECT_EQ(corner, ZrGePoint3d(1, -4, 0));
    EXPECT_FALSE(visible);
}

TEST_F(Entering, PutsObjectsOnAnotherLayer) {
    host.document().drawing().makeLayer(L"Walls");
    const ZrDbObjectId line = addLine();
    select({line});

    EXPECT_EQ(set("layer", L"walls"), std::nullopt);

    EXPECT_EQ(read<ZrDbLine>(line)->layer(), L"Walls");
}

TEST_F(Entering, IsInTheCurrentUcs) {
    const ZrDbObjectId light = addLight();
    host.run({L"UCS Z 90"});
    select({light});

    EXPECT_EQ(set("geometry.position.x", L"5"), std::nullopt);

    EXPECT_TRUE(read(light)->position().isEqualTo(ZrGePoint3d(0, 5, 0)));
}

TEST_F(Entering, WidensTheConeForAHotspotBeyondIt) {
    const ZrDbObjectId light = addLight(L"A", DrawableType::kSpotLight);
    select({light});

    EXPECT_EQ(set("geometry.hotspot", L"70"), std::nullopt);
    EXPECT_EQ(text("geometry.falloff"), L"70°");

    EXPECT_EQ(set("geometry.falloff", L"20"), std::nullopt);
    EXPECT_EQ(text("geometry.hotspot"), L"20°");
    EXPECT_DOUBLE_EQ(read(light)->hotspotAngle(), 20 * kDegree);
}

TEST_F(Entering, AnotherMeasureKeepsTheBrightness) {
    const ZrDbObjectId light = addLight();
    write(light)->setIlluminanceDistance(1000);
    select({light});

    EXPECT_EQ(set("photometric.given", L"illuminance"), std::nullopt);
    EXPECT_EQ(text("photometric.illuminance"), L"1500 lx");
    EXPECT_EQ(text("photometric.candela"), L"1500 cd");

    EXPECT_EQ(set("photometric.lumen", L"1000"), std::nullopt);
    EXPECT_EQ(text("photometric.given"), L"flux (lumen)");
    EXPECT_EQ(read(light)->physicalIntensity(), 1000);
    EXPECT_EQ(text("photometric.candela"), L"79.5775 cd");
}

TEST_F(Entering, AMeasureThatAWebDoesNotGiveIsRefusedForAllOfThem) {
    const std::filesystem::path webs = std::filesystem::path(QUOR_TEST_DATA) / "../../resources/webs";
    const ZrDbObjectId point = addLight(L"Point");
    const ZrDbObjectId web = addLight(L"Web", DrawableType::kWebLight);
    ASSERT_EQ(write(web)->setWebFile((webs / "wall_washer.ies").wstring()), Quor::eOk);
    select({point, web});
    const std::size_t depth = journal().undoDepth();

    const Refusal refusal = set("photometric.given", L"flux (lumen)");

    ASSERT_TRUE(refusal.has_value());
    EXPECT_THAT(*refusal, HasSubstr(L"\"Web\""));
    EXPECT_EQ(read(point)->physicalIntensityMethod(), PhysicalIntensityMethod::kPeakIntensity);
    EXPECT_EQ(read(point)->physicalIntensity(), 1500);
    EXPECT_EQ(journal().undoDepth(), depth);
    EXPECT_EQ(journal().redoDepth(), 0U);
}

TEST_F(Entering, FindsWebFilesByTheirNameAndTakesThemAway) {
    const ZrDbObjectId web = addLight(L"Web", DrawableType::kWebLight);
    select({web});
    const std::filesystem::path webs = std::filesystem::path(QUOR_TEST_DATA) / "../../resources/webs";
    host.session().variables().set(L"SUPPORTPATH", ZrString(webs.wstring()));

    EXPECT_EQ(set("web.file", L"wall_washer.ies"), std::nullopt);
    EXPECT_TRUE(read(web)->webFile().ends_with(L"/wall_washer.ies"));

    EXPECT_EQ(set("web.file", L""), std::nullopt);
    EXPECT_EQ(read(web)->webFile(), L"");
}

TEST_F(Entering, SaysWhyAWebFileIsRefused) {
    const ZrDbObjectId web = addLight(L"Web", DrawableType::kWebLight);
    select({web});

    EXPECT_THAT(set("web.file", L"nowhere.ies").value_or(L""), HasSubstr(L"\"nowhere.ies\" was not found"));
    const ZrString noWeb = (std::filesystem::path(QUOR_TEST_DATA) / "dxf/own/light_2018.dxf").wstring();
    EXPECT_NE(set("web.file", noWeb).value_or(L""), L"");
    EXPECT_EQ(read(web)->webFile(), L"");
    EXPECT_EQ(text("web.file"), L"");
}

TEST_F(Entering, IsRefusedForObjectsOnLockedLayers) {
    const ZrDbObjectId walls = host.document().drawing().makeLayer(L"Walls");
    const ZrDbObjectId line = addLine();
    const ZrDbObjectId other = addLine(5);
    write<ZrDbLine>(line)->setLayer(L"Walls");
    write<ZrDbLayerTableRecord>(walls)->setIsLocked(true);
    select({other, line});

    const Refusal refusal = set("color", L"1");

    EXPECT_THAT(refusal.value_or(L""), HasSubstr(L"locked layers: 1"));
    EXPECT_TRUE(read<ZrDbLine>(other)->color().isByLayer());
}

TEST_F(Entering, IsTakenBackWhereOneObjectIsInUse) {
    const ZrDbObjectId first = addLight(L"A");
    const ZrDbObjectId second = addLight(L"B");
    select({first, second});
    EXPECT_TRUE(has("light.on"));
    const std::size_t depth = journal().undoDepth();
    const ZrDbObjectPointer<ZrDbLight> inUse(second, ZrDb::kForRead);

    const Refusal refusal = set("light.on", L"off");

    EXPECT_THAT(refusal.value_or(L""), HasSubstr(L"in use"));
    EXPECT_TRUE(read(first)->isOn());
    EXPECT_EQ(journal().undoDepth(), depth);
}

TEST_F(Entering, IsRefusedWhileTheDrawingIsLocked) {
    const ZrDbObjectId light = addLight();
    select({light});
    host.session().documents().lockDocument(host.document());

    EXPECT_THAT(set("light.on", L"off").value_or(L""), HasSubstr(L"in use"));
    EXPECT_TRUE(read(light)->isOn());
    host.session().documents().unlockDocument(host.document());

    EXPECT_EQ(set("light.on", L"off"), std::nullopt);
}

TEST_F(Entering, IsRefusedWhileACommandRuns) {
    const ZrDbObjectId light = addLight();
    Refusal refusal;
    bool couldEdit = true;
    host.addCommand(L"BUSY", [&] {
        select({light});
        couldEdit = sheet.isEditable();
        refusal = set("light.on", L"off");
        return RTNORM;
    });

    host.run({L"BUSY"});

    EXPECT_THAT(refusal.value_or(L""), HasSubstr(L"A command is running"));
    EXPECT_FALSE(couldEdit);
    EXPECT_TRUE(read(light)->isOn());
    EXPECT_TRUE(sheet.isEditable());
}

TEST_F(Entering, DoesNotTouchWhatWasSelectedMeanwhile) {
    const ZrDbObjectId first = addLight(L"A");
    const ZrDbObjectId second = addLight(L"B");
    select({first});
    EXPECT_TRUE(has("light.on"));

    select({second});
    EXPECT_TRUE(sheet.set("light.on", L"off").has_value());

    EXPECT_TRUE(read(first)->isOn());
    EXPECT_TRUE(read(second)->isOn());
}

TEST_F(Entering, ReadOnlyRowsAndUnknownOnesAreRefused) {
    select({addLight()});

    EXPECT_THAT(set("handle", L"1").value_or(L""), HasSubstr(L"cannot be changed"));
    EXPECT_TRUE(set("nothing", L"1").has_value());
    EXPECT_TRUE(set("geometry.hotspot", L"1").has_value());
}

TEST_F(Entering, SettingsOfTheDrawingAreOneStepEach) {
    host.document().drawing().makeLayer(L"Walls");
    const std::size_t depth = journal().undoDepth();

    EXPECT_EQ(set("drawing.lightingunits", L"generic"), std::nullopt);
    EXPECT_EQ(set("drawing.defaultlighting", L"off"), std::nullopt);
    EXPECT_EQ(set("drawing.layer", L"walls"), std::nullopt);
    EXPECT_EQ(set("drawing.insertionunits", L"meters"), std::nullopt);

    const sys::SystemVariables& variables = host.session().variables();
    EXPECT_EQ(variables.number(L"LIGHTINGUNITS"), 0);
    EXPECT_EQ(variables.number(L"DEFAULTLIGHTING"), 0);
    EXPECT_EQ(variables.text(L"CLAYER"), L"Walls");
    EXPECT_EQ(variables.number(L"INSUNITS"), 6);
    EXPECT_EQ(journal().undoDepth(), depth + 4);
    EXPECT_EQ(text("drawing.insertionunits"), L"meters");

    host.run({L"U"});
    EXPECT_EQ(text("drawing.insertionunits"), L"millimeters");
}

TEST_F(Entering, SettingsRefuseWhatIsNoChoice) {
    const ZrDbObjectId frozen = host.document().drawing().makeLayer(L"Ice");
    write<ZrDbLayerTableRecord>(frozen)->setIsFrozen(true);

    EXPECT_THAT(set("drawing.lightingunits", L"3").value_or(L""), HasSubstr(L"generic / American"));
    EXPECT_THAT(set("drawing.layer", L"Nowhere").value_or(L""), HasSubstr(L"Nowhere"));
    EXPECT_THAT(set("drawing.layer", L"Ice").value_or(L""), HasSubstr(L"frozen"));
    EXPECT_TRUE(set("drawing.nothing", L"1").has_value());
    EXPECT_EQ(text("drawing.layer"), L"0");
}

} // namespace
} // namespace quor::props
