// Where the rows and columns of a list stand, and scrolling.
#include "host/ui/list_rows.h"
#include "sdk/ui/dpi.h"

#include <algorithm>
#include <utility>

namespace {

// At 96 dots per inch.
constexpr int kHeaderHeight = 24;
constexpr int kPlainRowHeight = 16;
constexpr int kIconIndent = 4;

int headerHeight(const CListCtrl& list) {
    return (list.GetStyle() & LVS_REPORT) != 0 ? ZkUiGetCtrlDPISize(kHeaderHeight) : 0;
}

int widthOfColumns(const CHeaderCtrl& header) {
    int width = 0;
    for (int i = 0; i < header.GetItemCount(); ++i)
        width += header.GetItem(i)->width;
    return width;
}

} // namespace

void CListCtrl::layOutHeader() {
    const int height = headerHeight(*this);
    header_->ShowWindow(height > 0);
    header_->MoveWindow({-left_, 0, GetClientRect().right, height});
}

void CListCtrl::OnSize(int /*width*/, int /*height*/) {
    if (header_ == nullptr)
        return;
    layOutHeader();
    SetScrollLeft(left_);
    rowsChanged();
}

int CListCtrl::rowHeight() const {
    const int height = smallImages_ != nullptr ? smallImages_->GetImageSize().cy : ZkUiGetCtrlDPISize(kPlainRowHeight);
    return height + 1;
}

CRect CListCtrl::GetItemRect(int index, int part) const {
    if (part != LVIR_BOUNDS)
        return GetSubItemRect(index, 0, part);
    if (!rows_->hasIndex(index) || header_ == nullptr)
        return {};
    const int top = headerHeight(*this) + (index - top_) * rowHeight();
    return {-left_, top, widthOfColumns(*header_) - left_, top + rowHeight()};
}

CRect CListCtrl::GetSubItemRect(int index, int column, int part) const {
    if (!rows_->hasIndex(index) || header_ == nullptr || header_->GetItem(column) == nullptr)
        return {};
    const CRect row = GetItemRect(index, LVIR_BOUNDS);
    const CRect heading = header_->GetItemRect(column).Moved(-left_, 0);
    const CRect cell{heading.left, row.top, heading.right, row.bottom};
    const int imageWidth = smallImages_ != nullptr ? smallImages_->GetImageSize().cx : 0;
    const int iconLeft = column == 0 ? cell.left + ZkUiGetCtrlDPISize(kIconIndent) : cell.left;
    const int iconRight = column == 0 ? iconLeft + imageWidth : cell.left;
    if (part == LVIR_ICON)
        return {iconLeft, cell.top, iconRight, cell.bottom};
    if (part == LVIR_LABEL)
        return {std::min(iconRight, cell.right), cell.top, cell.right, cell.bottom};
    return cell;
}

int CListCtrl::HitTest(CPoint point) const {
    const int below = point.y - headerHeight(*this);
    if (below < 0 || !GetClientRect().PtInRect(point))
        return -1;
    const int index = top_ + below / rowHeight();
    const bool isHit =
        (extendedStyle_ & LVS_EX_FULLROWSELECT) != 0
            ? GetItemRect(index, LVIR_BOUNDS).PtInRect(point)
            : GetItemRect(index, LVIR_ICON).PtInRect(point) || GetItemRect(index, LVIR_LABEL).PtInRect(point);
    return isHit ? index : -1;
}

int CListCtrl::GetCountPerPage() const {
    return std::max(0, (GetClientRect().bottom - covered_.cy - headerHeight(*this)) / rowHeight());
}

// As far down as the last rows still fill the list.
int CListCtrl::lastTopIndex() const { return std::max(0, rows_->count() - std::max(1, GetCountPerPage())); }

void CListCtrl::SetTopIndex(int index) {
    const int top = std::clamp(index, 0, lastTopIndex());
    if (std::exchange(top_, top) != top)
        contentChanged();
}

void CListCtrl::SetScrollLeft(int pixels) {
    if (header_ == nullptr)
        return;
    const int farthest = std::max(0, widthOfColumns(*header_) - (GetClientRect().right - covered_.cx));
    const int left = std::clamp(pixels, 0, farthest);
    if (std::exchange(left_, left) == left)
        return;
    layOutHeader();
    contentChanged();
}

void CListCtrl::SetScrollBarSpace(const CSize& covered) {
    if (std::exchange(covered_, covered) == covered)
        return;
    SetScrollLeft(left_);
    rowsChanged();
}

bool CListCtrl::EnsureVisible(int index) {
    if (!rows_->hasIndex(index))
        return false;
    SetTopIndex(std::clamp(top_, index - std::max(1, GetCountPerPage()) + 1, index));
    return true;
}

// Rows may have gone, or more of them fit.
void CListCtrl::rowsChanged() {
    top_ = std::min(top_, lastTopIndex());
    contentChanged();
}
