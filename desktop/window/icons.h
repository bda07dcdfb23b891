// The program's pictures: SVG documents, drawn at the size and in the ink of the theme.
#pragma once

#include <QIcon>
#include <QString>

namespace quor::desktop {

// The icon of an action by its name; a null icon for a name that has none. Ink goes by the application's palette, as it
// is at each drawing.
[[nodiscard]] QIcon iconOf(const QString& name);
// The program's own icon.
[[nodiscard]] QIcon programIcon();

} // namespace quor::desktop
