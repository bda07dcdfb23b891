// Rows for the coordinates of points: world coordinates in the drawing, those of the current UCS for people.
#pragma once

#include "host/props/property.h"
#include "sdk/db/database.h"

namespace quor::props {

// A component of a point or a direction, in the current UCS.
template <double ZrGePoint3d::*Component>
[[nodiscard]] double inUcs(const ZrGePoint3d& world) {
    return zrdbWcs2Ucs(world).*Component;
}
template <double ZrGeVector3d::*Component>
[[nodiscard]] double inUcs(const ZrGeVector3d& world) {
    return zrdbWcs2Ucs(world).*Component;
}

// The point with one component of the current UCS replaced.
template <double ZrGePoint3d::*Component>
[[nodiscard]] ZrGePoint3d withComponent(const ZrGePoint3d& world, double value) {
    ZrGePoint3d point = zrdbWcs2Ucs(world);
    point.*Component = value;
    return zrdbUcs2Wcs(point);
}

// A row for one component of a point that a class T has.
template <class T, ZrGePoint3d (T::*Get)() const, Quor::ErrorStatus (T::*Set)(const ZrGePoint3d&),
          double ZrGePoint3d::*Component>
constexpr Property coordinate(std::string_view id, const Text& label, Property::Applies counts = nullptr) {
    return {.id = id,
            .group = Group::Geometry,
            .label = label,
            .editor = Editor::Number,
            .quantity = Quantity::Length,
            .read = [](const ZrDbEntity& e, const Context&) -> Value {
                return inUcs<Component>((static_cast<const T&>(e).*Get)());
            },
            .write =
                [](ZrDbEntity& e, const Value& value, const Context&) {
                    T& object = static_cast<T&>(e);
                    return refusalOf((object.*Set)(withComponent<Component>((object.*Get)(), std::get<double>(value))));
                },
            .counts = counts};
}

} // namespace quor::props
