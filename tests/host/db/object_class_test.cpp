#include "sdk/db/object_class.h"

#include "tests/host/db/drawings.h"

#include "sdk/db/face.h"
#include "sdk/db/line.h"

#include <gtest/gtest.h>

namespace quor::db {
namespace {

using namespace drawings;

// The entities of model space in a drawing with a light, a line, a face and a circle.
std::vector<ZrDbObjectId> entities(Database& database) {
    std::vector<ZrDbObjectId> ids;
    const ZrDbObjectPointer<ZrDbBlockTableRecord> space(database.interface().modelSpaceId(), ZrDb::kForRead);
    for (auto at = space->newIterator(); !at->done(); at->step())
        ids.push_back(at->entityId());
    return ids;
}

std::unique_ptr<Database> oneOfEach() {
    Sections sections;
    sections.entities = "0\nLIGHT\n5\n30\n330\n1F\n100\nAcDbEntity\n8\n0\n100\nAcDbLight\n1\nL\n70\n2\n"
                        "0\nLINE\n5\n31\n330\n1F\n100\nAcDbEntity\n8\n0\n100\nAcDbLine\n10\n0\n20\n0\n11\n1\n21\n1\n"
                        "0\n3DFACE\n5\n32\n330\n1F\n100\nAcDbEntity\n8\n0\n100\nAcDbFace\n10\n0\n20\n0\n"
                        "0\nCIRCLE\n5\n33\n330\n1F\n100\nAcDbEntity\n8\n0\n100\nAcDbCircle\n10\n0\n20\n0\n40\n1\n";
    return parsed(drawing("AC1032", sections));
}

TEST(ObjectClass, OfAnEntityThatNobodyHasOpenedIsKnownWithoutMakingIt) {
    const auto database = oneOfEach();
    const std::vector<ZrDbObjectId> ids = entities(*database);
    ASSERT_EQ(ids.size(), 4U);

    EXPECT_EQ(zrdbObjectClass(ids[0]), ZrDbLight::desc());
    EXPECT_EQ(zrdbObjectClass(ids[1]), ZrDbLine::desc());
    EXPECT_EQ(zrdbObjectClass(ids[2]), ZrDbFace::desc());
    EXPECT_EQ(zrdbObjectClass(ids[0]), ZrDbLight::desc());
    EXPECT_EQ(ids[0].entry()->object, nullptr);
    EXPECT_EQ(ids[1].entry()->object, nullptr);
}

TEST(ObjectClass, IsThatOfTheOpenedObjectForEveryEntity) {
    const auto database = oneOfEach();

    for (const ZrDbObjectId id : entities(*database)) {
        const ZrRxClass* const before = zrdbObjectClass(id);
        const ZrDbObjectPointer<ZrDbEntity> entity(id, ZrDb::kForRead);
        EXPECT_EQ(before, entity->isA());
        EXPECT_EQ(zrdbObjectClass(id), entity->isA());
    }
}

TEST(ObjectClass, IsKnownOfAnObjectThatIsOpenForWriteOrErased) {
    const auto database = oneOfEach();
    const ZrDbObjectId id = entities(*database)[0];
    const ZrDbObjectPointer<ZrDbLight> light(id, ZrDb::kForWrite);
    EXPECT_EQ(zrdbObjectClass(id), ZrDbLight::desc());

    light->erase();

    EXPECT_EQ(zrdbObjectClass(id), ZrDbLight::desc());
}

TEST(ObjectClass, OfTheModelSpaceIsThatOfBlockRecords) {
    const auto database = oneOfEach();

    EXPECT_EQ(zrdbObjectClass(database->interface().modelSpaceId()), ZrDbBlockTableRecord::desc());
}

TEST(ObjectClass, OfTheNullIdIsNull) { EXPECT_EQ(zrdbObjectClass({}), nullptr); }

} // namespace
} // namespace quor::db
