// The palette's menus, dialog and pictures, each under its number.
#pragma once

#include "sdk/ui/resource_templates.h"

namespace quor::light {

// Commands of the menus.
inline constexpr unsigned kClosePalette = 7501;
inline constexpr unsigned kShowTips = 7502;
inline constexpr unsigned kDeleteLights = 7507;
inline constexpr unsigned kShowProperties = 7508;
inline constexpr unsigned kGlyphAutomatic = 7509;
inline constexpr unsigned kGlyphOn = 7510;
inline constexpr unsigned kGlyphOff = 7511;
inline constexpr unsigned kShowTipsInList = 7512;
// Menus: each has one entry, whose submenu pops up.
inline constexpr unsigned kRowMenu = 7524;
inline constexpr unsigned kListMenu = 7525;
inline constexpr unsigned kPaletteMenu = 7526;
// Where the glyph display stands in the menu of a row.
inline constexpr int kGlyphMenuPosition = 2;
// The list's dialog and its controls.
inline constexpr unsigned kListDialog = 7503;
inline constexpr unsigned kLightListControl = 7504;
inline constexpr unsigned kTipsControl = 7505;
inline constexpr unsigned kLabelControl = 7506;
// Pictures of the types of lights.
inline constexpr unsigned kPointLightPicture = 7513;
inline constexpr unsigned kDistantLightPicture = 7514;
inline constexpr unsigned kSpotLightPicture = 7515;
inline constexpr unsigned kWebLightPicture = 7516;

[[nodiscard]] const ZwUiResources& uiResources();

} // namespace quor::light
