// One property of a kind of object: a row of a table that says how it is called, read, checked and changed.
#pragma once

#include "host/props/value.h"
#include "host/texts/text.h"
#include "sdk/db/entity.h"
#include "sdk/gi/photometric_intensity.h"

#include <limits>
#include <optional>
#include <span>
#include <string_view>
#include <vector>

namespace quor::db {
class Database;
}

namespace quor::props {

enum class Group { General, Light, Photometric, Geometry, Attenuation, Shadows, Web, Glyph, Drawing };
// With what a person changes it.
enum class Editor { ReadOnly, Text, Number, Choice, YesNo, Color, File };
// What a number measures: its unit, and how it is written and read.
enum class Quantity { Plain, Whole, Length, Degrees, Kelvin, Candela, Lumen, Illuminance };

// Bounds of a number, both included.
struct Range {
    double low = -std::numeric_limits<double>::infinity();
    double high = std::numeric_limits<double>::infinity();
    [[nodiscard]] bool holds(double value) const { return value >= low && value <= high; }
};
inline constexpr Range kNotNegative{0, std::numeric_limits<double>::infinity()};

// What values depend on beside the object.
struct Context {
    db::Database* drawing = nullptr;
    PhotometricUnits units;
    bool several = false; // several objects are looked at
};

// Why something was not done, in words for a person; nothing when it was.
using Refusal = std::optional<ZrString>;

struct Property {
    using Applies = bool (*)(const ZrDbEntity&, const Context&);

    std::string_view id; // the same in every language and version
    Group group;
    const Text& label;
    Editor editor = Editor::ReadOnly;
    Quantity quantity = Quantity::Plain;
    Range range{};
    std::span<const Text> choices{}; // of a choice; no and yes of a YesNo
    // Of a choice whose words come from the drawing; its values are the words.
    std::vector<ZrString> (*list)(const Context&) = nullptr;
    Value (*read)(const ZrDbEntity&, const Context&) = nullptr;
    // Gets a value of the editor's type, within the range; null: read-only.
    Refusal (*write)(ZrDbEntity&, const Value&, const Context&) = nullptr;
    // Whether the object has this property; null: always.
    Applies counts = nullptr;
    // Whether it cannot be changed in this object; null: never.
    Applies isFixed = nullptr;
    bool oneAtATime = false; // cannot be changed of several objects at once
    bool mayFollow = false;  // a colour that may be ByLayer or ByBlock
};

// The words for a status of a setter; nothing for eOk.
[[nodiscard]] Refusal refusalOf(Quor::ErrorStatus status);

} // namespace quor::props
