#include "desktop/viewport/movements.h"

#include <algorithm>
#include <cmath>
#include <iterator>

namespace quor::desktop {

namespace {

constexpr double kRadiansPerPixel = 0.008;
constexpr double kFactorPerNotch = 1.25;
constexpr double kNotch = 120;
constexpr double kFactorPerKey = 1.25;
// Of the picture's height.
constexpr double kShareOfKey = 0.1;
constexpr double kPixelsTurnedByKey = 11; // about five degrees

struct ArrowKey {
    int key;
    double x;
    double y;
};
// Where what is seen goes: the eye goes the other way.
constexpr ArrowKey kArrows[] = {
    {Qt::Key_Left, 1, 0}, {Qt::Key_Right, -1, 0}, {Qt::Key_Up, 0, 1}, {Qt::Key_Down, 0, -1}};

struct ZoomKey {
    int key;
    double factor;
};
constexpr ZoomKey kZooms[] = {
    {Qt::Key_Plus, kFactorPerKey}, {Qt::Key_Equal, kFactorPerKey}, {Qt::Key_Minus, 1 / kFactorPerKey}};

} // namespace

gs::Camera turned(const gs::Camera& camera, const ZrGePoint3d& center, QPointF pixels) {
    return gs::orbited(camera, center, -pixels.x() * kRadiansPerPixel, pixels.y() * kRadiansPerPixel);
}

double wheelFactor(double eighths) { return std::pow(kFactorPerNotch, eighths / kNotch); }

std::optional<gs::Camera> movedByKey(const gs::Camera& camera, gs::PictureSize size, const ZrGePoint3d& center, int key,
                                     Qt::KeyboardModifiers modifiers) {
    const bool withControl = modifiers.testFlag(Qt::ControlModifier);
    const auto* const arrow =
        std::find_if(std::begin(kArrows), std::end(kArrows), [&](const ArrowKey& a) { return a.key == key; });
    if (arrow != std::end(kArrows) && withControl)
        return turned(camera, center, QPointF(arrow->x, arrow->y) * kPixelsTurnedByKey);
    if (arrow != std::end(kArrows))
        return gs::panned(camera, size, arrow->x * kShareOfKey * size.height, arrow->y * kShareOfKey * size.height);
    const auto* const zoom =
        std::find_if(std::begin(kZooms), std::end(kZooms), [&](const ZoomKey& z) { return z.key == key; });
    if (zoom != std::end(kZooms) && withControl)
        return gs::zoomedAt(camera, size, size.width / 2.0, size.height / 2.0, zoom->factor);
    return std::nullopt;
}

} // namespace quor::desktop
