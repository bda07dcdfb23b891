#include "light/palette/theme_list_ctrl.h"

#include "tests/light/palette/drawn_control.h"

namespace quor::light {
namespace {

using testing::Contains;
using testing::ElementsAreArray;
using testing::Not;

constexpr unsigned kBoth = LVIS_SELECTED | LVIS_FOCUSED;

// Four rows with an image of point lights and a name; the keyboard is in the list.
class ThemedList : public DrawnControl {
protected:
    ThemedList() {
        takeOver<CListCtrl>(list_, {200, 200}, {}, LVS_REPORT);
        list_.SetImageList(images_.get(), LVSIL_SMALL);
        list_.InsertColumn(0, L"", HDF_LEFT, 50);
        list_.InsertColumn(1, L"Name", HDF_LEFT, 120);
        list_.SetRows({{{L"", L"A"}, 1}, {{L"", L"B"}, 1}, {{L"", L"C"}, 1}, {{L"", L"D"}, 1}});
        list_.SetFocus();
    }

    [[nodiscard]] CRect label(int row, int column) const { return list_.GetSubItemRect(row, column, LVIR_LABEL); }
    [[nodiscard]] ZrString background(int row) const {
        return fill(list_.GetItemRect(row, LVIR_BOUNDS), themeColor(34));
    }
    [[nodiscard]] ZrString highlight(int row) const { return fill(label(row, 1), GetSysColor(COLOR_HIGHLIGHT)); }
    [[nodiscard]] ZrString paleHighlight(int row) const { return fill(label(row, 1), themeColor(49)); }
    [[nodiscard]] ZrString frame(int row) const { return focus(label(row, 1)); }
    [[nodiscard]] ZrString icon(int row) const {
        const CPoint at = list_.GetItemRect(row, LVIR_ICON).TopLeft();
        return picture(7513, {at.x, at.y, at.x + 21, at.y + 21}, ILD_NORMAL);
    }
    // `behind`: the colour that the letters stand on.
    [[nodiscard]] ZrString text(int row, int column, COLORREF behind, int indent = 3) const {
        CRect place = label(row, column);
        place.left += indent;
        return ui::lineOf({.kind = ui::DrawingCall::Kind::Text,
                           .rect = place,
                           .color = themeColor(36),
                           .text = list_.GetItemText(row, column),
                           .format = DT_SINGLELINE | DT_VCENTER | DT_END_ELLIPSIS,
                           .background = behind});
    }
    // What is drawn of one row, from its background to that of the next one.
    std::vector<ZrString> drawRow(int row) {
        const std::vector<ZrString> all = draw(list_);
        const auto first = std::ranges::find(all, background(row));
        const auto last = std::find(first, all.end(), background(row + 1));
        return {first, last};
    }

    TwoImages images_;
    ThemeListCtrl list_;
};

TEST_F(ThemedList, DrawsItsRowsItself) { EXPECT_EQ(list_.GetStyle() & 0x400U, 0x400U); }

TEST_F(ThemedList, TakesTheHeaderOverWithOneThatDrawsInTheThemeToo) {
    EXPECT_NE(dynamic_cast<ThemeHeaderCtrl*>(list_.GetHeaderCtrl()), nullptr);
}

TEST_F(ThemedList, DrawsOfARowTheBackgroundTheIconAndTheTexts) {
    EXPECT_THAT(drawRow(1),
                ElementsAreArray({background(1), icon(1), text(1, 0, themeColor(34)), text(1, 1, themeColor(34))}));
}

// The first row is the one of the list, not the topmost on the screen.
TEST_F(ThemedList, ShowsTheSelectionOfTheTopmostRowWhenItIsScrolled) {
    std::vector<CListCtrl::Row> rows(40, {{L"", L"Lamp"}, 1});
    list_.SetRows(std::move(rows));
    list_.SetTopIndex(5);
    list_.SetItemState(5, LVIS_SELECTED, LVIS_SELECTED);
    list_.SetItemState(6, LVIS_SELECTED, LVIS_SELECTED);

    EXPECT_THAT(drawRow(5), Contains(highlight(5)));
    EXPECT_THAT(drawRow(6), Contains(highlight(6)));
}

TEST_F(ThemedList, HasItsIndentsOnTheScreenInUse) {
    ui::setScreenDpi(144);

    EXPECT_THAT(drawRow(1), Contains(text(1, 1, themeColor(34), 5)));
}

TEST_F(ThemedList, IndentsTheTextOfAThirdColumn) {
    list_.InsertColumn(2, L"Type", HDF_LEFT, 80);
    list_.SetItemText(1, 2, L"Point");

    EXPECT_EQ(drawRow(1).back(), text(1, 2, themeColor(34), 23));
}

TEST_F(ThemedList, IndentsTheTextOfAThirdColumnOnTheScreenInUse) {
    list_.InsertColumn(2, L"Type", HDF_LEFT, 80);
    ui::setScreenDpi(144);

    EXPECT_EQ(drawRow(1).back(), text(1, 2, themeColor(34), 35));
}

TEST_F(ThemedList, DrawsNoIconWithoutImages) {
    list_.SetImageList(nullptr, LVSIL_SMALL);

    EXPECT_THAT(drawRow(1), ElementsAreArray({background(1), text(1, 0, themeColor(34)), text(1, 1, themeColor(34))}));
}

TEST_F(ThemedList, HighlightsTheNameOfASelectedRowAndNotItsIcon) {
    list_.SetItemState(1, LVIS_SELECTED, kBoth);

    EXPECT_THAT(drawRow(1), ElementsAreArray({background(1), highlight(1), icon(1), text(1, 0, themeColor(34)),
                                              text(1, 1, GetSysColor(COLOR_HIGHLIGHT))}));
}

TEST_F(ThemedList, FramesTheRowThatHasTheFocus) {
    list_.SetItemState(1, LVIS_FOCUSED, kBoth);

    EXPECT_THAT(drawRow(1), ElementsAreArray({background(1), frame(1), icon(1), text(1, 0, themeColor(34)),
                                              text(1, 1, themeColor(34))}));
}

TEST_F(ThemedList, FramesTheHighlightOfTheRowThatHasTheFocus) {
    list_.SetItemState(1, kBoth, kBoth);

    EXPECT_THAT(drawRow(1), ElementsAreArray({background(1), highlight(1), frame(1), icon(1),
                                              text(1, 0, themeColor(34)), text(1, 1, GetSysColor(COLOR_HIGHLIGHT))}));
}

TEST_F(ThemedList, HasAPaleHighlightWithoutTheKeyboard) {
    list_.SetItemState(1, kBoth, kBoth);

    parent_.SetFocus();

    EXPECT_THAT(drawRow(1), ElementsAreArray({background(1), paleHighlight(1), frame(1), icon(1),
                                              text(1, 0, themeColor(34)), text(1, 1, themeColor(49))}));
}

TEST_F(ThemedList, ShowsTheFirstRowSelectedAndFocusedWhileItIsTheOnlyOne) {
    list_.SetItemState(0, kBoth, kBoth);

    EXPECT_THAT(drawRow(0), ElementsAreArray({background(0), highlight(0), frame(0), icon(0),
                                              text(0, 0, themeColor(34)), text(0, 1, GetSysColor(COLOR_HIGHLIGHT))}));
}

TEST_F(ThemedList, ShowsTheFirstRowPlainWhileSeveralAreSelected) {
    list_.SetItemState(0, kBoth, kBoth);
    list_.SetItemState(3, LVIS_SELECTED, LVIS_SELECTED);

    EXPECT_THAT(drawRow(0),
                ElementsAreArray({background(0), icon(0), text(0, 0, themeColor(34)), text(0, 1, themeColor(34))}));
    EXPECT_THAT(drawRow(3), Contains(highlight(3)));
}

TEST_F(ThemedList, ShowsAllSelectedRowsButTheFirst) {
    list_.SelectAll(true);

    const std::vector<ZrString> all = draw(list_);

    EXPECT_THAT(all, Not(Contains(highlight(0))));
    EXPECT_THAT(all, Contains(highlight(1)));
    EXPECT_THAT(all, Contains(highlight(2)));
    EXPECT_THAT(all, Contains(highlight(3)));
}

TEST_F(ThemedList, FramesOnlyTheFocusedOneOfSeveralSelectedRows) {
    list_.SelectAll(true);
    list_.SetItemState(2, LVIS_FOCUSED, LVIS_FOCUSED);

    const std::vector<ZrString> all = draw(list_);

    EXPECT_THAT(all, Contains(frame(2)));
    EXPECT_THAT(all, Not(Contains(frame(1))));
    EXPECT_THAT(all, Not(Contains(frame(3))));
}

TEST_F(ThemedList, FollowsTheThemeFromOnePaintingToTheNext) {
    list_.SetItemState(1, kBoth, kBoth);
    const std::vector<ZrString> dark = drawRow(1);

    useTheme(1);

    EXPECT_NE(drawRow(1), dark);
    EXPECT_THAT(drawRow(1), ElementsAreArray({background(1), highlight(1), frame(1), icon(1),
                                              text(1, 0, themeColor(34)), text(1, 1, GetSysColor(COLOR_HIGHLIGHT))}));
}

TEST_F(ThemedList, GivesTheColorsOfTheContextBack) {
    list_.SetItemState(1, kBoth, kBoth);
    ui::RecordingDevice device;
    CDC dc(device);
    dc.SetTextColor(RGB(1, 2, 3));
    dc.SetBkColor(RGB(4, 5, 6));

    list_.dispatchPaint(dc);

    EXPECT_EQ(dc.GetTextColor(), RGB(1, 2, 3));
    EXPECT_EQ(dc.GetBkColor(), RGB(4, 5, 6));
}

TEST_F(ThemedList, ThatIsMadeWithItsWindowHasSuchAHeaderToo) {
    ThemeListCtrl other;
    other.Create({.parent = &parent_, .id = 2, .style = LVS_REPORT, .rect = {0, 0, 200, 200}});

    EXPECT_EQ(other.GetStyle() & 0x400U, 0x400U);
    EXPECT_NE(dynamic_cast<ThemeHeaderCtrl*>(other.GetHeaderCtrl()), nullptr);
    EXPECT_TRUE(other.GetHeaderCtrl()->IsWindow());
}

TEST_F(ThemedList, GoesWithItsWindow) {
    {
        ThemeListCtrl other;
        takeOver<CListCtrl>(other, {200, 200}, {}, LVS_REPORT);
        EXPECT_EQ(parent_.children().size(), 2U);
    }
    EXPECT_EQ(parent_.children().size(), 1U);
}

} // namespace
} // namespace quor::light
