#include "sdk/ui/header_control.h"

#include "host/ui/theme.h"
#include "sdk/ui/dpi.h"
#include "sdk/ui/image_list.h"

#include <utility>

namespace {

constexpr int kTextIndent = 5; // at 96 dots per inch

void drawItem(CDC& dc, const CHeaderCtrl::Item& item, const CRect& rect, const CImageList* images) {
    const quor::ui::Theme theme;
    dc.FillSolidRect({rect.right - 1, rect.top, rect.right, rect.bottom}, theme.color(kThemeHeaderSeparator));
    CRect text = rect;
    text.left += ZkUiGetCtrlDPISize(kTextIndent);
    if (images != nullptr && (item.format & HDF_IMAGE) != 0) {
        const CSize size = images->GetImageSize();
        images->Draw(dc, item.image, {text.left, rect.top + (rect.Height() - size.cy) / 2}, ILD_TRANSPARENT);
        text.left += size.cx + ZkUiGetCtrlDPISize(kTextIndent);
    }
    dc.DrawText(item.text, text, DT_SINGLELINE | DT_VCENTER | DT_END_ELLIPSIS);
}

} // namespace

int CHeaderCtrl::InsertItem(int index, const Item& item) {
    if (index < 0 || index > GetItemCount() || item.width < 0)
        return -1;
    for (Item& other : items_)
        other.order += other.order >= index ? 1 : 0;
    items_.insert(items_.begin() + index, item)->order = index;
    itemsChanged();
    return index;
}

bool CHeaderCtrl::DeleteItem(int index) {
    const Item* const item = GetItem(index);
    if (item == nullptr)
        return false;
    const int order = item->order;
    items_.erase(items_.begin() + index);
    for (Item& other : items_)
        other.order -= other.order > order ? 1 : 0;
    itemsChanged();
    return true;
}

const CHeaderCtrl::Item* CHeaderCtrl::GetItem(int index) const {
    return index >= 0 && index < GetItemCount() ? &items_[static_cast<std::size_t>(index)] : nullptr;
}

bool CHeaderCtrl::SetItem(int index, const Item& item) {
    const Item* const before = GetItem(index);
    if (before == nullptr || item.width < 0 || item.order < 0 || item.order >= GetItemCount())
        return false;
    const int from = before->order;
    for (Item& other : items_) {
        other.order -= other.order > from ? 1 : 0;
        other.order += other.order >= item.order ? 1 : 0;
    }
    items_[static_cast<std::size_t>(index)] = item;
    itemsChanged();
    return true;
}

// The rows below stand under their headings.
void CHeaderCtrl::itemsChanged() {
    contentChanged();
    if (GetParent() != nullptr)
        GetParent()->Invalidate();
}

CRect CHeaderCtrl::GetItemRect(int index) const {
    const Item* const item = GetItem(index);
    if (item == nullptr)
        return {};
    int left = 0;
    for (const Item& other : items_)
        left += other.order < item->order ? other.width : 0;
    return {left, 0, left + item->width, GetClientRect().bottom};
}

int CHeaderCtrl::HitTest(CPoint point) const {
    int index = GetItemCount() - 1;
    while (index >= 0 && !GetItemRect(index).PtInRect(point))
        --index;
    return index;
}

void CHeaderCtrl::OnPaint(CDC& dc) {
    const quor::ui::Theme theme;
    dc.FillSolidRect(GetClientRect(), theme.color(kThemeHeaderBackground));
    dc.SetTextColor(theme.color(kThemeHeaderText));
    dc.SetBkMode(TRANSPARENT);
    dc.SelectStockObject(DEFAULT_GUI_FONT);
    for (int i = 0; i < GetItemCount(); ++i)
        drawItem(dc, *GetItem(i), GetItemRect(i), images_);
}

void CHeaderCtrl::OnLButtonDown(unsigned /*flags*/, CPoint point) {
    const int column = HitTest(point);
    if (column >= 0)
        notifyParent({.code = quor::ui::Notification::Code::ColumnClick, .column = column});
}

void CHeaderCtrl::takeContent(CWnd& other) {
    auto* const header = dynamic_cast<CHeaderCtrl*>(&other);
    if (header == nullptr)
        return;
    items_ = std::exchange(header->items_, {});
    images_ = std::exchange(header->images_, nullptr);
}
