#include "host/db/save_settings.h"

#include "host/db/versions.h"
#include "host/sys/utf8.h"

#include <algorithm>

namespace quor::db {

namespace {

constexpr int kFirstWithDictionaries = 1012;
constexpr int kDefaultLightingCode = 292;
constexpr int kInstanceCountCode = 91;
constexpr int kFirstExtendedData = 1000;
constexpr int kLightProxyFlags = 1025;

// Header variables that older drawings have no place for; there they last for the session.
struct HeaderSince {
    std::wstring_view prefix;
    int version;
};
constexpr std::array kHeadersSince{
    HeaderSince{L"$UCS", versions::kFirstWithUcs},
    HeaderSince{L"$PUCS", versions::kFirstWithPaperSpace},
    HeaderSince{L"$TILEMODE", versions::kFirstWithPaperSpace},
};

bool hasPlaceFor(const ZrString& header, int version) {
    return std::none_of(kHeadersSince.begin(), kHeadersSince.end(), [&](const HeaderSince& since) {
        return version < since.version && header.starts_with(since.prefix);
    });
}

} // namespace

void SettingsToSave::collect(dxf::PatchList& patches, std::uint64_t& highestHandle) {
    collectHeaders(patches);
    // Older drawings have no dictionaries: such variables last for the session.
    if (file_.version() >= kFirstWithDictionaries)
        collectVariables(patches, highestHandle);
    collectDefaultLighting(patches);
}

void SettingsToSave::collectHeaders(dxf::PatchList& patches) {
    for (const auto& [name, variable] : database_.headers().changed()) {
        dxf::TagWriter writer = file_.writer();
        HeaderStore::write(writer, file_.codec(), name, variable);
        if (const dxf::HeaderVar* place = file_.layout().findVar(toUtf8(name)))
            patches.replace(place->begin, place->end, writer.take());
        else if (hasPlaceFor(name, file_.version()))
            sections_.addHeader(writer.take());
    }
}

bool SettingsToSave::replaceVariable(dxf::PatchList& patches, const ZrString& name, const ZrString& value) const {
    dxf::Tag tag;
    const dxf::Record* record = database_.variableDictionary().recordOf(name);
    if (record == nullptr || !file_.findTag(*record, 1, tag))
        return false;
    if (file_.text(tag) != value) {
        dxf::TagWriter writer = file_.writer();
        writer.text(1, file_.codec().encode(value));
        patches.replace(tag.begin, tag.end, writer.take());
    }
    return true;
}

void SettingsToSave::collectVariables(dxf::PatchList& patches, std::uint64_t& highestHandle) {
    VariableDictionary& variables = database_.variableDictionary();
    const ObjectEntry* dictionary = variables.dictionary();
    dxf::TagWriter links = file_.writer();
    std::int64_t added = 0;
    for (const auto& [name, set] : variables.allSet()) {
        if (replaceVariable(patches, name, set.value))
            continue;
        const std::uint64_t owner = dictionary != nullptr ? dictionary->handle : variables.newDictionaryHandle();
        dxf::TagWriter object = file_.writer();
        object.text(0, "DICTIONARYVAR");
        object.handle(5, set.newHandle);
        object.handle(330, owner);
        object.text(100, "DictionaryVariables");
        object.integer(280, 0);
        object.text(1, file_.codec().encode(set.value));
        sections_.addObject(object.take());
        links.text(3, toUtf8(name));
        links.handle(350, set.newHandle);
        highestHandle = std::max(highestHandle, set.newHandle);
        ++added;
    }
    if (added > 0) {
        linkVariables(patches, links.take(), highestHandle);
        if (const dxf::Record* known = database_.structure().classRecord("DICTIONARYVAR"))
            raiseCount(patches, *known, added);
        else
            addClass("DICTIONARYVAR", "AcDbDictionaryVar", "ObjectDBX Classes", 0, false, added);
    } else if (sections_.hasObjects() && database_.structure().rootDictionary() == nullptr) {
        addRootDictionary(0, highestHandle);
    }
}

void SettingsToSave::linkVariables(dxf::PatchList& patches, const std::string& links, std::uint64_t& highestHandle) {
    VariableDictionary& variables = database_.variableDictionary();
    if (const ObjectEntry* dictionary = variables.dictionary()) {
        patches.insert(file_.record(dictionary->record).end(), links);
        return;
    }
    const std::uint64_t handle = variables.newDictionaryHandle();
    highestHandle = std::max(highestHandle, handle);
    const ObjectEntry* root = database_.structure().rootDictionary();
    dxf::TagWriter object = file_.writer();
    object.text(0, "DICTIONARY");
    object.handle(5, handle);
    object.handle(330, root != nullptr ? root->handle : variables.newRootHandle());
    object.text(100, "AcDbDictionary");
    object.integer(281, 1);
    object.raw(links);
    sections_.addObject(object.take());
    if (root == nullptr) {
        addRootDictionary(handle, highestHandle);
        return;
    }
    dxf::TagWriter link = file_.writer();
    link.text(3, VariableDictionary::kName);
    link.handle(350, handle);
    patches.insert(file_.record(root->record).end(), link.take());
}

void SettingsToSave::addRootDictionary(std::uint64_t variables, std::uint64_t& highestHandle) {
    const std::uint64_t handle = database_.variableDictionary().newRootHandle();
    highestHandle = std::max(highestHandle, handle);
    dxf::TagWriter root = file_.writer();
    root.text(0, "DICTIONARY");
    root.handle(5, handle);
    root.handle(330, 0);
    root.text(100, "AcDbDictionary");
    root.integer(281, 1);
    if (variables != 0) {
        root.text(3, VariableDictionary::kName);
        root.handle(350, variables);
    }
    sections_.addRootDictionary(root.take());
}

void SettingsToSave::collectDefaultLighting(dxf::PatchList& patches) {
    const std::optional<bool> on = database_.defaultLightingToSave();
    if (!on)
        return;
    const dxf::Record& viewport = file_.record(database_.structure().activeViewport()->record);
    dxf::TagWriter writer = file_.writer();
    writer.boolean(kDefaultLightingCode, *on);
    dxf::Tag tag;
    if (file_.findTag(viewport, kDefaultLightingCode, tag)) {
        patches.replace(tag.begin, tag.end, writer.take());
        return;
    }
    // Before the extended data, or at the end.
    std::uint64_t place = viewport.end();
    dxf::TagReader reader = file_.tags(viewport);
    while (reader.next(tag))
        if (tag.code >= kFirstExtendedData) {
            place = tag.begin;
            break;
        }
    patches.insert(place, writer.take());
}

void SettingsToSave::countLights(dxf::PatchList& patches, std::int64_t change) {
    if (change == 0)
        return;
    if (const dxf::Record* known = database_.structure().classRecord("LIGHT")) {
        raiseCount(patches, *known, change);
        return;
    }
    Structure& structure = database_.structure();
    std::int64_t count = 0;
    for (const auto& block : structure.blocks()) {
        const auto& lights = structure.entitiesOf(*block, file_.typeNumber("LIGHT"));
        count += std::count_if(lights.begin(), lights.end(), [](const ObjectEntry* e) { return !e->erased; });
    }
    if (count > 0)
        addClass("LIGHT", "AcDbLight", "SCENEOE", kLightProxyFlags, true, count);
}

void SettingsToSave::raiseCount(dxf::PatchList& patches, const dxf::Record& classRecord, std::int64_t change) const {
    dxf::Tag tag;
    if (file_.version() < versions::kFirstWithClassCounts || !file_.findTag(classRecord, kInstanceCountCode, tag))
        return;
    dxf::TagWriter writer = file_.writer();
    writer.integer(kInstanceCountCode, std::max<std::int64_t>(tag.asInt().value_or(0) + change, 0));
    patches.replace(tag.begin, tag.end, writer.take());
}

void SettingsToSave::addClass(std::string_view name, std::string_view className, std::string_view application,
                              int flags, bool isEntity, std::int64_t count) {
    dxf::TagWriter writer = file_.writer();
    writer.text(0, "CLASS");
    writer.text(1, name);
    writer.text(2, className);
    writer.text(3, application);
    writer.integer(90, flags);
    if (file_.version() >= versions::kFirstWithClassCounts)
        writer.integer(kInstanceCountCode, count);
    writer.integer(280, 0);
    writer.integer(281, isEntity ? 1 : 0);
    sections_.addClass(writer.take());
}

void SettingsToSave::raiseSeed(dxf::PatchList& patches, std::uint64_t highestHandle) {
    const dxf::Layout& layout = file_.layout();
    if (highestHandle == 0 || highestHandle < layout.handleSeed)
        return;
    dxf::TagWriter writer = file_.writer();
    if (!layout.handleSeedTag.empty()) {
        writer.handle(5, highestHandle + 1);
        patches.replace(layout.handleSeedTag.begin, layout.handleSeedTag.end, writer.take());
    } else if (layout.highestHandle != 0) {
        writer.text(9, "$HANDSEED");
        writer.handle(5, highestHandle + 1);
        sections_.addHeader(writer.take());
    }
}

} // namespace quor::db
