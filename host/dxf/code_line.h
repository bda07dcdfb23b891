// Reads the group code of a line of text, fast for the way nearly all files write it.
#pragma once

#include "host/dxf/tag.h"

#include <array>
#include <bit>
#include <climits>
#include <cstdint>
#include <cstring>

namespace quor::dxf {

constexpr int kBadCode = INT_MIN;

// Four bytes, the first of them lowest.
[[nodiscard]] inline std::uint32_t firstFour(const char* text) {
    std::uint32_t bytes = 0;
    if constexpr (std::endian::native == std::endian::little) {
        std::memcpy(&bytes, text, sizeof bytes);
    } else {
        for (unsigned i = 0; i < sizeof bytes; ++i) {
            bytes |= std::uint32_t{static_cast<unsigned char>(text[i])} << (8 * i);
        }
    }
    return bytes;
}

// The blanks that make four characters of so many.
inline constexpr std::array<std::uint32_t, 5> kBlanksBefore{0x20202020, 0x00202020, 0x00002020, 0x00000020, 0};

// Four characters, blanks and then digits: what each of them adds to the code, by place and character. What does not
// belong there, or a blank behind a digit, comes out as a bit of kUnusualLine in the sum.
inline constexpr std::uint32_t kUnusualLine = 0xFF220000;
inline constexpr std::uint32_t kCodeInSum = 0xFFFF;

inline constexpr auto kCodeCharacters = [] {
    constexpr std::uint32_t unusual = 0x01000000;
    // A digit of the first place with a blank of the second, of the second with one of the third: two make it unusual.
    constexpr std::array<std::uint32_t, 4> digits{0x00010000, 0x00100000, 0, 0};
    constexpr std::array<std::uint32_t, 4> blanks{0, 0x00010000, 0x00100000, unusual};
    std::array<std::array<std::uint32_t, 256>, 4> adds{};
    std::uint32_t factor = 1000;
    for (std::size_t place = 0; place < adds.size(); ++place, factor /= 10) {
        adds[place].fill(unusual);
        adds[place][' '] = blanks[place];
        for (std::uint32_t digit = 0; digit < 10; ++digit)
            adds[place]['0' + digit] = digit * factor + digits[place];
    }
    return adds;
}();

// The code that stands in length bytes at text (no line feed among them), or kBadCode. Four bytes at text must be
// readable.
[[nodiscard]] inline int readCodeLine(const char* text, std::size_t length) {
    length -= length > 0 && text[length - 1] == '\r' ? 1 : 0;
    if (length - 1 < 4) {
        // The line pushed to the high end and filled up with blanks: always four characters, the last of them highest.
        const unsigned shift = static_cast<unsigned>(8 * (4 - length));
        const std::uint32_t line = firstFour(text) << shift | kBlanksBefore[length];
        const std::uint32_t sum = kCodeCharacters[0][line & 0xFF] + kCodeCharacters[1][line >> 8 & 0xFF] +
                                  kCodeCharacters[2][line >> 16 & 0xFF] + kCodeCharacters[3][line >> 24];
        if ((sum & kUnusualLine) == 0)
            return static_cast<int>(sum & kCodeInSum);
    }
    return parseGroupCode({text, length}).value_or(kBadCode);
}

} // namespace quor::dxf
