// 3DFACE, SOLID, TRACE.
#include "host/db/data.h"
#include "host/gs/shapes/faces.h"
#include "host/gs/shapes/kinds.h"
#include "host/gs/shapes/values.h"

#include <array>

namespace quor::gs {

void showFace(const Source& source, Pen& pen) {
    if (const auto* const face = source.opened<ZrDbFaceData>())
        return showFlatFace(face->vertices, static_cast<unsigned>(face->hiddenEdges), pen);
    const Values<10, 20, 30, 11, 21, 31, 12, 22, 32, 13, 23, 33, 70> values(source);
    if (values.isBroken() || !values.has<12>())
        return;
    const ZrGePoint3d last = values.has<13>() ? values.point<13>() : values.point<12>();
    const std::array corners{values.point<10>(), values.point<11>(), values.point<12>(), last};
    showFlatFace(corners, static_cast<unsigned>(values.whole<70>()), pen);
}

// The last two corners stand the other way round than those of a face.
void showSolid(const Source& source, Pen& pen) {
    const Values<10, 20, 30, 11, 21, 31, 12, 22, 32, 13, 23, 33, 210, 220, 230> values(source);
    if (values.isBroken() || !values.has<12>())
        return;
    const ZrGeMatrix3d plane = values.plane();
    const ZrGePoint3d fourth = values.has<13>() ? values.point<13>() : values.point<12>();
    const std::array corners{plane * values.point<10>(), plane * values.point<11>(), plane * fourth,
                             plane * values.point<12>()};
    showFlatFace(corners, 0, pen);
}

} // namespace quor::gs
