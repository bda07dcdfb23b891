// Colour books: named colours in readable files, found by book and colour name.
#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string_view>
#include <vector>

#include "sdk/sys/string.h"

namespace quor::cm {

struct BookColor {
    ZrString name;
    std::uint8_t red = 0;
    std::uint8_t green = 0;
    std::uint8_t blue = 0;
};

struct ColorBook {
    ZrString name;
    std::vector<BookColor> colors; // in the order of the file
    std::filesystem::path file;    // from which it was loaded

    // Without regard to case; null when the book has no such colour.
    [[nodiscard]] const BookColor* find(std::wstring_view colorName) const;
};

struct ColorBookError {
    std::filesystem::path file; // or the folder, when that could not be listed
    std::size_t line = 0;       // from 1; 0 when the whole file is meant
    ZrString reason;

    // One line for people: file, line, reason, and that it was left out.
    [[nodiscard]] ZrString message() const;
};

// One book from the text of a file: a line `book = "Name"` first, then lines `colour name = r,g,b`; blank lines and
// lines that begin with # are skipped. Empty and `error` (line and reason) for a text that breaks a rule.
[[nodiscard]] std::optional<ColorBook> parseColorBook(std::string_view utf8, ColorBookError& error);

// All books of some folders (files *.book), sorted by name. A book that is broken, or has the name of one before it, is
// kept as an error and left out; a folder that does not exist holds no books.
class ColorBooks {
public:
    [[nodiscard]] static ColorBooks load(const std::vector<std::filesystem::path>& folders);

    [[nodiscard]] const std::vector<ColorBook>& books() const { return books_; }
    [[nodiscard]] const std::vector<ColorBookError>& errors() const { return errors_; }
    // Without regard to case; null when there is no such book.
    [[nodiscard]] const ColorBook* find(std::wstring_view bookName) const;

private:
    void add(const std::filesystem::path& file);

    std::vector<ColorBook> books_;
    std::vector<ColorBookError> errors_;
};

// The books of the host, loaded at the first use; what is wrong with them is then told on the command line.
[[nodiscard]] const ColorBooks& colorBooks();
// Where they are loaded from, from now on; the books of an earlier folder come first. None unless set.
void setColorBookFolders(std::vector<std::filesystem::path> folders);

} // namespace quor::cm
