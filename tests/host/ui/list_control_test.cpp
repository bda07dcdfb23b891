#include "tests/host/ui/list_fixture.h"

namespace quor::ui {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class List : public ListFixture {};

TEST_F(List, InsertsARowWhereItIsToldOrAtTheEnd) {
    EXPECT_EQ(list.InsertItem(0, L"first", 2), 0);
    EXPECT_EQ(list.InsertItem(99, L"last"), 11);

    EXPECT_EQ(list.GetItemCount(), 12);
    EXPECT_EQ(list.GetItemText(0, 0), L"first");
    EXPECT_EQ(list.GetItemImage(0), 2);
    EXPECT_EQ(list.GetItemText(11, 0), L"last");
    EXPECT_EQ(list.GetItemImage(11), -1);
}

TEST_F(List, KeepsTextsImageAndDataOfARow) {
    EXPECT_TRUE(list.SetItemText(3, 1, L"lamp"));
    EXPECT_TRUE(list.SetItemText(3, 0, L"icon"));
    EXPECT_TRUE(list.SetItemImage(3, 1));
    EXPECT_TRUE(list.SetItemData(3, -5));

    EXPECT_EQ(list.GetItemText(3, 1), L"lamp");
    EXPECT_EQ(list.GetItemText(3, 0), L"icon");
    EXPECT_EQ(list.GetItemImage(3), 1);
    EXPECT_EQ(list.GetItemData(3), -5);
    EXPECT_EQ(list.GetItemData(4), 0);
}

TEST_F(List, AnswersABadIndexWithNothingAndChangesNothing) {
    EXPECT_EQ(list.InsertItem(-1, L"x"), -1);
    EXPECT_FALSE(list.DeleteItem(10));
    EXPECT_FALSE(list.DeleteItem(-1));
    EXPECT_FALSE(list.MoveItem(0, 10));
    EXPECT_FALSE(list.MoveItem(10, 0));
    EXPECT_FALSE(list.SetItemText(10, 1, L"x"));
    EXPECT_FALSE(list.SetItemText(0, 2, L"x"));
    EXPECT_FALSE(list.SetItemText(0, -1, L"x"));
    EXPECT_FALSE(list.SetItemImage(10, 1));
    EXPECT_FALSE(list.SetItemData(-1, 1));

    EXPECT_EQ(list.GetItemText(10, 1), L"");
    EXPECT_EQ(list.GetItemText(0, 2), L"");
    EXPECT_EQ(list.GetItemImage(10), -1);
    EXPECT_EQ(list.GetItemData(10), 0);
    EXPECT_EQ(list.MapIndexToID(10), CListCtrl::kNoRow);
    EXPECT_EQ(list.MapIDToIndex(CListCtrl::kNoRow), -1);
    EXPECT_EQ(list.textOf(CListCtrl::kNoRow, 1), L"");
    EXPECT_EQ(list.imageOf(10), -1);
    EXPECT_EQ(list.nextID(10), CListCtrl::kNoRow);
    EXPECT_EQ(names(), L"abcdefghij");
}

TEST_F(List, MovesARowWithAllThatBelongsToIt) {
    const unsigned id = list.MapIndexToID(1);
    list.SetItemState(1, LVIS_SELECTED | LVIS_FOCUSED, LVIS_SELECTED | LVIS_FOCUSED);

    EXPECT_TRUE(list.MoveItem(1, 4));

    EXPECT_EQ(names(), L"acdebfghij");
    EXPECT_EQ(list.MapIDToIndex(id), 4);
    EXPECT_THAT(selected(), ElementsAre(4));
    EXPECT_EQ(focus(), 4);
}

TEST_F(List, ForgetsWhatBelongedToADeletedRow) {
    list.SetItemState(2, LVIS_SELECTED | LVIS_FOCUSED, LVIS_SELECTED | LVIS_FOCUSED);
    list.SetSelectionMark(2);

    EXPECT_TRUE(list.DeleteItem(2));

    EXPECT_EQ(names(), L"abdefghij");
    EXPECT_EQ(list.GetSelectedCount(), 0);
    EXPECT_EQ(focus(), -1);
    EXPECT_EQ(list.GetSelectionMark(), -1);
}

TEST_F(List, KeepsFocusAndMarkOnTheirRowsWhenOthersComeAndGo) {
    list.SetItemState(5, LVIS_FOCUSED, LVIS_FOCUSED);
    list.SetSelectionMark(6);

    list.DeleteItem(0);
    list.DeleteItem(0);
    list.InsertItem(0, L"x");

    EXPECT_EQ(focus(), 4);
    EXPECT_EQ(list.GetSelectionMark(), 5);
}

TEST_F(List, DeletesAllRows) {
    list.SetTopIndex(5);
    list.SelectAll(true);

    EXPECT_TRUE(list.DeleteAllItems());

    EXPECT_EQ(list.GetItemCount(), 0);
    EXPECT_EQ(list.GetSelectedCount(), 0);
    EXPECT_EQ(list.GetTopIndex(), 0);
}

TEST_F(List, DoesNotSelectNewRows) {
    list.SelectAll(true);
    list.InsertItem(3, L"x");

    EXPECT_EQ(list.GetSelectedCount(), 10);
    EXPECT_EQ(list.GetItemState(3, LVIS_SELECTED), 0U);
}

TEST_F(List, NumbersItsRows) {
    list.NumberItems();
    list.DeleteItem(0);

    EXPECT_EQ(list.GetItemData(0), 0);
    EXPECT_EQ(list.GetItemData(8), 8);

    list.SetItemData(8, 77);
    list.DeleteItem(0);

    EXPECT_EQ(list.GetItemData(0), 1);
    EXPECT_EQ(list.GetItemData(7), 77);
}

TEST_F(List, SortsRowsByTheirIds) {
    list.SetItemState(0, LVIS_SELECTED | LVIS_FOCUSED, LVIS_SELECTED | LVIS_FOCUSED);

    list.SortItems([this](unsigned a, unsigned b) { return list.textOf(a, 1) > list.textOf(b, 1); });

    EXPECT_EQ(names(), L"jihgfedcba");
    EXPECT_THAT(selected(), ElementsAre(9));
    EXPECT_EQ(focus(), 9);
}

TEST_F(List, PutsRowsInTheOrderOfGivenIds) {
    list.SetItemState(0, LVIS_SELECTED | LVIS_FOCUSED, LVIS_SELECTED | LVIS_FOCUSED);

    EXPECT_TRUE(list.ReorderItems({9, 0, 1, 2, 3, 4, 5, 6, 7, 8}));

    EXPECT_EQ(names(), L"jabcdefghi");
    EXPECT_THAT(selected(), ElementsAre(1));
    EXPECT_EQ(focus(), 1);
}

TEST_F(List, RefusesAnOrderThatIsNotOneOfItsRows) {
    EXPECT_FALSE(list.ReorderItems({0, 1, 2, 3, 4, 5, 6, 7, 8}));
    EXPECT_FALSE(list.ReorderItems({0, 1, 2, 3, 4, 5, 6, 7, 8, 8}));
    EXPECT_FALSE(list.ReorderItems({0, 1, 2, 3, 4, 5, 6, 7, 8, 10}));
    EXPECT_FALSE(list.ReorderItems({0, 1, 2, 3, 4, 5, 6, 7, 8, 9, CListCtrl::kNoRow}));

    EXPECT_EQ(names(), L"abcdefghij");
}

TEST_F(List, TakesRowsByColumns) {
    list.SelectAll(true);
    list.InsertItem(0, L"more");

    list.SetRows({{L"icon"}, {L"x", L"y", L"past the last row"}}, {3, 4});

    EXPECT_EQ(names(), L"xy");
    EXPECT_EQ(list.GetItemText(0, 0), L"icon");
    EXPECT_EQ(list.GetItemText(1, 0), L"");
    EXPECT_EQ(list.GetItemImage(0), 3);
    EXPECT_EQ(list.GetItemImage(1), 4);
    EXPECT_THAT(selected(), IsEmpty());
    EXPECT_EQ(list.InsertItem(2, L""), 2);
    EXPECT_EQ(list.GetItemText(2, 1), L"");
}

TEST_F(List, WalksItsRowsById) {
    const unsigned first = list.MapIndexToID(0);

    EXPECT_EQ(list.nextID(first), list.MapIndexToID(1));
    EXPECT_EQ(list.nextID(list.MapIndexToID(9)), CListCtrl::kNoRow);
}

TEST_F(List, HasTheColumnsOfItsHeader) {
    EXPECT_EQ(list.GetHeaderCtrl()->GetItemCount(), 2);
    EXPECT_EQ(list.GetHeaderCtrl()->GetItem(1)->text, L"Name");
    EXPECT_EQ(list.GetColumnWidth(1), 120);
    EXPECT_TRUE(list.SetColumnWidth(1, 90));
    EXPECT_EQ(list.GetColumnWidth(1), 90);
    EXPECT_EQ(list.InsertColumn(3, L"x", HDF_LEFT, 10), -1);
    EXPECT_FALSE(list.SetColumnWidth(2, 90));
    EXPECT_FALSE(list.SetColumnWidth(1, -1));
    EXPECT_EQ(list.GetColumnWidth(2), 0);
}

TEST_F(List, MakesPlaceForAColumnBetweenOthers) {
    EXPECT_EQ(list.InsertColumn(1, L"Layer", HDF_LEFT, 30), 1);

    EXPECT_EQ(list.GetItemText(0, 1), L"");
    EXPECT_EQ(list.GetItemText(0, 2), L"a");
    EXPECT_EQ(list.GetColumnWidth(2), 120);
}

TEST_F(List, HasNoColumnsBeforeItHasAWindow) {
    CListCtrl other;

    EXPECT_EQ(other.InsertColumn(0, L"", HDF_LEFT, 10), -1);
    EXPECT_EQ(other.GetColumnWidth(0), 0);
    EXPECT_EQ(other.GetItemRect(0, LVIR_BOUNDS), CRect());
}

TEST_F(List, PassesAClickOnAHeadingOn) {
    click(*list.GetHeaderCtrl(), {60, 5});

    EXPECT_THAT(parent.told, ElementsAre("7504: column click 1"));
}

TEST_F(List, GivesItsHeaderToAnotherObject) {
    CHeaderCtrl own;

    list.SubclassHeader(own);

    EXPECT_EQ(list.GetHeaderCtrl(), &own);
    EXPECT_EQ(own.GetParent(), &list);
    EXPECT_EQ(own.GetItemCount(), 2);
    EXPECT_EQ(own.GetClientRect(), (CRect{0, 0, 200, 24}));
    click(own, {60, 5});
    EXPECT_THAT(parent.told, ElementsAre("7504: column click 1"));
    list.DestroyWindow();
}

TEST_F(List, UsesTheHeaderThatItWasGivenBeforeItsWindow) {
    CHeaderCtrl own;
    CListCtrl other;
    other.SubclassHeader(own);

    other.Create({.parent = &parent, .style = LVS_REPORT | WS_VISIBLE, .rect = {0, 0, 100, 100}});

    EXPECT_EQ(other.GetHeaderCtrl(), &own);
    EXPECT_EQ(own.GetParent(), &other);
    EXPECT_EQ(other.InsertColumn(0, L"a", HDF_LEFT, 10), 0);
    other.DestroyWindow();
}

TEST_F(List, TakesOverAllThatAnotherOneHolds) {
    list.SetItemState(2, LVIS_SELECTED | LVIS_FOCUSED, LVIS_SELECTED | LVIS_FOCUSED);
    list.SetSelectionMark(3);
    list.SetTopIndex(1);
    list.SetTextColor(RGB(1, 2, 3));
    CListCtrl other;

    EXPECT_TRUE(other.SubclassWindow(list));

    EXPECT_EQ(other.GetItemText(9, 1), L"j");
    EXPECT_EQ(other.GetNextItem(-1, LVNI_SELECTED), 2);
    EXPECT_EQ(other.GetNextItem(-1, LVNI_FOCUSED), 2);
    EXPECT_EQ(other.GetSelectionMark(), 3);
    EXPECT_EQ(other.GetTopIndex(), 1);
    EXPECT_EQ(other.GetTextColor(), RGB(1, 2, 3));
    EXPECT_EQ(other.GetImageList(LVSIL_SMALL), &images);
    EXPECT_EQ(other.GetExtendedStyle(), LVS_EX_FULLROWSELECT);
    EXPECT_EQ(other.GetHeaderCtrl()->GetParent(), &other);
    EXPECT_EQ(other.GetColumnWidth(1), 120);
    EXPECT_EQ(list.GetItemCount(), 0);
    EXPECT_EQ(list.GetHeaderCtrl(), nullptr);
}

TEST_F(List, TakesTheWindowOfSomethingElseOverAndIsAnEmptyList) {
    CWnd window;
    window.Create({.parent = &parent, .style = LVS_REPORT | WS_VISIBLE, .rect = {0, 0, 100, 100}});
    CListCtrl other;

    EXPECT_TRUE(other.SubclassWindow(window));

    EXPECT_EQ(other.InsertColumn(0, L"a", HDF_LEFT, 10), 0);
    EXPECT_EQ(other.GetItemCount(), 0);
}

// Counts what a list tells the program that shows it.
class CountingPeer : public WindowPeer {
public:
    explicit CountingPeer(int& count) : count_(count) {}
    void changed(CWnd& /*window*/, Change change) override { count_ += change == Change::Content ? 1 : 0; }

private:
    int& count_;
};

TEST_F(List, TellsWhoShowsItOnceForEachChange) {
    int count = 0;
    list.attachPeer(std::make_unique<CountingPeer>(count));

    list.SetRows(rowsNamed({L"a", L"b"}));
    list.InsertItem(0, L"x");
    list.DeleteItem(0);
    list.MoveItem(0, 1);
    list.SetItemText(0, 1, L"y");
    list.SelectAll(true);
    list.SetItemState(0, 0, LVIS_SELECTED);

    EXPECT_EQ(count, 7);
}

TEST_F(List, HasOneListOfSmallImages) {
    CImageList other;

    EXPECT_EQ(list.SetImageList(&other, 0), nullptr);
    EXPECT_EQ(list.GetImageList(0), nullptr);
    EXPECT_EQ(list.SetImageList(&other, LVSIL_SMALL), &images);
    EXPECT_EQ(list.GetImageList(LVSIL_SMALL), &other);
}

} // namespace
} // namespace quor::ui
