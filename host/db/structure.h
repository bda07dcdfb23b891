// What a drawing consists of: its symbol tables, its blocks with their entities, its layouts. Built once when the
// drawing is read, kept up to date by the journal.
#pragma once

#include "host/db/drawing_file.h"
#include "host/db/light_name_index.h"
#include "host/db/object_table.h"
#include "host/sys/case_fold.h"
#include "sdk/sys/string.h"

#include <map>
#include <memory>
#include <string>
#include <unordered_map>
#include <vector>

namespace quor::db {

struct SymbolTable {
    std::string type; // "LAYER"
    ObjectEntry* entry = nullptr;
    std::vector<ObjectEntry*> records;
    // By plain name; a record that came later under the same name is not found by it.
    std::unordered_map<ZrString, ObjectEntry*, FoldedHash, FoldedEqual> byName;
    // Where new records go in the file, 0 when the file has no such table.
    std::uint64_t insertAt = 0;
};

// A block record with what it holds.
struct Block {
    ObjectEntry* record = nullptr;
    ZrString name;
    bool isLayout = false;
    std::vector<ObjectEntry*> entities; // in drawing order, erased ones too
    std::size_t erasedTail = 0;         // so many of the last ones are known to be erased
    // Where new entities go in the file; 0: at the end of the ENTITIES section.
    std::uint64_t insertAt = 0;
    // Its BLOCK record in the file, with the base point and the flags.
    std::uint32_t begin = ObjectEntry::kNoRecord;
    // Entities of one type: of lights from the start, so that the first light of a large drawing does not wait for a
    // walk through it; of others when first asked for.
    std::map<dxf::NameId, std::vector<ObjectEntry*>> byType;
    std::unique_ptr<LightNameIndex> lightNames;
};

struct LayoutRecord {
    ZrString name;
    int tabOrder = 0;
    Block* block = nullptr;
};

class Structure {
public:
    Structure(DrawingFile& file, ObjectTable& objects);

    [[nodiscard]] SymbolTable& table(std::string_view type);
    [[nodiscard]] const std::vector<std::unique_ptr<Block>>& blocks() const { return blocks_; }
    [[nodiscard]] Block& modelSpace() const { return *modelSpace_; }
    // The sheet whose entities stand in the ENTITIES section.
    [[nodiscard]] Block& paperSpace() const { return *paperSpace_; }
    [[nodiscard]] Block* blockOf(const ObjectEntry* record) const;
    // By name, without regard to case; null when there is none.
    [[nodiscard]] Block* findBlock(std::wstring_view name) const;
    // Sheets in tab order, without the model tab.
    [[nodiscard]] const std::vector<LayoutRecord>& layouts() const { return layouts_; }

    // The entities of one type in drawing order.
    [[nodiscard]] const std::vector<ObjectEntry*>& entitiesOf(Block& block, dxf::NameId type);
    // The last entity of a block that is not erased, or null.
    [[nodiscard]] static ObjectEntry* lastEntity(Block& block);
    void append(Block& block, ObjectEntry& entity);
    // An object that was erased is there again.
    void cameBack(const ObjectEntry& entry);

    // The first dictionary of the drawing, or null.
    [[nodiscard]] ObjectEntry* rootDictionary() const { return rootDictionary_; }
    // The active viewport of the model tab, or null.
    [[nodiscard]] ObjectEntry* activeViewport();
    // Where a new object goes in the file; 0 when there is no OBJECTS section.
    [[nodiscard]] std::uint64_t objectsEnd() const { return objectsEnd_; }
    [[nodiscard]] std::uint64_t entitiesEnd() const { return entitiesEnd_; }
    // The CLASS record of lights and the end of the CLASSES section.
    [[nodiscard]] const dxf::Record* classRecord(std::string_view type) const;
    [[nodiscard]] std::uint64_t classesEnd() const { return classesEnd_; }

private:
    void readTables(const dxf::Section& section);
    void readBlocks(const dxf::Section& section);
    void readEntities(const dxf::Section& section);
    void readObjects(const dxf::Section& section);
    void readLayouts();
    void makeMissing();
    // Entities that have no handle in the file get one in memory, to be named by; it is never written.
    void numberEntities();
    void readLayout(const ObjectEntry& entry);

    ObjectEntry& addEntry(std::size_t record, ObjectKind kind, ObjectEntry* owner);
    void addTableRecord(SymbolTable& table, std::size_t record);
    // Adds an entity with the records that belong to it (vertices, attributes); the index behind the last of them.
    std::size_t addEntity(Block& block, std::size_t record, std::size_t end);
    static void addToLists(Block& block, ObjectEntry& entity);
    Block& addBlock(ObjectEntry* record, const ZrString& name);
    Block& blockForRecord(const dxf::Record& record);

    DrawingFile& file_;
    ObjectTable& objects_;
    std::vector<std::unique_ptr<SymbolTable>> tables_;
    std::vector<std::unique_ptr<Block>> blocks_;
    std::unordered_map<const ObjectEntry*, Block*> byRecord_;
    std::unordered_map<ZrString, Block*, FoldedHash, FoldedEqual> byName_;
    std::unordered_map<std::uint64_t, Block*> byHandle_;
    std::vector<LayoutRecord> layouts_;
    std::vector<const dxf::Record*> classes_;
    Block* modelSpace_ = nullptr;
    Block* paperSpace_ = nullptr;
    ObjectEntry* rootDictionary_ = nullptr;
    std::uint64_t objectsEnd_ = 0;
    std::uint64_t entitiesEnd_ = 0;
    std::uint64_t classesEnd_ = 0;
};

} // namespace quor::db
