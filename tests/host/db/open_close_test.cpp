#include "tests/host/db/drawings.h"

#include "sdk/db/face.h"

#include <gtest/gtest.h>

namespace quor::db {
namespace {

using namespace drawings;

struct OpenClose : testing::Test {
    std::unique_ptr<Database> database = Database::makeNew();
    ZrDbObjectId line = addLine(*database);
    ZrDbObject* object = nullptr;
};

TEST_F(OpenClose, NullIdIsRefused) {
    EXPECT_EQ(zrdbOpenObject(object, ZrDbObjectId(), ZrDb::kForRead), Quor::eNullObjectId);
    EXPECT_EQ(object, nullptr);
}

TEST_F(OpenClose, ErasedObjectOpensOnlyWhenAskedFor) {
    erase(line);
    EXPECT_EQ(zrdbOpenObject(object, line, ZrDb::kForRead), Quor::eWasErased);
    EXPECT_EQ(object, nullptr);
    ASSERT_EQ(zrdbOpenObject(object, line, ZrDb::kForRead, true), Quor::eOk);
    EXPECT_TRUE(object->isErased());
    object->close();
}

TEST_F(OpenClose, ReadersShareTheObjectAndKeepWritersOut) {
    const ZrDbObjectPointer<ZrDbLine> first(line, ZrDb::kForRead);
    const ZrDbObjectPointer<ZrDbLine> second(line, ZrDb::kForRead);
    EXPECT_EQ(first.object(), second.object());
    EXPECT_EQ(zrdbOpenObject(object, line, ZrDb::kForWrite), Quor::eWasOpenForRead);
    EXPECT_EQ(object, nullptr);
}

TEST_F(OpenClose, WriterKeepsReadersAndWritersOut) {
    const ZrDbObjectPointer<ZrDbLine> writer(line, ZrDb::kForWrite);
    EXPECT_EQ(zrdbOpenObject(object, line, ZrDb::kForRead), Quor::eWasOpenForWrite);
    EXPECT_EQ(zrdbOpenObject(object, line, ZrDb::kForWrite), Quor::eWasOpenForWrite);
    EXPECT_EQ(zrdbOpenObject(object, line, ZrDb::kForNotify), Quor::eWasOpenForWrite);
}

TEST_F(OpenClose, WriterComesInOnceTheLastReaderLeft) {
    { const ZrDbObjectPointer<ZrDbLine> reader(line, ZrDb::kForRead); }
    const ZrDbObjectPointer<ZrDbLine> writer(line, ZrDb::kForWrite);
    EXPECT_EQ(writer.openStatus(), Quor::eOk);
    EXPECT_TRUE(writer->isWriteEnabled());
}

TEST_F(OpenClose, TakesTwoHundredAndFiftyFiveReadersAndNoMore) {
    for (int i = 0; i < 255; ++i)
        ASSERT_EQ(zrdbOpenObject(object, line, ZrDb::kForRead), Quor::eOk);
    ZrDbObject* reader = object;
    EXPECT_EQ(zrdbOpenObject(object, line, ZrDb::kForRead), Quor::eAtMaxReaders);
    EXPECT_EQ(object, nullptr);
    reader->close();
    EXPECT_EQ(zrdbOpenObject(object, line, ZrDb::kForRead), Quor::eOk);
}

TEST_F(OpenClose, WrongClassIsRefusedAndLeavesTheObjectClosed) {
    ZrDbLight* light = nullptr;
    EXPECT_EQ(zrdbOpenObject(light, line, ZrDb::kForWrite), Quor::eNotThatKindOfClass);
    EXPECT_EQ(light, nullptr);
    EXPECT_EQ(ZrDbObjectPointer<ZrDbLine>(line, ZrDb::kForWrite).openStatus(), Quor::eOk);
}

TEST_F(OpenClose, ClosingOnceTooOftenDoesNoHarm) {
    ASSERT_EQ(zrdbOpenObject(object, line, ZrDb::kForRead), Quor::eOk);
    object->close();
    object->close();
    EXPECT_EQ(ZrDbObjectPointer<ZrDbLine>(line, ZrDb::kForWrite).openStatus(), Quor::eOk);
}

TEST_F(OpenClose, SetterRefusesAReader) {
    const ZrDbObjectPointer<ZrDbLine> reader(line, ZrDb::kForRead);
    EXPECT_EQ(reader->setStartPoint({9, 9, 9}), Quor::eNotOpenForWrite);
    EXPECT_EQ(reader->startPoint(), ZrGePoint3d(1, 2, 3));
    EXPECT_EQ(reader->erase(), Quor::eNotOpenForWrite);
    EXPECT_FALSE(line.isErased());
}

TEST_F(OpenClose, UnerasedObjectIsThereAgain) {
    erase(line);
    erase(line, false);
    EXPECT_FALSE(line.isErased());
    EXPECT_EQ(ZrDbObjectPointer<ZrDbLine>(line, ZrDb::kForRead)->endPoint(), ZrGePoint3d(4, 5, 6));
}

TEST_F(OpenClose, ObjectOutsideADrawingIsFreeToChangeButNotToErase) {
    ZrDbLine loose;
    EXPECT_TRUE(loose.isWriteEnabled());
    EXPECT_EQ(loose.setStartPoint({1, 1, 1}), Quor::eOk);
    EXPECT_EQ(loose.erase(), Quor::eNotInDatabase);
    EXPECT_EQ(loose.close(), Quor::eOk);
    EXPECT_TRUE(loose.objectId().isNull());
    EXPECT_TRUE(loose.ownerId().isNull());
    EXPECT_EQ(loose.database(), nullptr);
}

TEST_F(OpenClose, WhatHoldsTheDrawingTogetherCannotBeErased) {
    ZrDbDatabase& face = database->interface();
    for (const ZrDbObjectId id : {face.modelSpaceId(), face.layerZeroId(), face.objectId(ZrDbHandle(0x1A))}) {
        const ZrDbObjectPointer<ZrDbObject> held(id, ZrDb::kForWrite);
        EXPECT_EQ(held->erase(), Quor::eNotAllowed);
        EXPECT_FALSE(id.isErased());
    }
    ZrDbLayerTable* layers = nullptr;
    ASSERT_EQ(face.getLayerTable(layers, ZrDb::kForWrite), Quor::eOk);
    EXPECT_EQ(layers->erase(), Quor::eNotAllowed);
    layers->close();
}

TEST_F(OpenClose, CurrentLayerCannotBeErased) {
    const ZrDbObjectId layer = database->makeLayer(L"Walls");
    database->setCurrentLayer(layer);
    EXPECT_EQ(ZrDbObjectPointer<ZrDbLayerTableRecord>(layer, ZrDb::kForWrite)->erase(), Quor::eNotAllowed);
    database->setCurrentLayer(database->interface().layerZeroId());
    EXPECT_EQ(ZrDbObjectPointer<ZrDbLayerTableRecord>(layer, ZrDb::kForWrite)->erase(), Quor::eOk);
}

TEST_F(OpenClose, LineRefusesPointsThatAreNoNumbers) {
    const ZrDbObjectPointer<ZrDbLine> writer(line, ZrDb::kForWrite);
    EXPECT_EQ(writer->setStartPoint({std::nan(""), 0, 0}), Quor::eInvalidInput);
    EXPECT_EQ(writer->setEndPoint({0, HUGE_VAL, 0}), Quor::eInvalidInput);
    EXPECT_EQ(writer->startPoint(), ZrGePoint3d(1, 2, 3));
    EXPECT_EQ(writer->endPoint(), ZrGePoint3d(4, 5, 6));
}

TEST(Face, WithoutAFourthCornerIsATriangle) {
    Sections sections;
    sections.entities = "0\n3DFACE\n5\n32\n330\n1F\n100\nAcDbEntity\n8\n0\n100\nAcDbFace\n"
                        "10\n1\n20\n1\n30\n5\n11\n2\n21\n1\n31\n5\n12\n2\n22\n2\n32\n5\n";
    const auto database = parsed(drawing("AC1032", sections));
    const ZrDbObjectPointer<ZrDbFace> face(database->interface().objectId(ZrDbHandle(0x32)), ZrDb::kForRead);

    ZrGePoint3d fourth;
    ASSERT_EQ(face->getVertexAt(3, fourth), Quor::eOk);

    EXPECT_EQ(fourth, ZrGePoint3d(2, 2, 5));
}

TEST(Face, HasFourCornersAndEdges) {
    ZrDbFace face({0, 0, 0}, {1, 0, 0}, {1, 1, 0}, {0, 1, 0});
    ZrGePoint3d corner;
    bool visible = false;
    EXPECT_EQ(face.getVertexAt(3, corner), Quor::eOk);
    EXPECT_EQ(corner, ZrGePoint3d(0, 1, 0));
    EXPECT_EQ(face.getVertexAt(4, corner), Quor::eInvalidIndex);
    EXPECT_EQ(face.getVertexAt(-1, corner), Quor::eInvalidIndex);
    EXPECT_EQ(face.setVertexAt(4, {}), Quor::eInvalidIndex);
    EXPECT_EQ(face.setVertexAt(0, {std::nan(""), 0, 0}), Quor::eInvalidInput);
    EXPECT_EQ(face.setEdgeVisibleAt(3, false), Quor::eOk);
    EXPECT_EQ(face.isEdgeVisibleAt(3, visible), Quor::eOk);
    EXPECT_FALSE(visible);
    EXPECT_EQ(face.isEdgeVisibleAt(2, visible), Quor::eOk);
    EXPECT_TRUE(visible);
    EXPECT_EQ(face.setEdgeVisibleAt(4, false), Quor::eInvalidIndex);
}

} // namespace
} // namespace quor::db
