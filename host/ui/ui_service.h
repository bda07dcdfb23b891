// What modules that show windows get from the host: its theme, and a way to take their palettes out of it.
#pragma once

#include "host/ui/theme.h"
#include "sdk/ui/ui_service.h"

namespace quor::ui {

class UiService final : public ZwUiService {
public:
    [[nodiscard]] const ZwTheme& theme() const override { return theme_; }
    void dropPaletteSet(CControlBar* paletteSet, int reserved) override;

private:
    Theme theme_;
};

} // namespace quor::ui
