// Drawing: what a window draws on, with the colours, the mode and the font in use.
#pragma once

#include "sdk/sys/string.h"
#include "sdk/ui/geometry.h"

namespace quor::ui {

struct PictureResource;

enum class Font { Window, DefaultGui };

// What finally draws: a screen's painter, or a list of the calls. Coordinates are those of the window.
class DrawingDevice {
public:
    virtual ~DrawingDevice() = default;
    // What follows is drawn in a child window: its origin in the coordinates so far, and its size.
    virtual void enter(const CRect& child) = 0;
    virtual void leave() = 0;
    virtual void fill(const CRect& rect, COLORREF color) = 0;
    // `background`: the colour behind the letters, when they are not transparent.
    virtual void text(std::wstring_view text, const CRect& rect, unsigned format, COLORREF color, Font font,
                      const COLORREF* background) = 0;
    virtual void focusRect(const CRect& rect) = 0;
    virtual void picture(const PictureResource& picture, const CRect& rect, unsigned style) = 0;
    [[nodiscard]] virtual CSize textExtent(std::wstring_view text, Font font) const = 0;
};

} // namespace quor::ui

// Format bits of DrawText.
inline constexpr unsigned DT_LEFT = 0x0;
inline constexpr unsigned DT_VCENTER = 0x4;
inline constexpr unsigned DT_WORDBREAK = 0x10;
inline constexpr unsigned DT_SINGLELINE = 0x20;
inline constexpr unsigned DT_END_ELLIPSIS = 0x8000;
// Modes of SetBkMode.
inline constexpr int TRANSPARENT = 1;
inline constexpr int OPAQUE = 2;
// Stock fonts of SelectStockObject.
inline constexpr int DEFAULT_GUI_FONT = 17;

class CDC {
public:
    explicit CDC(quor::ui::DrawingDevice& device) : device_(device) {}
    CDC(const CDC&) = delete;
    CDC& operator=(const CDC&) = delete;

    // Each answers what it was before. A new context draws black on white, opaque, in the window's font.
    COLORREF SetTextColor(COLORREF color);
    COLORREF SetBkColor(COLORREF color);
    int SetBkMode(int mode);
    quor::ui::Font SelectFont(quor::ui::Font font);
    // A font of the system by its number; an unknown number changes nothing.
    quor::ui::Font SelectStockObject(int number);
    [[nodiscard]] COLORREF GetTextColor() const { return textColor_; }
    [[nodiscard]] COLORREF GetBkColor() const { return backgroundColor_; }
    [[nodiscard]] int GetBkMode() const { return mode_; }

    // Fills a rectangle; the colours in use stay as they are.
    void FillSolidRect(const CRect& rect, COLORREF color);
    void DrawText(std::wstring_view text, const CRect& rect, unsigned format);
    void DrawFocusRect(const CRect& rect);
    void DrawPicture(const quor::ui::PictureResource& picture, const CRect& rect, unsigned style);
    // Width and height of a text on one line.
    [[nodiscard]] CSize GetTextExtent(std::wstring_view text) const;

    [[nodiscard]] quor::ui::DrawingDevice& device() const { return device_; }

private:
    quor::ui::DrawingDevice& device_;
    COLORREF textColor_ = RGB(0, 0, 0);
    COLORREF backgroundColor_ = RGB(255, 255, 255);
    int mode_ = OPAQUE;
    quor::ui::Font font_ = quor::ui::Font::Window;
};
