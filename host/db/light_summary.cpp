// What lists show of a light. A hundred thousand of them are listed in the time in which a few thousand are opened, so
// the values are read from the record, of which most tags are not looked at.
#include "sdk/db/light.h"

#include "host/db/data.h"
#include "host/db/database.h"
#include "host/db/light_tags.h"
#include "host/db/object_reader.h"

#include <utility>

namespace quor::db {

namespace {

// The tags of one subclass of a record, without groups in braces and extended data.
class SubclassTags {
public:
    SubclassTags(const DrawingFile& file, const dxf::Record& record, std::string_view subclass)
        : reader_(file.tags(record)), subclass_(subclass) {}

    // False at the end, and where a record is not laid out as usual: fields are then read by rules of their own.
    [[nodiscard]] bool next(dxf::Tag& tag) {
        while (reader_.next(tag)) {
            if (tag.code >= kFirstExtendedData)
                return false;
            if (tag.code == kGroup)
                isInBraces_ = tag.asTrimmed().starts_with('{');
            else if (tag.code == kMarker && isInBraces_)
                return false;
            else if (tag.code == kMarker)
                isInside_ = tag.asTrimmed() == subclass_;
            else if (isInside_ && !isInBraces_)
                return true;
        }
        return false;
    }

private:
    static constexpr int kMarker = 100;
    static constexpr int kGroup = 102;
    static constexpr int kFirstExtendedData = 1000;

    dxf::TagReader reader_;
    std::string_view subclass_;
    bool isInside_ = false;
    bool isInBraces_ = false;
};

// Whether the record names both; of a code that occurs again, the first tag counts.
bool readNameAndType(const DrawingFile& file, const dxf::Record& record, ZrString& name, DrawableType& type) {
    SubclassTags tags(file, record, light_tags::kLight);
    dxf::Tag tag;
    bool hasName = false;
    bool hasType = false;
    while (!(hasName && hasType) && tags.next(tag) && tag.code != light_tags::kLast) {
        if (tag.code == light_tags::kName && !std::exchange(hasName, true))
            name = file.codec().decode(tag.raw);
        else if (tag.code == light_tags::kType && !std::exchange(hasType, true))
            type = light_tags::typeIn(tag).value_or(DrawableType::kPointLight);
    }
    return hasName && hasType;
}

// Whether the photometric data say so, or there are none.
bool readWeb(Database& database, const ObjectEntry& light, DrawableType& type) {
    const ObjectEntry* const photometry = findPhotometry(database, light).record;
    if (photometry == nullptr)
        return true;
    const DrawingFile& file = database.file();
    SubclassTags tags(file, file.record(photometry->record), light_tags::kPhotometry);
    dxf::Tag tag;
    while (tags.next(tag))
        if (tag.code == light_tags::kHasWeb) {
            type = light_tags::withWeb(type, tag);
            return true;
        }
    return false;
}

// False when the record leaves something out, or has it in another place than usual.
bool readSummary(Database& database, const ObjectEntry& light, ZrDbLightSummary& summary) {
    const DrawingFile& file = database.file();
    auto type = DrawableType::kPointLight;
    if (!readNameAndType(file, file.record(light.record), summary.name, type))
        return false;
    if (type == DrawableType::kPointLight && !readWeb(database, light, type))
        return false;
    summary.type = static_cast<int>(type);
    return true;
}

bool isLight(const ObjectEntry& entry) {
    if (entry.object != nullptr)
        return entry.object->isA() == ZrDbLight::desc();
    return entry.kind == ObjectKind::Entity && entry.database->file().typeName(entry.type) == "LIGHT";
}

} // namespace

} // namespace quor::db

Quor::ErrorStatus zrdbLightSummary(ZrDbObjectId id, ZrDbLightSummary& summary) {
    if (id.isNull())
        return Quor::eNullObjectId;
    quor::db::ObjectEntry& entry = *id.entry();
    if (entry.erased)
        return Quor::eWasErased;
    if (entry.writing)
        return Quor::eWasOpenForWrite;
    if (!quor::db::isLight(entry))
        return Quor::eNotThatKindOfClass;
    if (entry.object == nullptr && quor::db::readSummary(*entry.database, entry, summary))
        return Quor::eOk;
    entry.database->materialise(entry);
    const auto& light = static_cast<const ZrDbLight&>(*entry.object);
    summary.name = light.name();
    summary.type = static_cast<int>(light.lightType());
    return Quor::eOk;
}
