// The axes of the user's coordinate system: at its origin where that can be seen, else in the corner.
#pragma once

#include "desktop/viewport/viewport_colors.h"
#include "host/gs/camera.h"
#include "sdk/ge/matrix3d.h"

#include <QPointF>

#include <array>

class QPainter;

namespace quor::desktop {

struct UcsIcon {
    QPointF origin;
    std::array<QPointF, 3> tips;    // of the axes X, Y, Z
    std::array<double, 3> depths{}; // of the tips, larger is farther from the eye
    bool atOrigin = false;
};

[[nodiscard]] UcsIcon ucsIcon(const gs::Projector& projector, const ZrGeMatrix3d& ucsToWorld);
void paintUcsIcon(QPainter& painter, const UcsIcon& icon, const ViewportColors& colors);

} // namespace quor::desktop
