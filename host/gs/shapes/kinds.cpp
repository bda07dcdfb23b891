#include "host/gs/shapes/kinds.h"

#include <algorithm>
#include <array>

namespace quor::gs {

namespace {

struct Kind {
    std::string_view type;
    Show show;
};

// In the order of their names.
constexpr std::array kKinds{
    Kind{"3DFACE", showFace},
    Kind{"3DLINE", showLine},
    Kind{"3DSOLID", showSolidModel},
    Kind{"ARC", showArc},
    Kind{"BODY", showSolidModel},
    Kind{"CIRCLE", showCircle},
    Kind{"ELLIPSE", showEllipse},
    Kind{"EXTRUDEDSURFACE", showSolidModel},
    Kind{"HATCH", showHatch},
    Kind{"IMAGE", showImage},
    Kind{"LEADER", showLeader},
    Kind{"LINE", showLine},
    Kind{"LOFTEDSURFACE", showSolidModel},
    Kind{"LWPOLYLINE", showLightPolyline},
    Kind{"MESH", showSubdivisionMesh},
    Kind{"MLINE", showMultiline},
    Kind{"MTEXT", showParagraph},
    Kind{"PLANESURFACE", showSolidModel},
    Kind{"POINT", showPoint},
    Kind{"POLYLINE", showPolyline},
    Kind{"RAY", showRay},
    Kind{"REGION", showSolidModel},
    Kind{"REVOLVEDSURFACE", showSolidModel},
    Kind{"SOLID", showSolid},
    Kind{"SPLINE", showSpline},
    Kind{"SURFACE", showSolidModel},
    Kind{"SWEPTSURFACE", showSolidModel},
    Kind{"TEXT", showText},
    Kind{"TRACE", showSolid},
    Kind{"VIEWPORT", showViewport},
    Kind{"XLINE", showConstructionLine},
};
static_assert(std::ranges::is_sorted(kKinds, {}, &Kind::type));

} // namespace

Show showOf(std::string_view type) {
    const auto* const kind = std::ranges::lower_bound(kKinds, type, {}, &Kind::type);
    return kind == kKinds.end() || kind->type != type ? nullptr : kind->show;
}

} // namespace quor::gs
