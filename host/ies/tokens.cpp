#include "host/ies/tokens.h"

#include <algorithm>
#include <cmath>
#include <system_error>

#include <fast_float/fast_float.h>

namespace quor::ies {

namespace {

constexpr std::string_view kBreaks = " \t,\r\n\x1A";
constexpr char kEndOfText = '\x1A';

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
    const std::size_t end = std::min(rest_.find_first_of(kBreaks), rest_.size());
    token = {rest_.substr(0, end), line_};
    rest_.remove_prefix(end);
    return true;
}

std::optional<double> numberOf(std::string_view text) {
    if (text.starts_with('+')) {
        text.remove_prefix(1);
        if (text.starts_with('-'))
            return std::nullopt;
    }
    // The parser knows "nan" and "infinity" too.
    if (text.find_first_not_of("0123456789.eE+-") != std::string_view::npos)
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
