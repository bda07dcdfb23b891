#include "sdk/db/symbol_table.h"

#include "host/db/data.h"
#include "host/db/database.h"

#include <algorithm>

using quor::db::ObjectEntry;

namespace {

const quor::db::SymbolTable* tableOf(const ZrDbObject& table) {
    return static_cast<const quor::db::TableData&>(*table.hostData()).table;
}

constexpr int kFrozen = 1;
constexpr int kLocked = 4;

// A plain layer name: what may not stand in one would break listings or be taken for a hidden layer.
bool isSymbolName(const ZrString& name) {
    constexpr std::size_t kLongest = 255;
    constexpr std::wstring_view kForbidden = L"<>/\\\":;?*|,=`";
    return !name.empty() && name.size() <= kLongest && std::none_of(name.begin(), name.end(), [&](wchar_t c) {
        return c < L' ' || kForbidden.find(c) != std::wstring_view::npos;
    });
}

const ZrDbLayerTableRecordData& dataOf(const ZrDbLayerTableRecord& layer) {
    return static_cast<const ZrDbLayerTableRecordData&>(*layer.hostData());
}

} // namespace

ZrRxClass* ZrDbSymbolTableRecord::desc() {
    static ZrRxClass description(L"ZrDbSymbolTableRecord", ZrDbObject::desc());
    return &description;
}

ZrRxClass* ZrDbSymbolTable::desc() {
    static ZrRxClass description(L"ZrDbSymbolTable", ZrDbObject::desc());
    return &description;
}

Quor::ErrorStatus ZrDbSymbolTable::getIdAt(std::wstring_view name, ZrDbObjectId& id) const {
    const quor::db::SymbolTable* table = tableOf(*this);
    if (table == nullptr)
        return Quor::eKeyNotFound;
    auto found = table->byName.find(name);
    if (found == table->byName.end() && table->type == "LAYER" && name.starts_with(L'*'))
        found = table->byName.find(name.substr(1));
    if (found == table->byName.end() || found->second->erased)
        return Quor::eKeyNotFound;
    id = ZrDbObjectId(found->second);
    return Quor::eOk;
}

bool ZrDbSymbolTable::has(std::wstring_view name) const {
    ZrDbObjectId id;
    return getIdAt(name, id) == Quor::eOk;
}

std::vector<ZrDbObjectId> ZrDbSymbolTable::recordIds() const {
    std::vector<ZrDbObjectId> ids;
    if (const quor::db::SymbolTable* table = tableOf(*this))
        for (ObjectEntry* entry : table->records)
            if (!entry->erased)
                ids.emplace_back(entry);
    return ids;
}

ZrRxClass* ZrDbLayerTable::desc() {
    static ZrRxClass description(L"ZrDbLayerTable", ZrDbSymbolTable::desc());
    return &description;
}

Quor::ErrorStatus ZrDbLayerTable::add(ZrDbObjectId& id, ZrDbLayerTableRecord* record) {
    if (record == nullptr)
        return Quor::eNullObjectPointer;
    if (!record->objectId().isNull())
        return Quor::eAlreadyInDb;
    if (!isWriteEnabled())
        return Quor::eNotOpenForWrite;
    if (!isSymbolName(record->getName()))
        return Quor::eInvalidName;
    if (has(record->getName()))
        return Quor::eDuplicateKey;
    id = ZrDbObjectId(&database()->host().addLayer(std::unique_ptr<ZrDbLayerTableRecord>(record)));
    return Quor::eOk;
}

ZrDbLayerTableRecord::ZrDbLayerTableRecord() : ZrDbSymbolTableRecord(std::make_unique<ZrDbLayerTableRecordData>()) {}

ZrRxClass* ZrDbLayerTableRecord::desc() {
    static ZrRxClass description(L"ZrDbLayerTableRecord", ZrDbSymbolTableRecord::desc(), L"LAYER");
    return &description;
}

template <class T, class Data>
Quor::ErrorStatus ZrDbLayerTableRecord::change(T Data::*member, const T& value) {
    if (const Quor::ErrorStatus status = aboutToModify(); status != Quor::eOk)
        return status;
    static_cast<ZrDbLayerTableRecordData&>(*data_).*member = value;
    return Quor::eOk;
}

ZrString ZrDbLayerTableRecord::getName() const { return dataOf(*this).name; }

Quor::ErrorStatus ZrDbLayerTableRecord::setName(const ZrString& name) {
    // The table knows its records by name; renaming one that is in it is not offered.
    if (!objectId().isNull())
        return Quor::eNotAllowed;
    return isSymbolName(name) ? change(&ZrDbLayerTableRecordData::name, name) : Quor::eInvalidName;
}

ZrString ZrDbLayerTableRecord::displayName() const { return isHidden() ? L"*" + getName() : getName(); }

ZrCmColor ZrDbLayerTableRecord::color() const { return dataOf(*this).color; }

Quor::ErrorStatus ZrDbLayerTableRecord::setColor(const ZrCmColor& color) {
    if (const Quor::ErrorStatus status = change(&ZrDbLayerTableRecordData::indexBesideTrueColor, 0);
        status != Quor::eOk)
        return status;
    return change(&ZrDbLayerTableRecordData::color, color);
}

bool ZrDbLayerTableRecord::isHidden() const { return dataOf(*this).hidden; }

Quor::ErrorStatus ZrDbLayerTableRecord::setIsHidden(bool hidden) {
    return change(&ZrDbLayerTableRecordData::hidden, hidden);
}

bool ZrDbLayerTableRecord::isPlottable() const { return dataOf(*this).plottable; }

Quor::ErrorStatus ZrDbLayerTableRecord::setIsPlottable(bool plottable) {
    return change(&ZrDbLayerTableRecordData::plottable, plottable);
}

Quor::ErrorStatus ZrDbLayerTableRecord::setFlag(int flag, bool on) {
    const int flags = dataOf(*this).flags;
    return change(&ZrDbLayerTableRecordData::flags, on ? flags | flag : flags & ~flag);
}

bool ZrDbLayerTableRecord::isFrozen() const { return (dataOf(*this).flags & kFrozen) != 0; }

Quor::ErrorStatus ZrDbLayerTableRecord::setIsFrozen(bool frozen) {
    if (frozen && database() != nullptr && database()->currentLayerId() == objectId())
        return Quor::eNotAllowed;
    return setFlag(kFrozen, frozen);
}

bool ZrDbLayerTableRecord::isLocked() const { return (dataOf(*this).flags & kLocked) != 0; }

Quor::ErrorStatus ZrDbLayerTableRecord::setIsLocked(bool locked) { return setFlag(kLocked, locked); }

bool ZrDbLayerTableRecord::isOff() const { return dataOf(*this).off; }

Quor::ErrorStatus ZrDbLayerTableRecord::setIsOff(bool off) { return change(&ZrDbLayerTableRecordData::off, off); }

ZrString ZrDbLayerTableRecord::plotStyleName() const { return dataOf(*this).plotStyle; }

Quor::ErrorStatus ZrDbLayerTableRecord::setPlotStyleName(const ZrString& name) {
    return change(&ZrDbLayerTableRecordData::plotStyle, name);
}

ZrDbObjectId ZrDbLayerTableRecord::linetypeObjectId() const {
    ZrDbDatabase* drawing = database() != nullptr ? database() : zrdbWorkingDatabase();
    return drawing == nullptr ? ZrDbObjectId() : drawing->linetypeId(dataOf(*this).linetype);
}

Quor::ErrorStatus ZrDbLayerTableRecord::setLinetypeObjectId(ZrDbObjectId linetype) {
    const ZrDbObjectPointer<ZrDbSymbolTableRecord> record(linetype, ZrDb::kForRead);
    if (!record)
        return record.openStatus();
    return change(&ZrDbLayerTableRecordData::linetype, record->getName());
}

int ZrDbLayerTableRecord::lineWeight() const { return dataOf(*this).lineWeight; }

Quor::ErrorStatus ZrDbLayerTableRecord::setLineWeight(int weight) {
    return change(&ZrDbLayerTableRecordData::lineWeight, weight);
}
