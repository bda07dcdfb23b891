#include "console/columns.h"

#include "host/sys/text_width.h"

#include <algorithm>

namespace quor::console {

ZrString inColumns(const std::vector<ZrString>& words, std::size_t screenWidth) {
    std::size_t widest = 0;
    for (const ZrString& word : words)
        widest = std::max(widest, static_cast<std::size_t>(columnsOf(word)));
    const std::size_t cell = widest + 2;
    const std::size_t columns = std::max<std::size_t>(1, screenWidth / cell);
    const std::size_t rows = (words.size() + columns - 1) / columns;
    ZrString text;
    for (std::size_t row = 0; row < rows; ++row) {
        for (std::size_t at = row; at < words.size(); at += rows) {
            const bool isLast = at + rows >= words.size();
            text += isLast ? words[at] : padRight(words[at], static_cast<int>(cell));
        }
        text += L'\n';
    }
    return text;
}

int lastRowOf(std::wstring_view text, int screenWidth) {
    int row = 0;
    int column = 0;
    for (const wchar_t c : text) {
        const int width = columnsOf(c);
        if (column + width > screenWidth) {
            ++row;
            column = 0;
        }
        column += width;
    }
    return column >= screenWidth ? row + 1 : row;
}

} // namespace quor::console
