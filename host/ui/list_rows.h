// What a list holds: rows with their texts, images, numbers and states, in an order. A row is named by its id; ids are
// small, stay with the row, and are used again when it is gone.
#pragma once

#include "host/ui/row_order.h"
#include "sdk/ui/list_control.h"

namespace quor::ui {

class ListRows {
public:
    using Id = RowOrder::Id;
    static constexpr Id kNone = RowOrder::kNone;

    [[nodiscard]] int count() const { return static_cast<int>(order_.size()); }
    [[nodiscard]] bool has(Id id) const { return order_.contains(id); }
    [[nodiscard]] bool hasIndex(int index) const { return index >= 0 && index < count(); }
    // kNone for a bad index; -1 for an id that is not there.
    [[nodiscard]] Id idAt(int index) const { return hasIndex(index) ? order_.at(static_cast<unsigned>(index)) : kNone; }
    [[nodiscard]] int indexOf(Id id) const { return has(id) ? static_cast<int>(order_.position(id)) : -1; }
    [[nodiscard]] Id next(Id id) const { return has(id) ? order_.next(id) : kNone; }

    // Rows. `index` is at most count(); the ids that are given are there.
    Id insert(int index, const ZrString& text, int image);
    void erase(Id id);
    void clear();
    // All rows anew; none is selected.
    void assign(std::vector<CListCtrl::Row> rows);
    void assign(std::vector<std::vector<ZrString>> columns, std::vector<int> images);
    void move(Id id, int to);
    void sort(const std::function<bool(Id before, Id after)>& less);
    // False, and nothing changed, when these are not the rows that are there.
    bool reorder(std::span<const Id> ids);

    // What a row holds; an empty text for an id or a column that is not there.
    [[nodiscard]] const ZrString& text(Id id, int column) const;
    void setText(Id id, int column, const ZrString& text);
    // The texts of this and the following columns go to the next one.
    void insertColumn(int column);
    [[nodiscard]] int image(Id id) const { return images_[id]; }
    void setImage(Id id, int image) { images_[id] = image; }
    // The index while rows are numbered. Setting one gives all others for good the number that they have.
    [[nodiscard]] std::intptr_t data(Id id) const;
    void setData(Id id, std::intptr_t data);
    void number();

    // Selection, by ids and by indexes.
    [[nodiscard]] bool isSelected(Id id) const { return has(id) && order_.isMarked(id); }
    void select(Id id, bool selected) { order_.mark(id, selected); }
    void selectRange(int first, int last, bool selected);
    void selectAll(bool selected) { order_.markRange(0, order_.size(), selected); }
    [[nodiscard]] int selectedCount() const { return static_cast<int>(order_.markedCount()); }
    // The first selected row at `index` or behind it, or -1.
    [[nodiscard]] int nextSelected(int index) const;

    // The row with the focus and the one from which Shift selects; kNone for none, and after it was erased.
    [[nodiscard]] Id focus() const { return focus_; }
    [[nodiscard]] Id mark() const { return mark_; }
    void setFocus(Id id) { focus_ = id; }
    void setMark(Id id) { mark_ = id; }

private:
    // By id; shorter than the ids that there are when the last rows have none.
    using Texts = std::vector<ZrString>;

    [[nodiscard]] Id freshId();
    void takeTexts(Id id, std::vector<ZrString>& texts, std::size_t rows);
    Texts& column(std::size_t index);

    RowOrder order_;
    std::vector<Id> unused_;
    std::vector<Texts> columns_;
    std::vector<int> images_;         // by id; as many as ids were ever given out
    std::vector<std::intptr_t> data_; // by id; empty while all are 0, or numbered
    bool numbered_ = false;
    Id focus_ = kNone;
    Id mark_ = kNone;
};

} // namespace quor::ui
