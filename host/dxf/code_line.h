// Reads the group code of a line of text, fast for the way nearly all files write it.
#pragma once

#include "host/dxf/tag.h"

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

// The code that stands in length bytes at text (no line feed among them), or kBadCode. Four bytes at text must be
// readable.
[[nodiscard]] inline int readCodeLine(const char* text, std::size_t length) {
    length -= length > 0 && text[length - 1] == '\r' ? 1 : 0;
    if (length - 1 < 4) {
        std::uint32_t bytes = firstFour(text);
        // Push the line to the high end and fill up with blanks: always four characters, the last of them highest.
        const unsigned shift = static_cast<unsigned>(8 * (4 - length));
        const std::uint32_t blanks = 0x20202020;
        bytes = static_cast<std::uint32_t>(std::uint64_t{bytes} << shift) | (blanks & ~(~std::uint32_t{0} << shift));

        const std::uint32_t high = (bytes & 0xF0F0F0F0) ^ 0x30303030; // 0 of a digit, 0x10 of a blank
        const std::uint32_t low = bytes & 0x0F0F0F0F;
        std::uint32_t wrong = high & 0xEFEFEFEF;      // neither
        wrong |= (high >> 4 & 0x01010101) * 15 & low; // another character of the row of the blank
        wrong |= (low + 0x06060606) & 0xF0F0F0F0;     // another character of the row of the digits
        wrong |= (high >> 8) & ~high & 0x00101010;    // a blank behind a digit
        wrong |= high >> 24;                          // no digit at the end
        if (wrong == 0) {
            const std::uint32_t pairs = (low * 10 + (low >> 8)) & 0x00FF00FF;
            return static_cast<int>((pairs & 0xFF) * 100 + (pairs >> 16));
        }
    }
    return parseGroupCode({text, length}).value_or(kBadCode);
}

} // namespace quor::dxf
