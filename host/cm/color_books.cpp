#include "host/cm/color_books.h"

#include <algorithm>
#include <cerrno>
#include <fstream>
#include <iterator>
#include <system_error>
#include <unordered_map>
#include <utility>

#include "host/cm/rgb_text.h"
#include "host/sys/case_fold.h"
#include "host/sys/system_error.h"
#include "host/sys/utf8.h"
#include "host/texts/color_books.h"

namespace quor::cm {
namespace {

namespace fs = std::filesystem;

// Names are typed at prompts that take so many characters; shorter book names are taken for a slip of the finger there.
constexpr std::size_t shortestBookName = 4;
constexpr std::size_t longestName = 131;

std::wstring_view trim(std::wstring_view text) {
    constexpr std::wstring_view blanks = L" \t\r\xFEFF";
    const std::size_t first = text.find_first_not_of(blanks);
    return first == std::wstring_view::npos ? std::wstring_view()
                                            : text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

bool isName(std::wstring_view name, std::size_t shortest) {
    return name.size() >= shortest && name.size() <= longestName && name.find(L'$') == std::wstring_view::npos;
}

// What is wrong with a line; nothing when it is right.
using Complaint = std::optional<ZrString>;

// Takes one line of a book after the other.
class BookParser {
public:
    Complaint take(std::wstring_view rawLine, std::size_t number) {
        const std::wstring_view line = trim(rawLine);
        if (line.empty() || line.front() == L'#')
            return std::nullopt;
        const std::size_t equals = line.rfind(L'=');
        if (equals == std::wstring_view::npos)
            return fill(book_.name.empty() ? texts::colorBookNoName : texts::colorBookNoEquals);
        const std::wstring_view left = trim(line.substr(0, equals));
        const std::wstring_view right = trim(line.substr(equals + 1));
        if (!right.empty() && right.front() == L'"')
            return takeBookName(left, right);
        return book_.name.empty() ? fill(texts::colorBookNoName) : takeColor(left, right, number);
    }

    [[nodiscard]] Complaint finish() const {
        if (book_.name.empty())
            return fill(texts::colorBookNoName);
        return book_.colors.empty() ? Complaint(fill(texts::colorBookEmpty)) : std::nullopt;
    }

    [[nodiscard]] ColorBook result() { return std::move(book_); }

private:
    Complaint takeBookName(std::wstring_view left, std::wstring_view right) {
        if (!equalFolded(left, L"book"))
            return fill(texts::colorBookBadColor);
        if (!book_.name.empty())
            return fill(texts::colorBookSecondName);
        if (right.size() < 2 || right.back() != L'"')
            return fill(texts::colorBookBadName);
        const std::wstring_view name = right.substr(1, right.size() - 2);
        if (!isName(name, shortestBookName) || name.find(L'"') != std::wstring_view::npos || trim(name) != name)
            return fill(texts::colorBookBadName);
        book_.name = name;
        return std::nullopt;
    }

    Complaint takeColor(std::wstring_view left, std::wstring_view right, std::size_t number) {
        if (!isName(left, 1))
            return fill(texts::colorBookBadColorName);
        const auto rgb = parseRgb(right);
        if (!rgb)
            return fill(texts::colorBookBadColor);
        const auto [earlier, added] = lines_.try_emplace(ZrString(left), number);
        if (!added)
            return fill(texts::colorBookColorTwice, left, earlier->second);
        book_.colors.push_back({ZrString(left), static_cast<std::uint8_t>(*rgb >> 16),
                                static_cast<std::uint8_t>(*rgb >> 8 & 0xFF), static_cast<std::uint8_t>(*rgb & 0xFF)});
        return std::nullopt;
    }

    ColorBook book_;
    std::unordered_map<ZrString, std::size_t, FoldedHash, FoldedEqual> lines_; // on which each colour stands
};

// The text of a file; nothing, and errno, when it cannot be read.
std::optional<std::string> readFile(const fs::path& file) {
    errno = 0;
    std::ifstream stream(file, std::ios::binary);
    std::string bytes{std::istreambuf_iterator<char>(stream), {}};
    if (!stream)
        return std::nullopt;
    return bytes;
}

std::vector<fs::path> bookFiles(const fs::path& folder, std::vector<ColorBookError>& errors) {
    std::vector<fs::path> files;
    std::error_code failure;
    for (fs::directory_iterator it(folder, failure), end; !failure && it != end; it.increment(failure)) {
        std::error_code ignored; // an entry that cannot be looked at is no book
        if (it->path().extension() == ".book" && it->is_regular_file(ignored))
            files.push_back(it->path());
    }
    if (failure && failure != std::errc::no_such_file_or_directory)
        errors.push_back({folder, 0, fill(texts::colorBookFolderNotRead, systemErrorText(failure.value()))});
    std::sort(files.begin(), files.end());
    return files;
}

struct HostBooks {
    std::vector<fs::path> folders;
    std::optional<ColorBooks> books; // nothing: not asked for yet
};

HostBooks& hostBooks() {
    static HostBooks books;
    return books;
}

} // namespace

const BookColor* ColorBook::find(std::wstring_view colorName) const {
    const auto it = std::find_if(colors.begin(), colors.end(),
                                 [colorName](const BookColor& c) { return equalFolded(c.name, colorName); });
    return it == colors.end() ? nullptr : &*it;
}

ZrString ColorBookError::message() const {
    const ZrString name = fromUtf8(file.native());
    return line > 0 ? fill(texts::colorBookLineProblem, name, line, reason)
                    : fill(texts::colorBookFileProblem, name, reason);
}

std::optional<ColorBook> parseColorBook(std::string_view utf8, ColorBookError& error) {
    BookParser parser;
    std::size_t number = 0;
    const auto refuse = [&](std::size_t line, ZrString reason) {
        error.line = line;
        error.reason = std::move(reason);
        return std::nullopt;
    };
    for (std::size_t at = 0; at < utf8.size();) {
        const std::size_t end = std::min(utf8.find('\n', at), utf8.size());
        const std::string_view line = utf8.substr(at, end - at);
        ++number;
        if (!isValidUtf8(line))
            return refuse(number, fill(texts::colorBookNotUtf8));
        if (Complaint complaint = parser.take(fromUtf8(line), number))
            return refuse(number, std::move(*complaint));
        at = end + 1;
    }
    if (Complaint complaint = parser.finish())
        return refuse(0, std::move(*complaint));
    return parser.result();
}

ColorBooks ColorBooks::load(const std::vector<fs::path>& folders) {
    ColorBooks books;
    for (const fs::path& folder : folders)
        for (const fs::path& file : bookFiles(folder, books.errors_))
            books.add(file);
    std::sort(books.books_.begin(), books.books_.end(),
              [](const ColorBook& a, const ColorBook& b) { return compareFolded(a.name, b.name) < 0; });
    return books;
}

void ColorBooks::add(const fs::path& file) {
    ColorBookError error{file, 0, {}};
    const auto bytes = readFile(file);
    auto book = bytes ? parseColorBook(*bytes, error) : std::nullopt;
    if (!bytes)
        error.reason = fill(texts::colorBookNotRead, systemErrorText(errno));
    const ColorBook* const earlier = book ? find(book->name) : nullptr;
    if (earlier != nullptr)
        error.reason = fill(texts::colorBookTwice, earlier->name, fromUtf8(earlier->file.native()));
    if (!book || earlier != nullptr) {
        errors_.push_back(std::move(error));
        return;
    }
    book->file = file;
    books_.push_back(std::move(*book));
}

const ColorBook* ColorBooks::find(std::wstring_view bookName) const {
    const auto it = std::find_if(books_.begin(), books_.end(),
                                 [bookName](const ColorBook& b) { return equalFolded(b.name, bookName); });
    return it == books_.end() ? nullptr : &*it;
}

const ColorBooks& colorBooks() {
    HostBooks& host = hostBooks();
    if (!host.books) {
        host.books = ColorBooks::load(host.folders);
        for (const ColorBookError& error : host.books->errors())
            printText(L"\n" + error.message());
    }
    return *host.books;
}

void setColorBookFolders(std::vector<fs::path> folders) {
    hostBooks().folders = std::move(folders);
    hostBooks().books.reset();
}

} // namespace quor::cm
