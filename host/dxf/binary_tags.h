// Steps over the tags of binary drawing files.
#pragma once

#include "host/dxf/tag.h"

#include <cstddef>
#include <string_view>

namespace quor::dxf {

// The bytes that every binary drawing file begins with.
[[nodiscard]] std::string_view binarySentinel();

enum class BinaryStep : std::uint8_t { Ok, AtEnd, Truncated, BadCode };

// Reads the tag at offset `at` of file[0, end). The code is set for BadCode too.
[[nodiscard]] BinaryStep readBinaryTag(std::string_view file, Form form, std::size_t at, std::size_t end, Tag& tag);

} // namespace quor::dxf
