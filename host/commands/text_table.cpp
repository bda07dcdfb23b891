#include "host/commands/text_table.h"

#include "host/sys/text_width.h"
#include "host/sys/visible_text.h"

#include <algorithm>

namespace quor::commands {

namespace {

constexpr int kNarrowGap = 1;

// Most texts are numbers; they need no second look.
bool isPrintableAscii(const ZrString& text) {
    return std::all_of(text.begin(), text.end(), [](wchar_t c) { return c >= L' ' && c < 0x7F; });
}

} // namespace

void TextTable::addBesideLast(const ZrString& heading, Align align) {
    addColumn(heading, align);
    columns_.back().gap = kNarrowGap;
}

void TextTable::addColumn(const ZrString& heading, Align align) {
    Column column;
    column.heading = heading;
    column.align = align;
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

std::vector<TextTable::Block> TextTable::groups() const {
    std::vector<Block> groups;
    for (std::size_t column = 0; column < columns_.size(); ++column) {
        if (!columns_[column].isUsed)
            continue;
        if (groups.empty() || columns_[column].gap != kNarrowGap)
            groups.emplace_back();
        groups.back().push_back(column);
    }
    return groups;
}

int TextTable::widthOf(const Block& block) const {
    int width = 0;
    for (const std::size_t column : block)
        width += columns_[column].gap + columns_[column].width;
    return width;
}

std::vector<TextTable::Block> TextTable::blocks(int width) const {
    const std::vector<Block> all = groups();
    if (all.empty())
        return {};
    std::vector<Block> blocks{all.front()};
    for (std::size_t group = 1; group < all.size(); ++group) {
        const bool isFull = widthOf(blocks.back()) + widthOf(all[group]) > width;
        if (isFull && blocks.back().size() > all.front().size())
            blocks.push_back(all.front());
        blocks.back().insert(blocks.back().end(), all[group].begin(), all[group].end());
    }
    return blocks;
}

template <class ShownOf>
ZrString TextTable::line(const Block& block, ShownOf shownOf) const {
    ZrString result;
    for (const std::size_t index : block) {
        const Column& column = columns_[index];
        const Shown shown = shownOf(column);
        const auto blanks = static_cast<std::size_t>(column.width - shown.width);
        result.append(static_cast<std::size_t>(column.gap) + (column.align == Align::Right ? blanks : 0), L' ');
        result += shown.text;
        result.append(column.align == Align::Left ? blanks : 0, L' ');
    }
    result.erase(result.find_last_not_of(L' ') + 1);
    return result += L'\n';
}

ZrString TextTable::heading(const Block& block) const {
    return line(block, [](const Column& column) { return Shown{column.heading, columnsOf(column.heading)}; });
}

ZrString TextTable::row(const Block& block, std::size_t index) const {
    return line(block, [&](const Column& column) {
        const Cell& cell = column.cells[index];
        const std::size_t begin = index == 0 ? 0 : column.cells[index - 1].end;
        if (cell.end == begin)
            return Shown{L"-", 1};
        return Shown{std::wstring_view(column.texts).substr(begin, cell.end - begin), cell.width};
    });
}

ZrString cutToColumns(const ZrString& text, int columns) {
    constexpr int kWidest = 2; // of characters
    if (static_cast<int>(text.size()) * kWidest <= columns || columnsOf(text) <= columns)
        return text;
    int width = 1; // of the dots
    std::size_t length = 0;
    while (width + columnsOf(text[length]) <= columns)
        width += columnsOf(text[length++]);
    return text.substr(0, length) + L"…";
}

} // namespace quor::commands
