// How often each of many names occurs, without regard to case. A table in one piece: a name that is not there, the
// usual answer, costs one look into memory, however many names there are.
#pragma once

#include "sdk/sys/string.h"

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

namespace quor::db {

class NameCounts {
public:
    // Counts the name once more; how often it occurs then.
    std::uint32_t add(std::wstring_view name);
    // Counts it once less; how often it is left. Nothing happens to a name that does not occur.
    std::uint32_t remove(std::wstring_view name);
    [[nodiscard]] std::uint32_t count(std::wstring_view name) const;

    // Calls visit(name) for each name that occurs, in no order.
    template <class Visit>
    void forEach(const Visit& visit) const {
        for (const Slot& slot : slots_)
            if (slot.count > 0)
                visit(slot.name);
    }

private:
    // A name lies in the slot that its hash gives, or as near behind it as there was room.
    struct Slot {
        ZrString name;
        std::uint32_t hash = 0;
        std::uint32_t count = 0; // 0: the slot is free
    };

    // The slot of the name, or the free one where it would go.
    [[nodiscard]] std::size_t slotOf(std::wstring_view name, std::uint32_t hash) const;
    [[nodiscard]] std::size_t next(std::size_t slot) const { return (slot + 1) & (slots_.size() - 1); }
    // How far a slot lies behind another one, or behind the one that a hash gives.
    [[nodiscard]] std::size_t distance(std::size_t slot, std::size_t from) const {
        return (slot - from) & (slots_.size() - 1);
    }
    void grow();
    void clear(std::size_t slot);

    std::vector<Slot> slots_{kFirstSize}; // a power of two
    std::size_t used_ = 0;
    static constexpr std::size_t kFirstSize = 16;
};

} // namespace quor::db
