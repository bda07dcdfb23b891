// COLORBOOKS: which colour books there are, or the colours of one.
#include "host/cm/color_books.h"
#include "host/commands/ask.h"
#include "host/commands/commands.h"
#include "host/sys/text_width.h"
#include "host/texts/color_books.h"

#include <algorithm>

namespace quor::commands {

namespace {

using cm::BookColor;
using cm::ColorBook;
using cm::ColorBooks;

ZrString countText(const ColorBook& book) {
    const std::size_t count = book.colors().size();
    return fill(count == 1 ? texts::kColorBookOneColor : texts::kColorBookColors, count);
}

template <class Things, class TextOf>
int widest(const Things& things, TextOf textOf) {
    int width = 0;
    for (const auto& thing : things)
        width = std::max(width, columnsOf(textOf(thing)));
    return width;
}

void listBooks(const ColorBooks& books) {
    if (books.books().empty())
        say(texts::kNoColorBooks);
    const int names = widest(books.books(), [](const ColorBook& book) { return std::wstring_view(book.name()); });
    const int counts = widest(books.books(), countText);
    for (const ColorBook& book : books.books())
        printText(L"\n  " + padRight(book.name(), names) + L"  " + padLeft(countText(book), counts) + L"  " +
                  visibleText(textOf(book.file())) + L"\n");
    cm::reportColorBookErrors();
}

void listColors(const ColorBook& book) {
    printText(L"\n" + book.name() + L"  " + countText(book) + L"\n");
    const int names = widest(book.colors(), [](const BookColor& color) { return std::wstring_view(color.name); });
    const auto component = [](std::uint8_t value) {
        constexpr int kDigits = 3;
        return padLeft(std::to_wstring(value), kDigits);
    };
    for (const BookColor& color : book.colors())
        printText(L"  " + padRight(color.name, names) + L"  " + component(color.red) + L"," + component(color.green) +
                  L"," + component(color.blue) + L"\n");
}

} // namespace

// The books are read anew, so that one that a person has just added or mended is found.
int colorBooks(Session&) {
    const std::optional<ZrString> name = askLine(texts::kAskColorBook.get());
    if (!name)
        return RTCAN;
    const ColorBooks& books = cm::rereadColorBooks();
    if (name->empty()) {
        listBooks(books);
        return RTNORM;
    }
    const ColorBook* const book = books.find(*name);
    if (book == nullptr) {
        cm::reportColorBookErrors(); // it may be one of those
        return failWith(texts::kNoSuchColorBook, shortened(*name));
    }
    listColors(*book);
    return RTNORM;
}

} // namespace quor::commands
