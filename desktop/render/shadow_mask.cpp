#include "desktop/render/shadow_mask.h"

namespace quor::desktop {
namespace {

constexpr int kBlock = 4; // samples across and down that are looked at together
constexpr float kUnknown = -1;

// Shares of the scene's size: how far from a face a ray starts, and how far before a light it ends, so that neither a
// face shades itself nor a lamp the light in it.
constexpr float kFromFace = 2e-4F;
constexpr float kBeforeLight = 1e-2F;

} // namespace

bool reaches(const ShadingLight& light, const ShadowTree& tree, Vector3 position, Vector3 normal) {
    const Vector3 from = position + normal * (tree.radius() * kFromFace);
    if (light.kind == gs::GlyphKind::Distant)
        return dot(normal, light.direction) >= 0 || !tree.isBlocked(from, light.direction * (-4 * tree.radius()));
    const Vector3 way = light.position - from;
    const float distance = length(way);
    if (dot(normal, way) <= 0)
        return true;
    if (light.kind == gs::GlyphKind::Spot && -dot(light.direction, way) < light.cosFalloff * distance)
        return true;
    const float share = 1 - std::min(tree.radius() * kBeforeLight / distance, 0.5F);
    return !tree.isBlocked(from, way * share);
}

ShadowMask::ShadowMask(Frame& frame, Band band, const ShadowTree& tree, LightSamples& samples,
                       const std::vector<std::uint32_t>& triangles, int sampleSize)
    : frame_(frame), band_(band), tree_(tree), samples_(samples), triangles_(triangles) {
    if (tree.isEmpty())
        return;
    const int size = kBlock * sampleSize;
    for (int top = band.top; top < band.bottom; top += size) {
        for (int left = 0; left < frame.width(); left += size) {
            Block block{.left = left,
                        .top = top,
                        .right = std::min(left + size, frame.width()),
                        .bottom = std::min(top + size, band.bottom),
                        .farRight = std::min(left + size, frame.width() - 1),
                        .farBottom = std::min(top + size, band.bottom - 1),
                        .isOneFace = false};
            block.isOneFace = isOneFace(block);
            blocks_.push_back(block);
        }
    }
}

void ShadowMask::clear() { samples_.visible().assign(samples_.size(), 1); }

void ShadowMask::apply(const ShadingLight& light) {
    samples_.visible().assign(samples_.size(), kUnknown);
    uneven_.clear();
    for (std::size_t i = 0; i < blocks_.size(); ++i) {
        if (lookAt(blocks_[i], light))
            uneven_.push_back(i);
    }
    hard_ = samples_.visible();
    for (const std::size_t i : uneven_)
        soften(blocks_[i]);
}

// Where a block of pixels shows one face and its corners agree, they speak for all of it.
bool ShadowMask::lookAt(const Block& block, const ShadingLight& light) {
    float all = kUnknown;
    if (block.isOneFace) {
        all = visible(sampleAt(block.left, block.top), light);
        const bool agree = visible(sampleAt(block.farRight, block.top), light) == all &&
                           visible(sampleAt(block.left, block.farBottom), light) == all &&
                           visible(sampleAt(block.farRight, block.farBottom), light) == all;
        if (!agree)
            all = kUnknown;
    }
    for (int y = block.top; y < block.bottom; ++y) {
        for (int x = block.left; x < block.right; ++x) {
            const std::uint32_t sample = sampleAt(x, y);
            if (sample != 0)
                samples_.visible()[sample - 1] = all == kUnknown ? visible(sample, light) : all;
        }
    }
    return all == kUnknown;
}

bool ShadowMask::isOneFace(const Block& block) const {
    const std::uint32_t first = sampleAt(block.left, block.top);
    if (first == 0)
        return false;
    for (int y = block.top; y <= block.farBottom; ++y) {
        for (int x = block.left; x <= block.farRight; ++x) {
            const std::uint32_t sample = sampleAt(x, y);
            if (sample == 0 || triangles_[sample - 1] != triangles_[first - 1])
                return false;
        }
    }
    return true;
}

float ShadowMask::visible(std::uint32_t sample, const ShadingLight& light) {
    float& known = samples_.visible()[sample - 1];
    if (known == kUnknown)
        known = reaches(light, tree_, samples_.position(sample - 1), samples_.normal(sample - 1)) ? 1.0F : 0.0F;
    return known;
}

void ShadowMask::soften(const Block& block) {
    for (int y = block.top; y < block.bottom; ++y) {
        for (int x = block.left; x < block.right; ++x) {
            const std::uint32_t sample = sampleAt(x, y);
            if (sample != 0)
                samples_.visible()[sample - 1] = meanAround(x, y);
        }
    }
}

// Of the pixel and its neighbours on the same face.
float ShadowMask::meanAround(int x, int y) const {
    const std::uint32_t triangle = triangles_[sampleAt(x, y) - 1];
    float sum = 0;
    float count = 0;
    for (int row = std::max(y - 1, band_.top); row <= std::min(y + 1, band_.bottom - 1); ++row) {
        for (int column = std::max(x - 1, 0); column <= std::min(x + 1, frame_.width() - 1); ++column) {
            const std::uint32_t sample = sampleAt(column, row);
            if (sample != 0 && triangles_[sample - 1] == triangle) {
                sum += hard_[sample - 1];
                ++count;
            }
        }
    }
    return sum / count;
}

} // namespace quor::desktop
