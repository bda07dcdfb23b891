#include "host/ies/bytes.h"

#include "host/sys/code_page.h"
#include "host/sys/utf8.h"
#include "host/sys/visible_text.h"

#include <algorithm>
#include <optional>
#include <utility>

namespace quor::ies {

namespace {

bool isBlank(char c) {
    const auto byte = static_cast<unsigned char>(c);
    return byte <= ' ' || byte == 0x7F;
}

char capital(char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c; }

std::wstring fromLatin1(std::string_view bytes) {
    std::wstring text(bytes.size(), L' ');
    std::transform(bytes.begin(), bytes.end(), text.begin(),
                   [](char c) { return static_cast<wchar_t>(static_cast<unsigned char>(c)); });
    return text;
}

// The rows of the everyday characters. Two accented letters of Latin-1 that stand side by side, as in "Größe", are in
// none of them.
bool isEverydayHanzi(std::string_view pair) {
    const auto first = static_cast<unsigned char>(pair[0]);
    const auto second = static_cast<unsigned char>(pair[1]);
    return first >= 0xB0 && first <= 0xD7 && second >= 0xA1 && second <= 0xFE;
}

std::optional<std::wstring> fromGbk(std::string_view bytes) {
    static const CodePage page(*findCodePage("ANSI_936"));
    std::wstring text;
    std::size_t everyday = 0;
    std::size_t rare = 0;
    for (std::size_t at = 0; at < bytes.size();) {
        const std::size_t begin = at;
        text += page.next(bytes, at);
        if (isEscapedByte(text.back()))
            return std::nullopt;
        if (at - begin == 2)
            ++(isEverydayHanzi(bytes.substr(begin, 2)) ? everyday : rare);
    }
    return everyday > 0 && everyday >= rare ? std::optional(std::move(text)) : std::nullopt;
}

} // namespace

bool Lines::next(std::string_view& line) {
    if (rest_.empty())
        return false;
    const std::size_t end = std::min(rest_.find_first_of("\r\n"), rest_.size());
    line = rest_.substr(0, end);
    rest_.remove_prefix(end);
    if (!rest_.empty())
        rest_.remove_prefix(rest_.starts_with("\r\n") ? 2 : 1);
    ++number_;
    return true;
}

std::string_view trimmed(std::string_view text) {
    while (!text.empty() && isBlank(text.front()))
        text.remove_prefix(1);
    while (!text.empty() && isBlank(text.back()))
        text.remove_suffix(1);
    return text;
}

bool isWord(std::string_view text, std::string_view capitals) {
    return std::equal(text.begin(), text.end(), capitals.begin(), capitals.end(),
                      [](char a, char b) { return capital(a) == b; });
}

bool startsWithWord(std::string_view text, std::string_view capitals) {
    return isWord(text.substr(0, capitals.size()), capitals);
}

std::wstring decoded(std::string_view bytes) {
    if (isValidUtf8(bytes))
        return fromUtf8(bytes);
    if (auto text = fromGbk(bytes))
        return std::move(*text);
    return fromLatin1(bytes);
}

std::wstring excerptOf(std::string_view bytes) {
    constexpr std::size_t kLength = 40;
    constexpr std::size_t kMostBytes = 4; // of one character
    std::string_view front = bytes.substr(0, kLength * kMostBytes);
    // A character cut in two at the end must not make the rest look like Latin-1.
    if (const std::size_t valid = validUtf8Prefix(front); front.size() < bytes.size()) {
        if (valid + kMostBytes > front.size())
            front = front.substr(0, valid);
        else if (!fromGbk(front))
            front.remove_suffix(1);
    }
    std::wstring text = decoded(front).substr(0, kLength);
    std::replace_if(text.begin(), text.end(), isControl, L'?');
    return text;
}

} // namespace quor::ies
