// What one entity looks like, in world coordinates: lines and triangles, in parts of one colour and layer each.
#pragma once

#include "host/db/object_entry.h"
#include "sdk/ge/matrix3d.h"
#include "sdk/ge/point3d.h"

#include <cstdint>
#include <vector>

namespace quor::db {
class Database;
}

namespace quor::gs {

// Where the colour of a part comes from. 0xRRGGBB of a fixed one; the colour of a layer is looked up when it is drawn.
struct PartColor {
    enum class From : std::uint8_t { Layer, Fixed };
    From from = From::Layer;
    std::uint32_t rgb = 0xFFFFFF;
    bool operator==(const PartColor&) const = default;
};

// Lines and triangles one after the other in the shape's arrays.
struct Part {
    PartColor color;
    const db::ObjectEntry* layer = nullptr; // whose colour and visibility count; null: that of layer 0
    std::uint32_t firstLine = 0;
    std::uint32_t lineCount = 0;
    std::uint32_t firstTriangle = 0;
    std::uint32_t triangleCount = 0;
};

struct Shape {
    std::vector<ZrGePoint3d> lines;     // two points each
    std::vector<ZrGePoint3d> triangles; // three points each; both sides are seen
    std::vector<Part> parts;
    [[nodiscard]] bool isEmpty() const { return parts.empty(); }
    void clear();
};

// Appends what the entity looks like; nothing for a kind that has no look here (lights have marks of their own), for an
// invisible one, and where its record makes no sense. An entity of a block stands where `placement` puts it. Whatever a
// drawing says, a shape has at most kMostPrimitives.
inline constexpr std::size_t kMostPrimitives = 2'000'000;
void appendShape(Shape& shape, db::Database& drawing, const db::ObjectEntry& entity);

// Places on an entity that are picked exactly.
struct SnapPoint {
    enum class Kind : std::uint8_t { End, Middle, Center };
    Kind kind;
    ZrGePoint3d at;
};
// Of one entity; a reference to a block gives those of what it shows. At most kMostSnapPoints.
inline constexpr std::size_t kMostSnapPoints = 10'000;
[[nodiscard]] std::vector<SnapPoint> snapPoints(db::Database& drawing, const db::ObjectEntry& entity);

} // namespace quor::gs
