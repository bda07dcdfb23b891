#include "host/ed/id_set.h"

#include <bit>
#include <cstdint>
#include <utility>

namespace quor::ed {

namespace {

constexpr std::size_t kFewestPlaces = 16;

// Addresses differ in their middle bits; the multiplication spreads them over the upper ones.
std::size_t hashOf(ZrDbObjectId id) {
    constexpr std::uint64_t spread = 0x9E3779B97F4A7C15;
    return static_cast<std::size_t>((reinterpret_cast<std::uintptr_t>(id.entry()) * spread) >> 32);
}

} // namespace

void IdSet::reserve(std::size_t count) {
    if (count * 2 > places_.size())
        resize(std::bit_ceil(count * 2 + kFewestPlaces));
}

bool IdSet::insert(ZrDbObjectId id) {
    reserve(size_ + 1);
    ZrDbObjectId& place = places_[placeOf(id)];
    if (!place.isNull())
        return false;
    place = id;
    ++size_;
    return true;
}

void IdSet::clear() {
    places_.clear();
    size_ = 0;
}

std::size_t IdSet::placeOf(ZrDbObjectId id) const {
    const std::size_t last = places_.size() - 1;
    std::size_t place = hashOf(id) & last;
    while (!places_[place].isNull() && places_[place] != id)
        place = (place + 1) & last;
    return place;
}

void IdSet::resize(std::size_t places) {
    const std::vector<ZrDbObjectId> before = std::exchange(places_, std::vector<ZrDbObjectId>(places));
    for (const ZrDbObjectId id : before)
        if (!id.isNull())
            places_[placeOf(id)] = id;
}

} // namespace quor::ed
