#include "light/lightcmd/light_name.h"

namespace quor::light {

ZrString defaultLightName(const ZrString& prefix, std::int16_t number) {
    ZrString name = prefix;
    for (const char digit : std::to_string(number))
        name += static_cast<wchar_t>(digit);
    return name;
}

} // namespace quor::light
