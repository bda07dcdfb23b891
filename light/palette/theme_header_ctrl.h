// Column headings in the colours of the host's theme.
#pragma once

#include "sdk/ui/header_control.h"

class ThemeHeaderCtrl final : public CHeaderCtrl {
protected:
    void OnPaint(CDC& dc) override;

private:
    void drawItem(CDC& dc, int index) const;
    // Its picture stands right behind its text.
    void drawImage(CDC& dc, const Item& item, const CRect& textPlace, CSize textSize) const;
};
