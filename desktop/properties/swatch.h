// A colour as a small square with a frame, so that it is seen on every ground.
#pragma once

#include "sdk/cm/color.h"

#include <QColor>
#include <QIcon>

class QWidget;

namespace quor::desktop {

[[nodiscard]] inline QColor toQt(const ZrCmColor& color) { return {color.red(), color.green(), color.blue()}; }
// As high as the widget's text.
[[nodiscard]] QIcon swatch(const QColor& color, const QWidget& widget);

} // namespace quor::desktop
