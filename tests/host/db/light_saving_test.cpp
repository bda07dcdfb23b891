#include "tests/host/db/drawings.h"

#include "host/db/data.h"

#include <gmock/gmock.h>

namespace quor::db {
namespace {

using namespace drawings;
using testing::Contains;
using testing::ElementsAre;
using testing::ElementsAreArray;
using testing::IsEmpty;

// A change of one property of the light of own/light_2018 and the tags that it may touch.
struct OneChange {
    const char* name;
    void (*apply)(ZrDbLight&);
    std::vector<std::string> gone;
    std::vector<std::string> come;
};

struct OneProperty : testing::TestWithParam<OneChange> {};

TEST_P(OneProperty, TouchesItsOwnTagsOnly) {
    const auto database = opened("own/light_2018.dxf");
    const std::string before = bytesOf(*database);
    change(lightOf(*database), GetParam().apply);
    const Difference changed = difference(before, bytesOf(*database));
    EXPECT_THAT(changed.gone, ElementsAreArray(GetParam().gone));
    EXPECT_THAT(changed.come, ElementsAreArray(GetParam().come));
}

void setAttenuation(ZrDbLight& light) {
    ZrGiLightAttenuation attenuation = light.lightAttenuation();
    attenuation.setAttenuationType(ZrGiLightAttenuation::kInverseSquare);
    attenuation.setUseLimits(true);
    attenuation.setLimits(2, 20);
    light.setLightAttenuation(attenuation);
}

template <auto Setter, auto Value>
void setShadow(ZrDbLight& light) {
    ZrGiShadowParameters shadow;
    light.shadowParameters(shadow);
    (shadow.*Setter)(Value);
    light.setShadowParameters(shadow);
}

using Shadow = ZrGiShadowParameters;

INSTANTIATE_TEST_SUITE_P(
    Light, OneProperty,
    testing::Values(OneChange{"Name", [](ZrDbLight& l) { l.setName(L"Other"); }, {"1|聚光灯1"}, {"1|Other"}},
                    OneChange{"Type", [](ZrDbLight& l) { l.setLightType(1); }, {"70|3"}, {"70|1"}},
                    OneChange{"On", [](ZrDbLight& l) { l.setOn(false); }, {"290|1"}, {"290|0"}},
                    OneChange{"TrueColour",
                              [](ZrDbLight& l) { l.setLightColor(ZrCmColor::fromRGB(255, 0, 0)); },
                              {"63|192", "421|6039756"},
                              {"63|1", "421|16711680"}},
                    OneChange{"IndexDropsTheTrueColour",
                              [](ZrDbLight& l) { l.setLightColor(ZrCmColor::fromIndex(3)); },
                              {"63|192", "421|6039756"},
                              {"63|3"}},
                    OneChange{"Intensity", [](ZrDbLight& l) { l.setIntensity(2.5); }, {"40|0.8"}, {"40|2.5"}},
                    OneChange{"Position",
                              [](ZrDbLight& l) {
                                  l.setPosition({1, 2, 3});
                              },
                              {"10|100.0", "20|200.0", "30|2700.0"},
                              {"10|1.0", "20|2.0", "30|3.0"}},
                    OneChange{"Target",
                              [](ZrDbLight& l) {
                                  l.setTargetLocation({100, 0, 0});
                              },
                              {"21|450.5"},
                              {"21|0.0"}},
                    OneChange{"Attenuation",
                              setAttenuation,
                              {"72|0", "292|0", "41|1.0", "42|10.0"},
                              {"72|2", "292|1", "41|2.0", "42|20.0"}},
                    OneChange{"Cone",
                              [](ZrDbLight& l) { l.setHotspotAndFalloff(30 * kDegree, 61.3 * kDegree); },
                              {"50|45.0", "51|50.0"},
                              {"50|30.0", "51|61.3"}},
                    OneChange{"PlotGlyph", [](ZrDbLight& l) { l.setPlotsGlyph(true); }, {"291|0"}, {"291|1"}},
                    OneChange{"ShadowsOff", setShadow<&Shadow::setShadowsOn, false>, {"293|1"}, {"293|0"}},
                    OneChange{
                        "ShadowType", setShadow<&Shadow::setShadowType, Shadow::kAreaSampled>, {"73|0"}, {"73|2"}},
                    OneChange{"ShadowMap", setShadow<&Shadow::setShadowMapSize, 4096>, {"91|256"}, {"91|4096"}},
                    OneChange{"Softness", setShadow<&Shadow::setShadowMapSoftness, 10>, {"280|1"}, {"280|10"}},
                    OneChange{"Layer", [](ZrDbLight& l) { l.setLayer(L"0"); }, {"8|*ADSK_SYSTEM_LIGHTS"}, {"8|0"}},
                    OneChange{"Invisible", [](ZrDbLight& l) { l.setVisibility(ZrDb::kInvisible); }, {}, {"60|1"}},
                    OneChange{"EntityColour",
                              [](ZrDbLight& l) { l.setColor(ZrCmColor::fromRGB(255, 0, 0)); },
                              {},
                              {"62|1", "420|16711680"}}),
    [](const auto& info) { return info.param.name; });

INSTANTIATE_TEST_SUITE_P(
    Photometry, OneProperty,
    testing::Values(
        OneChange{"Method",
                  [](ZrDbLight& l) { l.setPhysicalIntensityMethod(PhysicalIntensityMethod::kFlux); },
                  {"70|0"},
                  {"70|1"}},
        OneChange{"PhysicalIntensity", [](ZrDbLight& l) { l.setPhysicalIntensity(800); }, {"40|1500.0"}, {"40|800.0"}},
        OneChange{"Distance", [](ZrDbLight& l) { l.setIlluminanceDistance(2); }, {"41|1.0"}, {"41|2.0"}},
        OneChange{"LampType", [](ZrDbLight& l) { l.setLampColorType(LampColorType::kKelvin); }, {"71|1"}, {"71|0"}},
        OneChange{"Kelvin", [](ZrDbLight& l) { l.setLampColorTemp(6500); }, {"42|3600.0"}, {"42|6500.0"}},
        OneChange{"Preset", [](ZrDbLight& l) { l.setLampColorPreset(LampColorPreset::kXenon); }, {"72|0"}, {"72|6"}},
        OneChange{"WebRotation",
                  [](ZrDbLight& l) {
                      l.setWebRotation({10, 20, 30});
                  },
                  {"43|0.0", "44|0.0", "45|0.0"},
                  {"43|10.0", "44|20.0", "45|30.0"}},
        OneChange{"Shape", setShadow<&Shadow::setExtendedLightShape, Shadow::kSphere>, {"73|1"}, {"73|4"}},
        OneChange{"ShapeLength", setShadow<&Shadow::setExtendedLightLength, 5>, {"46|0.0"}, {"46|5.0"}},
        OneChange{"ShapeWidth", setShadow<&Shadow::setExtendedLightWidth, 5>, {"47|0.0"}, {"47|5.0"}},
        OneChange{"ShapeRadius", setShadow<&Shadow::setExtendedLightRadius, 5>, {"48|0.0"}, {"48|5.0"}},
        OneChange{"Samples", setShadow<&Shadow::setShadowSamples, 64>, {"74|16"}, {"74|64"}},
        OneChange{"ShapeVisible", setShadow<&Shadow::setShapeVisibility, true>, {"75|0"}, {"75|1"}},
        OneChange{"HasTarget", [](ZrDbLight& l) { l.setHasTarget(false); }, {"76|1"}, {"76|0"}},
        OneChange{"Glyph", [](ZrDbLight& l) { l.setGlyphDisplay(2); }, {"77|0"}, {"77|2"}}),
    [](const auto& info) { return info.param.name; });

TEST(LightSaving, SettingAValueToWhatItIsTouchesNothing) {
    const auto database = opened("own/light_2018.dxf");
    const std::string before = bytesOf(*database);
    change(lightOf(*database), [](ZrDbLight& light) {
        light.setIntensity(0.8);
        light.setHotspotAndFalloff(light.hotspotAngle(), light.falloffAngle());
        light.setLightColor(ZrCmColor::fromRGB(0x5C, 0x28, 0xCC));
    });
    EXPECT_EQ(bytesOf(*database), before);
}

TEST(LightSaving, WebLightIsAPointLightWithAWeb) {
    const auto database = opened("own/light_2018.dxf");
    change(lightOf(*database), [](ZrDbLight& light) { light.setLightType(10); });
    const std::string bytes = bytesOf(*database);
    const auto record = recordOf(bytes, "XRECORD", "5|32");
    EXPECT_THAT(recordOf(bytes, "LIGHT", "5|30"), Contains("70|2"));
    EXPECT_THAT(record, Contains("290|1"));
    EXPECT_THAT(record, Contains("300|"));
    const auto again = parsed(bytes);
    EXPECT_EQ(ZrDbObjectPointer<ZrDbLight>(lightOf(*again), ZrDb::kForRead)->lightType(), DrawableType::kWebLight);
}

TEST(LightSaving, WebGoesWithTheKindOfLight) {
    const auto database = Database::makeNew();
    const ZrDbObjectId id = addLight(*database);
    change(id, [](ZrDbLight& light) { light.setLightType(10); });
    const auto again = reopened(*database);
    change(lightOf(*again), [](ZrDbLight& light) { light.setLightType(3); });
    const auto record = recordOf(bytesOf(*again), "XRECORD", "5|32");
    EXPECT_THAT(record, Contains("290|0"));
    EXPECT_THAT(record, testing::Not(Contains("300|")));
}

TEST(LightSaving, NewLightIsWrittenInFull) {
    const auto database = Database::makeNew();
    addLight(*database, L"点光源1");
    const std::string bytes = bytesOf(*database);
    EXPECT_THAT(recordOf(bytes, "LIGHT", "5|30"),
                ElementsAre("0|LIGHT", "5|30", "102|{ACAD_XDICTIONARY", "360|31", "102|}", "330|1F", "100|AcDbEntity",
                            "8|0", "100|AcDbLight", "90|1", "1|点光源1", "70|2", "290|1", "63|7", "291|0", "40|1.0",
                            "10|0.0", "20|0.0", "30|0.0", "11|0.0", "21|0.0", "31|-10.0", "72|0", "292|0", "41|1.0",
                            "42|10.0", "50|45.0", "51|50.0", "293|1", "73|0", "91|256", "280|1"));
    EXPECT_THAT(recordOf(bytes, "DICTIONARY", "5|31"),
                ElementsAre("0|DICTIONARY", "5|31", "330|30", "100|AcDbDictionary", "280|1", "281|1",
                            "3|ADSK_XREC_PHOTOMETRICLIGHTINFO", "360|32"));
    EXPECT_THAT(recordOf(bytes, "XRECORD", "5|32"),
                ElementsAre("0|XRECORD", "5|32", "102|{ACAD_REACTORS", "330|31", "102|}", "330|31", "100|AcDbXrecord",
                            "280|1", "290|0", "70|0", "40|1500.0", "41|1.0", "71|1", "42|3600.0", "72|0", "43|0.0",
                            "44|0.0", "45|0.0", "73|1", "46|0.0", "47|0.0", "48|0.0", "74|16", "75|0", "76|0", "49|0.0",
                            "50|0.0", "51|0.0", "53|57.29577951308232", "54|0.0", "55|0.0", "77|0"));
}

TEST(LightSaving, FirstLightBringsItsClassAndRaisesTheSeed) {
    const auto database = Database::makeNew();
    addLight(*database);
    addLight(*database, L"Second");
    const std::string bytes = bytesOf(*database);
    EXPECT_THAT(recordOf(bytes, "CLASS", "1|LIGHT"),
                ElementsAre("0|CLASS", "1|LIGHT", "2|AcDbLight", "3|SCENEOE", "90|1025", "91|2", "280|0", "281|1"));
    EXPECT_TRUE(holds(bytes, "5|36")); // $HANDSEED: six handles from 30 on
    const auto again = parsed(bytes);
    EXPECT_EQ(addLine(*again).handle(), ZrDbHandle(0x36));
}

TEST(LightSaving, ClassCountsTheLightsOfPaperSpaceToo) {
    const auto database = Database::makeNew();
    append(database->interface().paperSpaceId(), std::make_unique<ZrDbLight>());
    EXPECT_THAT(recordOf(bytesOf(*database), "CLASS", "1|LIGHT"), Contains("91|1"));
}

TEST(LightSaving, ClassCountGoesUpAndDownWithTheLights) {
    const auto database = opened("own/light_2007.dxf");
    addLight(*database);
    EXPECT_THAT(recordOf(bytesOf(*database), "CLASS", "1|LIGHT"), Contains("91|2"));
    erase(lightOf(*database));
    EXPECT_THAT(recordOf(bytesOf(*database), "CLASS", "1|LIGHT"), Contains("91|1"));
}

TEST(LightSaving, ErasedLightTakesItsDictionaryAndRecordAlong) {
    const auto database = opened("own/light_2018.dxf");
    erase(lightOf(*database));
    const std::string bytes = bytesOf(*database);
    EXPECT_THAT(recordOf(bytes, "LIGHT", "5|30"), IsEmpty());
    EXPECT_THAT(recordOf(bytes, "DICTIONARY", "5|31"), IsEmpty());
    EXPECT_THAT(recordOf(bytes, "XRECORD", "5|32"), IsEmpty());
    EXPECT_THAT(recordOf(bytes, "CLASS", "1|LIGHT"), Contains("91|0"));
}

TEST(LightSaving, LightErasedBeforeItWasSavedLeavesNothing) {
    const auto database = Database::makeNew();
    const std::string before = bytesOf(*database);
    erase(addLight(*database));
    EXPECT_EQ(bytesOf(*database), before);
}

TEST(LightSaving, ColourWordOf2000IsWritten) {
    const auto database = opened("own/light_2000.dxf");
    const std::string before = bytesOf(*database);
    change(lightOf(*database), [](ZrDbLight& light) { light.setLightColor(ZrCmColor::fromRGB(0xCD, 0xCB, 0xCB)); });
    const Difference changed = difference(before, bytesOf(*database));
    EXPECT_THAT(changed.gone, ElementsAre("90|-1023410171"));
    EXPECT_THAT(changed.come, ElementsAre("90|-1026700341"));
}

TEST(LightSaving, TrueColourOfAnEntityIsItsNearestIndexIn2000) {
    const auto database = opened("own/light_2000.dxf");
    const std::string before = bytesOf(*database);
    change(lightOf(*database), [](ZrDbLight& light) { light.setColor(ZrCmColor::fromRGB(255, 0, 0)); });
    EXPECT_THAT(difference(before, bytesOf(*database)).come, ElementsAre("62|1"));
}

TEST(LightSaving, BookColourIsWrittenAndRead) {
    const auto database = Database::makeNew();
    ZrCmColor color = ZrCmColor::fromRGB(255, 0, 0);
    ASSERT_EQ(color.setNames(L"红", L"色卡"), Quor::eOk);
    change(addLight(*database), [&](ZrDbLight& light) { light.setLightColor(color); });
    EXPECT_TRUE(holds(bytesOf(*database), "431|色卡$红"));
    const auto again = reopened(*database);
    EXPECT_EQ(ZrDbObjectPointer<ZrDbLight>(lightOf(*again), ZrDb::kForRead)->lightColor(), color);
}

// A drawing whose light has no photometric data.
std::string plainLight(const std::string& behind = "") {
    return drawing("AC1032", {"9\n$HANDSEED\n5\n40\n", "", "", "0\nLIGHT\n5\n30\n330\n1F\n" + kLightTags + behind,
                              "0\nDICTIONARY\n5\nC\n330\n0\n100\nAcDbDictionary\n281\n1\n"});
}

struct OddBookColour : testing::TestWithParam<const char*> {};

TEST_P(OddBookColour, StaysUntilTheColourChangesAndGoesWithIt) {
    const std::string tags = "63\n1\n421\n16711680\n431\n" + std::string(GetParam()) + "\n";
    std::string bytes = plainLight();
    bytes.replace(bytes.find("63\n7\n"), 5, tags);
    const auto database = parsed(bytes);

    change(lightOf(*database), [](ZrDbLight& light) { light.setIntensity(2); });
    EXPECT_TRUE(holds(bytesOf(*database), "431|" + std::string(GetParam())));

    change(lightOf(*database), [](ZrDbLight& light) { light.setLightColor(ZrCmColor::fromRGB(1, 2, 3)); });
    EXPECT_FALSE(holds(bytesOf(*database), "431|" + std::string(GetParam())));
}

INSTANTIATE_TEST_SUITE_P(Texts, OddBookColour, testing::Values("NoDollar", "Book$", "$Colour", "A$B$C"));

TEST(LightSaving, LightWithoutPhotometryGetsItWithAPhotometricValue) {
    const auto database = parsed(plainLight());
    change(lightOf(*database), [](ZrDbLight& light) { light.setPhysicalIntensity(700); });
    const std::string bytes = bytesOf(*database);
    EXPECT_THAT(recordOf(bytes, "LIGHT", "102|{ACAD_XDICTIONARY"), Contains("360|41"));
    EXPECT_THAT(recordOf(bytes, "DICTIONARY", "330|30"), Contains("360|40"));
    EXPECT_THAT(recordOf(bytes, "XRECORD", "5|40"), Contains("40|700.0"));
    EXPECT_TRUE(holds(bytes, "5|42")); // $HANDSEED
    EXPECT_EQ(bytesOf(*database), bytes);
    const auto again = parsed(bytes);
    EXPECT_EQ(ZrDbObjectPointer<ZrDbLight>(lightOf(*again), ZrDb::kForRead)->physicalIntensity(), 700);
}

TEST(LightSaving, LightWithoutPhotometryStaysSoWithAnotherValue) {
    const auto database = parsed(plainLight());
    const std::string before = bytesOf(*database);
    change(lightOf(*database), [](ZrDbLight& light) { light.setIntensity(3); });
    const Difference changed = difference(before, bytesOf(*database));
    EXPECT_THAT(changed.gone, ElementsAre("40|1.0"));
    EXPECT_THAT(changed.come, ElementsAre("40|3.0"));
}

TEST(LightSaving, TagsBehindTheLastKnownOneSurvive) {
    const std::string behind = "295\n1\n40\n9.0\n1001\nACAD\n1000\nAcDbSavedByObjectVersion\n1070\n0\n";
    const auto database = parsed(plainLight(behind));
    change(lightOf(*database), [](ZrDbLight& light) { light.setIntensity(3); });
    EXPECT_NE(bytesOf(*database).find("280\n1\n" + behind), std::string::npos);
}

TEST(LightSaving, UnknownTagsOfTheRecordSurvive) {
    std::string bytes = fileBytes("own/light_2018.dxf");
    const auto at = bytes.find(" 77\n", bytes.find("{ACAD_REACTORS\n330\n31"));
    bytes.insert(at, " 91\n     4711\n300\nkept\n");
    const auto database = parsed(bytes);
    const std::string before = bytesOf(*database);
    change(lightOf(*database), [](ZrDbLight& light) { light.setGlyphDisplay(1); });
    EXPECT_THAT(difference(before, bytesOf(*database)).come, ElementsAre("77|1"));
}

TEST(LightSaving, LightsThatShareTheirPhotometryDoNotBreakTheDrawing) {
    const std::string link = "102\n{ACAD_XDICTIONARY\n360\n32\n102\n}\n";
    const std::string lights = "0\nLIGHT\n5\n30\n" + link + kLightTags + "0\nLIGHT\n5\n31\n" + link + kLightTags;
    const std::string objects =
        "0\nDICTIONARY\n5\nC\n330\n0\n0\nDICTIONARY\n5\n32\n330\n30\n3\n"
        "ADSK_XREC_PHOTOMETRICLIGHTINFO\n360\n33\n0\nXRECORD\n5\n33\n100\nAcDbXrecord\n40\n1.0\n"
        "0\nXRECORD\n5\n34\n100\nAcDbXrecord\n1\nlast\n";
    const auto database = parsed(drawing("AC1032", {"9\n$HANDSEED\n5\n40\n", "", "", lights, objects}));
    for (const ZrDbObjectId id : database->entities(database->interface().modelSpaceId()))
        change(id, [](ZrDbLight& light) { light.setPhysicalIntensity(5); });
    const std::string changed = bytesOf(*database);
    EXPECT_EQ(changed.find("last"), changed.rfind("last"));
    for (const ZrDbObjectId id : database->entities(database->interface().modelSpaceId()))
        erase(id);
    const std::string erased = bytesOf(*database);
    EXPECT_EQ(erased.find("last"), erased.rfind("last"));
    EXPECT_TRUE(parsed(erased)->entities(database->interface().modelSpaceId()).empty());
}

TEST(LightSaving, DrawingWithoutClassesTablesAndObjectsGetsWhatALightNeeds) {
    const auto database = parsed(drawing("AC1015", {"", "", "", "", ""}));
    addLight(*database);
    const std::string bytes = bytesOf(*database);
    const auto again = parsed(bytes);
    EXPECT_EQ(ZrDbObjectPointer<ZrDbLight>(lightOf(*again), ZrDb::kForRead)->name(), L"Light");
    EXPECT_LT(bytes.find("CLASSES"), bytes.find("ENTITIES"));
    EXPECT_LT(bytes.find("ENTITIES"), bytes.find("OBJECTS"));
    ASSERT_NE(again->structure().rootDictionary(), nullptr);
    EXPECT_EQ(again->file().record(again->structure().rootDictionary()->record).owner, 0U);
    EXPECT_EQ(bytesOf(*again), bytes);
}

} // namespace
} // namespace quor::db
