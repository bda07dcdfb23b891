#include "host/ui/dpi.h"
#include "tests/host/ui/list_fixture.h"

namespace quor::ui {
namespace {

class ListLayout : public ListFixture {};

TEST_F(ListLayout, HasItsHeaderAtTheTopOverItsWholeWidth) {
    EXPECT_EQ(list.GetHeaderCtrl()->GetRectInParent(), (CRect{0, 0, 200, 24}));
    EXPECT_TRUE(list.GetHeaderCtrl()->IsWindowVisible());
    EXPECT_EQ(list.GetHeaderCtrl()->GetDlgCtrlID(), 0U);

    list.MoveWindow({0, 0, 150, 90});

    EXPECT_EQ(list.GetHeaderCtrl()->GetRectInParent(), (CRect{0, 0, 150, 24}));
}

TEST_F(ListLayout, GivesEachRowTheHeightOfItsImageAndALine) {
    EXPECT_EQ(list.rowHeight(), 22);
    EXPECT_EQ(list.GetItemRect(0, LVIR_BOUNDS), (CRect{0, 24, 170, 46}));
    EXPECT_EQ(list.GetItemRect(9, LVIR_BOUNDS), (CRect{0, 222, 170, 244}));

    list.SetImageList(nullptr, LVSIL_SMALL);

    EXPECT_EQ(list.rowHeight(), 17);
    EXPECT_EQ(list.GetItemRect(1, LVIR_BOUNDS), (CRect{0, 41, 170, 58}));
}

TEST_F(ListLayout, PutsTheIconBeforeTheLabelOfTheFirstColumn) {
    EXPECT_EQ(list.GetItemRect(0, LVIR_ICON), (CRect{4, 24, 25, 46}));
    EXPECT_EQ(list.GetItemRect(0, LVIR_LABEL), (CRect{25, 24, 50, 46}));
    EXPECT_EQ(list.GetSubItemRect(0, 0, LVIR_LABEL), (CRect{25, 24, 50, 46}));
    EXPECT_EQ(list.GetSubItemRect(0, 0, LVIR_BOUNDS), (CRect{0, 24, 50, 46}));

    list.SetImageList(nullptr, LVSIL_SMALL);

    EXPECT_EQ(list.GetItemRect(0, LVIR_ICON), (CRect{4, 24, 4, 41}));
    EXPECT_EQ(list.GetItemRect(0, LVIR_LABEL), (CRect{4, 24, 50, 41}));
}

TEST_F(ListLayout, GivesOtherColumnsTheirWholeCell) {
    EXPECT_EQ(list.GetSubItemRect(1, 1, LVIR_LABEL), (CRect{50, 46, 170, 68}));
    EXPECT_EQ(list.GetSubItemRect(1, 1, LVIR_BOUNDS), (CRect{50, 46, 170, 68}));
    EXPECT_TRUE(list.GetSubItemRect(1, 1, LVIR_ICON).IsRectEmpty());
}

TEST_F(ListLayout, LeavesNoLabelInAColumnThatIsTooNarrowForTheIcon) {
    list.SetColumnWidth(0, 10);

    EXPECT_TRUE(list.GetItemRect(0, LVIR_LABEL).IsRectEmpty());
    EXPECT_EQ(list.GetSubItemRect(0, 1, LVIR_LABEL), (CRect{10, 24, 130, 46}));
}

TEST_F(ListLayout, PutsColumnsInTheOrderOfTheHeader) {
    CHeaderCtrl::Item name = *list.GetHeaderCtrl()->GetItem(1);
    name.order = 0;
    list.GetHeaderCtrl()->SetItem(1, name);

    EXPECT_EQ(list.GetSubItemRect(0, 1, LVIR_LABEL), (CRect{0, 24, 120, 46}));
    EXPECT_EQ(list.GetItemRect(0, LVIR_ICON), (CRect{124, 24, 145, 46}));
    EXPECT_EQ(list.GetItemRect(0, LVIR_BOUNDS), (CRect{0, 24, 170, 46}));
}

TEST_F(ListLayout, HasNoRectangleForWhatDoesNotExist) {
    EXPECT_EQ(list.GetItemRect(10, LVIR_BOUNDS), CRect());
    EXPECT_EQ(list.GetItemRect(-1, LVIR_LABEL), CRect());
    EXPECT_EQ(list.GetSubItemRect(0, 2, LVIR_LABEL), CRect());
}

TEST_F(ListLayout, PutsScrolledRowsOutside) {
    list.SetTopIndex(2);

    EXPECT_EQ(list.GetItemRect(2, LVIR_BOUNDS).top, 24);
    EXPECT_EQ(list.GetItemRect(0, LVIR_BOUNDS).bottom, 2);
    EXPECT_EQ(list.HitTest({5, 25}), 2);
}

TEST_F(ListLayout, FindsTheRowAtAPoint) {
    EXPECT_EQ(list.HitTest({0, 24}), 0);
    EXPECT_EQ(list.HitTest({169, 45}), 0);
    EXPECT_EQ(list.HitTest({169, 46}), 1);
    EXPECT_EQ(list.HitTest({60, 123}), 4);
    EXPECT_EQ(list.HitTest({170, 30}), -1);
    EXPECT_EQ(list.HitTest({60, 23}), -1);
    EXPECT_EQ(list.HitTest({60, 124}), -1);
    EXPECT_EQ(list.HitTest({-1, 30}), -1);
}

TEST_F(ListLayout, FindsNoRowBelowTheLastOne) {
    list.SetRows(rowsNamed({L"a"}));

    EXPECT_EQ(list.HitTest({5, 45}), 0);
    EXPECT_EQ(list.HitTest({5, 46}), -1);
}

TEST_F(ListLayout, FindsARowByIconAndLabelOnlyWithoutFullRows) {
    list.SetExtendedStyle(0);

    EXPECT_EQ(list.HitTest({4, 30}), 0);
    EXPECT_EQ(list.HitTest({49, 30}), 0);
    EXPECT_EQ(list.HitTest({3, 30}), -1);
    EXPECT_EQ(list.HitTest({50, 30}), -1);
}

TEST_F(ListLayout, ScrollsAsLittleAsNeeded) {
    EXPECT_EQ(list.GetCountPerPage(), 4);

    EXPECT_TRUE(list.EnsureVisible(3));
    EXPECT_EQ(list.GetTopIndex(), 0);

    EXPECT_TRUE(list.EnsureVisible(4));
    EXPECT_EQ(list.GetTopIndex(), 1);

    EXPECT_TRUE(list.EnsureVisible(0));
    EXPECT_EQ(list.GetTopIndex(), 0);

    EXPECT_FALSE(list.EnsureVisible(10));
    EXPECT_FALSE(list.EnsureVisible(-1));
}

TEST_F(ListLayout, ShowsItsLastRowsWhenRowsGo) {
    list.SetTopIndex(6);

    list.DeleteItem(9);
    EXPECT_EQ(list.GetTopIndex(), 5);

    list.SetRows(rowsNamed({L"a", L"b"}));
    EXPECT_EQ(list.GetTopIndex(), 0);
}

TEST_F(ListLayout, ShowsMoreRowsAboveWhenItGrows) {
    list.SetTopIndex(6);

    list.MoveWindow({0, 0, 200, 24 + 10 * 22});

    EXPECT_EQ(list.GetTopIndex(), 0);
}

TEST_F(ListLayout, IsLargerOnAFinerScreen) {
    setScreenDpi(192);
    list.MoveWindow({0, 0, 300, 300});

    EXPECT_EQ(list.GetHeaderCtrl()->GetRectInParent(), (CRect{0, 0, 300, 48}));
    EXPECT_EQ(list.GetItemRect(0, LVIR_ICON), (CRect{8, 48, 29, 70}));
    list.SetImageList(nullptr, LVSIL_SMALL);
    EXPECT_EQ(list.rowHeight(), 33);
    setScreenDpi(kReferenceDpi);
}

class ListWithoutHeader : public ListFixture {
protected:
    ListWithoutHeader() : ListFixture(0) {}
};

TEST_F(ListWithoutHeader, HasItsRowsAtTheTop) {
    EXPECT_FALSE(list.GetHeaderCtrl()->isShown());
    EXPECT_EQ(list.GetItemRect(0, LVIR_BOUNDS), (CRect{0, 0, 170, 22}));
}

TEST_F(ListLayout, ScrollsToTheRightUntilTheLastColumnIsSeen) {
    list.SetColumnWidth(1, 200);
    list.SetScrollLeft(30);

    EXPECT_EQ(list.GetScrollLeft(), 30);
    EXPECT_EQ(list.GetItemRect(0, LVIR_BOUNDS), (CRect{-30, 24, 220, 46}));
    EXPECT_EQ(list.GetItemRect(0, LVIR_ICON).left, -26);
    EXPECT_EQ(list.GetSubItemRect(0, 1, LVIR_LABEL), (CRect{20, 24, 220, 46}));
    EXPECT_EQ(list.GetHeaderCtrl()->GetRectInParent(), (CRect{-30, 0, 200, 24}));
    EXPECT_EQ(list.HitTest({190, 30}), 0);

    list.SetScrollLeft(1000);
    EXPECT_EQ(list.GetScrollLeft(), 50);

    list.MoveWindow({0, 0, 230, 124});
    EXPECT_EQ(list.GetScrollLeft(), 20);
    EXPECT_EQ(list.GetHeaderCtrl()->GetRectInParent(), (CRect{-20, 0, 230, 24}));

    list.SetScrollLeft(-1);
    EXPECT_EQ(list.GetScrollLeft(), 0);
}

TEST_F(ListLayout, DoesNotScrollToTheRightWhenAllColumnsAreSeen) {
    list.SetScrollLeft(10);

    EXPECT_EQ(list.GetScrollLeft(), 0);
}

TEST_F(ListLayout, LeavesRoomForScrollBars) {
    list.SetColumnWidth(1, 200);
    EXPECT_EQ(list.GetCountPerPage(), 4);

    list.SetScrollBarSpace({14, 14});

    EXPECT_EQ(list.GetCountPerPage(), 3);
    list.SetTopIndex(10);
    EXPECT_EQ(list.GetTopIndex(), 7);
    list.SetScrollLeft(1000);
    EXPECT_EQ(list.GetScrollLeft(), 64);

    list.SetScrollBarSpace({});

    EXPECT_EQ(list.GetTopIndex(), 6);
    EXPECT_EQ(list.GetScrollLeft(), 50);
}

} // namespace
} // namespace quor::ui
