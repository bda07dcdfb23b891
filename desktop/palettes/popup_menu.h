// Menus of modules as menus of Qt.
#pragma once

#include "sdk/ui/menu.h"

class QMenu;
class QWidget;

namespace quor::desktop {

// Adds the entries: texts, check marks, separators and submenus. The data of an action is its command.
void addEntries(QMenu& menu, const CMenu& from);
// Shows it at a point of the screen and waits: the command that was chosen, or 0.
[[nodiscard]] unsigned popUp(const CMenu& menu, CPoint screen, QWidget& parent);

} // namespace quor::desktop
