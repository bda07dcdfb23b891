#include "light/palette/number_table.h"

#include <gtest/gtest.h>
#include <set>

namespace quor::light {
namespace {

unsigned findNumber(const NumberTable& table, std::uint32_t hash, unsigned number) {
    return table.find(hash, [&](unsigned other) { return other == number; });
}

TEST(NumberTable, FindsNothingWhileItIsEmpty) { EXPECT_EQ(findNumber(NumberTable(), 1, 1), NumberTable::kNone); }

TEST(NumberTable, FindsANumberByItsHashAndItsOwner) {
    NumberTable table;
    table.insert(7, 100);
    table.insert(7, 200);

    EXPECT_EQ(findNumber(table, 7, 100), 100U);
    EXPECT_EQ(findNumber(table, 7, 200), 200U);
    EXPECT_EQ(findNumber(table, 7, 300), NumberTable::kNone);
    EXPECT_EQ(findNumber(table, 8, 100), NumberTable::kNone);
}

TEST(NumberTable, IsEmptyAfterClearing) {
    NumberTable table;
    table.insert(7, 100);

    table.clear();

    EXPECT_EQ(findNumber(table, 7, 100), NumberTable::kNone);
}

// Hashes that want the same places, at the end and at the beginning of the table.
TEST(NumberTable, FindsTheOthersAfterOneOfARunWasErased) {
    NumberTable table;
    const std::vector<std::uint32_t> hashes = {14, 15, 15, 14, 0, 1, 15, 1};
    for (unsigned i = 0; i < hashes.size(); ++i)
        table.insert(hashes[i], i);

    table.erase(15, 1);
    table.erase(14, 0);

    EXPECT_EQ(findNumber(table, 15, 1), NumberTable::kNone);
    EXPECT_EQ(findNumber(table, 14, 0), NumberTable::kNone);
    EXPECT_EQ(findNumber(table, 15, 2), 2U);
    EXPECT_EQ(findNumber(table, 14, 3), 3U);
    EXPECT_EQ(findNumber(table, 0, 4), 4U);
    EXPECT_EQ(findNumber(table, 1, 5), 5U);
    EXPECT_EQ(findNumber(table, 15, 6), 6U);
    EXPECT_EQ(findNumber(table, 1, 7), 7U);
}

TEST(NumberTable, HoldsManyNumbers) {
    NumberTable table;
    for (unsigned i = 0; i < 1000; ++i)
        table.insert(i * 64, i);
    for (unsigned i = 0; i < 1000; i += 2)
        table.erase(i * 64, i);

    std::set<unsigned> found;
    for (unsigned i = 0; i < 1000; ++i)
        found.insert(findNumber(table, i * 64, i));

    EXPECT_EQ(found.size(), 501U); // 500 odd numbers, and none
    EXPECT_EQ(*found.begin(), 1U);
    EXPECT_TRUE(found.contains(NumberTable::kNone));
}

} // namespace
} // namespace quor::light
