#include "host/cm/book_parser.h"

#include "host/cm/rgb_text.h"
#include "host/sys/case_fold.h"
#include "host/sys/trim.h"
#include "host/sys/visible_text.h"
#include "host/texts/color_books.h"

#include <algorithm>
#include <utility>

namespace quor::cm {

namespace {

// Names are typed at prompts that take so many characters; shorter book names are taken for a slip of the finger there.
constexpr std::size_t shortestBookName = 4;
constexpr std::size_t longestName = 131;

bool isName(std::wstring_view name, std::size_t shortest) {
    return name.size() >= shortest && name.size() <= longestName && name.find(L'$') == std::wstring_view::npos;
}

bool hasControl(std::wstring_view name) { return std::any_of(name.begin(), name.end(), isControl); }

// What stands behind "book =".
std::optional<std::wstring_view> bookNameOf(std::wstring_view line) {
    const std::size_t equals = line.find(L'=');
    if (equals == std::wstring_view::npos || !equalFolded(trimmed(line.substr(0, equals)), L"book"))
        return std::nullopt;
    return trimmed(line.substr(equals + 1));
}

} // namespace

// A colour may be called "book", too; its numbers do not stand in quotes.
std::optional<ZrString> BookParser::take(std::wstring_view rawLine, std::size_t number) {
    const std::wstring_view line = trimmed(rawLine);
    if (line.empty() || line.front() == L'#')
        return std::nullopt;
    const std::optional<std::wstring_view> bookName = bookNameOf(line);
    if (bookName && (name_.empty() || bookName->starts_with(L'"')))
        return takeBookName(*bookName);
    return name_.empty() ? fill(texts::colorBookNoName) : takeColor(line, number);
}

std::optional<ZrString> BookParser::takeBookName(std::wstring_view quoted) {
    if (!name_.empty())
        return fill(texts::colorBookSecondName);
    if (quoted.size() < 2 || quoted.front() != L'"' || quoted.back() != L'"')
        return fill(texts::colorBookBadName);
    const std::wstring_view name = quoted.substr(1, quoted.size() - 2);
    if (hasControl(name))
        return fill(texts::colorBookControl);
    if (!isName(name, shortestBookName) || name.find(L'"') != std::wstring_view::npos || trimmed(name) != name)
        return fill(texts::colorBookBadName);
    name_ = name;
    return std::nullopt;
}

std::optional<ZrString> BookParser::takeColor(std::wstring_view line, std::size_t number) {
    const std::size_t equals = line.rfind(L'=');
    if (equals == std::wstring_view::npos)
        return fill(texts::colorBookNoEquals);
    const std::wstring_view name = trimmed(line.substr(0, equals));
    if (hasControl(name))
        return fill(texts::colorBookControl);
    if (!isName(name, 1))
        return fill(texts::colorBookBadColorName);
    const auto rgb = parseSpacedRgb(line.substr(equals + 1));
    if (!rgb)
        return fill(texts::colorBookBadColor);
    colors_.push_back({ZrString(name), static_cast<std::uint8_t>(*rgb >> 16),
                       static_cast<std::uint8_t>(*rgb >> 8 & 0xFF), static_cast<std::uint8_t>(*rgb & 0xFF)});
    lines_.push_back(static_cast<std::uint32_t>(number));
    return std::nullopt;
}

std::optional<ColorBook> BookParser::finish(ColorBookError& error) {
    if (name_.empty() || colors_.empty()) {
        error.reason = fill(name_.empty() ? texts::colorBookNoName : texts::colorBookEmpty);
        return std::nullopt;
    }
    ColorBook book(std::move(name_), std::move(colors_));
    const auto twice = book.firstDouble();
    if (!twice)
        return book;
    error.line = lines_[twice->later];
    error.reason = fill(texts::colorBookColorTwice, book.colors()[twice->later].name, lines_[twice->earlier]);
    return std::nullopt;
}

} // namespace quor::cm
