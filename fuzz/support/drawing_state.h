// What a drawing says of itself, in a form that can be compared: its settings, its layers, its entities by space, of
// lights every value.
#pragma once

#include "host/db/database.h"

#include <string>
#include <vector>

namespace quor::fuzz {

struct Fact {
    std::string what;
    ZrString text;
    double number = 0;
};

using DrawingState = std::vector<Fact>;

[[nodiscard]] DrawingState stateOf(db::Database& drawing);
// The first difference in words; empty where there is none. Numbers may differ by the rounding of angles, which files
// hold in degrees.
[[nodiscard]] std::string difference(const DrawingState& before, const DrawingState& after);

} // namespace quor::fuzz
