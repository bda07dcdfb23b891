#include "host/ui/row_order.h"

#include <algorithm>

namespace quor::ui {

void RowOrder::assign(std::span<const Id> ids) { build(ids, {}); }

void RowOrder::reorder(std::span<const Id> ids) {
    std::vector<bool> marks(leafOf_.size());
    for (std::size_t at = nextMarked(0); at < size_; at = nextMarked(at + 1))
        marks[this->at(at)] = true;
    build(ids, marks);
}

void RowOrder::insert(std::size_t position, Id id, bool marked) {
    Place place = placeAt(position);
    if (blocks_[place.block].size == kCapacity) {
        split(place.block);
        place = placeAt(position);
    }
    if (id >= leafOf_.size())
        leafOf_.resize(id + 1, kNone);
    put(place.block, place.index, {id, 1, marked ? 1U : 0U});
    addUp(place.block, 1, marked ? 1 : 0);
}

void RowOrder::erase(Id id) {
    const Place place = placeOf(id);
    const bool marked = blocks_[place.block].marked[place.index] != 0;
    leafOf_[id] = kNone;
    take(place.block, place.index);
    addUp(place.block, -1, marked ? -1 : 0);
    refill(place.block);
    dropEmptyRoots();
}

RowOrder::Id RowOrder::at(std::size_t position) const {
    if (position >= size_)
        return kNone;
    const Place place = placeAt(position);
    return blocks_[place.block].refs[place.index];
}

std::size_t RowOrder::position(Id id) const {
    auto [block, index] = placeOf(id);
    std::size_t before = index;
    for (unsigned parent = blocks_[block].parent; parent != kNone; block = parent, parent = blocks_[block].parent) {
        index = indexOf(parent, block);
        for (unsigned i = 0; i < index; ++i)
            before += blocks_[parent].rows[i];
    }
    return before;
}

RowOrder::Id RowOrder::next(Id id) const {
    auto [block, index] = placeOf(id);
    while (index + 1 == blocks_[block].size) {
        const unsigned parent = blocks_[block].parent;
        if (parent == kNone)
            return kNone;
        index = indexOf(parent, block);
        block = parent;
    }
    for (++index; blocks_[block].height != 0; index = 0)
        block = blocks_[block].refs[index];
    lastIndex_ = index;
    return blocks_[block].refs[index];
}

std::vector<RowOrder::Id> RowOrder::ids() const {
    std::vector<Id> result;
    result.reserve(size_);
    for (Id id = at(0); id != kNone; id = next(id))
        result.push_back(id);
    return result;
}

bool RowOrder::isMarked(Id id) const {
    const Place place = placeOf(id);
    return blocks_[place.block].marked[place.index] != 0;
}

void RowOrder::mark(Id id, bool marked) {
    const Place place = placeOf(id);
    unsigned& mark = blocks_[place.block].marked[place.index];
    if ((mark != 0) == marked)
        return;
    mark = marked ? 1 : 0;
    addUp(place.block, 0, marked ? 1 : -1);
}

void RowOrder::markRange(std::size_t begin, std::size_t end, bool marked) {
    marked_ = markBelow(root_, begin, end, marked);
}

// Leaves out what is as it should be already; so taking the marks away costs in proportion to those that there are.
unsigned RowOrder::markBelow(unsigned number, std::size_t begin, std::size_t end, bool marked) {
    Block& block = blocks_[number];
    unsigned result = 0;
    std::size_t first = 0; // of the entry's rows
    for (unsigned i = 0; i < block.size; first += block.rows[i], ++i) {
        const std::size_t from = std::max(begin, first);
        const std::size_t to = std::min<std::size_t>(end, first + block.rows[i]);
        const unsigned wanted = marked ? block.rows[i] : 0;
        if (from < to && block.marked[i] != wanted)
            block.marked[i] = block.height == 0 ? wanted : markBelow(block.refs[i], from - first, to - first, marked);
        result += block.marked[i];
    }
    return result;
}

std::size_t RowOrder::nextMarked(std::size_t position) const {
    if (position >= size_)
        return size_;
    auto [block, index] = placeAt(position);
    std::size_t place = position; // of the entry's first row
    while (true) {
        const Block& here = blocks_[block];
        for (; index < here.size && here.marked[index] == 0; ++index)
            place += here.rows[index];
        if (index < here.size && here.height == 0)
            return place;
        if (index < here.size) {
            block = here.refs[index];
            index = 0;
        } else if (here.parent != kNone) {
            index = indexOf(here.parent, block) + 1;
            block = here.parent;
        } else {
            return size_;
        }
    }
}

// For the place behind the last row: behind the last entry of the last leaf.
RowOrder::Place RowOrder::placeAt(std::size_t position) const {
    unsigned block = root_;
    while (true) {
        const Block& here = blocks_[block];
        if (here.height == 0)
            return {block, static_cast<unsigned>(position)};
        unsigned index = 0;
        for (; index + 1 < here.size && position >= here.rows[index]; ++index)
            position -= here.rows[index];
        block = here.refs[index];
    }
}

// The next row asked for is often the same one, or the one behind it.
RowOrder::Place RowOrder::placeOf(Id id) const {
    const unsigned leaf = leafOf_[id];
    const Block& block = blocks_[leaf];
    if (lastIndex_ >= block.size || block.refs[lastIndex_] != id)
        lastIndex_ = indexOf(leaf, id);
    return {leaf, lastIndex_};
}

unsigned RowOrder::indexOf(unsigned block, unsigned ref) const {
    const auto first = blocks_[block].refs.begin();
    return static_cast<unsigned>(std::find(first, first + blocks_[block].size, ref) - first);
}

} // namespace quor::ui
