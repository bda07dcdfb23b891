#include "light/palette/drawing_selection.h"

#include "sdk/ed/modeless_operation.h"
#include "sdk/ed/selection_sets.h"

namespace quor::light {

void selectInDrawing(const std::vector<ZrDbObjectId>& ids) {
    ZdsName set;
    zredSSAdd(nullptr, nullptr, set);
    for (const ZrDbObjectId id : ids)
        if (ZdsName name; zrdbGetZdsName(name, id) == Quor::eOk)
            zredSSAdd(&name, &set, set);
    zredSSSetFirst(&set);
    zredSSFree(set);
    zredUpdateDisplay();
}

} // namespace quor::light
