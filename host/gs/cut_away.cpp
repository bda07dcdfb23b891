#include "host/gs/cut_away.h"

#include <algorithm>

namespace quor::gs {

namespace {

// What stands so near to a side of the box belongs to it; of the size of the box in that direction.
constexpr float kThickness = 0.02F;
// A parallel view looks in through the sides that are turned to the eye by so much.
constexpr double kTurned = 0.05;

struct FaceBox {
    Coordinates low{}, high{};
    bool isEmpty = true;
    void add(const Coordinates& point) {
        for (std::size_t i = 0; i < point.size(); ++i) {
            low[i] = isEmpty ? point[i] : std::min(low[i], point[i]);
            high[i] = isEmpty ? point[i] : std::max(high[i], point[i]);
        }
        isEmpty = false;
    }
};

FaceBox boxOfFaces(const SceneData& scene) {
    FaceBox box;
    for (const SceneItem& item : scene.items) {
        if (!item.visible || std::uint64_t{item.firstTriangle} + item.triangleCount > scene.triangles.size())
            continue;
        for (const SceneTriangle& triangle : scene.triangles.subspan(item.firstTriangle, item.triangleCount))
            for (const Coordinates& point : {triangle.a, triangle.b, triangle.c})
                box.add(point);
    }
    return box;
}

Coordinates coordinates(const ZrGeVector3d& v) {
    return {static_cast<float>(v.x), static_cast<float>(v.y), static_cast<float>(v.z)};
}

} // namespace

CutAway::CutAway(const SceneData& scene, const Camera& camera) {
    const FaceBox box = boxOfFaces(scene);
    const bool isParallel = camera.projection == Projection::Parallel;
    const Coordinates eye = coordinates(isParallel ? camera.backward : camera.eye() - scene.origin);
    for (std::size_t i = 0; i < eye.size(); ++i) {
        const float thickness = (box.high[i] - box.low[i]) * kThickness;
        if (box.isEmpty || !(thickness > 0))
            continue;
        if (isParallel ? eye[i] > kTurned : eye[i] > box.high[i])
            high_[i] = box.high[i] - thickness;
        if (isParallel ? eye[i] < -kTurned : eye[i] < box.low[i])
            low_[i] = box.low[i] + thickness;
    }
}

bool CutAway::hides(const SceneTriangle& triangle) const {
    for (std::size_t i = 0; i < low_.size(); ++i) {
        const auto [lowest, highest] = std::minmax({triangle.a[i], triangle.b[i], triangle.c[i]});
        if (lowest > high_[i] || highest < low_[i])
            return true;
    }
    return false;
}

} // namespace quor::gs
