#include "host/cm/color_books.h"

#include <algorithm>
#include <cerrno>
#include <numeric>
#include <system_error>
#include <utility>

#include "host/cm/book_parser.h"
#include "host/sys/case_fold.h"
#include "host/sys/problem_report.h"
#include "host/sys/system_error.h"
#include "host/sys/utf8.h"
#include "host/sys/visible_text.h"
#include "host/sys/whole_file.h"
#include "host/texts/color_books.h"

namespace quor::cm {
namespace {

namespace fs = std::filesystem;

// Every entry, of whatever kind: one that cannot be read is told of later.
std::vector<fs::path> bookFiles(const fs::path& folder, std::vector<ColorBookError>& errors) {
    std::vector<fs::path> files;
    std::error_code failure;
    for (fs::directory_iterator it(folder, failure), end; !failure && it != end; it.increment(failure))
        if (it->path().extension() == ".book")
            files.push_back(it->path());
    if (failure && failure != std::errc::no_such_file_or_directory)
        errors.push_back({folder, 0, fill(texts::colorBookFolderNotRead, systemErrorText(failure.value()))});
    std::sort(files.begin(), files.end());
    return files;
}

ZrString whyNotRead(int systemError) {
    if (systemError == EFBIG)
        return fill(texts::colorBookTooLarge, largestColorBook >> 20);
    return fill(texts::colorBookNotRead, systemErrorText(systemError));
}

struct HostBooks {
    std::vector<fs::path> folders;
    std::optional<ColorBooks> books; // nothing: not asked for yet
    bool isReported = false;         // what is wrong with them
};

HostBooks& hostBooks() {
    static HostBooks books;
    return books;
}

} // namespace

ColorBook::ColorBook(ZrString name, std::vector<BookColor> colors)
    : name_(std::move(name)), colors_(std::move(colors)), byName_(colors_.size()) {
    std::iota(byName_.begin(), byName_.end(), 0U);
    std::sort(byName_.begin(), byName_.end(), [this](std::uint32_t a, std::uint32_t b) {
        const int order = compareFolded(colors_[a].name, colors_[b].name);
        return order != 0 ? order < 0 : a < b;
    });
}

const BookColor* ColorBook::find(std::wstring_view colorName) const {
    const auto at = std::lower_bound(
        byName_.begin(), byName_.end(), colorName,
        [this](std::uint32_t place, std::wstring_view name) { return compareFolded(colors_[place].name, name) < 0; });
    return at != byName_.end() && equalFolded(colors_[*at].name, colorName) ? &colors_[*at] : nullptr;
}

std::optional<ColorBook::Double> ColorBook::firstDouble() const {
    std::optional<Double> first;
    for (std::size_t i = 1; i < byName_.size(); ++i) {
        const Double pair{byName_[i - 1], byName_[i]};
        if ((!first || pair.later < first->later) && equalFolded(colors_[pair.earlier].name, colors_[pair.later].name))
            first = pair;
    }
    return first;
}

ZrString ColorBookError::message() const {
    const ZrString name = fromUtf8(file.native());
    return visibleText(line > 0 ? fill(texts::colorBookLineProblem, name, line, reason)
                                : fill(texts::colorBookFileProblem, name, reason));
}

std::optional<ColorBook> parseColorBook(std::string_view utf8, ColorBookError& error) {
    constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";
    if (utf8.starts_with(byteOrderMark))
        utf8.remove_prefix(byteOrderMark.size());
    BookParser parser;
    for (std::size_t number = 1; !utf8.empty(); ++number) {
        const std::string_view line = utf8.substr(0, utf8.find_first_of("\r\n"));
        std::optional<ZrString> complaint =
            isValidUtf8(line) ? parser.take(fromUtf8(line), number) : fill(texts::colorBookNotUtf8);
        if (complaint) {
            error.line = number;
            error.reason = std::move(*complaint);
            return std::nullopt;
        }
        utf8.remove_prefix(line.size());
        utf8.remove_prefix(utf8.starts_with("\r\n") ? 2 : std::min<std::size_t>(1, utf8.size()));
    }
    return parser.finish(error);
}

ColorBooks ColorBooks::load(const std::vector<fs::path>& folders) {
    ColorBooks books;
    for (const fs::path& folder : folders)
        for (const fs::path& file : bookFiles(folder, books.errors_))
            books.add(file);
    std::sort(books.books_.begin(), books.books_.end(),
              [](const ColorBook& a, const ColorBook& b) { return compareFolded(a.name(), b.name()) < 0; });
    return books;
}

void ColorBooks::add(const fs::path& file) {
    ColorBookError error{file, 0, {}};
    const Result<std::string, int> bytes = readWholeFile(file, largestColorBook);
    auto book = bytes ? parseColorBook(*bytes, error) : std::nullopt;
    if (!bytes)
        error.reason = whyNotRead(bytes.error());
    const ColorBook* const earlier = book ? find(book->name()) : nullptr;
    if (earlier != nullptr)
        error.reason = fill(texts::colorBookTwice, earlier->name(), fromUtf8(earlier->file().native()));
    if (!book || earlier != nullptr) {
        errors_.push_back(std::move(error));
        return;
    }
    book->setFile(file);
    books_.push_back(std::move(*book));
}

const ColorBook* ColorBooks::find(std::wstring_view bookName) const {
    const auto it = std::find_if(books_.begin(), books_.end(),
                                 [bookName](const ColorBook& b) { return equalFolded(b.name(), bookName); });
    return it == books_.end() ? nullptr : &*it;
}

const ColorBooks& colorBooks() {
    HostBooks& host = hostBooks();
    if (!host.books)
        (void)rereadColorBooks();
    if (!host.isReported)
        reportColorBookErrors();
    return *host.books;
}

const ColorBooks& rereadColorBooks() {
    HostBooks& host = hostBooks();
    host.books = ColorBooks::load(host.folders);
    host.isReported = false;
    return *host.books;
}

void reportColorBookErrors() {
    HostBooks& host = hostBooks();
    host.isReported = true;
    if (host.books)
        for (const ColorBookError& error : host.books->errors())
            reportProblem(error.message());
}

void setColorBookFolders(std::vector<fs::path> folders) {
    hostBooks().folders = std::move(folders);
    hostBooks().books.reset();
}

} // namespace quor::cm
