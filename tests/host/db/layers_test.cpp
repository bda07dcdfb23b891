#include "tests/host/db/drawings.h"

#include <gmock/gmock.h>

namespace quor::db {
namespace {

using namespace drawings;
using testing::Contains;
using testing::IsEmpty;
using testing::Not;

const wchar_t* const kHidden = L"ADSK_SYSTEM_LIGHTS";

// Adds a hidden layer as the module of lights does.
ZrDbObjectId addHidden(Database& database, const ZrString& name = kHidden) {
    ZrDbLayerTable* table = nullptr;
    database.interface().getLayerTable(table, ZrDb::kForWrite);
    auto* layer = new ZrDbLayerTableRecord;
    layer->setName(name);
    layer->setIsHidden(true);
    ZrDbObjectId id;
    table->add(id, layer);
    layer->close();
    table->close();
    return id;
}

struct LayersTest : testing::Test {
    LayersTest() { database->interface().getLayerTable(table, ZrDb::kForWrite); }

    [[nodiscard]] Quor::ErrorStatus add(ZrDbLayerTableRecord& layer) {
        ZrDbObjectId id;
        return table->add(id, &layer);
    }

    std::unique_ptr<Database> database = Database::makeNew();
    ZrDbLayerTable* table = nullptr;
};

TEST_F(LayersTest, TableRefusesToAddToATableOpenForRead) {
    table->close();
    ASSERT_EQ(database->interface().getLayerTable(table, ZrDb::kForRead), Quor::eOk);
    ZrDbLayerTableRecord layer;
    layer.setName(L"Walls");
    EXPECT_EQ(add(layer), Quor::eNotOpenForWrite);
}

TEST_F(LayersTest, LayerWithoutANameIsRefused) {
    ZrDbLayerTableRecord layer;
    EXPECT_EQ(add(layer), Quor::eInvalidName);
}

TEST_F(LayersTest, SecondLayerOfANameIsRefusedWhateverItsCase) {
    ZrDbLayerTableRecord layer;
    database->makeLayer(L"Walls");
    layer.setName(L"wALLS");
    EXPECT_EQ(add(layer), Quor::eDuplicateKey);
    EXPECT_TRUE(layer.objectId().isNull());
}

TEST_F(LayersTest, NothingAndWhatIsInADrawingAlreadyAreRefused) {
    ZrDbObjectId id;
    auto* layer = new ZrDbLayerTableRecord;
    layer->setName(L"Walls");
    EXPECT_EQ(table->add(id, nullptr), Quor::eNullObjectPointer);
    ASSERT_EQ(table->add(id, layer), Quor::eOk);
    EXPECT_EQ(table->add(id, layer), Quor::eAlreadyInDb);
    EXPECT_EQ(layer->setName(L"Other"), Quor::eNotAllowed);
    layer->close();
}

TEST_F(LayersTest, NameHasUpTo255CharactersAndNoneThatNamesCannotHold) {
    ZrDbLayerTableRecord layer;
    EXPECT_EQ(layer.setName(ZrString(255, L'x')), Quor::eOk);
    EXPECT_EQ(layer.setName(ZrString(256, L'x')), Quor::eInvalidName);
    EXPECT_EQ(layer.setName(L""), Quor::eInvalidName);
    EXPECT_EQ(layer.setName(L"*Walls"), Quor::eInvalidName);
    EXPECT_EQ(layer.setName(L"a\nb"), Quor::eInvalidName);
    EXPECT_EQ(layer.setName(L"a|b"), Quor::eInvalidName);
    EXPECT_EQ(layer.getName().size(), 255U);
}

TEST_F(LayersTest, HiddenLayerIsFoundByEitherSpelling) {
    table->close();
    const ZrDbObjectId hidden = addHidden(*database);
    database->interface().getLayerTable(table, ZrDb::kForRead);
    ZrDbObjectId plain;
    ZrDbObjectId starred;
    EXPECT_EQ(table->getIdAt(L"adsk_system_lights", plain), Quor::eOk);
    EXPECT_EQ(table->getIdAt(L"*ADSK_SYSTEM_LIGHTS", starred), Quor::eOk);
    EXPECT_EQ(plain, hidden);
    EXPECT_EQ(starred, hidden);
    EXPECT_FALSE(table->has(L"**ADSK_SYSTEM_LIGHTS"));
    EXPECT_FALSE(table->has(L"ADSK"));
}

TEST_F(LayersTest, HiddenLayerShowsAnAsteriskOutsideOnly) {
    table->close();
    const ZrDbObjectPointer<ZrDbLayerTableRecord> layer(addHidden(*database), ZrDb::kForRead);
    EXPECT_EQ(layer->getName(), kHidden);
    EXPECT_EQ(layer->displayName(), L"*ADSK_SYSTEM_LIGHTS");
}

TEST_F(LayersTest, NewLightOnTheHiddenLayerAnswersTheNameWithAsterisk) {
    table->close();
    const ZrDbObjectId hidden = addHidden(*database);
    auto light = std::make_unique<ZrDbLight>();
    EXPECT_EQ(light->setLayer(hidden, true, true), Quor::eOk);
    const ZrDbObjectId id = append(database->interface().modelSpaceId(), std::move(light));
    EXPECT_EQ(ZrDbObjectPointer<ZrDbLight>(id, ZrDb::kForRead)->layer(), L"*ADSK_SYSTEM_LIGHTS");
}

TEST_F(LayersTest, SetLayerRefusesHiddenLayersUnlessTheyAreAllowed) {
    table->close();
    const ZrDbObjectId hidden = addHidden(*database);
    const ZrDbObjectPointer<ZrDbLine> line(addLine(*database), ZrDb::kForWrite);
    EXPECT_EQ(line->setLayer(hidden), Quor::eInvalidLayer);
    EXPECT_EQ(line->setLayer(L"*ADSK_SYSTEM_LIGHTS"), Quor::eInvalidLayer);
    EXPECT_EQ(line->layer(), L"0");
    EXPECT_EQ(line->setLayer(kHidden, true, true), Quor::eOk);
    EXPECT_EQ(line->layerId(), hidden);
}

TEST_F(LayersTest, SetLayerRefusesWhatIsNoLayerOfTheDrawing) {
    const ZrDbObjectId erased = database->makeLayer(L"Walls");
    erase(erased);
    const auto other = Database::makeNew();
    const ZrDbObjectPointer<ZrDbLine> line(addLine(*database), ZrDb::kForWrite);
    EXPECT_EQ(line->setLayer(L"Nowhere"), Quor::eInvalidLayer);
    EXPECT_EQ(line->setLayer(L"Walls"), Quor::eInvalidLayer);
    EXPECT_EQ(line->setLayer(erased), Quor::eInvalidLayer);
    EXPECT_EQ(line->setLayer(ZrDbObjectId()), Quor::eInvalidLayer);
    EXPECT_EQ(line->setLayer(database->interface().modelSpaceId()), Quor::eInvalidLayer);
    EXPECT_EQ(line->setLayer(other->interface().layerZeroId()), Quor::eWrongDatabase);
    EXPECT_EQ(line->layerId(), database->interface().layerZeroId());
}

TEST_F(LayersTest, SetLayerNeedsTheEntityOpenForWrite) {
    const ZrDbObjectPointer<ZrDbLine> line(addLine(*database), ZrDb::kForRead);
    EXPECT_EQ(line->setLayer(L"0"), Quor::eNotOpenForWrite);
}

TEST_F(LayersTest, ErasedNameIsFreeAndComesBackWithUndo) {
    const ZrDbObjectId first = database->makeLayer(L"Walls");
    erase(first);
    const ZrDbObjectId second = database->makeLayer(L"Walls");
    EXPECT_NE(first, second);
    database->journal().undo();
    EXPECT_EQ(database->layers().find(L"Walls"), nullptr);
    database->journal().undo();
    EXPECT_EQ(ZrDbObjectId(database->layers().find(L"Walls")), first);
    database->journal().redo();
    database->journal().redo();
    EXPECT_EQ(ZrDbObjectId(database->layers().find(L"Walls")), second);
}

TEST_F(LayersTest, MakeLayerGivesTheOneThatIsThere) {
    EXPECT_EQ(database->makeLayer(L"Walls"), database->makeLayer(L"WALLS"));
    EXPECT_EQ(database->layerIds().size(), 2U);
}

TEST_F(LayersTest, LinetypesAreFoundWithoutRegardToCase) {
    EXPECT_FALSE(database->interface().linetypeId(L"continuous").isNull());
    EXPECT_TRUE(database->interface().linetypeId(L"dashed-nowhere").isNull());
}

// Hidden layers in files: by asterisk from AC1021 on, frozen and locked before.
TEST(HiddenLayers, AreReadByAsteriskFrom2007On) {
    const auto database = opened("own/light_2007.dxf");
    const ZrDbObjectPointer<ZrDbLayerTableRecord> layer(ZrDbObjectId(database->layers().find(kHidden)), ZrDb::kForRead);
    EXPECT_TRUE(layer->isHidden());
    EXPECT_EQ(layer->getName(), kHidden);
    EXPECT_EQ(ZrDbObjectPointer<ZrDbLight>(lightOf(*database), ZrDb::kForRead)->layer(), L"*ADSK_SYSTEM_LIGHTS");
}

TEST(HiddenLayers, AreReadByNameFrozenAndLockedBefore2007) {
    const auto database = opened("own/light_2000.dxf");
    const ZrDbObjectPointer<ZrDbLayerTableRecord> layer(ZrDbObjectId(database->layers().find(kHidden)), ZrDb::kForRead);
    EXPECT_TRUE(layer->isHidden());
    EXPECT_FALSE(layer->isFrozen());
    EXPECT_FALSE(layer->isLocked());
    EXPECT_EQ(ZrDbObjectPointer<ZrDbLight>(lightOf(*database), ZrDb::kForRead)->layer(), L"*ADSK_SYSTEM_LIGHTS");
}

TEST(HiddenLayers, PlainNameThatIsNotLockedAwayIsNoHiddenLayer) {
    const std::string layer = "0\nLAYER\n2\nADSK_SYSTEM_LIGHTS\n70\n1\n62\n7\n6\nContinuous\n";
    const std::string tables = "0\nTABLE\n2\nLAYER\n70\n1\n" + layer + "0\nENDTAB\n";
    const auto database = parsed(drawing("AC1015", {"", "", tables, "", ""}));
    const ZrDbObjectPointer<ZrDbLayerTableRecord> record(database->layerIds().at(0), ZrDb::kForRead);
    EXPECT_FALSE(record->isHidden());
    EXPECT_TRUE(record->isFrozen());
}

TEST(HiddenLayers, AreWrittenWithAsteriskFrom2007On) {
    const auto database = Database::makeNew();
    const ZrDbObjectId hidden = addHidden(*database);
    change(addLight(*database), [&](ZrDbLight& light) { light.setLayer(hidden, true, true); });
    const std::string bytes = bytesOf(*database);
    EXPECT_THAT(recordOf(bytes, "LAYER", "2|*ADSK_SYSTEM_LIGHTS"), Contains("70|0"));
    EXPECT_THAT(recordOf(bytes, "LIGHT", "8|*ADSK_SYSTEM_LIGHTS"), Not(IsEmpty()));
}

TEST(HiddenLayers, AreWrittenFrozenAndLockedBefore2007) {
    const auto database = opened("own/light_2000.dxf");
    const ZrDbObjectId hidden = addHidden(*database, L"ADSK_CONSTRAINTS");
    change(lightOf(*database), [&](ZrDbLight& light) { light.setLayer(hidden, true, true); });
    const std::string bytes = bytesOf(*database);
    EXPECT_THAT(recordOf(bytes, "LAYER", "2|ADSK_CONSTRAINTS"), Contains("70|5"));
    EXPECT_THAT(recordOf(bytes, "LIGHT", "8|ADSK_CONSTRAINTS"), Not(IsEmpty()));
    const auto again = parsed(bytes);
    const ZrDbObjectId read(again->layers().find(L"*ADSK_CONSTRAINTS"));
    EXPECT_TRUE(ZrDbObjectPointer<ZrDbLayerTableRecord>(read, ZrDb::kForRead)->isHidden());
}

TEST(Layers, EntityOnALayerThatIsMissingKeepsItsName) {
    const std::string line = "0\nLINE\n8\nGone\n10\n0.0\n20\n0.0\n30\n0.0\n11\n1.0\n21\n0.0\n31\n0.0\n";
    const auto database = parsed(drawing("AC1009", {"", "", "", line, ""}));
    const ZrDbObjectId id = database->entities(database->interface().modelSpaceId()).at(0);
    EXPECT_EQ(ZrDbObjectPointer<ZrDbLine>(id, ZrDb::kForRead)->layer(), L"Gone");
    EXPECT_TRUE(ZrDbObjectPointer<ZrDbLine>(id, ZrDb::kForRead)->layerId().isNull());
    ZrDbObjectPointer<ZrDbLine>(id, ZrDb::kForWrite)->setEndPoint({2, 0, 0});
    EXPECT_TRUE(holds(bytesOf(*database), "8|Gone"));
}

TEST(Layers, NewEntityOfADrawingWithoutLayersIsOnLayerZero) {
    const auto database = parsed("0\nSECTION\n2\nENTITIES\n0\nENDSEC\n0\nEOF\n");
    EXPECT_EQ(ZrDbObjectPointer<ZrDbLine>(addLine(*database), ZrDb::kForRead)->layer(), L"0");
    EXPECT_TRUE(holds(bytesOf(*database), "8|0"));
}

TEST(Layers, DrawingWithoutALayerTableGetsOneWithItsFirstLayer) {
    const auto database = parsed(drawing("AC1015", {"9\n$HANDSEED\n5\n20\n", "", "", "", ""}));
    database->makeLayer(L"Walls");
    const std::string bytes = bytesOf(*database);
    EXPECT_FALSE(holds(bytes, "5|0"));
    EXPECT_TRUE(holds(bytes, "5|22")); // the seed, above the table and its layer
    EXPECT_NE(parsed(bytes)->layers().find(L"Walls"), nullptr);
}

} // namespace
} // namespace quor::db
