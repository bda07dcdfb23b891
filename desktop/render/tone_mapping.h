// From light of any strength to colours of a screen: what is measured of a picture, and the curve that follows from it.
#pragma once

#include "desktop/render/vector3.h"

#include <array>
#include <cstdint>

namespace quor::desktop {

// How often which brightness occurs. Whole numbers, so that it does not matter who counted first.
class BrightnessCounts {
public:
    // `luminance` of `pixels` pixels.
    void add(float luminance, std::uint32_t pixels);
    void add(const BrightnessCounts& other);
    [[nodiscard]] bool isEmpty() const { return total_ == 0; }
    // The brightness that this share of the pixels does not reach.
    [[nodiscard]] float atShare(double share) const;
    // The mean as the eye sees it: of the logarithms.
    [[nodiscard]] float mean() const;

private:
    static constexpr int kStepsOfDoubling = 4;
    static constexpr int kLowest = -64; // powers of two
    static constexpr int kHighest = 64;
    std::array<std::uint64_t, (kHighest - kLowest) * kStepsOfDoubling> counts_{};
    std::uint64_t total_ = 0;
};

[[nodiscard]] inline float luminance(Vector3 light) {
    return 0.2126F * light.x + 0.7152F * light.y + 0.0722F * light.z;
}

// The light that a colour of the screen stands for, each part from 0 to 1.
[[nodiscard]] Vector3 linearLight(std::uint32_t rgb);

class ToneCurve {
public:
    // Of the brightness of a picture; one that is dark everywhere stays dark.
    explicit ToneCurve(const BrightnessCounts& counts);
    // What brightness is multiplied by before the curve.
    [[nodiscard]] float exposure() const { return exposure_; }
    // Exposed light to 0xFFRRGGBB; `dither` of the pixel.
    [[nodiscard]] std::uint32_t color(Vector3 exposed, std::uint32_t dither) const;

private:
    float exposure_ = 1;
    float perWhite_ = 0; // 1 over the square of what becomes white
};

} // namespace quor::desktop
