#include "light/palette/row_sort.h"

#include "light/palette/name_keys.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstdint>
#include <numeric>

namespace quor::light {

namespace {

constexpr int iconColumn = 0;
constexpr int nameColumn = 1;

// Fewer rows are sorted by their texts: the keys would cost more than they save.
constexpr std::size_t fewestForKeys = 256;

// A row as numbers that stand in the order wanted.
struct KeyedRow {
    std::uint64_t key; // of the name
    std::uint32_t image;
    std::uint32_t place; // among the rows before the sort
};

std::vector<KeyedRow> keyed(const std::vector<SortRow>& rows, const RowOrder& order) {
    NameKeys keys;
    for (const SortRow& row : rows)
        keys.add(*row.name);
    keys.finish();
    const std::uint64_t nameFlip = order.ascending[nameColumn] ? 0 : ~std::uint64_t{0};
    constexpr std::uint32_t sign = 0x80000000;
    const std::uint32_t imageFlip = order.ascending[iconColumn] ? sign : ~sign;
    const std::uint32_t imageMask = order.column == iconColumn ? ~std::uint32_t{0} : 0;
    std::vector<KeyedRow> result;
    result.reserve(rows.size());
    for (const SortRow& row : rows)
        result.push_back({.key = keys.keyOf(*row.name) ^ nameFlip,
                          .image = (static_cast<std::uint32_t>(row.image) ^ imageFlip) & imageMask,
                          .place = static_cast<std::uint32_t>(result.size())});
    return result;
}

int compareNames(const ZrString& a, const ZrString& b, bool ascending) {
    return ascending ? a.compare(b) : b.compare(a);
}

// Sorts by a number of each item, one digit after the other from the last, those that are the same in all items left
// out. Items with the same number keep their order.
template <class Number>
void sortByNumber(std::vector<KeyedRow>& items, const Number& number) {
    constexpr unsigned digitBits = 11;
    constexpr std::uint64_t digits = 1U << digitBits;
    std::uint64_t varying = 0;
    for (const KeyedRow& item : items)
        varying |= number(item) ^ number(items.front());
    std::vector<KeyedRow> sorted(varying == 0 ? 0 : items.size());
    while (varying != 0) {
        const auto shift = static_cast<unsigned>(std::countr_zero(varying));
        const auto digitOf = [&](const KeyedRow& item) { return (number(item) >> shift) % digits; };
        std::array<std::uint32_t, digits> places{};
        for (const KeyedRow& item : items)
            ++places[digitOf(item)];
        std::exclusive_scan(places.begin(), places.end(), places.begin(), std::uint32_t{0});
        for (const KeyedRow& item : items)
            sorted[places[digitOf(item)]++] = item;
        items.swap(sorted);
        varying &= ~((digits - 1) << shift);
    }
}

// Rows whose keys are the same may have names that differ behind them.
void sortByRest(std::vector<SortRow>& rows, const std::vector<KeyedRow>& keys, const RowOrder& order) {
    const auto before = [&](const SortRow& a, const SortRow& b) { return precedes(a, b, order); };
    for (std::size_t first = 0, next = 0; first < rows.size(); first = next) {
        while (next < rows.size() && keys[next].key == keys[first].key && keys[next].image == keys[first].image)
            ++next;
        const auto begin = rows.begin() + static_cast<std::ptrdiff_t>(first);
        const auto end = rows.begin() + static_cast<std::ptrdiff_t>(next);
        if (!std::is_sorted(begin, end, before))
            std::stable_sort(begin, end, before);
    }
}

void sortByKeys(std::vector<SortRow>& rows, const RowOrder& order) {
    std::vector<KeyedRow> keys = keyed(rows, order);
    sortByNumber(keys, [](const KeyedRow& row) { return row.key; });
    sortByNumber(keys, [](const KeyedRow& row) { return std::uint64_t{row.image}; });
    std::vector<SortRow> sorted;
    sorted.reserve(rows.size());
    for (const KeyedRow& row : keys)
        sorted.push_back(rows[row.place]);
    sortByRest(sorted, keys, order);
    rows = std::move(sorted);
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
    if (rows.size() < fewestForKeys)
        std::ranges::stable_sort(rows, [&](const SortRow& a, const SortRow& b) { return precedes(a, b, order); });
    else
        sortByKeys(rows, order);
}

} // namespace quor::light
