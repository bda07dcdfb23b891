// What a selection becomes when something is picked. Pure.
#pragma once

#include "sdk/ed/selection.h"

namespace quor::desktop {

enum class PickMode { Add, TakeAway, Toggle };

// In the order of selecting; what comes new stands at the end.
[[nodiscard]] ZrDbObjectIdArray selectionAfter(const ZrDbObjectIdArray& selected, const ZrDbObjectIdArray& picked,
                                               PickMode mode);

} // namespace quor::desktop
