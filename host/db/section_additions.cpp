#include "host/db/save_settings.h"
#include "host/db/versions.h"

#include <algorithm>

namespace quor::db {

namespace {

// The order in which sections stand in a drawing.
constexpr std::array<std::string_view, 6> kSectionOrder{"HEADER", "CLASSES", "TABLES", "BLOCKS", "ENTITIES", "OBJECTS"};

std::size_t orderOf(std::string_view section) {
    const auto found = std::find(kSectionOrder.begin(), kSectionOrder.end(), section);
    return static_cast<std::size_t>(found - kSectionOrder.begin());
}

} // namespace

void SectionAdditions::addTableRecord(const SymbolTable& table, const std::string& tags) {
    TableRecords& records = tableRecords_[&table];
    records.tags += tags;
    ++records.count;
}

void SectionAdditions::addEntity(std::uint64_t at, const std::string& tags) {
    (at == 0 ? entities_ : blockEntities_[at]) += tags;
}

std::string SectionAdditions::wholeSection(std::string_view name, const std::string& body) const {
    dxf::TagWriter writer = file_.writer();
    writer.text(0, "SECTION");
    writer.text(2, name);
    writer.raw(body);
    writer.text(0, "ENDSEC");
    return writer.take();
}

std::uint64_t SectionAdditions::placeFor(std::string_view section) const {
    // Behind the last section that comes before it.
    std::uint64_t place = file_.layout().firstTag;
    for (const dxf::Section& each : file_.layout().sections)
        if (orderOf(each.name) < orderOf(section))
            place = std::max(place, each.end);
    return place;
}

void SectionAdditions::put(dxf::PatchList& patches, std::string_view section, const std::string& tags) {
    if (tags.empty())
        return;
    // A name may head several sections; what is new goes to the last of them.
    const auto& sections = file_.layout().sections;
    const auto last =
        std::find_if(sections.rbegin(), sections.rend(), [&](const auto& s) { return s.name == section; });
    if (last == sections.rend())
        patches.insert(placeFor(section), wholeSection(section, tags));
    else
        patches.insert(last->bodyEnd, tags);
}

void SectionAdditions::putTableRecords(dxf::PatchList& patches) {
    // Whole tables go in by name, so that a drawing is always written alike.
    std::map<std::string, std::string> newTables;
    for (const auto& [table, records] : tableRecords_) {
        if (table->insertAt != 0)
            patches.insert(table->insertAt, records.tags);
        else
            newTables[table->type] = wholeTable(*table, records);
    }
    std::string tags;
    for (const auto& [type, table] : newTables)
        tags += table;
    put(patches, "TABLES", tags);
}

std::string SectionAdditions::wholeTable(const SymbolTable& table, const TableRecords& records) const {
    dxf::TagWriter writer = file_.writer();
    writer.text(0, "TABLE");
    writer.text(2, table.type);
    if (file_.version() >= versions::kFirstWithSubclasses) {
        writer.handle(5, table.entry->handle);
        writer.handle(330, 0);
        writer.text(100, "AcDbSymbolTable");
    }
    writer.integer(70, static_cast<std::int64_t>(records.count));
    writer.raw(records.tags);
    writer.text(0, "ENDTAB");
    return writer.take();
}

bool SectionAdditions::breaksOffIn(std::string_view section) const {
    const auto& sections = file_.layout().sections;
    return !sections.empty() && !sections.back().closed && sections.back().name == section;
}

void SectionAdditions::finish(dxf::PatchList& patches, bool mend) {
    const std::array<const std::string*, kSectionOrder.size()> additions{&header_, &classes_,  nullptr,
                                                                         nullptr,  &entities_, &objects_};
    bool somethingNew =
        (mend && !file_.layout().hasEnd) || !patches.empty() || !tableRecords_.empty() || !blockEntities_.empty();
    for (const std::string* tags : additions)
        somethingNew = somethingNew || (tags != nullptr && !tags->empty());
    if (!somethingNew)
        return;
    dxf::TagWriter endOfSection = file_.writer();
    endOfSection.text(0, "ENDSEC");
    bool open = !file_.layout().sections.empty() && !file_.layout().sections.back().closed;
    for (std::size_t i = 0; i < kSectionOrder.size(); ++i) {
        if (kSectionOrder[i] == "TABLES")
            putTableRecords(patches);
        else if (additions[i] != nullptr)
            put(patches, kSectionOrder[i], *additions[i]);
        // The section in which the file breaks off ends before the next one begins.
        if (open && breaksOffIn(kSectionOrder[i])) {
            patches.insert(file_.layout().sections.back().bodyEnd, endOfSection.str());
            open = false;
        }
    }
    for (const auto& [at, tags] : blockEntities_)
        patches.insert(at, tags);
    if (file_.layout().hasEnd)
        return;
    dxf::TagWriter end = file_.writer();
    if (open)
        end.raw(endOfSection.str());
    end.text(0, "EOF");
    patches.insert(file_.layout().endTag.begin, end.take());
}

} // namespace quor::db
