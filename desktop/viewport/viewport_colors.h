// The colours of the drawing area, by theme.
#pragma once

#include "desktop/render/renderer.h"

#include <QColor>

namespace quor::desktop {

// Of a rectangle that selects.
struct RectangleColors {
    QColor edge;
    QColor inside;
};

struct ViewportColors {
    PictureColors picture;
    QColor crosshair;
    QColor rubberBand;
    QColor snap;
    QColor light; // what is dragged
    RectangleColors window;
    RectangleColors crossing;
    QColor labelBackground;
    QColor labelText;
    QColor labelEdge;
    QColor xAxis;
    QColor yAxis;
    QColor zAxis;
};

[[nodiscard]] const ViewportColors& viewportColors(bool isDark);

} // namespace quor::desktop
