// Names of lights against those that the current space has.
#include "light/lightcmd/light_name.h"
#include "light/lightcmd/multi_light.h"
#include "sdk/db/database.h"

// The light that is being created has no name yet and so takes no number.
void CZrMultiLight::nextDefaultNumber(short& number) {
    ZrDbDatabase* database = zrdbWorkingDatabase();
    if (database == nullptr)
        return;
    const ZrDbObjectPointer<ZrDbBlockTableRecord> space(database->currentSpaceId(), ZrDb::kForRead);
    number = quor::light::followingNumber(number);
    ZrString prefix;
    if (space)
        number = space->freeLightNumber(defaultNamePrefix(prefix), number);
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
