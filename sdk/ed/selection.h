// Selection sets and the implied (pick-first) selection of the current document.
#pragma once

#include "sdk/db/object_id.h"

#include <vector>

using ZrDbObjectIdArray = std::vector<ZrDbObjectId>;

// The pick-first selection: what is selected while no command runs.
[[nodiscard]] ZrDbObjectIdArray zredImpliedSelection();
// Replaces it and tells the listeners when it really changed. Ids of erased objects are left out.
void zredSetImpliedSelection(const ZrDbObjectIdArray& ids);

// Told of changes of the pick-first selection of the current document.
class ZrEdSelectionReactor {
public:
    virtual ~ZrEdSelectionReactor() = default;
    virtual void impliedSelectionChanged() = 0;
};
void zredAddSelectionReactor(ZrEdSelectionReactor* reactor);
void zredRemoveSelectionReactor(ZrEdSelectionReactor* reactor);

// Asks for a selection on the command line (the pick-first selection is taken at once, when there is one): "all",
// "last", "previous", a handle, add, remove; Enter ends it. `prompt` null: the usual one. RTNORM with at least one
// object, RTNONE, RTCAN.
int zredSelect(const wchar_t* prompt, ZrDbObjectIdArray& ids);
