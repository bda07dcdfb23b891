// What entities look like in the coordinates of the block that holds them, with their colours and layers as they say
// them themselves.
#pragma once

#include "host/gs/shape.h"

#include <cstdint>
#include <vector>

namespace quor::gs {

// With what an entity is drawn. By block: in the colour of the reference that shows it.
struct Look {
    enum class Color : std::uint8_t { ByLayer, ByBlock, Fixed };
    Color color = Color::ByLayer;
    std::uint32_t rgb = 0xFFFFFF; // of a fixed one
    const db::ObjectEntry* layer = nullptr;
    bool onLayerZero = true; // in a block: on the layer of the reference that shows it
    bool visible = true;
    bool operator==(const Look&) const = default;
};

// As Part.
struct DrawnPart {
    Look look;
    std::uint32_t firstLine = 0;
    std::uint32_t lineCount = 0;
    std::uint32_t firstTriangle = 0;
    std::uint32_t triangleCount = 0;
};

struct Drawn {
    std::vector<ZrGePoint3d> lines;
    std::vector<ZrGePoint3d> triangles;
    std::vector<DrawnPart> parts;
    std::vector<SnapPoint> snaps;
    void clear();
    [[nodiscard]] std::size_t primitives() const { return lines.size() / 2 + triangles.size() / 3; }
};

} // namespace quor::gs
