#include "host/dxf/tag.h"

#include <array>
#include <cmath>
#include <cstring>
#include <fast_float/fast_float.h>

namespace quor::dxf {
namespace {

constexpr int kLastCode = 1071;
constexpr std::uint8_t kUnknown = 0xFF;

struct Range {
    int first;
    int last;
    ValueKind kind;
};

// Later lines win over earlier ones.
constexpr Range kRanges[] = {
    {0, 9, ValueKind::Text},         {5, 5, ValueKind::Handle},      {10, 59, ValueKind::Double},
    {60, 79, ValueKind::Int16},      {90, 99, ValueKind::Int32},     {100, 102, ValueKind::Text},
    {105, 105, ValueKind::Handle},   {110, 149, ValueKind::Double},  {160, 169, ValueKind::Int64},
    {170, 179, ValueKind::Int16},    {210, 239, ValueKind::Double},  {270, 289, ValueKind::Int16},
    {290, 299, ValueKind::Bool},     {300, 309, ValueKind::Text},    {310, 319, ValueKind::Bytes},
    {320, 369, ValueKind::Handle},   {370, 389, ValueKind::Int16},   {390, 399, ValueKind::Handle},
    {400, 409, ValueKind::Int16},    {410, 419, ValueKind::Text},    {420, 429, ValueKind::Int32},
    {430, 439, ValueKind::Text},     {440, 459, ValueKind::Int32},   {460, 469, ValueKind::Double},
    {470, 479, ValueKind::Text},     {480, 481, ValueKind::Handle},  {999, 999, ValueKind::Comment},
    {1000, 1009, ValueKind::Text},   {1004, 1004, ValueKind::Bytes}, {1005, 1005, ValueKind::Handle},
    {1010, 1059, ValueKind::Double}, {1060, 1070, ValueKind::Int16}, {1071, 1071, ValueKind::Int32},
};

constexpr auto kKinds = [] {
    std::array<std::uint8_t, kLastCode + 1> kinds{};
    kinds.fill(kUnknown);
    for (const Range& range : kRanges) {
        for (int code = range.first; code <= range.last; ++code) {
            kinds[static_cast<std::size_t>(code)] = static_cast<std::uint8_t>(range.kind);
        }
    }
    return kinds;
}();

constexpr bool isBlank(char c) { return c == ' ' || c == '\t' || c == '\r'; }

std::uint64_t littleEndian(std::string_view raw) {
    std::uint64_t value = 0;
    for (std::size_t i = raw.size(); i-- > 0;) {
        value = value << 8 | static_cast<unsigned char>(raw[i]);
    }
    return value;
}

std::int64_t signExtended(std::uint64_t value, std::size_t bytes) {
    const unsigned shift = static_cast<unsigned>(64 - 8 * bytes);
    return static_cast<std::int64_t>(value << shift) >> shift;
}

constexpr std::size_t sizeOfInteger(ValueKind kind) {
    switch (kind) {
    case ValueKind::Bool:
        return 1;
    case ValueKind::Int16:
        return 2;
    case ValueKind::Int32:
        return 4;
    case ValueKind::Int64:
        return 8;
    default:
        return 0;
    }
}

} // namespace

bool isKnownCode(int code) {
    return code >= 0 && code <= kLastCode && kKinds[static_cast<std::size_t>(code)] != kUnknown;
}

ValueKind kindOf(int code) {
    return isKnownCode(code) ? static_cast<ValueKind>(kKinds[static_cast<std::size_t>(code)]) : ValueKind::Text;
}

std::string_view trimmed(std::string_view text) {
    if (!text.empty() && text.front() > ' ' && text.back() > ' ') {
        return text;
    }
    while (!text.empty() && isBlank(text.front())) {
        text.remove_prefix(1);
    }
    while (!text.empty() && isBlank(text.back())) {
        text.remove_suffix(1);
    }
    return text;
}

std::optional<double> parseDouble(std::string_view text) {
    text = trimmed(text);
    if (text.size() > 1 && text.front() == '+' && text[1] != '-') {
        text.remove_prefix(1);
    }
    double value = 0;
    const char* end = text.data() + text.size();
    const auto [stop, error] = fast_float::from_chars(text.data(), end, value);
    if (error != std::errc() || stop != end || !std::isfinite(value)) {
        return std::nullopt;
    }
    return value;
}

std::optional<std::int64_t> parseInt(std::string_view text) {
    text = trimmed(text);
    const bool negative = !text.empty() && text.front() == '-';
    if (!text.empty() && (text.front() == '-' || text.front() == '+')) {
        text.remove_prefix(1);
    }
    if (text.empty()) {
        return std::nullopt;
    }
    const std::uint64_t limit = negative ? std::uint64_t{1} << 63 : (std::uint64_t{1} << 63) - 1;
    std::uint64_t value = 0;
    for (const char c : text) {
        const unsigned digit = static_cast<unsigned char>(c) - unsigned{'0'};
        if (digit > 9 || value > (limit - digit) / 10) {
            return std::nullopt;
        }
        value = value * 10 + digit;
    }
    return static_cast<std::int64_t>(negative ? std::uint64_t{0} - value : value);
}

std::optional<std::uint64_t> parseHandle(std::string_view text) {
    text = trimmed(text);
    if (text.empty() || text.size() > 16) {
        return std::nullopt;
    }
    std::uint64_t value = 0;
    for (const char c : text) {
        const unsigned decimal = static_cast<unsigned char>(c) - unsigned{'0'};
        const unsigned letter = (static_cast<unsigned char>(c) | 0x20U) - unsigned{'a'};
        if (decimal > 9 && letter > 5) {
            return std::nullopt;
        }
        value = value << 4 | (decimal <= 9 ? decimal : letter + 10);
    }
    return value;
}

std::optional<int> parseGroupCode(std::string_view line) {
    constexpr std::int64_t kLimit = 32767;
    const auto value = parseInt(line);
    if (!value || *value < -kLimit || *value > kLimit) {
        return std::nullopt;
    }
    return static_cast<int>(*value);
}

std::optional<double> Tag::asDouble() const {
    if (form == Form::Ascii) {
        return parseDouble(raw);
    }
    if (kindOf(code) != ValueKind::Double || raw.size() != sizeof(double)) {
        return std::nullopt;
    }
    const std::uint64_t bits = littleEndian(raw);
    double value = 0;
    std::memcpy(&value, &bits, sizeof value);
    return std::isfinite(value) ? std::optional(value) : std::nullopt;
}

std::optional<std::int64_t> Tag::asInt() const {
    if (form == Form::Ascii) {
        return parseInt(raw);
    }
    const std::size_t size = sizeOfInteger(kindOf(code));
    if (size == 0 || raw.size() != size) {
        return std::nullopt;
    }
    return signExtended(littleEndian(raw), size);
}

std::optional<bool> Tag::asBool() const {
    const auto value = asInt();
    return value ? std::optional(*value != 0) : std::nullopt;
}

std::optional<std::uint64_t> Tag::asHandle() const { return parseHandle(raw); }

std::string_view Tag::asTrimmed() const { return trimmed(raw); }

} // namespace quor::dxf
