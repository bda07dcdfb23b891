#include "host/sys/visible_text.h"

#include "sdk/sys/format.h"

#include <algorithm>
#include <iterator>

namespace quor {

namespace {

struct Range {
    wchar_t first;
    wchar_t last;
};
constexpr Range kControls[] = {
    {0x00, 0x1F},     {0x7F, 0x9F},     {0x061C, 0x061C}, {0x200E, 0x200F},
    {0x2028, 0x202E}, {0x2066, 0x2069}, {0xFEFF, 0xFEFF},
};

constexpr wchar_t kDelete = 0x7F;
constexpr wchar_t kCaret = 0x40; // "^A" is character 1, "^?" the one that deletes

ZrString spelledOut(wchar_t c) {
    if (c < L' ' || c == kDelete)
        return {L'^', static_cast<wchar_t>(c ^ kCaret)};
    return zrFormat(L"U+%04X", {static_cast<unsigned>(c)});
}

} // namespace

bool isControl(wchar_t c) {
    // Most of the world's letters lie between the last two ranges.
    if (c > kControls[std::size(kControls) - 2].last && c < kControls[std::size(kControls) - 1].first)
        return false;
    return std::any_of(std::begin(kControls), std::end(kControls),
                       [c](const Range& range) { return c >= range.first && c <= range.last; });
}

ZrString visibleText(std::wstring_view text) {
    ZrString shown;
    shown.reserve(text.size());
    for (const wchar_t c : text)
        if (isControl(c))
            shown += spelledOut(c);
        else
            shown += c;
    return shown;
}

} // namespace quor
