#include "desktop/commandline/line_font.h"

#include <QApplication>
#include <QFontDatabase>
#include <QFontInfo>

namespace quor::desktop {

namespace {

// Chinese characters twice as wide as the others, so that tables stand in columns; the first one that is there.
QStringList wideFamilies() {
    return {"Noto Sans Mono CJK SC", "Sarasa Mono SC", "WenQuanYi Zen Hei Mono", "Noto Sans CJK SC"};
}

} // namespace

QFont lineFont(int steps) {
    QFont font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    font.setStyleHint(QFont::Monospace);
    font.setFamilies(QStringList(QFontInfo(font).family()) + wideFamilies());
    font.setPointSizeF(QApplication::font().pointSizeF() + steps);
    return font;
}

} // namespace quor::desktop
