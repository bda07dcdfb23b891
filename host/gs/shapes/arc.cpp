// CIRCLE, ARC, ELLIPSE.
#include "host/db/data.h"
#include "host/gs/shapes/curves.h"
#include "host/gs/shapes/kinds.h"
#include "host/gs/shapes/values.h"

namespace quor::gs {

namespace {

using ArcValues = Values<10, 20, 30, 40, 50, 51, 210, 220, 230>;

EllipseArc circleOf(const ArcValues& values) {
    const ZrGeMatrix3d plane = values.plane();
    const double radius = values.real<40>();
    return {plane * values.point<10>(), plane * ZrGeVector3d(radius, 0, 0), plane * ZrGeVector3d(0, radius, 0)};
}

} // namespace

void showCircle(const Source& source, Pen& pen) {
    const ArcValues values(source);
    if (!values.isBroken())
        show(circleOf(values), pen);
}

void showArc(const Source& source, Pen& pen) {
    const ArcValues values(source);
    if (values.isBroken())
        return;
    EllipseArc arc = circleOf(values);
    arc.start = values.real<50>() * db::kDegree;
    arc.sweep = sweepBetween(arc.start, values.real<51>(360) * db::kDegree);
    show(arc, pen);
}

void showEllipse(const Source& source, Pen& pen) {
    const Values<10, 20, 30, 11, 21, 31, 40, 41, 42, 210, 220, 230> values(source);
    if (values.isBroken())
        return;
    const ZrGeVector3d normal = ZrGeVector3d(values.real<210>(), values.real<220>(), values.real<230>(1)).normal();
    EllipseArc arc;
    arc.center = values.point<10>();
    arc.major = values.point<11>().asVector();
    arc.minor = normal.crossProduct(arc.major) * values.real<40>(1);
    arc.start = values.real<41>();
    arc.sweep = sweepBetween(arc.start, values.real<42>(kTurn));
    show(arc, pen);
}

} // namespace quor::gs
