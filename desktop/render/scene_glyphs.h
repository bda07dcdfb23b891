// The symbols of the lights that are seen, from the farthest to the nearest, sorted by bands.
#pragma once

#include "desktop/render/band_blocks.h"
#include "desktop/render/glyph_sprite.h"
#include "desktop/render/scene_runs.h"

namespace quor::desktop {

class SceneGlyphs {
public:
    void collect(const gs::SceneData& scene, const ViewTransform& view, const RenderOptions& options);
    void draw(Frame& frame, Band band, std::size_t number) const;

private:
    struct Placed {
        float x = 0, y = 0, depth = 0;
        bool isSelected = false;
        const Sprite* sprite = nullptr;
    };
    std::vector<Placed> placed_;
    BandBlock<Placed> sorted_;
    SpriteStore sprites_;
};

} // namespace quor::desktop
