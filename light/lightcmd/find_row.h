// Looking something up in one of the small tables of the prompts.
#pragma once

#include <algorithm>
#include <iterator>

namespace quor::light {

// The first row that matches, or null.
template <class Table, class Predicate>
[[nodiscard]] constexpr auto* findRow(const Table& table, Predicate matches) {
    const auto found = std::find_if(std::begin(table), std::end(table), matches);
    return found == std::end(table) ? nullptr : &*found;
}

} // namespace quor::light
