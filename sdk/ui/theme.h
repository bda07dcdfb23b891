// The colours of the user interface: by number of the element that they are for, in the theme in use.
#pragma once

#include "sdk/ui/geometry.h"

class ZwTheme {
public:
    virtual ~ZwTheme() = default;
    // The colour of an element in the theme in use (COLORTHEME: 0 dark, 1 light, 2 as the desktop). Magenta for a
    // number without one, so that a mistake is seen.
    [[nodiscard]] virtual COLORREF color(int element) const = 0;
    [[nodiscard]] virtual bool isDark() const = 0;
};

// Elements that have a colour.
inline constexpr int kThemeHeaderBackground = 30;
inline constexpr int kThemeHeaderText = 31;
inline constexpr int kThemeListBackground = 34;
inline constexpr int kThemeListText = 36;
inline constexpr int kThemeUnfocusedSelection = 49;
inline constexpr int kThemeHeaderSeparator = 55;
inline constexpr int kThemeLabelBackground = 63;
inline constexpr int kThemeLabelText = 64;
inline constexpr int kThemeDialogBackground = 84;
inline constexpr int kThemePanelBackground = 92;
inline constexpr int kThemePanelText = 94;

// The colours of the system, which go with the theme too.
inline constexpr int COLOR_WINDOW = 5;
inline constexpr int COLOR_WINDOWTEXT = 8;
inline constexpr int COLOR_HIGHLIGHT = 13;
inline constexpr int COLOR_HIGHLIGHTTEXT = 14;
[[nodiscard]] COLORREF GetSysColor(int element);
