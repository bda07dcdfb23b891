#include "light/palette/theme_static.h"

#include "light/palette/theme_text.h"
#include "sdk/ui/dpi.h"
#include "sdk/ui/theme.h"

void ThemeStatic::PreSubclassWindow() {
    CStatic::PreSubclassWindow();
    ModifyStyle(0, SS_OWNERDRAW | SS_NOTIFY);
}

void ThemeStatic::DrawItem(const quor::ui::DrawItem& item) {
    quor::light::drawThemedText(item, GetWindowText(),
                                {.background = kThemeLabelBackground,
                                 .text = kThemeLabelText,
                                 .indent = ZkUiGetCtrlDPISize(3),
                                 .format = DT_SINGLELINE | DT_VCENTER | DT_LEFT});
}
