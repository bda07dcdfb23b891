#include "desktop/render/shading_lights.h"

#include "desktop/render/tone_mapping.h"
#include "host/gs/light_distribution.h"

#include <algorithm>
#include <numbers>

namespace quor::desktop {
namespace {

// Half the diagonal of what is there; of a scene of nothing 1.
float sceneRadius(const gs::SceneData& scene) {
    gs::Coordinates low{}, high{};
    bool isEmpty = true;
    for (const gs::SceneChunk& chunk : scene.chunks) {
        if (!isFinite(Vector3(chunk.low)) || !isFinite(Vector3(chunk.high)))
            continue;
        for (std::size_t i = 0; i < 3; ++i) {
            low[i] = isEmpty ? chunk.low[i] : std::min(low[i], chunk.low[i]);
            high[i] = isEmpty ? chunk.high[i] : std::max(high[i], chunk.high[i]);
        }
        isEmpty = false;
    }
    const float radius = length(Vector3(high) - Vector3(low)) / 2;
    return radius > 0 && std::isfinite(radius) ? radius : 1;
}

// Its distance counts where it has a place; a distant light shines as from the distance of the scene's size.
float strengthOf(const gs::LightMark& mark, float radius) {
    constexpr double strongest = 1e18;
    if (!mark.isOn || !(mark.candela > 0))
        return 0;
    const auto strength = static_cast<float>(std::min(mark.candela, strongest));
    return mark.kind == gs::GlyphKind::Distant ? strength / (radius * radius) : strength;
}

float strengthAt(const gs::LightMark& mark, Vector3 position, Vector3 target, float radius) {
    const Vector3 color = linearLight(mark.rgb);
    const float strength = (color.x + color.y + color.z) * strengthOf(mark, radius);
    if (mark.kind == gs::GlyphKind::Distant)
        return strength;
    const Vector3 way = position - target;
    return strength / (dot(way, way) + radius * radius * 1e-4F);
}

ShadingLight makeLight(const gs::LightMark& mark, const ViewTransform& view, float radius) {
    const auto cosOfHalf = [](double angle) {
        return static_cast<float>(std::cos(std::clamp(angle, 0.0, 2 * std::numbers::pi) / 2));
    };
    ShadingLight light;
    light.kind = mark.kind;
    light.position = Vector3(view.relative(mark.position));
    light.direction = normalized(Vector3(mark.direction));
    light.color = linearLight(mark.rgb) * strengthOf(mark, radius);
    light.cosFalloff = cosOfHalf(std::isfinite(mark.falloff) ? mark.falloff : 0);
    light.cosHotspot = cosOfHalf(std::isfinite(mark.hotspot) ? std::min(mark.hotspot, mark.falloff) : 0);
    light.web = mark.distribution.get();
    std::transform(mark.axes.begin(), mark.axes.end(), light.axes.begin(),
                   [](const ZrGeVector3d& axis) { return Vector3(axis); });
    return light;
}

struct Candidate {
    float strength = 0; // at the target
    std::uint32_t mark = 0;
    [[nodiscard]] bool matters(const Candidate& than) const {
        return strength != than.strength ? strength > than.strength : mark < than.mark;
    }
};

} // namespace

std::vector<ShadingLight> shadingLights(const gs::SceneData& scene, const gs::Camera& camera,
                                        const ViewTransform& view) {
    const float radius = sceneRadius(scene);
    const Vector3 target(view.relative(camera.target));
    std::vector<Candidate> candidates;
    candidates.reserve(scene.lights.size());
    for (std::size_t i = 0; i < scene.lights.size(); ++i) {
        const gs::LightMark& mark = scene.lights[i];
        const Vector3 position(view.relative(mark.position));
        const float strength = strengthAt(mark, position, target, radius);
        if (strength > 0 && isFinite(position) && isFinite(Vector3(mark.direction)))
            candidates.push_back({strength, static_cast<std::uint32_t>(i)});
    }
    const std::size_t count = std::min(candidates.size(), kMostShadingLights);
    std::partial_sort(candidates.begin(), candidates.begin() + static_cast<std::ptrdiff_t>(count), candidates.end(),
                      [](const Candidate& a, const Candidate& b) { return a.matters(b); });
    candidates.resize(count);
    std::vector<ShadingLight> lights;
    lights.reserve(count);
    for (const Candidate& candidate : candidates)
        lights.push_back(makeLight(scene.lights[candidate.mark], view, radius));
    return lights;
}

void LightSamples::clear() {
    for (std::vector<float>* values :
         {&x_, &y_, &z_, &normalX_, &normalY_, &normalZ_, &red_, &green_, &blue_, &visible_})
        values->clear();
}

void LightSamples::add(Vector3 position, Vector3 normal) {
    x_.push_back(position.x);
    y_.push_back(position.y);
    z_.push_back(position.z);
    normalX_.push_back(normal.x);
    normalY_.push_back(normal.y);
    normalZ_.push_back(normal.z);
    for (std::vector<float>* values : {&red_, &green_, &blue_})
        values->push_back(0);
    visible_.push_back(1);
}

inline void LightSamples::add(std::size_t i, const ShadingLight& light, float share) {
    red_[i] += light.color.x * share;
    green_[i] += light.color.y * share;
    blue_[i] += light.color.z * share;
}

void LightSamples::addLight(const ShadingLight& light) {
    if (light.kind == gs::GlyphKind::Distant)
        addDistant(light);
    else if (light.web != nullptr)
        addFromWeb(light);
    else
        addFromPlace(light);
}

void LightSamples::addDistant(const ShadingLight& light) {
    const Vector3 to = light.direction * -1;
    for (std::size_t i = 0; i < x_.size(); ++i) {
        const float facing = normalX_[i] * to.x + normalY_[i] * to.y + normalZ_[i] * to.z;
        add(i, light, std::max(facing, 0.0F) * visible_[i]);
    }
}

// The cone of a light that shines everywhere is all around.
void LightSamples::addFromPlace(const ShadingLight& light) {
    const bool isSpot = light.kind == gs::GlyphKind::Spot;
    const float outer = isSpot ? light.cosFalloff : -3.0F;
    const float inner = isSpot ? light.cosHotspot : -2.0F;
    const float perCos = 1 / std::max(inner - outer, 1e-4F);
    constexpr float nearest = 1e-30F;
    for (std::size_t i = 0; i < x_.size(); ++i) {
        const float wayX = light.position.x - x_[i];
        const float wayY = light.position.y - y_[i];
        const float wayZ = light.position.z - z_[i];
        const float squared = std::max(wayX * wayX + wayY * wayY + wayZ * wayZ, nearest);
        const float perDistance = 1 / std::sqrt(squared);
        const float facing = (normalX_[i] * wayX + normalY_[i] * wayY + normalZ_[i] * wayZ) * perDistance;
        const float cosine =
            -(light.direction.x * wayX + light.direction.y * wayY + light.direction.z * wayZ) * perDistance;
        const float within = std::min(std::max((cosine - outer) * perCos, 0.0F), 1.0F);
        const float cone = within * within * (3 - 2 * within);
        add(i, light, std::max(facing, 0.0F) * perDistance * perDistance * cone * visible_[i]);
    }
}

void LightSamples::addFromWeb(const ShadingLight& light) {
    for (std::size_t i = 0; i < x_.size(); ++i) {
        const Vector3 way = position(i) - light.position;
        const float squared = dot(way, way);
        const float facing = -dot(normal(i), way);
        if (!(facing > 0) || !(squared > 0) || visible_[i] == 0)
            continue;
        const float towards =
            light.web->towards(dot(way, light.axes[0]), dot(way, light.axes[1]), dot(way, light.axes[2]));
        add(i, light, facing / (squared * std::sqrt(squared)) * towards * visible_[i]);
    }
}

} // namespace quor::desktop
