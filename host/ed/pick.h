// Finding entities of the current space without a mouse: by handle, by their known points; and which of them can be
// selected.
#pragma once

#include "host/document.h"

#include <optional>

namespace quor::ed {

// Every entity of the current space that is not erased, in drawing order.
[[nodiscard]] ZrDbObjectIdArray entitiesOfCurrentSpace(const Document& document);
// Those that are in sight: visible, on layers that are on and thawed. What "all" selects.
[[nodiscard]] ZrDbObjectIdArray entitiesInSight(const Document& document);
// Those that a person may select without being told that some are left out: in sight and, while a block is edited in
// place, in its working set.
[[nodiscard]] ZrDbObjectIdArray selectableEntities(const Document& document);
// The points by which an entity is found (world coordinates): the place of a light or of a reference to a block, the
// ends of a line, the corners of a face. Empty for other entities.
[[nodiscard]] std::vector<ZrGePoint3d> knownPoints(ZrDbObjectId id);
// "1F" or "#1F"; nothing when that is no handle of an entity of the current space.
[[nodiscard]] std::optional<ZrDbObjectId> entityByHandle(const Document& document, std::wstring_view text);
// Entities in sight of which a known point is this one (world coordinates, up to the global tolerance).
[[nodiscard]] ZrDbObjectIdArray entitiesAt(const Document& document, const ZrGePoint3d& point);
// Entities in sight whose known points all lie in the rectangle between two corners, seen along the z axis of the UCS.
// UCS.
[[nodiscard]] ZrDbObjectIdArray entitiesInWindow(const Document& document, const ZrGePoint3d& a, const ZrGePoint3d& b);

// While a block is edited in place, only its working set can be selected: takes the others out, and answers how many
// they were.
[[nodiscard]] std::size_t leaveOutStrangers(const Document& document, ZrDbObjectIdArray& ids);

} // namespace quor::ed
