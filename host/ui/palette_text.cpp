#include "host/ui/palette_text.h"

#include "host/db/ref_edit.h"
#include "host/document.h"
#include "host/session.h"
#include "host/sys/text_table.h"
#include "host/sys/visible_text.h"
#include "host/texts/palettes.h"
#include "host/ui/list_text.h"
#include "sdk/ui/palette_set.h"

namespace quor::ui {

namespace {

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

void addColumn(TextTable& table, const CListCtrl& list, int column) {
    if (showsPictures(list, column))
        table.addColumn(headingText(list, column), Align::Left);
    else
        table.addColumn(headingText(list, column), Align::Left, Fit::MayBeCut);
    if (!list.GetHeaderCtrl()->GetItem(column)->text.empty())
        table.keepLast();
}

TextTable tableOf(const CListCtrl& list) {
    TextTable table;
    const std::vector<int> columns = columnsInOrder(*list.GetHeaderCtrl());
    for (const int column : columns)
        addColumn(table, list, column);
    for (int row = 0; row < list.GetItemCount(); ++row)
        for (const int column : columns)
            table.addCell(cellText(list, row, column));
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
