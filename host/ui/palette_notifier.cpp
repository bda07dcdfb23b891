#include "host/ui/palette_notifier.h"

#include "host/document.h"
#include "host/ed/command_processor.h"
#include "host/session.h"
#include "host/sys/system_variables.h"
#include "host/ui/acting.h"
#include "host/ui/user_interface.h"
#include "sdk/db/light.h"
#include "sdk/ed/selection.h"
#include "sdk/ui/palette_set_manager.h"

#include <utility>

namespace quor::ui {

namespace {

constexpr std::wstring_view kThemeVariable = L"COLORTHEME";
constexpr std::wstring_view kEditedBlockVariable = L"REFEDITNAME";

void invalidateAll(CWnd& window) {
    window.Invalidate();
    for (CWnd* const child : window.children())
        invalidateAll(*child);
}

} // namespace

PaletteNotifier::PaletteNotifier(Session& session, UserInterface& ui)
    : session_(session), ui_(ui), isDark_(ui.service().theme().isDark()) {
    session_.documents().addReactor(this);
    session_.documents().addSelectionReactor(this);
    variableListener_ = session_.variables().addListener([this](const ZrString& name) { variableSet(name); });
    for (const auto& document : session_.documents().all())
        document->database()->addReactor(this);
}

PaletteNotifier::~PaletteNotifier() {
    for (const auto& document : session_.documents().all())
        document->database()->removeReactor(this);
    session_.variables().removeListener(variableListener_);
    session_.documents().removeSelectionReactor(this);
    session_.documents().removeReactor(this);
}

template <class Action>
void PaletteNotifier::forEachPalette(Action&& action) {
    if (CZrRxPaletteSetManager* const palettes = ui_.palettes(false))
        palettes->forEach(action);
}

void PaletteNotifier::tell(ObjectSlot slot, const ZrDbDatabase& database, const ZrDbObject& object) {
    forEachPalette([&](CZrRxPaletteSet& palette) { (palette.*slot)(&database, &object); });
}

void PaletteNotifier::tellOfLight(ObjectSlot slot, const ZrDbDatabase& database, const ZrDbObject& object) {
    if (ui_.palettes(false) != nullptr && object.isKindOf(ZrDbLight::desc()))
        tell(slot, database, object);
}

void PaletteNotifier::objectAppended(const ZrDbDatabase& database, const ZrDbObject& object) {
    tellOfLight(&CZrRxPaletteSet::lightAppended, database, object);
}

void PaletteNotifier::objectUnAppended(const ZrDbDatabase& database, const ZrDbObject& object) {
    tellOfLight(&CZrRxPaletteSet::lightChangedNow, database, object);
    tellOfLight(&CZrRxPaletteSet::lightTouchedByUndo, database, object);
}

void PaletteNotifier::objectReAppended(const ZrDbDatabase& database, const ZrDbObject& object) {
    tellOfLight(&CZrRxPaletteSet::lightChangedNow, database, object);
    tellOfLight(&CZrRxPaletteSet::lightTouchedByRedo, database, object);
}

void PaletteNotifier::objectOpenedForModify(const ZrDbDatabase& database, const ZrDbObject& object) {
    tell(&CZrRxPaletteSet::objectOpenedForModify, database, object);
}

void PaletteNotifier::objectModified(const ZrDbDatabase& database, const ZrDbObject& object) {
    tellOfLight(&CZrRxPaletteSet::lightTouched, database, object);
}

void PaletteNotifier::objectErased(const ZrDbDatabase& database, const ZrDbObject& object, bool /*erased*/) {
    tellOfLight(&CZrRxPaletteSet::lightChangedNow, database, object);
}

void PaletteNotifier::headerSysVarChanged(const ZrDbDatabase& database, const wchar_t* name) {
    toldByDrawing_ = name;
    forEachPalette([&](CZrRxPaletteSet& palette) { palette.sysVarChanged(name); });
    if (name == kEditedBlockVariable && &database == zrdbWorkingDatabase())
        objectsInPlayChanged();
}

void PaletteNotifier::objectsInPlayChanged() {
    if (session_.processor().isRunning())
        otherObjectsInPlay_ = true;
    else
        tellOfCurrentDocument();
}

void PaletteNotifier::tellOfCurrentDocument() {
    documentBecameCurrent(session_.documents().current());
    if (!zredImpliedSelection().empty())
        impliedSelectionChanged();
}

void PaletteNotifier::variableSet(const ZrString& name) {
    if (name == kThemeVariable)
        followTheme();
    if (std::exchange(toldByDrawing_, {}) != name)
        forEachPalette([&](CZrRxPaletteSet& palette) { palette.sysVarChanged(name); });
}

void PaletteNotifier::followTheme() {
    const bool isDark = ui_.service().theme().isDark();
    if (std::exchange(isDark_, isDark) == isDark)
        return;
    forEachPalette([](CZrRxPaletteSet& palette) {
        invalidateAll(palette);
        palette.SendMessage(kIconMessage);
    });
    session_.front().redraw();
}

void PaletteNotifier::documentCreated(ZrApDocument& document) { document.database()->addReactor(this); }

void PaletteNotifier::documentBecameCurrent(ZrApDocument* document) {
    otherObjectsInPlay_ = false;
    forEachPalette([&](CZrRxPaletteSet& palette) { palette.documentBecameCurrent(document); });
}

void PaletteNotifier::documentToBeDeactivated(ZrApDocument& document) {
    forEachPalette([&](CZrRxPaletteSet& palette) { palette.documentToBeDeactivated(&document); });
}

void PaletteNotifier::documentToBeDestroyed(ZrApDocument& document) {
    forEachPalette([&](CZrRxPaletteSet& palette) { palette.documentToBeDestroyed(&document); });
    document.database()->removeReactor(this);
}

void PaletteNotifier::commandWillStart(const ZrString& /*globalName*/) {
    toldByDrawing_.clear();
    forEachPalette([](CZrRxPaletteSet& palette) { palette.commandStarting(); });
}

void PaletteNotifier::commandEnded(const ZrString& /*globalName*/) { commandFinished(); }
void PaletteNotifier::commandCancelled(const ZrString& /*globalName*/) { commandFinished(); }

void PaletteNotifier::commandFinished() {
    if (otherObjectsInPlay_)
        tellOfCurrentDocument();
    forEachPalette([](CZrRxPaletteSet& palette) { palette.commandFinished(); });
    ui_.settle();
}

void PaletteNotifier::impliedSelectionChanged() {
    forEachPalette([](CZrRxPaletteSet& palette) {
        if (actingWindow() != &palette)
            palette.impliedSelectionChanged();
    });
}

} // namespace quor::ui
