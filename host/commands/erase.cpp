#include "host/commands/ask.h"
#include "host/commands/commands.h"
#include "host/document.h"
#include "host/props/layer_rows.h"
#include "host/session.h"
#include "host/texts/commands.h"
#include "sdk/db/entity.h"

namespace quor::commands {

namespace {

struct Tally {
    int erased = 0;
    int locked = 0;
    int refused = 0;
};

void eraseOne(ZrDbObjectId id, Tally& tally) {
    const ZrDbObjectPointer<ZrDbEntity> entity(id, ZrDb::kForWrite);
    if (!entity)
        ++tally.refused;
    else if (props::isOnLockedLayer(*entity))
        ++tally.locked;
    else
        ++(entity->erase() == Quor::eOk ? tally.erased : tally.refused);
}

} // namespace

// What is selected is what the next command works on, so the selection is asked anew and becomes the pick-first one.
// Enter alone selects nothing; Esc leaves the selection as it was.
int select(Session&) {
    const ZrDbObjectIdArray before = zredImpliedSelection();
    zredSetImpliedSelection({});
    ZrDbObjectIdArray ids;
    const int result = zredSelect(nullptr, ids);
    zredSetImpliedSelection(result == RTNORM || result == RTNONE ? ids : before);
    if (result != RTNORM && result != RTNONE)
        return result;
    say(texts::kSelected, ids.size());
    return RTNORM;
}

int erase(Session&) {
    ZrDbObjectIdArray ids;
    if (const int result = zredSelect(nullptr, ids); result != RTNORM)
        return result == RTNONE ? RTNORM : result;
    Tally tally;
    for (const ZrDbObjectId id : ids)
        eraseOne(id, tally);
    zredSetImpliedSelection({});
    if (tally.erased > 0)
        say(texts::kErased, tally.erased);
    if (tally.locked > 0)
        say(texts::kOnLockedLayer, tally.locked);
    if (tally.refused > 0)
        say(texts::kNotErased, tally.refused);
    return tally.erased > 0 ? RTNORM : RTERROR;
}

} // namespace quor::commands
