// Finding menus, dialogs and pictures of resources by their numbers. Null for a number that is not there.
#pragma once

#include "sdk/ui/resource_templates.h"

namespace quor::ui {

// In the resources in use.
[[nodiscard]] const MenuTemplate* findMenu(unsigned id);
[[nodiscard]] const DialogTemplate* findDialog(unsigned id);
// In the given resources; null: the host's own.
[[nodiscard]] const PictureResource* findPicture(ZwResourceInstance instance, unsigned id);

} // namespace quor::ui
