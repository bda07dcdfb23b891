#include "desktop/render/colors.h"

#include <cstdlib>

namespace quor::desktop {
namespace {

constexpr std::uint32_t kWhite = 0xFFFFFF;
constexpr std::uint32_t kNeutralFace = 0xFFD0D3D8;
constexpr int kReadable = 60; // difference of brightness at which a thin line stands out

int channel(std::uint32_t color, int shift) { return static_cast<int>((color >> shift) & 0xFFU); }

// How far apart two colours look: their brightness, and a little their hue.
int difference(std::uint32_t a, std::uint32_t b) {
    int hue = 0;
    for (const int shift : {0, 8, 16})
        hue += std::abs(channel(a, shift) - channel(b, shift));
    return std::abs(brightness(a) - brightness(b)) + hue / 16;
}

} // namespace

int brightness(std::uint32_t color) {
    return (channel(color, 16) * 77 + channel(color, 8) * 151 + channel(color, 0) * 28) >> 8;
}

Palette::Palette(const PictureColors& colors)
    : background_(mixed(colors.backgroundTop, colors.backgroundBottom, 128)), ink_(colors.ink | 0xFF000000U) {}

std::uint32_t Palette::lineColor(std::uint32_t rgb) {
    rgb &= kWhite;
    if (rgb == kWhite || rgb == 0)
        return ink_;
    Known& known = known_[(rgb ^ (rgb >> 7) ^ (rgb >> 15)) % known_.size()];
    if (known.rgb != rgb)
        known = {.rgb = rgb, .color = readable(rgb | 0xFF000000U)};
    return known.color;
}

std::uint32_t Palette::readable(std::uint32_t color) const {
    constexpr std::uint32_t step = 24;
    for (std::uint32_t share = 0; share < 255; share += step) {
        const std::uint32_t lifted = mixed(color, ink_, share);
        if (difference(lifted, background_) >= kReadable)
            return lifted;
    }
    return ink_;
}

std::uint32_t Palette::faceColor(std::uint32_t rgb) {
    rgb &= kWhite;
    return rgb == kWhite || rgb == 0 ? kNeutralFace : rgb | 0xFF000000U;
}

std::uint32_t Palette::edgeColor(std::uint32_t faceColor) {
    constexpr int dark = 70;
    return brightness(faceColor) < dark ? mixed(faceColor, 0xFFFFFFFFU, 90) : mixed(faceColor, 0xFF101216U, 165);
}

} // namespace quor::desktop
