#include "light/palette/theme_header_ctrl.h"

#include "light/palette/theme_color.h"
#include "sdk/ui/image_list.h"

using quor::light::themeColor;

namespace {
constexpr std::size_t longestText = 255;
constexpr int indent = 5; // pixels, the same on every screen
} // namespace

void ThemeHeaderCtrl::OnPaint(CDC& dc) {
    dc.FillSolidRect(GetClientRect(), themeColor(kThemeHeaderBackground));
    for (int index = 0; index < GetItemCount(); ++index)
        drawItem(dc, index);
}

void ThemeHeaderCtrl::drawItem(CDC& dc, int index) const {
    const Item& item = *GetItem(index);
    const std::wstring_view text = std::wstring_view(item.text).substr(0, longestText);
    CRect place = GetItemRect(index);
    dc.FillSolidRect(place, themeColor(kThemeHeaderBackground));
    dc.FillSolidRect({place.right - 1, place.top, place.right, place.bottom}, themeColor(kThemeHeaderSeparator));

    dc.SetTextColor(themeColor(kThemeHeaderText));
    dc.SetBkColor(themeColor(kThemeHeaderBackground));
    dc.SetBkMode(TRANSPARENT);
    place.left += indent;
    const quor::ui::Font before = dc.SelectStockObject(DEFAULT_GUI_FONT);
    dc.DrawText(text, place, DT_SINGLELINE | DT_VCENTER | DT_END_ELLIPSIS);
    const CSize size = dc.GetTextExtent(text);
    dc.SelectFont(before);
    drawImage(dc, item, place, size);
}

void ThemeHeaderCtrl::drawImage(CDC& dc, const Item& item, const CRect& textPlace, CSize textSize) const {
    if (GetImageList() == nullptr || (item.format & HDF_IMAGE) == 0)
        return;
    const CPoint at{textPlace.left + textSize.cx, textPlace.top + (textPlace.Height() - textSize.cy) / 2};
    GetImageList()->Draw(dc, item.image, at, ILD_TRANSPARENT);
}
