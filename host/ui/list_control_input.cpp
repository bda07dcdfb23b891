// What a person does to a list with mouse and keyboard, and the editing of labels.
#include "host/ui/list_rows.h"
#include "sdk/ui/window_ref.h"

#include <algorithm>
#include <utility>

using quor::ui::Notification;

namespace {

constexpr unsigned kModifiers = MK_SHIFT | MK_CONTROL;

} // namespace

void CListCtrl::tellClick(Notification::Code code, int index) { notifyParent({.code = code, .index = index}); }

void CListCtrl::OnLButtonDown(unsigned flags, CPoint point) {
    const unsigned held = flags & kModifiers;
    const bool hadFocus = hasFocus();
    SetFocus();
    const int index = HitTest(point);
    if (index < 0)
        return pressBesideRows(held);
    const unsigned id = rows_->idAt(index);
    const bool isSecondClick =
        hadFocus && held == 0 && rows_->focus() == id && rows_->isSelected(id) && GetSelectedCount() == 1;
    chooseRow(index, held);
    const quor::ui::WindowRef self(this);
    tellClick(Notification::Code::Click, index);
    if (isSecondClick && self)
        EditLabel(rows_->indexOf(id));
}

// Nothing is drawn for a marquee that may begin: it selects no row.
void CListCtrl::pressBesideRows(unsigned held) {
    const quor::ui::WindowRef self(this);
    const bool isRefused = notifyParent({.code = Notification::Code::BeginMarquee}) != 0;
    if (self && !isRefused && held == 0)
        SelectAll(false);
    if (self)
        tellClick(Notification::Code::Click, -1);
}

void CListCtrl::OnLButtonDblClk(unsigned /*flags*/, CPoint point) {
    SetFocus();
    tellClick(Notification::Code::DoubleClick, HitTest(point));
}

void CListCtrl::OnRButtonDown(unsigned /*flags*/, CPoint point) {
    SetFocus();
    const int index = HitTest(point);
    const unsigned id = rows_->idAt(index);
    if (id == kNoRow)
        return;
    if (!rows_->isSelected(id))
        return chooseRow(index, 0);
    rows_->setFocus(id);
    rows_->setMark(id);
    contentChanged();
}

void CListCtrl::OnRButtonUp(unsigned /*flags*/, CPoint point) {
    tellClick(Notification::Code::RightClick, HitTest(point));
}

void CListCtrl::OnMouseWheel(int lines) { SetTopIndex(top_ + lines); }

void CListCtrl::OnKeyDown(unsigned key, unsigned flags) {
    const unsigned held = flags & kModifiers;
    if (key == VK_F2)
        EditLabel(GetNextItem(-1, LVNI_FOCUSED));
    else if (key == 'A' && held == MK_CONTROL)
        chooseAll();
    else if (const int target = keyTarget(key); target >= 0)
        goTo(target, held, held == MK_CONTROL && key != VK_SPACE && !isSingleSelection());
}

void CListCtrl::chooseAll() {
    if (rows_->count() == 0 || isSingleSelection())
        return;
    SelectAll(true);
    tellClick(Notification::Code::Click, std::max(0, rows_->indexOf(rows_->focus())));
}

void CListCtrl::goTo(int index, unsigned held, bool movesFocusOnly) {
    if (movesFocusOnly)
        SetItemState(index, LVIS_FOCUSED, LVIS_FOCUSED);
    else
        chooseRow(index, held);
    EnsureVisible(index);
    if (!movesFocusOnly)
        tellClick(Notification::Code::Click, index);
}

// The row that a key leads to from the focused one; -1 for other keys and without rows.
int CListCtrl::keyTarget(unsigned key) const {
    const int last = rows_->count() - 1;
    const int focus = rows_->indexOf(rows_->focus());
    const int page = std::max(1, GetCountPerPage());
    switch (key) {
    case VK_SPACE:
        return focus;
    case VK_UP:
        return std::min(std::max(focus - 1, 0), last);
    case VK_DOWN:
        return std::min(focus + 1, last);
    case VK_PRIOR:
        return std::min(std::max(focus - page, 0), last);
    case VK_NEXT:
        return std::min(std::max(focus, 0) + page, last);
    case VK_HOME:
        return std::min(0, last);
    case VK_END:
        return last;
    default:
        return -1;
    }
}

// A selection looks different without the keyboard.
void CListCtrl::OnSetFocus(CWnd* /*before*/) { Invalidate(); }

void CListCtrl::OnKillFocus(CWnd* /*after*/) { Invalidate(); }

bool CListCtrl::EditLabel(int index) {
    const unsigned id = rows_->idAt(index);
    if (id == kNoRow || (GetStyle() & LVS_EDITLABELS) == 0)
        return false;
    const quor::ui::WindowRef self(this);
    const bool isRefused = notifyParent({.code = Notification::Code::BeginLabelEdit, .index = index}) != 0;
    if (isRefused || !self || !rows_->has(id))
        return false;
    edited_ = id;
    contentChanged();
    return true;
}

void CListCtrl::EndEditLabel(const std::optional<ZrString>& text) {
    const unsigned id = std::exchange(edited_, kNoRow);
    const int index = rows_->indexOf(id);
    if (index < 0)
        return;
    const quor::ui::WindowRef self(this);
    const bool isTaken =
        text && notifyParent({.code = Notification::Code::EndLabelEdit, .index = index, .text = *text}) == 0;
    if (!self)
        return;
    if (isTaken && rows_->has(id))
        rows_->setText(id, 0, *text);
    contentChanged();
}

int CListCtrl::editedItem() const { return rows_->indexOf(edited_); }
