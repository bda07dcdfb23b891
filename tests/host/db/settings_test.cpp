#include "tests/host/db/drawings.h"

#include <gmock/gmock.h>

namespace quor::db {
namespace {

using namespace drawings;
using testing::Contains;
using testing::ElementsAre;

struct Settings : testing::Test {
    std::unique_ptr<Database> database = Database::makeNew();
    std::string before = bytesOf(*database);

    [[nodiscard]] Difference changed() { return difference(before, bytesOf(*database)); }
};

TEST_F(Settings, NewDrawingIsMetricOfTheNewestVersion) {
    EXPECT_EQ(database->version(), L"AC1032");
    EXPECT_TRUE(database->isNew());
    EXPECT_EQ(database->header(L"$INSUNITS"), HeaderValue(4LL));
    EXPECT_EQ(database->header(L"$LUNITS"), HeaderValue(2LL));
    EXPECT_EQ(database->header(L"$LUPREC"), HeaderValue(4LL));
    EXPECT_EQ(database->header(L"$AUNITS"), HeaderValue(0LL));
    EXPECT_EQ(database->header(L"$AUPREC"), HeaderValue(0LL));
    EXPECT_EQ(database->dictionaryVariable(L"LIGHTINGUNITS"), L"2");
    EXPECT_TRUE(database->defaultLighting());
    EXPECT_TRUE(database->isModelTab());
    EXPECT_EQ(database->currentViewport(), 2);
    EXPECT_EQ(database->layouts().size(), 1U);
}

TEST_F(Settings, WholeNumberIsReplacedInPlace) {
    database->setHeader(L"$LUPREC", 70, 6LL);
    EXPECT_EQ(database->header(L"$LUPREC"), HeaderValue(6LL));
    EXPECT_THAT(changed().gone, ElementsAre("70|4"));
    EXPECT_THAT(changed().come, ElementsAre("70|6"));
}

TEST_F(Settings, RealNumberIsReplacedInPlace) {
    database->setHeader(L"$LTSCALE", 40, 2.5);
    EXPECT_THAT(changed().gone, ElementsAre("40|1.0"));
    EXPECT_THAT(changed().come, ElementsAre("40|2.5"));
}

TEST_F(Settings, TextIsReplacedInPlace) {
    database->setHeader(L"$PROJECTNAME", 1, ZrString(L"展厅"));
    EXPECT_THAT(changed().come, ElementsAre("1|展厅"));
    EXPECT_EQ(reopened(*database)->header(L"$PROJECTNAME"), HeaderValue(ZrString(L"展厅")));
}

TEST_F(Settings, PointIsReplacedInPlace) {
    database->setHeader(L"$UCSORG", 10, ZrGePoint3d(1, 2, 3));
    EXPECT_THAT(changed().gone, ElementsAre("10|0.0", "20|0.0", "30|0.0"));
    EXPECT_THAT(changed().come, ElementsAre("10|1.0", "20|2.0", "30|3.0"));
}

TEST_F(Settings, FlatPointStaysFlat) {
    EXPECT_EQ(database->header(L"$LIMMIN"), HeaderValue(ZrGePoint3d(0, 0, 0)));
    database->setHeader(L"$LIMMIN", 10, ZrGePoint3d(5, 6, 0));
    EXPECT_THAT(changed().gone, ElementsAre("10|0.0", "20|0.0"));
    EXPECT_THAT(changed().come, ElementsAre("10|5.0", "20|6.0"));
}

TEST_F(Settings, VariableThatTheFileLacksIsAddedToTheHeader) {
    EXPECT_EQ(database->header(L"$NEWONE"), std::nullopt);
    database->setHeader(L"$NEWONE", 70, 3LL);
    EXPECT_THAT(changed().come, ElementsAre("9|$NEWONE", "70|3"));
    database->journal().undo();
    EXPECT_EQ(database->header(L"$NEWONE"), std::nullopt);
    EXPECT_EQ(bytesOf(*database), before);
}

TEST_F(Settings, VariableSetBackIsNotWritten) {
    database->setHeader(L"$LUPREC", 70, 6LL);
    database->setHeader(L"$LUPREC", 70, 4LL);
    EXPECT_EQ(bytesOf(*database), before);
}

TEST_F(Settings, VariableIsTakenBackAndRestored) {
    database->setHeader(L"$LUPREC", 70, 6LL);
    database->setHeader(L"$LUPREC", 70, 7LL);
    database->journal().undo();
    EXPECT_EQ(database->header(L"$LUPREC"), HeaderValue(6LL));
    database->journal().undo();
    EXPECT_EQ(database->header(L"$LUPREC"), HeaderValue(4LL));
    database->journal().redo();
    EXPECT_EQ(database->header(L"$LUPREC"), HeaderValue(6LL));
}

TEST_F(Settings, NewDictionaryVariableIsLinkedIntoTheDictionary) {
    EXPECT_EQ(database->dictionaryVariable(L"FIELDEVAL"), std::nullopt);
    database->setDictionaryVariable(L"FIELDEVAL", L"1");
    const std::string bytes = bytesOf(*database);
    EXPECT_THAT(recordOf(bytes, "DICTIONARY", "5|2C"), Contains("3|FIELDEVAL"));
    EXPECT_THAT(recordOf(bytes, "DICTIONARYVAR", "5|30"),
                ElementsAre("0|DICTIONARYVAR", "5|30", "330|2C", "100|DictionaryVariables", "280|0", "1|1"));
    EXPECT_THAT(recordOf(bytes, "CLASS", "1|DICTIONARYVAR"), Contains("91|3"));
    EXPECT_EQ(parsed(bytes)->dictionaryVariable(L"FIELDEVAL"), L"1");
    database->journal().undo();
    EXPECT_EQ(bytesOf(*database), before);
    database->journal().redo();
    EXPECT_EQ(bytesOf(*database), bytes);
}

TEST(DictionaryVariables, ValueThatIsThereIsReplacedInPlace) {
    const auto database = opened("own/light_2007.dxf");
    const std::string before = bytesOf(*database);
    EXPECT_EQ(database->dictionaryVariable(L"LIGHTINGUNITS"), std::nullopt);
    EXPECT_EQ(database->dictionaryVariable(L"DIMASSOC"), L"2");
    database->setDictionaryVariable(L"DIMASSOC", L"1");
    EXPECT_THAT(difference(before, bytesOf(*database)).gone, ElementsAre("1|2"));
    EXPECT_THAT(difference(before, bytesOf(*database)).come, ElementsAre("1|1"));
}

TEST(DictionaryVariables, DrawingWithoutTheDictionaryGetsIt) {
    const std::string root = "0\nDICTIONARY\n5\nC\n330\n0\n100\nAcDbDictionary\n281\n1\n";
    const auto database = parsed(drawing("AC1032", {"9\n$HANDSEED\n5\n20\n", "", "", "", root}));
    database->setDictionaryVariable(L"LIGHTINGUNITS", L"2");
    const std::string bytes = bytesOf(*database);
    EXPECT_THAT(recordOf(bytes, "DICTIONARY", "5|C"), Contains("3|AcDbVariableDictionary"));
    EXPECT_EQ(parsed(bytes)->dictionaryVariable(L"LIGHTINGUNITS"), L"2");
    EXPECT_EQ(bytesOf(*database), bytes);
}

TEST(DictionaryVariables, DrawingWithoutObjectsGetsItsRootToo) {
    const auto database = parsed(drawing("AC1032", {"", "", "", "", ""}));
    database->setDictionaryVariable(L"LIGHTINGUNITS", L"2");
    database->setDictionaryVariable(L"OTHER", L"x");
    const auto again = reopened(*database);
    EXPECT_EQ(again->dictionaryVariable(L"LIGHTINGUNITS"), L"2");
    EXPECT_EQ(again->dictionaryVariable(L"OTHER"), L"x");
}

TEST(DictionaryVariables, LastForTheSessionInADrawingWithoutDictionaries) {
    const auto database = opened("ez_ASCII_R12.dxf");
    database->setDictionaryVariable(L"LIGHTINGUNITS", L"2");
    EXPECT_EQ(database->dictionaryVariable(L"LIGHTINGUNITS"), L"2");
    EXPECT_EQ(bytesOf(*database), fileBytes("ez_ASCII_R12.dxf"));
}

TEST_F(Settings, DefaultLightingIsKeptInTheActiveViewportFrom2007On) {
    database->setDefaultLighting(false);
    EXPECT_THAT(changed().gone, ElementsAre("292|1"));
    EXPECT_THAT(changed().come, ElementsAre("292|0"));
    EXPECT_FALSE(reopened(*database)->defaultLighting());
    database->journal().undo();
    EXPECT_TRUE(database->defaultLighting());
    EXPECT_EQ(bytesOf(*database), before);
}

TEST(DefaultLighting, LastsForTheSessionBefore2007) {
    const auto database = opened("own/light_2000.dxf");
    EXPECT_TRUE(database->defaultLighting());
    database->setDefaultLighting(false);
    EXPECT_FALSE(database->defaultLighting());
    EXPECT_EQ(bytesOf(*database), fileBytes("own/light_2000.dxf"));
}

TEST(DefaultLighting, IsAddedBeforeExtendedDataWhereTheViewportLacksIt) {
    const std::string viewport = "0\nVPORT\n5\n2D\n100\nAcDbViewportTableRecord\n2\n*Active\n70\n0\n";
    const std::string tables = "0\nTABLE\n2\nVPORT\n70\n1\n" + viewport + "1001\nACAD\n1070\n1\n0\nENDTAB\n";
    const auto database = parsed(drawing("AC1021", {"", "", tables, "", ""}));
    database->setDefaultLighting(false);
    EXPECT_THAT(recordOf(bytesOf(*database), "VPORT", "5|2D"),
                ElementsAre("0|VPORT", "5|2D", "100|AcDbViewportTableRecord", "2|*Active", "70|0", "292|0", "1001|ACAD",
                            "1070|1"));
}

TEST_F(Settings, SpaceFollowsTabAndViewport) {
    ZrDbDatabase& face = database->interface();
    EXPECT_EQ(face.currentSpaceId(), face.modelSpaceId());
    database->setModelTab(false);
    EXPECT_EQ(database->currentViewport(), 1);
    EXPECT_EQ(face.currentSpaceId(), face.paperSpaceId());
    database->setCurrentViewport(3);
    EXPECT_EQ(face.currentSpaceId(), face.modelSpaceId());
    database->setModelTab(true);
    EXPECT_EQ(database->currentViewport(), 2);
    EXPECT_EQ(face.currentSpaceId(), face.modelSpaceId());
}

TEST_F(Settings, TabIsSavedAndTakenBack) {
    group(*database, L"TILEMODE", [&] { database->setModelTab(false); });
    EXPECT_FALSE(reopened(*database)->isModelTab());
    EXPECT_EQ(reopened(*database)->currentViewport(), 1);
    database->journal().undo();
    EXPECT_TRUE(database->isModelTab());
    EXPECT_EQ(database->currentViewport(), 2);
    EXPECT_EQ(bytesOf(*database), before);
}

TEST_F(Settings, LayoutIsFoundByNameWithoutRegardToCase) {
    EXPECT_EQ(database->layouts().at(0).name, L"Layout1");
    EXPECT_EQ(database->layouts().at(0).blockId, database->interface().paperSpaceId());
    EXPECT_EQ(database->currentLayout(), L"Layout1");
    EXPECT_TRUE(database->setCurrentLayout(L"LAYOUT1"));
    EXPECT_FALSE(database->setCurrentLayout(L"Model"));
    EXPECT_EQ(database->currentLayout(), L"Layout1");
    EXPECT_EQ(database->journal().undoDepth(), 0U);
}

TEST_F(Settings, EachSpaceHasItsOwnUcs) {
    Ucs ucs;
    ucs.origin = {1, 2, 3};
    ucs.xAxis = {0, 1, 0};
    ucs.yAxis = {-1, 0, 0};
    ucs.name = L"Stage";
    group(*database, L"UCS", [&] { database->setUcs(ucs); });
    database->setModelTab(false);
    EXPECT_EQ(database->ucs().origin, ZrGePoint3d(0, 0, 0));
    const auto again = reopened(*database);
    again->setModelTab(true);
    EXPECT_EQ(again->ucs().origin, ZrGePoint3d(1, 2, 3));
    EXPECT_EQ(again->ucs().xAxis, ZrGeVector3d(0, 1, 0));
    EXPECT_EQ(again->ucs().name, L"Stage");
}

TEST_F(Settings, UcsIsTakenBackWithItsGroup) {
    Ucs ucs;
    ucs.origin = {1, 2, 3};
    group(*database, L"UCS", [&] { database->setUcs(ucs); });
    EXPECT_EQ(database->interface().ucsToWorld() * ZrGePoint3d(1, 0, 0), ZrGePoint3d(2, 2, 3));
    database->journal().undo();
    EXPECT_EQ(database->ucs().origin, ZrGePoint3d(0, 0, 0));
    EXPECT_EQ(bytesOf(*database), before);
}

TEST_F(Settings, UcsWhoseAxesSpanNoPlaneCountsAsTheWorlds) {
    database->setHeader(L"$UCSYDIR", 10, ZrGePoint3d(2, 0, 0));
    EXPECT_EQ(database->ucs().xAxis, ZrGeVector3d::kXAxis);
    EXPECT_EQ(database->ucs().yAxis, ZrGeVector3d::kYAxis);
    database->setHeader(L"$UCSYDIR", 10, ZrGePoint3d(0, 0, 0));
    EXPECT_EQ(database->ucs().yAxis, ZrGeVector3d::kYAxis);
}

TEST_F(Settings, CurrentLayerIsSavedAndTakenBack) {
    const ZrDbObjectId walls = database->makeLayer(L"Walls");
    database->setCurrentLayer(walls);
    EXPECT_EQ(database->interface().currentLayerId(), walls);
    EXPECT_EQ(reopened(*database)->header(L"$CLAYER"), HeaderValue(ZrString(L"Walls")));
    database->journal().undo();
    EXPECT_EQ(database->interface().currentLayerId(), database->interface().layerZeroId());
}

TEST_F(Settings, CurrentLayerThatIsMissingIsLayerZero) {
    database->setHeader(L"$CLAYER", 8, ZrString(L"Nowhere"));
    EXPECT_EQ(database->interface().currentLayerId(), database->interface().layerZeroId());
}

TEST(BinarySettings, AreReplacedAndReadBack) {
    const auto database = opened("own/light_2000_binary.dxf");
    database->setHeader(L"$LUPREC", 70, 6LL);
    database->setHeader(L"$LIMMIN", 10, ZrGePoint3d(5, 6, 0));
    database->setHeader(L"$MENU", 1, ZrString(L"m"));
    database->setDictionaryVariable(L"LIGHTINGUNITS", L"0");
    const auto again = reopened(*database);
    EXPECT_EQ(again->header(L"$LUPREC"), HeaderValue(6LL));
    EXPECT_EQ(again->header(L"$LIMMIN"), HeaderValue(ZrGePoint3d(5, 6, 0)));
    EXPECT_EQ(again->header(L"$MENU"), HeaderValue(ZrString(L"m")));
    EXPECT_EQ(again->dictionaryVariable(L"LIGHTINGUNITS"), L"0");
}

} // namespace
} // namespace quor::db
