// The names of the lights of one block, without regard to case: how often each occurs, and which numbers are free
// behind a prefix. What it costs does not grow with the number of lights.
#pragma once

#include "host/db/name_counts.h"
#include "host/sys/case_fold.h"
#include "sdk/sys/string.h"

#include <array>
#include <cstdint>
#include <optional>
#include <unordered_map>

namespace quor::db {

class LightNameIndex {
public:
    void add(const ZrString& name);
    void remove(const ZrString& name);
    [[nodiscard]] std::uint32_t count(const ZrString& name) const { return counts_.count(name); }

    // The first of start, start + 1, … (16 bits, -32768 follows 32767) with which prefix and number make a name that no
    // light has; `start` when all 65,536 are taken.
    [[nodiscard]] std::int16_t nextFree(const ZrString& prefix, std::int16_t start);

private:
    // A bit for each 16-bit number.
    class NumberSet {
    public:
        void set(std::int16_t number, bool taken);
        [[nodiscard]] std::optional<std::int16_t> firstFreeFrom(std::int16_t start) const;

    private:
        std::array<std::uint64_t, 1024> taken_{};
    };

    void mark(const ZrString& name, bool taken);

    NameCounts counts_;
    std::unordered_map<ZrString, NumberSet, FoldedHash, FoldedEqual> numbers_; // by prefix, of those asked for
};

} // namespace quor::db
