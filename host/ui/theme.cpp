#include "host/ui/theme.h"

#include "host/session.h"
#include "host/sys/system_variables.h"

#include <algorithm>
#include <span>

namespace quor::ui {

namespace {

struct ThemeColor {
    int element;
    COLORREF dark;
    COLORREF light;
};

constexpr COLORREF kNoColor = RGB(0xFF, 0x00, 0xFF);

constexpr COLORREF kDarkGround = RGB(0x2D, 0x30, 0x36);
constexpr COLORREF kDarkSheet = RGB(0x23, 0x26, 0x2B);
constexpr COLORREF kDarkInk = RGB(0xE8, 0xEB, 0xEF);
constexpr COLORREF kLightGround = RGB(0xF3, 0xF4, 0xF6);
constexpr COLORREF kLightSheet = RGB(0xFF, 0xFF, 0xFF);
constexpr COLORREF kLightInk = RGB(0x1E, 0x22, 0x27);

constexpr ThemeColor kElements[] = {
    {kThemeHeaderBackground, RGB(0x36, 0x3A, 0x42), RGB(0xE7, 0xEA, 0xEE)},
    {kThemeHeaderText, RGB(0xD5, 0xDA, 0xE1), RGB(0x2B, 0x30, 0x37)},
    {kThemeHeaderSeparator, RGB(0x5B, 0x62, 0x6E), RGB(0xB4, 0xBB, 0xC5)},
    {kThemeListBackground, kDarkSheet, kLightSheet},
    {kThemeListText, kDarkInk, kLightInk},
    {kThemeUnfocusedSelection, RGB(0x47, 0x4D, 0x58), RGB(0xD2, 0xD7, 0xDF)},
    {kThemeLabelBackground, kDarkGround, kLightGround},
    {kThemeLabelText, RGB(0xE3, 0xE6, 0xEA), RGB(0x24, 0x28, 0x2E)},
    {kThemeDialogBackground, kDarkGround, kLightGround},
    {kThemePanelBackground, RGB(0x32, 0x36, 0x3D), RGB(0xEB, 0xED, 0xF1)},
    {kThemePanelText, RGB(0xC9, 0xCF, 0xD8), RGB(0x3A, 0x40, 0x48)},
};

// Rows of lists keep their text colour when they are selected: it is readable on the highlight as well.
constexpr ThemeColor kSystemElements[] = {
    {COLOR_WINDOW, kDarkSheet, kLightSheet},
    {COLOR_WINDOWTEXT, kDarkInk, kLightInk},
    {COLOR_HIGHLIGHT, RGB(0x2C, 0x5F, 0xA8), RGB(0xA9, 0xCD, 0xF8)},
    {COLOR_HIGHLIGHTTEXT, RGB(0xFF, 0xFF, 0xFF), RGB(0x10, 0x15, 0x1B)},
};

COLORREF colorIn(std::span<const ThemeColor> colors, int element, bool dark) {
    const auto at =
        std::find_if(colors.begin(), colors.end(), [&](const ThemeColor& c) { return c.element == element; });
    if (at == colors.end())
        return kNoColor;
    return dark ? at->dark : at->light;
}

} // namespace

COLORREF Theme::color(int element) const { return colorIn(kElements, element, isDark()); }

bool Theme::isDark() const {
    constexpr short kDark = 0;
    constexpr short kAsDesktop = 2;
    if (!Session::exists())
        return true;
    const short theme = Session::current().variables().number(L"COLORTHEME", kDark);
    return theme == kDark || (theme == kAsDesktop && Session::current().front().desktopIsDark());
}

} // namespace quor::ui

COLORREF GetSysColor(int element) {
    return quor::ui::colorIn(quor::ui::kSystemElements, element, quor::ui::Theme().isDark());
}
