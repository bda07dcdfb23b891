// The drawing's pick-first selection, set from the list.
#pragma once

#include "sdk/db/object_id.h"

#include <vector>

namespace quor::light {

// Selects these objects in the drawing, in this order, and shows that. Null ids are left out.
void selectInDrawing(const std::vector<ZrDbObjectId>& ids);

} // namespace quor::light
