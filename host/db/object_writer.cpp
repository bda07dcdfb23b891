#include "host/db/object_writer.h"

#include "host/db/entity_fields.h"
#include "host/db/extension_dictionary.h"
#include "host/db/object_reader.h"
#include "host/db/versions.h"
#include "host/db/view_records.h"
#include "host/sys/utf8.h"

namespace quor::db {

namespace {

constexpr int kPlotStyleCode = 390;
constexpr int kMaterialCode = 347;

std::span<const FieldGroup> groupsOf(std::string_view type) {
    if (type == "LIGHT")
        return lightGroups();
    if (type == "LINE")
        return lineGroups();
    if (type == "3DFACE")
        return faceGroups();
    return entityGroups();
}

} // namespace

ObjectWriter::ObjectWriter(Database& database)
    : database_(database), file_(database.file()), context_{database, file_.version()},
      hasSubclasses_(file_.version() >= versions::kFirstWithSubclasses) {}

std::string ObjectWriter::changedEntity(const ObjectEntry& entry) const {
    const std::unique_ptr<ZrDbObjectData> original = readData(database_, entry);
    return rewriteFields(file_, file_.record(entry.record), groupsOf(file_.typeName(entry.type)), *original,
                         *entry.object->hostData(), context_);
}

std::string ObjectWriter::changedLayer(const ObjectEntry& entry) const {
    const std::unique_ptr<ZrDbObjectData> original = readData(database_, entry);
    return rewriteFields(file_, file_.record(entry.record), layerGroups(), *original, *entry.object->hostData(),
                         context_);
}

void ObjectWriter::commonHead(dxf::TagWriter& writer, const ObjectEntry& entry, std::string_view type,
                              std::uint64_t dictionary) const {
    writer.text(0, type);
    // Old files need no handles; those that have none are not given any.
    if (!hasSubclasses_) {
        if (file_.layout().highestHandle != 0)
            writer.handle(5, entry.handle);
        return;
    }
    writer.handle(5, entry.handle);
    if (dictionary != 0) {
        writer.text(102, "{ACAD_XDICTIONARY");
        writer.handle(360, dictionary);
        writer.text(102, "}");
    }
    if (entry.owner != nullptr && entry.owner->handle != 0)
        writer.handle(330, entry.owner->handle);
}

bool ObjectWriter::isOnSheet(const ObjectEntry& entry) const {
    const Block* block = database_.structure().blockOf(entry.owner);
    return block != nullptr && block->isLayout && block != &database_.structure().modelSpace();
}

std::string ObjectWriter::newEntity(const ObjectEntry& entry) const {
    const std::string_view type = file_.typeName(entry.type);
    const ZrDbObjectData& data = *entry.object->hostData();
    const std::uint64_t dictionary = type == "LIGHT" ? as<ZrDbLightData>(data).dictionaryHandle : 0;
    dxf::TagWriter writer = file_.writer();
    commonHead(writer, entry, type, dictionary);
    for (const FieldGroup& group : groupsOf(type)) {
        if (hasSubclasses_)
            writer.text(100, group.subclass);
        if (group.subclass == "AcDbEntity" && isOnSheet(entry))
            writer.integer(67, 1);
        writeFields(writer, file_.codec(), group.fields, data, context_);
    }
    return writer.take();
}

std::string ObjectWriter::newTableRecord(const ObjectEntry& entry) const {
    return file_.typeName(entry.type) == "LAYER" ? newLayer(entry) : newView(entry);
}

std::string ObjectWriter::newView(const ObjectEntry& entry) const {
    dxf::TagWriter writer = file_.writer();
    commonHead(writer, entry, "VIEW", 0);
    if (hasSubclasses_) {
        writer.text(100, "AcDbSymbolTableRecord");
        writer.text(100, "AcDbViewTableRecord");
    }
    for (const FieldGroup& group : viewGroups())
        writeFields(writer, file_.codec(), group.fields, *entry.object->hostData(), context_);
    if (file_.version() < versions::kFirstWithRenderModes)
        return writer.take();
    writer.integer(281, 0); // drawn as lines
    writer.integer(72, 0);  // without a coordinate system of its own
    return writer.take();
}

std::string ObjectWriter::newLayer(const ObjectEntry& entry) const {
    dxf::TagWriter writer = file_.writer();
    commonHead(writer, entry, "LAYER", 0);
    if (hasSubclasses_) {
        writer.text(100, "AcDbSymbolTableRecord");
        writer.text(100, "AcDbLayerTableRecord");
    }
    for (const FieldGroup& group : layerGroups())
        for (const Field& field : group.fields)
            if (file_.version() >= versions::kFirstWithPlotStyles || field.code < 100)
                writeFields(writer, file_.codec(), {&field, 1}, *entry.object->hostData(), context_);
    // The plot style and the material are those of layer 0.
    const ObjectEntry* zero = database_.layers().find(L"0");
    if (zero == nullptr || !zero->isInFile())
        return writer.take();
    dxf::Tag tag;
    if (file_.version() >= versions::kFirstWithPlotStyles &&
        file_.findTag(file_.record(zero->record), kPlotStyleCode, tag))
        writer.handle(kPlotStyleCode, tag.asHandle().value_or(0));
    if (file_.version() >= versions::kFirstWithMaterials &&
        file_.findTag(file_.record(zero->record), kMaterialCode, tag))
        writer.handle(kMaterialCode, tag.asHandle().value_or(0));
    return writer.take();
}

std::string ObjectWriter::photometryDictionary(const ZrDbLightData& light, std::uint64_t lightHandle) const {
    dxf::TagWriter writer = file_.writer();
    writer.text(0, "DICTIONARY");
    writer.handle(5, light.dictionaryHandle);
    writer.handle(330, lightHandle);
    writer.text(100, "AcDbDictionary");
    writer.integer(280, 1);
    writer.integer(281, 1);
    writer.text(3, kPhotometryName);
    writer.handle(360, light.photometryHandle);
    return writer.take();
}

std::string ObjectWriter::photometryRecord(const ZrDbLightData& light) const {
    dxf::TagWriter writer = file_.writer();
    writer.text(0, "XRECORD");
    writer.handle(5, light.photometryHandle);
    writer.text(102, "{ACAD_REACTORS");
    writer.handle(330, light.dictionaryHandle);
    writer.text(102, "}");
    writer.handle(330, light.dictionaryHandle);
    writer.text(100, "AcDbXrecord");
    writer.integer(280, 1);
    for (const FieldGroup& group : photometryGroups())
        writeFields(writer, file_.codec(), group.fields, light, context_);
    return writer.take();
}

std::string ObjectWriter::changedPhotometry(const ObjectEntry& record, const ZrDbObjectData& original,
                                            const ZrDbLightData& light) const {
    return rewriteFields(file_, file_.record(record.record), photometryGroups(), original, light, context_);
}

} // namespace quor::db
