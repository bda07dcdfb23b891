#include "sdk/ui/device_context.h"

#include <utility>

COLORREF CDC::SetTextColor(COLORREF color) { return std::exchange(textColor_, color); }

COLORREF CDC::SetBkColor(COLORREF color) { return std::exchange(backgroundColor_, color); }

int CDC::SetBkMode(int mode) { return std::exchange(mode_, mode); }

quor::ui::Font CDC::SelectFont(quor::ui::Font font) { return std::exchange(font_, font); }

quor::ui::Font CDC::SelectStockObject(int number) {
    return SelectFont(number == DEFAULT_GUI_FONT ? quor::ui::Font::DefaultGui : font_);
}

void CDC::FillSolidRect(const CRect& rect, COLORREF color) { device_.fill(rect, color); }

void CDC::DrawText(std::wstring_view text, const CRect& rect, unsigned format) {
    device_.text(text, rect, format, textColor_, font_, mode_ == TRANSPARENT ? nullptr : &backgroundColor_);
}

void CDC::DrawFocusRect(const CRect& rect) { device_.focusRect(rect); }

void CDC::DrawPicture(const quor::ui::PictureResource& picture, const CRect& rect, unsigned style) {
    device_.picture(picture, rect, style);
}

CSize CDC::GetTextExtent(std::wstring_view text) const { return device_.textExtent(text, font_); }
