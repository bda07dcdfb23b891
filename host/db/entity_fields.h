// The fields of the entities that the host understands.
#pragma once

#include "host/db/fields.h"

namespace quor::db {

// What all entities have in common.
[[nodiscard]] std::span<const Field> entityFields();

// All groups of a kind of entity, the common one first.
[[nodiscard]] std::span<const FieldGroup> entityGroups(); // of an entity that the host knows no more of
[[nodiscard]] std::span<const FieldGroup> lineGroups();
[[nodiscard]] std::span<const FieldGroup> faceGroups();
[[nodiscard]] std::span<const FieldGroup> lightGroups();
// The photometric data of a light, which stand in a record of their own. The values are a light's.
[[nodiscard]] std::span<const FieldGroup> photometryGroups();

// Fields of a layer.
[[nodiscard]] std::span<const FieldGroup> layerGroups();

// Radians as degrees: of the numbers that mean the same angle, the shortest.
[[nodiscard]] double toDegrees(double radians);

} // namespace quor::db
