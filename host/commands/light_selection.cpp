#include "host/commands/light_selection.h"

#include "host/db/ref_edit.h"
#include "host/document.h"
#include "host/session.h"
#include "host/texts/light_table.h"
#include "host/texts/list.h"
#include "sdk/db/block_table.h"
#include "sdk/ed/selection.h"

#include <algorithm>
#include <unordered_set>

namespace quor::commands {

namespace {

// What was asked for.
struct Wanted {
    bool all = false;
    std::unordered_set<ZrDbObjectId> ids;

    [[nodiscard]] bool has(ZrDbObjectId id) const { return all || ids.contains(id); }
};

int askWanted(Wanted& wanted) {
    ZrDbObjectIdArray ids;
    const int result = zredSelect(texts::kAskLights.get(), ids);
    wanted.all = result == RTNONE;
    wanted.ids.insert(ids.begin(), ids.end());
    return wanted.all ? RTNORM : result;
}

std::vector<ZrDbObjectId> lightsOf(ZrDbObjectId block, const Wanted& wanted) {
    std::vector<ZrDbObjectId> ids;
    const ZrDbObjectPointer<ZrDbBlockTableRecord> record(block, ZrDb::kForRead);
    if (!record)
        return ids;
    for (const auto at = record->newIterator(ZrDbLight::desc()); !at->done(); at->step())
        if (wanted.has(at->entityId()))
            ids.push_back(at->entityId());
    return ids;
}

void count(LightSelection& selection, const db::RefEdit& editing) {
    for (const LightsOfSpace& space : selection.spaces) {
        selection.count += space.ids.size();
        selection.inWorkset += static_cast<std::size_t>(
            std::ranges::count_if(space.ids, [&](ZrDbObjectId id) { return editing.holds(*id.entry()); }));
    }
}

} // namespace

int selectLights(Session& session, LightSelection& selection) {
    Wanted wanted;
    if (const int result = askWanted(wanted); result != RTNORM)
        return result;
    Document& document = *session.documents().current();
    selection.all = wanted.all;
    selection.spaces.push_back({{}, lightsOf(document.database()->modelSpaceId(), wanted)});
    for (const db::LayoutInfo& layout : document.drawing().layouts())
        selection.spaces.push_back({layout.name, lightsOf(layout.blockId, wanted)});
    count(selection, document.drawing().refEdit());
    selection.others = wanted.all ? 0 : wanted.ids.size() - selection.count;
    return RTNORM;
}

std::optional<LightFacts> LightReader::next() {
    for (; space_ < selection_.spaces.size(); ++space_, light_ = 0) {
        const LightsOfSpace& space = selection_.spaces[space_];
        while (light_ < space.ids.size()) {
            const ZrDbObjectId id = space.ids[light_++];
            const ZrDbObjectPointer<ZrDbEntity> entity(id, ZrDb::kForRead);
            if (const auto* light = entity ? zrrxCast<ZrDbLight>(entity.object()) : nullptr)
                return factsOf(*light, space.layout, units_);
            say(texts::kListUnreadable, zrFormat(L"%X", {id.handle().value()}));
        }
    }
    return std::nullopt;
}

} // namespace quor::commands
