// Symbols of lights as small pictures: each is drawn once and put into place many times.
#pragma once

#include "desktop/render/frame.h"
#include "desktop/render/glyph_shapes.h"
#include "desktop/render/vector3.h"

#include <compare>
#include <map>

namespace quor::desktop {

// What one small picture shows.
struct SpriteKey {
    gs::GlyphKind kind = gs::GlyphKind::Point;
    int direction = 0; // one of kDirections around the circle
    bool hasRing = false;
    std::uint32_t color = 0;
    std::uint32_t halo = 0; // colour around the symbol, so that it stands out from lines
    float ratio = 1;        // pixels per logical pixel
    auto operator<=>(const SpriteKey&) const = default;
    static constexpr int kDirections = 64;
};

// Colours multiplied by how much they cover (the highest 8 bits), `size` rows of `size` pixels; what is left and right
// of a row's span is empty.
class Sprite {
public:
    explicit Sprite(const SpriteKey& key);
    [[nodiscard]] int size() const { return size_; }
    // The part in the band, its middle at a place of the picture. Where something nearer is drawn, it shines through
    // weakly.
    void draw(Frame& frame, Band band, int middleX, int middleY, float depth) const;

private:
    struct Span {
        int first = 0, end = 0;
    };
    int size_;
    std::vector<std::uint32_t> pixels_;
    std::vector<Span> spans_;
};

// All that were drawn.
class SpriteStore {
public:
    [[nodiscard]] const Sprite& get(const SpriteKey& key);
    // To be called between pictures: forgets all when there are too many.
    void trim();

private:
    std::map<SpriteKey, Sprite> sprites_;
};

} // namespace quor::desktop
