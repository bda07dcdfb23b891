#include "host/gs/shape.h"

#include "host/gs/shapes/expansion.h"

namespace quor::gs {

void Shape::clear() {
    lines.clear();
    triangles.clear();
    parts.clear();
}

class ShapeReader::Parts {
public:
    explicit Parts(db::Database& drawing) : blocks_(drawing, Wanted::Lines) {}

    void append(Shape& shape, const db::ObjectEntry& entity) {
        if (blocks_.primitives() > kMostKept)
            blocks_.forget();
        root_.own.clear();
        root_.uses.clear();
        blocks_.add(root_, entity);
        Expansion(blocks_).append(shape, root_);
    }
    void forget() { blocks_.forget(); }

private:
    static constexpr std::size_t kMostKept = 2 * kMostPrimitives;

    BlockLibrary blocks_;
    Definition root_;
};

ShapeReader::ShapeReader(db::Database& drawing) : parts_(std::make_unique<Parts>(drawing)) {}

ShapeReader::~ShapeReader() = default;

void ShapeReader::append(Shape& shape, const db::ObjectEntry& entity) { parts_->append(shape, entity); }

void ShapeReader::forget() { parts_->forget(); }

void appendShape(Shape& shape, db::Database& drawing, const db::ObjectEntry& entity) {
    ShapeReader(drawing).append(shape, entity);
}

std::vector<SnapPoint> snapPoints(db::Database& drawing, const db::ObjectEntry& entity) {
    BlockLibrary blocks(drawing, Wanted::Snaps);
    Definition root;
    blocks.add(root, entity);
    std::vector<SnapPoint> points;
    Expansion(blocks).append(points, root);
    return points;
}

} // namespace quor::gs
