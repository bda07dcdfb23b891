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
    Kind{"ARC", showArc},
    Kind{"CIRCLE", showCircle},
    Kind{"ELLIPSE", showEllipse},
    Kind{"LINE", showLine},
    Kind{"LWPOLYLINE", showLightPolyline},
    Kind{"POINT", showPoint},
    Kind{"POLYLINE", showPolyline},
    Kind{"SOLID", showSolid},
    Kind{"TRACE", showSolid},
};
static_assert(std::ranges::is_sorted(kKinds, {}, &Kind::type));

} // namespace

Show showOf(std::string_view type) {
    const auto* const kind = std::ranges::lower_bound(kKinds, type, {}, &Kind::type);
    return kind == kKinds.end() || kind->type != type ? nullptr : kind->show;
}

} // namespace quor::gs
