#include "host/db/object_reader.h"

#include "host/db/data.h"
#include "host/db/database.h"
#include "host/db/entity_fields.h"
#include "host/db/extension_dictionary.h"
#include "host/db/raw_objects.h"
#include "sdk/db/face.h"
#include "sdk/db/line.h"

#include <array>

namespace quor::db {

namespace {

// Where a kind of object reads its values from, and how it is made.
struct EntityKind {
    std::string_view type;
    std::unique_ptr<ZrDbObject> (*make)();
    ZrRxClass* (*desc)();
    std::span<const FieldGroup> (*groups)();
};

template <class T>
std::unique_ptr<ZrDbObject> make() {
    return std::make_unique<T>();
}

template <class T>
constexpr EntityKind kind(std::string_view type, std::span<const FieldGroup> (*groups)()) {
    return {type, make<T>, T::desc, groups};
}

constexpr std::array kEntityKinds{
    kind<ZrDbLight>("LIGHT", lightGroups), kind<ZrDbLine>("LINE", lineGroups), kind<ZrDbFace>("3DFACE", faceGroups),
    kind<RawEntity>("", entityGroups), // everything else
};

const EntityKind& entityKind(std::string_view type) {
    for (const EntityKind& kind : kEntityKinds)
        if (kind.type == type)
            return kind;
    return kEntityKinds.back();
}

void readPhotometry(Database& database, const ObjectEntry& entry, ZrDbLightData& light, const FieldContext& context) {
    const PhotometryPlace place = findPhotometry(database, entry);
    // Without photometric data there is no flag for the target: the kinds that aim have one.
    light.hasTarget = light.type != DrawableType::kPointLight;
    if (place.dictionary != nullptr)
        light.dictionaryHandle = place.dictionary->handle;
    if (place.record == nullptr)
        return;
    light.photometryHandle = place.record->handle;
    readFields(database.file(), database.file().record(place.record->record), photometryGroups(), light, context);
}

// A face without a fourth corner is a triangle.
void closeTriangle(const DrawingFile& file, const ObjectEntry& entry, ZrDbFaceData& face) {
    constexpr int kFourthCorner = 13;
    dxf::Tag tag;
    if (!file.findTag(file.record(entry.record), kFourthCorner, tag))
        face.vertices[3] = face.vertices[2];
}

void readEntity(Database& database, const ObjectEntry& entry, const EntityKind& kind, ZrDbObjectData& data) {
    const DrawingFile& file = database.file();
    const FieldContext context{database, file.version()};
    readFields(file, file.record(entry.record), kind.groups(), data, context);
    if (kind.type == "LIGHT")
        readPhotometry(database, entry, static_cast<ZrDbLightData&>(data), context);
    else if (kind.type == "3DFACE")
        closeTriangle(file, entry, static_cast<ZrDbFaceData&>(data));
}

ZrString recordName(Database& database, const ObjectEntry& entry) {
    dxf::Tag tag;
    const DrawingFile& file = database.file();
    return entry.isInFile() && file.findTag(file.record(entry.record), 2, tag) ? file.text(tag) : ZrString();
}

void readLayer(Database& database, const ObjectEntry& entry, ZrDbObjectData& data) {
    const DrawingFile& file = database.file();
    readFields(file, file.record(entry.record), layerGroups(), data, {database, file.version()});
}

std::unique_ptr<ZrDbObject> readTable(Database& database, ObjectEntry& entry) {
    auto data = std::make_unique<TableData>();
    for (const std::string_view type : {"LAYER", "BLOCK_RECORD"})
        if (SymbolTable& table = database.structure().table(type); table.entry == &entry) {
            data->table = &table;
            if (type == "LAYER")
                return std::make_unique<ZrDbLayerTable>(std::move(data));
            return std::make_unique<ZrDbBlockTable>(std::move(data));
        }
    return std::make_unique<RawTable>(std::move(data));
}

std::unique_ptr<ZrDbObject> readTableRecord(Database& database, ObjectEntry& entry) {
    if (Block* block = database.structure().blockOf(&entry)) {
        auto data = std::make_unique<BlockRecordData>();
        data->block = block;
        return std::make_unique<ZrDbBlockTableRecord>(std::move(data));
    }
    if (database.file().typeName(entry.type) == "LAYER") {
        auto layer = std::make_unique<ZrDbLayerTableRecord>();
        if (entry.isInFile())
            readLayer(database, entry, *layer->hostData());
        return layer;
    }
    return std::make_unique<RawTableRecord>(recordName(database, entry));
}

} // namespace

std::unique_ptr<ZrDbObjectData> readData(Database& database, const ObjectEntry& entry) {
    if (entry.kind == ObjectKind::TableRecord) {
        auto data = std::make_unique<ZrDbLayerTableRecordData>();
        readLayer(database, entry, *data);
        return data;
    }
    const EntityKind& kind = entityKind(database.file().typeName(entry.type));
    std::unique_ptr<ZrDbObjectData> data = std::move(kind.make()->hostData());
    readEntity(database, entry, kind, *data);
    return data;
}

ZrRxClass* entityClass(const Database& database, const ObjectEntry& entry) {
    return entityKind(database.file().typeName(entry.type)).desc();
}

std::unique_ptr<ZrDbObject> readObject(Database& database, ObjectEntry& entry) {
    switch (entry.kind) {
    case ObjectKind::Entity: {
        const EntityKind& kind = entityKind(database.file().typeName(entry.type));
        std::unique_ptr<ZrDbObject> entity = kind.make();
        readEntity(database, entry, kind, *entity->hostData());
        return entity;
    }
    case ObjectKind::TableRecord:
        return readTableRecord(database, entry);
    case ObjectKind::Table:
        return readTable(database, entry);
    default:
        return std::make_unique<RawObject>();
    }
}

} // namespace quor::db
