#include "host/gs/near_cursor.h"

#include "host/gs/pick_window.h"

#include <algorithm>
#include <cmath>
#include <unordered_map>

namespace quor::gs {

namespace {

ZrGePoint3d inWorld(const Coordinates& point, const ZrGePoint3d& origin) {
    return {origin.x + point[0], origin.y + point[1], origin.z + point[2]};
}

PixelRect around(double x, double y, double radius) { return {x - radius, y - radius, x + radius, y + radius}; }

// Of two that are as near within half a pixel, the one in front counts.
bool isNearer(const NearEntity& a, const NearEntity& b) {
    const double stepA = std::floor(a.distance * 2);
    const double stepB = std::floor(b.distance * 2);
    return stepA != stepB ? stepA < stepB : a.depth < b.depth;
}

// Brings the end of a line that is not seen before the eye.
std::optional<ScreenPoint> seenEnd(const Projector& projector, const ZrGePoint3d& end, const ZrGePoint3d& other) {
    constexpr double kNearest = 1e-3; // of the distance of the target
    if (const auto seen = projector.toScreen(end))
        return seen;
    const Camera& camera = projector.camera();
    const double before = camera.eyeDistance() * kNearest;
    const double endDepth = (camera.eye() - end).dotProduct(camera.backward);
    const double otherDepth = (camera.eye() - other).dotProduct(camera.backward);
    if (otherDepth <= before)
        return std::nullopt;
    return projector.toScreen(end + (other - end) * ((before - endDepth) / (otherDepth - endDepth)));
}

struct NearPlace {
    double distance;
    double depth;
};

std::optional<NearPlace> nearestOn(const Projector& projector, const ZrGePoint3d& a, const ZrGePoint3d& b, double x,
                                   double y) {
    const auto from = seenEnd(projector, a, b);
    const auto to = seenEnd(projector, b, a);
    if (!from || !to)
        return std::nullopt;
    const double dx = to->x - from->x;
    const double dy = to->y - from->y;
    const double length = dx * dx + dy * dy;
    const double share = length > 0 ? std::clamp(((x - from->x) * dx + (y - from->y) * dy) / length, 0.0, 1.0) : 0;
    const double distance = std::hypot(from->x + dx * share - x, from->y + dy * share - y);
    // In perspective it is the inverse of the depth that grows evenly over a picture.
    const double depth = projector.camera().projection == Projection::Perspective
                             ? 1 / ((1 - share) / from->depth + share / to->depth)
                             : from->depth + (to->depth - from->depth) * share;
    return NearPlace{distance, depth};
}

// Where a ray meets a triangle: a share of its direction from its origin.
std::optional<double> meet(const Ray& ray, const ZrGePoint3d& a, const ZrGePoint3d& b, const ZrGePoint3d& c) {
    const ZrGeVector3d ab = b - a;
    const ZrGeVector3d ac = c - a;
    const ZrGeVector3d across = ray.direction.crossProduct(ac);
    const double volume = ab.dotProduct(across);
    if (volume == 0)
        return std::nullopt;
    const ZrGeVector3d fromA = ray.origin - a;
    const double u = fromA.dotProduct(across) / volume;
    const ZrGeVector3d over = fromA.crossProduct(ab);
    const double v = ray.direction.dotProduct(over) / volume;
    if (!(u >= 0 && v >= 0 && u + v <= 1))
        return std::nullopt;
    return ac.dotProduct(over) / volume;
}

// Calls `act` with each visible item that may be inside.
template <class Act>
void forEachItem(const SceneData& scene, const PickWindow& window, const Act& act) {
    for (const SceneChunk& chunk : scene.chunks)
        if (window.mayHold(chunk))
            for (const SceneItem& item : scene.items.subspan(chunk.firstItem, chunk.itemCount))
                if (item.visible)
                    act(item);
}

} // namespace

std::vector<NearEntity> linesNear(const SceneData& scene, const Projector& projector, double x, double y,
                                  double radius) {
    const PickWindow window(projector, scene.origin, around(x, y, radius));
    std::unordered_map<std::uint32_t, NearEntity> nearest;
    forEachItem(scene, window, [&](const SceneItem& item) {
        for (const SceneLine& line : scene.lines.subspan(item.firstLine, item.lineCount)) {
            if (!window.touches(line))
                continue;
            const auto place = nearestOn(projector, inWorld(line.a, scene.origin), inWorld(line.b, scene.origin), x, y);
            if (!place || place->distance > radius)
                continue;
            const NearEntity found{item.entity, place->distance, place->depth};
            const auto [known, isNew] = nearest.try_emplace(item.entity, found);
            if (!isNew && isNearer(found, known->second))
                known->second = found;
        }
    });
    std::vector<NearEntity> sorted;
    sorted.reserve(nearest.size());
    for (const auto& [entity, found] : nearest)
        sorted.push_back(found);
    std::sort(sorted.begin(), sorted.end(), [](const NearEntity& a, const NearEntity& b) {
        return isNearer(a, b) || (!isNearer(b, a) && a.entity < b.entity);
    });
    return sorted;
}

std::optional<NearEntity> glyphAt(const SceneData& scene, const Projector& projector, double x, double y,
                                  double radius) {
    std::optional<NearEntity> best;
    for (const LightMark& mark : scene.lights) {
        if (!mark.isGlyphShown)
            continue;
        const auto at = projector.toScreen(mark.position);
        if (!at)
            continue;
        const NearEntity found{mark.entity, std::hypot(at->x - x, at->y - y), at->depth};
        if (found.distance <= radius && (!best || isNearer(found, *best)))
            best = found;
    }
    return best;
}

std::optional<HitFace> faceAt(const SceneData& scene, const Projector& projector, double x, double y, bool all,
                              const CutAway& cutAway) {
    const PickWindow window(projector, scene.origin, around(x, y, 0));
    const Ray ray = projector.rayAt(x, y);
    const Ray inScene{ZrGePoint3d() + (ray.origin - scene.origin), ray.direction};
    const bool isParallel = projector.camera().projection == Projection::Parallel;
    std::optional<double> first;
    std::uint32_t entity = 0;
    forEachItem(scene, window, [&](const SceneItem& item) {
        if (!all && item.lineCount > 0)
            return;
        for (const SceneTriangle& triangle : scene.triangles.subspan(item.firstTriangle, item.triangleCount)) {
            const auto way = meet(inScene, inWorld(triangle.a, {}), inWorld(triangle.b, {}), inWorld(triangle.c, {}));
            // A parallel picture shows what is behind its eye, too.
            if (!way || (!isParallel && *way <= 0) || (first && *way >= *first) || cutAway.hides(triangle))
                continue;
            first = way;
            entity = item.entity;
        }
    });
    if (!first)
        return std::nullopt;
    HitFace hit;
    hit.entity = entity;
    hit.at = ray.origin + ray.direction * *first;
    hit.depth = (projector.camera().eye() - hit.at).dotProduct(projector.camera().backward);
    return hit;
}

double hidingMargin(const Projector& projector, const NearEntity& face, double radius) {
    constexpr double kSteepest = 8; // units of depth for one across
    const Camera& camera = projector.camera();
    const ZrGePoint3d at = camera.eye() - camera.backward * face.depth;
    return kSteepest * radius * projector.unitsPerPixel(at);
}

} // namespace quor::gs
