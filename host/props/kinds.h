// Which properties objects have, by their kind. Each table stands in a source of its own.
#pragma once

#include "host/props/property.h"

namespace quor::props {

enum class EntityKind { Light, Line, Face, Other };

[[nodiscard]] EntityKind kindOf(const ZrDbEntity& entity);
// What a person calls it: "Light", "Line", or the name of its type in drawing files.
[[nodiscard]] ZrString kindName(const ZrDbEntity& entity);

// Those that every object has, then those of its kind.
[[nodiscard]] std::span<const Property> generalProperties();
[[nodiscard]] std::span<const std::span<const Property>> propertiesOf(EntityKind kind);

[[nodiscard]] std::span<const Property> lightProperties();
[[nodiscard]] std::span<const Property> photometricProperties();
[[nodiscard]] std::span<const Property> lightGeometry();
[[nodiscard]] std::span<const Property> lightDetails(); // attenuation, shadows, web, glyph
[[nodiscard]] std::span<const Property> lineProperties();
[[nodiscard]] std::span<const Property> faceProperties();

} // namespace quor::props
