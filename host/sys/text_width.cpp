#include "host/sys/text_width.h"

#include <algorithm>
#include <array>
#include <iterator>

namespace quor {

namespace {

struct Range {
    char32_t first;
    char32_t last;
};

// Sorted; from the East Asian width classes W and F, and the emoji that terminals show wide.
constexpr std::array kWide = {
    Range{0x1100, 0x115F}, Range{0x2329, 0x232A},   Range{0x2E80, 0x303E},   Range{0x3041, 0x33FF},
    Range{0x3400, 0x4DBF}, Range{0x4E00, 0x9FFF},   Range{0xA000, 0xA4CF},   Range{0xA960, 0xA97F},
    Range{0xAC00, 0xD7A3}, Range{0xF900, 0xFAFF},   Range{0xFE30, 0xFE6F},   Range{0xFF00, 0xFF60},
    Range{0xFFE0, 0xFFE6}, Range{0x1F300, 0x1F64F}, Range{0x1F900, 0x1F9FF}, Range{0x20000, 0x3FFFD},
};

// Sorted; marks that stand on the character before them, and characters that show nothing.
constexpr std::array kNoWidth = {
    Range{0x0000, 0x001F}, Range{0x007F, 0x009F}, Range{0x0300, 0x036F}, Range{0x200B, 0x200F},
    Range{0x20D0, 0x20FF}, Range{0xFE00, 0xFE0F}, Range{0xFE20, 0xFE2F}, Range{0xFEFF, 0xFEFF},
};

template <std::size_t N>
bool contains(const std::array<Range, N>& ranges, char32_t c) {
    const auto at = std::upper_bound(ranges.begin(), ranges.end(), c,
                                     [](char32_t value, const Range& range) { return value < range.first; });
    return at != ranges.begin() && c <= std::prev(at)->last;
}

ZrString blanks(std::wstring_view text, int columns) {
    return ZrString(static_cast<std::size_t>(std::max(0, columns - columnsOf(text))), L' ');
}

} // namespace

int columnsOf(wchar_t c) {
    const auto point = static_cast<char32_t>(c);
    if (point >= 0x20 && point < 0x7F)
        return 1;
    if (contains(kNoWidth, point))
        return 0;
    return contains(kWide, point) ? 2 : 1;
}

int columnsOf(std::wstring_view text) {
    int columns = 0;
    for (const wchar_t c : text)
        columns += columnsOf(c);
    return columns;
}

ZrString padRight(std::wstring_view text, int columns) { return ZrString(text) + blanks(text, columns); }
ZrString padLeft(std::wstring_view text, int columns) { return blanks(text, columns) + ZrString(text); }

ZrString shortened(std::wstring_view word) {
    constexpr std::size_t kMost = 60;
    return word.size() <= kMost ? ZrString(word) : ZrString(word.substr(0, kMost)) + L"…";
}

} // namespace quor
