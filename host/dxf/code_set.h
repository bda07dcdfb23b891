// A set of group codes: the tags that somebody wants of a record.
#pragma once

#include <algorithm>
#include <array>
#include <cstdint>
#include <initializer_list>

namespace quor::dxf {

// Any codes below those of extended data, which are always in the set: most who read a record stop there.
class CodeSet {
public:
    static constexpr int kFirstExtendedData = 1000;

    constexpr CodeSet(std::initializer_list<int> codes) {
        for (const int code : codes)
            add(static_cast<unsigned>(code));
        add(kFirstExtendedData);
    }
    [[nodiscard]] static constexpr CodeSet all() {
        CodeSet set({});
        set.bits_.fill(~std::uint64_t{0});
        return set;
    }

    // Also true of negative codes, which no record has.
    [[nodiscard]] constexpr bool contains(int code) const {
        const unsigned bit = std::min(static_cast<unsigned>(code), unsigned{kFirstExtendedData});
        return (bits_[bit / kWordBits] >> (bit % kWordBits) & 1) != 0;
    }

private:
    static constexpr unsigned kWordBits = 64;

    constexpr void add(unsigned bit) { bits_[bit / kWordBits] |= std::uint64_t{1} << (bit % kWordBits); }

    std::array<std::uint64_t, kFirstExtendedData / kWordBits + 1> bits_{};
};

} // namespace quor::dxf
