#include "host/sys/text_table.h"

#include "host/sys/text_width.h"
#include "host/sys/utf8.h"
#include "host/sys/visible_text.h"

#include <algorithm>
#include <string_view>

namespace quor {

namespace {

constexpr int kNarrowGap = 1;
constexpr int kLeastOfCut = 16; // columns that a text which is cut keeps where there is room
constexpr int kLeastShown = 3;  // and where there is none: a character and the dots
constexpr char kEnd = 0;        // of a cell; no text holds one, for it is a control character

// Most texts are numbers; they need no second look.
bool isPrintableAscii(const ZrString& text) {
    return std::all_of(text.begin(), text.end(), [](wchar_t c) { return c >= L' ' && c < 0x7F; });
}

} // namespace

void TextTable::addBesideLast(const ZrString& heading, Align align) {
    addColumn(heading, align);
    columns_.back().gap = kNarrowGap;
}

void TextTable::addColumn(const ZrString& heading, Align align, Fit fit) {
    Column column;
    column.heading = heading;
    column.align = align;
    column.width = columnsOf(heading);
    column.fit = fit;
    columns_.push_back(std::move(column));
}

void TextTable::addCell(const ZrString& text) {
    Column& column = columns_[cells_++ % columns_.size()];
    int width = static_cast<int>(text.size());
    if (isPrintableAscii(text)) {
        texts_.append(text.begin(), text.end());
    } else {
        const ZrString shown = visibleText(text);
        width = columnsOf(shown);
        texts_ += toUtf8(shown);
    }
    texts_ += kEnd;
    column.width = std::max(column.width, width);
    column.isUsed = column.isUsed || !text.empty();
}

std::vector<TextTable::Block> TextTable::groups() const {
    std::vector<Block> groups;
    for (std::size_t index = 0; index < columns_.size(); ++index) {
        const Column& column = columns_[index];
        if (!column.isUsed)
            continue;
        if (groups.empty() || (index >= leads_ && column.gap != kNarrowGap))
            groups.emplace_back();
        const bool isCut = column.fit == Fit::MayBeCut && column.width > kLeastOfCut;
        groups.back().push_back({index, isCut ? std::max(kLeastOfCut, columnsOf(column.heading)) : column.width});
    }
    return groups;
}

int TextTable::widthOf(const Block& block) const {
    int width = 0;
    for (const Place& place : block)
        width += columns_[place.column].gap + place.width;
    return width;
}

void TextTable::fit(Block& block, int width) const {
    int room = width - widthOf(block);
    const int step = room < 0 ? -1 : 1;
    const auto isDone = [&](const Place& place) {
        const Column& column = columns_[place.column];
        const bool mayShrink = column.fit == Fit::MayBeCut && place.width > kLeastShown;
        return room == 0 || (step < 0 ? !mayShrink : place.width == column.width);
    };
    for (bool goesOn = true; goesOn;) {
        goesOn = false;
        // a column each in turn, so that none is cut for the sake of another
        for (Place& place : block) {
            if (isDone(place))
                continue;
            place.width += step;
            room -= step;
            goesOn = true;
        }
    }
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
    for (Block& block : blocks)
        fit(block, width);
    return blocks;
}

ZrString TextTable::line(const Block& block, const std::vector<ZrString>& texts) const {
    ZrString result;
    auto text = texts.begin();
    for (const Place& place : block) {
        const Column& column = columns_[place.column];
        const ZrString shown = place.width < column.width ? cutToColumns(*text, place.width) : *text;
        ++text;
        const auto blanks = static_cast<std::size_t>(place.width - columnsOf(shown));
        result.append(static_cast<std::size_t>(column.gap) + (column.align == Align::Right ? blanks : 0), L' ');
        result += shown;
        result.append(column.align == Align::Left ? blanks : 0, L' ');
    }
    result.erase(result.find_last_not_of(L' ') + 1);
    return result += L'\n';
}

ZrString TextTable::heading(const Block& block) const {
    std::vector<ZrString> texts;
    for (const Place& place : block)
        texts.push_back(columns_[place.column].heading);
    return line(block, texts);
}

void TextTable::forEachRow(const Block& block, const std::function<void(const ZrString&)>& take) const {
    std::vector<ZrString> texts(block.size());
    std::size_t at = 0;
    for (std::size_t row = 0; row < rows(); ++row) {
        auto text = texts.begin();
        for (std::size_t column = 0; column < columns_.size(); ++column) {
            const std::size_t end = texts_.find(kEnd, at);
            if (text != texts.end() && block[static_cast<std::size_t>(text - texts.begin())].column == column)
                *text++ = end == at ? ZrString(L"-") : fromUtf8(std::string_view(texts_).substr(at, end - at));
            at = end + 1;
        }
        take(line(block, texts));
    }
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

} // namespace quor
