#include "light/palette/light_rows.h"

#include "light/palette/name_index.h"
#include "light/palette/row_sort.h"
#include "sdk/db/database.h"
#include "sdk/db/light.h"
#include "sdk/sys/ads.h"

#include <algorithm>
#include <optional>
#include <unordered_set>

namespace quor::light {

namespace {

constexpr int iconColumn = 0;
constexpr int nameColumn = 1;
constexpr int columnCount = 2;
constexpr unsigned noRow = CListCtrl::kNoRow;
// Where more than one row in so many stands out of order, sorting all of them costs less than moving those.
constexpr std::size_t rowsPerMove = 64;

struct ListedLights {
    std::vector<ZrDbObjectId> ids;
    std::vector<ZrString> names;
    std::vector<int> images;
};

void addLights(ZrDbBlockTableRecordIterator& lights, ListedLights& listed) {
    const bool editing = zwutads::isRefEditting();
    ZrDbLightSummary summary;
    for (; !lights.done(); lights.step()) {
        const ZrDbObjectId id = lights.entityId();
        if ((editing && !zwutads::isObjInWorkset(id)) || zrdbLightSummary(id, summary) != Quor::eOk)
            continue;
        listed.ids.push_back(id);
        listed.names.push_back(std::move(summary.name));
        listed.images.push_back(imageOfType(summary.type));
    }
}

// Those of the working database's model space; none without one.
std::optional<ListedLights> modelSpaceLights() {
    ZrDbDatabase* database = zrdbWorkingDatabase();
    ZrDbBlockTable* table = nullptr;
    if (database == nullptr || database->getBlockTable(table, ZrDb::kForRead) != Quor::eOk)
        return std::nullopt;
    ZrDbObjectId spaceId;
    const Quor::ErrorStatus found = table->getIdAt(L"*Model_Space", spaceId);
    table->close();
    if (found != Quor::eOk)
        return std::nullopt;
    const ZrDbObjectPointer<ZrDbBlockTableRecord> space(spaceId, ZrDb::kForRead);
    if (!space)
        return std::nullopt;
    ListedLights listed;
    const std::size_t count = space->entityCount(ZrDbLight::desc());
    listed.ids.reserve(count);
    listed.names.reserve(count);
    listed.images.reserve(count);
    addLights(*space->newIterator(ZrDbLight::desc()), listed);
    return listed;
}

} // namespace

RowOrder rowOrder;

int imageOfType(int type) {
    constexpr int webType = 10;
    constexpr int webImage = 3;
    return type == webType ? webImage : type - 1;
}

// The rows behind their interface. Rows are given by their ids.
struct LightRows::State {
    explicit State(CListCtrl& rows) : list(rows), names(rows) {}

    void clear();
    void append(ListedLights listed);
    void add(const ZrDbLight& light);
    void change(unsigned row, const ZrDbLight& light);
    void remove(unsigned row);
    void sortAll();

    CListCtrl& list;
    NameIndex names;

private:
    [[nodiscard]] SortRow sortRow(unsigned row) const {
        return {&list.textOf(row, nameColumn), list.imageOf(row), row};
    }
    [[nodiscard]] bool canPlace() const;
    void place(unsigned newRow);
    [[nodiscard]] int placeAmong(int sortedCount, const SortRow& row, int ownPlace) const;

    std::optional<RowOrder> sortedBy;     // none: as they were appended
    std::unordered_set<unsigned> changed; // rows, since they were sorted
};

void LightRows::State::clear() {
    list.DeleteAllItems();
    names.clear();
    sortedBy.reset();
    changed.clear();
}

void LightRows::State::append(ListedLights listed) {
    std::vector<std::vector<ZrString>> columns(columnCount);
    columns[nameColumn] = std::move(listed.names);
    list.SetRows(std::move(columns), std::move(listed.images));
    list.NumberItems();
    names.reserve(listed.ids.size());
    unsigned row = list.MapIndexToID(0);
    for (const ZrDbObjectId id : listed.ids) {
        names.addRow(row);
        names.enter(row, id);
        row = list.nextID(row);
    }
}

void LightRows::State::add(const ZrDbLight& light) {
    const int index = list.InsertItem(list.GetItemCount(), {}, imageOfType(static_cast<int>(light.lightType())));
    list.SetItemText(index, nameColumn, light.name());
    const unsigned row = list.MapIndexToID(index);
    if (canPlace())
        place(row);
    else
        sortAll();
    list.NumberItems();
    names.addRow(row);
    names.enter(row, light.objectId());
}

// The old name stands for nothing any more, also where other rows have it.
void LightRows::State::change(unsigned row, const ZrDbLight& light) {
    const int image = imageOfType(static_cast<int>(light.lightType()));
    const bool renamed = list.textOf(row, nameColumn) != light.name();
    if (!renamed && list.imageOf(row) == image)
        return;
    changed.insert(row);
    const int index = list.MapIDToIndex(row);
    list.SetItemImage(index, image);
    if (!renamed)
        return;
    names.enter(row, {});
    names.removeRow(row);
    list.SetItemText(index, nameColumn, light.name());
    names.addRow(row);
    names.enter(row, light.objectId());
}

void LightRows::State::remove(unsigned row) {
    names.enter(row, {});
    names.removeRow(row);
    changed.erase(row);
    list.DeleteItem(list.MapIDToIndex(row));
}

void LightRows::State::sortAll() {
    std::vector<SortRow> rows;
    rows.reserve(static_cast<std::size_t>(list.GetItemCount()));
    for (unsigned row = list.MapIndexToID(0); row != noRow; row = list.nextID(row))
        rows.push_back(sortRow(row));
    sortRows(rows, rowOrder);
    std::vector<unsigned> ids(rows.size());
    std::ranges::transform(rows, ids.begin(), &SortRow::row);
    list.ReorderItems(ids);
    if (rowOrder.column == iconColumn) // by name alone, equal ones keep their order
        names.rowsWereSorted();
    sortedBy = rowOrder;
    changed.clear();
}

// Whether all rows but a few stand in the order wanted.
bool LightRows::State::canPlace() const {
    return sortedBy && isSameOrder(*sortedBy, rowOrder) &&
           changed.size() * rowsPerMove <= static_cast<std::size_t>(list.GetItemCount());
}

// Takes the rows that were changed, and the new one at the end, out of the sorted ones and puts each back where a
// stable sort of all rows would have put it.
void LightRows::State::place(unsigned newRow) {
    struct Moving {
        SortRow row;
        int place; // rows before it: first where it stands, then among the sorted ones
    };
    std::vector<Moving> moving;
    for (const unsigned row : changed)
        moving.push_back({sortRow(row), list.MapIDToIndex(row)});
    std::ranges::sort(moving, {}, &Moving::place);
    moving.push_back({sortRow(newRow), list.GetItemCount() - 1});

    const int last = list.GetItemCount() - 1;
    for (int taken = 0; Moving & each : moving) {
        if (each.row.row != newRow)
            names.rowLeaves(each.row.row);
        list.MoveItem(each.place - taken, last);
        each.place -= taken++;
    }
    const int sortedCount = list.GetItemCount() - static_cast<int>(moving.size());
    for (Moving& each : moving)
        each.place = placeAmong(sortedCount, each.row, each.place);
    std::ranges::stable_sort(moving, [](const Moving& a, const Moving& b) { return precedes(a.row, b.row, rowOrder); });
    for (int placed = 0; const Moving& each : moving)
        list.MoveItem(list.MapIDToIndex(each.row.row), each.place + placed++);
    for (const unsigned row : changed)
        names.rowIsBack(row);
    changed.clear();
}

// Where a row belongs among the first rows of the list, which are sorted; before it stood `ownPlace` of them.
int LightRows::State::placeAmong(int sortedCount, const SortRow& row, int ownPlace) const {
    int begin = 0;
    int end = sortedCount;
    while (begin < end) {
        const int middle = begin + (end - begin) / 2;
        const SortRow other = sortRow(list.MapIndexToID(middle));
        const bool before = precedes(other, row, rowOrder) || (middle < ownPlace && !precedes(row, other, rowOrder));
        if (before)
            begin = middle + 1;
        else
            end = middle;
    }
    return begin;
}

LightRows::LightRows(CListCtrl& list) : list_(list), state_(std::make_unique<State>(list)) {}
LightRows::~LightRows() = default;

void LightRows::clear() { state_->clear(); }

bool LightRows::refresh() {
    state_->clear();
    std::optional<ListedLights> lights = modelSpaceLights();
    if (lights)
        state_->append(std::move(*lights));
    return lights.has_value();
}

void LightRows::update(const ZrDbLight& light) {
    const unsigned row = state_->names.firstRowOf(light.objectId());
    if (row == noRow && !light.isErased())
        state_->add(light);
    else if (row != noRow && light.isErased())
        state_->remove(row);
    else if (row != noRow)
        state_->change(row, light);
}

void LightRows::sortByClick(int column) {
    if (column < 0 || column >= columnCount)
        return;
    rowOrder.ascending[column] = column != rowOrder.column || !rowOrder.ascending[column];
    rowOrder.column = column;
    state_->sortAll();
}

void LightRows::select(const std::vector<ZrDbObjectId>& ids) {
    std::vector<ZrDbObjectId> wanted = ids;
    std::ranges::sort(wanted, {}, &ZrDbObjectId::entry);
    std::vector<unsigned> rows;
    for (auto first = wanted.begin(); first != wanted.end();) {
        const auto next = std::find_if(first, wanted.end(), [&](ZrDbObjectId id) { return id != *first; });
        state_->names.appendRowsOf(*first, static_cast<std::size_t>(next - first), rows);
        first = next;
    }
    if (!rows.empty() || list_.GetSelectedCount() > 0)
        list_.selectOnly(rows);
    int mark = -1;
    for (const unsigned row : rows)
        mark = std::max(mark, list_.MapIDToIndex(row));
    if (mark >= 0)
        list_.SetSelectionMark(mark);
}

ZrDbObjectId LightRows::lightAt(int index) const {
    const unsigned row = list_.MapIndexToID(index);
    return row == noRow ? ZrDbObjectId() : state_->names.lightOf(row);
}

} // namespace quor::light
