// What hangs on an object of a file through its extension dictionary: of a light, the record with its photometric data.
#pragma once

#include "host/db/object_entry.h"
#include "host/dxf/layout.h"

#include <string_view>

namespace quor::db {

inline constexpr std::string_view kExtensionDictionaryGroup = "{ACAD_XDICTIONARY";
inline constexpr std::string_view kPhotometryName = "ADSK_XREC_PHOTOMETRICLIGHTINFO";

// Whether a tag with this code names an object that its owner is to own.
[[nodiscard]] constexpr bool isOwnedHandle(int code) { return code == 350 || code == 360; }

// The extension dictionary of an object in the file, or null.
[[nodiscard]] ObjectEntry* extensionDictionary(Database& database, const dxf::Record& record);

// Where the photometric data of a light stand: its extension dictionary and the record in it, null where there is none.
struct PhotometryPlace {
    ObjectEntry* dictionary = nullptr;
    ObjectEntry* record = nullptr;
};
[[nodiscard]] PhotometryPlace findPhotometry(Database& database, const ObjectEntry& light);
// The same where the handle of the extension dictionary is known, 0 for none.
[[nodiscard]] PhotometryPlace findPhotometry(Database& database, std::uint64_t dictionary);

} // namespace quor::db
