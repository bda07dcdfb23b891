// What drawings of old versions, and entities without handles, have no place for stays in memory.
#include "tests/host/db/drawings.h"

#include <gmock/gmock.h>

namespace quor::db {
namespace {

using namespace drawings;
using testing::ElementsAre;
using testing::IsEmpty;

const std::string kTwoLines = "0\nLINE\n8\n0\n10\n1.0\n0\nLINE\n8\n0\n10\n2.0\n";

struct DrawingOfAC1003 : testing::Test {
    std::string before = drawing("AC1003", {"", "", "", kTwoLines, ""});
    std::unique_ptr<Database> database = parsed(before);
};

TEST_F(DrawingOfAC1003, TabAndUcsLastForTheSession) {
    database->setModelTab(false);
    database->setUcs({ZrGePoint3d(1, 2, 3), ZrGeVector3d::kYAxis, ZrGeVector3d::kXAxis, L"Site"});
    EXPECT_FALSE(database->isModelTab());
    EXPECT_EQ(database->ucs().origin, ZrGePoint3d(1, 2, 3));
    EXPECT_EQ(bytesOf(*database), before);
}

TEST_F(DrawingOfAC1003, WhatIsDrawnOnTheSheetIsInTheModel) {
    database->setModelTab(false);
    EXPECT_EQ(database->interface().currentSpaceId(), database->interface().modelSpaceId());
}

TEST(OldDrawings, OfTheNextVersionKeepTabAndUcs) {
    const std::string before = drawing("AC1009", {"", "", "", kTwoLines, ""});
    const auto database = parsed(before);
    database->setModelTab(false);
    EXPECT_THAT(difference(before, bytesOf(*database)).come, ElementsAre("9|$TILEMODE", "70|0"));
    EXPECT_EQ(database->interface().currentSpaceId(), database->interface().paperSpaceId());
}

TEST_F(DrawingOfAC1003, EntitiesWithoutHandleAreNumberedInMemoryOnly) {
    const auto lines = database->entities(database->interface().modelSpaceId());
    ASSERT_EQ(lines.size(), 2U);
    EXPECT_FALSE(lines[0].handle().isNull());
    EXPECT_NE(lines[0].handle(), lines[1].handle());
    EXPECT_EQ(database->interface().objectId(lines[1].handle()), lines[1]);
    {
        const ZrDbObjectPointer<ZrDbLine> line(lines[0], ZrDb::kForWrite);
        line->setStartPoint(ZrGePoint3d(9, 0, 0));
    }
    addLine(*database);
    EXPECT_THAT(recordOf(bytesOf(*database), "LINE", "10|9.0"),
                testing::Not(testing::Contains(testing::StartsWith("5|"))));
    EXPECT_THAT(recordOf(bytesOf(*database), "LINE", "31|6.0"),
                testing::Not(testing::Contains(testing::StartsWith("5|"))));
}

TEST(Viewports, InTheModelTabThereIsOne) {
    const auto database = Database::makeNew();
    EXPECT_TRUE(database->hasViewport(2));
    EXPECT_FALSE(database->hasViewport(1));
    EXPECT_FALSE(database->hasViewport(3));
}

TEST(Viewports, InALayoutThereAreItsSheetAndThoseOnIt) {
    const std::string viewports = "0\nVIEWPORT\n5\n20\n67\n1\n69\n1\n0\nVIEWPORT\n5\n21\n67\n1\n69\n3\n";
    const auto database = parsed(drawing("AC1015", {"", "", "", viewports, ""}));
    database->setModelTab(false);
    EXPECT_TRUE(database->hasViewport(1));
    EXPECT_FALSE(database->hasViewport(2));
    EXPECT_TRUE(database->hasViewport(3));
    erase(database->interface().objectId(ZrDbHandle(0x21)));
    EXPECT_FALSE(database->hasViewport(3));
}

TEST(CurrentLayer, OfNoLayerStaysAsItIs) {
    const auto database = Database::makeNew();
    database->setCurrentLayer({});
    database->setCurrentLayer(addLine(*database));
    EXPECT_EQ(database->interface().currentLayerId(), database->interface().layerZeroId());
}

TEST(LayerOfAnEntity, WithoutNameIsRefused) {
    const auto database = Database::makeNew();
    const ZrDbObjectPointer<ZrDbLine> line(addLine(*database), ZrDb::kForWrite);
    EXPECT_EQ(line->setLayer(static_cast<const wchar_t*>(nullptr)), Quor::eInvalidLayer);
}

TEST(SavedInAGroup, IsNotModifiedUntilMoreChanges) {
    const auto database = Database::makeNew();
    Journal& journal = database->journal();
    journal.begin(L"SCRIPT");
    addLine(*database);
    journal.markSaved();
    EXPECT_FALSE(journal.isModified());
    journal.end();
    EXPECT_FALSE(journal.isModified());
    journal.undo();
    EXPECT_TRUE(journal.isModified());
    journal.redo();
    EXPECT_FALSE(journal.isModified());
}

TEST(SavedInAGroup, IsModifiedByAnObjectThatTheGroupChangedBefore) {
    const auto database = Database::makeNew();
    Journal& journal = database->journal();
    journal.begin(L"SCRIPT");
    const ZrDbObjectId light = addLight(*database);
    journal.markSaved();
    change(light, [](ZrDbLight& added) { added.setOn(false); });
    EXPECT_TRUE(journal.isModified());
    journal.end();
    EXPECT_TRUE(journal.isModified());
}

} // namespace
} // namespace quor::db
