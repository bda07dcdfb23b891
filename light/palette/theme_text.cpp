#include "light/palette/theme_text.h"

#include "light/palette/theme_color.h"

namespace quor::light {

void drawThemedText(const ui::DrawItem& item, const ZrString& text, const ThemedText& look) {
    item.dc.FillSolidRect(item.rect, themeColor(look.background));
    item.dc.SetBkMode(TRANSPARENT);
    CRect place = item.rect;
    place.left += look.indent;
    item.dc.SetTextColor(themeColor(look.text));
    item.dc.DrawText(text, place, look.format);
    item.dc.SetBkMode(OPAQUE);
}

} // namespace quor::light
