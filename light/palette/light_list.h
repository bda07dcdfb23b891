// The palette of the lights in model space: a window around the list, which decides when rows have to be added, brought
// up to date, removed, selected or made anew.
#pragma once

#include "sdk/db/object_id.h"
#include "sdk/ui/palette_set.h"

#include <memory>
#include <vector>

class CZrlightListDlg;

class CZrLightList final : public CZrRxPaletteSet {
public:
    CZrLightList();
    ~CZrLightList() override;

    // What fills the palette; null until the palette has its window.
    [[nodiscard]] CZrlightListDlg* dialog() const { return listDialog_.get(); }

    // Nothing of these shows in the list.
    void onActivated() override {}
    void onDeactivated() override {}
    void onDocked() override {}
    void onFloated() override {}
    void onRolledUp() override {}
    void onUnrolled() override {}

    void impliedSelectionChanged() override;
    // New lights wait for the end of the command: until then they are still being made.
    void lightAppended(const ZrDbDatabase* database, const ZrDbObject* object) override;
    void lightChangedNow(const ZrDbDatabase* database, const ZrDbObject* object) override;
    void lightTouched(const ZrDbDatabase* database, const ZrDbObject* object) override;
    void lightTouchedByUndo(const ZrDbDatabase* database, const ZrDbObject* object) override;
    void lightTouchedByRedo(const ZrDbDatabase* database, const ZrDbObject* object) override;
    void documentBecameCurrent(ZrApDocument* document) override;
    void commandStarting() override;
    void commandFinished() override;
    // Tells whoever watches LIGHTLISTSTATE.
    void paletteShownChanged(bool shown) override;

protected:
    bool OnCreate() override;
    void OnRButtonUp(unsigned flags, CPoint point) override;
    // The menu comes from the right button alone.
    void OnContextMenu(CWnd* /*from*/, CPoint /*screen*/) override {}
    bool OnCommand(unsigned id) override;
    std::intptr_t OnMessage(unsigned message, std::uintptr_t wParam, std::intptr_t lParam) override;
    void layOut(const CRect& client) override;

private:
    [[nodiscard]] bool createDialog();
    void setIcon();
    void showMenu();
    void hide();
    void toggleTips();
    [[nodiscard]] bool tipsVisible() const;
    void forgetPending();
    void updateRow(ZrDbObjectId id);

    std::vector<ZrDbObjectId> pendingLightIds_; // appended since the command began
    ZrDbObjectId pendingLightId_;               // the last light that was touched
    std::unique_ptr<CZrlightListDlg> listDialog_;
};

namespace quor::light {

// The one palette of the module; null while the module is not loaded, and when the palette is gone.
extern CZrLightList* lightListPalette;

} // namespace quor::light
