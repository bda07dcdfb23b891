#include "light/palette/theme_list_ctrl.h"

#include "light/palette/theme_color.h"
#include "sdk/ui/dpi.h"

using quor::light::themeColor;

namespace {

constexpr int iconColumn = 0;
constexpr int selectionColumn = 1;
constexpr int indentedColumn = 2;

// Keeps the colours of a context and sets them again.
class KeptColors {
public:
    explicit KeptColors(CDC& dc) : dc_(dc), text_(dc.GetTextColor()), background_(dc.GetBkColor()) {}
    ~KeptColors() {
        dc_.SetTextColor(text_);
        dc_.SetBkColor(background_);
    }
    KeptColors(const KeptColors&) = delete;
    KeptColors& operator=(const KeptColors&) = delete;

private:
    CDC& dc_;
    COLORREF text_;
    COLORREF background_;
};

} // namespace

void ThemeListCtrl::PreSubclassWindow() {
    CListCtrl::PreSubclassWindow();
    ModifyStyle(0, LVS_OWNERDRAWFIXED);
    SubclassHeader(heading_);
}

void ThemeListCtrl::DrawItem(const quor::ui::DrawItem& item) {
    const KeptColors kept(item.dc);
    const COLORREF background = themeColor(kThemeListBackground);
    item.dc.FillSolidRect(item.rect, background);

    // With several rows selected the first one shows neither that it is selected nor that it has the focus.
    const bool isPlain = item.index == 0 && GetSelectedCount() > 1;
    const bool isSelected = item.selected && !isPlain;
    const COLORREF behindSelected = isSelected ? selectionColor() : background;
    const CRect label = GetSubItemRect(item.index, selectionColumn, LVIR_LABEL);
    if (isSelected)
        item.dc.FillSolidRect(label, behindSelected);
    // Only the row that has the focus is framed, as everywhere: however many are selected, and the first row only while
    // there are no others.
    if (item.focused && !isPlain)
        item.dc.DrawFocusRect(label);

    for (int column = 0; column < heading_.GetItemCount(); ++column) {
        if (column == iconColumn)
            drawIcon(item.dc, item.index);
        drawText(item.dc, item.index, column, column == selectionColumn ? behindSelected : background);
    }
}

COLORREF ThemeListCtrl::selectionColor() const {
    return hasFocus() ? GetSysColor(COLOR_HIGHLIGHT) : themeColor(kThemeUnfocusedSelection);
}

void ThemeListCtrl::drawIcon(CDC& dc, int row) const {
    if (const CImageList* const images = GetImageList(LVSIL_SMALL))
        images->Draw(dc, GetItemImage(row), GetItemRect(row, LVIR_ICON).TopLeft(), ILD_NORMAL);
}

void ThemeListCtrl::drawText(CDC& dc, int row, int column, COLORREF behind) const {
    CRect place = GetSubItemRect(row, column, LVIR_LABEL);
    if (column == indentedColumn)
        place.left += ZkUiGetCtrlDPISize(20);
    place.left += ZkUiGetCtrlDPISize(3);
    dc.SetTextColor(themeColor(kThemeListText));
    dc.SetBkColor(behind);
    dc.DrawText(GetItemText(row, column), place, DT_SINGLELINE | DT_VCENTER | DT_END_ELLIPSIS);
}
