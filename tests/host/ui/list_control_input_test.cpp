#include "tests/host/ui/list_fixture.h"

namespace quor::ui {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class ListMouse : public ListFixture {};
class ListKeys : public ListFixture {};

class ListLabels : public ListFixture {
protected:
    ListLabels() : ListFixture(LVS_REPORT | LVS_EDITLABELS) {}
};

TEST_F(ListMouse, ClickSelectsARowAlone) {
    list.SelectAll(true);

    clickRow(2);

    EXPECT_THAT(selected(), ElementsAre(2));
    EXPECT_EQ(focus(), 2);
    EXPECT_EQ(list.GetSelectionMark(), 2);
    EXPECT_TRUE(list.hasFocus());
    EXPECT_THAT(parent.told, ElementsAre("7504: click 2"));
}

TEST_F(ListMouse, ControlClickSelectsOneMoreOrOneLess) {
    clickRow(0);
    clickRow(2, MK_CONTROL);
    EXPECT_THAT(selected(), ElementsAre(0, 2));
    EXPECT_EQ(focus(), 2);

    clickRow(0, MK_CONTROL);

    EXPECT_THAT(selected(), ElementsAre(2));
    EXPECT_EQ(focus(), 0);
    EXPECT_EQ(list.GetSelectionMark(), 0);
}

TEST_F(ListMouse, ShiftClickSelectsFromTheMarkAndNothingElse) {
    clickRow(3);
    clickRow(1, MK_SHIFT);
    EXPECT_THAT(selected(), ElementsAre(1, 2, 3));
    EXPECT_EQ(focus(), 1);
    EXPECT_EQ(list.GetSelectionMark(), 3);

    list.SetTopIndex(2);
    clickRow(5, MK_SHIFT);
    EXPECT_THAT(selected(), ElementsAre(3, 4, 5));
}

TEST_F(ListMouse, ShiftClickWithoutAMarkSelectsFromTheFocusedRow) {
    list.SetItemState(1, LVIS_FOCUSED, LVIS_FOCUSED);

    clickRow(3, MK_SHIFT);

    EXPECT_THAT(selected(), ElementsAre(1, 2, 3));
    clickRow(0, MK_SHIFT);
    EXPECT_THAT(selected(), ElementsAre(0, 1));
}

TEST_F(ListMouse, ShiftClickWithNothingBeforeSelectsFromTheFirstRow) {
    clickRow(2, MK_SHIFT);

    EXPECT_THAT(selected(), ElementsAre(0, 1, 2));
}

TEST_F(ListMouse, ControlShiftClickAddsARange) {
    clickRow(0);
    clickRow(2, MK_CONTROL);

    clickRow(3, MK_CONTROL | MK_SHIFT);

    EXPECT_THAT(selected(), ElementsAre(0, 2, 3));
    EXPECT_EQ(list.GetSelectionMark(), 2);
}

TEST_F(ListMouse, ClickBesideTheRowsDeselectsAllUnlessAKeyIsHeld) {
    clickRow(1);
    clickBeside(MK_CONTROL);
    EXPECT_THAT(selected(), ElementsAre(1));

    clickBeside();

    EXPECT_THAT(selected(), IsEmpty());
    EXPECT_THAT(parent.told, ElementsAre("7504: click 1", "7504: marquee -1", "7504: click -1", "7504: marquee -1",
                                         "7504: click -1"));
}

TEST_F(ListMouse, ClickBesideTheRowsChangesNothingWhereTheParentRefuses) {
    clickRow(1);
    parent.answer = 1;
    parent.told.clear();

    clickBeside();

    EXPECT_THAT(selected(), ElementsAre(1));
    EXPECT_EQ(focus(), 1);
    EXPECT_THAT(parent.told, ElementsAre("7504: marquee -1", "7504: click -1"));
}

TEST_F(ListMouse, RightClickSelectsARowAloneThatIsNotSelected) {
    clickRow(0);
    parent.told.clear();

    rightClick(list, at(2));

    EXPECT_THAT(selected(), ElementsAre(2));
    EXPECT_EQ(focus(), 2);
    EXPECT_EQ(list.GetSelectionMark(), 2);
    EXPECT_TRUE(list.hasFocus());
    EXPECT_THAT(parent.told, ElementsAre("7504: right click 2"));
}

TEST_F(ListMouse, RightClickOnASelectedRowKeepsTheSelection) {
    clickRow(0);
    clickRow(2, MK_SHIFT);

    rightClick(list, at(1));

    EXPECT_THAT(selected(), ElementsAre(0, 1, 2));
    EXPECT_EQ(focus(), 1);
    EXPECT_EQ(list.GetSelectionMark(), 1);
}

TEST_F(ListMouse, RightClickBesideTheRowsIsToldAndChangesNothing) {
    clickRow(0);
    parent.told.clear();

    rightClick(list, {190, 40});

    EXPECT_THAT(selected(), ElementsAre(0));
    EXPECT_THAT(parent.told, ElementsAre("7504: right click -1"));
}

TEST_F(ListMouse, DoubleClickIsToldWithItsRow) {
    doubleClick(list, at(3));
    doubleClick(list, {190, 40});

    EXPECT_THAT(parent.told, ElementsAre("7504: click 3", "7504: double click 3", "7504: marquee -1", "7504: click -1",
                                         "7504: double click -1"));
}

TEST_F(ListMouse, WheelScrollsAsFarAsThereAreRows) {
    turnWheel(list, at(0), 3);
    EXPECT_EQ(list.GetTopIndex(), 3);

    turnWheel(list, at(0), 30);
    EXPECT_EQ(list.GetTopIndex(), 6);

    turnWheel(list, at(0), -30);
    EXPECT_EQ(list.GetTopIndex(), 0);
}

TEST_F(ListMouse, ClickHitsIconAndLabelOnlyWithoutFullRows) {
    list.SetExtendedStyle(0);
    clickRow(1);
    EXPECT_THAT(selected(), IsEmpty());

    click(list, {30, at(1).y});
    EXPECT_THAT(selected(), ElementsAre(1));
}

// Deletes its list when it is told of a click for the second time.
class DeletingParent : public CWnd {
public:
    std::unique_ptr<CListCtrl> list = std::make_unique<CListCtrl>();

protected:
    std::intptr_t OnNotify(unsigned /*id*/, const Notification& /*notification*/) override {
        if (++told_ == 2)
            list.reset();
        return 0;
    }

private:
    int told_ = 0;
};

TEST(ListWithoutFixture, MayBeDeletedWhileItTellsOfASecondClick) {
    DeletingParent parent;
    parent.Create({.style = WS_VISIBLE, .rect = {0, 0, 100, 100}});
    parent.list->Create(
        {.parent = &parent, .style = LVS_REPORT | LVS_EDITLABELS | WS_VISIBLE, .rect = {0, 0, 100, 100}});
    parent.list->InsertColumn(0, L"", HDF_LEFT, 50);
    parent.list->InsertItem(0, L"a");

    click(*parent.list, {10, 30});
    click(*parent.list, {10, 30});

    EXPECT_EQ(parent.list, nullptr);
    EXPECT_TRUE(parent.children().empty());
}

// Takes its list's window away when it is told something.
class DestroyingParent : public CWnd {
public:
    CListCtrl list;

protected:
    std::intptr_t OnNotify(unsigned /*id*/, const Notification& /*notification*/) override {
        list.DestroyWindow();
        return 0;
    }
};

TEST(ListWithoutFixture, MayLoseItsWindowWhileItTellsOfAClick) {
    DestroyingParent parent;
    parent.Create({.style = WS_VISIBLE, .rect = {0, 0, 100, 100}});
    const CWnd::Creation creation{
        .parent = &parent, .style = LVS_REPORT | LVS_EDITLABELS | WS_VISIBLE, .rect = {0, 0, 100, 100}};
    parent.list.Create(creation);
    click(parent.list, {50, 50});
    EXPECT_FALSE(parent.list.IsWindow());

    parent.list.Create(creation);
    parent.list.InsertColumn(0, L"", HDF_LEFT, 50);
    parent.list.InsertItem(0, L"a");
    click(parent.list, {10, 30});
    EXPECT_FALSE(parent.list.IsWindow());
}

TEST_F(ListKeys, MoveTheFocusAndSelect) {
    list.SetFocus();
    pressKey(VK_DOWN);
    EXPECT_THAT(selected(), ElementsAre(0));
    pressKey(VK_DOWN);
    pressKey(VK_DOWN);
    pressKey(VK_UP);

    EXPECT_THAT(selected(), ElementsAre(1));
    EXPECT_EQ(focus(), 1);
    EXPECT_EQ(list.GetSelectionMark(), 1);
    EXPECT_THAT(parent.told, ElementsAre("7504: click 0", "7504: click 1", "7504: click 2", "7504: click 1"));
}

TEST_F(ListKeys, ScrollToTheRowThatTheyLeadTo) {
    pressKey(list, VK_END);
    EXPECT_THAT(selected(), ElementsAre(9));
    EXPECT_EQ(list.GetTopIndex(), 6);

    pressKey(list, VK_PRIOR);
    EXPECT_THAT(selected(), ElementsAre(5));
    EXPECT_EQ(list.GetTopIndex(), 5);

    pressKey(list, VK_HOME);
    EXPECT_THAT(selected(), ElementsAre(0));
    EXPECT_EQ(list.GetTopIndex(), 0);

    pressKey(list, VK_NEXT);
    EXPECT_THAT(selected(), ElementsAre(4));
    EXPECT_EQ(list.GetTopIndex(), 1);
}

TEST_F(ListKeys, StopAtTheFirstAndTheLastRow) {
    pressKey(list, VK_HOME);
    pressKey(list, VK_UP);
    pressKey(list, VK_PRIOR);
    EXPECT_EQ(focus(), 0);

    pressKey(list, VK_END);
    pressKey(list, VK_DOWN);
    pressKey(list, VK_NEXT);
    EXPECT_EQ(focus(), 9);
}

TEST_F(ListKeys, WithControlMoveTheFocusOnlyAndTellNothing) {
    clickRow(1);
    parent.told.clear();

    pressKey(VK_DOWN, MK_CONTROL);
    pressKey(VK_DOWN, MK_CONTROL);

    EXPECT_THAT(selected(), ElementsAre(1));
    EXPECT_EQ(focus(), 3);
    EXPECT_THAT(parent.told, IsEmpty());
}

TEST_F(ListKeys, WithShiftExtendTheSelection) {
    clickRow(1);

    pressKey(VK_DOWN, MK_SHIFT);
    pressKey(VK_DOWN, MK_SHIFT);
    EXPECT_THAT(selected(), ElementsAre(1, 2, 3));

    pressKey(VK_UP, MK_SHIFT);
    EXPECT_THAT(selected(), ElementsAre(1, 2));
}

TEST_F(ListKeys, SpaceSelectsTheFocusedRow) {
    clickRow(1);
    pressKey(VK_DOWN, MK_CONTROL);

    pressKey(VK_SPACE);
    EXPECT_THAT(selected(), ElementsAre(2));

    pressKey(VK_DOWN, MK_CONTROL);
    pressKey(VK_SPACE, MK_CONTROL);
    EXPECT_THAT(selected(), ElementsAre(2, 3));
}

TEST_F(ListKeys, ControlASelectsAllAndIsToldAsAClickOnTheFocusedRow) {
    clickRow(3);
    parent.told.clear();

    pressKey('A', MK_CONTROL);

    EXPECT_EQ(list.GetSelectedCount(), 10);
    EXPECT_EQ(focus(), 3);
    EXPECT_THAT(parent.told, ElementsAre("7504: click 3"));
}

TEST_F(ListKeys, DoNothingWithoutRows) {
    list.DeleteAllItems();
    pressKey(list, VK_HOME);
    pressKey(list, VK_END);
    pressKey(list, VK_DOWN);
    pressKey(list, VK_UP);
    pressKey(list, VK_NEXT);
    pressKey(list, VK_PRIOR);
    pressKey(list, VK_SPACE);
    pressKey(list, 'A', MK_CONTROL);

    EXPECT_THAT(parent.told, IsEmpty());
}

TEST_F(ListKeys, ThatMeanNothingAreNotTold) {
    pressKey(list, 'A');
    pressKey(list, VK_DELETE);

    EXPECT_THAT(parent.told, IsEmpty());
    EXPECT_EQ(focus(), -1);
}

TEST_F(ListLabels, AreEditedWhenTheParentDoesNotRefuse) {
    EXPECT_TRUE(list.EditLabel(2));
    EXPECT_EQ(list.editedItem(), 2);

    list.EndEditLabel(L"new");

    EXPECT_EQ(list.editedItem(), -1);
    EXPECT_EQ(list.GetItemText(2, 0), L"new");
    EXPECT_THAT(parent.told, ElementsAre("7504: begin edit 2", "7504: end edit 2"));
}

TEST_F(ListLabels, AreNotEditedWhenTheParentRefuses) {
    parent.answer = 1;

    EXPECT_FALSE(list.EditLabel(2));

    EXPECT_EQ(list.editedItem(), -1);
}

TEST_F(ListLabels, KeepTheirTextWhenTheParentRefusesTheNewOne) {
    list.EditLabel(2);
    parent.answer = 1;

    list.EndEditLabel(L"new");

    EXPECT_EQ(list.GetItemText(2, 0), L"");
    EXPECT_EQ(list.editedItem(), -1);
}

TEST_F(ListLabels, KeepTheirTextWhenTheEditIsGivenUp) {
    list.EditLabel(2);

    list.EndEditLabel(std::nullopt);

    EXPECT_EQ(list.GetItemText(2, 0), L"");
    EXPECT_THAT(parent.told, ElementsAre("7504: begin edit 2"));
}

TEST_F(ListLabels, AreNotEditedOfARowThatDoesNotExist) {
    EXPECT_FALSE(list.EditLabel(10));
    EXPECT_FALSE(list.EditLabel(-1));
    EXPECT_THAT(parent.told, IsEmpty());
}

TEST_F(ListLabels, AreNoLongerEditedWhenTheRowGoes) {
    list.EditLabel(2);
    list.DeleteItem(2);
    list.InsertItem(0, L"x");

    EXPECT_EQ(list.editedItem(), -1);
}

TEST_F(ListLabels, AreEditedAfterASlowSecondClickOrF2) {
    clickRow(1);
    clickRow(1);
    EXPECT_EQ(list.editedItem(), 1);

    clickRow(2);
    pressKey(VK_F2);
    EXPECT_EQ(list.editedItem(), 2);
}

TEST_F(ListLabels, AreNotEditedByASecondClickThatDoesSomethingElse) {
    clickRow(1);
    doubleClick(list, at(2));
    clickRow(2, MK_CONTROL);
    clickRow(3, MK_SHIFT);

    EXPECT_EQ(list.editedItem(), -1);
}

TEST_F(ListLabels, AreNotEditedByTheClickThatBringsTheKeyboard) {
    clickRow(1);
    parent.SetFocus();

    clickRow(1);

    EXPECT_EQ(list.editedItem(), -1);
}

TEST_F(ListMouse, SecondClickEditsNothingWithoutTheStyle) {
    clickRow(1);
    clickRow(1);
    pressKey(VK_F2);

    EXPECT_FALSE(list.EditLabel(1));
    EXPECT_THAT(parent.told, ElementsAre("7504: click 1", "7504: click 1"));
}

} // namespace
} // namespace quor::ui
