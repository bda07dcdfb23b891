#include "host/cm/rgb_text.h"

#include "host/sys/trim.h"

namespace quor::cm {

namespace {

constexpr int largestComponent = 255;

std::optional<std::uint32_t> parseThree(std::wstring_view text, std::wstring_view (*digitsOf)(std::wstring_view)) {
    const std::size_t first = text.find(L',');
    const std::size_t second = first == std::wstring_view::npos ? first : text.find(L',', first + 1);
    if (second == std::wstring_view::npos)
        return std::nullopt;
    const auto red = parseWhole(digitsOf(text.substr(0, first)), largestComponent);
    const auto green = parseWhole(digitsOf(text.substr(first + 1, second - first - 1)), largestComponent);
    const auto blue = parseWhole(digitsOf(text.substr(second + 1)), largestComponent);
    if (!red || !green || !blue)
        return std::nullopt;
    return static_cast<std::uint32_t>(*red << 16 | *green << 8 | *blue);
}

} // namespace

std::optional<int> parseWhole(std::wstring_view text, int largest) {
    if (text.empty())
        return std::nullopt;
    std::int64_t value = 0;
    for (const wchar_t c : text) {
        if (c < L'0' || c > L'9')
            return std::nullopt;
        value = value * 10 + (c - L'0');
        if (value > largest)
            return std::nullopt;
    }
    return static_cast<int>(value);
}

std::optional<std::uint32_t> parseRgb(std::wstring_view text) {
    return parseThree(text, [](std::wstring_view part) { return part; });
}

std::optional<std::uint32_t> parseSpacedRgb(std::wstring_view text) { return parseThree(text, trimmed); }

} // namespace quor::cm
