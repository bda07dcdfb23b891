// The parts of a save beside the objects themselves: where new records go, and what the drawing's settings, class
// counts and handle seed become.
#pragma once

#include "host/db/database.h"
#include "host/dxf/patch.h"

#include <array>
#include <map>
#include <string>

namespace quor::db {

// Collects new records by section, and makes the sections that a file lacks.
class SectionAdditions {
public:
    explicit SectionAdditions(const DrawingFile& file) : file_(file) {}

    void addHeader(const std::string& tags) { header_ += tags; }
    void addClass(const std::string& tags) { classes_ += tags; }
    void addTableRecord(const SymbolTable& table, const std::string& tags);
    // `at`: where in the file; 0: the end of the ENTITIES section.
    void addEntity(std::uint64_t at, const std::string& tags);
    void addObject(const std::string& tags) { objects_ += tags; }
    // Stands before all other new objects.
    void addRootDictionary(const std::string& tags) { objects_.insert(0, tags); }
    [[nodiscard]] bool hasObjects() const { return !objects_.empty(); }

    // Puts everything into its place. A broken-off file that gets something new, or is to be mended, is also given its
    // end.
    void finish(dxf::PatchList& patches, bool mend);

private:
    // New records of one table.
    struct TableRecords {
        std::string tags;
        std::size_t count = 0;
    };

    void put(dxf::PatchList& patches, std::string_view section, const std::string& tags);
    [[nodiscard]] std::string wholeTable(const SymbolTable& table, const TableRecords& records) const;
    void putTableRecords(dxf::PatchList& patches);
    // Whether the file breaks off inside the section.
    [[nodiscard]] bool breaksOffIn(std::string_view section) const;
    [[nodiscard]] std::string wholeSection(std::string_view name, const std::string& body) const;
    [[nodiscard]] std::uint64_t placeFor(std::string_view section) const;

    const DrawingFile& file_;
    std::string header_;
    std::string classes_;
    std::map<const SymbolTable*, TableRecords> tableRecords_;
    std::string entities_;
    std::map<std::uint64_t, std::string> blockEntities_;
    std::string objects_;
};

class SettingsToSave {
public:
    SettingsToSave(Database& database, SectionAdditions& sections)
        : database_(database), file_(database.file()), sections_(sections) {}

    // Header variables, dictionary variables and default lighting; raises `highestHandle` to the new handles.
    void collect(dxf::PatchList& patches, std::uint64_t& highestHandle);
    // The class of lights: made with the first one, its count kept true.
    void countLights(dxf::PatchList& patches, std::int64_t change);
    // $HANDSEED above every handle.
    void raiseSeed(dxf::PatchList& patches, std::uint64_t highestHandle);

private:
    void collectHeaders(dxf::PatchList& patches);
    void collectVariables(dxf::PatchList& patches, std::uint64_t& highestHandle);
    void collectDefaultLighting(dxf::PatchList& patches);
    // A variable's value in place; false when the file does not have the variable.
    bool replaceVariable(dxf::PatchList& patches, const ZrString& name, const ZrString& value) const;
    // Links new variables into their dictionary, which is made when the drawing has none.
    void linkVariables(dxf::PatchList& patches, const std::string& links, std::uint64_t& highestHandle);
    // A drawing without an OBJECTS section gets its root dictionary with the first object.
    void addRootDictionary(std::uint64_t variables, std::uint64_t& highestHandle);
    void raiseCount(dxf::PatchList& patches, const dxf::Record& classRecord, std::int64_t change) const;
    void addClass(std::string_view name, std::string_view className, std::string_view application, int flags,
                  bool isEntity, std::int64_t count);

    Database& database_;
    DrawingFile& file_;
    SectionAdditions& sections_;
};

} // namespace quor::db
