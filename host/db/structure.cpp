#include "host/db/structure.h"

#include <algorithm>

namespace quor::db {

namespace {

constexpr std::wstring_view kModelSpace = L"*Model_Space";
constexpr std::wstring_view kPaperSpace = L"*Paper_Space";

// Names of the two spaces in old files.
ZrString spaceName(const ZrString& name) {
    if (equalFolded(name, L"$MODEL_SPACE"))
        return ZrString(kModelSpace);
    if (equalFolded(name, L"$PAPER_SPACE"))
        return ZrString(kPaperSpace);
    return name;
}

// Records that belong to the entity before them.
bool isPartOfEntity(std::string_view type) { return type == "VERTEX" || type == "ATTRIB" || type == "SEQEND"; }

} // namespace

Structure::Structure(DrawingFile& file, ObjectTable& objects) : file_(file), objects_(objects) {
    const dxf::Layout& layout = file_.layout();
    objects_.startHandlesAt(std::max(layout.handleSeed, layout.highestHandle + 1));
    for (const dxf::Section& section : layout.sections)
        if (section.name == "TABLES")
            readTables(section);
    for (const dxf::Section& section : layout.sections)
        if (section.name == "BLOCKS")
            readBlocks(section);
    makeMissing();
    for (const dxf::Section& section : layout.sections) {
        if (section.name == "ENTITIES")
            readEntities(section);
        else if (section.name == "OBJECTS")
            readObjects(section);
        else if (section.name == "CLASSES") {
            classesEnd_ = section.bodyEnd;
            for (std::size_t i = section.firstRecord; i < section.lastRecord; ++i)
                classes_.push_back(&file_.record(i));
        }
    }
    readLayouts();
    numberEntities();
}

void Structure::numberEntities() {
    for (const auto& block : blocks_)
        for (ObjectEntry* entity : block->entities)
            if (entity->handle == 0)
                entity->handle = objects_.takeHandles(1);
}

ObjectEntry& Structure::addEntry(std::size_t record, ObjectKind kind, ObjectEntry* owner) {
    const dxf::Record& at = file_.record(record);
    ObjectEntry& entry = objects_.add(at.handle, kind);
    entry.record = static_cast<std::uint32_t>(record);
    entry.recordCount = 1;
    entry.type = at.type;
    entry.owner = owner;
    return entry;
}

SymbolTable& Structure::table(std::string_view type) {
    for (const auto& table : tables_)
        if (table->type == type)
            return *table;
    SymbolTable& made = *tables_.emplace_back(std::make_unique<SymbolTable>());
    made.type = type;
    made.entry = &objects_.add(0, ObjectKind::Table);
    made.entry->type = file_.typeNumber("TABLE");
    return made;
}

void Structure::readTables(const dxf::Section& section) {
    SymbolTable* open = nullptr;
    for (std::size_t i = section.firstRecord; i < section.lastRecord; ++i) {
        const dxf::Record& record = file_.record(i);
        const std::string_view type = file_.typeName(record.type);
        dxf::Tag name;
        if (type == "TABLE") {
            open = file_.findTag(record, 2, name) ? &table(name.asTrimmed()) : nullptr;
            if (open != nullptr && !open->entry->isInFile()) {
                ObjectEntry& entry = addEntry(i, ObjectKind::Table, nullptr);
                open->entry = &entry;
            }
        } else if (type == "ENDTAB") {
            if (open != nullptr)
                open->insertAt = record.begin;
            open = nullptr;
        } else if (open != nullptr && type == open->type) {
            addTableRecord(*open, i);
        }
    }
}

void Structure::addTableRecord(SymbolTable& table, std::size_t record) {
    ObjectEntry& entry = addEntry(record, ObjectKind::TableRecord, table.entry);
    table.records.push_back(&entry);
    dxf::Tag tag;
    if (!file_.findTag(file_.record(record), 2, tag))
        return;
    ZrString name = file_.text(tag);
    if (table.type == "LAYER" && name.starts_with(L'*'))
        name.erase(0, 1);
    if (table.type == "BLOCK_RECORD") {
        name = spaceName(name);
        addBlock(&entry, name);
    }
    table.byName.try_emplace(std::move(name), &entry);
}

Block& Structure::addBlock(ObjectEntry* record, const ZrString& name) {
    Block& block = *blocks_.emplace_back(std::make_unique<Block>());
    block.record = record;
    block.name = name;
    const auto begins = [&](std::wstring_view space) { return startsWithFolded(name, space); };
    block.isLayout = begins(kModelSpace) || begins(kPaperSpace);
    block.byType[file_.typeNumber("LIGHT")];
    byRecord_.emplace(record, &block);
    byName_.try_emplace(name, &block);
    if (record->handle != 0)
        byHandle_.try_emplace(record->handle, &block);
    return block;
}

Block* Structure::findBlock(std::wstring_view name) const {
    const auto found = byName_.find(name);
    return found == byName_.end() ? nullptr : found->second;
}

Block* Structure::blockOf(const ObjectEntry* record) const {
    const auto found = byRecord_.find(record);
    return found == byRecord_.end() ? nullptr : found->second;
}

Block& Structure::blockForRecord(const dxf::Record& record) {
    if (const auto found = byHandle_.find(record.owner); found != byHandle_.end())
        return *found->second;
    dxf::Tag tag;
    const ZrString name = file_.findTag(record, 2, tag) ? spaceName(file_.text(tag)) : ZrString();
    if (Block* block = findBlock(name))
        return *block;
    ObjectEntry& made = objects_.add(0, ObjectKind::TableRecord);
    made.type = file_.typeNumber("BLOCK_RECORD");
    made.owner = table("BLOCK_RECORD").entry;
    return addBlock(&made, name);
}

void Structure::readBlocks(const dxf::Section& section) {
    Block* open = nullptr;
    for (std::size_t i = section.firstRecord; i < section.lastRecord;) {
        const dxf::Record& record = file_.record(i);
        const std::string_view type = file_.typeName(record.type);
        if (type == "BLOCK") {
            open = &blockForRecord(record);
            open->begin = static_cast<std::uint32_t>(i);
            ++i;
        } else if (type == "ENDBLK") {
            if (open != nullptr)
                open->insertAt = record.begin;
            open = nullptr;
            ++i;
        } else if (open != nullptr) {
            i = addEntity(*open, i, section.lastRecord);
        } else {
            ++i;
        }
    }
}

void Structure::makeMissing() {
    const auto ensure = [&](std::wstring_view name) -> Block* {
        if (Block* block = findBlock(name))
            return block;
        ObjectEntry& made = objects_.add(0, ObjectKind::TableRecord);
        made.type = file_.typeNumber("BLOCK_RECORD");
        made.owner = table("BLOCK_RECORD").entry;
        return &addBlock(&made, ZrString(name));
    };
    modelSpace_ = ensure(kModelSpace);
    paperSpace_ = ensure(kPaperSpace);
    // What is new in these two goes to the ENTITIES section.
    modelSpace_->insertAt = 0;
    paperSpace_->insertAt = 0;
    (void)table("LAYER");
}

std::size_t Structure::addEntity(Block& block, std::size_t record, std::size_t end) {
    ObjectEntry& entry = addEntry(record, ObjectKind::Entity, block.record);
    std::size_t next = record + 1;
    while (next < end && isPartOfEntity(file_.typeName(file_.record(next).type)))
        ++next;
    entry.recordCount = static_cast<std::uint32_t>(next - record);
    addToLists(block, entry);
    return next;
}

void Structure::readEntities(const dxf::Section& section) {
    entitiesEnd_ = section.bodyEnd;
    for (std::size_t i = section.firstRecord; i < section.lastRecord;)
        i = addEntity(file_.record(i).paper ? *paperSpace_ : *modelSpace_, i, section.lastRecord);
}

void Structure::readObjects(const dxf::Section& section) {
    objectsEnd_ = section.bodyEnd;
    for (std::size_t i = section.firstRecord; i < section.lastRecord; ++i) {
        ObjectEntry& entry = addEntry(i, ObjectKind::Object, nullptr);
        const std::string_view type = file_.typeName(entry.type);
        if (type == "DICTIONARY" && rootDictionary_ == nullptr)
            rootDictionary_ = &entry;
        else if (type == "LAYOUT")
            readLayout(entry);
    }
}

void Structure::readLayout(const ObjectEntry& entry) {
    LayoutRecord layout;
    std::uint64_t block = 0;
    bool inLayout = false;
    dxf::TagReader reader = file_.tags(file_.record(entry.record));
    dxf::Tag tag;
    while (reader.next(tag)) {
        if (tag.code == 100)
            inLayout = tag.asTrimmed() == "AcDbLayout";
        else if (inLayout && tag.code == 1)
            layout.name = file_.text(tag);
        else if (inLayout && tag.code == 71)
            layout.tabOrder = static_cast<int>(tag.asInt().value_or(0));
        else if (inLayout && tag.code == 330 && block == 0)
            block = tag.asHandle().value_or(0);
    }
    if (const auto found = byHandle_.find(block); found != byHandle_.end())
        layout.block = found->second;
    if (layout.block != nullptr && layout.block != modelSpace_)
        layouts_.push_back(std::move(layout));
}

void Structure::readLayouts() {
    if (std::none_of(layouts_.begin(), layouts_.end(), [&](const auto& l) { return l.block == paperSpace_; }))
        layouts_.push_back({L"Layout1", 1, paperSpace_});
    std::stable_sort(layouts_.begin(), layouts_.end(),
                     [](const auto& a, const auto& b) { return a.tabOrder < b.tabOrder; });
}

const std::vector<ObjectEntry*>& Structure::entitiesOf(Block& block, dxf::NameId type) {
    const auto [found, isNew] = block.byType.try_emplace(type);
    if (isNew)
        std::copy_if(block.entities.begin(), block.entities.end(), std::back_inserter(found->second),
                     [&](const ObjectEntry* entity) { return entity->type == type; });
    return found->second;
}

// What was found to be erased is not looked at again, so that erasing the last one over and over stays cheap.
ObjectEntry* Structure::lastEntity(Block& block) {
    const auto& entities = block.entities;
    while (block.erasedTail < entities.size()) {
        ObjectEntry* const last = entities[entities.size() - 1 - block.erasedTail];
        if (!last->erased)
            return last;
        ++block.erasedTail;
    }
    return nullptr;
}

void Structure::cameBack(const ObjectEntry& entry) {
    if (Block* const block = blockOf(entry.owner); block != nullptr)
        block->erasedTail = 0;
}

void Structure::append(Block& block, ObjectEntry& entity) {
    entity.owner = block.record;
    addToLists(block, entity);
}

void Structure::addToLists(Block& block, ObjectEntry& entity) {
    block.entities.push_back(&entity);
    block.erasedTail = 0;
    if (const auto found = block.byType.find(entity.type); found != block.byType.end())
        found->second.push_back(&entity);
}

ObjectEntry* Structure::activeViewport() {
    SymbolTable& viewports = table("VPORT");
    const auto found = viewports.byName.find(std::wstring_view(L"*Active"));
    return found == viewports.byName.end() ? nullptr : found->second;
}

const dxf::Record* Structure::classRecord(std::string_view type) const {
    dxf::Tag tag;
    for (const dxf::Record* record : classes_)
        if (file_.findTag(*record, 1, tag) && tag.asTrimmed() == type)
            return record;
    return nullptr;
}

} // namespace quor::db
