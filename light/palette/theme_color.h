// Colours of the host's theme.
#pragma once

#include "sdk/ui/theme.h"

namespace quor::light {

// The colour of an element (kTheme…) in the theme in use. Asked anew at each painting and never kept, so that a change
// of the theme shows at the next one.
[[nodiscard]] COLORREF themeColor(int element);

} // namespace quor::light
