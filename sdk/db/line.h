// A straight line between two points.
#pragma once

#include "sdk/db/entity.h"
#include "sdk/ge/point3d.h"

struct ZrDbLineData;

class ZrDbLine : public ZrDbEntity {
public:
    ZrDbLine(const ZrGePoint3d& start = {}, const ZrGePoint3d& end = {});
    static ZrRxClass* desc();
    [[nodiscard]] ZrRxClass* isA() const override { return desc(); }

    // World coordinates, drawing units; coordinates that are no finite numbers are refused with eInvalidInput.
    [[nodiscard]] ZrGePoint3d startPoint() const;
    [[nodiscard]] ZrGePoint3d endPoint() const;
    Quor::ErrorStatus setStartPoint(const ZrGePoint3d& point);
    Quor::ErrorStatus setEndPoint(const ZrGePoint3d& point);
};
