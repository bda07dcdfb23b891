#include "light/palette/theme_button.h"

#include "light/palette/theme_text.h"
#include "sdk/ui/theme.h"

void ThemeButton::PreSubclassWindow() {
    CButton::PreSubclassWindow();
    ModifyStyle(0, BS_OWNERDRAW | BS_NOTIFY);
}

// The indent is the same on every screen. Lines that are broken start at the top, whatever is said of their height.
void ThemeButton::DrawItem(const quor::ui::DrawItem& item) {
    quor::light::drawThemedText(item, GetWindowText(),
                                {.background = kThemePanelBackground,
                                 .text = kThemePanelText,
                                 .indent = 3,
                                 .format = DT_WORDBREAK | DT_VCENTER | DT_LEFT});
}
