#include "light/palette/glyph_display.h"

#include "sdk/db/light.h"
#include "sdk/ed/documents.h"
#include "sdk/ed/modeless_operation.h"

namespace quor::light {

namespace {

constexpr const wchar_t* operationName = L"LIGHTGLYPHDISPLAY";

// Announces a change beside the commands, and its end.
class AnnouncedOperation {
public:
    AnnouncedOperation() { zrapModelessOperationStart(operationName); }
    ~AnnouncedOperation() { zrapModelessOperationEnd(operationName); }
    AnnouncedOperation(const AnnouncedOperation&) = delete;
    AnnouncedOperation& operator=(const AnnouncedOperation&) = delete;
};

// Changes the light while the document is locked for it; false when the lock was refused.
bool changeLocked(ZrApDocument& document, const std::function<ZrDbObjectId()>& findLight, GlyphDisplay display) {
    ZrApDocManager& documents = *zrapDocManager();
    if (documents.lockDocument(document) != Quor::eOk)
        return false;
    if (const ZrDbObjectPointer<ZrDbLight> light(findLight(), ZrDb::kForWrite); light)
        light->setGlyphDisplay(display);
    documents.unlockDocument(document);
    return true;
}

} // namespace

void setGlyphDisplay(const std::function<ZrDbObjectId()>& findLight, GlyphDisplay display) {
    const ZrApDocManager* const documents = zrapDocManager();
    ZrApDocument* const document = documents != nullptr ? documents->curDocument() : nullptr;
    if (document == nullptr)
        return;
    const AnnouncedOperation announced;
    if (!changeLocked(*document, findLight, display))
        return;
    zrapRefreshGraphics(*document);
    zredUpdateDisplay();
}

} // namespace quor::light
