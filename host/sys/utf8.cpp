#include "host/sys/utf8.h"

#include <algorithm>
#include <cstdint>
#include <cstring>

namespace quor {
namespace {

unsigned char byteAt(std::string_view bytes, std::size_t at) { return static_cast<unsigned char>(bytes[at]); }

// The lead bytes of one length: their range, their value bits, and the smallest code point that needs this length.
struct Lead {
    unsigned char first;
    unsigned char last;
    unsigned char bits;
    std::size_t length;
    std::uint32_t smallest;
};

constexpr Lead leads[] = {{0xC2, 0xDF, 0x1F, 2, 0x80}, {0xE0, 0xEF, 0x0F, 3, 0x800}, {0xF0, 0xF4, 0x07, 4, 0x10000}};

constexpr bool isSurrogate(std::uint32_t code) { return code >= 0xD800 && code <= 0xDFFF; }

// The length of the valid sequence of several bytes at `at` and its code point; 0 when there is none.
std::size_t multiByte(std::string_view bytes, std::size_t at, std::uint32_t& code) {
    const unsigned char first = byteAt(bytes, at);
    for (const Lead& lead : leads) {
        if (first < lead.first || first > lead.last)
            continue;
        if (bytes.size() - at < lead.length)
            return 0;
        code = first & lead.bits;
        for (std::size_t i = 1; i < lead.length; ++i) {
            const unsigned char next = byteAt(bytes, at + i);
            if ((next & 0xC0) != 0x80)
                return 0;
            code = code << 6 | (next & 0x3FU);
        }
        return code < lead.smallest || code > 0x10FFFF || isSurrogate(code) ? 0 : lead.length;
    }
    return 0;
}

} // namespace

std::size_t asciiPrefix(std::string_view bytes) {
    std::size_t at = 0;
    for (; at + sizeof(std::uint64_t) <= bytes.size(); at += sizeof(std::uint64_t)) {
        std::uint64_t word = 0;
        std::memcpy(&word, bytes.data() + at, sizeof word);
        if ((word & 0x8080808080808080) != 0)
            break;
    }
    while (at < bytes.size() && byteAt(bytes, at) < 0x80)
        ++at;
    return at;
}

wchar_t nextUtf8(std::string_view bytes, std::size_t& at) {
    const unsigned char first = byteAt(bytes, at);
    std::uint32_t code = first;
    const std::size_t length = first < 0x80 ? 1 : multiByte(bytes, at, code);
    at += length == 0 ? 1 : length;
    return length == 0 ? escapedByte(first) : static_cast<wchar_t>(code);
}

std::wstring fromUtf8(std::string_view bytes) {
    const std::size_t ascii = asciiPrefix(bytes);
    if (ascii == bytes.size())
        return {bytes.begin(), bytes.end()};
    std::wstring text;
    text.reserve(bytes.size());
    text.assign(bytes.begin(), bytes.begin() + static_cast<std::ptrdiff_t>(ascii));
    for (std::size_t at = ascii; at < bytes.size();)
        text.push_back(nextUtf8(bytes, at));
    return text;
}

void appendUtf8(std::string& out, wchar_t c) {
    const auto put = [&out](std::uint32_t byte) { out.push_back(static_cast<char>(byte)); };
    if (isEscapedByte(c))
        return put(static_cast<std::uint32_t>(c) - 0xDC00);
    auto code = static_cast<std::uint32_t>(c);
    if (code > 0x10FFFF || isSurrogate(code))
        code = 0xFFFD;
    if (code < 0x80)
        return put(code);
    if (code < 0x800) {
        put(0xC0 | code >> 6);
    } else if (code < 0x10000) {
        put(0xE0 | code >> 12);
        put(0x80 | (code >> 6 & 0x3F));
    } else {
        put(0xF0 | code >> 18);
        put(0x80 | (code >> 12 & 0x3F));
        put(0x80 | (code >> 6 & 0x3F));
    }
    put(0x80 | (code & 0x3F));
}

std::string toUtf8(std::wstring_view text) {
    std::string bytes;
    bytes.reserve(text.size());
    for (const wchar_t c : text) {
        if (c >= 0 && c < 0x80)
            bytes.push_back(static_cast<char>(c));
        else
            appendUtf8(bytes, c);
    }
    return bytes;
}

std::size_t validUtf8Prefix(std::string_view bytes) {
    std::size_t at = asciiPrefix(bytes);
    while (at < bytes.size()) {
        std::size_t next = at;
        if (isEscapedByte(nextUtf8(bytes, next)))
            return at;
        at = next;
    }
    return at;
}

bool isValidUtf8(std::string_view bytes) { return validUtf8Prefix(bytes) == bytes.size(); }

bool holdsEscapedBytes(std::wstring_view text) { return std::any_of(text.begin(), text.end(), isEscapedByte); }

} // namespace quor
