// When the glyph of a light is shown in the drawing: asked and set from the list.
#pragma once

#include "sdk/db/object_id.h"

#include <functional>

enum class GlyphDisplay;

namespace quor::light {

// Sets it as one step of undo. Which light is meant is asked while the drawing is locked. Nothing happens to a light
// that cannot be opened, and none while the drawing cannot be locked.
void setGlyphDisplay(const std::function<ZrDbObjectId()>& findLight, GlyphDisplay display);

} // namespace quor::light
