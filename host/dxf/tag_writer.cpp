#include "host/dxf/tag_writer.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cassert>
#include <charconv>
#include <cmath>
#include <limits>

namespace quor::dxf {
namespace {

constexpr std::size_t kCodeWidth = 3;
constexpr std::size_t kBytesPerGroup = 127;
constexpr char kWideCode = '\xFF';
constexpr char kHexDigits[] = "0123456789ABCDEF";

// Width of a right-justified integer and its size in binary files.
struct IntegerShape {
    std::size_t width;
    std::size_t size;
};
constexpr IntegerShape kInt16{6, 2};
constexpr IntegerShape kInt32{9, 4};
constexpr IntegerShape kInt64{18, 8};
constexpr IntegerShape kBool{6, 1};

IntegerShape shapeOf(int code) {
    switch (kindOf(code)) {
    case ValueKind::Bool:
        return kBool;
    case ValueKind::Int32:
        return kInt32;
    case ValueKind::Int64:
        return kInt64;
    default:
        return kInt16;
    }
}

// Used by assertions only.
[[maybe_unused]] bool fits(std::int64_t value, std::size_t size) {
    const unsigned unused = static_cast<unsigned>(64 - 8 * size);
    return static_cast<std::int64_t>(static_cast<std::uint64_t>(value) << unused) >> unused == value;
}

bool breaksTag(char c) { return c == '\n' || c == '\r' || c == '\0'; }

} // namespace

std::string realText(double value) {
    assert(std::isfinite(value));
    constexpr double kSmallestPlain = 1e-5;
    constexpr double kLargestPlain = 1e16;
    const double size = std::fabs(value);
    const bool plain = size == 0 || (size >= kSmallestPlain && size < kLargestPlain);

    std::array<char, 64> buffer{};
    const auto format = plain ? std::chars_format::fixed : std::chars_format::scientific;
    const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value, format).ptr;
    std::string text(buffer.data(), end);
    const std::size_t exponent = plain ? text.size() : text.find('e');
    if (!plain) {
        text[exponent] = 'E';
    }
    if (text.find('.') == std::string::npos) {
        text.insert(exponent, ".0");
    }
    return text;
}

void TagWriter::line(std::string_view value) {
    out_ += value;
    out_ += style_.newline();
}

void TagWriter::padded(std::string_view value, std::size_t width) {
    if (value.size() < width) {
        out_.append(width - value.size(), ' ');
    }
    line(value);
}

void TagWriter::integerLine(std::int64_t value, std::size_t width) {
    std::array<char, 24> buffer{};
    const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value).ptr;
    padded({buffer.data(), static_cast<std::size_t>(end - buffer.data())}, width);
}

void TagWriter::littleEndian(std::uint64_t value, std::size_t bytes) {
    for (std::size_t i = 0; i < bytes; ++i) {
        out_ += static_cast<char>(value >> (8 * i) & 0xFF);
    }
}

void TagWriter::code(int value) {
    switch (form_) {
    case Form::Ascii:
        integerLine(value, style_.padCodes ? kCodeWidth : 0);
        break;
    case Form::Binary8:
        if (value >= 0 && value < 0xFF) {
            out_ += static_cast<char>(value);
            break;
        }
        out_ += kWideCode;
        [[fallthrough]];
    case Form::Binary16:
        littleEndian(static_cast<std::uint64_t>(value), 2);
        break;
    }
}

void TagWriter::text(int groupCode, std::string_view bytes) {
    code(groupCode);
    const std::size_t begin = out_.size();
    out_ += bytes;
    std::replace_if(out_.begin() + static_cast<std::ptrdiff_t>(begin), out_.end(), breaksTag, ' ');
    if (ascii()) {
        out_ += style_.newline();
    } else {
        out_ += '\0';
    }
}

void TagWriter::real(int groupCode, double value) {
    code(groupCode);
    if (ascii()) {
        line(realText(value));
    } else {
        assert(std::isfinite(value));
        littleEndian(std::bit_cast<std::uint64_t>(value), sizeof value);
    }
}

void TagWriter::integer(int groupCode, std::int64_t value) {
    const IntegerShape shape = shapeOf(groupCode);
    assert(fits(value, shape.size));
    code(groupCode);
    if (ascii()) {
        integerLine(value, style_.padIntegers ? shape.width : 0);
    } else {
        littleEndian(static_cast<std::uint64_t>(value), shape.size);
    }
}

void TagWriter::int16(int groupCode, std::int16_t value) {
    assert(kindOf(groupCode) == ValueKind::Int16);
    integer(groupCode, value);
}

void TagWriter::int32(int groupCode, std::int32_t value) {
    assert(kindOf(groupCode) == ValueKind::Int32);
    integer(groupCode, value);
}

void TagWriter::int64(int groupCode, std::int64_t value) {
    assert(kindOf(groupCode) == ValueKind::Int64);
    integer(groupCode, value);
}

void TagWriter::boolean(int groupCode, bool value) {
    assert(kindOf(groupCode) == ValueKind::Bool);
    integer(groupCode, value ? 1 : 0);
}

void TagWriter::handle(int groupCode, std::uint64_t value) {
    std::array<char, 16> buffer{};
    std::size_t begin = buffer.size();
    do {
        buffer[--begin] = kHexDigits[value & 0xF];
        value >>= 4;
    } while (value != 0);
    text(groupCode, {buffer.data() + begin, buffer.size() - begin});
}

void TagWriter::bytes(int groupCode, std::string_view data) {
    do {
        const std::string_view group = data.substr(0, kBytesPerGroup);
        data.remove_prefix(group.size());
        code(groupCode);
        if (ascii()) {
            for (const char c : group) {
                const auto byte = static_cast<unsigned char>(c);
                out_ += kHexDigits[byte >> 4];
                out_ += kHexDigits[byte & 0xF];
            }
            out_ += style_.newline();
        } else {
            out_ += static_cast<char>(group.size());
            out_ += group;
        }
    } while (!data.empty());
}

void TagWriter::point(int groupCode, double x, double y, double z) {
    real(groupCode, x);
    real(groupCode + 10, y);
    real(groupCode + 20, z);
}

} // namespace quor::dxf
