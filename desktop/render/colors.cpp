#include "desktop/render/colors.h"

#include <algorithm>
#include <cmath>

namespace quor::desktop {
namespace {

constexpr std::uint32_t kWhite = 0xFFFFFF;
constexpr std::uint32_t kNeutralFace = 0xFFD0D3D8;
constexpr double kReadable = 2.2; // contrast at which a thin line stands out

int channel(std::uint32_t color, int shift) { return static_cast<int>((color >> shift) & 0xFFU); }

// The light that a screen sends out for it, and a little that falls on the screen.
double lightOf(std::uint32_t color) {
    const auto linear = [color](int shift) { return std::pow(channel(color, shift) / 255.0, 2.2); };
    return 0.2126 * linear(16) + 0.7152 * linear(8) + 0.0722 * linear(0) + 0.05;
}

double contrast(std::uint32_t a, std::uint32_t b) {
    const double first = lightOf(a);
    const double second = lightOf(b);
    return std::max(first, second) / std::min(first, second);
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
    constexpr std::uint32_t step = 16;
    for (std::uint32_t share = 0; share < 255; share += step) {
        const std::uint32_t lifted = mixed(color, ink_, share);
        if (contrast(lifted, background_) >= kReadable)
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
