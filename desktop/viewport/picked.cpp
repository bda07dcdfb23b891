#include "desktop/viewport/picked.h"

#include <unordered_set>

namespace quor::desktop {

ZrDbObjectIdArray selectionAfter(const ZrDbObjectIdArray& selected, const ZrDbObjectIdArray& picked, PickMode mode) {
    const std::unordered_set<ZrDbObjectId> before(selected.begin(), selected.end());
    const std::unordered_set<ZrDbObjectId> hit(picked.begin(), picked.end());
    ZrDbObjectIdArray after;
    for (const ZrDbObjectId id : selected)
        if (mode == PickMode::Add || !hit.contains(id))
            after.push_back(id);
    if (mode != PickMode::TakeAway)
        for (const ZrDbObjectId id : picked)
            if (!before.contains(id))
                after.push_back(id);
    return after;
}

} // namespace quor::desktop
