// The pictures of the types of lights, built into the module from light/res/icons: SVG documents.
#pragma once

#include <string_view>

namespace quor::light {

[[nodiscard]] std::string_view pointLightIcon();
[[nodiscard]] std::string_view distantLightIcon();
[[nodiscard]] std::string_view spotLightIcon();
[[nodiscard]] std::string_view webLightIcon();

} // namespace quor::light
