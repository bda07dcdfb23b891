#include "tests/host/db/drawings.h"

#include <gtest/gtest.h>

namespace quor::db {
namespace {

using namespace drawings;

bool isModified(ZrDbObjectId id) { return ZrDbObjectPointer<ZrDbObject>(id, ZrDb::kForRead, true)->isModified(); }

void rename(ZrDbObjectId light, const ZrString& name) {
    change(light, [&](ZrDbLight& opened) { opened.setName(name); });
}

// Writes down whether what was appended counts as modified while its listeners are told.
struct Listener : ZrDbDatabaseReactor {
    void objectAppended(const ZrDbDatabase&, const ZrDbObject& object) override { told.push_back(object.isModified()); }
    void objectReAppended(const ZrDbDatabase&, const ZrDbObject& object) override {
        told.push_back(object.isModified());
    }
    std::vector<bool> told;
};

struct ModifiedObject : testing::Test {
    std::unique_ptr<Database> database = opened("own/light_2018.dxf");
    ZrDbObjectId read = lightOf(*database);
};

TEST_F(ModifiedObject, IsNoneThatWasReadAndLeftAlone) {
    EXPECT_FALSE(isModified(read));
    EXPECT_FALSE(isModified(database->interface().modelSpaceId()));
}

TEST_F(ModifiedObject, IsOneOutsideADrawing) { EXPECT_TRUE(ZrDbLight().isModified()); }

TEST_F(ModifiedObject, IsEveryNewOne) { EXPECT_TRUE(isModified(addLight(*database))); }

TEST_F(ModifiedObject, IsOneThatIsBeingChangedAndStaysOne) {
    change(read, [](ZrDbLight& light) {
        EXPECT_FALSE(light.isModified());
        light.setName(L"other");
        EXPECT_TRUE(light.isModified());
    });
    EXPECT_TRUE(isModified(read));
}

TEST_F(ModifiedObject, IsNoneAnyMoreWhenAllIsUndone) {
    rename(read, L"first");
    rename(read, L"second");
    database->journal().undo();
    EXPECT_TRUE(isModified(read));
    database->journal().undo();
    EXPECT_FALSE(isModified(read));
    database->journal().redo();
    EXPECT_TRUE(isModified(read));
}

TEST_F(ModifiedObject, IsWhatListenersAreToldOfWhenItIsAppended) {
    Listener listener;
    database->interface().addReactor(&listener);
    addLight(*database);
    database->journal().undo();
    database->journal().redo();
    database->interface().removeReactor(&listener);
    EXPECT_EQ(listener.told, (std::vector<bool>{true, true}));
}

} // namespace
} // namespace quor::db
