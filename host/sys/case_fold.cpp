#include "host/sys/case_fold.h"

#include <algorithm>
#include <cstdint>
#include <iterator>

namespace quor {
namespace {

// Every `step`-th character from first to last folds to itself plus delta.
struct FoldRange {
    std::uint16_t first;
    std::uint16_t last;
    std::int32_t delta;
    std::uint16_t step;
};

// Sorted by first; from the simple and common mappings of Unicode's CaseFolding table.
constexpr FoldRange foldRanges[] = {
    {0x00B5, 0x00B5, 775, 1},    {0x00C0, 0x00D6, 32, 1},     {0x00D8, 0x00DE, 32, 1},     {0x0100, 0x012E, 1, 2},
    {0x0132, 0x0136, 1, 2},      {0x0139, 0x0147, 1, 2},      {0x014A, 0x0176, 1, 2},      {0x0178, 0x0178, -121, 1},
    {0x0179, 0x017D, 1, 2},      {0x0181, 0x0181, 210, 1},    {0x0182, 0x0184, 1, 2},      {0x0186, 0x0186, 206, 1},
    {0x0187, 0x0187, 1, 1},      {0x0189, 0x018A, 205, 1},    {0x018B, 0x018B, 1, 1},      {0x018E, 0x018E, 79, 1},
    {0x018F, 0x018F, 202, 1},    {0x0190, 0x0190, 203, 1},    {0x0191, 0x0191, 1, 1},      {0x0193, 0x0193, 205, 1},
    {0x0194, 0x0194, 207, 1},    {0x0196, 0x0196, 211, 1},    {0x0197, 0x0197, 209, 1},    {0x0198, 0x0198, 1, 1},
    {0x019C, 0x019C, 211, 1},    {0x019D, 0x019D, 213, 1},    {0x019F, 0x019F, 214, 1},    {0x01A0, 0x01A4, 1, 2},
    {0x01A6, 0x01A6, 218, 1},    {0x01A7, 0x01A7, 1, 1},      {0x01A9, 0x01A9, 218, 1},    {0x01AC, 0x01AC, 1, 1},
    {0x01AE, 0x01AE, 218, 1},    {0x01AF, 0x01AF, 1, 1},      {0x01B1, 0x01B2, 217, 1},    {0x01B3, 0x01B5, 1, 2},
    {0x01B7, 0x01B7, 219, 1},    {0x01B8, 0x01B8, 1, 1},      {0x01BC, 0x01BC, 1, 1},      {0x01C4, 0x01C4, 2, 1},
    {0x01C5, 0x01C5, 1, 1},      {0x01C7, 0x01C7, 2, 1},      {0x01C8, 0x01C8, 1, 1},      {0x01CA, 0x01CA, 2, 1},
    {0x01CB, 0x01DB, 1, 2},      {0x01DE, 0x01EE, 1, 2},      {0x01F1, 0x01F1, 2, 1},      {0x01F2, 0x01F4, 1, 2},
    {0x01F6, 0x01F6, -97, 1},    {0x01F7, 0x01F7, -56, 1},    {0x01F8, 0x021E, 1, 2},      {0x0220, 0x0220, -130, 1},
    {0x0222, 0x0232, 1, 2},      {0x023A, 0x023A, 10795, 1},  {0x023B, 0x023B, 1, 1},      {0x023D, 0x023D, -163, 1},
    {0x023E, 0x023E, 10792, 1},  {0x0241, 0x0241, 1, 1},      {0x0243, 0x0243, -195, 1},   {0x0244, 0x0244, 69, 1},
    {0x0245, 0x0245, 71, 1},     {0x0246, 0x024E, 1, 2},      {0x0370, 0x0372, 1, 2},      {0x0376, 0x0376, 1, 1},
    {0x037F, 0x037F, 116, 1},    {0x0386, 0x0386, 38, 1},     {0x0388, 0x038A, 37, 1},     {0x038C, 0x038C, 64, 1},
    {0x038E, 0x038F, 63, 1},     {0x0391, 0x03A1, 32, 1},     {0x03A3, 0x03AB, 32, 1},     {0x03C2, 0x03C2, 1, 1},
    {0x03CF, 0x03CF, 8, 1},      {0x03D0, 0x03D0, -30, 1},    {0x03D1, 0x03D1, -25, 1},    {0x03D5, 0x03D5, -15, 1},
    {0x03D6, 0x03D6, -22, 1},    {0x03D8, 0x03EE, 1, 2},      {0x03F0, 0x03F0, -54, 1},    {0x03F1, 0x03F1, -48, 1},
    {0x03F4, 0x03F4, -60, 1},    {0x03F5, 0x03F5, -64, 1},    {0x03F7, 0x03F7, 1, 1},      {0x03F9, 0x03F9, -7, 1},
    {0x03FA, 0x03FA, 1, 1},      {0x03FD, 0x03FF, -130, 1},   {0x0400, 0x040F, 80, 1},     {0x0410, 0x042F, 32, 1},
    {0x0460, 0x0480, 1, 2},      {0x048A, 0x04BE, 1, 2},      {0x04C0, 0x04C0, 15, 1},     {0x04C1, 0x04CD, 1, 2},
    {0x04D0, 0x052E, 1, 2},      {0x0531, 0x0556, 48, 1},     {0x1E00, 0x1E94, 1, 2},      {0x1E9B, 0x1E9B, -58, 1},
    {0x1E9E, 0x1E9E, -7615, 1},  {0x1EA0, 0x1EFE, 1, 2},      {0x2126, 0x2126, -7517, 1},  {0x212B, 0x212B, -8262, 1},
    {0x2160, 0x216F, 16, 1},     {0x2183, 0x2183, 1, 1},      {0x24B6, 0x24CF, 26, 1},     {0x2C60, 0x2C60, 1, 1},
    {0x2C62, 0x2C62, -10743, 1}, {0x2C63, 0x2C63, -3814, 1},  {0x2C64, 0x2C64, -10727, 1}, {0x2C67, 0x2C6B, 1, 2},
    {0x2C6D, 0x2C6D, -10780, 1}, {0x2C6E, 0x2C6E, -10749, 1}, {0x2C6F, 0x2C6F, -10783, 1}, {0x2C70, 0x2C70, -10782, 1},
    {0x2C72, 0x2C72, 1, 1},      {0x2C75, 0x2C75, 1, 1},      {0x2C7E, 0x2C7F, -10815, 1}, {0xA722, 0xA72E, 1, 2},
    {0xA732, 0xA76E, 1, 2},      {0xA779, 0xA77B, 1, 2},      {0xA77D, 0xA77D, -35332, 1}, {0xA77E, 0xA786, 1, 2},
    {0xA78B, 0xA78B, 1, 1},      {0xA78D, 0xA78D, -42280, 1}, {0xA790, 0xA792, 1, 2},      {0xA796, 0xA7A8, 1, 2},
    {0xA7AA, 0xA7AA, -42308, 1}, {0xA7AB, 0xA7AB, -42319, 1}, {0xA7AC, 0xA7AC, -42315, 1}, {0xA7AD, 0xA7AD, -42305, 1},
    {0xA7AE, 0xA7AE, -42308, 1}, {0xA7B0, 0xA7B0, -42258, 1}, {0xA7B1, 0xA7B1, -42282, 1}, {0xA7B2, 0xA7B2, -42261, 1},
    {0xA7B3, 0xA7B3, 928, 1},    {0xA7B4, 0xA7C2, 1, 2},      {0xA7C4, 0xA7C4, -48, 1},    {0xA7C5, 0xA7C5, -42307, 1},
    {0xA7C6, 0xA7C6, -35384, 1}, {0xA7C7, 0xA7C9, 1, 2},      {0xFF21, 0xFF3A, 32, 1}};

} // namespace

wchar_t foldWide(wchar_t c) {
    // Most of what is not Latin is Chinese, and far from all letters that have a case.
    const bool isBetween = c > 0x2C7F && c < 0xA722;
    if (isBetween || c < 0 || c > 0xFFFF)
        return c;
    const auto code = static_cast<std::uint32_t>(c);
    const auto* behind = std::upper_bound(std::begin(foldRanges), std::end(foldRanges), code,
                                          [](std::uint32_t value, const FoldRange& r) { return value < r.first; });
    if (behind == std::begin(foldRanges))
        return c;
    const FoldRange& range = *std::prev(behind);
    if (code > range.last || (code - range.first) % range.step != 0)
        return c;
    return static_cast<wchar_t>(c + range.delta);
}

std::wstring foldCase(std::wstring_view text) {
    std::wstring folded(text);
    std::transform(folded.begin(), folded.end(), folded.begin(), foldChar);
    return folded;
}

bool equalFolded(std::wstring_view a, std::wstring_view b) { return a.size() == b.size() && startsWithFolded(a, b); }

bool startsWithFolded(std::wstring_view text, std::wstring_view beginning) {
    if (text.size() < beginning.size())
        return false;
    for (std::size_t i = 0; i < beginning.size(); ++i)
        if (text[i] != beginning[i] && foldChar(text[i]) != foldChar(beginning[i]))
            return false;
    return true;
}

int compareFolded(std::wstring_view a, std::wstring_view b) {
    const std::size_t common = std::min(a.size(), b.size());
    for (std::size_t i = 0; i < common; ++i) {
        const wchar_t x = foldChar(a[i]);
        const wchar_t y = foldChar(b[i]);
        if (x != y)
            return x < y ? -1 : 1;
    }
    return a.size() == b.size() ? 0 : (a.size() < b.size() ? -1 : 1);
}

std::size_t hashFolded(std::wstring_view text) {
    std::uint64_t hash = 0xCBF29CE484222325; // FNV-1a over code points, with a final mix for the low bits
    for (const wchar_t c : text)
        hash = (hash ^ static_cast<std::uint32_t>(foldChar(c))) * 0x100000001B3;
    return static_cast<std::size_t>(hash ^ (hash >> 32));
}

} // namespace quor
