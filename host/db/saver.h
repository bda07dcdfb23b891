// What a save has to change in the file that a drawing came from: everything else is copied as it stands.
#pragma once

#include "host/db/database.h"
#include "host/dxf/patch.h"

#include <string>

namespace quor::db {

// The patches that turn the file into the drawing; none for a drawing without changes. Fails when the version of the
// file cannot hold what is in the drawing, and while a block is being edited in place.
[[nodiscard]] Result<dxf::PatchList, FileProblem> collectPatches(Database& database, const ZrString& file);

// The tags of one object as they would be saved.
[[nodiscard]] std::string objectBytes(Database& database, const ObjectEntry& entry);

// The value of a tag as a person reads it.
[[nodiscard]] ZrString tagText(const DrawingFile& file, const dxf::Tag& tag);

} // namespace quor::db
