// The order of the rows of a list: which row stands at a place, at which place a row stands, and which rows are marked.
// A row is a small number, its id. Each question and each change costs the logarithm of the number of rows.
#pragma once

#include <array>
#include <cstddef>
#include <span>
#include <vector>

namespace quor::ui {

// A tree of blocks that counts, beside each of their entries, the rows and the marked rows below it.
class RowOrder {
public:
    using Id = unsigned;
    static constexpr Id kNone = ~0U;

    RowOrder() { assign({}); }

    [[nodiscard]] std::size_t size() const { return size_; }
    [[nodiscard]] std::size_t markedCount() const { return marked_; }
    [[nodiscard]] bool contains(Id id) const { return id < leafOf_.size() && leafOf_[id] != kNone; }

    // These rows, all different, in place of those that were there; none is marked.
    void assign(std::span<const Id> ids);
    // The same rows in another order; marks stay with their rows.
    void reorder(std::span<const Id> ids);
    // `position` is at most size(); the row is not there yet.
    void insert(std::size_t position, Id id, bool marked = false);
    // The row is there.
    void erase(Id id);

    // kNone past the end.
    [[nodiscard]] Id at(std::size_t position) const;
    // Of a row that is there.
    [[nodiscard]] std::size_t position(Id id) const;
    // The row behind one that is there, or kNone. Walking all rows costs little more than reading them.
    [[nodiscard]] Id next(Id id) const;
    [[nodiscard]] std::vector<Id> ids() const;

    // Of a row that is there.
    [[nodiscard]] bool isMarked(Id id) const;
    void mark(Id id, bool marked);
    // Marks the rows from `begin` to before `end`, or takes their marks away.
    void markRange(std::size_t begin, std::size_t end, bool marked);
    // Where the first marked row stands at `position` or behind it; size() when there is none.
    [[nodiscard]] std::size_t nextMarked(std::size_t position) const;

private:
    static constexpr unsigned kCapacity = 64;
    static constexpr unsigned kFill = 48; // of a block that is made or merged, so that not every insertion splits
    static constexpr unsigned kLeast = 16;

    // A row of a leaf, or a block below another one, with what it holds.
    struct Entry {
        unsigned ref = kNone;
        unsigned rows = 0;
        unsigned marked = 0;
    };
    struct Block {
        unsigned parent = kNone;
        unsigned height = 0; // 0: a leaf, its entries are rows
        unsigned size = 0;
        std::array<unsigned, kCapacity> refs;
        std::array<unsigned, kCapacity> rows;
        std::array<unsigned, kCapacity> marked;
    };
    struct Place {
        unsigned block;
        unsigned index;
    };

    void build(std::span<const Id> ids, const std::vector<bool>& marks);
    template <class EntryAt>
    [[nodiscard]] std::vector<Entry> buildLevel(std::size_t entries, unsigned height, const EntryAt& entryAt);
    static void append(Block& block, const Entry& entry);
    [[nodiscard]] unsigned newBlock(unsigned height);
    void adopt(unsigned block, unsigned begin, unsigned end);
    [[nodiscard]] Entry total(unsigned block) const;

    [[nodiscard]] Place placeAt(std::size_t position) const;
    [[nodiscard]] Place placeOf(Id id) const;
    [[nodiscard]] unsigned indexOf(unsigned block, unsigned ref) const;
    void addUp(unsigned block, int rows, int marked);

    void put(unsigned block, unsigned index, const Entry& entry);
    void take(unsigned block, unsigned index);
    void moveEntries(unsigned from, unsigned first, unsigned count, unsigned to, unsigned at);
    void recount(unsigned parent, unsigned index);
    void split(unsigned block);
    void refill(unsigned block);
    void dropEmptyRoots();
    unsigned markBelow(unsigned block, std::size_t begin, std::size_t end, bool marked);

    std::vector<Block> blocks_;
    std::vector<unsigned> unused_; // blocks
    std::vector<unsigned> leafOf_; // by id; kNone: not there
    unsigned root_ = 0;
    std::size_t size_ = 0;
    std::size_t marked_ = 0;
    mutable unsigned lastIndex_ = 0; // where in its leaf the row stands that was found last; a guess for the next one
};

} // namespace quor::ui
