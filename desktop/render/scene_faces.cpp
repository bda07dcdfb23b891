#include "desktop/render/scene_faces.h"

#include "desktop/render/colors.h"
#include "desktop/render/face_tint.h"

namespace quor::desktop {
namespace {

// Two soft lights that come with the eye and an even part: a face is never black.
class EyeLights {
public:
    explicit EyeLights(const ViewTransform& view)
        : key_(normalized(view.backward() * 0.75F + view.up() * 0.55F - view.right() * 0.45F)),
          fill_(normalized(view.backward() * 0.6F + view.right() * 0.7F - view.up() * 0.15F)),
          backward_(view.backward()) {}

    // 0 to 255: how much light falls on the side that is seen.
    [[nodiscard]] std::uint32_t on(Vector3 normal, Vector3 toEye) const {
        const Vector3 seen = dot(normal, toEye) < 0 ? normal * -1 : normal;
        const float key = std::max(0.0F, dot(seen, key_));
        const float fill = std::max(0.0F, dot(seen, fill_));
        const float sum = 0.40F + 0.58F * key + 0.22F * fill;
        return static_cast<std::uint32_t>(toWhole(sum * 255, 0, 255));
    }
    [[nodiscard]] Vector3 backward() const { return backward_; }

private:
    Vector3 key_, fill_, backward_;
};

void addPolygon(const ScreenPolygon& polygon, std::uint32_t color, std::uint32_t number, BandBlock<ScreenFace>& block) {
    for (std::size_t i = 2; i < polygon.count; ++i) {
        const ScreenFace face{.x = {polygon.x[0], polygon.x[i - 1], polygon.x[i]},
                              .y = {polygon.y[0], polygon.y[i - 1], polygon.y[i]},
                              .plane = polygon.plane,
                              .color = color,
                              .number = number};
        const auto [top, bottom] = std::minmax_element(face.y.begin(), face.y.end());
        block.add(face, *top, *bottom + 1);
    }
}

} // namespace

Vector3 normalOf(const gs::SceneTriangle& triangle) {
    const Vector3 a(triangle.a);
    const Vector3 along = normalized(Vector3(triangle.b) - a);
    const Vector3 aside = normalized(Vector3(triangle.c) - a);
    return normalized(cross(along, aside));
}

void collectFaces(const gs::SceneData& scene, const ViewTransform& view, const RenderOptions& options,
                  std::span<const ItemRun> runs, const gs::CutAway& cutAway, BandBlock<ScreenFace>& block) {
    const EyeLights lights(view);
    const bool isLitHere = options.lighting == Lighting::Default;
    const Vector3 eye = view.sightLine(0, 0).origin;
    for (const ItemRun& run : runs) {
        for (const gs::SceneItem& item : scene.items.subspan(run.first, run.count)) {
            const bool isThere = std::uint64_t{item.firstTriangle} + item.triangleCount <= scene.triangles.size();
            if (!item.visible || item.triangleCount == 0 || !isThere)
                continue;
            std::uint32_t color = Palette::faceColor(item.rgb);
            if (isLitHere)
                color = emphasized(color, emphasisOf(scene, item.entity), options.colors);
            for (std::uint32_t i = item.firstTriangle; i < item.firstTriangle + item.triangleCount; ++i) {
                const gs::SceneTriangle& triangle = scene.triangles[i];
                ScreenPolygon polygon;
                if (cutAway.hides(triangle) || !projectTriangle(view, triangle, polygon))
                    continue;
                std::uint32_t shown = color;
                if (isLitHere) {
                    const Vector3 toEye = view.isPerspective() ? eye - Vector3(triangle.a) : lights.backward();
                    shown = mixed(0xFF000000U, color, lights.on(normalOf(triangle), toEye));
                }
                addPolygon(polygon, shown, i + 1, block);
            }
        }
    }
}

} // namespace quor::desktop
