#include "host/gs/scene_items.h"

#include "tests/host/db/drawings.h"

#include <gtest/gtest.h>

namespace quor::gs {
namespace {

struct SceneItemsTest : testing::Test {
    // A line or more, from one unit to the next.
    static Shape lines(std::uint32_t count) {
        Shape shape;
        for (std::uint32_t i = 0; i < count; ++i)
            shape.lines.insert(shape.lines.end(), {{double(i), 0, 0}, {double(i) + 1, 0, 0}});
        Part part;
        part.lineCount = count;
        shape.parts.push_back(part);
        return shape;
    }

    std::unique_ptr<db::Database> drawing = db::Database::makeNew();
    LayerLooks looks{*drawing};
    SceneItems items;
};

TEST_F(SceneItemsTest, TakeInNothingMoreWhenTheyAreFull) {
    items.start({}, 5);
    items.put(0, lines(2), looks);
    EXPECT_FALSE(items.isFull());
    items.put(1, lines(2), looks);
    EXPECT_TRUE(items.isFull());
    EXPECT_FALSE(items.isIncomplete());

    items.put(2, lines(1), looks);

    EXPECT_TRUE(items.isIncomplete());
    EXPECT_EQ(items.lines().size(), 4U);
}

TEST_F(SceneItemsTest, ReplaceWhatIsThereEvenWhenTheyAreFull) {
    items.start({}, 3);
    items.put(0, lines(2), looks);
    ASSERT_TRUE(items.isFull());

    items.put(0, lines(1), looks);

    EXPECT_FALSE(items.isIncomplete());
    EXPECT_EQ(items.items().front().lineCount, 1U);
}

TEST_F(SceneItemsTest, AreCompleteAgainOnceTheyStartAnew) {
    items.start({}, 1);
    items.put(0, lines(1), looks);
    items.put(1, lines(1), looks);
    ASSERT_TRUE(items.isIncomplete());

    items.start({});

    EXPECT_FALSE(items.isIncomplete());
}

} // namespace
} // namespace quor::gs
