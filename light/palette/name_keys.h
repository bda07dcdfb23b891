// Beginnings of names as numbers that compare as the names do, so that a sort of many names hardly looks at texts.
#pragma once

#include "sdk/sys/string.h"

#include <cstdint>
#include <vector>

namespace quor::light {

// What all names begin with is left out, and a character takes only the bits that the number of different characters
// needs: of names that end in numbers, a key holds sixteen digits.
class NameKeys {
public:
    // Every name has to be added, and to stay where it is, before finish() and the first key.
    void add(const ZrString& name);
    void finish();

    // Of two names that were added the one with the smaller key compares less; with equal keys they may differ.
    [[nodiscard]] std::uint64_t keyOf(const ZrString& name) const;

private:
    // Characters that have a number of their own; those below and above share the first and the last number.
    static constexpr std::size_t ownNumbers = 0x10000;

    [[nodiscard]] static std::size_t indexOf(wchar_t character);
    [[nodiscard]] static bool isShared(std::size_t index) { return index == 0 || index == ownNumbers + 1; }

    const ZrString* first_ = nullptr;
    std::size_t common_ = 0; // characters with which all names begin
    unsigned bits_ = 1;      // of a character
    // By index: whether the character is there, then the how-manieth of those it is. 0 is the end of a name.
    std::vector<std::uint32_t> numbers_ = std::vector<std::uint32_t>(ownNumbers + 2);
};

} // namespace quor::light
