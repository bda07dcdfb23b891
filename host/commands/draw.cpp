#include "host/commands/draw.h"

#include "host/texts/commands.h"
#include "sdk/rx/command.h"

namespace quor::commands {

ZrDbObjectId post(std::unique_ptr<ZrDbEntity> entity) {
    const ZrDbObjectId id = RxCommand::postToDb(*entity, nullptr, nullptr, true);
    if (id.isNull())
        say(texts::kNotAppended);
    else
        static_cast<void>(entity.release()); // the drawing's now
    return id;
}

void eraseAgain(ZrDbObjectId id) {
    const ZrDbObjectPointer<ZrDbEntity> entity(id, ZrDb::kForWrite);
    if (entity)
        entity->erase();
}

} // namespace quor::commands
