// Which rows of a list are selected, which one has the focus, and which is marked.
#include "host/ui/list_rows.h"

#include <algorithm>

bool CListCtrl::isSingleSelection() const { return (GetStyle() & LVS_SINGLESEL) != 0; }

bool CListCtrl::SetItemState(int index, unsigned state, unsigned mask) {
    const unsigned id = rows_->idAt(index);
    if (id == kNoRow)
        return false;
    if ((mask & LVIS_SELECTED) != 0)
        selectRow(id, (state & LVIS_SELECTED) != 0);
    if ((mask & state & LVIS_FOCUSED) != 0)
        rows_->setFocus(id);
    else if ((mask & LVIS_FOCUSED) != 0 && rows_->focus() == id)
        rows_->setFocus(kNoRow);
    contentChanged();
    return true;
}

unsigned CListCtrl::GetItemState(int index, unsigned mask) const {
    const unsigned id = rows_->idAt(index);
    if (id == kNoRow)
        return 0;
    const unsigned state = (rows_->isSelected(id) ? LVIS_SELECTED : 0U) | (rows_->focus() == id ? LVIS_FOCUSED : 0U);
    return state & mask;
}

int CListCtrl::GetSelectedCount() const { return rows_->selectedCount(); }

int CListCtrl::GetNextItem(int after, unsigned flags) const {
    const int from = std::max(after, -1) + 1;
    if (from >= rows_->count())
        return -1;
    if ((flags & LVNI_FOCUSED) == 0)
        return (flags & LVNI_SELECTED) == 0 ? from : rows_->nextSelected(from);
    const unsigned focus = rows_->focus();
    const int index = rows_->indexOf(focus);
    return index >= from && ((flags & LVNI_SELECTED) == 0 || rows_->isSelected(focus)) ? index : -1;
}

void CListCtrl::SelectAll(bool select) {
    if (select && isSingleSelection())
        return;
    rows_->selectAll(select);
    contentChanged();
}

bool CListCtrl::isSelected(unsigned id) const { return rows_->isSelected(id); }

bool CListCtrl::select(unsigned id, bool select) {
    if (!rows_->has(id))
        return false;
    selectRow(id, select);
    contentChanged();
    return true;
}

void CListCtrl::selectOnly(const std::vector<unsigned>& ids) {
    rows_->selectAll(false);
    for (const unsigned id : ids)
        if (rows_->has(id))
            selectRow(id, true);
    contentChanged();
}

void CListCtrl::selectRow(unsigned id, bool select) {
    if (select && isSingleSelection())
        rows_->selectAll(false);
    rows_->select(id, select);
}

int CListCtrl::GetSelectionMark() const { return rows_->indexOf(rows_->mark()); }

int CListCtrl::SetSelectionMark(int index) {
    const int before = GetSelectionMark();
    rows_->setMark(rows_->idAt(index));
    return before;
}

// What a click or a key with these flags does to the selection.
void CListCtrl::chooseRow(int index, unsigned flags) {
    const unsigned id = rows_->idAt(index);
    const bool adds = (flags & MK_CONTROL) != 0 && !isSingleSelection();
    const bool extends = (flags & MK_SHIFT) != 0 && !isSingleSelection();
    const bool wasSelected = rows_->isSelected(id);
    if (extends && GetSelectionMark() < 0)
        rows_->setMark(rows_->idAt(std::max(rows_->indexOf(rows_->focus()), 0)));
    if (!adds)
        rows_->selectAll(false);
    if (extends)
        rows_->selectRange(GetSelectionMark(), index, true);
    else
        rows_->select(id, !adds || !wasSelected);
    if (!extends)
        rows_->setMark(id);
    rows_->setFocus(id);
    contentChanged();
}
