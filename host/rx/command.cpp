#include "sdk/rx/command.h"

#include "host/db/database.h"
#include "host/ed/command_processor.h"
#include "host/session.h"
#include "host/sys/case_fold.h"
#include "sdk/db/block_table.h"
#include "sdk/db/database.h"
#include "sdk/db/entity.h"
#include "sdk/sys/ads.h"

namespace {

// A space by the name of its block ("*Model_Space") or of its layout; null when there is none.
ZrDbObjectId spaceNamed(ZrDbDatabase& database, const ZrString& name) {
    for (const quor::db::LayoutInfo& layout : database.host().layouts())
        if (quor::equalFolded(layout.name, name))
            return layout.blockId;
    ZrDbBlockTable* table = nullptr;
    if (database.getBlockTable(table, ZrDb::kForRead) != Quor::eOk)
        return {};
    ZrDbObjectId id;
    const Quor::ErrorStatus status = table->getIdAt(name, id);
    table->close();
    return status == Quor::eOk ? id : ZrDbObjectId();
}

} // namespace

ZrDbObjectId RxCommand::postToDb(ZrDbEntity& entity, const wchar_t* spaceName, ZrDbDatabase* database, bool close) {
    ZrDbDatabase* target = database != nullptr ? database : zrdbWorkingDatabase();
    if (target == nullptr)
        return {};
    const ZrDbObjectId spaceId = spaceName == nullptr ? target->currentSpaceId() : spaceNamed(*target, spaceName);
    ZrDbObjectPointer<ZrDbBlockTableRecord> space(spaceId, ZrDb::kForWrite);
    ZrDbObjectId id;
    if (!space || space->appendZrDbEntity(id, &entity) != Quor::eOk)
        return {};
    if (close)
        entity.close();
    return id;
}

bool RxCommand::getVar(const wchar_t* name, short& value) { return zwutads::getVar(name, value); }

bool RxCommand::isCalledByCommand() { return zwutads::isCalledLispOrArx(); }
