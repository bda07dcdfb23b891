#include "host/commands/text_table.h"

#include "host/sys/text_width.h"
#include "host/sys/visible_text.h"

#include <algorithm>

namespace quor::commands {

std::wstring_view TextTable::Column::text(std::size_t row) const {
    const std::size_t begin = row == 0 ? 0 : ends[row - 1];
    return std::wstring_view(texts).substr(begin, ends[row] - begin);
}

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
    const ZrString shown = visibleText(text);
    column.texts += shown;
    column.ends.push_back(column.texts.size());
    column.width = std::max(column.width, columnsOf(shown));
    column.isUsed = column.isUsed || !shown.empty();
}

template <class TextOf>
ZrString TextTable::line(TextOf textOf) const {
    ZrString result;
    for (const Column& column : columns_) {
        if (!column.isUsed)
            continue;
        const std::wstring_view text = textOf(column);
        result.append(static_cast<std::size_t>(column.gap), L' ');
        result += (column.align == Align::Left ? padRight(text, column.width) : padLeft(text, column.width));
    }
    result.erase(result.find_last_not_of(L' ') + 1);
    return result + L"\n";
}

ZrString TextTable::heading() const {
    return line([](const Column& column) { return std::wstring_view(column.heading); });
}

ZrString TextTable::row(std::size_t index) const {
    return line([&](const Column& column) {
        const std::wstring_view text = column.text(index);
        return text.empty() ? std::wstring_view(L"-") : text;
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
