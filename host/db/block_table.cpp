#include "sdk/db/block_table.h"

#include "host/db/data.h"
#include "host/db/database.h"
#include "host/db/light_names.h"
#include "host/sys/utf8.h"
#include "sdk/db/light.h"

#include <algorithm>

using quor::db::Block;
using quor::db::BlockRecordData;
using quor::db::ObjectEntry;

namespace {

Block& blockOf(const ZrDbBlockTableRecord& record) {
    return *static_cast<const BlockRecordData&>(*record.hostData()).block;
}

// Walks a list of entries that may grow while it is walked.
class EntryIterator final : public ZrDbBlockTableRecordIterator {
public:
    explicit EntryIterator(const std::vector<ObjectEntry*>& entries) : entries_(entries) { start(); }

    void start() override {
        at_ = 0;
        skipErased();
    }
    [[nodiscard]] bool done() const override { return at_ >= entries_.size(); }
    void step() override {
        ++at_;
        skipErased();
    }
    [[nodiscard]] ZrDbObjectId entityId() const override {
        return done() ? ZrDbObjectId() : ZrDbObjectId(entries_[at_]);
    }

private:
    void skipErased() {
        while (at_ < entries_.size() && entries_[at_]->erased)
            ++at_;
    }

    const std::vector<ObjectEntry*>& entries_;
    std::size_t at_ = 0;
};

const std::vector<ObjectEntry*>& entitiesOf(const ZrDbBlockTableRecord& record, const ZrRxClass* entityClass) {
    quor::db::Database& database = record.database()->host();
    const wchar_t* name = entityClass->dxfName();
    const auto type = database.file().typeNumber(quor::toUtf8(name == nullptr ? L"" : name));
    return database.structure().entitiesOf(blockOf(record), type);
}

} // namespace

ZrRxClass* ZrDbBlockTableRecord::desc() {
    static ZrRxClass description(L"ZrDbBlockTableRecord", ZrDbSymbolTableRecord::desc(), L"BLOCK_RECORD");
    return &description;
}

ZrRxClass* ZrDbBlockTable::desc() {
    static ZrRxClass description(L"ZrDbBlockTable", ZrDbSymbolTable::desc());
    return &description;
}

ZrString ZrDbBlockTableRecord::getName() const { return blockOf(*this).name; }

bool ZrDbBlockTableRecord::isLayout() const { return blockOf(*this).isLayout; }

std::unique_ptr<ZrDbBlockTableRecordIterator> ZrDbBlockTableRecord::newIterator() const {
    return std::make_unique<EntryIterator>(blockOf(*this).entities);
}

std::unique_ptr<ZrDbBlockTableRecordIterator> ZrDbBlockTableRecord::newIterator(const ZrRxClass* entityClass) const {
    return std::make_unique<EntryIterator>(entitiesOf(*this, entityClass));
}

std::size_t ZrDbBlockTableRecord::entityCount(const ZrRxClass* entityClass) const {
    const auto& entries = entitiesOf(*this, entityClass);
    return static_cast<std::size_t>(
        std::count_if(entries.begin(), entries.end(), [](const ObjectEntry* entry) { return !entry->erased; }));
}

bool ZrDbBlockTableRecord::hasLightNamed(const ZrString& name, ZrDbObjectId except) const {
    std::uint32_t count = quor::db::LightNames::of(database()->host(), blockOf(*this)).count(name);
    const auto* light =
        except.isNull() || except.isErased() ? nullptr : zrrxCast<ZrDbLight>(except.entry()->object.get());
    if (light != nullptr && except.entry()->owner == blockOf(*this).record && quor::equalFolded(light->name(), name))
        --count;
    return count > 0;
}

short ZrDbBlockTableRecord::freeLightNumber(const ZrString& prefix, short start) const {
    return quor::db::LightNames::of(database()->host(), blockOf(*this)).nextFree(prefix, start);
}

Quor::ErrorStatus ZrDbBlockTableRecord::appendZrDbEntity(ZrDbObjectId& id, ZrDbEntity* entity) {
    if (entity == nullptr)
        return Quor::eNullObjectPointer;
    if (!entity->objectId().isNull())
        return Quor::eAlreadyInDb;
    if (!isWriteEnabled())
        return Quor::eNotOpenForWrite;
    id = ZrDbObjectId(&database()->host().appendEntity(blockOf(*this), std::unique_ptr<ZrDbEntity>(entity)));
    return Quor::eOk;
}
