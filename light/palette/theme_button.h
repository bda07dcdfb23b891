// A panel of text in the colours of the host's theme: as many lines as it takes.
#pragma once

#include "sdk/ui/controls.h"

class ThemeButton final : public CButton {
protected:
    void PreSubclassWindow() override;
    void DrawItem(const quor::ui::DrawItem& item) override;
};
