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

class ColorBook {
public:
    ColorBook(ZrString name, std::vector<BookColor> colors);

    [[nodiscard]] const ZrString& name() const { return name_; }
    // In the order of the file.
    [[nodiscard]] const std::vector<BookColor>& colors() const { return colors_; }
    // Without regard to case; null when the book has no such colour.
    [[nodiscard]] const BookColor* find(std::wstring_view colorName) const;

    // Two colours of one name, by their places; of several such pairs the one that is complete first.
    struct Double {
        std::size_t earlier;
        std::size_t later;
    };
    [[nodiscard]] std::optional<Double> firstDouble() const;

    // From which it was loaded; empty for a book that comes from no file.
    [[nodiscard]] const std::filesystem::path& file() const { return file_; }
    void setFile(std::filesystem::path file) { file_ = std::move(file); }

private:
    ZrString name_;
    std::vector<BookColor> colors_;
    std::vector<std::uint32_t> byName_; // places in colors_; equal names in the order of the file
    std::filesystem::path file_;
};

struct ColorBookError {
    std::filesystem::path file; // or the folder, when that could not be listed
    std::size_t line = 0;       // from 1; 0 when the whole file is meant
    ZrString reason;

    // One line for people: file, line, reason, and that it was left out. Control characters are spelled out.
    [[nodiscard]] ZrString message() const;
};

// A larger file is no colour book.
constexpr std::size_t largestColorBook = std::size_t{4} << 20;

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

// The books of the host, read at the first use; what is wrong with them is then reported (host/sys/problem_report.h).
[[nodiscard]] const ColorBooks& colorBooks();
// The same, read anew; what is wrong is reported when they are asked for the next time, or at once by the caller. Books
// from before are gone.
[[nodiscard]] const ColorBooks& rereadColorBooks();
// Reports what is wrong with the books that were read, now instead of later.
void reportColorBookErrors();
// Where they are read from, from now on; the books of an earlier folder come first. None unless set.
void setColorBookFolders(std::vector<std::filesystem::path> folders);

} // namespace quor::cm
