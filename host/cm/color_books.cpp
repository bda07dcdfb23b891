#include "host/cm/color_books.h"

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <system_error>
#include <unordered_set>
#include <utility>

#include "host/cm/rgb_text.h"
#include "host/sys/case_fold.h"
#include "host/sys/program_folder.h"
#include "host/sys/utf8.h"

namespace quor::cm {
namespace {

namespace fs = std::filesystem;

// What can be wrong with a book, for people.
constexpr const wchar_t* noUtf8 = L"不是有效的 UTF-8 文本 (not valid UTF-8)";
constexpr const wchar_t* noBookLine = L"缺少 book = \"名称\" 行 (the line book = \"Name\" must come first)";
constexpr const wchar_t* secondBookLine = L"book 行只能出现一次 (only one book line is allowed)";
constexpr const wchar_t* badBookName =
    L"配色系统名称须加引号，4 到 131 个字符，不含 $ (a book name stands in quotes, has 4 "
    L"to 131 characters and no $)";
constexpr const wchar_t* badColorName =
    L"颜色名称须为 1 到 131 个字符，不含 $ (a colour name has 1 to 131 characters and no $)";
constexpr const wchar_t* noEqualSign = L"应为 名称 = r,g,b (expected: name = r,g,b)";
constexpr const wchar_t* badRgb =
    L"颜色须为 r,g,b，每个数为 0 到 255 的整数 (a colour is r,g,b, whole numbers from 0 to 255)";
constexpr const wchar_t* doubleColor = L"颜色名称重复 (this colour name stands in the book already)";
constexpr const wchar_t* doubleBook = L"已有同名的配色系统 (another book has this name)";
constexpr const wchar_t* noColors = L"没有颜色 (the book holds no colour)";
constexpr const wchar_t* cannotRead = L"无法读取 (cannot be read)";

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

// Takes one line of a book after the other.
class BookParser {
public:
    // Null when the line is right, else what is wrong with it.
    const wchar_t* take(std::wstring_view rawLine) {
        const std::wstring_view line = trim(rawLine);
        if (line.empty() || line.front() == L'#')
            return nullptr;
        const std::size_t equals = line.rfind(L'=');
        if (equals == std::wstring_view::npos)
            return book_.name.empty() ? noBookLine : noEqualSign;
        const std::wstring_view left = trim(line.substr(0, equals));
        const std::wstring_view right = trim(line.substr(equals + 1));
        if (!right.empty() && right.front() == L'"')
            return takeBookName(left, right);
        return book_.name.empty() ? noBookLine : takeColor(left, right);
    }

    [[nodiscard]] const wchar_t* finish() const {
        if (book_.name.empty())
            return noBookLine;
        return book_.colors.empty() ? noColors : nullptr;
    }

    [[nodiscard]] ColorBook result() { return std::move(book_); }

private:
    const wchar_t* takeBookName(std::wstring_view left, std::wstring_view right) {
        if (!equalFolded(left, L"book"))
            return badRgb;
        if (!book_.name.empty())
            return secondBookLine;
        if (right.size() < 2 || right.back() != L'"')
            return badBookName;
        const std::wstring_view name = right.substr(1, right.size() - 2);
        if (!isName(name, shortestBookName) || name.find(L'"') != std::wstring_view::npos || trim(name) != name)
            return badBookName;
        book_.name = name;
        return nullptr;
    }

    const wchar_t* takeColor(std::wstring_view left, std::wstring_view right) {
        if (!isName(left, 1))
            return badColorName;
        const auto rgb = parseRgb(right);
        if (!rgb)
            return badRgb;
        if (!seen_.emplace(left).second)
            return doubleColor;
        book_.colors.push_back({std::wstring(left), static_cast<std::uint8_t>(*rgb >> 16),
                                static_cast<std::uint8_t>(*rgb >> 8 & 0xFF), static_cast<std::uint8_t>(*rgb & 0xFF)});
        return nullptr;
    }

    ColorBook book_;
    std::unordered_set<std::wstring, FoldedHash, FoldedEqual> seen_;
};

// The text of a file; nothing when it cannot be read.
std::optional<std::string> readFile(const fs::path& file) {
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
        errors.push_back({folder, 0, std::wstring(cannotRead) + L": " + fromUtf8(failure.message())});
    std::sort(files.begin(), files.end());
    return files;
}

struct HostBooks {
    std::optional<fs::path> folder;
    std::optional<ColorBooks> books;
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

std::wstring ColorBookError::message() const {
    std::wstring text = fromUtf8(file.native());
    if (line != 0)
        text += L", line " + std::to_wstring(line);
    return text + L": " + reason;
}

std::optional<ColorBook> parseColorBook(std::string_view utf8, ColorBookError& error) {
    BookParser parser;
    std::size_t lineNumber = 0;
    const auto refuse = [&](std::size_t line, const wchar_t* reason) {
        error.line = line;
        error.reason = reason;
        return std::nullopt;
    };
    for (std::size_t at = 0; at < utf8.size();) {
        const std::size_t end = std::min(utf8.find('\n', at), utf8.size());
        const std::string_view line = utf8.substr(at, end - at);
        ++lineNumber;
        if (!isValidUtf8(line))
            return refuse(lineNumber, noUtf8);
        if (const wchar_t* reason = parser.take(fromUtf8(line)))
            return refuse(lineNumber, reason);
        at = end + 1;
    }
    if (const wchar_t* reason = parser.finish())
        return refuse(0, reason);
    return parser.result();
}

ColorBooks ColorBooks::load(const fs::path& folder) {
    ColorBooks books;
    for (const fs::path& file : bookFiles(folder, books.errors_))
        books.add(file);
    std::sort(books.books_.begin(), books.books_.end(),
              [](const ColorBook& a, const ColorBook& b) { return compareFolded(a.name, b.name) < 0; });
    return books;
}

void ColorBooks::add(const fs::path& file) {
    ColorBookError error{file, 0, {}};
    const auto bytes = readFile(file);
    if (!bytes) {
        error.reason = cannotRead;
        errors_.push_back(std::move(error));
        return;
    }
    auto book = parseColorBook(*bytes, error);
    if (book && find(book->name) != nullptr) {
        error.reason = doubleBook;
        book.reset();
    }
    if (book)
        books_.push_back(std::move(*book));
    else
        errors_.push_back(std::move(error));
}

const ColorBook* ColorBooks::find(std::wstring_view bookName) const {
    const auto it = std::find_if(books_.begin(), books_.end(),
                                 [bookName](const ColorBook& b) { return equalFolded(b.name, bookName); });
    return it == books_.end() ? nullptr : &*it;
}

fs::path defaultColorBookFolder() {
    const char* resources = std::getenv("QUOR_RESOURCES");
    if (resources != nullptr && *resources != '\0')
        return fs::path(resources) / "colorbooks";
    return sys::programFolder() / ".." / "share" / "quor" / "colorbooks";
}

const ColorBooks& colorBooks() {
    HostBooks& host = hostBooks();
    if (!host.books)
        host.books = ColorBooks::load(host.folder ? *host.folder : defaultColorBookFolder());
    return *host.books;
}

void setColorBookFolder(const fs::path& folder) {
    hostBooks().folder = folder;
    hostBooks().books.reset();
}

} // namespace quor::cm
