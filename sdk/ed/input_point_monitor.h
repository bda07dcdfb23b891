// What is told of the points that pass while the user points at the drawing.
#pragma once

#include "sdk/rx/object.h"

class ZrEdInputPoint;

class ZrEdInputPointMonitor : public ZrRxObject {
public:
    // Called for each point; 0 means that nothing was done with it.
    virtual int monitorInputPoint(const ZrEdInputPoint& point) = 0;
    // Whether points are to be filtered before they are used.
    [[nodiscard]] virtual bool filtersPoints() const = 0;
};
