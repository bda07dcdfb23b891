#include "host/ui/list_text.h"

#include "host/texts/palettes.h"

#include <algorithm>
#include <numeric>

namespace quor::ui {

namespace {

// A list shows the pictures of its rows in this column.
constexpr int kPictureColumn = 0;

ZrString pictureName(const CListCtrl& list, int row) {
    const CImageList* const images = list.GetImageList(LVSIL_SMALL);
    const PictureResource* const picture = images != nullptr ? images->picture(list.GetItemImage(row)) : nullptr;
    return picture != nullptr ? zwResourceText(picture->name) : ZrString();
}

ZrString joined(const ZrString& a, const ZrString& b) { return a.empty() || b.empty() ? a + b : a + L" " + b; }

} // namespace

std::vector<int> columnsInOrder(const CHeaderCtrl& header) {
    std::vector<int> columns(static_cast<std::size_t>(header.GetItemCount()));
    std::iota(columns.begin(), columns.end(), 0);
    std::ranges::sort(columns, {}, [&](int column) { return header.GetItem(column)->order; });
    return columns;
}

bool showsPictures(const CListCtrl& list, int column) {
    const CImageList* const images = list.GetImageList(LVSIL_SMALL);
    return column == kPictureColumn && images != nullptr && images->GetImageCount() > 0;
}

ZrString headingText(const CListCtrl& list, int column) {
    const CHeaderCtrl::Item* const heading = list.GetHeaderCtrl()->GetItem(column);
    const ZrString title = heading != nullptr ? heading->text : ZrString();
    return title.empty() && showsPictures(list, column) ? texts::kPaletteKind.get() : title;
}

ZrString cellText(const CListCtrl& list, int row, int column) {
    const ZrString& text = list.GetItemText(row, column);
    return column == kPictureColumn ? joined(pictureName(list, row), text) : text;
}

ZrString rowText(const CListCtrl& list, int row) {
    ZrString text;
    for (const int column : columnsInOrder(*list.GetHeaderCtrl()))
        text = joined(text, cellText(list, row, column));
    return text;
}

} // namespace quor::ui
