// The rows of the light list and the name index behind them: which light a row stands for, and where a light's row is.
#pragma once

#include "sdk/db/object_id.h"
#include "sdk/sys/string.h"
#include "sdk/ui/list_control.h"

#include <vector>

class ZrDbLight;

namespace quor::light {

// By what the rows are sorted. There is one of it: a list that is made anew goes on where the last one was.
struct RowOrder {
    int column = 0;                     // 0 the icon, 1 the name
    bool ascending[2] = {false, false}; // one per column
};
extern RowOrder rowOrder;

// Column 0 of the list shows the icon only, column 1 the name. The index has one entry per name: of two lights with the
// same name both rows stand for the one that was entered last.
class LightRows {
public:
    explicit LightRows(CListCtrl& list);
    ~LightRows();

    // No rows, no names.
    void clear();
    // One row per light of the working database's model space, in drawing order; the rows are not sorted. False, and no
    // rows, when there is no such space.
    bool refresh();
    // Adds, renames, gives another icon to, or removes the row of one open light. A new row goes to its sorted place,
    // and so do those that were renamed since the rows were sorted last.
    void update(const ZrDbLight& light);
    // Sorts as a click on a column's heading does: another column ascending, the same the other way round.
    void sortByClick(int column);
    // Selects the rows of these lights, each id once, and no others; the mark goes to the last one selected.
    void select(const std::vector<ZrDbObjectId>& ids);
    // The light of a row by its name; null for a row that is not there or a name that has left the index.
    [[nodiscard]] ZrDbObjectId lightAt(int index) const;

private:
    struct State;
    CListCtrl& list_;
    std::unique_ptr<State> state_;
};

// Which image a type of light has: 10 the fourth (3), any other type t the one at t - 1.
[[nodiscard]] int imageOfType(int type);

} // namespace quor::light
