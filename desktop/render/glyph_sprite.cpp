#include "desktop/render/glyph_sprite.h"

#include <cmath>
#include <numbers>

namespace quor::desktop {
namespace {

constexpr float kReach = 16; // logical pixels from the middle to the border, with ring and halo
constexpr float kRingRadius = 13.2F;
constexpr float kHaloWidth = 1.6F;
constexpr float kHaloStrength = 0.75F;
constexpr float kFaint = 0.35F;

// Red, green, blue multiplied by cover, and cover; 0 to 1.
struct Paint {
    float red = 0, green = 0, blue = 0, cover = 0;

    void over(std::uint32_t color, float covered) {
        const auto channel = [&](float below, int shift) {
            return below * (1 - covered) + static_cast<float>((color >> shift) & 0xFFU) / 255 * covered;
        };
        red = channel(red, 16);
        green = channel(green, 8);
        blue = channel(blue, 0);
        cover = cover * (1 - covered) + covered;
    }
    [[nodiscard]] std::uint32_t packed() const {
        const auto byte = [](float value) { return static_cast<std::uint32_t>(toWhole(value * 255 + 0.5F, 0, 255)); };
        return byte(cover) << 24 | byte(red) << 16 | byte(green) << 8 | byte(blue);
    }
};

std::vector<GlyphShape> shapesOf(const SpriteKey& key) {
    const float angle = static_cast<float>(key.direction) * 2 * std::numbers::pi_v<float> / SpriteKey::kDirections;
    std::vector<GlyphShape> shapes = glyphShapes(key.kind, {std::cos(angle), std::sin(angle)});
    if (key.hasRing)
        shapes.push_back({.kind = GlyphShape::Kind::Ring, .a = {}, .b = {}, .radius = kRingRadius, .points = {}});
    return shapes;
}

std::uint32_t paintAt(const SpriteKey& key, const std::vector<GlyphShape>& shapes, ShapePoint place) {
    float nearest = kReach;
    float faint = 0;
    float full = 0;
    for (const GlyphShape& shape : shapes) {
        const float distance = distanceTo(shape, place);
        nearest = std::min(nearest, distance);
        float& covered = shape.isFaint ? faint : full;
        covered = std::max(covered, std::clamp(0.5F - distance * key.ratio, 0.0F, 1.0F));
    }
    Paint paint;
    paint.over(key.halo, kHaloStrength * std::clamp((kHaloWidth - nearest) / kHaloWidth + 0.2F, 0.0F, 1.0F));
    paint.over(key.color, kFaint * faint);
    paint.over(key.color, full);
    return paint.packed();
}

std::uint32_t halved(std::uint32_t pixel) { return (pixel >> 1) & 0x7F7F7F7FU; }

std::uint32_t laidOver(std::uint32_t below, std::uint32_t pixel) {
    const std::uint32_t rest = 256 - ((pixel >> 24) + (pixel >> 31));
    const std::uint32_t odd = ((below & 0x00FF00FFU) * rest >> 8) & 0x00FF00FFU;
    const std::uint32_t even = ((below >> 8) & 0x00FF00FFU) * rest & 0xFF00FF00U;
    return 0xFF000000U | ((odd + even + pixel) & 0x00FFFFFFU);
}

} // namespace

Sprite::Sprite(const SpriteKey& key) : size_(2 * static_cast<int>(std::ceil(kReach * key.ratio)) + 1) {
    const std::vector<GlyphShape> shapes = shapesOf(key);
    const int middle = size_ / 2;
    pixels_.reserve(static_cast<std::size_t>(size_) * static_cast<std::size_t>(size_));
    for (int y = 0; y < size_; ++y) {
        Span span{size_, 0};
        for (int x = 0; x < size_; ++x) {
            const ShapePoint place{static_cast<float>(x - middle) / key.ratio,
                                   static_cast<float>(y - middle) / key.ratio};
            pixels_.push_back(paintAt(key, shapes, place));
            if (pixels_.back() != 0)
                span = {std::min(span.first, x), x + 1};
        }
        spans_.push_back(span);
    }
}

void Sprite::draw(Frame& frame, Band band, int middleX, int middleY, float depth) const {
    const int left = middleX - size_ / 2;
    const int top = middleY - size_ / 2;
    const int last = std::min(band.bottom, top + size_);
    for (int y = std::max(band.top, top); y < last; ++y) {
        const Span span = spans_[static_cast<std::size_t>(y - top)];
        const std::uint32_t* const source = pixels_.data() + static_cast<std::ptrdiff_t>(y - top) * size_;
        std::uint32_t* const colors = frame.row(y);
        const float* const depths = frame.depths(y);
        const int end = std::min(span.end, frame.width() - left);
        for (int x = std::max(span.first, -left); x < end; ++x) {
            const std::uint32_t pixel = depths[left + x] > depth ? halved(source[x]) : source[x];
            colors[left + x] = laidOver(colors[left + x], pixel);
        }
    }
}

const Sprite& SpriteStore::get(const SpriteKey& key) {
    const auto found = sprites_.find(key);
    return found != sprites_.end() ? found->second : sprites_.emplace(key, Sprite(key)).first->second;
}

void SpriteStore::trim() {
    constexpr std::size_t most = 2000;
    if (sprites_.size() > most)
        sprites_.clear();
}

} // namespace quor::desktop
