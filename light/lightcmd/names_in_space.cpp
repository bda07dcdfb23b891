// Names of lights against those that the current space has.
#include "light/lightcmd/light_name.h"
#include "light/lightcmd/multi_light.h"
#include "sdk/db/database.h"

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
