#include "desktop/render/drawing_lights.h"

#include "desktop/render/dither.h"
#include "desktop/render/scene_faces.h"
#include "desktop/render/shadow_mask.h"

#include <cmath>

namespace quor::desktop {
namespace {

constexpr std::size_t kMostShadowLights = 16;

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

std::array<float, 256> linearBytes() {
    std::array<float, 256> values{};
    for (std::size_t i = 0; i < values.size(); ++i)
        values[i] = std::pow(static_cast<float>(i) / 255, 2.2F);
    return values;
}

// The colour of a face as the share of light that it sends back; never all of it.
Vector3 linearColor(std::uint32_t color) {
    static const std::array<float, 256> values = linearBytes();
    constexpr float most = 0.9F;
    return Vector3(values[(color >> 16) & 0xFFU], values[(color >> 8) & 0xFFU], values[color & 0xFFU]) * most;
}

Vector3 product(Vector3 a, Vector3 b) { return {a.x * b.x, a.y * b.y, a.z * b.z}; }

// The plane of the triangle that was looked at last: neighbours mostly show the same one.
class FacePlanes {
public:
    FacePlanes(const gs::SceneData& scene, const ViewTransform& view) : scene_(scene), view_(view) {}

    struct Place {
        Vector3 position;
        Vector3 normal; // on the side that is seen
        float facing;   // 0 from the edge, 1 straight on
    };
    [[nodiscard]] Place at(std::uint32_t number, int x, int y) {
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

private:
    const gs::SceneData& scene_;
    const ViewTransform& view_;
    std::uint32_t number_ = 0;
    Vector3 corner_, normal_;
};

} // namespace

void DrawingLights::takeSamples(Frame& frame, Band band, const gs::SceneData& scene, const ViewTransform& view,
                                int block, BandLight& light) {
    light.clear();
    FacePlanes planes(scene, view);
    const auto add = [&](std::uint32_t number, std::uint32_t color, int x, int y) {
        const FacePlanes::Place place = planes.at(number, x, y);
        light.samples.add(place.position, place.normal);
        light.triangles.push_back(number);
        light.dither.push_back(static_cast<std::uint8_t>(ditherAt(x / block, y / block)));
        light.facing.push_back(place.facing);
        light.own.push_back(linearColor(color));
        light.pixels.push_back(0);
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
                    ++light.pixels[sample - 1];
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
        const std::uint32_t* const samples = frame.faces(y);
        std::uint32_t* const row = frame.row(y);
        for (int x = 0; x < frame.width(); ++x) {
            if (samples[x] != 0)
                row[x] = light.colors[samples[x] - 1];
        }
    }
}

void DrawingLights::light(Frame& frame, Band band, const std::vector<ShadingLight>& lights, int sampleSize,
                          BandLight& light) const {
    ShadowMask shadows(frame, band, shadows_, light.samples, light.triangles, sampleSize);
    for (std::size_t i = 0; i < lights.size(); ++i) {
        if (!shadows_.isEmpty() && i < kMostShadowLights)
            shadows.apply(lights[i]);
        else if (i == kMostShadowLights)
            shadows.clear();
        light.samples.addLight(lights[i]);
    }
}

void DrawingLights::shade(Frame& frame, const gs::SceneData& scene, const gs::Camera& camera, const ViewTransform& view,
                          const RenderOptions& options, ThreadPool& threads) {
    if (!view.isValid())
        return;
    const std::vector<ShadingLight> lights = shadingLights(scene, camera, view);
    if (options.isMoving || lights.empty())
        shadows_.clear();
    else
        shadows_.build(scene);
    const int sampleSize = sampleSizeOf(options);
    const auto count = static_cast<std::size_t>(frame.bandCount());
    bands_.resize(count);
    threads.run(count, [&](std::size_t number) {
        BandLight& band = bands_[number];
        takeSamples(frame, frame.band(number), scene, view, sampleSize, band);
        light(frame, frame.band(number), lights, sampleSize, band);
        for (std::size_t i = 0; i < band.samples.size(); ++i)
            band.brightness.add(luminance(product(band.samples.light(i), band.own[i])), band.pixels[i]);
    });
    BrightnessCounts brightness;
    for (const BandLight& band : bands_)
        brightness.add(band.brightness);
    const ToneCurve curve(brightness);
    threads.run(count, [&](std::size_t number) {
        bands_[number].isDark = brightness.isEmpty();
        paint(frame, frame.band(number), curve, bands_[number]);
    });
}

void DrawingLights::BandLight::clear() {
    samples.clear();
    triangles.clear();
    dither.clear();
    own.clear();
    facing.clear();
    pixels.clear();
    brightness = {};
}

} // namespace quor::desktop
