// The picture that is being made: pixels, and what has to be known of each of them meanwhile.
#pragma once

#include "desktop/render/renderer.h"

#include <algorithm>
#include <limits>
#include <vector>

namespace quor::desktop {

// A picture is drawn in bands, each by one thread; what a band looks like depends on nothing but the scene.
inline constexpr int kBandHeight = 32;

struct Band {
    int top = 0;
    int bottom = 0; // the row after the last
};

class Frame {
public:
    void start(const PixelBuffer& target, bool needsFaces, bool needsStrokes);
    // The background and nothing on it.
    void clear(Band band, const PictureColors& colors);
    // No line has been drawn yet.
    void clearStrokes(Band band);

    [[nodiscard]] int width() const { return target_.width; }
    [[nodiscard]] int height() const { return target_.height; }
    [[nodiscard]] int bandCount() const { return (target_.height + kBandHeight - 1) / kBandHeight; }
    [[nodiscard]] Band band(std::size_t number) const {
        const int top = static_cast<int>(number) * kBandHeight;
        return {top, std::min(top + kBandHeight, target_.height)};
    }
    [[nodiscard]] std::uint32_t* row(int y) const {
        return target_.pixels + static_cast<std::ptrdiff_t>(y) * target_.stride;
    }
    [[nodiscard]] float* depths(int y) { return depths_.data() + offset(y); }
    // The number of the triangle plus one; 0: no face.
    [[nodiscard]] std::uint32_t* faces(int y) { return faces_.data() + offset(y); }
    // Which entity's line was drawn last there, and how much of the pixel it covers (the lowest 8 bits).
    [[nodiscard]] std::uint32_t* strokes(int y) { return strokes_.data() + offset(y); }

    static constexpr float kFarthest = std::numeric_limits<float>::lowest();

private:
    [[nodiscard]] std::size_t offset(int y) const {
        return static_cast<std::size_t>(y) * static_cast<std::size_t>(target_.width);
    }
    PixelBuffer target_;
    std::vector<float> depths_;
    std::vector<std::uint32_t> faces_;
    std::vector<std::uint32_t> strokes_;
    bool hasFaces_ = false;
    bool hasStrokes_ = false;
};

} // namespace quor::desktop
