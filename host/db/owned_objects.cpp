#include "host/db/owned_objects.h"

#include "host/db/extension_dictionary.h"

#include <unordered_set>

namespace quor::db {

bool OwnedObjects::holdsDrawing(const ObjectEntry& object) const {
    return &object == database_.structure().rootDictionary() ||
           &object == database_.variableDictionary().dictionary() ||
           database_.file().typeName(object.type) == "DICTIONARYVAR";
}

OwnedObjects::ByOwner OwnedObjects::index() const {
    const dxf::Layout& layout = database_.file().layout();
    ByOwner found;
    for (const dxf::Section& section : layout.sections) {
        if (section.name != "OBJECTS")
            continue;
        for (std::size_t i = section.firstRecord; i < section.lastRecord; ++i) {
            const dxf::Record& record = layout.records[i];
            // An object whose handle another one has too cannot be told from that.
            const ObjectEntry* object = record.owner == 0 ? nullptr : database_.objects().find(record.handle);
            if (object != nullptr && object->record == i && !holdsDrawing(*object))
                found.emplace(record.owner, object);
        }
    }
    return found;
}

std::vector<const ObjectEntry*> OwnedObjects::of(const ObjectEntry& entity) {
    if (!byOwner_)
        byOwner_ = index();
    const DrawingFile& file = database_.file();
    std::vector<const ObjectEntry*> owned;
    std::unordered_set<const ObjectEntry*> known;
    const auto add = [&](const ObjectEntry& object) {
        if (known.insert(&object).second)
            owned.push_back(&object);
    };
    const auto addOwnedBy = [&](std::uint64_t owner) {
        const auto [begin, end] = byOwner_->equal_range(owner);
        for (auto at = begin; at != end; ++at)
            add(*at->second);
    };
    // The first record is the entity itself, what follows are its vertices or attributes.
    for (std::uint32_t i = 0; i < entity.recordCount; ++i) {
        const dxf::Record& record = file.record(entity.record + i);
        const ObjectEntry* named = database_.objects().find(record.handle);
        if (record.handle != 0 && named == (i == 0 ? &entity : nullptr))
            addOwnedBy(record.handle);
        // A dictionary of an older drawing does not name its owner.
        const ObjectEntry* dictionary = extensionDictionary(database_, record);
        if (dictionary != nullptr && file.record(dictionary->record).owner == 0 && !holdsDrawing(*dictionary))
            add(*dictionary);
    }
    for (std::size_t i = 0; i < owned.size(); ++i)
        addOwnedBy(owned[i]->handle);
    return owned;
}

} // namespace quor::db
