#include "light/lightcmd/light_name.h"

namespace quor::light {

ZrString defaultLightName(const ZrString& prefix, std::int16_t number) { return prefix + std::to_wstring(number); }

} // namespace quor::light
