// What a list says in words, its pictures by their names: for tables, and for people who do not see it.
#pragma once

#include "sdk/ui/list_control.h"

namespace quor::ui {

// The columns from the left.
[[nodiscard]] std::vector<int> columnsInOrder(const CHeaderCtrl& header);
// Whether the cells of a column show pictures.
[[nodiscard]] bool showsPictures(const CListCtrl& list, int column);
// The heading of a column; of pictures without one, that they tell the kind.
[[nodiscard]] ZrString headingText(const CListCtrl& list, int column);
// A cell: the name of its picture, then its text.
[[nodiscard]] ZrString cellText(const CListCtrl& list, int row, int column);
// All cells of a row that say something, from the left.
[[nodiscard]] ZrString rowText(const CListCtrl& list, int row);

} // namespace quor::ui
