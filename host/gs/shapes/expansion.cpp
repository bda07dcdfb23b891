#include "host/gs/shapes/expansion.h"

#include <algorithm>
#include <array>

namespace quor::gs {

namespace {

constexpr int kDeepest = 32;
constexpr std::size_t kMostVisits = 1'000'000;

} // namespace

void Expansion::append(Shape& shape, Definition& definition) {
    shape_ = &shape;
    firstPart_ = shape.parts.size();
    room_ = kMostPrimitives;
    walk(definition, ZrGeMatrix3d::kIdentity, nullptr);
}

void Expansion::append(std::vector<SnapPoint>& points, Definition& definition) {
    points_ = &points;
    room_ = kMostSnapPoints;
    walk(definition, ZrGeMatrix3d::kIdentity, nullptr);
}

bool Expansion::isFull() const { return room_ == 0 || visits_ >= kMostVisits; }

// Outside of all blocks, layer 0 is a layer like others and "by block" is white.
Expansion::Surroundings Expansion::resolved(const Look& look, const Surroundings* around) {
    Surroundings result;
    result.layer = around != nullptr && look.onLayerZero ? around->layer : look.layer;
    result.colorLayer = result.layer;
    if (look.color == Look::Color::Fixed) {
        result.color = {PartColor::From::Fixed, look.rgb};
    } else if (look.color == Look::Color::ByBlock && around == nullptr) {
        result.color.from = PartColor::From::Fixed;
    } else if (look.color == Look::Color::ByBlock) {
        result.color = around->color;
        result.colorLayer = around->colorLayer;
    }
    return result;
}

void Expansion::walk(Definition& definition, const ZrGeMatrix3d& placement, const Surroundings* around) {
    appendOwn(definition.own, placement, around);
    if (depth_ == kDeepest)
        return;
    ++depth_;
    definition.isBeingShown = true;
    for (const BlockUse& use : definition.uses)
        walkUse(use, placement, around);
    definition.isBeingShown = false;
    --depth_;
}

void Expansion::walkUse(const BlockUse& use, const ZrGeMatrix3d& placement, const Surroundings* around) {
    if (isFull())
        return;
    Definition& shown = blocks_.definitionOf(*use.block);
    if (shown.isBeingShown)
        return;
    const Surroundings look = resolved(use.look, around);
    for (std::int64_t row = 0; row < use.rows; ++row)
        for (std::int64_t column = 0; column < use.columns; ++column) {
            if (isFull())
                return;
            ++visits_;
            ZrGeMatrix3d shift;
            shift.setToTranslation(use.columnStep * static_cast<double>(column) +
                                   use.rowStep * static_cast<double>(row));
            walk(shown, placement * shift * use.placement, &look);
        }
}

void Expansion::appendOwn(const Drawn& own, const ZrGeMatrix3d& placement, const Surroundings* around) {
    if (shape_ != nullptr)
        return appendParts(own, placement, around);
    for (const SnapPoint& point : own.snaps) {
        const ZrGePoint3d at = placement * point.at;
        if (room_ == 0)
            return;
        if (!isDrawable(at))
            continue;
        points_->push_back({point.kind, at});
        --room_;
    }
}

void Expansion::appendParts(const Drawn& own, const ZrGeMatrix3d& placement, const Surroundings* around) {
    for (const DrawnPart& drawn : own.parts) {
        if (room_ == 0)
            return;
        Part& part = partFor(resolved(drawn.look, around));
        part.lineCount +=
            carry(shape_->lines, own.lines.data() + 2 * std::size_t{drawn.firstLine}, drawn.lineCount, 2, placement);
        part.triangleCount += carry(shape_->triangles, own.triangles.data() + 3 * std::size_t{drawn.firstTriangle},
                                    drawn.triangleCount, 3, placement);
        if (part.lineCount + part.triangleCount == 0)
            shape_->parts.pop_back();
    }
}

Part& Expansion::partFor(const Surroundings& look) {
    const db::ObjectEntry* const colorLayer =
        look.color.from == PartColor::From::Layer && look.colorLayer != look.layer ? look.colorLayer : nullptr;
    std::vector<Part>& parts = shape_->parts;
    if (parts.size() > firstPart_ && parts.back().color == look.color && parts.back().layer == look.layer &&
        parts.back().colorLayer == colorLayer)
        return parts.back();
    return parts.emplace_back(Part{look.color, look.layer, static_cast<std::uint32_t>(shape_->lines.size() / 2), 0,
                                   static_cast<std::uint32_t>(shape_->triangles.size() / 3), 0, colorLayer});
}

std::uint32_t Expansion::carry(std::vector<ZrGePoint3d>& to, const ZrGePoint3d* from, std::size_t primitives,
                               std::size_t pointsEach, const ZrGeMatrix3d& placement) {
    primitives = std::min(primitives, room_);
    std::uint32_t carried = 0;
    for (std::size_t i = 0; i < primitives; ++i, from += pointsEach) {
        std::array<ZrGePoint3d, 3> placed;
        std::transform(from, from + pointsEach, placed.begin(),
                       [&](const ZrGePoint3d& point) { return placement * point; });
        if (!std::all_of(placed.begin(), placed.begin() + static_cast<std::ptrdiff_t>(pointsEach),
                         [](const ZrGePoint3d& point) { return isDrawable(point); }))
            continue;
        to.insert(to.end(), placed.begin(), placed.begin() + static_cast<std::ptrdiff_t>(pointsEach));
        ++carried;
    }
    room_ -= carried;
    return carried;
}

} // namespace quor::gs
