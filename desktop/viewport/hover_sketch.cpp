#include "desktop/viewport/hover_sketch.h"

#include <algorithm>

namespace quor::desktop {

namespace {

constexpr std::size_t kMostPoints = 40'000;

class LineCollector {
public:
    explicit LineCollector(const gs::SceneData& scene) : scene_(scene) {}

    void add(const gs::SceneItem& item) {
        for (const gs::SceneLine& line : scene_.lines.subspan(item.firstLine, item.lineCount))
            add(line.a, line.b);
        // Faces without edges of their own.
        if (item.lineCount == 0)
            for (const gs::SceneTriangle& t : scene_.triangles.subspan(item.firstTriangle, item.triangleCount)) {
                add(t.a, t.b);
                add(t.b, t.c);
                add(t.c, t.a);
            }
    }
    [[nodiscard]] std::vector<ZrGePoint3d> take() { return std::move(points_); }

private:
    [[nodiscard]] ZrGePoint3d world(const gs::Coordinates& c) const {
        return scene_.origin + ZrGeVector3d(c[0], c[1], c[2]);
    }
    void add(const gs::Coordinates& a, const gs::Coordinates& b) {
        if (points_.size() >= kMostPoints)
            return;
        points_.push_back(world(a));
        points_.push_back(world(b));
    }

    const gs::SceneData& scene_;
    std::vector<ZrGePoint3d> points_;
};

} // namespace

HoverSketch hoverSketch(const gs::SceneData& scene, ZrDbObjectId entity) {
    HoverSketch sketch;
    if (entity.isNull())
        return sketch;
    const auto known = std::find(scene.entities.begin(), scene.entities.end(), entity);
    if (known == scene.entities.end())
        return sketch;
    const auto number = static_cast<std::uint32_t>(known - scene.entities.begin());
    LineCollector lines(scene);
    for (const gs::SceneItem& item : scene.items)
        if (item.entity == number && item.visible)
            lines.add(item);
    sketch.lines = lines.take();
    for (const gs::LightMark& light : scene.lights)
        if (light.entity == number && light.isGlyphShown)
            sketch.light = light;
    return sketch;
}

} // namespace quor::desktop
