// The symbols of lights as simple shapes: discs, rings, strokes and filled outlines.
#pragma once

#include "host/gs/picking.h"

#include <vector>

namespace quor::desktop {

// Logical pixels from the middle of the symbol, y downwards; symbols are about 22 across.
struct ShapePoint {
    float x = 0;
    float y = 0;
};

struct GlyphShape {
    enum class Kind : std::uint8_t { Disc, Ring, Stroke, Outline };
    Kind kind = Kind::Disc;
    bool isFaint = false;           // lets most of what is behind shine through
    ShapePoint a, b;                // middle of a disc or ring; ends of a stroke
    float radius = 0;               // of a disc or ring; half the width of a stroke
    std::vector<ShapePoint> points; // of a convex outline, clockwise as seen
};

inline constexpr auto kGlyphRadius = static_cast<float>(gs::kGlyphRadius);

// Symbols that point somewhere point along (`cos`, `sin`); the others stand upright.
[[nodiscard]] std::vector<GlyphShape> glyphShapes(gs::GlyphKind kind, ShapePoint direction);
[[nodiscard]] bool hasDirection(gs::GlyphKind kind);

// How far outside the shape a place is; negative inside.
[[nodiscard]] float distanceTo(const GlyphShape& shape, ShapePoint place);

} // namespace quor::desktop
