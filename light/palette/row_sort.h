// How rows of the light list are compared, and a sort for all of them at once.
#pragma once

#include "light/palette/light_rows.h"

#include <vector>

namespace quor::light {

// What of a row counts, and its id.
struct SortRow {
    const ZrString* name;
    int image;
    unsigned row;
};

// Whether both orders put any rows the same way.
[[nodiscard]] bool isSameOrder(const RowOrder& a, const RowOrder& b);

// Whether `a` has to stand before `b`.
[[nodiscard]] bool precedes(const SortRow& a, const SortRow& b, const RowOrder& order);

// Sorts; rows that compare equal keep their order. 100,000 names are sorted in few milliseconds.
void sortRows(std::vector<SortRow>& rows, const RowOrder& order);

} // namespace quor::light
