#include "host/db/object_table.h"

#include "host/db/database.h"

#include <gtest/gtest.h>

namespace quor::db {
namespace {

struct ObjectTableTest : testing::Test {
    std::unique_ptr<Database> database = Database::makeNew();
    ObjectTable table{*database};
};

TEST_F(ObjectTableTest, FindsWhatWasAddedBeforeAndAfterTheFirstSearch) {
    const ObjectEntry& first = table.add(0x10, ObjectKind::Entity);
    EXPECT_EQ(table.find(0x10), &first);
    const ObjectEntry& second = table.add(0x11, ObjectKind::Object);

    EXPECT_EQ(table.find(0x10), &first);
    EXPECT_EQ(table.find(0x11), &second);
    EXPECT_EQ(table.find(0x12), nullptr);
}

TEST_F(ObjectTableTest, ObjectsWithoutAHandleAreNotFound) {
    table.add(0, ObjectKind::Object);
    EXPECT_EQ(table.find(0), nullptr);
    EXPECT_EQ(table.findObject(0), nullptr);
}

TEST_F(ObjectTableTest, OfTwoWithOneHandleTheFirstIsFound) {
    const ObjectEntry& first = table.add(0x10, ObjectKind::Entity);
    table.add(0x10, ObjectKind::Entity);
    EXPECT_EQ(table.find(0x10), &first);
}

TEST_F(ObjectTableTest, ASearchForObjectsPassesEntitiesOver) {
    table.add(0x10, ObjectKind::Entity);
    EXPECT_EQ(table.findObject(0x10), nullptr);
    const ObjectEntry& object = table.add(0x10, ObjectKind::Object);
    const ObjectEntry& record = table.add(0x11, ObjectKind::TableRecord);

    EXPECT_EQ(table.findObject(0x10), &object);
    EXPECT_EQ(table.findObject(0x11), &record);
}

} // namespace
} // namespace quor::db
