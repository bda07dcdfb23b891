// A list with two columns and ten rows in a window that writes down what the list tells it.
#pragma once

#include "host/ui/input.h"
#include "sdk/ui/list_control.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace quor::ui {

// Notifications as text: the control's number, what it tells, and of which row or column.
class ListParent : public CWnd {
public:
    std::vector<std::string> told;
    std::intptr_t answer = 0;

protected:
    std::intptr_t OnNotify(unsigned id, const Notification& notification) override {
        static constexpr const char* names[] = {"click",    "right click",  "double click", "begin edit",
                                                "end edit", "column click", "marquee"};
        const int which =
            notification.code == Notification::Code::ColumnClick ? notification.column : notification.index;
        told.push_back(std::to_string(id) + ": " + names[static_cast<int>(notification.code)] + " " +
                       std::to_string(which));
        return answer;
    }
};

// 200 by 124 pixels: the header of 24, four rows of 22 and part of a fifth. Column 0 has images of 21 pixels.
class ListFixture : public testing::Test {
protected:
    static constexpr unsigned kId = 7504;
    static constexpr int kFirstRow = 24;
    static constexpr int kRowHeight = 22;

    explicit ListFixture(unsigned style = LVS_REPORT) {
        parent.Create({.style = WS_VISIBLE, .rect = {0, 0, 300, 300}});
        list.Create({.parent = &parent, .id = kId, .style = style | WS_VISIBLE, .rect = {10, 20, 210, 144}});
        images.Create(21, 21, ILC_COLOR8 | ILC_MASK, 0, 2);
        list.SetImageList(&images, LVSIL_SMALL);
        list.SetExtendedStyle(LVS_EX_FULLROWSELECT);
        list.InsertColumn(0, L"", HDF_LEFT, 50);
        list.InsertColumn(1, L"Name", HDF_LEFT, 120);
        list.SetRows(rowsNamed({L"a", L"b", L"c", L"d", L"e", L"f", L"g", L"h", L"i", L"j"}));
    }

    static std::vector<CListCtrl::Row> rowsNamed(const std::vector<ZrString>& names) {
        std::vector<CListCtrl::Row> rows;
        rows.reserve(names.size());
        for (const ZrString& name : names)
            rows.push_back({.texts = {L"", name}, .image = -1});
        return rows;
    }

    // The names of all rows, one behind the other.
    [[nodiscard]] ZrString names() const {
        ZrString result;
        for (int i = 0; i < list.GetItemCount(); ++i)
            result += list.GetItemText(i, 1);
        return result;
    }
    [[nodiscard]] std::vector<int> selected() const {
        std::vector<int> result;
        for (int i = list.GetNextItem(-1, LVNI_SELECTED); i >= 0; i = list.GetNextItem(i, LVNI_SELECTED))
            result.push_back(i);
        return result;
    }
    [[nodiscard]] int focus() const { return list.GetNextItem(-1, LVNI_FOCUSED); }

    [[nodiscard]] CPoint at(int row) const {
        return {60, kFirstRow + (row - list.GetTopIndex()) * kRowHeight + kRowHeight / 2};
    }
    void clickRow(int row, unsigned flags = 0) { click(list, at(row), flags); }
    void clickBeside(unsigned flags = 0) { click(list, {190, 40}, flags); }

    ListParent parent;
    CImageList images;
    CListCtrl list;
};

} // namespace quor::ui
