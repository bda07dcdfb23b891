#include "light/palette/row_menu.h"

#include "light/res/ui_resources.h"
#include "sdk/db/light.h"
#include "sdk/ui/menu.h"

namespace quor::light {

namespace {

struct GlyphRow {
    unsigned command;
    GlyphDisplay display;
};
constexpr GlyphRow glyphRows[] = {
    {kGlyphAutomatic, GlyphDisplay::kAutomatic},
    {kGlyphOn, GlyphDisplay::kOn},
    {kGlyphOff, GlyphDisplay::kOff},
};

void checkGlyphDisplay(CMenu& menu, GlyphDisplay display) {
    for (const GlyphRow& row : glyphRows)
        if (row.display == display)
            menu.CheckMenuItem(row.command, true);
}

} // namespace

std::optional<GlyphDisplay> glyphDisplayOf(unsigned command) {
    for (const GlyphRow& row : glyphRows)
        if (row.command == command)
            return row.display;
    return std::nullopt;
}

bool loadRowMenu(CMenu& menu, ZrDbObjectId marked, int selectedRows) {
    if (!menu.LoadMenu(kRowMenu))
        return false;
    const ZrDbObjectPointer<ZrDbLight> light(marked, ZrDb::kForRead);
    if (light)
        checkGlyphDisplay(menu, light->glyphDisplay());
    const bool hasNoGlyph = light && light->lightType() == DrawableType::kDistantLight;
    if (CMenu* const popup = menu.GetSubMenu(0); popup != nullptr && (selectedRows >= 2 || hasNoGlyph))
        popup->DeleteMenu(kGlyphMenuPosition);
    return true;
}

} // namespace quor::light
