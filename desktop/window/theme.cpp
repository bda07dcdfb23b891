#include "desktop/window/theme.h"

#include "sdk/ui/theme.h"

#include <QApplication>

namespace quor::desktop {

namespace {

QColor qtColor(COLORREF color) {
    return {static_cast<int>(color & 0xFF), static_cast<int>(color >> 8 & 0xFF), static_cast<int>(color >> 16 & 0xFF)};
}

QString ruleSheet(const QPalette& palette) {
    const QString line = mixed(palette.color(QPalette::Window), palette.color(QPalette::WindowText), 0.18).name();
    const QString base = palette.color(QPalette::Base).name();
    const QString text = palette.color(QPalette::WindowText).name();
    return QStringLiteral("QToolTip { color: %3; background: %2; border: 1px solid %1; padding: 3px; }"
                          "QMainWindow::separator { background: %1; width: 3px; height: 3px; }"
                          "QMainWindow::separator:hover { background: palette(highlight); }"
                          "QStatusBar::item { border: none; }"
                          "QToolBar { border: none; spacing: 2px; padding: 2px; }"
                          "QDockWidget::title { background: palette(window); padding: 5px; }")
        .arg(line, base, text);
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
    const QPalette palette = paletteOf(theme);
    QApplication::setPalette(palette);
    qApp->setStyleSheet(ruleSheet(palette));
}

} // namespace quor::desktop
