// Which light each row of the list stands for. A row stands for its name, the text of its column 1, and a name for one
// light at most; so rows with the same name all stand for the same light, or for none. The rows of a name are known in
// their order in the list. Every step costs the logarithm of the number of rows at most.
#pragma once

#include "light/palette/number_table.h"
#include "sdk/db/object_id.h"
#include "sdk/ui/list_control.h"

#include <memory>
#include <set>
#include <string_view>
#include <vector>

namespace quor::light {

// Rows are given by their ids.
class NameIndex {
public:
    // Reads texts and places of rows from the list.
    explicit NameIndex(const CListCtrl& list) : list_(list) {}

    void clear();
    // So many rows will be added.
    void reserve(std::size_t rows);

    // A row that has got its name.
    void addRow(unsigned row);
    // A row that is about to lose its name. The name stands for nothing any more when it was the last one.
    void removeRow(unsigned row);
    // The name of the row stands for this light from now on, which no name stood for; null for none.
    void enter(unsigned row, ZrDbObjectId light);

    [[nodiscard]] ZrDbObjectId lightOf(unsigned row) const;
    // The first row in the list whose name stands for the light, or kNoRow.
    [[nodiscard]] unsigned firstRowOf(ZrDbObjectId light);
    // Appends such rows, the first `count` ones in the order of the list.
    void appendRowsOf(ZrDbObjectId light, std::size_t count, std::vector<unsigned>& rows);

    // One row is about to move among those of its name; tell when it stands in its place.
    void rowLeaves(unsigned row);
    void rowIsBack(unsigned row);
    // Rows of the same name may have changed places with each other.
    void rowsWereSorted() { ++arrangement_; }

private:
    struct ByPlace {
        const CListCtrl* list;
        bool operator()(unsigned a, unsigned b) const { return list->MapIDToIndex(a) < list->MapIDToIndex(b); }
    };
    using RowsInOrder = std::set<unsigned, ByPlace>;
    // Put in order when somebody asks for it.
    struct Namesakes {
        RowsInOrder rows;
        unsigned arrangement;         // of the list, in which they were put in order
        std::vector<unsigned> others; // that came since
    };
    struct Name {
        ZrDbObjectId light;
        std::uint32_t hash = 0;
        unsigned row = 0;                     // the only one, or any of them
        std::unique_ptr<Namesakes> namesakes; // all rows, once there were two
    };

    [[nodiscard]] const ZrString& textOf(const Name& name) const { return list_.textOf(name.row, 1); }
    [[nodiscard]] unsigned nameOfLight(ZrDbObjectId light) const;
    [[nodiscard]] unsigned newName(Name name);
    void dropName(unsigned number);
    void dropLight(Name& name, unsigned number);
    [[nodiscard]] RowsInOrder& inOrder(Namesakes& namesakes) const;
    void putInOrder(Namesakes& namesakes) const;

    const CListCtrl& list_;
    std::vector<Name> names_;
    std::vector<unsigned> freeNames_; // numbers of names that have no rows
    std::vector<unsigned> nameOfRow_; // by the row's id
    NumberTable byText_;              // numbers of names
    NumberTable byLight_;             // of those that stand for one
    unsigned arrangement_ = 0;
};

} // namespace quor::light
