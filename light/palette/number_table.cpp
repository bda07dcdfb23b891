#include "light/palette/number_table.h"

#include <bit>
#include <utility>

namespace quor::light {

namespace {

constexpr std::size_t smallestSize = 16;

// Places for so many numbers.
std::size_t sizeFor(std::size_t count) {
    const std::size_t wanted = count + count / 2 + 1;
    return wanted < smallestSize ? smallestSize : std::bit_ceil(wanted);
}

} // namespace

void NumberTable::clear() {
    slots_.clear();
    count_ = 0;
}

void NumberTable::reserve(std::size_t count) {
    if (const std::size_t size = sizeFor(count); size > slots_.size())
        grow(size);
}

void NumberTable::insert(std::uint32_t hash, unsigned number) {
    reserve(count_ + 1);
    put({hash, number});
    ++count_;
}

// The numbers behind the gap move up, as far as that brings them no farther than their home.
void NumberTable::erase(std::uint32_t hash, unsigned number) {
    std::size_t gap = home(hash);
    while (slots_[gap].number != number)
        gap = next(gap);
    const std::size_t mask = slots_.size() - 1;
    for (std::size_t at = next(gap); slots_[at].number != kNone; at = next(at)) {
        const std::size_t fromHome = (at - home(slots_[at].hash)) & mask;
        if (fromHome < ((at - gap) & mask))
            continue;
        slots_[gap] = slots_[at];
        gap = at;
    }
    slots_[gap] = {};
    --count_;
}

void NumberTable::put(Slot slot) {
    std::size_t at = home(slot.hash);
    while (slots_[at].number != kNone)
        at = next(at);
    slots_[at] = slot;
}

void NumberTable::grow(std::size_t size) {
    const std::vector<Slot> before = std::exchange(slots_, std::vector<Slot>(size));
    for (const Slot& slot : before)
        if (slot.number != kNone)
            put(slot);
}

} // namespace quor::light
