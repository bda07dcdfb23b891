#include "host/ui/recording_device.h"

#include "host/sys/text_width.h"
#include "sdk/ui/image_list.h"

#include <array>
#include <cwchar>

namespace quor::ui {

namespace {

using Kind = DrawingCall::Kind;

struct FormatWord {
    unsigned bit;
    const wchar_t* word;
};

constexpr std::array kFormatWords = {
    FormatWord{DT_SINGLELINE, L" singleline"},
    FormatWord{DT_WORDBREAK, L" wordbreak"},
    FormatWord{DT_VCENTER, L" vcenter"},
    FormatWord{DT_END_ELLIPSIS, L" endellipsis"},
};

ZrString hexadecimal(unsigned value, int digits) {
    std::array<wchar_t, 16> buffer{};
    std::swprintf(buffer.data(), buffer.size(), L"%0*X", digits, value);
    return buffer.data();
}

ZrString nameOf(COLORREF color) {
    return L"#" + hexadecimal(GetRValue(color) << 16 | GetGValue(color) << 8 | GetBValue(color), 6);
}

ZrString nameOf(const CRect& rect) {
    return std::to_wstring(rect.left) + L"," + std::to_wstring(rect.top) + L"," + std::to_wstring(rect.right) + L"," +
           std::to_wstring(rect.bottom);
}

ZrString formatWords(unsigned format) {
    ZrString words;
    for (const FormatWord& known : kFormatWords) {
        if ((format & known.bit) != 0)
            words += known.word;
        format &= ~known.bit;
    }
    return format == 0 ? words : words + L" 0x" + hexadecimal(format, 1);
}

ZrString styleName(unsigned style) {
    if (style == ILD_NORMAL)
        return L"normal";
    return style == ILD_TRANSPARENT ? L"transparent" : L"0x" + hexadecimal(style, 1);
}

ZrString quoted(const ZrString& text) {
    ZrString result = L"\"";
    for (const wchar_t c : text)
        result += c == L'\n' ? ZrString(L"\\n") : ZrString(1, c);
    return result + L"\"";
}

ZrString textLine(const DrawingCall& call) {
    return L"text " + quoted(call.text) + L" " + nameOf(call.rect) + formatWords(call.format) + L" " +
           nameOf(call.color) + (call.background ? L" on " + nameOf(*call.background) : ZrString()) +
           (call.font == Font::Window ? L" Window" : L" DefaultGui");
}

} // namespace

ZrString lineOf(const DrawingCall& call) {
    switch (call.kind) {
    case Kind::Enter:
        return L"enter " + nameOf(call.rect);
    case Kind::Leave:
        return L"leave";
    case Kind::Fill:
        return L"fill " + nameOf(call.rect) + L" " + nameOf(call.color);
    case Kind::Text:
        return textLine(call);
    case Kind::FocusRect:
        return L"focus " + nameOf(call.rect);
    case Kind::Picture:
        return L"picture " + std::to_wstring(call.picture) + L" " + nameOf(call.rect) + L" " + styleName(call.style);
    }
    return {};
}

std::vector<ZrString> RecordingDevice::lines() const {
    std::vector<ZrString> result;
    for (const DrawingCall& call : calls_)
        result.push_back(lineOf(call));
    return result;
}

void RecordingDevice::enter(const CRect& child) { calls_.push_back({.kind = Kind::Enter, .rect = child}); }

void RecordingDevice::leave() { calls_.push_back({.kind = Kind::Leave}); }

void RecordingDevice::fill(const CRect& rect, COLORREF color) {
    calls_.push_back({.kind = Kind::Fill, .rect = rect, .color = color});
}

void RecordingDevice::text(std::wstring_view text, const CRect& rect, unsigned format, COLORREF color, Font font,
                           const COLORREF* background) {
    calls_.push_back({.kind = Kind::Text,
                      .rect = rect,
                      .color = color,
                      .text = ZrString(text),
                      .format = format,
                      .font = font,
                      .background = background == nullptr ? std::nullopt : std::optional(*background)});
}

void RecordingDevice::focusRect(const CRect& rect) { calls_.push_back({.kind = Kind::FocusRect, .rect = rect}); }

void RecordingDevice::picture(const PictureResource& picture, const CRect& rect, unsigned style) {
    calls_.push_back({.kind = Kind::Picture, .rect = rect, .picture = picture.id, .style = style});
}

CSize RecordingDevice::textExtent(std::wstring_view text, Font /*font*/) const {
    constexpr int columnWidth = 7;
    constexpr int lineHeight = 16;
    return {columnsOf(text) * columnWidth, lineHeight};
}

} // namespace quor::ui
