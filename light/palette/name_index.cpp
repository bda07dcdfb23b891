#include "light/palette/name_index.h"

#include <algorithm>
#include <functional>
#include <utility>

namespace quor::light {

namespace {

constexpr unsigned none = NumberTable::kNone;

// All bits of a hash have their part in the lower half of the answer.
std::uint32_t mixed(std::size_t hash) {
    constexpr std::uint64_t oddConstant = 0x9E3779B97F4A7C15;
    return static_cast<std::uint32_t>((hash * oddConstant) >> 32);
}

std::uint32_t hashOf(std::wstring_view text) { return mixed(std::hash<std::wstring_view>()(text)); }
std::uint32_t hashOf(ZrDbObjectId light) { return mixed(std::hash<ZrDbObjectId>()(light)); }

} // namespace

void NameIndex::clear() {
    names_.clear();
    freeNames_.clear();
    nameOfRow_.clear();
    byText_.clear();
    byLight_.clear();
}

void NameIndex::reserve(std::size_t rows) {
    names_.reserve(names_.size() + rows);
    nameOfRow_.reserve(nameOfRow_.size() + rows);
    byText_.reserve(names_.size() + rows);
    byLight_.reserve(names_.size() + rows);
}

void NameIndex::addRow(unsigned row) {
    if (row >= nameOfRow_.size())
        nameOfRow_.resize(row + std::size_t{1}, none);
    const ZrString& text = list_.textOf(row, 1);
    const std::uint32_t hash = hashOf(text);
    unsigned number = byText_.find(hash, [&](unsigned other) { return textOf(names_[other]) == text; });
    if (number == none) {
        number = newName({.light = {}, .hash = hash, .row = row, .namesakes = nullptr});
    } else {
        Name& name = names_[number];
        if (name.namesakes == nullptr)
            name.namesakes = std::make_unique<Namesakes>(
                Namesakes{.rows = RowsInOrder({name.row}, ByPlace{&list_}), .arrangement = arrangement_, .others = {}});
        name.namesakes->others.push_back(row);
    }
    nameOfRow_[row] = number;
}

void NameIndex::removeRow(unsigned row) {
    const unsigned number = nameOfRow_[row];
    Name& name = names_[number];
    if (name.namesakes == nullptr)
        return dropName(number);
    RowsInOrder& rows = inOrder(*name.namesakes);
    if (rows.size() == 1)
        return dropName(number);
    rows.erase(row);
    name.row = *rows.begin();
}

void NameIndex::enter(unsigned row, ZrDbObjectId light) {
    const unsigned number = nameOfRow_[row];
    if (names_[number].light == light)
        return;
    dropLight(names_[number], number);
    if (light.isNull())
        return;
    names_[number].light = light;
    byLight_.insert(hashOf(light), number);
}

ZrDbObjectId NameIndex::lightOf(unsigned row) const { return names_[nameOfRow_[row]].light; }

unsigned NameIndex::firstRowOf(ZrDbObjectId light) {
    const unsigned number = nameOfLight(light);
    if (number == none)
        return CListCtrl::kNoRow;
    const Name& name = names_[number];
    return name.namesakes == nullptr ? name.row : *inOrder(*name.namesakes).begin();
}

void NameIndex::appendRowsOf(ZrDbObjectId light, std::size_t count, std::vector<unsigned>& rows) {
    const unsigned number = nameOfLight(light);
    if (number == none || count == 0)
        return;
    const Name& name = names_[number];
    if (name.namesakes == nullptr)
        return rows.push_back(name.row);
    const RowsInOrder& all = inOrder(*name.namesakes);
    std::copy_n(all.begin(), std::min(count, all.size()), std::back_inserter(rows));
}

void NameIndex::rowLeaves(unsigned row) {
    if (const Name& name = names_[nameOfRow_[row]]; name.namesakes != nullptr)
        inOrder(*name.namesakes).erase(row);
}

void NameIndex::rowIsBack(unsigned row) {
    if (const Name& name = names_[nameOfRow_[row]]; name.namesakes != nullptr)
        inOrder(*name.namesakes).insert(row);
}

unsigned NameIndex::nameOfLight(ZrDbObjectId light) const {
    return byLight_.find(hashOf(light), [&](unsigned number) { return names_[number].light == light; });
}

unsigned NameIndex::newName(Name name) {
    const unsigned number = freeNames_.empty() ? static_cast<unsigned>(names_.size()) : freeNames_.back();
    if (freeNames_.empty())
        names_.emplace_back();
    else
        freeNames_.pop_back();
    names_[number] = std::move(name);
    byText_.insert(names_[number].hash, number);
    return number;
}

void NameIndex::dropName(unsigned number) {
    Name& name = names_[number];
    dropLight(name, number);
    byText_.erase(name.hash, number);
    name.namesakes = nullptr;
    freeNames_.push_back(number);
}

void NameIndex::dropLight(Name& name, unsigned number) {
    if (name.light.isNull())
        return;
    byLight_.erase(hashOf(name.light), number);
    name.light = {};
}

NameIndex::RowsInOrder& NameIndex::inOrder(Namesakes& namesakes) const {
    if (namesakes.arrangement != arrangement_ || namesakes.others.size() > namesakes.rows.size())
        putInOrder(namesakes);
    namesakes.rows.insert(namesakes.others.begin(), namesakes.others.end());
    namesakes.others.clear();
    return namesakes.rows;
}

// All at once: each row's place is asked for as seldom as can be.
void NameIndex::putInOrder(Namesakes& namesakes) const {
    std::vector<std::pair<int, unsigned>> places;
    places.reserve(namesakes.rows.size() + namesakes.others.size());
    for (const unsigned row : namesakes.rows)
        places.emplace_back(list_.MapIDToIndex(row), row);
    for (const unsigned row : namesakes.others)
        places.emplace_back(list_.MapIDToIndex(row), row);
    std::ranges::sort(places);
    namesakes.rows.clear();
    for (const auto& [place, row] : places)
        namesakes.rows.insert(namesakes.rows.end(), row);
    namesakes.others.clear();
    namesakes.arrangement = arrangement_;
}

} // namespace quor::light
