#include "host/sys/text_wrap.h"

#include "host/sys/text_width.h"

#include <algorithm>
#include <optional>

namespace quor {

namespace {

// On a narrower screen nothing is gained by breaking at words.
constexpr int kNarrowest = 20;
constexpr int kHang = 2;
constexpr std::wstring_view kGap = L"  ";
// What may not begin a line, and what may not end one.
constexpr std::wstring_view kClosing = L",.;:!?)]}>%/，。、；：！？）】》〉」』〕…—”’％·";
constexpr std::wstring_view kOpening = L"([{<（【《〈「『〔“‘";

bool isOneOf(wchar_t c, std::wstring_view set) { return set.find(c) != std::wstring_view::npos; }

// Where a line may be broken without a blank: beside a wide character.
bool mayBreakBetween(wchar_t before, wchar_t after) {
    const bool besideWide = columnsOf(before) == 2 || columnsOf(after) == 2;
    return besideWide && columnsOf(after) > 0 && !isOneOf(after, kClosing) && !isOneOf(before, kOpening);
}

// The length of what stands in front of an item of a list: "1. " or "[ ] "; 0 without.
std::size_t markLength(std::wstring_view item) {
    constexpr std::wstring_view kBox = L"[ ] ";
    if (item.starts_with(kBox))
        return kBox.size();
    const std::size_t digits = std::min(item.find_first_not_of(L"0123456789"), item.size());
    return digits > 0 && item.substr(digits).starts_with(L". ") ? digits + 2 : 0;
}

// The column at which a line goes on in the next one; nothing for a row of a table.
std::optional<int> hangOf(std::wstring_view line) {
    const std::size_t start = std::min(line.find_first_not_of(L' '), line.size());
    const std::size_t gap = line.find(kGap, start);
    if (gap == std::wstring_view::npos) {
        const std::size_t mark = markLength(line.substr(start));
        return static_cast<int>(start) + (mark > 0 ? static_cast<int>(mark) : kHang);
    }
    const std::size_t behind = std::min(line.find_first_not_of(L' ', gap), line.size());
    if (line.find(kGap, behind) != std::wstring_view::npos)
        return std::nullopt;
    return columnsOf(line.substr(0, behind));
}

// The end of the piece that stays together and begins here; blanks in front of it belong to it.
std::size_t endOfPiece(std::wstring_view line, std::size_t begin) {
    std::size_t at = std::min(line.find_first_not_of(L' ', begin), line.size());
    while (at < line.size()) {
        ++at;
        if (at < line.size() && (line[at] == L' ' || mayBreakBetween(line[at - 1], line[at])))
            break;
    }
    return at;
}

void appendWrapped(ZrString& out, std::wstring_view line, int columns) {
    const std::optional<int> hang =
        columnsOf(line) > columns && line.find(L'\t') == std::wstring_view::npos ? hangOf(line) : std::nullopt;
    // A label that takes half of the screen leaves no room behind it.
    if (!hang || *hang > columns / 2) {
        out += line;
        return;
    }
    int column = 0;
    for (std::size_t at = 0, end = 0; at < line.size(); at = end) {
        end = endOfPiece(line, at);
        std::wstring_view piece = line.substr(at, end - at);
        const std::wstring_view word = piece.substr(std::min(piece.find_first_not_of(L' '), piece.size()));
        if (column > *hang && column + columnsOf(piece) > columns && *hang + columnsOf(word) <= columns) {
            out += L'\n' + ZrString(static_cast<std::size_t>(*hang), L' ');
            column = *hang;
            piece = word;
        }
        out += piece;
        column += columnsOf(piece);
        // The screen itself breaks a word that is too wide.
        if (column > columns)
            column %= columns;
    }
}

} // namespace

ZrString wrapped(std::wstring_view text, int columns) {
    if (columns < kNarrowest || columnsOf(text) <= columns)
        return ZrString(text);
    ZrString out;
    out.reserve(text.size() + text.size() / 8);
    while (true) {
        const std::size_t lineBreak = text.find(L'\n');
        appendWrapped(out, text.substr(0, lineBreak), columns);
        if (lineBreak == std::wstring_view::npos)
            return out;
        out += L'\n';
        text.remove_prefix(lineBreak + 1);
    }
}

} // namespace quor
