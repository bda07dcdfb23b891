// Tells the palettes what happens in the drawings: one listener of everything, which passes it on in the order in which
// it happened.
#pragma once

#include "sdk/db/database.h"
#include "sdk/ed/documents.h"
#include "sdk/ed/selection.h"
#include "sdk/ui/palette_set.h"

namespace quor {
class Session;
}

namespace quor::ui {

class UserInterface;

class PaletteNotifier final : public ZrDbDatabaseReactor, public ZrApDocumentReactor, public ZrEdSelectionReactor {
public:
    PaletteNotifier(Session& session, UserInterface& ui);
    ~PaletteNotifier() override;
    PaletteNotifier(const PaletteNotifier&) = delete;
    PaletteNotifier& operator=(const PaletteNotifier&) = delete;

    void objectAppended(const ZrDbDatabase& database, const ZrDbObject& object) override;
    void objectUnAppended(const ZrDbDatabase& database, const ZrDbObject& object) override;
    void objectReAppended(const ZrDbDatabase& database, const ZrDbObject& object) override;
    void objectOpenedForModify(const ZrDbDatabase& database, const ZrDbObject& object) override;
    void objectModified(const ZrDbDatabase& database, const ZrDbObject& object) override;
    void objectErased(const ZrDbDatabase& database, const ZrDbObject& object, bool erased) override;
    void headerSysVarChanged(const ZrDbDatabase& database, const wchar_t* name) override;

    void documentCreated(ZrApDocument& document) override;
    void documentBecameCurrent(ZrApDocument* document) override;
    void documentToBeDeactivated(ZrApDocument& document) override;
    void documentToBeDestroyed(ZrApDocument& document) override;
    void commandWillStart(const ZrString& globalName) override;
    void commandEnded(const ZrString& globalName) override;
    void commandCancelled(const ZrString& globalName) override;

    // The palette in which the person acts knows.
    void impliedSelectionChanged() override;

private:
    using ObjectSlot = void (CZrRxPaletteSet::*)(const ZrDbDatabase*, const ZrDbObject*);

    template <class Action>
    void forEachPalette(Action&& action);
    void tell(ObjectSlot slot, const ZrDbDatabase& database, const ZrDbObject& object);
    // The slots for lights are told of nothing else.
    void tellOfLight(ObjectSlot slot, const ZrDbDatabase& database, const ZrDbObject& object);
    void commandFinished();
    void variableSet(const ZrString& name);
    // Editing a block in place has begun or ended: other objects count in the current drawing.
    void objectsInPlayChanged();
    void tellOfCurrentDocument();
    // In the colours of another theme, every palette looks different, its icon too.
    void followTheme();

    Session& session_;
    UserInterface& ui_;
    int variableListener_ = 0;
    bool isDark_;
    // The header variable of which the palettes have just been told by the drawing: who set it tells it again.
    ZrString toldByDrawing_;
    // Told at the end of the command, when all of them are there.
    bool otherObjectsInPlay_ = false;
};

} // namespace quor::ui
