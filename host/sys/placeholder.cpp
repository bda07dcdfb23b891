#include "host/sys/placeholder.h"

#include <algorithm>

namespace quor::sys {
namespace {

constexpr std::wstring_view wholeConversions = L"diuxX";
constexpr std::wstring_view realConversions = L"fFeEgG";
constexpr std::wstring_view textConversions = L"sS";

wchar_t kindOf(wchar_t conversion) {
    if (wholeConversions.find(conversion) != std::wstring_view::npos)
        return L'w';
    if (realConversions.find(conversion) != std::wstring_view::npos)
        return L'r';
    if (textConversions.find(conversion) != std::wstring_view::npos)
        return L's';
    return conversion == L'c' ? L'c' : L'\0';
}

bool takeFlag(Placeholder& placeholder, wchar_t c) {
    switch (c) {
    case L'-':
        return placeholder.left = true;
    case L'+':
        return placeholder.plus = true;
    case L' ':
        return placeholder.blank = true;
    case L'0':
        return placeholder.zero = true;
    case L'#':
        return placeholder.alternate = true;
    default:
        return false;
    }
}

// Digits from `at` on, moved behind them; more than `limit` counts as that.
int takeNumber(std::wstring_view text, std::size_t& at, int limit) {
    int number = 0;
    for (; at < text.size() && text[at] >= L'0' && text[at] <= L'9'; ++at)
        number = std::min(number * 10 + static_cast<int>(text[at] - L'0'), limit);
    return number;
}

// Calls `each` with every placeholder and its spelling.
template <class Each>
void forEachPlaceholder(std::wstring_view text, const Each& each) {
    for (std::size_t percent = text.find(L'%'); percent != std::wstring_view::npos; percent = text.find(L'%')) {
        text.remove_prefix(percent);
        const auto placeholder = parsePlaceholder(text);
        if (placeholder)
            each(*placeholder, text.substr(0, placeholder->length));
        text.remove_prefix(placeholder ? placeholder->length : text.substr(0, 2) == L"%%" ? 2 : 1);
    }
}

} // namespace

std::optional<Placeholder> parsePlaceholder(std::wstring_view text) {
    if (text.empty() || text.front() != L'%')
        return std::nullopt;
    Placeholder found;
    std::size_t at = 1;
    while (at < text.size() && takeFlag(found, text[at]))
        ++at;
    found.width = takeNumber(text, at, Placeholder::kMaxWidth);
    if (at < text.size() && text[at] == L'.') {
        ++at;
        found.precision = takeNumber(text, at, Placeholder::kMaxPrecision);
    }
    while (at < text.size() && (text[at] == L'l' || text[at] == L'h'))
        ++at;
    if (at == text.size() || kindOf(text[at]) == L'\0')
        return std::nullopt;
    found.conversion = text[at];
    found.length = at + 1;
    return found;
}

std::wstring placeholderKinds(std::wstring_view text) {
    std::wstring kinds;
    forEachPlaceholder(text, [&](const Placeholder& found, std::wstring_view) { kinds += kindOf(found.conversion); });
    return kinds;
}

std::wstring placeholders(std::wstring_view text) {
    std::wstring all;
    forEachPlaceholder(text, [&](const Placeholder&, std::wstring_view spelling) {
        if (!all.empty())
            all += L' ';
        all += spelling;
    });
    return all;
}

} // namespace quor::sys
