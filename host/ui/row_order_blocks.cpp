// How the blocks of a row order are made, split and merged.
#include "host/ui/row_order.h"

#include <algorithm>

namespace quor::ui {

// Blocks that hold the given number of entries, evenly filled; at least one.
template <class EntryAt>
std::vector<RowOrder::Entry> RowOrder::buildLevel(std::size_t entries, unsigned height, const EntryAt& entryAt) {
    const std::size_t count = std::max<std::size_t>(1, (entries + kFill - 1) / kFill);
    std::vector<Entry> result;
    result.reserve(count);
    blocks_.reserve(blocks_.size() + count);
    for (std::size_t i = 0; i < count; ++i) {
        const unsigned made = newBlock(height);
        for (std::size_t e = i * entries / count; e < (i + 1) * entries / count; ++e)
            append(blocks_[made], entryAt(e));
        adopt(made, 0, blocks_[made].size);
        result.push_back(total(made));
    }
    return result;
}

void RowOrder::build(std::span<const Id> ids, const std::vector<bool>& marks) {
    blocks_.clear();
    unused_.clear();
    leafOf_.assign(ids.empty() ? 0 : *std::max_element(ids.begin(), ids.end()) + 1, kNone);
    std::vector<Entry> level = buildLevel(ids.size(), 0, [&](std::size_t at) {
        return Entry{ids[at], 1, !marks.empty() && marks[ids[at]] ? 1U : 0U};
    });
    for (unsigned height = 1; level.size() > 1; ++height)
        level = buildLevel(level.size(), height, [&](std::size_t at) { return level[at]; });
    root_ = level.front().ref;
    size_ = level.front().rows;
    marked_ = level.front().marked;
}

void RowOrder::append(Block& block, const Entry& entry) {
    block.refs[block.size] = entry.ref;
    block.rows[block.size] = entry.rows;
    block.marked[block.size] = entry.marked;
    ++block.size;
}

unsigned RowOrder::newBlock(unsigned height) {
    unsigned result = static_cast<unsigned>(blocks_.size());
    if (unused_.empty()) {
        blocks_.emplace_back();
    } else {
        result = unused_.back();
        unused_.pop_back();
    }
    Block& block = blocks_[result];
    block.parent = kNone;
    block.height = height;
    block.size = 0;
    return result;
}

RowOrder::Entry RowOrder::total(unsigned number) const {
    const Block& block = blocks_[number];
    Entry result{number};
    for (unsigned i = 0; i < block.size; ++i) {
        result.rows += block.rows[i];
        result.marked += block.marked[i];
    }
    return result;
}

// Tells what these entries stand for that they stand in this block.
void RowOrder::adopt(unsigned number, unsigned begin, unsigned end) {
    const Block& block = blocks_[number];
    for (unsigned i = begin; i < end; ++i)
        (block.height == 0 ? leafOf_[block.refs[i]] : blocks_[block.refs[i]].parent) = number;
}

// Adds to what the blocks above count.
void RowOrder::addUp(unsigned block, int rows, int marked) {
    for (unsigned parent = blocks_[block].parent; parent != kNone; block = parent, parent = blocks_[block].parent) {
        const unsigned index = indexOf(parent, block);
        blocks_[parent].rows[index] += static_cast<unsigned>(rows);
        blocks_[parent].marked[index] += static_cast<unsigned>(marked);
    }
    size_ += static_cast<std::size_t>(rows);
    marked_ += static_cast<std::size_t>(marked);
}

namespace {

template <class Array>
void openGap(Array& array, unsigned size, unsigned at, unsigned count) {
    std::copy_backward(array.begin() + at, array.begin() + size, array.begin() + size + count);
}

template <class Array>
void closeGap(Array& array, unsigned size, unsigned at, unsigned count) {
    std::copy(array.begin() + at + count, array.begin() + size, array.begin() + at);
}

} // namespace

void RowOrder::put(unsigned number, unsigned index, const Entry& entry) {
    Block& block = blocks_[number];
    for (auto* array : {&block.refs, &block.rows, &block.marked})
        openGap(*array, block.size, index, 1);
    block.refs[index] = entry.ref;
    block.rows[index] = entry.rows;
    block.marked[index] = entry.marked;
    ++block.size;
    adopt(number, index, index + 1);
}

void RowOrder::take(unsigned number, unsigned index) {
    Block& block = blocks_[number];
    for (auto* array : {&block.refs, &block.rows, &block.marked})
        closeGap(*array, block.size, index, 1);
    --block.size;
}

void RowOrder::moveEntries(unsigned from, unsigned first, unsigned count, unsigned to, unsigned at) {
    Block& source = blocks_[from];
    Block& target = blocks_[to];
    for (auto array : {&Block::refs, &Block::rows, &Block::marked}) {
        openGap(target.*array, target.size, at, count);
        std::copy_n((source.*array).begin() + first, count, (target.*array).begin() + at);
        closeGap(source.*array, source.size, first, count);
    }
    source.size -= count;
    target.size += count;
    adopt(to, at, at + count);
}

void RowOrder::recount(unsigned parent, unsigned index) {
    const Entry counted = total(blocks_[parent].refs[index]);
    blocks_[parent].rows[index] = counted.rows;
    blocks_[parent].marked[index] = counted.marked;
}

// A full block gives the second half of its entries to a new one behind it.
void RowOrder::split(unsigned block) {
    if (block == root_) {
        root_ = newBlock(blocks_[block].height + 1);
        put(root_, 0, total(block));
    }
    if (blocks_[blocks_[block].parent].size == kCapacity)
        split(blocks_[block].parent);
    const unsigned half = blocks_[block].size / 2;
    const unsigned behind = newBlock(blocks_[block].height);
    moveEntries(block, half, blocks_[block].size - half, behind, 0);
    const unsigned parent = blocks_[block].parent;
    const unsigned index = indexOf(parent, block);
    recount(parent, index);
    put(parent, index + 1, total(behind));
}

// A block with too few entries is merged with the one beside it, or gets some of its entries.
void RowOrder::refill(unsigned block) {
    const unsigned parent = blocks_[block].parent;
    if (parent == kNone || blocks_[block].size >= kLeast)
        return;
    const unsigned index = indexOf(parent, block);
    const unsigned leftIndex = index + 1 < blocks_[parent].size ? index : index - 1;
    const unsigned left = blocks_[parent].refs[leftIndex];
    const unsigned right = blocks_[parent].refs[leftIndex + 1];
    const unsigned leftSize = blocks_[left].size;
    const unsigned rightSize = blocks_[right].size;
    if (leftSize + rightSize <= kFill) {
        moveEntries(right, 0, rightSize, left, leftSize);
        take(parent, leftIndex + 1);
        unused_.push_back(right);
        recount(parent, leftIndex);
        return refill(parent);
    }
    const unsigned half = (leftSize + rightSize) / 2;
    if (leftSize < half)
        moveEntries(right, 0, half - leftSize, left, leftSize);
    else
        moveEntries(left, half, leftSize - half, right, 0);
    recount(parent, leftIndex);
    recount(parent, leftIndex + 1);
}

void RowOrder::dropEmptyRoots() {
    while (blocks_[root_].height != 0 && blocks_[root_].size == 1) {
        unused_.push_back(root_);
        root_ = blocks_[root_].refs[0];
        blocks_[root_].parent = kNone;
    }
}

} // namespace quor::ui
