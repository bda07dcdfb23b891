#include "light/palette/row_sort.h"

#include "light/palette/name_keys.h"

#include <algorithm>
#include <cstdint>

namespace quor::light {

namespace {

constexpr int iconColumn = 0;
constexpr int nameColumn = 1;

// A row as numbers that stand in the order wanted.
struct KeyedRow {
    std::uint64_t key; // of the name
    int image;
    std::uint32_t place; // among the rows before the sort
};

std::vector<KeyedRow> keyed(const std::vector<SortRow>& rows, const RowOrder& order) {
    NameKeys keys;
    for (const SortRow& row : rows)
        keys.add(*row.name);
    keys.finish();
    const std::uint64_t nameFlip = order.ascending[nameColumn] ? 0 : ~std::uint64_t{0};
    const int imageFlip = order.ascending[iconColumn] ? 0 : ~0;
    const int imageMask = order.column == iconColumn ? ~0 : 0;
    std::vector<KeyedRow> result;
    result.reserve(rows.size());
    for (const SortRow& row : rows)
        result.push_back({.key = keys.keyOf(*row.name) ^ nameFlip,
                          .image = (row.image ^ imageFlip) & imageMask,
                          .place = static_cast<std::uint32_t>(result.size())});
    return result;
}

int compareNames(const ZrString& a, const ZrString& b, bool ascending) {
    return ascending ? a.compare(b) : b.compare(a);
}

} // namespace

bool isSameOrder(const RowOrder& a, const RowOrder& b) {
    return a.column == b.column && a.ascending[nameColumn] == b.ascending[nameColumn] &&
           (a.column != iconColumn || a.ascending[iconColumn] == b.ascending[iconColumn]);
}

bool precedes(const SortRow& a, const SortRow& b, const RowOrder& order) {
    if (order.column == iconColumn && a.image != b.image)
        return (a.image < b.image) == order.ascending[iconColumn];
    return compareNames(*a.name, *b.name, order.ascending[nameColumn]) < 0;
}

void sortRows(std::vector<SortRow>& rows, const RowOrder& order) {
    std::vector<KeyedRow> sorted = keyed(rows, order);
    std::ranges::sort(sorted, [&](const KeyedRow& a, const KeyedRow& b) {
        if (a.image != b.image)
            return a.image < b.image;
        if (a.key != b.key)
            return a.key < b.key;
        const int names = compareNames(*rows[a.place].name, *rows[b.place].name, order.ascending[nameColumn]);
        return names != 0 ? names < 0 : a.place < b.place;
    });
    std::vector<SortRow> result;
    result.reserve(rows.size());
    for (const KeyedRow& row : sorted)
        result.push_back(rows[row.place]);
    rows = std::move(result);
}

} // namespace quor::light
