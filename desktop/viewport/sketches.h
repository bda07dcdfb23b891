// What is sketched over the rendered drawing: the lines of selected lights, what is under the cursor, and a light that
// is being placed, which does not stand in the drawing yet.
#pragma once

#include "desktop/viewport/hover_sketch.h"
#include "desktop/viewport/viewport_colors.h"
#include "host/gs/camera.h"

#include <span>

class QPainter;
class ZrDbLight;

namespace quor::desktop {

// Pairs of points in the world.
void paintLightLines(QPainter& painter, const gs::Projector& projector, std::span<const ZrGePoint3d> lines,
                     const ViewportColors& colors);
// What is under the cursor stands out.
void paintHovered(QPainter& painter, const gs::Projector& projector, const HoverSketch& sketch,
                  const ViewportColors& colors);
// Its symbol and its lines.
void paintDraggedLight(QPainter& painter, const gs::Projector& projector, const ZrDbLight& light,
                       const ViewportColors& colors);

} // namespace quor::desktop
