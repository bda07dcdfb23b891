#include "host/db/handle_index.h"

#include <gtest/gtest.h>

namespace quor::db {
namespace {

struct HandleIndexTest : testing::Test {
    ObjectEntry& add(std::uint64_t handle) {
        ObjectEntry& entry = *entries.emplace_back(std::make_unique<ObjectEntry>());
        entry.handle = handle;
        index.add(entry);
        return entry;
    }

    std::vector<std::unique_ptr<ObjectEntry>> entries;
    HandleIndex index;
};

TEST_F(HandleIndexTest, HoldsNothingAtFirst) { EXPECT_EQ(index.find(1), nullptr); }

TEST_F(HandleIndexTest, FindsHandlesThatWereAddedInAnyOrder) {
    const ObjectEntry& five = add(5);
    const ObjectEntry& nine = add(9);
    const ObjectEntry& one = add(1);
    const ObjectEntry& seven = add(7);

    EXPECT_EQ(index.find(1), &one);
    EXPECT_EQ(index.find(5), &five);
    EXPECT_EQ(index.find(7), &seven);
    EXPECT_EQ(index.find(9), &nine);
    EXPECT_EQ(index.find(6), nullptr);
    EXPECT_EQ(index.find(10), nullptr);
}

TEST_F(HandleIndexTest, FindsWhatIsAddedBetweenSearches) {
    const ObjectEntry& five = add(5);
    EXPECT_EQ(index.find(5), &five);
    const ObjectEntry& three = add(3);
    EXPECT_EQ(index.find(3), &three);
    const ObjectEntry& eight = add(8);
    EXPECT_EQ(index.find(8), &eight);
    EXPECT_EQ(index.find(5), &five);
    EXPECT_EQ(index.find(3), &three);
}

TEST_F(HandleIndexTest, KeepsTheFirstOfTwoWithOneHandle) {
    const ObjectEntry& first = add(5);
    add(5);
    EXPECT_EQ(index.find(5), &first);
    const ObjectEntry& firstBelow = add(2);
    add(2);
    add(5);
    EXPECT_EQ(index.find(5), &first);
    EXPECT_EQ(index.find(2), &firstBelow);
}

TEST_F(HandleIndexTest, LeavesOutWhatHasNoHandle) {
    add(0);
    EXPECT_EQ(index.find(0), nullptr);
    add(5);
    EXPECT_EQ(index.find(0), nullptr);
}

// From every place to every other, with gaps between them.
TEST_F(HandleIndexTest, FindsEachHandleAfterEachOther) {
    for (std::uint64_t handle = 2; handle <= 60; handle += 2)
        add(handle);
    for (std::uint64_t before = 2; before <= 60; before += 2)
        for (std::uint64_t handle = 1; handle <= 61; ++handle) {
            EXPECT_NE(index.find(before), nullptr);
            const ObjectEntry* found = index.find(handle);
            EXPECT_EQ(found, handle % 2 == 0 ? entries[handle / 2 - 1].get() : nullptr);
        }
}

} // namespace
} // namespace quor::db
