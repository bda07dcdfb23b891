// Finds the place where reading can go on behind damaged bytes.
#pragma once

#include "host/dxf/tag.h"

#include <cstddef>
#include <string_view>

namespace quor::dxf {

// Offset, not before `from`, of a line "0" that a record's name follows (in the header also "9" before a variable's
// name); file.size() if there is none. `from` must be the begin of a line.
[[nodiscard]] std::size_t findPlausibleTag(std::string_view file, std::size_t from, bool inHeader);

// The same in binary files: a group code 0 before a record's name.
[[nodiscard]] std::size_t findPlausibleBinaryTag(std::string_view file, Form form, std::size_t from);

} // namespace quor::dxf
