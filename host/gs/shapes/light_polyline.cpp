// LWPOLYLINE.
#include "host/gs/shapes/curves.h"
#include "host/gs/shapes/kinds.h"
#include "host/gs/shapes/values.h"

namespace quor::gs {

void showLightPolyline(const Source& source, Pen& pen) {
    static constexpr dxf::CodeSet kWanted{10, 20, 38, 42, 70, 210, 220, 230};
    constexpr int kClosed = 1;
    std::vector<PlaneVertex> vertices;
    double elevation = 0;
    bool closed = false;
    ZrGeVector3d normal = ZrGeVector3d::kZAxis;
    BodyTags tags(source, kWanted);
    while (tags.next()) {
        switch (tags.code()) {
        case 10:
            vertices.push_back({{tags.real(), 0, 0}, 0});
            break;
        case 20:
            if (!vertices.empty())
                vertices.back().at.y = tags.real();
            break;
        case 42:
            if (!vertices.empty())
                vertices.back().bulge = tags.real();
            break;
        case 38:
            elevation = tags.real();
            break;
        case 70:
            closed = (tags.whole() & kClosed) != 0;
            break;
        case 210:
            normal.x = tags.real();
            break;
        case 220:
            normal.y = tags.real();
            break;
        default:
            normal.z = tags.real();
        }
    }
    if (tags.isBroken())
        return;
    ZrGeMatrix3d raised;
    raised.setToTranslation({0, 0, elevation});
    show(vertices, closed, ZrGeMatrix3d().setToPlaneToWorld(normal) * raised, pen);
}

} // namespace quor::gs
