// What is painted over the picture of the drawing: cursor, snap marks, rectangles that select, labels. Logical pixels.
#pragma once

#include "desktop/viewport/pick_rectangle.h"
#include "desktop/viewport/viewport_colors.h"
#include "host/gs/picking.h"

#include <QPolygonF>
#include <QStringList>

class QPainter;
class QRectF;

namespace quor::desktop {

// Half the side of the box at the cursor, within which something is picked.
inline constexpr double kPickRadius = 5;

enum class CursorShape {
    Cross,        // points are shown
    CrossWithBox, // commands are waited for: objects may be picked
    Box           // objects are picked
};

void paintCursor(QPainter& painter, QPointF at, CursorShape shape, const ViewportColors& colors);
void paintPickRectangle(QPainter& painter, const PickRectangle& rectangle, const ViewportColors& colors);
// A mark of the snap's own shape with its name.
void paintSnap(QPainter& painter, gs::Snap::Kind kind, QPointF at, const QRectF& area, const ViewportColors& colors);
// Beside the cursor, inside of the area.
void paintLabel(QPainter& painter, QPointF cursor, const QRectF& area, const QStringList& lines,
                const ViewportColors& colors);
// In the upper left corner: what has to be known of the picture.
void paintNote(QPainter& painter, const QRectF& area, const QString& text, const ViewportColors& colors);
// Dashed: from where a line starts to where it would go, or around a rectangle.
void paintRubberBand(QPainter& painter, const QPolygonF& line, const ViewportColors& colors);

} // namespace quor::desktop
