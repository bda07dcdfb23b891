#include "desktop/render/drawing_lights.h"

#include "desktop/render/dither.h"
#include "desktop/render/face_places.h"
#include "desktop/render/light_meter.h"
#include "desktop/render/shadow_mask.h"

namespace quor::desktop {
namespace {

// How many pixels, across and down, are computed as one: more while the picture moves or where pixels are small.
int sampleSizeOf(const RenderOptions& options) {
    constexpr int whileMoving = 4;
    constexpr double smallPixels = 1.5;
    return (options.isMoving ? whileMoving : 1) * (options.pixelRatio > smallPixels ? 2 : 1);
}

// What can be seen of everything without any light, and more of what is turned to the eye; after exposure.
constexpr float kEven = 0.030F;
constexpr float kTowardsEye = 0.045F;
constexpr float kMoreInTheDark = 3;

} // namespace

void DrawingLights::takeSamples(Frame& frame, Band band, const gs::SceneData& scene, const ViewTransform& view,
                                int block, BandLight& light) {
    light.clear();
    FacePlaces places(scene, view);
    const auto add = [&](std::uint32_t number, std::uint32_t color, int x, int y) {
        const FacePlace place = places.at(number, x, y);
        light.samples.add(place.position, place.normal);
        light.triangles.push_back(number);
        light.dither.push_back(static_cast<std::uint8_t>(ditherAt(x / block, y / block)));
        light.facing.push_back(place.facing);
        light.own.push_back(linearColor(color));
        return static_cast<std::uint32_t>(light.samples.size());
    };
    for (int top = band.top; top < band.bottom; top += block) {
        for (int left = 0; left < frame.width(); left += block) {
            const int bottom = std::min(top + block, band.bottom);
            const int right = std::min(left + block, frame.width());
            std::uint32_t shared = 0; // triangle of the block's sample
            std::uint32_t sample = 0;
            for (int y = top; y < bottom; ++y) {
                for (int x = left; x < right; ++x) {
                    std::uint32_t& number = frame.faces(y)[x];
                    if (number == 0)
                        continue;
                    if (number != shared) {
                        shared = number;
                        sample = add(number, frame.row(y)[x], std::min(x + block / 2, right - 1),
                                     std::min(y + block / 2, bottom - 1));
                    }
                    number = sample;
                }
            }
        }
    }
}

void DrawingLights::paint(Frame& frame, Band band, const ToneCurve& curve, BandLight& light) {
    const float more = light.isDark ? kMoreInTheDark : 1;
    light.colors.resize(light.samples.size());
    for (std::size_t i = 0; i < light.samples.size(); ++i) {
        const float always = more * (kEven + kTowardsEye * light.facing[i]);
        const Vector3 fallen = light.samples.light(i) * curve.exposure() + Vector3(always, always, always);
        light.colors[i] = curve.color(product(fallen, light.own[i]), light.dither[i]);
    }
    for (int y = band.top; y < band.bottom; ++y) {
        std::uint32_t* const samples = frame.faces(y);
        std::uint32_t* const row = frame.row(y);
        for (int x = 0; x < frame.width(); ++x) {
            if (samples[x] == 0)
                continue;
            row[x] = light.colors[samples[x] - 1];
            samples[x] = light.triangles[samples[x] - 1];
        }
    }
}

void DrawingLights::light(Frame& frame, Band band, const std::vector<ShadingLight>& lights,
                          const RenderOptions& options, BandLight& light) const {
    const std::size_t shadowLights = options.isMoving || shadows_.isEmpty() ? 0 : kMostShadowLights;
    ShadowMask shadows(frame, band, shadows_, light.samples, light.triangles, sampleSizeOf(options));
    for (std::size_t i = 0; i < lights.size(); ++i) {
        if (i < shadowLights)
            shadows.apply(lights[i]);
        else if (i == shadowLights)
            shadows.clear();
        light.samples.addLight(lights[i]);
    }
}

void DrawingLights::findShadows(const gs::SceneData& scene) {
    if (scene.contents == 0 || scene.contents != shadowsOf_)
        shadows_.build(scene);
    shadowsOf_ = scene.contents;
}

void DrawingLights::shade(Frame& frame, const gs::SceneData& scene, const gs::Camera& camera, const ViewTransform& view,
                          const RenderOptions& options, ThreadPool& threads) {
    if (!view.isValid())
        return;
    const std::vector<ShadingLight> lights = shadingLights(scene, camera, view);
    if (!lights.empty())
        findShadows(scene);
    const BrightnessCounts brightness = measuredBrightness(frame, scene, view, lights, shadows_, threads);
    const ToneCurve curve(brightness);
    const auto count = static_cast<std::size_t>(frame.bandCount());
    bands_.resize(count);
    threads.run(count, [&](std::size_t number) {
        const Band band = frame.band(number);
        BandLight& bandLight = bands_[number];
        bandLight.isDark = brightness.isEmpty();
        takeSamples(frame, band, scene, view, sampleSizeOf(options), bandLight);
        light(frame, band, lights, options, bandLight);
        paint(frame, band, curve, bandLight);
    });
}

void DrawingLights::BandLight::clear() {
    samples.clear();
    triangles.clear();
    dither.clear();
    own.clear();
    facing.clear();
}

} // namespace quor::desktop
