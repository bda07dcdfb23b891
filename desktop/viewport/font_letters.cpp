#include "desktop/viewport/font_letters.h"

#include <QFontMetricsF>
#include <QPainterPath>

namespace quor::desktop {

namespace {

// Large enough for round letters, small enough for few points.
constexpr int kPixels = 40;

gs::LetterOutline readOutline(const QFont& font, char32_t character) {
    gs::LetterOutline outline;
    const QFontMetricsF metrics(font);
    const QString text = QString::fromUcs4(&character, 1);
    const double unit = metrics.capHeight();
    if (unit <= 0 || !metrics.inFontUcs4(character))
        return outline;
    QPainterPath path;
    path.addText(0, 0, font, text);
    for (const QPolygonF& polygon : path.toSubpathPolygons()) {
        std::vector<ZrGePoint2d>& stroke = outline.strokes.emplace_back();
        for (const QPointF& point : polygon)
            stroke.emplace_back(point.x() / unit, -point.y() / unit);
    }
    outline.advance = metrics.horizontalAdvance(text) / unit;
    return outline;
}

} // namespace

FontLetters::FontLetters() {
    font_.setPixelSize(kPixels);
    gs::setLetterSource([this](char32_t character) { return outlineOf(character); });
}

FontLetters::~FontLetters() { gs::setLetterSource({}); }

const gs::LetterOutline* FontLetters::outlineOf(char32_t character) {
    const auto [at, isNew] = outlines_.try_emplace(character);
    if (isNew)
        at->second = readOutline(font_, character);
    return at->second.strokes.empty() ? nullptr : &at->second;
}

} // namespace quor::desktop
