// Lines and faces: their points.
#include "host/props/coordinates.h"
#include "host/props/kinds.h"
#include "host/texts/list.h"
#include "host/texts/properties.h"
#include "sdk/db/face.h"
#include "sdk/db/line.h"

namespace quor::props {

namespace {

using P = ZrGePoint3d;
using Line = ZrDbLine;

template <double P::*Component>
constexpr Property start(std::string_view id, const Text& label) {
    return coordinate<Line, &Line::startPoint, &Line::setStartPoint, Component>(id, label);
}
template <double P::*Component>
constexpr Property end(std::string_view id, const Text& label) {
    return coordinate<Line, &Line::endPoint, &Line::setEndPoint, Component>(id, label);
}

constexpr Property kLineRows[] = {
    start<&P::x>("line.start.x", texts::kRowStartX),
    start<&P::y>("line.start.y", texts::kRowStartY),
    start<&P::z>("line.start.z", texts::kRowStartZ),
    end<&P::x>("line.end.x", texts::kRowEndX),
    end<&P::y>("line.end.y", texts::kRowEndY),
    end<&P::z>("line.end.z", texts::kRowEndZ),
    {.id = "line.length",
     .group = Group::Geometry,
     .label = texts::kListLength,
     .quantity = Quantity::Length,
     .read = [](const ZrDbEntity& e, const Context&) -> Value {
         const auto& line = static_cast<const Line&>(e);
         return line.startPoint().distanceTo(line.endPoint());
     }},
};

ZrGePoint3d cornerOf(const ZrDbEntity& e, int corner) {
    ZrGePoint3d point;
    static_cast<const ZrDbFace&>(e).getVertexAt(corner, point);
    return point;
}

constexpr int kComponents = 3;

template <int Corner, double P::*Component>
constexpr Property corner(std::string_view id, int component) {
    return {.id = id,
            .group = Group::Geometry,
            .label = texts::kRowCorners[Corner * kComponents + component],
            .editor = Editor::Number,
            .quantity = Quantity::Length,
            .read = [](const ZrDbEntity& e, const Context&) -> Value { return inUcs<Component>(cornerOf(e, Corner)); },
            .write =
                [](ZrDbEntity& e, const Value& value, const Context&) {
                    const P moved = withComponent<Component>(cornerOf(e, Corner), std::get<double>(value));
                    return refusalOf(static_cast<ZrDbFace&>(e).setVertexAt(Corner, moved));
                }};
}

template <int Edge>
constexpr Property edge(std::string_view id) {
    return {.id = id,
            .group = Group::Geometry,
            .label = texts::kRowEdges[Edge],
            .editor = Editor::YesNo,
            .choices = texts::kNoYes,
            .read = [](const ZrDbEntity& e, const Context&) -> Value {
                bool visible = true;
                static_cast<const ZrDbFace&>(e).isEdgeVisibleAt(Edge, visible);
                return visible;
            },
            .write =
                [](ZrDbEntity& e, const Value& value, const Context&) {
                    return refusalOf(static_cast<ZrDbFace&>(e).setEdgeVisibleAt(Edge, std::get<bool>(value)));
                }};
}

constexpr Property kFaceRows[] = {
    corner<0, &P::x>("face.1.x", 0), corner<0, &P::y>("face.1.y", 1), corner<0, &P::z>("face.1.z", 2),
    corner<1, &P::x>("face.2.x", 0), corner<1, &P::y>("face.2.y", 1), corner<1, &P::z>("face.2.z", 2),
    corner<2, &P::x>("face.3.x", 0), corner<2, &P::y>("face.3.y", 1), corner<2, &P::z>("face.3.z", 2),
    corner<3, &P::x>("face.4.x", 0), corner<3, &P::y>("face.4.y", 1), corner<3, &P::z>("face.4.z", 2),
    edge<0>("face.edge.1"),          edge<1>("face.edge.2"),          edge<2>("face.edge.3"),
    edge<3>("face.edge.4"),
};

} // namespace

std::span<const Property> lineProperties() { return kLineRows; }
std::span<const Property> faceProperties() { return kFaceRows; }

} // namespace quor::props
