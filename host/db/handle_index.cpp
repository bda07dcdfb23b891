#include "host/db/handle_index.h"

#include <algorithm>

namespace quor::db {

void HandleIndex::add(ObjectEntry& entry) {
    if (entry.handle == 0)
        return;
    const bool rises = places_.empty() || places_.back().handle < entry.handle;
    if (rises && sorted_ == places_.size())
        ++sorted_;
    places_.push_back({entry.handle, &entry});
}

void HandleIndex::sort() {
    const auto isLess = [](const Place& a, const Place& b) { return a.handle < b.handle; };
    const auto isSame = [](const Place& a, const Place& b) { return a.handle == b.handle; };
    const auto added = places_.begin() + static_cast<std::ptrdiff_t>(sorted_);
    std::stable_sort(added, places_.end(), isLess);
    std::inplace_merge(places_.begin(), added, places_.end(), isLess);
    places_.erase(std::unique(places_.begin(), places_.end(), isSame), places_.end());
    sorted_ = places_.size();
    found_ = 0;
}

std::size_t HandleIndex::placeOf(std::uint64_t handle) const {
    // Steps grow from the place found last, and the search is among what the last one passed over.
    std::size_t begin = 0;
    std::size_t end = found_;
    if (places_[found_].handle <= handle) {
        begin = found_;
        end = found_ + 1;
        while (end < places_.size() && places_[end].handle <= handle) {
            const std::size_t step = 2 * (end - begin);
            begin = end;
            end += step;
        }
        end = std::min(end, places_.size());
    }
    while (end - begin > 1) {
        const std::size_t middle = begin + (end - begin) / 2;
        (places_[middle].handle <= handle ? begin : end) = middle;
    }
    return begin;
}

ObjectEntry* HandleIndex::find(std::uint64_t handle) {
    if (sorted_ < places_.size())
        sort();
    if (places_.empty())
        return nullptr;
    found_ = placeOf(handle);
    const Place& place = places_[found_];
    return place.handle == handle ? place.entry : nullptr;
}

} // namespace quor::db
