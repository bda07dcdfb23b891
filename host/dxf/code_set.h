// A set of group codes: the tags that somebody wants of a record.
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <initializer_list>

namespace quor::dxf {

// Any codes below those of extended data, which are always in the set: most who read a record stop there.
class CodeSet {
public:
    static constexpr int kFirstExtendedData = 1000;

    constexpr CodeSet(std::initializer_list<int> codes) {
        for (const int code : codes)
            holds_[static_cast<std::size_t>(code)] = true;
        holds_.back() = true;
    }
    [[nodiscard]] static constexpr CodeSet all() {
        CodeSet set({});
        set.holds_.fill(true);
        return set;
    }

    // Also true of negative codes, which no record has.
    [[nodiscard]] constexpr bool contains(int code) const {
        return holds_[std::min(static_cast<std::size_t>(static_cast<unsigned>(code)), holds_.size() - 1)];
    }

private:
    std::array<bool, kFirstExtendedData + 1> holds_{};
};

} // namespace quor::dxf
