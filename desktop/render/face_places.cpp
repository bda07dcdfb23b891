#include "desktop/render/face_places.h"

#include "desktop/render/scene_faces.h"
#include "desktop/render/tone_mapping.h"

#include <cmath>

namespace quor::desktop {

Vector3 linearColor(std::uint32_t color) {
    constexpr float most = 0.9F;
    return linearLight(color) * most;
}

FacePlace FacePlaces::at(std::uint32_t number, int x, int y) {
    if (number != number_) {
        number_ = number;
        const gs::SceneTriangle& triangle = scene_.triangles[number - 1];
        corner_ = Vector3(triangle.a);
        normal_ = normalOf(triangle);
    }
    const SightLine sight = view_.sightLine(static_cast<float>(x), static_cast<float>(y));
    const float towards = dot(normal_, sight.direction);
    const float along = dot(normal_, corner_ - sight.origin) / towards;
    const Vector3 position = std::isfinite(along) ? sight.origin + sight.direction * along : corner_;
    const float facing = std::min(std::abs(towards) / length(sight.direction), 1.0F);
    return {position, towards > 0 ? normal_ * -1 : normal_, facing};
}

} // namespace quor::desktop
