#include "host/db/layers.h"

#include "host/db/data.h"
#include "host/db/database.h"

namespace quor::db {

namespace {

// The values of a layer, read from the file when nobody did before.
const ZrDbLayerTableRecordData& dataOf(const ObjectEntry& layer) {
    layer.database->materialise(const_cast<ObjectEntry&>(layer));
    return static_cast<const ZrDbLayerTableRecordData&>(*layer.object->hostData());
}

} // namespace

ObjectEntry* Layers::find(std::wstring_view name) const {
    if (name.starts_with(L'*'))
        name.remove_prefix(1);
    const auto found = table_.byName.find(name);
    return found == table_.byName.end() || found->second->erased ? nullptr : found->second;
}

void Layers::cameBack(ObjectEntry& entry) {
    if (entry.owner != table_.entry)
        return;
    ObjectEntry*& named = table_.byName[dataOf(entry).name];
    if (named == nullptr || named->erased)
        named = &entry;
}

ZrString Layers::outsideName(const ObjectEntry& layer) const {
    const ZrDbLayerTableRecordData& data = dataOf(layer);
    return data.hidden ? L"*" + data.name : data.name;
}

ZrString Layers::nameInFile(const ObjectEntry& layer) const {
    const ZrDbLayerTableRecordData& data = dataOf(layer);
    return data.hidden && marksHiddenLayers(file_.version()) ? L"*" + data.name : data.name;
}

} // namespace quor::db
