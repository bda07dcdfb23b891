// How photometric webs share their light among the directions, small and fast to ask.
#pragma once

#include "host/ies/reader.h"
#include "sdk/sys/string.h"

#include <algorithm>
#include <cmath>
#include <memory>
#include <unordered_map>
#include <vector>

namespace quor::gs {

// Of a luminaire that shines straight down. The directions are the places of an octahedron whose upper half is unfolded
// around the lower one to a square: to find one takes no angle.
struct LightDistribution {
    static constexpr int kSide = 129;
    std::vector<float> shares; // of the brightest direction: rows of kSide, the borders of the square included

    // In a direction of any length, between those that are kept.
    [[nodiscard]] float towards(float x, float y, float z) const;
};

// Dark everywhere for a web that is dark.
[[nodiscard]] LightDistribution distributionOf(const ies::PhotometricWeb& web);

// Those of the webs that the lights of a drawing name: one for all lights with the same file.
class LightDistributions {
public:
    // Null where there is no file that can be read. What was found for a name holds until `lookAgain`.
    [[nodiscard]] std::shared_ptr<const LightDistribution> of(const ZrString& file);
    // Files may have changed; what they hold is made anew only then.
    void lookAgain();

private:
    struct Known {
        std::weak_ptr<const ies::WebFile> web;
        std::shared_ptr<const LightDistribution> distribution;
        bool isFresh = false;
    };
    std::unordered_map<ZrString, Known> known_;
};

inline float LightDistribution::towards(float x, float y, float z) const {
    const float size = std::abs(x) + std::abs(y) + std::abs(z);
    if (!(size > 0))
        return 0;
    float across = x / size;
    float up = y / size;
    if (z > 0) {
        const float outer = std::copysign(1 - std::abs(up), across);
        up = std::copysign(1 - std::abs(across), up);
        across = outer;
    }
    constexpr float half = (kSide - 1) / 2.0F;
    const float column = across * half + half;
    const float row = up * half + half;
    const int left = std::min(static_cast<int>(column), kSide - 2);
    const int below = std::min(static_cast<int>(row), kSide - 2);
    const float toRight = column - static_cast<float>(left);
    const float* const at = shares.data() + static_cast<std::ptrdiff_t>(below) * kSide + left;
    const float lower = at[0] + (at[1] - at[0]) * toRight;
    const float upper = at[kSide] + (at[kSide + 1] - at[kSide]) * toRight;
    return lower + (upper - lower) * (row - static_cast<float>(below));
}

} // namespace quor::gs
