#include "host/db/saver.h"

#include "host/db/entity_fields.h"
#include "host/db/extension_dictionary.h"
#include "host/db/object_reader.h"
#include "host/db/object_writer.h"
#include "host/db/owned_objects.h"
#include "host/db/ref_edit.h"
#include "host/db/save_settings.h"
#include "host/db/versions.h"
#include "host/sys/utf8.h"
#include "host/texts/drawing_files.h"
#include "host/texts/ref_edit.h"

#include <algorithm>
#include <unordered_set>

namespace quor::db {

namespace {

// Collects what a save changes, section by section.
class Collector {
public:
    explicit Collector(Database& database)
        : database_(database), file_(database.file()), writer_(database), sections_(database.file()), owned_(database) {
    }

    Result<dxf::PatchList, FileProblem> run(const ZrString& name) {
        for (ObjectEntry* entry : database_.objects().touched())
            collect(*entry);
        if (lights_ > 0 && file_.version() < versions::kFirstWithLights)
            return fail(FileProblem{fill(texts::kVersionHoldsNoLights, name, file_.versionName())});
        SettingsToSave settings(database_, sections_);
        settings.collect(patches_, highestHandle_);
        settings.countLights(patches_, lightChange_);
        settings.raiseSeed(patches_, highestHandle_);
        sections_.finish(patches_, database_.mendsOnSave());
        return std::move(patches_);
    }

private:
    void collect(ObjectEntry& entry) {
        const bool isLight = entry.kind == ObjectKind::Entity && file_.typeName(entry.type) == "LIGHT";
        if (entry.isInFile() && entry.erased) {
            remove(entry, isLight);
            lightChange_ -= isLight ? 1 : 0;
        } else if (!entry.erased && entry.changed) {
            lights_ += isLight ? 1 : 0;
            if (entry.isInFile()) {
                rewrite(entry, isLight);
            } else {
                add(entry, isLight);
                lightChange_ += isLight ? 1 : 0;
            }
        }
    }

    // Goes with all objects that belong to it.
    void remove(const ObjectEntry& entry, bool isLight) {
        patches_.remove(file_.record(entry.record).begin, lastRecord(entry).end());
        std::vector<const ObjectEntry*> parts = owned_.of(entry);
        if (isLight) {
            const PhotometryPlace place = findPhotometry(database_, entry);
            parts.insert(parts.end(), {place.dictionary, place.record});
        }
        for (const ObjectEntry* part : parts)
            if (part != nullptr && isOwn(*part))
                patches_.remove(file_.record(part->record).begin, file_.record(part->record).end());
    }

    void rewrite(ObjectEntry& entry, bool isLight) {
        const dxf::Record& record = file_.record(entry.record);
        if (entry.kind == ObjectKind::TableRecord) {
            patches_.replace(record.begin, record.end(), writer_.changedLayer(entry));
            return;
        }
        std::string bytes = writer_.changedEntity(entry);
        if (isLight)
            rewritePhotometry(entry, bytes);
        if (bytes != file_.bytes().substr(record.begin, record.length))
            patches_.replace(record.begin, record.end(), std::move(bytes));
    }

    // Photometric data that differ from those in the file; a light that has none there gets them.
    void rewritePhotometry(ObjectEntry& entry, std::string& lightBytes) {
        const auto& light = static_cast<const ZrDbLightData&>(*entry.object->hostData());
        const std::unique_ptr<ZrDbObjectData> original = readData(database_, entry);
        if (!fieldsDiffer(photometryGroups().front().fields, *original, light, {database_, file_.version()}))
            return;
        const PhotometryPlace place = findPhotometry(database_, entry);
        if (place.record != nullptr && !isOwn(*place.record))
            return;
        if (place.record != nullptr) {
            const dxf::Record& record = file_.record(place.record->record);
            patches_.replace(record.begin, record.end(), writer_.changedPhotometry(*place.record, *original, light));
            return;
        }
        if (place.dictionary != nullptr && !isOwn(*place.dictionary))
            return;
        if (place.dictionary == nullptr) {
            insertDictionaryLink(entry, lightBytes, light.dictionaryHandle);
            // A light without a handle in the file cannot be named as owner.
            sections_.addObject(writer_.photometryDictionary(light, file_.record(entry.record).handle));
        } else {
            dxf::TagWriter link = file_.writer();
            link.text(3, kPhotometryName);
            link.handle(360, light.photometryHandle);
            patches_.insert(file_.record(place.dictionary->record).end(), link.take());
        }
        sections_.addObject(writer_.photometryRecord(light));
        noteHandle(std::max(light.photometryHandle, light.dictionaryHandle));
    }

    // Puts the extension dictionary's group behind the handle of a light that had none.
    void insertDictionaryLink(const ObjectEntry& entry, std::string& lightBytes, std::uint64_t dictionary) const {
        dxf::TagReader reader(lightBytes, file_.layout().form, 0, lightBytes.size());
        dxf::Tag tag;
        while (reader.next(tag))
            if (tag.code == 5 && tag.asHandle() == entry.handle)
                break;
        dxf::TagWriter link = file_.writer();
        link.text(102, "{ACAD_XDICTIONARY");
        link.handle(360, dictionary);
        link.text(102, "}");
        lightBytes.insert(tag.end, link.take());
    }

    void add(const ObjectEntry& entry, bool isLight) {
        noteHandle(entry.handle);
        if (entry.kind == ObjectKind::TableRecord) {
            sections_.addTableRecord(database_.structure().table(file_.typeName(entry.type)),
                                     writer_.newTableRecord(entry));
            return;
        }
        const Block* block = database_.structure().blockOf(entry.owner);
        sections_.addEntity(block->insertAt, writer_.newEntity(entry));
        if (!isLight)
            return;
        const auto& light = static_cast<const ZrDbLightData&>(*entry.object->hostData());
        sections_.addObject(writer_.photometryDictionary(light, entry.handle));
        sections_.addObject(writer_.photometryRecord(light));
        noteHandle(light.photometryHandle);
    }

    // Lights of a faulty drawing may share their photometric data: only the first to need a change of them gets it.
    bool isOwn(const ObjectEntry& part) { return patchedParts_.insert(&part).second; }

    void noteHandle(std::uint64_t handle) { highestHandle_ = std::max(highestHandle_, handle); }

    [[nodiscard]] const dxf::Record& lastRecord(const ObjectEntry& entry) const {
        return file_.record(entry.record + entry.recordCount - 1);
    }

    Database& database_;
    DrawingFile& file_;
    ObjectWriter writer_;
    SectionAdditions sections_;
    OwnedObjects owned_;
    dxf::PatchList patches_;
    std::unordered_set<const ObjectEntry*> patchedParts_;
    std::uint64_t highestHandle_ = 0;
    std::int64_t lights_ = 0;      // touched ones that the drawing has
    std::int64_t lightChange_ = 0; // more or fewer than in the file
};

} // namespace

Result<dxf::PatchList, FileProblem> collectPatches(Database& database, const ZrString& file) {
    // The working set stands where its block is: a file would have both.
    if (const RefEdit& editing = database.refEdit(); editing.isActive())
        return fail(FileProblem{fill(texts::kNotSavedWhileEditing, editing.blockName())});
    return Collector(database).run(file);
}

std::string objectBytes(Database& database, const ObjectEntry& entry) {
    const ObjectWriter writer(database);
    if (!entry.isInFile())
        return entry.kind == ObjectKind::Entity ? writer.newEntity(entry) : writer.newTableRecord(entry);
    if (entry.changed)
        return entry.kind == ObjectKind::Entity ? writer.changedEntity(entry) : writer.changedLayer(entry);
    const dxf::Record& record = database.file().record(entry.record);
    return std::string(database.file().bytes().substr(record.begin, record.length));
}

namespace {

// Bytes as a drawing of text has them.
ZrString hexText(std::string_view bytes) {
    constexpr const wchar_t* digits = L"0123456789ABCDEF";
    ZrString text;
    text.reserve(2 * bytes.size());
    for (const char c : bytes) {
        const auto byte = static_cast<unsigned char>(c);
        text += digits[byte >> 4];
        text += digits[byte & 0xF];
    }
    return text;
}

} // namespace

ZrString tagText(const DrawingFile& file, const dxf::Tag& tag) {
    if (file.layout().form == dxf::Form::Ascii)
        return file.codec().decode(tag.raw);
    switch (dxf::kindOf(tag.code)) {
    case dxf::ValueKind::Double:
        return fromUtf8(dxf::realText(tag.asDouble().value_or(0)));
    case dxf::ValueKind::Int16:
    case dxf::ValueKind::Int32:
    case dxf::ValueKind::Int64:
    case dxf::ValueKind::Bool:
        return std::to_wstring(tag.asInt().value_or(0));
    case dxf::ValueKind::Bytes:
        return hexText(tag.raw);
    default:
        return file.codec().decode(tag.raw);
    }
}

} // namespace quor::db
