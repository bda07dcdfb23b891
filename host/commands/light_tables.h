// Lights as tables on the command line: four of them one below the other, with the name of the light in each row,
// because a line that is wider than the terminal cannot be read. Coordinates are those of the current UCS, numbers in
// the drawing's units and precision.
#pragma once

#include "host/commands/light_facts.h"

#include <cstddef>
#include <functional>
#include <span>

namespace quor::commands {

inline constexpr std::size_t kLightTables = 4;

// `printed`: told of each row that was printed.
void printLightTables(std::span<const LightFacts> lights, const std::function<void()>& printed);

// How many there are of each kind that there is: "point 4, spot 2".
[[nodiscard]] ZrString kindCounts(std::span<const LightFacts> lights);

// The words for the shadows of a light.
[[nodiscard]] ZrString shadowsInWords(const ZrGiShadowParameters& shadows);

} // namespace quor::commands
