// The two colour themes of the user interface, dark and light, one table of colours each.
#pragma once

#include "sdk/ui/theme.h"

namespace quor::ui {

// Looks at COLORTHEME each time it is asked, so that a change shows at the next painting. Dark while no host is
// running.
class Theme final : public ZwTheme {
public:
    [[nodiscard]] COLORREF color(int element) const override;
    [[nodiscard]] bool isDark() const override;
};

} // namespace quor::ui
