// SPLINE.
#include "host/gs/shapes/kinds.h"
#include "host/gs/shapes/nurbs.h"
#include "host/gs/shapes/values.h"

namespace quor::gs {

namespace {

struct Spline {
    Nurbs nurbs;
    std::vector<ZrGePoint3d> fitPoints;
    bool isBroken = false;
};

// The coordinates of a point of a list come one after the other; the first makes it.
void take(std::vector<ZrGePoint3d>& points, int axis, double value) {
    if (axis == 0)
        points.push_back({value, 0, 0});
    else if (!points.empty())
        (axis == 1 ? points.back().y : points.back().z) = value;
}

Spline read(const Source& source) {
    static constexpr dxf::CodeSet kWanted{10, 20, 30, 11, 21, 31, 40, 41, 71};
    Spline spline;
    BodyTags tags(source, kWanted);
    while (tags.next()) {
        const int code = tags.code();
        if (code == 71)
            spline.nurbs.degree = static_cast<int>(std::clamp<std::int64_t>(tags.whole(), 0, 1000));
        else if (code == 40)
            spline.nurbs.knots.push_back(tags.real());
        else if (code == 41)
            spline.nurbs.weights.push_back(tags.real());
        else
            take(code % 10 == 0 ? spline.nurbs.controls : spline.fitPoints, code / 10 - 1, tags.real());
    }
    spline.isBroken = tags.isBroken();
    return spline;
}

} // namespace

void showSpline(const Source& source, Pen& pen) {
    const Spline spline = read(source);
    if (spline.isBroken)
        return;
    const std::vector<ZrGePoint3d> points = spline.nurbs.controls.empty() ? spline.fitPoints : pointsOf(spline.nurbs);
    if (points.size() < 2)
        return;
    pen.lines(points);
    pen.snap(SnapPoint::Kind::End, points.front());
    pen.snap(SnapPoint::Kind::End, points.back());
}

} // namespace quor::gs
