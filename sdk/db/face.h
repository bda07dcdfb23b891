// A face of three or four corners in space.
#pragma once

#include "sdk/db/entity.h"
#include "sdk/ge/point3d.h"

struct ZrDbFaceData;

class ZrDbFace : public ZrDbEntity {
public:
    // A triangle repeats its last corner.
    ZrDbFace(const ZrGePoint3d& first = {}, const ZrGePoint3d& second = {}, const ZrGePoint3d& third = {},
             const ZrGePoint3d& fourth = {});
    static ZrRxClass* desc();
    [[nodiscard]] ZrRxClass* isA() const override { return desc(); }

    // `index` 0 to 3 (eInvalidIndex beyond); world coordinates, drawing units.
    Quor::ErrorStatus getVertexAt(int index, ZrGePoint3d& vertex) const;
    Quor::ErrorStatus setVertexAt(int index, const ZrGePoint3d& vertex);
    Quor::ErrorStatus isEdgeVisibleAt(int index, bool& visible) const;
    Quor::ErrorStatus setEdgeVisibleAt(int index, bool visible);
};
