#include "host/db/extension_dictionary.h"

#include "host/db/database.h"

namespace quor::db {

namespace {

// The handle in the group {ACAD_XDICTIONARY … } of a record, 0 when there is none.
std::uint64_t dictionaryHandle(const DrawingFile& file, const dxf::Record& record) {
    static constexpr dxf::CodeSet kWanted{100, 102, 350, 360};
    dxf::TagReader reader = file.tags(record);
    dxf::Tag tag;
    bool inside = false;
    while (reader.next(tag, kWanted)) {
        if (tag.code == 102)
            inside = tag.asTrimmed() == kExtensionDictionaryGroup;
        else if (inside && isOwnedHandle(tag.code))
            return tag.asHandle().value_or(0);
        else if (tag.code == 100)
            break;
    }
    return 0;
}

ObjectEntry* dictionaryWith(Database& database, std::uint64_t handle) {
    ObjectEntry* found = handle == 0 ? nullptr : database.objects().findObject(handle);
    const bool isDictionary =
        found != nullptr && found->isInFile() && database.file().typeName(found->type) == "DICTIONARY";
    return isDictionary ? found : nullptr;
}

} // namespace

ObjectEntry* extensionDictionary(Database& database, const dxf::Record& record) {
    return dictionaryWith(database, dictionaryHandle(database.file(), record));
}

PhotometryPlace findPhotometry(Database& database, const ObjectEntry& light) {
    const DrawingFile& file = database.file();
    return findPhotometry(database, dictionaryHandle(file, file.record(light.record)));
}

PhotometryPlace findPhotometry(Database& database, std::uint64_t dictionary) {
    const DrawingFile& file = database.file();
    PhotometryPlace place;
    place.dictionary = dictionaryWith(database, dictionary);
    if (place.dictionary == nullptr)
        return place;
    ObjectEntry* record =
        dictionaryEntry(file, database.objects(), file.record(place.dictionary->record), kPhotometryName);
    if (record != nullptr && record->isInFile() && file.typeName(record->type) == "XRECORD")
        place.record = record;
    return place;
}

} // namespace quor::db
