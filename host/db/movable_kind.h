// The kinds of entities that the host can carry to another place, because it knows all their points.
#pragma once

#include "host/db/fields.h"
#include "sdk/db/entity.h"
#include "sdk/ge/matrix3d.h"

#include <memory>
#include <span>
#include <string_view>
#include <vector>

namespace quor::db {

struct MovableKind {
    std::string_view type; // in drawing files
    std::unique_ptr<ZrDbEntity> (*make)();
    // The points of such an entity's values.
    std::vector<ZrGePoint3d*> (*points)(ZrDbObjectData& data);
    // The fields of its record, and of a second record with values of it; null: there is none.
    std::span<const FieldGroup> (*groups)();
    std::span<const FieldGroup> (*furtherGroups)();
};

// Null for a type that the host cannot move.
[[nodiscard]] const MovableKind* movableKind(std::string_view type);

// Whether both stand alike in a file, all fields counted, whichever version it has.
[[nodiscard]] bool sameValues(const MovableKind& kind, const ZrDbObjectData& a, const ZrDbObjectData& b,
                              Database& database);

// The values with every point carried over; null when one would lie beyond all numbers.
[[nodiscard]] std::unique_ptr<ZrDbObjectData> moved(const MovableKind& kind, const ZrDbObjectData& data,
                                                    const ZrGeMatrix3d& matrix);

} // namespace quor::db
