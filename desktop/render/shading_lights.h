// The lights of a drawing that light its faces, ready to be asked how much of them falls on a place.
#pragma once

#include "desktop/render/view_transform.h"

#include <array>
#include <vector>

namespace quor::desktop {

struct ShadingLight {
    gs::GlyphKind kind = gs::GlyphKind::Point;
    Vector3 position;
    Vector3 direction;    // of length 1
    Vector3 color;        // red, green, blue times the intensity
    float cosHotspot = 1; // of half the angles
    float cosFalloff = 0;
    const gs::LightDistribution* web = nullptr; // and its axes; without one, the light shines evenly
    std::array<Vector3, 3> axes;
};

inline constexpr std::size_t kMostShadingLights = 64;

// Those that are on, those that light the camera's target most first; at most kMostShadingLights. A distant light
// shines as a point light does at the distance of the scene's own size, so that pictures do not depend on the unit of
// the drawing.
[[nodiscard]] std::vector<ShadingLight> shadingLights(const gs::SceneData& scene, const gs::Camera& camera,
                                                      const ViewTransform& view);

// Places with what falls on them, an array for each value so that many are computed at once.
class LightSamples {
public:
    void clear();
    // `normal` on the side that is seen.
    void add(Vector3 position, Vector3 normal);
    [[nodiscard]] std::size_t size() const { return x_.size(); }
    void addLight(const ShadingLight& light);
    [[nodiscard]] Vector3 light(std::size_t i) const { return {red_[i], green_[i], blue_[i]}; }
    [[nodiscard]] Vector3 position(std::size_t i) const { return {x_[i], y_[i], z_[i]}; }
    [[nodiscard]] Vector3 normal(std::size_t i) const { return {normalX_[i], normalY_[i], normalZ_[i]}; }
    // What of the next light reaches each place, 0 to 1.
    [[nodiscard]] std::vector<float>& visible() { return visible_; }

private:
    void addDistant(const ShadingLight& light);
    void addFromPlace(const ShadingLight& light);
    void addFromWeb(const ShadingLight& light);
    void add(std::size_t i, const ShadingLight& light, float share);
    std::vector<float> x_, y_, z_, normalX_, normalY_, normalZ_, red_, green_, blue_, visible_;
};

} // namespace quor::desktop
