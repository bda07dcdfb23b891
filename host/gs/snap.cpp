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

// A light is where its glyph is.
void considerLights(Choice& choice, const SceneData& scene, const Projector& projector, double x, double y,
                    double radius) {
    for (const LightMark& mark : scene.lights) {
        const auto at = mark.isGlyphShown ? projector.toScreen(mark.position) : std::nullopt;
        if (const double away = at ? std::hypot(at->x - x, at->y - y) : kAnywhere; away <= radius)
            choice.consider({Snap::Kind::Center, mark.position}, away);
    }
}

} // namespace

std::optional<Snap> snapAt(const SceneData& scene, const Projector& projector, double x, double y, int modes,
                           double radius, bool isOpen) {
    if ((modes & kSnapOff) != 0)
        return std::nullopt;
    Choice near;
    Choice center;
    if ((modes & kSnapCenter) != 0)
        considerLights(near, scene, projector, x, y, radius);
    std::vector<NearEntity> candidates;
    if ((modes & (kSnapEnd | kSnapMiddle | kSnapCenter)) != 0)
        candidates = linesNear(scene, projector, x, y, radius);
    candidates.resize(std::min(candidates.size(), kCandidates));
    for (const NearEntity& candidate : candidates) {
        const ZrDbObjectId id = scene.entities[candidate.entity];
        if (id.isNull())
            continue;
        for (const SnapPoint& point : snapPoints(*id.entry()->database, *id.entry())) {
            const SnapRow* const row = rowFor(point.kind, modes);
            const auto at = row == nullptr ? std::nullopt : projector.toScreen(point.at);
            if (!at)
                continue;
            const double away = std::hypot(at->x - x, at->y - y);
            if (away <= radius)
                near.consider({row->kind, point.at}, away);
            else if (row->kind == Snap::Kind::Center && away < kAnywhere)
                center.consider({row->kind, point.at}, away);
        }
    }
    if (near.snap || center.snap)
        return near.snap ? near.snap : center.snap;
    if ((modes & kSnapFace) == 0)
        return std::nullopt;
    const CutAway cutAway = isOpen ? CutAway(scene, projector.camera()) : CutAway();
    const auto face = faceAt(scene, projector, x, y, true, cutAway);
    return face ? std::optional(Snap{Snap::Kind::Face, face->at}) : std::nullopt;
}

} // namespace quor::gs
