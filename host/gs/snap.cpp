// Where exactly a point is meant.
#include "host/gs/near_cursor.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace quor::gs {

namespace {

// So many of the nearest entities are looked at.
constexpr std::size_t kCandidates = 6;
// A center may lie far from the line that it belongs to: it is meant where only the line is near.
constexpr double kAnywhere = 1e6;

struct SnapRow {
    int mode;
    SnapPoint::Kind of;
    Snap::Kind kind;
};
constexpr std::array kSnapRows{
    SnapRow{kSnapEnd, SnapPoint::Kind::End, Snap::Kind::End},
    SnapRow{kSnapMiddle, SnapPoint::Kind::Middle, Snap::Kind::Middle},
    SnapRow{kSnapCenter, SnapPoint::Kind::Center, Snap::Kind::Center},
};

const SnapRow* rowFor(SnapPoint::Kind kind, int modes) {
    const auto row = std::find_if(kSnapRows.begin(), kSnapRows.end(),
                                  [&](const SnapRow& each) { return each.of == kind && (modes & each.mode) != 0; });
    return row == kSnapRows.end() ? nullptr : &*row;
}

// The best so far.
struct Choice {
    std::optional<Snap> snap;
    double distance = 0;

    void consider(const Snap& other, double away) {
        if (snap && distance <= away)
            return;
        snap = other;
        distance = away;
    }
};

std::vector<std::uint32_t> candidates(const SceneData& scene, const Projector& projector, double x, double y,
                                      double radius) {
    std::vector<std::uint32_t> entities;
    if (const auto glyph = glyphAt(scene, projector, x, y, radius))
        entities.push_back(glyph->entity);
    for (const NearEntity& line : linesNear(scene, projector, x, y, radius))
        if (entities.size() < kCandidates)
            entities.push_back(line.entity);
    return entities;
}

} // namespace

std::optional<Snap> snapAt(const SceneData& scene, const Projector& projector, double x, double y, int modes,
                           double radius) {
    if ((modes & kSnapOff) != 0)
        return std::nullopt;
    Choice near;
    Choice center;
    if ((modes & (kSnapEnd | kSnapMiddle | kSnapCenter)) != 0)
        for (const std::uint32_t entity : candidates(scene, projector, x, y, radius)) {
            const ZrDbObjectId id = scene.entities[entity];
            if (id.isNull())
                continue;
            for (const SnapPoint& point : snapPoints(*id.entry()->database, *id.entry())) {
                const SnapRow* const row = rowFor(point.kind, modes);
                const auto at = row == nullptr ? std::nullopt : projector.toScreen(point.at);
                if (!at)
                    continue;
                const double distance = std::hypot(at->x - x, at->y - y);
                if (distance <= radius)
                    near.consider({row->kind, point.at}, distance);
                else if (row->kind == Snap::Kind::Center && distance < kAnywhere)
                    center.consider({row->kind, point.at}, distance);
            }
        }
    if (near.snap || center.snap)
        return near.snap ? near.snap : center.snap;
    if ((modes & kSnapFace) != 0)
        if (const auto face = faceAt(scene, projector, x, y))
            return Snap{Snap::Kind::Face, face->at};
    return std::nullopt;
}

} // namespace quor::gs
