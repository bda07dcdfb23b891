// Finds objects by handle.
#pragma once

#include "host/db/object_entry.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace quor::db {

// A list in the order of the handles. Files and new objects have rising ones, so it grows at its end; and what is
// looked for in the order of the file stands beside what was found before.
class HandleIndex {
public:
    void reserve(std::size_t count) { places_.reserve(count); }
    // Objects without handle are not found; of those with the same handle, the one that was added first.
    void add(ObjectEntry& entry);
    // Null when there is none.
    [[nodiscard]] ObjectEntry* find(std::uint64_t handle);

private:
    struct Place {
        std::uint64_t handle;
        ObjectEntry* entry;
    };

    void sort();
    // The last place whose handle is not above this one, or the first place.
    [[nodiscard]] std::size_t placeOf(std::uint64_t handle) const;

    std::vector<Place> places_;
    std::size_t sorted_ = 0; // so many are in order, without repetition
    std::size_t found_ = 0;  // the place that was found last
};

} // namespace quor::db
