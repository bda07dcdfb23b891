#include "light/palette/listed_light.h"

#include "sdk/db/database.h"
#include "sdk/db/light.h"
#include "sdk/ed/documents.h"
#include "sdk/sys/case_fold.h"

namespace quor::light {

namespace {

// As a hidden layer is seen from outside: with an asterisk.
constexpr const wchar_t* systemLightsLayer = L"*ADSK_SYSTEM_LIGHTS";

ZrDbObjectId currentSpace() {
    const ZrApDocManager* const documents = zrapDocManager();
    const ZrApDocument* const document = documents != nullptr ? documents->curDocument() : nullptr;
    const ZrDbDatabase* const database = document != nullptr ? document->database() : nullptr;
    return database != nullptr ? database->currentSpaceId() : ZrDbObjectId();
}

} // namespace

bool isListedLight(const ZrDbObject* object) {
    const auto* const light = zrrxCast<ZrDbLight>(object);
    if (light == nullptr || !equalFolded(light->layer(), systemLightsLayer))
        return false;
    const ZrDbObjectId space = currentSpace();
    return space.isValid() && light->blockId() == space;
}

} // namespace quor::light
