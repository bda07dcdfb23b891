#include "desktop/palettes/painter_device.h"

#include "desktop/qt_text.h"
#include "host/ui/theme.h"
#include "sdk/ui/window.h"

#include <QApplication>
#include <QWidget>

namespace quor::desktop {

namespace {

int flagsOf(unsigned format) {
    // The middle of several lines is not asked for: only one line can stand in it.
    if ((format & DT_SINGLELINE) != 0)
        return Qt::TextSingleLine | Qt::AlignLeft | ((format & DT_VCENTER) != 0 ? Qt::AlignVCenter : Qt::AlignTop);
    return Qt::AlignLeft | Qt::AlignTop | ((format & DT_WORDBREAK) != 0 ? Qt::TextWordWrap : 0);
}

} // namespace

PainterDevice::PainterDevice(QPainter& painter, const QWidget& widget, PictureCache& pictures)
    : painter_(painter), pictures_(pictures), windowFont_(widget.font()), guiFont_(QApplication::font()),
      pixelRatio_(widget.devicePixelRatioF()) {}

void PainterDevice::enter(const CRect& child) {
    painter_.save();
    painter_.setClipRect(toQt(child), Qt::IntersectClip);
    painter_.translate(child.left, child.top);
}

void PainterDevice::leave() { painter_.restore(); }

void PainterDevice::fill(const CRect& rect, COLORREF color) { painter_.fillRect(toQt(rect), toQt(color)); }

void PainterDevice::text(std::wstring_view text, const CRect& rect, unsigned format, COLORREF color, ui::Font font,
                         const COLORREF* background) {
    const QRect place = toQt(rect);
    if (text.empty() || place.isEmpty())
        return;
    painter_.setFont(fontOf(font));
    const int flags = flagsOf(format);
    QString shown = toQt(text);
    if ((format & DT_END_ELLIPSIS) != 0)
        shown = painter_.fontMetrics().elidedText(shown, Qt::ElideRight, place.width());
    if (background != nullptr)
        painter_.fillRect(painter_.boundingRect(place, flags, shown).intersected(place), toQt(*background));
    painter_.setPen(toQt(color));
    painter_.drawText(place, flags, shown);
}

void PainterDevice::focusRect(const CRect& rect) {
    painter_.save();
    painter_.setPen(QPen(toQt(ui::Theme().color(kThemeListText)), 1, Qt::DotLine));
    painter_.setBrush(Qt::NoBrush);
    painter_.drawRect(QRectF(toQt(rect)).adjusted(0.5, 0.5, -0.5, -0.5));
    painter_.restore();
}

void PainterDevice::picture(const ui::PictureResource& picture, const CRect& rect, unsigned /*style*/) {
    const QRect place = toQt(rect);
    if (!place.isEmpty())
        painter_.drawPixmap(place.topLeft(), pictures_.get(picture, place.size(), pixelRatio_));
}

CSize PainterDevice::textExtent(std::wstring_view text, ui::Font font) const {
    const QFontMetrics metrics(fontOf(font));
    return {metrics.horizontalAdvance(toQt(text)), metrics.height()};
}

const QFont& PainterDevice::fontOf(ui::Font font) const {
    return font == ui::Font::DefaultGui ? guiFont_ : windowFont_;
}

void paintWindow(CWnd& window, QPainter& painter, const QWidget& widget, PictureCache& pictures) {
    PainterDevice device(painter, widget, pictures);
    CDC context(device);
    window.dispatchPaint(context);
}

} // namespace quor::desktop
