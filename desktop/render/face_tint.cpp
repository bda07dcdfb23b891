#include "desktop/render/face_tint.h"

#include "desktop/render/colors.h"
#include "desktop/render/scene_runs.h"

namespace quor::desktop {

std::uint32_t emphasized(std::uint32_t color, gs::Emphasis emphasis, const PictureColors& colors) {
    constexpr std::uint32_t share = 100;
    switch (emphasis) {
    case gs::Emphasis::Hovered:
        return mixed(color, colors.hovered, share);
    case gs::Emphasis::Selected:
        return mixed(color, colors.selected, share);
    case gs::Emphasis::None:
        break;
    }
    return color;
}

void FaceTint::collect(const gs::SceneData& scene) {
    runs_.clear();
    for (const gs::SceneItem& item : scene.items) {
        const gs::Emphasis emphasis = emphasisOf(scene, item.entity);
        if (emphasis != gs::Emphasis::None && item.triangleCount > 0)
            runs_.push_back({item.firstTriangle, item.firstTriangle + item.triangleCount, emphasis});
    }
    std::sort(runs_.begin(), runs_.end(), [](const Run& a, const Run& b) { return a.first < b.first; });
}

gs::Emphasis FaceTint::of(std::uint32_t triangle) const {
    const auto after = std::upper_bound(runs_.begin(), runs_.end(), triangle,
                                        [](std::uint32_t wanted, const Run& run) { return wanted < run.first; });
    return after != runs_.begin() && triangle < (after - 1)->end ? (after - 1)->emphasis : gs::Emphasis::None;
}

// Neighbours mostly show the same triangle.
void FaceTint::apply(Frame& frame, Band band, const PictureColors& colors) const {
    if (runs_.empty())
        return;
    std::uint32_t last = 0;
    gs::Emphasis emphasis = gs::Emphasis::None;
    for (int y = band.top; y < band.bottom; ++y) {
        const std::uint32_t* const faces = frame.faces(y);
        std::uint32_t* const row = frame.row(y);
        for (int x = 0; x < frame.width(); ++x) {
            if (faces[x] == 0)
                continue;
            if (faces[x] != last) {
                last = faces[x];
                emphasis = of(last - 1);
            }
            row[x] = emphasized(row[x], emphasis, colors);
        }
    }
}

} // namespace quor::desktop
