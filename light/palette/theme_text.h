// A control that is nothing but its text, in colours of the host's theme.
#pragma once

#include "sdk/ui/window.h"

namespace quor::light {

struct ThemedText {
    int background; // elements of the theme
    int text;
    int indent;      // pixels between the left edge and the text
    unsigned format; // DT_…
};

// Fills the item and writes the text on it. The mode of the context is opaque afterwards.
void drawThemedText(const ui::DrawItem& item, const ZrString& text, const ThemedText& look);

} // namespace quor::light
