// The program's look: the colours of the host's theme as Qt has them.
#pragma once

#include <QColor>
#include <QPalette>

class ZwTheme;

namespace quor::desktop {

// The palette of all widgets in the theme that is in use.
[[nodiscard]] QPalette paletteOf(const ZwTheme& theme);
// Gives the application this palette, and the few rules that a palette cannot say.
void applyTheme(const ZwTheme& theme);
// Whether a palette is one of light letters on a dark ground.
[[nodiscard]] bool isDark(const QPalette& palette);
// Between two colours; 0 is the first, 1 the second.
[[nodiscard]] QColor mixed(const QColor& from, const QColor& to, double share);

} // namespace quor::desktop
