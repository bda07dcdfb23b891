// The variables that a drawing keeps in its variable dictionary (LIGHTINGUNITS): a name and a text each.
#pragma once

#include "host/db/structure.h"

#include <map>
#include <optional>

namespace quor::db {

class VariableDictionary {
public:
    VariableDictionary(DrawingFile& file, ObjectTable& objects, Structure& structure)
        : file_(file), objects_(objects), structure_(structure) {}

    [[nodiscard]] std::optional<ZrString> get(std::wstring_view name) const;
    // Sets a variable (nothing: as the file has it) and answers what was set before.
    std::optional<ZrString> set(const ZrString& name, std::optional<ZrString> value);

    // What was set, with the handle that a variable new in the drawing gets.
    struct Set {
        ZrString value;
        std::uint64_t newHandle = 0;
    };
    using AllSet = std::map<ZrString, Set, std::less<>>;
    [[nodiscard]] const AllSet& allSet() const { return set_; }
    // The record of a variable in the file, or null.
    [[nodiscard]] const dxf::Record* recordOf(std::wstring_view name) const;
    // The dictionary in the file, or null; and the handle that a new one gets, taken when a variable was set.
    [[nodiscard]] const ObjectEntry* dictionary() const;
    [[nodiscard]] std::uint64_t newDictionaryHandle() const { return newDictionaryHandle_; }
    // Takes a handle for the root dictionary of a drawing that has none and will need one. Handles are never taken by a
    // save: what comes later would have others after it than without it.
    void reserveRoot();
    [[nodiscard]] std::uint64_t newRootHandle() const { return newRootHandle_; }

    static constexpr const char* kName = "AcDbVariableDictionary";

private:
    // The handle of a new variable, with those of the dictionaries that it needs.
    std::uint64_t handleFor(const ZrString& name);

    DrawingFile& file_;
    ObjectTable& objects_;
    Structure& structure_;
    AllSet set_;
    mutable std::map<ZrString, std::optional<ZrString>, std::less<>> read_; // what was looked up in the file before
    std::map<ZrString, std::uint64_t> handles_; // given out before, so that redo gives the same again
    std::uint64_t newDictionaryHandle_ = 0;
    std::uint64_t newRootHandle_ = 0;
};

// The object (no entity) that a dictionary names, or null.
[[nodiscard]] ObjectEntry* dictionaryEntry(const DrawingFile& file, const ObjectTable& objects,
                                           const dxf::Record& dictionary, std::string_view name);

} // namespace quor::db
