#include "sdk/db/object_class.h"

#include "host/db/database.h"
#include "host/db/object_reader.h"

using quor::db::ObjectEntry;
using quor::db::ObjectKind;

ZrRxClass* zrdbObjectClass(ZrDbObjectId id) {
    if (id.isNull())
        return nullptr;
    const ObjectEntry& entry = *id.entry();
    if (entry.object != nullptr)
        return entry.object->isA();
    if (entry.kind == ObjectKind::Entity)
        return quor::db::entityClass(*entry.database, entry);
    const ZrDbObjectPointer<ZrDbObject> object(id, ZrDb::kForRead, true);
    return object ? object->isA() : nullptr;
}
