// The fields of a light in files that other programs read: their names never change with the language, and a value is
// what the drawing has, in full.
#pragma once

#include "host/props/light_facts.h"

#include <cstdint>
#include <span>
#include <string_view>
#include <variant>
#include <vector>

namespace quor::commands {

// std::monostate: the light has no such value.
using FieldValue = std::variant<std::monostate, bool, std::int64_t, double, ZrString>;

struct LightField {
    std::string_view name;
    FieldValue (*value)(const LightFacts&, int lightingUnits); // LIGHTINGUNITS
};

[[nodiscard]] std::span<const LightField> lightFields();

// The values of a light, a field each.
using FieldValues = std::vector<FieldValue>;
[[nodiscard]] FieldValues fieldsOf(const LightFacts& light, int lightingUnits);

} // namespace quor::commands
