// A set of object ids for selections of any size: one block of memory, nothing per id.
#pragma once

#include "sdk/db/object_id.h"

#include <vector>

namespace quor::ed {

class IdSet {
public:
    // Room for so many ids.
    void reserve(std::size_t count);
    // Whether the id, which is not null, was not there before.
    bool insert(ZrDbObjectId id);
    void clear();
    [[nodiscard]] std::size_t size() const { return size_; }

private:
    // Where the id stands, or the free place where it belongs.
    [[nodiscard]] std::size_t placeOf(ZrDbObjectId id) const;
    void resize(std::size_t places);

    std::vector<ZrDbObjectId> places_; // a power of two, at most half of them taken; null is a free one
    std::size_t size_ = 0;
};

} // namespace quor::ed
