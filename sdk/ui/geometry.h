// Points, sizes, rectangles and colours of windows: pixels, y downwards.
#pragma once

#include <algorithm>
#include <cstdint>

struct CPoint {
    int x = 0;
    int y = 0;
    bool operator==(const CPoint&) const = default;
};

struct CSize {
    int cx = 0;
    int cy = 0;
    bool operator==(const CSize&) const = default;
};

// The right and the bottom edge do not belong to it.
struct CRect {
    int left = 0;
    int top = 0;
    int right = 0;
    int bottom = 0;
    bool operator==(const CRect&) const = default;

    [[nodiscard]] constexpr int Width() const { return right - left; }
    [[nodiscard]] constexpr int Height() const { return bottom - top; }
    [[nodiscard]] constexpr CPoint TopLeft() const { return {left, top}; }
    [[nodiscard]] constexpr CSize Size() const { return {Width(), Height()}; }
    [[nodiscard]] constexpr bool IsRectEmpty() const { return right <= left || bottom <= top; }
    [[nodiscard]] constexpr bool PtInRect(CPoint point) const {
        return point.x >= left && point.x < right && point.y >= top && point.y < bottom;
    }
    // The same rectangle elsewhere.
    [[nodiscard]] constexpr CRect Moved(int dx, int dy) const { return {left + dx, top + dy, right + dx, bottom + dy}; }
    // What both have in common; empty when nothing.
    [[nodiscard]] constexpr CRect Intersected(const CRect& other) const {
        const CRect common{std::max(left, other.left), std::max(top, other.top), std::min(right, other.right),
                           std::min(bottom, other.bottom)};
        return common.IsRectEmpty() ? CRect{} : common;
    }
};

// Red in the lowest byte, then green, then blue.
using COLORREF = std::uint32_t;

[[nodiscard]] constexpr COLORREF RGB(unsigned red, unsigned green, unsigned blue) {
    return (red & 0xFFU) | (green & 0xFFU) << 8 | (blue & 0xFFU) << 16;
}
[[nodiscard]] constexpr unsigned GetRValue(COLORREF color) { return color & 0xFFU; }
[[nodiscard]] constexpr unsigned GetGValue(COLORREF color) { return color >> 8 & 0xFFU; }
[[nodiscard]] constexpr unsigned GetBValue(COLORREF color) { return color >> 16 & 0xFFU; }
