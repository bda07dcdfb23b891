// The dialog that fills the palette: the list of the lights, a label above it and tips below. The list and the
// drawing's pick-first selection follow each other.
#pragma once

#include "light/palette/light_rows.h"
#include "light/palette/theme_button.h"
#include "light/palette/theme_list_ctrl.h"
#include "light/palette/theme_static.h"
#include "sdk/ui/dialog.h"
#include "sdk/ui/image_list.h"
#include "sdk/ui/tooltip.h"

#include <vector>

class ZrDbLight;

class CZrlightListDlg final : public CZrUiDialog {
public:
    CZrlightListDlg() : rows_(list_) {}
    ~CZrlightListDlg() override;

    // All rows anew, in ascending order of the names. Without a drawing there are none, and the order stays.
    void refreshList();
    void clearList();
    // Adds, brings up to date or removes the row of one open light.
    void updateLightRow(const ZrDbLight& light);
    // Exactly the rows of these lights are selected.
    void selectLights(const std::vector<ZrDbObjectId>& ids);
    // Shows the tips, or hides them.
    void toggleTips();
    // The person can see them, with all that is around them.
    [[nodiscard]] bool tipsVisible() const { return tips_.IsWindowVisible(); }

protected:
    void OnInitDialog() override;
    void OnSize(int width, int height) override;
    bool OnEraseBkgnd(CDC& dc) override;
    void OnRButtonUp(unsigned flags, CPoint point) override;
    // The menus come from the right button alone.
    void OnContextMenu(CWnd* /*from*/, CPoint /*screen*/) override {}
    bool OnCommand(unsigned id) override;
    std::intptr_t OnNotify(unsigned id, const quor::ui::Notification& notification) override;
    bool PreTranslateMessage(const InputMessage& message) override;

private:
    void addImages();
    void addColumns();
    void addTips();
    void layOutControls();
    void tellTooltip(const InputMessage& message);
    void showDialogMenu();
    void showRowMenu(int row);
    void selectRowsInDrawing();
    [[nodiscard]] std::vector<ZrDbObjectId> selectedLights() const;
    [[nodiscard]] ZrDbObjectId markedLight() const;

    CZrUiCmdToolTipCtrl tooltip_;
    ThemeListCtrl list_;
    quor::light::LightRows rows_;
    ThemeButton tips_;
    CImageList images_;
    bool tipsShown_ = true;
    ThemeStatic label_;
};
