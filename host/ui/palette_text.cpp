#include "host/ui/palette_text.h"

#include "host/db/ref_edit.h"
#include "host/document.h"
#include "host/session.h"
#include "host/sys/text_table.h"
#include "host/sys/visible_text.h"
#include "host/texts/palettes.h"
#include "sdk/ui/list_control.h"
#include "sdk/ui/palette_set.h"

#include <algorithm>

namespace quor::ui {

namespace {

// A list shows the pictures of its rows in this column.
constexpr int kPictureColumn = 0;

void addShownLists(const CWnd& window, std::vector<const CListCtrl*>& lists) {
    for (const CWnd* const child : window.children()) {
        if (!child->isShown())
            continue;
        if (const auto* const list = dynamic_cast<const CListCtrl*>(child))
            lists.push_back(list);
        else
            addShownLists(*child, lists);
    }
}

// From the left.
std::vector<int> columnsInOrder(const CHeaderCtrl& header) {
    std::vector<int> columns(static_cast<std::size_t>(header.GetItemCount()));
    for (std::size_t i = 0; i < columns.size(); ++i)
        columns[i] = static_cast<int>(i);
    std::sort(columns.begin(), columns.end(),
              [&](int a, int b) { return header.GetItem(a)->order < header.GetItem(b)->order; });
    return columns;
}

bool hasPictures(const CListCtrl& list) {
    const CImageList* const images = list.GetImageList(LVSIL_SMALL);
    return images != nullptr && images->GetImageCount() > 0;
}

ZrString pictureName(const CListCtrl& list, int row) {
    const CImageList* const images = list.GetImageList(LVSIL_SMALL);
    const PictureResource* const picture = images != nullptr ? images->picture(list.GetItemImage(row)) : nullptr;
    return picture != nullptr ? zwResourceText(picture->name) : ZrString();
}

ZrString cell(const CListCtrl& list, int row, int column) {
    const ZrString& text = list.GetItemText(row, column);
    if (column != kPictureColumn)
        return text;
    const ZrString name = pictureName(list, row);
    return name.empty() || text.empty() ? name + text : name + L" " + text;
}

void addColumn(TextTable& table, const CListCtrl& list, int column) {
    const ZrString& title = list.GetHeaderCtrl()->GetItem(column)->text;
    if (column == kPictureColumn && hasPictures(list))
        table.addColumn(title.empty() ? texts::kPaletteKind.get() : title, Align::Left);
    else
        table.addColumn(title, Align::Left, Fit::MayBeCut);
    if (!title.empty())
        table.keepLast();
}

TextTable tableOf(const CListCtrl& list) {
    TextTable table;
    const std::vector<int> columns = columnsInOrder(*list.GetHeaderCtrl());
    for (const int column : columns)
        addColumn(table, list, column);
    for (int row = 0; row < list.GetItemCount(); ++row)
        for (const int column : columns)
            table.addCell(cell(list, row, column));
    return table;
}

ZrString listText(const CListCtrl& list, int width) {
    const int count = list.GetItemCount();
    if (count == 0)
        return texts::kPaletteNoRows.get();
    const TextTable table = tableOf(list);
    ZrString text;
    for (const TextTable::Block& block : table.blocks(width)) {
        text += (text.empty() ? L"" : L"\n") + table.heading(block);
        table.forEachRow(block, [&](const ZrString& row) { text += row; });
    }
    return text + fill(count == 1 ? texts::kPaletteOneRow : texts::kPaletteRows, count);
}

ZrString editingText() {
    const Document* const document = Session::exists() ? Session::current().documents().current() : nullptr;
    if (document == nullptr || !document->drawing().refEdit().isActive())
        return {};
    return fill(texts::kPaletteWhileEditing, visibleText(document->drawing().refEdit().blockName()));
}

} // namespace

ZrString paletteText(const CZkUiPaletteSet& palette, int columns) {
    std::vector<const CListCtrl*> lists;
    addShownLists(palette, lists);
    ZrString text = L"\n" + visibleText(palette.GetName()) + L"\n";
    for (const CListCtrl* const list : lists)
        text += (list == lists.front() ? L"" : L"\n") + listText(*list, columns);
    return lists.empty() ? text : text + editingText();
}

} // namespace quor::ui
