#include "sdk/db/object.h"

#include "host/db/database.h"

using quor::db::ObjectEntry;

namespace {

// Entities, and the layers that a drawing can do without: what else there is holds the drawing together.
bool canBeErased(const ObjectEntry& entry) {
    if (entry.kind == quor::db::ObjectKind::Entity)
        return true;
    quor::db::Database& database = *entry.database;
    return entry.owner != nullptr && entry.owner == database.layers().table().entry &&
           &entry != database.layers().find(L"0") && &entry != database.currentLayer();
}

} // namespace

bool ZrDbObjectId::isErased() const { return entry_ != nullptr && entry_->erased; }

ZrDbHandle ZrDbObjectId::handle() const { return ZrDbHandle(entry_ == nullptr ? 0 : entry_->handle); }

ZrDbDatabase* ZrDbObjectId::database() const { return entry_ == nullptr ? nullptr : &entry_->database->interface(); }

ZrDbObject::ZrDbObject(std::unique_ptr<ZrDbObjectData> data) : data_(std::move(data)) {}

ZrDbObject::~ZrDbObject() = default;

ZrRxClass* ZrDbObject::desc() {
    static ZrRxClass description(L"ZrDbObject", ZrRxObject::desc());
    return &description;
}

ZrDbObjectId ZrDbObject::ownerId() const { return id_.isNull() ? ZrDbObjectId() : ZrDbObjectId(id_.entry()->owner); }

Quor::ErrorStatus ZrDbObject::close() {
    if (!id_.isNull())
        id_.entry()->database->closeObject(*id_.entry());
    return Quor::eOk;
}

bool ZrDbObject::isWriteEnabled() const { return id_.isNull() || id_.entry()->writing; }

bool ZrDbObject::isModified() const { return id_.isNull() || id_.entry()->changed; }

Quor::ErrorStatus ZrDbObject::aboutToModify() {
    if (id_.isNull())
        return Quor::eOk;
    ObjectEntry& entry = *id_.entry();
    if (!entry.writing)
        return Quor::eNotOpenForWrite;
    entry.database->journal().aboutToModify(entry);
    return Quor::eOk;
}

Quor::ErrorStatus ZrDbObject::erase(bool erasing) {
    if (id_.isNull())
        return Quor::eNotInDatabase;
    ObjectEntry& entry = *id_.entry();
    if (!entry.writing)
        return Quor::eNotOpenForWrite;
    if (!canBeErased(entry))
        return Quor::eNotAllowed;
    if (entry.erased == erasing)
        return Quor::eOk;
    entry.eraseToAnnounce = !entry.eraseToAnnounce;
    entry.database->journal().erased(entry, erasing);
    return Quor::eOk;
}

Quor::ErrorStatus zrdbOpenObject(ZrDbObject*& object, ZrDbObjectId id, ZrDb::OpenMode mode, bool openErased) {
    object = nullptr;
    if (id.isNull())
        return Quor::eNullObjectId;
    return id.entry()->database->openObject(object, *id.entry(), mode, openErased);
}
