// Lights as tables on the command line: four of them one below the other, with handle and name of the light in each
// row, because a line that is wider than the terminal cannot be read. Coordinates are those of the current UCS, lengths
// in the drawing's units and precision; other numbers have digits of their own.
#pragma once

#include "host/props/light_facts.h"
#include "host/sys/text_table.h"

#include <array>
#include <cstddef>
#include <functional>
#include <vector>

namespace quor::commands {

struct LightColumn;

// Lights are added one after the other; only their texts are kept.
class LightTables {
public:
    // LIGHTINGUNITS: in generic lighting photometric values have no effect and are left out. `width`: of a line.
    LightTables(int lightingUnits, int width);

    void add(const LightFacts& light);
    // How many were added.
    [[nodiscard]] std::size_t count() const { return tables_.front().texts.rows(); }

    // Of all four together, each the row of a light in a block of columns.
    [[nodiscard]] std::size_t lines() const;
    // `printed`: told of each line.
    void print(const std::function<void()>& printed) const;
    // How many lights there are of each kind that there is: "point 4, spot 2".
    [[nodiscard]] ZrString kindCounts() const;

private:
    struct Table {
        ZrString title;
        std::vector<const LightColumn*> columns;
        TextTable texts;
    };

    int width_;
    std::vector<Table> tables_;
    std::array<std::size_t, kLightKinds> counts_{};
};

// The words for the shadows of a light.
[[nodiscard]] ZrString shadowsInWords(const ZrGiShadowParameters& shadows);

} // namespace quor::commands
