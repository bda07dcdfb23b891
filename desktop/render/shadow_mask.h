// Which pixels of a band a light reaches.
#pragma once

#include "desktop/render/frame.h"
#include "desktop/render/shading_lights.h"
#include "desktop/render/shadow_tree.h"

namespace quor::desktop {

// The number plus one of each pixel's sample stands in the frame.
// Whether nothing stands between a place and a light. True where that does not matter: behind the face at that place,
// outside of a cone.
[[nodiscard]] bool reaches(const ShadingLight& light, const ShadowTree& tree, Vector3 position, Vector3 normal);

class ShadowMask {
public:
    // `triangles`: what each sample shows; `sampleSize`: how many pixels, across and down, share one.
    ShadowMask(Frame& frame, Band band, const ShadowTree& tree, LightSamples& samples,
               const std::vector<std::uint32_t>& triangles, int sampleSize);
    // Writes into the samples how much of the light reaches each.
    void apply(const ShadingLight& light);
    // All of it reaches them.
    void clear();

private:
    struct Block {
        int left, top;
        int right, bottom;       // the column and row after the last
        int farRight, farBottom; // of the corners, which neighbours share
        bool isOneFace;
    };
    // Whether its pixels may differ.
    [[nodiscard]] bool lookAt(const Block& block, const ShadingLight& light);
    [[nodiscard]] bool isOneFace(const Block& block) const;
    [[nodiscard]] float visible(std::uint32_t sample, const ShadingLight& light);
    void soften(const Block& block);
    [[nodiscard]] float meanAround(int x, int y) const;
    [[nodiscard]] std::uint32_t sampleAt(int x, int y) const { return frame_.faces(y)[x]; }

    Frame& frame_;
    Band band_;
    const ShadowTree& tree_;
    LightSamples& samples_;
    const std::vector<std::uint32_t>& triangles_;
    std::vector<Block> blocks_;
    std::vector<std::size_t> uneven_; // blocks in which a shadow ends, or may
    std::vector<float> hard_;         // before the edges are softened
};

} // namespace quor::desktop
