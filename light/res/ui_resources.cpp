#include "light/res/ui_resources.h"

#include "light/res/icons.h"
#include "light/res/text_table.h"
#include "sdk/ui/list_control.h"

namespace quor::light {

namespace {

using ui::ControlKind;
using ui::ControlTemplate;
using ui::DialogTemplate;
using ui::MenuEntry;
using ui::MenuTemplate;
using ui::PictureResource;

constexpr ZwResourceText shown(const Text& text) { return {text.number, text.builtIn}; }

constexpr MenuEntry glyphMenu[] = {
    {kGlyphAutomatic, shown(texts.glyphAutomatic)},
    {kGlyphOn, shown(texts.glyphOn)},
    {kGlyphOff, shown(texts.glyphOff)},
};
constexpr MenuEntry rowMenu[] = {
    {kDeleteLights, shown(texts.deleteLights)},
    {kShowProperties, shown(texts.showProperties)},
    {0, shown(texts.glyphDisplay), glyphMenu},
};
constexpr MenuEntry listMenu[] = {{kShowTipsInList, shown(texts.showTipsInList)}};
constexpr MenuEntry separator{};
constexpr MenuEntry paletteMenu[] = {
    {kShowTips, shown(texts.showTips)},
    separator,
    {kClosePalette, shown(texts.closePalette)},
};

// Nobody sees the entries of the menu bars that these menus hang on: they have no text.
constexpr MenuEntry rowBar[] = {{.submenu = rowMenu}};
constexpr MenuEntry listBar[] = {{.submenu = listMenu}};
constexpr MenuEntry paletteBar[] = {{.submenu = paletteMenu}};
constexpr MenuTemplate menus[] = {{kRowMenu, rowBar}, {kListMenu, listBar}, {kPaletteMenu, paletteBar}};

// As they are laid out in a palette of this size with its tips.
constexpr CSize dialogSize{208, 400};
constexpr ControlTemplate controls[] = {
    {.id = kLabelControl, .kind = ControlKind::Static, .text = shown(texts.paletteLabel), .rect = {10, 4, 198, 24}},
    {.id = kLightListControl, .kind = ControlKind::List, .style = LVS_REPORT, .rect = {10, 25, 198, 282}},
    {.id = kTipsControl, .kind = ControlKind::Button, .rect = {10, 290, 198, 390}},
};
constexpr DialogTemplate dialogs[] = {{kListDialog, dialogSize, controls}};

constexpr CSize pictureSize{21, 21};

} // namespace

const ZwUiResources& uiResources() {
    static const PictureResource pictures[] = {
        {kPointLightPicture, shown(texts.pointLightPicture), pictureSize, pointLightIcon()},
        {kDistantLightPicture, shown(texts.distantLightPicture), pictureSize, distantLightIcon()},
        {kSpotLightPicture, shown(texts.spotLightPicture), pictureSize, spotLightIcon()},
        {kWebLightPicture, shown(texts.webLightPicture), pictureSize, webLightIcon()},
    };
    static const ZwUiResources resources{menus, dialogs, pictures};
    return resources;
}

} // namespace quor::light
