// What one entity looks like, in world coordinates: lines and triangles, in parts of one colour and layer each.
#pragma once

#include "host/db/object_entry.h"
#include "sdk/ge/point3d.h"

#include <cstdint>
#include <memory>
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
    // Whose colour counts instead, of what is drawn in the colour of a reference on another layer; null: that of
    // `layer`.
    const db::ObjectEntry* colorLayer = nullptr;
};

struct Shape {
    std::vector<ZrGePoint3d> lines;     // two points each
    std::vector<ZrGePoint3d> triangles; // three points each; both sides are seen
    std::vector<Part> parts;
    [[nodiscard]] bool isEmpty() const { return parts.empty(); }
    void clear();
};

// Appends what the entity looks like; nothing for a kind that has no look here (lights have marks of their own), for an
// invisible or erased one, and where its record makes no sense. A reference to a block shows what is in the block,
// where and as the reference wants it. Whatever a drawing says, one entity adds at most kMostPrimitives.
inline constexpr std::size_t kMostPrimitives = 2'000'000;
void appendShape(Shape& shape, db::Database& drawing, const db::ObjectEntry& entity);

// Gives the shapes of many entities of a drawing faster than one by one: what blocks look like is read once.
class ShapeReader {
public:
    explicit ShapeReader(db::Database& drawing);
    ~ShapeReader();
    ShapeReader(const ShapeReader&) = delete;
    ShapeReader& operator=(const ShapeReader&) = delete;

    // As appendShape.
    void append(Shape& shape, const db::ObjectEntry& entity);
    // To be called when blocks or layers of the drawing have changed since the last shape.
    void forget();

private:
    class Parts;
    std::unique_ptr<Parts> parts_;
};

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
