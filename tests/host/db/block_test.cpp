#include "tests/host/db/drawings.h"

#include <gmock/gmock.h>

namespace quor::db {
namespace {

using namespace drawings;
using testing::ElementsAre;

std::vector<ZrDbObjectId> walked(std::unique_ptr<ZrDbBlockTableRecordIterator> iterator) {
    std::vector<ZrDbObjectId> ids;
    for (; !iterator->done(); iterator->step())
        ids.push_back(iterator->entityId());
    return ids;
}

struct BlockRecord : testing::Test {
    std::unique_ptr<Database> database = Database::makeNew();
    ZrDbObjectId model = database->interface().modelSpaceId();
};

TEST_F(BlockRecord, AppendingNeedsTheBlockOpenForWrite) {
    const ZrDbObjectPointer<ZrDbBlockTableRecord> space(model, ZrDb::kForRead);
    ZrDbLine line;
    ZrDbObjectId id;
    EXPECT_EQ(space->appendZrDbEntity(id, &line), Quor::eNotOpenForWrite);
    EXPECT_TRUE(id.isNull());
    EXPECT_TRUE(line.objectId().isNull());
}

TEST_F(BlockRecord, NothingAndWhatIsInADrawingAlreadyAreNotAppended) {
    const ZrDbObjectPointer<ZrDbBlockTableRecord> space(model, ZrDb::kForWrite);
    ZrDbObjectId id;
    auto* line = new ZrDbLine;
    EXPECT_EQ(space->appendZrDbEntity(id, nullptr), Quor::eNullObjectPointer);
    ASSERT_EQ(space->appendZrDbEntity(id, line), Quor::eOk);
    EXPECT_EQ(space->appendZrDbEntity(id, line), Quor::eAlreadyInDb);
    EXPECT_EQ(space->entityCount(ZrDbLine::desc()), 1U);
    line->close();
}

TEST_F(BlockRecord, AppendedEntityIsOpenForWriteAndHasItsPlace) {
    const ZrDbObjectPointer<ZrDbBlockTableRecord> space(model, ZrDb::kForWrite);
    ZrDbObjectId id;
    auto* line = new ZrDbLine;
    space->appendZrDbEntity(id, line);
    EXPECT_TRUE(line->isWriteEnabled());
    EXPECT_EQ(line->objectId(), id);
    EXPECT_EQ(line->ownerId(), model);
    EXPECT_EQ(line->blockId(), model);
    EXPECT_EQ(line->database(), &database->interface());
    EXPECT_EQ(line->layer(), L"0");
    EXPECT_EQ(line->setEndPoint({1, 0, 0}), Quor::eOk);
    line->close();
    EXPECT_EQ(line->setEndPoint({2, 0, 0}), Quor::eNotOpenForWrite);
}

TEST_F(BlockRecord, TheLastEntityIsTheLastOneThatIsNotErased) {
    EXPECT_TRUE(database->lastEntity(model).isNull());
    const ZrDbObjectId first = addLine(*database);
    const ZrDbObjectId second = addLine(*database);
    EXPECT_EQ(database->lastEntity(model), second);
    erase(second);
    EXPECT_EQ(database->lastEntity(model), first);
    erase(first);
    EXPECT_TRUE(database->lastEntity(model).isNull());
    const ZrDbObjectId third = addLine(*database);
    EXPECT_EQ(database->lastEntity(model), third);
}

TEST_F(BlockRecord, TheLastEntityIsFoundAgainWhenItComesBack) {
    database->journal().begin(L"LINE");
    const ZrDbObjectId line = addLine(*database);
    database->journal().end();
    database->journal().undo();
    EXPECT_TRUE(database->lastEntity(model).isNull());
    database->journal().redo();
    EXPECT_EQ(database->lastEntity(model), line);
}

TEST_F(BlockRecord, HandlesGoOnFromTheSeedAndFindTheirObjects) {
    const ZrDbObjectId line = addLine(*database);
    const ZrDbObjectId light = addLight(*database);
    const ZrDbObjectId last = addLine(*database);
    EXPECT_EQ(line.handle(), ZrDbHandle(0x30));
    EXPECT_EQ(light.handle(), ZrDbHandle(0x31));
    EXPECT_EQ(last.handle(), ZrDbHandle(0x34)); // the light's dictionary and record come between
    EXPECT_EQ(database->interface().objectId(ZrDbHandle(0x31)), light);
    EXPECT_TRUE(database->interface().objectId(ZrDbHandle(0x99)).isNull());
    EXPECT_TRUE(database->interface().objectId(ZrDbHandle()).isNull());
}

TEST_F(BlockRecord, NewEntityIsOnTheCurrentLayer) {
    database->setCurrentLayer(database->makeLayer(L"Walls"));
    EXPECT_EQ(ZrDbObjectPointer<ZrDbEntity>(addLine(*database), ZrDb::kForRead)->layer(), L"Walls");
}

TEST_F(BlockRecord, IteratorGivesDrawingOrderWithoutErasedOnes) {
    const ZrDbObjectId first = addLine(*database);
    const ZrDbObjectId second = addLight(*database);
    const ZrDbObjectId third = addLine(*database);
    erase(first);
    const ZrDbObjectPointer<ZrDbBlockTableRecord> space(model, ZrDb::kForRead);
    EXPECT_THAT(walked(space->newIterator()), ElementsAre(second, third));
}

TEST_F(BlockRecord, IteratorOfAClassLeavesTheOthersAndErasedOnesOut) {
    const ZrDbObjectId first = addLight(*database, L"a");
    addLine(*database);
    const ZrDbObjectId second = addLight(*database, L"b");
    const ZrDbObjectId third = addLight(*database, L"c");
    erase(second);
    const ZrDbObjectPointer<ZrDbBlockTableRecord> space(model, ZrDb::kForRead);
    EXPECT_THAT(walked(space->newIterator(ZrDbLight::desc())), ElementsAre(first, third));
    EXPECT_EQ(space->entityCount(ZrDbLight::desc()), 2U);
}

TEST_F(BlockRecord, IteratorsSeeWhatIsAppendedWhileTheyWalk) {
    addLight(*database, L"a");
    const auto iterators = [&] {
        const ZrDbObjectPointer<ZrDbBlockTableRecord> space(model, ZrDb::kForRead);
        return std::pair(space->newIterator(), space->newIterator(ZrDbLight::desc()));
    }();
    const ZrDbObjectId later = addLight(*database, L"b");
    iterators.first->step();
    iterators.second->step();
    EXPECT_EQ(iterators.first->entityId(), later);
    EXPECT_EQ(iterators.second->entityId(), later);
}

TEST_F(BlockRecord, IteratorBehindTheEndNamesNothingAndStartsAgain) {
    const ZrDbObjectId line = addLine(*database);
    const ZrDbObjectPointer<ZrDbBlockTableRecord> space(model, ZrDb::kForRead);
    const auto iterator = space->newIterator();
    iterator->step();
    EXPECT_TRUE(iterator->done());
    EXPECT_TRUE(iterator->entityId().isNull());
    iterator->start();
    EXPECT_EQ(iterator->entityId(), line);
}

TEST_F(BlockRecord, SpacesAreFoundByNameWithoutRegardToCase) {
    ZrDbBlockTable* blocks = nullptr;
    ASSERT_EQ(database->interface().getBlockTable(blocks, ZrDb::kForRead), Quor::eOk);
    ZrDbObjectId id;
    EXPECT_EQ(blocks->getIdAt(L"*MODEL_SPACE", id), Quor::eOk);
    EXPECT_EQ(id, model);
    EXPECT_EQ(blocks->getIdAt(L"Model_Space", id), Quor::eKeyNotFound);
    blocks->close();
    const ZrDbObjectPointer<ZrDbBlockTableRecord> space(model, ZrDb::kForRead);
    EXPECT_EQ(space->getName(), L"*Model_Space");
    EXPECT_TRUE(space->isLayout());
}

TEST_F(BlockRecord, EntityInPaperSpaceIsSavedThereAndReadFromThere) {
    append(database->interface().paperSpaceId(), std::make_unique<ZrDbLine>());
    const auto again = reopened(*database);
    EXPECT_EQ(again->entities(again->interface().paperSpaceId()).size(), 1U);
    EXPECT_TRUE(again->entities(again->interface().modelSpaceId()).empty());
}

} // namespace
} // namespace quor::db
