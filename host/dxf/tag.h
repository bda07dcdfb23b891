// One tag of a drawing file - group code and value - and how the kinds of values are stored in each form.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

namespace quor::dxf {

// How tags are stored: lines of text, or binary with group codes of two bytes (AC1012 on) or one byte (older).
enum class Form : std::uint8_t { Ascii, Binary16, Binary8 };

enum class ValueKind : std::uint8_t { Text, Double, Int16, Int32, Int64, Bool, Handle, Bytes, Comment };

// The kind of value that follows a group code. Codes outside every known range count as Text.
[[nodiscard]] ValueKind kindOf(int code);

// False for codes outside every known range; in binary files their length cannot be known.
[[nodiscard]] bool isKnownCode(int code);

struct Tag {
    int code = 0;
    std::string_view
        raw; // value bytes as in the file: ASCII without line end, binary without terminating NUL or length byte
    std::size_t begin = 0; // offsets of the whole tag in the image
    std::size_t end = 0;
    Form form = Form::Ascii;

    // Decoded values; nothing when the bytes are no such value. Blanks around numbers do not count.
    [[nodiscard]] std::optional<double> asDouble() const;
    [[nodiscard]] std::optional<std::int64_t> asInt() const; // Int16, Int32, Int64 and Bool
    [[nodiscard]] std::optional<bool> asBool() const;        // 0 or not 0
    [[nodiscard]] std::optional<std::uint64_t> asHandle() const;
    [[nodiscard]] std::string_view asTrimmed() const; // without blanks, tabs and CR around it
    [[nodiscard]] bool is(int wantedCode, std::string_view value) const {
        return code == wantedCode && asTrimmed() == value;
    }
};

// The same for bare text. Nothing for inf, nan, hexadecimal, rubbish behind the number, or values out of range.
[[nodiscard]] std::string_view trimmed(std::string_view text);
[[nodiscard]] std::optional<double> parseDouble(std::string_view text);
[[nodiscard]] std::optional<std::int64_t> parseInt(std::string_view text);
[[nodiscard]] std::optional<std::uint64_t> parseHandle(std::string_view text); // 1 to 16 hex digits
[[nodiscard]] std::optional<int> parseGroupCode(std::string_view line);        // blanks around it accepted

} // namespace quor::dxf
