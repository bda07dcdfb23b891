#include "host/dxf/binary_tags.h"

#include <cstring>

namespace quor::dxf {
namespace {

// 18 letters, CR LF, Ctrl-Z, NUL: the format's signature.
constexpr char kSentinel[] = {0x41, 0x75, 0x74, 0x6F, 0x43, 0x41, 0x44, 0x20, 0x42, 0x69, 0x6E,
                              0x61, 0x72, 0x79, 0x20, 0x44, 0x58, 0x46, 0x0D, 0x0A, 0x1A, 0x00};
constexpr unsigned char kWideCode = 0xFF; // in files of one-byte codes: the code follows in two bytes

unsigned byteAt(std::string_view file, std::size_t at) { return static_cast<unsigned char>(file[at]); }

int wordAt(std::string_view file, std::size_t at) {
    return static_cast<std::int16_t>(byteAt(file, at) | byteAt(file, at + 1) << 8);
}

// Size of the group code at `at`, 0 if it is cut off.
std::size_t readCode(std::string_view file, Form form, std::size_t at, std::size_t end, int& code) {
    const std::size_t left = end - at;
    if (form == Form::Binary8 && byteAt(file, at) != kWideCode) {
        code = static_cast<int>(byteAt(file, at));
        return 1;
    }
    const std::size_t lead = form == Form::Binary8 ? 1 : 0;
    if (left < lead + 2) {
        return 0;
    }
    code = wordAt(file, at + lead);
    return lead + 2;
}

struct Extent {
    std::size_t lead = 0; // bytes before the value
    std::size_t size = 0;
    std::size_t tail = 0; // bytes behind it
    bool whole = false;
};

Extent textExtent(std::string_view file, std::size_t at, std::size_t end) {
    const auto* nul = at < end ? static_cast<const char*>(std::memchr(file.data() + at, 0, end - at)) : nullptr;
    if (nul == nullptr) {
        return {};
    }
    return {0, static_cast<std::size_t>(nul - (file.data() + at)), 1, true};
}

Extent bytesExtent(std::string_view file, std::size_t at, std::size_t end) {
    if (at >= end) {
        return {};
    }
    const std::size_t size = byteAt(file, at);
    return {1, size, 0, size < end - at};
}

Extent valueExtent(std::string_view file, ValueKind kind, std::size_t at, std::size_t end) {
    const auto fixed = [&](std::size_t size) { return Extent{0, size, 0, size <= end - at}; };
    switch (kind) {
    case ValueKind::Text:
    case ValueKind::Handle:
    case ValueKind::Comment:
        return textExtent(file, at, end);
    case ValueKind::Bytes:
        return bytesExtent(file, at, end);
    case ValueKind::Double:
    case ValueKind::Int64:
        return fixed(8);
    case ValueKind::Int32:
        return fixed(4);
    case ValueKind::Int16:
        return fixed(2);
    case ValueKind::Bool:
        return fixed(1);
    }
    return {};
}

} // namespace

std::string_view binarySentinel() { return {kSentinel, sizeof kSentinel}; }

BinaryStep readBinaryTag(std::string_view file, Form form, std::size_t at, std::size_t end, Tag& tag) {
    if (at >= end) {
        return BinaryStep::AtEnd;
    }
    tag.form = form;
    tag.begin = at;
    const std::size_t codeSize = readCode(file, form, at, end, tag.code);
    if (codeSize == 0) {
        return BinaryStep::Truncated;
    }
    if (!isKnownCode(tag.code)) {
        return BinaryStep::BadCode;
    }
    const Extent extent = valueExtent(file, kindOf(tag.code), at + codeSize, end);
    if (!extent.whole) {
        return BinaryStep::Truncated;
    }
    tag.raw = file.substr(at + codeSize + extent.lead, extent.size);
    tag.end = at + codeSize + extent.lead + extent.size + extent.tail;
    return BinaryStep::Ok;
}

} // namespace quor::dxf
