#include "desktop/viewport/sketches.h"

#include "desktop/render/glyph_shapes.h"
#include "host/gs/scene.h"
#include "sdk/db/light.h"

#include <QLineF>
#include <QPainter>

#include <cmath>

namespace quor::desktop {

namespace {

// Of 255.
constexpr int kFaint = 90;
constexpr int kLineStrength = 170;
constexpr double kHoverWidth = 2;
// Beyond this a line is not drawn: its end is behind the eye, nearly.
constexpr double kFarthestPixel = 1e6;

struct KindOfGlyph {
    DrawableType type;
    gs::GlyphKind glyph;
};
constexpr KindOfGlyph kGlyphs[] = {{DrawableType::kDistantLight, gs::GlyphKind::Distant},
                                   {DrawableType::kPointLight, gs::GlyphKind::Point},
                                   {DrawableType::kSpotLight, gs::GlyphKind::Spot},
                                   {DrawableType::kWebLight, gs::GlyphKind::Web}};

gs::GlyphKind glyphOf(DrawableType type) {
    for (const KindOfGlyph& row : kGlyphs)
        if (row.type == type)
            return row.glyph;
    return gs::GlyphKind::Point;
}

std::optional<QPointF> onScreen(const gs::Projector& projector, const ZrGePoint3d& world) {
    const std::optional<gs::ScreenPoint> seen = projector.toScreen(world);
    if (!seen || std::abs(seen->x) > kFarthestPixel || std::abs(seen->y) > kFarthestPixel)
        return std::nullopt;
    return QPointF(seen->x, seen->y);
}

// Where on the picture the light points to, as a direction of length 1.
ShapePoint directionOnScreen(const gs::Camera& camera, const ZrGeVector3d& direction) {
    const double x = direction.dotProduct(camera.right());
    const double y = -direction.dotProduct(camera.up);
    const double length = std::hypot(x, y);
    if (length < 1e-3)
        return {0, 1};
    return {static_cast<float>(x / length), static_cast<float>(y / length)};
}

QColor faint(QColor color, int strength) {
    color.setAlpha(strength);
    return color;
}

void paintShape(QPainter& painter, const GlyphShape& shape, QPointF at, const QColor& color) {
    const QColor ink = shape.isFaint ? faint(color, kFaint) : color;
    const QPointF a = at + QPointF(shape.a.x, shape.a.y);
    const QPointF b = at + QPointF(shape.b.x, shape.b.y);
    painter.setPen(Qt::NoPen);
    painter.setBrush(ink);
    switch (shape.kind) {
    case GlyphShape::Kind::Disc:
        painter.drawEllipse(a, shape.radius, shape.radius);
        return;
    case GlyphShape::Kind::Ring:
        painter.setBrush(Qt::NoBrush);
        painter.setPen(QPen(ink, 1.4));
        painter.drawEllipse(a, shape.radius, shape.radius);
        return;
    case GlyphShape::Kind::Stroke:
        painter.setPen(QPen(ink, 2 * shape.radius, Qt::SolidLine, Qt::RoundCap));
        painter.drawLine(a, b);
        return;
    case GlyphShape::Kind::Outline:
        break;
    }
    QPolygonF outline;
    for (const ShapePoint& point : shape.points)
        outline << at + QPointF(point.x, point.y);
    painter.drawPolygon(outline);
}

struct Glyph {
    gs::GlyphKind kind;
    ZrGePoint3d position;
    ZrGeVector3d direction;
};

void paintGlyph(QPainter& painter, const gs::Projector& projector, const Glyph& glyph, const QColor& color) {
    const std::optional<QPointF> at = onScreen(projector, glyph.position);
    if (!at)
        return;
    painter.setRenderHint(QPainter::Antialiasing, true);
    const ShapePoint direction = directionOnScreen(projector.camera(), glyph.direction);
    for (const GlyphShape& shape : glyphShapes(glyph.kind, direction))
        paintShape(painter, shape, *at, color);
}

} // namespace

void paintLines(QPainter& painter, const gs::Projector& projector, std::span<const ZrGePoint3d> lines,
                const QPen& pen) {
    QList<QLineF> seen;
    for (std::size_t i = 0; i + 1 < lines.size(); i += 2) {
        const std::optional<QPointF> a = onScreen(projector, lines[i]);
        const std::optional<QPointF> b = onScreen(projector, lines[i + 1]);
        if (a && b)
            seen << QLineF(*a, *b);
    }
    painter.setRenderHint(QPainter::Antialiasing, true);
    painter.setPen(pen);
    painter.drawLines(seen);
}

void paintLightLines(QPainter& painter, const gs::Projector& projector, std::span<const ZrGePoint3d> lines,
                     const ViewportColors& colors) {
    paintLines(painter, projector, lines, QPen(faint(colors.light, kLineStrength), 1));
}

void paintHovered(QPainter& painter, const gs::Projector& projector, const HoverSketch& sketch,
                  const ViewportColors& colors) {
    const QColor color = QColor::fromRgb(colors.picture.hovered);
    paintLines(painter, projector, sketch.lines, QPen(color, kHoverWidth));
    if (sketch.light)
        paintGlyph(painter, projector, {sketch.light->kind, sketch.light->position, sketch.light->direction}, color);
}

void paintDraggedLight(QPainter& painter, const gs::Projector& projector, const ZrDbLight& light,
                       const ViewportColors& colors) {
    paintLightLines(painter, projector, gs::Scene::lightLines(light), colors);
    paintGlyph(painter, projector, {glyphOf(light.lightType()), light.position(), light.lightDirection()},
               colors.light);
}

} // namespace quor::desktop
