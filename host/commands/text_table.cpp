#include "host/commands/text_table.h"

#include "host/sys/text_width.h"
#include "host/sys/visible_text.h"

#include <algorithm>

namespace quor::commands {

namespace {

// Most texts are numbers; they need no second look.
bool isPrintableAscii(const ZrString& text) {
    return std::all_of(text.begin(), text.end(), [](wchar_t c) { return c >= L' ' && c < 0x7F; });
}

} // namespace

void TextTable::addColumn(const ZrString& heading, Align align, int gap) {
    Column column;
    column.heading = heading;
    column.align = align;
    column.gap = gap;
    column.width = columnsOf(heading);
    columns_.push_back(std::move(column));
}

void TextTable::addCell(const ZrString& text) {
    Column& column = columns_[next_];
    next_ = (next_ + 1) % columns_.size();
    int width = static_cast<int>(text.size());
    if (isPrintableAscii(text)) {
        column.texts += text;
    } else {
        const ZrString shown = visibleText(text);
        width = columnsOf(shown);
        column.texts += shown;
    }
    column.cells.push_back({column.texts.size(), width});
    column.width = std::max(column.width, width);
    column.isUsed = column.isUsed || !text.empty();
}

template <class ShownOf>
ZrString TextTable::line(ShownOf shownOf) const {
    ZrString result;
    for (const Column& column : columns_) {
        if (!column.isUsed)
            continue;
        const Shown shown = shownOf(column);
        const auto blanks = static_cast<std::size_t>(column.width - shown.width);
        result.append(static_cast<std::size_t>(column.gap) + (column.align == Align::Right ? blanks : 0), L' ');
        result += shown.text;
        result.append(column.align == Align::Left ? blanks : 0, L' ');
    }
    result.erase(result.find_last_not_of(L' ') + 1);
    return result += L'\n';
}

ZrString TextTable::heading() const {
    return line([](const Column& column) { return Shown{column.heading, columnsOf(column.heading)}; });
}

ZrString TextTable::row(std::size_t index) const {
    return line([&](const Column& column) {
        const Cell& cell = column.cells[index];
        const std::size_t begin = index == 0 ? 0 : column.cells[index - 1].end;
        if (cell.end == begin)
            return Shown{L"-", 1};
        return Shown{std::wstring_view(column.texts).substr(begin, cell.end - begin), cell.width};
    });
}

ZrString cutToColumns(const ZrString& text, int columns) {
    if (columnsOf(text) <= columns)
        return text;
    int width = 1; // of the dots
    std::size_t length = 0;
    while (width + columnsOf(text[length]) <= columns)
        width += columnsOf(text[length++]);
    return text.substr(0, length) + L"…";
}

} // namespace quor::commands
