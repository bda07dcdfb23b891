// A label in the colours of the host's theme: one line.
#pragma once

#include "sdk/ui/controls.h"

class ThemeStatic final : public CStatic {
protected:
    void PreSubclassWindow() override;
    void DrawItem(const quor::ui::DrawItem& item) override;
};
