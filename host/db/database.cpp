#include "host/db/database.h"

#include "host/db/data.h"
#include "host/db/database_interface.h"
#include "host/db/file_messages.h"
#include "host/db/light_names.h"
#include "host/db/new_drawing.h"
#include "host/db/object_reader.h"
#include "host/db/ref_edit.h"
#include "host/db/saver.h"
#include "host/dxf/file_saver.h"
#include "host/dxf/number_check.h"
#include "host/sys/utf8.h"
#include "host/texts/drawing_files.h"

#include <array>
#include <cassert>

namespace quor::db {

namespace {

// A light has an extension dictionary with one record: three handles in a row.
constexpr std::uint64_t kLightHandles = 3;

// The records whose numbers mean something here.
constexpr std::array<std::string_view, 4> kTypesRead{"LINE", "3DFACE", "LIGHT", "LAYER"};

} // namespace

Database::Database(dxf::Image image, dxf::Layout layout, bool isNew)
    : file_(std::move(image), std::move(layout)), objects_(*this), structure_(file_, objects_),
      layers_(structure_.table("LAYER"), file_), headers_(file_), tileMode_(headers_.place(L"$TILEMODE")),
      currentLayerName_(headers_.place(L"$CLAYER")), modelUcs_(ucsPlaces(true)), paperUcs_(ucsPlaces(false)),
      variables_(file_, objects_, structure_), journal_(*this), refEdit_(std::make_unique<RefEdit>(*this)),
      interface_(makeInterface(*this)), isNew_(isNew) {
    for (const LayoutRecord& sheet : structure_.layouts())
        if (sheet.block == &structure_.paperSpace())
            currentLayout_ = sheet.name;
    currentViewport_ = isModelTab() ? 2 : 1;
    for (const dxf::Error& problem : file_.layout().problems)
        problems_.push_back(describeProblem(problem));
    if (const std::size_t more = file_.layout().problemCount - file_.layout().problems.size(); more > 0)
        problems_.push_back(fill(texts::kMoreFileProblems, more));
}

Database::~Database() { journal_.sayGoodbye(); }

std::unique_ptr<Database> Database::makeNew() {
    dxf::Image image = dxf::Image::fromBytes(newDrawing());
    Result<dxf::Layout, dxf::Error> layout = dxf::scan(image);
    assert(layout.ok());
    return std::unique_ptr<Database>(new Database(std::move(image), std::move(layout).value(), true));
}

Result<std::unique_ptr<Database>, FileProblem> Database::make(dxf::Image image, const OpenOptions& options,
                                                              const ZrString& what) {
    Result<dxf::Layout, dxf::Error> layout = dxf::scan(image, {options.recover, options.progress});
    if (!layout.ok())
        return fail(FileProblem{describe(layout.error(), what)});
    if (options.recover)
        dxf::checkNumbers(image, layout.value(), kTypesRead);
    return std::unique_ptr<Database>(new Database(std::move(image), std::move(layout).value(), false));
}

Result<std::unique_ptr<Database>, FileProblem> Database::open(const std::filesystem::path& path,
                                                              const OpenOptions& options) {
    Result<dxf::Image, dxf::Error> image = dxf::Image::read(path);
    if (!image.ok())
        return fail(FileProblem{describe(image.error(), pathText(path))});
    return make(std::move(image).value(), options, pathText(path));
}

Result<std::unique_ptr<Database>, FileProblem> Database::fromBytes(std::string_view bytes, const OpenOptions& options) {
    return make(dxf::Image::fromBytes(bytes), options, L"-");
}

Result<void, FileProblem> Database::save(const std::filesystem::path& path, std::function<void(double)> progress) {
    Result<dxf::PatchList, FileProblem> patches = collectPatches(*this, pathText(path));
    if (!patches.ok())
        return fail(patches.error());
    const Result<void, dxf::SaveError> saved =
        dxf::saveAtomically(path, patches.value().segments(file_.bytes()), {.progress = std::move(progress)});
    if (!saved.ok())
        return fail(FileProblem{describe(saved.error(), pathText(path))});
    journal_.markSaved();
    return {};
}

Result<std::string, FileProblem> Database::toBytes() {
    Result<dxf::PatchList, FileProblem> patches = collectPatches(*this, L"-");
    if (!patches.ok())
        return fail(patches.error());
    return dxf::joined(patches.value().segments(file_.bytes()));
}

void Database::materialise(ObjectEntry& entry) {
    if (entry.object != nullptr)
        return;
    entry.object = readObject(*this, entry);
    entry.object->hostSetId(ZrDbObjectId(&entry));
}

Quor::ErrorStatus Database::openObject(ZrDbObject*& object, ObjectEntry& entry, ZrDb::OpenMode mode, bool openErased) {
    constexpr std::uint16_t kMostReaders = 255;
    object = nullptr;
    if (entry.erased && !openErased)
        return Quor::eWasErased;
    if (entry.writing)
        return Quor::eWasOpenForWrite;
    if (mode == ZrDb::kForWrite && entry.readers > 0)
        return Quor::eWasOpenForRead;
    if (mode != ZrDb::kForWrite && entry.readers == kMostReaders)
        return Quor::eAtMaxReaders;
    materialise(entry);
    if (mode == ZrDb::kForWrite)
        entry.writing = true;
    else
        ++entry.readers;
    object = entry.object.get();
    return Quor::eOk;
}

void Database::closeObject(ObjectEntry& entry) {
    if (entry.writing) {
        entry.writing = false;
        journal_.announce(entry);
    } else if (entry.readers > 0) {
        --entry.readers;
    }
}

ObjectEntry& Database::adopt(std::unique_ptr<ZrDbObject> object, ObjectEntry& entry) {
    entry.object = std::move(object);
    entry.object->hostSetId(ZrDbObjectId(&entry));
    entry.changed = true;
    entry.writing = true;
    entry.appendToAnnounce = true;
    journal_.appended(entry);
    return entry;
}

ObjectEntry& Database::appendEntity(Block& block, std::unique_ptr<ZrDbEntity> entity) {
    const bool isLight = entity->isKindOf(ZrDbLight::desc());
    const std::uint64_t handle = objects_.takeHandles(isLight ? kLightHandles : 1);
    if (isLight) {
        auto& data = static_cast<ZrDbLightData&>(*entity->hostData());
        data.dictionaryHandle = handle + 1;
        data.photometryHandle = handle + 2;
        variables_.reserveRoot();
    }
    auto& data = static_cast<ZrDbEntityData&>(*entity->hostData());
    if (data.layer == nullptr)
        data.layer = currentLayer();
    ObjectEntry& entry = objects_.add(handle, ObjectKind::Entity);
    entry.type = file_.typeNumber(toUtf8(entity->isA()->dxfName()));
    structure_.append(block, entry);
    adopt(std::move(entity), entry);
    LightNames::entityErased(entry, false);
    return entry;
}

void Database::reservePhotometry(ZrDbLightData& light) {
    if (light.photometryHandle != 0)
        return;
    light.photometryHandle = objects_.takeHandles(1);
    if (light.dictionaryHandle == 0)
        light.dictionaryHandle = objects_.takeHandles(1);
    variables_.reserveRoot();
}

ObjectEntry& Database::addLayer(std::unique_ptr<ZrDbLayerTableRecord> layer) {
    const ZrString name = layer->getName();
    ObjectEntry& entry = addTableRecord("LAYER", std::move(layer));
    layers_.table().byName[name] = &entry;
    return entry;
}

ObjectEntry& Database::addTableRecord(std::string_view type, std::unique_ptr<ZrDbSymbolTableRecord> record) {
    SymbolTable& table = structure_.table(type);
    // A table that is new in the drawing is written with its first record.
    if (table.entry->handle == 0)
        table.entry->handle = objects_.takeHandles(1);
    ObjectEntry& entry = objects_.add(objects_.takeHandles(1), ObjectKind::TableRecord);
    entry.type = file_.typeNumber(type);
    entry.owner = table.entry;
    table.records.push_back(&entry);
    return adopt(std::move(record), entry);
}

} // namespace quor::db
