// Flat polygons with corners cut off, whatever their points are made of.
#pragma once

#include <array>
#include <cstddef>

namespace quor::gs {

template <class Point, std::size_t Most>
struct CutPolygon {
    std::array<Point, Most> corners{};
    std::size_t count = 0;
    // Each cut of a convex polygon adds one corner at most; what rounding adds beyond `Most` is left out.
    void add(const Point& point) {
        if (count < Most)
            corners[count++] = point;
    }
};

// The part of a convex polygon where the value of a point is not negative. `between` gives the point at a share of the
// way from one to another.
template <class Point, std::size_t Most, class Value, class Between>
[[nodiscard]] CutPolygon<Point, Most> cutPolygon(const CutPolygon<Point, Most>& polygon, const Value& value,
                                                 const Between& between) {
    CutPolygon<Point, Most> rest;
    for (std::size_t i = 0; i < polygon.count; ++i) {
        const Point& from = polygon.corners[i];
        const Point& to = polygon.corners[(i + 1) % polygon.count];
        const double atFrom = value(from);
        const double atTo = value(to);
        if (atFrom >= 0)
            rest.add(from);
        if ((atFrom < 0) != (atTo < 0))
            rest.add(between(from, to, atFrom / (atFrom - atTo)));
    }
    return rest;
}

} // namespace quor::gs
