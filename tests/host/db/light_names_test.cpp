#include "tests/host/db/drawings.h"

#include <gtest/gtest.h>

#include <array>
#include <random>

namespace quor::db {
namespace {

using namespace drawings;

struct LightNamesTest : testing::Test {
    [[nodiscard]] bool has(const ZrString& name, ZrDbObjectId except = {}) {
        return ZrDbObjectPointer<ZrDbBlockTableRecord>(database->interface().modelSpaceId(), ZrDb::kForRead)
            ->hasLightNamed(name, except);
    }

    std::unique_ptr<Database> database = Database::makeNew();
};

TEST_F(LightNamesTest, NameCountsWithoutRegardToCase) {
    addLight(*database, L"Spot");
    EXPECT_TRUE(has(L"spot"));
    EXPECT_TRUE(has(L"SPOT"));
    EXPECT_FALSE(has(L"Spo"));
}

TEST_F(LightNamesTest, LightItselfDoesNotCountWhenItIsLeftOut) {
    const ZrDbObjectId light = addLight(*database, L"Spot");
    EXPECT_FALSE(has(L"spot", light));
    addLight(*database, L"SPOT");
    EXPECT_TRUE(has(L"spot", light));
}

TEST_F(LightNamesTest, LeavingOutAnotherOrErasedOrForeignLightChangesNothing) {
    const ZrDbObjectId spot = addLight(*database, L"Spot");
    const ZrDbObjectId gone = addLight(*database, L"Spot");
    const ZrDbObjectId line = addLine(*database);
    const ZrDbObjectId paper = append(database->interface().paperSpaceId(), [] {
        auto light = std::make_unique<ZrDbLight>();
        light->setName(L"Spot");
        return light;
    }());
    erase(gone);
    EXPECT_TRUE(has(L"Spot", gone));
    EXPECT_TRUE(has(L"Spot", line));
    EXPECT_TRUE(has(L"Spot", paper));
    EXPECT_FALSE(has(L"Spot", spot));
}

TEST_F(LightNamesTest, LightsOfTheFileCount) {
    database = opened("own/light_2018.dxf");
    EXPECT_TRUE(has(L"聚光灯1"));
    erase(lightOf(*database));
    EXPECT_FALSE(has(L"聚光灯1"));
}

TEST_F(LightNamesTest, RefusedRenamingKeepsTheCount) {
    const ZrDbObjectId id = addLight(*database, L"Spot");
    ASSERT_TRUE(has(L"Spot"));
    const ZrDbObjectPointer<ZrDbLight> reader(id, ZrDb::kForRead);
    EXPECT_EQ(reader->setName(L"Other"), Quor::eNotOpenForWrite);
    EXPECT_TRUE(has(L"Spot"));
    EXPECT_FALSE(has(L"Other"));
}

// Asks for the name whenever it is told of a change.
struct Asker : ZrDbDatabaseReactor {
    void objectOpenedForModify(const ZrDbDatabase&, const ZrDbObject& light) override { ask(light); }
    void objectModified(const ZrDbDatabase&, const ZrDbObject& light) override { ask(light); }
    void ask(const ZrDbObject& object) {
        const auto& light = static_cast<const ZrDbLight&>(object);
        const ZrDbObjectPointer<ZrDbBlockTableRecord> space(light.blockId(), ZrDb::kForRead);
        known = known && space->hasLightNamed(light.name());
        others = others || space->hasLightNamed(light.name(), light.objectId());
    }
    bool known = true;
    bool others = false;
};

TEST_F(LightNamesTest, ListenersFindTheNameWhileTheyAreTold) {
    Asker asker;
    const ZrDbObjectId id = addLight(*database, L"Spot");
    ASSERT_TRUE(has(L"Spot"));
    database->interface().addReactor(&asker);
    change(id, [](ZrDbLight& light) { light.setName(L"Other"); });
    database->journal().undo();
    database->journal().redo();
    EXPECT_TRUE(asker.known);
    EXPECT_FALSE(asker.others);
    database->interface().removeReactor(&asker);
}

// A random run of commands, after each of which the counts are compared with a walk.
class RandomRun {
public:
    explicit RandomRun(unsigned seed) : random_(seed) {}

    void step() {
        const int kind = below(10);
        if (kind < 4)
            group(*database_, L"LIGHT", [&] { lights_.push_back(addLight(*database_, anyName())); });
        else if (kind < 6 && !lights_.empty())
            group(*database_, L"RENAME", [&] { rename(lights_[at()]); });
        else if (kind < 8 && !lights_.empty())
            group(*database_, L"ERASE", [&] { erase(lights_[at()], below(3) > 0); });
        else if (kind == 8)
            database_->journal().undo();
        else
            database_->journal().redo();
    }

    [[nodiscard]] std::array<bool, 4> asked() const {
        const ZrDbObjectPointer<ZrDbBlockTableRecord> space(database_->interface().modelSpaceId(), ZrDb::kForRead);
        return {space->hasLightNamed(L"alpha"), space->hasLightNamed(L"BETA"), space->hasLightNamed(L"Ärmel"),
                space->hasLightNamed(L"灯")};
    }

    [[nodiscard]] std::array<bool, 4> walked() const {
        std::array<bool, 4> found{};
        for (const ZrDbObjectId id : database_->entities(database_->interface().modelSpaceId())) {
            const ZrString name = ZrDbObjectPointer<ZrDbLight>(id, ZrDb::kForRead)->name();
            found[0] = found[0] || name == L"Alpha" || name == L"ALPHA";
            found[1] = found[1] || name == L"beta" || name == L"Beta";
            found[2] = found[2] || name == L"ärmel" || name == L"ÄRMEL";
            found[3] = found[3] || name == L"灯";
        }
        return found;
    }

private:
    int below(int bound) { return static_cast<int>(random_() % static_cast<unsigned>(bound)); }
    std::size_t at() { return random_() % lights_.size(); }
    ZrString anyName() {
        const std::array<const wchar_t*, 7> names{L"Alpha", L"ALPHA", L"beta", L"Beta", L"ärmel", L"ÄRMEL", L"灯"};
        return names[random_() % names.size()];
    }
    void rename(ZrDbObjectId id) {
        const ZrDbObjectPointer<ZrDbLight> light(id, ZrDb::kForWrite, true);
        light->setName(anyName());
        light->setName(anyName());
    }

    std::unique_ptr<Database> database_ = Database::makeNew();
    std::vector<ZrDbObjectId> lights_;
    std::mt19937 random_;
};

struct RandomRuns : testing::TestWithParam<unsigned> {};

TEST_P(RandomRuns, KeepTheCountsTrue) {
    RandomRun run(GetParam());
    for (int i = 0; i < 400; ++i) {
        run.step();
        ASSERT_EQ(run.asked(), run.walked()) << "after step " << i;
    }
}

INSTANTIATE_TEST_SUITE_P(Seeds, RandomRuns, testing::Range(1U, 9U));

} // namespace
} // namespace quor::db
