// The host's icons, built into the library from host/ui/icons: SVG documents.
#pragma once

#include <string_view>

namespace quor::ui {

[[nodiscard]] std::string_view lightListIcon();

} // namespace quor::ui
