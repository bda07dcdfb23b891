#include "desktop/commandline/line_colors.h"

#include "host/ui/theme.h"

#include <QAbstractScrollArea>

namespace quor::desktop {

namespace {

QColor toColor(COLORREF color) {
    return QColor(static_cast<int>(GetRValue(color)), static_cast<int>(GetGValue(color)),
                  static_cast<int>(GetBValue(color)));
}

QColor between(const QColor& from, const QColor& to, double share) {
    const auto mixed = [&](int a, int b) { return static_cast<int>(a + (b - a) * share); };
    return QColor(mixed(from.red(), to.red()), mixed(from.green(), to.green()), mixed(from.blue(), to.blue()));
}

// A blue that reads well as text on the ground of each theme.
constexpr QRgb kLinkOnDark = 0xFF8AB8F8;
constexpr QRgb kLinkOnLight = 0xFF1A56B0;

} // namespace

LineColors LineColors::current() {
    const ui::Theme theme;
    const bool isDark = theme.isDark();
    LineColors colors;
    colors.ground = toColor(theme.color(kThemeListBackground));
    const QColor ink = toColor(theme.color(kThemeListText));
    colors.text = between(ink, colors.ground, 0.16);
    colors.dim = between(ink, colors.ground, 0.42);
    colors.bright = isDark ? QColor(Qt::white) : QColor(Qt::black);
    colors.link = QColor(isDark ? kLinkOnDark : kLinkOnLight);
    colors.linkGround = between(colors.ground, colors.link, 0.22);
    colors.selection = toColor(GetSysColor(COLOR_HIGHLIGHT));
    colors.selectedText = toColor(GetSysColor(COLOR_HIGHLIGHTTEXT));
    colors.edge = between(colors.ground, ink, 0.28);
    return colors;
}

void giveColors(QAbstractScrollArea& area, const LineColors& colors) {
    QPalette palette = area.palette();
    palette.setColor(QPalette::Base, colors.ground);
    palette.setColor(QPalette::Text, colors.text);
    palette.setColor(QPalette::Highlight, colors.selection);
    palette.setColor(QPalette::HighlightedText, colors.selectedText);
    area.setPalette(palette);
    area.viewport()->setPalette(palette); // which is what is painted; a change of style leaves it behind
}

} // namespace quor::desktop
