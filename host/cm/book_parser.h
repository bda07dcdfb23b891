// The lines of a colour book, one after the other.
#pragma once

#include "host/cm/color_books.h"

#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

namespace quor::cm {

// take() each line in turn, then finish().
class BookParser {
public:
    // Nothing when the line is right, else what is wrong with it; then the book is broken.
    [[nodiscard]] std::optional<ZrString> take(std::wstring_view rawLine, std::size_t number);
    // The book; nothing and `error` when something is missing or stands there twice.
    [[nodiscard]] std::optional<ColorBook> finish(ColorBookError& error);

private:
    [[nodiscard]] std::optional<ZrString> takeBookName(std::wstring_view quoted);
    [[nodiscard]] std::optional<ZrString> takeColor(std::wstring_view line, std::size_t number);

    ZrString name_;
    std::vector<BookColor> colors_;
    std::vector<std::uint32_t> lines_; // on which each of them stands
};

} // namespace quor::cm
