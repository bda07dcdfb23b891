// Where everything stands in a drawing file: sections, records, header variables. Found in one pass by scan().
#pragma once

#include "host/dxf/error.h"
#include "host/dxf/image.h"
#include "host/dxf/name_table.h"
#include "host/dxf/tag.h"
#include "host/dxf/text_style.h"
#include "host/sys/result.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace quor::dxf {

// Bytes [begin, end) of the file; empty when there are none.
struct Slice {
    std::uint64_t begin = 0;
    std::uint64_t end = 0;
    [[nodiscard]] bool empty() const { return begin == end; }
};

// A 0-group inside a section with all tags up to the next 0-group.
struct Record {
    std::uint64_t begin = 0;
    std::uint64_t handle = 0; // group 5 (105 of a DIMSTYLE), 0 if none
    std::uint64_t owner = 0;  // group 330 before the first subclass marker and outside 102 groups, 0 if none
    std::uint32_t length = 0;
    NameId type = 0;      // name of the 0-group
    bool paper = false;   // group 67 is 1
    bool damaged = false; // holds bytes that are no tags (only after recovery)

    [[nodiscard]] std::uint64_t end() const { return begin + length; }
};
static_assert(sizeof(Record) <= 32);

struct Section {
    std::string name;
    std::uint64_t begin = 0;     // of 0/SECTION
    std::uint64_t bodyBegin = 0; // behind the name tag
    std::uint64_t bodyEnd = 0;   // of 0/ENDSEC, or where the last whole record ends if the section is cut off
    std::uint64_t end = 0;       // behind 0/ENDSEC, or bodyEnd
    std::size_t firstRecord = 0; // records[firstRecord, lastRecord)
    std::size_t lastRecord = 0;
    bool closed = false; // has its 0/ENDSEC
};

// A header variable: its 9-group and the value tags behind it.
struct HeaderVar {
    std::string name; // with the $
    std::uint64_t begin = 0;
    std::uint64_t valueBegin = 0;
    std::uint64_t end = 0;
};

struct Layout {
    Form form = Form::Ascii;
    TextStyle style;              // of ASCII files
    bool byteOrderMark = false;   // kept, not part of any tag
    std::uint64_t firstTag = 0;   // behind sentinel or byte order mark
    std::string version;          // $ACADVER, "" if absent
    std::string codePage;         // $DWGCODEPAGE, "" if absent
    std::uint64_t handleSeed = 0; // $HANDSEED, 0 if absent
    Slice handleSeedTag;          // its 5-group
    std::uint64_t highestHandle = 0;
    std::vector<Section> sections;
    std::vector<Record> records; // of all sections, in file order
    std::vector<HeaderVar> headerVars;
    NameTable names;     // of Record::type
    bool hasEnd = false; // 0/EOF is there
    Slice endTag;        // 0/EOF; empty at the place where it belongs when it is missing. What stands behind is kept.

    std::vector<Error> problems;  // what recovery met; at most kMaxProblems
    std::size_t problemCount = 0; // how many there were
    static constexpr std::size_t kMaxProblems = 100;

    [[nodiscard]] const Section* findSection(std::string_view name) const; // the first of that name
    [[nodiscard]] const HeaderVar* findVar(std::string_view name) const;   // the first of that name
    // The name of a record's 0-group, whether or not the name table had room for it.
    [[nodiscard]] std::string_view typeName(const Image& image, const Record& record) const;
};

struct ScanOptions {
    bool recover = false;                 // keep what is whole of a damaged file
    std::function<void(double)> progress; // told a share from 0 to 1, now and then
};

// Finds everything in one pass. Time and memory grow with the size of the file only, whatever it holds.
[[nodiscard]] Result<Layout, Error> scan(const Image& image, const ScanOptions& options = {});

} // namespace quor::dxf
