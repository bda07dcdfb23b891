#include "host/db/name_counts.h"

#include "host/sys/case_fold.h"

#include <utility>

namespace quor::db {

namespace {

std::uint32_t hashOf(std::wstring_view name) { return static_cast<std::uint32_t>(hashFolded(name)); }

} // namespace

std::size_t NameCounts::slotOf(std::wstring_view name, std::uint32_t hash) const {
    std::size_t slot = hash & (slots_.size() - 1);
    while (slots_[slot].count > 0 && (slots_[slot].hash != hash || !equalFolded(slots_[slot].name, name)))
        slot = next(slot);
    return slot;
}

std::uint32_t NameCounts::count(std::wstring_view name) const { return slots_[slotOf(name, hashOf(name))].count; }

std::uint32_t NameCounts::add(std::wstring_view name) {
    const std::uint32_t hash = hashOf(name);
    if (4 * (used_ + 1) > 3 * slots_.size())
        grow();
    Slot& slot = slots_[slotOf(name, hash)];
    if (slot.count == 0) {
        slot.name = name;
        slot.hash = hash;
        ++used_;
    }
    return ++slot.count;
}

std::uint32_t NameCounts::remove(std::wstring_view name) {
    const std::size_t at = slotOf(name, hashOf(name));
    if (slots_[at].count == 0)
        return 0;
    const std::uint32_t left = --slots_[at].count;
    if (left == 0)
        clear(at);
    return left;
}

void NameCounts::grow() {
    std::vector<Slot> old(2 * slots_.size());
    old.swap(slots_);
    for (Slot& slot : old) {
        if (slot.count == 0)
            continue;
        std::size_t free = slot.hash & (slots_.size() - 1);
        while (slots_[free].count > 0)
            free = next(free);
        slots_[free] = std::move(slot);
    }
}

// Names behind the slot that would lie in it, were it free, move up, so that a search may end at a free slot.
void NameCounts::clear(std::size_t slot) {
    for (std::size_t behind = next(slot); slots_[behind].count > 0; behind = next(behind))
        if (distance(behind, slots_[behind].hash) >= distance(behind, slot)) {
            slots_[slot] = std::move(slots_[behind]);
            slot = behind;
        }
    slots_[slot] = Slot();
    --used_;
}

} // namespace quor::db
