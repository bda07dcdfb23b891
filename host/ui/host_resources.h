// The host's own pictures, which modules ask for through ZrRxUiEvent.
#pragma once

#include "sdk/ui/resource_templates.h"

namespace quor::ui {

// The icon of a palette that lists lights.
inline constexpr unsigned kLightListIcon = 58013;

// With the names of the pictures in the language in use.
[[nodiscard]] const ZwUiResources& hostResources();

} // namespace quor::ui
