#include "tests/host/ui/list_fixture.h"

namespace quor::ui {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class ListSelection : public ListFixture {};

class ListSingleSelection : public ListFixture {
protected:
    ListSingleSelection() : ListFixture(LVS_REPORT | LVS_SINGLESEL) {}
};

TEST_F(ListSelection, ChangesOnlyTheStatesOfTheMask) {
    EXPECT_TRUE(list.SetItemState(1, LVIS_SELECTED | LVIS_FOCUSED, LVIS_SELECTED));

    EXPECT_EQ(list.GetItemState(1, LVIS_SELECTED | LVIS_FOCUSED), LVIS_SELECTED);

    EXPECT_TRUE(list.SetItemState(1, LVIS_FOCUSED, LVIS_FOCUSED));
    EXPECT_EQ(list.GetItemState(1, LVIS_SELECTED | LVIS_FOCUSED), LVIS_SELECTED | LVIS_FOCUSED);
    EXPECT_EQ(list.GetItemState(1, LVIS_FOCUSED), LVIS_FOCUSED);
}

TEST_F(ListSelection, GivesTheFocusToOneRowOnly) {
    list.SetItemState(1, LVIS_FOCUSED, LVIS_FOCUSED);
    list.SetItemState(2, LVIS_FOCUSED, LVIS_FOCUSED);
    list.SetItemState(1, 0, LVIS_FOCUSED);

    EXPECT_EQ(focus(), 2);

    list.SetItemState(2, 0, LVIS_FOCUSED);
    EXPECT_EQ(focus(), -1);
}

TEST_F(ListSelection, HasNoStateForABadIndex) {
    EXPECT_FALSE(list.SetItemState(10, LVIS_SELECTED, LVIS_SELECTED));
    EXPECT_FALSE(list.SetItemState(-1, LVIS_SELECTED, LVIS_SELECTED));
    EXPECT_EQ(list.GetItemState(10, LVIS_SELECTED), 0U);
    EXPECT_FALSE(list.select(10, true));
    EXPECT_FALSE(list.isSelected(10));
    EXPECT_EQ(list.GetSelectedCount(), 0);
}

TEST_F(ListSelection, IsCountedAndWalked) {
    list.SetItemState(2, LVIS_SELECTED, LVIS_SELECTED);
    list.SetItemState(9, LVIS_SELECTED, LVIS_SELECTED);
    list.select(list.MapIndexToID(4), true);

    EXPECT_EQ(list.GetSelectedCount(), 3);
    EXPECT_THAT(selected(), ElementsAre(2, 4, 9));
    EXPECT_TRUE(list.isSelected(list.MapIndexToID(4)));
}

TEST_F(ListSelection, IsTakenFromAllRowsOrGivenToAll) {
    list.SelectAll(true);
    EXPECT_EQ(list.GetSelectedCount(), 10);

    list.SelectAll(false);
    EXPECT_THAT(selected(), IsEmpty());
}

TEST_F(ListSelection, IsSearchedForBehindARow) {
    list.SetItemState(3, LVIS_SELECTED | LVIS_FOCUSED, LVIS_SELECTED | LVIS_FOCUSED);
    list.SetItemState(5, LVIS_SELECTED, LVIS_SELECTED);

    EXPECT_EQ(list.GetNextItem(2, LVNI_SELECTED), 3);
    EXPECT_EQ(list.GetNextItem(3, LVNI_SELECTED), 5);
    EXPECT_EQ(list.GetNextItem(5, LVNI_SELECTED), -1);
    EXPECT_EQ(list.GetNextItem(-1, LVNI_SELECTED | LVNI_FOCUSED), 3);
    EXPECT_EQ(list.GetNextItem(3, LVNI_FOCUSED), -1);
    EXPECT_EQ(list.GetNextItem(3, 0), 4);
    EXPECT_EQ(list.GetNextItem(9, 0), -1);
    EXPECT_EQ(list.GetNextItem(-9, LVNI_SELECTED), 3);
}

TEST_F(ListSelection, HasAMarkThatTellsWhatItWas) {
    EXPECT_EQ(list.SetSelectionMark(4), -1);
    EXPECT_EQ(list.SetSelectionMark(5), 4);
    EXPECT_EQ(list.SetSelectionMark(-1), 5);
    EXPECT_EQ(list.GetSelectionMark(), -1);
}

TEST_F(ListSelection, OfTheFocusedRowIsNotFoundWhenItIsNotSelected) {
    list.SetItemState(3, LVIS_FOCUSED, LVIS_FOCUSED);

    EXPECT_EQ(list.GetNextItem(-1, LVNI_SELECTED | LVNI_FOCUSED), -1);
}

TEST_F(ListSingleSelection, MovesToTheRowThatIsSelectedLast) {
    list.SetItemState(2, LVIS_SELECTED, LVIS_SELECTED);
    list.select(list.MapIndexToID(4), true);
    list.SelectAll(true);

    EXPECT_THAT(selected(), ElementsAre(4));
}

TEST_F(ListSingleSelection, IsOneRowWhateverIsHeldDown) {
    clickRow(1);
    clickRow(2, MK_CONTROL);
    EXPECT_THAT(selected(), ElementsAre(2));

    clickRow(3, MK_SHIFT);
    EXPECT_THAT(selected(), ElementsAre(3));

    pressKey(list, VK_UP, MK_CONTROL);
    EXPECT_THAT(selected(), ElementsAre(2));

    pressKey(list, 'A', MK_CONTROL);
    EXPECT_THAT(selected(), ElementsAre(2));
}

} // namespace
} // namespace quor::ui
