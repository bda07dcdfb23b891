// A list in the colours of the host's theme: the icon of a row in column 0, texts in all columns. Only column 1 shows
// what is selected.
#pragma once

#include "light/palette/theme_header_ctrl.h"
#include "sdk/ui/list_control.h"

class ThemeListCtrl final : public CListCtrl {
public:
    ThemeListCtrl() = default;
    // The window goes before the headings, which have to outlive it.
    ~ThemeListCtrl() override { DestroyWindow(); }

protected:
    void PreSubclassWindow() override;
    void DrawItem(const quor::ui::DrawItem& item) override;

private:
    [[nodiscard]] COLORREF selectionColor() const;
    void drawIcon(CDC& dc, int row) const;
    // `behind`: the colour that the text stands on.
    void drawText(CDC& dc, int row, int column, COLORREF behind) const;

    ThemeHeaderCtrl heading_;
};
