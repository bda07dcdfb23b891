// The menu of the rows: what can be done with the selected lights.
#pragma once

#include "sdk/db/object_id.h"

#include <optional>

class CMenu;
enum class GlyphDisplay;

namespace quor::light {

// Which glyph display a command of the menu stands for; none for the other commands.
[[nodiscard]] std::optional<GlyphDisplay> glyphDisplayOf(unsigned command);

// Loads the menu from the resources in use and makes it fit the light of the mark and the number of selected rows:
// the glyph display of that light is checked; it can be changed for a single light that has a glyph only. False when
// there is no menu.
[[nodiscard]] bool loadRowMenu(CMenu& menu, ZrDbObjectId marked, int selectedRows);

} // namespace quor::light
