// Finds values that are no numbers where numbers belong. An opened drawing reads its values when they are asked for;
// only the recovery of a damaged one looks at all of them.
#pragma once

#include "host/dxf/layout.h"

#include <span>
#include <string_view>

namespace quor::dxf {

// Adds what is wrong in the header and in the records of these types to the problems of the layout.
void checkNumbers(const Image& image, Layout& layout, std::span<const std::string_view> types);

} // namespace quor::dxf
