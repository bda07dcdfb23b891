// How a list draws itself: the rows that can be seen, however many there are.
#include "host/ui/list_rows.h"
#include "host/ui/theme.h"
#include "sdk/ui/dpi.h"

#include <utility>

namespace {

constexpr int kTextIndent = 3; // at 96 dots per inch

// A row of a list that does not draw its rows itself.
void drawRow(const CListCtrl& list, const quor::ui::DrawItem& item) {
    const bool isWholeRow = (list.GetExtendedStyle() & LVS_EX_FULLROWSELECT) != 0;
    const CRect highlight = isWholeRow ? item.rect : list.GetItemRect(item.index, LVIR_LABEL);
    const bool isLit = item.selected && list.hasFocus();
    if (item.selected)
        item.dc.FillSolidRect(highlight,
                              isLit ? GetSysColor(COLOR_HIGHLIGHT) : quor::ui::Theme().color(kThemeUnfocusedSelection));
    if (const CImageList* const images = list.GetImageList(LVSIL_SMALL))
        images->Draw(item.dc, list.GetItemImage(item.index), list.GetItemRect(item.index, LVIR_ICON).TopLeft(),
                     ILD_TRANSPARENT);
    item.dc.SetTextColor(isLit ? GetSysColor(COLOR_HIGHLIGHTTEXT) : list.GetTextColor());
    const int mode = item.dc.SetBkMode(TRANSPARENT);
    for (int column = 0; column < list.GetHeaderCtrl()->GetItemCount(); ++column) {
        CRect rect = list.GetSubItemRect(item.index, column, LVIR_LABEL);
        rect.left += ZkUiGetCtrlDPISize(kTextIndent);
        item.dc.DrawText(list.GetItemText(item.index, column), rect, DT_SINGLELINE | DT_VCENTER | DT_END_ELLIPSIS);
    }
    item.dc.SetBkMode(mode);
    if (item.focused && list.hasFocus())
        item.dc.DrawFocusRect(highlight);
}

} // namespace

void CListCtrl::SetBkColor(COLORREF color) {
    if (std::exchange(backgroundColor_, color) != color)
        Invalidate();
}

void CListCtrl::SetTextColor(COLORREF color) {
    if (std::exchange(textColor_, color) != color)
        Invalidate();
}

void CListCtrl::DrawItem(const quor::ui::DrawItem& item) { drawRow(*this, item); }

void CListCtrl::OnPaint(CDC& dc) {
    const int bottom = GetClientRect().bottom;
    dc.FillSolidRect(GetClientRect(), backgroundColor_);
    unsigned id = rows_->idAt(top_);
    for (int index = top_; id != kNoRow; ++index, id = rows_->next(id)) {
        const CRect rect = GetItemRect(index, LVIR_BOUNDS);
        if (rect.top >= bottom)
            break;
        const quor::ui::DrawItem item{
            .dc = dc, .rect = rect, .index = index, .selected = rows_->isSelected(id), .focused = rows_->focus() == id};
        if ((GetStyle() & LVS_OWNERDRAWFIXED) != 0)
            DrawItem(item);
        else
            drawRow(*this, item);
    }
}
