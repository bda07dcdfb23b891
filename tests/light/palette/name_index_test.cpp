#include "light/palette/name_index.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace quor::light {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

// A list of rows with these names; only its index knows lights. Ids of lights are never looked behind.
class Index : public testing::Test {
protected:
    explicit Index() {
        list.Create({.style = LVS_REPORT});
        list.InsertColumn(0, {}, 0, 50);
        list.InsertColumn(1, {}, 0, 50);
        list.SetRows({{}, {L"a", L"twin", L"b", L"twin", L"twin"}}, std::vector<int>(5));
        for (unsigned row = 0; row < 5; ++row)
            index.addRow(row);
    }

    [[nodiscard]] std::vector<unsigned> rowsOf(ZrDbObjectId light, std::size_t count = 9) {
        std::vector<unsigned> rows;
        index.appendRowsOf(light, count, rows);
        return rows;
    }

    const ZrDbObjectId light{reinterpret_cast<quor::db::ObjectEntry*>(0x100)};
    const ZrDbObjectId other{reinterpret_cast<quor::db::ObjectEntry*>(0x200)};
    CListCtrl list;
    NameIndex index{list};
};

TEST_F(Index, KnowsNoLightOfANewRow) {
    EXPECT_TRUE(index.lightOf(0).isNull());
    EXPECT_EQ(index.firstRowOf(light), CListCtrl::kNoRow);
    EXPECT_THAT(rowsOf(light), IsEmpty());
}

TEST_F(Index, GivesAllRowsOfANameOneLight) {
    index.enter(3, light);

    EXPECT_EQ(index.lightOf(1), light);
    EXPECT_EQ(index.lightOf(3), light);
    EXPECT_EQ(index.lightOf(4), light);
    EXPECT_TRUE(index.lightOf(0).isNull());
    EXPECT_EQ(index.firstRowOf(light), 1U);
    EXPECT_THAT(rowsOf(light), ElementsAre(1, 3, 4));
    EXPECT_THAT(rowsOf(light, 2), ElementsAre(1, 3));
    EXPECT_THAT(rowsOf(light, 0), IsEmpty());
}

TEST_F(Index, ForgetsTheLightWhoseNameAnotherOneTakes) {
    index.enter(1, light);

    index.enter(3, other);

    EXPECT_EQ(index.lightOf(1), other);
    EXPECT_EQ(index.firstRowOf(light), CListCtrl::kNoRow);
    EXPECT_EQ(index.firstRowOf(other), 1U);
}

TEST_F(Index, ForgetsALightThatIsTakenFromItsName) {
    index.enter(0, light);

    index.enter(0, {});

    EXPECT_TRUE(index.lightOf(0).isNull());
    EXPECT_EQ(index.firstRowOf(light), CListCtrl::kNoRow);
}

TEST_F(Index, ForgetsANameWithItsLastRow) {
    index.enter(0, light);

    index.removeRow(0);
    index.addRow(0);

    EXPECT_TRUE(index.lightOf(0).isNull());
    EXPECT_EQ(index.firstRowOf(light), CListCtrl::kNoRow);
}

TEST_F(Index, KeepsANameWhileItHasARow) {
    index.enter(1, light);

    index.removeRow(1);
    index.removeRow(4);
    EXPECT_EQ(index.firstRowOf(light), 3U);
    EXPECT_THAT(rowsOf(light), ElementsAre(3));

    index.removeRow(3);
    EXPECT_EQ(index.firstRowOf(light), CListCtrl::kNoRow);
}

TEST_F(Index, FindsNamesByTheirTextsAfterOthersHaveGone) {
    index.enter(2, light);
    index.removeRow(0);
    list.SetItemText(0, 1, L"b");

    index.addRow(0);

    EXPECT_EQ(index.lightOf(0), light);
    EXPECT_THAT(rowsOf(light), ElementsAre(0, 2));
}

TEST_F(Index, FollowsTheOrderOfTheListAfterASort) {
    index.enter(1, light);

    list.ReorderItems({4, 3, 2, 1, 0});
    index.rowsWereSorted();

    EXPECT_EQ(index.firstRowOf(light), 4U);
    EXPECT_THAT(rowsOf(light), ElementsAre(4, 3, 1));
}

TEST_F(Index, FollowsARowThatMoves) {
    index.enter(1, light);

    index.rowLeaves(1);
    list.MoveItem(1, 4);
    index.rowIsBack(1);

    EXPECT_THAT(rowsOf(light), ElementsAre(3, 4, 1));
}

TEST_F(Index, ForgetsEverythingWhenItIsCleared) {
    index.enter(1, light);

    index.clear();
    index.addRow(1);

    EXPECT_TRUE(index.lightOf(1).isNull());
    EXPECT_EQ(index.firstRowOf(light), CListCtrl::kNoRow);
}

} // namespace
} // namespace quor::light
