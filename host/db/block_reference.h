// References to blocks (INSERT): which block a reference shows, and where.
#pragma once

#include "host/db/structure.h"
#include "sdk/ge/matrix3d.h"

#include <cstdint>
#include <optional>

namespace quor::db {

class Database;

struct BlockReference {
    ZrString name;          // of the block
    Block* block = nullptr; // null when the drawing has none of that name
    ZrGePoint3d position;   // where it stands
    ZrGeMatrix3d placement; // from the coordinates of the block to those around the reference
    bool isArray = false;   // shows the block several times, in rows and columns
    std::int64_t columns = 1;
    std::int64_t rows = 1;
    ZrGeVector3d columnStep; // from one column to the next, around the reference
    ZrGeVector3d rowStep;
    bool isFlat = false; // a scale factor is zero: there is no way back from what it shows
};

// What a reference shows, as it stands in the file; nothing for an entity that is no reference.
[[nodiscard]] std::optional<BlockReference> readBlockReference(Database& database, const ObjectEntry& entity);

// Whether the block is another drawing, or comes with one.
[[nodiscard]] bool isExternal(const DrawingFile& file, const Block& block);

} // namespace quor::db
