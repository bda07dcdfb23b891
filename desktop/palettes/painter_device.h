// What windows draw on: a widget's painter. A pixel of a window is a logical pixel of the widget; texts and pictures
// are drawn as fine as the screen is.
#pragma once

#include "desktop/palettes/picture_cache.h"
#include "sdk/ui/device_context.h"

#include <QFont>
#include <QPainter>

class CWnd;
class QWidget;

namespace quor::desktop {

[[nodiscard]] inline QColor toQt(COLORREF color) {
    return {static_cast<int>(GetRValue(color)), static_cast<int>(GetGValue(color)), static_cast<int>(GetBValue(color))};
}
[[nodiscard]] inline QRect toQt(const CRect& rect) { return {rect.left, rect.top, rect.Width(), rect.Height()}; }
[[nodiscard]] inline CPoint fromQt(QPoint point) { return {point.x(), point.y()}; }
[[nodiscard]] inline CRect fromQt(const QRect& rect) {
    return {rect.left(), rect.top(), rect.left() + rect.width(), rect.top() + rect.height()};
}

class PainterDevice final : public ui::DrawingDevice {
public:
    // Draws in the fonts of the widget. All three outlive the device.
    PainterDevice(QPainter& painter, const QWidget& widget, PictureCache& pictures);

    void enter(const CRect& child) override;
    void leave() override;
    void fill(const CRect& rect, COLORREF color) override;
    void text(std::wstring_view text, const CRect& rect, unsigned format, COLORREF color, ui::Font font,
              const COLORREF* background) override;
    void focusRect(const CRect& rect) override;
    void picture(const ui::PictureResource& picture, const CRect& rect, unsigned style) override;
    [[nodiscard]] CSize textExtent(std::wstring_view text, ui::Font font) const override;

private:
    [[nodiscard]] const QFont& fontOf(ui::Font font) const;

    QPainter& painter_;
    PictureCache& pictures_;
    QFont windowFont_;
    QFont guiFont_;
    qreal pixelRatio_;
};

// Draws a window alone, without its children: they have widgets of their own.
void paintWindow(CWnd& window, QPainter& painter, const QWidget& widget, PictureCache& pictures);

} // namespace quor::desktop
