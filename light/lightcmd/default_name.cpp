#include "light/lightcmd/default_name.h"

#include "light/lightcmd/multi_light.h"
#include "sdk/db/database.h"

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

void CZrMultiLight::nextDefaultNumber(short& number) {
    ZrDbDatabase* database = zrdbWorkingDatabase();
    if (database == nullptr)
        return;
    const ZrDbObjectPointer<ZrDbBlockTableRecord> space(database->currentSpaceId(), ZrDb::kForRead);
    const ZrDbObjectId own = m_pLight->objectId();
    ZrString prefix;
    number = quor::light::nextFreeNumber(number, defaultNamePrefix(prefix), [&](const ZrString& name) {
        return space && space->hasLightNamed(name, own);
    });
}

// A light that is being created counts too: its name is written only when its command ends.
bool CZrMultiLight::lightNameExists(const ZrString& name) {
    ZrDbDatabase* database = zrdbWorkingDatabase();
    if (database == nullptr)
        return false;
    const ZrDbObjectPointer<ZrDbBlockTableRecord> space(database->currentSpaceId(), ZrDb::kForRead);
    return space && space->hasLightNamed(name);
}

ZrString CZrMultiLight::defaultName() {
    ZrString prefix;
    return quor::light::defaultLightName(defaultNamePrefix(prefix), m_lightNumber);
}
