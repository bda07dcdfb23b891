#include "light/lightcmd/light_name.h"

namespace quor::light {

namespace {

std::int16_t following(std::int16_t number) {
    return static_cast<std::int16_t>(static_cast<std::uint16_t>(number) + 1U);
}

} // namespace

ZrString defaultLightName(const ZrString& prefix, std::int16_t number) { return prefix + std::to_wstring(number); }

std::int16_t nextFreeNumber(std::int16_t last, const ZrString& prefix,
                            const std::function<bool(const ZrString&)>& isTaken) {
    const std::int16_t first = following(last);
    std::int16_t number = first;
    while (isTaken(defaultLightName(prefix, number))) {
        number = following(number);
        if (number == first)
            break;
    }
    return number;
}

} // namespace quor::light
