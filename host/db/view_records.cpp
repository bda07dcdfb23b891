#include "host/db/view_records.h"

#include "host/db/database.h"

#include <algorithm>

namespace quor::db {

namespace {

constexpr const char* kType = "VIEW";

void readName(ZrDbObjectData& data, const dxf::Tag& tag, const FieldContext& context) {
    as<ViewData>(data).name = context.database.file().text(tag);
}
FieldValue writeName(const ZrDbObjectData& data, const FieldContext&) { return as<ViewData>(data).name; }

constexpr std::array kFields{
    Field{2, readName, writeName},
    intField<ViewData, &ViewData::flags>(70),
    realField<ViewData, &ViewData::height>(40),
    coordinateField<ViewData, &ViewData::center, &ZrGePoint3d::x>(10),
    coordinateField<ViewData, &ViewData::center, &ZrGePoint3d::y>(20),
    realField<ViewData, &ViewData::width>(41),
    coordinateField<ViewData, &ViewData::direction, &ZrGeVector3d::x>(11),
    coordinateField<ViewData, &ViewData::direction, &ZrGeVector3d::y>(21),
    coordinateField<ViewData, &ViewData::direction, &ZrGeVector3d::z>(31),
    coordinateField<ViewData, &ViewData::target, &ZrGePoint3d::x>(12),
    coordinateField<ViewData, &ViewData::target, &ZrGePoint3d::y>(22),
    coordinateField<ViewData, &ViewData::target, &ZrGePoint3d::z>(32),
    realField<ViewData, &ViewData::lensLength>(42),
    realField<ViewData, &ViewData::frontClip>(43),
    realField<ViewData, &ViewData::backClip>(44),
    realField<ViewData, &ViewData::twistDegrees>(50),
    intField<ViewData, &ViewData::mode>(71),
};

// The records that are not erased.
std::vector<ObjectEntry*> recordsOf(Database& drawing) {
    std::vector<ObjectEntry*> records = drawing.structure().table(kType).records;
    std::erase_if(records, [](const ObjectEntry* record) { return record->erased; });
    return records;
}

ViewData read(Database& drawing, const ObjectEntry& record) {
    if (!record.isInFile())
        return static_cast<const ViewData&>(*record.object->hostData());
    ViewData view;
    const DrawingFile& file = drawing.file();
    readFields(file, file.record(record.record), viewGroups(), view, {drawing, file.version()});
    return view;
}

ObjectEntry* find(Database& drawing, std::wstring_view name) {
    for (ObjectEntry* record : recordsOf(drawing))
        if (equalFolded(read(drawing, *record).name, name))
            return record;
    return nullptr;
}

} // namespace

std::span<const FieldGroup> viewGroups() {
    static const std::array groups{FieldGroup{"AcDbViewTableRecord", kFields}};
    return groups;
}

std::vector<ViewData> viewsOf(Database& drawing) {
    std::vector<ViewData> views;
    for (const ObjectEntry* record : recordsOf(drawing))
        views.push_back(read(drawing, *record));
    return views;
}

std::optional<ViewData> findView(Database& drawing, std::wstring_view name) {
    const ObjectEntry* const record = find(drawing, name);
    return record == nullptr ? std::nullopt : std::optional(read(drawing, *record));
}

void setView(Database& drawing, const ViewData& view) {
    eraseView(drawing, view.name);
    drawing.closeObject(drawing.addTableRecord(kType, std::make_unique<ViewRecord>(view)));
}

bool eraseView(Database& drawing, std::wstring_view name) {
    ObjectEntry* const record = find(drawing, name);
    if (record == nullptr)
        return false;
    // Listeners are told of the object, and told of it again by undo.
    drawing.materialise(*record);
    drawing.journal().erased(*record, true);
    return true;
}

} // namespace quor::db
