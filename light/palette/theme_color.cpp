#include "light/palette/theme_color.h"

#include "sdk/sys/system.h"
#include "sdk/ui/ui_service.h"

namespace quor::light {

COLORREF themeColor(int element) { return CZwSystem::instance().ui().theme().color(element); }

} // namespace quor::light
