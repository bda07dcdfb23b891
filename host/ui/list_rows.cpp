#include "host/ui/list_rows.h"

#include <algorithm>
#include <numeric>
#include <utility>

namespace quor::ui {

ListRows::Id ListRows::freshId() {
    if (unused_.empty()) {
        images_.push_back(-1);
        return static_cast<Id>(images_.size() - 1);
    }
    const Id id = unused_.back();
    unused_.pop_back();
    return id;
}

ListRows::Id ListRows::insert(int index, const ZrString& text, int image) {
    const Id id = freshId();
    images_[id] = image;
    if (!text.empty())
        setText(id, 0, text);
    order_.insert(static_cast<unsigned>(index), id);
    return id;
}

void ListRows::erase(Id id) {
    order_.erase(id);
    for (Texts& texts : columns_)
        if (id < texts.size())
            texts[id] = ZrString();
    if (id < data_.size())
        data_[id] = 0;
    if (focus_ == id)
        focus_ = kNone;
    if (mark_ == id)
        mark_ = kNone;
    unused_.push_back(id);
}

void ListRows::clear() {
    const bool numbered = numbered_;
    *this = ListRows();
    numbered_ = numbered;
}

void ListRows::assign(std::vector<CListCtrl::Row> rows) {
    unused_.clear();
    data_.clear();
    for (Texts& texts : columns_)
        texts.clear();
    images_.resize(rows.size());
    focus_ = mark_ = kNone;
    std::vector<Id> ids(rows.size());
    std::iota(ids.begin(), ids.end(), Id{0});
    for (const Id id : ids) {
        images_[id] = rows[id].image;
        takeTexts(id, rows[id].texts, rows.size());
    }
    order_.assign(ids);
}

void ListRows::assign(std::vector<std::vector<ZrString>> columns, std::vector<int> images) {
    assign({});
    images_ = std::move(images);
    columns_ = std::move(columns);
    for (Texts& texts : columns_)
        if (texts.size() > images_.size())
            texts.resize(images_.size());
    std::vector<Id> ids(images_.size());
    std::iota(ids.begin(), ids.end(), Id{0});
    order_.assign(ids);
}

// Gives back the memory of the row that was handed over while it is still near.
void ListRows::takeTexts(Id id, std::vector<ZrString>& texts, std::size_t rows) {
    for (std::size_t i = 0; i < texts.size(); ++i) {
        if (texts[i].empty())
            continue;
        Texts& here = column(i);
        here.reserve(rows);
        here.resize(id);
        here.push_back(std::move(texts[i]));
    }
    texts = {};
}

ListRows::Texts& ListRows::column(std::size_t index) {
    if (index >= columns_.size())
        columns_.resize(index + 1);
    return columns_[index];
}

void ListRows::move(Id id, int to) {
    const bool selected = order_.isMarked(id);
    order_.erase(id);
    order_.insert(static_cast<unsigned>(to), id, selected);
}

void ListRows::sort(const std::function<bool(Id before, Id after)>& less) {
    std::vector<Id> ids = order_.ids();
    std::stable_sort(ids.begin(), ids.end(), less);
    order_.reorder(ids);
}

bool ListRows::reorder(std::span<const Id> ids) {
    std::vector<bool> given(images_.size());
    for (const Id id : ids) {
        if (!has(id) || given[id])
            return false;
        given[id] = true;
    }
    if (ids.size() != order_.size())
        return false;
    order_.reorder(ids);
    return true;
}

const ZrString& ListRows::text(Id id, int column) const {
    static const ZrString none;
    if (column < 0 || static_cast<std::size_t>(column) >= columns_.size())
        return none;
    const Texts& texts = columns_[static_cast<std::size_t>(column)];
    return id < texts.size() ? texts[id] : none;
}

// The text may be that of another row.
void ListRows::setText(Id id, int column, const ZrString& text) {
    Texts& texts = this->column(static_cast<std::size_t>(column));
    if (id < texts.size()) {
        texts[id] = text;
    } else if (!text.empty()) {
        ZrString copy = text;
        texts.resize(id + 1);
        texts[id] = std::move(copy);
    }
}

void ListRows::insertColumn(int column) {
    if (static_cast<std::size_t>(column) < columns_.size())
        columns_.insert(columns_.begin() + column, Texts());
}

std::intptr_t ListRows::data(Id id) const {
    if (numbered_)
        return indexOf(id);
    return id < data_.size() ? data_[id] : 0;
}

void ListRows::setData(Id id, std::intptr_t data) {
    data_.resize(images_.size());
    if (std::exchange(numbered_, false)) {
        std::intptr_t index = 0;
        for (Id row = idAt(0); row != kNone; row = order_.next(row))
            data_[row] = index++;
    }
    data_[id] = data;
}

void ListRows::number() {
    numbered_ = true;
    data_.clear();
}

void ListRows::selectRange(int first, int last, bool selected) {
    const auto [from, to] = std::minmax(first, last);
    order_.markRange(static_cast<unsigned>(from), static_cast<unsigned>(to) + 1, selected);
}

int ListRows::nextSelected(int index) const {
    const std::size_t found = order_.nextMarked(static_cast<unsigned>(index));
    return found < order_.size() ? static_cast<int>(found) : -1;
}

} // namespace quor::ui
