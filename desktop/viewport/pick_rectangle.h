// A rectangle that selects: drawn to the right it takes what lies inside, to the left also what it touches.
#pragma once

#include "host/gs/picking.h"

#include <QRectF>

namespace quor::desktop {

struct PickRectangle {
    QPointF from;
    QPointF to;
    [[nodiscard]] gs::RectPick how() const {
        return to.x() >= from.x() ? gs::RectPick::Window : gs::RectPick::Crossing;
    }
    [[nodiscard]] QRectF rect() const { return QRectF(from, to).normalized(); }
    [[nodiscard]] gs::PixelRect pixels() const {
        const QRectF r = rect();
        return {r.left(), r.top(), r.right(), r.bottom()};
    }
};

} // namespace quor::desktop
