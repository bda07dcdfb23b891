#include "host/db/handle_index.h"

#include <algorithm>

namespace quor::db {

void HandleIndex::add(ObjectEntry& entry) {
    if (entry.handle == 0)
        return;
    const bool rises = rising_.empty() || rising_.back().handle < entry.handle;
    (rises ? rising_ : others_).push_back({entry.handle, &entry});
}

ObjectEntry* HandleIndex::find(std::uint64_t handle) {
    ObjectEntry* found = findRising(handle);
    return found != nullptr ? found : findOther(handle);
}

std::size_t HandleIndex::placeOf(std::uint64_t handle) const {
    // Steps grow from the place found last, and the search is among what the last one passed over.
    std::size_t begin = 0;
    std::size_t end = found_;
    if (rising_[found_].handle <= handle) {
        begin = found_;
        end = found_ + 1;
        while (end < rising_.size() && rising_[end].handle <= handle) {
            const std::size_t step = 2 * (end - begin);
            begin = end;
            end += step;
        }
        end = std::min(end, rising_.size());
    }
    while (end - begin > 1) {
        const std::size_t middle = begin + (end - begin) / 2;
        (rising_[middle].handle <= handle ? begin : end) = middle;
    }
    return begin;
}

ObjectEntry* HandleIndex::findRising(std::uint64_t handle) {
    if (rising_.empty())
        return nullptr;
    found_ = placeOf(handle);
    const Place& place = rising_[found_];
    return place.handle == handle ? place.entry : nullptr;
}

ObjectEntry* HandleIndex::findOther(std::uint64_t handle) {
    const auto isLess = [](const Place& a, const Place& b) { return a.handle < b.handle; };
    if (sortedOthers_ < others_.size()) {
        const auto added = others_.begin() + static_cast<std::ptrdiff_t>(sortedOthers_);
        std::stable_sort(added, others_.end(), isLess);
        std::inplace_merge(others_.begin(), added, others_.end(), isLess);
        sortedOthers_ = others_.size();
    }
    const auto place = std::lower_bound(others_.begin(), others_.end(), Place{handle, nullptr}, isLess);
    return place != others_.end() && place->handle == handle ? place->entry : nullptr;
}

} // namespace quor::db
