// Finds numbers by hashes that their owner makes: a flat table, eight bytes a place. The owner says of a number with
// the right hash whether it is the one that is meant.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace quor::light {

class NumberTable {
public:
    static constexpr unsigned kNone = ~0U;

    void clear();
    // So many numbers will be in it.
    void reserve(std::size_t count);
    // The number must not be there yet.
    void insert(std::uint32_t hash, unsigned number);
    // The number must be there, with this hash.
    void erase(std::uint32_t hash, unsigned number);

    // The number of this hash for which `isMeant` holds, or kNone.
    template <class IsMeant>
    [[nodiscard]] unsigned find(std::uint32_t hash, const IsMeant& isMeant) const {
        if (slots_.empty())
            return kNone;
        std::size_t at = home(hash);
        while (slots_[at].number != kNone && !(slots_[at].hash == hash && isMeant(slots_[at].number)))
            at = next(at);
        return slots_[at].number;
    }

private:
    struct Slot {
        std::uint32_t hash = 0;
        unsigned number = kNone;
    };

    [[nodiscard]] std::size_t home(std::uint32_t hash) const { return hash & (slots_.size() - 1); }
    [[nodiscard]] std::size_t next(std::size_t at) const { return (at + 1) & (slots_.size() - 1); }
    void put(Slot slot);
    void grow(std::size_t size);

    std::vector<Slot> slots_; // a power of two of them, a third free at least; a number stands at its home or behind it
    std::size_t count_ = 0;
};

} // namespace quor::light
