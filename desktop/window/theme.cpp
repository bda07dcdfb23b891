#include "desktop/window/theme.h"

#include "desktop/window/style.h"
#include "sdk/ui/theme.h"

#include <QApplication>
#include <QPointer>

namespace quor::desktop {

namespace {

QColor qtColor(COLORREF color) {
    return {static_cast<int>(color & 0xFF), static_cast<int>(color >> 8 & 0xFF), static_cast<int>(color >> 16 & 0xFF)};
}

// %1: lines; %2, %3: sheet and ink; %4: ink of what is switched off; %5, %6: ground and edge of what is on; %7: the
// keyboard is here.
constexpr const char* kRules = R"(
QToolTip { color: %3; background: %2; border: 1px solid %1; padding: 3px; }
QMainWindow::separator { background: %1; width: 3px; height: 3px; }
QMainWindow::separator:hover { background: palette(highlight); }
QStatusBar::item { border: none; }
QStatusBar QToolButton { color: %4; border: 1px solid transparent; border-radius: 3px; padding: 2px 7px; }
QStatusBar QToolButton:hover { border-color: %1; }
QStatusBar QToolButton:checked { color: %3; background: %5; border-color: %6; }
QStatusBar QToolButton:focus { border-color: %7; }
QToolBar { border: none; spacing: 2px; padding: 2px; }
QToolBar::separator { background: %1; width: 1px; margin: 4px 3px; }
QDockWidget::title { background: palette(window); padding: 5px; }
)";

QString ruleSheet(const QPalette& palette) {
    const QColor ground = palette.color(QPalette::Window);
    const QColor ink = palette.color(QPalette::WindowText);
    const QColor accent = palette.color(QPalette::Link);
    return QString(kRules).arg(mixed(ground, ink, 0.18).name(), palette.color(QPalette::Base).name(), ink.name(),
                               mixed(ground, ink, 0.65).name(), mixed(ground, accent, 0.25).name(),
                               mixed(ground, accent, 0.7).name(), accent.name());
}

// The application takes it, and takes it along when it goes.
void useProgramStyle() {
    static QPointer<QStyle> style;
    if (style != nullptr)
        return;
    style = new ProgramStyle;
    QApplication::setStyle(style);
}

} // namespace

QColor mixed(const QColor& from, const QColor& to, double share) {
    const auto channel = [&](int a, int b) { return static_cast<int>(a + (b - a) * share); };
    return {channel(from.red(), to.red()), channel(from.green(), to.green()), channel(from.blue(), to.blue())};
}

bool isDark(const QPalette& palette) {
    return palette.color(QPalette::Window).lightness() < palette.color(QPalette::WindowText).lightness();
}

QPalette paletteOf(const ZwTheme& theme) {
    const QColor ground = qtColor(theme.color(kThemeDialogBackground));
    const QColor ink = qtColor(theme.color(kThemeLabelText));
    const QColor sheet = qtColor(GetSysColor(COLOR_WINDOW));
    const QColor sheetInk = qtColor(GetSysColor(COLOR_WINDOWTEXT));
    const QColor faint = mixed(ground, ink, 0.45);
    QPalette palette(mixed(ground, ink, 0.06), ground);
    palette.setColor(QPalette::WindowText, ink);
    palette.setColor(QPalette::Base, sheet);
    palette.setColor(QPalette::AlternateBase, mixed(sheet, sheetInk, 0.04));
    palette.setColor(QPalette::Text, sheetInk);
    palette.setColor(QPalette::ButtonText, ink);
    palette.setColor(QPalette::ToolTipBase, sheet);
    palette.setColor(QPalette::ToolTipText, sheetInk);
    palette.setColor(QPalette::PlaceholderText, mixed(sheet, sheetInk, 0.5));
    palette.setColor(QPalette::Highlight, qtColor(GetSysColor(COLOR_HIGHLIGHT)));
    palette.setColor(QPalette::HighlightedText, qtColor(GetSysColor(COLOR_HIGHLIGHTTEXT)));
    palette.setColor(QPalette::Link, theme.isDark() ? QColor(0x7F, 0xB8, 0xFF) : QColor(0x1A, 0x5F, 0xB4));
    palette.setColor(QPalette::LinkVisited, palette.color(QPalette::Link));
    for (const QPalette::ColorRole role :
         {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::HighlightedText})
        palette.setColor(QPalette::Disabled, role, faint);
    palette.setColor(QPalette::Disabled, QPalette::Highlight, mixed(ground, ink, 0.2));
    return palette;
}

void applyTheme(const ZwTheme& theme) {
    useProgramStyle();
    const QPalette palette = paletteOf(theme);
    QApplication::setPalette(palette);
    qApp->setStyleSheet(ruleSheet(palette));
}

} // namespace quor::desktop
