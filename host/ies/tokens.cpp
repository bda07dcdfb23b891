#include "host/ies/tokens.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <system_error>

#include <fast_float/fast_float.h>

namespace quor::ies {

namespace {

constexpr char kEndOfText = '\x1A';

// A file is mostly numbers: what ends one is looked up, not searched for.
constexpr auto kEndsToken = [] {
    std::array<bool, 256> ends{};
    for (const unsigned char c : std::string_view(" \t,\r\n\x1A"))
        ends[c] = true;
    return ends;
}();

bool endsToken(char c) { return kEndsToken[static_cast<unsigned char>(c)]; }

bool isOfNumber(char c) { return (c >= '0' && c <= '9') || c == '.' || c == '-' || c == '+' || c == 'e' || c == 'E'; }

} // namespace

void Tokens::skipSeparators() {
    while (!rest_.empty()) {
        switch (rest_.front()) {
        case '\r':
            // The LF behind it counts the line.
            line_ += rest_.starts_with("\r\n") ? 0U : 1U;
            break;
        case '\n':
            ++line_;
            break;
        case ' ':
        case '\t':
        case ',':
            break;
        default:
            return;
        }
        rest_.remove_prefix(1);
    }
}

bool Tokens::next(Token& token) {
    skipSeparators();
    if (rest_.empty() || rest_.front() == kEndOfText)
        return false;
    const auto* const end = std::find_if(rest_.begin(), rest_.end(), endsToken);
    const auto size = static_cast<std::size_t>(end - rest_.begin());
    token = {rest_.substr(0, size), line_};
    rest_.remove_prefix(size);
    return true;
}

std::optional<double> numberOf(std::string_view text) {
    if (text.starts_with('+')) {
        text.remove_prefix(1);
        if (text.starts_with('-'))
            return std::nullopt;
    }
    // The parser knows "nan" and "infinity" too.
    if (!std::all_of(text.begin(), text.end(), isOfNumber))
        return std::nullopt;
    double value = 0;
    const char* const end = text.data() + text.size();
    // Too large gives infinity, too small gives 0, whatever error code comes with them.
    const auto [stop, error] = fast_float::from_chars(text.data(), end, value);
    if (error == std::errc::invalid_argument || stop != end || !std::isfinite(value))
        return std::nullopt;
    return value;
}

} // namespace quor::ies
