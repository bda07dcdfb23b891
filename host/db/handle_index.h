// Finds objects by handle.
#pragma once

#include "host/db/object_entry.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace quor::db {

// Lists in the order of the handles. Those of files and of new objects mostly rise, so that most objects go to the end
// of a list; and what is looked for in the order of the file stands beside what was found before.
class HandleIndex {
public:
    void reserve(std::size_t count) { rising_.reserve(count); }
    // Objects without handle are not found; of those with the same handle, the one that was added first.
    void add(ObjectEntry& entry);
    // Null when there is none.
    [[nodiscard]] ObjectEntry* find(std::uint64_t handle);

private:
    struct Place {
        std::uint64_t handle;
        ObjectEntry* entry;
    };

    [[nodiscard]] ObjectEntry* findRising(std::uint64_t handle);
    [[nodiscard]] ObjectEntry* findOther(std::uint64_t handle);
    // The last place of the rising ones whose handle is not above this one, or the first place.
    [[nodiscard]] std::size_t placeOf(std::uint64_t handle) const;

    std::vector<Place> rising_;    // each one's handle above all that were added before it
    std::size_t found_ = 0;        // the place of these that was found last
    std::vector<Place> others_;    // with a handle that stands in the first list too, that one was there before
    std::size_t sortedOthers_ = 0; // so many of them are in order
};

} // namespace quor::db
