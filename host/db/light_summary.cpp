// What lists show of a light. A hundred thousand of them are listed in the time in which a few thousand are opened, so
// the values are read from the record, of which most tags are not looked at.
#include "sdk/db/light.h"

#include "host/db/data.h"
#include "host/db/database.h"
#include "host/db/extension_dictionary.h"
#include "host/db/light_tags.h"

#include <optional>
#include <utility>

namespace quor::db {

namespace {

// The tags with wanted codes of a record that is laid out as usual, with the place where each one stands.
class UsualTags {
public:
    UsualTags(const DrawingFile& file, const dxf::Record& record, const dxf::CodeSet& wanted)
        : reader_(file.tags(record)), wanted_(wanted) {}

    // False at the end, and where a record is not laid out as usual: fields are then read by rules of their own.
    [[nodiscard]] bool next(dxf::Tag& tag) {
        while (reader_.next(tag, wanted_)) {
            if (tag.code >= dxf::CodeSet::kFirstExtendedData)
                return false;
            if (tag.code == kGroup) {
                const std::string_view text = tag.asTrimmed();
                group_ = text.starts_with('{') ? text : std::string_view();
            } else if (tag.code == kMarker) {
                subclass_ = tag.asTrimmed();
                if (!group_.empty() || subclass_.empty())
                    return false;
            } else {
                return true;
            }
        }
        return false;
    }

    [[nodiscard]] bool isIn(std::string_view subclass) const { return group_.empty() && subclass_ == subclass; }
    [[nodiscard]] bool isInHead(std::string_view group) const { return subclass_.empty() && group_ == group; }

    static constexpr int kMarker = 100;
    static constexpr int kGroup = 102;

private:
    dxf::TagReader reader_;
    const dxf::CodeSet& wanted_;
    std::string_view group_;    // with its brace; empty outside of all
    std::string_view subclass_; // empty before the first
};

struct LightRecord {
    std::string_view name; // as in the file
    DrawableType type = DrawableType::kPointLight;
    std::uint64_t dictionary = 0;
};

// Nothing when the record does not name both; of a code that occurs again, the first tag counts.
std::optional<LightRecord> readLight(const DrawingFile& file, const dxf::Record& record) {
    using namespace light_tags;
    static constexpr dxf::CodeSet kWanted{UsualTags::kMarker, UsualTags::kGroup, kName, kType, kLast, 350, 360};
    UsualTags tags(file, record, kWanted);
    LightRecord light;
    bool hasName = false;
    bool hasType = false;
    bool hasDictionary = false;
    dxf::Tag tag;
    while (!(hasName && hasType) && tags.next(tag)) {
        if (isOwnedHandle(tag.code)) {
            if (tags.isInHead(kExtensionDictionaryGroup) && !std::exchange(hasDictionary, true))
                light.dictionary = tag.asHandle().value_or(0);
        } else if (!tags.isIn(kLight)) {
            continue;
        } else if (tag.code == kLast) {
            break;
        } else if (tag.code == kName && !std::exchange(hasName, true)) {
            light.name = tag.raw;
        } else if (tag.code == kType && !std::exchange(hasType, true)) {
            light.type = typeIn(tag).value_or(DrawableType::kPointLight);
        }
    }
    return hasName && hasType ? std::optional(light) : std::nullopt;
}

// The type with what the photometric data say of a web; nothing when they say nothing of it.
std::optional<DrawableType> withPhotometry(Database& database, const LightRecord& light) {
    static constexpr dxf::CodeSet kWanted{UsualTags::kMarker, UsualTags::kGroup, light_tags::kHasWeb};
    const ObjectEntry* const photometry = findPhotometry(database, light.dictionary).record;
    if (photometry == nullptr)
        return light.type;
    const DrawingFile& file = database.file();
    UsualTags tags(file, file.record(photometry->record), kWanted);
    dxf::Tag tag;
    while (tags.next(tag))
        if (tags.isIn(light_tags::kPhotometry))
            return light_tags::withWeb(light.type, tag);
    return std::nullopt;
}

// False when the record leaves something out, or has it in another place than usual.
bool readSummary(Database& database, const ObjectEntry& entry, ZrDbLightSummary& summary) {
    const DrawingFile& file = database.file();
    const std::optional<LightRecord> light = readLight(file, file.record(entry.record));
    if (!light)
        return false;
    std::optional type = light->type;
    if (type == DrawableType::kPointLight)
        type = withPhotometry(database, *light);
    if (!type)
        return false;
    summary.name = file.codec().decode(light->name);
    summary.type = static_cast<int>(*type);
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
