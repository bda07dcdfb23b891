// The drawing that NEW opens, built into the library from resources/templates/new.dxf.
#pragma once

#include <string_view>

namespace quor::db {

[[nodiscard]] std::string_view newDrawing();

} // namespace quor::db
