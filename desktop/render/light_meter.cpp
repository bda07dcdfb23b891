#include "desktop/render/light_meter.h"

#include "desktop/render/face_places.h"
#include "desktop/render/shadow_mask.h"

namespace quor::desktop {
namespace {

constexpr int kAcross = 48;
constexpr int kDown = 30;

// One row of places.
BrightnessCounts brightnessOfRow(Frame& frame, int y, const gs::SceneData& scene, const ViewTransform& view,
                                 const std::vector<ShadingLight>& lights, const ShadowTree& shadows) {
    LightSamples samples;
    std::vector<Vector3> own;
    FacePlaces places(scene, view);
    for (int i = 0; i < kAcross; ++i) {
        const int x = (2 * i + 1) * frame.width() / (2 * kAcross);
        const std::uint32_t number = frame.faces(y)[x];
        if (number == 0)
            continue;
        const FacePlace place = places.at(number, x, y);
        samples.add(place.position, place.normal);
        own.push_back(linearColor(frame.row(y)[x]));
    }
    for (std::size_t i = 0; i < lights.size(); ++i) {
        const bool throwsShadows = i < kMostShadowLights && !shadows.isEmpty();
        for (std::size_t k = 0; k < samples.size(); ++k) {
            const bool isLit = !throwsShadows || reaches(lights[i], shadows, samples.position(k), samples.normal(k));
            samples.visible()[k] = isLit ? 1.0F : 0.0F;
        }
        samples.addLight(lights[i]);
    }
    BrightnessCounts counts;
    for (std::size_t k = 0; k < samples.size(); ++k)
        counts.add(luminance(product(samples.light(k), own[k])), 1);
    return counts;
}

} // namespace

BrightnessCounts measuredBrightness(Frame& frame, const gs::SceneData& scene, const ViewTransform& view,
                                    const std::vector<ShadingLight>& lights, const ShadowTree& shadows,
                                    ThreadPool& threads) {
    std::array<BrightnessCounts, kDown> rows;
    threads.run(rows.size(), [&](std::size_t row) {
        const int y = (2 * static_cast<int>(row) + 1) * frame.height() / (2 * kDown);
        rows[row] = brightnessOfRow(frame, y, scene, view, lights, shadows);
    });
    BrightnessCounts all;
    for (const BrightnessCounts& row : rows)
        all.add(row);
    return all;
}

} // namespace quor::desktop
