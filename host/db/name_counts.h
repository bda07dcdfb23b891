// How often each of many names occurs, without regard to case. The names lie still; what is searched, and moves as it
// grows, is a table of small slots in one piece: a name that is not there, the usual answer, costs one look into it.
#pragma once

#include "sdk/sys/string.h"

#include <cstddef>
#include <cstdint>
#include <deque>
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
        for (const Counted& counted : names_)
            if (counted.count > 0)
                visit(counted.name);
    }

private:
    struct Counted {
        ZrString name;
        std::uint32_t count = 0; // 0: a gap
    };
    // Where in names_ a name lies. Its slot is the one that its hash gives, or as near behind it as there was room.
    struct Slot {
        static constexpr std::uint32_t kFree = 0xFFFFFFFF;
        std::uint32_t hash = 0;
        std::uint32_t place = kFree;
        [[nodiscard]] bool isFree() const { return place == kFree; }
    };

    // The slot of the name, or the free one where it would go.
    [[nodiscard]] std::size_t slotOf(std::wstring_view name, std::uint32_t hash) const;
    [[nodiscard]] std::size_t firstSlot(std::uint32_t hash) const { return hash & (slots_.size() - 1); }
    [[nodiscard]] std::size_t next(std::size_t slot) const { return (slot + 1) & (slots_.size() - 1); }
    // How far a slot lies behind another one.
    [[nodiscard]] std::size_t distance(std::size_t slot, std::size_t from) const {
        return (slot - from) & (slots_.size() - 1);
    }
    // A place for a new name.
    [[nodiscard]] std::uint32_t keep(std::wstring_view name);
    void grow();
    void clear(std::size_t slot);

    static constexpr std::size_t kFirstSize = 16;
    std::vector<Slot> slots_ = std::vector<Slot>(kFirstSize); // a power of two of them
    std::deque<Counted> names_;
    std::vector<std::uint32_t> gaps_; // in names_
};

} // namespace quor::db
