// Colours of a picture: what the drawing's colours become so that they can be seen.
#pragma once

#include "desktop/render/renderer.h"

#include <array>

namespace quor::desktop {

// `share` of the second, 0 to 255.
[[nodiscard]] inline std::uint32_t mixed(std::uint32_t first, std::uint32_t second, std::uint32_t share) {
    const std::uint32_t weight = share + (share >> 7); // 0 to 256
    const std::uint32_t oddFirst = first & 0x00FF00FFU;
    const std::uint32_t evenFirst = (first >> 8) & 0x00FF00FFU;
    const std::uint32_t odd = (oddFirst * (256 - weight) + (second & 0x00FF00FFU) * weight) >> 8;
    const std::uint32_t even = evenFirst * (256 - weight) + ((second >> 8) & 0x00FF00FFU) * weight;
    return 0xFF000000U | (odd & 0x00FF00FFU) | (even & 0x0000FF00U);
}

// 0 to 255, as bright as it looks.
[[nodiscard]] int brightness(std::uint32_t color);

// The colours of lines and faces on one background. One for each thread: it remembers what it was asked.
class Palette {
public:
    explicit Palette(const PictureColors& colors);
    // White and black become ink; what is too close to the background is moved towards the ink.
    [[nodiscard]] std::uint32_t lineColor(std::uint32_t rgb);
    // Of a face before light falls on it: white and black become a light grey.
    [[nodiscard]] static std::uint32_t faceColor(std::uint32_t rgb);
    // Of the edges of such a face: darker, or lighter where the face is dark.
    [[nodiscard]] static std::uint32_t edgeColor(std::uint32_t faceColor);
    [[nodiscard]] std::uint32_t readable(std::uint32_t color) const;

private:
    struct Known {
        std::uint32_t rgb = 0xFFFFFFFFU; // no colour
        std::uint32_t color = 0;
    };
    std::uint32_t background_;
    std::uint32_t ink_;
    std::array<Known, 64> known_;
};

} // namespace quor::desktop
