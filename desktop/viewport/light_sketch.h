// How lights are shown over the drawing: the lines of selected ones, and one that is being placed, which does not stand
// in the drawing yet.
#pragma once

#include "desktop/viewport/viewport_colors.h"
#include "host/gs/camera.h"

#include <span>

class QPainter;
class ZrDbLight;

namespace quor::desktop {

// Pairs of points in the world.
void paintLightLines(QPainter& painter, const gs::Projector& projector, std::span<const ZrGePoint3d> lines,
                     const ViewportColors& colors);
// Its symbol and its lines.
void paintDraggedLight(QPainter& painter, const gs::Projector& projector, const ZrDbLight& light,
                       const ViewportColors& colors);

} // namespace quor::desktop
