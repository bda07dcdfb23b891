// A list's columns and rows. How it looks, what is selected and what a person does stand in sources of their own.
#include "sdk/ui/list_control.h"

#include "host/ui/list_rows.h"
#include "sdk/ui/theme.h"

#include <algorithm>
#include <utility>

using quor::ui::ListRows;

CListCtrl::CListCtrl()
    : rows_(std::make_unique<ListRows>()), backgroundColor_(GetSysColor(COLOR_WINDOW)),
      textColor_(GetSysColor(COLOR_WINDOWTEXT)) {}

CListCtrl::~CListCtrl() = default;

bool CListCtrl::OnCreate() {
    if (header_ == nullptr) {
        ownHeader_ = std::make_unique<CHeaderCtrl>();
        header_ = ownHeader_.get();
    }
    header_->Create({.parent = this, .style = WS_VISIBLE});
    layOutHeader();
    return true;
}

void CListCtrl::takeContent(CWnd& other) {
    auto* const list = dynamic_cast<CListCtrl*>(&other);
    if (list == nullptr) {
        CListCtrl::OnCreate();
        return;
    }
    ownHeader_ = std::move(list->ownHeader_);
    header_ = std::exchange(list->header_, nullptr);
    rows_ = std::exchange(list->rows_, std::make_unique<ListRows>());
    smallImages_ = std::exchange(list->smallImages_, nullptr);
    extendedStyle_ = list->extendedStyle_;
    backgroundColor_ = list->backgroundColor_;
    textColor_ = list->textColor_;
    top_ = std::exchange(list->top_, 0);
    left_ = std::exchange(list->left_, 0);
    covered_ = std::exchange(list->covered_, {});
    edited_ = std::exchange(list->edited_, kNoRow);
}

// Before the list has a window, the other object becomes its header when it is made.
void CListCtrl::SubclassHeader(CHeaderCtrl& header) {
    if (&header == header_ || (header_ != nullptr && header_->IsWindow() && !header.SubclassWindow(*header_)))
        return;
    header_ = &header;
    ownHeader_.reset();
}

int CListCtrl::InsertColumn(int index, const ZrString& title, int format, int width) {
    if (header_ == nullptr)
        return -1;
    const int inserted = header_->InsertItem(index, {.text = title, .width = width, .format = format});
    if (inserted >= 0)
        rows_->insertColumn(inserted);
    return inserted;
}

bool CListCtrl::SetColumnWidth(int column, int width) {
    const CHeaderCtrl::Item* const item = header_ == nullptr ? nullptr : header_->GetItem(column);
    if (item == nullptr)
        return false;
    CHeaderCtrl::Item changed = *item;
    changed.width = width;
    return header_->SetItem(column, changed);
}

int CListCtrl::GetColumnWidth(int column) const {
    const CHeaderCtrl::Item* const item = header_ == nullptr ? nullptr : header_->GetItem(column);
    return item == nullptr ? 0 : item->width;
}

int CListCtrl::GetItemCount() const { return rows_->count(); }

int CListCtrl::InsertItem(int index, const ZrString& text, int image) {
    if (index < 0)
        return -1;
    const int place = std::min(index, rows_->count());
    rows_->insert(place, text, image);
    contentChanged();
    return place;
}

bool CListCtrl::DeleteItem(int index) {
    const unsigned id = rows_->idAt(index);
    if (id == kNoRow)
        return false;
    if (id == edited_)
        edited_ = kNoRow;
    rows_->erase(id);
    rowsChanged();
    return true;
}

bool CListCtrl::DeleteAllItems() {
    edited_ = kNoRow;
    rows_->clear();
    rowsChanged();
    return true;
}

void CListCtrl::SetRows(std::vector<Row> rows) {
    edited_ = kNoRow;
    rows_->assign(std::move(rows));
    rowsChanged();
}

void CListCtrl::SetRows(std::vector<std::vector<ZrString>> columns, std::vector<int> images) {
    edited_ = kNoRow;
    rows_->assign(std::move(columns), std::move(images));
    rowsChanged();
}

bool CListCtrl::MoveItem(int from, int to) {
    if (!rows_->hasIndex(from) || !rows_->hasIndex(to))
        return false;
    rows_->move(rows_->idAt(from), to);
    contentChanged();
    return true;
}

bool CListCtrl::SetItemText(int index, int column, const ZrString& text) {
    const int columns = header_ == nullptr ? 0 : header_->GetItemCount();
    if (!rows_->hasIndex(index) || column < 0 || column >= std::max(columns, 1))
        return false;
    rows_->setText(rows_->idAt(index), column, text);
    contentChanged();
    return true;
}

const ZrString& CListCtrl::GetItemText(int index, int column) const { return textOf(rows_->idAt(index), column); }

bool CListCtrl::SetItemImage(int index, int image) {
    if (!rows_->hasIndex(index))
        return false;
    rows_->setImage(rows_->idAt(index), image);
    contentChanged();
    return true;
}

int CListCtrl::GetItemImage(int index) const { return imageOf(rows_->idAt(index)); }

bool CListCtrl::SetItemData(int index, std::intptr_t data) {
    if (!rows_->hasIndex(index))
        return false;
    rows_->setData(rows_->idAt(index), data);
    return true;
}

std::intptr_t CListCtrl::GetItemData(int index) const {
    return rows_->hasIndex(index) ? rows_->data(rows_->idAt(index)) : 0;
}

void CListCtrl::NumberItems() { rows_->number(); }

unsigned CListCtrl::MapIndexToID(int index) const { return rows_->idAt(index); }

int CListCtrl::MapIDToIndex(unsigned id) const { return rows_->indexOf(id); }

const ZrString& CListCtrl::textOf(unsigned id, int column) const { return rows_->text(id, column); }

int CListCtrl::imageOf(unsigned id) const { return rows_->has(id) ? rows_->image(id) : -1; }

unsigned CListCtrl::nextID(unsigned id) const { return rows_->next(id); }

void CListCtrl::SortItems(const std::function<bool(unsigned before, unsigned after)>& less) {
    rows_->sort(less);
    contentChanged();
}

bool CListCtrl::ReorderItems(const std::vector<unsigned>& ids) {
    if (!rows_->reorder(ids))
        return false;
    contentChanged();
    return true;
}

CImageList* CListCtrl::SetImageList(CImageList* images, int kind) {
    if (kind != LVSIL_SMALL)
        return nullptr;
    CImageList* const before = std::exchange(smallImages_, images);
    rowsChanged();
    return before;
}

CImageList* CListCtrl::GetImageList(int kind) const { return kind == LVSIL_SMALL ? smallImages_ : nullptr; }

std::intptr_t CListCtrl::OnNotify(unsigned id, const quor::ui::Notification& notification) {
    const bool isOfHeader = header_ != nullptr && id == header_->GetDlgCtrlID();
    return isOfHeader ? notifyParent(notification) : 0;
}
