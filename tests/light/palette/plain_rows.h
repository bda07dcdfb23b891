// The rows of the light list by their rules in the plainest form: a table of rows, a map from names to lights, and a
// stable sort of all rows whenever one is added.
#pragma once

#include "light/palette/light_rows.h"

#include <algorithm>
#include <map>

namespace quor::test {

class PlainRows {
public:
    struct Light {
        ZrDbObjectId id;
        ZrString name;
        int type = 0;
        bool erased = false;
    };
    struct Row {
        ZrString name;
        int image = -1;
        bool selected = false;
        bool marked = false;
    };

    light::RowOrder order;

    [[nodiscard]] const std::vector<Row>& rows() const { return rows_; }

    void clear() {
        rows_.clear();
        index_.clear();
    }

    void refresh(const std::vector<Light>& lights) {
        clear();
        for (const Light& light : lights)
            if (!light.erased)
                append(light);
    }

    void update(const Light& light) {
        const auto found = std::ranges::find_if(rows_, [&](const Row& row) { return lightOf(row) == light.id; });
        if (found == rows_.end()) {
            if (!light.erased) {
                append(light);
                sort();
            }
            return;
        }
        index_.erase(found->name);
        if (light.erased) {
            rows_.erase(found);
            return;
        }
        found->image = light::imageOfType(light.type);
        found->name = light.name;
        index_[light.name] = light.id;
    }

    void sortByClick(int column) {
        order.ascending[column] = column != order.column || !order.ascending[column];
        order.column = column;
        sort();
    }

    void select(std::vector<ZrDbObjectId> ids) {
        for (Row& row : rows_) {
            const auto found = std::ranges::find(ids, lightOf(row));
            row.selected = found != ids.end();
            if (!row.selected)
                continue;
            ids.erase(found);
            for (Row& other : rows_)
                other.marked = &other == &row;
        }
    }

    [[nodiscard]] ZrDbObjectId lightOf(const Row& row) const {
        const auto entry = index_.find(row.name);
        return entry == index_.end() ? ZrDbObjectId() : entry->second;
    }

private:
    void append(const Light& light) {
        index_[light.name] = light.id;
        rows_.push_back({.name = light.name, .image = light::imageOfType(light.type)});
    }

    void sort() {
        std::ranges::stable_sort(rows_, [this](const Row& a, const Row& b) {
            if (order.column == 0 && a.image != b.image)
                return order.ascending[0] ? a.image < b.image : b.image < a.image;
            return order.ascending[1] ? a.name.compare(b.name) < 0 : b.name.compare(a.name) < 0;
        });
    }

    std::vector<Row> rows_;
    std::map<ZrString, ZrDbObjectId> index_;
};

} // namespace quor::test
