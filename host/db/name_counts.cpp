#include "host/db/name_counts.h"

#include "host/sys/case_fold.h"

namespace quor::db {

namespace {

// The upper half of a product holds a bit of everything: names that were chosen to share the low bits part here.
std::uint32_t hashOf(std::wstring_view name) {
    constexpr std::uint64_t goldenRatio = 0x9E3779B97F4A7C15;
    return static_cast<std::uint32_t>((hashFolded(name) * goldenRatio) >> 32);
}

} // namespace

std::size_t NameCounts::slotOf(std::wstring_view name, std::uint32_t hash) const {
    const auto isOther = [&](const Slot& slot) {
        return slot.hash != hash || !equalFolded(names_[slot.place].name, name);
    };
    std::size_t slot = firstSlot(hash);
    while (!slots_[slot].isFree() && isOther(slots_[slot]))
        slot = next(slot);
    return slot;
}

std::uint32_t NameCounts::count(std::wstring_view name) const {
    const Slot& slot = slots_[slotOf(name, hashOf(name))];
    return slot.isFree() ? 0 : names_[slot.place].count;
}

std::uint32_t NameCounts::add(std::wstring_view name) {
    const std::uint32_t hash = hashOf(name);
    if (4 * (names_.size() - gaps_.size() + 1) > 3 * slots_.size())
        grow();
    Slot& slot = slots_[slotOf(name, hash)];
    if (slot.isFree())
        slot = {hash, keep(name)};
    return ++names_[slot.place].count;
}

std::uint32_t NameCounts::remove(std::wstring_view name) {
    const std::size_t slot = slotOf(name, hashOf(name));
    if (slots_[slot].isFree())
        return 0;
    const std::uint32_t place = slots_[slot].place;
    const std::uint32_t left = --names_[place].count;
    if (left == 0) {
        names_[place].name = ZrString();
        gaps_.push_back(place);
        clear(slot);
    }
    return left;
}

std::uint32_t NameCounts::keep(std::wstring_view name) {
    auto place = static_cast<std::uint32_t>(names_.size());
    if (gaps_.empty()) {
        names_.emplace_back();
    } else {
        place = gaps_.back();
        gaps_.pop_back();
    }
    names_[place].name = name;
    return place;
}

void NameCounts::grow() {
    std::vector<Slot> old(2 * slots_.size());
    old.swap(slots_);
    for (const Slot& slot : old) {
        if (slot.isFree())
            continue;
        std::size_t free = firstSlot(slot.hash);
        while (!slots_[free].isFree())
            free = next(free);
        slots_[free] = slot;
    }
}

// Names behind the slot that would lie in it, were it free, move up, so that a search may end at a free slot.
void NameCounts::clear(std::size_t slot) {
    for (std::size_t behind = next(slot); !slots_[behind].isFree(); behind = next(behind))
        if (distance(behind, slots_[behind].hash) >= distance(behind, slot)) {
            slots_[slot] = slots_[behind];
            slot = behind;
        }
    slots_[slot] = Slot();
}

} // namespace quor::db
