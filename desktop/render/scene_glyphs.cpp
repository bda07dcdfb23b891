#include "desktop/render/scene_glyphs.h"

#include "desktop/render/colors.h"

#include <cmath>
#include <numbers>

namespace quor::desktop {
namespace {

// Makes and remembers the small pictures of one picture's lights.
class SpriteChoice {
public:
    SpriteChoice(SpriteStore& store, const RenderOptions& options, const ViewTransform& view)
        : store_(store), view_(view), palette_(options.colors), colors_(options.colors),
          halo_(mixed(options.colors.backgroundTop, options.colors.backgroundBottom, 128)),
          ratio_(static_cast<float>(options.pixelRatio)) {}

    [[nodiscard]] const Sprite& of(const gs::LightMark& light, gs::Emphasis emphasis) {
        const std::size_t kind = static_cast<std::size_t>(light.kind) % kKinds;
        const int direction = hasDirection(light.kind) ? directionOf(light) : 0;
        const std::size_t state =
            emphasis == gs::Emphasis::None ? (light.isOn ? 0U : 1U) : 1U + static_cast<std::size_t>(emphasis);
        const std::size_t index =
            (kind * kStates + state % kStates) * SpriteKey::kDirections + static_cast<std::size_t>(direction);
        if (known_[index] == nullptr)
            known_[index] = &store_.get({.kind = light.kind,
                                         .direction = direction,
                                         .hasRing = emphasis != gs::Emphasis::None,
                                         .color = colorOf(light, emphasis),
                                         .halo = halo_,
                                         .ratio = ratio_});
        return *known_[index];
    }

private:
    static constexpr std::size_t kKinds = 4;
    static constexpr std::size_t kStates = 4;

    [[nodiscard]] std::uint32_t colorOf(const gs::LightMark& light, gs::Emphasis emphasis) const {
        switch (emphasis) {
        case gs::Emphasis::Hovered:
            return colors_.hovered;
        case gs::Emphasis::Selected:
            return colors_.selected;
        case gs::Emphasis::None:
            break;
        }
        return palette_.readable((light.isOn ? colors_.lightOn : colors_.lightOff) | 0xFF000000U);
    }

    // Downwards for a light that points at the eye or away from it.
    [[nodiscard]] int directionOf(const gs::LightMark& light) const {
        const Vector3 direction(light.direction);
        const float right = dot(direction, view_.right());
        const float down = -dot(direction, view_.up());
        constexpr float least = 0.05F;
        if (!(std::abs(right) + std::abs(down) > least))
            return SpriteKey::kDirections / 4;
        const float turns = std::atan2(down, right) / (2 * std::numbers::pi_v<float>);
        const int step =
            toWhole(turns * SpriteKey::kDirections + 0.5F, -SpriteKey::kDirections, SpriteKey::kDirections);
        return (step + SpriteKey::kDirections) % SpriteKey::kDirections;
    }

    SpriteStore& store_;
    const ViewTransform& view_;
    Palette palette_;
    const PictureColors& colors_;
    std::uint32_t halo_;
    float ratio_;
    std::array<const Sprite*, kKinds * kStates * SpriteKey::kDirections> known_{};
};

} // namespace

void SceneGlyphs::collect(const gs::SceneData& scene, const ViewTransform& view, const RenderOptions& options) {
    sprites_.trim();
    placed_.clear();
    SpriteChoice sprites(sprites_, options, view);
    const auto width = static_cast<float>(view.width());
    const auto height = static_cast<float>(view.height());
    const float reach = 20 * static_cast<float>(options.pixelRatio);
    for (const gs::LightMark& light : scene.lights) {
        if (!light.isGlyphShown)
            continue;
        const Homogeneous at = view.apply(view.relative(light.position));
        if (!(at.w > ViewTransform::kNearest))
            continue;
        const float x = at.x / at.w;
        const float y = at.y / at.w;
        float depth = at.depth / at.w;
        const bool isSeen = x > -reach && y > -reach && x < width + reach && y < height + reach;
        if (!isSeen || !std::isfinite(depth))
            continue;
        // A symbol stands before the surface that its light is fixed to.
        const float share = kGlyphRadius * static_cast<float>(options.pixelRatio) / height * (1 / at.w);
        depth = view.nearer(depth, std::clamp(share, 0.0F, 0.1F));
        const gs::Emphasis emphasis = emphasisOf(scene, light.entity);
        placed_.push_back({std::floor(x + 0.5F), std::floor(y + 0.5F), depth, emphasis != gs::Emphasis::None,
                           &sprites.of(light, emphasis)});
    }
    std::stable_sort(placed_.begin(), placed_.end(), [](const Placed& a, const Placed& b) {
        return a.isSelected != b.isSelected ? b.isSelected : a.depth < b.depth;
    });
    sorted_.start(view.height());
    for (const Placed& glyph : placed_) {
        const auto half = static_cast<float>(glyph.sprite->size()) / 2;
        sorted_.add(glyph, glyph.y - half, glyph.y + half);
    }
}

void SceneGlyphs::draw(Frame& frame, Band band, std::size_t number) const {
    sorted_.forEach(number, [&](const Placed& glyph) {
        glyph.sprite->draw(frame, band, static_cast<int>(glyph.x), static_cast<int>(glyph.y), glyph.depth);
    });
}

} // namespace quor::desktop
