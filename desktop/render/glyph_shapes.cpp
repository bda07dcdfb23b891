#include "desktop/render/glyph_shapes.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace quor::desktop {
namespace {

using Kind = GlyphShape::Kind;

constexpr float kStroke = 0.8F; // half the width

GlyphShape disc(ShapePoint at, float radius, bool isFaint = false) {
    return {.kind = Kind::Disc, .isFaint = isFaint, .a = at, .b = {}, .radius = radius, .points = {}};
}

GlyphShape ring(ShapePoint at, float radius) {
    return {.kind = Kind::Ring, .a = at, .b = {}, .radius = radius, .points = {}};
}

GlyphShape stroke(ShapePoint a, ShapePoint b, float half = kStroke) {
    return {.kind = Kind::Stroke, .a = a, .b = b, .radius = half, .points = {}};
}

GlyphShape outline(std::vector<ShapePoint> points, bool isFaint = false) {
    return {.kind = Kind::Outline, .isFaint = isFaint, .a = {}, .b = {}, .points = std::move(points)};
}

// From circle to circle around the middle, at an angle from the x axis.
GlyphShape ray(ShapePoint middle, float from, float to, float degrees) {
    const float angle = degrees * std::numbers::pi_v<float> / 180;
    const ShapePoint way{std::cos(angle), std::sin(angle)};
    return stroke({middle.x + way.x * from, middle.y + way.y * from}, {middle.x + way.x * to, middle.y + way.y * to});
}

// A bulb on its socket with rays around it.
std::vector<GlyphShape> pointShapes() {
    const ShapePoint middle{0, -0.5F};
    std::vector<GlyphShape> shapes{disc(middle, 4.6F, true), ring(middle, 4.6F), disc(middle, 1.9F),
                                   stroke({-2.2F, 6.4F}, {2.2F, 6.4F}, 0.9F), stroke({-1.3F, 9}, {1.3F, 9}, 0.9F)};
    for (const float degrees : {-210.0F, -170.0F, -130.0F, -90.0F, -50.0F, -10.0F, 30.0F})
        shapes.push_back(ray(middle, 7.2F, 9.8F, degrees));
    return shapes;
}

// A lamp head that shines along the x axis.
std::vector<GlyphShape> spotShapes() {
    const std::vector<ShapePoint> head{{-6.5F, -2.4F}, {1, -5.6F}, {1, 5.6F}, {-6.5F, 2.4F}};
    std::vector<GlyphShape> shapes{outline(head, true), stroke({-8.6F, 0}, {-6.5F, 0}, 1.6F)};
    for (std::size_t i = 0; i < head.size(); ++i)
        shapes.push_back(stroke(head[i], head[(i + 1) % head.size()]));
    shapes.push_back(disc({1.2F, 0}, 2));
    shapes.push_back(stroke({4.4F, 0}, {10, 0}));
    shapes.push_back(stroke({4.1F, -3.6F}, {8.6F, -7}));
    shapes.push_back(stroke({4.1F, 3.6F}, {8.6F, 7}));
    return shapes;
}

// The curve of an intensity that is largest downwards and small upwards, around a lamp.
std::vector<GlyphShape> webShapes() {
    constexpr int steps = 36;
    const auto curve = [](int step) {
        const float angle = static_cast<float>(step) * 2 * std::numbers::pi_v<float> / steps;
        const float down = std::cos(angle);
        const float size = down > 0 ? 2.2F + 12.5F * down * down * std::sqrt(down) : 2.2F + 2.6F * down * down;
        return ShapePoint{size * std::sin(angle) * 1.25F, -4.5F + size * down};
    };
    std::vector<GlyphShape> shapes{disc({0, 2.6F}, 4.2F, true)};
    for (int i = 0; i < steps; ++i)
        shapes.push_back(stroke(curve(i), curve(i + 1), 0.7F));
    shapes.push_back(disc({0, -4.5F}, 2.1F));
    return shapes;
}

// A sun whose rays all go the same way, along the x axis.
std::vector<GlyphShape> distantShapes() {
    const ShapePoint sun{-5.4F, 0};
    std::vector<GlyphShape> shapes{disc(sun, 3)};
    for (const float degrees : {90.0F, 135.0F, 180.0F, 225.0F, 270.0F})
        shapes.push_back(ray(sun, 4.4F, 6, degrees));
    for (const float y : {-6.2F, 0.0F, 6.2F}) {
        const float tip = y == 0 ? 10.5F : 8.5F;
        shapes.push_back(stroke({0, y}, {tip - 1, y}, 0.7F));
        shapes.push_back(outline({{tip - 3, y - 2.1F}, {tip, y}, {tip - 3, y + 2.1F}}));
    }
    return shapes;
}

void turn(ShapePoint& p, ShapePoint direction) {
    p = {p.x * direction.x - p.y * direction.y, p.x * direction.y + p.y * direction.x};
}

float toStroke(ShapePoint a, ShapePoint b, ShapePoint p) {
    const ShapePoint way{b.x - a.x, b.y - a.y};
    const float size = way.x * way.x + way.y * way.y;
    const float along = size > 0 ? ((p.x - a.x) * way.x + (p.y - a.y) * way.y) / size : 0;
    const float share = std::clamp(along, 0.0F, 1.0F);
    return std::hypot(p.x - a.x - way.x * share, p.y - a.y - way.y * share);
}

float toOutline(const std::vector<ShapePoint>& points, ShapePoint p) {
    float farthest = -kGlyphRadius;
    for (std::size_t i = 0; i < points.size(); ++i) {
        const ShapePoint a = points[i];
        const ShapePoint b = points[(i + 1) % points.size()];
        const float size = std::hypot(b.x - a.x, b.y - a.y);
        farthest = std::max(farthest, ((b.y - a.y) * (p.x - a.x) - (b.x - a.x) * (p.y - a.y)) / size);
    }
    return farthest;
}

} // namespace

bool hasDirection(gs::GlyphKind kind) { return kind == gs::GlyphKind::Spot || kind == gs::GlyphKind::Distant; }

std::vector<GlyphShape> glyphShapes(gs::GlyphKind kind, ShapePoint direction) {
    std::vector<GlyphShape> shapes;
    switch (kind) {
    case gs::GlyphKind::Point:
        return pointShapes();
    case gs::GlyphKind::Web:
        return webShapes();
    case gs::GlyphKind::Spot:
        shapes = spotShapes();
        break;
    case gs::GlyphKind::Distant:
        shapes = distantShapes();
        break;
    }
    for (GlyphShape& shape : shapes) {
        turn(shape.a, direction);
        turn(shape.b, direction);
        for (ShapePoint& point : shape.points)
            turn(point, direction);
    }
    return shapes;
}

float distanceTo(const GlyphShape& shape, ShapePoint place) {
    switch (shape.kind) {
    case Kind::Disc:
        return std::hypot(place.x - shape.a.x, place.y - shape.a.y) - shape.radius;
    case Kind::Ring:
        return std::abs(std::hypot(place.x - shape.a.x, place.y - shape.a.y) - shape.radius) - kStroke;
    case Kind::Stroke:
        return toStroke(shape.a, shape.b, place) - shape.radius;
    case Kind::Outline:
        return toOutline(shape.points, place);
    }
    return kGlyphRadius;
}

} // namespace quor::desktop
