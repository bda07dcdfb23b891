#include "light/lightcmd/light_name.h"

namespace quor::light {

ZrString defaultLightName(const ZrString& prefix, std::int16_t number) {
    const std::string digits = std::to_string(number);
    return prefix + ZrString(digits.begin(), digits.end());
}

} // namespace quor::light
